// Golden texts of the stream operators, and what they do to the stream. Difference prints are tested beside the
// records that have them.
#include "ravix_types_printers.hpp"

#include "all_records.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <iomanip>
#include <ios>
#include <ostream>
#include <regex>
#include <sstream>
#include <streambuf>
#include <string>
#include <string_view>
#include <vector>

namespace {

using zel::ravix::record;

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

// A record in its empty state.
template <class R> R empty() {
  R value{};
  record<R>::clear(&value);
  return value;
}

template <class R> void expect_texts(const R &filled, std::string_view filled_text, std::string_view empty_text) {
  EXPECT_EQ(text(filled), filled_text);
  EXPECT_EQ(text(empty<R>()), empty_text);
}

// A table of `count` times the same entry, which is not its own.
template <class T> struct table_of {
  std::vector<zel::ravix::element_of<T>> entries;
  T table = empty<T>();

  table_of(std::size_t count, const zel::ravix::element_of<T> &entry) : entries(count, entry) {
    table.count = static_cast<std::uint32_t>(count);
    table.data = entries.data();
  }
};

// Every printer of a table: what stands before its entries, and what between and before each one.
template <class T, class Before>
void expect_tables(std::string_view header, std::string_view entry_text, const zel::ravix::element_of<T> &entry,
                   Before before) {
  for (const std::size_t count : {0U, 1U, 10U, 11U}) {
    const table_of<T> some(count, entry);
    std::string expected(header);
    for (std::size_t i = 0; i < count; ++i) {
      expected.append(i == 0 ? "" : "\n").append(before(i, count)).append(entry_text);
    }
    EXPECT_EQ(text(some.table), count == 0 ? expected + "-- no entries --" : expected);
  }
  T without_array{};
  without_array.count = 3;
  EXPECT_EQ(text(without_array), std::string(header) + "-- no entries --");
}

// Tables of one line per entry, under a header line.
template <class T>
void expect_columns(std::string_view header, std::string_view entry_text, const zel::ravix::element_of<T> &entry) {
  expect_tables<T>(header, entry_text, entry, [](std::size_t i, std::size_t count) {
    return std::string(count == 11 && i < 10 ? "[ " : "[") + std::to_string(i) + "]: ";
  });
}

// Tables of records, each under a heading.
template <class T>
void expect_listed(std::string_view word, std::string_view entry_text, const zel::ravix::element_of<T> &entry) {
  expect_tables<T>("", entry_text, entry, [&](std::size_t i, std::size_t /*count*/) {
    return "[" + std::string(word) + " " + std::to_string(i) + "]:\n";
  });
}

constexpr ravix_channel_info_t channel_42{5180000, 5210000, 4, 0};
constexpr ravix_channel_info_t channel_1{2412000, 2412000, 1, 0};

// ---- scans and the radio environment

const ravix_scan_entry_t network{
    0x9, {0x00, 0x1A, 0x2B, 0x3C, 0x4D, 0x5E}, {4, {'a', 'b', 0x07, 'd'}}, channel_42, -61, 0x800084};
constexpr std::string_view network_text =
    "'00:1A:2B:3C:4D:5E' 5180/5210/ 80/0000/ 34- 50 'ab d'/[ 61 62 07 64 ] (len=4)               -61 dBm "
    "[ 11A 11N ] [ WPA2_PSK WPA3_PSK PRIVACY ]";
constexpr std::string_view network_text_without_ssid =
    "'00:1A:2B:3C:4D:5E' 5180/5210/ 80/0000/ 34- 50 -61 dBm [ 11A 11N ] [ WPA2_PSK WPA3_PSK PRIVACY ]";

TEST(ScanListing, ShowsANetworkALineWithOrWithoutItsName) {
  expect_texts(network, network_text,
               "'00:00:00:00:00:00'    0/   0/INV/0000/  0-  0 '' (len=0)                                   INVALID "
               "[ ] [ ]");
  EXPECT_EQ(printed_by([](std::ostream &stream) { print_scan_entry(stream, network, false); }), network_text);
  EXPECT_EQ(printed_by([](std::ostream &stream) { print_scan_entry(stream, network, true); }),
            network_text_without_ssid);

  expect_columns<ravix_scan_table_t>("[BSSID|CHANNEL_INFO|SSID|RSSI|WLAN MODE|CAPS]\n", network_text, network);
  const table_of<ravix_scan_table_t> two(2, network);
  EXPECT_EQ(printed_by([&](std::ostream &stream) { print_scan_table(stream, two.table, true); }),
            "[BSSID|CHANNEL_INFO|RSSI|WLAN MODE|CAPS]\n[0]: " + std::string(network_text_without_ssid) +
                "\n[1]: " + std::string(network_text_without_ssid));
  EXPECT_EQ(printed_by([](std::ostream &stream) { print_scan_table(stream, empty<ravix_scan_table_t>(), true); }),
            "[BSSID|CHANNEL_INFO|RSSI|WLAN MODE|CAPS]\n-- no entries --");
}

const ravix_noisefloor_entry_t noise{2412000, 42, 7};
constexpr std::string_view noise_text = "2412 MHz (  1)  42   7";

// Results with one noise floor and one network.
struct some_results {
  table_of<ravix_noisefloor_table_t> noisefloors{1, noise};
  table_of<ravix_scan_table_t> networks{1, network};
  ravix_scan_results_t results{12345678, noisefloors.table, networks.table};
};

std::string results_text(bool hide_ssid) {
  return "Scan time: <date>/[12345.678]\nNoisefloor table:\n[FREQUENCY|NOISEFLOOR|LOAD]\n[0]: " +
         std::string(noise_text) +
         (hide_ssid ? "\nScan table:\n[BSSID|CHANNEL_INFO|RSSI|WLAN MODE|CAPS]\n[0]: "
                    : "\nScan table:\n[BSSID|CHANNEL_INFO|SSID|RSSI|WLAN MODE|CAPS]\n[0]: ") +
         std::string(hide_ssid ? network_text_without_ssid : network_text);
}
constexpr std::string_view empty_results_text =
    "Scan time: \nNoisefloor table:\n[FREQUENCY|NOISEFLOOR|LOAD]\n-- no entries --\n"
    "Scan table:\n[BSSID|CHANNEL_INFO|SSID|RSSI|WLAN MODE|CAPS]\n-- no entries --";

TEST(ScanListing, ResultsAreATimeAndTwoTables) {
  some_results some;
  expect_texts(some.results, results_text(false), empty_results_text);
  for (const bool hide_ssid : {false, true}) {
    EXPECT_EQ(printed_by([&](std::ostream &stream) { print_scan_results(stream, some.results, hide_ssid); }),
              results_text(hide_ssid));
  }
}

TEST(RadioEnvironment, PrintsInColumns) {
  expect_texts(noise, noise_text, "INVALID        INVALID 255");
  expect_columns<ravix_noisefloor_table_t>("[FREQUENCY|NOISEFLOOR|LOAD]\n", noise_text, noise);

  const ravix_channel_entry_t channel{5260000, 23, 0x47, 0x410, 0x5};
  constexpr std::string_view channel_text =
      "5260 MHz ( 52) 23 dBm [ HT20 HT40 HT80 DFS ] [ DFS_CLEAR PUNCTURED ] [ REMOTE_DISTURBER DEBUG ]";
  expect_texts(channel, channel_text, "INVALID        INVALID [ ] [ ] [ ]");
  expect_texts(ravix_channel_entry_t{2499000, 7, 0, 0, 0}, "2499000 kHz     7 dBm [ ] [ ] [ ]",
               "INVALID        INVALID [ ] [ ] [ ]");
  expect_columns<ravix_channel_list_t>("[FREQUENCY|MAX_POWER|MAX_REG_POWER|CAPS|STATE|USER_FLAGS]\n", channel_text,
                                       channel);

  const ravix_radio_load_entry_t load{7, 100};
  expect_texts(load, " 7% 100%", "INVALID INVALID");
  expect_columns<ravix_radio_load_table_t>("[GLOBAL_USAGE|OWN_TX_USAGE]\n", " 7% 100%", load);

  const ravix_radio_airtime_entry_t airtime{0.5F, 12345.6875F, -0.0004F, 1e6F};
  constexpr std::string_view airtime_text = "   0.500, 12345.688,   -0.000, 1000000.000";
  expect_texts(airtime, airtime_text, "  -1.000,   -1.000,   -1.000,   -1.000");
  expect_columns<ravix_radio_airtime_table_t>("[RXC|RXF|TXF|NOISEFLOOR]\n", airtime_text, airtime);

  expect_texts(channel_42, "5180/5210/ 80/0000/ 34- 50", "   0/   0/INV/0000/  0-  0");
}

// Parameters with one frequency, two SSIDs and no BSSID.
struct some_parameter {
  table_of<ravix_frequency_table_t> frequencies{1, 2412000};
  table_of<ravix_ssid_table_t> ssids{2, ravix_ssid_t{3, {'l', 'a', 'b'}}};
  ravix_scan_parameter_t parameter{frequencies.table, ssids.table, {}};
};
constexpr std::string_view parameter_text =
    " frequencies:\n  2412000 kHz\n ssids:\n  [0]: 'lab' (len=3)\n  [1]: 'lab' (len=3)\n bssids:\n  -- no entries --";

TEST(Requests, NestUnderLabels) {
  some_parameter some;
  expect_texts(some.parameter, parameter_text,
               " frequencies:\n  -- no entries --\n ssids:\n  -- no entries --\n bssids:\n  -- no entries --");
  expect_texts(ravix_start_scan_request_t{-1, &some.parameter},
               " radio_id: ALL\nScan parameter:\n" + std::string(parameter_text),
               " radio_id: INVALID\nScan parameter: <nullptr>");
  expect_texts(ravix_start_scan_response_t{2}, " status: PENDING", " status: SUCCESS");
  expect_texts(ravix_start_scan_response_t{-22}, std::string(" status: ") + std::strerror(22), " status: SUCCESS");
  expect_texts(ravix_get_scan_results_request_t{1, true}, " radio_id: 1\n selective_scan_results: ON",
               " radio_id: INVALID\n selective_scan_results: OFF");
  some_results results;
  expect_texts(ravix_get_scan_results_response_t{RAVIX_FAIL_GENERAL, &results.results},
               " status: FAIL_GENERAL\n scan_results:\n" + results_text(false),
               " status: SUCCESS\n scan_results: <nullptr>");
}

// ---- stations

TEST(Stations, PrintALinePerFieldUnderAHeadingPerEntry) {
  const ravix_station_entry_t station{
      4, 0x78, 11,         {0x02, 0, 0, 0, 0xAB, 0x01}, -47,  88, channel_42, 2401000, 1201000, 866700, 6000,
      2, 65,   0x10040004, {0x02, 0, 0, 0, 0xAB, 0xFF}, 0x11, 1,  0xC3,       0x01};
  constexpr std::string_view station_text = " state: CONNECTED\n"
                                            " mode: [ 11N 11AC 11AX 11BE ]\n"
                                            " security: WPA2_WPA3\n"
                                            " hwaddr: 02:00:00:00:AB:01\n"
                                            " signal_rssi: -47 dBm\n"
                                            " signal_quality: 88 %\n"
                                            " channel_info: 5180/5210/ 80/0000/ 34- 50\n"
                                            " rate_tx_max: 2401000 kbit/s\n"
                                            " rate_rx_max: 1201000 kbit/s\n"
                                            " rate_tx_current: 866700 kbit/s\n"
                                            " rate_rx_current: 6000 kbit/s\n"
                                            " streams_tx: 2\n"
                                            " streams_rx: 65\n"
                                            " caps_set: [ WPA2_PSK 5GHZ MLO ]\n"
                                            " mld_hwaddr: 02:00:00:00:AB:FF\n"
                                            " mlo_mode: [ AUTO MLMR_STR ]\n"
                                            " mlo_link_id: 1\n"
                                            " mlo_link_t2lm_ul: 11000011\n"
                                            " mlo_link_t2lm_dl: 00000001";
  expect_texts(station, station_text,
               " state: INVALID_MIN\n mode: [ ]\n security: INVALID_MIN\n hwaddr: 00:00:00:00:00:00\n"
               " signal_rssi: INVALID\n signal_quality: INVALID\n channel_info:    0/   0/INV/0000/  0-  0\n"
               " rate_tx_max: 0 kbit/s\n rate_rx_max: 0 kbit/s\n rate_tx_current: 0 kbit/s\n"
               " rate_rx_current: 0 kbit/s\n streams_tx: 0\n streams_rx: 0\n caps_set: [ ]\n"
               " mld_hwaddr: 00:00:00:00:00:00\n mlo_mode: [ ]\n mlo_link_id: INVALID\n"
               " mlo_link_t2lm_ul: 00000000\n mlo_link_t2lm_dl: 00000000");
  expect_listed<ravix_station_table_t>("STATION", station_text, station);

  char address[] = "nexus-17";
  const ravix_remote_client_entry_t client{address,
                                           {0x02, 0, 0, 0, 0, 0x01},
                                           {0x02, 0, 0, 0, 0, 0x02},
                                           {0x02, 0, 0, 0, 0, 0x03},
                                           0,
                                           true,
                                           0x80,
                                           3,
                                           16,
                                           5250000,
                                           0,
                                           100,
                                           0x40,
                                           6,
                                           6,
                                           0x80000000,
                                           0x80000003,
                                           1,
                                           2,
                                           3,
                                           4,
                                           5,
                                           6,
                                           7,
                                           8};
  constexpr std::string_view client_text = " parent_nexus_device_address: nexus-17\n"
                                           " bssid: 02:00:00:00:00:01\n"
                                           " hwaddr: 02:00:00:00:00:02\n"
                                           " mld_hwaddr: 02:00:00:00:00:03\n"
                                           " mlo_link_id: 0\n"
                                           " mlo_link_active_state: ON\n"
                                           " mlo_mode: [ EMLMR_NSTR ]\n"
                                           " state: ASSOCIATED\n"
                                           " channel_width: 160 MHz\n"
                                           " center_frequency: 5250 MHz ( 50)\n"
                                           " rssi: 0 dBm\n"
                                           " quality: 100%\n"
                                           " wlan_mode: [ 11BE ]\n"
                                           " security: WPA2PSK\n"
                                           " station_type: ZEL_STA\n"
                                           " caps_set: [ ZEL ]\n"
                                           " zel_caps_set: 10000000000000000000000000000011\n"
                                           " rate_active_tx: 1 kbit/s\n"
                                           " rate_active_rx: 2 kbit/s\n"
                                           " rate_max_tx: 3 kbit/s\n"
                                           " rate_max_rx: 4 kbit/s\n"
                                           " rate_average_tx: 5 kbit/s\n"
                                           " rate_average_rx: 6 kbit/s\n"
                                           " streams_tx: 7\n"
                                           " streams_rx: 8";
  expect_texts(client, client_text,
               " parent_nexus_device_address: <nullptr>\n bssid: 00:00:00:00:00:00\n hwaddr: 00:00:00:00:00:00\n"
               " mld_hwaddr: 00:00:00:00:00:00\n mlo_link_id: INVALID\n mlo_link_active_state: OFF\n"
               " mlo_mode: [ ]\n state: INVALID_MIN\n channel_width: INVALID\n center_frequency: INVALID\n"
               " rssi: INVALID\n quality: INVALID\n wlan_mode: [ ]\n security: INVALID_MIN\n"
               " station_type: INVALID_MIN\n caps_set: [ ]\n zel_caps_set: 00000000000000000000000000000000\n"
               " rate_active_tx: 0 kbit/s\n rate_active_rx: 0 kbit/s\n rate_max_tx: 0 kbit/s\n"
               " rate_max_rx: 0 kbit/s\n rate_average_tx: 0 kbit/s\n rate_average_rx: 0 kbit/s\n streams_tx: 0\n"
               " streams_rx: 0");
  expect_listed<ravix_remote_client_table_t>("REMOTE CLIENT", client_text, client);

  const ravix_remote_ap_entry_t ap{address, 2,        {0x02, 0, 0, 0, 0, 0x01}, -7, 12, 0x3, 0x20, 1, 54000, 11000, 4,
                                   1,       channel_1};
  constexpr std::string_view ap_text = " nexus_device_address: nexus-17\n"
                                       " opmode: AP_GUEST\n"
                                       " hwaddr: 02:00:00:00:00:01\n"
                                       " mlo_link_id: -7\n"
                                       " security: OWE\n"
                                       " wlan_mode: [ 11A 11B ]\n"
                                       " caps_set: [ WME ]\n"
                                       " zel_caps_set: 00000000000000000000000000000001\n"
                                       " rate_max_rx: 54000 kbit/s\n"
                                       " rate_max_tx: 11000 kbit/s\n"
                                       " streams_rx: 4\n"
                                       " streams_tx: 1\n"
                                       " channel_info: 2412/2412/ 20/0000/  1-  3";
  expect_texts(ap, ap_text,
               " nexus_device_address: <nullptr>\n opmode: INVALID_MIN\n hwaddr: 00:00:00:00:00:00\n"
               " mlo_link_id: INVALID\n security: INVALID_MIN\n wlan_mode: [ ]\n caps_set: [ ]\n"
               " zel_caps_set: 00000000000000000000000000000000\n rate_max_rx: 0 kbit/s\n rate_max_tx: 0 kbit/s\n"
               " streams_rx: 0\n streams_tx: 0\n channel_info:    0/   0/INV/0000/  0-  0");
  expect_listed<ravix_remote_ap_table_t>("REMOTE AP", ap_text, ap);

  const ravix_station_history_entry_t past{
      {0x02, 0, 0, 0, 0, 0x01}, 101, 0x20, 5, 12345678, 20000001, 4294967295, 1, 0, 17, 65, 65535};
  constexpr std::string_view past_text = " mac: 02:00:00:00:00:01\n"
                                         " quality: <invalid value '101'>\n"
                                         " wlan_mode: [ 11AX ]\n"
                                         " role_handle: 5\n"
                                         " time_connect: <date>/[12345.678]\n"
                                         " time_disconnect: <date>/[20000.001]\n"
                                         " status_connect: 4294967295\n"
                                         " initiator_connect: 1\n"
                                         " ieee802_11_reason_connect: 0\n"
                                         " status_disconnect: 17\n"
                                         " initiator_disconnect: 65\n"
                                         " ieee802_11_reason_disconnect: 65535";
  expect_texts(past, past_text,
               " mac: 00:00:00:00:00:00\n quality: INVALID\n wlan_mode: [ ]\n role_handle: INVALID\n"
               " time_connect: \n time_disconnect: \n status_connect: 0\n initiator_connect: 0\n"
               " ieee802_11_reason_connect: 0\n status_disconnect: 0\n initiator_disconnect: 0\n"
               " ieee802_11_reason_disconnect: 0");
  expect_listed<ravix_station_history_table_t>("STATION HISTORY", past_text, past);
}

// ---- events

TEST(Events, PrintALinePerField) {
  expect_texts(ravix_event_log_entry_t{4294967295, 54000, {0x02, 0, 0, 0, 0, 0x01}, 4, true, 17},
               " event_id: 4294967295\n max_rate: 54000 kbit/s\n mac: 02:00:00:00:00:01\n band: 6 GHz\n is_mlo: ON\n"
               " details: 17",
               " event_id: 0\n max_rate: 0 kbit/s\n mac: 00:00:00:00:00:00\n band: INVALID_MIN\n is_mlo: OFF\n"
               " details: 0");
  expect_texts(ravix_event_green_ap_t{3, true}, " radio_id: 3\n enabled: ON", " radio_id: INVALID\n enabled: OFF");
  expect_texts(ravix_event_channel_change_t{3, channel_1, channel_42, 2, 9876543210},
               " radio_id: 3\n prev_channel: 2412/2412/ 20/0000/  1-  3\n new_channel: 5180/5210/ 80/0000/ 34- 50\n"
               " reason: RADAR\n change_time: 9876543210 s",
               " radio_id: INVALID\n prev_channel:    0/   0/INV/0000/  0-  0\n"
               " new_channel:    0/   0/INV/0000/  0-  0\n reason: INVALID_MIN\n change_time: 0 s");
  expect_texts(ravix_event_interference_t{3, 2412000, true, false},
               " radio_id: 3\n primary_freq: 2412 MHz (  1)\n active: ON\n channel_change: OFF",
               " radio_id: INVALID\n primary_freq: INVALID\n active: OFF\n channel_change: OFF");
  expect_texts(
      ravix_event_radar_wait_t{3, true, 600, 5600000, 5640000},
      " role_id: 3\n started: ON\n radar_time: 600 s\n first_primary_khz: 5600 MHz (120)\n"
      " last_primary_khz: 5640 MHz (128)",
      " role_id: INVALID\n started: OFF\n radar_time: 0 s\n first_primary_khz: INVALID\n last_primary_khz: INVALID");
  expect_texts(ravix_event_radar_detected_t{3, 1800, 5490000, 5510000, 3, -62, 0x80000001},
               " radio_id: 3\n expire_ts_uptime: 1800 s\n freq_start: 5490 MHz ( 98)\n freq_end: 5510 MHz (102)\n"
               " radar_type: ETSI_2\n level_dbm: -62 dBm\n flags: 10000000000000000000000000000001",
               " radio_id: INVALID\n expire_ts_uptime: 0 s\n freq_start: INVALID\n freq_end: INVALID\n"
               " radar_type: INVALID_MIN\n level_dbm: INVALID\n flags: 00000000000000000000000000000000");
  expect_texts(ravix_event_radar_precac_t{3, 5500000, 5180000},
               " radio_id: 3\n primary_freq: 5500 MHz (100)\n temp_freq: 5180 MHz ( 36)",
               " radio_id: INVALID\n primary_freq: INVALID\n temp_freq: INVALID");
  expect_texts(ravix_event_client_state_update_t{3, {0x00, 0x11, 0x22, 0x33, 0x44, 0x55}, 3, 4},
               " role_id: 3\n mac: 00:11:22:33:44:55\n old_state: ASSOCIATED\n new_state: CONNECTED",
               " role_id: INVALID\n mac: 00:00:00:00:00:00\n old_state: INVALID_MIN\n new_state: INVALID_MIN");
  expect_texts(ravix_event_client_state_update_t{-2, {}, 7, 4294967295},
               " role_id: NONE\n mac: 00:00:00:00:00:00\n old_state: <invalid value: 7>\n"
               " new_state: <invalid value: 4294967295>",
               " role_id: INVALID\n mac: 00:00:00:00:00:00\n old_state: INVALID_MIN\n new_state: INVALID_MIN");
  expect_texts(ravix_event_client_activity_update_t{3, {0x00, 0x11, 0x22, 0x33, 0x44, 0x55}, true},
               " role_id: 3\n mac: 00:11:22:33:44:55\n active: ON",
               " role_id: INVALID\n mac: 00:00:00:00:00:00\n active: OFF");
  expect_texts(ravix_event_client_rssi_update_t{3, {0x00, 0x11, 0x22, 0x33, 0x44, 0x55}, 65, 0, 254},
               " role_id: 3\n mac: 00:11:22:33:44:55\n rsni: 65\n rcpi: 0\n anpi: 254",
               " role_id: INVALID\n mac: 00:00:00:00:00:00\n rsni: INVALID\n rcpi: INVALID\n anpi: INVALID");

  some_parameter parameter;
  some_results results;
  expect_texts(ravix_event_scan_results_t{3, &parameter.parameter, &results.results},
               "Radio ID: 3\nScan parameter:\n" + std::string(parameter_text) + "\nScan results:\n" +
                   results_text(false),
               "Radio ID: INVALID\nScan parameter: <nullptr>\nScan results: <nullptr>");
}

template <class R> void expect_hardware_result() {
  R event = empty<R>();
  event.status = 0x80000002;
  std::memset(event.error_message, 'x', sizeof event.error_message);   // without a terminator
  event.hal_context = reinterpret_cast<void *>(std::uintptr_t{0x1A0}); // NOLINT(performance-no-int-to-ptr)
  expect_texts(event,
               " status: FAIL_NOT_SUPPORTED\n error_message: " + std::string(sizeof event.error_message, 'x') +
                   "\n hal_context: 0x1a0",
               " status: SUCCESS\n error_message: \n hal_context: <nullptr>");
}

TEST(HardwareLayerEvents, PrintALinePerField) {
  expect_hardware_result<radiod_hal_event_hw_init_t>();
  expect_hardware_result<radiod_hal_event_hw_deinit_t>();
  expect_hardware_result<radiod_hal_event_set_config_t>();
  expect_hardware_result<radiod_hal_event_check_config_t>();
  int context = 0;
  std::ostringstream context_text;
  context_text << static_cast<void *>(&context);
  expect_texts(radiod_hal_event_sanity_t{65, 255, "stuck", &context, true},
               " error_origin: 65\n error_class: 255\n error_message: stuck\n hal_context: " + context_text.str() +
                   "\n recovery: ON",
               " error_origin: 0\n error_class: 0\n error_message: \n hal_context: <nullptr>\n recovery: OFF");
  expect_texts(radiod_hal_event_scan_fail_t{3, 5}, " radio_id: 3\n status: TIMEOUT",
               " radio_id: INVALID\n status: SUCCESS");
}

// ---- the stream

// Takes so many characters, then fails.
class short_buffer : public std::streambuf {
public:
  explicit short_buffer(std::size_t room) : room_(room) {}
  std::string taken;

protected:
  int_type overflow(int_type c) override {
    const char character = traits_type::to_char_type(c);
    return xsputn(&character, 1) == 1 ? c : traits_type::eof();
  }
  std::streamsize xsputn(const char *characters, std::streamsize count) override {
    const std::size_t fitting = std::min(static_cast<std::size_t>(count), room_ - taken.size());
    taken.append(characters, fitting);
    return static_cast<std::streamsize>(fitting);
  }

private:
  std::size_t room_;
};

void set_format(std::ostream &stream) {
  stream << std::hex << std::left << std::showbase << std::showpos << std::uppercase << std::scientific
         << std::boolalpha << std::setprecision(1) << std::setfill('#') << std::setw(10);
}

bool has_format(std::ostream &stream) {
  std::ostringstream twin;
  set_format(twin);
  return stream.flags() == twin.flags() && stream.precision() == 1 && stream.fill() == '#' && stream.width() == 10;
}

// One record of each way to print, all longer than a piece of output when repeated.
template <class Check> void for_some_printers(Check check) {
  check(table_of<ravix_channel_list_t>(40, {5260000, 23, 0x47, 0x410, 5}).table);
  check(table_of<ravix_radio_airtime_table_t>(40, {0.5F, 1, 2, 3}).table);
  check(table_of<ravix_scan_table_t>(40, network).table);
  check(some_results().results);
  check(some_parameter().parameter);
  check(table_of<ravix_station_history_table_t>(40, empty<ravix_station_history_entry_t>()).table);
  check(empty<radiod_hal_event_sanity_t>());
  check(channel_42);
}

TEST(Printers, NeitherHeedNorChangeTheFormatOfTheStream) {
  for_some_printers([](const auto &value) {
    std::ostringstream stream;
    set_format(stream);
    stream << value;
    EXPECT_TRUE(has_format(stream));
    EXPECT_EQ(printed_by([&](std::ostream &other) { other << stream.str(); }), text(value));
  });
}

TEST(Printers, LeaveAFailedStreamFailedAndItsFormatAlone) {
  for_some_printers([](const auto &value) {
    const std::size_t whole = text(value).size();
    for (const std::size_t room : {std::size_t{0}, whole / 2, whole - 1}) {
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
        EXPECT_TRUE(stream.bad());
        EXPECT_TRUE(has_format(stream));
        EXPECT_EQ(buffer.taken.size(), room);
      }
    }
  });
}

TEST(Printers, WriteNothingToAStreamThatHasFailedBefore) {
  for_some_printers([](const auto &value) {
    std::ostringstream stream;
    stream.setstate(std::ios_base::failbit);
    stream << value;
    EXPECT_EQ(stream.str(), "");
    std::ostream without_buffer(nullptr);
    without_buffer << value;
    EXPECT_TRUE(without_buffer.bad());
  });
}

TEST(FormatGuard, GivesTheFormatBackOnEveryPath) {
  std::ostringstream stream;
  set_format(stream);
  {
    const zel::ios_copyfmt guard(stream);
    stream << std::dec << std::setw(3) << std::setfill('0') << std::setprecision(9) << std::fixed << 7;
    stream.exceptions(std::ios_base::eofbit);
  }
  EXPECT_TRUE(has_format(stream));
  EXPECT_EQ(stream.exceptions(), std::ios_base::goodbit);
  EXPECT_THROW(
      {
        const zel::ios_copyfmt guard(stream);
        stream << std::oct << std::setfill('0');
        throw 1;
      },
      int);
  EXPECT_TRUE(has_format(stream));

  // Giving back the exception mask of a stream that has failed meanwhile throws; the guard keeps that to itself.
  std::ostringstream strict;
  strict.exceptions(std::ios_base::badbit);
  set_format(strict);
  {
    const zel::ios_copyfmt guard(strict);
    strict.exceptions(std::ios_base::goodbit);
    strict.setstate(std::ios_base::badbit);
    strict << std::dec;
  }
  EXPECT_TRUE(has_format(strict));
}

} // namespace
