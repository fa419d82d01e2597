/**
 * @file
 * Events that the daemon sends to its listeners.
 *
 * Life-cycle, ownership, errors and threads: see ravix_types_common.h. Events have no `_compare`. Identifiers are those
 * of the configuration; frequencies are in kHz. Fields are empty when zero unless they say otherwise.
 */
#ifndef RAVIX_TYPES_EVENT_H
#define RAVIX_TYPES_EVENT_H

#include "ravix_types_common.h"
#include "ravix_types_enums.h"
#include "ravix_types_radio_env.h"

/** @defgroup event Events
 *  What happened to radios, roles and clients.
 *  @{ */

#ifdef __cplusplus
extern "C" {
#endif

/** Something worth an entry in the device's event log. Owns nothing. */
typedef struct ravix_event_log_entry {
  uint32_t event_id; /**< What happened, as the daemon numbers it. */
  uint32_t max_rate; /**< Highest rate of the client in kbit/s. */
  ravix_mac_t mac;   /**< Address of the client. */
  uint8_t band;      /**< `RAVIX_RADIO_BAND_...`. */
  bool is_mlo;       /**< The client is a multi-link client. */
  uint32_t details;  /**< Depends on `event_id`. */
} ravix_event_log_entry_t;

/** A scan has finished. */
typedef struct ravix_event_scan_results {
  int32_t radio_id;                       /**< Radio that scanned. */
  ravix_scan_parameter_t *scan_parameter; /**< Owned restrictions of the scan; null when there were none. */
  ravix_scan_results_t *scan_results;     /**< Owned results; null when there are none. */
} ravix_event_scan_results_t;

/** Energy saving of a radio was switched. Owns nothing. */
typedef struct ravix_event_green_ap {
  int32_t radio_id; /**< The radio. */
  bool enabled;     /**< Energy saving is on. */
} ravix_event_green_ap_t;

/** A radio has changed its channel. Owns nothing. */
typedef struct ravix_event_channel_change {
  int32_t radio_id;                  /**< The radio. */
  ravix_channel_info_t prev_channel; /**< Channel up to now. */
  ravix_channel_info_t new_channel;  /**< Channel from now on. */
  uint32_t reason;                   /**< `RAVIX_CHANNEL_CHANGE_REASON_...`. */
  int64_t change_time;               /**< Time of the change in seconds. */
} ravix_event_channel_change_t;

/** Interference has begun or ended. Owns nothing. */
typedef struct ravix_event_interference {
  int32_t radio_id;      /**< The radio. */
  uint32_t primary_freq; /**< Primary frequency that is disturbed, in kHz. */
  bool active;           /**< The interference is present. */
  bool channel_change;   /**< It led to a channel change. */
} ravix_event_interference_t;

/** An access point waits for a channel availability check, or has waited. Owns nothing. The two frequencies print in
 *  MHz like any other, whatever their names end in. */
typedef struct ravix_event_radar_wait {
  int32_t role_id;            /**< Role of the access point. */
  bool started;               /**< The wait begins; otherwise it ends. */
  uint32_t radar_time;        /**< Length of the wait in seconds. */
  uint32_t first_primary_khz; /**< Lowest 20 MHz channel of the check, in kHz. */
  uint32_t last_primary_khz;  /**< Highest 20 MHz channel of the check, in kHz. */
} ravix_event_radar_wait_t;

/** A radar was detected. Owns nothing. */
typedef struct ravix_event_radar_detected {
  int32_t radio_id;         /**< The radio. */
  int64_t expire_ts_uptime; /**< End of the channels' block, in seconds of system uptime. */
  uint32_t freq_start;      /**< Lower end of the blocked range in kHz. */
  uint32_t freq_end;        /**< Upper end of the blocked range in kHz. */
  uint32_t radar_type;      /**< `RAVIX_RADAR_TYPE_...`. */
  int16_t level_dbm;        /**< Level of the signal in dBm; empty: RAVIX_POWER_INVALID, not measured. */
  uint32_t flags;           /**< Flags of the daemon; they have no names here. */
} ravix_event_radar_detected_t;

/** A radio works on a temporary channel while a pre-CAC runs. Owns nothing. */
typedef struct ravix_event_radar_precac {
  int32_t radio_id;      /**< The radio. */
  uint32_t primary_freq; /**< Primary frequency in kHz. */
  uint32_t temp_freq;    /**< Frequency of the temporary channel in kHz. */
} ravix_event_radar_precac_t;

/** The state of a client has changed. Owns nothing. */
typedef struct ravix_event_client_state_update {
  int32_t role_id;    /**< Role that the client belongs to. */
  ravix_mac_t mac;    /**< Address of the client. */
  uint32_t old_state; /**< `RAVIX_STA_STATE_...` up to now. */
  uint32_t new_state; /**< `RAVIX_STA_STATE_...` from now on. */
} ravix_event_client_state_update_t;

/** A client has become active or inactive. Owns nothing. */
typedef struct ravix_event_client_activity_update {
  int32_t role_id; /**< Role that the client belongs to. */
  ravix_mac_t mac; /**< Address of the client. */
  bool active;     /**< The client is active. */
} ravix_event_client_activity_update_t;

/** New signal values of a client. Owns nothing. */
typedef struct ravix_event_client_rssi_update {
  int32_t role_id; /**< Role that the client belongs to. */
  ravix_mac_t mac; /**< Address of the client. */
  uint8_t rsni;    /**< Signal to noise, RSNI code (IEEE 802.11-2020, 9.4.2.40); empty: 255, not available. */
  uint8_t rcpi;    /**< Received power, RCPI code (IEEE 802.11-2020, 9.4.2.37); empty: 255, not available. */
  uint8_t anpi;    /**< Noise power, ANPI code; empty: 255, not available. */
} ravix_event_client_rssi_update_t;

/** @name Log entry
 *  @{ */
RAVIX_API ravix_event_log_entry_t *ravix_types_event_log_entry_create(void);
RAVIX_API ravix_event_log_entry_t *ravix_types_event_log_entry_clone(const ravix_event_log_entry_t *old_obj);
RAVIX_API int ravix_types_event_log_entry_copy(const ravix_event_log_entry_t *src, ravix_event_log_entry_t *dest);
RAVIX_API void ravix_types_event_log_entry_clear(ravix_event_log_entry_t *obj);
RAVIX_API void ravix_types_event_log_entry_free(ravix_event_log_entry_t *obj);
/** @} */

/** @name Scan finished
 *  @{ */
RAVIX_API ravix_event_scan_results_t *ravix_types_event_scan_results_create(void);
RAVIX_API ravix_event_scan_results_t *ravix_types_event_scan_results_clone(const ravix_event_scan_results_t *old_obj);
RAVIX_API int ravix_types_event_scan_results_copy(const ravix_event_scan_results_t *src,
                                                  ravix_event_scan_results_t *dest);
RAVIX_API void ravix_types_event_scan_results_clear(ravix_event_scan_results_t *obj);
RAVIX_API void ravix_types_event_scan_results_free(ravix_event_scan_results_t *obj);
/** @} */

/** @name Energy saving
 *  @{ */
RAVIX_API ravix_event_green_ap_t *ravix_types_event_green_ap_create(void);
RAVIX_API ravix_event_green_ap_t *ravix_types_event_green_ap_clone(const ravix_event_green_ap_t *old_obj);
RAVIX_API int ravix_types_event_green_ap_copy(const ravix_event_green_ap_t *src, ravix_event_green_ap_t *dest);
RAVIX_API void ravix_types_event_green_ap_clear(ravix_event_green_ap_t *obj);
RAVIX_API void ravix_types_event_green_ap_free(ravix_event_green_ap_t *obj);
/** @} */

/** @name Channel change
 *  @{ */
RAVIX_API ravix_event_channel_change_t *ravix_types_event_channel_change_create(void);
RAVIX_API ravix_event_channel_change_t *
ravix_types_event_channel_change_clone(const ravix_event_channel_change_t *old_obj);
RAVIX_API int ravix_types_event_channel_change_copy(const ravix_event_channel_change_t *src,
                                                    ravix_event_channel_change_t *dest);
RAVIX_API void ravix_types_event_channel_change_clear(ravix_event_channel_change_t *obj);
RAVIX_API void ravix_types_event_channel_change_free(ravix_event_channel_change_t *obj);
/** @} */

/** @name Interference
 *  @{ */
RAVIX_API ravix_event_interference_t *ravix_types_event_interference_create(void);
RAVIX_API ravix_event_interference_t *ravix_types_event_interference_clone(const ravix_event_interference_t *old_obj);
RAVIX_API int ravix_types_event_interference_copy(const ravix_event_interference_t *src,
                                                  ravix_event_interference_t *dest);
RAVIX_API void ravix_types_event_interference_clear(ravix_event_interference_t *obj);
RAVIX_API void ravix_types_event_interference_free(ravix_event_interference_t *obj);
/** @} */

/** @name Wait for a radar check
 *  @{ */
RAVIX_API ravix_event_radar_wait_t *ravix_types_event_radar_wait_create(void);
RAVIX_API ravix_event_radar_wait_t *ravix_types_event_radar_wait_clone(const ravix_event_radar_wait_t *old_obj);
RAVIX_API int ravix_types_event_radar_wait_copy(const ravix_event_radar_wait_t *src, ravix_event_radar_wait_t *dest);
RAVIX_API void ravix_types_event_radar_wait_clear(ravix_event_radar_wait_t *obj);
RAVIX_API void ravix_types_event_radar_wait_free(ravix_event_radar_wait_t *obj);
/** @} */

/** @name Radar detected
 *  @{ */
RAVIX_API ravix_event_radar_detected_t *ravix_types_event_radar_detected_create(void);
RAVIX_API ravix_event_radar_detected_t *
ravix_types_event_radar_detected_clone(const ravix_event_radar_detected_t *old_obj);
RAVIX_API int ravix_types_event_radar_detected_copy(const ravix_event_radar_detected_t *src,
                                                    ravix_event_radar_detected_t *dest);
RAVIX_API void ravix_types_event_radar_detected_clear(ravix_event_radar_detected_t *obj);
RAVIX_API void ravix_types_event_radar_detected_free(ravix_event_radar_detected_t *obj);
/** @} */

/** @name Temporary channel
 *  @{ */
RAVIX_API ravix_event_radar_precac_t *ravix_types_event_radar_precac_create(void);
RAVIX_API ravix_event_radar_precac_t *ravix_types_event_radar_precac_clone(const ravix_event_radar_precac_t *old_obj);
RAVIX_API int ravix_types_event_radar_precac_copy(const ravix_event_radar_precac_t *src,
                                                  ravix_event_radar_precac_t *dest);
RAVIX_API void ravix_types_event_radar_precac_clear(ravix_event_radar_precac_t *obj);
RAVIX_API void ravix_types_event_radar_precac_free(ravix_event_radar_precac_t *obj);
/** @} */

/** @name Client state
 *  @{ */
RAVIX_API ravix_event_client_state_update_t *ravix_types_event_client_state_update_create(void);
RAVIX_API ravix_event_client_state_update_t *
ravix_types_event_client_state_update_clone(const ravix_event_client_state_update_t *old_obj);
RAVIX_API int ravix_types_event_client_state_update_copy(const ravix_event_client_state_update_t *src,
                                                         ravix_event_client_state_update_t *dest);
RAVIX_API void ravix_types_event_client_state_update_clear(ravix_event_client_state_update_t *obj);
RAVIX_API void ravix_types_event_client_state_update_free(ravix_event_client_state_update_t *obj);
/** @} */

/** @name Client activity
 *  @{ */
RAVIX_API ravix_event_client_activity_update_t *ravix_types_event_client_activity_update_create(void);
RAVIX_API ravix_event_client_activity_update_t *
ravix_types_event_client_activity_update_clone(const ravix_event_client_activity_update_t *old_obj);
RAVIX_API int ravix_types_event_client_activity_update_copy(const ravix_event_client_activity_update_t *src,
                                                            ravix_event_client_activity_update_t *dest);
RAVIX_API void ravix_types_event_client_activity_update_clear(ravix_event_client_activity_update_t *obj);
RAVIX_API void ravix_types_event_client_activity_update_free(ravix_event_client_activity_update_t *obj);
/** @} */

/** @name Client signal
 *  @{ */
RAVIX_API ravix_event_client_rssi_update_t *ravix_types_event_client_rssi_update_create(void);
RAVIX_API ravix_event_client_rssi_update_t *
ravix_types_event_client_rssi_update_clone(const ravix_event_client_rssi_update_t *old_obj);
RAVIX_API int ravix_types_event_client_rssi_update_copy(const ravix_event_client_rssi_update_t *src,
                                                        ravix_event_client_rssi_update_t *dest);
RAVIX_API void ravix_types_event_client_rssi_update_clear(ravix_event_client_rssi_update_t *obj);
RAVIX_API void ravix_types_event_client_rssi_update_free(ravix_event_client_rssi_update_t *obj);
/** @} */

#ifdef __cplusplus
}
#endif

/** @} */

#endif
