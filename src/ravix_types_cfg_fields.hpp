// Field lists of the configuration records.
#pragma once

#include "ravix_types_cfg.h"
#include "ravix_types_common_fields.hpp"

namespace zel::ravix {

// ---- fields whose meaning another field tells

// Which of the two kinds a tagged field has at present.
enum class alternative { none, wide, other };

// Two fields that share their storage, told apart by Tag:
//
//   Tag::record_type               the record
//   Tag::of(r)                     which of the two the record's field is
//   Tag::log_rejected(r, site)     says that a record of neither cannot be copied
//
// The tag stands before the field, so a record's clear must clear this field first; see clear_tagged().
template <class Tag, class Wide, class Other> struct tagged {
  using R = typename Tag::record_type;
  static constexpr bool is_flat = false;
  static constexpr bool is_secret = false;
  const char *name;
  Wide wide; // as large as the storage
  Other other;

  constexpr tagged(Tag /*tag*/, const char *field_name, Wide wide_field, Other other_field)
      : name(field_name), wide(wide_field), other(other_field) {}

  // Calls the function with the field that the record has at present, if any.
  template <class Function> void use(const R &r, Function function) const {
    switch (Tag::of(r)) {
    case alternative::wide:
      return function(wide);
    case alternative::other:
      return function(other);
    case alternative::none:
      break;
    }
  }

  template <class Visit> void members(const R &r, Visit visit) const { wide.members(r, visit); }
  void clear(R &r, call_site site) const {
    use(r, [&](const auto &field) { field.clear(r, site); });
    r.*(wide.member) = {};
  }
  bool copyable(const R &src) const {
    bool may = false;
    use(src, [&](const auto &field) { may = field.copyable(src); });
    return may;
  }
  failure copy(const R &src, R &dest, call_site site) const {
    failure failed{nullptr, invalid_argument};
    if (Tag::of(src) == alternative::none) {
      Tag::log_rejected(src, site);
    }
    use(src, [&](const auto &field) { failed = field.copy(src, dest, site); });
    return failed;
  }
  int compare(const R &a, const R &b) const {
    int order = static_cast<int>(Tag::of(a)) - static_cast<int>(Tag::of(b));
    if (order == 0) {
      use(a, [&](const auto &field) { order = field.compare(a, b); });
    }
    return order;
  }
  template <class Out> void print_diff(Out &out, const R &r, const R *ref, unsigned indent, bool newline) const {
    const R *same = ref != nullptr && Tag::of(*ref) == Tag::of(r) ? ref : nullptr;
    use(r, [&](const auto &field) { field.print_diff(out, r, same, indent, newline); });
  }
};

// Clears a record with the tagged field `payload`, and that one first, while its tag still tells what it is.
template <class R> void clear_tagged(R &r, call_site site) {
  record<R>::payload.clear(r, site);
  clear_fields(r, site);
}

// ---- records

template <> struct record<ravix_cfg_debug_settings_t> {
  RAVIX_COMPARED_OPERATIONS(ravix_cfg_debug_settings)
  using R = ravix_cfg_debug_settings_t;
  static constexpr std::tuple fields{
      scalar{&R::trace_state, "trace_state"},
      owned_text{&R::trace_parameter, "trace_parameter"},
  };
};

template <> struct record<ravix_cfg_meshd_settings_t> {
  RAVIX_COMPARED_OPERATIONS(ravix_cfg_meshd_settings)
  using R = ravix_cfg_meshd_settings_t;
  static constexpr std::tuple fields{
      scalar{&R::band_steering, "band_steering", ravix_str_enabled},
      scalar{&R::backhaul_steering, "backhaul_steering", ravix_str_enabled},
  };
};

template <> struct record<ravix_cfg_time_control_t> {
  RAVIX_COMPARED_OPERATIONS(ravix_cfg_time_control)
  using R = ravix_cfg_time_control_t;
  static constexpr std::tuple fields{
      scalar{&R::forced_off, "forced_off", ravix_str_enabled},
  };
};

template <> struct record<ravix_cfg_repeating_t> {
  RAVIX_COMPARED_OPERATIONS(ravix_cfg_repeating)
  using R = ravix_cfg_repeating_t;
  static constexpr std::tuple fields{
      scalar{&R::overwrite_ap_config, "overwrite_ap_config", ravix_str_enabled},
  };
};

template <> struct record<ravix_cfg_access_control_settings_t> {
  RAVIX_COMPARED_OPERATIONS(ravix_cfg_access_control_settings)
  using R = ravix_cfg_access_control_settings_t;
  static constexpr std::tuple fields{
      scalar{&R::autofill_enable, "autofill_enable", ravix_str_enabled},
      nested{&R::ssids_source, "ssids_source"},
      nested{&R::ssids_target, "ssids_target"},
  };
};

template <> struct record<ravix_cfg_global_settings_t> {
  RAVIX_COMPARED_OPERATIONS(ravix_cfg_global_settings)
  using R = ravix_cfg_global_settings_t;
  static constexpr std::tuple fields{
      scalar{&R::wlan_enabled, "wlan_enabled", ravix_str_enabled},
      scalar{&R::auto_settings, "auto_settings", ravix_str_enabled},
      scalar{&R::outdoor_mode, "outdoor_mode", ravix_str_enabled},
      scalar{&R::security_interop, "security_interop", ravix_str_enabled},
      scalar{&R::use_channel_12_13, "use_channel_12_13", ravix_str_enabled},
      scalar{&R::event_control, "event_control", ravix_str_event_log_control},
      scalar{&R::device_opmode, "device_opmode", ravix_str_device_opmode},
      nested{&R::dbg_settings, "dbg_settings"},
      nested{&R::meshd_settings, "meshd_settings"},
      nested{&R::time_control, "time_control"},
      nested{&R::repeating, "repeating"},
      nested{&R::acl_settings, "acl_settings"},
  };
};

template <> struct record<ravix_cfg_auto_update_role_opmode_t> {
  RAVIX_COMPARED_OPERATIONS(ravix_cfg_auto_update_role_opmode)
  using R = ravix_cfg_auto_update_role_opmode_t;
  static constexpr std::tuple fields{
      scalar{&R::role_opmode, "role_opmode", ravix_str_role_opmode},
  };
};

template <> struct record<ravix_cfg_auto_update_feature_t> {
  RAVIX_COMPARED_OPERATIONS(ravix_cfg_auto_update_feature)
  using R = ravix_cfg_auto_update_feature_t;
  static constexpr std::tuple fields{
      scalar{&R::feature, "feature", ravix_str_features},
  };
};

struct rule_tag {
  using record_type = ravix_cfg_auto_update_rule_t;

  static alternative of(const record_type &rule) {
    switch (rule.type) {
    case RAVIX_CFG_AUTO_UPDATE_RULE_ROLE_OPMODE:
      return alternative::other;
    case RAVIX_CFG_AUTO_UPDATE_RULE_FEATURE:
      return alternative::wide;
    default:
      return alternative::none;
    }
  }
  static void log_rejected(const record_type &rule, call_site site);
};

template <> struct record<ravix_cfg_auto_update_rule_t> {
  RAVIX_COMPARED_OPERATIONS(ravix_cfg_auto_update_rule)
  using R = ravix_cfg_auto_update_rule_t;
  static constexpr scalar type{&R::type, "type"};
  static constexpr tagged payload{rule_tag{}, "payload", nested{&R::auto_update_features, "auto_update_features"},
                                  nested{&R::auto_update_role_opmode, "auto_update_role_opmode"}};
  static constexpr std::tuple fields{
      scalar{&R::enabled, "enabled", ravix_str_enabled},
      type,
      payload,
  };
};

template <> struct record<ravix_cfg_hardware_static_t> {
  RAVIX_COMPARED_OPERATIONS(ravix_cfg_hw)
  using R = ravix_cfg_hardware_static_t;
  static constexpr std::tuple fields{
      scalar{&R::id, "id", ravix_str_id},
      scalar{&R::vendor_id, "vendor_id"},
      scalar{&R::chip_type, "chip_type"},
      scalar{&R::hw_interface, "hw_interface", ravix_str_index, RAVIX_INDEX_INVALID},
  };
};

template <> struct record<ravix_cfg_radio_static_t> {
  RAVIX_COMPARED_OPERATIONS(ravix_cfg_radio)
  using R = ravix_cfg_radio_static_t;
  static constexpr std::tuple fields{
      scalar{&R::id, "id", ravix_str_id},
      bounded_text{&R::if_name, "if_name"},
      scalar{&R::enabled, "enabled", ravix_str_enabled},
      scalar{&R::hw_id, "hw_id", ravix_str_id},
      scalar{&R::mac_address_index, "mac_address_index", ravix_str_index, RAVIX_INDEX_INVALID},
      scalar{&R::radio_band, "radio_band", ravix_str_radio_band},
      scalar{&R::radio_sub_band, "radio_sub_band", ravix_str_radio_sub_band},
      scalar{&R::coexistence_enabled, "coexistence_enabled", ravix_str_enabled},
      scalar{&R::auto_channel, "auto_channel", ravix_str_enabled},
      scalar{&R::primary_freq, "primary_freq", ravix_str_wifi_freq},
  };
};

template <> struct record<ravix_cfg_radio_dynamic_t> {
  RAVIX_COMPARED_OPERATIONS(ravix_cfg_radio_dynamic)
  using R = ravix_cfg_radio_dynamic_t;
  static constexpr std::tuple fields{
      scalar{&R::id, "id", ravix_str_id},
      scalar{&R::enabled, "enabled", ravix_str_enabled},
      scalar{&R::auto_channel, "auto_channel", ravix_str_enabled},
  };
};

template <> struct record<ravix_cfg_wlan_wps_t> {
  RAVIX_COMPARED_OPERATIONS(ravix_cfg_wlan_wps)
  using R = ravix_cfg_wlan_wps_t;
  static constexpr std::tuple fields{
      scalar{&R::enable, "enable", ravix_str_enabled},
      bytes{&R::uuid, "uuid", ravix_str_uuid},
  };
};

// Servers are the same wherever they stand in the operator's list.
template <> struct record<ravix_cfg_radius_server_t> {
  RAVIX_COMPARED_OPERATIONS(ravix_cfg_radius_server)
  using R = ravix_cfg_radius_server_t;
  static constexpr std::tuple fields{
      not_compared{scalar{&R::index, "index", ravix_str_index, RAVIX_INDEX_INVALID}},
      scalar{&R::port, "port"},
      nested{&R::addr, "addr"},
      zel::ravix::secret{bounded_text{&R::secret, "secret"}},
  };
};

template <> struct record<ravix_cfg_radius_server_table_t> {
  RAVIX_COMPARED_TABLE_OPERATIONS(ravix_cfg_radius_server_table)
  using T = ravix_cfg_radius_server_table_t;
  static constexpr std::tuple fields{entries{&T::count, &T::data}};
};

template <> struct record<ravix_cfg_wlan_security_t> {
  RAVIX_COMPARED_OPERATIONS(ravix_cfg_wlan_security)
  using R = ravix_cfg_wlan_security_t;
  static constexpr std::tuple fields{
      scalar{&R::security, "security", ravix_str_security},
      scalar{&R::pmf_mode, "pmf_mode", ravix_str_pmf_mode},
      nested{&R::key, "key"},
      nested{&R::wps, "wps"},
      nested{&R::auth_servers, "auth_servers"},
      nested{&R::acct_servers, "acct_servers"},
  };
};

template <> struct record<ravix_cfg_security_extended_t> {
  RAVIX_COMPARED_OPERATIONS(ravix_cfg_security_extended)
  using R = ravix_cfg_security_extended_t;
  static constexpr std::tuple fields{
      scalar{&R::encryption, "encryption", ravix_str_encryption},
      scalar{&R::pmf_mode, "pmf_mode", ravix_str_pmf_mode},
      scalar{&R::pwe_mode, "pwe_mode", ravix_str_pwe_mode},
      enum_array{&R::key_mgmt, "key_mgmt", ravix_str_encryption_akm},
      enum_array{&R::group_cipher, "group_cipher", ravix_str_encryption_cipher_suite},
      enum_array{&R::group_mgmt_cipher, "group_mgmt_cipher", ravix_str_encryption_group_mgmt_cipher},
      enum_array{&R::pairwise_ciphers, "pairwise_ciphers", ravix_str_encryption_cipher_suite},
  };
};

template <> struct record<ravix_cfg_security_extended_table_t> {
  RAVIX_COMPARED_TABLE_OPERATIONS(ravix_cfg_security_extended_table)
  using T = ravix_cfg_security_extended_table_t;
  static constexpr std::tuple fields{entries{&T::count, &T::data}};
};

template <> struct record<ravix_cfg_role_access_control_t> {
  RAVIX_COMPARED_OPERATIONS(ravix_cfg_role_access_control)
  using R = ravix_cfg_role_access_control_t;
  static constexpr std::tuple fields{
      scalar{&R::mac_filter_enabled, "mac_filter_enabled", ravix_str_enabled},
      scalar{&R::mac_filter_type, "mac_filter_type", ravix_str_mac_access_type},
      nested{&R::macs_filtered, "macs_filtered"},
      scalar{&R::limits_enabled, "limits_enabled", ravix_str_enabled},
      scalar{&R::limits_max_clients, "limits_max_clients", decimal, RAVIX_MAX_CLIENTS_UNLIMITED},
      scalar{&R::limits_min_client_rssi, "limits_min_client_rssi", ravix_str_power, RAVIX_POWER_INVALID},
  };
};

template <> struct record<ravix_cfg_role_ap_time_control_t> {
  RAVIX_COMPARED_OPERATIONS(ravix_cfg_role_ap_time_control)
  using R = ravix_cfg_role_ap_time_control_t;
  static constexpr std::tuple fields{
      scalar{&R::timeout_active, "timeout_active", ravix_str_enabled},
      scalar{&R::timeout_minutes, "timeout_minutes"},
      scalar{&R::force_off, "force_off", ravix_str_enabled},
  };
};

template <> struct record<ravix_cfg_role_config_ap_t> {
  RAVIX_COMPARED_OPERATIONS(ravix_cfg_role_config_ap)
  using R = ravix_cfg_role_config_ap_t;
  static constexpr std::tuple fields{
      nested{&R::ssid, "ssid"},
      scalar{&R::ssid_set, "ssid_set", ravix_str_enabled},
      scalar{&R::hidden_ssid_enabled, "hidden_ssid_enabled", ravix_str_enabled},
      scalar{&R::user_isolation_enabled, "user_isolation_enabled", ravix_str_enabled},
      scalar{&R::iptv_optimization_enabled, "iptv_optimization_enabled", ravix_str_enabled},
      nested{&R::access_control, "access_control"},
      nested{&R::time_control, "time_control"},
  };
};

template <> struct record<ravix_cfg_role_config_sta_uplink_t> {
  RAVIX_COMPARED_OPERATIONS(ravix_cfg_role_config_sta_uplink)
  using R = ravix_cfg_role_config_sta_uplink_t;
  static constexpr std::tuple fields{
      nested{&R::ssid, "ssid"},
      bytes{&R::mac_master, "mac_master", ravix_str_mac},
  };
};

template <> struct record<ravix_cfg_role_config_sta_t> {
  RAVIX_COMPARED_OPERATIONS(ravix_cfg_role_config_sta)
  using R = ravix_cfg_role_config_sta_t;
  static constexpr std::tuple fields{
      scalar{&R::marked_for_uplink_completion, "marked_for_uplink_completion", ravix_str_enabled},
      scalar{&R::uplink_configured, "uplink_configured", ravix_str_enabled},
      nested{&R::uplink, "uplink"},
  };
};

struct role_tag {
  using record_type = ravix_cfg_role_static_t;

  static alternative of(const record_type &role) {
    switch (role.op_mode) {
    case RAVIX_ROLE_OPMODE_AP_HOME:
    case RAVIX_ROLE_OPMODE_AP_GUEST:
    case RAVIX_ROLE_OPMODE_AP_HOTSPOT:
    case RAVIX_ROLE_OPMODE_AP_HOME_OWE:
    case RAVIX_ROLE_OPMODE_AP_GUEST_OWE:
    case RAVIX_ROLE_OPMODE_AP_HOTSPOT_OWE:
      return alternative::wide;
    case RAVIX_ROLE_OPMODE_ATACLIENT:
    case RAVIX_ROLE_OPMODE_REPEATER:
      return alternative::other;
    default:
      return alternative::none;
    }
  }
  static void log_rejected(const record_type &role, call_site site);
};

// What a role owns by its operating mode. A role without it is incomplete and cannot be copied; the failure's code
// tells callers apart a broken role from exhausted memory elsewhere in it.
template <class R, class T> struct role_config : owned<R, T> {
  const char *assertion;

  constexpr role_config(T *R::*field, const char *field_name, const char *asserted)
      : owned<R, T>(field, field_name), assertion(asserted) {}

  bool copyable(const R &src) const { return src.*(this->member) != nullptr && owned<R, T>::copyable(src); }
  failure copy(const R &src, R &dest, call_site site) const {
    const T *config = src.*(this->member);
    if (config == nullptr) {
      log_assertion(site, assertion);
    }
    T *copied = record<T>::clone(config); // says itself that there is none
    dest.*(this->member) = copied;
    return copied != nullptr ? failure{} : copy_error(RAVIX_FAIL_GENERAL);
  }
};

template <> struct record<ravix_cfg_role_static_t> {
  RAVIX_COMPARED_OPERATIONS(ravix_cfg_role)
  using R = ravix_cfg_role_static_t;
  static constexpr tagged payload{role_tag{}, "config",
                                  role_config{&R::config_ap, "config_ap", "nullptr != src->config_ap"},
                                  role_config{&R::config_sta, "config_sta", "nullptr != src->config_sta"}};
  static constexpr std::tuple fields{
      scalar{&R::id, "id", ravix_str_id},
      scalar{&R::radio_id, "radio_id", ravix_str_id},
      scalar{&R::enabled, "enabled", ravix_str_enabled},
      scalar{&R::mac_address_index, "mac_address_index", ravix_str_index, RAVIX_INDEX_INVALID},
      bounded_text{&R::if_name, "if_name"},
      scalar{&R::op_mode, "op_mode", ravix_str_role_opmode},
      scalar{&R::power_level, "power_level", ravix_str_percentage, RAVIX_MEASURE_INVALID},
      scalar{&R::wlan_mode, "wlan_mode", ravix_str_wlan_mode},
      scalar{&R::channel_width, "channel_width", ravix_str_channel_width},
      nested{&R::security, "security"},
      payload,
  };
};

template <> struct record<ravix_cfg_owe_transition_t> {
  RAVIX_COMPARED_OPERATIONS(ravix_cfg_owe_transition)
  using R = ravix_cfg_owe_transition_t;
  static constexpr std::tuple fields{
      scalar{&R::owe_master_id, "owe_master_id", ravix_str_id}, scalar{&R::owe_slave_id, "owe_slave_id", ravix_str_id},
      scalar{&R::owe_active, "owe_active", ravix_str_enabled},  nested{&R::owe_ssid, "owe_ssid"},
      bytes{&R::owe_bssid, "owe_bssid", ravix_str_mac},
  };
};

template <> struct record<ravix_cfg_mld_t> {
  RAVIX_COMPARED_OPERATIONS(ravix_cfg_mld)
  using R = ravix_cfg_mld_t;
  static constexpr std::tuple fields{
      bytes{&R::mld_mac, "mld_mac", ravix_str_mac},
      nested{&R::mld_role_ids, "mld_role_ids"},
  };
};

template <> struct record<ravix_cfg_role_dynamic_t> {
  RAVIX_COMPARED_OPERATIONS(ravix_cfg_role_dynamic)
  using R = ravix_cfg_role_dynamic_t;
  static constexpr std::tuple fields{
      scalar{&R::id, "id", ravix_str_id},
      scalar{&R::enabled, "enabled", ravix_str_enabled},
      bytes{&R::mac, "mac", ravix_str_mac},
      scalar{&R::wlan_mode, "wlan_mode", ravix_str_wlan_mode},
      scalar{&R::channel_width, "channel_width", ravix_str_channel_width},
      scalar{&R::valid, "valid", ravix_str_enabled},
      scalar{&R::radio_master_id, "radio_master_id", ravix_str_id},
      scalar{&R::ap_master_id, "ap_master_id", ravix_str_id},
      scalar{&R::mac_filter_enabled, "mac_filter_enabled", ravix_str_enabled},
      scalar{&R::pbc_enabled, "pbc_enabled", ravix_str_enabled},
      scalar{&R::security, "security", ravix_str_security},
      nested{&R::rsn_element, "rsn_element"},
      nested{&R::rsno_elements, "rsno_elements"},
      owned{&R::owe_transition, "owe_transition"},
      owned{&R::cfg_mld, "cfg_mld"},
  };
};

} // namespace zel::ravix
