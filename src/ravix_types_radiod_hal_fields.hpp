// Field lists of the hardware layer's events.
#pragma once

#include "ravix_types_common_fields.hpp"
#include "ravix_types_radiod_hal.h"

namespace zel::ravix {

// Fields of the events that tell how an operation of the hardware went.
template <class R> struct hal_result {
  static constexpr std::tuple fields{RAVIX_FIELD(status, status), RAVIX_FIELD(error_message), RAVIX_FIELD(hal_context)};
};

template <> struct field_list<radiod_hal_event_hw_init_t> : hal_result<radiod_hal_event_hw_init_t> {};
template <> struct field_list<radiod_hal_event_hw_deinit_t> : hal_result<radiod_hal_event_hw_deinit_t> {};
template <> struct field_list<radiod_hal_event_set_config_t> : hal_result<radiod_hal_event_set_config_t> {};
template <> struct field_list<radiod_hal_event_check_config_t> : hal_result<radiod_hal_event_check_config_t> {};

RAVIX_FIELD_LIST(radiod_hal_event_sanity_t) {
  static constexpr std::tuple fields{
      RAVIX_FIELD(error_origin), RAVIX_FIELD(error_class), RAVIX_FIELD(error_message),
      RAVIX_FIELD(hal_context),  RAVIX_FIELD(recovery),
  };
};

RAVIX_FIELD_LIST(radiod_hal_event_scan_fail_t) {
  static constexpr std::tuple fields{RAVIX_FIELD(radio_id, id), RAVIX_FIELD(status, status)};
};

} // namespace zel::ravix
