// What has no field list: lists for steering, and a station's history.
#include "golden.hpp"
#include "harness.hpp"

#include "ravix_types_handles.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <sstream>
#include <string>
#include <type_traits>

namespace {

template <class T> std::string octets_of(const T *data, std::size_t count = 1) {
  return {reinterpret_cast<const char *>(data), count * sizeof(T)};
}

// Elements in words.
template <class T> std::string words(const T *data, std::size_t count) {
  const bool zeroes = octets_of(data, count).find_first_not_of('\0') == std::string::npos;
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

TEST(Steering, ListsAreMadeFilledAndReleased) {
  harness::heap heap;
  ravix_btm_candidate_table_t *candidates = nullptr;
  ravix_ap_channel_report_table_t *channels = nullptr;
  ravix_beacon_report_table_t *beacons = nullptr;
  ravix_station_history_t *history = nullptr;
  ravix_ap_channel_report_t report{};
  harness::expect_answers("steering_lists", [&](const std::string &call) {
    std::istringstream in(call);
    std::string name, verb, ignored;
    unsigned count = 0;
    std::size_t failing = 0;
    in >> name >> verb >> count >> ignored >> failing;
    heap.fail_only(failing);
    const auto use = [&](auto *list, auto init, auto clear) {
      const int code = verb == "init" ? init(list, count) : 0;
      if (verb == "clear") {
        clear(list);
      }
      return std::to_string(code) + ": " + (list == nullptr ? "none" : words(*list));
    };
    const auto make = [&]<class T>(T *&list, auto init, auto clear) {
      if (verb == "free" || verb == "create") {
        ravix::operations<T>::free(list);
        list = verb == "create" ? ravix::operations<T>::create(count) : nullptr;
        EXPECT_EQ(heap.size_of(list), list != nullptr ? sizeof *list : 0);
      }
      return use(list, init, clear);
    };
    const auto no = [](auto...) { return 0; }; // there is no such operation
    report.operating_class = 115;              // until the report is filled or cleared
    return name == "candidates"
               ? make(candidates, ravix_types_btm_candidate_table_init, ravix_types_btm_candidate_table_clear)
           : name == "channels"
               ? make(channels, ravix_types_ap_channel_report_table_init, ravix_types_ap_channel_report_table_clear)
           : name == "beacons" ? make(beacons, no, ravix_types_beacon_report_table_clear)
           : name == "history" ? make(history, no, no)
                               : use(name == "report" ? &report : nullptr, ravix_types_ap_channel_report_init,
                                     ravix_types_ap_channel_report_clear);
  });
  EXPECT_EQ(heap.live(), 0U);
}

TEST(Steering, ARequestGivesUpItsListsAndKeepsItsPlainValues) {
  const harness::heap heap;
  ravix_beacon_report_rrm_req_params_t request;
  std::memset(&request, 0x5A, sizeof request);
  request.request_count = request.ap_channel_reports.count = request.subelement_count = 0;
  request.request_ids = nullptr;
  request.ap_channel_reports.data = nullptr;
  request.subelements = nullptr;
  const std::string cleared = octets_of(&request);
  const auto make = [](auto &count, auto *&array, std::uint8_t size) {
    count = size;
    array = static_cast<std::remove_reference_t<decltype(array)>>(slab_dcalloc(size, sizeof *array, "tests", __LINE__));
  };
  make(request.request_count, request.request_ids, 3);
  make(request.subelement_count, request.subelements, 2);
  make(request.subelements[1].len, request.subelements[1].octets, 6);
  make(request.ap_channel_reports.count, request.ap_channel_reports.data, 2);
  ASSERT_EQ(ravix_types_ap_channel_report_init(&request.ap_channel_reports.data[1], 4), 0);
  for (int times = 0; times < 2; ++times) {
    ravix_types_beacon_report_rrm_req_params_clear(&request);
    EXPECT_EQ(octets_of(&request), cleared);
    EXPECT_EQ(heap.live(), 0U);
  }
  ravix_types_beacon_report_rrm_req_params_clear(nullptr);
}

} // namespace
