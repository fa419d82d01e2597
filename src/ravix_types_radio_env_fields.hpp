// Field lists of the radio environment records.
#pragma once

#include "ravix_types_common_fields.hpp"
#include "ravix_types_radio_env.h"

namespace zel::ravix {

template <> struct field_list<ravix_scan_parameter_t> {
  using R = ravix_scan_parameter_t;
  static constexpr std::tuple fields{
      RAVIX_FIELD(frequencies),
      RAVIX_FIELD(ssids),
      RAVIX_FIELD(bssids),
  };
};

template <> struct field_list<ravix_scan_entry_t> {
  using R = ravix_scan_entry_t;
  static constexpr std::tuple fields{
      RAVIX_FIELD(wlan_mode, wlan_mode), RAVIX_FIELD(bssid, mac),  RAVIX_FIELD(ssid),
      RAVIX_FIELD(channel_info),         RAVIX_FIELD(rssi, power), RAVIX_FIELD(capabilities, capabilities),
  };
};

template <> struct field_list<ravix_scan_table_t> : table_fields<ravix_scan_table_t> {};

template <> struct field_list<ravix_noisefloor_entry_t> {
  using R = ravix_noisefloor_entry_t;
  static constexpr std::tuple fields{
      RAVIX_FIELD(frequency, channel_frequency),
      RAVIX_FIELD(noisefloor, anpi),
      RAVIX_FIELD(load, measure),
  };
};

template <> struct field_list<ravix_noisefloor_table_t> : table_fields<ravix_noisefloor_table_t> {};

template <> struct field_list<ravix_scan_results_t> {
  using R = ravix_scan_results_t;
  static constexpr std::tuple fields{
      RAVIX_FIELD(scan_time, timestamp),
      RAVIX_FIELD(noisefloor_table),
      RAVIX_FIELD(scan_table),
  };
};

template <> struct field_list<ravix_channel_entry_t> {
  using R = ravix_channel_entry_t;
  static constexpr std::tuple fields{
      RAVIX_FIELD(frequency, channel_frequency),       RAVIX_FIELD(max_power, power),
      RAVIX_FIELD(capabilities, channel_capabilities), RAVIX_FIELD(state, channel_state),
      RAVIX_FIELD(user_flags, channel_user_flags),
  };
};

template <> struct field_list<ravix_channel_list_t> : table_fields<ravix_channel_list_t> {};

template <> struct field_list<ravix_radio_load_entry_t> {
  using R = ravix_radio_load_entry_t;
  static constexpr std::tuple fields{
      RAVIX_FIELD(global_usage, percentage),
      RAVIX_FIELD(own_tx_usage, percentage),
  };
};

template <> struct field_list<ravix_radio_load_table_t> : table_fields<ravix_radio_load_table_t> {};

template <> struct field_list<ravix_radio_airtime_entry_t> {
  using R = ravix_radio_airtime_entry_t;
  static constexpr std::tuple fields{
      RAVIX_FIELD(rxc, airtime),
      RAVIX_FIELD(rxf, airtime),
      RAVIX_FIELD(txf, airtime),
      RAVIX_FIELD(noisefloor, airtime),
  };
};

template <> struct field_list<ravix_radio_airtime_table_t> {
  using R = ravix_radio_airtime_table_t;
  static constexpr std::tuple fields{
      RAVIX_FIELD(airtime_base),
      entries<R>{"data", offsetof(R, count)},
  };
};

} // namespace zel::ravix
