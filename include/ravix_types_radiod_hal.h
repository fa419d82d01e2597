/**
 * @file
 * Events of the daemon's hardware abstraction layer (HAL).
 *
 * Life-cycle, ownership, errors and threads: see ravix_types_common.h; the functions are named
 * `radiod_hal_event_<name>_<operation>`. These events have no `_compare`, and a copy of one fails on null arguments
 * only.
 *
 * `hal_context` belongs to the HAL: a copy refers to the same context as its source, and no operation releases it.
 */
#ifndef RAVIX_TYPES_RADIOD_HAL_H
#define RAVIX_TYPES_RADIOD_HAL_H

#include "ravix_types_common.h"
#include "ravix_types_enums.h"

/** @defgroup radiod_hal Hardware layer events
 *  What the hardware layer reports to the daemon.
 *  @{ */

/** Most characters of an error message; a copy cuts a longer one. */
#define RAVIX_MAX_ERROR_MESSAGE_LEN 256

#ifdef __cplusplus
extern "C" {
#endif

/** The hardware has been initialised, or could not be. Owns nothing. */
typedef struct radiod_hal_event_hw_init {
  uint32_t status; /**< Bits of the result code, `RAVIX_STATUS_...` or a negative errno value. */
  char error_message[RAVIX_MAX_ERROR_MESSAGE_LEN + 1]; /**< Zero-terminated text; "" when there is none. */
  void *hal_context;                                   /**< Context of the HAL, not owned; may be null. */
} radiod_hal_event_hw_init_t;

/** The hardware has been shut down, or could not be. Owns nothing. */
typedef struct radiod_hal_event_hw_deinit {
  uint32_t status; /**< Bits of the result code, `RAVIX_STATUS_...` or a negative errno value. */
  char error_message[RAVIX_MAX_ERROR_MESSAGE_LEN + 1]; /**< Zero-terminated text; "" when there is none. */
  void *hal_context;                                   /**< Context of the HAL, not owned; may be null. */
} radiod_hal_event_hw_deinit_t;

/** A configuration has been applied, or could not be. Owns nothing. */
typedef struct radiod_hal_event_set_config {
  uint32_t status; /**< Bits of the result code, `RAVIX_STATUS_...` or a negative errno value. */
  char error_message[RAVIX_MAX_ERROR_MESSAGE_LEN + 1]; /**< Zero-terminated text; "" when there is none. */
  void *hal_context;                                   /**< Context of the HAL, not owned; may be null. */
} radiod_hal_event_set_config_t;

/** A configuration has been checked. Owns nothing. */
typedef struct radiod_hal_event_check_config {
  uint32_t status; /**< Bits of the result code, `RAVIX_STATUS_...` or a negative errno value. */
  char error_message[RAVIX_MAX_ERROR_MESSAGE_LEN + 1]; /**< Zero-terminated text; "" when there is none. */
  void *hal_context;                                   /**< Context of the HAL, not owned; may be null. */
} radiod_hal_event_check_config_t;

/** The hardware layer has found itself in a state that it should not be in. Owns nothing. */
typedef struct radiod_hal_event_sanity {
  uint8_t error_origin;                                /**< Where the error lies, as the HAL numbers it. */
  uint8_t error_class;                                 /**< Kind of error, as the HAL numbers it. */
  char error_message[RAVIX_MAX_ERROR_MESSAGE_LEN + 1]; /**< Zero-terminated text; "" when there is none. */
  void *hal_context;                                   /**< Context of the HAL, not owned; may be null. */
  bool recovery;                                       /**< A recovery has been started. */
} radiod_hal_event_sanity_t;

/** A scan could not be done. Owns nothing. */
typedef struct radiod_hal_event_scan_fail {
  int32_t radio_id; /**< Radio that was to scan. */
  uint32_t status;  /**< Bits of the result code, `RAVIX_STATUS_...` or a negative errno value. */
} radiod_hal_event_scan_fail_t;

/** @name Hardware init
 *  @{ */
RAVIX_API radiod_hal_event_hw_init_t *radiod_hal_event_hw_init_create(void);
RAVIX_API radiod_hal_event_hw_init_t *radiod_hal_event_hw_init_clone(const radiod_hal_event_hw_init_t *old_obj);
RAVIX_API int radiod_hal_event_hw_init_copy(const radiod_hal_event_hw_init_t *src, radiod_hal_event_hw_init_t *dest);
RAVIX_API void radiod_hal_event_hw_init_clear(radiod_hal_event_hw_init_t *obj);
RAVIX_API void radiod_hal_event_hw_init_free(radiod_hal_event_hw_init_t *obj);
/** @} */

/** @name Hardware de-init
 *  @{ */
RAVIX_API radiod_hal_event_hw_deinit_t *radiod_hal_event_hw_deinit_create(void);
RAVIX_API radiod_hal_event_hw_deinit_t *radiod_hal_event_hw_deinit_clone(const radiod_hal_event_hw_deinit_t *old_obj);
RAVIX_API int radiod_hal_event_hw_deinit_copy(const radiod_hal_event_hw_deinit_t *src,
                                              radiod_hal_event_hw_deinit_t *dest);
RAVIX_API void radiod_hal_event_hw_deinit_clear(radiod_hal_event_hw_deinit_t *obj);
RAVIX_API void radiod_hal_event_hw_deinit_free(radiod_hal_event_hw_deinit_t *obj);
/** @} */

/** @name Configuration applied
 *  @{ */
RAVIX_API radiod_hal_event_set_config_t *radiod_hal_event_set_config_create(void);
RAVIX_API radiod_hal_event_set_config_t *
radiod_hal_event_set_config_clone(const radiod_hal_event_set_config_t *old_obj);
RAVIX_API int radiod_hal_event_set_config_copy(const radiod_hal_event_set_config_t *src,
                                               radiod_hal_event_set_config_t *dest);
RAVIX_API void radiod_hal_event_set_config_clear(radiod_hal_event_set_config_t *obj);
RAVIX_API void radiod_hal_event_set_config_free(radiod_hal_event_set_config_t *obj);
/** @} */

/** @name Configuration checked
 *  @{ */
RAVIX_API radiod_hal_event_check_config_t *radiod_hal_event_check_config_create(void);
RAVIX_API radiod_hal_event_check_config_t *
radiod_hal_event_check_config_clone(const radiod_hal_event_check_config_t *old_obj);
RAVIX_API int radiod_hal_event_check_config_copy(const radiod_hal_event_check_config_t *src,
                                                 radiod_hal_event_check_config_t *dest);
RAVIX_API void radiod_hal_event_check_config_clear(radiod_hal_event_check_config_t *obj);
RAVIX_API void radiod_hal_event_check_config_free(radiod_hal_event_check_config_t *obj);
/** @} */

/** @name Sanity failure
 *  @{ */
RAVIX_API radiod_hal_event_sanity_t *radiod_hal_event_sanity_create(void);
RAVIX_API radiod_hal_event_sanity_t *radiod_hal_event_sanity_clone(const radiod_hal_event_sanity_t *old_obj);
RAVIX_API int radiod_hal_event_sanity_copy(const radiod_hal_event_sanity_t *src, radiod_hal_event_sanity_t *dest);
RAVIX_API void radiod_hal_event_sanity_clear(radiod_hal_event_sanity_t *obj);
RAVIX_API void radiod_hal_event_sanity_free(radiod_hal_event_sanity_t *obj);
/** @} */

/** @name Scan failure
 *  @{ */
RAVIX_API radiod_hal_event_scan_fail_t *radiod_hal_event_scan_fail_create(void);
RAVIX_API radiod_hal_event_scan_fail_t *radiod_hal_event_scan_fail_clone(const radiod_hal_event_scan_fail_t *old_obj);
RAVIX_API int radiod_hal_event_scan_fail_copy(const radiod_hal_event_scan_fail_t *src,
                                              radiod_hal_event_scan_fail_t *dest);
RAVIX_API void radiod_hal_event_scan_fail_clear(radiod_hal_event_scan_fail_t *obj);
RAVIX_API void radiod_hal_event_scan_fail_free(radiod_hal_event_scan_fail_t *obj);
/** @} */

#ifdef __cplusplus
}
#endif

/** @} */

#endif
