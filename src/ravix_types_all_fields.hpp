// Every record and table type that has a field list. A new one is one line here: the properties of test_records.cpp
// then hold for it, and the debugger shows it.
#pragma once

#include "ravix_types_api_request_fields.hpp"
#include "ravix_types_cfg_fields.hpp"
#include "ravix_types_common_fields.hpp"
#include "ravix_types_event_fields.hpp"
#include "ravix_types_radio_env_fields.hpp"
#include "ravix_types_radiod_hal_fields.hpp"
#include "ravix_types_sta_fields.hpp"

namespace zel::ravix {

template <class... R> struct type_list {};

using all_records = type_list<
    // common values
    ravix_channel_info_t, ravix_ip_addr_t, ravix_key_t, ravix_ssid_t, ravix_tlv_t, ravix_frequency_table_t,
    ravix_id_table_t, ravix_mac_table_t, ravix_ssid_table_t, ravix_string_table_t, ravix_tlv_table_t,
    // radio environment
    ravix_scan_parameter_t, ravix_scan_entry_t, ravix_scan_table_t, ravix_scan_results_t, ravix_noisefloor_entry_t,
    ravix_noisefloor_table_t, ravix_channel_entry_t, ravix_channel_list_t, ravix_radio_load_entry_t,
    ravix_radio_load_table_t, ravix_radio_airtime_entry_t, ravix_radio_airtime_table_t,
    // requests and responses
    ravix_start_scan_request_t, ravix_start_scan_response_t, ravix_get_scan_results_request_t,
    ravix_get_scan_results_response_t,
    // stations
    ravix_station_entry_t, ravix_station_table_t, ravix_remote_client_entry_t, ravix_remote_client_table_t,
    ravix_remote_ap_entry_t, ravix_remote_ap_table_t, ravix_station_history_entry_t, ravix_station_history_table_t,
    // configuration
    ravix_cfg_debug_settings_t, ravix_cfg_meshd_settings_t, ravix_cfg_time_control_t, ravix_cfg_repeating_t,
    ravix_cfg_access_control_settings_t, ravix_cfg_global_settings_t, ravix_cfg_auto_update_role_opmode_t,
    ravix_cfg_auto_update_feature_t, ravix_cfg_auto_update_rule_t, ravix_cfg_hardware_static_t,
    ravix_cfg_radio_static_t, ravix_cfg_radio_dynamic_t, ravix_cfg_wlan_wps_t, ravix_cfg_radius_server_t,
    ravix_cfg_radius_server_table_t, ravix_cfg_wlan_security_t, ravix_cfg_security_extended_t,
    ravix_cfg_security_extended_table_t, ravix_cfg_role_access_control_t, ravix_cfg_role_ap_time_control_t,
    ravix_cfg_role_config_ap_t, ravix_cfg_role_config_sta_uplink_t, ravix_cfg_role_config_sta_t,
    ravix_cfg_role_static_t, ravix_cfg_owe_transition_t, ravix_cfg_mld_t, ravix_cfg_role_dynamic_t,
    // events
    ravix_event_scan_results_t, ravix_event_log_entry_t, ravix_event_green_ap_t, ravix_event_channel_change_t,
    ravix_event_interference_t, ravix_event_radar_wait_t, ravix_event_radar_detected_t, ravix_event_radar_precac_t,
    ravix_event_client_state_update_t, ravix_event_client_activity_update_t, ravix_event_client_rssi_update_t,
    // hardware layer events
    radiod_hal_event_hw_init_t, radiod_hal_event_hw_deinit_t, radiod_hal_event_set_config_t,
    radiod_hal_event_check_config_t, radiod_hal_event_sanity_t, radiod_hal_event_scan_fail_t>;

} // namespace zel::ravix
