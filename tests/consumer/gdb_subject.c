/* Records to look at in gdb. */
#include "specimens.h"

#include <ravix_types.h>

void look(const void *record);
void look(const void *record) {
  (void)record;
}

int main(void) {
  const ravix_scan_entry_t entry = {.wlan_mode = RAVIX_WLAN_MODE_11N | RAVIX_WLAN_MODE_11BE | 0x8000U,
                                    .bssid = MAC(0x00, 0x01),
                                    .ssid = TEXT("caf\xc3\xa9"),
                                    .channel_info = {5180000, 5210000, RAVIX_CHANNEL_WIDTH_80, 0},
                                    .rssi = RAVIX_POWER_INVALID};
  ravix_noisefloor_entry_t quiet = {.frequency = 2484000, .noisefloor = 31, .load = RAVIX_MEASURE_INVALID};
  ravix_scan_results_t results = {.scan_time = 12345678, .noisefloor_table = {1, &quiet}, .scan_table = {0, NULL}};
  const ravix_event_scan_results_t event = {.radio_id = RAVIX_ID_ALL, .scan_parameter = NULL, .scan_results = &results};
  const ravix_frequency_table_t lost = {3, NULL};
  ravix_event_radar_detected_t *radar = ravix_types_event_radar_detected_create();
  radar->freq_start = 5500001;
  radar->radar_type = 99;
  radar->flags = 5;
  look(&entry);
  look(&lost);
  look(radar);
  look(&home_network);
  look(&event);
  look(&element_table);
  ravix_types_event_radar_detected_free(radar);
  return 0;
}
