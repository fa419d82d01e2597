// What has no field list: lists for steering, and a station's history.
#include "golden.hpp"
#include "harness.hpp"

#include "ravix_types_sta.h"
#include "ravix_types_steering.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <sstream>
#include <string>

namespace {

// Elements in words.
template <class T> std::string words(const T *data, std::size_t count) {
  const auto *octets = reinterpret_cast<const unsigned char *>(data);
  const bool zeroes = std::all_of(octets, octets + count * sizeof(T), [](unsigned char octet) { return octet == 0; });
  return std::to_string(count) + (data == nullptr ? ", no array" : zeroes ? " zeroes" : " of something");
}
template <class T> std::string words(const T &list) {
  return words(list.data, list.count);
}
std::string words(const ravix_station_history_t &history) {
  return words(history.table) + ", used " + std::to_string(history.used) + ", next " + std::to_string(history.next);
}

std::string words(const ravix_ap_channel_report_t &report) {
  return words(report.channels, std::max(report.length, std::uint8_t{1}) - std::size_t{1}) + ", length " +
         std::to_string(report.length) + ", class " + std::to_string(report.operating_class);
}

// A list and what is called for it.
template <class T> struct list_user {
  T *(*create)(unsigned);
  int (*init)(T *, unsigned);
  void (*clear)(T *);
  void (*free)(T *);
  T *list = nullptr;

  std::string use(const std::string &verb, unsigned count) {
    int code = 0;
    if (verb == "init") {
      code = init(list, count);
    } else if (verb == "clear") {
      clear(list);
    } else {
      free(list);
      list = verb == "create" ? create(count) : nullptr;
    }
    return std::to_string(code) + ": " + (list == nullptr ? "none" : words(*list));
  }
};

TEST(Steering, ListsAreMadeFilledAndReleased) {
  harness::heap heap;
  list_user<ravix_btm_candidate_table_t> candidates{
      ravix_types_btm_candidate_table_create, ravix_types_btm_candidate_table_init,
      ravix_types_btm_candidate_table_clear, ravix_types_btm_candidate_table_free};
  list_user<ravix_ap_channel_report_table_t> channels{
      ravix_types_ap_channel_report_table_create, ravix_types_ap_channel_report_table_init,
      ravix_types_ap_channel_report_table_clear, ravix_types_ap_channel_report_table_free};
  list_user<ravix_beacon_report_table_t> beacons{ravix_types_beacon_report_table_create, nullptr,
                                                 ravix_types_beacon_report_table_clear,
                                                 ravix_types_beacon_report_table_free};
  list_user<ravix_station_history_t> history{ravix_types_station_history_create, nullptr, nullptr,
                                             ravix_types_station_history_free};
  ravix_ap_channel_report_t channel_report{};
  list_user<ravix_ap_channel_report_t> report{nullptr, ravix_types_ap_channel_report_init,
                                              ravix_types_ap_channel_report_clear, nullptr, &channel_report};
  list_user<ravix_ap_channel_report_t> no_report = report;
  no_report.list = nullptr;
  harness::expect_answers("steering_lists", [&](const std::string &call) {
    std::istringstream in(call);
    std::string list, verb, ignored;
    unsigned count = 0;
    std::size_t failing = 0;
    in >> list >> verb >> count >> ignored >> failing;
    heap.fail_only(failing);
    channel_report.operating_class = 115; // until the report is filled or cleared
    return list == "candidates"  ? candidates.use(verb, count)
           : list == "channels"  ? channels.use(verb, count)
           : list == "beacons"   ? beacons.use(verb, count)
           : list == "report"    ? report.use(verb, count)
           : list == "no-report" ? no_report.use(verb, count)
                                 : history.use(verb, count);
  });
  EXPECT_EQ(heap.live(), 0U);
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
