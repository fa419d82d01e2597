/* A program that knows the installed headers and the library only. Built as C11 and, with the same text, as C++20. */
#include <ravix_types.h>

#include <stdio.h>
#include <string.h>

int main(void) {
  char version[32];
  snprintf(version, sizeof version, "%d.%d.%d", RAVIX_TYPES_VERSION_MAJOR, RAVIX_TYPES_VERSION_MINOR,
           RAVIX_TYPES_VERSION_PATCH);
  uint32_t frequency = 0;
  const ravix_channel_list_t none = {0, NULL};
  ravix_scan_table_t *networks = ravix_types_scan_table_create(1);
  ravix_station_history_t *history = ravix_types_station_history_create(2);
  radiod_hal_event_scan_fail_t *event = radiod_hal_event_scan_fail_create();
  const struct {
    bool holds;
    const char *what;
  } checks[] = {{strncmp(RAVIX_TYPES_VERSION, version, strlen(version)) == 0, "the version begins with its numbers"},
                {networks != NULL && networks->data[0].rssi == RAVIX_POWER_INVALID, "an empty signal is not known"},
                {history != NULL && history->table.count == 2, "a history has its entries"},
                {event != NULL && event->status == 0, "an event starts empty"},
                {ravix_frequency_from_str("5180000", &frequency) && frequency == 5180000, "a frequency is read"},
                {ravix_frequency_to_channel(5180000) == 36, "5180 MHz is channel 36"},
                {ravix_validate_channel_list(&none, NULL), "a list without entries breaks no rule"},
                {strcmp(ravix_str_sta_state(RAVIX_STA_STATE_CONNECTED), "CONNECTED") == 0, "a state has a name"}};
  int failures = 0;
  for (size_t i = 0; i < sizeof checks / sizeof checks[0]; ++i) {
    if (!checks[i].holds) {
      fprintf(stderr, "failed: %s\n", checks[i].what);
      ++failures;
    }
  }
  radiod_hal_event_scan_fail_free(event);
  ravix_types_station_history_free(history);
  ravix_types_scan_table_free(networks);
  return failures != 0;
}
