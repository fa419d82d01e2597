/**
 * @file
 * Radio environment: scan parameters and results, noise floors, channel lists, radio load and airtime.
 *
 * Life-cycle, ownership, errors and threads: see ravix_types_common.h. These records have no `_compare`, their tables
 * no `_contains_entry`.
 */
#ifndef RAVIX_TYPES_RADIO_ENV_H
#define RAVIX_TYPES_RADIO_ENV_H

#include "ravix_types_common.h"

/** @defgroup radio_env Radio environment
 *  What a radio sees: networks found, noise, channels, load.
 *  @{ */

#ifdef __cplusplus
extern "C" {
#endif

/** What a scan is restricted to; an empty table restricts nothing. */
typedef struct ravix_scan_parameter {
  ravix_frequency_table_t frequencies; /**< Frequencies to scan, in kHz. */
  ravix_ssid_table_t ssids;            /**< SSIDs to look for. */
  ravix_mac_table_t bssids;            /**< BSSIDs to look for. */
} ravix_scan_parameter_t;

/** One observed BSS. Owns nothing. */
typedef struct ravix_scan_entry {
  uint32_t wlan_mode;                /**< Set of `RAVIX_WLAN_MODE_...`. */
  ravix_mac_t bssid;                 /**< BSSID. */
  ravix_ssid_t ssid;                 /**< SSID; length 0 if it is hidden. */
  ravix_channel_info_t channel_info; /**< Channel of the BSS. */
  int16_t rssi;                      /**< Signal level in dBm; empty: RAVIX_POWER_INVALID, not known. */
  uint32_t capabilities;             /**< Set of `RAVIX_CAPABILITY_...`. */
} ravix_scan_entry_t;

/** Table of observed BSSs. */
typedef struct ravix_scan_table {
  uint32_t count;           /**< Number of elements. */
  ravix_scan_entry_t *data; /**< Owned array; null when empty. */
} ravix_scan_table_t;

/** Noise and load of one channel. Owns nothing. */
typedef struct ravix_noisefloor_entry {
  uint32_t frequency; /**< Centre of the channel in kHz. */
  uint8_t noisefloor; /**< Noise level, ANPI code (IEEE 802.11-2020, 9.4.2.21.6); empty: 255, not known. */
  uint8_t load;       /**< Channel load, in the unit of its producer; empty: 255, not known. */
} ravix_noisefloor_entry_t;

/** Table of noise and load per channel. */
typedef struct ravix_noisefloor_table {
  uint32_t count;                 /**< Number of elements. */
  ravix_noisefloor_entry_t *data; /**< Owned array; null when empty. */
} ravix_noisefloor_table_t;

/** What a scan found. */
typedef struct ravix_scan_results {
  int64_t scan_time; /**< Steady-clock time of the scan in ms; empty: RAVIX_TIMESTAMP_INVALID. */
  ravix_noisefloor_table_t noisefloor_table; /**< Noise per channel. */
  ravix_scan_table_t scan_table;             /**< Networks found. */
} ravix_scan_results_t;

/** One channel that a radio knows. Owns nothing. */
typedef struct ravix_channel_entry {
  uint32_t frequency;    /**< Centre of the channel in kHz. */
  int16_t max_power;     /**< Transmit power limit in dBm; empty: RAVIX_POWER_INVALID, not known. */
  uint32_t capabilities; /**< Set of `RAVIX_CHANNEL_CAP_...`. */
  uint32_t state;        /**< Set of `RAVIX_CHANNEL_STATE_...`. */
  uint32_t user_flags;   /**< Set of `RAVIX_CHANNEL_USER_FLAG_...`. */
} ravix_channel_entry_t;

/** The channels that a radio knows, ascending by frequency; see ravix_validate_channel_list(). */
typedef struct ravix_channel_list {
  uint32_t count;              /**< Number of elements. */
  ravix_channel_entry_t *data; /**< Owned array; null when empty. */
} ravix_channel_list_t;

/** Use of a radio's channel. Owns nothing. */
typedef struct ravix_radio_load_entry {
  uint8_t global_usage; /**< Use by all, in percent; empty: 255, not known. */
  uint8_t own_tx_usage; /**< Use by own transmissions, in percent; empty: 255, not known. */
} ravix_radio_load_entry_t;

/** Table of channel use. */
typedef struct ravix_radio_load_table {
  uint32_t count;                 /**< Number of elements. */
  ravix_radio_load_entry_t *data; /**< Owned array; null when empty. */
} ravix_radio_load_table_t;

/** Airtime of a radio, in the units of its producer. Owns nothing. */
typedef struct ravix_radio_airtime_entry {
  float rxc;        /**< Empty: -1.0, not known. */
  float rxf;        /**< Empty: -1.0, not known. */
  float txf;        /**< Empty: -1.0, not known. */
  float noisefloor; /**< Empty: -1.0, not known. */
} ravix_radio_airtime_entry_t;

/** Table of airtimes. Unlike the other tables it carries a value of its own, so its copy tests `dest` first. */
typedef struct ravix_radio_airtime_table {
  uint32_t airtime_base;             /**< Set and read by the producer; copied and cleared, not printed. */
  uint32_t count;                    /**< Number of elements. */
  ravix_radio_airtime_entry_t *data; /**< Owned array; null when empty. */
} ravix_radio_airtime_table_t;

/** @name Scan parameters
 *  @{ */
RAVIX_API ravix_scan_parameter_t *ravix_types_scan_parameter_create(void);
RAVIX_API ravix_scan_parameter_t *ravix_types_scan_parameter_clone(const ravix_scan_parameter_t *old_obj);
RAVIX_API int ravix_types_scan_parameter_copy(const ravix_scan_parameter_t *src, ravix_scan_parameter_t *dest);
RAVIX_API void ravix_types_scan_parameter_clear(ravix_scan_parameter_t *obj);
RAVIX_API void ravix_types_scan_parameter_free(ravix_scan_parameter_t *obj);
/** @} */

/** @name Scan entry
 *  An entry whose SSID is longer than RAVIX_MAX_SSID_LEN cannot be copied (-22, `dest` empty).
 *  @{ */
RAVIX_API ravix_scan_entry_t *ravix_types_scan_entry_create(void);
RAVIX_API ravix_scan_entry_t *ravix_types_scan_entry_clone(const ravix_scan_entry_t *old_obj);
RAVIX_API int ravix_types_scan_entry_copy(const ravix_scan_entry_t *src, ravix_scan_entry_t *dest);
RAVIX_API void ravix_types_scan_entry_clear(ravix_scan_entry_t *obj);
RAVIX_API void ravix_types_scan_entry_free(ravix_scan_entry_t *obj);
/** @} */

/** @name Scan table
 *  @{ */
RAVIX_API int ravix_types_scan_table_init(ravix_scan_table_t *table, unsigned count);
RAVIX_API ravix_scan_table_t *ravix_types_scan_table_create(unsigned count);
RAVIX_API ravix_scan_table_t *ravix_types_scan_table_clone(const ravix_scan_table_t *old_obj);
RAVIX_API int ravix_types_scan_table_copy(const ravix_scan_table_t *src, ravix_scan_table_t *dest);
RAVIX_API void ravix_types_scan_table_clear(ravix_scan_table_t *table);
RAVIX_API void ravix_types_scan_table_free(ravix_scan_table_t *table);
RAVIX_API int ravix_types_scan_table_add_entry(ravix_scan_table_t *table, const ravix_scan_entry_t *entry);
/** @} */

/** @name Scan results
 *  @{ */
RAVIX_API ravix_scan_results_t *ravix_types_scan_results_create(void);
RAVIX_API ravix_scan_results_t *ravix_types_scan_results_clone(const ravix_scan_results_t *old_obj);
RAVIX_API int ravix_types_scan_results_copy(const ravix_scan_results_t *src, ravix_scan_results_t *dest);
RAVIX_API void ravix_types_scan_results_clear(ravix_scan_results_t *obj);
RAVIX_API void ravix_types_scan_results_free(ravix_scan_results_t *obj);
/** @} */

/** @name Noise floor entry
 *  @{ */
RAVIX_API ravix_noisefloor_entry_t *ravix_types_noisefloor_entry_create(void);
RAVIX_API ravix_noisefloor_entry_t *ravix_types_noisefloor_entry_clone(const ravix_noisefloor_entry_t *old_obj);
RAVIX_API int ravix_types_noisefloor_entry_copy(const ravix_noisefloor_entry_t *src, ravix_noisefloor_entry_t *dest);
RAVIX_API void ravix_types_noisefloor_entry_clear(ravix_noisefloor_entry_t *obj);
RAVIX_API void ravix_types_noisefloor_entry_free(ravix_noisefloor_entry_t *obj);
/** @} */

/** @name Noise floor table
 *  @{ */
RAVIX_API int ravix_types_noisefloor_table_init(ravix_noisefloor_table_t *table, unsigned count);
RAVIX_API ravix_noisefloor_table_t *ravix_types_noisefloor_table_create(unsigned count);
RAVIX_API ravix_noisefloor_table_t *ravix_types_noisefloor_table_clone(const ravix_noisefloor_table_t *old_obj);
RAVIX_API int ravix_types_noisefloor_table_copy(const ravix_noisefloor_table_t *src, ravix_noisefloor_table_t *dest);
RAVIX_API void ravix_types_noisefloor_table_clear(ravix_noisefloor_table_t *table);
RAVIX_API void ravix_types_noisefloor_table_free(ravix_noisefloor_table_t *table);
RAVIX_API int ravix_types_noisefloor_table_add_entry(ravix_noisefloor_table_t *table,
                                                     const ravix_noisefloor_entry_t *entry);
/** @} */

/** @name Channel entry
 *  @{ */
RAVIX_API ravix_channel_entry_t *ravix_types_channel_entry_create(void);
RAVIX_API ravix_channel_entry_t *ravix_types_channel_entry_clone(const ravix_channel_entry_t *old_obj);
RAVIX_API int ravix_types_channel_entry_copy(const ravix_channel_entry_t *src, ravix_channel_entry_t *dest);
RAVIX_API void ravix_types_channel_entry_clear(ravix_channel_entry_t *obj);
RAVIX_API void ravix_types_channel_entry_free(ravix_channel_entry_t *obj);
/** @} */

/** @name Channel list
 *  @{ */
RAVIX_API int ravix_types_channel_list_init(ravix_channel_list_t *table, unsigned count);
RAVIX_API ravix_channel_list_t *ravix_types_channel_list_create(unsigned count);
RAVIX_API ravix_channel_list_t *ravix_types_channel_list_clone(const ravix_channel_list_t *old_obj);
RAVIX_API int ravix_types_channel_list_copy(const ravix_channel_list_t *src, ravix_channel_list_t *dest);
RAVIX_API void ravix_types_channel_list_clear(ravix_channel_list_t *table);
RAVIX_API void ravix_types_channel_list_free(ravix_channel_list_t *table);
RAVIX_API int ravix_types_channel_list_add_entry(ravix_channel_list_t *table, const ravix_channel_entry_t *entry);
/** @} */

/** @name Radio load entry
 *  @{ */
RAVIX_API ravix_radio_load_entry_t *ravix_types_radio_load_entry_create(void);
RAVIX_API ravix_radio_load_entry_t *ravix_types_radio_load_entry_clone(const ravix_radio_load_entry_t *old_obj);
RAVIX_API int ravix_types_radio_load_entry_copy(const ravix_radio_load_entry_t *src, ravix_radio_load_entry_t *dest);
RAVIX_API void ravix_types_radio_load_entry_clear(ravix_radio_load_entry_t *obj);
RAVIX_API void ravix_types_radio_load_entry_free(ravix_radio_load_entry_t *obj);
/** @} */

/** @name Radio load table
 *  @{ */
RAVIX_API int ravix_types_radio_load_table_init(ravix_radio_load_table_t *table, unsigned count);
RAVIX_API ravix_radio_load_table_t *ravix_types_radio_load_table_create(unsigned count);
RAVIX_API ravix_radio_load_table_t *ravix_types_radio_load_table_clone(const ravix_radio_load_table_t *old_obj);
RAVIX_API int ravix_types_radio_load_table_copy(const ravix_radio_load_table_t *src, ravix_radio_load_table_t *dest);
RAVIX_API void ravix_types_radio_load_table_clear(ravix_radio_load_table_t *table);
RAVIX_API void ravix_types_radio_load_table_free(ravix_radio_load_table_t *table);
RAVIX_API int ravix_types_radio_load_table_add_entry(ravix_radio_load_table_t *table,
                                                     const ravix_radio_load_entry_t *entry);
/** @} */

/** @name Radio airtime entry
 *  @{ */
RAVIX_API ravix_radio_airtime_entry_t *ravix_types_radio_airtime_entry_create(void);

RAVIX_API ravix_radio_airtime_entry_t *
ravix_types_radio_airtime_entry_clone(const ravix_radio_airtime_entry_t *old_obj);
RAVIX_API int ravix_types_radio_airtime_entry_copy(const ravix_radio_airtime_entry_t *src,
                                                   ravix_radio_airtime_entry_t *dest);
RAVIX_API void ravix_types_radio_airtime_entry_clear(ravix_radio_airtime_entry_t *obj);
RAVIX_API void ravix_types_radio_airtime_entry_free(ravix_radio_airtime_entry_t *obj);
/** @} */

/** @name Radio airtime table
 *  `_init` and `_add_entry` leave `airtime_base` as it is; `_clear` and `_copy` include it.
 *  @{ */
RAVIX_API int ravix_types_radio_airtime_table_init(ravix_radio_airtime_table_t *table, unsigned count);
RAVIX_API ravix_radio_airtime_table_t *ravix_types_radio_airtime_table_create(unsigned count);

RAVIX_API ravix_radio_airtime_table_t *
ravix_types_radio_airtime_table_clone(const ravix_radio_airtime_table_t *old_obj);
RAVIX_API int ravix_types_radio_airtime_table_copy(const ravix_radio_airtime_table_t *src,
                                                   ravix_radio_airtime_table_t *dest);
RAVIX_API void ravix_types_radio_airtime_table_clear(ravix_radio_airtime_table_t *table);
RAVIX_API void ravix_types_radio_airtime_table_free(ravix_radio_airtime_table_t *table);
RAVIX_API int ravix_types_radio_airtime_table_add_entry(ravix_radio_airtime_table_t *table,
                                                        const ravix_radio_airtime_entry_t *entry);
/** @} */

#ifdef __cplusplus
}
#endif

/** @} */

#endif
