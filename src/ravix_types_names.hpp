// The names of the interface's values and flags: each list stands here once, for formatters and parsers.
#pragma once

#include "ravix_types_enums.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <string_view>

namespace zel::ravix {

// Bytes that may be read from the begin of any name, so that a name can be copied in blocks.
inline constexpr std::size_t name_block = 32;

// A list of names as it lies in memory: without pointers, so that it is the same wherever the library is loaded.
template <class V, std::size_t Count, std::size_t Characters> struct name_table {
  using Value = V;
  static constexpr std::size_t characters = Characters; // of all names, each with its terminator

  std::array<Value, Count> values;
  std::array<std::uint16_t, Count + 1> begins; // of the names in `text`, and the end of the last
  std::array<char, Characters + name_block> text;
};

// A text as the argument of a template.
template <std::size_t Size> struct literal {
  char text[Size];
  consteval literal(const char (&from)[Size]) { std::copy_n(from, Size, text); } // NOLINT(google-explicit-constructor)
};

// The table of values whose names are listed with ", " between them, each without the prefix that all of them share.
template <literal Prefix, literal Names, class Value, std::size_t Count>
consteval auto make_name_table(const Value (&values)[Count]) {
  constexpr std::string_view prefix = Prefix.text;
  name_table<Value, Count, sizeof Names.text + 1 - Count * sizeof Prefix.text> table{};
  std::string_view rest = Names.text;
  std::size_t at = 0;
  for (std::size_t i = 0; i < Count; ++i) {
    const std::string_view name = rest.substr(0, rest.find(", "));
    if (!name.starts_with(prefix) || name.size() >= prefix.size() + name_block) {
      throw "a name has another prefix or is too long"; // what throws does not compile
    }
    table.values[i] = values[i];
    at += name.copy(&table.text[at], name.size() - prefix.size(), prefix.size()) + 1;
    table.begins[i + 1] = static_cast<std::uint16_t>(at);
    rest.remove_prefix(std::min(name.size() + 2, rest.size()));
  }
  if (!rest.empty() || at > std::numeric_limits<std::uint16_t>::max()) {
    throw "there are more names than values, or too many";
  }
  return table;
}

// Values that are named by their enumerators.
#define RAVIX_NAMES(VALUE, PREFIX, ...) make_name_table<PREFIX, #__VA_ARGS__, VALUE>({__VA_ARGS__})

// A name table of any size.
template <class Value> struct name_list {
  const Value *values = nullptr;
  const std::uint16_t *begins = nullptr;
  const char *text = nullptr;
  std::size_t count = 0;

  constexpr name_list() = default;
  template <std::size_t Count, std::size_t Characters>
  constexpr name_list(const name_table<Value, Count, Characters> &table) // NOLINT(google-explicit-constructor)
      : values(table.values.data()), begins(table.begins.data()), text(table.text.data()), count(Count) {}

  constexpr const char *name(std::size_t index) const { return text + begins[index]; }
  constexpr std::size_t length(std::size_t index) const { return std::size_t{begins[index + 1]} - begins[index] - 1; }
};

inline constexpr auto status_names =
    RAVIX_NAMES(std::int32_t, "RAVIX_STATUS_", RAVIX_STATUS_SUCCESS, RAVIX_STATUS_FINISHED, RAVIX_STATUS_PENDING,
                RAVIX_STATUS_READY, RAVIX_STATUS_CANCELED, RAVIX_STATUS_TIMEOUT, RAVIX_STATUS_FAIL_GENERAL,
                RAVIX_STATUS_FAIL_NOT_SUPPORTED, RAVIX_STATUS_FAIL_NOT_APPLICABLE, RAVIX_STATUS_FAIL_SUBORDINATED,
                RAVIX_STATUS_FAIL_PARSING);

inline constexpr auto device_class_names =
    RAVIX_NAMES(std::int32_t, "RAVIX_DEVICE_CLASS_", RAVIX_DEVICE_CLASS_INVALID_MIN, RAVIX_DEVICE_CLASS_ROUTER,
                RAVIX_DEVICE_CLASS_REPEATER, RAVIX_DEVICE_CLASS_POWERLINE, RAVIX_DEVICE_CLASS_CLIENT,
                RAVIX_DEVICE_CLASS_INVALID_MAX);

inline constexpr auto encryption_names =
    RAVIX_NAMES(std::int32_t, "RAVIX_ENCRYPTION_", RAVIX_ENCRYPTION_INVALID_MIN, RAVIX_ENCRYPTION_OPEN,
                RAVIX_ENCRYPTION_RSN, RAVIX_ENCRYPTION_WPA_MIXED, RAVIX_ENCRYPTION_INVALID_MAX);

inline constexpr auto encryption_akm_names = RAVIX_NAMES(
    std::int32_t, "RAVIX_ENCRYPTION_AKM_", RAVIX_ENCRYPTION_AKM_INVALID_MIN, RAVIX_ENCRYPTION_AKM_PSK,
    RAVIX_ENCRYPTION_AKM_SAE, RAVIX_ENCRYPTION_AKM_OWE, RAVIX_ENCRYPTION_AKM_SAE_EXT, RAVIX_ENCRYPTION_AKM_INVALID_MAX);

inline constexpr auto encryption_cipher_suite_names =
    RAVIX_NAMES(std::int32_t, "RAVIX_ENCRYPTION_CIPHER_SUITE_", RAVIX_ENCRYPTION_CIPHER_SUITE_INVALID_MIN,
                RAVIX_ENCRYPTION_CIPHER_SUITE_TKIP, RAVIX_ENCRYPTION_CIPHER_SUITE_CCMP128,
                RAVIX_ENCRYPTION_CIPHER_SUITE_GCMP256, RAVIX_ENCRYPTION_CIPHER_SUITE_INVALID_MAX);

inline constexpr auto encryption_group_mgmt_cipher_names =
    RAVIX_NAMES(std::int32_t, "RAVIX_ENCRYPTION_GROUP_MGMT_CIPHER_", RAVIX_ENCRYPTION_GROUP_MGMT_CIPHER_INVALID_MIN,
                RAVIX_ENCRYPTION_GROUP_MGMT_CIPHER_BIP_CMAC128, RAVIX_ENCRYPTION_GROUP_MGMT_CIPHER_BIP_GMAC256,
                RAVIX_ENCRYPTION_GROUP_MGMT_CIPHER_INVALID_MAX);

inline constexpr auto pmf_mode_names =
    RAVIX_NAMES(std::int32_t, "RAVIX_PMF_MODE_", RAVIX_PMF_MODE_INVALID_MIN, RAVIX_PMF_MODE_DISABLED,
                RAVIX_PMF_MODE_SUPPORTED, RAVIX_PMF_MODE_MANDATORY, RAVIX_PMF_MODE_INVALID_MAX);

inline constexpr auto pwe_mode_names =
    RAVIX_NAMES(std::int32_t, "RAVIX_PWE_MODE_", RAVIX_PWE_MODE_INVALID_MIN, RAVIX_PWE_MODE_HAP, RAVIX_PWE_MODE_HAP_H2E,
                RAVIX_PWE_MODE_H2E, RAVIX_PWE_MODE_INVALID_MAX);

inline constexpr auto radio_band_names =
    make_name_table<"", "INVALID_MIN, 2.4 GHz, 5 GHz, 6 GHz, INVALID_MAX", std::int32_t>(
        {RAVIX_RADIO_BAND_INVALID_MIN, RAVIX_RADIO_BAND_2GHZ, RAVIX_RADIO_BAND_5GHZ, RAVIX_RADIO_BAND_6GHZ,
         RAVIX_RADIO_BAND_INVALID_MAX});

// LOW is 3 and HIGH is 2; the list keeps the order in which the sub bands lie.
inline constexpr auto radio_sub_band_names =
    RAVIX_NAMES(std::int32_t, "RAVIX_RADIO_SUB_BAND_", RAVIX_RADIO_SUB_BAND_INVALID_MIN, RAVIX_RADIO_SUB_BAND_FULL,
                RAVIX_RADIO_SUB_BAND_LOW, RAVIX_RADIO_SUB_BAND_HIGH, RAVIX_RADIO_SUB_BAND_INVALID_MAX);

inline constexpr auto mac_access_type_names =
    RAVIX_NAMES(std::int32_t, "RAVIX_MAC_ACCESS_TYPE_", RAVIX_MAC_ACCESS_TYPE_INVALID_MIN,
                RAVIX_MAC_ACCESS_TYPE_WHITELIST, RAVIX_MAC_ACCESS_TYPE_BLACKLIST, RAVIX_MAC_ACCESS_TYPE_INVALID_MAX);

inline constexpr auto simulated_event_type_names = RAVIX_NAMES(
    std::int32_t, "RAVIX_SIMULATED_EVENT_TYPE_", RAVIX_SIMULATED_EVENT_TYPE_INVALID_MIN,
    RAVIX_SIMULATED_EVENT_TYPE_RADAR, RAVIX_SIMULATED_EVENT_TYPE_INTERFERENCE, RAVIX_SIMULATED_EVENT_TYPE_INVALID_MAX);

inline constexpr auto role_opmode_names =
    RAVIX_NAMES(std::int32_t, "RAVIX_ROLE_OPMODE_", RAVIX_ROLE_OPMODE_INVALID_MIN, RAVIX_ROLE_OPMODE_AP_HOME,
                RAVIX_ROLE_OPMODE_AP_GUEST, RAVIX_ROLE_OPMODE_ATACLIENT, RAVIX_ROLE_OPMODE_REPEATER,
                RAVIX_ROLE_OPMODE_AP_HOTSPOT, RAVIX_ROLE_OPMODE_AP_HOME_OWE, RAVIX_ROLE_OPMODE_AP_GUEST_OWE,
                RAVIX_ROLE_OPMODE_AP_HOTSPOT_OWE, RAVIX_ROLE_OPMODE_INVALID_MAX);

inline constexpr auto station_type_names = RAVIX_NAMES(
    std::int32_t, "RAVIX_STATION_TYPE_", RAVIX_STATION_TYPE_INVALID_MIN, RAVIX_STATION_TYPE_AP, RAVIX_STATION_TYPE_WDS,
    RAVIX_STATION_TYPE_CLIENT, RAVIX_STATION_TYPE_ADHOC, RAVIX_STATION_TYPE_UNKNOWN, RAVIX_STATION_TYPE_ZEL_STA,
    RAVIX_STATION_TYPE_ZEL_AP, RAVIX_STATION_TYPE_ZEL_AP_STALINK, RAVIX_STATION_TYPE_INVALID_MAX);

inline constexpr auto sta_state_names =
    RAVIX_NAMES(std::int32_t, "RAVIX_STA_STATE_", RAVIX_STA_STATE_INVALID_MIN, RAVIX_STA_STATE_DISCONNECTED,
                RAVIX_STA_STATE_AUTHENTICATED, RAVIX_STA_STATE_ASSOCIATED, RAVIX_STA_STATE_CONNECTED,
                RAVIX_STA_STATE_UNKNOWN, RAVIX_STA_STATE_INVALID_MAX);

inline constexpr auto special_handling_trigger_names =
    RAVIX_NAMES(std::int32_t, "RAVIX_SPECIAL_HANDLING_TRIGGER_", RAVIX_SPECIAL_HANDLING_TRIGGER_INVALID_MIN,
                RAVIX_SPECIAL_HANDLING_TRIGGER_CHANGE_CFG, RAVIX_SPECIAL_HANDLING_TRIGGER_CHANGE_COUNTRY,
                RAVIX_SPECIAL_HANDLING_TRIGGER_CHANGE_LANGUAGE, RAVIX_SPECIAL_HANDLING_TRIGGER_CHANGE_FW,
                RAVIX_SPECIAL_HANDLING_TRIGGER_INVALID_MAX);

inline constexpr auto security_names =
    RAVIX_NAMES(std::int32_t, "RAVIX_SECURITY_", RAVIX_SECURITY_INVALID_MIN, RAVIX_SECURITY_UNDEF, RAVIX_SECURITY_NONE,
                RAVIX_SECURITY_WPAPSK, RAVIX_SECURITY_WPA2PSK, RAVIX_SECURITY_WPA_MIXED, RAVIX_SECURITY_WPAENT,
                RAVIX_SECURITY_WPA2ENT, RAVIX_SECURITY_WPA3PSK, RAVIX_SECURITY_WPA2_WPA3, RAVIX_SECURITY_OWE,
                RAVIX_SECURITY_OWE_TRANS, RAVIX_SECURITY_INVALID_MAX);

inline constexpr auto role_state_names = RAVIX_NAMES(
    std::int32_t, "RAVIX_ROLE_STATE_", RAVIX_ROLE_STATE_INVALID_MIN, RAVIX_ROLE_STATE_UNCONFIGURED,
    RAVIX_ROLE_STATE_CONFIGURING, RAVIX_ROLE_STATE_INACTIVE, RAVIX_ROLE_STATE_INITIATING, RAVIX_ROLE_STATE_SCANNING,
    RAVIX_ROLE_STATE_DFS_WAIT, RAVIX_ROLE_STATE_ACS_ACTIVE, RAVIX_ROLE_STATE_WAIT_FOR_UPLINK,
    RAVIX_ROLE_STATE_UPLINK_ESTABLISHED, RAVIX_ROLE_STATE_WPS_ACTIVE, RAVIX_ROLE_STATE_ON_AIR,
    RAVIX_ROLE_STATE_DEACTIVATED, RAVIX_ROLE_STATE_CONFIGURED_FINAL, RAVIX_ROLE_STATE_INVALID_MAX);

inline constexpr auto radar_type_names =
    RAVIX_NAMES(std::int32_t, "RAVIX_RADAR_TYPE_", RAVIX_RADAR_TYPE_INVALID_MIN, RAVIX_RADAR_TYPE_ETSI_UNKNOWN,
                RAVIX_RADAR_TYPE_ETSI_1, RAVIX_RADAR_TYPE_ETSI_2, RAVIX_RADAR_TYPE_ETSI_3, RAVIX_RADAR_TYPE_ETSI_4,
                RAVIX_RADAR_TYPE_ETSI_5, RAVIX_RADAR_TYPE_ETSI_6, RAVIX_RADAR_TYPE_ETSI_MXL_NORMAL,
                RAVIX_RADAR_TYPE_ETSI_MXL_HOPPING, RAVIX_RADAR_TYPE_UNKNOWN, RAVIX_RADAR_TYPE_INVALID_MAX);

inline constexpr auto event_names = RAVIX_NAMES(
    std::int32_t, "RAVIX_EVENT_", RAVIX_EVENT_INVALID_MIN, RAVIX_EVENT_SCAN_FINISHED, RAVIX_EVENT_RADIOD_TERMINATED,
    RAVIX_EVENT_LOG_EVENT, RAVIX_EVENT_CLIENT_STATE_CHANGE, RAVIX_EVENT_BSS_TRANSITION_RESPONSE,
    RAVIX_EVENT_BEACON_REPORT_RESPONSE, RAVIX_EVENT_RSSI_UPDATE, RAVIX_EVENT_MEDIUM_LOAD_UPDATE,
    RAVIX_EVENT_PROBE_REQUEST_EVENT, RAVIX_EVENT_STA_ACTIVITY_UPDATE, RAVIX_EVENT_GREEN_AP, RAVIX_EVENT_RADAR_DETECTED,
    RAVIX_EVENT_RADAR_WAIT, RAVIX_EVENT_RADAR_PRECAC, RAVIX_EVENT_CHANNEL_CHANGE, RAVIX_EVENT_INTERFERENCE,
    RAVIX_EVENT_COEXISTENCE_SWITCH, RAVIX_EVENT_ROLE_STATE_CHANGE, RAVIX_EVENT_BSS_TRANSITION_QUERY,
    RAVIX_EVENT_CONNECT, RAVIX_EVENT_INVALID_MAX);

inline constexpr auto device_opmode_names =
    RAVIX_NAMES(std::int32_t, "RAVIX_DEVICE_OPMODE_", RAVIX_DEVICE_OPMODE_INVALID_MIN, RAVIX_DEVICE_OPMODE_AP,
                RAVIX_DEVICE_OPMODE_REPEATER, RAVIX_DEVICE_OPMODE_ATA, RAVIX_DEVICE_OPMODE_CLIENT,
                RAVIX_DEVICE_OPMODE_INACTIVE, RAVIX_DEVICE_OPMODE_INVALID_MAX);

inline constexpr auto connect_status_names =
    RAVIX_NAMES(std::int32_t, "RAVIX_CONNECT_STATUS_", RAVIX_CONNECT_STATUS_DPP_START, RAVIX_CONNECT_STATUS_WALKING,
                RAVIX_CONNECT_STATUS_SUCCESS, RAVIX_CONNECT_STATUS_FAIL_GENERAL, RAVIX_CONNECT_STATUS_FAIL_TIMEOUT,
                RAVIX_CONNECT_STATUS_FAIL_TERMINATE, RAVIX_CONNECT_STATUS_FAIL_NOT_ALLOWED,
                RAVIX_CONNECT_STATUS_FAIL_DFS_RUNNING, RAVIX_CONNECT_STATUS_FAIL_OVERLAP);

inline constexpr auto connect_method_names =
    RAVIX_NAMES(std::int32_t, "RAVIX_CONNECT_METHOD_", RAVIX_CONNECT_METHOD_INVALID_MIN, RAVIX_CONNECT_METHOD_PBC,
                RAVIX_CONNECT_METHOD_INVALID_MAX);

inline constexpr auto channel_width_names =
    make_name_table<"", "INVALID, 20 MHz, 40 MHz, 80 MHz, 160 MHz, 320 MHz", std::int32_t>(
        {RAVIX_CHANNEL_WIDTH_INVALID, RAVIX_CHANNEL_WIDTH_20, RAVIX_CHANNEL_WIDTH_40, RAVIX_CHANNEL_WIDTH_80,
         RAVIX_CHANNEL_WIDTH_160, RAVIX_CHANNEL_WIDTH_320});

inline constexpr auto channel_change_reason_names =
    RAVIX_NAMES(std::int32_t, "RAVIX_CHANNEL_CHANGE_REASON_", RAVIX_CHANNEL_CHANGE_REASON_INVALID_MIN,
                RAVIX_CHANNEL_CHANGE_REASON_INTERFERENCE, RAVIX_CHANNEL_CHANGE_REASON_RADAR,
                RAVIX_CHANNEL_CHANGE_REASON_COEXISTENCE, RAVIX_CHANNEL_CHANGE_REASON_INVALID_MAX);

inline constexpr auto channel_capabilities_names = RAVIX_NAMES(
    std::uint32_t, "RAVIX_CHANNEL_CAP_", RAVIX_CHANNEL_CAP_HT20, RAVIX_CHANNEL_CAP_HT40, RAVIX_CHANNEL_CAP_HT80,
    RAVIX_CHANNEL_CAP_HT160, RAVIX_CHANNEL_CAP_HT320, RAVIX_CHANNEL_CAP_DFS, RAVIX_CHANNEL_CAP_DFS_WEATHER);

inline constexpr auto wlan_mode_names =
    RAVIX_NAMES(std::uint32_t, "RAVIX_WLAN_MODE_", RAVIX_WLAN_MODE_11A, RAVIX_WLAN_MODE_11B, RAVIX_WLAN_MODE_11G,
                RAVIX_WLAN_MODE_11N, RAVIX_WLAN_MODE_11AC, RAVIX_WLAN_MODE_11AX, RAVIX_WLAN_MODE_11BE);

inline constexpr auto channel_user_flags_names =
    RAVIX_NAMES(std::uint32_t, "RAVIX_CHANNEL_USER_FLAG_", RAVIX_CHANNEL_USER_FLAG_REMOTE_DISTURBER,
                RAVIX_CHANNEL_USER_FLAG_PERFORMANCE_OPTIMIZATION, RAVIX_CHANNEL_USER_FLAG_DEBUG);

inline constexpr auto event_log_control_names =
    RAVIX_NAMES(std::uint32_t, "RAVIX_EVENT_LOG_CONTROL_", RAVIX_EVENT_LOG_CONTROL_INFO,
                RAVIX_EVENT_LOG_CONTROL_WARNING, RAVIX_EVENT_LOG_CONTROL_ERROR);

inline constexpr auto mlo_mode_names =
    RAVIX_NAMES(std::uint32_t, "RAVIX_MLO_MODE_", RAVIX_MLO_MODE_AUTO, RAVIX_MLO_MODE_MLSR, RAVIX_MLO_MODE_EMLSR_STR,
                RAVIX_MLO_MODE_EMLSR_NSTR, RAVIX_MLO_MODE_MLMR_STR, RAVIX_MLO_MODE_MLMR_NSTR, RAVIX_MLO_MODE_EMLMR_STR,
                RAVIX_MLO_MODE_EMLMR_NSTR);

inline constexpr auto features_names = RAVIX_NAMES(
    std::uint64_t, "RAVIX_FEATURE_", RAVIX_FEATURE_HIDDEN_SSID, RAVIX_FEATURE_USER_ISOLATION,
    RAVIX_FEATURE_AUTO_CHANNEL, RAVIX_FEATURE_IPTV_OPTIMIZE, RAVIX_FEATURE_COEXISTENCE, RAVIX_FEATURE_TIME_CONTROL);

inline constexpr auto channel_state_names =
    RAVIX_NAMES(std::uint32_t, "RAVIX_CHANNEL_STATE_", RAVIX_CHANNEL_STATE_ACTIVE, RAVIX_CHANNEL_STATE_PRI_CHAN,
                RAVIX_CHANNEL_STATE_PRECAC_TODO, RAVIX_CHANNEL_STATE_CAC_RUNNING, RAVIX_CHANNEL_STATE_DFS_CLEAR,
                RAVIX_CHANNEL_STATE_RADAR_FOUND, RAVIX_CHANNEL_STATE_INTERFERENCE_FOUND,
                RAVIX_CHANNEL_STATE_1_MINUTE_OFF, RAVIX_CHANNEL_STATE_10_MINUTES_OFF, RAVIX_CHANNEL_STATE_PUNCTURED);

// By topic, which is the order in which they are shown.
inline constexpr auto capabilities_names = RAVIX_NAMES(
    std::uint32_t, "RAVIX_CAPABILITY_", RAVIX_CAPABILITY_WPA_PSK, RAVIX_CAPABILITY_WPA_ENT, RAVIX_CAPABILITY_WPA2_PSK,
    RAVIX_CAPABILITY_WPA2_ENT, RAVIX_CAPABILITY_WPA3_PSK, RAVIX_CAPABILITY_OWE, RAVIX_CAPABILITY_OWE_TRANS,
    RAVIX_CAPABILITY_PMF, RAVIX_CAPABILITY_PRIVACY, RAVIX_CAPABILITY_WPS, RAVIX_CAPABILITY_2GHZ, RAVIX_CAPABILITY_5GHZ,
    RAVIX_CAPABILITY_6GHZ, RAVIX_CAPABILITY_WME, RAVIX_CAPABILITY_STBC, RAVIX_CAPABILITY_LDPC, RAVIX_CAPABILITY_WME_PS,
    RAVIX_CAPABILITY_TXBF, RAVIX_CAPABILITY_AMSDU, RAVIX_CAPABILITY_AMPDU, RAVIX_CAPABILITY_UAPSD,
    RAVIX_CAPABILITY_MUMIMO, RAVIX_CAPABILITY_11N_2G_256QAM, RAVIX_CAPABILITY_11NAC_1024QAM, RAVIX_CAPABILITY_RRM,
    RAVIX_CAPABILITY_FBT, RAVIX_CAPABILITY_BTM, RAVIX_CAPABILITY_MLO, RAVIX_CAPABILITY_QCA, RAVIX_CAPABILITY_MINI,
    RAVIX_CAPABILITY_ZEL, RAVIX_CAPABILITY_ZELWDS);

inline constexpr auto param_id_names = RAVIX_NAMES(
    std::int32_t, "RAVIX_PARAM_ID_", RAVIX_PARAM_ID_INVALID_MIN, RAVIX_PARAM_ID_GROUP, RAVIX_PARAM_ID_CTL_LOGLVL,
    RAVIX_PARAM_ID_MLD_ROLE_LIST, RAVIX_PARAM_ID_ROLE_CONFIG, RAVIX_PARAM_ID_ENABLED, RAVIX_PARAM_ID_CONFIGURED,
    RAVIX_PARAM_ID_FORCE_OFF, RAVIX_PARAM_ID_WLAN_MODE, RAVIX_PARAM_ID_CHANNEL_WIDTH, RAVIX_PARAM_ID_CHANNEL,
    RAVIX_PARAM_ID_CHANNEL_EX, RAVIX_PARAM_ID_CHANNEL_INFO, RAVIX_PARAM_ID_AUTO_SETTINGS,
    RAVIX_PARAM_ID_AUTOCHANNEL_PLUS, RAVIX_PARAM_ID_STATION_TYPE, RAVIX_PARAM_ID_ROLE_OPMODE,
    RAVIX_PARAM_ID_POWER_LEVEL, RAVIX_PARAM_ID_KEY_VAL, RAVIX_PARAM_ID_SSID, RAVIX_PARAM_ID_MAC_LIST,
    RAVIX_PARAM_ID_SECURITY, RAVIX_PARAM_ID_OWE_TRANSITION_ACTIVE, RAVIX_PARAM_ID_OWE_TRANSITION_BSSID,
    RAVIX_PARAM_ID_OWE_TRANSITION_SSID, RAVIX_PARAM_ID_OWE_TRANSITION_ROLE, RAVIX_PARAM_ID_WPS_VERSION,
    RAVIX_PARAM_ID_WPS_ENABLE, RAVIX_PARAM_ID_WPS_MODE, RAVIX_PARAM_ID_WPS_DEVICENAME,
    RAVIX_PARAM_ID_WPS_DEVICE_PASSWORD, RAVIX_PARAM_ID_WPS_UUID, RAVIX_PARAM_ID_WPS_CF_METHODS_SUP,
    RAVIX_PARAM_ID_WPS_CF_METHODS_EN, RAVIX_PARAM_ID_WPS_SETUP_LOCKED_STATE, RAVIX_PARAM_ID_WPS_SETUP_LOCK,
    RAVIX_PARAM_ID_WPS_CFG_STATE, RAVIX_PARAM_ID_WPS_LAST_CFG_ERROR, RAVIX_PARAM_ID_RSSI, RAVIX_PARAM_ID_TIME_AGE,
    RAVIX_PARAM_ID_TIME_BLOCKED, RAVIX_PARAM_ID_RADIOBAND, RAVIX_PARAM_ID_CAPABILITIES, RAVIX_PARAM_ID_FREQUENCY,
    RAVIX_PARAM_ID_QUALITY, RAVIX_PARAM_ID_NOISE, RAVIX_PARAM_ID_WDS_MASTER_MAC, RAVIX_PARAM_ID_FEATURES,
    RAVIX_PARAM_ID_TIMEOUT_ACTIVE, RAVIX_PARAM_ID_TIMEOUT_MINUTES, RAVIX_PARAM_ID_BRIDGE_MODE,
    RAVIX_PARAM_ID_NETWORK_TYPE, RAVIX_PARAM_ID_MAX_CLIENTS, RAVIX_PARAM_ID_MIN_CLIENT_RSSI,
    RAVIX_PARAM_ID_MAX_CLIENT_LOGIN_TIME, RAVIX_PARAM_ID_MAX_CLIENT_IDLE_TIME, RAVIX_PARAM_ID_MAX_CLIENT_TRAFFIC,
    RAVIX_PARAM_ID_AUTH_SERVER, RAVIX_PARAM_ID_ACCT_SERVER, RAVIX_PARAM_ID_ACCESS_CONTROL_MAX_CLIENTS,
    RAVIX_PARAM_ID_AUTOCHANNEL_PLUS_11A, RAVIX_PARAM_ID_MIMO_STREAMS, RAVIX_PARAM_ID_AVG_TX_RATE,
    RAVIX_PARAM_ID_AVG_RX_RATE, RAVIX_PARAM_ID_MAX_TX_RATE, RAVIX_PARAM_ID_MAX_RX_RATE, RAVIX_PARAM_ID_CONNECTED,
    RAVIX_PARAM_ID_AUTO_UPDATE, RAVIX_PARAM_ID_PMF_MODE, RAVIX_PARAM_ID_MEDIUM_CHANNEL_LOAD,
    RAVIX_PARAM_ID_RADIO_SUB_BAND, RAVIX_PARAM_ID_HAL_ID_END, RAVIX_PARAM_ID_IGNORE, RAVIX_PARAM_ID_HW_ID,
    RAVIX_PARAM_ID_SSID_SET, RAVIX_PARAM_ID_IP_ADDR, RAVIX_PARAM_ID_PORT, RAVIX_PARAM_ID_ACCESS_CONTROL,
    RAVIX_PARAM_ID_ACCESS_CONTROL_ROLE, RAVIX_PARAM_ID_TIME_CONTROL, RAVIX_PARAM_ID_COUNTRY_CODE,
    RAVIX_PARAM_ID_VENDOR_ID, RAVIX_PARAM_ID_ACS_CONTROL, RAVIX_PARAM_ID_CHIP_TYPE, RAVIX_PARAM_ID_CFG_SECURITY,
    RAVIX_PARAM_ID_GUEST_MODE, RAVIX_PARAM_ID_IDENTIFIER, RAVIX_PARAM_ID_ROLE_STATIC, RAVIX_PARAM_ID_RADIO_STATIC,
    RAVIX_PARAM_ID_RADIUS_SECRET, RAVIX_PARAM_ID_RADIUS_SERVER, RAVIX_PARAM_ID_STRING, RAVIX_PARAM_ID_UPLINK,
    RAVIX_PARAM_ID_LANGUAGE, RAVIX_PARAM_ID_COUNTRY, RAVIX_PARAM_ID_DBG_SETTINGS, RAVIX_PARAM_ID_DEVICE_OPMODE,
    RAVIX_PARAM_ID_LOG_CONTROL, RAVIX_PARAM_ID_KCL, RAVIX_PARAM_ID_MESH_SETTINGS, RAVIX_PARAM_ID_REPEATING,
    RAVIX_PARAM_ID_MAC, RAVIX_PARAM_ID_MAC_ADDR_INDEX, RAVIX_PARAM_ID_DESCR, RAVIX_PARAM_ID_IF_NAME,
    RAVIX_PARAM_ID_PUNCTURE_MAP, RAVIX_PARAM_ID_MLO_LINK_ID, RAVIX_PARAM_ID_MLO_MODES_SUPPORTED, RAVIX_PARAM_ID_MLD_MAC,
    RAVIX_PARAM_ID_RSN_ELEMENT, RAVIX_PARAM_ID_RSNO_ELEMENTS, RAVIX_PARAM_ID_INVALID_MAX);

inline constexpr auto connect_session_id_names =
    RAVIX_NAMES(std::int32_t, "RAVIX_CONNECT_SESSION_ID_", RAVIX_CONNECT_SESSION_ID_INVALID,
                RAVIX_CONNECT_SESSION_ID_ALL, RAVIX_CONNECT_SESSION_ID_UNDEF, RAVIX_CONNECT_SESSION_ID_LAST);

inline constexpr auto enabled_names = make_name_table<"", "ON, OFF", std::int32_t>({true, false});

inline constexpr auto id_names =
    RAVIX_NAMES(std::int32_t, "RAVIX_ID_", RAVIX_ID_INVALID, RAVIX_ID_ALL, RAVIX_ID_NONE, RAVIX_ID_UNSPECIFIED);

// The enumerations whose values are shown as names, each with the type that its formatter takes and the one that a
// value without a name is shown as: ravix_str_<name>(), <name>_names above, and the meaning of fields of that name
// follow.
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

// The sets of flags, each with the type that its formatter takes.
#define RAVIX_FLAG_SETS(FLAG_SET)                                                                                      \
  FLAG_SET(channel_capabilities, uint32_t)                                                                             \
  FLAG_SET(wlan_mode, uint32_t)                                                                                        \
  FLAG_SET(channel_user_flags, uint32_t)                                                                               \
  FLAG_SET(event_log_control, uint32_t)                                                                                \
  FLAG_SET(mlo_mode, uint32_t)                                                                                         \
  FLAG_SET(features, uint64_t)                                                                                         \
  FLAG_SET(channel_state, uint32_t)                                                                                    \
  FLAG_SET(capabilities, uint32_t)

} // namespace zel::ravix
