#include "ravix_types_sta_fields.hpp"

#include "ravix_types_define.hpp"

constexpr const char *here = "src/ravix_types_sta";

#define RAVIX_STA_RECORD RAVIX_DEFINE
#include "ravix_types_records.def"

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
