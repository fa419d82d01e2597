/**
 * @file
 * Records on C++ streams, for log files and consoles.
 *
 * - `operator<<` prints a whole record, entry or table. The output never ends with a line break: the caller adds one.
 * - `print_diff` prints a value or what differs in it from a reference, indented, for logs of configuration changes.
 *
 * Every value's text comes from the formatters of ravix_types_str_convert.h. Secrets (keys, passphrases, RADIUS
 * secrets) are shown as "[SECRET]". The caller's stream keeps its flags, width, precision and fill; they do not affect
 * the output. A stream that is set to throw does so; nothing else throws. Printers may be used by any number of
 * threads, each on a stream of its own.
 */
#ifndef RAVIX_TYPES_PRINTERS_HPP
#define RAVIX_TYPES_PRINTERS_HPP

#include "ravix_types_api_request.h"
#include "ravix_types_cfg.h"
#include "ravix_types_common.h"
#include "ravix_types_event.h"
#include "ravix_types_radio_env.h"
#include "ravix_types_radiod_hal.h"
#include "ravix_types_sta.h"

#include <ios>
#include <iosfwd>

/** @defgroup printers Printers
 *  @{ */

namespace zel {

/** Keeps a stream's format state (flags, width, precision, fill, locale, exception mask) and gives it back when the
 *  scope ends, also by an exception. For printers that set formats of their own around those of this library. */
class RAVIX_API ios_copyfmt {
public:
  /** Remembers a stream's state.
   *  @param stream must outlive the guard */
  explicit ios_copyfmt(std::basic_ios<char> &stream);
  /** Restores it. An exception that the stream throws meanwhile is swallowed. */
  ~ios_copyfmt();
  ios_copyfmt(const ios_copyfmt &) = delete;            /**< Not copied. */
  ios_copyfmt &operator=(const ios_copyfmt &) = delete; /**< Not assigned. */

private:
  std::basic_ios<char> &stream_;
  std::basic_ios<char> saved_;
};

} // namespace zel

/** @name Scan listing
 *  One line per network: BSSID, channel description, SSID, signal, modes, capabilities. With `hide_ssid` the SSID and
 *  its column are left out, which keeps network names out of a log; the operators show them.
 *  @{ */
/**
 * Prints one network.
 * @param os where to
 * @param entry what to print
 * @param hide_ssid leave the SSID out
 */
RAVIX_API void print_scan_entry(std::ostream &os, const ravix_scan_entry_t &entry, bool hide_ssid);
/**
 * Prints a header line and a line per network.
 * @param os where to
 * @param table what to print
 * @param hide_ssid leave the SSIDs and their column out
 */
RAVIX_API void print_scan_table(std::ostream &os, const ravix_scan_table_t &table, bool hide_ssid);
/**
 * Prints the time of a scan, its noise floors and its networks.
 * @param os where to
 * @param results what to print
 * @param hide_ssid leave the SSIDs and their column out
 */
RAVIX_API void print_scan_results(std::ostream &os, const ravix_scan_results_t &results, bool hide_ssid);
RAVIX_API std::ostream &operator<<(std::ostream &os, const ravix_scan_entry_t &entry);
RAVIX_API std::ostream &operator<<(std::ostream &os, const ravix_scan_table_t &table);
RAVIX_API std::ostream &operator<<(std::ostream &os, const ravix_scan_results_t &results);
/** @} */

/** @name Values
 *  @{ */
RAVIX_API std::ostream &operator<<(std::ostream &os, const ravix_channel_info_t &value);
/** @} */

/** @name Tables of one line per entry
 *  @{ */
RAVIX_API std::ostream &operator<<(std::ostream &os, const ravix_noisefloor_entry_t &entry);
RAVIX_API std::ostream &operator<<(std::ostream &os, const ravix_noisefloor_table_t &table);
RAVIX_API std::ostream &operator<<(std::ostream &os, const ravix_channel_entry_t &entry);
RAVIX_API std::ostream &operator<<(std::ostream &os, const ravix_channel_list_t &list);
RAVIX_API std::ostream &operator<<(std::ostream &os, const ravix_radio_load_entry_t &entry);
RAVIX_API std::ostream &operator<<(std::ostream &os, const ravix_radio_load_table_t &table);
RAVIX_API std::ostream &operator<<(std::ostream &os, const ravix_radio_airtime_entry_t &entry);
RAVIX_API std::ostream &operator<<(std::ostream &os, const ravix_radio_airtime_table_t &table);
/** @} */

/** @name Requests and responses
 *  @{ */
RAVIX_API std::ostream &operator<<(std::ostream &os, const ravix_scan_parameter_t &value);
RAVIX_API std::ostream &operator<<(std::ostream &os, const ravix_start_scan_request_t &value);
RAVIX_API std::ostream &operator<<(std::ostream &os, const ravix_start_scan_response_t &value);
RAVIX_API std::ostream &operator<<(std::ostream &os, const ravix_get_scan_results_request_t &value);
RAVIX_API std::ostream &operator<<(std::ostream &os, const ravix_get_scan_results_response_t &value);
/** @} */

/** @name Stations
 *  A line per field; the entries of a table under numbered headings.
 *  @{ */
RAVIX_API std::ostream &operator<<(std::ostream &os, const ravix_station_entry_t &entry);
RAVIX_API std::ostream &operator<<(std::ostream &os, const ravix_station_table_t &table);
RAVIX_API std::ostream &operator<<(std::ostream &os, const ravix_remote_client_entry_t &entry);
RAVIX_API std::ostream &operator<<(std::ostream &os, const ravix_remote_client_table_t &table);
RAVIX_API std::ostream &operator<<(std::ostream &os, const ravix_remote_ap_entry_t &entry);
RAVIX_API std::ostream &operator<<(std::ostream &os, const ravix_remote_ap_table_t &table);
RAVIX_API std::ostream &operator<<(std::ostream &os, const ravix_station_history_entry_t &entry);
RAVIX_API std::ostream &operator<<(std::ostream &os, const ravix_station_history_table_t &table);
/** @} */

/** @name Events
 *  @{ */
RAVIX_API std::ostream &operator<<(std::ostream &os, const ravix_event_scan_results_t &event);
RAVIX_API std::ostream &operator<<(std::ostream &os, const ravix_event_log_entry_t &event);
RAVIX_API std::ostream &operator<<(std::ostream &os, const ravix_event_green_ap_t &event);
RAVIX_API std::ostream &operator<<(std::ostream &os, const ravix_event_channel_change_t &event);
RAVIX_API std::ostream &operator<<(std::ostream &os, const ravix_event_interference_t &event);
RAVIX_API std::ostream &operator<<(std::ostream &os, const ravix_event_radar_wait_t &event);
RAVIX_API std::ostream &operator<<(std::ostream &os, const ravix_event_radar_detected_t &event);
RAVIX_API std::ostream &operator<<(std::ostream &os, const ravix_event_radar_precac_t &event);
RAVIX_API std::ostream &operator<<(std::ostream &os, const ravix_event_client_state_update_t &event);
RAVIX_API std::ostream &operator<<(std::ostream &os, const ravix_event_client_activity_update_t &event);
RAVIX_API std::ostream &operator<<(std::ostream &os, const ravix_event_client_rssi_update_t &event);
RAVIX_API std::ostream &operator<<(std::ostream &os, const radiod_hal_event_hw_init_t &event);
RAVIX_API std::ostream &operator<<(std::ostream &os, const radiod_hal_event_hw_deinit_t &event);
RAVIX_API std::ostream &operator<<(std::ostream &os, const radiod_hal_event_set_config_t &event);
RAVIX_API std::ostream &operator<<(std::ostream &os, const radiod_hal_event_check_config_t &event);
RAVIX_API std::ostream &operator<<(std::ostream &os, const radiod_hal_event_sanity_t &event);
RAVIX_API std::ostream &operator<<(std::ostream &os, const radiod_hal_event_scan_fail_t &event);
/** @} */

/** @name Differences
 *  `print_diff(os, value, reference, name, indent, newline)`:
 *
 *  - `reference`: what to compare with. If the two are equal, nothing is written; of a record only the fields that
 *    differ are. Null shows everything.
 *  - `name`: label of the value; with null there is no label, and the content is not indented further.
 *  - `indent`: number of blanks before each line; each level of nesting adds one.
 *  - `newline`: whether the last line ends with a line break.
 *
 *  A value that equals its reference leaves the stream alone: nothing is written, flushed or asked. A type-length-value
 *  element with a length and no value has no rows of octets.
 *
 *  A table is printed whole as soon as it differs at all, and only counted as too long beyond 50 short entries. A
 *  nested record ends its own lines, whatever `newline` says.
 *  @{ */
RAVIX_API void print_diff(std::ostream &os, const ravix_channel_info_t &value, const ravix_channel_info_t *reference,
                          const char *name, unsigned indent, bool newline);
RAVIX_API void print_diff(std::ostream &os, const ravix_ip_addr_t &value, const ravix_ip_addr_t *reference,
                          const char *name, unsigned indent, bool newline);
RAVIX_API void print_diff(std::ostream &os, const ravix_ssid_t &value, const ravix_ssid_t *reference, const char *name,
                          unsigned indent, bool newline);
RAVIX_API void print_diff(std::ostream &os, const ravix_key_t &value, const ravix_key_t *reference, const char *name,
                          unsigned indent, bool newline);
RAVIX_API void print_diff(std::ostream &os, const ravix_tlv_t &value, const ravix_tlv_t *reference, const char *name,
                          unsigned indent, bool newline);
RAVIX_API void print_diff(std::ostream &os, const ravix_frequency_table_t &value,
                          const ravix_frequency_table_t *reference, const char *name, unsigned indent, bool newline);
RAVIX_API void print_diff(std::ostream &os, const ravix_id_table_t &value, const ravix_id_table_t *reference,
                          const char *name, unsigned indent, bool newline);
RAVIX_API void print_diff(std::ostream &os, const ravix_mac_table_t &value, const ravix_mac_table_t *reference,
                          const char *name, unsigned indent, bool newline);
RAVIX_API void print_diff(std::ostream &os, const ravix_ssid_table_t &value, const ravix_ssid_table_t *reference,
                          const char *name, unsigned indent, bool newline);
RAVIX_API void print_diff(std::ostream &os, const ravix_string_table_t &value, const ravix_string_table_t *reference,
                          const char *name, unsigned indent, bool newline);
RAVIX_API void print_diff(std::ostream &os, const ravix_tlv_table_t &value, const ravix_tlv_table_t *reference,
                          const char *name, unsigned indent, bool newline);
RAVIX_API void print_diff(std::ostream &os, const ravix_cfg_debug_settings_t &value,
                          const ravix_cfg_debug_settings_t *reference, const char *name, unsigned indent, bool newline);
RAVIX_API void print_diff(std::ostream &os, const ravix_cfg_meshd_settings_t &value,
                          const ravix_cfg_meshd_settings_t *reference, const char *name, unsigned indent, bool newline);
RAVIX_API void print_diff(std::ostream &os, const ravix_cfg_time_control_t &value,
                          const ravix_cfg_time_control_t *reference, const char *name, unsigned indent, bool newline);
RAVIX_API void print_diff(std::ostream &os, const ravix_cfg_repeating_t &value, const ravix_cfg_repeating_t *reference,
                          const char *name, unsigned indent, bool newline);
RAVIX_API void print_diff(std::ostream &os, const ravix_cfg_access_control_settings_t &value,
                          const ravix_cfg_access_control_settings_t *reference, const char *name, unsigned indent,
                          bool newline);
RAVIX_API void print_diff(std::ostream &os, const ravix_cfg_global_settings_t &value,
                          const ravix_cfg_global_settings_t *reference, const char *name, unsigned indent,
                          bool newline);
RAVIX_API void print_diff(std::ostream &os, const ravix_cfg_auto_update_role_opmode_t &value,
                          const ravix_cfg_auto_update_role_opmode_t *reference, const char *name, unsigned indent,
                          bool newline);
RAVIX_API void print_diff(std::ostream &os, const ravix_cfg_auto_update_feature_t &value,
                          const ravix_cfg_auto_update_feature_t *reference, const char *name, unsigned indent,
                          bool newline);
RAVIX_API void print_diff(std::ostream &os, const ravix_cfg_auto_update_rule_t &value,
                          const ravix_cfg_auto_update_rule_t *reference, const char *name, unsigned indent,
                          bool newline);
RAVIX_API void print_diff(std::ostream &os, const ravix_cfg_hardware_static_t &value,
                          const ravix_cfg_hardware_static_t *reference, const char *name, unsigned indent,
                          bool newline);
RAVIX_API void print_diff(std::ostream &os, const ravix_cfg_radio_static_t &value,
                          const ravix_cfg_radio_static_t *reference, const char *name, unsigned indent, bool newline);
RAVIX_API void print_diff(std::ostream &os, const ravix_cfg_radio_dynamic_t &value,
                          const ravix_cfg_radio_dynamic_t *reference, const char *name, unsigned indent, bool newline);
RAVIX_API void print_diff(std::ostream &os, const ravix_cfg_wlan_wps_t &value, const ravix_cfg_wlan_wps_t *reference,
                          const char *name, unsigned indent, bool newline);
RAVIX_API void print_diff(std::ostream &os, const ravix_cfg_radius_server_t &value,
                          const ravix_cfg_radius_server_t *reference, const char *name, unsigned indent, bool newline);
RAVIX_API void print_diff(std::ostream &os, const ravix_cfg_radius_server_table_t &value,
                          const ravix_cfg_radius_server_table_t *reference, const char *name, unsigned indent,
                          bool newline);
RAVIX_API void print_diff(std::ostream &os, const ravix_cfg_wlan_security_t &value,
                          const ravix_cfg_wlan_security_t *reference, const char *name, unsigned indent, bool newline);
RAVIX_API void print_diff(std::ostream &os, const ravix_cfg_security_extended_t &value,
                          const ravix_cfg_security_extended_t *reference, const char *name, unsigned indent,
                          bool newline);
RAVIX_API void print_diff(std::ostream &os, const ravix_cfg_security_extended_table_t &value,
                          const ravix_cfg_security_extended_table_t *reference, const char *name, unsigned indent,
                          bool newline);
RAVIX_API void print_diff(std::ostream &os, const ravix_cfg_role_access_control_t &value,
                          const ravix_cfg_role_access_control_t *reference, const char *name, unsigned indent,
                          bool newline);
RAVIX_API void print_diff(std::ostream &os, const ravix_cfg_role_ap_time_control_t &value,
                          const ravix_cfg_role_ap_time_control_t *reference, const char *name, unsigned indent,
                          bool newline);
RAVIX_API void print_diff(std::ostream &os, const ravix_cfg_role_config_ap_t &value,
                          const ravix_cfg_role_config_ap_t *reference, const char *name, unsigned indent, bool newline);
RAVIX_API void print_diff(std::ostream &os, const ravix_cfg_role_config_sta_uplink_t &value,
                          const ravix_cfg_role_config_sta_uplink_t *reference, const char *name, unsigned indent,
                          bool newline);
RAVIX_API void print_diff(std::ostream &os, const ravix_cfg_role_config_sta_t &value,
                          const ravix_cfg_role_config_sta_t *reference, const char *name, unsigned indent,
                          bool newline);
RAVIX_API void print_diff(std::ostream &os, const ravix_cfg_role_static_t &value,
                          const ravix_cfg_role_static_t *reference, const char *name, unsigned indent, bool newline);
RAVIX_API void print_diff(std::ostream &os, const ravix_cfg_owe_transition_t &value,
                          const ravix_cfg_owe_transition_t *reference, const char *name, unsigned indent, bool newline);
RAVIX_API void print_diff(std::ostream &os, const ravix_cfg_mld_t &value, const ravix_cfg_mld_t *reference,
                          const char *name, unsigned indent, bool newline);
RAVIX_API void print_diff(std::ostream &os, const ravix_cfg_role_dynamic_t &value,
                          const ravix_cfg_role_dynamic_t *reference, const char *name, unsigned indent, bool newline);
/** @} */

/** @} */

#endif
