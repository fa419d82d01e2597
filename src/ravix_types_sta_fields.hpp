// Field lists of the station records.
#pragma once

#include "ravix_types_common_fields.hpp"
#include "ravix_types_sta.h"

namespace zel::ravix {

// Text of a percentage as a number and its unit, apart from each other; ravix_str_percentage() has them in one.
struct percent_text {};
inline constexpr percent_text percent;

template <class Out> void print_value(Out &out, std::uint8_t value, percent_text /*text*/) {
  if (value == RAVIX_MEASURE_INVALID) {
    out.text("INVALID");
  } else {
    out.decimal(value);
    out.text(" %");
  }
}

// Result of a copy for which no memory is left for the address text. Reported in the log only: a table of hundreds of
// clients stays usable when one of them comes out empty.
inline constexpr int lost_address = success;

template <> struct record<ravix_station_entry_t> {
  RAVIX_OPERATIONS(ravix_types_station_entry)
  using R = ravix_station_entry_t;
  static constexpr std::tuple fields{
      scalar{&R::state, "state", ravix_str_sta_state},
      scalar{&R::mode, "mode", ravix_str_wlan_mode},
      scalar{&R::security, "security", ravix_str_security},
      bytes{&R::hwaddr, "hwaddr", ravix_str_mac},
      scalar{&R::signal_rssi, "signal_rssi", ravix_str_power, RAVIX_POWER_INVALID},
      scalar{&R::signal_quality, "signal_quality", percent, RAVIX_MEASURE_INVALID},
      nested{&R::channel_info, "channel_info"},
      scalar{&R::rate_tx_max, "rate_tx_max", ravix_str_bitrate},
      scalar{&R::rate_rx_max, "rate_rx_max", ravix_str_bitrate},
      scalar{&R::rate_tx_current, "rate_tx_current", ravix_str_bitrate},
      scalar{&R::rate_rx_current, "rate_rx_current", ravix_str_bitrate},
      scalar{&R::streams_tx, "streams_tx"},
      scalar{&R::streams_rx, "streams_rx"},
      scalar{&R::caps_set, "caps_set", ravix_str_capabilities},
      bytes{&R::mld_hwaddr, "mld_hwaddr", ravix_str_mac},
      scalar{&R::mlo_mode, "mlo_mode", ravix_str_mlo_mode},
      scalar{&R::mlo_link_id, "mlo_link_id", ravix_str_index, RAVIX_INDEX_INVALID},
      scalar{&R::mlo_link_t2lm_ul, "mlo_link_t2lm_ul", ravix_str_bitfield_8},
      scalar{&R::mlo_link_t2lm_dl, "mlo_link_t2lm_dl", ravix_str_bitfield_8},
  };
};

template <> struct record<ravix_station_table_t> {
  RAVIX_TABLE_OPERATIONS(ravix_types_station_table)
  using T = ravix_station_table_t;
  static constexpr std::tuple fields{entries{&T::count, &T::data}};
};

template <> struct record<ravix_remote_client_entry_t> {
  RAVIX_OPERATIONS(ravix_types_remote_client_entry)
  using R = ravix_remote_client_entry_t;
  static constexpr std::tuple fields{
      owned_text{&R::parent_nexus_device_address, "parent_nexus_device_address", lost_address},
      bytes{&R::bssid, "bssid", ravix_str_mac},
      bytes{&R::hwaddr, "hwaddr", ravix_str_mac},
      bytes{&R::mld_hwaddr, "mld_hwaddr", ravix_str_mac},
      scalar{&R::mlo_link_id, "mlo_link_id", ravix_str_index, RAVIX_INDEX_INVALID},
      scalar{&R::mlo_link_active_state, "mlo_link_active_state", ravix_str_enabled},
      scalar{&R::mlo_mode, "mlo_mode", ravix_str_mlo_mode},
      scalar{&R::state, "state", ravix_str_sta_state},
      scalar{&R::channel_width, "channel_width", ravix_str_channel_width},
      scalar{&R::center_frequency, "center_frequency", ravix_str_wifi_freq},
      scalar{&R::rssi, "rssi", ravix_str_power, RAVIX_POWER_INVALID},
      scalar{&R::quality, "quality", ravix_str_percentage, RAVIX_MEASURE_INVALID},
      scalar{&R::wlan_mode, "wlan_mode", ravix_str_wlan_mode},
      scalar{&R::security, "security", ravix_str_security},
      scalar{&R::station_type, "station_type", ravix_str_station_type},
      scalar{&R::caps_set, "caps_set", ravix_str_capabilities},
      scalar{&R::zel_caps_set, "zel_caps_set", ravix_str_bitfield_32},
      scalar{&R::rate_active_tx, "rate_active_tx", ravix_str_bitrate},
      scalar{&R::rate_active_rx, "rate_active_rx", ravix_str_bitrate},
      scalar{&R::rate_max_tx, "rate_max_tx", ravix_str_bitrate},
      scalar{&R::rate_max_rx, "rate_max_rx", ravix_str_bitrate},
      scalar{&R::rate_average_tx, "rate_average_tx", ravix_str_bitrate},
      scalar{&R::rate_average_rx, "rate_average_rx", ravix_str_bitrate},
      scalar{&R::streams_tx, "streams_tx"},
      scalar{&R::streams_rx, "streams_rx"},
  };
};

template <> struct record<ravix_remote_client_table_t> {
  RAVIX_TABLE_OPERATIONS(ravix_types_remote_client_table)
  using T = ravix_remote_client_table_t;
  static constexpr std::tuple fields{entries{&T::count, &T::data}};
};

template <> struct record<ravix_remote_ap_entry_t> {
  RAVIX_OPERATIONS(ravix_types_remote_ap_entry)
  using R = ravix_remote_ap_entry_t;
  static constexpr std::tuple fields{
      owned_text{&R::nexus_device_address, "nexus_device_address", lost_address},
      scalar{&R::opmode, "opmode", ravix_str_role_opmode},
      bytes{&R::hwaddr, "hwaddr", ravix_str_mac},
      scalar{&R::mlo_link_id, "mlo_link_id", ravix_str_index, RAVIX_INDEX_INVALID},
      scalar{&R::security, "security", ravix_str_security},
      scalar{&R::wlan_mode, "wlan_mode", ravix_str_wlan_mode},
      scalar{&R::caps_set, "caps_set", ravix_str_capabilities},
      scalar{&R::zel_caps_set, "zel_caps_set", ravix_str_bitfield_32},
      scalar{&R::rate_max_rx, "rate_max_rx", ravix_str_bitrate},
      scalar{&R::rate_max_tx, "rate_max_tx", ravix_str_bitrate},
      scalar{&R::streams_rx, "streams_rx"},
      scalar{&R::streams_tx, "streams_tx"},
      nested{&R::channel_info, "channel_info"},
  };
};

template <> struct record<ravix_remote_ap_table_t> {
  RAVIX_TABLE_OPERATIONS(ravix_types_remote_ap_table)
  using T = ravix_remote_ap_table_t;
  static constexpr std::tuple fields{entries{&T::count, &T::data}};
};

template <> struct record<ravix_station_history_entry_t> {
  RAVIX_OPERATIONS(ravix_types_station_history_entry)
  using R = ravix_station_history_entry_t;
  static constexpr std::tuple fields{
      bytes{&R::mac, "mac", ravix_str_mac},
      scalar{&R::quality, "quality", ravix_str_percentage, RAVIX_MEASURE_INVALID},
      scalar{&R::wlan_mode, "wlan_mode", ravix_str_wlan_mode},
      scalar{&R::role_handle, "role_handle", ravix_str_id},
      scalar{&R::time_connect, "time_connect", ravix_str_timestamp, RAVIX_TIMESTAMP_INVALID},
      scalar{&R::time_disconnect, "time_disconnect", ravix_str_timestamp, RAVIX_TIMESTAMP_INVALID},
      scalar{&R::status_connect, "status_connect"},
      scalar{&R::initiator_connect, "initiator_connect"},
      scalar{&R::ieee802_11_reason_connect, "ieee802_11_reason_connect"},
      scalar{&R::status_disconnect, "status_disconnect"},
      scalar{&R::initiator_disconnect, "initiator_disconnect"},
      scalar{&R::ieee802_11_reason_disconnect, "ieee802_11_reason_disconnect"},
  };
};

template <> struct record<ravix_station_history_table_t> {
  RAVIX_TABLE_OPERATIONS(ravix_types_station_history_table)
  using T = ravix_station_history_table_t;
  static constexpr std::tuple fields{entries{&T::count, &T::data}};
};

} // namespace zel::ravix
