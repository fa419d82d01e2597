// What holds for every record and table, by way of their field lists.
#include "all_records.hpp"
#include "harness.hpp"
#include "record_tools.hpp"

#include "zelcsock/clog.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <memory>
#include <string>
#include <type_traits>
#include <vector>

namespace {

using harness::difference;
using harness::for_all_records;
using harness::randomness;
using harness::sample;
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

constexpr unsigned seeds = 12;

int sign(int order) {
  return (order > 0) - (order < 0);
}

TEST(AllRecords, FieldListsCoverTheStructuresInOrder) {
  for_all_records([]<class R>() {
    const sample<R> r;
    std::size_t end = 0;
    std::size_t alignment = 1;
    const auto aligned = [&](std::size_t to) { return (end + to - 1) / to * to; };
    zel::ravix::for_each_field<R>([&](const auto &field) {
      field.members(r.value, [&](const auto &member) {
        const auto offset = static_cast<std::size_t>(reinterpret_cast<const char *>(&member) -
                                                     reinterpret_cast<const char *>(&r.value));
        EXPECT_EQ(offset, aligned(alignof(decltype(member)))) << "before " << field.name;
        end = offset + sizeof member;
        alignment = std::max(alignment, alignof(decltype(member)));
      });
    });
    EXPECT_EQ(sizeof(R), aligned(alignment));
  });
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

// Runs an operation with each of its allocations failed, alone and from there on. The operation gets a filled source
// and a filled destination and tells whether it succeeded; `check` looks at the destination after a failure.
template <class R, class Operation> void sweep(harness::heap &heap, harness::captured_log &log, Operation operation) {
  constexpr bool lenient = harness::copies_leniently<R>;
  for (const bool all : {false, true}) {
    for (unsigned seed = 0; seed < 4; ++seed) {
      std::size_t k = 0;
      bool failed = true;
      while (failed) {
        ++k;
        const std::size_t before = heap.live();
        {
          const sample<R> source(seed);
          const sample<R> twin(seed);
          sample<R> dest(seed + 1000);
          log.take();
          all ? heap.fail_from(k) : heap.fail_only(k);
          const bool succeeded = operation(source.value, dest.value);
          failed = heap.requests() >= k;
          heap.fail_only(0);
          const auto lines = log.take();
          EXPECT_EQ(lines.empty(), !failed);
          for (const auto &line : lines) {
            EXPECT_EQ(line.name, "ravix");
            EXPECT_EQ(line.file.rfind("src/ravix_types_", 0), 0U) << line.file;
            EXPECT_EQ(line.file.find('.'), std::string::npos) << line.file;
            EXPECT_FALSE(line.function.empty());
            EXPECT_GT(line.line, 0);
          }
          // A text that a lenient copy has lost is told by the copy's own line and nothing else.
          const bool told_only = lenient && std::all_of(lines.begin(), lines.end(), [](const harness::log_line &line) {
                                   return line.function.ends_with("_entry_copy") && line.text == "No memory available!";
                                 });
          EXPECT_EQ(succeeded, !failed || told_only) << "request " << k;
          EXPECT_EQ(difference(source.value, twin.value), "");
        }
        EXPECT_EQ(heap.live(), before) << "request " << k;
      }
    }
  }
}

TEST(AllRecords, SurviveEveryAllocationThatFails) {
  harness::heap heap;
  harness::captured_log log;
  for_all_records([&]<class R>() {
    const auto release = [](R *made) {
      record<R>::free(made);
      return made != nullptr;
    };
    sweep<R>(heap, log, [&](const R & /*source*/, R & /*dest*/) { return release(create<R>()); });
    sweep<R>(heap, log, [&](const R &source, R & /*dest*/) { return release(record<R>::clone(&source)); });
    sweep<R>(heap, log, [](const R &source, R &dest) {
      const int code = record<R>::copy(&source, &dest);
      if (code != 0) {
        EXPECT_TRUE(code == -12 || code == RAVIX_FAIL_GENERAL) << code;
        EXPECT_EQ(difference(dest, sample<R>().value), "");
      }
      return code == 0;
    });
    if constexpr (table_type<R>) {
      sweep<R>(heap, log, [&](const R & /*source*/, R & /*dest*/) { return release(record<R>::create(3)); });
      sweep<R>(heap, log, [](const R & /*source*/, R &dest) {
        const int code = record<R>::init(&dest, 3);
        EXPECT_TRUE(code == 0 || code == -12);
        EXPECT_EQ(dest.count, code == 0 ? 3U : 0U);
        return code == 0;
      });
      sweep<R>(heap, log, [](const R &source, R &dest) {
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
  });
  auto requested = heap.requested();
  std::erase_if(requested, [](const auto &tag) { return tag.first == "tests"; });
  EXPECT_EQ(requested, heap.failed()) << "an allocation that was never failed";
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
        zel::ravix::for_each_field<R>([&](const auto &field) {
          if constexpr (requires { field.data; }) {
            EXPECT_TRUE(harness::alike(field, grown.value, source.value));
          }
        });
        if (grown.value.count != 0) { // an entry of the table itself
          EXPECT_EQ(record<R>::add_entry(&grown.value, &grown.value.data[0]), 0);
          EXPECT_EQ(grown.value.count, source.value.count + 1);
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
      R *table = record<R>::create(3);
      ASSERT_EQ(table->count, 3U);
      using E = std::remove_reference_t<decltype(table->data[0])>;
      for (std::uint32_t i = 0; i < 3; ++i) {
        if constexpr (harness::has_record<E>) {
          EXPECT_EQ(difference(table->data[i], sample<E>().value), "");
        } else {
          EXPECT_EQ(std::memcmp(&table->data[i], std::string(sizeof(E), '\0').data(), sizeof(E)), 0);
        }
      }
      record<R>::free(table);
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
      zel::ravix::for_each_field<R>([&](const auto &changed) {
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
          zel::ravix::for_each_field<R>([&](const auto &field) {
            const bool here = static_cast<const void *>(&field) == static_cast<const void *>(&changed);
            if (here || (behind && random.once_in(2))) {
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
