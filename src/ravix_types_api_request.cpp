#include "ravix_types_api_request_fields.hpp"

namespace {
constexpr const char *here = "src/ravix_types_api_request";
}

RAVIX_RECORD(ravix_types_start_scan_request, ravix_start_scan_request_t)
RAVIX_RECORD(ravix_types_start_scan_response, ravix_start_scan_response_t)
RAVIX_RECORD(ravix_types_get_scan_results_request, ravix_get_scan_results_request_t)
RAVIX_RECORD(ravix_types_get_scan_results_response, ravix_get_scan_results_response_t)
