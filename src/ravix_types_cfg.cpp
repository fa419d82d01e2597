#include "ravix_types_cfg_fields.hpp"

#include "ravix_types_define.hpp"

#include <cstring>

constexpr const char *here = "src/ravix_types_cfg";

namespace zel::ravix {

void rule_tag::log_rejected(const R &rule, call_site site) {
  log_error(site, {"Invalid update rule type '", decimal(rule.type), "'"});
  log_assertion(site, "!\"Invalid update rule type\"");
}

// A rule of no type is an empty one, and cleared in silence. A rejected rule type has been copied already, so the
// copy's clearing of dest says once more that a type above those known is invalid.
void field_list<ravix_cfg_auto_update_rule_t>::clear(R &rule, call_site site) {
  if (rule.type > RAVIX_CFG_AUTO_UPDATE_RULE_FEATURE) {
    rule_tag::log_rejected(rule, site);
  }
  std::memset(&rule, 0, sizeof rule); // all of it, padding included; no kind of rule owns anything
}

// The mode is shown as one raw character, which log filters of the device know; so mode 0 ends the line.
void role_tag::log_rejected(const R &role, call_site site) {
  const char mode = static_cast<char>(role.op_mode);
  log_error(site, {"Invalid opmode: '", {&mode, 1}, "'"});
  log_assertion(site, "!\"Invalid opmode\"");
}

// First what the mode tells, while it still does.
void field_list<ravix_cfg_role_static_t>::clear(R &role, call_site site) {
  payload.clear(role, site);
  clear_fields(role, site);
}

} // namespace zel::ravix

#define RAVIX_CFG_RECORD RAVIX_DEFINE
#include "ravix_types_records.def"

int ravix_cfg_auto_update_rule_map_key_compare(const ravix_cfg_auto_update_rule_t *a,
                                               const ravix_cfg_auto_update_rule_t *b) {
  using rule = zel::ravix::field_list<ravix_cfg_auto_update_rule_t>;
  if (a == nullptr || b == nullptr) {
    return (a != nullptr) - (b != nullptr);
  }
  const int order = rule::type.compare(*a, *b);
  return order != 0 ? order : rule::payload.compare(*a, *b);
}
