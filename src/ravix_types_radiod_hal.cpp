#include "ravix_types_radiod_hal_fields.hpp"

namespace {
constexpr const char *here = "src/ravix_types_radiod_hal";
}

RAVIX_RECORD(radiod_hal_event_hw_init, radiod_hal_event_hw_init_t)
RAVIX_RECORD(radiod_hal_event_hw_deinit, radiod_hal_event_hw_deinit_t)
RAVIX_RECORD(radiod_hal_event_set_config, radiod_hal_event_set_config_t)
RAVIX_RECORD(radiod_hal_event_check_config, radiod_hal_event_check_config_t)
RAVIX_RECORD(radiod_hal_event_sanity, radiod_hal_event_sanity_t)
RAVIX_RECORD(radiod_hal_event_scan_fail, radiod_hal_event_scan_fail_t)
