// What is special in the station and steering records; what holds for every record is tested by its field list.
#include "harness.hpp"
#include "record_tools.hpp"

#include "ravix_types_sta_fields.hpp"
#include "ravix_types_steering.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string>
#include <vector>

namespace {

using zel::ravix::record;
using texts = std::vector<std::string>;

template <class T> bool is_zero(const T &value) {
  const auto *octets = reinterpret_cast<const unsigned char *>(&value);
  return std::all_of(octets, octets + sizeof value, [](unsigned char octet) { return octet == 0; });
}

// The two records whose copy tells of a lost address text in the log only; a table's copy goes on behind such an entry.
template <class R, class Table> void lose_address_texts(char *R::*address, const std::string &copy_name) {
  harness::heap heap;
  {
    harness::captured_log log;
    char first[] = "02:00:00:00:00:01";
    char second[] = "02:00:00:00:00:02";
    harness::sample<Table> all;
    harness::sample<Table> copy;
    R source{};
    source.security = 6;
    for (char *each : {first, second, first}) {
      source.*address = each;
      ASSERT_EQ(record<Table>::add_entry(&all.value, &source), 0);
    }
    heap.fail_only(3); // the array and the first text succeed
    EXPECT_EQ(record<Table>::copy(&all.value, &copy.value), 0);
    const auto lines = log.take();
    ASSERT_EQ(lines.size(), 1U);
    EXPECT_EQ(lines[0].file + " " + lines[0].function + ": " + lines[0].text,
              "src/ravix_types_sta " + copy_name + ": No memory available!");
    EXPECT_EQ(heap.failed_only(), (std::set<harness::heap::tag>{{lines[0].file, lines[0].line}}));
    ASSERT_EQ(copy.value.count, 3U);
    EXPECT_EQ(harness::difference(copy.value.data[0], all.value.data[0]), "");
    EXPECT_EQ(harness::difference(copy.value.data[1], harness::sample<R>().value), "");
    EXPECT_EQ(harness::difference(copy.value.data[2], all.value.data[2]), "");

    heap.fail_only(2); // the clone succeeds, its text does not
    R *clone = record<R>::clone(&source);
    ASSERT_NE(clone, nullptr);
    EXPECT_EQ(harness::difference(*clone, harness::sample<R>().value), "");
    record<R>::free(clone);
    EXPECT_EQ(log.take_texts(), texts{copy_name + ": No memory available!"});
  }
  EXPECT_EQ(heap.live(), 0U);
}

TEST(RemoteStations, ALostAddressTextLeavesAnEmptyRecordAndSuccess) {
  lose_address_texts<ravix_remote_client_entry_t, ravix_remote_client_table_t>(
      &ravix_remote_client_entry_t::parent_nexus_device_address, "ravix_types_remote_client_entry_copy");
  lose_address_texts<ravix_remote_ap_entry_t, ravix_remote_ap_table_t>(&ravix_remote_ap_entry_t::nexus_device_address,
                                                                       "ravix_types_remote_ap_entry_copy");
}

TEST(StationHistory, HoldsAsManyEmptyEntriesAsItsCapacity) {
  harness::heap heap;
  harness::captured_log log;
  for (const unsigned capacity : {0U, 1U, 20U}) {
    ravix_station_history_t *history = ravix_types_station_history_create(capacity);
    ASSERT_NE(history, nullptr);
    EXPECT_EQ(history->used + history->next, 0U);
    EXPECT_EQ(history->table.count, capacity);
    EXPECT_EQ(history->table.data == nullptr, capacity == 0);
    EXPECT_TRUE(capacity == 0 || history->table.data[capacity - 1].time_connect == INT64_MAX);
    ravix_types_station_history_free(history);
  }
  ravix_types_station_history_free(nullptr);
  const std::string create = "ravix_types_station_history_create: ";
  for (const std::size_t k : {1U, 2U}) {
    heap.fail_only(k);
    EXPECT_EQ(ravix_types_station_history_create(3), nullptr);
  }
  EXPECT_EQ(log.take_texts(), (texts{create + "No memory available!", "generic_table_init: No memory available!",
                                     create + "Init error!"}));
  EXPECT_EQ(heap.live(), 0U);
}

// ---- steering

template <class T> using init_function = int (*)(T *, unsigned);

// Makes, fills and releases a list. `target` is its name in the message for a null one.
template <class T>
void use_list(const std::string &name, const std::string &target, T *(*create)(unsigned), init_function<T> init,
              void (*clear)(T *), void (*free)(T *)) {
  SCOPED_TRACE(name);
  harness::heap heap;
  harness::captured_log log;
  const auto holds = [](const T *list, unsigned count) {
    return list != nullptr && list->count == count && (list->data == nullptr) == (count == 0) &&
           std::all_of(list->data, list->data + count, [](const auto &element) { return is_zero(element); });
  };
  const std::string no_memory = ": No memory available!";
  T *list = create(3);
  ASSERT_TRUE(holds(list, 3));
  clear(list);
  EXPECT_TRUE(holds(list, 0));
  if (init != nullptr) {
    for (const unsigned count : {2U, 5U, 0U, 4U}) { // what it held is released
      EXPECT_EQ(init(list, count), 0);
      EXPECT_TRUE(holds(list, count));
    }
    heap.fail_only(1);
    EXPECT_EQ(init(list, 4), -12);
    EXPECT_TRUE(holds(list, 0));
    EXPECT_EQ(init(nullptr, 1), -22);
    EXPECT_EQ(log.take_texts(), (texts{name + "_init" + no_memory, name + "_init: Invalid pointer '" + target + "'!"}));
  }
  free(list);
  clear(nullptr);
  free(nullptr);
  list = create(0);
  EXPECT_TRUE(holds(list, 0));
  free(list);

  heap.fail_only(1);
  EXPECT_EQ(create(3), nullptr);
  heap.fail_only(2);
  EXPECT_EQ(create(3), nullptr);
  texts told{name + "_create" + no_memory, name + (init != nullptr ? "_init" : "_create") + no_memory};
  if (init != nullptr) {
    told.push_back(name + "_create: Init error!");
  }
  EXPECT_EQ(log.take_texts(), told);
  EXPECT_EQ(heap.live(), 0U);
  for (const auto &tag : heap.requested()) {
    EXPECT_EQ(tag.first, "src/ravix_types_steering");
  }
}

TEST(Steering, ListsAreMadeFilledAndReleased) {
  use_list("ravix_types_btm_candidate_table", "candidate_table", ravix_types_btm_candidate_table_create,
           ravix_types_btm_candidate_table_init, ravix_types_btm_candidate_table_clear,
           ravix_types_btm_candidate_table_free);
  use_list("ravix_types_ap_channel_report_table", "table", ravix_types_ap_channel_report_table_create,
           ravix_types_ap_channel_report_table_init, ravix_types_ap_channel_report_table_clear,
           ravix_types_ap_channel_report_table_free);
  use_list("ravix_types_beacon_report_table", "table", ravix_types_beacon_report_table_create,
           init_function<ravix_beacon_report_table_t>{}, ravix_types_beacon_report_table_clear,
           ravix_types_beacon_report_table_free);
}

TEST(Steering, AChannelReportCountsItsOperatingClassToo) {
  const std::string init = "ravix_types_ap_channel_report_init: ";
  harness::heap heap;
  harness::captured_log log;
  ravix_ap_channel_report_t report{};
  for (const auto &[channels, code] :
       {std::pair{0U, 0}, {3U, 0}, {254U, 0}, {255U, -22}, {2U, 0}, {UINT32_MAX, -22}, {1U, 0}, {5U, -12}}) {
    SCOPED_TRACE(channels);
    report.operating_class = 115;
    heap.fail_only(code == -12 ? 1 : 0);
    EXPECT_EQ(ravix_types_ap_channel_report_init(&report, channels), code);
    const unsigned held = code == 0 ? channels : 0;
    EXPECT_EQ(report.length, held + 1);
    EXPECT_EQ(report.operating_class, 0);
    EXPECT_EQ(report.channels == nullptr, held == 0);
    EXPECT_TRUE(std::all_of(report.channels, report.channels + held, [](auto channel) { return channel == 0; }));
    EXPECT_EQ(heap.live(), held == 0 ? 0U : 1U);
  }
  EXPECT_EQ(ravix_types_ap_channel_report_init(nullptr, 5), -22);
  EXPECT_EQ(log.take_texts(),
            (texts{init + "Maximum number of entries reached!", init + "Maximum number of entries reached!",
                   init + "No memory available!", init + "Invalid pointer 'ap_channel_report'!"}));
  ravix_types_ap_channel_report_clear(nullptr);
}

TEST(Steering, ARequestGivesUpItsListsAndKeepsItsPlainValues) {
  harness::heap heap;
  const auto zeroed = [](std::size_t size) { return slab_dcalloc(1, size, "tests", __LINE__); };
  ravix_beacon_report_rrm_req_params_t request;
  std::memset(&request, 0x5A, offsetof(ravix_beacon_report_rrm_req_params_t, request_count));
  request.request_count = 3;
  request.request_ids = static_cast<std::uint8_t *>(zeroed(3));
  request.ap_channel_reports = {};
  ASSERT_EQ(ravix_types_ap_channel_report_table_init(&request.ap_channel_reports, 2), 0);
  ASSERT_EQ(ravix_types_ap_channel_report_init(&request.ap_channel_reports.data[1], 4), 0);
  request.subelement_count = 2;
  request.subelements =
      static_cast<ravix_beacon_report_subelement_t *>(zeroed(2 * sizeof(ravix_beacon_report_subelement_t)));
  request.subelements[1] = {6, static_cast<std::uint8_t *>(zeroed(6))};
  EXPECT_EQ(heap.live(), 5U);
  const ravix_beacon_report_rrm_req_params_t before = request;
  for (int times = 0; times < 2; ++times) {
    ravix_types_beacon_report_rrm_req_params_clear(&request);
    EXPECT_EQ(heap.live(), 0U);
    EXPECT_EQ(request.request_count + request.ap_channel_reports.count + request.subelement_count, 0U);
    EXPECT_TRUE(request.request_ids == nullptr && request.ap_channel_reports.data == nullptr &&
                request.subelements == nullptr);
    EXPECT_EQ(std::memcmp(&request, &before, offsetof(ravix_beacon_report_rrm_req_params_t, request_count)), 0);
  }
  ravix_types_beacon_report_rrm_req_params_clear(nullptr);
}

} // namespace
