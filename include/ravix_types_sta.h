/**
 * @file
 * Stations: the clients of the device's own access points, what other mesh devices see, and past associations.
 *
 * Life-cycle, tables, ownership, errors and threads: see ravix_types_common.h. These records have no `_compare`, their
 * tables no `_contains_entry`.
 *
 * Signal levels are in dBm (empty: RAVIX_POWER_INVALID, not measured), qualities in percent (empty:
 * RAVIX_MEASURE_INVALID, not known), rates in kbit/s. A multi-link identifier of RAVIX_INDEX_INVALID, its empty state,
 * says that the station is no multi-link station.
 */
#ifndef RAVIX_TYPES_STA_H
#define RAVIX_TYPES_STA_H

#include "ravix_types_common.h"
#include "ravix_types_enums.h"

/** @defgroup sta Stations
 *  Stations around the device, and the connections of the past.
 *  @{ */

#ifdef __cplusplus
extern "C" {
#endif

/** A client of one of the device's own access points. Owns nothing. */
typedef struct ravix_station_entry {
  uint32_t state;                    /**< `RAVIX_STA_STATE_...`. */
  uint32_t mode;                     /**< Set of `RAVIX_WLAN_MODE_...`. */
  uint8_t security;                  /**< `RAVIX_SECURITY_...`. */
  ravix_mac_t hwaddr;                /**< Address of the station, of this link if it is a multi-link station. */
  int16_t signal_rssi;               /**< Signal level in dBm; empty: RAVIX_POWER_INVALID. */
  uint8_t signal_quality;            /**< Signal quality in percent; empty: RAVIX_MEASURE_INVALID. */
  ravix_channel_info_t channel_info; /**< Channel of the connection. */
  uint32_t rate_tx_max;              /**< Highest possible rate to the station in kbit/s. */
  uint32_t rate_rx_max;              /**< Highest possible rate from the station in kbit/s. */
  uint32_t rate_tx_current;          /**< Present rate to the station in kbit/s. */
  uint32_t rate_rx_current;          /**< Present rate from the station in kbit/s. */
  uint8_t streams_tx;                /**< Spatial streams to the station. */
  uint8_t streams_rx;                /**< Spatial streams from the station. */
  uint32_t caps_set;                 /**< Set of `RAVIX_CAPABILITY_...`. */
  ravix_mac_t mld_hwaddr;            /**< Address of the station's multi-link device. */
  uint32_t mlo_mode;                 /**< Set of `RAVIX_MLO_MODE_...`. */
  int32_t mlo_link_id;               /**< Identifier of the link; empty: RAVIX_INDEX_INVALID, no multi-link station. */
  uint8_t mlo_link_t2lm_ul; /**< TID-to-link mapping, uplink: bit i set, traffic identifier i uses this link. */
  uint8_t mlo_link_t2lm_dl; /**< TID-to-link mapping, downlink, as `mlo_link_t2lm_ul`. */
} ravix_station_entry_t;

/** Table of the device's own clients. */
typedef struct ravix_station_table {
  uint32_t count;              /**< Number of elements. */
  ravix_station_entry_t *data; /**< Owned array; null when empty. */
} ravix_station_table_t;

/** A client seen through another mesh device. */
typedef struct ravix_remote_client_entry {
  char *parent_nexus_device_address; /**< Owned address of the reporting mesh device; may be null. */
  ravix_mac_t bssid;                 /**< BSSID of the access point that it is associated with. */
  ravix_mac_t hwaddr;                /**< Address of the client. */
  ravix_mac_t mld_hwaddr;            /**< Address of the client's multi-link device. */
  int32_t mlo_link_id;               /**< Identifier of the link; empty: RAVIX_INDEX_INVALID, no multi-link station. */
  bool mlo_link_active_state;        /**< The link is in use. */
  uint32_t mlo_mode;                 /**< Set of `RAVIX_MLO_MODE_...`. */
  uint32_t state;                    /**< `RAVIX_STA_STATE_...`. */
  uint16_t channel_width;            /**< Width code, `RAVIX_CHANNEL_WIDTH_...`. */
  uint32_t center_frequency;         /**< Centre of the whole channel in kHz; 0: not known. */
  int16_t rssi;                      /**< Signal level in dBm; empty: RAVIX_POWER_INVALID. */
  uint8_t quality;                   /**< Signal quality in percent; empty: RAVIX_MEASURE_INVALID. */
  uint32_t wlan_mode;                /**< Set of `RAVIX_WLAN_MODE_...`. */
  uint8_t security;                  /**< `RAVIX_SECURITY_...`. */
  uint8_t station_type;              /**< `RAVIX_STATION_TYPE_...`. */
  uint32_t caps_set;                 /**< Set of `RAVIX_CAPABILITY_...`. */
  uint32_t zel_caps_set;             /**< Set of the maker's own capabilities; its bits have no names here. */
  uint32_t rate_active_tx;           /**< Present rate to the client in kbit/s. */
  uint32_t rate_active_rx;           /**< Present rate from the client in kbit/s. */
  uint32_t rate_max_tx;              /**< Highest possible rate to the client in kbit/s. */
  uint32_t rate_max_rx;              /**< Highest possible rate from the client in kbit/s. */
  uint32_t rate_average_tx;          /**< Average rate to the client in kbit/s. */
  uint32_t rate_average_rx;          /**< Average rate from the client in kbit/s. */
  uint8_t streams_tx;                /**< Spatial streams to the client. */
  uint8_t streams_rx;                /**< Spatial streams from the client. */
} ravix_remote_client_entry_t;

/** Table of clients seen through other mesh devices. */
typedef struct ravix_remote_client_table {
  uint32_t count;                    /**< Number of elements. */
  ravix_remote_client_entry_t *data; /**< Owned array; null when empty. */
} ravix_remote_client_table_t;

/** An access point of another mesh device. */
typedef struct ravix_remote_ap_entry {
  char *nexus_device_address;        /**< Owned address of the mesh device; may be null. */
  uint8_t opmode;                    /**< `RAVIX_ROLE_OPMODE_...`. */
  ravix_mac_t hwaddr;                /**< BSSID. */
  int32_t mlo_link_id;               /**< Identifier of the link; empty: RAVIX_INDEX_INVALID, no multi-link device. */
  uint8_t security;                  /**< `RAVIX_SECURITY_...`. */
  uint32_t wlan_mode;                /**< Set of `RAVIX_WLAN_MODE_...`. */
  uint32_t caps_set;                 /**< Set of `RAVIX_CAPABILITY_...`. */
  uint32_t zel_caps_set;             /**< Set of the maker's own capabilities; its bits have no names here. */
  uint32_t rate_max_rx;              /**< Highest receive rate in kbit/s. */
  uint32_t rate_max_tx;              /**< Highest transmit rate in kbit/s. */
  uint8_t streams_rx;                /**< Spatial streams, receiving. */
  uint8_t streams_tx;                /**< Spatial streams, transmitting. */
  ravix_channel_info_t channel_info; /**< Channel of the access point. */
} ravix_remote_ap_entry_t;

/** Table of access points of other mesh devices. */
typedef struct ravix_remote_ap_table {
  uint32_t count;                /**< Number of elements. */
  ravix_remote_ap_entry_t *data; /**< Owned array; null when empty. */
} ravix_remote_ap_table_t;

/** One past association of a client. Owns nothing. */
typedef struct ravix_station_history_entry {
  ravix_mac_t mac;                       /**< Address of the client. */
  uint8_t quality;                       /**< Signal quality in percent; empty: RAVIX_MEASURE_INVALID. */
  uint32_t wlan_mode;                    /**< Set of `RAVIX_WLAN_MODE_...`. */
  int32_t role_handle;                   /**< Identifier of the role that it was connected to. */
  int64_t time_connect;                  /**< Steady-clock time in ms; empty: RAVIX_TIMESTAMP_INVALID, never. */
  int64_t time_disconnect;               /**< Steady-clock time in ms; empty: RAVIX_TIMESTAMP_INVALID, never. */
  uint32_t status_connect;               /**< Status code of the connection. */
  uint8_t initiator_connect;             /**< Who started the connection, as the daemon numbers the parties. */
  uint16_t ieee802_11_reason_connect;    /**< Reason code (IEEE 802.11-2020, 9.4.1.7) of the connection. */
  uint32_t status_disconnect;            /**< Status code of the disconnection. */
  uint8_t initiator_disconnect;          /**< Who ended the connection, as the daemon numbers the parties. */
  uint16_t ieee802_11_reason_disconnect; /**< Reason code (IEEE 802.11-2020, 9.4.1.7) of the disconnection. */
} ravix_station_history_entry_t;

/** Table of past associations. */
typedef struct ravix_station_history_table {
  uint32_t count;                      /**< Number of elements. */
  ravix_station_history_entry_t *data; /**< Owned array; null when empty. */
} ravix_station_history_table_t;

/**
 * A history of bounded length: a table of as many entries as the history may hold, and where its owner stands in it.
 * The library zeroes the two positions when it creates a history and does not look at them afterwards.
 */
typedef struct ravix_station_history {
  uint32_t used;                       /**< Entries of `table` that the owner has filled. */
  uint32_t next;                       /**< Index in `table` that the owner fills next. */
  ravix_station_history_table_t table; /**< The entries. */
} ravix_station_history_t;

/** @name Station entry
 *  @{ */
RAVIX_API ravix_station_entry_t *ravix_types_station_entry_create(void);
RAVIX_API ravix_station_entry_t *ravix_types_station_entry_clone(const ravix_station_entry_t *old_obj);
RAVIX_API int ravix_types_station_entry_copy(const ravix_station_entry_t *src, ravix_station_entry_t *dest);
RAVIX_API void ravix_types_station_entry_clear(ravix_station_entry_t *obj);
RAVIX_API void ravix_types_station_entry_free(ravix_station_entry_t *obj);
/** @} */

/** @name Station table
 *  @{ */
RAVIX_API int ravix_types_station_table_init(ravix_station_table_t *table, unsigned count);
RAVIX_API ravix_station_table_t *ravix_types_station_table_create(unsigned count);
RAVIX_API ravix_station_table_t *ravix_types_station_table_clone(const ravix_station_table_t *old_obj);
RAVIX_API int ravix_types_station_table_copy(const ravix_station_table_t *src, ravix_station_table_t *dest);
RAVIX_API void ravix_types_station_table_clear(ravix_station_table_t *table);
RAVIX_API void ravix_types_station_table_free(ravix_station_table_t *table);
RAVIX_API int ravix_types_station_table_add_entry(ravix_station_table_t *table, const ravix_station_entry_t *entry);
/** @} */

/** @name Remote client entry
 *  A copy for whose address text no memory is left writes "No memory available!", clears `dest` and returns 0: a table
 *  of many clients is worth having without the one. So a clone may be a cleared record, and so may entries of a copied
 *  table.
 *  @{ */
RAVIX_API ravix_remote_client_entry_t *ravix_types_remote_client_entry_create(void);
RAVIX_API ravix_remote_client_entry_t *
ravix_types_remote_client_entry_clone(const ravix_remote_client_entry_t *old_obj);
RAVIX_API int ravix_types_remote_client_entry_copy(const ravix_remote_client_entry_t *src,
                                                   ravix_remote_client_entry_t *dest);
RAVIX_API void ravix_types_remote_client_entry_clear(ravix_remote_client_entry_t *obj);
RAVIX_API void ravix_types_remote_client_entry_free(ravix_remote_client_entry_t *obj);
/** @} */

/** @name Remote client table
 *  @{ */
RAVIX_API int ravix_types_remote_client_table_init(ravix_remote_client_table_t *table, unsigned count);
RAVIX_API ravix_remote_client_table_t *ravix_types_remote_client_table_create(unsigned count);
RAVIX_API ravix_remote_client_table_t *
ravix_types_remote_client_table_clone(const ravix_remote_client_table_t *old_obj);
RAVIX_API int ravix_types_remote_client_table_copy(const ravix_remote_client_table_t *src,
                                                   ravix_remote_client_table_t *dest);
RAVIX_API void ravix_types_remote_client_table_clear(ravix_remote_client_table_t *table);
RAVIX_API void ravix_types_remote_client_table_free(ravix_remote_client_table_t *table);
RAVIX_API int ravix_types_remote_client_table_add_entry(ravix_remote_client_table_t *table,
                                                        const ravix_remote_client_entry_t *entry);
/** @} */

/** @name Remote access point entry
 *  A copy for whose address text no memory is left goes as that of a remote client entry: success, and a cleared
 *  record.
 *  @{ */
RAVIX_API ravix_remote_ap_entry_t *ravix_types_remote_ap_entry_create(void);
RAVIX_API ravix_remote_ap_entry_t *ravix_types_remote_ap_entry_clone(const ravix_remote_ap_entry_t *old_obj);
RAVIX_API int ravix_types_remote_ap_entry_copy(const ravix_remote_ap_entry_t *src, ravix_remote_ap_entry_t *dest);
RAVIX_API void ravix_types_remote_ap_entry_clear(ravix_remote_ap_entry_t *obj);
RAVIX_API void ravix_types_remote_ap_entry_free(ravix_remote_ap_entry_t *obj);
/** @} */

/** @name Remote access point table
 *  @{ */
RAVIX_API int ravix_types_remote_ap_table_init(ravix_remote_ap_table_t *table, unsigned count);
RAVIX_API ravix_remote_ap_table_t *ravix_types_remote_ap_table_create(unsigned count);
RAVIX_API ravix_remote_ap_table_t *ravix_types_remote_ap_table_clone(const ravix_remote_ap_table_t *old_obj);
RAVIX_API int ravix_types_remote_ap_table_copy(const ravix_remote_ap_table_t *src, ravix_remote_ap_table_t *dest);
RAVIX_API void ravix_types_remote_ap_table_clear(ravix_remote_ap_table_t *table);
RAVIX_API void ravix_types_remote_ap_table_free(ravix_remote_ap_table_t *table);
RAVIX_API int ravix_types_remote_ap_table_add_entry(ravix_remote_ap_table_t *table,
                                                    const ravix_remote_ap_entry_t *entry);
/** @} */

/** @name Station history entry
 *  @{ */
RAVIX_API ravix_station_history_entry_t *ravix_types_station_history_entry_create(void);
RAVIX_API ravix_station_history_entry_t *
ravix_types_station_history_entry_clone(const ravix_station_history_entry_t *old_obj);
RAVIX_API int ravix_types_station_history_entry_copy(const ravix_station_history_entry_t *src,
                                                     ravix_station_history_entry_t *dest);
RAVIX_API void ravix_types_station_history_entry_clear(ravix_station_history_entry_t *obj);
RAVIX_API void ravix_types_station_history_entry_free(ravix_station_history_entry_t *obj);
/** @} */

/** @name Station history table
 *  @{ */
RAVIX_API int ravix_types_station_history_table_init(ravix_station_history_table_t *table, unsigned count);
RAVIX_API ravix_station_history_table_t *ravix_types_station_history_table_create(unsigned count);
RAVIX_API ravix_station_history_table_t *
ravix_types_station_history_table_clone(const ravix_station_history_table_t *old_obj);
RAVIX_API int ravix_types_station_history_table_copy(const ravix_station_history_table_t *src,
                                                     ravix_station_history_table_t *dest);
RAVIX_API void ravix_types_station_history_table_clear(ravix_station_history_table_t *table);
RAVIX_API void ravix_types_station_history_table_free(ravix_station_history_table_t *table);
RAVIX_API int ravix_types_station_history_table_add_entry(ravix_station_history_table_t *table,
                                                          const ravix_station_history_entry_t *entry);
/** @} */

/** @name Station history
 *  @{ */

/**
 * New history whose table has empty entries, which count.
 * @param capacity their number
 * @return the history, to be released with ravix_types_station_history_free(); null, after a log line, when memory is
 * exhausted
 */
RAVIX_API ravix_station_history_t *ravix_types_station_history_create(unsigned capacity);
/**
 * Releases a history and its entries.
 * @param history may be null
 */
RAVIX_API void ravix_types_station_history_free(ravix_station_history_t *history);
/** @} */

#ifdef __cplusplus
}
#endif

/** @} */

#endif
