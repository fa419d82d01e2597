#include "ravix_types_sta_fields.hpp"

namespace {
constexpr const char *here = "src/ravix_types_sta";
}

RAVIX_RECORD(ravix_types_station_entry, ravix_station_entry_t)
RAVIX_TABLE(ravix_types_station_table, ravix_station_table_t)
RAVIX_RECORD(ravix_types_remote_client_entry, ravix_remote_client_entry_t)
RAVIX_TABLE(ravix_types_remote_client_table, ravix_remote_client_table_t)
RAVIX_RECORD(ravix_types_remote_ap_entry, ravix_remote_ap_entry_t)
RAVIX_TABLE(ravix_types_remote_ap_table, ravix_remote_ap_table_t)
RAVIX_RECORD(ravix_types_station_history_entry, ravix_station_history_entry_t)
RAVIX_TABLE(ravix_types_station_history_table, ravix_station_history_table_t)

ravix_station_history_t *ravix_types_station_history_create(unsigned capacity) {
  auto *history =
      static_cast<ravix_station_history_t *>(slab_dcalloc(1, sizeof(ravix_station_history_t), here, __LINE__));
  if (history == nullptr) {
    zel::ravix::log_error(here, "No memory available!");
    return nullptr;
  }
  if (ravix_types_station_history_table_init(&history->table, capacity) != zel::ravix::success) {
    zel::ravix::log_error(here, "Init error!");
    ravix_types_station_history_free(history);
    return nullptr;
  }
  return history;
}

void ravix_types_station_history_free(ravix_station_history_t *history) {
  zel::ravix::generic_free<ravix_station_history_t>(
      history, [](ravix_station_history_t *filled) { ravix_types_station_history_table_clear(&filled->table); });
}
