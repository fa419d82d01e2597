// What is special in the configuration records: fields that another field tells apart, and odd comparisons.
#include "harness.hpp"
#include "record_tools.hpp"

#include <gtest/gtest.h>

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <set>
#include <string>

namespace {

using harness::sample;

int sign(int order) {
  return (order > 0) - (order < 0);
}

// Whether a copy's destination is the same, empty, or something else.
template <class R> std::string outcome(int code, const R &src, const R &dest) {
  return std::to_string(code) + (harness::difference(src, dest).empty()                 ? ", the same"
                                 : harness::difference(dest, sample<R>().value).empty() ? ", empty"
                                                                                        : ", neither");
}

// "<logger> <operation>: <text>" of what has been logged.
std::string told(harness::captured_log &log) {
  std::string all;
  for (const harness::log_line &line : log.take()) {
    EXPECT_EQ(line.file, "src/ravix_types_cfg");
    all += "\n" + line.name + " " + line.function + ": " + line.text;
  }
  return all;
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
    // As rules, and as keys.
    const auto orders = [&](const rule &a, const rule &b) {
      EXPECT_EQ(sign(ravix_cfg_auto_update_rule_compare(&a, &b)), -sign(ravix_cfg_auto_update_rule_compare(&b, &a)));
      return std::to_string(sign(ravix_cfg_auto_update_rule_compare(&a, &b))) + "/" +
             std::to_string(sign(ravix_cfg_auto_update_rule_map_key_compare(&a, &b)));
    };
    const char *const by_mode = type == 1 ? "-1/-1" : type == 2 ? "1/1" : "0/0";
    EXPECT_EQ(orders(make(false, 9, 9), make(true, 1, 1)), type == 1 || type == 2 ? "-1/1" : "-1/0");
    EXPECT_EQ(orders(make(true, 0x200000000, 6), make(true, 0x8000000000000001, 6)), type == 2 ? "-1/-1" : "0/0");
    EXPECT_EQ(orders(make(true, 9, 1), make(true, 1, 200)), by_mode);
    EXPECT_EQ(orders(make(true, 9, 9), rule{true, type ^ 0x80000000U, {}}), type < 0x80000000 ? "-1/-1" : "1/1");

    const std::string invalid = ": Invalid update rule type '" + std::to_string(type) + "'";
    const std::string assertion = ": ASSERT: !\"Invalid update rule type\"";
    const auto refused_by = [&](const std::string &operation) {
      return "\nravix " + operation + invalid + "\ndefault " + operation + assertion;
    };
    const std::string cleared = type < 3 ? "" : refused_by("ravix_cfg_auto_update_rule_clear");
    rule src = make(true, 0x8000000000000001, 6);
    rule dest{true, RAVIX_CFG_AUTO_UPDATE_RULE_FEATURE, {}};
    dest.auto_update_features.feature = UINT64_MAX;
    const std::string copied = outcome(ravix_cfg_auto_update_rule_copy(&src, &dest), src, dest);
    EXPECT_EQ(copied + told(log), type == 1 || type == 2
                                      ? "0, the same"
                                      : "-22, empty" + refused_by("ravix_cfg_auto_update_rule_copy") + cleared);
    EXPECT_TRUE(dest.type != 1 || dest.auto_update_features.feature != src.auto_update_features.feature) << "beside it";
    std::memset(&src, 0xA5, offsetof(rule, type)); // the flag and what lies beside it
    ravix_cfg_auto_update_rule_clear(&src);
    EXPECT_EQ(told(log), cleared);
    static const rule nothing{}; // static: all octets are zero
    EXPECT_EQ(std::memcmp(&src, &nothing, sizeof src), 0) << "padding included";
  }
  const rule r{};
  EXPECT_EQ(ravix_cfg_auto_update_rule_map_key_compare(nullptr, nullptr), 0);
  EXPECT_EQ(ravix_cfg_auto_update_rule_map_key_compare(nullptr, &r), -1);
  EXPECT_EQ(ravix_cfg_auto_update_rule_map_key_compare(&r, nullptr), 1);
}

using role = ravix_cfg_role_static_t;

// Said here once more than in the library: what a role of a mode refers to.
const std::set<unsigned> access_points = {1, 2, 7, 8, 9, 10}, stations = {3, 6};

TEST(Role, EveryOperationGoesByTheMode) {
  harness::captured_log log;
  for (unsigned mode = 0; mode <= UINT8_MAX; ++mode) {
    SCOPED_TRACE(mode);
    const bool is_station = stations.contains(mode), has_config = is_station || access_points.contains(mode);
    const harness::heap heap;
    const auto equip = [](role &r, unsigned op_mode, std::uint8_t octet) {
      r.op_mode = static_cast<std::uint8_t>(op_mode);
      if (stations.contains(op_mode)) {
        r.config_sta = ravix_cfg_role_config_sta_create();
        r.config_sta->uplink.mac_master[5] = octet;
      } else { // also a role of no kind, which must leave it alone
        const ravix_mac_t mac{0x02, 0, 0, 0, 0, octet};
        r.config_ap = ravix_cfg_role_config_ap_create();
        EXPECT_EQ(ravix_types_mac_table_add_entry(&r.config_ap->access_control.macs_filtered, &mac), 0);
      }
    };
    sample<role> a;
    sample<role> b;
    sample<role> bare;
    sample<role> dest;
    equip(a.value, mode, 1);
    equip(b.value, mode, 2);
    equip(dest.value, 1, 3); // to be released
    bare.value.op_mode = static_cast<std::uint8_t>(mode);
    EXPECT_EQ(sign(ravix_cfg_role_compare(&a.value, &b.value)), has_config ? -1 : 0);
    EXPECT_EQ(sign(ravix_cfg_role_compare(&b.value, &a.value)), has_config ? 1 : 0);
    EXPECT_EQ(sign(ravix_cfg_role_compare(&a.value, &bare.value)), has_config ? 1 : 0);
    a.value.security.pmf_mode = 1;
    EXPECT_EQ(sign(ravix_cfg_role_compare(&a.value, &b.value)), 1) << "by an earlier field";

    const auto copy = [&](const role &from) {
      const int code = ravix_cfg_role_copy(&from, &dest.value);
      const bool is_empty = harness::difference(dest.value, sample<role>().value).empty();
      EXPECT_TRUE(is_empty != (code == 0) && (code != 0 || harness::difference(from, dest.value).empty()));
      return std::to_string(code) + told(log);
    };
    const std::string name = "ravix_cfg_role_copy: ";
    const std::string raw = mode != 0 ? std::string{static_cast<char>(mode), '\''} : ""; // 0 ends the line
    const std::string refused =
        "-22\nravix " + name + "Invalid opmode: '" + raw + "\ndefault " + name + "ASSERT: !\"Invalid opmode\"";
    EXPECT_EQ(copy(a.value), has_config ? "0" : refused);
    EXPECT_EQ(copy(bare.value),
              !has_config
                  ? refused
                  : "-2147483647\ndefault " + name + "ASSERT: nullptr != src->config_" + (is_station ? "sta" : "ap") +
                        "\nravix generic_clone: Invalid pointer 'old_obj'!\nravix " + name + "Copy error!");
    const std::size_t blocks = heap.live();
    ravix_cfg_role_config_ap_t *kept = a.value.config_ap;
    ravix_cfg_role_clear(&a.value);
    EXPECT_EQ(harness::difference(a.value, sample<role>().value), "");
    EXPECT_EQ(blocks - heap.live(), is_station ? 1U : has_config ? 2U : 0U);
    if (!has_config) {
      ravix_cfg_role_config_ap_free(kept);
      ravix_cfg_role_config_ap_free(b.value.config_ap);
    }
  }
}

} // namespace
