// What is special in the configuration records: fields that another field tells apart, and odd comparisons.
#include "golden.hpp"
#include "harness.hpp"
#include "record_tools.hpp"

#include <gtest/gtest.h>

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <set>
#include <string>

namespace {

using harness::logged;
using harness::sample;
using harness::sign;

// What a refused operation logs.
std::string refusal(const std::string &operation, const std::string &reason, const std::string &assertion) {
  const std::string site = " src/ravix_types_cfg " + operation + ": ";
  return "\n    ravix" + site + reason + "\n    default" + site + "ASSERT: " + assertion;
}

template <class R> bool is_empty(const R &r) {
  return harness::difference(r, sample<R>().value).empty();
}

TEST(AutoUpdateRule, EveryOperationGoesByTheType) {
  using rule = ravix_cfg_auto_update_rule_t;
  harness::captured_log log;
  for (const std::uint32_t type : {0U, 1U, 2U, 3U, 4U, 9U, 256U, 257U, 258U, 0x80000001U, 0x80000002U}) {
    const auto make = [&](bool enabled, std::uint64_t features, std::uint8_t mode) {
      rule made{enabled, type, {}};
      made.auto_update_features.feature = features;
      if (type == RAVIX_CFG_AUTO_UPDATE_RULE_ROLE_OPMODE) { // the octets beside it do not count
        made.auto_update_role_opmode.role_opmode = mode;
      }
      return made;
    };
    const auto orders = [](const rule &a, const rule &b) { // as rules, and as keys
      return std::to_string(sign(ravix_cfg_auto_update_rule_compare(&a, &b))) + "/" +
             std::to_string(sign(ravix_cfg_auto_update_rule_map_key_compare(&a, &b)));
    };
    const char *const by_mode = type == 1 ? "-1/-1" : type == 2 ? "1/1" : "0/0";
    EXPECT_EQ(orders(make(false, 9, 9), make(true, 1, 1)), type == 1 || type == 2 ? "-1/1" : "-1/0");
    EXPECT_EQ(orders(make(true, 0x200000000, 6), make(true, 0x8000000000000001, 6)), type == 2 ? "-1/-1" : "0/0");
    EXPECT_EQ(orders(make(true, 9, 1), make(true, 1, 200)), by_mode);
    EXPECT_EQ(orders(make(true, 9, 9), rule{true, type ^ 0x80000000U, {}}), type < 0x80000000 ? "-1/-1" : "1/1");

    const auto refused_by = [&](const char *operation) {
      const std::string reason = "Invalid update rule type '" + std::to_string(type) + "'";
      return refusal(operation, reason, "!\"Invalid update rule type\"");
    };
    const std::string cleared = type < 3 ? "" : refused_by("ravix_cfg_auto_update_rule_clear");
    rule src = make(true, 0x8000000000000001, 6);
    rule dest{true, RAVIX_CFG_AUTO_UPDATE_RULE_FEATURE, {}};
    dest.auto_update_features.feature = UINT64_MAX;
    const bool is_copied = type == 1 || type == 2;
    EXPECT_EQ(ravix_cfg_auto_update_rule_copy(&src, &dest), is_copied ? 0 : -22);
    EXPECT_EQ(logged(log), is_copied ? "" : refused_by("ravix_cfg_auto_update_rule_copy").append(cleared));
    EXPECT_TRUE(is_copied ? harness::difference(src, dest).empty() : is_empty(dest));
    EXPECT_TRUE(dest.type != 1 || dest.auto_update_features.feature != src.auto_update_features.feature) << "beside it";
    std::memset(&src, 0xA5, offsetof(rule, type)); // the flag and what lies beside it
    ravix_cfg_auto_update_rule_clear(&src);
    EXPECT_EQ(logged(log), cleared);
    const std::string octets(reinterpret_cast<const char *>(&src), sizeof src);
    EXPECT_EQ(octets, std::string(sizeof src, '\0')) << "padding included";
  }
  const rule r{};
  EXPECT_EQ(ravix_cfg_auto_update_rule_map_key_compare(nullptr, nullptr), 0);
  EXPECT_EQ(ravix_cfg_auto_update_rule_map_key_compare(nullptr, &r), -1);
  EXPECT_EQ(ravix_cfg_auto_update_rule_map_key_compare(&r, nullptr), 1);
}

using role = ravix_cfg_role_static_t;

// Said here once more than in the library: what a role of a mode refers to.
const std::set<unsigned> access_points = {1, 2, 7, 8, 9, 10}, stations = {3, 6};

// What the copy of a role says that has not what its mode refers to.
std::string incomplete(const std::string &config) {
  const std::string here = " src/ravix_types_cfg", copy = " ravix_cfg_role_copy: ";
  return "-2147483647\n    default" + here + copy + "ASSERT: nullptr != src->" + config + "\n    ravix" + here +
         ":64 generic_clone: Invalid pointer 'old_obj'!\n    ravix" + here + copy + "Copy error!";
}

TEST(Role, EveryOperationGoesByTheMode) {
  harness::captured_log log;
  const harness::heap heap;
  union {
    std::uint8_t first_octet; // a length, or a flag
    ravix_cfg_role_config_ap_t ap;
    ravix_cfg_role_config_sta_t sta;
  } configs[2] = {};
  configs[1].first_octet = 1;
  sample<role> dest;
  for (unsigned mode = 0; mode <= UINT8_MAX; ++mode) {
    SCOPED_TRACE(mode);
    const bool is_station = stations.contains(mode), has_config = is_station || access_points.contains(mode);
    role bare = sample<role>().value;
    bare.op_mode = static_cast<std::uint8_t>(mode);
    role a = bare, b = bare;
    a.config_ap = &configs[0].ap;
    b.config_ap = &configs[1].ap;
    EXPECT_EQ(sign(ravix_cfg_role_compare(&a, &b)), has_config ? -1 : 0);
    EXPECT_EQ(sign(ravix_cfg_role_compare(&b, &a)), has_config ? 1 : 0);
    EXPECT_EQ(sign(ravix_cfg_role_compare(&a, &bare)), has_config ? 1 : 0);

    const auto copy = [&](const role &from) {
      const int code = ravix_cfg_role_copy(&from, &dest.value);
      EXPECT_TRUE(code == 0 ? harness::difference(from, dest.value).empty() : is_empty(dest.value));
      return std::to_string(code) + logged(log);
    };
    const std::string raw = mode != 0 ? std::string{static_cast<char>(mode), '\''} : ""; // 0 ends the line
    const std::string refused =
        "-22" + refusal("ravix_cfg_role_copy", "Invalid opmode: '" + raw, "!\"Invalid opmode\"");
    EXPECT_EQ(copy(a), has_config ? "0" : refused);
    EXPECT_EQ(heap.size_of(dest.value.config_ap), is_station   ? sizeof configs->sta
                                                  : has_config ? sizeof configs->ap
                                                               : 0);
    EXPECT_EQ(copy(bare), !has_config ? refused : incomplete(is_station ? "config_sta" : "config_ap"));
    EXPECT_EQ(heap.live(), 0U);
    if (!has_config) { // then what is there is left alone
      ravix_cfg_role_clear(&a);
      EXPECT_TRUE(is_empty(a));
    }
  }
}

} // namespace
