// What holds for every record and table, by way of their field lists.
#include "all_records.hpp"
#include "golden.hpp"
#include "harness.hpp"
#include "record_tools.hpp"

#include "ravix_types_printers.hpp"
#include "ravix_types_steering.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <cxxabi.h>
#include <dlfcn.h>
#include <fstream>
#include <memory>
#include <set>
#include <sstream>
#include <string>
#include <type_traits>
#include <typeinfo>
#include <vector>

namespace {

using harness::difference;
using harness::for_all_records;
using harness::randomness;
using harness::sample;
using harness::variety;
using zel::ravix::for_each_field;
using zel::ravix::record;

template <class R>
concept table_type = requires {
  record<R>::init;
};

template <class R>
concept compared = requires {
  record<R>::compare;
};

template <class R> R *create() {
  if constexpr (table_type<R>) {
    return record<R>::create(0);
  } else {
    return record<R>::create();
  }
}

template <class R> std::string type_name() {
  const std::unique_ptr<char, void (*)(void *)> name(abi::__cxa_demangle(typeid(R).name(), nullptr, nullptr, nullptr),
                                                     std::free);
  return name.get();
}

constexpr unsigned seeds = 12;

int sign(int order) {
  return (order > 0) - (order < 0);
}

// ---- layout: what follows from a field list for pointers of a size, if values lie at multiples of their own size

struct extent {
  std::size_t size, alignment;
};

template <class R, class Visit> extent layout(std::size_t pointer, Visit visit);

template <class T> extent extent_of(std::size_t pointer) {
  if constexpr (std::is_pointer_v<T>) {
    return {pointer, pointer};
  } else if constexpr (harness::has_record<T>) {
    return layout<T>(pointer, [](const auto &...) {});
  } else {
    return {sizeof(T), alignof(T)};
  }
}

template <class R, class Visit> extent layout(std::size_t pointer, Visit visit) {
  const sample<R> r;
  extent all{0, 1};
  const auto round_up = [&](std::size_t to) { return (all.size + to - 1) / to * to; };
  for_each_field<R>([&](const auto &field) {
    field.members(r.value, [&](const auto &member) {
      const extent one = extent_of<std::remove_cvref_t<decltype(member)>>(pointer);
      const std::size_t offset = round_up(one.alignment);
      visit(field, r.value, member, offset);
      all = {offset + one.size, std::max(all.alignment, one.alignment)};
    });
  });
  return {round_up(all.alignment), all.alignment};
}

TEST(AllRecords, FieldListsCoverTheStructuresInOrder) {
  for_all_records([]<class R>() {
    const extent all = layout<R>(sizeof(void *), [](const auto &field, const R &r, const auto &member, auto offset) {
      const auto real = reinterpret_cast<const char *>(&member) - reinterpret_cast<const char *>(&r);
      EXPECT_EQ(static_cast<std::size_t>(real), offset) << "at " << field.name;
    });
    EXPECT_EQ(sizeof(R), all.size);
  });
}

// Size, offsets and empty values other than zero; of 64-bit and of 32-bit machines.
TEST(AllRecords, LayoutsAndEmptyValues) {
  std::ostringstream text;
  for_all_records([&]<class R>() {
    std::vector<std::size_t> narrow;
    const extent narrow_all =
        layout<R>(4, [&](const auto &, const R &, const auto &, auto at) { narrow.push_back(at); });
    std::ostringstream lines;
    const extent wide_all =
        layout<R>(8, [&, i = 0U](const auto &field, const R &, const auto &member, auto at) mutable {
          lines << "  " << at << "/" << narrow[i++] << " " << field.name;
          if constexpr (std::is_arithmetic_v<std::remove_cvref_t<decltype(member)>>) {
            member != 0 ? lines << " = " << +member << "\n" : lines << "\n";
          } else {
            lines << "\n";
          }
        });
    text << type_name<R>() << " " << wide_all.size << "/" << narrow_all.size << "\n" << lines.str();
  });
  harness::expect_golden("records", text.str());
}

TEST(AllRecords, ClearReleasesEverythingAndGivesTheStateOfANewRecord) {
  harness::heap heap;
  for_all_records([]<class R>() {
    R *fresh = create<R>();
    for (unsigned seed = 0; seed < seeds; ++seed) {
      sample<R> r(seed);
      record<R>::clear(&r.value);
      EXPECT_EQ(difference(r.value, *fresh), "");
      record<R>::clear(&r.value);
      EXPECT_EQ(difference(r.value, *fresh), "");
    }
    record<R>::free(fresh);
    record<R>::free(nullptr);
    record<R>::clear(nullptr);
  });
  EXPECT_EQ(heap.live(), 0U);
}

TEST(AllRecords, ClonesAndCopiesAreEqualShareNothingAndOutliveTheirSource) {
  harness::heap heap;
  harness::captured_log log;
  for_all_records([]<class R>() {
    for (unsigned seed = 0; seed < seeds; ++seed) {
      const sample<R> twin(seed);
      const auto source = std::make_unique<sample<R>>(seed);
      sample<R> dest(seed + 1000);
      R *clone = record<R>::clone(&source->value);
      ASSERT_NE(clone, nullptr);
      EXPECT_EQ(difference(*clone, source->value), "");
      EXPECT_EQ(record<R>::copy(&source->value, &dest.value), 0);
      EXPECT_EQ(difference(dest.value, source->value), "");
      EXPECT_EQ(record<R>::copy(&dest.value, &dest.value), 0);
      if constexpr (compared<R>) {
        EXPECT_EQ(record<R>::compare(clone, clone), 0);
        if constexpr (!harness::compares_references<R>) {
          EXPECT_EQ(record<R>::compare(clone, &source->value), 0);
        }
      }
      record<R>::clear(&source->value);
      EXPECT_EQ(difference(*clone, twin.value), "");
      EXPECT_EQ(difference(dest.value, twin.value), "");
      record<R>::free(clone);
    }
  });
  EXPECT_EQ(heap.live(), 0U);
  EXPECT_TRUE(log.take().empty());
}

TEST(AllRecords, NullArgumentsAreRefusedWithTheFirstNamedAndNothingTouched) {
  harness::captured_log log;
  for_all_records([&]<class R>() {
    sample<R> r(1);
    const sample<R> twin(1);
    // A table without a value of its own tests the source first.
    constexpr bool source_first = table_type<R> && std::tuple_size_v<decltype(record<R>::fields)> == 1;
    const auto expect = [&](int code, const char *argument) {
      EXPECT_EQ(code, -22);
      const auto lines = log.take();
      ASSERT_EQ(lines.size(), 1U);
      EXPECT_EQ(lines[0].text, std::string("Invalid pointer '") + argument + "'!");
      EXPECT_EQ(difference(r.value, twin.value), "");
    };
    expect(record<R>::copy(nullptr, &r.value), "src");
    expect(record<R>::copy(&r.value, nullptr), "dest");
    expect(record<R>::copy(nullptr, nullptr), source_first ? "src" : "dest");
    EXPECT_EQ(record<R>::clone(nullptr), nullptr);
    const auto lines = log.take();
    ASSERT_EQ(lines.size(), 1U);
    EXPECT_EQ(lines[0].text, "Invalid pointer 'old_obj'!");
    EXPECT_EQ(lines[0].function, "generic_clone");
    EXPECT_EQ(lines[0].line, 64);
    if constexpr (compared<R>) {
      EXPECT_EQ(record<R>::compare(nullptr, nullptr), 0);
      EXPECT_EQ(record<R>::compare(nullptr, &r.value), -1);
      EXPECT_EQ(record<R>::compare(&r.value, nullptr), 1);
    }
    if constexpr (table_type<R>) {
      using Entry = std::remove_reference_t<decltype(r.value.data[0])>;
      const std::remove_cv_t<Entry> entry{};
      expect(record<R>::init(nullptr, 1), "table");
      expect(record<R>::add_entry(nullptr, &entry), "table");
      expect(record<R>::add_entry(&r.value, nullptr), "entry");
      if constexpr (compared<R>) {
        expect(record<R>::contains_entry(nullptr, &entry) ? 0 : -22, "table");
        expect(record<R>::contains_entry(&r.value, nullptr) ? 0 : -22, "entry");
      }
    }
  });
}

// ---- faults

// Sites by what happened there, and operations; RAVIX_FAULT_REPORT names a file for scripts/check-faults to read.
struct fault_report {
  harness::heap heap;
  harness::captured_log log;
  std::set<std::string> operations;

  void finish() const {
    const char *path = std::getenv("RAVIX_FAULT_REPORT"); // NOLINT(concurrency-mt-unsafe)
    std::ofstream out(path != nullptr ? path : "/dev/null");
    const auto listed = [&](const char *word, const std::set<harness::heap::tag> &tags) {
      std::string lines;
      for (const auto &[file, line] : tags) {
        lines += file != "tests" ? file + " " + std::to_string(line) + "\n" : "";
        out << (file != "tests" ? word + file + " " + std::to_string(line) + "\n" : "");
      }
      return lines;
    };
    const std::string sites = listed("site ", heap.requested());
    EXPECT_EQ(sites, listed("alone ", heap.failed_only())) << "a request that was never failed alone";
    EXPECT_EQ(sites, listed("onward ", heap.failed_from())) << "one that was never failed with all that follow";
    for (const std::string &name : operations) {
      out << "operation " << name << "\n";
    }
  }
};

// Runs an operation with each of its allocations failed, alone and from there on. The operation gets a filled source
// and a filled destination and tells whether it succeeded.
template <class R, class Function, class Operation>
void sweep(fault_report &report, Function &function, Operation operation) {
  if (Dl_info info{}; dladdr(reinterpret_cast<const void *>(&function), &info) != 0 && info.dli_sname != nullptr) {
    report.operations.insert(info.dli_sname);
  }
  const char *wanted = std::getenv("RAVIX_FAULT_SEEDS"); // NOLINT(concurrency-mt-unsafe)
  const unsigned rounds = 2 * (wanted != nullptr ? static_cast<unsigned>(std::strtoul(wanted, nullptr, 10)) : 4);
  for (unsigned round = 0; round < rounds; ++round) {
    bool failed = true;
    for (std::size_t k = 1; failed; ++k) {
      SCOPED_TRACE(::testing::Message() << "request " << k << " in round " << round);
      const std::size_t before = report.heap.live();
      {
        const unsigned seed = round / 2;
        const auto kind = seed % 2 == 0 ? variety::full : variety::usual;
        const sample<R> source(seed, kind);
        const sample<R> twin(seed, kind);
        sample<R> dest(seed + 1000);
        report.log.take();
        round % 2 == 0 ? report.heap.fail_only(k) : report.heap.fail_from(k);
        const bool succeeded = operation(source.value, dest.value);
        failed = report.heap.requests() >= k;
        report.heap.fail_only(0);
        const auto lines = report.log.take();
        EXPECT_EQ(lines.empty(), !failed);
        for (const auto &line : lines) {
          EXPECT_EQ(line.name, "ravix");
          EXPECT_TRUE(line.file.starts_with("src/ravix_types_") && line.file.find('.') == std::string::npos)
              << line.file;
          EXPECT_FALSE(line.function.empty());
          EXPECT_GT(line.line, 0);
        }
        // A text that a lenient copy has lost is told by the copy's own line and nothing else.
        const bool told_only = std::all_of(lines.begin(), lines.end(), [](const harness::log_line &line) {
          return harness::copies_leniently<R> && line.function.ends_with("_entry_copy") &&
                 line.text == "No memory available!";
        });
        EXPECT_EQ(succeeded, !failed || told_only);
        EXPECT_EQ(difference(source.value, twin.value), "");
      }
      EXPECT_EQ(report.heap.live(), before);
    }
  }
}

template <class R> void sweep_record(fault_report &report) {
  const auto release = [](R *made) {
    record<R>::free(made);
    return made != nullptr;
  };
  sweep<R>(report, record<R>::create, [&](const R & /*source*/, R & /*dest*/) { return release(create<R>()); });
  sweep<R>(report, record<R>::clone, [&](const R &source, R & /*dest*/) { return release(record<R>::clone(&source)); });
  sweep<R>(report, record<R>::copy, [](const R &source, R &dest) {
    const int code = record<R>::copy(&source, &dest);
    if (code != 0) {
      EXPECT_TRUE(code == -12 || code == RAVIX_FAIL_GENERAL) << code;
      EXPECT_EQ(difference(dest, sample<R>().value), "");
    }
    return code == 0;
  });
  if constexpr (table_type<R>) {
    sweep<R>(report, record<R>::create, [&](const R &, R &) { return release(record<R>::create(3)); });
    sweep<R>(report, record<R>::init, [](const R & /*source*/, R &dest) {
      const int code = record<R>::init(&dest, 3);
      EXPECT_TRUE(code == 0 || code == -12);
      EXPECT_EQ(dest.count, code == 0 ? 3U : 0U);
      return code == 0;
    });
    sweep<R>(report, record<R>::add_entry, [](const R &source, R &dest) {
      if (source.count == 0) {
        return record<R>::init(&dest, 1) == 0; // nothing to add: an operation that may fail all the same
      }
      const std::uint32_t count = dest.count;
      const int code = record<R>::add_entry(&dest, &source.data[0]);
      EXPECT_TRUE(code == 0 || code == -12);
      EXPECT_EQ(dest.count, count + (code == 0 ? 1 : 0));
      return code == 0;
    });
  }
}

TEST(AllRecords, SurviveEveryAllocationThatFails) {
  fault_report report;
  for_all_records([&]<class R>() { sweep_record<R>(report); });
  // What has no field list.
  const auto create = [&]<class T>(T *(&function)(unsigned), void (&free)(T *)) {
    sweep<ravix_key_t>(report, function, [&](const auto & /*source*/, auto & /*dest*/) {
      T *made = function(3);
      free(made);
      return made != nullptr;
    });
  };
  const auto init = [&]<class T>(int (&function)(T *, unsigned), void (&clear)(T *)) {
    sweep<ravix_key_t>(report, function, [&](const auto & /*source*/, auto & /*dest*/) {
      T filled{};
      const int code = function(&filled, 3);
      clear(&filled);
      return code == 0;
    });
  };
  create(ravix_types_station_history_create, ravix_types_station_history_free);
  create(ravix_types_btm_candidate_table_create, ravix_types_btm_candidate_table_free);
  create(ravix_types_ap_channel_report_table_create, ravix_types_ap_channel_report_table_free);
  create(ravix_types_beacon_report_table_create, ravix_types_beacon_report_table_free);
  init(ravix_types_btm_candidate_table_init, ravix_types_btm_candidate_table_clear);
  init(ravix_types_ap_channel_report_init, ravix_types_ap_channel_report_clear);
  init(ravix_types_ap_channel_report_table_init, ravix_types_ap_channel_report_table_clear);
  report.finish();
}

// Whatever a caller writes into a record without a bad pointer: no operation crashes, leaks, or fails in silence, and
// what is printed is text.
TEST(AllRecords, StandBadValues) {
  harness::heap heap;
  harness::captured_log log;
  for_all_records([&]<class R>() {
    for (unsigned seed = 0; seed < seeds; ++seed) {
      const sample<R> bad(seed, variety::hostile);
      sample<R> other(seed + 1000);
      std::ostringstream out;
      const auto print = [&](const auto &...values) {
        if constexpr (requires { (out << ... << values); }) {
          (out << ... << values);
        }
        if constexpr (requires { print_diff(out, values..., "name", 1, true); }) {
          print_diff(out, values..., "name", 1, true);
        }
      };
      print(bad.value);
      print(bad.value, &other.value);
      print(other.value, &bad.value);
      EXPECT_EQ(out.str().find('\0'), std::string::npos);
      if constexpr (compared<R>) {
        EXPECT_EQ(record<R>::compare(&bad.value, nullptr), 1);
        record<R>::compare(&bad.value, &bad.value);
        record<R>::compare(&bad.value, &other.value);
      }
      log.take();
      R *clone = record<R>::clone(&bad.value);
      EXPECT_EQ(clone == nullptr, !log.take().empty());
      record<R>::free(clone);
      EXPECT_EQ(record<R>::copy(&bad.value, &other.value) != 0, clone == nullptr);
    }
  });
  log.take();
  EXPECT_EQ(heap.live(), 0U);
}

TEST(AllRecords, BehaveTheSameWithoutALogger) {
  harness::heap heap;
  harness::captured_log log;
  clog_host_set_enabled(0);
  for_all_records([&]<class R>() {
    sample<R> r(1);
    EXPECT_EQ(record<R>::copy(nullptr, &r.value), -22);
    EXPECT_EQ(record<R>::clone(nullptr), nullptr);
    heap.fail_from(1);
    EXPECT_EQ(create<R>(), nullptr);
    heap.fail_from(0);
  });
  clog_host_set_enabled(1);
  EXPECT_TRUE(log.take().empty());
}

TEST(AllTables, GrowByDeepCopiesAndFindWhatTheyHold) {
  harness::heap heap;
  harness::captured_log log;
  for_all_records([]<class R>() {
    if constexpr (table_type<R>) {
      for (unsigned seed = 0; seed < seeds; ++seed) {
        const sample<R> source(seed);
        sample<R> grown;
        for (std::uint32_t i = 0; i < source.value.count; ++i) {
          EXPECT_EQ(record<R>::add_entry(&grown.value, &source.value.data[i]), 0);
          EXPECT_EQ(grown.value.count, i + 1);
          if constexpr (compared<R> && !harness::compares_references<R>) {
            EXPECT_TRUE(record<R>::contains_entry(&grown.value, &source.value.data[i]));
          }
        }
        for_each_field<R>([&](const auto &field) {
          if constexpr (requires { field.data; }) {
            EXPECT_TRUE(harness::alike(field, grown.value, source.value));
          }
        });
        if (grown.value.count != 0) { // an entry of the table itself
          const std::uint32_t last = grown.value.count - 1;
          EXPECT_EQ(record<R>::add_entry(&grown.value, &grown.value.data[last]), 0);
          ASSERT_EQ(grown.value.count, source.value.count + 1);
          EXPECT_TRUE(harness::alike_values(grown.value.data[last + 1], grown.value.data[last]));
        }
        EXPECT_EQ(record<R>::init(&grown.value, 0), 0);
        EXPECT_EQ(grown.value.data, nullptr);
        EXPECT_EQ(grown.value.count, 0U);
      }
    }
  });
  EXPECT_EQ(heap.live(), 0U);
  EXPECT_TRUE(log.take().empty());
}

TEST(AllTables, NewElementsAreInTheirEmptyState) {
  for_all_records([]<class R>() {
    if constexpr (table_type<R>) {
      const std::unique_ptr<R, void (*)(R *)> table(record<R>::create(3), record<R>::free);
      using E = std::remove_reference_t<decltype(table->data[0])>;
      E empty{};
      if constexpr (harness::has_record<E>) {
        record<E>::clear(&empty);
      }
      EXPECT_EQ(table->count, 3U);
      EXPECT_TRUE(
          std::all_of(table->data, table->data + 3, [&](const E &e) { return harness::alike_values(e, empty); }));
    }
  });
}

TEST(AllTables, RefuseToGrowBeyondThe32BitCount) {
  harness::captured_log log;
  for_all_records([&]<class R>() {
    if constexpr (table_type<R>) {
      R table{};
      const std::remove_cv_t<std::remove_reference_t<decltype(table.data[0])>> entry{};
      table.count = UINT32_MAX;
      EXPECT_EQ(record<R>::add_entry(&table, &entry), -22);
      const auto size = static_cast<std::uint32_t>(sizeof table.data[0]);
      table.count = UINT32_MAX / size; // the bytes of one more wrap, unless they fit to the last
      const bool wraps = static_cast<std::uint32_t>(table.count * size + size) < size;
      if (wraps) {
        EXPECT_EQ(record<R>::add_entry(&table, &entry), -22);
      }
      const auto texts = log.take_texts();
      ASSERT_EQ(texts.size(), wraps ? 2U : 1U);
      EXPECT_EQ(texts[0], "generic_table_add_entry: Maximum number of entries reached!");
      EXPECT_EQ(texts.back(), wraps ? "generic_table_add_entry: Overflow would occur!" : texts[0]);
    }
  });
}

TEST(AllTables, ACountWithoutAnArrayCountsNothing) {
  harness::heap heap;
  for_all_records([]<class R>() {
    if constexpr (table_type<R>) {
      R hollow{};
      hollow.count = 5;
      sample<R> dest(1);
      EXPECT_EQ(record<R>::copy(&hollow, &dest.value), 0);
      EXPECT_EQ(dest.value.count, 0U);
      record<R>::clear(&hollow);
      if constexpr (compared<R>) {
        EXPECT_EQ(record<R>::compare(&hollow, &hollow), 0);
      }
      const sample<R> source(2);
      if (source.value.count != 0) {
        R grown{};
        grown.count = 0x10000000; // bytes that wrap to few, for some elements
        EXPECT_EQ(record<R>::add_entry(&grown, &source.value.data[0]), 0);
        EXPECT_EQ(grown.count, 1U);
        record<R>::clear(&grown);
      }
    }
  });
  EXPECT_EQ(heap.live(), 0U);
}

// The order that a field's type says: numbers as numbers, signed or not; 0 for what compares by other rules.
template <class Kind, class R> int natural_order(const Kind &field, const R &a, const R &b) {
  if constexpr (requires { field.empty; }) {
    return a.*field.member < b.*field.member ? -1 : a.*field.member > b.*field.member;
  } else {
    return 0;
  }
}

TEST(ComparedRecords, TheFirstFieldThatDiffersDecides) {
  const harness::captured_log log; // rules of types at random speak up when they are cleared
  for_all_records([]<class R>() {
    if constexpr (compared<R> && !table_type<R> && !harness::compares_references<R>) {
      unsigned seed = 0;
      for_each_field<R>([&](const auto &changed) {
        for (unsigned round = 0; round < 20; ++round) {
          ++seed;
          randomness random(seed * 7919);
          sample<R> a(seed);
          sample<R> b(seed);
          if constexpr (requires { record<R>::payload; }) {
            record<R>::payload.clear(b.value, "tests"); // while its tag still tells what it is
          }
          // b differs in the field, and in any field behind it.
          bool behind = false;
          for_each_field<R>([&](const auto &field) {
            const bool here = static_cast<const void *>(&field) == static_cast<const void *>(&changed);
            if (here || (behind && random.up_to(1) == 0)) {
              field.clear(b.value, "tests");
              fill(field, b.value, random);
            }
            behind = behind || here;
          });
          const int order = changed.compare(a.value, b.value);
          if (order == 0) {
            continue; // not compared, or the same by chance
          }
          EXPECT_EQ(sign(record<R>::compare(&a.value, &b.value)), sign(order)) << changed.name;
          EXPECT_EQ(sign(record<R>::compare(&b.value, &a.value)), -sign(order)) << changed.name;
          if (const int natural = natural_order(changed, a.value, b.value); natural != 0) {
            EXPECT_EQ(sign(order), natural) << changed.name;
          }
        }
      });
    }
  });
}

} // namespace
