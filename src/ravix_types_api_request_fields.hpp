// Field lists of the requests and responses.
#pragma once

#include "ravix_types_api_request.h"
#include "ravix_types_radio_env_fields.hpp"

namespace zel::ravix {

RAVIX_FIELD_LIST(ravix_start_scan_request_t) {
  static constexpr std::tuple fields{RAVIX_FIELD(radio_id, id), RAVIX_FIELD(scan_parameter)};
};

RAVIX_FIELD_LIST(ravix_start_scan_response_t) {
  static constexpr std::tuple fields{RAVIX_FIELD(status, status)};
};

RAVIX_FIELD_LIST(ravix_get_scan_results_request_t) {
  static constexpr std::tuple fields{RAVIX_FIELD(radio_id, id), RAVIX_FIELD(selective_scan_results)};
};

RAVIX_FIELD_LIST(ravix_get_scan_results_response_t) {
  static constexpr std::tuple fields{RAVIX_FIELD(status, status), RAVIX_FIELD(scan_results)};
};

} // namespace zel::ravix
