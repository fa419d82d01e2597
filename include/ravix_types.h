/**
 * @file
 * All of the interface that C programs see. C++ programs print records with ravix_types_printers.hpp.
 */
#ifndef RAVIX_TYPES_H
#define RAVIX_TYPES_H

#include "ravix_types_api_request.h"
#include "ravix_types_cfg.h"
#include "ravix_types_common.h"
#include "ravix_types_enums.h"
#include "ravix_types_event.h"
#include "ravix_types_radio_env.h"
#include "ravix_types_radiod_hal.h"
#include "ravix_types_sta.h"
#include "ravix_types_steering.h"
#include "ravix_types_str_convert.h"
#include "ravix_types_util.h"
#include "ravix_types_validation.h"
#include "ravix_types_version.h"

#endif
