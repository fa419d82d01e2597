// Field lists of the hardware layer's events.
#pragma once

#include "ravix_types_common_fields.hpp"
#include "ravix_types_radiod_hal.h"

namespace zel::ravix {

// These events carry the bits of a result code.
inline const char *status_text(std::uint32_t status) {
  return ravix_str_status(static_cast<std::int32_t>(status));
}

// Fields of the events that tell how an operation of the hardware went.
template <class R>
constexpr std::tuple hal_result_fields{
    scalar{&R::status, "status", status_text},
    bounded_text{&R::error_message, "error_message"},
    scalar{&R::hal_context, "hal_context"},
};

template <> struct record<radiod_hal_event_hw_init_t> {
  RAVIX_OPERATIONS(radiod_hal_event_hw_init)
  static constexpr auto fields = hal_result_fields<radiod_hal_event_hw_init_t>;
};

template <> struct record<radiod_hal_event_hw_deinit_t> {
  RAVIX_OPERATIONS(radiod_hal_event_hw_deinit)
  static constexpr auto fields = hal_result_fields<radiod_hal_event_hw_deinit_t>;
};

template <> struct record<radiod_hal_event_set_config_t> {
  RAVIX_OPERATIONS(radiod_hal_event_set_config)
  static constexpr auto fields = hal_result_fields<radiod_hal_event_set_config_t>;
};

template <> struct record<radiod_hal_event_check_config_t> {
  RAVIX_OPERATIONS(radiod_hal_event_check_config)
  static constexpr auto fields = hal_result_fields<radiod_hal_event_check_config_t>;
};

template <> struct record<radiod_hal_event_sanity_t> {
  RAVIX_OPERATIONS(radiod_hal_event_sanity)
  using R = radiod_hal_event_sanity_t;
  static constexpr std::tuple fields{
      scalar{&R::error_origin, "error_origin"},
      scalar{&R::error_class, "error_class"},
      bounded_text{&R::error_message, "error_message"},
      scalar{&R::hal_context, "hal_context"},
      scalar{&R::recovery, "recovery", ravix_str_enabled},
  };
};

template <> struct record<radiod_hal_event_scan_fail_t> {
  RAVIX_OPERATIONS(radiod_hal_event_scan_fail)
  using R = radiod_hal_event_scan_fail_t;
  static constexpr std::tuple fields{
      scalar{&R::radio_id, "radio_id", ravix_str_id},
      scalar{&R::status, "status", status_text},
  };
};

} // namespace zel::ravix
