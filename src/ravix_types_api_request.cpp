#include "ravix_types_api_request_fields.hpp"

#include "ravix_types_define.hpp"

constexpr const char *here = "src/ravix_types_api_request";

#define RAVIX_API_REQUEST_RECORD RAVIX_DEFINE
#include "ravix_types_records.def"
