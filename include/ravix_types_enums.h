/**
 * @file
 * Values of the interface: every enumeration, flag set and reserved number that records carry.
 *
 * Value enumerations are C `enum`s whose constants name what a record's 8-, 16- or 32-bit field may hold. Most of them
 * are framed by two sentinels, `..._INVALID_MIN` (0, the empty state of a field) and `..._INVALID_MAX`; valid values
 * lie between. The sentinels have names like any other value, and parse like any other.
 *
 * Flag sets are macros of the unsigned type of their field, so that bit 31 is no trouble in C11 and in C++.
 *
 * The names of values and flags come from the `ravix_str_...` functions of ravix_types_str_convert.h, which also has
 * the functions that read some of them back.
 */
#ifndef RAVIX_TYPES_ENUMS_H
#define RAVIX_TYPES_ENUMS_H

#include "ravix_types_common.h"

#include <stdint.h>

/** @defgroup enums Enumerations and flag sets */

/** @defgroup enums_general Results and identifiers
 *  @ingroup enums
 *  @{ */

/** Result of an operation of the interface. Beside these values a result may be a negative errno value.
 *  See ravix_str_status(). */
enum ravix_status {
  RAVIX_STATUS_SUCCESS = 0,                         /**< Done. */
  RAVIX_STATUS_FINISHED = 1,                        /**< The operation has come to its end. */
  RAVIX_STATUS_PENDING = 2,                         /**< Still going on. */
  RAVIX_STATUS_READY = 3,                           /**< Ready to go on. */
  RAVIX_STATUS_CANCELED = 4,                        /**< Stopped before its end. */
  RAVIX_STATUS_TIMEOUT = 5,                         /**< Not done in time. */
  RAVIX_STATUS_FAIL_GENERAL = RAVIX_FAIL_GENERAL,   /**< 0x80000001: failed for a reason that has no code of its own. */
  RAVIX_STATUS_FAIL_NOT_SUPPORTED = INT32_MIN + 2,  /**< 0x80000002: never possible here. */
  RAVIX_STATUS_FAIL_NOT_APPLICABLE = INT32_MIN + 3, /**< 0x80000003: not possible in the present state. */
  RAVIX_STATUS_FAIL_SUBORDINATED = INT32_MIN + 4,   /**< 0x80000004: an operation that this one depends on failed. */
  RAVIX_STATUS_FAIL_PARSING = INT32_MIN + 7         /**< 0x80000007: the request could not be read. */
};

/** Reserved identifiers. Every other number identifies a record. See ravix_str_id() and ravix_id_from_str(). */
enum ravix_reserved_id {
  RAVIX_ID_UNSPECIFIED = -3, /**< Not stated; the receiver chooses. */
  RAVIX_ID_NONE = -2,        /**< Explicitly no record. */
  RAVIX_ID_ALL = -1,         /**< Every record. */
  RAVIX_ID_INVALID = 0       /**< Empty state of an identifier. */
};

/** Reserved identifiers of connect sessions. See ravix_connect_session_id_from_str(). */
enum ravix_connect_session_id {
  RAVIX_CONNECT_SESSION_ID_LAST = -3,  /**< The session that was started last. */
  RAVIX_CONNECT_SESSION_ID_UNDEF = -2, /**< Not stated. */
  RAVIX_CONNECT_SESSION_ID_ALL = -1,   /**< Every session. */
  RAVIX_CONNECT_SESSION_ID_INVALID = 0 /**< Empty state of an identifier. */
};

/** @} */

/** @defgroup enums_radio Radio
 *  @ingroup enums
 *  @{ */

/** Radio band. The valid values are single bits, so that they can be combined; 3 is no band.
 *  See ravix_str_radio_band(). */
enum ravix_radio_band {
  RAVIX_RADIO_BAND_INVALID_MIN = 0, /**< Sentinel; also the answer "no band". */
  RAVIX_RADIO_BAND_2GHZ = 1,        /**< 2.4 GHz: channels 1 to 14. */
  RAVIX_RADIO_BAND_5GHZ = 2,        /**< 5 GHz: channels 36 to 177. */
  RAVIX_RADIO_BAND_6GHZ = 4,        /**< 6 GHz: channels 1 to 233. */
  RAVIX_RADIO_BAND_INVALID_MAX = 5  /**< Sentinel above the valid values. */
};

/** Part of a band that a radio works in. See ravix_str_radio_sub_band(). */
enum ravix_radio_sub_band {
  RAVIX_RADIO_SUB_BAND_INVALID_MIN = 0, /**< Sentinel; also the answer "no sub band". */
  RAVIX_RADIO_SUB_BAND_FULL = 1,        /**< The whole band. */
  RAVIX_RADIO_SUB_BAND_HIGH = 2,        /**< 5 GHz from channel 100 up. */
  RAVIX_RADIO_SUB_BAND_LOW = 3,         /**< 5 GHz up to channel 64. */
  RAVIX_RADIO_SUB_BAND_INVALID_MAX = 4  /**< Sentinel above the valid values. */
};

/** Channel width. The codes equal the capability bits of the same width (`RAVIX_CHANNEL_CAP_HT20` ...), which the
 * arithmetic relies on. 8 stays free: there is no 80+80 MHz width. See ravix_str_channel_width(). */
enum ravix_channel_width {
  RAVIX_CHANNEL_WIDTH_INVALID = 0, /**< No width. */
  RAVIX_CHANNEL_WIDTH_20 = 1,      /**< 20 MHz. */
  RAVIX_CHANNEL_WIDTH_40 = 2,      /**< 40 MHz. */
  RAVIX_CHANNEL_WIDTH_80 = 4,      /**< 80 MHz. */
  RAVIX_CHANNEL_WIDTH_160 = 16,    /**< 160 MHz. */
  RAVIX_CHANNEL_WIDTH_320 = 32     /**< 320 MHz (802.11be). */
};

/** @name Channel capabilities
 *  What a radio can do on a channel. See ravix_str_channel_capabilities().
 *  @{ */
#define RAVIX_CHANNEL_CAP_HT20 UINT32_C(0x01)        /**< 20 MHz wide. */
#define RAVIX_CHANNEL_CAP_HT40 UINT32_C(0x02)        /**< 40 MHz wide. */
#define RAVIX_CHANNEL_CAP_HT80 UINT32_C(0x04)        /**< 80 MHz wide. */
#define RAVIX_CHANNEL_CAP_HT160 UINT32_C(0x10)       /**< 160 MHz wide. */
#define RAVIX_CHANNEL_CAP_HT320 UINT32_C(0x20)       /**< 320 MHz wide. */
#define RAVIX_CHANNEL_CAP_DFS UINT32_C(0x40)         /**< Radar detection is required before and during use. */
#define RAVIX_CHANNEL_CAP_DFS_WEATHER UINT32_C(0x80) /**< As DFS, with the longer check of weather radar channels. */
/** @} */

/** @name WLAN modes
 *  Generations of IEEE 802.11 that a radio or a BSS uses. See ravix_str_wlan_mode() and ravix_wlan_mode_is_valid().
 *  @{ */
#define RAVIX_WLAN_MODE_11A UINT32_C(0x01)  /**< 802.11a: 5 GHz OFDM. */
#define RAVIX_WLAN_MODE_11B UINT32_C(0x02)  /**< 802.11b: 2.4 GHz DSSS and CCK. */
#define RAVIX_WLAN_MODE_11G UINT32_C(0x04)  /**< 802.11g: 2.4 GHz OFDM. */
#define RAVIX_WLAN_MODE_11N UINT32_C(0x08)  /**< 802.11n: HT. */
#define RAVIX_WLAN_MODE_11AC UINT32_C(0x10) /**< 802.11ac: VHT. */
#define RAVIX_WLAN_MODE_11AX UINT32_C(0x20) /**< 802.11ax: HE. */
#define RAVIX_WLAN_MODE_11BE UINT32_C(0x40) /**< 802.11be: EHT. */
/** @} */

/** @name Channel state
 *  What a radio knows of a channel at present. See ravix_str_channel_state() and ravix_validate_channel_list().
 *  @{ */
#define RAVIX_CHANNEL_STATE_ACTIVE UINT32_C(0x001)      /**< Part of the channel in use. */
#define RAVIX_CHANNEL_STATE_PRI_CHAN UINT32_C(0x002)    /**< The primary channel. */
#define RAVIX_CHANNEL_STATE_PRECAC_TODO UINT32_C(0x004) /**< DFS: to be checked for radar ahead of use. */
#define RAVIX_CHANNEL_STATE_CAC_RUNNING UINT32_C(0x008) /**< DFS: channel availability check (CAC) is going on. */
#define RAVIX_CHANNEL_STATE_DFS_CLEAR UINT32_C(0x010)   /**< DFS: checked and free of radar. */
#define RAVIX_CHANNEL_STATE_RADAR_FOUND UINT32_C(0x020) /**< DFS: blocked, a radar was found. */
#define RAVIX_CHANNEL_STATE_INTERFERENCE_FOUND UINT32_C(0x040) /**< Disturbed by something that is not WLAN. */
#define RAVIX_CHANNEL_STATE_DFS_RESERVED UINT32_C(0x080)       /**< DFS: has no name and is never shown. */
#define RAVIX_CHANNEL_STATE_1_MINUTE_OFF UINT32_C(0x100)       /**< Off for one minute; on any channel. */
#define RAVIX_CHANNEL_STATE_10_MINUTES_OFF UINT32_C(0x200)     /**< Off for ten minutes; on any channel. */
#define RAVIX_CHANNEL_STATE_PUNCTURED UINT32_C(0x400) /**< Left out of the channel in use (802.11be puncturing). */
/** @} */

/** @name Channel user flags
 *  Why a channel is treated specially. See ravix_str_channel_user_flags().
 *  @{ */
#define RAVIX_CHANNEL_USER_FLAG_REMOTE_DISTURBER UINT32_C(0x1)         /**< Disturbed at a remote station. */
#define RAVIX_CHANNEL_USER_FLAG_PERFORMANCE_OPTIMIZATION UINT32_C(0x2) /**< For better performance. */
#define RAVIX_CHANNEL_USER_FLAG_DEBUG UINT32_C(0x4)                    /**< For debugging. */
/** @} */

/** Why a channel is left. 4 is unassigned. See ravix_str_channel_change_reason(). */
enum ravix_channel_change_reason {
  RAVIX_CHANNEL_CHANGE_REASON_INVALID_MIN = 0,  /**< Sentinel below the valid values. */
  RAVIX_CHANNEL_CHANGE_REASON_INTERFERENCE = 1, /**< Disturbed. */
  RAVIX_CHANNEL_CHANGE_REASON_RADAR = 2,        /**< A radar was detected. */
  RAVIX_CHANNEL_CHANGE_REASON_COEXISTENCE = 3,  /**< 20/40 MHz coexistence in 2.4 GHz. */
  RAVIX_CHANNEL_CHANGE_REASON_INVALID_MAX = 5   /**< Sentinel above the valid values. */
};

/** Radar signal that was detected. The numbers are the test signals of ETSI EN 301 893. See ravix_str_radar_type(). */
enum ravix_radar_type {
  RAVIX_RADAR_TYPE_INVALID_MIN = 0,      /**< Sentinel below the valid values. */
  RAVIX_RADAR_TYPE_ETSI_UNKNOWN = 1,     /**< ETSI rules, signal not identified. */
  RAVIX_RADAR_TYPE_ETSI_1 = 2,           /**< Test signal 1. */
  RAVIX_RADAR_TYPE_ETSI_2 = 3,           /**< Test signal 2. */
  RAVIX_RADAR_TYPE_ETSI_3 = 4,           /**< Test signal 3. */
  RAVIX_RADAR_TYPE_ETSI_4 = 5,           /**< Test signal 4. */
  RAVIX_RADAR_TYPE_ETSI_5 = 6,           /**< Test signal 5. */
  RAVIX_RADAR_TYPE_ETSI_6 = 7,           /**< Test signal 6. */
  RAVIX_RADAR_TYPE_ETSI_MXL_NORMAL = 8,  /**< Chip specific: fixed frequency. */
  RAVIX_RADAR_TYPE_ETSI_MXL_HOPPING = 9, /**< Chip specific: hopping frequency. */
  RAVIX_RADAR_TYPE_UNKNOWN = 10,         /**< Not identified. */
  RAVIX_RADAR_TYPE_INVALID_MAX = 11      /**< Sentinel above the valid values. */
};

/** @name Multi-link modes
 *  How a multi-link device (802.11be) uses its links: simultaneous transmit and receive (STR) or not (NSTR).
 *  See ravix_str_mlo_mode().
 *  @{ */
#define RAVIX_MLO_MODE_AUTO UINT32_C(0x01)       /**< The device chooses. */
#define RAVIX_MLO_MODE_MLSR UINT32_C(0x02)       /**< Multi-link, single radio. */
#define RAVIX_MLO_MODE_EMLSR_STR UINT32_C(0x04)  /**< Enhanced multi-link, single radio, STR. */
#define RAVIX_MLO_MODE_EMLSR_NSTR UINT32_C(0x08) /**< Enhanced multi-link, single radio, NSTR. */
#define RAVIX_MLO_MODE_MLMR_STR UINT32_C(0x10)   /**< Multi-link, multi-radio, STR. */
#define RAVIX_MLO_MODE_MLMR_NSTR UINT32_C(0x20)  /**< Multi-link, multi-radio, NSTR. */
#define RAVIX_MLO_MODE_EMLMR_STR UINT32_C(0x40)  /**< Enhanced multi-link, multi-radio, STR. */
#define RAVIX_MLO_MODE_EMLMR_NSTR UINT32_C(0x80) /**< Enhanced multi-link, multi-radio, NSTR. */
/** @} */

/** @} */

/** @defgroup enums_roles Device, roles and stations
 *  @ingroup enums
 *  @{ */

/** Kind of product. See ravix_str_device_class(). */
enum ravix_device_class {
  RAVIX_DEVICE_CLASS_INVALID_MIN = 0, /**< Sentinel below the valid values. */
  RAVIX_DEVICE_CLASS_ROUTER = 1,      /**< Router. */
  RAVIX_DEVICE_CLASS_REPEATER = 2,    /**< Repeater. */
  RAVIX_DEVICE_CLASS_POWERLINE = 3,   /**< Powerline adapter with WLAN. */
  RAVIX_DEVICE_CLASS_CLIENT = 4,      /**< Client. */
  RAVIX_DEVICE_CLASS_INVALID_MAX = 5  /**< Sentinel above the valid values. */
};

/** Operating mode of the device. 4 is unassigned. See ravix_str_device_opmode(). */
enum ravix_device_opmode {
  RAVIX_DEVICE_OPMODE_INVALID_MIN = 0, /**< Sentinel below the valid values. */
  RAVIX_DEVICE_OPMODE_AP = 1,          /**< Access point. */
  RAVIX_DEVICE_OPMODE_REPEATER = 2,    /**< Repeater: uplink and access point by WLAN. */
  RAVIX_DEVICE_OPMODE_ATA = 3,         /**< Takes its Internet access from another router. */
  RAVIX_DEVICE_OPMODE_CLIENT = 5,      /**< Client. */
  RAVIX_DEVICE_OPMODE_INACTIVE = 6,    /**< WLAN is not used. */
  RAVIX_DEVICE_OPMODE_INVALID_MAX = 7  /**< Sentinel above the valid values. */
};

/** Operating mode of a role. 4 and 5 are unassigned. See ravix_str_role_opmode() and ravix_role_opmode_from_str(). */
enum ravix_role_opmode {
  RAVIX_ROLE_OPMODE_INVALID_MIN = 0,     /**< Sentinel below the valid values. */
  RAVIX_ROLE_OPMODE_AP_HOME = 1,         /**< Access point of the home network. */
  RAVIX_ROLE_OPMODE_AP_GUEST = 2,        /**< Access point of the guest network. */
  RAVIX_ROLE_OPMODE_ATACLIENT = 3,       /**< Uplink to another router. */
  RAVIX_ROLE_OPMODE_REPEATER = 6,        /**< Uplink of a repeater. */
  RAVIX_ROLE_OPMODE_AP_HOTSPOT = 7,      /**< Access point of a public hotspot. */
  RAVIX_ROLE_OPMODE_AP_HOME_OWE = 8,     /**< Home access point, OWE side of a transition pair. */
  RAVIX_ROLE_OPMODE_AP_GUEST_OWE = 9,    /**< Guest access point, OWE side of a transition pair. */
  RAVIX_ROLE_OPMODE_AP_HOTSPOT_OWE = 10, /**< Hotspot access point, OWE side of a transition pair. */
  RAVIX_ROLE_OPMODE_INVALID_MAX = 11     /**< Sentinel above the valid values. */
};

/** What a role is doing. See ravix_str_role_state(). */
enum ravix_role_state {
  RAVIX_ROLE_STATE_INVALID_MIN = 0,        /**< Sentinel below the valid values. */
  RAVIX_ROLE_STATE_UNCONFIGURED = 1,       /**< Has no configuration yet. */
  RAVIX_ROLE_STATE_CONFIGURING = 2,        /**< Takes over its configuration. */
  RAVIX_ROLE_STATE_INACTIVE = 3,           /**< Configured and off. */
  RAVIX_ROLE_STATE_INITIATING = 4,         /**< Starting. */
  RAVIX_ROLE_STATE_SCANNING = 5,           /**< Scanning before it starts. */
  RAVIX_ROLE_STATE_DFS_WAIT = 6,           /**< Waiting for the channel availability check. */
  RAVIX_ROLE_STATE_ACS_ACTIVE = 7,         /**< Automatic channel selection is going on. */
  RAVIX_ROLE_STATE_WAIT_FOR_UPLINK = 8,    /**< Waiting for the uplink. */
  RAVIX_ROLE_STATE_UPLINK_ESTABLISHED = 9, /**< The uplink is connected. */
  RAVIX_ROLE_STATE_WPS_ACTIVE = 10,        /**< WPS is going on. */
  RAVIX_ROLE_STATE_ON_AIR = 11,            /**< Sending beacons. */
  RAVIX_ROLE_STATE_DEACTIVATED = 12,       /**< Switched off. */
  RAVIX_ROLE_STATE_CONFIGURED_FINAL = 13,  /**< Configuration is complete. */
  RAVIX_ROLE_STATE_INVALID_MAX = 14        /**< Sentinel above the valid values. */
};

/** Kind of a station. See ravix_str_station_type(). */
enum ravix_station_type {
  RAVIX_STATION_TYPE_INVALID_MIN = 0,    /**< Sentinel below the valid values. */
  RAVIX_STATION_TYPE_AP = 1,             /**< Access point. */
  RAVIX_STATION_TYPE_WDS = 2,            /**< Station of a wireless distribution system. */
  RAVIX_STATION_TYPE_CLIENT = 3,         /**< Client. */
  RAVIX_STATION_TYPE_ADHOC = 4,          /**< Station of an independent BSS. */
  RAVIX_STATION_TYPE_UNKNOWN = 5,        /**< Not known. */
  RAVIX_STATION_TYPE_ZEL_STA = 6,        /**< Station of the same maker. */
  RAVIX_STATION_TYPE_ZEL_AP = 7,         /**< Access point of the same maker. */
  RAVIX_STATION_TYPE_ZEL_AP_STALINK = 8, /**< Access point of the same maker, linked as a station. */
  RAVIX_STATION_TYPE_INVALID_MAX = 9     /**< Sentinel above the valid values. */
};

/** How far a station is connected. See ravix_str_sta_state(). */
enum ravix_sta_state {
  RAVIX_STA_STATE_INVALID_MIN = 0,   /**< Sentinel below the valid values. */
  RAVIX_STA_STATE_DISCONNECTED = 1,  /**< Not connected. */
  RAVIX_STA_STATE_AUTHENTICATED = 2, /**< 802.11 authentication is done. */
  RAVIX_STA_STATE_ASSOCIATED = 3,    /**< Associated. */
  RAVIX_STA_STATE_CONNECTED = 4,     /**< Associated, and keys are set. */
  RAVIX_STA_STATE_UNKNOWN = 5,       /**< Not known. */
  RAVIX_STA_STATE_INVALID_MAX = 6    /**< Sentinel above the valid values. */
};

/** What a list of MAC addresses means. See ravix_str_mac_access_type(). */
enum ravix_mac_access_type {
  RAVIX_MAC_ACCESS_TYPE_INVALID_MIN = 0, /**< Sentinel below the valid values. */
  RAVIX_MAC_ACCESS_TYPE_WHITELIST = 1,   /**< Only the listed stations are admitted. */
  RAVIX_MAC_ACCESS_TYPE_BLACKLIST = 2,   /**< The listed stations are refused. */
  RAVIX_MAC_ACCESS_TYPE_INVALID_MAX = 3  /**< Sentinel above the valid values. */
};

/** What sets off a special handling. See ravix_str_special_handling_trigger(). */
enum ravix_special_handling_trigger {
  RAVIX_SPECIAL_HANDLING_TRIGGER_INVALID_MIN = 0,     /**< Sentinel below the valid values. */
  RAVIX_SPECIAL_HANDLING_TRIGGER_CHANGE_CFG = 1,      /**< The configuration changed. */
  RAVIX_SPECIAL_HANDLING_TRIGGER_CHANGE_COUNTRY = 2,  /**< The country changed. */
  RAVIX_SPECIAL_HANDLING_TRIGGER_CHANGE_LANGUAGE = 3, /**< The language changed. */
  RAVIX_SPECIAL_HANDLING_TRIGGER_CHANGE_FW = 4,       /**< The firmware changed. */
  RAVIX_SPECIAL_HANDLING_TRIGGER_INVALID_MAX = 5      /**< Sentinel above the valid values. */
};

/** @name Role features (64 bits)
 *  See ravix_str_features().
 *  @{ */
#define RAVIX_FEATURE_HIDDEN_SSID UINT64_C(0x1)     /**< The SSID is not announced. */
#define RAVIX_FEATURE_USER_ISOLATION UINT64_C(0x4)  /**< Stations cannot reach each other. */
#define RAVIX_FEATURE_AUTO_CHANNEL UINT64_C(0x8)    /**< The channel is chosen automatically. */
#define RAVIX_FEATURE_IPTV_OPTIMIZE UINT64_C(0x20)  /**< Optimised for television streams. */
#define RAVIX_FEATURE_COEXISTENCE UINT64_C(0x400)   /**< 20/40 MHz coexistence. */
#define RAVIX_FEATURE_TIME_CONTROL UINT64_C(0x8000) /**< Switched by a time table. */
/** @} */

/** @name Capabilities of a BSS or a station
 *  See ravix_str_capabilities().
 *  @{ */
#define RAVIX_CAPABILITY_WPA_PSK UINT32_C(0x00000001)       /**< WPA with a pre-shared key. */
#define RAVIX_CAPABILITY_WPA_ENT UINT32_C(0x00000002)       /**< WPA with 802.1X. */
#define RAVIX_CAPABILITY_WPA2_PSK UINT32_C(0x00000004)      /**< WPA2 with a pre-shared key. */
#define RAVIX_CAPABILITY_WPA2_ENT UINT32_C(0x00000008)      /**< WPA2 with 802.1X. */
#define RAVIX_CAPABILITY_WPS UINT32_C(0x00000010)           /**< Wi-Fi Protected Setup. */
#define RAVIX_CAPABILITY_WME UINT32_C(0x00000020)           /**< Wireless multimedia extensions. */
#define RAVIX_CAPABILITY_QCA UINT32_C(0x00000040)           /**< Chip of this maker. */
#define RAVIX_CAPABILITY_PRIVACY UINT32_C(0x00000080)       /**< Frames are encrypted. */
#define RAVIX_CAPABILITY_STBC UINT32_C(0x00000100)          /**< Space-time block coding. */
#define RAVIX_CAPABILITY_LDPC UINT32_C(0x00000200)          /**< Low-density parity-check coding. */
#define RAVIX_CAPABILITY_WME_PS UINT32_C(0x00000400)        /**< WME power save. */
#define RAVIX_CAPABILITY_TXBF UINT32_C(0x00000800)          /**< Transmit beamforming. */
#define RAVIX_CAPABILITY_PMF UINT32_C(0x00001000)           /**< Protected management frames (802.11w). */
#define RAVIX_CAPABILITY_AMSDU UINT32_C(0x00002000)         /**< A-MSDU aggregation. */
#define RAVIX_CAPABILITY_AMPDU UINT32_C(0x00004000)         /**< A-MPDU aggregation. */
#define RAVIX_CAPABILITY_UAPSD UINT32_C(0x00008000)         /**< Automatic power save delivery. */
#define RAVIX_CAPABILITY_MUMIMO UINT32_C(0x00010000)        /**< Multi-user MIMO. */
#define RAVIX_CAPABILITY_2GHZ UINT32_C(0x00020000)          /**< 2.4 GHz. */
#define RAVIX_CAPABILITY_5GHZ UINT32_C(0x00040000)          /**< 5 GHz. */
#define RAVIX_CAPABILITY_RRM UINT32_C(0x00080000)           /**< Radio resource measurement (802.11k). */
#define RAVIX_CAPABILITY_FBT UINT32_C(0x00100000)           /**< Fast BSS transition (802.11r). */
#define RAVIX_CAPABILITY_BTM UINT32_C(0x00200000)           /**< BSS transition management (802.11v). */
#define RAVIX_CAPABILITY_11N_2G_256QAM UINT32_C(0x00400000) /**< 802.11n with 256-QAM in 2.4 GHz. */
#define RAVIX_CAPABILITY_WPA3_PSK UINT32_C(0x00800000)      /**< WPA3 with SAE. */
#define RAVIX_CAPABILITY_OWE UINT32_C(0x01000000)           /**< Opportunistic wireless encryption. */
#define RAVIX_CAPABILITY_OWE_TRANS UINT32_C(0x02000000)     /**< OWE transition mode. */
#define RAVIX_CAPABILITY_11NAC_1024QAM UINT32_C(0x04000000) /**< 802.11n or 802.11ac with 1024-QAM. */
#define RAVIX_CAPABILITY_6GHZ UINT32_C(0x08000000)          /**< 6 GHz. */
#define RAVIX_CAPABILITY_MLO UINT32_C(0x10000000)           /**< Multi-link operation (802.11be). */
#define RAVIX_CAPABILITY_MINI UINT32_C(0x20000000)          /**< Device of the small product line. */
#define RAVIX_CAPABILITY_ZELWDS UINT32_C(0x40000000)        /**< WDS of the same maker. */
#define RAVIX_CAPABILITY_ZEL UINT32_C(0x80000000)           /**< Device of the same maker. */
/** @} */

/** @} */

/** @defgroup enums_security Security
 *  @ingroup enums
 *  @{ */

/** Security of a role. 3 and 4 are unassigned. See ravix_str_security(). */
enum ravix_security {
  RAVIX_SECURITY_INVALID_MIN = 0, /**< Sentinel below the valid values. */
  RAVIX_SECURITY_UNDEF = 1,       /**< Not defined. */
  RAVIX_SECURITY_NONE = 2,        /**< Open. */
  RAVIX_SECURITY_WPAPSK = 5,      /**< WPA with a pre-shared key. */
  RAVIX_SECURITY_WPA2PSK = 6,     /**< WPA2 with a pre-shared key. */
  RAVIX_SECURITY_WPA_MIXED = 7,   /**< WPA and WPA2 with a pre-shared key. */
  RAVIX_SECURITY_WPAENT = 8,      /**< WPA with 802.1X. */
  RAVIX_SECURITY_WPA2ENT = 9,     /**< WPA2 with 802.1X. */
  RAVIX_SECURITY_WPA3PSK = 10,    /**< WPA3 with SAE. */
  RAVIX_SECURITY_WPA2_WPA3 = 11,  /**< WPA2 and WPA3. */
  RAVIX_SECURITY_OWE = 12,        /**< Opportunistic wireless encryption. */
  RAVIX_SECURITY_OWE_TRANS = 13,  /**< OWE transition mode. */
  RAVIX_SECURITY_INVALID_MAX = 14 /**< Sentinel above the valid values. */
};

/** Kind of encryption. See ravix_str_encryption(). */
enum ravix_encryption {
  RAVIX_ENCRYPTION_INVALID_MIN = 0, /**< Sentinel below the valid values. */
  RAVIX_ENCRYPTION_OPEN = 1,        /**< None. */
  RAVIX_ENCRYPTION_RSN = 2,         /**< RSN (WPA2, WPA3). */
  RAVIX_ENCRYPTION_WPA_MIXED = 3,   /**< WPA beside RSN. */
  RAVIX_ENCRYPTION_INVALID_MAX = 4  /**< Sentinel above the valid values. */
};

/** Authentication and key management suite. See ravix_str_encryption_akm(). */
enum ravix_encryption_akm {
  RAVIX_ENCRYPTION_AKM_INVALID_MIN = 0, /**< Sentinel below the valid values. */
  RAVIX_ENCRYPTION_AKM_PSK = 1,         /**< Pre-shared key. */
  RAVIX_ENCRYPTION_AKM_SAE = 2,         /**< Simultaneous authentication of equals. */
  RAVIX_ENCRYPTION_AKM_OWE = 3,         /**< Opportunistic wireless encryption. */
  RAVIX_ENCRYPTION_AKM_SAE_EXT = 4,     /**< SAE with group-dependent hash (extended key). */
  RAVIX_ENCRYPTION_AKM_INVALID_MAX = 5  /**< Sentinel above the valid values. */
};

/** Pairwise or group cipher suite. See ravix_str_encryption_cipher_suite(). */
enum ravix_encryption_cipher_suite {
  RAVIX_ENCRYPTION_CIPHER_SUITE_INVALID_MIN = 0, /**< Sentinel below the valid values. */
  RAVIX_ENCRYPTION_CIPHER_SUITE_TKIP = 1,        /**< TKIP. */
  RAVIX_ENCRYPTION_CIPHER_SUITE_CCMP128 = 2,     /**< CCMP with a 128-bit key. */
  RAVIX_ENCRYPTION_CIPHER_SUITE_GCMP256 = 3,     /**< GCMP with a 256-bit key. */
  RAVIX_ENCRYPTION_CIPHER_SUITE_INVALID_MAX = 4  /**< Sentinel above the valid values. */
};

/** Group management cipher suite. See ravix_str_encryption_group_mgmt_cipher(). */
enum ravix_encryption_group_mgmt_cipher {
  RAVIX_ENCRYPTION_GROUP_MGMT_CIPHER_INVALID_MIN = 0, /**< Sentinel below the valid values. */
  RAVIX_ENCRYPTION_GROUP_MGMT_CIPHER_BIP_CMAC128 = 1, /**< BIP-CMAC-128. */
  RAVIX_ENCRYPTION_GROUP_MGMT_CIPHER_BIP_GMAC256 = 2, /**< BIP-GMAC-256. */
  RAVIX_ENCRYPTION_GROUP_MGMT_CIPHER_INVALID_MAX = 3  /**< Sentinel above the valid values. */
};

/** Protected management frames (802.11w). See ravix_str_pmf_mode(). */
enum ravix_pmf_mode {
  RAVIX_PMF_MODE_INVALID_MIN = 0, /**< Sentinel below the valid values. */
  RAVIX_PMF_MODE_DISABLED = 1,    /**< Not used. */
  RAVIX_PMF_MODE_SUPPORTED = 2,   /**< Used with stations that can. */
  RAVIX_PMF_MODE_MANDATORY = 3,   /**< Required. */
  RAVIX_PMF_MODE_INVALID_MAX = 4  /**< Sentinel above the valid values. */
};

/** How SAE derives its password element. See ravix_str_pwe_mode(). */
enum ravix_pwe_mode {
  RAVIX_PWE_MODE_INVALID_MIN = 0, /**< Sentinel below the valid values. */
  RAVIX_PWE_MODE_HAP = 1,         /**< Hunting and pecking. */
  RAVIX_PWE_MODE_HAP_H2E = 2,     /**< Either. */
  RAVIX_PWE_MODE_H2E = 3,         /**< Hash to element. */
  RAVIX_PWE_MODE_INVALID_MAX = 4  /**< Sentinel above the valid values. */
};

/** @} */

/** @defgroup enums_events Events and connecting
 *  @ingroup enums
 *  @{ */

/** Kind of an event. See ravix_str_event(). */
enum ravix_event_kind {
  RAVIX_EVENT_INVALID_MIN = 0,             /**< Sentinel below the valid values. */
  RAVIX_EVENT_SCAN_FINISHED = 1,           /**< A scan has ended. */
  RAVIX_EVENT_RADIOD_TERMINATED = 2,       /**< The daemon ends. */
  RAVIX_EVENT_LOG_EVENT = 3,               /**< Something worth the log. */
  RAVIX_EVENT_CLIENT_STATE_CHANGE = 4,     /**< The state of a client changed. */
  RAVIX_EVENT_BSS_TRANSITION_RESPONSE = 5, /**< A client answered a BSS transition request. */
  RAVIX_EVENT_BEACON_REPORT_RESPONSE = 6,  /**< A client sent a beacon report. */
  RAVIX_EVENT_RSSI_UPDATE = 7,             /**< New signal values of clients. */
  RAVIX_EVENT_MEDIUM_LOAD_UPDATE = 8,      /**< New load of the medium. */
  RAVIX_EVENT_PROBE_REQUEST_EVENT = 9,     /**< A probe request was heard. */
  RAVIX_EVENT_STA_ACTIVITY_UPDATE = 10,    /**< New activity of stations. */
  RAVIX_EVENT_GREEN_AP = 11,               /**< Energy saving changed. */
  RAVIX_EVENT_RADAR_DETECTED = 12,         /**< A radar was detected. */
  RAVIX_EVENT_RADAR_WAIT = 13,             /**< A channel availability check began or ended. */
  RAVIX_EVENT_RADAR_PRECAC = 14,           /**< A check ahead of use began or ended. */
  RAVIX_EVENT_CHANNEL_CHANGE = 15,         /**< The channel changed. */
  RAVIX_EVENT_INTERFERENCE = 16,           /**< Interference was detected. */
  RAVIX_EVENT_COEXISTENCE_SWITCH = 17,     /**< The width changed for 20/40 MHz coexistence. */
  RAVIX_EVENT_ROLE_STATE_CHANGE = 18,      /**< The state of a role changed. */
  RAVIX_EVENT_BSS_TRANSITION_QUERY = 19,   /**< A client asked for a BSS transition. */
  RAVIX_EVENT_CONNECT = 20,                /**< A connect session went on. */
  RAVIX_EVENT_INVALID_MAX = 21             /**< Sentinel above the valid values. */
};

/** Event that can be simulated for tests.
 *  See ravix_str_simulated_event_type() and ravix_simulated_event_type_from_str(). */
enum ravix_simulated_event_type {
  RAVIX_SIMULATED_EVENT_TYPE_INVALID_MIN = 0,  /**< Sentinel below the valid values. */
  RAVIX_SIMULATED_EVENT_TYPE_RADAR = 1,        /**< Radar detection. */
  RAVIX_SIMULATED_EVENT_TYPE_INTERFERENCE = 2, /**< Interference. */
  RAVIX_SIMULATED_EVENT_TYPE_INVALID_MAX = 3   /**< Sentinel above the valid values. */
};

/** @name Event log control
 *  Which messages become log events. See ravix_str_event_log_control().
 *  @{ */
#define RAVIX_EVENT_LOG_CONTROL_INFO UINT32_C(0x1)    /**< Information. */
#define RAVIX_EVENT_LOG_CONTROL_WARNING UINT32_C(0x2) /**< Warnings. */
#define RAVIX_EVENT_LOG_CONTROL_ERROR UINT32_C(0x4)   /**< Errors. */
/** @} */

/** How a station is connected. See ravix_str_connect_method() and ravix_connect_method_from_str(). */
enum ravix_connect_method {
  RAVIX_CONNECT_METHOD_INVALID_MIN = 0, /**< Sentinel below the valid values. */
  RAVIX_CONNECT_METHOD_PBC = 1,         /**< Push button. */
  RAVIX_CONNECT_METHOD_INVALID_MAX = 2  /**< Sentinel above the valid values. */
};

/** Where a connect session stands. Negative: it failed. See ravix_str_connect_status(). */
enum ravix_connect_status {
  RAVIX_CONNECT_STATUS_DPP_START = 2,         /**< Device provisioning begins. */
  RAVIX_CONNECT_STATUS_WALKING = 1,           /**< The time to act on the other device is running. */
  RAVIX_CONNECT_STATUS_SUCCESS = 0,           /**< Connected. */
  RAVIX_CONNECT_STATUS_FAIL_GENERAL = -1,     /**< Failed for a reason without a code of its own. */
  RAVIX_CONNECT_STATUS_FAIL_TIMEOUT = -2,     /**< Not done in time. */
  RAVIX_CONNECT_STATUS_FAIL_TERMINATE = -3,   /**< Terminated. */
  RAVIX_CONNECT_STATUS_FAIL_NOT_ALLOWED = -4, /**< Not allowed. */
  RAVIX_CONNECT_STATUS_FAIL_DFS_RUNNING = -5, /**< Radar detection is going on. */
  RAVIX_CONNECT_STATUS_FAIL_OVERLAP = -6      /**< More than one device acts at once. */
};

/** @} */

/** @defgroup enums_param Configuration parameters
 *  @ingroup enums
 *  @{ */

/** Identifiers of configuration parameters, named as the parameters. 18, 104 and 105 are unassigned; `INVALID_MAX`
 * stands before `IGNORE`, which came later. See ravix_str_param_id(). */
enum ravix_param_id {
  RAVIX_PARAM_ID_INVALID_MIN = 0, /**< Sentinel below the valid values. */
  RAVIX_PARAM_ID_GROUP = 1,
  RAVIX_PARAM_ID_CTL_LOGLVL = 2,
  RAVIX_PARAM_ID_MLD_ROLE_LIST = 3,
  RAVIX_PARAM_ID_ROLE_CONFIG = 4,
  RAVIX_PARAM_ID_ENABLED = 5,
  RAVIX_PARAM_ID_CONFIGURED = 6,
  RAVIX_PARAM_ID_FORCE_OFF = 7,
  RAVIX_PARAM_ID_WLAN_MODE = 8,
  RAVIX_PARAM_ID_CHANNEL_WIDTH = 9,
  RAVIX_PARAM_ID_CHANNEL = 10,
  RAVIX_PARAM_ID_CHANNEL_EX = 11,
  RAVIX_PARAM_ID_AUTO_SETTINGS = 12,
  RAVIX_PARAM_ID_AUTOCHANNEL_PLUS = 13,
  RAVIX_PARAM_ID_STATION_TYPE = 14,
  RAVIX_PARAM_ID_ROLE_OPMODE = 15,
  RAVIX_PARAM_ID_POWER_LEVEL = 16,
  RAVIX_PARAM_ID_KEY_VAL = 17,
  RAVIX_PARAM_ID_SSID = 19,
  RAVIX_PARAM_ID_MAC_LIST = 20,
  RAVIX_PARAM_ID_SECURITY = 21,
  RAVIX_PARAM_ID_OWE_TRANSITION_ACTIVE = 22,
  RAVIX_PARAM_ID_OWE_TRANSITION_BSSID = 23,
  RAVIX_PARAM_ID_OWE_TRANSITION_SSID = 24,
  RAVIX_PARAM_ID_OWE_TRANSITION_ROLE = 25,
  RAVIX_PARAM_ID_WPS_VERSION = 26,
  RAVIX_PARAM_ID_WPS_ENABLE = 27,
  RAVIX_PARAM_ID_WPS_MODE = 28,
  RAVIX_PARAM_ID_WPS_DEVICENAME = 29,
  RAVIX_PARAM_ID_WPS_DEVICE_PASSWORD = 30,
  RAVIX_PARAM_ID_WPS_UUID = 31,
  RAVIX_PARAM_ID_WPS_CF_METHODS_SUP = 32,
  RAVIX_PARAM_ID_WPS_CF_METHODS_EN = 33,
  RAVIX_PARAM_ID_WPS_SETUP_LOCKED_STATE = 34,
  RAVIX_PARAM_ID_WPS_SETUP_LOCK = 35,
  RAVIX_PARAM_ID_WPS_CFG_STATE = 36,
  RAVIX_PARAM_ID_WPS_LAST_CFG_ERROR = 37,
  RAVIX_PARAM_ID_RSSI = 38,
  RAVIX_PARAM_ID_TIME_AGE = 39,
  RAVIX_PARAM_ID_TIME_BLOCKED = 40,
  RAVIX_PARAM_ID_RADIOBAND = 41,
  RAVIX_PARAM_ID_CAPABILITIES = 42,
  RAVIX_PARAM_ID_FREQUENCY = 43,
  RAVIX_PARAM_ID_QUALITY = 44,
  RAVIX_PARAM_ID_NOISE = 45,
  RAVIX_PARAM_ID_WDS_MASTER_MAC = 46,
  RAVIX_PARAM_ID_FEATURES = 47,
  RAVIX_PARAM_ID_TIMEOUT_ACTIVE = 48,
  RAVIX_PARAM_ID_TIMEOUT_MINUTES = 49,
  RAVIX_PARAM_ID_BRIDGE_MODE = 50,
  RAVIX_PARAM_ID_NETWORK_TYPE = 51,
  RAVIX_PARAM_ID_MAX_CLIENTS = 52,
  RAVIX_PARAM_ID_MIN_CLIENT_RSSI = 53,
  RAVIX_PARAM_ID_MAX_CLIENT_LOGIN_TIME = 54,
  RAVIX_PARAM_ID_MAX_CLIENT_IDLE_TIME = 55,
  RAVIX_PARAM_ID_MAX_CLIENT_TRAFFIC = 56,
  RAVIX_PARAM_ID_AUTH_SERVER = 57,
  RAVIX_PARAM_ID_ACCT_SERVER = 58,
  RAVIX_PARAM_ID_ACCESS_CONTROL_MAX_CLIENTS = 59,
  RAVIX_PARAM_ID_AUTOCHANNEL_PLUS_11A = 60,
  RAVIX_PARAM_ID_MIMO_STREAMS = 61,
  RAVIX_PARAM_ID_AVG_TX_RATE = 62,
  RAVIX_PARAM_ID_AVG_RX_RATE = 63,
  RAVIX_PARAM_ID_MAX_TX_RATE = 64,
  RAVIX_PARAM_ID_MAX_RX_RATE = 65,
  RAVIX_PARAM_ID_CONNECTED = 66,
  RAVIX_PARAM_ID_AUTO_UPDATE = 67,
  RAVIX_PARAM_ID_PMF_MODE = 68,
  RAVIX_PARAM_ID_MEDIUM_CHANNEL_LOAD = 69,
  RAVIX_PARAM_ID_RADIO_SUB_BAND = 70,
  RAVIX_PARAM_ID_HW_ID = 71,
  RAVIX_PARAM_ID_SSID_SET = 72,
  RAVIX_PARAM_ID_IP_ADDR = 73,
  RAVIX_PARAM_ID_PORT = 74,
  RAVIX_PARAM_ID_ACCESS_CONTROL = 75,
  RAVIX_PARAM_ID_ACCESS_CONTROL_ROLE = 76,
  RAVIX_PARAM_ID_TIME_CONTROL = 77,
  RAVIX_PARAM_ID_COUNTRY_CODE = 78,
  RAVIX_PARAM_ID_VENDOR_ID = 79,
  RAVIX_PARAM_ID_ACS_CONTROL = 80,
  RAVIX_PARAM_ID_CHIP_TYPE = 81,
  RAVIX_PARAM_ID_CFG_SECURITY = 82,
  RAVIX_PARAM_ID_GUEST_MODE = 83,
  RAVIX_PARAM_ID_IDENTIFIER = 84,
  RAVIX_PARAM_ID_ROLE_STATIC = 85,
  RAVIX_PARAM_ID_RADIO_STATIC = 86,
  RAVIX_PARAM_ID_RADIUS_SECRET = 87,
  RAVIX_PARAM_ID_RADIUS_SERVER = 88,
  RAVIX_PARAM_ID_STRING = 89,
  RAVIX_PARAM_ID_UPLINK = 90,
  RAVIX_PARAM_ID_LANGUAGE = 91,
  RAVIX_PARAM_ID_COUNTRY = 92,
  RAVIX_PARAM_ID_DBG_SETTINGS = 93,
  RAVIX_PARAM_ID_DEVICE_OPMODE = 94,
  RAVIX_PARAM_ID_LOG_CONTROL = 95,
  RAVIX_PARAM_ID_KCL = 96,
  RAVIX_PARAM_ID_MESH_SETTINGS = 97,
  RAVIX_PARAM_ID_REPEATING = 98,
  RAVIX_PARAM_ID_MAC = 99,
  RAVIX_PARAM_ID_DESCR = 100,
  RAVIX_PARAM_ID_MAC_ADDR_INDEX = 101,
  RAVIX_PARAM_ID_IF_NAME = 102,
  RAVIX_PARAM_ID_CHANNEL_INFO = 103,
  RAVIX_PARAM_ID_PUNCTURE_MAP = 106,
  RAVIX_PARAM_ID_MLO_LINK_ID = 107,
  RAVIX_PARAM_ID_MLO_MODES_SUPPORTED = 108,
  RAVIX_PARAM_ID_MLD_MAC = 109,
  RAVIX_PARAM_ID_RSN_ELEMENT = 110,
  RAVIX_PARAM_ID_RSNO_ELEMENTS = 111,
  RAVIX_PARAM_ID_HAL_ID_END = 112,
  RAVIX_PARAM_ID_INVALID_MAX = 113, /**< Sentinel above the valid values. */
  RAVIX_PARAM_ID_IGNORE = 114
};

/**
 * Every enumeration whose values have names, for code that does the same for all of them: ENUMERATION is a macro of the
 * name, as in ravix_str_<name>(), the type which that function takes, and the one as which it shows a value without a
 * name.
 */
#define RAVIX_ENUMERATIONS(ENUMERATION)                                                                                \
  ENUMERATION(device_class, uint32_t, uint32_t)                                                                        \
  ENUMERATION(encryption, uint32_t, uint32_t)                                                                          \
  ENUMERATION(encryption_akm, uint32_t, uint32_t)                                                                      \
  ENUMERATION(encryption_cipher_suite, uint32_t, uint32_t)                                                             \
  ENUMERATION(encryption_group_mgmt_cipher, uint32_t, uint32_t)                                                        \
  ENUMERATION(pmf_mode, uint32_t, uint32_t)                                                                            \
  ENUMERATION(pwe_mode, uint32_t, uint32_t)                                                                            \
  ENUMERATION(radio_band, uint32_t, uint32_t)                                                                          \
  ENUMERATION(radio_sub_band, uint32_t, uint32_t)                                                                      \
  ENUMERATION(mac_access_type, uint32_t, uint32_t)                                                                     \
  ENUMERATION(simulated_event_type, uint32_t, uint32_t)                                                                \
  ENUMERATION(role_opmode, uint32_t, uint32_t)                                                                         \
  ENUMERATION(station_type, uint32_t, uint32_t)                                                                        \
  ENUMERATION(sta_state, uint32_t, uint32_t)                                                                           \
  ENUMERATION(special_handling_trigger, uint32_t, uint32_t)                                                            \
  ENUMERATION(security, uint32_t, uint32_t)                                                                            \
  ENUMERATION(role_state, uint32_t, uint32_t)                                                                          \
  ENUMERATION(radar_type, uint32_t, uint32_t)                                                                          \
  ENUMERATION(event, uint32_t, uint32_t)                                                                               \
  ENUMERATION(device_opmode, uint32_t, uint32_t)                                                                       \
  ENUMERATION(connect_status, int32_t, int32_t)                                                                        \
  ENUMERATION(connect_method, int32_t, uint32_t)                                                                       \
  ENUMERATION(channel_width, uint32_t, uint32_t)                                                                       \
  ENUMERATION(channel_change_reason, uint32_t, uint32_t)                                                               \
  ENUMERATION(param_id, uint32_t, uint32_t)

/** Every set of flags that have names: FLAG_SET is a macro of the name and the type which ravix_str_<name>() takes. */
#define RAVIX_FLAG_SETS(FLAG_SET)                                                                                      \
  FLAG_SET(channel_capabilities, uint32_t)                                                                             \
  FLAG_SET(wlan_mode, uint32_t)                                                                                        \
  FLAG_SET(channel_user_flags, uint32_t)                                                                               \
  FLAG_SET(event_log_control, uint32_t)                                                                                \
  FLAG_SET(mlo_mode, uint32_t)                                                                                         \
  FLAG_SET(features, uint64_t)                                                                                         \
  FLAG_SET(channel_state, uint32_t)                                                                                    \
  FLAG_SET(capabilities, uint32_t)

/** @} */

#endif
