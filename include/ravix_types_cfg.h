/**
 * @file
 * Configuration: settings of the device, its hardware and radios, the roles on the radios and their security.
 *
 * Life-cycle, ownership, errors and threads: see ravix_types_common.h. The operations of these records are named
 * `ravix_cfg_<name>_<operation>`, and all of them have `_compare`. Records refer to each other by identifier, never by
 * pointer. Identifiers are empty at 0 (RAVIX_ID_INVALID) and may hold the reserved values `RAVIX_ID_...`.
 *
 * What is said here of a field's empty value holds after `_create` and `_clear`; where nothing is said it is zero, or
 * null, or an empty table.
 */
#ifndef RAVIX_TYPES_CFG_H
#define RAVIX_TYPES_CFG_H

#include "ravix_types_common.h"

/** @defgroup cfg Configuration
 *  The tree of settings that the owner of the configuration hands to the WLAN daemon.
 *  @{ */

/** Most characters of a network interface's name. */
#define RAVIX_MAX_IF_NAME_LEN 16
/** Most characters of a RADIUS shared secret. */
#define RAVIX_MAX_RADIUS_SECRET_LEN 128
/** Number of clients that stands for "no limit". */
#define RAVIX_MAX_CLIENTS_UNLIMITED UINT32_MAX
/** Slots for key management suites in an extended security element. */
#define RAVIX_SECURITY_EXTENDED_KEY_MGMTS 3
/** Slots for cipher suites of one use in an extended security element. */
#define RAVIX_SECURITY_EXTENDED_CIPHERS 2

#ifdef __cplusplus
extern "C" {
#endif

/** @name Device-wide settings
 *  @{ */

/** Settings for looking for faults. */
typedef struct ravix_cfg_debug_settings {
  uint32_t trace_state;  /**< Switch or level of the trace. */
  char *trace_parameter; /**< Argument of the trace: an owned, zero-terminated text, or null. */
} ravix_cfg_debug_settings_t;

/** Steering in a mesh. Owns nothing. */
typedef struct ravix_cfg_meshd_settings {
  bool band_steering;     /**< Band steering. */
  bool backhaul_steering; /**< Backhaul steering. */
} ravix_cfg_meshd_settings_t;

/** Time control of the whole device. Owns nothing. */
typedef struct ravix_cfg_time_control {
  bool forced_off; /**< Forced off. */
} ravix_cfg_time_control_t;

/** How a repeater treats its own access points. Owns nothing. */
typedef struct ravix_cfg_repeating {
  bool overwrite_ap_config; /**< The settings of the network that is repeated replace the access points' own. */
} ravix_cfg_repeating_t;

/** Where access lists come from. */
typedef struct ravix_cfg_access_control_settings {
  bool autofill_enable;              /**< Access lists are filled automatically. */
  ravix_string_table_t ssids_source; /**< SSIDs whose lists are taken over. */
  ravix_string_table_t ssids_target; /**< SSIDs that receive them. */
} ravix_cfg_access_control_settings_t;

/** Settings of the whole device. */
typedef struct ravix_cfg_global_settings {
  bool wlan_enabled;      /**< WLAN is switched on at all. */
  bool auto_settings;     /**< Automatic settings. */
  bool outdoor_mode;      /**< The device works outdoors. */
  bool security_interop;  /**< Security settings favour interoperability. */
  bool use_channel_12_13; /**< Channels 12 and 13 of the 2.4 GHz band may be used. */
  uint32_t event_control; /**< Set of `RAVIX_EVENT_LOG_CONTROL_...`: messages that become log events. */
  uint8_t device_opmode;  /**< Operating mode of the device, `RAVIX_DEVICE_OPMODE_...`. */
  ravix_cfg_debug_settings_t dbg_settings;          /**< Settings for looking for faults. */
  ravix_cfg_meshd_settings_t meshd_settings;        /**< Steering in a mesh. */
  ravix_cfg_time_control_t time_control;            /**< Time control of the device. */
  ravix_cfg_repeating_t repeating;                  /**< Repeating. */
  ravix_cfg_access_control_settings_t acl_settings; /**< Sources of access lists. */
} ravix_cfg_global_settings_t;

/** @} */

/** @name Rules for automatic updates
 *  @{ */

/** What a rule for automatic updates is about. */
enum ravix_cfg_auto_update_rule_type {
  RAVIX_CFG_AUTO_UPDATE_RULE_NONE = 0,        /**< Nothing: the empty rule. */
  RAVIX_CFG_AUTO_UPDATE_RULE_ROLE_OPMODE = 1, /**< Roles of one operating mode. */
  RAVIX_CFG_AUTO_UPDATE_RULE_FEATURE = 2      /**< A set of features. */
};

/** Roles that a rule is about. Owns nothing. */
typedef struct ravix_cfg_auto_update_role_opmode {
  uint8_t role_opmode; /**< Their operating mode, `RAVIX_ROLE_OPMODE_...`. */
} ravix_cfg_auto_update_role_opmode_t;

/** Features that a rule is about. Owns nothing. */
typedef struct ravix_cfg_auto_update_feature {
  uint64_t feature; /**< Set of `RAVIX_FEATURE_...`; compared as one number. */
} ravix_cfg_auto_update_feature_t;

/** Settings of one kind may be updated automatically. Owns nothing. */
typedef struct ravix_cfg_auto_update_rule {
  bool enabled;  /**< The rule is in force. */
  uint32_t type; /**< Which of the fields below holds, `RAVIX_CFG_AUTO_UPDATE_RULE_...`. */
  union {
    ravix_cfg_auto_update_role_opmode_t auto_update_role_opmode; /**< Of a rule about an operating mode. */
    ravix_cfg_auto_update_feature_t auto_update_features;        /**< Of a rule about features. */
  };
} ravix_cfg_auto_update_rule_t;

/** @} */

/** @name Hardware and radios
 *  @{ */

/** One WLAN chip. Owns nothing. Its operations are named `ravix_cfg_hw_...`. */
typedef struct ravix_cfg_hardware_static {
  int32_t id;           /**< Identifier of the hardware. */
  uint8_t vendor_id;    /**< Code of the chip's vendor. */
  uint8_t chip_type;    /**< Code of the chip's type. */
  int32_t hw_interface; /**< Index of the host interface; empty: RAVIX_INDEX_INVALID, none. */
} ravix_cfg_hardware_static_t;

/** One radio as configured. Owns nothing. Its operations are named `ravix_cfg_radio_...`. */
typedef struct ravix_cfg_radio_static {
  int32_t id;                              /**< Identifier of the radio. */
  char if_name[RAVIX_MAX_IF_NAME_LEN + 1]; /**< Name of the network interface; a copy has at most 16 characters. */
  bool enabled;                            /**< The radio is switched on. */
  int32_t hw_id;                           /**< Identifier of the hardware that carries the radio. */
  int32_t mac_address_index; /**< Which of the device's addresses the radio uses; empty: RAVIX_INDEX_INVALID, none. */
  uint8_t radio_band;        /**< Band, `RAVIX_RADIO_BAND_...`. */
  uint8_t radio_sub_band;    /**< Part of the band, `RAVIX_RADIO_SUB_BAND_...`. */
  bool coexistence_enabled;  /**< 20/40 MHz coexistence. */
  bool auto_channel;         /**< The channel is chosen automatically. */
  uint32_t primary_freq;     /**< Centre of the primary channel in kHz; 0: none. */
} ravix_cfg_radio_static_t;

/** One radio at run time. Owns nothing. */
typedef struct ravix_cfg_radio_dynamic {
  int32_t id;        /**< Identifier of the radio. */
  bool enabled;      /**< The radio is switched on. */
  bool auto_channel; /**< The channel is chosen automatically. */
} ravix_cfg_radio_dynamic_t;

/** @} */

/** @name Security
 *  @{ */

/** Wi-Fi Protected Setup. Owns nothing. */
typedef struct ravix_cfg_wlan_wps {
  bool enable;                  /**< WPS is offered. */
  uint8_t uuid[RAVIX_UUID_LEN]; /**< The device's WPS UUID. */
} ravix_cfg_wlan_wps_t;

/** One RADIUS server. Owns nothing. */
typedef struct ravix_cfg_radius_server {
  int32_t index;        /**< Position in the operator's list; empty: RAVIX_INDEX_INVALID, none. Not compared. */
  uint16_t port;        /**< UDP port. */
  ravix_ip_addr_t addr; /**< Address of the server. */
  char secret[RAVIX_MAX_RADIUS_SECRET_LEN + 1]; /**< Shared secret; a copy has at most 128 characters. A secret:
                                                     printers show "[SECRET]" in its place. */
} ravix_cfg_radius_server_t;

/** Table of RADIUS servers. */
typedef struct ravix_cfg_radius_server_table {
  uint32_t count;                  /**< Number of elements. */
  ravix_cfg_radius_server_t *data; /**< Owned array; null when empty. */
} ravix_cfg_radius_server_table_t;

/** Security of a role. */
typedef struct ravix_cfg_wlan_security {
  uint8_t security;                             /**< Security scheme, `RAVIX_SECURITY_...`. */
  uint8_t pmf_mode;                             /**< Protected management frames, `RAVIX_PMF_MODE_...`. */
  ravix_key_t key;                              /**< Pre-shared key or passphrase. */
  ravix_cfg_wlan_wps_t wps;                     /**< Wi-Fi Protected Setup. */
  ravix_cfg_radius_server_table_t auth_servers; /**< RADIUS servers for authentication. */
  ravix_cfg_radius_server_table_t acct_servers; /**< RADIUS servers for accounting. */
} ravix_cfg_wlan_security_t;

/** Security as an RSN element (IEEE 802.11-2020, 9.4.2.24) or an RSN override element (Wi-Fi Alliance) announces it.
 * Slots that are not used hold 0. Owns nothing. */
typedef struct ravix_cfg_security_extended {
  uint8_t encryption; /**< Element that is announced, `RAVIX_ENCRYPTION_...` */
  uint8_t pmf_mode;   /**< Protected management frames (9.4.2.24.4), `RAVIX_PMF_MODE_...` */
  uint8_t pwe_mode;   /**< How SAE derives its password element (12.4.4), `RAVIX_PWE_MODE_...`. */
  uint8_t key_mgmt[RAVIX_SECURITY_EXTENDED_KEY_MGMTS];   /**< AKM suites (9.4.2.24.3), `RAVIX_ENCRYPTION_AKM_...` */
  uint8_t group_cipher[RAVIX_SECURITY_EXTENDED_CIPHERS]; /**< Group cipher suites (9.4.2.24.2),
                                                            `RAVIX_ENCRYPTION_CIPHER_SUITE_...` */
  uint8_t group_mgmt_cipher[RAVIX_SECURITY_EXTENDED_CIPHERS]; /**< Group management cipher suites,
                                                                 `RAVIX_ENCRYPTION_GROUP_MGMT_CIPHER_...` */
  uint8_t pairwise_ciphers[RAVIX_SECURITY_EXTENDED_CIPHERS];  /**< Pairwise cipher suites,
                                                                 `RAVIX_ENCRYPTION_CIPHER_SUITE_...` */
} ravix_cfg_security_extended_t;

/** Table of announced security elements. */
typedef struct ravix_cfg_security_extended_table {
  uint32_t count;                      /**< Number of elements. */
  ravix_cfg_security_extended_t *data; /**< Owned array; null when empty. */
} ravix_cfg_security_extended_table_t;

/** @} */

/** @name Roles
 *  @{ */

/** Who may use an access point. */
typedef struct ravix_cfg_role_access_control {
  bool mac_filter_enabled;         /**< The list is in force. */
  uint8_t mac_filter_type;         /**< What the list means, `RAVIX_MAC_ACCESS_TYPE_...`. */
  ravix_mac_table_t macs_filtered; /**< The list: addresses of clients. */
  bool limits_enabled;             /**< The limits below are in force. */
  uint32_t limits_max_clients;     /**< Most clients at once; empty: RAVIX_MAX_CLIENTS_UNLIMITED. */
  int16_t limits_min_client_rssi;  /**< Weakest signal of a client in dBm; empty: RAVIX_POWER_INVALID, no limit. */
} ravix_cfg_role_access_control_t;

/** When an access point is off. Owns nothing. */
typedef struct ravix_cfg_role_ap_time_control {
  bool timeout_active;      /**< The access point is switched off after some time. */
  uint32_t timeout_minutes; /**< That time in minutes. */
  bool force_off;           /**< The access point is off now. */
} ravix_cfg_role_ap_time_control_t;

/** What a role that is an access point has besides. */
typedef struct ravix_cfg_role_config_ap {
  ravix_ssid_t ssid;                              /**< Name of the network. */
  bool ssid_set;                                  /**< The name has been configured. */
  bool hidden_ssid_enabled;                       /**< The name is not announced. */
  bool user_isolation_enabled;                    /**< Clients cannot reach each other. */
  bool iptv_optimization_enabled;                 /**< Optimised for television streams. */
  ravix_cfg_role_access_control_t access_control; /**< Who may use it. */
  ravix_cfg_role_ap_time_control_t time_control;  /**< When it is off. */
} ravix_cfg_role_config_ap_t;

/** The network that a station joins. Owns nothing. */
typedef struct ravix_cfg_role_config_sta_uplink {
  ravix_ssid_t ssid;      /**< Its name. */
  ravix_mac_t mac_master; /**< Address of its access point. */
} ravix_cfg_role_config_sta_uplink_t;

/** What a role that is a station has besides. Owns nothing. */
typedef struct ravix_cfg_role_config_sta {
  bool marked_for_uplink_completion;         /**< The uplink is still to be completed. */
  bool uplink_configured;                    /**< The uplink has been configured. */
  ravix_cfg_role_config_sta_uplink_t uplink; /**< The uplink. */
} ravix_cfg_role_config_sta_t;

/** One role as configured: a logical WLAN function on a radio. Its operations are named `ravix_cfg_role_...`.
 *
 * The last field has no tag of its own: `op_mode` says what it refers to, in every operation. So `op_mode` must not
 * change between the two kinds, or to a value of neither, while the pointer is set; clear the role first. */
typedef struct ravix_cfg_role_static {
  int32_t id;                /**< Identifier of the role. */
  int32_t radio_id;          /**< Identifier of the radio that carries it. */
  bool enabled;              /**< The role is switched on. */
  int32_t mac_address_index; /**< Which of the device's addresses the role uses; empty: RAVIX_INDEX_INVALID, none. */
  char if_name[RAVIX_MAX_IF_NAME_LEN + 1]; /**< Name of the network interface; a copy has at most 16 characters. */
  uint8_t op_mode;                         /**< Operating mode, `RAVIX_ROLE_OPMODE_...`. */
  uint8_t power_level;                     /**< Transmit power in percent; empty: RAVIX_MEASURE_INVALID, not set. */
  uint32_t wlan_mode;                      /**< Set of `RAVIX_WLAN_MODE_...`: generations allowed. */
  uint16_t channel_width;                  /**< Width code, `RAVIX_CHANNEL_WIDTH_...`. */
  ravix_cfg_wlan_security_t security;      /**< Security. */
  union {
    ravix_cfg_role_config_ap_t *config_ap;   /**< Of the modes AP_...: owned, or null. */
    ravix_cfg_role_config_sta_t *config_sta; /**< Of the modes ATACLIENT and REPEATER: owned, or null. */
  };
} ravix_cfg_role_static_t;

/** OWE transition mode: an open role and the one protected by OWE (RFC 8110) that it points its clients to. Owns
 * nothing. */
typedef struct ravix_cfg_owe_transition {
  int32_t owe_master_id; /**< Identifier of the protected role. */
  int32_t owe_slave_id;  /**< Identifier of the open role. */
  bool owe_active;       /**< Transition is in force. */
  ravix_ssid_t owe_ssid; /**< SSID of the partner. */
  ravix_mac_t owe_bssid; /**< BSSID of the partner. */
} ravix_cfg_owe_transition_t;

/** Multi-link device (multi-link operation: IEEE 802.11be, 35.3). */
typedef struct ravix_cfg_mld {
  ravix_mac_t mld_mac;           /**< Address of the multi-link device. */
  ravix_id_table_t mld_role_ids; /**< Identifiers of the roles that are its links. */
} ravix_cfg_mld_t;

/** One role at run time. */
typedef struct ravix_cfg_role_dynamic {
  int32_t id;                                /**< Identifier of the role, as in its ravix_cfg_role_static_t. */
  bool enabled;                              /**< The role is active. */
  ravix_mac_t mac;                           /**< Its BSSID or station address. */
  uint32_t wlan_mode;                        /**< Set of `RAVIX_WLAN_MODE_...`: generations in use. */
  uint16_t channel_width;                    /**< Width code in use, `RAVIX_CHANNEL_WIDTH_...`. */
  bool valid;                                /**< The record holds current data. */
  int32_t radio_master_id;                   /**< Identifier of the controlling radio. */
  int32_t ap_master_id;                      /**< Identifier of the access point role that this one depends on. */
  bool mac_filter_enabled;                   /**< MAC filtering is active. */
  bool pbc_enabled;                          /**< The WPS push button is active. */
  uint8_t security;                          /**< Security scheme in use, `RAVIX_SECURITY_...`. */
  ravix_cfg_security_extended_t rsn_element; /**< The RSN element announced. */
  ravix_cfg_security_extended_table_t rsno_elements; /**< The RSN override elements announced. */
  ravix_cfg_owe_transition_t *owe_transition;        /**< OWE transition: owned; null if there is none. */
  ravix_cfg_mld_t *cfg_mld; /**< The multi-link device that the role belongs to: owned; null if there is none. */
} ravix_cfg_role_dynamic_t;

/** @} */

/** @name Debug settings
 *  A copy for whose text no memory is left says "No memory available!" and returns -12.
 *  @{ */
RAVIX_API ravix_cfg_debug_settings_t *ravix_cfg_debug_settings_create(void);
RAVIX_API ravix_cfg_debug_settings_t *ravix_cfg_debug_settings_clone(const ravix_cfg_debug_settings_t *old_obj);
RAVIX_API int ravix_cfg_debug_settings_copy(const ravix_cfg_debug_settings_t *src, ravix_cfg_debug_settings_t *dest);
RAVIX_API void ravix_cfg_debug_settings_clear(ravix_cfg_debug_settings_t *obj);
RAVIX_API void ravix_cfg_debug_settings_free(ravix_cfg_debug_settings_t *obj);
RAVIX_API int ravix_cfg_debug_settings_compare(const ravix_cfg_debug_settings_t *a,
                                               const ravix_cfg_debug_settings_t *b);
/** @} */

/** @name Mesh settings
 *  @{ */
RAVIX_API ravix_cfg_meshd_settings_t *ravix_cfg_meshd_settings_create(void);
RAVIX_API ravix_cfg_meshd_settings_t *ravix_cfg_meshd_settings_clone(const ravix_cfg_meshd_settings_t *old_obj);
RAVIX_API int ravix_cfg_meshd_settings_copy(const ravix_cfg_meshd_settings_t *src, ravix_cfg_meshd_settings_t *dest);
RAVIX_API void ravix_cfg_meshd_settings_clear(ravix_cfg_meshd_settings_t *obj);
RAVIX_API void ravix_cfg_meshd_settings_free(ravix_cfg_meshd_settings_t *obj);
RAVIX_API int ravix_cfg_meshd_settings_compare(const ravix_cfg_meshd_settings_t *a,
                                               const ravix_cfg_meshd_settings_t *b);
/** @} */

/** @name Time control of the device
 *  @{ */
RAVIX_API ravix_cfg_time_control_t *ravix_cfg_time_control_create(void);
RAVIX_API ravix_cfg_time_control_t *ravix_cfg_time_control_clone(const ravix_cfg_time_control_t *old_obj);
RAVIX_API int ravix_cfg_time_control_copy(const ravix_cfg_time_control_t *src, ravix_cfg_time_control_t *dest);
RAVIX_API void ravix_cfg_time_control_clear(ravix_cfg_time_control_t *obj);
RAVIX_API void ravix_cfg_time_control_free(ravix_cfg_time_control_t *obj);
RAVIX_API int ravix_cfg_time_control_compare(const ravix_cfg_time_control_t *a, const ravix_cfg_time_control_t *b);
/** @} */

/** @name Repeating
 *  @{ */
RAVIX_API ravix_cfg_repeating_t *ravix_cfg_repeating_create(void);
RAVIX_API ravix_cfg_repeating_t *ravix_cfg_repeating_clone(const ravix_cfg_repeating_t *old_obj);
RAVIX_API int ravix_cfg_repeating_copy(const ravix_cfg_repeating_t *src, ravix_cfg_repeating_t *dest);
RAVIX_API void ravix_cfg_repeating_clear(ravix_cfg_repeating_t *obj);
RAVIX_API void ravix_cfg_repeating_free(ravix_cfg_repeating_t *obj);
RAVIX_API int ravix_cfg_repeating_compare(const ravix_cfg_repeating_t *a, const ravix_cfg_repeating_t *b);
/** @} */

/** @name Sources of access lists
 *  @{ */
RAVIX_API ravix_cfg_access_control_settings_t *ravix_cfg_access_control_settings_create(void);
RAVIX_API ravix_cfg_access_control_settings_t *
ravix_cfg_access_control_settings_clone(const ravix_cfg_access_control_settings_t *old_obj);
RAVIX_API int ravix_cfg_access_control_settings_copy(const ravix_cfg_access_control_settings_t *src,
                                                     ravix_cfg_access_control_settings_t *dest);
RAVIX_API void ravix_cfg_access_control_settings_clear(ravix_cfg_access_control_settings_t *obj);
RAVIX_API void ravix_cfg_access_control_settings_free(ravix_cfg_access_control_settings_t *obj);
RAVIX_API int ravix_cfg_access_control_settings_compare(const ravix_cfg_access_control_settings_t *a,
                                                        const ravix_cfg_access_control_settings_t *b);
/** @} */

/** @name Settings of the device
 *  @{ */
RAVIX_API ravix_cfg_global_settings_t *ravix_cfg_global_settings_create(void);
RAVIX_API ravix_cfg_global_settings_t *ravix_cfg_global_settings_clone(const ravix_cfg_global_settings_t *old_obj);
RAVIX_API int ravix_cfg_global_settings_copy(const ravix_cfg_global_settings_t *src, ravix_cfg_global_settings_t *dest);
RAVIX_API void ravix_cfg_global_settings_clear(ravix_cfg_global_settings_t *obj);
RAVIX_API void ravix_cfg_global_settings_free(ravix_cfg_global_settings_t *obj);
RAVIX_API int ravix_cfg_global_settings_compare(const ravix_cfg_global_settings_t *a,
                                                const ravix_cfg_global_settings_t *b);
/** @} */

/** @name Roles of a rule for automatic updates
 *  @{ */
RAVIX_API ravix_cfg_auto_update_role_opmode_t *ravix_cfg_auto_update_role_opmode_create(void);
RAVIX_API ravix_cfg_auto_update_role_opmode_t *
ravix_cfg_auto_update_role_opmode_clone(const ravix_cfg_auto_update_role_opmode_t *old_obj);
RAVIX_API int ravix_cfg_auto_update_role_opmode_copy(const ravix_cfg_auto_update_role_opmode_t *src,
                                                     ravix_cfg_auto_update_role_opmode_t *dest);
RAVIX_API void ravix_cfg_auto_update_role_opmode_clear(ravix_cfg_auto_update_role_opmode_t *obj);
RAVIX_API void ravix_cfg_auto_update_role_opmode_free(ravix_cfg_auto_update_role_opmode_t *obj);
RAVIX_API int ravix_cfg_auto_update_role_opmode_compare(const ravix_cfg_auto_update_role_opmode_t *a,
                                                        const ravix_cfg_auto_update_role_opmode_t *b);
/** @} */

/** @name Features of a rule for automatic updates
 *  @{ */
RAVIX_API ravix_cfg_auto_update_feature_t *ravix_cfg_auto_update_feature_create(void);
RAVIX_API ravix_cfg_auto_update_feature_t *
ravix_cfg_auto_update_feature_clone(const ravix_cfg_auto_update_feature_t *old_obj);
RAVIX_API int ravix_cfg_auto_update_feature_copy(const ravix_cfg_auto_update_feature_t *src,
                                                 ravix_cfg_auto_update_feature_t *dest);
RAVIX_API void ravix_cfg_auto_update_feature_clear(ravix_cfg_auto_update_feature_t *obj);
RAVIX_API void ravix_cfg_auto_update_feature_free(ravix_cfg_auto_update_feature_t *obj);
RAVIX_API int ravix_cfg_auto_update_feature_compare(const ravix_cfg_auto_update_feature_t *a,
                                                    const ravix_cfg_auto_update_feature_t *b);
/** @} */

/** @name Rule for automatic updates
 *  Every operation goes by the rule's `type`. A rule of no type cannot be copied or cloned, though it can be cleared
 *  in silence: copying any type but the two real ones writes "Invalid update rule type '<n>'" and a line "ASSERT:
 *  !"Invalid update rule type"" of the default logger, leaves `dest` empty and returns -22. Clearing a rule of an
 *  unknown type writes the same two lines and empties the rule. A cleared rule is zero as a whole, padding included.
 * Compared by `enabled`, `type` and what the type says; two rules of one other type differ in `enabled` at most.
 *  @{ */
RAVIX_API ravix_cfg_auto_update_rule_t *ravix_cfg_auto_update_rule_create(void);
RAVIX_API ravix_cfg_auto_update_rule_t *ravix_cfg_auto_update_rule_clone(const ravix_cfg_auto_update_rule_t *old_obj);
RAVIX_API int ravix_cfg_auto_update_rule_copy(const ravix_cfg_auto_update_rule_t *src,
                                              ravix_cfg_auto_update_rule_t *dest);
RAVIX_API void ravix_cfg_auto_update_rule_clear(ravix_cfg_auto_update_rule_t *obj);
RAVIX_API void ravix_cfg_auto_update_rule_free(ravix_cfg_auto_update_rule_t *obj);
RAVIX_API int ravix_cfg_auto_update_rule_compare(const ravix_cfg_auto_update_rule_t *a,
                                                 const ravix_cfg_auto_update_rule_t *b);
/**
 * Orders rules as keys of a map: as ravix_cfg_auto_update_rule_compare(), but without regard to `enabled`.
 * @param a null sorts before any rule
 * @param b as `a`
 * @return negative, 0 or positive
 */
RAVIX_API int ravix_cfg_auto_update_rule_map_key_compare(const ravix_cfg_auto_update_rule_t *a,
                                                         const ravix_cfg_auto_update_rule_t *b);
/** @} */

/** @name Hardware
 *  @{ */
RAVIX_API ravix_cfg_hardware_static_t *ravix_cfg_hw_create(void);
RAVIX_API ravix_cfg_hardware_static_t *ravix_cfg_hw_clone(const ravix_cfg_hardware_static_t *old_obj);
RAVIX_API int ravix_cfg_hw_copy(const ravix_cfg_hardware_static_t *src, ravix_cfg_hardware_static_t *dest);
RAVIX_API void ravix_cfg_hw_clear(ravix_cfg_hardware_static_t *obj);
RAVIX_API void ravix_cfg_hw_free(ravix_cfg_hardware_static_t *obj);
RAVIX_API int ravix_cfg_hw_compare(const ravix_cfg_hardware_static_t *a, const ravix_cfg_hardware_static_t *b);
/** @} */

/** @name Radio
 *  @{ */
RAVIX_API ravix_cfg_radio_static_t *ravix_cfg_radio_create(void);
RAVIX_API ravix_cfg_radio_static_t *ravix_cfg_radio_clone(const ravix_cfg_radio_static_t *old_obj);
RAVIX_API int ravix_cfg_radio_copy(const ravix_cfg_radio_static_t *src, ravix_cfg_radio_static_t *dest);
RAVIX_API void ravix_cfg_radio_clear(ravix_cfg_radio_static_t *obj);
RAVIX_API void ravix_cfg_radio_free(ravix_cfg_radio_static_t *obj);
RAVIX_API int ravix_cfg_radio_compare(const ravix_cfg_radio_static_t *a, const ravix_cfg_radio_static_t *b);
/** @} */

/** @name Radio at run time
 *  @{ */
RAVIX_API ravix_cfg_radio_dynamic_t *ravix_cfg_radio_dynamic_create(void);
RAVIX_API ravix_cfg_radio_dynamic_t *ravix_cfg_radio_dynamic_clone(const ravix_cfg_radio_dynamic_t *old_obj);
RAVIX_API int ravix_cfg_radio_dynamic_copy(const ravix_cfg_radio_dynamic_t *src, ravix_cfg_radio_dynamic_t *dest);
RAVIX_API void ravix_cfg_radio_dynamic_clear(ravix_cfg_radio_dynamic_t *obj);
RAVIX_API void ravix_cfg_radio_dynamic_free(ravix_cfg_radio_dynamic_t *obj);
RAVIX_API int ravix_cfg_radio_dynamic_compare(const ravix_cfg_radio_dynamic_t *a, const ravix_cfg_radio_dynamic_t *b);
/** @} */

/** @name Wi-Fi Protected Setup
 *  @{ */
RAVIX_API ravix_cfg_wlan_wps_t *ravix_cfg_wlan_wps_create(void);
RAVIX_API ravix_cfg_wlan_wps_t *ravix_cfg_wlan_wps_clone(const ravix_cfg_wlan_wps_t *old_obj);
RAVIX_API int ravix_cfg_wlan_wps_copy(const ravix_cfg_wlan_wps_t *src, ravix_cfg_wlan_wps_t *dest);
RAVIX_API void ravix_cfg_wlan_wps_clear(ravix_cfg_wlan_wps_t *obj);
RAVIX_API void ravix_cfg_wlan_wps_free(ravix_cfg_wlan_wps_t *obj);
RAVIX_API int ravix_cfg_wlan_wps_compare(const ravix_cfg_wlan_wps_t *a, const ravix_cfg_wlan_wps_t *b);
/** @} */

/** @name RADIUS server
 *  Compared by port, address and secret, up to the end of its text, without regard to `index`. A server without a valid
 * address equals none, not even itself; see ravix_types_ip_addr_compare().
 *  @{ */
RAVIX_API ravix_cfg_radius_server_t *ravix_cfg_radius_server_create(void);
RAVIX_API ravix_cfg_radius_server_t *ravix_cfg_radius_server_clone(const ravix_cfg_radius_server_t *old_obj);
RAVIX_API int ravix_cfg_radius_server_copy(const ravix_cfg_radius_server_t *src, ravix_cfg_radius_server_t *dest);
RAVIX_API void ravix_cfg_radius_server_clear(ravix_cfg_radius_server_t *obj);
RAVIX_API void ravix_cfg_radius_server_free(ravix_cfg_radius_server_t *obj);
RAVIX_API int ravix_cfg_radius_server_compare(const ravix_cfg_radius_server_t *a, const ravix_cfg_radius_server_t *b);
/** @} */

/** @name RADIUS server table
 *  An entry is found whatever its `index`.
 *  @{ */
RAVIX_API int ravix_cfg_radius_server_table_init(ravix_cfg_radius_server_table_t *table, unsigned count);
RAVIX_API ravix_cfg_radius_server_table_t *ravix_cfg_radius_server_table_create(unsigned count);
RAVIX_API ravix_cfg_radius_server_table_t *
ravix_cfg_radius_server_table_clone(const ravix_cfg_radius_server_table_t *old_obj);
RAVIX_API int ravix_cfg_radius_server_table_copy(const ravix_cfg_radius_server_table_t *src,
                                                 ravix_cfg_radius_server_table_t *dest);
RAVIX_API void ravix_cfg_radius_server_table_clear(ravix_cfg_radius_server_table_t *table);
RAVIX_API void ravix_cfg_radius_server_table_free(ravix_cfg_radius_server_table_t *table);
RAVIX_API int ravix_cfg_radius_server_table_add_entry(ravix_cfg_radius_server_table_t *table,
                                                      const ravix_cfg_radius_server_t *entry);
RAVIX_API bool ravix_cfg_radius_server_table_contains_entry(const ravix_cfg_radius_server_table_t *table,
                                                            const ravix_cfg_radius_server_t *entry);
RAVIX_API int ravix_cfg_radius_server_table_compare(const ravix_cfg_radius_server_table_t *a,
                                                    const ravix_cfg_radius_server_table_t *b);
/** @} */

/** @name Security of a role
 *  Security whose key is longer than RAVIX_MAX_KEY_LEN cannot be copied (-22, `dest` empty).
 *  @{ */
RAVIX_API ravix_cfg_wlan_security_t *ravix_cfg_wlan_security_create(void);
RAVIX_API ravix_cfg_wlan_security_t *ravix_cfg_wlan_security_clone(const ravix_cfg_wlan_security_t *old_obj);
RAVIX_API int ravix_cfg_wlan_security_copy(const ravix_cfg_wlan_security_t *src, ravix_cfg_wlan_security_t *dest);
RAVIX_API void ravix_cfg_wlan_security_clear(ravix_cfg_wlan_security_t *obj);
RAVIX_API void ravix_cfg_wlan_security_free(ravix_cfg_wlan_security_t *obj);
RAVIX_API int ravix_cfg_wlan_security_compare(const ravix_cfg_wlan_security_t *a, const ravix_cfg_wlan_security_t *b);
/** @} */

/** @name Extended security element
 *  @{ */
RAVIX_API ravix_cfg_security_extended_t *ravix_cfg_security_extended_create(void);
RAVIX_API ravix_cfg_security_extended_t *
ravix_cfg_security_extended_clone(const ravix_cfg_security_extended_t *old_obj);
RAVIX_API int ravix_cfg_security_extended_copy(const ravix_cfg_security_extended_t *src,
                                               ravix_cfg_security_extended_t *dest);
RAVIX_API void ravix_cfg_security_extended_clear(ravix_cfg_security_extended_t *obj);
RAVIX_API void ravix_cfg_security_extended_free(ravix_cfg_security_extended_t *obj);
RAVIX_API int ravix_cfg_security_extended_compare(const ravix_cfg_security_extended_t *a,
                                                  const ravix_cfg_security_extended_t *b);
/** @} */

/** @name Extended security table
 *  @{ */
RAVIX_API int ravix_cfg_security_extended_table_init(ravix_cfg_security_extended_table_t *table, unsigned count);
RAVIX_API ravix_cfg_security_extended_table_t *ravix_cfg_security_extended_table_create(unsigned count);
RAVIX_API ravix_cfg_security_extended_table_t *
ravix_cfg_security_extended_table_clone(const ravix_cfg_security_extended_table_t *old_obj);
RAVIX_API int ravix_cfg_security_extended_table_copy(const ravix_cfg_security_extended_table_t *src,
                                                     ravix_cfg_security_extended_table_t *dest);
RAVIX_API void ravix_cfg_security_extended_table_clear(ravix_cfg_security_extended_table_t *table);
RAVIX_API void ravix_cfg_security_extended_table_free(ravix_cfg_security_extended_table_t *table);
RAVIX_API int ravix_cfg_security_extended_table_add_entry(ravix_cfg_security_extended_table_t *table,
                                                          const ravix_cfg_security_extended_t *entry);
RAVIX_API bool ravix_cfg_security_extended_table_contains_entry(const ravix_cfg_security_extended_table_t *table,
                                                                const ravix_cfg_security_extended_t *entry);
RAVIX_API int ravix_cfg_security_extended_table_compare(const ravix_cfg_security_extended_table_t *a,
                                                        const ravix_cfg_security_extended_table_t *b);
/** @} */

/** @name Access control of a role
 *  @{ */
RAVIX_API ravix_cfg_role_access_control_t *ravix_cfg_role_access_control_create(void);
RAVIX_API ravix_cfg_role_access_control_t *
ravix_cfg_role_access_control_clone(const ravix_cfg_role_access_control_t *old_obj);
RAVIX_API int ravix_cfg_role_access_control_copy(const ravix_cfg_role_access_control_t *src,
                                                 ravix_cfg_role_access_control_t *dest);
RAVIX_API void ravix_cfg_role_access_control_clear(ravix_cfg_role_access_control_t *obj);
RAVIX_API void ravix_cfg_role_access_control_free(ravix_cfg_role_access_control_t *obj);
RAVIX_API int ravix_cfg_role_access_control_compare(const ravix_cfg_role_access_control_t *a,
                                                    const ravix_cfg_role_access_control_t *b);
/** @} */

/** @name Time control of an access point
 *  @{ */
RAVIX_API ravix_cfg_role_ap_time_control_t *ravix_cfg_role_ap_time_control_create(void);
RAVIX_API ravix_cfg_role_ap_time_control_t *
ravix_cfg_role_ap_time_control_clone(const ravix_cfg_role_ap_time_control_t *old_obj);
RAVIX_API int ravix_cfg_role_ap_time_control_copy(const ravix_cfg_role_ap_time_control_t *src,
                                                  ravix_cfg_role_ap_time_control_t *dest);
RAVIX_API void ravix_cfg_role_ap_time_control_clear(ravix_cfg_role_ap_time_control_t *obj);
RAVIX_API void ravix_cfg_role_ap_time_control_free(ravix_cfg_role_ap_time_control_t *obj);
RAVIX_API int ravix_cfg_role_ap_time_control_compare(const ravix_cfg_role_ap_time_control_t *a,
                                                     const ravix_cfg_role_ap_time_control_t *b);
/** @} */

/** @name Access point
 *  An access point whose SSID is longer than RAVIX_MAX_SSID_LEN cannot be copied (-22, `dest` empty).
 *  @{ */
RAVIX_API ravix_cfg_role_config_ap_t *ravix_cfg_role_config_ap_create(void);
RAVIX_API ravix_cfg_role_config_ap_t *ravix_cfg_role_config_ap_clone(const ravix_cfg_role_config_ap_t *old_obj);
RAVIX_API int ravix_cfg_role_config_ap_copy(const ravix_cfg_role_config_ap_t *src, ravix_cfg_role_config_ap_t *dest);
RAVIX_API void ravix_cfg_role_config_ap_clear(ravix_cfg_role_config_ap_t *obj);
RAVIX_API void ravix_cfg_role_config_ap_free(ravix_cfg_role_config_ap_t *obj);
RAVIX_API int ravix_cfg_role_config_ap_compare(const ravix_cfg_role_config_ap_t *a,
                                               const ravix_cfg_role_config_ap_t *b);
/** @} */

/** @name Uplink of a station
 *  An uplink whose SSID is longer than RAVIX_MAX_SSID_LEN cannot be copied (-22, `dest` empty).
 *  @{ */
RAVIX_API ravix_cfg_role_config_sta_uplink_t *ravix_cfg_role_config_sta_uplink_create(void);
RAVIX_API ravix_cfg_role_config_sta_uplink_t *
ravix_cfg_role_config_sta_uplink_clone(const ravix_cfg_role_config_sta_uplink_t *old_obj);
RAVIX_API int ravix_cfg_role_config_sta_uplink_copy(const ravix_cfg_role_config_sta_uplink_t *src,
                                                    ravix_cfg_role_config_sta_uplink_t *dest);
RAVIX_API void ravix_cfg_role_config_sta_uplink_clear(ravix_cfg_role_config_sta_uplink_t *obj);
RAVIX_API void ravix_cfg_role_config_sta_uplink_free(ravix_cfg_role_config_sta_uplink_t *obj);
RAVIX_API int ravix_cfg_role_config_sta_uplink_compare(const ravix_cfg_role_config_sta_uplink_t *a,
                                                       const ravix_cfg_role_config_sta_uplink_t *b);
/** @} */

/** @name Station
 *  A station whose uplink cannot be copied cannot be, either (-22, `dest` empty).
 *  @{ */
RAVIX_API ravix_cfg_role_config_sta_t *ravix_cfg_role_config_sta_create(void);
RAVIX_API ravix_cfg_role_config_sta_t *ravix_cfg_role_config_sta_clone(const ravix_cfg_role_config_sta_t *old_obj);
RAVIX_API int ravix_cfg_role_config_sta_copy(const ravix_cfg_role_config_sta_t *src, ravix_cfg_role_config_sta_t *dest);
RAVIX_API void ravix_cfg_role_config_sta_clear(ravix_cfg_role_config_sta_t *obj);
RAVIX_API void ravix_cfg_role_config_sta_free(ravix_cfg_role_config_sta_t *obj);
RAVIX_API int ravix_cfg_role_config_sta_compare(const ravix_cfg_role_config_sta_t *a,
                                                const ravix_cfg_role_config_sta_t *b);
/** @} */

/** @name Role
 *  Every operation goes by `op_mode`: clear releases the access point or station that it tells of, and of a mode of
 *  neither kind leaves the pointer's memory alone; compare passes over the pointer of such a mode.
 *
 *  Only a complete role can be copied or cloned. A mode of neither kind, so also an empty role, writes "Invalid opmode:
 *  '<op_mode as one raw character>'" and a line "ASSERT: !"Invalid opmode"" of the default logger; the result is -22.
 *  An access point or station that is null or cannot be cloned gives RAVIX_FAIL_GENERAL (not -12); for a null one a
 *  line "ASSERT: nullptr != src->config_ap" (or `config_sta`) comes first. `dest` is empty in either case.
 *  @{ */
RAVIX_API ravix_cfg_role_static_t *ravix_cfg_role_create(void);
RAVIX_API ravix_cfg_role_static_t *ravix_cfg_role_clone(const ravix_cfg_role_static_t *old_obj);
RAVIX_API int ravix_cfg_role_copy(const ravix_cfg_role_static_t *src, ravix_cfg_role_static_t *dest);
RAVIX_API void ravix_cfg_role_clear(ravix_cfg_role_static_t *obj);
RAVIX_API void ravix_cfg_role_free(ravix_cfg_role_static_t *obj);
RAVIX_API int ravix_cfg_role_compare(const ravix_cfg_role_static_t *a, const ravix_cfg_role_static_t *b);
/** @} */

/** @name OWE transition
 *  One whose SSID is longer than RAVIX_MAX_SSID_LEN cannot be copied (-22, `dest` empty).
 *  @{ */
RAVIX_API ravix_cfg_owe_transition_t *ravix_cfg_owe_transition_create(void);
RAVIX_API ravix_cfg_owe_transition_t *ravix_cfg_owe_transition_clone(const ravix_cfg_owe_transition_t *old_obj);
RAVIX_API int ravix_cfg_owe_transition_copy(const ravix_cfg_owe_transition_t *src, ravix_cfg_owe_transition_t *dest);
RAVIX_API void ravix_cfg_owe_transition_clear(ravix_cfg_owe_transition_t *obj);
RAVIX_API void ravix_cfg_owe_transition_free(ravix_cfg_owe_transition_t *obj);
RAVIX_API int ravix_cfg_owe_transition_compare(const ravix_cfg_owe_transition_t *a,
                                               const ravix_cfg_owe_transition_t *b);
/** @} */

/** @name Multi-link device
 *  @{ */
RAVIX_API ravix_cfg_mld_t *ravix_cfg_mld_create(void);
RAVIX_API ravix_cfg_mld_t *ravix_cfg_mld_clone(const ravix_cfg_mld_t *old_obj);
RAVIX_API int ravix_cfg_mld_copy(const ravix_cfg_mld_t *src, ravix_cfg_mld_t *dest);
RAVIX_API void ravix_cfg_mld_clear(ravix_cfg_mld_t *obj);
RAVIX_API void ravix_cfg_mld_free(ravix_cfg_mld_t *obj);
RAVIX_API int ravix_cfg_mld_compare(const ravix_cfg_mld_t *a, const ravix_cfg_mld_t *b);
/** @} */

/** @name Role at run time
 *  A role without OWE transition or multi-link device sorts before one that has it.
 *  @{ */
RAVIX_API ravix_cfg_role_dynamic_t *ravix_cfg_role_dynamic_create(void);
RAVIX_API ravix_cfg_role_dynamic_t *ravix_cfg_role_dynamic_clone(const ravix_cfg_role_dynamic_t *old_obj);
RAVIX_API int ravix_cfg_role_dynamic_copy(const ravix_cfg_role_dynamic_t *src, ravix_cfg_role_dynamic_t *dest);
RAVIX_API void ravix_cfg_role_dynamic_clear(ravix_cfg_role_dynamic_t *obj);
RAVIX_API void ravix_cfg_role_dynamic_free(ravix_cfg_role_dynamic_t *obj);
RAVIX_API int ravix_cfg_role_dynamic_compare(const ravix_cfg_role_dynamic_t *a, const ravix_cfg_role_dynamic_t *b);
/** @} */

#ifdef __cplusplus
}
#endif

/** @} */

#endif
