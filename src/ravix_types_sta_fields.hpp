// Field lists of the station records.
#pragma once

#include "ravix_types_common_fields.hpp"
#include "ravix_types_sta.h"

namespace zel::ravix {

// An owned text that may be missing: when no memory is left for it, only the log tells. A table of hundreds of clients
// stays usable when one of them comes out empty.
template <class Kind> struct lenient : Kind {
  explicit constexpr lenient(Kind kind) : Kind(kind) {}
  template <class R> failure copy(const R &src, R &dest, call_site site) const {
    failure failed = Kind::copy(src, dest, site);
    failed.code = success;
    return failed;
  }
};

RAVIX_FIELD_LIST(ravix_station_entry_t) {
  static constexpr std::tuple fields{
      RAVIX_FIELD(state, sta_state),
      RAVIX_FIELD(mode, wlan_mode),
      RAVIX_FIELD(security, security),
      RAVIX_FIELD(hwaddr, mac),
      RAVIX_FIELD(signal_rssi, power),
      RAVIX_FIELD(signal_quality, spaced_percentage),
      RAVIX_FIELD(channel_info),
      RAVIX_FIELD(rate_tx_max, bitrate),
      RAVIX_FIELD(rate_rx_max, bitrate),
      RAVIX_FIELD(rate_tx_current, bitrate),
      RAVIX_FIELD(rate_rx_current, bitrate),
      RAVIX_FIELD(streams_tx),
      RAVIX_FIELD(streams_rx),
      RAVIX_FIELD(caps_set, capabilities),
      RAVIX_FIELD(mld_hwaddr, mac),
      RAVIX_FIELD(mlo_mode, mlo_mode),
      RAVIX_FIELD(mlo_link_id, index),
      RAVIX_FIELD(mlo_link_t2lm_ul, bits_8),
      RAVIX_FIELD(mlo_link_t2lm_dl, bits_8),
  };
};

RAVIX_FIELD_LIST(ravix_remote_client_entry_t) {
  static constexpr std::tuple fields{
      lenient{RAVIX_FIELD(parent_nexus_device_address)},
      RAVIX_FIELD(bssid, mac),
      RAVIX_FIELD(hwaddr, mac),
      RAVIX_FIELD(mld_hwaddr, mac),
      RAVIX_FIELD(mlo_link_id, index),
      RAVIX_FIELD(mlo_link_active_state),
      RAVIX_FIELD(mlo_mode, mlo_mode),
      RAVIX_FIELD(state, sta_state),
      RAVIX_FIELD(channel_width, channel_width),
      RAVIX_FIELD(center_frequency, channel_frequency),
      RAVIX_FIELD(rssi, power),
      RAVIX_FIELD(quality, percentage),
      RAVIX_FIELD(wlan_mode, wlan_mode),
      RAVIX_FIELD(security, security),
      RAVIX_FIELD(station_type, station_type),
      RAVIX_FIELD(caps_set, capabilities),
      RAVIX_FIELD(zel_caps_set, bits_32),
      RAVIX_FIELD(rate_active_tx, bitrate),
      RAVIX_FIELD(rate_active_rx, bitrate),
      RAVIX_FIELD(rate_max_tx, bitrate),
      RAVIX_FIELD(rate_max_rx, bitrate),
      RAVIX_FIELD(rate_average_tx, bitrate),
      RAVIX_FIELD(rate_average_rx, bitrate),
      RAVIX_FIELD(streams_tx),
      RAVIX_FIELD(streams_rx),
  };
};

RAVIX_FIELD_LIST(ravix_remote_ap_entry_t) {
  static constexpr std::tuple fields{
      lenient{RAVIX_FIELD(nexus_device_address)},
      RAVIX_FIELD(opmode, role_opmode),
      RAVIX_FIELD(hwaddr, mac),
      RAVIX_FIELD(mlo_link_id, index),
      RAVIX_FIELD(security, security),
      RAVIX_FIELD(wlan_mode, wlan_mode),
      RAVIX_FIELD(caps_set, capabilities),
      RAVIX_FIELD(zel_caps_set, bits_32),
      RAVIX_FIELD(rate_max_rx, bitrate),
      RAVIX_FIELD(rate_max_tx, bitrate),
      RAVIX_FIELD(streams_rx),
      RAVIX_FIELD(streams_tx),
      RAVIX_FIELD(channel_info),
  };
};

RAVIX_FIELD_LIST(ravix_station_history_entry_t) {
  static constexpr std::tuple fields{
      RAVIX_FIELD(mac, mac),          RAVIX_FIELD(quality, percentage),     RAVIX_FIELD(wlan_mode, wlan_mode),
      RAVIX_FIELD(role_handle, id),   RAVIX_FIELD(time_connect, timestamp), RAVIX_FIELD(time_disconnect, timestamp),
      RAVIX_FIELD(status_connect),    RAVIX_FIELD(initiator_connect),       RAVIX_FIELD(ieee802_11_reason_connect),
      RAVIX_FIELD(status_disconnect), RAVIX_FIELD(initiator_disconnect),    RAVIX_FIELD(ieee802_11_reason_disconnect),
  };
};

} // namespace zel::ravix
