// The field lists of all records, and a visit of each record.
#pragma once

#include "ravix_types_api_request_fields.hpp"
#include "ravix_types_cfg_fields.hpp"
#include "ravix_types_common_fields.hpp"
#include "ravix_types_event_fields.hpp"
#include "ravix_types_radio_env_fields.hpp"
#include "ravix_types_radiod_hal_fields.hpp"
#include "ravix_types_sta_fields.hpp"

namespace zel::ravix {

// Calls visit.operator()<R>(name) for every record and table R, with the name of its type.
template <class Visit> void for_each_record(Visit visit) {
#define RAVIX_RECORD(NAME, TYPE, SHAPE, COMPARED, PRINTED) visit.template operator()<TYPE>(#TYPE);
#include "ravix_types_records.def"
}

} // namespace zel::ravix
