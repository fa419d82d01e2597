// What holds for every record and table, by way of their field lists.
#include "golden.hpp"
#include "harness.hpp"
#include "record_tools.hpp"

#include "ravix_types_handles.hpp"
#include "ravix_types_steering.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <functional>
#include <map>
#include <set>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace {

using harness::any_sample;
using harness::randomness;
using harness::record_type;
using harness::record_types;
using harness::sign;
using harness::variety;

// Runs a check for every record, or for every table.
template <class Check> void for_each(Check check) {
  for (const record_type *type : record_types()) {
    SCOPED_TRACE(type->name);
    check(*type);
  }
}
template <class Check> void for_each_table(Check check) {
  for_each([&](const record_type &type) { type.init != nullptr ? check(type) : void(); });
}

template <class M> struct member_alone { M member; };

// A member of a structure, and the field that it is of.
struct member {
  const char *field;
  std::size_t field_offset; // of the first of its members
  std::size_t offset, size, alignment;
};

// Each begins where the one before it ends, but for what its alignment takes.
void expect_to_cover(std::size_t size, const std::vector<member> &members) {
  std::size_t end = 0, widest = 1;
  const auto aligned = [&](std::size_t alignment) { return (end + alignment - 1) / alignment * alignment; };
  std::map<std::string_view, std::size_t> begins; // of fields
  for (const member &each : members) {
    EXPECT_EQ(each.offset, aligned(each.alignment)) << "at " << each.field;
    EXPECT_EQ(each.field_offset, begins.try_emplace(each.field, each.offset).first->second) << "at " << each.field;
    widest = std::max(widest, each.alignment);
    end = each.offset + each.size;
  }
  EXPECT_EQ(size, aligned(widest));
}

TEST(AllRecords, FieldListsCoverTheStructuresInOrder) {
  harness::for_all_records([]<class R>() {
    const harness::sample<R> r;
    std::vector<member> members;
    zel::ravix::for_each_field<R>([&](const auto &field) {
      field.members(r.value, [&]<class M>(const M &value) {
        const auto offset = reinterpret_cast<std::uintptr_t>(&value) - reinterpret_cast<std::uintptr_t>(&r.value);
        members.push_back({field.name, field.offset, offset, sizeof(member_alone<M>), alignof(member_alone<M>)});
      });
    });
    expect_to_cover(sizeof(R), members);
  });
}

// ---- what harness::trial says

// Sites by what happened there, and operations; RAVIX_FAULT_REPORT names a file for scripts/check-faults to read.
void report(const harness::heap &heap, const std::set<std::string> &operations) {
  const char *path = std::getenv("RAVIX_FAULT_REPORT"); // NOLINT(concurrency-mt-unsafe)
  std::ofstream out(path != nullptr ? path : "/dev/null");
  const auto listed = [&](const char *word, std::set<harness::heap::tag> tags) {
    std::erase_if(tags, [](const auto &tag) { return tag.first == "tests"; });
    for (const auto &[file, line] : tags) {
      out << word << file << " " << line << "\n";
    }
    return tags;
  };
  const auto sites = listed("site ", heap.requested());
  EXPECT_EQ(sites, listed("alone ", heap.failed_only())) << "a request that was never failed alone";
  EXPECT_EQ(sites, listed("onward ", heap.failed_from())) << "one that was never failed with all that follow";
  for (const std::string &name : operations) {
    out << "operation " << name << "\n";
  }
}

// Fails no request, the first, the second and so on, until there is none left to fail.
template <class Run> void fail_each_request(harness::trial &trial, Run run) {
  for (const bool onward : {false, true}) {
    for (std::size_t k = 0; run(k, onward) || k == 0; ++k) {
    }
    EXPECT_EQ(std::exchange(trial.broken, ""), "");
    EXPECT_EQ(trial.heap.secrets_released(), 0U);
  }
}

// Also records with whatever a caller writes into one without a bad pointer.
TEST(AllRecords, SurviveEveryAllocationThatFails) {
  harness::trial trial;
  std::set<std::string> operations;
  const char *wanted = std::getenv("RAVIX_FAULT_SEEDS"); // NOLINT(concurrency-mt-unsafe)
  const unsigned rounds = wanted != nullptr ? static_cast<unsigned>(std::strtoul(wanted, nullptr, 10)) : 12;
  for_each([&](const record_type &type) {
    for (const std::string operation : {"_create", "_clone", "_copy", "_init", "_add_entry"}) {
      if (type.init != nullptr || operation[1] == 'c') {
        operations.insert(type.prefix + operation);
      }
    }
    for (unsigned seed = 0; seed < rounds; ++seed) {
      for (const variety kind : {variety::usual, variety::full, variety::hostile}) {
        fail_each_request(trial, [&](std::size_t k, bool onward) {
          return trial.run(type, randomness(seed, kind), randomness(seed + 1000), k, onward);
        });
      }
    }
  });
  // What has no field list.
  const auto initialise = []<class T>(int (&init)(T *, unsigned), void (&clear)(T *)) {
    T list{};
    const int code = init(&list, 3);
    clear(&list);
    return code == 0;
  };
  const std::pair<std::string, std::function<bool()>> others[] = {
      {"station_history_create", [] { return ravix::create<ravix_station_history_t>(3) != nullptr; }},
      {"btm_candidate_table_create", [] { return ravix::create<ravix_btm_candidate_table_t>(3) != nullptr; }},
      {"ap_channel_report_table_create", [] { return ravix::create<ravix_ap_channel_report_table_t>(3) != nullptr; }},
      {"beacon_report_table_create", [] { return ravix::create<ravix_beacon_report_table_t>(3) != nullptr; }},
      {"btm_candidate_table_init",
       [&] { return initialise(ravix_types_btm_candidate_table_init, ravix_types_btm_candidate_table_clear); }},
      {"ap_channel_report_init",
       [&] { return initialise(ravix_types_ap_channel_report_init, ravix_types_ap_channel_report_clear); }},
      {"ap_channel_report_table_init",
       [&] { return initialise(ravix_types_ap_channel_report_table_init, ravix_types_ap_channel_report_table_clear); }},
  };
  for (const auto &[name, operation] : others) {
    operations.insert("ravix_types_" + name);
    fail_each_request(trial, [&, &run = operation](std::size_t k, bool onward) { return trial.run(run, k, onward); });
  }
  EXPECT_EQ(trial.heap.live(), 0U);
  report(trial.heap, operations);
}

// ---- arguments

// Also when there is no logger to tell.
TEST(AllRecords, NullArgumentsAreRefusedWithTheFirstNamedAndNothingTouched) {
  harness::heap heap;
  harness::captured_log log;
  const auto check = [&](const record_type &type, bool is_logged) {
    const any_sample r(type, 1), twin(type, 1);
    clog_host_set_enabled(is_logged ? 1 : 0);
    const auto expect = [&](const std::string &operation, bool is_refused, const std::string &argument) {
      EXPECT_TRUE(is_refused);
      const std::string place = operation == "clone" ? type.source + ":64 generic_clone" : type.site(operation);
      EXPECT_EQ(harness::logged(log),
                is_logged ? "\n    ravix " + place + ": Invalid pointer '" + argument + "'!" : "");
      EXPECT_EQ(type.difference(r, twin), "");
    };
    // A table without a value of its own tests the source first.
    const bool source_first = type.init != nullptr && type.fields.size() == 1;
    expect("copy", type.copy(nullptr, r) == -22, "src");
    expect("copy", type.copy(r, nullptr) == -22, "dest");
    expect("copy", type.copy(nullptr, nullptr) == -22, source_first ? "src" : "dest");
    expect("clone", type.clone(nullptr) == nullptr, "old_obj");
    type.free(nullptr);
    type.clear(nullptr);
    if (type.compare != nullptr) {
      EXPECT_EQ(type.compare(nullptr, nullptr), 0);
      EXPECT_EQ(type.compare(nullptr, r), -1);
      EXPECT_EQ(type.compare(r, nullptr), 1);
    }
    if (type.init != nullptr) {
      const std::vector<std::byte> entry(type.element_size);
      expect("init", type.init(nullptr, 1) == -22, "table");
      expect("add_entry", type.add_entry(nullptr, entry.data()) == -22, "table");
      expect("add_entry", type.add_entry(r, nullptr) == -22, "entry");
      if (type.contains_entry != nullptr) {
        expect("contains_entry", !type.contains_entry(nullptr, entry.data()), "table");
        expect("contains_entry", !type.contains_entry(r, nullptr), "entry");
      }
    }
    heap.fail_from(1);
    EXPECT_EQ(type.create(0), nullptr);
    EXPECT_NE(log.take().empty(), is_logged);
    heap.fail_from(0);
    clog_host_set_enabled(1);
  };
  for_each([&](const record_type &type) {
    check(type, true);
    check(type, false);
  });
}

// ---- tables

TEST(AllTables, RefuseToGrowBeyondThe32BitCount) {
  harness::captured_log log;
  for_each_table([&](const record_type &type) {
    const any_sample table(type);
    const std::vector<std::byte> entry(type.element_size);
    const auto expect_refusal = [&](std::size_t count, const std::string &reason) {
      *type.count(table) = static_cast<std::uint32_t>(count);
      EXPECT_EQ(type.add_entry(table, entry.data()), -22);
      EXPECT_EQ(harness::logged(log), "\n    ravix " + type.site("add_entry") + ": " + reason);
    };
    expect_refusal(UINT32_MAX, "Maximum number of entries reached!");
    expect_refusal(UINT32_MAX / type.element_size, "Overflow would occur!"); // the bytes of one more wrap
  });
}

TEST(AllTables, ACountWithoutAnArrayCountsNothing) {
  harness::heap heap;
  for_each_table([&](const record_type &type) {
    const any_sample hollow(type), none(type), dest(type, 1), source(type, randomness(2, variety::full));
    *type.count(hollow) = 5;
    EXPECT_EQ(type.copy(hollow, dest), 0);
    EXPECT_EQ(*type.count(dest), 0U);
    EXPECT_EQ(type.copy(hollow, hollow), 0);
    type.clear(hollow);
    EXPECT_EQ(*type.count(hollow), 5U);
    EXPECT_TRUE(type.copy(none, hollow) == 0 && *type.count(hollow) == 0);
    *type.count(hollow) = 5;
    EXPECT_TRUE(type.init(hollow, 0) == 0 && *type.count(hollow) == 0);
    ASSERT_NE(*type.count(source), 0U);
    if (type.compare != nullptr) {
      *type.count(hollow) = *type.count(source);
      EXPECT_EQ(type.compare(hollow, source), -1);
      EXPECT_EQ(type.compare(source, hollow), 1);
    }
    *type.count(hollow) = 5;
    EXPECT_EQ(type.add_entry(hollow, type.data(source)), 0);
    EXPECT_EQ(*type.count(hollow), 1U);
    EXPECT_EQ(heap.size_of(type.data(hollow)), type.element_size);
  });
  EXPECT_EQ(heap.live(), 0U);
}

// ---- comparisons

TEST(ComparedRecords, TheFirstFieldThatDiffersDecides) {
  const harness::captured_log log; // rules of types at random speak up when they are cleared
  for_each([](const record_type &type) {
    if (type.compare == nullptr || type.compares_references) {
      return;
    }
    for (unsigned seed = 0; seed < 3; ++seed) {
      randomness random(seed);
      const any_sample a(type);
      type.fill(a, random);
      for (std::size_t same = 0; same <= random.choices(); ++same) {
        const any_sample b(type, randomness(seed, same));
        const int order = type.order(a, b, false);
        EXPECT_EQ(sign(type.compare(a, b)), sign(order)) << type.difference(a, b);
        EXPECT_EQ(sign(type.compare(b, a)), -sign(order)) << type.difference(a, b);
      }
    }
  });
}

} // namespace
