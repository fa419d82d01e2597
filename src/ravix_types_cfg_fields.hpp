// Field lists of the configuration records.
#pragma once

#include "ravix_types_cfg.h"
#include "ravix_types_common_fields.hpp"

namespace zel::ravix {

// ---- fields of which another one tells what they are

// Two fields that share their storage, told apart by Tag:
//
//   Tag::member, Tag::name                the number that tells them apart
//   Tag::is_first(r), Tag::is_second(r)   which of the two the record has at present; maybe neither
//   Tag::log_rejected(r, site)            says that a record of neither cannot be copied
//
// The tag stands before the field, so a record's clear must clear this field first. The first field is as large as the
// storage.
template <class Tag, class First, class Second> struct tagged : any_kind<void> {
  using R = typename First::R;
  static constexpr bool is_flat = false;
  First first;
  Second second;

  // Calls the function with the field that the record has at present, if any.
  template <class Function> void use(const R &r, Function function) const {
    if (Tag::is_first(r)) {
      function(first);
    } else if (Tag::is_second(r)) {
      function(second);
    }
  }
  // A number for what the record has at present, 0 for neither.
  static int which(const R &r) { return Tag::is_first(r) ? 1 : Tag::is_second(r) ? 2 : 0; }

  template <class Record, class Visit> static void members(Record &r, Visit visit) { First::members(r, visit); }
  void clear(R &r, call_site site) const {
    use(r, [&](const auto &field) { field.clear(r, site); });
    members(r, [](auto &storage) { storage = {}; });
  }
  bool accepts(const R &src) const {
    bool accepted = false;
    use(src, [&](const auto &field) { accepted = field.accepts(src); });
    return accepted;
  }
  failure copy(const R &src, R &dest, call_site site) const {
    failure failed{nullptr, invalid_argument};
    if (which(src) == 0) {
      Tag::log_rejected(src, site);
    }
    use(src, [&](const auto &field) { failed = field.copy(src, dest, site); });
    return failed;
  }
  int compare(const R &a, const R &b) const {
    int order = which(a) - which(b);
    if (order == 0) {
      use(a, [&](const auto &field) { order = field.compare(a, b); });
    }
    return order;
  }
  template <class Out> void print_diff(Out &out, const R &r, const R *ref, unsigned indent, bool newline) const {
    const R *same = ref != nullptr && which(*ref) == which(r) ? ref : nullptr;
    use(r, [&](const auto &field) { field.print_diff(out, r, same, indent, newline); });
  }
};
template <class Tag, class First, class Second>
constexpr tagged<Tag, First, Second> tag_fields(const char *name, std::size_t offset, First first, Second second) {
  return {{name, offset}, first, second};
}

// ---- records

RAVIX_FIELD_LIST(ravix_cfg_debug_settings_t) {
  static constexpr std::tuple fields{RAVIX_FIELD(trace_state), RAVIX_FIELD(trace_parameter)};
};

RAVIX_FIELD_LIST(ravix_cfg_meshd_settings_t) {
  static constexpr std::tuple fields{RAVIX_FIELD(band_steering), RAVIX_FIELD(backhaul_steering)};
};

RAVIX_FIELD_LIST(ravix_cfg_time_control_t) {
  static constexpr std::tuple fields{RAVIX_FIELD(forced_off)};
};

RAVIX_FIELD_LIST(ravix_cfg_repeating_t) {
  static constexpr std::tuple fields{RAVIX_FIELD(overwrite_ap_config)};
};

RAVIX_FIELD_LIST(ravix_cfg_access_control_settings_t) {
  static constexpr std::tuple fields{
      RAVIX_FIELD(autofill_enable),
      RAVIX_FIELD(ssids_source),
      RAVIX_FIELD(ssids_target),
  };
};

RAVIX_FIELD_LIST(ravix_cfg_global_settings_t) {
  static constexpr std::tuple fields{
      RAVIX_FIELD(wlan_enabled),
      RAVIX_FIELD(auto_settings),
      RAVIX_FIELD(outdoor_mode),
      RAVIX_FIELD(security_interop),
      RAVIX_FIELD(use_channel_12_13),
      RAVIX_FIELD(event_control, event_log_control),
      RAVIX_FIELD(device_opmode, device_opmode),
      RAVIX_FIELD(dbg_settings),
      RAVIX_FIELD(meshd_settings),
      RAVIX_FIELD(time_control),
      RAVIX_FIELD(repeating),
      RAVIX_FIELD(acl_settings),
  };
};

RAVIX_FIELD_LIST(ravix_cfg_auto_update_role_opmode_t) {
  static constexpr std::tuple fields{RAVIX_FIELD(role_opmode, role_opmode)};
};

RAVIX_FIELD_LIST(ravix_cfg_auto_update_feature_t) {
  static constexpr std::tuple fields{RAVIX_FIELD(feature, features)};
};

struct rule_tag {
  using R = ravix_cfg_auto_update_rule_t;
  static constexpr auto member = &R::type;
  static constexpr const char *name = "type";
  static bool is_first(const R &rule) { return rule.type == RAVIX_CFG_AUTO_UPDATE_RULE_FEATURE; }
  static bool is_second(const R &rule) { return rule.type == RAVIX_CFG_AUTO_UPDATE_RULE_ROLE_OPMODE; }
  static void log_rejected(const R &rule, call_site site);
};

RAVIX_FIELD_LIST(ravix_cfg_auto_update_rule_t) {
  static constexpr auto type = RAVIX_FIELD(type);
  static constexpr auto payload =
      tag_fields<rule_tag>("payload", offsetof(R, auto_update_features), RAVIX_FIELD(auto_update_features),
                           RAVIX_FIELD(auto_update_role_opmode));
  static constexpr std::tuple fields{
      RAVIX_FIELD(enabled),
      type,
      payload,
  };
  static void clear(R & rule, call_site site);
};

RAVIX_FIELD_LIST(ravix_cfg_hardware_static_t) {
  static constexpr std::tuple fields{
      RAVIX_FIELD(id, id),
      RAVIX_FIELD(vendor_id),
      RAVIX_FIELD(chip_type),
      RAVIX_FIELD(hw_interface, index),
  };
};

RAVIX_FIELD_LIST(ravix_cfg_radio_static_t) {
  static constexpr std::tuple fields{
      RAVIX_FIELD(id, id),
      RAVIX_FIELD(if_name),
      RAVIX_FIELD(enabled),
      RAVIX_FIELD(hw_id, id),
      RAVIX_FIELD(mac_address_index, index),
      RAVIX_FIELD(radio_band, radio_band),
      RAVIX_FIELD(radio_sub_band, radio_sub_band),
      RAVIX_FIELD(coexistence_enabled),
      RAVIX_FIELD(auto_channel),
      RAVIX_FIELD(primary_freq, channel_frequency),
  };
};

RAVIX_FIELD_LIST(ravix_cfg_radio_dynamic_t) {
  static constexpr std::tuple fields{RAVIX_FIELD(id, id), RAVIX_FIELD(enabled), RAVIX_FIELD(auto_channel)};
};

RAVIX_FIELD_LIST(ravix_cfg_wlan_wps_t) {
  static constexpr std::tuple fields{RAVIX_FIELD(enable), RAVIX_FIELD(uuid, uuid)};
};

// Servers are the same wherever they stand in the operator's list.
RAVIX_FIELD_LIST(ravix_cfg_radius_server_t) {
  static constexpr std::tuple fields{
      not_compared{RAVIX_FIELD(index, index)},
      RAVIX_FIELD(port),
      RAVIX_FIELD(addr),
      secret{RAVIX_FIELD(secret)},
  };
};

RAVIX_FIELD_LIST(ravix_cfg_wlan_security_t) {
  static constexpr std::tuple fields{
      RAVIX_FIELD(security, security), RAVIX_FIELD(pmf_mode, pmf_mode), RAVIX_FIELD(key), RAVIX_FIELD(wps),
      RAVIX_FIELD(auth_servers),       RAVIX_FIELD(acct_servers),
  };
};

RAVIX_FIELD_LIST(ravix_cfg_security_extended_t) {
  static constexpr std::tuple fields{
      RAVIX_FIELD(encryption, encryption),
      RAVIX_FIELD(pmf_mode, pmf_mode),
      RAVIX_FIELD(pwe_mode, pwe_mode),
      RAVIX_FIELD(key_mgmt, encryption_akm),
      RAVIX_FIELD(group_cipher, encryption_cipher_suite),
      RAVIX_FIELD(group_mgmt_cipher, encryption_group_mgmt_cipher),
      RAVIX_FIELD(pairwise_ciphers, encryption_cipher_suite),
  };
};

RAVIX_FIELD_LIST(ravix_cfg_role_access_control_t) {
  static constexpr std::tuple fields{
      RAVIX_FIELD(mac_filter_enabled),
      RAVIX_FIELD(mac_filter_type, mac_access_type),
      RAVIX_FIELD(macs_filtered),
      RAVIX_FIELD(limits_enabled),
      RAVIX_FIELD(limits_max_clients, client_limit),
      RAVIX_FIELD(limits_min_client_rssi, power),
  };
};

RAVIX_FIELD_LIST(ravix_cfg_role_ap_time_control_t) {
  static constexpr std::tuple fields{RAVIX_FIELD(timeout_active), RAVIX_FIELD(timeout_minutes), RAVIX_FIELD(force_off)};
};

RAVIX_FIELD_LIST(ravix_cfg_role_config_ap_t) {
  static constexpr std::tuple fields{
      RAVIX_FIELD(ssid),
      RAVIX_FIELD(ssid_set),
      RAVIX_FIELD(hidden_ssid_enabled),
      RAVIX_FIELD(user_isolation_enabled),
      RAVIX_FIELD(iptv_optimization_enabled),
      RAVIX_FIELD(access_control),
      RAVIX_FIELD(time_control),
  };
};

RAVIX_FIELD_LIST(ravix_cfg_role_config_sta_uplink_t) {
  static constexpr std::tuple fields{RAVIX_FIELD(ssid), RAVIX_FIELD(mac_master, mac)};
};

RAVIX_FIELD_LIST(ravix_cfg_role_config_sta_t) {
  static constexpr std::tuple fields{
      RAVIX_FIELD(marked_for_uplink_completion),
      RAVIX_FIELD(uplink_configured),
      RAVIX_FIELD(uplink),
  };
};

struct role_tag {
  using R = ravix_cfg_role_static_t;
  static constexpr auto member = &R::op_mode;
  static constexpr const char *name = "op_mode";
  static bool is_first(const R &role) {
    switch (role.op_mode) {
    case RAVIX_ROLE_OPMODE_AP_HOME:
    case RAVIX_ROLE_OPMODE_AP_GUEST:
    case RAVIX_ROLE_OPMODE_AP_HOTSPOT:
    case RAVIX_ROLE_OPMODE_AP_HOME_OWE:
    case RAVIX_ROLE_OPMODE_AP_GUEST_OWE:
    case RAVIX_ROLE_OPMODE_AP_HOTSPOT_OWE:
      return true;
    default:
      return false;
    }
  }
  static bool is_second(const R &role) {
    return role.op_mode == RAVIX_ROLE_OPMODE_ATACLIENT || role.op_mode == RAVIX_ROLE_OPMODE_REPEATER;
  }
  static void log_rejected(const R &role, call_site site);
};

// What a role owns by its operating mode. A role without it is incomplete and cannot be copied; the failure's code
// tells callers apart a broken role from exhausted memory elsewhere in it.
template <auto Member> struct role_config : owned<Member> {
  using R = ravix_cfg_role_static_t;
  const char *assertion;

  static bool accepts(const R &src) { return src.*Member != nullptr && owned<Member>::accepts(src); }
  failure copy(const R &src, R &dest, call_site site) const {
    if (src.*Member == nullptr) {
      log_assertion(site, assertion);
    }
    dest.*Member = operations<typename owned<Member>::T>::clone(src.*Member); // says itself that there is none
    return dest.*Member != nullptr ? failure{} : copy_error(RAVIX_FAIL_GENERAL);
  }
};

RAVIX_FIELD_LIST(ravix_cfg_role_static_t) {
  static constexpr auto payload = tag_fields<role_tag>(
      "config", offsetof(R, config_ap),
      role_config<&R::config_ap>{{{{"config_ap", offsetof(R, config_ap)}}}, "nullptr != src->config_ap"},
      role_config<&R::config_sta>{{{{"config_sta", offsetof(R, config_sta)}}}, "nullptr != src->config_sta"});
  static constexpr std::tuple fields{
      RAVIX_FIELD(id, id),
      RAVIX_FIELD(radio_id, id),
      RAVIX_FIELD(enabled),
      RAVIX_FIELD(mac_address_index, index),
      RAVIX_FIELD(if_name),
      RAVIX_FIELD(op_mode, role_opmode),
      RAVIX_FIELD(power_level, percentage),
      RAVIX_FIELD(wlan_mode, wlan_mode),
      RAVIX_FIELD(channel_width, channel_width),
      RAVIX_FIELD(security),
      payload,
  };
  static void clear(R & role, call_site site);
};

RAVIX_FIELD_LIST(ravix_cfg_owe_transition_t) {
  static constexpr std::tuple fields{
      RAVIX_FIELD(owe_master_id, id), RAVIX_FIELD(owe_slave_id, id), RAVIX_FIELD(owe_active),
      RAVIX_FIELD(owe_ssid),          RAVIX_FIELD(owe_bssid, mac),
  };
};

RAVIX_FIELD_LIST(ravix_cfg_mld_t) {
  static constexpr std::tuple fields{RAVIX_FIELD(mld_mac, mac), RAVIX_FIELD(mld_role_ids)};
};

RAVIX_FIELD_LIST(ravix_cfg_role_dynamic_t) {
  static constexpr std::tuple fields{
      RAVIX_FIELD(id, id),
      RAVIX_FIELD(enabled),
      RAVIX_FIELD(mac, mac),
      RAVIX_FIELD(wlan_mode, wlan_mode),
      RAVIX_FIELD(channel_width, channel_width),
      RAVIX_FIELD(valid),
      RAVIX_FIELD(radio_master_id, id),
      RAVIX_FIELD(ap_master_id, id),
      RAVIX_FIELD(mac_filter_enabled),
      RAVIX_FIELD(pbc_enabled),
      RAVIX_FIELD(security, security),
      RAVIX_FIELD(rsn_element),
      RAVIX_FIELD(rsno_elements),
      RAVIX_FIELD(owe_transition),
      RAVIX_FIELD(cfg_mld),
  };
};

} // namespace zel::ravix
