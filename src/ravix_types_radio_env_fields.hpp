// Field lists of the radio environment records.
#pragma once

#include "ravix_types_common_fields.hpp"
#include "ravix_types_radio_env.h"

namespace zel::ravix {

RAVIX_FIELD_LIST(ravix_scan_parameter_t) {
  static constexpr std::tuple fields{RAVIX_FIELD(frequencies), RAVIX_FIELD(ssids), RAVIX_FIELD(bssids)};
};

RAVIX_FIELD_LIST(ravix_scan_entry_t) {
  static constexpr std::tuple fields{
      RAVIX_FIELD(wlan_mode, wlan_mode), RAVIX_FIELD(bssid, mac),  RAVIX_FIELD(ssid),
      RAVIX_FIELD(channel_info),         RAVIX_FIELD(rssi, power), RAVIX_FIELD(capabilities, capabilities),
  };
};

RAVIX_FIELD_LIST(ravix_noisefloor_entry_t) {
  static constexpr std::tuple fields{
      RAVIX_FIELD(frequency, channel_frequency),
      RAVIX_FIELD(noisefloor, anpi),
      RAVIX_FIELD(load, measure),
  };
};

RAVIX_FIELD_LIST(ravix_scan_results_t) {
  static constexpr std::tuple fields{
      RAVIX_FIELD(scan_time, timestamp),
      RAVIX_FIELD(noisefloor_table),
      RAVIX_FIELD(scan_table),
  };
};

RAVIX_FIELD_LIST(ravix_channel_entry_t) {
  static constexpr std::tuple fields{
      RAVIX_FIELD(frequency, channel_frequency),       RAVIX_FIELD(max_power, power),
      RAVIX_FIELD(capabilities, channel_capabilities), RAVIX_FIELD(state, channel_state),
      RAVIX_FIELD(user_flags, channel_user_flags),
  };
};

RAVIX_FIELD_LIST(ravix_radio_load_entry_t) {
  static constexpr std::tuple fields{RAVIX_FIELD(global_usage, percentage), RAVIX_FIELD(own_tx_usage, percentage)};
};

RAVIX_FIELD_LIST(ravix_radio_airtime_entry_t) {
  static constexpr std::tuple fields{
      RAVIX_FIELD(rxc, airtime),
      RAVIX_FIELD(rxf, airtime),
      RAVIX_FIELD(txf, airtime),
      RAVIX_FIELD(noisefloor, airtime),
  };
};

RAVIX_FIELD_LIST(ravix_radio_airtime_table_t) {
  static constexpr std::tuple fields{
      RAVIX_FIELD(airtime_base),
      entries<R>{"data", offsetof(R, count)},
  };
};

} // namespace zel::ravix
