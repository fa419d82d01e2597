// Field lists of the radio environment records.
#pragma once

#include "ravix_types_common_fields.hpp"
#include "ravix_types_radio_env.h"

namespace zel::ravix {

template <> struct record<ravix_scan_parameter_t> {
  RAVIX_OPERATIONS(ravix_types_scan_parameter)
  using R = ravix_scan_parameter_t;
  static constexpr std::tuple fields{
      nested{&R::frequencies, "frequencies"},
      nested{&R::ssids, "ssids"},
      nested{&R::bssids, "bssids"},
  };
};

template <> struct record<ravix_scan_entry_t> {
  RAVIX_OPERATIONS(ravix_types_scan_entry)
  using R = ravix_scan_entry_t;
  static constexpr std::tuple fields{
      scalar{&R::wlan_mode, "wlan_mode", ravix_str_wlan_mode},
      bytes{&R::bssid, "bssid", ravix_str_mac},
      nested{&R::ssid, "ssid"},
      nested{&R::channel_info, "channel_info"},
      scalar{&R::rssi, "rssi", ravix_str_power, RAVIX_POWER_INVALID},
      scalar{&R::capabilities, "capabilities", ravix_str_capabilities},
  };
};

template <> struct record<ravix_scan_table_t> {
  RAVIX_TABLE_OPERATIONS(ravix_types_scan_table)
  using T = ravix_scan_table_t;
  static constexpr std::tuple fields{entries{&T::count, &T::data}};
};

template <> struct record<ravix_noisefloor_entry_t> {
  RAVIX_OPERATIONS(ravix_types_noisefloor_entry)
  using R = ravix_noisefloor_entry_t;
  static constexpr std::tuple fields{
      scalar{&R::frequency, "frequency", ravix_str_wifi_freq},
      scalar{&R::noisefloor, "noisefloor", ravix_str_anpi, RAVIX_MEASURE_INVALID},
      scalar{&R::load, "load", decimal, RAVIX_MEASURE_INVALID},
  };
};

template <> struct record<ravix_noisefloor_table_t> {
  RAVIX_TABLE_OPERATIONS(ravix_types_noisefloor_table)
  using T = ravix_noisefloor_table_t;
  static constexpr std::tuple fields{entries{&T::count, &T::data}};
};

template <> struct record<ravix_scan_results_t> {
  RAVIX_OPERATIONS(ravix_types_scan_results)
  using R = ravix_scan_results_t;
  static constexpr std::tuple fields{
      scalar{&R::scan_time, "scan_time", ravix_str_timestamp, RAVIX_TIMESTAMP_INVALID},
      nested{&R::noisefloor_table, "noisefloor_table"},
      nested{&R::scan_table, "scan_table"},
  };
};

template <> struct record<ravix_channel_entry_t> {
  RAVIX_OPERATIONS(ravix_types_channel_entry)
  using R = ravix_channel_entry_t;
  static constexpr std::tuple fields{
      scalar{&R::frequency, "frequency", ravix_str_wifi_freq},
      scalar{&R::max_power, "max_power", ravix_str_power, RAVIX_POWER_INVALID},
      scalar{&R::capabilities, "capabilities", ravix_str_channel_capabilities},
      scalar{&R::state, "state", ravix_str_channel_state},
      scalar{&R::user_flags, "user_flags", ravix_str_channel_user_flags},
  };
};

template <> struct record<ravix_channel_list_t> {
  RAVIX_TABLE_OPERATIONS(ravix_types_channel_list)
  using T = ravix_channel_list_t;
  static constexpr std::tuple fields{entries{&T::count, &T::data}};
};

template <> struct record<ravix_radio_load_entry_t> {
  RAVIX_OPERATIONS(ravix_types_radio_load_entry)
  using R = ravix_radio_load_entry_t;
  static constexpr std::tuple fields{
      scalar{&R::global_usage, "global_usage", ravix_str_percentage, RAVIX_MEASURE_INVALID},
      scalar{&R::own_tx_usage, "own_tx_usage", ravix_str_percentage, RAVIX_MEASURE_INVALID},
  };
};

template <> struct record<ravix_radio_load_table_t> {
  RAVIX_TABLE_OPERATIONS(ravix_types_radio_load_table)
  using T = ravix_radio_load_table_t;
  static constexpr std::tuple fields{entries{&T::count, &T::data}};
};

template <> struct record<ravix_radio_airtime_entry_t> {
  RAVIX_OPERATIONS(ravix_types_radio_airtime_entry)
  using R = ravix_radio_airtime_entry_t;
  static constexpr float unknown = -1.0F;
  static constexpr std::tuple fields{
      scalar{&R::rxc, "rxc", decimal, unknown},
      scalar{&R::rxf, "rxf", decimal, unknown},
      scalar{&R::txf, "txf", decimal, unknown},
      scalar{&R::noisefloor, "noisefloor", decimal, unknown},
  };
};

template <> struct record<ravix_radio_airtime_table_t> {
  RAVIX_TABLE_OPERATIONS(ravix_types_radio_airtime_table)
  using T = ravix_radio_airtime_table_t;
  static constexpr std::tuple fields{
      scalar{&T::airtime_base, "airtime_base"},
      entries{&T::count, &T::data},
  };
};

} // namespace zel::ravix
