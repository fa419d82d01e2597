#include "ravix_types_radiod_hal_fields.hpp"

#include "ravix_types_define.hpp"

constexpr const char *here = "src/ravix_types_radiod_hal";

#define RAVIX_RADIOD_HAL_RECORD RAVIX_DEFINE
#include "ravix_types_records.def"
