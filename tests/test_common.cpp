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
#include <iterator>
#include <numeric>
#include <set>
#include <sstream>
#include <string>
#include <vector>

namespace {

using harness::sign;
using zel::ravix::operations;

template <auto Member> void expect_ended(const zel::ravix::bounded_text<Member> & /*field*/) {
  using R = zel::ravix::record_of<Member>;
  constexpr std::size_t N = sizeof(R{}.*Member);
  for (const std::size_t length : {std::size_t{0}, N - 2, N - 1, N}) {
    harness::sample<R> src(1);
    harness::sample<R> dest(2);
    char(&text)[N] = src.value.*Member;
    std::memset(text, 0, N);
    text[N - 1] = 'x'; // behind the terminator of shorter ones
    std::memset(text, 'x', length);
    std::memset(dest.value.*Member, '#', N);
    EXPECT_EQ(operations<R>::copy(&src.value, &dest.value), 0);
    const std::size_t kept = std::min(length, N - 1);
    EXPECT_EQ(std::string(dest.value.*Member, N), std::string(kept, 'x') + std::string(N - kept, '\0'));
    if constexpr (requires { operations<R>::compare; }) {
      EXPECT_EQ(sign(operations<R>::compare(&src.value, &dest.value)), length >= N - 1 ? 1 : 0)
          << "the last one counts";
    }
  }
}

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
    const auto copied = ravix::clone(*names);
    ravix_types_ssid_clear(&names->data[1]);
    EXPECT_EQ(ravix::entries(*names).size(), 2U);
    std::string seen;
    for (const ravix_ssid_t &name : ravix::entries(*copied)) {
      seen += ravix_str_ssid(&name, true);
    }
    EXPECT_EQ(seen, "'guest' (len=5)'guest' (len=5)");
    EXPECT_GT(ravix::compare(*copied, *names), 0);
    EXPECT_EQ(ravix::copy(*names, *copied), 0);
    EXPECT_EQ(ravix::compare(*copied, *names), 0);
    EXPECT_EQ(ravix::create<ravix_station_history_t>(3)->table.count, 3U);
    const ravix_ssid_table_t hollow{7, nullptr};
    EXPECT_TRUE(ravix::entries(hollow).empty()) << "a count without an array";
  }
  EXPECT_EQ(heap.live(), before);
}

TEST(CommonValues, CopiesOfBoundedTextsAlwaysEnd) {
  int texts = 0;
  harness::for_all_records([&]<class R>() {
    zel::ravix::for_each_field<R>([&](const auto &field) {
      if constexpr (requires { expect_ended(field); }) {
        expect_ended(field);
        ++texts;
      }
    });
  });
  EXPECT_GE(texts, 8);
}

TEST(CommonValues, CopiesOfNamesAndKeysHaveNothingBehindTheirEnd) {
  const auto octets_of_copy = []<class T>(const T &src) {
    harness::sample<T> dest(1);
    EXPECT_EQ(operations<T>::copy(&src, &dest.value), 0);
    return std::string(reinterpret_cast<const char *>(&dest.value), sizeof(T));
  };
  EXPECT_EQ(octets_of_copy(ravix_ssid_t{2, "guest"}), std::string("\2gu").append(sizeof(ravix_ssid_t) - 3, '\0'));
  EXPECT_EQ(octets_of_copy(ravix_key_t{2, "guest"}), std::string("\2gu").append(sizeof(ravix_key_t) - 3, '\0'));
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
    harness::randomness random(1);
    const harness::any_sample table(*type);
    type->fill(table, random);
    for (std::size_t same = 0; same <= random.choices(); ++same) {
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

TEST(Failures, EveryLevelLogsItsOwnLineInnermostFirst) {
  harness::heap heap;
  harness::captured_log log;
  harness::golden_sections golden;
  const auto add = [&](const char *title, int result) {
    golden.add(title, std::to_string(result) + harness::logged(log));
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
    add("its table to itself", ravix_types_scan_table_copy(&networks, &networks));
    add("its table", ravix_types_scan_table_copy(&networks, &table.value));
    table.value.count = 5; // of an array that is not there
    add("its entry added to another", ravix_types_scan_table_add_entry(&table.value, &networks.data[1]));
    EXPECT_EQ(table.value.count, 0U);
  }
  const auto add_lengths = [&]<class T>(T source, std::uint8_t most) {
    harness::sample<T> dest;
    source.len = static_cast<std::uint8_t>(most + 1);
    add("too long", operations<T>::copy(&source, &dest.value));
    source.len = most;
    add("as long as can be", operations<T>::copy(&source, &dest.value));
  };
  add_lengths(ravix_key_t{}, RAVIX_MAX_KEY_LEN);
  add_lengths(ravix_ssid_t{}, RAVIX_MAX_SSID_LEN);
  const ravix_key_t key{};
  heap.fail_from(1);
  add("no memory for a key", ravix_types_key_create() != nullptr);
  add("no memory for a clone", ravix_types_key_clone(&key) != nullptr);
  add("no memory for a table", ravix_types_ssid_table_create(0) != nullptr);
  heap.fail_only(2);
  add("no memory for an array", ravix_types_ssid_table_create(1) != nullptr);
  const char *const text = "text";
  ravix_string_table_t texts{};
  heap.fail_only(2);
  add("no memory for a text", ravix_types_string_table_add_entry(&texts, &text));
  ravix_types_string_table_clear(&texts);
  golden.expect("common_failures");
  EXPECT_TRUE(heap.requested().contains({"src/ravix_types_generic_simple", 35}));
  EXPECT_TRUE(heap.requested().contains({"src/ravix_types_generic_simple", 68}));
  EXPECT_EQ(heap.live(), 0U);
}

// Copies of specimens of which one request after the other fails: the result, what they have, and each level's line.
TEST(Failures, OfCopiesAreToldInnermostFirst) {
  harness::heap heap;
  harness::captured_log log;
  harness::golden_sections sections;
  const auto add = [&]<class R>(const char *name, const R &specimen) {
    std::vector<std::string> outcomes;
    for (std::size_t k = 1;; ++k) {
      harness::sample<R> copied(1);
      log.take();
      heap.fail_only(k);
      const int code = operations<R>::copy(&specimen, &copied.value);
      const bool is_reached = heap.requests() >= k;
      heap.fail_only(0);
      const bool is_empty = harness::difference(copied.value, harness::sample<R>().value).empty();
      const std::string outcome = std::to_string(code) + (is_empty ? ", empty" : ", not empty") + harness::logged(log);
      if (!is_reached) {
        EXPECT_EQ(outcome, "0, not empty");
        break;
      }
      if (std::ranges::find(outcomes, outcome) == outcomes.end()) {
        outcomes.push_back(outcome);
      }
    }
    sections.add(name, std::accumulate(std::next(outcomes.begin()), outcomes.end(), outcomes[0],
                                       [](const auto &all, const auto &one) { return all + '\n' + one; }));
  };
  add("element_table", element_table);
  add("scan_finished", scan_finished);
  add("radio_airtime", radio_airtime);
  add("remote_client_table", remote_client_table);
  add("device_settings", device_settings);
  add("home_network", home_network);
  add("home_state", home_state);
  sections.expect("copy_failures");
  std::set<std::string> sources; // of all requests
  std::ranges::for_each(heap.requested(), [&](const auto &tag) { sources.emplace(tag.first); });
  EXPECT_EQ(sources,
            (std::set<std::string>{"src/ravix_types_cfg", "src/ravix_types_common", "src/ravix_types_generic_simple",
                                   "src/ravix_types_generic_table", "src/ravix_types_sta", "tests"}));
}

} // namespace
