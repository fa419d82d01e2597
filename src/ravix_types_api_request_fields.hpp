// Field lists of the requests and responses.
#pragma once

#include "ravix_types_api_request.h"
#include "ravix_types_radio_env_fields.hpp"

namespace zel::ravix {

template <> struct record<ravix_start_scan_request_t> {
  RAVIX_OPERATIONS(ravix_types_start_scan_request)
  using R = ravix_start_scan_request_t;
  static constexpr std::tuple fields{
      scalar{&R::radio_id, "radio_id", ravix_str_id},
      owned{&R::scan_parameter, "scan_parameter"},
  };
};

template <> struct record<ravix_start_scan_response_t> {
  RAVIX_OPERATIONS(ravix_types_start_scan_response)
  using R = ravix_start_scan_response_t;
  static constexpr std::tuple fields{
      scalar{&R::status, "status", ravix_str_status},
  };
};

template <> struct record<ravix_get_scan_results_request_t> {
  RAVIX_OPERATIONS(ravix_types_get_scan_results_request)
  using R = ravix_get_scan_results_request_t;
  static constexpr std::tuple fields{
      scalar{&R::radio_id, "radio_id", ravix_str_id},
      scalar{&R::selective_scan_results, "selective_scan_results", ravix_str_enabled},
  };
};

template <> struct record<ravix_get_scan_results_response_t> {
  RAVIX_OPERATIONS(ravix_types_get_scan_results_response)
  using R = ravix_get_scan_results_response_t;
  static constexpr std::tuple fields{
      scalar{&R::status, "status", ravix_str_status},
      owned{&R::scan_results, "scan_results"},
  };
};

} // namespace zel::ravix
