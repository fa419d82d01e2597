// Common values and tables, and the scan records built of them: rules of single records, and the log lines of failures
// through several levels.
#include "golden.hpp"
#include "harness.hpp"
#include "record_tools.hpp"

#include <gtest/gtest.h>

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <map>
#include <sstream>
#include <string>

namespace {

using zel::ravix::record;
int sign(int order) {
  return (order > 0) - (order < 0);
}

template <class R, std::size_t N> void expect_ended(char (R::*text)[N]) {
  for (const std::size_t length : {std::size_t{0}, N - 2, N - 1, N}) {
    harness::sample<R> src(1);
    harness::sample<R> dest(2);
    std::memset(src.value.*text, 0, N);
    (src.value.*text)[N - 1] = 'x'; // behind the terminator of shorter ones
    std::memset(src.value.*text, 'x', length);
    std::memset(dest.value.*text, '#', N);
    EXPECT_EQ(record<R>::copy(&src.value, &dest.value), 0);
    const std::size_t kept = length < N - 1 ? length : N - 1;
    EXPECT_EQ(std::string(dest.value.*text, N), std::string(kept, 'x') + std::string(N - kept, '\0'));
    if constexpr (requires { record<R>::compare; }) {
      EXPECT_EQ(sign(record<R>::compare(&src.value, &dest.value)), length >= N - 1 ? 1 : 0) << "the last one counts";
    }
  }
}

TEST(CommonValues, CopiesOfBoundedTextsAlwaysEnd) {
  expect_ended(&ravix_cfg_radio_static_t::if_name);
  expect_ended(&ravix_cfg_role_static_t::if_name);
  expect_ended(&ravix_cfg_radius_server_t::secret);
  expect_ended(&radiod_hal_event_hw_init_t::error_message);
  expect_ended(&radiod_hal_event_hw_deinit_t::error_message);
  expect_ended(&radiod_hal_event_set_config_t::error_message);
  expect_ended(&radiod_hal_event_check_config_t::error_message);
  expect_ended(&radiod_hal_event_sanity_t::error_message);
}

// Values in words.
template <class T> void read(std::istringstream words, T &value) { // a key or an SSID
  unsigned length = 0;
  std::string text;
  words >> length >> text;
  value.len = static_cast<std::uint8_t>(length);
  std::memcpy(reinterpret_cast<char *>(&value) + 1, text.data(), text.size());
}
void read(std::istringstream words, ravix_ip_addr_t &value) {
  unsigned number = 0;
  words >> number;
  value.version = static_cast<std::uint8_t>(number);
  for (std::size_t i = 0; words >> number; ++i) {
    value.addr[i] = static_cast<std::uint8_t>(number);
  }
}
void read(std::istringstream words, ravix_frequency_table_t &value) {
  for (std::uint32_t entry = 0; words >> entry;) {
    ravix_types_frequency_table_add_entry(&value, &entry);
  }
}
void read(std::istringstream words, ravix_string_table_t &value) {
  for (std::string word; words >> word;) {
    const char *entry = word != "-" ? word.c_str() : nullptr;
    ravix_types_string_table_add_entry(&value, &entry);
  }
}

template <class T> std::string orders(const std::string &left, const std::string &right) {
  harness::sample<T> a;
  harness::sample<T> b;
  read(std::istringstream(left), a.value);
  read(std::istringstream(right), b.value);
  return std::to_string(sign(record<T>::compare(&a.value, &b.value))) + ", " +
         std::to_string(sign(record<T>::compare(&b.value, &a.value)));
}

TEST(CommonValues, CompareAsRecorded) {
  const std::map<std::string, std::string (*)(const std::string &, const std::string &)> kinds = {
      {"key", orders<ravix_key_t>},
      {"ssid", orders<ravix_ssid_t>},
      {"ip", orders<ravix_ip_addr_t>},
      {"frequencies", orders<ravix_frequency_table_t>},
      {"strings", orders<ravix_string_table_t>}};
  harness::expect_answers("common_orders", [&](const std::string &call) {
    const std::size_t first = call.find(' ');
    const std::size_t bar = call.find('|');
    return kinds.at(call.substr(0, first))(call.substr(first, bar - first), call.substr(bar + 1));
  });
}

TEST(CommonValues, TlvsCompareByTheirReferences) {
  constexpr std::uint8_t length = sizeof(void *); // the first octets of two references may agree
  std::uint8_t octets[length] = {1, 2, 3};
  std::uint8_t same[length] = {1, 2, 3};
  const ravix_tlv_t a{1, length, octets};
  const auto order = [&](const ravix_tlv_t &b) {
    const int forth = sign(ravix_types_tlv_compare(&a, &b));
    EXPECT_EQ(forth, -sign(ravix_types_tlv_compare(&b, &a)));
    return forth;
  };
  EXPECT_EQ(order({1, length, octets}), 0);
  EXPECT_NE(order({1, length, same}), 0);
  EXPECT_EQ(order({2, 0, nullptr}), -1);
  EXPECT_EQ(order({1, 2, octets}), 1);
  EXPECT_EQ(order({1, length, nullptr}), 1);
  const ravix_tlv_t hollow{1, length, nullptr};
  EXPECT_EQ(ravix_types_tlv_compare(&hollow, &hollow), 0);
  const ravix_tlv_t longest{1, 255, octets}; // more octets than a reference has
  EXPECT_EQ(ravix_types_tlv_compare(&longest, &longest), 0);
  harness::sample<ravix_tlv_t> copy(1);
  EXPECT_EQ(ravix_types_tlv_copy(&hollow, &copy.value), 0); // a count without octets
  EXPECT_EQ(copy.value.len, 0);
}

TEST(CommonTables, FindAnAddressByAllItsOctets) {
  ravix_mac_t addresses[] = {{2, 0, 0, 0, 0, 1}, {2, 0, 0, 0, 0, 2}};
  const ravix_mac_table_t table{2, addresses};
  for (std::size_t i = 0; i < RAVIX_MAC_LEN; ++i) {
    ravix_mac_t wanted = {2, 0, 0, 0, 0, 2};
    EXPECT_TRUE(ravix_types_mac_table_contains_entry(&table, &wanted));
    wanted[i] = static_cast<std::uint8_t>(~wanted[i]);
    EXPECT_FALSE(ravix_types_mac_table_contains_entry(&table, &wanted));
  }
}

TEST(CommonTables, FindNullTextsAsTexts) {
  harness::sample<ravix_string_table_t> table;
  const char *null = nullptr;
  const char *text = "text";
  for (const char **entry : {&null, &text}) {
    EXPECT_FALSE(ravix_types_string_table_contains_entry(&table.value, entry));
    EXPECT_EQ(ravix_types_string_table_add_entry(&table.value, entry), 0);
    EXPECT_TRUE(ravix_types_string_table_contains_entry(&table.value, entry));
  }
}

TEST(ScanRecords, ANewTableKeepsItsAirtimeBase) {
  harness::sample<ravix_radio_airtime_table_t> table;
  table.value.airtime_base = 17;
  EXPECT_EQ(ravix_types_radio_airtime_table_init(&table.value, 1), 0);
  EXPECT_EQ(table.value.airtime_base, 17U);
}

TEST(Failures, EveryLevelLogsItsOwnLineInnermostFirst) {
  harness::heap heap;
  harness::captured_log log;
  harness::golden_sections golden;
  const auto add = [&](const char *title, int result) {
    std::string told = std::to_string(result);
    for (const auto &line : log.take()) {
      const bool of_a_frame = line.function == "generic_create" || line.function == "generic_clone"; // fixed lines
      told += "\n" + line.file + (of_a_frame ? ":" + std::to_string(line.line) : "") + " " + line.function + ": ";
      told += line.text;
    }
    golden.add(title, told);
  };
  {
    harness::sample<ravix_get_scan_results_response_t> response;
    harness::sample<ravix_get_scan_results_response_t> dest(1);
    harness::sample<ravix_scan_table_t> table;
    response.value.scan_results = ravix_types_scan_results_create();
    ravix_scan_table_t &networks = response.value.scan_results->scan_table;
    ASSERT_EQ(ravix_types_scan_table_init(&networks, 2), 0);
    networks.data[1].ssid.len = 33;
    add("a response with an SSID too long", ravix_types_get_scan_results_response_copy(&response.value, &dest.value));
    EXPECT_EQ(harness::difference(dest.value, harness::sample<ravix_get_scan_results_response_t>().value), "");
    add("its table to itself", ravix_types_scan_table_copy(&networks, &networks));
    add("its table", ravix_types_scan_table_copy(&networks, &table.value));
    add("its entry added to another", ravix_types_scan_table_add_entry(&table.value, &networks.data[1]));
    EXPECT_EQ(table.value.count, 0U);
  }
  const auto add_lengths = [&]<class T>(harness::sample<T> source, std::uint8_t most) {
    harness::sample<T> dest(1);
    const harness::sample<T> before(1);
    source.value.len = static_cast<std::uint8_t>(most + 1);
    add("too long", record<T>::copy(&source.value, &dest.value));
    EXPECT_EQ(harness::difference(dest.value, before.value), "");
    source.value.len = most;
    add("as long as can be", record<T>::copy(&source.value, &dest.value));
    EXPECT_EQ(harness::difference(dest.value, source.value), "");
  };
  add_lengths(harness::sample<ravix_key_t>(2), RAVIX_MAX_KEY_LEN);
  add_lengths(harness::sample<ravix_ssid_t>(2), RAVIX_MAX_SSID_LEN);
  const ravix_key_t key{};
  heap.fail_from(1);
  add("no memory for a key", ravix_types_key_create() != nullptr);
  add("no memory for a clone", ravix_types_key_clone(&key) != nullptr);
  add("no memory for a table", ravix_types_ssid_table_create(0) != nullptr);
  heap.fail_only(2);
  add("no memory for an array", ravix_types_ssid_table_create(1) != nullptr);
  golden.expect("common_failures");
  EXPECT_TRUE(heap.requested().contains({"src/ravix_types_generic_simple", 35}));
  EXPECT_TRUE(heap.requested().contains({"src/ravix_types_generic_simple", 68}));
  EXPECT_EQ(heap.live(), 0U);
}

} // namespace
