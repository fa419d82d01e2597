// What is special in the configuration records: fields that another field tells apart, and odd comparisons.
#include "golden.hpp"
#include "harness.hpp"
#include "record_tools.hpp"

#include <gtest/gtest.h>

#include <cstddef>
#include <cstdint>
#include <cstring>
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

TEST(AutoUpdateRule, EveryOperationGoesByTheType) {
  using rule = ravix_cfg_auto_update_rule_t;
  harness::expect_answers("cfg_rule_types", [](const std::string &call) {
    const auto type = static_cast<std::uint32_t>(std::stoul(call, nullptr, 0));
    const auto make = [&](bool enabled, std::uint64_t features, std::uint8_t mode) {
      rule made{enabled, type, {}};
      made.auto_update_features.feature = features;
      if (type == RAVIX_CFG_AUTO_UPDATE_RULE_ROLE_OPMODE) { // the octets beside it do not count
        made.auto_update_role_opmode.role_opmode = mode;
      }
      return made;
    };
    const auto orders = [&](const rule &a, const rule &b) {
      EXPECT_EQ(sign(ravix_cfg_auto_update_rule_compare(&a, &b)), -sign(ravix_cfg_auto_update_rule_compare(&b, &a)));
      return std::to_string(sign(ravix_cfg_auto_update_rule_compare(&a, &b))) + "/" +
             std::to_string(sign(ravix_cfg_auto_update_rule_map_key_compare(&a, &b))) + " ";
    };
    rule src = make(true, 0x8000000000000001, 6);
    rule dest{true, RAVIX_CFG_AUTO_UPDATE_RULE_FEATURE, {}};
    dest.auto_update_features.feature = UINT64_MAX;
    const std::string order = orders(make(false, 9, 9), make(true, 1, 1)) + orders(make(true, 0x200000000, 6), src) +
                              orders(make(true, 9, 1), make(true, 1, 200)) +
                              orders(make(true, 9, 9), rule{true, type ^ 0x80000000U, {}});
    const std::string copied = outcome(ravix_cfg_auto_update_rule_copy(&src, &dest), src, dest);
    EXPECT_TRUE(dest.type != 1 || dest.auto_update_features.feature != src.auto_update_features.feature) << "beside it";
    std::memset(&src, 0xA5, offsetof(rule, type)); // the flag and what lies beside it
    ravix_cfg_auto_update_rule_clear(&src);
    static const rule nothing{}; // static: all octets are zero
    EXPECT_EQ(std::memcmp(&src, &nothing, sizeof src), 0) << "padding included";
    return order + "copy " + copied;
  });
  const rule r{};
  EXPECT_EQ(ravix_cfg_auto_update_rule_map_key_compare(nullptr, nullptr), 0);
  EXPECT_EQ(ravix_cfg_auto_update_rule_map_key_compare(nullptr, &r), -1);
  EXPECT_EQ(ravix_cfg_auto_update_rule_map_key_compare(&r, nullptr), 1);
}

using role = ravix_cfg_role_static_t;

TEST(Role, EveryOperationGoesByTheMode) {
  harness::expect_answers("cfg_role_modes", [](const std::string &call) {
    const auto mode = static_cast<std::uint8_t>(std::stoul(call));
    harness::heap heap;
    harness::captured_log log;
    const auto equip = [](role &r, std::uint8_t op_mode, std::uint8_t octet) {
      r.op_mode = op_mode;
      if (op_mode == RAVIX_ROLE_OPMODE_ATACLIENT || op_mode == RAVIX_ROLE_OPMODE_REPEATER) {
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
    equip(dest.value, RAVIX_ROLE_OPMODE_AP_HOME, 3); // to be released
    bare.value.op_mode = mode;
    const auto orders = [&] {
      return std::to_string(sign(ravix_cfg_role_compare(&a.value, &b.value))) + " " +
             std::to_string(sign(ravix_cfg_role_compare(&b.value, &a.value))) + " " +
             std::to_string(sign(ravix_cfg_role_compare(&a.value, &bare.value)));
    };
    std::string told = "by pointee, and to none " + orders();
    a.value.security.pmf_mode = 1;
    told += "; by an earlier field " + orders();
    told += "; copy " + outcome(ravix_cfg_role_copy(&a.value, &dest.value), a.value, dest.value);
    told += "; without pointee " + outcome(ravix_cfg_role_copy(&bare.value, &dest.value), bare.value, dest.value);
    const std::size_t blocks = heap.live();
    ravix_cfg_role_config_ap_t *kept = a.value.config_ap;
    ravix_cfg_role_clear(&a.value);
    EXPECT_EQ(harness::difference(a.value, sample<role>().value), "");
    told += "; clear releases " + std::to_string(blocks - heap.live());
    if (blocks == heap.live()) {
      ravix_cfg_role_config_ap_free(kept);
      ravix_cfg_role_config_ap_free(b.value.config_ap);
    }
    std::string lines = harness::logged(log);
    const std::string raw = {'\'', static_cast<char>(mode), '\''};
    for (std::size_t at = 0; (at = lines.find(raw, at)) != std::string::npos;) {
      lines[at + 1] = '?';
    }
    return told + lines;
  });
}

} // namespace
