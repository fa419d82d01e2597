#include "ravix_types_printers.hpp"

#include "ravix_types_api_request_fields.hpp"
#include "ravix_types_cfg_fields.hpp"
#include "ravix_types_event_fields.hpp"
#include "ravix_types_print.hpp"
#include "ravix_types_radiod_hal_fields.hpp"
#include "ravix_types_sta_fields.hpp"

namespace {

using zel::ravix::printer;

// Runs a print on a stream.
template <class Print> std::ostream &print(std::ostream &os, Print what) {
  printer out(os);
  what(out);
  out.flush();
  return os;
}

// ---- scan listing

void scan_entry(printer &out, const ravix_scan_entry_t &entry, bool hide_ssid) {
  out.text("'");
  out.text(ravix_str_mac(entry.bssid));
  out.text("' ");
  out.value(entry.channel_info);
  out.text(" ");
  if (!hide_ssid) {
    out.left(zel::ravix::value_text(entry.ssid), 44);
    out.text(" ");
  }
  out.right(ravix_str_power(entry.rssi), 6);
  out.text(" ");
  out.text(ravix_str_wlan_mode(entry.wlan_mode));
  out.text(" ");
  out.text(ravix_str_capabilities(entry.capabilities));
}

void scan_table(printer &out, const ravix_scan_table_t &table, bool hide_ssid) {
  out.columns(hide_ssid ? "[BSSID|CHANNEL_INFO|RSSI|WLAN MODE|CAPS]\n"
                        : "[BSSID|CHANNEL_INFO|SSID|RSSI|WLAN MODE|CAPS]\n",
              table, [&](const ravix_scan_entry_t &entry) { scan_entry(out, entry, hide_ssid); });
}

// ---- columns of the radio environment

void columns(printer &out, const ravix_noisefloor_entry_t &entry) {
  out.left(ravix_str_wifi_freq(entry.frequency), 14);
  out.text(" ");
  out.right(ravix_str_anpi(entry.noisefloor), 3);
  out.text(" ");
  out.decimal(entry.load, 3);
}

void columns(printer &out, const ravix_channel_entry_t &entry) {
  out.left(ravix_str_wifi_freq(entry.frequency), 14);
  out.text(" ");
  out.right(ravix_str_power(entry.max_power), 6);
  out.text(" ");
  out.text(ravix_str_channel_capabilities(entry.capabilities));
  out.text(" ");
  out.text(ravix_str_channel_state(entry.state));
  out.text(" ");
  out.text(ravix_str_channel_user_flags(entry.user_flags));
}

void columns(printer &out, const ravix_radio_load_entry_t &entry) {
  out.right(ravix_str_percentage(entry.global_usage), 3);
  out.text(" ");
  out.right(ravix_str_percentage(entry.own_tx_usage), 3);
}

void columns(printer &out, const ravix_radio_airtime_entry_t &entry) {
  const char *separator = "";
  for (const float value : {entry.rxc, entry.rxf, entry.txf, entry.noisefloor}) {
    out.text(separator);
    out.fixed(value, 3, 8);
    separator = ", ";
  }
}

template <class T> void column_table(printer &out, std::string_view header, const T &table) {
  out.columns(header, table, [&](const auto &entry) { columns(out, entry); });
}

void noisefloor_table(printer &out, const ravix_noisefloor_table_t &table) {
  column_table(out, "[FREQUENCY|NOISEFLOOR|LOAD]\n", table);
}

void scan_results(printer &out, const ravix_scan_results_t &results, bool hide_ssid) {
  out.text("Scan time: ");
  out.text(ravix_str_timestamp(results.scan_time));
  out.text("\nNoisefloor table:\n");
  noisefloor_table(out, results.noisefloor_table);
  out.text("\nScan table:\n");
  scan_table(out, results.scan_table, hide_ssid);
}

// ---- labelled nesting

void nested(printer &out, const ravix_scan_results_t &results) {
  scan_results(out, results, false);
}

void nested(printer &out, const ravix_scan_parameter_t &parameter) {
  std::size_t left_over = std::tuple_size_v<decltype(zel::ravix::record<ravix_scan_parameter_t>::fields)>;
  zel::ravix::for_each_field<ravix_scan_parameter_t>([&](const auto &field) {
    using Table = std::remove_cvref_t<decltype(parameter.*field.member)>;
    out.diff<Table>(parameter.*field.member, nullptr, field.name, 1, --left_over != 0);
  });
}

template <class T> void labelled(printer &out, const char *label, const T *value) {
  out.text(label);
  if (value == nullptr) {
    out.text(" ");
    out.text(printer::null_text);
  } else {
    out.text("\n");
    nested(out, *value);
  }
}

} // namespace

namespace zel {

// The copy stands on the stream's buffer: one without a buffer is born bad, and taking over the mask of a stream that
// throws would then throw right here. A stream that has lost its buffer meanwhile has such a copy nonetheless; the mask
// is the last that is taken over, so nothing is missing then.
ios_copyfmt::ios_copyfmt(std::basic_ios<char> &stream) : stream_(stream), saved_(stream.rdbuf()) {
  try {
    saved_.copyfmt(stream);
  } catch (const std::ios_base::failure &) { // NOLINT(bugprone-empty-catch): see above
  }
}

ios_copyfmt::~ios_copyfmt() {
  try {
    stream_.copyfmt(saved_);
  } catch (...) { // NOLINT(bugprone-empty-catch): a destructor must not throw; the stream's state still tells
  }
}

} // namespace zel

void print_scan_entry(std::ostream &os, const ravix_scan_entry_t &entry, bool hide_ssid) {
  print(os, [&](printer &out) { scan_entry(out, entry, hide_ssid); });
}

void print_scan_table(std::ostream &os, const ravix_scan_table_t &table, bool hide_ssid) {
  print(os, [&](printer &out) { scan_table(out, table, hide_ssid); });
}

void print_scan_results(std::ostream &os, const ravix_scan_results_t &results, bool hide_ssid) {
  print(os, [&](printer &out) { scan_results(out, results, hide_ssid); });
}

// Defines the operator of a type by an expression on `out` and `value`.
#define RAVIX_PRINTER(T, PRINT)                                                                                        \
  std::ostream &operator<<(std::ostream &os, const T &value) {                                                         \
    return print(os, [&](printer &out) { PRINT; });                                                                    \
  }

RAVIX_PRINTER(ravix_scan_entry_t, scan_entry(out, value, false))
RAVIX_PRINTER(ravix_scan_table_t, scan_table(out, value, false))
RAVIX_PRINTER(ravix_scan_results_t, scan_results(out, value, false))
RAVIX_PRINTER(ravix_channel_info_t, out.value(value))

RAVIX_PRINTER(ravix_noisefloor_entry_t, columns(out, value))
RAVIX_PRINTER(ravix_noisefloor_table_t, noisefloor_table(out, value))
RAVIX_PRINTER(ravix_channel_entry_t, columns(out, value))
RAVIX_PRINTER(ravix_channel_list_t,
              column_table(out, "[FREQUENCY|MAX_POWER|MAX_REG_POWER|CAPS|STATE|USER_FLAGS]\n", value))
RAVIX_PRINTER(ravix_radio_load_entry_t, columns(out, value))
RAVIX_PRINTER(ravix_radio_load_table_t, column_table(out, "[GLOBAL_USAGE|OWN_TX_USAGE]\n", value))
RAVIX_PRINTER(ravix_radio_airtime_entry_t, columns(out, value))
RAVIX_PRINTER(ravix_radio_airtime_table_t, column_table(out, "[RXC|RXF|TXF|NOISEFLOOR]\n", value))

RAVIX_PRINTER(ravix_scan_parameter_t, nested(out, value))
RAVIX_PRINTER(ravix_start_scan_response_t, out.lines(value))
RAVIX_PRINTER(ravix_get_scan_results_request_t, out.lines(value))

std::ostream &operator<<(std::ostream &os, const ravix_start_scan_request_t &value) {
  return print(os, [&](printer &out) {
    out.text(" radio_id: ");
    out.text(ravix_str_id(value.radio_id));
    labelled(out, "\nScan parameter:", value.scan_parameter);
  });
}

std::ostream &operator<<(std::ostream &os, const ravix_get_scan_results_response_t &value) {
  return print(os, [&](printer &out) {
    out.text(" status: ");
    out.text(ravix_str_status(value.status));
    labelled(out, "\n scan_results:", value.scan_results);
  });
}

RAVIX_PRINTER(ravix_station_entry_t, out.lines(value))
RAVIX_PRINTER(ravix_station_table_t, out.listed(value))
RAVIX_PRINTER(ravix_remote_client_entry_t, out.lines(value))
RAVIX_PRINTER(ravix_remote_client_table_t, out.listed(value))
RAVIX_PRINTER(ravix_remote_ap_entry_t, out.lines(value))
RAVIX_PRINTER(ravix_remote_ap_table_t, out.listed(value))
RAVIX_PRINTER(ravix_station_history_entry_t, out.lines(value))
RAVIX_PRINTER(ravix_station_history_table_t, out.listed(value))

RAVIX_PRINTER(ravix_event_log_entry_t, out.lines(value))
RAVIX_PRINTER(ravix_event_green_ap_t, out.lines(value))
RAVIX_PRINTER(ravix_event_channel_change_t, out.lines(value))
RAVIX_PRINTER(ravix_event_interference_t, out.lines(value))
RAVIX_PRINTER(ravix_event_radar_wait_t, out.lines(value))
RAVIX_PRINTER(ravix_event_radar_detected_t, out.lines(value))
RAVIX_PRINTER(ravix_event_radar_precac_t, out.lines(value))
RAVIX_PRINTER(ravix_event_client_state_update_t, out.lines(value))
RAVIX_PRINTER(ravix_event_client_activity_update_t, out.lines(value))
RAVIX_PRINTER(ravix_event_client_rssi_update_t, out.lines(value))

RAVIX_PRINTER(radiod_hal_event_hw_init_t, out.lines(value))
RAVIX_PRINTER(radiod_hal_event_hw_deinit_t, out.lines(value))
RAVIX_PRINTER(radiod_hal_event_set_config_t, out.lines(value))
RAVIX_PRINTER(radiod_hal_event_check_config_t, out.lines(value))
RAVIX_PRINTER(radiod_hal_event_sanity_t, out.lines(value))
RAVIX_PRINTER(radiod_hal_event_scan_fail_t, out.lines(value))

std::ostream &operator<<(std::ostream &os, const ravix_event_scan_results_t &value) {
  return print(os, [&](printer &out) {
    out.text("Radio ID: ");
    out.text(ravix_str_id(value.radio_id));
    labelled(out, "\nScan parameter:", value.scan_parameter);
    labelled(out, "\nScan results:", value.scan_results);
  });
}

// Defines the difference printer of a type.
#define RAVIX_PRINT_DIFF(T)                                                                                            \
  void print_diff(std::ostream &os, const T &value, const T *reference, const char *name, unsigned indent,             \
                  bool newline) {                                                                                      \
    print(os, [&](printer &out) { out.diff(value, reference, name, indent, newline); });                               \
  }

RAVIX_PRINT_DIFF(ravix_channel_info_t)
RAVIX_PRINT_DIFF(ravix_ip_addr_t)
RAVIX_PRINT_DIFF(ravix_ssid_t)
RAVIX_PRINT_DIFF(ravix_key_t)
RAVIX_PRINT_DIFF(ravix_tlv_t)
RAVIX_PRINT_DIFF(ravix_frequency_table_t)
RAVIX_PRINT_DIFF(ravix_id_table_t)
RAVIX_PRINT_DIFF(ravix_mac_table_t)
RAVIX_PRINT_DIFF(ravix_ssid_table_t)
RAVIX_PRINT_DIFF(ravix_string_table_t)
RAVIX_PRINT_DIFF(ravix_tlv_table_t)
RAVIX_PRINT_DIFF(ravix_cfg_debug_settings_t)
RAVIX_PRINT_DIFF(ravix_cfg_meshd_settings_t)
RAVIX_PRINT_DIFF(ravix_cfg_time_control_t)
RAVIX_PRINT_DIFF(ravix_cfg_repeating_t)
RAVIX_PRINT_DIFF(ravix_cfg_access_control_settings_t)
RAVIX_PRINT_DIFF(ravix_cfg_global_settings_t)
RAVIX_PRINT_DIFF(ravix_cfg_auto_update_role_opmode_t)
RAVIX_PRINT_DIFF(ravix_cfg_auto_update_feature_t)
RAVIX_PRINT_DIFF(ravix_cfg_auto_update_rule_t)
RAVIX_PRINT_DIFF(ravix_cfg_hardware_static_t)
RAVIX_PRINT_DIFF(ravix_cfg_radio_static_t)
RAVIX_PRINT_DIFF(ravix_cfg_radio_dynamic_t)
RAVIX_PRINT_DIFF(ravix_cfg_wlan_wps_t)
RAVIX_PRINT_DIFF(ravix_cfg_radius_server_t)
RAVIX_PRINT_DIFF(ravix_cfg_radius_server_table_t)
RAVIX_PRINT_DIFF(ravix_cfg_wlan_security_t)
RAVIX_PRINT_DIFF(ravix_cfg_security_extended_t)
RAVIX_PRINT_DIFF(ravix_cfg_security_extended_table_t)
RAVIX_PRINT_DIFF(ravix_cfg_role_access_control_t)
RAVIX_PRINT_DIFF(ravix_cfg_role_ap_time_control_t)
RAVIX_PRINT_DIFF(ravix_cfg_role_config_ap_t)
RAVIX_PRINT_DIFF(ravix_cfg_role_config_sta_uplink_t)
RAVIX_PRINT_DIFF(ravix_cfg_role_config_sta_t)
RAVIX_PRINT_DIFF(ravix_cfg_role_static_t)
RAVIX_PRINT_DIFF(ravix_cfg_owe_transition_t)
RAVIX_PRINT_DIFF(ravix_cfg_mld_t)
RAVIX_PRINT_DIFF(ravix_cfg_role_dynamic_t)
