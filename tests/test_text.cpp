// Texts of values, names and flags against the documented printf formats and lists, in a locale with a decimal comma
// and a time zone other than UTC.
#include "ravix_types_str_convert.h"
#include "ravix_types_util.h"

#include "golden.hpp"
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
#include <functional>
#include <limits>
#include <locale>
#include <map>
#include <new>
#include <random>
#include <sstream>
#include <string>
#include <string_view>
#include <thread>
#include <type_traits>
#include <utility>
#include <vector>

namespace {

std::atomic<std::size_t> allocations = 0;                 // by C++ code
constexpr std::int64_t seconds_east = 5 * 3600 + 30 * 60; // of the tests' time zone
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
extern "C" [[gnu::visibility("default")]] std::tm *
localtime_r(const std::time_t *time, std::tm *result) noexcept(noexcept(localtime_r(time, result))) {
  const auto local = static_cast<std::time_t>(*time + seconds_east);
  return no_local_time ? nullptr : gmtime_r(&local, result);
}

#ifdef __GLIBC__ // a static program cannot reach the C library's own
// The same; a device whose wall clock has never been set is behind its own steady clock.
extern "C" [[gnu::visibility("default")]] int clock_gettime(clockid_t clock, std::timespec *now) noexcept {
  using function = int(clockid_t, std::timespec *);
  static auto *const real = reinterpret_cast<function *>(dlsym(RTLD_NEXT, "clock_gettime"));
  const bool unset = wall_clock_unset && clock == CLOCK_REALTIME;
  const int result = real(unset ? CLOCK_MONOTONIC : clock, now);
  now->tv_sec -= unset ? 1000 : 0;
  return result;
}
#endif

namespace {

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
}

TEST(Values, ChannelDescription) {
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
  std::vector<std::int64_t> stamps = {0, 1, 999, 1000, 12345678, -1, -999, -1500};
  for (int i = 0; i < 2000; ++i) {
    const std::int64_t range = i % 2 == 0 ? 7'000'000'000'000 : 2'000'000;
    stamps.push_back(static_cast<std::int64_t>(randomness()()) % range);
  }
  for (const std::int64_t stamp : stamps) {
    wall_clock_unset = stamp % 3 == 0;
    const auto wanted = [stamp] { return stamp_text((wall_offset() + stamp * 1000000) / 1000000000, stamp); };
    const std::string before = wanted();
    const std::string text = ravix_str_timestamp(stamp);
    ASSERT_TRUE(text == before || text == wanted()) << text << " should be " << before;
  }
  wall_clock_unset = false;
  // In nanoseconds these exceed 64 bits.
  for (const std::int64_t stamp : {INT64_MAX - 1, INT64_MIN, INT64_MIN + 999, INT64_MAX / 1000}) {
    const std::int64_t seconds = stamp / 1000 + wall_offset() / 1000000000;
    const std::string text = ravix_str_timestamp(stamp);
    EXPECT_TRUE(text == stamp_text(seconds - 1, stamp) || text == stamp_text(seconds, stamp) ||
                text == stamp_text(seconds + 1, stamp))
        << text;
  }
}

ravix_ssid_t ssid_of(std::string_view octets, std::size_t length) {
  ravix_ssid_t ssid{static_cast<std::uint8_t>(length), {}};
  std::copy(octets.begin(), octets.end(), ssid.ssid);
  return ssid;
}

template <class Argument>
void add_texts(harness::golden_sections &sections, const char *what, const char *(*formatter)(Argument),
               std::initializer_list<std::type_identity_t<Argument>> values) {
  std::string lines;
  for (const Argument value : values) {
    lines += (lines.empty() ? "" : "\n") + std::to_string(value) + ": " + formatter(value);
  }
  sections.add(what, lines);
}

// Single values that are easy to get wrong; the golden file has their texts.
TEST(Values, Edges) {
  using namespace std::string_view_literals;
  harness::golden_sections sections;
  add_texts(sections, "frequency", ravix_str_frequency, {0, 1, UINT32_MAX});
  add_texts(sections, "wifi_freq", ravix_str_wifi_freq, {0, 2412000, 5885000, 58320000, 7125000});
  add_texts(sections, "power", ravix_str_power, {32767, 32766, 0, -32768});
  add_texts(sections, "percentage", ravix_str_percentage, {0, 100, 101, 254, 255, 256, UINT32_MAX});
  add_texts(sections, "anpi", ravix_str_anpi, {0, 254, 255});
  add_texts(sections, "index", ravix_str_index, {INT32_MIN, INT32_MIN + 1, -1, 0});
  add_texts(sections, "id", ravix_str_id, {-4, -3, -2, -1, 0, 1});
  add_texts(sections, "bitfield_8", ravix_str_bitfield_8, {5});
  add_texts(sections, "enabled", ravix_str_enabled, {false, true});
  no_local_time = true;
  add_texts(sections, "timestamp", ravix_str_timestamp, {12345678, 5, -1500, INT64_MIN, INT64_MAX});
  no_local_time = false;

  std::string lines;
  for (const ravix_ip_addr_t &ip :
       std::initializer_list<ravix_ip_addr_t>{{0, {}},
                                              {1, {192, 0, 2, 1}},
                                              {2, {0xAB, 0xCD, 0, 0x10, 1}},
                                              {2, {0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 1}},
                                              {3, {}},
                                              {255, {}}}) {
    lines.append(ravix_str_ip_addr(&ip)) += '\n';
  }
  constexpr std::string_view long_name = "0123456789abcdef0123456789abcdef\x01"sv;
  for (const auto &[octets, length] : {std::pair{""sv, 0U},
                                       {"My net"sv, 6U},
                                       {"a\0\x0a\xffz"sv, 5U},
                                       {"'"sv, 1U},
                                       {long_name.substr(1), 32U},
                                       {long_name, 33U},
                                       {long_name, 255U}}) {
    const ravix_ssid_t ssid = ssid_of(octets, length);
    lines.append(ravix_str_ssid(&ssid, false)) += '\n';
    lines.append(ravix_str_ssid(&ssid, true)) += '\n';
  }
  for (const ravix_channel_info_t &channel : std::initializer_list<ravix_channel_info_t>{
           {5180000, 5210000, 4, 2}, {2412000, 2412000, 1, 0}, {58320999, 0, 8, 0xFFFF}, {}}) {
    lines.append(ravix_str_channel_info(&channel)) += '\n';
  }
  sections.add("ip_addr, ssid, channel_info", lines);
  sections.expect("text_edges");
}

TEST(Values, NullPointersAndFixedWordsWriteNothing) {
  harness::captured_log log;
  const char *before = ravix_str_bitrate(1);
  const std::pair<const char *, const char *> rows[] = {{"ravix_str_ip_addr", ravix_str_ip_addr(nullptr)},
                                                        {"ravix_str_mac", ravix_str_mac(nullptr)},
                                                        {"ravix_str_uuid", ravix_str_uuid(nullptr)},
                                                        {"ravix_str_ssid_impl", ravix_str_ssid(nullptr, true)},
                                                        {"ravix_str_channel_info", ravix_str_channel_info(nullptr)}};
  const std::vector<harness::log_line> lines = log.take();
  ASSERT_EQ(std::size(rows), lines.size());
  for (std::size_t i = 0; i < lines.size(); ++i) {
    EXPECT_STREQ("", rows[i].second);
    EXPECT_EQ("ravix src/ravix_types_str_convert Invalid pointer 'value'!",
              lines[i].name + " " + lines[i].file + " " + lines[i].text);
    EXPECT_EQ(rows[i].first, lines[i].function);
    EXPECT_GT(lines[i].line, 0);
  }
  for (const char *word : {ravix_str_frequency(0), ravix_str_id(-2), ravix_str_power(32767), ravix_str_percentage(255),
                           ravix_str_index(INT32_MIN), ravix_str_sta_state(1), ravix_str_enabled(true),
                           ravix_str_status(0), ravix_str_timestamp(INT64_MAX)}) {
    EXPECT_TRUE(word < before || word > before + 4096);
  }
  const char *after = ravix_str_bitrate(2);
  EXPECT_TRUE(after == before + std::strlen(before) + 1 || after < before);
}

// --- Names ---

struct names {
  const char *what;
  std::function<std::string(std::uint64_t value)> shown;
};

template <class Argument> names named(const char *what, const char *(*formatter)(Argument)) {
  return {what, [formatter](std::uint64_t value) { return std::string(formatter(static_cast<Argument>(value))); }};
}
#define NAMED(what) named(#what, ravix_str_##what)

const names value_names[] = {
    NAMED(pmf_mode),       NAMED(pwe_mode),       NAMED(sta_state),      NAMED(security),       NAMED(event),
    NAMED(param_id),       NAMED(encryption),     NAMED(role_state),     NAMED(radar_type),     NAMED(radio_band),
    NAMED(role_opmode),    NAMED(device_class),   NAMED(station_type),   NAMED(device_opmode),  NAMED(channel_width),
    NAMED(radio_sub_band), NAMED(connect_status), NAMED(connect_method), NAMED(encryption_akm), NAMED(mac_access_type)};
const names long_named_values[] = {NAMED(simulated_event_type), NAMED(channel_change_reason),
                                   NAMED(special_handling_trigger), NAMED(encryption_cipher_suite),
                                   NAMED(encryption_group_mgmt_cipher)};
const names flag_names[] = {
    NAMED(mlo_mode),      NAMED(features),           NAMED(wlan_mode),         NAMED(capabilities),
    NAMED(channel_state), NAMED(channel_user_flags), NAMED(event_log_control), NAMED(channel_capabilities)};

// Every value that has a name; the others are shown as numbers.
TEST(Names, Values) {
  harness::golden_sections sections;
  const auto add = [&](const names &listed) {
    const auto &[what, shown] = listed;
    const bool is_signed = std::string_view(what) == "connect_status";
    std::string lines;
    for (int value = -300; value <= 70000; ++value) {
      const std::string text = shown(static_cast<std::uint64_t>(std::int64_t{value}));
      lines += text == printed("<invalid value: %lld>", is_signed ? value : value & 0xFFFFFFFFLL)
                   ? ""
                   : std::to_string(value) + " " + text + "\n";
    }
    sections.add(what, lines);
  };
  std::for_each(std::begin(value_names), std::end(value_names), add);
  std::for_each(std::begin(long_named_values), std::end(long_named_values), add);
  std::string lines;
  for (const int from : {-3000, INT32_MIN + 1}) {
    for (int status = from; status < from + 6000; ++status) {
      const std::string text = ravix_str_status(status);
      lines += text == std::strerror(-status) ? "" : std::to_string(status) + " " + text + "\n";
    }
  }
  sections.add("status, where it is no errno value", lines);
  sections.expect("names");
  EXPECT_STRNE("", ravix_str_status(INT32_MIN)) << "cannot be negated";
}

// Every flag, in the order in which a set shows them; and what sets show.
TEST(Names, Flags) {
  harness::golden_sections sections;
  for (const auto &[what, shown] : flag_names) {
    std::map<std::string, std::uint64_t> flags;
    for (std::uint64_t flag = 1; flag != 0; flag <<= 1) {
      flags["[ " + shown(flag).substr(2)] = flag;
    }
    std::vector<std::pair<std::uint64_t, std::string>> in_order;
    std::string lines;
    std::istringstream all(shown(UINT64_MAX).substr(2));
    for (std::string name; all >> name && name != "]";) {
      in_order.emplace_back(flags["[ " + name + " ]"], name + " ");
      lines += printed("0x%llX ", static_cast<unsigned long long>(in_order.back().first)) + name + "\n";
    }
    sections.add(what, lines);
    for (int i = 0; i < 300; ++i) {
      const std::uint64_t some = i == 0 ? 0 : randomness()();
      const std::uint64_t set = some & randomness()();
      std::string text = "[ ";
      for (const auto &[flag, name] : in_order) {
        text += (set & flag) != 0 ? name : "";
      }
      ASSERT_EQ(text + "]", shown(set)) << what;
    }
  }
  sections.expect("flags");
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
  constexpr unsigned threads = 8;
  const char *wanted = std::getenv("RAVIX_TEST_ROUNDS"); // NOLINT(concurrency-mt-unsafe)
  const long rounds = wanted != nullptr ? std::strtol(wanted, nullptr, 10) : 300;
  std::barrier<> together(threads);
  std::array<std::string, threads> failures;
  const auto work = [&](unsigned id) {
    std::mt19937 random(id);
    for (long round = 0; round < rounds; ++round) {
      const auto n = static_cast<std::uint32_t>(random());
      const std::uint8_t mac[] = {static_cast<std::uint8_t>(n), 1, 2, 3, 4, static_cast<std::uint8_t>(id)};
      const ravix_ssid_t ssid = ssid_of("abcdefgh", id + 1);
      const std::string expected[] = {printed("%02X:01:02:03:04:%02X", mac[0], mac[5]),
                                      printed("'%.*s' (len=%u)", static_cast<int>(id + 1), "abcdefgh", id + 1),
                                      printed("%u kbit/s", n),
                                      printed("[ %s%s%s]", (n & 1) != 0 ? "INFO " : "", (n & 2) != 0 ? "WARNING " : "",
                                              (n & 4) != 0 ? "ERROR " : ""),
                                      printed("<invalid value: %u>", 100 + id),
                                      bits_of(n)};
      together.arrive_and_wait();
      const char *const texts[] = {ravix_str_mac(mac),
                                   ravix_str_ssid(&ssid, true),
                                   ravix_str_bitrate(n),
                                   ravix_str_event_log_control(n),
                                   ravix_str_sta_state(100 + id),
                                   ravix_str_bitfield_32(n)};
      together.arrive_and_wait();
      for (std::size_t i = 0; i < std::size(texts); ++i) {
        failures[id] += expected[i] == texts[i] ? "" : expected[i] + " became " + texts[i] + "\n";
      }
      together.arrive_and_wait();
    }
  };
  std::vector<std::thread> workers;
  for (unsigned id = 0; id < threads; ++id) {
    workers.emplace_back(work, id);
  }
  for (std::thread &worker : workers) {
    worker.join();
  }
  for (const std::string &failure : failures) {
    EXPECT_EQ("", failure);
  }
}

} // namespace
