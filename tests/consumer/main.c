/* A program that knows the installed headers and the library only. Built as C11 and, with the same text, as C++20. */
#include <ravix_types.h>

#include <stdio.h>
#include <string.h>

static int failures = 0;

static void check(bool holds, const char *what) {
  if (!holds) {
    fprintf(stderr, "failed: %s\n", what);
    ++failures;
  }
}

static void common_and_environment(void) {
  ravix_channel_info_t *channel = ravix_types_channel_info_create();
  ravix_scan_table_t *table = ravix_types_scan_table_create(0);
  ravix_scan_entry_t entry;
  memset(&entry, 0, sizeof entry);
  ravix_types_scan_entry_clear(&entry);
  entry.ssid.len = 2;
  memcpy(entry.ssid.ssid, "ap", 2);
  check(channel != NULL && table != NULL, "records are created");
  check(ravix_types_scan_table_add_entry(table, &entry) == 0 && table->count == 1, "a table grows");
  check(table->data[0].rssi == RAVIX_POWER_INVALID, "an empty signal is not known");
  check(strcmp(ravix_str_ssid(&table->data[0].ssid, true), "'ap' (len=2)") == 0, "an SSID has a text");
  ravix_types_scan_table_free(table);
  ravix_types_channel_info_free(channel);
}

static void requests_and_configuration(void) {
  ravix_start_scan_request_t *request = ravix_types_start_scan_request_create();
  ravix_cfg_radio_dynamic_t *radio = ravix_cfg_radio_dynamic_create();
  ravix_cfg_radio_dynamic_t *same = ravix_cfg_radio_dynamic_clone(radio);
  check(request != NULL && request->scan_parameter == NULL, "a request starts without restrictions");
  check(ravix_cfg_radio_dynamic_compare(radio, same) == 0, "a clone is equal");
  ravix_cfg_radio_dynamic_free(same);
  ravix_cfg_radio_dynamic_free(radio);
  ravix_types_start_scan_request_free(request);
}

static void arithmetic_and_text(void) {
  const ravix_channel_list_t list = {0, NULL};
  ravix_string_table_t *errors = ravix_types_string_table_create(0);
  uint32_t frequency = 0;
  check(ravix_frequency_to_channel(5180000) == 36, "5180 MHz is channel 36");
  check(ravix_frequency_from_str("2412000", &frequency) && frequency == 2412000, "a frequency is read");
  check(strcmp(ravix_str_sta_state(RAVIX_STA_STATE_CONNECTED), "CONNECTED") == 0, "a state has a name");
  (void)ravix_validate_channel_list(&list, errors);
  ravix_types_string_table_free(errors);
}

static void stations_and_events(void) {
  ravix_station_history_t *history = ravix_types_station_history_create(2);
  ravix_btm_candidate_table_t *candidates = ravix_types_btm_candidate_table_create(1);
  ravix_event_client_rssi_update_t *signal = ravix_types_event_client_rssi_update_create();
  radiod_hal_event_scan_fail_t *failed = radiod_hal_event_scan_fail_create();
  check(history != NULL && history->table.count == 2, "a history has its entries");
  check(candidates != NULL && candidates->data[0].preference == 0, "candidates start at zero");
  check(signal != NULL && signal->rcpi == RAVIX_MEASURE_INVALID, "an empty code is not available");
  check(failed != NULL && failed->status == 0, "an event starts empty");
  radiod_hal_event_scan_fail_free(failed);
  ravix_types_event_client_rssi_update_free(signal);
  ravix_types_btm_candidate_table_free(candidates);
  ravix_types_station_history_free(history);
}

static void version(void) {
  char numbers[32];
  snprintf(numbers, sizeof numbers, "%d.%d.%d", RAVIX_TYPES_VERSION_MAJOR, RAVIX_TYPES_VERSION_MINOR,
           RAVIX_TYPES_VERSION_PATCH);
  check(strncmp(RAVIX_TYPES_VERSION, numbers, strlen(numbers)) == 0, "the version's text begins with its numbers");
}

int main(void) {
  version();
  common_and_environment();
  requests_and_configuration();
  arithmetic_and_text();
  stations_and_events();
  return failures != 0;
}
