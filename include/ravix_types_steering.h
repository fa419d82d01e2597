/**
 * @file
 * Client steering: BSS transition candidates (IEEE 802.11v), AP channel reports and beacon reports (IEEE 802.11k).
 *
 * The lists of this file are simpler than the tables of ravix_types_common.h: they are made once, filled in place and
 * released; there is no copy, no comparison and no `_add_entry`.
 *
 * - `_init(target, n)` releases what the target held and gives it n zeroed elements. Returns 0; -22 after "Invalid
 *   pointer '<target>'!"; -12 after "No memory available!", with the target empty.
 * - `_create(n)` gives a new list of n zeroed elements, or null after "No memory available!" or "Init error!".
 * - `_clear(target)` releases what the target owns and leaves it empty; null is harmless.
 * - `_free(target)` clears a list from `_create` and releases it; null is harmless.
 *
 * What the frames carry is kept as numbers of this host; the clauses named are those of IEEE Std 802.11-2020.
 * Ownership, errors and threads: see ravix_types_common.h.
 */
#ifndef RAVIX_TYPES_STEERING_H
#define RAVIX_TYPES_STEERING_H

#include "ravix_types_common.h"

#include <assert.h>
#include <stddef.h>

/** @defgroup steering Client steering
 *  What the daemon tells a client about other BSSs, and what it asks and learns from it.
 *  @{ */

/** Most channels of an AP channel report, whose length field has 8 bits. */
#define RAVIX_MAX_AP_CHANNEL_REPORT_CHANNELS 254

#ifdef __cplusplus
extern "C" {
#endif

/** A BSS to which a client may move: the Neighbor Report element (9.4.2.36) with its candidate preference. Sixteen
 *  octets on every platform. The library never reads it. */
typedef struct ravix_btm_candidate {
  ravix_mac_t bssid;       /**< BSSID. */
  uint8_t operating_class; /**< Operating class of the channel (Annex E). */
  uint8_t channel_number;  /**< Channel number within the operating class. */
  uint32_t bssid_info;     /**< BSSID Information: reachability, security, capabilities. */
  uint8_t phy_type;        /**< PHY type of the BSS (dot11PHYType). */
  uint8_t preference;      /**< BSS Transition Candidate Preference: 0 excludes the BSS, 255 is the most preferred. */
  uint8_t reserved[2];     /**< Zero. */
} ravix_btm_candidate_t;

/** List of BSS transition candidates. */
typedef struct ravix_btm_candidate_table {
  uint32_t count;              /**< Number of elements. */
  ravix_btm_candidate_t *data; /**< Owned array; null when empty. */
} ravix_btm_candidate_table_t;

/** AP Channel Report element (9.4.2.35): channels of one operating class on which access points may be found. */
typedef struct ravix_ap_channel_report {
  uint8_t length;          /**< Length of the element: 1 for the operating class, and the number of channels.
                                Empty: 1. */
  uint8_t operating_class; /**< Operating class of the channels (Annex E). */
  uint8_t *channels;       /**< Owned array of `length` - 1 channel numbers; null when there are none. */
} ravix_ap_channel_report_t;

/** List of AP channel reports. A new element is all zero: its length is 0 until ravix_types_ap_channel_report_init().
 */
typedef struct ravix_ap_channel_report_table {
  uint32_t count;                  /**< Number of elements. */
  ravix_ap_channel_report_t *data; /**< Owned array; null when empty. */
} ravix_ap_channel_report_table_t;

/** What a client heard from one BSS: the Beacon report (9.4.2.21.7) and the head of the Measurement Report element
 *  around it (9.4.2.21.1). Thirty-two octets on every platform. The library never reads it. */
typedef struct ravix_beacon_report {
  uint64_t start_time;         /**< Actual Measurement Start Time: TSF timer of the client, in us. */
  uint32_t parent_tsf;         /**< Parent TSF: low half of the client's TSF timer at reception, in us. */
  uint16_t duration;           /**< Measurement Duration in time units (TU, 1024 us). */
  uint8_t operating_class;     /**< Operating class of the channel (Annex E). */
  uint8_t channel_number;      /**< Channel number within the operating class. */
  ravix_mac_t bssid;           /**< BSSID that was heard. */
  uint8_t reported_frame_info; /**< Reported Frame Information: condensed PHY type, and bit 7 for the frame's type. */
  uint8_t rcpi;                /**< Received channel power, RCPI code; 255: not available. */
  uint8_t rsni;                /**< Received signal to noise, RSNI code; 255: not available. */
  uint8_t antenna_id;          /**< Antenna ID; 0: not known, 255: more than one antenna. */
  uint8_t token;               /**< Measurement Token of the request that is answered. */
  uint8_t report_mode;         /**< Measurement Report Mode; bits 0 to 2: late, incapable, refused. */
  uint8_t reserved[4];         /**< Zero. */
} ravix_beacon_report_t;

/** List of beacon reports. */
typedef struct ravix_beacon_report_table {
  uint32_t count;              /**< Number of elements. */
  ravix_beacon_report_t *data; /**< Owned array; null when empty. */
} ravix_beacon_report_table_t;

/** A further subelement of a beacon request. */
typedef struct ravix_beacon_report_subelement {
  uint32_t len;    /**< Octets at `octets`. */
  uint8_t *octets; /**< Owned octets of the whole subelement: its identifier, its length, its content. */
} ravix_beacon_report_subelement_t;

/** What a client is asked for: the Beacon request (9.4.2.20.7). Fields up to `reporting_detail` are plain values, which
 *  clearing leaves as they are. */
typedef struct ravix_beacon_report_rrm_req_params {
  uint8_t operating_class;         /**< Operating class of the channel (Annex E). */
  uint8_t channel_number;          /**< Channel to measure; 0: all of the operating class, 255: those of the AP channel
                                        reports. */
  uint16_t randomization_interval; /**< Longest random delay before the measurement, in time units. */
  uint16_t measurement_duration;   /**< Duration on each channel, in time units. */
  uint8_t measurement_mode;        /**< 0: passive, 1: active, 2: beacon table. */
  ravix_mac_t bssid;               /**< BSSID to look for; all ones: any. */
  ravix_ssid_t ssid;               /**< SSID to look for; length 0: any. */
  uint8_t reporting_detail;        /**< 0: neither fixed fields nor elements, 1: fixed fields and requested elements,
                                        2: all. */
  uint32_t request_count;          /**< Number of octets at `request_ids`. */
  uint8_t *request_ids;            /**< Owned identifiers of the elements that a report is to contain; may be null. */
  ravix_ap_channel_report_table_t ap_channel_reports; /**< Channels to measure. */
  uint32_t subelement_count;                          /**< Number of further subelements. */
  ravix_beacon_report_subelement_t *subelements;      /**< Owned array of further subelements; may be null. */
} ravix_beacon_report_rrm_req_params_t;

#ifndef DOXYGEN
static_assert(sizeof(ravix_btm_candidate_t) == 16, "a candidate is a fixed record of the interface");
static_assert(sizeof(ravix_beacon_report_t) == 32, "a beacon report is a fixed record of the interface");
static_assert(offsetof(ravix_beacon_report_rrm_req_params_t, request_count) == 48, "the plain values have no padding");
static_assert(sizeof(ravix_ap_channel_report_t) == 2 * sizeof(void *), "two octets ahead of a pointer");
#endif

/** @name BSS transition candidates
 *  @{ */
RAVIX_API int ravix_types_btm_candidate_table_init(ravix_btm_candidate_table_t *candidate_table, unsigned n);
RAVIX_API ravix_btm_candidate_table_t *ravix_types_btm_candidate_table_create(unsigned n);
RAVIX_API void ravix_types_btm_candidate_table_clear(ravix_btm_candidate_table_t *table);
RAVIX_API void ravix_types_btm_candidate_table_free(ravix_btm_candidate_table_t *table);
/** @} */

/** @name AP channel report
 *  Initialising gives length n + 1, operating class 0 and n zeroed channels. More than
 *  RAVIX_MAX_AP_CHANNEL_REPORT_CHANNELS are refused: "Maximum number of entries reached!", -22, and the report is
 * empty.
 *  @{ */
RAVIX_API int ravix_types_ap_channel_report_init(ravix_ap_channel_report_t *ap_channel_report, unsigned n);
RAVIX_API void ravix_types_ap_channel_report_clear(ravix_ap_channel_report_t *report);
/** @} */

/** @name List of AP channel reports
 *  @{ */
RAVIX_API int ravix_types_ap_channel_report_table_init(ravix_ap_channel_report_table_t *table, unsigned n);
RAVIX_API ravix_ap_channel_report_table_t *ravix_types_ap_channel_report_table_create(unsigned n);
RAVIX_API void ravix_types_ap_channel_report_table_clear(ravix_ap_channel_report_table_t *table);
RAVIX_API void ravix_types_ap_channel_report_table_free(ravix_ap_channel_report_table_t *table);
/** @} */

/** @name Beacon reports
 *  @{ */
RAVIX_API ravix_beacon_report_table_t *ravix_types_beacon_report_table_create(unsigned n);
RAVIX_API void ravix_types_beacon_report_table_clear(ravix_beacon_report_table_t *table);
RAVIX_API void ravix_types_beacon_report_table_free(ravix_beacon_report_table_t *table);
/** @} */

/** @name Beacon report request
 *  @{ */

/**
 * Releases the requested identifiers, the AP channel reports and the further subelements. The plain values ahead of
 * them stay, so that a request can be filled anew.
 * @param params may be null
 */
RAVIX_API void ravix_types_beacon_report_rrm_req_params_clear(ravix_beacon_report_rrm_req_params_t *params);
/** @} */

#ifdef __cplusplus
}
#endif

/** @} */

#endif
