// The names of the interface's values and flags: each list stands here once, for formatters and parsers.
#pragma once

#include "ravix_types_enums.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <string_view>

namespace zel::ravix {

// A value or mask and its name.
template <class Value, std::size_t Size> struct named {
  Value value;
  const char (&name)[Size];
};
template <class Value, std::size_t Size> named(Value, const char (&)[Size]) -> named<Value, Size>;

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

template <class Value, class... Values, std::size_t... Sizes>
consteval auto make_name_table(const named<Values, Sizes> &...entries) {
  static_assert((... && (Sizes <= name_block)));
  static_assert((Sizes + ...) <= std::numeric_limits<std::uint16_t>::max());
  name_table<Value, sizeof...(Sizes), (Sizes + ...)> table{};
  std::size_t index = 0;
  std::size_t at = 0;
  const auto add = [&](const auto &entry) {
    table.values[index] = static_cast<Value>(entry.value);
    for (const char character : entry.name) {
      table.text[at++] = character;
    }
    table.begins[++index] = static_cast<std::uint16_t>(at);
  };
  (add(entries), ...);
  return table;
}

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

inline constexpr auto status_names = make_name_table<std::int32_t>(
    named{RAVIX_STATUS_SUCCESS, "SUCCESS"}, named{RAVIX_STATUS_FINISHED, "FINISHED"},
    named{RAVIX_STATUS_PENDING, "PENDING"}, named{RAVIX_STATUS_READY, "READY"},
    named{RAVIX_STATUS_CANCELED, "CANCELED"}, named{RAVIX_STATUS_TIMEOUT, "TIMEOUT"},
    named{RAVIX_STATUS_FAIL_GENERAL, "FAIL_GENERAL"}, named{RAVIX_STATUS_FAIL_NOT_SUPPORTED, "FAIL_NOT_SUPPORTED"},
    named{RAVIX_STATUS_FAIL_NOT_APPLICABLE, "FAIL_NOT_APPLICABLE"},
    named{RAVIX_STATUS_FAIL_SUBORDINATED, "FAIL_SUBORDINATED"}, named{RAVIX_STATUS_FAIL_PARSING, "FAIL_PARSING"});

inline constexpr auto device_class_names = make_name_table<std::int32_t>(
    named{RAVIX_DEVICE_CLASS_INVALID_MIN, "INVALID_MIN"}, named{RAVIX_DEVICE_CLASS_ROUTER, "ROUTER"},
    named{RAVIX_DEVICE_CLASS_REPEATER, "REPEATER"}, named{RAVIX_DEVICE_CLASS_POWERLINE, "POWERLINE"},
    named{RAVIX_DEVICE_CLASS_CLIENT, "CLIENT"}, named{RAVIX_DEVICE_CLASS_INVALID_MAX, "INVALID_MAX"});

inline constexpr auto encryption_names = make_name_table<std::int32_t>(
    named{RAVIX_ENCRYPTION_INVALID_MIN, "INVALID_MIN"}, named{RAVIX_ENCRYPTION_OPEN, "OPEN"},
    named{RAVIX_ENCRYPTION_RSN, "RSN"}, named{RAVIX_ENCRYPTION_WPA_MIXED, "WPA_MIXED"},
    named{RAVIX_ENCRYPTION_INVALID_MAX, "INVALID_MAX"});

inline constexpr auto encryption_akm_names = make_name_table<std::int32_t>(
    named{RAVIX_ENCRYPTION_AKM_INVALID_MIN, "INVALID_MIN"}, named{RAVIX_ENCRYPTION_AKM_PSK, "PSK"},
    named{RAVIX_ENCRYPTION_AKM_SAE, "SAE"}, named{RAVIX_ENCRYPTION_AKM_OWE, "OWE"},
    named{RAVIX_ENCRYPTION_AKM_SAE_EXT, "SAE_EXT"}, named{RAVIX_ENCRYPTION_AKM_INVALID_MAX, "INVALID_MAX"});

inline constexpr auto encryption_cipher_suite_names = make_name_table<std::int32_t>(
    named{RAVIX_ENCRYPTION_CIPHER_SUITE_INVALID_MIN, "INVALID_MIN"}, named{RAVIX_ENCRYPTION_CIPHER_SUITE_TKIP, "TKIP"},
    named{RAVIX_ENCRYPTION_CIPHER_SUITE_CCMP128, "CCMP128"}, named{RAVIX_ENCRYPTION_CIPHER_SUITE_GCMP256, "GCMP256"},
    named{RAVIX_ENCRYPTION_CIPHER_SUITE_INVALID_MAX, "INVALID_MAX"});

inline constexpr auto encryption_group_mgmt_cipher_names =
    make_name_table<std::int32_t>(named{RAVIX_ENCRYPTION_GROUP_MGMT_CIPHER_INVALID_MIN, "INVALID_MIN"},
                                  named{RAVIX_ENCRYPTION_GROUP_MGMT_CIPHER_BIP_CMAC128, "BIP_CMAC128"},
                                  named{RAVIX_ENCRYPTION_GROUP_MGMT_CIPHER_BIP_GMAC256, "BIP_GMAC256"},
                                  named{RAVIX_ENCRYPTION_GROUP_MGMT_CIPHER_INVALID_MAX, "INVALID_MAX"});

inline constexpr auto pmf_mode_names = make_name_table<std::int32_t>(
    named{RAVIX_PMF_MODE_INVALID_MIN, "INVALID_MIN"}, named{RAVIX_PMF_MODE_DISABLED, "DISABLED"},
    named{RAVIX_PMF_MODE_SUPPORTED, "SUPPORTED"}, named{RAVIX_PMF_MODE_MANDATORY, "MANDATORY"},
    named{RAVIX_PMF_MODE_INVALID_MAX, "INVALID_MAX"});

inline constexpr auto pwe_mode_names =
    make_name_table<std::int32_t>(named{RAVIX_PWE_MODE_INVALID_MIN, "INVALID_MIN"}, named{RAVIX_PWE_MODE_HAP, "HAP"},
                                  named{RAVIX_PWE_MODE_HAP_H2E, "HAP_H2E"}, named{RAVIX_PWE_MODE_H2E, "H2E"},
                                  named{RAVIX_PWE_MODE_INVALID_MAX, "INVALID_MAX"});

inline constexpr auto radio_band_names = make_name_table<std::int32_t>(
    named{RAVIX_RADIO_BAND_INVALID_MIN, "INVALID_MIN"}, named{RAVIX_RADIO_BAND_2GHZ, "2.4 GHz"},
    named{RAVIX_RADIO_BAND_5GHZ, "5 GHz"}, named{RAVIX_RADIO_BAND_6GHZ, "6 GHz"},
    named{RAVIX_RADIO_BAND_INVALID_MAX, "INVALID_MAX"});

// LOW is 3 and HIGH is 2; the list keeps the order in which the sub bands lie.
inline constexpr auto radio_sub_band_names = make_name_table<std::int32_t>(
    named{RAVIX_RADIO_SUB_BAND_INVALID_MIN, "INVALID_MIN"}, named{RAVIX_RADIO_SUB_BAND_FULL, "FULL"},
    named{RAVIX_RADIO_SUB_BAND_LOW, "LOW"}, named{RAVIX_RADIO_SUB_BAND_HIGH, "HIGH"},
    named{RAVIX_RADIO_SUB_BAND_INVALID_MAX, "INVALID_MAX"});

inline constexpr auto mac_access_type_names = make_name_table<std::int32_t>(
    named{RAVIX_MAC_ACCESS_TYPE_INVALID_MIN, "INVALID_MIN"}, named{RAVIX_MAC_ACCESS_TYPE_WHITELIST, "WHITELIST"},
    named{RAVIX_MAC_ACCESS_TYPE_BLACKLIST, "BLACKLIST"}, named{RAVIX_MAC_ACCESS_TYPE_INVALID_MAX, "INVALID_MAX"});

inline constexpr auto simulated_event_type_names = make_name_table<std::int32_t>(
    named{RAVIX_SIMULATED_EVENT_TYPE_INVALID_MIN, "INVALID_MIN"}, named{RAVIX_SIMULATED_EVENT_TYPE_RADAR, "RADAR"},
    named{RAVIX_SIMULATED_EVENT_TYPE_INTERFERENCE, "INTERFERENCE"},
    named{RAVIX_SIMULATED_EVENT_TYPE_INVALID_MAX, "INVALID_MAX"});

inline constexpr auto role_opmode_names = make_name_table<std::int32_t>(
    named{RAVIX_ROLE_OPMODE_INVALID_MIN, "INVALID_MIN"}, named{RAVIX_ROLE_OPMODE_AP_HOME, "AP_HOME"},
    named{RAVIX_ROLE_OPMODE_AP_GUEST, "AP_GUEST"}, named{RAVIX_ROLE_OPMODE_ATACLIENT, "ATACLIENT"},
    named{RAVIX_ROLE_OPMODE_REPEATER, "REPEATER"}, named{RAVIX_ROLE_OPMODE_AP_HOTSPOT, "AP_HOTSPOT"},
    named{RAVIX_ROLE_OPMODE_AP_HOME_OWE, "AP_HOME_OWE"}, named{RAVIX_ROLE_OPMODE_AP_GUEST_OWE, "AP_GUEST_OWE"},
    named{RAVIX_ROLE_OPMODE_AP_HOTSPOT_OWE, "AP_HOTSPOT_OWE"}, named{RAVIX_ROLE_OPMODE_INVALID_MAX, "INVALID_MAX"});

inline constexpr auto station_type_names = make_name_table<std::int32_t>(
    named{RAVIX_STATION_TYPE_INVALID_MIN, "INVALID_MIN"}, named{RAVIX_STATION_TYPE_AP, "AP"},
    named{RAVIX_STATION_TYPE_WDS, "WDS"}, named{RAVIX_STATION_TYPE_CLIENT, "CLIENT"},
    named{RAVIX_STATION_TYPE_ADHOC, "ADHOC"}, named{RAVIX_STATION_TYPE_UNKNOWN, "UNKNOWN"},
    named{RAVIX_STATION_TYPE_ZEL_STA, "ZEL_STA"}, named{RAVIX_STATION_TYPE_ZEL_AP, "ZEL_AP"},
    named{RAVIX_STATION_TYPE_ZEL_AP_STALINK, "ZEL_AP_STALINK"}, named{RAVIX_STATION_TYPE_INVALID_MAX, "INVALID_MAX"});

inline constexpr auto sta_state_names = make_name_table<std::int32_t>(
    named{RAVIX_STA_STATE_INVALID_MIN, "INVALID_MIN"}, named{RAVIX_STA_STATE_DISCONNECTED, "DISCONNECTED"},
    named{RAVIX_STA_STATE_AUTHENTICATED, "AUTHENTICATED"}, named{RAVIX_STA_STATE_ASSOCIATED, "ASSOCIATED"},
    named{RAVIX_STA_STATE_CONNECTED, "CONNECTED"}, named{RAVIX_STA_STATE_UNKNOWN, "UNKNOWN"},
    named{RAVIX_STA_STATE_INVALID_MAX, "INVALID_MAX"});

inline constexpr auto special_handling_trigger_names =
    make_name_table<std::int32_t>(named{RAVIX_SPECIAL_HANDLING_TRIGGER_INVALID_MIN, "INVALID_MIN"},
                                  named{RAVIX_SPECIAL_HANDLING_TRIGGER_CHANGE_CFG, "CHANGE_CFG"},
                                  named{RAVIX_SPECIAL_HANDLING_TRIGGER_CHANGE_COUNTRY, "CHANGE_COUNTRY"},
                                  named{RAVIX_SPECIAL_HANDLING_TRIGGER_CHANGE_LANGUAGE, "CHANGE_LANGUAGE"},
                                  named{RAVIX_SPECIAL_HANDLING_TRIGGER_CHANGE_FW, "CHANGE_FW"},
                                  named{RAVIX_SPECIAL_HANDLING_TRIGGER_INVALID_MAX, "INVALID_MAX"});

inline constexpr auto security_names = make_name_table<std::int32_t>(
    named{RAVIX_SECURITY_INVALID_MIN, "INVALID_MIN"}, named{RAVIX_SECURITY_UNDEF, "UNDEF"},
    named{RAVIX_SECURITY_NONE, "NONE"}, named{RAVIX_SECURITY_WPAPSK, "WPAPSK"},
    named{RAVIX_SECURITY_WPA2PSK, "WPA2PSK"}, named{RAVIX_SECURITY_WPA_MIXED, "WPA_MIXED"},
    named{RAVIX_SECURITY_WPAENT, "WPAENT"}, named{RAVIX_SECURITY_WPA2ENT, "WPA2ENT"},
    named{RAVIX_SECURITY_WPA3PSK, "WPA3PSK"}, named{RAVIX_SECURITY_WPA2_WPA3, "WPA2_WPA3"},
    named{RAVIX_SECURITY_OWE, "OWE"}, named{RAVIX_SECURITY_OWE_TRANS, "OWE_TRANS"},
    named{RAVIX_SECURITY_INVALID_MAX, "INVALID_MAX"});

inline constexpr auto role_state_names = make_name_table<std::int32_t>(
    named{RAVIX_ROLE_STATE_INVALID_MIN, "INVALID_MIN"}, named{RAVIX_ROLE_STATE_UNCONFIGURED, "UNCONFIGURED"},
    named{RAVIX_ROLE_STATE_CONFIGURING, "CONFIGURING"}, named{RAVIX_ROLE_STATE_INACTIVE, "INACTIVE"},
    named{RAVIX_ROLE_STATE_INITIATING, "INITIATING"}, named{RAVIX_ROLE_STATE_SCANNING, "SCANNING"},
    named{RAVIX_ROLE_STATE_DFS_WAIT, "DFS_WAIT"}, named{RAVIX_ROLE_STATE_ACS_ACTIVE, "ACS_ACTIVE"},
    named{RAVIX_ROLE_STATE_WAIT_FOR_UPLINK, "WAIT_FOR_UPLINK"},
    named{RAVIX_ROLE_STATE_UPLINK_ESTABLISHED, "UPLINK_ESTABLISHED"}, named{RAVIX_ROLE_STATE_WPS_ACTIVE, "WPS_ACTIVE"},
    named{RAVIX_ROLE_STATE_ON_AIR, "ON_AIR"}, named{RAVIX_ROLE_STATE_DEACTIVATED, "DEACTIVATED"},
    named{RAVIX_ROLE_STATE_CONFIGURED_FINAL, "CONFIGURED_FINAL"}, named{RAVIX_ROLE_STATE_INVALID_MAX, "INVALID_MAX"});

inline constexpr auto radar_type_names = make_name_table<std::int32_t>(
    named{RAVIX_RADAR_TYPE_INVALID_MIN, "INVALID_MIN"}, named{RAVIX_RADAR_TYPE_ETSI_UNKNOWN, "ETSI_UNKNOWN"},
    named{RAVIX_RADAR_TYPE_ETSI_1, "ETSI_1"}, named{RAVIX_RADAR_TYPE_ETSI_2, "ETSI_2"},
    named{RAVIX_RADAR_TYPE_ETSI_3, "ETSI_3"}, named{RAVIX_RADAR_TYPE_ETSI_4, "ETSI_4"},
    named{RAVIX_RADAR_TYPE_ETSI_5, "ETSI_5"}, named{RAVIX_RADAR_TYPE_ETSI_6, "ETSI_6"},
    named{RAVIX_RADAR_TYPE_ETSI_MXL_NORMAL, "ETSI_MXL_NORMAL"},
    named{RAVIX_RADAR_TYPE_ETSI_MXL_HOPPING, "ETSI_MXL_HOPPING"}, named{RAVIX_RADAR_TYPE_UNKNOWN, "UNKNOWN"},
    named{RAVIX_RADAR_TYPE_INVALID_MAX, "INVALID_MAX"});

inline constexpr auto event_names = make_name_table<std::int32_t>(
    named{RAVIX_EVENT_INVALID_MIN, "INVALID_MIN"}, named{RAVIX_EVENT_SCAN_FINISHED, "SCAN_FINISHED"},
    named{RAVIX_EVENT_RADIOD_TERMINATED, "RADIOD_TERMINATED"}, named{RAVIX_EVENT_LOG_EVENT, "LOG_EVENT"},
    named{RAVIX_EVENT_CLIENT_STATE_CHANGE, "CLIENT_STATE_CHANGE"},
    named{RAVIX_EVENT_BSS_TRANSITION_RESPONSE, "BSS_TRANSITION_RESPONSE"},
    named{RAVIX_EVENT_BEACON_REPORT_RESPONSE, "BEACON_REPORT_RESPONSE"}, named{RAVIX_EVENT_RSSI_UPDATE, "RSSI_UPDATE"},
    named{RAVIX_EVENT_MEDIUM_LOAD_UPDATE, "MEDIUM_LOAD_UPDATE"},
    named{RAVIX_EVENT_PROBE_REQUEST_EVENT, "PROBE_REQUEST_EVENT"},
    named{RAVIX_EVENT_STA_ACTIVITY_UPDATE, "STA_ACTIVITY_UPDATE"}, named{RAVIX_EVENT_GREEN_AP, "GREEN_AP"},
    named{RAVIX_EVENT_RADAR_DETECTED, "RADAR_DETECTED"}, named{RAVIX_EVENT_RADAR_WAIT, "RADAR_WAIT"},
    named{RAVIX_EVENT_RADAR_PRECAC, "RADAR_PRECAC"}, named{RAVIX_EVENT_CHANNEL_CHANGE, "CHANNEL_CHANGE"},
    named{RAVIX_EVENT_INTERFERENCE, "INTERFERENCE"}, named{RAVIX_EVENT_COEXISTENCE_SWITCH, "COEXISTENCE_SWITCH"},
    named{RAVIX_EVENT_ROLE_STATE_CHANGE, "ROLE_STATE_CHANGE"},
    named{RAVIX_EVENT_BSS_TRANSITION_QUERY, "BSS_TRANSITION_QUERY"}, named{RAVIX_EVENT_CONNECT, "CONNECT"},
    named{RAVIX_EVENT_INVALID_MAX, "INVALID_MAX"});

inline constexpr auto device_opmode_names = make_name_table<std::int32_t>(
    named{RAVIX_DEVICE_OPMODE_INVALID_MIN, "INVALID_MIN"}, named{RAVIX_DEVICE_OPMODE_AP, "AP"},
    named{RAVIX_DEVICE_OPMODE_REPEATER, "REPEATER"}, named{RAVIX_DEVICE_OPMODE_ATA, "ATA"},
    named{RAVIX_DEVICE_OPMODE_CLIENT, "CLIENT"}, named{RAVIX_DEVICE_OPMODE_INACTIVE, "INACTIVE"},
    named{RAVIX_DEVICE_OPMODE_INVALID_MAX, "INVALID_MAX"});

inline constexpr auto connect_status_names = make_name_table<std::int32_t>(
    named{RAVIX_CONNECT_STATUS_DPP_START, "DPP_START"}, named{RAVIX_CONNECT_STATUS_WALKING, "WALKING"},
    named{RAVIX_CONNECT_STATUS_SUCCESS, "SUCCESS"}, named{RAVIX_CONNECT_STATUS_FAIL_GENERAL, "FAIL_GENERAL"},
    named{RAVIX_CONNECT_STATUS_FAIL_TIMEOUT, "FAIL_TIMEOUT"},
    named{RAVIX_CONNECT_STATUS_FAIL_TERMINATE, "FAIL_TERMINATE"},
    named{RAVIX_CONNECT_STATUS_FAIL_NOT_ALLOWED, "FAIL_NOT_ALLOWED"},
    named{RAVIX_CONNECT_STATUS_FAIL_DFS_RUNNING, "FAIL_DFS_RUNNING"},
    named{RAVIX_CONNECT_STATUS_FAIL_OVERLAP, "FAIL_OVERLAP"});

inline constexpr auto connect_method_names = make_name_table<std::int32_t>(
    named{RAVIX_CONNECT_METHOD_INVALID_MIN, "INVALID_MIN"}, named{RAVIX_CONNECT_METHOD_PBC, "PBC"},
    named{RAVIX_CONNECT_METHOD_INVALID_MAX, "INVALID_MAX"});

inline constexpr auto channel_width_names = make_name_table<std::int32_t>(
    named{RAVIX_CHANNEL_WIDTH_INVALID, "INVALID"}, named{RAVIX_CHANNEL_WIDTH_20, "20 MHz"},
    named{RAVIX_CHANNEL_WIDTH_40, "40 MHz"}, named{RAVIX_CHANNEL_WIDTH_80, "80 MHz"},
    named{RAVIX_CHANNEL_WIDTH_160, "160 MHz"}, named{RAVIX_CHANNEL_WIDTH_320, "320 MHz"});

inline constexpr auto channel_change_reason_names = make_name_table<std::int32_t>(
    named{RAVIX_CHANNEL_CHANGE_REASON_INVALID_MIN, "INVALID_MIN"},
    named{RAVIX_CHANNEL_CHANGE_REASON_INTERFERENCE, "INTERFERENCE"}, named{RAVIX_CHANNEL_CHANGE_REASON_RADAR, "RADAR"},
    named{RAVIX_CHANNEL_CHANGE_REASON_COEXISTENCE, "COEXISTENCE"},
    named{RAVIX_CHANNEL_CHANGE_REASON_INVALID_MAX, "INVALID_MAX"});

inline constexpr auto channel_capabilities_names = make_name_table<std::uint32_t>(
    named{RAVIX_CHANNEL_CAP_HT20, "HT20"}, named{RAVIX_CHANNEL_CAP_HT40, "HT40"}, named{RAVIX_CHANNEL_CAP_HT80, "HT80"},
    named{RAVIX_CHANNEL_CAP_HT160, "HT160"}, named{RAVIX_CHANNEL_CAP_HT320, "HT320"},
    named{RAVIX_CHANNEL_CAP_DFS, "DFS"}, named{RAVIX_CHANNEL_CAP_DFS_WEATHER, "DFS_WEATHER"});

inline constexpr auto wlan_mode_names = make_name_table<std::uint32_t>(
    named{RAVIX_WLAN_MODE_11A, "11A"}, named{RAVIX_WLAN_MODE_11B, "11B"}, named{RAVIX_WLAN_MODE_11G, "11G"},
    named{RAVIX_WLAN_MODE_11N, "11N"}, named{RAVIX_WLAN_MODE_11AC, "11AC"}, named{RAVIX_WLAN_MODE_11AX, "11AX"},
    named{RAVIX_WLAN_MODE_11BE, "11BE"});

inline constexpr auto channel_user_flags_names =
    make_name_table<std::uint32_t>(named{RAVIX_CHANNEL_USER_FLAG_REMOTE_DISTURBER, "REMOTE_DISTURBER"},
                                   named{RAVIX_CHANNEL_USER_FLAG_PERFORMANCE_OPTIMIZATION, "PERFORMANCE_OPTIMIZATION"},
                                   named{RAVIX_CHANNEL_USER_FLAG_DEBUG, "DEBUG"});

inline constexpr auto event_log_control_names = make_name_table<std::uint32_t>(
    named{RAVIX_EVENT_LOG_CONTROL_INFO, "INFO"}, named{RAVIX_EVENT_LOG_CONTROL_WARNING, "WARNING"},
    named{RAVIX_EVENT_LOG_CONTROL_ERROR, "ERROR"});

inline constexpr auto mlo_mode_names = make_name_table<std::uint32_t>(
    named{RAVIX_MLO_MODE_AUTO, "AUTO"}, named{RAVIX_MLO_MODE_MLSR, "MLSR"},
    named{RAVIX_MLO_MODE_EMLSR_STR, "EMLSR_STR"}, named{RAVIX_MLO_MODE_EMLSR_NSTR, "EMLSR_NSTR"},
    named{RAVIX_MLO_MODE_MLMR_STR, "MLMR_STR"}, named{RAVIX_MLO_MODE_MLMR_NSTR, "MLMR_NSTR"},
    named{RAVIX_MLO_MODE_EMLMR_STR, "EMLMR_STR"}, named{RAVIX_MLO_MODE_EMLMR_NSTR, "EMLMR_NSTR"});

inline constexpr auto features_names = make_name_table<std::uint64_t>(
    named{RAVIX_FEATURE_HIDDEN_SSID, "HIDDEN_SSID"}, named{RAVIX_FEATURE_USER_ISOLATION, "USER_ISOLATION"},
    named{RAVIX_FEATURE_AUTO_CHANNEL, "AUTO_CHANNEL"}, named{RAVIX_FEATURE_IPTV_OPTIMIZE, "IPTV_OPTIMIZE"},
    named{RAVIX_FEATURE_COEXISTENCE, "COEXISTENCE"}, named{RAVIX_FEATURE_TIME_CONTROL, "TIME_CONTROL"});

inline constexpr auto channel_state_names = make_name_table<std::uint32_t>(
    named{RAVIX_CHANNEL_STATE_ACTIVE, "ACTIVE"}, named{RAVIX_CHANNEL_STATE_PRI_CHAN, "PRI_CHAN"},
    named{RAVIX_CHANNEL_STATE_PRECAC_TODO, "PRECAC_TODO"}, named{RAVIX_CHANNEL_STATE_CAC_RUNNING, "CAC_RUNNING"},
    named{RAVIX_CHANNEL_STATE_DFS_CLEAR, "DFS_CLEAR"}, named{RAVIX_CHANNEL_STATE_RADAR_FOUND, "RADAR_FOUND"},
    named{RAVIX_CHANNEL_STATE_INTERFERENCE_FOUND, "INTERFERENCE_FOUND"},
    named{RAVIX_CHANNEL_STATE_1_MINUTE_OFF, "1_MINUTE_OFF"},
    named{RAVIX_CHANNEL_STATE_10_MINUTES_OFF, "10_MINUTES_OFF"}, named{RAVIX_CHANNEL_STATE_PUNCTURED, "PUNCTURED"});

// By topic, which is the order in which they are shown.
inline constexpr auto capabilities_names = make_name_table<std::uint32_t>(
    named{RAVIX_CAPABILITY_WPA_PSK, "WPA_PSK"}, named{RAVIX_CAPABILITY_WPA_ENT, "WPA_ENT"},
    named{RAVIX_CAPABILITY_WPA2_PSK, "WPA2_PSK"}, named{RAVIX_CAPABILITY_WPA2_ENT, "WPA2_ENT"},
    named{RAVIX_CAPABILITY_WPA3_PSK, "WPA3_PSK"}, named{RAVIX_CAPABILITY_OWE, "OWE"},
    named{RAVIX_CAPABILITY_OWE_TRANS, "OWE_TRANS"}, named{RAVIX_CAPABILITY_PMF, "PMF"},
    named{RAVIX_CAPABILITY_PRIVACY, "PRIVACY"}, named{RAVIX_CAPABILITY_WPS, "WPS"},
    named{RAVIX_CAPABILITY_2GHZ, "2GHZ"}, named{RAVIX_CAPABILITY_5GHZ, "5GHZ"}, named{RAVIX_CAPABILITY_6GHZ, "6GHZ"},
    named{RAVIX_CAPABILITY_WME, "WME"}, named{RAVIX_CAPABILITY_STBC, "STBC"}, named{RAVIX_CAPABILITY_LDPC, "LDPC"},
    named{RAVIX_CAPABILITY_WME_PS, "WME_PS"}, named{RAVIX_CAPABILITY_TXBF, "TXBF"},
    named{RAVIX_CAPABILITY_AMSDU, "AMSDU"}, named{RAVIX_CAPABILITY_AMPDU, "AMPDU"},
    named{RAVIX_CAPABILITY_UAPSD, "UAPSD"}, named{RAVIX_CAPABILITY_MUMIMO, "MUMIMO"},
    named{RAVIX_CAPABILITY_11N_2G_256QAM, "11N_2G_256QAM"}, named{RAVIX_CAPABILITY_11NAC_1024QAM, "11NAC_1024QAM"},
    named{RAVIX_CAPABILITY_RRM, "RRM"}, named{RAVIX_CAPABILITY_FBT, "FBT"}, named{RAVIX_CAPABILITY_BTM, "BTM"},
    named{RAVIX_CAPABILITY_MLO, "MLO"}, named{RAVIX_CAPABILITY_QCA, "QCA"}, named{RAVIX_CAPABILITY_MINI, "MINI"},
    named{RAVIX_CAPABILITY_ZEL, "ZEL"}, named{RAVIX_CAPABILITY_ZELWDS, "ZELWDS"});

inline constexpr auto param_id_names = make_name_table<std::int32_t>(
    named{RAVIX_PARAM_ID_INVALID_MIN, "INVALID_MIN"}, named{RAVIX_PARAM_ID_GROUP, "GROUP"},
    named{RAVIX_PARAM_ID_CTL_LOGLVL, "CTL_LOGLVL"}, named{RAVIX_PARAM_ID_MLD_ROLE_LIST, "MLD_ROLE_LIST"},
    named{RAVIX_PARAM_ID_ROLE_CONFIG, "ROLE_CONFIG"}, named{RAVIX_PARAM_ID_ENABLED, "ENABLED"},
    named{RAVIX_PARAM_ID_CONFIGURED, "CONFIGURED"}, named{RAVIX_PARAM_ID_FORCE_OFF, "FORCE_OFF"},
    named{RAVIX_PARAM_ID_WLAN_MODE, "WLAN_MODE"}, named{RAVIX_PARAM_ID_CHANNEL_WIDTH, "CHANNEL_WIDTH"},
    named{RAVIX_PARAM_ID_CHANNEL, "CHANNEL"}, named{RAVIX_PARAM_ID_CHANNEL_EX, "CHANNEL_EX"},
    named{RAVIX_PARAM_ID_CHANNEL_INFO, "CHANNEL_INFO"}, named{RAVIX_PARAM_ID_AUTO_SETTINGS, "AUTO_SETTINGS"},
    named{RAVIX_PARAM_ID_AUTOCHANNEL_PLUS, "AUTOCHANNEL_PLUS"}, named{RAVIX_PARAM_ID_STATION_TYPE, "STATION_TYPE"},
    named{RAVIX_PARAM_ID_ROLE_OPMODE, "ROLE_OPMODE"}, named{RAVIX_PARAM_ID_POWER_LEVEL, "POWER_LEVEL"},
    named{RAVIX_PARAM_ID_KEY_VAL, "KEY_VAL"}, named{RAVIX_PARAM_ID_SSID, "SSID"},
    named{RAVIX_PARAM_ID_MAC_LIST, "MAC_LIST"}, named{RAVIX_PARAM_ID_SECURITY, "SECURITY"},
    named{RAVIX_PARAM_ID_OWE_TRANSITION_ACTIVE, "OWE_TRANSITION_ACTIVE"},
    named{RAVIX_PARAM_ID_OWE_TRANSITION_BSSID, "OWE_TRANSITION_BSSID"},
    named{RAVIX_PARAM_ID_OWE_TRANSITION_SSID, "OWE_TRANSITION_SSID"},
    named{RAVIX_PARAM_ID_OWE_TRANSITION_ROLE, "OWE_TRANSITION_ROLE"}, named{RAVIX_PARAM_ID_WPS_VERSION, "WPS_VERSION"},
    named{RAVIX_PARAM_ID_WPS_ENABLE, "WPS_ENABLE"}, named{RAVIX_PARAM_ID_WPS_MODE, "WPS_MODE"},
    named{RAVIX_PARAM_ID_WPS_DEVICENAME, "WPS_DEVICENAME"},
    named{RAVIX_PARAM_ID_WPS_DEVICE_PASSWORD, "WPS_DEVICE_PASSWORD"}, named{RAVIX_PARAM_ID_WPS_UUID, "WPS_UUID"},
    named{RAVIX_PARAM_ID_WPS_CF_METHODS_SUP, "WPS_CF_METHODS_SUP"},
    named{RAVIX_PARAM_ID_WPS_CF_METHODS_EN, "WPS_CF_METHODS_EN"},
    named{RAVIX_PARAM_ID_WPS_SETUP_LOCKED_STATE, "WPS_SETUP_LOCKED_STATE"},
    named{RAVIX_PARAM_ID_WPS_SETUP_LOCK, "WPS_SETUP_LOCK"}, named{RAVIX_PARAM_ID_WPS_CFG_STATE, "WPS_CFG_STATE"},
    named{RAVIX_PARAM_ID_WPS_LAST_CFG_ERROR, "WPS_LAST_CFG_ERROR"}, named{RAVIX_PARAM_ID_RSSI, "RSSI"},
    named{RAVIX_PARAM_ID_TIME_AGE, "TIME_AGE"}, named{RAVIX_PARAM_ID_TIME_BLOCKED, "TIME_BLOCKED"},
    named{RAVIX_PARAM_ID_RADIOBAND, "RADIOBAND"}, named{RAVIX_PARAM_ID_CAPABILITIES, "CAPABILITIES"},
    named{RAVIX_PARAM_ID_FREQUENCY, "FREQUENCY"}, named{RAVIX_PARAM_ID_QUALITY, "QUALITY"},
    named{RAVIX_PARAM_ID_NOISE, "NOISE"}, named{RAVIX_PARAM_ID_WDS_MASTER_MAC, "WDS_MASTER_MAC"},
    named{RAVIX_PARAM_ID_FEATURES, "FEATURES"}, named{RAVIX_PARAM_ID_TIMEOUT_ACTIVE, "TIMEOUT_ACTIVE"},
    named{RAVIX_PARAM_ID_TIMEOUT_MINUTES, "TIMEOUT_MINUTES"}, named{RAVIX_PARAM_ID_BRIDGE_MODE, "BRIDGE_MODE"},
    named{RAVIX_PARAM_ID_NETWORK_TYPE, "NETWORK_TYPE"}, named{RAVIX_PARAM_ID_MAX_CLIENTS, "MAX_CLIENTS"},
    named{RAVIX_PARAM_ID_MIN_CLIENT_RSSI, "MIN_CLIENT_RSSI"},
    named{RAVIX_PARAM_ID_MAX_CLIENT_LOGIN_TIME, "MAX_CLIENT_LOGIN_TIME"},
    named{RAVIX_PARAM_ID_MAX_CLIENT_IDLE_TIME, "MAX_CLIENT_IDLE_TIME"},
    named{RAVIX_PARAM_ID_MAX_CLIENT_TRAFFIC, "MAX_CLIENT_TRAFFIC"}, named{RAVIX_PARAM_ID_AUTH_SERVER, "AUTH_SERVER"},
    named{RAVIX_PARAM_ID_ACCT_SERVER, "ACCT_SERVER"},
    named{RAVIX_PARAM_ID_ACCESS_CONTROL_MAX_CLIENTS, "ACCESS_CONTROL_MAX_CLIENTS"},
    named{RAVIX_PARAM_ID_AUTOCHANNEL_PLUS_11A, "AUTOCHANNEL_PLUS_11A"},
    named{RAVIX_PARAM_ID_MIMO_STREAMS, "MIMO_STREAMS"}, named{RAVIX_PARAM_ID_AVG_TX_RATE, "AVG_TX_RATE"},
    named{RAVIX_PARAM_ID_AVG_RX_RATE, "AVG_RX_RATE"}, named{RAVIX_PARAM_ID_MAX_TX_RATE, "MAX_TX_RATE"},
    named{RAVIX_PARAM_ID_MAX_RX_RATE, "MAX_RX_RATE"}, named{RAVIX_PARAM_ID_CONNECTED, "CONNECTED"},
    named{RAVIX_PARAM_ID_AUTO_UPDATE, "AUTO_UPDATE"}, named{RAVIX_PARAM_ID_PMF_MODE, "PMF_MODE"},
    named{RAVIX_PARAM_ID_MEDIUM_CHANNEL_LOAD, "MEDIUM_CHANNEL_LOAD"},
    named{RAVIX_PARAM_ID_RADIO_SUB_BAND, "RADIO_SUB_BAND"}, named{RAVIX_PARAM_ID_HAL_ID_END, "HAL_ID_END"},
    named{RAVIX_PARAM_ID_IGNORE, "IGNORE"}, named{RAVIX_PARAM_ID_HW_ID, "HW_ID"},
    named{RAVIX_PARAM_ID_SSID_SET, "SSID_SET"}, named{RAVIX_PARAM_ID_IP_ADDR, "IP_ADDR"},
    named{RAVIX_PARAM_ID_PORT, "PORT"}, named{RAVIX_PARAM_ID_ACCESS_CONTROL, "ACCESS_CONTROL"},
    named{RAVIX_PARAM_ID_ACCESS_CONTROL_ROLE, "ACCESS_CONTROL_ROLE"},
    named{RAVIX_PARAM_ID_TIME_CONTROL, "TIME_CONTROL"}, named{RAVIX_PARAM_ID_COUNTRY_CODE, "COUNTRY_CODE"},
    named{RAVIX_PARAM_ID_VENDOR_ID, "VENDOR_ID"}, named{RAVIX_PARAM_ID_ACS_CONTROL, "ACS_CONTROL"},
    named{RAVIX_PARAM_ID_CHIP_TYPE, "CHIP_TYPE"}, named{RAVIX_PARAM_ID_CFG_SECURITY, "CFG_SECURITY"},
    named{RAVIX_PARAM_ID_GUEST_MODE, "GUEST_MODE"}, named{RAVIX_PARAM_ID_IDENTIFIER, "IDENTIFIER"},
    named{RAVIX_PARAM_ID_ROLE_STATIC, "ROLE_STATIC"}, named{RAVIX_PARAM_ID_RADIO_STATIC, "RADIO_STATIC"},
    named{RAVIX_PARAM_ID_RADIUS_SECRET, "RADIUS_SECRET"}, named{RAVIX_PARAM_ID_RADIUS_SERVER, "RADIUS_SERVER"},
    named{RAVIX_PARAM_ID_STRING, "STRING"}, named{RAVIX_PARAM_ID_UPLINK, "UPLINK"},
    named{RAVIX_PARAM_ID_LANGUAGE, "LANGUAGE"}, named{RAVIX_PARAM_ID_COUNTRY, "COUNTRY"},
    named{RAVIX_PARAM_ID_DBG_SETTINGS, "DBG_SETTINGS"}, named{RAVIX_PARAM_ID_DEVICE_OPMODE, "DEVICE_OPMODE"},
    named{RAVIX_PARAM_ID_LOG_CONTROL, "LOG_CONTROL"}, named{RAVIX_PARAM_ID_KCL, "KCL"},
    named{RAVIX_PARAM_ID_MESH_SETTINGS, "MESH_SETTINGS"}, named{RAVIX_PARAM_ID_REPEATING, "REPEATING"},
    named{RAVIX_PARAM_ID_MAC, "MAC"}, named{RAVIX_PARAM_ID_MAC_ADDR_INDEX, "MAC_ADDR_INDEX"},
    named{RAVIX_PARAM_ID_DESCR, "DESCR"}, named{RAVIX_PARAM_ID_IF_NAME, "IF_NAME"},
    named{RAVIX_PARAM_ID_PUNCTURE_MAP, "PUNCTURE_MAP"}, named{RAVIX_PARAM_ID_MLO_LINK_ID, "MLO_LINK_ID"},
    named{RAVIX_PARAM_ID_MLO_MODES_SUPPORTED, "MLO_MODES_SUPPORTED"}, named{RAVIX_PARAM_ID_MLD_MAC, "MLD_MAC"},
    named{RAVIX_PARAM_ID_RSN_ELEMENT, "RSN_ELEMENT"}, named{RAVIX_PARAM_ID_RSNO_ELEMENTS, "RSNO_ELEMENTS"},
    named{RAVIX_PARAM_ID_INVALID_MAX, "INVALID_MAX"});

inline constexpr auto connect_session_id_names = make_name_table<std::int32_t>(
    named{RAVIX_CONNECT_SESSION_ID_INVALID, "INVALID"}, named{RAVIX_CONNECT_SESSION_ID_ALL, "ALL"},
    named{RAVIX_CONNECT_SESSION_ID_UNDEF, "UNDEF"}, named{RAVIX_CONNECT_SESSION_ID_LAST, "LAST"});

inline constexpr auto enabled_names = make_name_table<std::int32_t>(named{true, "ON"}, named{false, "OFF"});

inline constexpr auto id_names =
    make_name_table<std::int32_t>(named{RAVIX_ID_INVALID, "INVALID"}, named{RAVIX_ID_ALL, "ALL"},
                                  named{RAVIX_ID_NONE, "NONE"}, named{RAVIX_ID_UNSPECIFIED, "UNSPECIFIED"});

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
