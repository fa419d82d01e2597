/* Records to look at in gdb. */
#include "specimens.h"

#include <ravix_types.h>

#include <string.h>

void look(const void *record);
void look(const void *record) {
  (void)record;
}

int main(void) {
  ravix_scan_entry_t entry = {0};
  ravix_types_scan_entry_clear(&entry);
  (void)ravix_mac_from_str("02:00:5E:10:00:01", entry.bssid);
  memcpy(entry.ssid.ssid, "caf\xc3\xa9", entry.ssid.len = 5);
  entry.wlan_mode = RAVIX_WLAN_MODE_11N | RAVIX_WLAN_MODE_11BE | 0x8000U;
  (void)ravix_create_channel_info(5180000, RAVIX_CHANNEL_WIDTH_80, false, 0, &entry.channel_info);

  ravix_event_scan_results_t *event = ravix_types_event_scan_results_create();
  event->scan_results = ravix_types_scan_results_create();
  event->scan_results->scan_time = 12345678;
  (void)ravix_types_scan_table_add_entry(&event->scan_results->scan_table, &entry);
  (void)ravix_types_noisefloor_table_init(&event->scan_results->noisefloor_table, 1);
  event->scan_results->noisefloor_table.data[0].frequency = 2484000;
  event->scan_results->noisefloor_table.data[0].noisefloor = 31;

  ravix_cfg_role_static_t *role = ravix_cfg_role_create();
  role->id = RAVIX_ID_ALL;
  strcpy(role->if_name, "wlan0");
  role->op_mode = RAVIX_ROLE_OPMODE_AP_GUEST;
  role->config_ap = ravix_cfg_role_config_ap_create();
  role->power_level = 42;
  memcpy(role->security.key.key, "canary", role->security.key.len = 6);
  (void)ravix_cfg_radius_server_table_init(&role->security.auth_servers, 1);
  role->security.auth_servers.data[0].addr.version = RAVIX_IP_VERSION_4;
  memcpy(role->security.auth_servers.data[0].addr.addr, "\xc0\x00\x02\x0a", 4);
  strcpy(role->security.auth_servers.data[0].secret, "canary");
  role->security.security = 99;

  ravix_frequency_table_t lost = {3, NULL};
  ravix_event_radar_detected_t radar = {.radio_id = 1,
                                        .freq_start = 5500001,
                                        .radar_type = RAVIX_RADAR_TYPE_ETSI_2,
                                        .level_dbm = RAVIX_POWER_INVALID,
                                        .flags = 5};
  look(&entry);
  look(&lost);
  look(&radar);
  look(role);
  look(event);
  look(&home_network.security.auth_servers);
  look(&element_table);
  ravix_cfg_role_free(role);
  ravix_types_event_scan_results_free(event);
  return 0;
}
