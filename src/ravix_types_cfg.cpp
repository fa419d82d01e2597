#include "ravix_types_cfg_fields.hpp"

#include <array>
#include <charconv>
#include <cstring>
#include <string_view>

namespace {

constexpr const char *here = "src/ravix_types_cfg";

}

namespace zel::ravix {

void rule_tag::log_rejected(const record_type &rule, call_site site) {
  std::array<char, 10> digits{};
  const char *end = std::to_chars(digits.data(), digits.data() + digits.size(), rule.type).ptr;
  log_error(site, {"Invalid update rule type '", {digits.data(), static_cast<std::size_t>(end - digits.data())}, "'"});
  log_assertion(site, "!\"Invalid update rule type\"");
}

// The mode is shown as one raw character, which log filters of the device know; so mode 0 ends the line.
void role_tag::log_rejected(const record_type &role, call_site site) {
  const char mode = static_cast<char>(role.op_mode);
  log_error(site, {"Invalid opmode: '", {&mode, 1}, "'"});
  log_assertion(site, "!\"Invalid opmode\"");
}

} // namespace zel::ravix

RAVIX_COMPARED_RECORD(ravix_cfg_debug_settings, ravix_cfg_debug_settings_t)
RAVIX_COMPARED_RECORD(ravix_cfg_meshd_settings, ravix_cfg_meshd_settings_t)
RAVIX_COMPARED_RECORD(ravix_cfg_time_control, ravix_cfg_time_control_t)
RAVIX_COMPARED_RECORD(ravix_cfg_repeating, ravix_cfg_repeating_t)
RAVIX_COMPARED_RECORD(ravix_cfg_access_control_settings, ravix_cfg_access_control_settings_t)
RAVIX_COMPARED_RECORD(ravix_cfg_global_settings, ravix_cfg_global_settings_t)
RAVIX_COMPARED_RECORD(ravix_cfg_auto_update_role_opmode, ravix_cfg_auto_update_role_opmode_t)
RAVIX_COMPARED_RECORD(ravix_cfg_auto_update_feature, ravix_cfg_auto_update_feature_t)

RAVIX_RECORD_FRAME(ravix_cfg_auto_update_rule, ravix_cfg_auto_update_rule_t)
RAVIX_RECORD_COPY(ravix_cfg_auto_update_rule, ravix_cfg_auto_update_rule_t)
RAVIX_RECORD_COMPARE(ravix_cfg_auto_update_rule, ravix_cfg_auto_update_rule_t)

// A rule of no type is an empty one, and cleared in silence. A rejected rule type has been copied already, so the
// copy's clearing of dest says once more that a type above those known is invalid.
void ravix_cfg_auto_update_rule_clear(ravix_cfg_auto_update_rule_t *obj) {
  if (obj == nullptr) {
    return;
  }
  if (obj->type > RAVIX_CFG_AUTO_UPDATE_RULE_FEATURE) {
    zel::ravix::rule_tag::log_rejected(*obj, here);
  }
  std::memset(obj, 0, sizeof *obj); // all of it, padding included; no kind of rule owns anything
}

int ravix_cfg_auto_update_rule_map_key_compare(const ravix_cfg_auto_update_rule_t *a,
                                               const ravix_cfg_auto_update_rule_t *b) {
  using rule = zel::ravix::record<ravix_cfg_auto_update_rule_t>;
  if (a == nullptr || b == nullptr) {
    return (a != nullptr) - (b != nullptr);
  }
  const int order = rule::type.compare(*a, *b);
  return order != 0 ? order : rule::payload.compare(*a, *b);
}

RAVIX_COMPARED_RECORD(ravix_cfg_hw, ravix_cfg_hardware_static_t)
RAVIX_COMPARED_RECORD(ravix_cfg_radio, ravix_cfg_radio_static_t)
RAVIX_COMPARED_RECORD(ravix_cfg_radio_dynamic, ravix_cfg_radio_dynamic_t)
RAVIX_COMPARED_RECORD(ravix_cfg_wlan_wps, ravix_cfg_wlan_wps_t)
RAVIX_COMPARED_RECORD(ravix_cfg_radius_server, ravix_cfg_radius_server_t)
RAVIX_COMPARED_TABLE(ravix_cfg_radius_server_table, ravix_cfg_radius_server_table_t)
RAVIX_COMPARED_RECORD(ravix_cfg_wlan_security, ravix_cfg_wlan_security_t)
RAVIX_COMPARED_RECORD(ravix_cfg_security_extended, ravix_cfg_security_extended_t)
RAVIX_COMPARED_TABLE(ravix_cfg_security_extended_table, ravix_cfg_security_extended_table_t)
RAVIX_COMPARED_RECORD(ravix_cfg_role_access_control, ravix_cfg_role_access_control_t)
RAVIX_COMPARED_RECORD(ravix_cfg_role_ap_time_control, ravix_cfg_role_ap_time_control_t)
RAVIX_COMPARED_RECORD(ravix_cfg_role_config_ap, ravix_cfg_role_config_ap_t)
RAVIX_COMPARED_RECORD(ravix_cfg_role_config_sta_uplink, ravix_cfg_role_config_sta_uplink_t)
RAVIX_COMPARED_RECORD(ravix_cfg_role_config_sta, ravix_cfg_role_config_sta_t)

RAVIX_RECORD_FRAME(ravix_cfg_role, ravix_cfg_role_static_t)
RAVIX_RECORD_COPY(ravix_cfg_role, ravix_cfg_role_static_t)
RAVIX_RECORD_COMPARE(ravix_cfg_role, ravix_cfg_role_static_t)

void ravix_cfg_role_clear(ravix_cfg_role_static_t *obj) {
  if (obj != nullptr) {
    zel::ravix::clear_tagged(*obj, here);
  }
}

RAVIX_COMPARED_RECORD(ravix_cfg_owe_transition, ravix_cfg_owe_transition_t)
RAVIX_COMPARED_RECORD(ravix_cfg_mld, ravix_cfg_mld_t)
RAVIX_COMPARED_RECORD(ravix_cfg_role_dynamic, ravix_cfg_role_dynamic_t)
