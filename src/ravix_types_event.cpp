#include "ravix_types_event_fields.hpp"

#include "ravix_types_define.hpp"

constexpr const char *here = "src/ravix_types_event";

#define RAVIX_EVENT_RECORD RAVIX_DEFINE
#include "ravix_types_records.def"
