// Common values and tables, and the scan records built of them: rules of single records, and the log lines of failures
// through several levels.
#include "harness.hpp"

#include "ravix_types_api_request.h"
#include "ravix_types_common.h"
#include "ravix_types_radio_env.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <cstring>
#include <initializer_list>
#include <string>
#include <vector>

namespace {

using texts = std::vector<std::string>;

// A record with a length that may exceed its capacity.
template <class T>
void expect_bounded(T longest, int (*copy)(const T *, T *), T *(*clone)(const T *), const char *limit) {
  harness::captured_log log;
  std::memset(&longest, 'x', sizeof longest);
  longest.len = static_cast<std::uint8_t>(sizeof longest - 2);
  T dest;
  std::memset(&dest, 'y', sizeof dest);
  EXPECT_EQ(copy(&longest, &dest), 0);
  const auto *octets = reinterpret_cast<const char *>(&dest) + 1;
  EXPECT_EQ(std::string(octets, sizeof dest - 1), std::string(longest.len, 'x') + '\0');

  T too_long = longest;
  ++too_long.len;
  const T before = dest;
  EXPECT_EQ(copy(&too_long, &dest), -22);
  EXPECT_EQ(std::memcmp(&dest, &before, sizeof dest), 0);
  EXPECT_EQ(clone(&too_long), nullptr);
  const auto lines = log.take_texts();
  ASSERT_EQ(lines.size(), 3U);
  EXPECT_NE(lines[0].find(std::string(": src->len is greater than ") + limit + "!"), std::string::npos);
  EXPECT_EQ(lines[1], lines[0]);
  EXPECT_EQ(lines[2], "generic_clone: Copy error!");
}

TEST(CommonValues, KeysAndSsidsAreBounded) {
  expect_bounded(ravix_key_t{}, ravix_types_key_copy, ravix_types_key_clone, "RAVIX_MAX_KEY_LEN");
  expect_bounded(ravix_ssid_t{}, ravix_types_ssid_copy, ravix_types_ssid_clone, "RAVIX_MAX_SSID_LEN");
}

TEST(CommonValues, LengthDecidesBeforeContent) {
  const ravix_ssid_t b{1, "b"};
  const ravix_ssid_t aa{2, "aa"};
  EXPECT_EQ(ravix_types_ssid_compare(&b, &aa), -1);
  EXPECT_EQ(ravix_types_ssid_compare(&aa, &b), 1);
  const ravix_ssid_t ab{2, "ab"};
  EXPECT_LT(ravix_types_ssid_compare(&aa, &ab), 0);
  ravix_ssid_t tail = ab;
  tail.ssid[5] = 7; // beyond the length
  EXPECT_EQ(ravix_types_ssid_compare(&tail, &ab), 0);
  const ravix_ssid_t beyond{200, "x"}; // a length that lies reads no further than the array
  EXPECT_EQ(ravix_types_ssid_compare(&beyond, &beyond), 0);
}

TEST(CommonValues, AddressesCompareByWhatTheirVersionUses) {
  ravix_ip_addr_t a{RAVIX_IP_VERSION_4, {10, 0, 0, 1, 99}};
  ravix_ip_addr_t b{RAVIX_IP_VERSION_4, {10, 0, 0, 1, 42}};
  EXPECT_EQ(ravix_types_ip_addr_compare(&a, &b), 0);
  a.version = b.version = RAVIX_IP_VERSION_6;
  EXPECT_GT(ravix_types_ip_addr_compare(&a, &b), 0);
  a.version = RAVIX_IP_VERSION_4;
  EXPECT_EQ(ravix_types_ip_addr_compare(&a, &b), -1);
  for (const std::uint8_t version : std::initializer_list<std::uint8_t>{0, 3, 255}) {
    a.version = b.version = version;
    EXPECT_EQ(ravix_types_ip_addr_compare(&a, &a), -1) << "no address equals itself";
    EXPECT_EQ(ravix_types_ip_addr_compare(&b, &a), -1);
  }
}

TEST(CommonValues, TlvsCompareByTheirReferences) {
  harness::heap heap;
  constexpr std::uint8_t length = sizeof(void *); // the first octets of two references may agree
  std::uint8_t octets[length] = {1, 2, 3};
  std::uint8_t same[length] = {1, 2, 3};
  const ravix_tlv_t a{1, length, octets};
  const ravix_tlv_t elsewhere{1, length, same};
  const ravix_tlv_t shared{1, length, octets};
  EXPECT_NE(ravix_types_tlv_compare(&a, &elsewhere), 0);
  EXPECT_EQ(ravix_types_tlv_compare(&a, &shared), 0);
  const ravix_tlv_t other_type{2, 0, nullptr};
  EXPECT_EQ(ravix_types_tlv_compare(&a, &other_type), -1);
  const ravix_tlv_t shorter{1, 2, octets};
  EXPECT_EQ(ravix_types_tlv_compare(&a, &shorter), 1);
  const ravix_tlv_t hollow{1, length, nullptr};
  EXPECT_EQ(ravix_types_tlv_compare(&hollow, &a), -1);
  EXPECT_EQ(ravix_types_tlv_compare(&a, &hollow), 1);
  EXPECT_EQ(ravix_types_tlv_compare(&hollow, &hollow), 0);
  const ravix_tlv_t longest{1, 255, octets}; // more octets than a reference has
  EXPECT_EQ(ravix_types_tlv_compare(&longest, &longest), 0);

  ravix_tlv_t copy{};
  EXPECT_EQ(ravix_types_tlv_copy(&a, &copy), 0);
  EXPECT_EQ(std::memcmp(copy.value, octets, length), 0);
  EXPECT_EQ(ravix_types_tlv_copy(&other_type, &copy), 0);
  EXPECT_EQ(copy.value, nullptr);
  EXPECT_EQ(ravix_types_tlv_copy(&hollow, &copy), 0); // a count without octets
  EXPECT_EQ(copy.len, 0);
  EXPECT_EQ(heap.live(), 0U);
}

TEST(CommonTables, OrderPlainElementsAsTheyLieInMemory) {
  std::uint32_t rising[] = {1, 2};
  std::uint32_t falling[] = {2, 1};
  const ravix_frequency_table_t a{2, rising};
  const ravix_frequency_table_t b{2, falling};
  const ravix_frequency_table_t shorter{1, falling};
  const ravix_frequency_table_t none{0, nullptr};
  EXPECT_LT(ravix_types_frequency_table_compare(&a, &b), 0);
  EXPECT_GT(ravix_types_frequency_table_compare(&b, &a), 0);
  EXPECT_EQ(ravix_types_frequency_table_compare(&shorter, &a), -1);
  EXPECT_EQ(ravix_types_frequency_table_compare(&a, &none), 1);
  EXPECT_EQ(ravix_types_frequency_table_compare(&none, &none), 0);
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
  const ravix_mac_table_t none{0, nullptr};
  EXPECT_FALSE(ravix_types_mac_table_contains_entry(&none, &addresses[0]));
}

TEST(CommonTables, HoldNullTextsAsTexts) {
  harness::heap heap;
  ravix_string_table_t table{};
  const char *null = nullptr;
  const char *text = "text";
  EXPECT_FALSE(ravix_types_string_table_contains_entry(&table, &null));
  EXPECT_EQ(ravix_types_string_table_add_entry(&table, &null), 0);
  EXPECT_TRUE(ravix_types_string_table_contains_entry(&table, &null));
  EXPECT_FALSE(ravix_types_string_table_contains_entry(&table, &text));
  EXPECT_EQ(ravix_types_string_table_add_entry(&table, &text), 0);
  EXPECT_TRUE(ravix_types_string_table_contains_entry(&table, &text));
  ravix_string_table_t *clone = ravix_types_string_table_clone(&table);
  EXPECT_EQ(ravix_types_string_table_compare(clone, &table), 0);
  clone->data[1][0] = 's';
  EXPECT_LT(ravix_types_string_table_compare(clone, &table), 0);
  std::swap(clone->data[0], clone->data[1]);
  EXPECT_EQ(ravix_types_string_table_compare(&table, clone), -1) << "null sorts before any text";
  ravix_types_string_table_free(clone);
  ravix_types_string_table_clear(&table);
  EXPECT_EQ(heap.live(), 0U);
}

TEST(Failures, EveryLevelLogsItsOwnLineInnermostFirst) {
  harness::heap heap;
  harness::captured_log log;
  ravix_get_scan_results_response_t response{0, ravix_types_scan_results_create()};
  ravix_types_scan_table_init(&response.scan_results->scan_table, 2);
  response.scan_results->scan_table.data[1].ssid.len = 33;
  ravix_get_scan_results_response_t dest{7, ravix_types_scan_results_create()};
  EXPECT_EQ(ravix_types_get_scan_results_response_copy(&response, &dest), -12);
  EXPECT_EQ(dest.status, 0);
  EXPECT_EQ(dest.scan_results, nullptr);
  const auto lines = log.take();
  texts written;
  for (const auto &line : lines) {
    written.push_back(line.file + " " + line.function + ": " + line.text);
  }
  EXPECT_EQ(written, (texts{
                         "src/ravix_types_common ravix_types_ssid_copy: src->len is greater than RAVIX_MAX_SSID_LEN!",
                         "src/ravix_types_radio_env ravix_types_scan_entry_copy: Copy error!",
                         "src/ravix_types_radio_env generic_table_copy: Copy error!",
                         "src/ravix_types_radio_env ravix_types_scan_results_copy: Copy error!",
                         "src/ravix_types_radio_env generic_clone: Copy error!",
                         "src/ravix_types_api_request ravix_types_get_scan_results_response_copy: Copy error!",
                     }));
  ASSERT_EQ(lines.size(), 6U);
  EXPECT_EQ(lines[4].line, 75);
  EXPECT_EQ(ravix_types_scan_table_copy(&response.scan_results->scan_table, &response.scan_results->scan_table), 0);
  ravix_scan_table_t table{};
  EXPECT_EQ(ravix_types_scan_table_copy(&response.scan_results->scan_table, &table), -22);
  EXPECT_EQ(ravix_types_scan_table_add_entry(&table, &response.scan_results->scan_table.data[1]), -22);
  EXPECT_EQ(table.count, 0U);
  EXPECT_EQ(log.take_texts().back(), "generic_table_add_entry: Copy error!");
  ravix_types_scan_table_clear(&table);
  ravix_types_get_scan_results_response_clear(&response);
  EXPECT_EQ(heap.live(), 0U);
}

TEST(Failures, CarryTheFramesLines) {
  harness::heap heap;
  harness::captured_log log;
  const ravix_key_t key{};
  heap.fail_from(1);
  EXPECT_EQ(ravix_types_key_create(), nullptr);
  EXPECT_EQ(ravix_types_key_clone(&key), nullptr);
  EXPECT_EQ(ravix_types_ssid_table_create(0), nullptr);
  heap.fail_only(2);
  EXPECT_EQ(ravix_types_ssid_table_create(1), nullptr);
  const auto lines = log.take();
  ASSERT_EQ(lines.size(), 5U);
  EXPECT_EQ(lines[0].function, "generic_create");
  EXPECT_EQ(lines[0].line, 37);
  EXPECT_EQ(lines[1].function, "generic_clone");
  EXPECT_EQ(lines[1].line, 70);
  EXPECT_EQ(lines[2].function + lines[2].text, "generic_table_createNo memory available!");
  EXPECT_EQ(lines[3].function + lines[3].text, "generic_table_initNo memory available!");
  EXPECT_EQ(lines[4].function + lines[4].text, "generic_table_createInit error!");
  EXPECT_TRUE(
      std::all_of(lines.begin(), lines.end(), [](const auto &line) { return line.file == "src/ravix_types_common"; }));
  EXPECT_TRUE(heap.requested().contains({"src/ravix_types_generic_simple", 35}));
  EXPECT_TRUE(heap.requested().contains({"src/ravix_types_generic_simple", 68}));
  EXPECT_EQ(heap.live(), 0U);
}

TEST(ScanRecords, AirtimeBaseTravelsWithItsTable) {
  harness::heap heap;
  ravix_radio_airtime_table_t *table = ravix_types_radio_airtime_table_create(2);
  EXPECT_EQ(table->airtime_base, 0U);
  EXPECT_EQ(table->data[1].txf, -1.0F);
  table->airtime_base = 17;
  EXPECT_EQ(ravix_types_radio_airtime_table_init(table, 1), 0);
  ravix_radio_airtime_table_t *clone = ravix_types_radio_airtime_table_clone(table);
  EXPECT_EQ(clone->airtime_base, 17U);
  EXPECT_EQ(clone->count, 1U);
  ravix_types_radio_airtime_table_clear(clone);
  EXPECT_EQ(clone->airtime_base, 0U);
  ravix_types_radio_airtime_table_free(clone);
  ravix_types_radio_airtime_table_free(table);
  EXPECT_EQ(heap.live(), 0U);
}

} // namespace
