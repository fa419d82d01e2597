// Field lists of the events.
#pragma once

#include "ravix_types_event.h"
#include "ravix_types_radio_env_fields.hpp"

namespace zel::ravix {

template <> struct record<ravix_event_log_entry_t> {
  RAVIX_OPERATIONS(ravix_types_event_log_entry)
  using R = ravix_event_log_entry_t;
  static constexpr std::tuple fields{
      scalar{&R::event_id, "event_id"},
      scalar{&R::max_rate, "max_rate", ravix_str_bitrate},
      bytes{&R::mac, "mac", ravix_str_mac},
      scalar{&R::band, "band", ravix_str_radio_band},
      scalar{&R::is_mlo, "is_mlo", ravix_str_enabled},
      scalar{&R::details, "details"},
  };
};

template <> struct record<ravix_event_scan_results_t> {
  RAVIX_OPERATIONS(ravix_types_event_scan_results)
  using R = ravix_event_scan_results_t;
  static constexpr std::tuple fields{
      scalar{&R::radio_id, "radio_id", ravix_str_id},
      owned{&R::scan_parameter, "scan_parameter"},
      owned{&R::scan_results, "scan_results"},
  };
};

template <> struct record<ravix_event_green_ap_t> {
  RAVIX_OPERATIONS(ravix_types_event_green_ap)
  using R = ravix_event_green_ap_t;
  static constexpr std::tuple fields{
      scalar{&R::radio_id, "radio_id", ravix_str_id},
      scalar{&R::enabled, "enabled", ravix_str_enabled},
  };
};

template <> struct record<ravix_event_channel_change_t> {
  RAVIX_OPERATIONS(ravix_types_event_channel_change)
  using R = ravix_event_channel_change_t;
  static constexpr std::tuple fields{
      scalar{&R::radio_id, "radio_id", ravix_str_id},
      nested{&R::prev_channel, "prev_channel"},
      nested{&R::new_channel, "new_channel"},
      scalar{&R::reason, "reason", ravix_str_channel_change_reason},
      scalar{&R::change_time, "change_time", decimal, 0, " s"},
  };
};

template <> struct record<ravix_event_interference_t> {
  RAVIX_OPERATIONS(ravix_types_event_interference)
  using R = ravix_event_interference_t;
  static constexpr std::tuple fields{
      scalar{&R::radio_id, "radio_id", ravix_str_id},
      scalar{&R::primary_freq, "primary_freq", ravix_str_wifi_freq},
      scalar{&R::active, "active", ravix_str_enabled},
      scalar{&R::channel_change, "channel_change", ravix_str_enabled},
  };
};

template <> struct record<ravix_event_radar_wait_t> {
  RAVIX_OPERATIONS(ravix_types_event_radar_wait)
  using R = ravix_event_radar_wait_t;
  static constexpr std::tuple fields{
      scalar{&R::role_id, "role_id", ravix_str_id},
      scalar{&R::started, "started", ravix_str_enabled},
      scalar{&R::radar_time, "radar_time", decimal, 0, " s"},
      scalar{&R::first_primary_khz, "first_primary_khz", ravix_str_wifi_freq},
      scalar{&R::last_primary_khz, "last_primary_khz", ravix_str_wifi_freq},
  };
};

template <> struct record<ravix_event_radar_detected_t> {
  RAVIX_OPERATIONS(ravix_types_event_radar_detected)
  using R = ravix_event_radar_detected_t;
  static constexpr std::tuple fields{
      scalar{&R::radio_id, "radio_id", ravix_str_id},
      scalar{&R::expire_ts_uptime, "expire_ts_uptime", decimal, 0, " s"},
      scalar{&R::freq_start, "freq_start", ravix_str_wifi_freq},
      scalar{&R::freq_end, "freq_end", ravix_str_wifi_freq},
      scalar{&R::radar_type, "radar_type", ravix_str_radar_type},
      scalar{&R::level_dbm, "level_dbm", ravix_str_power, RAVIX_POWER_INVALID},
      scalar{&R::flags, "flags", ravix_str_bitfield_32},
  };
};

template <> struct record<ravix_event_radar_precac_t> {
  RAVIX_OPERATIONS(ravix_types_event_radar_precac)
  using R = ravix_event_radar_precac_t;
  static constexpr std::tuple fields{
      scalar{&R::radio_id, "radio_id", ravix_str_id},
      scalar{&R::primary_freq, "primary_freq", ravix_str_wifi_freq},
      scalar{&R::temp_freq, "temp_freq", ravix_str_wifi_freq},
  };
};

template <> struct record<ravix_event_client_state_update_t> {
  RAVIX_OPERATIONS(ravix_types_event_client_state_update)
  using R = ravix_event_client_state_update_t;
  static constexpr std::tuple fields{
      scalar{&R::role_id, "role_id", ravix_str_id},
      bytes{&R::mac, "mac", ravix_str_mac},
      scalar{&R::old_state, "old_state", ravix_str_sta_state},
      scalar{&R::new_state, "new_state", ravix_str_sta_state},
  };
};

template <> struct record<ravix_event_client_activity_update_t> {
  RAVIX_OPERATIONS(ravix_types_event_client_activity_update)
  using R = ravix_event_client_activity_update_t;
  static constexpr std::tuple fields{
      scalar{&R::role_id, "role_id", ravix_str_id},
      bytes{&R::mac, "mac", ravix_str_mac},
      scalar{&R::active, "active", ravix_str_enabled},
  };
};

template <> struct record<ravix_event_client_rssi_update_t> {
  RAVIX_OPERATIONS(ravix_types_event_client_rssi_update)
  using R = ravix_event_client_rssi_update_t;
  static constexpr std::tuple fields{
      scalar{&R::role_id, "role_id", ravix_str_id},
      bytes{&R::mac, "mac", ravix_str_mac},
      scalar{&R::rsni, "rsni", ravix_str_rsni, RAVIX_MEASURE_INVALID},
      scalar{&R::rcpi, "rcpi", ravix_str_rcpi, RAVIX_MEASURE_INVALID},
      scalar{&R::anpi, "anpi", ravix_str_anpi, RAVIX_MEASURE_INVALID},
  };
};

} // namespace zel::ravix
