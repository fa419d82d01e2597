// What is special in the configuration records: fields that another field tells apart, and odd comparisons.
#include "harness.hpp"

#include "ravix_types_cfg_fields.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string>
#include <type_traits>
#include <vector>

namespace {

using zel::ravix::record;
using texts = std::vector<std::string>;

// An empty record that is cleared when the test is done with it.
template <class R> struct local {
  R r{};
  local() { record<R>::clear(&r); }
  ~local() { record<R>::clear(&r); }
  local(const local &) = delete;
  local &operator=(const local &) = delete;
};

int sign(int order) {
  return (order > 0) - (order < 0);
}

// The lines logged since the last call, as "module function: text".
texts taken(harness::captured_log &log) {
  texts all;
  for (const harness::log_line &line : log.take()) {
    EXPECT_TRUE(line.file == "src/ravix_types_cfg" || line.file == "src/ravix_types_common") << line.file;
    all.push_back((line.name == "ravix" ? "ravix " : "default ") + line.function + ": " + line.text);
  }
  return all;
}

texts operator+(texts a, const texts &b) {
  a.insert(a.end(), b.begin(), b.end());
  return a;
}

// ---- rule for automatic updates

using rule = ravix_cfg_auto_update_rule_t;

// Every 8-bit type, and wider ones that end like the real types.
std::vector<std::uint32_t> rule_types() {
  std::vector<std::uint32_t> types;
  for (std::uint32_t type = 0; type <= UINT8_MAX; ++type) {
    types.push_back(type);
  }
  for (const std::uint32_t type : {0x100U, 0x101U, 0x102U, 0x80000001U, 0xFFFFFFFFU}) {
    types.push_back(type);
  }
  return types;
}

rule make_rule(std::uint32_t type, bool enabled = true, std::uint64_t payload = 0) {
  rule made{};
  made.enabled = enabled;
  made.type = type;
  if (type == RAVIX_CFG_AUTO_UPDATE_RULE_ROLE_OPMODE) {
    made.auto_update_role_opmode.role_opmode = static_cast<std::uint8_t>(payload);
  } else {
    made.auto_update_features.feature = payload;
  }
  return made;
}

texts rejected_rule(const char *operation, std::uint32_t type) {
  const std::string function = std::string(" ravix_cfg_auto_update_rule_") + operation;
  return {"ravix" + function + ": Invalid update rule type '" + std::to_string(type) + "'",
          "default" + function + ": ASSERT: !\"Invalid update rule type\""};
}

bool is_empty(const rule &r) {
  return !r.enabled && r.type == 0 && r.auto_update_features.feature == 0;
}

TEST(AutoUpdateRule, ClearEmptiesEveryTypeAndTellsOfUnknownOnes) {
  harness::captured_log log;
  for (const std::uint32_t type : rule_types()) {
    rule r{};
    r.enabled = true;
    r.type = type;
    r.auto_update_features.feature = UINT64_MAX;
    ravix_cfg_auto_update_rule_clear(&r);
    EXPECT_TRUE(is_empty(r)) << type;
    EXPECT_EQ(taken(log), type > 2 ? rejected_rule("clear", type) : texts{});
  }
}

TEST(AutoUpdateRule, CopyTakesTheTwoRealTypesOnly) {
  harness::captured_log log;
  for (const std::uint32_t type : rule_types()) {
    rule src{};
    src.enabled = true;
    src.type = type;
    src.auto_update_features.feature = 0x0706050403020101;
    src.auto_update_role_opmode.role_opmode = RAVIX_ROLE_OPMODE_REPEATER;
    rule dest = make_rule(RAVIX_CFG_AUTO_UPDATE_RULE_FEATURE, true, UINT64_MAX);
    const int code = ravix_cfg_auto_update_rule_copy(&src, &dest);
    if (type == 1 || type == 2) {
      EXPECT_EQ(code, 0);
      EXPECT_EQ(taken(log), texts{});
      EXPECT_EQ(ravix_cfg_auto_update_rule_compare(&src, &dest), 0);
      // Only what the type says is taken over: octets beside a role's mode stay behind.
      const rule wanted = make_rule(type, true, type == 1 ? 6 : src.auto_update_features.feature);
      EXPECT_EQ(dest.auto_update_features.feature, wanted.auto_update_features.feature);
    } else {
      EXPECT_EQ(code, -22) << type;
      EXPECT_TRUE(is_empty(dest)) << type;
      EXPECT_EQ(taken(log), rejected_rule("copy", type) + (type > 2 ? rejected_rule("clear", type) : texts{}));
    }
  }
  // What the destination was is told of as by clear.
  const rule src = make_rule(1, true, RAVIX_ROLE_OPMODE_AP_GUEST);
  rule dest = make_rule(7);
  EXPECT_EQ(ravix_cfg_auto_update_rule_copy(&src, &dest), 0);
  EXPECT_EQ(taken(log), rejected_rule("clear", 7));
  EXPECT_EQ(dest.auto_update_role_opmode.role_opmode, RAVIX_ROLE_OPMODE_AP_GUEST);
}

TEST(AutoUpdateRule, AFreshRuleCannotBeCloned) {
  harness::captured_log log;
  harness::heap heap;
  local<rule> fresh;
  EXPECT_EQ(ravix_cfg_auto_update_rule_clone(&fresh.r), nullptr);
  EXPECT_EQ(taken(log), rejected_rule("copy", 0) + texts{"ravix generic_clone: Copy error!"});
  EXPECT_EQ(heap.live(), 0U);
}

TEST(AutoUpdateRule, IsOrderedWithAndWithoutRegardToEnabled) {
  struct {
    const char *sentence;
    rule a, b;
    int order, key_order;
  } const rows[] = {
      {"enabled alone is no other key", make_rule(2, false, 5), make_rule(2, true, 5), -1, 0},
      {"enabled decides over the type", make_rule(1, true), make_rule(2, false), 1, -1},
      {"the type is unsigned", make_rule(1), make_rule(0x80000001), -1, -1},
      {"modes are compared as modes", make_rule(1, true, 1), make_rule(1, true, 2), -1, -1},
      {"features are one unsigned number", make_rule(2, true, 1), make_rule(2, true, UINT64_MAX), -1, -1},
      {"their high half counts", make_rule(2, true, 0x100000000), make_rule(2, true, 0x200000000), -1, -1},
      {"no type has no payload", make_rule(0, true, 1), make_rule(0, true, 2), 0, 0},
      {"nor has an unknown one", make_rule(7, true, 1), make_rule(7, true, 2), 0, 0},
      {"which is ordered by enabled", make_rule(7, false, 2), make_rule(7, true, 1), -1, 0},
  };
  for (const auto &row : rows) {
    EXPECT_EQ(sign(ravix_cfg_auto_update_rule_compare(&row.a, &row.b)), row.order) << row.sentence;
    EXPECT_EQ(sign(ravix_cfg_auto_update_rule_compare(&row.b, &row.a)), -row.order) << row.sentence;
    EXPECT_EQ(sign(ravix_cfg_auto_update_rule_map_key_compare(&row.a, &row.b)), row.key_order) << row.sentence;
    EXPECT_EQ(sign(ravix_cfg_auto_update_rule_map_key_compare(&row.b, &row.a)), -row.key_order) << row.sentence;
  }
  // Octets beside a mode are not part of it.
  rule a = make_rule(2, true, UINT64_MAX);
  rule b = make_rule(1, true, 3);
  a.type = 1;
  a.auto_update_role_opmode.role_opmode = 3;
  EXPECT_EQ(ravix_cfg_auto_update_rule_compare(&a, &b), 0);

  const auto key_compare = ravix_cfg_auto_update_rule_map_key_compare;
  EXPECT_EQ(key_compare(nullptr, nullptr), 0);
  EXPECT_EQ(key_compare(nullptr, &a), -1);
  EXPECT_EQ(key_compare(&a, nullptr), 1);
}

// ---- role

using role = ravix_cfg_role_static_t;

enum class kind { none, ap, sta };

kind kind_of(unsigned op_mode) {
  if (op_mode >= 32) {
    return kind::none;
  }
  return (0x786U >> op_mode & 1U) != 0 ? kind::ap : ((0x48U >> op_mode & 1U) != 0 ? kind::sta : kind::none);
}

// An access point with a filter of one address.
ravix_cfg_role_config_ap_t *make_ap(std::uint8_t last_octet = 1) {
  ravix_cfg_role_config_ap_t *ap = ravix_cfg_role_config_ap_create();
  const ravix_mac_t mac{0x02, 0, 0, 0, 0, last_octet};
  EXPECT_EQ(ravix_types_mac_table_add_entry(&ap->access_control.macs_filtered, &mac), 0);
  return ap;
}

// Gives the role what its mode asks for; a role of no kind gets an access point that nobody else releases.
void equip(role &r, std::uint8_t op_mode, std::uint8_t octet = 1) {
  r.op_mode = op_mode;
  if (kind_of(op_mode) == kind::sta) {
    r.config_sta = ravix_cfg_role_config_sta_create();
    r.config_sta->uplink.mac_master[5] = octet;
  } else {
    r.config_ap = make_ap(octet);
  }
}

// Releases what a role of no kind holds.
void strip(role &r) {
  if (kind_of(r.op_mode) == kind::none) {
    ravix_cfg_role_config_ap_free(r.config_ap);
    r.config_ap = nullptr;
  }
}

void expect_empty(const role &r) {
  local<role> fresh;
  EXPECT_EQ(ravix_cfg_role_compare(&r, &fresh.r), 0);
  EXPECT_EQ(r.config_ap, nullptr);
}

template <class Test> void for_each_mode(Test test) {
  for (unsigned mode = 0; mode <= UINT8_MAX; ++mode) {
    SCOPED_TRACE(mode);
    test(static_cast<std::uint8_t>(mode));
  }
}

texts rejected_role(std::uint8_t op_mode) {
  // Mode 0 ends the line.
  const std::string shown = op_mode == 0 ? "" : std::string(1, static_cast<char>(op_mode)) + "'";
  return {"ravix ravix_cfg_role_copy: Invalid opmode: '" + shown,
          "default ravix_cfg_role_copy: ASSERT: !\"Invalid opmode\""};
}

TEST(Role, ClearReleasesWhatItsModeTellsOf) {
  harness::captured_log log;
  for_each_mode([&](std::uint8_t mode) {
    harness::heap heap;
    role r{};
    r.id = 1;
    equip(r, mode);
    ravix_cfg_role_config_ap_t *kept = kind_of(mode) == kind::none ? r.config_ap : nullptr;
    ravix_cfg_role_clear(&r);
    expect_empty(r);
    EXPECT_EQ(r.power_level, 255);
    EXPECT_EQ(r.mac_address_index, INT32_MIN);
    EXPECT_EQ(heap.live(), kept != nullptr ? 2U : 0U); // the access point and its filter
    ravix_cfg_role_config_ap_free(kept);
    EXPECT_EQ(heap.live(), 0U);
  });
  EXPECT_EQ(taken(log), texts{});
}

TEST(Role, CopyGoesByTheMode) {
  harness::captured_log log;
  for_each_mode([&](std::uint8_t mode) {
    harness::heap heap;
    {
      local<role> src;
      local<role> dest;
      equip(src.r, mode, 9);
      equip(dest.r, RAVIX_ROLE_OPMODE_AP_HOME); // to be released
      const int code = ravix_cfg_role_copy(&src.r, &dest.r);
      if (kind_of(mode) == kind::none) {
        EXPECT_EQ(code, -22);
        EXPECT_EQ(taken(log), rejected_role(mode));
        expect_empty(dest.r);
      } else {
        EXPECT_EQ(code, 0);
        EXPECT_EQ(taken(log), texts{});
        EXPECT_EQ(ravix_cfg_role_compare(&src.r, &dest.r), 0);
        EXPECT_NE(src.r.config_ap, dest.r.config_ap);
      }
      strip(src.r);
    }
    EXPECT_EQ(heap.live(), 0U);
  });
}

TEST(Role, CopyOfAnIncompleteRoleFailsWithItsOwnCode) {
  for_each_mode([&](std::uint8_t mode) {
    if (kind_of(mode) == kind::none) {
      return;
    }
    harness::captured_log log;
    local<role> src;
    local<role> dest;
    src.r.op_mode = mode;
    equip(dest.r, RAVIX_ROLE_OPMODE_REPEATER);
    EXPECT_EQ(ravix_cfg_role_copy(&src.r, &dest.r), -2147483647);
    const std::string member = kind_of(mode) == kind::ap ? "config_ap" : "config_sta";
    EXPECT_EQ(taken(log),
              (texts{"default ravix_cfg_role_copy: ASSERT: nullptr != src->" + member,
                     "ravix generic_clone: Invalid pointer 'old_obj'!", "ravix ravix_cfg_role_copy: Copy error!"}));
    expect_empty(dest.r);
  });
}

TEST(Role, CopyTellsAFailedCloneFromAFailedNestedCopy) {
  harness::captured_log log;
  harness::heap heap;
  {
    local<role> src;
    local<role> dest;
    equip(src.r, RAVIX_ROLE_OPMODE_AP_HOTSPOT);
    heap.fail_only(1); // the access point
    EXPECT_EQ(ravix_cfg_role_copy(&src.r, &dest.r), RAVIX_FAIL_GENERAL);
    EXPECT_EQ(taken(log),
              (texts{"ravix generic_clone: No memory available!", "ravix ravix_cfg_role_copy: Copy error!"}));
    expect_empty(dest.r);

    ASSERT_EQ(ravix_cfg_radius_server_table_init(&src.r.security.acct_servers, 1), 0);
    heap.fail_only(1); // the servers
    EXPECT_EQ(ravix_cfg_role_copy(&src.r, &dest.r), -12);
    EXPECT_EQ(taken(log).back(), "ravix ravix_cfg_role_copy: Copy error!");
    expect_empty(dest.r);

    heap.fail_only(0);
    src.r.security.key.len = 65;
    EXPECT_EQ(ravix_cfg_role_copy(&src.r, &dest.r), -22);
    EXPECT_EQ(taken(log),
              (texts{"ravix ravix_types_key_copy: src->len is greater than RAVIX_MAX_KEY_LEN!",
                     "ravix ravix_cfg_wlan_security_copy: Copy error!", "ravix ravix_cfg_role_copy: Copy error!"}));
    expect_empty(dest.r);
  }
  EXPECT_EQ(heap.live(), 0U);
}

TEST(Role, CompareGoesByTheMode) {
  for_each_mode([&](std::uint8_t mode) {
    local<role> a;
    local<role> b;
    equip(a.r, mode, 1);
    equip(b.r, mode, 2);
    const int order = kind_of(mode) == kind::none ? 0 : -1;
    EXPECT_EQ(sign(ravix_cfg_role_compare(&a.r, &b.r)), order);
    EXPECT_EQ(sign(ravix_cfg_role_compare(&b.r, &a.r)), -order);
    strip(b.r);
    record<role>::clear(&b.r);
    b.r.op_mode = mode; // with a null pointer now
    EXPECT_EQ(ravix_cfg_role_compare(&a.r, &b.r), -order);
    b.r.security.pmf_mode = 1; // decides first
    EXPECT_EQ(ravix_cfg_role_compare(&a.r, &b.r), -1);
    strip(a.r);
  });
}

TEST(Role, SelfCopyKeepsTheRole) {
  harness::heap heap;
  {
    local<role> r;
    equip(r.r, RAVIX_ROLE_OPMODE_AP_HOME);
    const auto *ap = r.r.config_ap;
    EXPECT_EQ(ravix_cfg_role_copy(&r.r, &r.r), 0);
    EXPECT_EQ(r.r.config_ap, ap);
  }
  EXPECT_EQ(heap.live(), 0U);
}

// ---- bounded texts

template <class R, std::size_t N> void expect_bounded(char (R::*member)[N]) {
  for (const std::size_t length : {std::size_t{0}, N - 2, N - 1, N}) {
    SCOPED_TRACE(length);
    local<R> src;
    local<R> dest;
    if constexpr (std::is_same_v<R, role>) {
      equip(src.r, RAVIX_ROLE_OPMODE_AP_HOME);
      equip(dest.r, RAVIX_ROLE_OPMODE_AP_HOME);
    }
    std::memset(src.r.*member, 'x', length);
    std::memset(dest.r.*member, '#', N);
    EXPECT_EQ(record<R>::copy(&src.r, &dest.r), 0);
    const std::size_t kept = std::min(length, N - 1);
    EXPECT_EQ(std::string(dest.r.*member, N), std::string(kept, 'x') + std::string(N - kept, '\0'));
    if constexpr (!std::is_same_v<R, ravix_cfg_radius_server_t>) { // of no address: never equal
      EXPECT_EQ(sign(record<R>::compare(&src.r, &dest.r)), length == N ? 1 : 0) << "the last character counts";
    }
    // What follows the terminator does not count.
    std::memset(src.r.*member, '\0', N);
    (src.r.*member)[N - 1] = 'x';
    EXPECT_EQ(record<R>::copy(&src.r, &dest.r), 0);
    EXPECT_EQ(std::string(dest.r.*member, N), std::string(N, '\0'));
  }
}

TEST(BoundedText, ACopyAlwaysEnds) {
  expect_bounded(&ravix_cfg_radio_static_t::if_name);
  expect_bounded(&role::if_name);
  expect_bounded(&ravix_cfg_radius_server_t::secret);
}

// ---- others

TEST(RadiusServer, IsFoundWhateverItsIndex) {
  local<ravix_cfg_radius_server_table_t> table;
  local<ravix_cfg_radius_server_t> server;
  EXPECT_EQ(server.r.index, INT32_MIN);
  server.r.index = 1;
  server.r.port = 1812;
  server.r.addr.version = RAVIX_IP_VERSION_4;
  std::strcpy(server.r.secret, "secret");
  ASSERT_EQ(ravix_cfg_radius_server_table_add_entry(&table.r, &server.r), 0);
  EXPECT_EQ(table.r.data[0].index, 1);
  server.r.index = 2;
  EXPECT_EQ(ravix_cfg_radius_server_compare(&table.r.data[0], &server.r), 0);
  EXPECT_TRUE(ravix_cfg_radius_server_table_contains_entry(&table.r, &server.r));
  server.r.secret[6] = '!';
  EXPECT_LT(ravix_cfg_radius_server_compare(&table.r.data[0], &server.r), 0);
  EXPECT_FALSE(ravix_cfg_radius_server_table_contains_entry(&table.r, &server.r));
  server.r.port = 1; // decides over the secret
  EXPECT_GT(ravix_cfg_radius_server_compare(&table.r.data[0], &server.r), 0);
}

TEST(DebugSettings, OwnTheirText) {
  harness::captured_log log;
  harness::heap heap;
  {
    local<ravix_cfg_debug_settings_t> dest;
    {
      local<ravix_cfg_debug_settings_t> src;
      src.r.trace_state = 3;
      EXPECT_EQ(ravix_cfg_debug_settings_copy(&src.r, &dest.r), 0);
      EXPECT_EQ(dest.r.trace_parameter, nullptr);
      src.r.trace_parameter = slab_dstrdup("all", "", 0);
      EXPECT_EQ(ravix_cfg_debug_settings_compare(&dest.r, &src.r), -1) << "null sorts first";
      EXPECT_EQ(ravix_cfg_debug_settings_copy(&src.r, &dest.r), 0);
      EXPECT_EQ(ravix_cfg_debug_settings_compare(&dest.r, &src.r), 0);
    }
    EXPECT_STREQ(dest.r.trace_parameter, "all");
    local<ravix_cfg_debug_settings_t> other;
    heap.fail_only(1);
    EXPECT_EQ(ravix_cfg_debug_settings_copy(&dest.r, &other.r), -12);
    EXPECT_EQ(taken(log), texts{"ravix ravix_cfg_debug_settings_copy: No memory available!"});
    EXPECT_EQ(other.r.trace_state, 0U);
    EXPECT_EQ(other.r.trace_parameter, nullptr);
  }
  EXPECT_EQ(heap.live(), 0U);
}

TEST(Cfg, EmptyValuesOtherThanZero) {
  EXPECT_EQ(local<ravix_cfg_hardware_static_t>().r.hw_interface, INT32_MIN);
  EXPECT_EQ(local<ravix_cfg_radio_static_t>().r.mac_address_index, INT32_MIN);
  EXPECT_EQ(local<ravix_cfg_role_access_control_t>().r.limits_max_clients, 4294967295U);
  EXPECT_EQ(local<ravix_cfg_role_access_control_t>().r.limits_min_client_rssi, 32767);
  EXPECT_EQ(local<ravix_cfg_role_config_ap_t>().r.access_control.limits_max_clients, 4294967295U);
}

TEST(Cfg, SetsOfSlotsAreComparedSlotBySlot) {
  local<ravix_cfg_security_extended_t> a;
  local<ravix_cfg_security_extended_t> b;
  a.r.key_mgmt[1] = 0x80;
  b.r.key_mgmt[1] = 0x01;
  b.r.key_mgmt[2] = 0xFF;
  b.r.group_cipher[0] = 0xFF;
  EXPECT_EQ(ravix_cfg_security_extended_compare(&a.r, &b.r), 1);
  EXPECT_EQ(ravix_cfg_security_extended_compare(&b.r, &a.r), -1);
}

} // namespace
