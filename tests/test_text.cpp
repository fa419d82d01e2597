// Texts of values, names and flags against the documented printf formats and lists, in a locale with a decimal comma
// and a time zone other than UTC.
#include "ravix_types_str_convert.h"
#include "ravix_types_util.h"

#include "harness.hpp"
#include "zelcsock/clog.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <atomic>
#include <barrier>
#include <chrono>
#include <clocale>
#include <cstdarg>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <ctime>
#include <dlfcn.h>
#include <limits>
#include <locale>
#include <map>
#include <new>
#include <random>
#include <sstream>
#include <string>
#include <thread>
#include <vector>

namespace {

std::atomic<std::size_t> allocations = 0; // by C++ code
bool no_local_time = false;
bool wall_clock_unset = false;

} // namespace

[[gnu::noinline]] void *operator new(std::size_t size) {
  ++allocations;
  if (void *block = std::malloc(size != 0 ? size : 1); block != nullptr) {
    return block;
  }
  throw std::bad_alloc();
}
[[gnu::noinline]] void operator delete(void *block) noexcept {
  std::free(block);
}
[[gnu::noinline]] void operator delete(void *block, std::size_t /*size*/) noexcept {
  std::free(block);
}

// Stands before the C library's, so that it can be made to fail.
extern "C" [[gnu::visibility("default")]] std::tm *localtime_r(const std::time_t *time, std::tm *result) noexcept {
  using function = std::tm *(const std::time_t *, std::tm *);
  static auto *const real = reinterpret_cast<function *>(dlsym(RTLD_NEXT, "localtime_r"));
  return no_local_time ? nullptr : real(time, result);
}

// The same; a device whose wall clock has never been set is behind its own steady clock.
extern "C" [[gnu::visibility("default")]] int clock_gettime(clockid_t clock, std::timespec *now) noexcept {
  using function = int(clockid_t, std::timespec *);
  static auto *const real = reinterpret_cast<function *>(dlsym(RTLD_NEXT, "clock_gettime"));
  const bool unset = wall_clock_unset && clock == CLOCK_REALTIME;
  const int result = real(unset ? CLOCK_MONOTONIC : clock, now);
  now->tv_sec -= unset ? 1000 : 0;
  return result;
}

namespace {

constexpr std::int64_t seconds_east = 5 * 3600 + 30 * 60; // of the tests' time zone

class decimal_comma : public std::numpunct<char> {
  char do_decimal_point() const override { return ','; }
  char do_thousands_sep() const override { return '.'; }
  std::string do_grouping() const override { return "\3"; }
};

// C++ streams always get their comma; C gets one where the machine has such a locale.
class environment : public testing::Environment {
  void SetUp() override {
    setenv("TZ", "AHEAD-5:30", 1); // NOLINT(concurrency-mt-unsafe): before any thread
    tzset();
    std::locale::global(std::locale(std::locale::classic(), new decimal_comma));
    const char *const c_locale = std::setlocale(LC_ALL, "de_DE.UTF-8"); // NOLINT(concurrency-mt-unsafe)
    std::printf("Locale of C: %s\n", c_locale != nullptr ? c_locale : "none with a decimal comma on this machine");
  }
};

const testing::Environment *const registered = testing::AddGlobalTestEnvironment(new environment);

[[gnu::format(printf, 1, 2)]] std::string printed(const char *format, ...) {
  std::array<char, 512> text;
  va_list args;
  va_start(args, format);
  vsnprintf(text.data(), text.size(), format, args);
  va_end(args);
  return text.data();
}

std::mt19937_64 &randomness() {
  static std::mt19937_64 random(1); // NOLINT(cert-msc32-c,cert-msc51-cpp): the same values in each run
  return random;
}

// The limits of the type and of every number of digits, and random values of every size.
template <class Integer> std::vector<Integer> integers() {
  using limits = std::numeric_limits<Integer>;
  std::vector<Integer> values = {0, limits::min(), limits::max(), static_cast<Integer>(limits::min() + 1)};
  for (std::uint64_t power = 1; power <= static_cast<std::uint64_t>(limits::max()) / 10; power *= 10) {
    for (const std::uint64_t value : {power - 1, power, power + 1}) {
      values.push_back(static_cast<Integer>(value));
      values.push_back(static_cast<Integer>(0 - value));
    }
  }
  for (int i = 0; i < 3000; ++i) {
    values.push_back(static_cast<Integer>(randomness()() >> randomness()() % 64));
  }
  return values;
}

template <std::size_t Count> std::array<std::uint8_t, Count> random_octets() {
  std::array<std::uint8_t, Count> octets;
  for (std::uint8_t &octet : octets) {
    octet = static_cast<std::uint8_t>((randomness()() & 0xFF) >> randomness()() % 8);
  }
  return octets;
}

TEST(Values, NumbersWithUnits) {
  for (const std::uint32_t n : integers<std::uint32_t>()) {
    ASSERT_EQ(n == 0 ? "INVALID" : printed("%u kHz", n), ravix_str_frequency(n));
    ASSERT_EQ(printed("%u kbit/s", n), ravix_str_bitrate(n));
  }
  for (const std::int32_t n : integers<std::int32_t>()) {
    ASSERT_EQ(n == 32767 ? "INVALID" : printed("%d dBm", n), ravix_str_power(n));
    ASSERT_EQ(n == INT32_MIN ? "INVALID" : printed("%d", n), ravix_str_index(n));
    if (n < -3 || n > 0) {
      ASSERT_EQ(printed("%d", n), ravix_str_id(n));
    }
  }
  for (unsigned n = 0; n < 1000; ++n) {
    const std::string percentage = n <= 100 ? printed("%u%%", n) : printed("<invalid value '%u'>", n);
    EXPECT_EQ(n == 255 ? "INVALID" : percentage, ravix_str_percentage(n));
    const auto code = static_cast<std::uint8_t>(n);
    const std::string measure = code == 255 ? "INVALID" : printed("%d", code);
    EXPECT_EQ(measure, ravix_str_anpi(code));
    EXPECT_EQ(measure, ravix_str_rcpi(code));
    EXPECT_EQ(measure, ravix_str_rsni(code));
  }
  EXPECT_STREQ("<invalid value '4294967295'>", ravix_str_percentage(UINT32_MAX));
}

TEST(Values, ReservedNumbers) {
  EXPECT_STREQ("UNSPECIFIED", ravix_str_id(-3));
  EXPECT_STREQ("NONE", ravix_str_id(-2));
  EXPECT_STREQ("ALL", ravix_str_id(-1));
  EXPECT_STREQ("INVALID", ravix_str_id(0));
  EXPECT_STREQ("INVALID", ravix_str_index(INT32_MIN));
  EXPECT_STREQ("INVALID", ravix_str_power(32767));
  EXPECT_STREQ("-32768 dBm", ravix_str_power(-32768));
  EXPECT_STREQ("100%", ravix_str_percentage(100));
  EXPECT_STREQ("<invalid value '101'>", ravix_str_percentage(101));
}

TEST(Values, FrequencyWithChannel) {
  EXPECT_STREQ("2412 MHz (  1)", ravix_str_wifi_freq(2412000));
  EXPECT_STREQ("5885 MHz (177)", ravix_str_wifi_freq(5885000));
  EXPECT_STREQ("58320 MHz (  1)", ravix_str_wifi_freq(58320000));
  EXPECT_STREQ("7125000 kHz", ravix_str_wifi_freq(7125000)) << "no channel";
  EXPECT_STREQ("INVALID", ravix_str_wifi_freq(0));
  for (std::uint32_t frequency = 2000000; frequency < 66000000; frequency += 4999) {
    const std::uint32_t channel = ravix_frequency_to_channel(frequency);
    ASSERT_EQ(channel != 0 ? printed("%4u MHz (%3u)", frequency / 1000, channel) : printed("%u kHz", frequency),
              ravix_str_wifi_freq(frequency));
  }
}

template <class Bits> std::string bits_of(Bits value) {
  std::string text;
  for (int bit = std::numeric_limits<Bits>::digits; bit-- > 0;) {
    text += (value >> bit & 1) != 0 ? '1' : '0';
  }
  return text;
}

template <class Bits> void expect_bits(const char *(*format)(Bits)) {
  for (const Bits value : integers<Bits>()) {
    ASSERT_EQ(bits_of(value), format(value));
  }
}

TEST(Values, BitPatterns) {
  EXPECT_STREQ("00000101", ravix_str_bitfield_8(5));
  expect_bits(ravix_str_bitfield_8);
  expect_bits(ravix_str_bitfield_16);
  expect_bits(ravix_str_bitfield_32);
  expect_bits(ravix_str_bitfield_64);
}

TEST(Values, Addresses) {
  for (int i = 0; i < 3000; ++i) {
    const auto o = random_octets<16>();
    ASSERT_EQ(printed("%02X:%02X:%02X:%02X:%02X:%02X", o[0], o[1], o[2], o[3], o[4], o[5]), ravix_str_mac(o.data()));
    ASSERT_EQ(printed("%02X%02X%02X%02X-%02X%02X-%02X%02X-%02X%02X-%02X%02X%02X%02X%02X%02X", o[0], o[1], o[2], o[3],
                      o[4], o[5], o[6], o[7], o[8], o[9], o[10], o[11], o[12], o[13], o[14], o[15]),
              ravix_str_uuid(o.data()));
    ravix_ip_addr_t ip{RAVIX_IP_VERSION_4, {}};
    std::copy(o.begin(), o.end(), ip.addr);
    ASSERT_EQ(printed("%u.%u.%u.%u", o[0], o[1], o[2], o[3]), ravix_str_ip_addr(&ip));
    ip.version = RAVIX_IP_VERSION_6;
    const auto group = [&](std::size_t octet) { return static_cast<unsigned>(o[octet] << 8 | o[octet + 1]); };
    ASSERT_EQ(printed("%x:%x:%x:%x:%x:%x:%x:%x", group(0), group(2), group(4), group(6), group(8), group(10), group(12),
                      group(14)),
              ravix_str_ip_addr(&ip));
  }
  ravix_ip_addr_t ip{RAVIX_IP_VERSION_6, {}};
  ip.addr[15] = 1;
  EXPECT_STREQ("0:0:0:0:0:0:0:1", ravix_str_ip_addr(&ip));
  for (const unsigned version : {0U, 3U, 255U}) {
    ip.version = static_cast<std::uint8_t>(version);
    EXPECT_EQ(printed("<Invalid IP version: %u>", version), ravix_str_ip_addr(&ip));
  }
}

ravix_ssid_t ssid_of(std::string_view octets, std::size_t length) {
  ravix_ssid_t ssid{static_cast<std::uint8_t>(length), {}};
  std::copy(octets.begin(), octets.end(), ssid.ssid);
  return ssid;
}

TEST(Values, Ssid) {
  using namespace std::string_view_literals;
  struct {
    const char *why;
    std::string_view octets;
    std::size_t length;
    const char *plain;
    const char *hex;
  } const rows[] = {
      {"empty", ""sv, 0, "'' (len=0)", "'' (len=0)"},
      {"printable", "My net"sv, 6, "'My net' (len=6)", "'My net' (len=6)"},
      {"unprintable, with a zero", "a\0\x0a\xffz"sv, 5, "'a   z' (len=5)", "'a   z'/[ 61 00 0a ff 7a ] (len=5)"},
      {"a quote needs no care", "'"sv, 1, "''' (len=1)", "''' (len=1)"},
      {"as long as can be", "0123456789abcdef0123456789abcde\x01"sv, 32, "'0123456789abcdef0123456789abcde ' (len=32)",
       "'0123456789abcdef0123456789abcde '/[ 30 31 32 33 34 35 36 37 38 39 61 62 63 64 65 66 "
       "30 31 32 33 34 35 36 37 38 39 61 62 63 64 65 01 ] (len=32)"},
      {"a bad length is shown, the text is cut", "0123456789abcdef0123456789abcdefX"sv, 40,
       "'0123456789abcdef0123456789abcdef' (len=40)", "'0123456789abcdef0123456789abcdef' (len=40)"},
      {"the octet behind the text does not count", "0123456789abcdef0123456789abcdef\x01"sv, 255,
       "'0123456789abcdef0123456789abcdef' (len=255)", "'0123456789abcdef0123456789abcdef' (len=255)"},
  };
  for (const auto &row : rows) {
    const ravix_ssid_t ssid = ssid_of(row.octets, row.length);
    EXPECT_STREQ(row.plain, ravix_str_ssid(&ssid, false)) << row.why;
    EXPECT_STREQ(row.hex, ravix_str_ssid(&ssid, true)) << row.why;
  }
}

TEST(Values, ChannelDescription) {
  const ravix_channel_info_t golden[] = {{5180000, 5210000, RAVIX_CHANNEL_WIDTH_80, 0x0002},
                                         {2412000, 2412000, RAVIX_CHANNEL_WIDTH_20, 0},
                                         {58320999, 0, 8, 0xFFFF},
                                         {0, 0, 0, 0}};
  EXPECT_STREQ("5180/5210/ 80/0002/ 34- 50", ravix_str_channel_info(&golden[0]));
  EXPECT_STREQ("2412/2412/ 20/0000/  1-  3", ravix_str_channel_info(&golden[1]));
  EXPECT_STREQ("58320/   0/INV/ffff/  0-  0", ravix_str_channel_info(&golden[2]));
  EXPECT_STREQ("   0/   0/INV/0000/  0-  0", ravix_str_channel_info(&golden[3]));
  const std::map<unsigned, const char *> labels = {{1, "20"}, {2, "40"}, {4, "80"}, {16, "160"}, {32, "320"}};
  for (int i = 0; i < 3000; ++i) {
    const auto width = static_cast<std::uint16_t>(i % 40);
    ravix_channel_info_t info{};
    const auto primary = static_cast<std::uint32_t>(5955000 + randomness()() % 59 * 20000);
    if (!ravix_create_channel_info(primary, width, i % 2 == 0, 0, &info)) {
      info = {static_cast<std::uint32_t>(randomness()()), static_cast<std::uint32_t>(randomness()()), width,
              static_cast<std::uint16_t>((randomness()() & 0xFFFF) >> randomness()() % 16)};
    }
    std::uint32_t lowest = 0;
    std::uint32_t highest = 0;
    ravix_channel_info_to_lowest_and_highest_channel(&info, &lowest, &highest);
    ASSERT_EQ(printed("%4u/%4u/%3s/%04x/%3u-%3u", info.primary_freq / 1000, info.center_freq / 1000,
                      labels.count(width) != 0 ? labels.at(width) : "INV", info.puncture_map, lowest, highest),
              ravix_str_channel_info(&info));
  }
}

// What has to be added to a steady-clock time for the wall-clock time, in nanoseconds.
std::int64_t wall_offset() {
  using namespace std::chrono;
  const auto nanoseconds_of = [](auto now) { return duration_cast<nanoseconds>(now.time_since_epoch()).count(); };
  return nanoseconds_of(system_clock::now()) - nanoseconds_of(steady_clock::now());
}

std::string stamp_text(std::int64_t seconds, std::int64_t stamp) {
  const auto local = static_cast<std::time_t>(seconds + seconds_east);
  std::tm date{};
  gmtime_r(&local, &date);
  return printed("%02d.%02d.%04d %02d:%02d:%02d/[%lld.%03lld]", date.tm_mday, date.tm_mon + 1, date.tm_year + 1900,
                 date.tm_hour, date.tm_min, date.tm_sec, static_cast<long long>(stamp / 1000),
                 static_cast<long long>(stamp % 1000));
}

TEST(Values, TimeStamp) {
  EXPECT_STREQ("", ravix_str_timestamp(INT64_MAX));
  std::vector<std::int64_t> stamps = {0, 1, 999, 1000, 12345678, -1, -999, -1500};
  for (int i = 0; i < 2000; ++i) {
    const std::int64_t range = i % 2 == 0 ? 7'000'000'000'000 : 2'000'000;
    stamps.push_back(static_cast<std::int64_t>(randomness()()) % range);
  }
  for (const std::int64_t stamp : stamps) {
    wall_clock_unset = stamp % 3 == 0;
    const std::string before = stamp_text((wall_offset() + stamp * 1000000) / 1000000000, stamp);
    const std::string text = ravix_str_timestamp(stamp);
    const std::string after = stamp_text((wall_offset() + stamp * 1000000) / 1000000000, stamp);
    wall_clock_unset = false;
    ASSERT_TRUE(text == before || text == after) << text << " should be " << before;
  }
}

TEST(Values, TimeStampBeyondTheNanoseconds) {
  for (const std::int64_t stamp : {INT64_MAX - 1, INT64_MIN, INT64_MIN + 999, INT64_MAX / 1000}) {
    const std::int64_t seconds = stamp / 1000 + wall_offset() / 1000000000;
    const std::string text = ravix_str_timestamp(stamp);
    EXPECT_TRUE(text == stamp_text(seconds - 1, stamp) || text == stamp_text(seconds, stamp) ||
                text == stamp_text(seconds + 1, stamp))
        << text;
  }
}

TEST(Values, TimeStampWithoutLocalTime) {
  no_local_time = true;
  EXPECT_STREQ("[12345.678]", ravix_str_timestamp(12345678));
  EXPECT_STREQ("[0.005]", ravix_str_timestamp(5));
  EXPECT_STREQ("[-1.-500]", ravix_str_timestamp(-1500));
  EXPECT_STREQ("[-9223372036854775.-808]", ravix_str_timestamp(INT64_MIN));
  no_local_time = false;
}

TEST(Values, NullPointers) {
  harness::captured_log log;
  const char *last = ravix_str_bitrate(1);
  struct {
    const char *function;
    const char *text;
  } const rows[] = {{"ravix_str_ip_addr", ravix_str_ip_addr(nullptr)},
                    {"ravix_str_mac", ravix_str_mac(nullptr)},
                    {"ravix_str_uuid", ravix_str_uuid(nullptr)},
                    {"ravix_str_ssid_impl", ravix_str_ssid(nullptr, true)},
                    {"ravix_str_channel_info", ravix_str_channel_info(nullptr)}};
  const std::vector<harness::log_line> lines = log.take();
  ASSERT_EQ(std::size(rows), lines.size());
  for (std::size_t i = 0; i < lines.size(); ++i) {
    EXPECT_STREQ("", rows[i].text);
    EXPECT_EQ("ravix", lines[i].name);
    EXPECT_EQ("src/ravix_types_str_convert", lines[i].file);
    EXPECT_EQ(rows[i].function, lines[i].function);
    EXPECT_GT(lines[i].line, 0);
    EXPECT_EQ("Invalid pointer 'value'!", lines[i].text);
  }
  const char *next = ravix_str_bitrate(2);
  EXPECT_TRUE(next == last + std::strlen(last) + 1 || next < last) << "nothing was written in between";
}

// --- Names ---

struct names {
  const char *function;
  std::string (*shown)(std::int64_t value);
  const char *list; // name=value|...
};

template <auto Function> struct argument_of;
template <class Argument, const char *(*Function)(Argument)> struct argument_of<Function> { using type = Argument; };

template <auto Function> std::string shown(std::int64_t value) {
  return Function(static_cast<typename argument_of<Function>::type>(value));
}

const names value_names[] = {
    {"device_class", shown<ravix_str_device_class>,
     "INVALID_MIN=0|ROUTER=1|REPEATER=2|POWERLINE=3|CLIENT=4|INVALID_MAX=5"},
    {"encryption", shown<ravix_str_encryption>, "INVALID_MIN=0|OPEN=1|RSN=2|WPA_MIXED=3|INVALID_MAX=4"},
    {"encryption_akm", shown<ravix_str_encryption_akm>, "INVALID_MIN=0|PSK=1|SAE=2|OWE=3|SAE_EXT=4|INVALID_MAX=5"},
    {"encryption_cipher_suite", shown<ravix_str_encryption_cipher_suite>,
     "INVALID_MIN=0|TKIP=1|CCMP128=2|GCMP256=3|INVALID_MAX=4"},
    {"encryption_group_mgmt_cipher", shown<ravix_str_encryption_group_mgmt_cipher>,
     "INVALID_MIN=0|BIP_CMAC128=1|BIP_GMAC256=2|INVALID_MAX=3"},
    {"pmf_mode", shown<ravix_str_pmf_mode>, "INVALID_MIN=0|DISABLED=1|SUPPORTED=2|MANDATORY=3|INVALID_MAX=4"},
    {"pwe_mode", shown<ravix_str_pwe_mode>, "INVALID_MIN=0|HAP=1|HAP_H2E=2|H2E=3|INVALID_MAX=4"},
    {"radio_band", shown<ravix_str_radio_band>, "INVALID_MIN=0|2.4 GHz=1|5 GHz=2|6 GHz=4|INVALID_MAX=5"},
    {"radio_sub_band", shown<ravix_str_radio_sub_band>, "INVALID_MIN=0|FULL=1|LOW=3|HIGH=2|INVALID_MAX=4"},
    {"mac_access_type", shown<ravix_str_mac_access_type>, "INVALID_MIN=0|WHITELIST=1|BLACKLIST=2|INVALID_MAX=3"},
    {"simulated_event_type", shown<ravix_str_simulated_event_type>,
     "INVALID_MIN=0|RADAR=1|INTERFERENCE=2|INVALID_MAX=3"},
    {"role_opmode", shown<ravix_str_role_opmode>,
     "INVALID_MIN=0|AP_HOME=1|AP_GUEST=2|ATACLIENT=3|REPEATER=6|AP_HOTSPOT=7|AP_HOME_OWE=8|"
     "AP_GUEST_OWE=9|AP_HOTSPOT_OWE=10|INVALID_MAX=11"},
    {"station_type", shown<ravix_str_station_type>,
     "INVALID_MIN=0|AP=1|WDS=2|CLIENT=3|ADHOC=4|UNKNOWN=5|ZEL_STA=6|ZEL_AP=7|ZEL_AP_STALINK=8|"
     "INVALID_MAX=9"},
    {"sta_state", shown<ravix_str_sta_state>,
     "INVALID_MIN=0|DISCONNECTED=1|AUTHENTICATED=2|ASSOCIATED=3|CONNECTED=4|UNKNOWN=5|"
     "INVALID_MAX=6"},
    {"special_handling_trigger", shown<ravix_str_special_handling_trigger>,
     "INVALID_MIN=0|CHANGE_CFG=1|CHANGE_COUNTRY=2|CHANGE_LANGUAGE=3|CHANGE_FW=4|INVALID_MAX=5"},
    {"security", shown<ravix_str_security>,
     "INVALID_MIN=0|UNDEF=1|NONE=2|WPAPSK=5|WPA2PSK=6|WPA_MIXED=7|WPAENT=8|WPA2ENT=9|"
     "WPA3PSK=10|WPA2_WPA3=11|OWE=12|OWE_TRANS=13|INVALID_MAX=14"},
    {"role_state", shown<ravix_str_role_state>,
     "INVALID_MIN=0|UNCONFIGURED=1|CONFIGURING=2|INACTIVE=3|INITIATING=4|SCANNING=5|DFS_WAIT=6|"
     "ACS_ACTIVE=7|WAIT_FOR_UPLINK=8|UPLINK_ESTABLISHED=9|WPS_ACTIVE=10|ON_AIR=11|"
     "DEACTIVATED=12|CONFIGURED_FINAL=13|INVALID_MAX=14"},
    {"radar_type", shown<ravix_str_radar_type>,
     "INVALID_MIN=0|ETSI_UNKNOWN=1|ETSI_1=2|ETSI_2=3|ETSI_3=4|ETSI_4=5|ETSI_5=6|ETSI_6=7|"
     "ETSI_MXL_NORMAL=8|ETSI_MXL_HOPPING=9|UNKNOWN=10|INVALID_MAX=11"},
    {"event", shown<ravix_str_event>,
     "INVALID_MIN=0|SCAN_FINISHED=1|RADIOD_TERMINATED=2|LOG_EVENT=3|CLIENT_STATE_CHANGE=4|"
     "BSS_TRANSITION_RESPONSE=5|BEACON_REPORT_RESPONSE=6|RSSI_UPDATE=7|MEDIUM_LOAD_UPDATE=8|"
     "PROBE_REQUEST_EVENT=9|STA_ACTIVITY_UPDATE=10|GREEN_AP=11|RADAR_DETECTED=12|RADAR_WAIT=13|"
     "RADAR_PRECAC=14|CHANNEL_CHANGE=15|INTERFERENCE=16|COEXISTENCE_SWITCH=17|"
     "ROLE_STATE_CHANGE=18|BSS_TRANSITION_QUERY=19|CONNECT=20|INVALID_MAX=21"},
    {"device_opmode", shown<ravix_str_device_opmode>,
     "INVALID_MIN=0|AP=1|REPEATER=2|ATA=3|CLIENT=5|INACTIVE=6|INVALID_MAX=7"},
    {"connect_status", shown<ravix_str_connect_status>,
     "DPP_START=2|WALKING=1|SUCCESS=0|FAIL_GENERAL=-1|FAIL_TIMEOUT=-2|FAIL_TERMINATE=-3|"
     "FAIL_NOT_ALLOWED=-4|FAIL_DFS_RUNNING=-5|FAIL_OVERLAP=-6"},
    {"connect_method", shown<ravix_str_connect_method>, "INVALID_MIN=0|PBC=1|INVALID_MAX=2"},
    {"channel_width", shown<ravix_str_channel_width>, "INVALID=0|20 MHz=1|40 MHz=2|80 MHz=4|160 MHz=16|320 MHz=32"},
    {"channel_change_reason", shown<ravix_str_channel_change_reason>,
     "INVALID_MIN=0|INTERFERENCE=1|RADAR=2|COEXISTENCE=3|INVALID_MAX=5"},
    {"param_id", shown<ravix_str_param_id>,
     "INVALID_MIN=0|GROUP=1|CTL_LOGLVL=2|MLD_ROLE_LIST=3|ROLE_CONFIG=4|ENABLED=5|CONFIGURED=6|"
     "FORCE_OFF=7|WLAN_MODE=8|CHANNEL_WIDTH=9|CHANNEL=10|CHANNEL_EX=11|CHANNEL_INFO=103|"
     "AUTO_SETTINGS=12|AUTOCHANNEL_PLUS=13|STATION_TYPE=14|ROLE_OPMODE=15|POWER_LEVEL=16|"
     "KEY_VAL=17|SSID=19|MAC_LIST=20|SECURITY=21|OWE_TRANSITION_ACTIVE=22|"
     "OWE_TRANSITION_BSSID=23|OWE_TRANSITION_SSID=24|OWE_TRANSITION_ROLE=25|WPS_VERSION=26|"
     "WPS_ENABLE=27|WPS_MODE=28|WPS_DEVICENAME=29|WPS_DEVICE_PASSWORD=30|WPS_UUID=31|"
     "WPS_CF_METHODS_SUP=32|WPS_CF_METHODS_EN=33|WPS_SETUP_LOCKED_STATE=34|WPS_SETUP_LOCK=35|"
     "WPS_CFG_STATE=36|WPS_LAST_CFG_ERROR=37|RSSI=38|TIME_AGE=39|TIME_BLOCKED=40|RADIOBAND=41|"
     "CAPABILITIES=42|FREQUENCY=43|QUALITY=44|NOISE=45|WDS_MASTER_MAC=46|FEATURES=47|"
     "TIMEOUT_ACTIVE=48|TIMEOUT_MINUTES=49|BRIDGE_MODE=50|NETWORK_TYPE=51|MAX_CLIENTS=52|"
     "MIN_CLIENT_RSSI=53|MAX_CLIENT_LOGIN_TIME=54|MAX_CLIENT_IDLE_TIME=55|"
     "MAX_CLIENT_TRAFFIC=56|AUTH_SERVER=57|ACCT_SERVER=58|ACCESS_CONTROL_MAX_CLIENTS=59|"
     "AUTOCHANNEL_PLUS_11A=60|MIMO_STREAMS=61|AVG_TX_RATE=62|AVG_RX_RATE=63|MAX_TX_RATE=64|"
     "MAX_RX_RATE=65|CONNECTED=66|AUTO_UPDATE=67|PMF_MODE=68|MEDIUM_CHANNEL_LOAD=69|"
     "RADIO_SUB_BAND=70|HAL_ID_END=112|IGNORE=114|HW_ID=71|SSID_SET=72|IP_ADDR=73|PORT=74|"
     "ACCESS_CONTROL=75|ACCESS_CONTROL_ROLE=76|TIME_CONTROL=77|COUNTRY_CODE=78|VENDOR_ID=79|"
     "ACS_CONTROL=80|CHIP_TYPE=81|CFG_SECURITY=82|GUEST_MODE=83|IDENTIFIER=84|ROLE_STATIC=85|"
     "RADIO_STATIC=86|RADIUS_SECRET=87|RADIUS_SERVER=88|STRING=89|UPLINK=90|LANGUAGE=91|"
     "COUNTRY=92|DBG_SETTINGS=93|DEVICE_OPMODE=94|LOG_CONTROL=95|KCL=96|MESH_SETTINGS=97|"
     "REPEATING=98|MAC=99|MAC_ADDR_INDEX=101|DESCR=100|IF_NAME=102|PUNCTURE_MAP=106|"
     "MLO_LINK_ID=107|MLO_MODES_SUPPORTED=108|MLD_MAC=109|RSN_ELEMENT=110|RSNO_ELEMENTS=111|"
     "INVALID_MAX=113"},
};

const names flag_names[] = {
    {"channel_capabilities", shown<ravix_str_channel_capabilities>,
     "HT20=0x1|HT40=0x2|HT80=0x4|HT160=0x10|HT320=0x20|DFS=0x40|DFS_WEATHER=0x80"},
    {"wlan_mode", shown<ravix_str_wlan_mode>, "11A=0x1|11B=0x2|11G=0x4|11N=0x8|11AC=0x10|11AX=0x20|11BE=0x40"},
    {"channel_user_flags", shown<ravix_str_channel_user_flags>,
     "REMOTE_DISTURBER=0x1|PERFORMANCE_OPTIMIZATION=0x2|DEBUG=0x4"},
    {"event_log_control", shown<ravix_str_event_log_control>, "INFO=0x1|WARNING=0x2|ERROR=0x4"},
    {"mlo_mode", shown<ravix_str_mlo_mode>,
     "AUTO=0x1|MLSR=0x2|EMLSR_STR=0x4|EMLSR_NSTR=0x8|MLMR_STR=0x10|MLMR_NSTR=0x20|"
     "EMLMR_STR=0x40|EMLMR_NSTR=0x80"},
    {"features", shown<ravix_str_features>,
     "HIDDEN_SSID=0x1|USER_ISOLATION=0x4|AUTO_CHANNEL=0x8|IPTV_OPTIMIZE=0x20|COEXISTENCE=0x400|"
     "TIME_CONTROL=0x8000"},
    {"channel_state", shown<ravix_str_channel_state>,
     "ACTIVE=0x1|PRI_CHAN=0x2|PRECAC_TODO=0x4|CAC_RUNNING=0x8|DFS_CLEAR=0x10|RADAR_FOUND=0x20|"
     "INTERFERENCE_FOUND=0x40|1_MINUTE_OFF=0x100|10_MINUTES_OFF=0x200|PUNCTURED=0x400"},
    {"capabilities", shown<ravix_str_capabilities>,
     "WPA_PSK=0x1|WPA_ENT=0x2|WPA2_PSK=0x4|WPA2_ENT=0x8|WPA3_PSK=0x800000|OWE=0x1000000|"
     "OWE_TRANS=0x2000000|PMF=0x1000|PRIVACY=0x80|WPS=0x10|2GHZ=0x20000|5GHZ=0x40000|"
     "6GHZ=0x8000000|WME=0x20|STBC=0x100|LDPC=0x200|WME_PS=0x400|TXBF=0x800|AMSDU=0x2000|"
     "AMPDU=0x4000|UAPSD=0x8000|MUMIMO=0x10000|11N_2G_256QAM=0x400000|11NAC_1024QAM=0x4000000|"
     "RRM=0x80000|FBT=0x100000|BTM=0x200000|MLO=0x10000000|QCA=0x40|MINI=0x20000000|"
     "ZEL=0x80000000|ZELWDS=0x40000000"},
};

std::vector<std::pair<std::int64_t, std::string>> entries(const names &listed) {
  std::vector<std::pair<std::int64_t, std::string>> result;
  std::istringstream list(listed.list);
  for (std::string entry; std::getline(list, entry, '|');) {
    const std::size_t equals = entry.find('=');
    result.emplace_back(std::strtoll(entry.c_str() + equals + 1, nullptr, 0), entry.substr(0, equals));
  }
  return result;
}

TEST(Names, EveryValue) {
  for (const names &listed : value_names) {
    std::map<std::int64_t, std::string> expected;
    for (const auto &[value, name] : entries(listed)) {
      EXPECT_TRUE(expected.emplace(value, name).second) << listed.function << ": " << value;
    }
    const bool is_signed = listed.shown == shown<ravix_str_connect_status>;
    for (std::int64_t value = -300; value <= 70000; value += value < 300 ? 1 : 997) {
      const auto unknown = is_signed ? printed("<invalid value: %d>", static_cast<std::int32_t>(value))
                                     : printed("<invalid value: %u>", static_cast<std::uint32_t>(value));
      ASSERT_EQ(expected.count(value) != 0 ? expected.at(value) : unknown, listed.shown(value)) << listed.function;
    }
  }
}

TEST(Names, FlagsInTheOrderOfTheirList) {
  for (const names &listed : flag_names) {
    const auto flags = entries(listed);
    std::vector<std::uint64_t> sets = {0, UINT64_MAX, UINT32_MAX};
    for (unsigned bit = 0; bit < 64; ++bit) {
      sets.push_back(std::uint64_t{1} << bit);
    }
    for (int i = 0; i < 300; ++i) {
      const std::uint64_t sparse = randomness()();
      sets.push_back(sparse & randomness()());
    }
    for (const std::uint64_t set : sets) {
      std::string text = "[ ";
      for (const auto &[flag, name] : flags) {
        text += (set & static_cast<std::uint64_t>(flag)) != 0 ? name + " " : "";
      }
      ASSERT_EQ(text + "]", listed.shown(static_cast<std::int64_t>(set))) << listed.function;
    }
  }
}

TEST(Names, Status) {
  const std::map<std::int32_t, const char *> named = {{0, "SUCCESS"},
                                                      {1, "FINISHED"},
                                                      {2, "PENDING"},
                                                      {3, "READY"},
                                                      {4, "CANCELED"},
                                                      {5, "TIMEOUT"},
                                                      {-2147483647, "FAIL_GENERAL"},
                                                      {-2147483646, "FAIL_NOT_SUPPORTED"},
                                                      {-2147483645, "FAIL_NOT_APPLICABLE"},
                                                      {-2147483644, "FAIL_SUBORDINATED"},
                                                      {-2147483641, "FAIL_PARSING"}};
  for (const auto &[status, name] : named) {
    EXPECT_STREQ(name, ravix_str_status(status));
  }
  for (const std::int32_t status : {-1, -12, -22, -4711, 6, 22, INT32_MAX, -2147483642, -2147483643}) {
    EXPECT_EQ(std::string(std::strerror(-status)), ravix_str_status(status)); // NOLINT(concurrency-mt-unsafe)
  }
  EXPECT_STRNE("", ravix_str_status(INT32_MIN)) << "cannot be negated";
  EXPECT_STREQ("ON", ravix_str_enabled(true));
  EXPECT_STREQ("OFF", ravix_str_enabled(false));
}

// --- The area that the texts share ---

TEST(Area, TextsFollowEachOtherToTheLastCharacter) {
  const auto any_text = [](int i) {
    const auto n = static_cast<std::uint32_t>(randomness()() >> randomness()() % 64);
    return i % 3 == 0 ? ravix_str_bitrate(n) : i % 3 == 1 ? ravix_str_capabilities(n) : ravix_str_timestamp(n);
  };
  const char *area = any_text(0);
  for (int i = 0; i < 1000; ++i) {
    area = std::min(area, any_text(i)); // until its begin has been seen
  }
  const char *text = any_text(0);
  for (int i = 0; i < 20000; ++i) {
    const char *follows = text + std::strlen(text) + 1;
    text = any_text(i);
    ASSERT_EQ(follows + std::strlen(text) < area + 4096 ? follows : area, text) << text;
  }
}

TEST(Area, FixedWordsAreNoPartOfIt) {
  const char *before = ravix_str_bitrate(1);
  const std::pair<const char *, const char *> words[] = {
      {"INVALID", ravix_str_frequency(0)},      {"NONE", ravix_str_id(-2)},
      {"INVALID", ravix_str_power(32767)},      {"INVALID", ravix_str_percentage(255)},
      {"DISCONNECTED", ravix_str_sta_state(1)}, {"ON", ravix_str_enabled(true)},
      {"SUCCESS", ravix_str_status(0)},         {"", ravix_str_timestamp(INT64_MAX)}};
  const char *after = ravix_str_bitrate(2);
  EXPECT_TRUE(after == before + std::strlen(before) + 1 || after < before);
  for (int i = 0; i < 1000; ++i) {
    ravix_str_bitrate(1000000000);
  }
  for (const auto &[word, text] : words) {
    EXPECT_STREQ(word, text);
  }
}

TEST(Area, NoFormatterAllocates) {
  const harness::heap heap;
  const std::array<std::uint8_t, 16> octets = random_octets<16>();
  const ravix_ip_addr_t ip{RAVIX_IP_VERSION_6, {}};
  const ravix_ssid_t ssid = ssid_of("\x01\x02", 2);
  const ravix_channel_info_t info{5180000, 5210000, RAVIX_CHANNEL_WIDTH_80, 0};
  const std::size_t before = allocations;
  for (std::uint32_t i = 0; i < 1000; ++i) { // round the area, too
    ravix_str_wifi_freq(5180000 + i);
    ravix_str_timestamp(i);
    ravix_str_mac(octets.data());
    ravix_str_uuid(octets.data());
    ravix_str_ip_addr(&ip);
    ravix_str_ssid(&ssid, true);
    ravix_str_channel_info(&info);
    ravix_str_capabilities(i);
    ravix_str_event(i);
  }
  EXPECT_EQ(before, allocations);
  EXPECT_EQ(0U, heap.requests());
}

// A log sink may format: no line may be written under the formatters' lock.
TEST(Area, LogSinkMayFormat) {
  static std::string seen;
  clog_host_set_sink([](void *, const char *, const char *, const char *, int,
                        const char *text) { seen = std::string(text) + ravix_str_bitrate(7); },
                     nullptr);
  ravix_str_mac(nullptr);
  clog_host_set_sink(nullptr, nullptr);
  EXPECT_EQ("Invalid pointer 'value'!7 kbit/s", seen);
}

// Eight threads format at once. In one round they make no more text than the area holds, so that all of it can be read
// when all have finished. RAVIX_TEST_ROUNDS sets the number of rounds.
TEST(Area, EightThreads) {
  constexpr std::size_t threads = 8;
  const char *wanted = std::getenv("RAVIX_TEST_ROUNDS"); // NOLINT(concurrency-mt-unsafe)
  const long rounds = wanted != nullptr ? std::strtol(wanted, nullptr, 10) : 300;
  std::barrier<> together(threads);
  std::array<std::string, threads> failures;
  std::vector<std::thread> workers;
  for (unsigned id = 0; id < threads; ++id) {
    workers.emplace_back([&, id] {
      std::mt19937 random(id);
      for (long round = 0; round < rounds; ++round) {
        const auto n = static_cast<std::uint32_t>(random());
        const auto octet = [n](int shift) { return static_cast<std::uint8_t>(n >> shift); };
        const std::array<std::uint8_t, 6> mac = {octet(0), octet(8), octet(16), octet(24), octet(4), octet(12)};
        const ravix_ssid_t ssid = ssid_of("abcdefgh", id + 1);
        std::array<const char *, 6> texts = {};
        together.arrive_and_wait();
        texts[0] = ravix_str_mac(mac.data());
        texts[1] = ravix_str_ssid(&ssid, true);
        texts[2] = ravix_str_bitrate(n);
        texts[3] = ravix_str_wlan_mode(n & 0x7F);
        texts[4] = ravix_str_sta_state(100 + id);
        texts[5] = ravix_str_bitfield_32(n);
        together.arrive_and_wait();
        std::string modes = "[ ";
        const char *const names_of_bits[] = {"11A", "11B", "11G", "11N", "11AC", "11AX", "11BE"};
        for (unsigned bit = 0; bit < 7; ++bit) {
          modes += (n >> bit & 1) != 0 ? std::string(names_of_bits[bit]) + " " : "";
        }
        const std::array<std::string, 6> expected = {
            printed("%02X:%02X:%02X:%02X:%02X:%02X", mac[0], mac[1], mac[2], mac[3], mac[4], mac[5]),
            printed("'%.*s' (len=%u)", static_cast<int>(id + 1), "abcdefgh", id + 1),
            printed("%u kbit/s", n),
            modes + "]",
            printed("<invalid value: %u>", 100 + id),
            bits_of(n)};
        for (std::size_t i = 0; i < texts.size(); ++i) {
          if (expected[i] != texts[i]) {
            failures[id] = expected[i] + " became " + texts[i];
          }
        }
        together.arrive_and_wait();
      }
    });
  }
  for (std::thread &worker : workers) {
    worker.join();
  }
  for (const std::string &failure : failures) {
    EXPECT_EQ("", failure);
  }
}

} // namespace
