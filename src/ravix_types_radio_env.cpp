#include "ravix_types_radio_env_fields.hpp"

#include "ravix_types_define.hpp"

constexpr const char *here = "src/ravix_types_radio_env";

#define RAVIX_RADIO_ENV_RECORD RAVIX_DEFINE
#include "ravix_types_records.def"
