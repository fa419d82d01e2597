// Common values and tables, and the scan records built of them: rules of single records, and the log lines of failures
// through several levels.
#include "golden.hpp"
#include "harness.hpp"
#include "record_tools.hpp"
#include "specimens.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <set>
#include <sstream>
#include <string>

namespace {

using harness::sign;
using zel::ravix::operations;

TEST(Handles, OwnCopyAndListWhatTheyHold) {
  static_assert(sizeof(ravix::handle<ravix_ssid_table_t>) == sizeof(void *));
  const harness::heap heap;
  const std::size_t before = heap.live();
  {
    const auto names = ravix::create<ravix_ssid_table_t>();
    const ravix_ssid_t guest{5, "guest"}, too_long{RAVIX_MAX_SSID_LEN + 1, ""};
    EXPECT_EQ(ravix::add(*names, guest), 0);
    EXPECT_EQ(ravix::add(*names, too_long), -22);
    EXPECT_EQ(ravix::add(*names, names->data[0]), 0) << "an element of the table itself";
    EXPECT_EQ(ravix::add(*names, names->data[1]), 0) << "and not its first";
    const auto copied = ravix::clone(*names);
    ravix_types_ssid_clear(&names->data[1]);
    EXPECT_EQ(ravix::entries(*names).size(), 3U);
    std::string seen;
    for (const ravix_ssid_t &name : ravix::entries(*copied)) {
      seen += ravix_str_ssid(&name, true);
    }
    EXPECT_EQ(seen, "'guest' (len=5)'guest' (len=5)'guest' (len=5)");
    EXPECT_GT(ravix::compare(*copied, *names), 0);
    EXPECT_EQ(ravix::copy(*names, *copied), 0);
    EXPECT_EQ(ravix::compare(*copied, *names), 0);
    EXPECT_EQ(ravix::create<ravix_station_history_t>(3)->table.count, 3U);
    const ravix_ssid_table_t hollow{7, nullptr};
    EXPECT_TRUE(ravix::entries(hollow).empty()) << "a count without an array";
  }
  EXPECT_EQ(heap.live(), before);
}

TEST(CommonValues, CopiesOfTextsEndAndHaveNothingBehindTheirEnd) {
  int texts = 0;
  harness::for_all_records([&]<class R>() {
    zel::ravix::for_each_field<R>([&](const auto &field) {
      if constexpr (requires(const R &r) { field.view(r); }) {
        ++texts;
        for (const std::size_t length : {std::size_t{0}, field.size - 2, field.size - 1, field.size}) {
          harness::sample<R> src(1);
          harness::sample<R> dest(2);
          field.members(src.value, [&](auto &text) {
            std::memset(text, 0, field.size);
            text[field.size - 1] = 'x'; // behind the terminator of shorter ones
            std::memset(text, 'x', length);
          });
          field.members(dest.value, [&](auto &text) { std::memset(text, '#', field.size); });
          EXPECT_EQ(operations<R>::copy(&src.value, &dest.value), 0);
          const std::size_t kept = std::min(length, field.size - 1);
          field.members(dest.value, [&](auto &text) {
            EXPECT_EQ(std::string(text, field.size), std::string(kept, 'x').append(field.size - kept, '\0'));
          });
          if constexpr (requires { operations<R>::compare; }) {
            EXPECT_EQ(sign(operations<R>::compare(&src.value, &dest.value)), kept == field.size - 1 ? 1 : 0)
                << field.name;
          }
        }
      }
    });
  });
  EXPECT_GE(texts, 8);
  const ravix_ssid_t longer{5, "guests"}, trimmed{5, "guest"};
  harness::sample<ravix_ssid_t> dest(1);
  EXPECT_EQ(ravix_types_ssid_copy(&longer, &dest.value), 0);
  EXPECT_EQ(std::memcmp(&dest.value, &trimmed, sizeof trimmed), 0);
}

// The golden file has records by their octets.
TEST(CommonValues, CompareAsWritten) {
  harness::expect_answers("common_orders", [&](const std::string &call) {
    std::istringstream words(call);
    std::string name;
    words >> name;
    const harness::record_type &type = **std::ranges::find(harness::record_types(), name, &harness::record_type::name);
    const harness::any_sample a(type), b(type);
    for (void *record : {static_cast<void *>(a), static_cast<void *>(b)}) {
      auto *octet = static_cast<std::uint8_t *>(record);
      for (unsigned number = 0; words >> number; ++octet) {
        *octet = static_cast<std::uint8_t>(number);
      }
      words.clear();
      words.ignore(); // the bar
    }
    return std::to_string(sign(type.compare(a, b))) + ", " + std::to_string(sign(type.compare(b, a)));
  });
}

TEST(CommonValues, TlvsCompareByTheirReferences) {
  constexpr std::uint8_t length = sizeof(void *); // the first octets of two references may agree
  std::uint8_t octets[length] = {1, 2, 3};
  std::uint8_t same[length] = {1, 2, 3};
  const ravix_tlv_t a{1, length, octets}, hollow{1, length, nullptr}, longest{1, 255, octets};
  const auto order = [](const ravix_tlv_t &x, const ravix_tlv_t &y) { return sign(ravix_types_tlv_compare(&x, &y)); };
  EXPECT_EQ(order(a, {1, length, octets}), 0);
  EXPECT_NE(order(a, {1, length, same}), 0);
  EXPECT_EQ(order(a, {2, 0, nullptr}), -1);
  EXPECT_EQ(order(a, {1, 2, octets}), 1);
  EXPECT_EQ(order(a, hollow), 1);
  EXPECT_EQ(order(hollow, a), -1);
  EXPECT_EQ(order(hollow, hollow), 0);
  EXPECT_EQ(order(longest, longest), 0) << "more octets than a reference has";
  const harness::heap heap;
  harness::sample<ravix_tlv_t> copy(1);
  EXPECT_EQ(ravix_types_tlv_copy(&a, &copy.value), 0);
  EXPECT_EQ(heap.size_of(copy.value.value), length);
  EXPECT_EQ(ravix_types_tlv_copy(&hollow, &copy.value), 0);
  EXPECT_EQ(copy.value.len, 0) << "a count without octets";
}

// Entries that begin as those of the table, to any extent.
TEST(CommonTables, FindWhatIsEqualToAnEntry) {
  for (const harness::record_type *type : harness::record_types()) {
    if (type->contains_entry == nullptr || type->compares_references) {
      continue;
    }
    const harness::any_sample table(*type, 1);
    for (std::size_t same = 0; same < 500; ++same) {
      const harness::any_sample other(*type, harness::randomness(1, same));
      for (std::uint32_t i = 0; i < *type->count(other); ++i) {
        bool is_there = false;
        for (std::uint32_t k = 0; k < *type->count(table); ++k) {
          is_there = is_there || type->order_elements(type->at(table, k), type->at(other, i), false) == 0;
        }
        EXPECT_EQ(type->contains_entry(table, type->at(other, i)), is_there) << type->name << ", " << same;
      }
    }
  }
}

TEST(ScanRecords, ANewTableKeepsItsAirtimeBase) {
  harness::sample<ravix_radio_airtime_table_t> table;
  table.value.airtime_base = 17;
  EXPECT_EQ(ravix_types_radio_airtime_table_init(&table.value, 1), 0);
  EXPECT_EQ(table.value.airtime_base, 17U);
}

// Copies that are refused, and operations of which one request for memory fails.
TEST(Failures, EveryLevelLogsItsOwnLineInnermostFirst) {
  harness::heap heap;
  harness::captured_log log;
  harness::golden_sections golden;
  const auto add = [&](const char *title, std::size_t failing, auto operation) {
    heap.fail_only(failing);
    const int result = operation();
    heap.fail_only(0);
    golden.add(title, std::to_string(result) + harness::logged(log));
  };
  const auto add_copy = [&]<class R>(const char *title, std::size_t failing, const R &source) {
    harness::sample<R> dest(1);
    add(title, failing, [&] { return operations<R>::copy(&source, &dest.value); });
  };
  harness::sample<ravix_get_scan_results_response_t> response;
  response.value.scan_results = ravix_types_scan_results_create();
  ravix_scan_table_t &networks = response.value.scan_results->scan_table;
  ASSERT_EQ(ravix_types_scan_table_init(&networks, 2), 0);
  networks.data[1].ssid.len = RAVIX_MAX_SSID_LEN + 1;
  add_copy("a response with an SSID too long", 0, response.value);
  add_copy("its table", 0, networks);
  harness::sample<ravix_scan_table_t> table;
  table.value.count = 5; // of an array that is not there
  add("its entry added to another", 0,
      [&] { return ravix_types_scan_table_add_entry(&table.value, &networks.data[1]); });
  EXPECT_EQ(table.value.count, 0U);
  ravix_key_t key{RAVIX_MAX_KEY_LEN + 1, ""};
  add_copy("a key too long", 0, key);
  key.len = RAVIX_MAX_KEY_LEN;
  add_copy("as long as can be", 0, key);
  add("no memory for a key", 1, [] { return ravix_types_key_create() != nullptr; });
  add("no memory for a table", 1, [] { return ravix_types_ssid_table_create(0) != nullptr; });
  add("no memory for an array", 2, [] { return ravix_types_ssid_table_create(1) != nullptr; });
  add_copy("an element", 2, element_table);
  add_copy("a list of a finished scan", 2, scan_finished);
  add_copy("the text of a client", 2, remote_client_table);
  add_copy("a text of the settings", 1, device_settings);
  add_copy("a text of a table of the settings", 3, device_settings);
  add_copy("the servers of a role", 1, home_network);
  add_copy("the configuration of a role", 3, home_network);
  add_copy("a table of the configuration of a role", 4, home_network);
  add_copy("a table of a record of a state", 4, home_state);
  golden.expect("common_failures");
  std::set<std::string> sources; // of all requests
  for (const auto &[source, line] : heap.requested()) {
    sources.insert(std::string(source) + (source.ends_with("simple") ? ":" + std::to_string(line) : ""));
  }
  EXPECT_EQ(sources, (std::set<std::string>{"src/ravix_types_cfg", "src/ravix_types_common",
                                            "src/ravix_types_generic_simple:35", "src/ravix_types_generic_simple:68",
                                            "src/ravix_types_generic_table", "src/ravix_types_sta", "tests"}));
}

} // namespace
