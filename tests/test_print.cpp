// Texts of the stream operators, as golden files, and what they do to the stream.
#include "ravix_types_printers.hpp"

#include "all_records.hpp"
#include "golden.hpp"
#include "record_tools.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <iomanip>
#include <ios>
#include <ostream>
#include <regex>
#include <set>
#include <sstream>
#include <streambuf>
#include <string>
#include <string_view>
#include <vector>

namespace {

using harness::for_all_records;
using harness::name_of;
using harness::sample;
using zel::ravix::element_of;

template <class R>
concept printable = requires(std::ostream &stream, const R &value) {
  stream << value;
};

template <class R>
concept table = requires(const R &value) {
  value.count;
  value.data;
};

template <class Print> std::string printed_by(Print print) {
  std::ostringstream stream;
  print(stream);
  // A time stamp begins with the date that it stands for now.
  static const std::regex date(R"(\d\d\.\d\d\.\d{4} \d\d:\d\d:\d\d/)");
  return std::regex_replace(stream.str(), date, "<date>/");
}

template <class R> std::string text(const R &value) {
  return printed_by([&](std::ostream &stream) { stream << value; });
}

// A table of `count` times the same entry, which is not its own.
template <class T> struct table_of {
  std::vector<element_of<T>> entries;
  T table{};

  table_of(std::size_t count, const element_of<T> &entry) : entries(count, entry) {
    table.count = static_cast<std::uint32_t>(count);
    table.data = entries.data();
  }
};

constexpr ravix_channel_info_t channel_42{5180000, 5210000, 4, 0};
constexpr ravix_channel_info_t channel_1{2412000, 2412000, 1, 0};

const ravix_scan_entry_t network{
    0x9, {0x00, 0x1A, 0x2B, 0x3C, 0x4D, 0x5E}, {4, {'a', 'b', 0x07, 'd'}}, channel_42, -61, 0x800084};
const ravix_noisefloor_entry_t noise{2412000, 42, 7};

// Results with a noise floor and two networks; parameters with a frequency, two SSIDs and no BSSID.
struct some_results {
  table_of<ravix_noisefloor_table_t> noisefloors{1, noise};
  table_of<ravix_scan_table_t> networks{2, network};
  ravix_scan_results_t results{12345678, noisefloors.table, networks.table};
};
struct some_parameter {
  table_of<ravix_frequency_table_t> frequencies{1, 2412000};
  table_of<ravix_ssid_table_t> ssids{2, ravix_ssid_t{3, {'l', 'a', 'b'}}};
  ravix_scan_parameter_t parameter{frequencies.table, ssids.table, {}};
};

template <class R> R hardware_result() {
  R event{0x80000002, {}, reinterpret_cast<void *>(std::uintptr_t{0x1A0})}; // NOLINT(performance-no-int-to-ptr)
  std::memset(event.error_message, 'x', sizeof event.error_message);        // without a terminator
  return event;
}

// Calls check(value) for a filled record of each type that a stream prints.
template <class Check> void for_filled_records(Check check) {
  static char address[] = "nexus-17";
  some_results results;
  some_parameter parameter;
  check(channel_42);
  check(network);
  check(noise);
  check(ravix_channel_entry_t{5260000, 23, 0x47, 0x410, 0x5});
  check(ravix_channel_entry_t{2499000, -7, 0, 0, 0});
  check(ravix_radio_load_entry_t{7, 100});
  check(ravix_radio_airtime_entry_t{0.5F, 12345.6875F, -0.0004F, 1e6F});
  check(results.results);
  check(parameter.parameter);
  check(ravix_start_scan_request_t{-1, &parameter.parameter});
  check(ravix_start_scan_response_t{2});
  check(ravix_start_scan_response_t{-22});
  check(ravix_get_scan_results_request_t{1, true});
  check(ravix_get_scan_results_response_t{RAVIX_FAIL_GENERAL, &results.results});
  const ravix_station_entry_t station{
      4, 0x78, 11,         {0x02, 0, 0, 0, 0xAB, 0x01}, -47,  88, channel_42, 2401000, 1201000, 866700, 6000,
      2, 65,   0x10040004, {0x02, 0, 0, 0, 0xAB, 0xFF}, 0x11, 1,  0xC3,       0x01};
  check(station);
  ravix_remote_client_entry_t client{{}, {0x02, 1}, {0x02, 2},  {0x02, 3},  0, true, 0x80, 3, 16, 5250000, 0, 100, 0x40,
                                     6,  6,         0x80000000, 0x80000003, 1, 2,    3,    4, 5,  6,       7, 8};
  client.parent_nexus_device_address = address;
  check(client);
  check(ravix_remote_ap_entry_t{
      address, 2, {0x02, 0, 0, 0, 0, 0x01}, -7, 12, 0x3, 0x20, 1, 54000, 11000, 4, 1, channel_1});
  check(ravix_station_history_entry_t{
      {0x02, 0, 0, 0, 0, 0x01}, 101, 0x20, 5, 12345678, 20000001, 4294967295, 1, 0, 17, 65, 65535});
  check(ravix_event_log_entry_t{4294967295, 54000, {0x02, 0, 0, 0, 0, 0x01}, 4, true, 17});
  check(ravix_event_green_ap_t{3, true});
  check(ravix_event_channel_change_t{3, channel_1, channel_42, 2, 9876543210});
  check(ravix_event_interference_t{3, 2412000, true, false});
  check(ravix_event_radar_wait_t{3, true, 600, 5600000, 5640000});
  check(ravix_event_radar_detected_t{3, 1800, 5490000, 5510000, 3, -62, 0x80000001});
  check(ravix_event_radar_precac_t{3, 5500000, 5180000});
  check(ravix_event_client_state_update_t{3, {0x00, 0x11, 0x22, 0x33, 0x44, 0x55}, 3, 4});
  check(ravix_event_client_state_update_t{-2, {}, 7, 4294967295});
  check(ravix_event_client_activity_update_t{3, {0x00, 0x11, 0x22, 0x33, 0x44, 0x55}, true});
  check(ravix_event_client_rssi_update_t{3, {0x00, 0x11, 0x22, 0x33, 0x44, 0x55}, 65, 0, 254});
  check(ravix_event_scan_results_t{3, &parameter.parameter, &results.results});
  check(hardware_result<radiod_hal_event_hw_init_t>());
  check(hardware_result<radiod_hal_event_hw_deinit_t>());
  check(hardware_result<radiod_hal_event_set_config_t>());
  check(hardware_result<radiod_hal_event_check_config_t>());
  check(radiod_hal_event_sanity_t{65, 255, "stuck", nullptr, true});
  check(radiod_hal_event_scan_fail_t{3, 5});
}

// ---- texts

TEST(Printers, FilledRecords) {
  harness::golden_sections sections;
  std::set<std::string> filled;
  for_filled_records([&]<class R>(const R &value) {
    sections.add(name_of<R>(), text(value));
    filled.insert(name_of<R>());
  });
  sections.expect("print_filled");
  for_all_records([&]<class R>() {
    if constexpr (printable<R> && !table<R>) {
      EXPECT_EQ(filled.count(name_of<R>()), 1U);
    }
  });
}

TEST(Printers, EmptyRecordsAndTables) {
  harness::golden_sections sections;
  for_all_records([&]<class R>() {
    if constexpr (printable<R>) {
      sections.add(name_of<R>(), text(sample<R>().value));
    }
  });
  sections.expect("print_empty");
}

// Their entries' texts, which the records above have, are left out.
TEST(Printers, TablesOfSomeEntries) {
  harness::golden_sections sections;
  for_all_records([&]<class T>() {
    if constexpr (printable<T> && table<T>) {
      const sample<element_of<T>> entry;
      const std::string entry_text = text(entry.value);
      for (const std::size_t count : {1U, 10U, 11U}) {
        std::string listed = text(table_of<T>(count, entry.value).table);
        for (std::size_t at = 0; (at = listed.find(entry_text, at)) != std::string::npos;) {
          listed.replace(at, entry_text.size(), "(entry)");
        }
        sections.add(name_of<T>() + " of " + std::to_string(count), listed);
      }
      T without_array{};
      without_array.count = 3;
      EXPECT_EQ(text(without_array), text(T{}));
    }
  });
  sections.expect("print_tables");
}

TEST(Printers, KeepNetworkNamesOutOfALog) {
  harness::golden_sections sections;
  const some_results some;
  for (const bool hide_ssid : {false, true}) {
    sections.add(hide_ssid ? "hidden" : "shown", printed_by([&](std::ostream &stream) {
                   print_scan_entry(stream, network, hide_ssid);
                   print_scan_table(stream << "\n\n", {}, hide_ssid);
                   print_scan_results(stream << "\n\n", some.results, hide_ssid);
                 }));
  }
  sections.expect("print_scan");
}

// ---- the stream

// Takes so many characters, then fails.
class short_buffer : public std::streambuf {
public:
  explicit short_buffer(std::size_t room) : room_(room) {}
  std::size_t taken = 0;

protected:
  std::streamsize xsputn(const char * /*characters*/, std::streamsize count) override {
    const std::size_t fitting = std::min(static_cast<std::size_t>(count), room_ - taken);
    taken += fitting;
    return static_cast<std::streamsize>(fitting);
  }

private:
  std::size_t room_;
};

void set_format(std::ostream &stream) {
  stream << std::hex << std::left << std::showbase << std::showpos << std::uppercase << std::scientific
         << std::boolalpha << std::setprecision(1) << std::setfill('#') << std::setw(10);
}

// The whole of a record as its difference printer has it, on a stream.
template <class R> struct whole_difference { const R *value; };
template <class R> std::ostream &operator<<(std::ostream &stream, const whole_difference<R> &whole) {
  print_diff(stream, *whole.value, static_cast<const R *>(nullptr), "value", 1, true);
  return stream;
}

template <class Check> void for_everything_printed(Check check) {
  for_filled_records(check);
  for_all_records([&]<class R>() {
    const sample<R> some(5);
    if constexpr (requires(std::ostream & stream) { print_diff(stream, some.value, &some.value, "", 0U, true); }) {
      check(whole_difference<R>{&some.value});
    }
  });
}

bool has_format(std::ostream &stream) {
  std::ostringstream twin;
  set_format(twin);
  return stream.flags() == twin.flags() && stream.precision() == 1 && stream.fill() == '#' && stream.width() == 10;
}

TEST(Streams, KeepTheirFormatWhichIsNotHeeded) {
  for_everything_printed([](const auto &value) {
    std::ostringstream stream;
    set_format(stream);
    stream << value;
    EXPECT_TRUE(has_format(stream));
    EXPECT_EQ(printed_by([&](std::ostream &other) { other << stream.str(); }), text(value));
  });
}

TEST(Streams, ThatFailStayFailedAndKeepTheirFormat) {
  for_everything_printed([](const auto &value) {
    for (const std::size_t room : {std::size_t{0}, text(value).size() / 2, text(value).size() - 1}) {
      for (const bool throws : {false, true}) {
        short_buffer buffer(room);
        std::ostream stream(&buffer);
        set_format(stream);
        if (throws) {
          stream.exceptions(std::ios_base::badbit);
          EXPECT_THROW(stream << value, std::ios_base::failure);
        } else {
          stream << value;
        }
        EXPECT_TRUE(stream.bad() && has_format(stream) && buffer.taken == room);
        stream.exceptions(std::ios_base::goodbit);
        stream << value;
        EXPECT_EQ(buffer.taken, room) << "nothing more goes to a stream that has failed";
      }
    }
  });
}

TEST(Streams, GetTheirFormatBackFromTheGuardOnEveryPath) {
  std::ostringstream stream;
  set_format(stream);
  stream.exceptions(std::ios_base::badbit);
  const auto spoil = [&](bool fail) {
    const zel::ios_copyfmt guard(stream);
    stream << std::dec << std::setw(3) << std::setfill('0') << std::setprecision(9) << std::fixed << 7;
    stream.exceptions(std::ios_base::goodbit);
    if (fail) {
      // Giving back the exception mask of a failed stream throws; the guard keeps that to itself.
      stream.setstate(std::ios_base::badbit);
      throw 1;
    }
  };
  spoil(false);
  EXPECT_TRUE(has_format(stream));
  EXPECT_EQ(stream.exceptions(), std::ios_base::badbit);
  EXPECT_THROW(spoil(true), int);
  EXPECT_TRUE(has_format(stream));
}

} // namespace
