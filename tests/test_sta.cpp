// What is special in the station and steering records; what holds for every record is tested by its field list.
#include "harness.hpp"

#include "ravix_types_sta_fields.hpp"
#include "ravix_types_steering.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <set>
#include <string>
#include <vector>

namespace {

using zel::ravix::record;
using texts = std::vector<std::string>;

// An object on the stack that is cleared when the test is done with it.
template <class T, void (*Clear)(T *)> struct local {
  T value{};
  ~local() { Clear(&value); }
};

template <class T> bool is_zero(const T &value) {
  const auto *octets = reinterpret_cast<const unsigned char *>(&value);
  return std::all_of(octets, octets + sizeof value, [](unsigned char octet) { return octet == 0; });
}

TEST(Stations, EmptyRecordsHoldTheirUnknownValues) {
  ravix_station_entry_t station;
  std::memset(&station, 0x5A, sizeof station);
  ravix_types_station_entry_clear(&station);
  EXPECT_EQ(station.signal_rssi, 32767);
  EXPECT_EQ(station.signal_quality, 255);
  EXPECT_EQ(station.mlo_link_id, INT32_MIN);
  EXPECT_EQ(station.state + station.mode + station.security + station.rate_tx_max + station.streams_rx, 0U);
  EXPECT_TRUE(is_zero(station.hwaddr) && is_zero(station.mld_hwaddr) && is_zero(station.channel_info));

  ravix_remote_client_entry_t client{};
  ravix_types_remote_client_entry_clear(&client);
  EXPECT_EQ(client.parent_nexus_device_address, nullptr);
  EXPECT_EQ(client.rssi, 32767);
  EXPECT_EQ(client.quality, 255);
  EXPECT_EQ(client.mlo_link_id, INT32_MIN);

  ravix_remote_ap_entry_t ap{};
  ravix_types_remote_ap_entry_clear(&ap);
  EXPECT_EQ(ap.nexus_device_address, nullptr);
  EXPECT_EQ(ap.mlo_link_id, INT32_MIN);

  ravix_station_history_entry_t past;
  std::memset(&past, 0x5A, sizeof past);
  ravix_types_station_history_entry_clear(&past);
  EXPECT_EQ(past.quality, 255);
  EXPECT_EQ(past.time_connect, INT64_MAX);
  EXPECT_EQ(past.time_disconnect, INT64_MAX);
  EXPECT_EQ(past.role_handle, 0);
  EXPECT_EQ(past.ieee802_11_reason_connect + past.ieee802_11_reason_disconnect + past.initiator_connect, 0);
}

// The two records whose copy tells of a lost address text in the log only.
template <class R, class Table> void lose_address_texts(char *R::*address, const std::string &copy_name) {
  harness::heap heap;
  harness::captured_log log;
  const texts told{copy_name + ": No memory available!"};
  char text[] = "02:00:00:00:00:01";
  char other[] = "02:00:00:00:00:02";
  R source{};
  record<R>::clear(&source);
  source.*address = text;
  source.security = 6;
  {
    local<R, record<R>::clear> dest;
    ASSERT_EQ(record<R>::copy(&source, &dest.value), 0);
    EXPECT_STREQ(dest.value.*address, text);
    heap.fail_only(1);
    EXPECT_EQ(record<R>::copy(&source, &dest.value), 0);
    const auto lines = log.take();
    ASSERT_EQ(lines.size(), 1U);
    EXPECT_EQ(lines[0].function + ": " + lines[0].text, told[0]);
    EXPECT_EQ(lines[0].file, "src/ravix_types_sta");
    EXPECT_EQ(heap.failed(), (std::set<harness::heap::tag>{{lines[0].file, lines[0].line}}));
    EXPECT_EQ(dest.value.*address, nullptr);
    EXPECT_EQ(dest.value.security, 0);
    EXPECT_EQ(dest.value.mlo_link_id, INT32_MIN);
  }
  heap.fail_only(2); // the clone itself, then its text
  R *clone = record<R>::clone(&source);
  ASSERT_NE(clone, nullptr);
  EXPECT_EQ(log.take_texts(), told);
  EXPECT_EQ(clone->*address, nullptr);
  EXPECT_EQ(clone->security, 0);
  record<R>::free(clone);

  // A table's copy goes on behind the element that was lost.
  Table *all = record<Table>::create(0);
  for (char *each : {text, other, text}) {
    source.*address = each;
    ASSERT_EQ(record<Table>::add_entry(all, &source), 0);
  }
  Table *copy = record<Table>::create(0);
  heap.fail_only(3); // the array and the first text succeed
  EXPECT_EQ(record<Table>::copy(all, copy), 0);
  EXPECT_EQ(log.take_texts(), told);
  ASSERT_EQ(copy->count, 3U);
  EXPECT_STREQ(copy->data[0].*address, text);
  EXPECT_EQ(copy->data[1].*address, nullptr);
  EXPECT_EQ(copy->data[1].security, 0);
  EXPECT_STREQ(copy->data[2].*address, text);
  EXPECT_EQ(copy->data[2].security, 6);
  record<Table>::free(copy);
  record<Table>::free(all);
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
  for (const unsigned capacity : {0U, 1U, 20U}) {
    ravix_station_history_t *history = ravix_types_station_history_create(capacity);
    ASSERT_NE(history, nullptr);
    EXPECT_EQ(history->used + history->next, 0U);
    EXPECT_EQ(history->table.count, capacity);
    EXPECT_EQ(history->table.data == nullptr, capacity == 0);
    for (unsigned i = 0; i < capacity; ++i) {
      EXPECT_EQ(history->table.data[i].time_connect, INT64_MAX);
    }
    ravix_types_station_history_free(history);
  }
  ravix_types_station_history_free(nullptr);
  EXPECT_EQ(heap.live(), 0U);
}

TEST(StationHistory, IsNullWhenMemoryIsMissing) {
  harness::heap heap;
  harness::captured_log log;
  const std::string create = "ravix_types_station_history_create: ";
  heap.fail_only(1);
  EXPECT_EQ(ravix_types_station_history_create(3), nullptr);
  EXPECT_EQ(log.take_texts(), texts{create + "No memory available!"});
  heap.fail_only(2);
  EXPECT_EQ(ravix_types_station_history_create(3), nullptr);
  EXPECT_EQ(log.take_texts(), (texts{"generic_table_init: No memory available!", create + "Init error!"}));
  EXPECT_EQ(heap.live(), 0U);
}

// ---- steering

// A steering list with what its creation and initialiser are called.
template <class T> struct operations {
  std::string name;
  std::string target;
  T *(*create)(unsigned);
  int (*init)(T *, unsigned); // may be null
  void (*clear)(T *);
  void (*free)(T *);
};

template <class T> void use_list(const operations<T> &list) {
  SCOPED_TRACE(list.name);
  harness::heap heap;
  harness::captured_log log;
  T *made = list.create(3);
  ASSERT_NE(made, nullptr);
  ASSERT_EQ(made->count, 3U);
  EXPECT_TRUE(is_zero(made->data[0]) && is_zero(made->data[2]));
  list.clear(made);
  EXPECT_EQ(made->count, 0U);
  EXPECT_EQ(made->data, nullptr);
  list.clear(made);
  if (list.init != nullptr) {
    EXPECT_EQ(list.init(made, 2), 0);
    EXPECT_EQ(list.init(made, 5), 0); // what it held is released
    EXPECT_EQ(made->count, 5U);
    heap.fail_only(1);
    EXPECT_EQ(list.init(made, 4), -12);
    EXPECT_EQ(made->count, 0U);
    EXPECT_EQ(made->data, nullptr);
    EXPECT_EQ(log.take_texts(), texts{list.name + "_init: No memory available!"});
    EXPECT_EQ(list.init(made, 1), 0);
    EXPECT_EQ(list.init(made, 0), 0);
    EXPECT_EQ(made->count, 0U);
    EXPECT_EQ(made->data, nullptr);
    EXPECT_EQ(list.init(nullptr, 1), -22);
    EXPECT_EQ(log.take_texts(), texts{list.name + "_init: Invalid pointer '" + list.target + "'!"});
  }
  list.free(made);
  list.clear(nullptr);
  list.free(nullptr);

  T *empty = list.create(0);
  ASSERT_NE(empty, nullptr);
  EXPECT_TRUE(is_zero(*empty));
  list.free(empty);

  heap.fail_only(1);
  EXPECT_EQ(list.create(3), nullptr);
  EXPECT_EQ(log.take_texts(), texts{list.name + "_create: No memory available!"});
  heap.fail_only(2);
  EXPECT_EQ(list.create(3), nullptr);
  EXPECT_EQ(log.take_texts(), list.init != nullptr ? (texts{list.name + "_init: No memory available!",
                                                            list.name + "_create: Init error!"})
                                                   : texts{list.name + "_create: No memory available!"});
  EXPECT_EQ(heap.live(), 0U);
  for (const auto &tag : heap.requested()) {
    EXPECT_EQ(tag.first, "src/ravix_types_steering");
  }
}

TEST(Steering, ListsAreMadeFilledAndReleased) {
  use_list<ravix_btm_candidate_table_t>({"ravix_types_btm_candidate_table", "candidate_table",
                                         ravix_types_btm_candidate_table_create, ravix_types_btm_candidate_table_init,
                                         ravix_types_btm_candidate_table_clear, ravix_types_btm_candidate_table_free});
  use_list<ravix_ap_channel_report_table_t>(
      {"ravix_types_ap_channel_report_table", "table", ravix_types_ap_channel_report_table_create,
       ravix_types_ap_channel_report_table_init, ravix_types_ap_channel_report_table_clear,
       ravix_types_ap_channel_report_table_free});
  use_list<ravix_beacon_report_table_t>({"ravix_types_beacon_report_table", "table",
                                         ravix_types_beacon_report_table_create, nullptr,
                                         ravix_types_beacon_report_table_clear, ravix_types_beacon_report_table_free});
}

TEST(Steering, AChannelReportCountsItsOperatingClassToo) {
  const std::string init = "ravix_types_ap_channel_report_init: ";
  harness::heap heap;
  harness::captured_log log;
  local<ravix_ap_channel_report_t, ravix_types_ap_channel_report_clear> local;
  ravix_ap_channel_report_t &report = local.value;
  const auto expect_empty = [&] {
    EXPECT_EQ(report.length, 1);
    EXPECT_EQ(report.operating_class, 0);
    EXPECT_EQ(report.channels, nullptr);
    EXPECT_EQ(heap.live(), 0U);
  };
  struct row {
    unsigned channels;
    int code;
    const char *message;
  };
  for (const row &row : {row{0, 0, nullptr}, row{3, 0, nullptr}, row{254, 0, nullptr},
                         row{255, -22, "Maximum number of entries reached!"},
                         row{UINT32_MAX, -22, "Maximum number of entries reached!"}}) {
    SCOPED_TRACE(row.channels);
    report.operating_class = 115;
    EXPECT_EQ(ravix_types_ap_channel_report_init(&report, row.channels), row.code);
    EXPECT_EQ(log.take_texts(), row.message == nullptr ? texts{} : texts{init + row.message});
    if (row.code != 0 || row.channels == 0) {
      expect_empty();
      continue;
    }
    EXPECT_EQ(report.length, row.channels + 1);
    EXPECT_TRUE(std::all_of(report.channels, report.channels + row.channels, [](auto c) { return c == 0; }));
    report.channels[row.channels - 1] = 48;
  }
  ASSERT_EQ(ravix_types_ap_channel_report_init(&report, 2), 0);
  heap.fail_only(1);
  EXPECT_EQ(ravix_types_ap_channel_report_init(&report, 5), -12);
  EXPECT_EQ(log.take_texts(), texts{init + "No memory available!"});
  expect_empty();
  EXPECT_EQ(ravix_types_ap_channel_report_init(nullptr, 5), -22);
  EXPECT_EQ(log.take_texts(), texts{init + "Invalid pointer 'ap_channel_report'!"});
  ravix_types_ap_channel_report_clear(nullptr);
}

TEST(Steering, ARequestGivesUpItsListsAndKeepsItsPlainValues) {
  harness::heap heap;
  ravix_beacon_report_rrm_req_params_t request{};
  request.operating_class = 115;
  request.channel_number = 255;
  request.measurement_mode = 1;
  request.ssid.len = 4;
  request.reporting_detail = 2;
  const auto octets = [](std::size_t count) {
    return static_cast<std::uint8_t *>(slab_dcalloc(count, 1, "tests", __LINE__));
  };
  request.request_count = 3;
  request.request_ids = octets(3);
  ASSERT_EQ(ravix_types_ap_channel_report_table_init(&request.ap_channel_reports, 2), 0);
  ASSERT_EQ(ravix_types_ap_channel_report_init(&request.ap_channel_reports.data[1], 4), 0);
  request.subelement_count = 2;
  request.subelements = static_cast<ravix_beacon_report_subelement_t *>(
      slab_dcalloc(2, sizeof(ravix_beacon_report_subelement_t), "tests", __LINE__));
  request.subelements[0] = {6, octets(6)};
  EXPECT_EQ(heap.live(), 5U);
  const ravix_beacon_report_rrm_req_params_t before = request;

  ravix_types_beacon_report_rrm_req_params_clear(&request);
  EXPECT_EQ(heap.live(), 0U);
  EXPECT_EQ(request.request_count + request.ap_channel_reports.count + request.subelement_count, 0U);
  EXPECT_TRUE(request.request_ids == nullptr && request.ap_channel_reports.data == nullptr &&
              request.subelements == nullptr);
  EXPECT_EQ(std::memcmp(&request, &before, offsetof(ravix_beacon_report_rrm_req_params_t, request_count)), 0);
  ravix_types_beacon_report_rrm_req_params_clear(&request);
  ravix_types_beacon_report_rrm_req_params_clear(nullptr);
}

} // namespace
