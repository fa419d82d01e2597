// Field lists of the events.
#pragma once

#include "ravix_types_event.h"
#include "ravix_types_radio_env_fields.hpp"

namespace zel::ravix {

RAVIX_FIELD_LIST(ravix_event_log_entry_t) {
  static constexpr std::tuple fields{
      RAVIX_FIELD(event_id), RAVIX_FIELD(max_rate, bitrate), RAVIX_FIELD(mac, mac), RAVIX_FIELD(band, radio_band),
      RAVIX_FIELD(is_mlo),   RAVIX_FIELD(details),
  };
};

RAVIX_FIELD_LIST(ravix_event_scan_results_t) {
  static constexpr std::tuple fields{RAVIX_FIELD(radio_id, id), RAVIX_FIELD(scan_parameter), RAVIX_FIELD(scan_results)};
};

RAVIX_FIELD_LIST(ravix_event_green_ap_t) {
  static constexpr std::tuple fields{RAVIX_FIELD(radio_id, id), RAVIX_FIELD(enabled)};
};

RAVIX_FIELD_LIST(ravix_event_channel_change_t) {
  static constexpr std::tuple fields{
      RAVIX_FIELD(radio_id, id),         RAVIX_FIELD(prev_channel),
      RAVIX_FIELD(new_channel),          RAVIX_FIELD(reason, channel_change_reason),
      RAVIX_FIELD(change_time, seconds),
  };
};

RAVIX_FIELD_LIST(ravix_event_interference_t) {
  static constexpr std::tuple fields{
      RAVIX_FIELD(radio_id, id),
      RAVIX_FIELD(primary_freq, channel_frequency),
      RAVIX_FIELD(active),
      RAVIX_FIELD(channel_change),
  };
};

RAVIX_FIELD_LIST(ravix_event_radar_wait_t) {
  static constexpr std::tuple fields{
      RAVIX_FIELD(role_id, id),
      RAVIX_FIELD(started),
      RAVIX_FIELD(radar_time, seconds),
      RAVIX_FIELD(first_primary_khz, channel_frequency),
      RAVIX_FIELD(last_primary_khz, channel_frequency),
  };
};

RAVIX_FIELD_LIST(ravix_event_radar_detected_t) {
  static constexpr std::tuple fields{
      RAVIX_FIELD(radio_id, id),
      RAVIX_FIELD(expire_ts_uptime, seconds),
      RAVIX_FIELD(freq_start, channel_frequency),
      RAVIX_FIELD(freq_end, channel_frequency),
      RAVIX_FIELD(radar_type, radar_type),
      RAVIX_FIELD(level_dbm, power),
      RAVIX_FIELD(flags, bits_32),
  };
};

RAVIX_FIELD_LIST(ravix_event_radar_precac_t) {
  static constexpr std::tuple fields{
      RAVIX_FIELD(radio_id, id),
      RAVIX_FIELD(primary_freq, channel_frequency),
      RAVIX_FIELD(temp_freq, channel_frequency),
  };
};

RAVIX_FIELD_LIST(ravix_event_client_state_update_t) {
  static constexpr std::tuple fields{
      RAVIX_FIELD(role_id, id),
      RAVIX_FIELD(mac, mac),
      RAVIX_FIELD(old_state, sta_state),
      RAVIX_FIELD(new_state, sta_state),
  };
};

RAVIX_FIELD_LIST(ravix_event_client_activity_update_t) {
  static constexpr std::tuple fields{RAVIX_FIELD(role_id, id), RAVIX_FIELD(mac, mac), RAVIX_FIELD(active)};
};

RAVIX_FIELD_LIST(ravix_event_client_rssi_update_t) {
  static constexpr std::tuple fields{
      RAVIX_FIELD(role_id, id), RAVIX_FIELD(mac, mac),   RAVIX_FIELD(rsni, rsni),
      RAVIX_FIELD(rcpi, rcpi),  RAVIX_FIELD(anpi, anpi),
  };
};

} // namespace zel::ravix
