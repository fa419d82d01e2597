/**
 * @file
 * Requests and responses of the scan interface.
 *
 * A client sends ravix_start_scan_request_t and gets ravix_start_scan_response_t; it then asks with
 * ravix_get_scan_results_request_t and gets ravix_get_scan_results_response_t. Life-cycle, ownership, errors and
 * threads: see ravix_types_common.h. These records have no `_compare`.
 */
#ifndef RAVIX_TYPES_API_REQUEST_H
#define RAVIX_TYPES_API_REQUEST_H

#include "ravix_types_common.h"
#include "ravix_types_radio_env.h"

/** @defgroup api_request Requests and responses
 *  @{ */

#ifdef __cplusplus
extern "C" {
#endif

/** Asks a radio to scan. */
typedef struct ravix_start_scan_request {
  int32_t radio_id;                       /**< Identifier of the radio to scan with. */
  ravix_scan_parameter_t *scan_parameter; /**< Owned restrictions; null when there are none. */
} ravix_start_scan_request_t;

/** Answer to ravix_start_scan_request_t. Owns nothing. */
typedef struct ravix_start_scan_response {
  int32_t status; /**< Result code, `RAVIX_STATUS_...` or a negative errno value. */
} ravix_start_scan_response_t;

/** Asks for what a radio's last scan found. Owns nothing. */
typedef struct ravix_get_scan_results_request {
  int32_t radio_id;            /**< Identifier of the radio. */
  bool selective_scan_results; /**< Only the results that match the scan's parameters. */
} ravix_get_scan_results_request_t;

/** Answer to ravix_get_scan_results_request_t. */
typedef struct ravix_get_scan_results_response {
  int32_t status;                     /**< Result code, `RAVIX_STATUS_...` or a negative errno value. */
  ravix_scan_results_t *scan_results; /**< Owned results; null when there are none. */
} ravix_get_scan_results_response_t;

/** @name Start of a scan: request
 *  @{ */
RAVIX_API ravix_start_scan_request_t *ravix_types_start_scan_request_create(void);
RAVIX_API ravix_start_scan_request_t *ravix_types_start_scan_request_clone(const ravix_start_scan_request_t *old_obj);
RAVIX_API int ravix_types_start_scan_request_copy(const ravix_start_scan_request_t *src,
                                                  ravix_start_scan_request_t *dest);
RAVIX_API void ravix_types_start_scan_request_clear(ravix_start_scan_request_t *obj);
RAVIX_API void ravix_types_start_scan_request_free(ravix_start_scan_request_t *obj);
/** @} */

/** @name Start of a scan: response
 *  @{ */
RAVIX_API ravix_start_scan_response_t *ravix_types_start_scan_response_create(void);
RAVIX_API ravix_start_scan_response_t *
ravix_types_start_scan_response_clone(const ravix_start_scan_response_t *old_obj);
RAVIX_API int ravix_types_start_scan_response_copy(const ravix_start_scan_response_t *src,
                                                   ravix_start_scan_response_t *dest);
RAVIX_API void ravix_types_start_scan_response_clear(ravix_start_scan_response_t *obj);
RAVIX_API void ravix_types_start_scan_response_free(ravix_start_scan_response_t *obj);
/** @} */

/** @name Scan results: request
 *  @{ */
RAVIX_API ravix_get_scan_results_request_t *ravix_types_get_scan_results_request_create(void);
RAVIX_API ravix_get_scan_results_request_t *
ravix_types_get_scan_results_request_clone(const ravix_get_scan_results_request_t *old_obj);
RAVIX_API int ravix_types_get_scan_results_request_copy(const ravix_get_scan_results_request_t *src,
                                                        ravix_get_scan_results_request_t *dest);
RAVIX_API void ravix_types_get_scan_results_request_clear(ravix_get_scan_results_request_t *obj);
RAVIX_API void ravix_types_get_scan_results_request_free(ravix_get_scan_results_request_t *obj);
/** @} */

/** @name Scan results: response
 *  @{ */
RAVIX_API ravix_get_scan_results_response_t *ravix_types_get_scan_results_response_create(void);
RAVIX_API ravix_get_scan_results_response_t *
ravix_types_get_scan_results_response_clone(const ravix_get_scan_results_response_t *old_obj);
RAVIX_API int ravix_types_get_scan_results_response_copy(const ravix_get_scan_results_response_t *src,
                                                         ravix_get_scan_results_response_t *dest);
RAVIX_API void ravix_types_get_scan_results_response_clear(ravix_get_scan_results_response_t *obj);
RAVIX_API void ravix_types_get_scan_results_response_free(ravix_get_scan_results_response_t *obj);
/** @} */

#ifdef __cplusplus
}
#endif

/** @} */

#endif
