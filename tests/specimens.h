/* Records as they go through the interface of a router with three radios, to be read: a home network with a guest
 * network and an uplink, what its radios hear, clients that come, roam and go, a radar.
 *
 * Each field of each record has a value somewhere that no other formatter would show alike. The texts that the printers
 * make of them are written in tests/data/specimens.txt. For C and C++. Nothing here is owned: print, compare and copy
 * these records, but never clear or change them. */
#ifndef RAVIX_TEST_SPECIMENS_H
#define RAVIX_TEST_SPECIMENS_H

#include <ravix_types.h>

/* Several fields a line. */
/* clang-format off */

#define MAC(group, number) {0x02, 0x00, 0x5E, 0x10, group, number}
#define TEXT(characters) {sizeof(characters) - 1, characters}
#define ROWS(array) {sizeof(array) / sizeof *(array), array}
#define CONTEXT(address) ((void *)(uintptr_t)(address))

/* ---- what the radios hear */

static ravix_scan_entry_t heard[] = {
    {.wlan_mode = RAVIX_WLAN_MODE_11A | RAVIX_WLAN_MODE_11N | RAVIX_WLAN_MODE_11AC | RAVIX_WLAN_MODE_11AX,
     .bssid = MAC(0x59, 0x09), .ssid = TEXT("canteen"),
     .channel_info = {5500000, 5570000, RAVIX_CHANNEL_WIDTH_160, 0}, .rssi = -66,
     .capabilities = RAVIX_CAPABILITY_WPA2_PSK | RAVIX_CAPABILITY_PMF | RAVIX_CAPABILITY_5GHZ},
    {.wlan_mode = RAVIX_WLAN_MODE_11AX | RAVIX_WLAN_MODE_11BE,
     .bssid = MAC(0x6D, 0x0D), .ssid = TEXT("backhaul"), /* subchannels 10 and 11 are punctured */
     .channel_info = {6135000, 6265000, RAVIX_CHANNEL_WIDTH_320, 0x0C00}, .rssi = -52,
     .capabilities = RAVIX_CAPABILITY_WPA3_PSK | RAVIX_CAPABILITY_6GHZ | RAVIX_CAPABILITY_MLO},
    {.wlan_mode = RAVIX_WLAN_MODE_11B | RAVIX_WLAN_MODE_11G,
     .bssid = MAC(0x21, 0x01), .ssid = TEXT("caf\xc3\xa9"),
     .channel_info = {2437000, 2447000, RAVIX_CHANNEL_WIDTH_40, 0}, .rssi = -101, .capabilities = 0}};
static ravix_noisefloor_entry_t noise[] = {{.frequency = 2437000, .noisefloor = 31, .load = 45},
                                           {.frequency = 5500000, .noisefloor = RAVIX_MEASURE_INVALID, .load = 7}};
static ravix_scan_results_t scan_results = {
    .scan_time = 12345678, .noisefloor_table = ROWS(noise), .scan_table = ROWS(heard)};

static uint32_t wanted_frequencies[] = {2412000, 5180000, 5955000};
static ravix_ssid_t wanted_names[] = {TEXT("canteen"), TEXT("backhaul")};
static ravix_mac_t wanted_bssids[] = {MAC(0x59, 0x09)};
static ravix_scan_parameter_t scan_parameter = {
    .frequencies = ROWS(wanted_frequencies), .ssids = ROWS(wanted_names), .bssids = ROWS(wanted_bssids)};

static const ravix_start_scan_request_t scan_request = {.radio_id = 2, .scan_parameter = &scan_parameter};
static const ravix_start_scan_request_t scan_of_all_radios = {.radio_id = RAVIX_ID_ALL, .scan_parameter = NULL};
static const ravix_start_scan_response_t scan_is_pending = {.status = RAVIX_STATUS_PENDING};
static const ravix_get_scan_results_request_t results_request = {.radio_id = 2, .selective_scan_results = true};
static const ravix_get_scan_results_response_t results_response = {.status = RAVIX_STATUS_FINISHED,
                                                                   .scan_results = &scan_results};
static const ravix_event_scan_results_t scan_finished = {.radio_id = 2, .scan_parameter = &scan_parameter,
                                                         .scan_results = &scan_results};

static ravix_channel_entry_t channels[] = {
    {.frequency = 5180000, .max_power = 23,
     .capabilities = RAVIX_CHANNEL_CAP_HT20 | RAVIX_CHANNEL_CAP_HT40 | RAVIX_CHANNEL_CAP_HT80,
     .state = RAVIX_CHANNEL_STATE_ACTIVE | RAVIX_CHANNEL_STATE_PRI_CHAN, .user_flags = 0},
    {.frequency = 5260000, .max_power = 5, .capabilities = RAVIX_CHANNEL_CAP_HT20 | RAVIX_CHANNEL_CAP_DFS,
     .state = RAVIX_CHANNEL_STATE_RADAR_FOUND, .user_flags = RAVIX_CHANNEL_USER_FLAG_DEBUG},
    {.frequency = 5885000, .max_power = RAVIX_POWER_INVALID, .capabilities = RAVIX_CHANNEL_CAP_HT20,
     .state = RAVIX_CHANNEL_STATE_1_MINUTE_OFF, .user_flags = RAVIX_CHANNEL_USER_FLAG_REMOTE_DISTURBER}};
static const ravix_channel_list_t channel_list = ROWS(channels);

static ravix_radio_load_entry_t loads[] = {{.global_usage = 87, .own_tx_usage = 5},
                                           {.global_usage = 100, .own_tx_usage = RAVIX_MEASURE_INVALID}};
static const ravix_radio_load_table_t radio_load = ROWS(loads);

static ravix_radio_airtime_entry_t airtimes[] = {{.rxc = 12.5F, .rxf = 0.25F, .txf = 1234.0625F, .noisefloor = -95.0F}};
static const ravix_radio_airtime_table_t radio_airtime = {.airtime_base = 1000, .count = 1, .data = airtimes};

/* ---- clients, and access points of the mesh */

static ravix_station_entry_t stations[] = {
    {.state = RAVIX_STA_STATE_CONNECTED, .mode = RAVIX_WLAN_MODE_11AX | RAVIX_WLAN_MODE_11BE,
     .security = RAVIX_SECURITY_WPA3PSK, .hwaddr = MAC(0x20, 0x01), .signal_rssi = -48, .signal_quality = 92,
     .channel_info = {5955000, 5985000, RAVIX_CHANNEL_WIDTH_80, 0},
     .rate_tx_max = 2882400, .rate_rx_max = 2402000, .rate_tx_current = 1921600, .rate_rx_current = 960800,
     .streams_tx = 2, .streams_rx = 1, .caps_set = RAVIX_CAPABILITY_BTM | RAVIX_CAPABILITY_RRM,
     .mld_hwaddr = MAC(0x20, 0xF1), .mlo_mode = RAVIX_MLO_MODE_EMLSR_STR, .mlo_link_id = 2,
     .mlo_link_t2lm_ul = 0xF0, .mlo_link_t2lm_dl = 0x0F},
    {.state = RAVIX_STA_STATE_AUTHENTICATED, .mode = RAVIX_WLAN_MODE_11N, /* has just come: nothing measured yet */
     .security = RAVIX_SECURITY_WPA2PSK, .hwaddr = MAC(0x20, 0x02), .signal_rssi = RAVIX_POWER_INVALID,
     .signal_quality = RAVIX_MEASURE_INVALID, .channel_info = {2472000, 2472000, RAVIX_CHANNEL_WIDTH_20, 0},
     .rate_tx_max = 0, .rate_rx_max = 0, .rate_tx_current = 0, .rate_rx_current = 0,
     .streams_tx = 0, .streams_rx = 0, .caps_set = 0,
     .mld_hwaddr = {0}, .mlo_mode = 0, .mlo_link_id = RAVIX_INDEX_INVALID,
     .mlo_link_t2lm_ul = 0, .mlo_link_t2lm_dl = 0}};
static const ravix_station_table_t station_table = ROWS(stations);

static char repeater_upstairs[] = "02:00:5E:10:30:00";
static ravix_remote_client_entry_t remote_clients[] = {
    {.parent_nexus_device_address = repeater_upstairs, .bssid = MAC(0x30, 0x05), .hwaddr = MAC(0x20, 0x03),
     .mld_hwaddr = MAC(0x20, 0xF3), .mlo_link_id = 1, .mlo_link_active_state = true, .mlo_mode = RAVIX_MLO_MODE_MLSR,
     .state = RAVIX_STA_STATE_ASSOCIATED, .channel_width = RAVIX_CHANNEL_WIDTH_160, .center_frequency = 5250000,
     .rssi = -71, .quality = 40, .wlan_mode = RAVIX_WLAN_MODE_11AC, .security = RAVIX_SECURITY_OWE,
     .station_type = RAVIX_STATION_TYPE_ZEL_STA, .caps_set = RAVIX_CAPABILITY_QCA | RAVIX_CAPABILITY_ZEL,
     .zel_caps_set = 0x80000005, .rate_active_tx = 100001, .rate_active_rx = 100002, .rate_max_tx = 866700,
     .rate_max_rx = 433300, .rate_average_tx = 300001, .rate_average_rx = 300002, .streams_tx = 4, .streams_rx = 3}};
static const ravix_remote_client_table_t remote_client_table = ROWS(remote_clients);

static ravix_remote_ap_entry_t remote_aps[] = {
    {.nexus_device_address = repeater_upstairs, .opmode = RAVIX_ROLE_OPMODE_AP_GUEST_OWE, .hwaddr = MAC(0x30, 0x06),
     .mlo_link_id = 3, .security = RAVIX_SECURITY_OWE_TRANS,
     .wlan_mode = RAVIX_WLAN_MODE_11N | RAVIX_WLAN_MODE_11AX, .caps_set = RAVIX_CAPABILITY_OWE_TRANS,
     .zel_caps_set = 0x00000300, .rate_max_rx = 573500, .rate_max_tx = 1147000, .streams_rx = 2, .streams_tx = 4,
     .channel_info = {2412000, 2422000, RAVIX_CHANNEL_WIDTH_40, 0}}};
static const ravix_remote_ap_table_t remote_ap_table = ROWS(remote_aps);

static ravix_station_history_entry_t roaming_client[] = { /* leaves for the repeater upstairs */
    {.mac = MAC(0x20, 0x01), .quality = 18, .wlan_mode = RAVIX_WLAN_MODE_11BE, .role_handle = 4,
     .time_connect = 1001, .time_disconnect = 90061010,
     .status_connect = 30, .initiator_connect = 1, .ieee802_11_reason_connect = 1001,
     .status_disconnect = 12, .initiator_disconnect = 2, .ieee802_11_reason_disconnect = 8}};
static const ravix_station_history_table_t station_history = ROWS(roaming_client);

/* ---- the device's configuration */

static char trace_of_scans[] = "scan,acs", lighthouse[] = "lighthouse", lighthouse_guests[] = "lighthouse guests";
static char *list_sources[] = {lighthouse}, *list_targets[] = {lighthouse_guests, NULL};
static const ravix_cfg_global_settings_t device_settings = {
    .wlan_enabled = true, .auto_settings = true, .outdoor_mode = true, .security_interop = true,
    .use_channel_12_13 = true, .event_control = RAVIX_EVENT_LOG_CONTROL_WARNING | RAVIX_EVENT_LOG_CONTROL_ERROR,
    .device_opmode = RAVIX_DEVICE_OPMODE_ATA, .dbg_settings = {.trace_state = 7, .trace_parameter = trace_of_scans},
    .meshd_settings = {.band_steering = true, .backhaul_steering = true}, .time_control = {.forced_off = true},
    .repeating = {.overwrite_ap_config = true},
    .acl_settings = {.autofill_enable = true, .ssids_source = ROWS(list_sources), .ssids_target = ROWS(list_targets)}};

static const ravix_cfg_auto_update_rule_t update_of_guests = {
    .enabled = true, .type = RAVIX_CFG_AUTO_UPDATE_RULE_ROLE_OPMODE,
    .auto_update_role_opmode = {RAVIX_ROLE_OPMODE_AP_GUEST}};
static const ravix_cfg_auto_update_rule_t update_of_features = {
    .enabled = true, .type = RAVIX_CFG_AUTO_UPDATE_RULE_FEATURE,
    .auto_update_features = {0xFFFFFFFF00008008}}; /* two of these flags have a name */

static const ravix_cfg_hardware_static_t chip = {.id = 1, .vendor_id = 14, .chip_type = 200, .hw_interface = 3};
static const ravix_cfg_radio_static_t radio_6ghz = {
    .id = 3, .if_name = "wifi2", .enabled = true, .hw_id = 1, .mac_address_index = 12,
    .radio_band = RAVIX_RADIO_BAND_6GHZ, .radio_sub_band = RAVIX_RADIO_SUB_BAND_LOW, .coexistence_enabled = true,
    .auto_channel = true, .primary_freq = 6135000};
static const ravix_cfg_radio_dynamic_t radio_state = {.id = 3, .enabled = true, .auto_channel = true};

/* ---- roles */

static ravix_cfg_radius_server_t radius_servers[] = {
    {.index = 2, .port = 1812, .addr = {RAVIX_IP_VERSION_4, {192, 0, 2, 10}}, .secret = "canary-of-radius"},
    {.index = 1, .port = 1645,
     .addr = {RAVIX_IP_VERSION_6, {0x20, 0x01, 0x0D, 0xB8, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0x53}},
     .secret = "canary-of-radius"}};
static ravix_cfg_radius_server_t accounting_servers[] = {
    {.index = RAVIX_INDEX_INVALID, .port = 1813, .addr = {RAVIX_IP_VERSION_4, {192, 0, 2, 11}}, .secret = ""}};

static ravix_mac_t kept_out[] = {MAC(0x0A, 0x01), MAC(0x0A, 0x02)};
static ravix_cfg_role_config_ap_t home_config = {
    .ssid = TEXT("lighthouse"), .ssid_set = true, .hidden_ssid_enabled = true, .user_isolation_enabled = false,
    .iptv_optimization_enabled = true,
    .access_control = {.mac_filter_enabled = true, .mac_filter_type = RAVIX_MAC_ACCESS_TYPE_BLACKLIST,
                       .macs_filtered = ROWS(kept_out), .limits_enabled = false,
                       .limits_max_clients = RAVIX_MAX_CLIENTS_UNLIMITED,
                       .limits_min_client_rssi = RAVIX_POWER_INVALID},
    .time_control = {.timeout_active = false, .timeout_minutes = 0, .force_off = false}};
static const ravix_cfg_role_static_t home_network = {
    .id = 4, .radio_id = 2, .enabled = true, .mac_address_index = 5, .if_name = "wlan0",
    .op_mode = RAVIX_ROLE_OPMODE_AP_HOME, .power_level = 100,
    .wlan_mode = RAVIX_WLAN_MODE_11N | RAVIX_WLAN_MODE_11AC | RAVIX_WLAN_MODE_11AX,
    .channel_width = RAVIX_CHANNEL_WIDTH_80,
    .security = {.security = RAVIX_SECURITY_WPA2ENT, .pmf_mode = RAVIX_PMF_MODE_SUPPORTED,
                 .key = TEXT("canary-of-the-home-network"),
                 .wps = {.enable = true, .uuid = {0x00, 0x11, 0x22, 0x33, 0x44, 0x55, 0x66, 0x77,
                                                  0x88, 0x99, 0xAA, 0xBB, 0xCC, 0xDD, 0xEE, 0xFF}},
                 .auth_servers = ROWS(radius_servers), .acct_servers = ROWS(accounting_servers)},
    .config_ap = &home_config};

static ravix_cfg_role_config_ap_t guest_config = {
    .ssid = TEXT("lighthouse guests"), .ssid_set = true, .hidden_ssid_enabled = false, .user_isolation_enabled = true,
    .iptv_optimization_enabled = false,
    .access_control = {.mac_filter_enabled = false, .mac_filter_type = RAVIX_MAC_ACCESS_TYPE_WHITELIST,
                       .macs_filtered = {0, NULL}, .limits_enabled = true, .limits_max_clients = 16,
                       .limits_min_client_rssi = -82},
    .time_control = {.timeout_active = true, .timeout_minutes = 90, .force_off = true}};
static const ravix_cfg_role_static_t guest_network = { /* on the same radio, without RADIUS */
    .id = 5, .radio_id = 2, .enabled = true, .mac_address_index = 6, .if_name = "wlan0-guests",
    .op_mode = RAVIX_ROLE_OPMODE_AP_GUEST, .power_level = 25,
    .wlan_mode = RAVIX_WLAN_MODE_11N | RAVIX_WLAN_MODE_11AC | RAVIX_WLAN_MODE_11AX,
    .channel_width = RAVIX_CHANNEL_WIDTH_80,
    .security = {.security = RAVIX_SECURITY_WPA2PSK, .pmf_mode = RAVIX_PMF_MODE_SUPPORTED,
                 .key = TEXT("canary-of-the-guests"), .wps = {.enable = false, .uuid = {0}},
                 .auth_servers = {0, NULL}, .acct_servers = {0, NULL}},
    .config_ap = &guest_config};

static ravix_cfg_role_config_sta_t uplink_config = {
    .marked_for_uplink_completion = true, .uplink_configured = true,
    .uplink = {.ssid = TEXT("backhaul"), .mac_master = MAC(0x6D, 0x0D)}};
static const ravix_cfg_role_static_t uplink = {
    .id = 6, .radio_id = 3, .enabled = true, .mac_address_index = RAVIX_INDEX_INVALID, .if_name = "wlan2",
    .op_mode = RAVIX_ROLE_OPMODE_REPEATER, .power_level = RAVIX_MEASURE_INVALID, .wlan_mode = RAVIX_WLAN_MODE_11BE,
    .channel_width = RAVIX_CHANNEL_WIDTH_320,
    .security = {.security = RAVIX_SECURITY_WPA3PSK, .pmf_mode = RAVIX_PMF_MODE_MANDATORY,
                 .key = TEXT("canary-of-the-uplink"), .wps = {.enable = false, .uuid = {0}},
                 .auth_servers = {0, NULL}, .acct_servers = {0, NULL}},
    .config_sta = &uplink_config};

static ravix_cfg_security_extended_t override_elements[] = {
    {.encryption = RAVIX_ENCRYPTION_RSN, .pmf_mode = RAVIX_PMF_MODE_MANDATORY, .pwe_mode = RAVIX_PWE_MODE_H2E,
     .key_mgmt = {RAVIX_ENCRYPTION_AKM_SAE_EXT, 0, 0},
     .group_cipher = {RAVIX_ENCRYPTION_CIPHER_SUITE_GCMP256, 0},
     .group_mgmt_cipher = {RAVIX_ENCRYPTION_GROUP_MGMT_CIPHER_BIP_GMAC256, 0},
     .pairwise_ciphers = {RAVIX_ENCRYPTION_CIPHER_SUITE_GCMP256, 0}}};
static ravix_cfg_owe_transition_t owe_transition = {
    .owe_master_id = 8, .owe_slave_id = RAVIX_ID_NONE, .owe_active = true, .owe_ssid = TEXT("lighthouse guests"),
    .owe_bssid = MAC(0x08, 0x09)};
static int32_t link_roles[] = {4, 7, RAVIX_ID_ALL};
static ravix_cfg_mld_t multi_link_device = {.mld_mac = MAC(0x08, 0xF0), .mld_role_ids = ROWS(link_roles)};
static const ravix_cfg_role_dynamic_t home_state = {
    .id = 4, .enabled = true, .mac = MAC(0x08, 0x04), .wlan_mode = RAVIX_WLAN_MODE_11AX | RAVIX_WLAN_MODE_11BE,
    .channel_width = RAVIX_CHANNEL_WIDTH_160, .valid = true, .radio_master_id = 2,
    .ap_master_id = RAVIX_ID_UNSPECIFIED, .mac_filter_enabled = true, .pbc_enabled = true,
    .security = RAVIX_SECURITY_WPA2_WPA3,
    .rsn_element = {.encryption = RAVIX_ENCRYPTION_WPA_MIXED, .pmf_mode = RAVIX_PMF_MODE_SUPPORTED,
                    .pwe_mode = RAVIX_PWE_MODE_HAP_H2E,
                    .key_mgmt = {RAVIX_ENCRYPTION_AKM_PSK, RAVIX_ENCRYPTION_AKM_SAE, RAVIX_ENCRYPTION_AKM_OWE},
                    .group_cipher = {RAVIX_ENCRYPTION_CIPHER_SUITE_TKIP, RAVIX_ENCRYPTION_CIPHER_SUITE_CCMP128},
                    .group_mgmt_cipher = {RAVIX_ENCRYPTION_GROUP_MGMT_CIPHER_BIP_CMAC128,
                                          RAVIX_ENCRYPTION_GROUP_MGMT_CIPHER_BIP_GMAC256},
                    .pairwise_ciphers = {RAVIX_ENCRYPTION_CIPHER_SUITE_CCMP128, RAVIX_ENCRYPTION_CIPHER_SUITE_GCMP256}},
    .rsno_elements = ROWS(override_elements), .owe_transition = &owe_transition, .cfg_mld = &multi_link_device};

static uint8_t rrm_capabilities[] = {0x72, 0x08, 0x01, 0x00, 0x40};
static uint8_t vendor_octets[] = {0x50, 0x6F, 0x9A, 0x16, 0x03, 0x01, 0x01, 0x65, 0x00,
                                  0xFF, 0x0A, 0xA0, 0x7F, 0x80, 0x01, 0x10, 0x0F};
static ravix_tlv_t elements[] = {{.type = 70, .len = sizeof rrm_capabilities, .value = rrm_capabilities},
                                 {.type = 221, .len = sizeof vendor_octets, .value = vendor_octets},
                                 {.type = 255, .len = 0, .value = NULL}};
static const ravix_tlv_table_t element_table = ROWS(elements);

/* ---- events */

static const ravix_event_log_entry_t client_is_slow = {
    .event_id = 3, .max_rate = 6000, .mac = MAC(0x20, 0x02), .band = RAVIX_RADIO_BAND_6GHZ, .is_mlo = true,
    .details = 4294967295U};
static const ravix_event_green_ap_t green_ap = {.radio_id = 2, .enabled = true};
static const ravix_event_channel_change_t radar_avoided = {
    .radio_id = 2, .prev_channel = {5500000, 5530000, RAVIX_CHANNEL_WIDTH_80, 0},
    .new_channel = {5180000, 5210000, RAVIX_CHANNEL_WIDTH_80, 0x0008}, .reason = RAVIX_CHANNEL_CHANGE_REASON_RADAR,
    .change_time = 4294967301};
static const ravix_event_interference_t microwave_oven = {
    .radio_id = 1, .primary_freq = 2462000, .active = true, .channel_change = true};
static const ravix_event_radar_wait_t cac = {
    .role_id = 4, .started = true, .radar_time = 600, .first_primary_khz = 5580000, .last_primary_khz = 5640000};
static const ravix_event_radar_detected_t radar = {
    .radio_id = 2, .expire_ts_uptime = 4294969096, .freq_start = 5500000, .freq_end = 5560000,
    .radar_type = RAVIX_RADAR_TYPE_ETSI_4, .level_dbm = -62, .flags = 0x80000001};
static const ravix_event_radar_precac_t precac = {.radio_id = 2, .primary_freq = 5500000, .temp_freq = 5745000};
static const ravix_event_client_state_update_t client_connects = {
    .role_id = 3, .mac = MAC(0x20, 0x01), .old_state = RAVIX_STA_STATE_ASSOCIATED,
    .new_state = RAVIX_STA_STATE_CONNECTED};
static const ravix_event_client_activity_update_t client_wakes = {
    .role_id = 4, .mac = MAC(0x20, 0x01), .active = true};
static const ravix_event_client_rssi_update_t client_goes = {
    .role_id = 4, .mac = MAC(0x20, 0x01), .rsni = 34, .rcpi = 60, .anpi = 26};

static const radiod_hal_event_hw_init_t hw_init = {
    .status = 0x80000007, .error_message = "no board file", .hal_context = CONTEXT(0x1A0)};
static const radiod_hal_event_hw_deinit_t hw_deinit = {
    .status = RAVIX_STATUS_READY, .error_message = "still in use", .hal_context = CONTEXT(0xF)};
static const radiod_hal_event_set_config_t set_config = {
    .status = 0x80000002, .error_message = "no such channel", .hal_context = CONTEXT(0xBEEF)};
static const radiod_hal_event_check_config_t check_config = {
    .status = RAVIX_STATUS_CANCELED, .error_message = "replaced", .hal_context = CONTEXT(0xA)};
static const radiod_hal_event_sanity_t firmware_hangs = {
    .error_origin = 2, .error_class = 65, .error_message = "no beacon for 3 s", .hal_context = CONTEXT(0x1A0),
    .recovery = true};
static const radiod_hal_event_scan_fail_t scan_fails = {.radio_id = 3, .status = 0x80000003};

/* Those to be printed that stand in no other. */
#define SPECIMENS(each)                                                                                                \
  each(scan_request) each(scan_of_all_radios) each(scan_is_pending) each(results_request) each(results_response)       \
  each(scan_finished) each(channel_list) each(radio_load) each(radio_airtime) each(station_table)                      \
  each(remote_client_table) each(remote_ap_table) each(station_history) each(device_settings) each(update_of_guests)   \
  each(update_of_features) each(chip) each(radio_6ghz) each(radio_state) each(home_network) each(guest_network)        \
  each(uplink) each(home_state) each(element_table) each(client_is_slow) each(green_ap) each(radar_avoided)            \
  each(microwave_oven) each(cac) each(radar) each(precac) each(client_connects) each(client_wakes) each(client_goes)   \
  each(hw_init) each(hw_deinit) each(set_config) each(check_config) each(firmware_hangs) each(scan_fails)

/* The records in these, one of each type at least. */
#define PARTS_OF_SPECIMENS(each)                                                                                       \
  each(heard[1].channel_info) each(heard[0].ssid) each(heard[1]) each(scan_results.scan_table) each(noise[0])          \
  each(scan_results.noisefloor_table) each(scan_results) each(scan_parameter.frequencies) each(scan_parameter.ssids)   \
  each(scan_parameter.bssids) each(scan_parameter) each(channels[1]) each(loads[0]) each(airtimes[0])                  \
  each(stations[0]) each(remote_clients[0]) each(remote_aps[0]) each(roaming_client[0])                                \
  each(device_settings.dbg_settings) each(device_settings.meshd_settings) each(device_settings.time_control)           \
  each(device_settings.repeating) each(device_settings.acl_settings.ssids_source) each(device_settings.acl_settings)   \
  each(update_of_guests.auto_update_role_opmode) each(update_of_features.auto_update_features)                         \
  each(radius_servers[0].addr) each(radius_servers[0]) each(home_network.security.key)                                 \
  each(home_network.security.wps) each(home_network.security.auth_servers) each(home_network.security)                 \
  each(home_config.access_control) each(home_config) each(guest_config.access_control)                                 \
  each(guest_config.time_control) each(guest_config) each(uplink_config.uplink) each(uplink_config)                    \
  each(home_state.rsn_element) each(home_state.rsno_elements) each(owe_transition)                                     \
  each(multi_link_device.mld_role_ids) each(multi_link_device) each(elements[1])

/* clang-format on */

#endif
