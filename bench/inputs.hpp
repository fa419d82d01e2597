// Records of the sizes that the benchmarks ask for.
#pragma once

#include "ravix_types_cfg.h"
#include "ravix_types_radio_env.h"
#include "ravix_types_util.h"

#include <cstdint>
#include <cstdio>
#include <cstring>
#include <memory>

namespace bench {

// A 6 GHz channel list. The first 59 entries are the band's channels, with nothing to object to; of those beyond none
// can be a primary channel.
inline std::shared_ptr<ravix_channel_list_t> channel_list(std::uint32_t count) {
  std::shared_ptr<ravix_channel_list_t> list(ravix_types_channel_list_create(count), ravix_types_channel_list_free);
  for (std::uint32_t i = 0; i < count; ++i) {
    ravix_channel_entry_t &entry = list->data[i];
    entry.frequency = i < 59 ? 5955000 + i * 20000 : 7115000 + i;
    entry.max_power = 24;
    entry.capabilities = RAVIX_CHANNEL_CAP_HT20 | RAVIX_CHANNEL_CAP_HT40 | RAVIX_CHANNEL_CAP_HT80 |
                         RAVIX_CHANNEL_CAP_HT160 | RAVIX_CHANNEL_CAP_HT320;
  }
  return list;
}

// An ascending list of which every entry breaks the same single rule, so that all entries cost alike at every size: a
// band has no more than 59 valid ones.
inline std::shared_ptr<ravix_channel_list_t> ascending_list(std::uint32_t count) {
  auto list = channel_list(count);
  for (std::uint32_t i = 0; i < count; ++i) {
    list->data[i].frequency = 5945001 + i * 10;
  }
  return list;
}

inline ravix_ssid_t ssid_of(const char *text) {
  ravix_ssid_t ssid{};
  ssid.len = static_cast<std::uint8_t>(std::strlen(text));
  std::memcpy(ssid.ssid, text, ssid.len);
  return ssid;
}

struct flag {
  std::uint32_t mask;
  const char *name;
};

// The flags that the networks below have.
inline constexpr flag modes[] = {{RAVIX_WLAN_MODE_11A, "11A"},
                                 {RAVIX_WLAN_MODE_11N, "11N"},
                                 {RAVIX_WLAN_MODE_11AC, "11AC"},
                                 {RAVIX_WLAN_MODE_11AX, "11AX"}};
inline constexpr flag capabilities[] = {{RAVIX_CAPABILITY_WPA2_PSK, "WPA2_PSK"},
                                        {RAVIX_CAPABILITY_WPA3_PSK, "WPA3_PSK"},
                                        {RAVIX_CAPABILITY_PMF, "PMF"},
                                        {RAVIX_CAPABILITY_5GHZ, "5GHZ"},
                                        {RAVIX_CAPABILITY_WME, "WME"}};

inline ravix_scan_entry_t scan_entry(std::uint32_t i) {
  ravix_scan_entry_t entry{};
  const auto octet = [=](unsigned shift) { return static_cast<std::uint8_t>(i >> shift); };
  entry.wlan_mode = RAVIX_WLAN_MODE_11A | RAVIX_WLAN_MODE_11N | RAVIX_WLAN_MODE_11AC | RAVIX_WLAN_MODE_11AX;
  const ravix_mac_t bssid = {0x02, 0x00, 0x5E, octet(16), octet(8), octet(0)};
  std::memcpy(entry.bssid, bssid, sizeof bssid);
  char name[24];
  snprintf(name, sizeof name, "network-%u", i);
  entry.ssid = ssid_of(name);
  ravix_create_channel_info(5180000 + i % 4 * 20000, RAVIX_CHANNEL_WIDTH_80, false, 0, &entry.channel_info);
  entry.rssi = static_cast<std::int16_t>(-40 - static_cast<int>(i % 50));
  entry.capabilities = RAVIX_CAPABILITY_WPA2_PSK | RAVIX_CAPABILITY_WPA3_PSK | RAVIX_CAPABILITY_PMF |
                       RAVIX_CAPABILITY_WME | RAVIX_CAPABILITY_5GHZ;
  return entry;
}

inline std::shared_ptr<ravix_scan_results_t> scan_results(std::uint32_t networks, std::uint32_t noise_floors) {
  std::shared_ptr<ravix_scan_results_t> results(ravix_types_scan_results_create(), ravix_types_scan_results_free);
  ravix_types_scan_table_init(&results->scan_table, networks);
  for (std::uint32_t i = 0; i < networks; ++i) {
    results->scan_table.data[i] = scan_entry(i);
  }
  ravix_types_noisefloor_table_init(&results->noisefloor_table, noise_floors);
  for (std::uint32_t i = 0; i < noise_floors; ++i) {
    results->noisefloor_table.data[i] = {5180000 + i * 5000, 30, 12};
  }
  results->scan_time = 1234567;
  return results;
}

// An access point with all that it can have: a key, WPS, three RADIUS servers and a filter of 32 addresses.
inline std::shared_ptr<ravix_cfg_role_static_t> full_role() {
  std::shared_ptr<ravix_cfg_role_static_t> role(ravix_cfg_role_create(), ravix_cfg_role_free);
  role->id = 2;
  role->radio_id = 1;
  role->enabled = true;
  role->mac_address_index = 3;
  std::strcpy(role->if_name, "wlan0_2");
  role->op_mode = RAVIX_ROLE_OPMODE_AP_HOME;
  role->power_level = 100;
  role->wlan_mode = RAVIX_WLAN_MODE_11A | RAVIX_WLAN_MODE_11N | RAVIX_WLAN_MODE_11AC;
  role->channel_width = RAVIX_CHANNEL_WIDTH_80;
  ravix_cfg_wlan_security_t &security = role->security;
  security.security = 1;
  security.pmf_mode = RAVIX_PMF_MODE_SUPPORTED;
  security.key.len = 20;
  std::memset(security.key.key, 'k', security.key.len);
  security.wps.enable = true;
  std::memset(security.wps.uuid, 0x5A, sizeof security.wps.uuid);
  ravix_cfg_radius_server_table_init(&security.auth_servers, 3);
  for (std::uint8_t i = 0; i < 3; ++i) {
    ravix_cfg_radius_server_t &server = security.auth_servers.data[i];
    server.index = i;
    server.port = 1812;
    server.addr = {RAVIX_IP_VERSION_4, {192, 0, 2, i}};
    std::strcpy(server.secret, "a shared secret of some length");
  }
  role->config_ap = ravix_cfg_role_config_ap_create();
  ravix_cfg_role_config_ap_t &ap = *role->config_ap;
  ap.ssid = ssid_of("a network of the home");
  ap.ssid_set = true;
  ap.access_control.mac_filter_enabled = true;
  ap.access_control.mac_filter_type = RAVIX_MAC_ACCESS_TYPE_WHITELIST;
  ravix_types_mac_table_init(&ap.access_control.macs_filtered, 32);
  for (std::uint8_t i = 0; i < 32; ++i) {
    ravix_mac_t mac = {0x02, 0x00, 0x00, 0x00, 0x0A, i};
    std::memcpy(ap.access_control.macs_filtered.data[i], mac, sizeof mac);
  }
  ap.time_control.timeout_minutes = 30;
  return role;
}

} // namespace bench
