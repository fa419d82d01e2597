// Texts of values, names and flags as they stand in tests/data/texts.txt and names.txt, with clocks and a time zone of
// their own and in a locale with a decimal comma; and the area that all texts share.
#include "ravix_types_str_convert.h"
#include "ravix_types_util.h"

#include "golden.hpp"
#include "harness.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <atomic>
#include <clocale>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <ctime>
#include <functional>
#include <iterator>
#include <locale>
#include <map>
#include <new>
#include <pthread.h>
#include <random>
#include <sstream>
#include <string>
#include <string_view>
#include <thread>
#include <utility>
#include <vector>

namespace {

std::atomic<std::size_t> allocations = 0; // by C++ code
std::int64_t wall_ahead = 0;              // of the steady clock, in nanoseconds
bool no_local_time = false;
constexpr std::time_t seconds_east = 19800; // of the time zone: 5:30 hours

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

// Both stand before the C library's own, so that a golden file can have times.
extern "C" [[gnu::visibility("default")]] std::tm *
localtime_r(const std::time_t *time, std::tm *result) noexcept(noexcept(localtime_r(time, result))) {
  const auto local = static_cast<std::time_t>(*time + seconds_east);
  return no_local_time ? nullptr : gmtime_r(&local, result);
}
extern "C" [[gnu::visibility("default")]] int
clock_gettime(clockid_t clock, std::timespec *now) noexcept(noexcept(clock_gettime(clock, now))) {
  constexpr std::int64_t second = 1'000'000'000;
  const std::int64_t time = 5000 * second + 900'000'000 + (clock == CLOCK_REALTIME ? wall_ahead : 0);
  now->tv_sec = static_cast<std::time_t>(time / second);
  now->tv_nsec = static_cast<long>(time % second);
  return 0;
}

namespace {

class decimal_comma : public std::numpunct<char> {
  char do_decimal_point() const override { return ','; }
  char do_thousands_sep() const override { return '.'; }
  std::string do_grouping() const override { return "\3"; }
};

// C++ streams always get their comma; C gets one where the machine has such a locale.
const std::locale replaced = [] {
  std::setlocale(LC_ALL, "de_DE.UTF-8"); // NOLINT(concurrency-mt-unsafe): before any thread
  return std::locale::global(std::locale(std::locale::classic(), new decimal_comma));
}();

std::string_view latest; // text, where it lies

// What a formatter makes of its arguments; for a text it may not allocate, for a log line it may.
template <class Format, class... Arguments> std::string text_by(Format format, Arguments... arguments) {
  const std::size_t before = allocations;
  latest = format(arguments...);
  EXPECT_TRUE(allocations == before || latest.empty()) << latest;
  return std::string(latest);
}

// The formatters of a single number, whatever its type.
using formatters = std::map<std::string, std::function<std::string(std::uint64_t value)>>;
template <class Value> formatters::value_type named(const char *what, const char *(*format)(Value)) {
  return {what, [format](std::uint64_t value) { return text_by(format, static_cast<Value>(value)); }};
}
#define NAMED(what, ...) named(#what, ravix_str_##what),
const formatters measures = {NAMED(frequency) NAMED(wifi_freq) NAMED(bitrate) NAMED(power) NAMED(percentage)
                                 NAMED(index) NAMED(anpi) NAMED(rcpi) NAMED(rsni) NAMED(timestamp) NAMED(enabled)
                                     NAMED(bitfield_8) NAMED(bitfield_16) NAMED(bitfield_32) NAMED(bitfield_64)};
const formatters names = {NAMED(id) NAMED(status) RAVIX_ENUMERATIONS(NAMED)};
const formatters flags = {RAVIX_FLAG_SETS(NAMED)};

// Makes a call that is written as in the golden file.
std::string answer(const std::string &call) {
  std::istringstream in(call);
  const std::vector<std::string> words{std::istream_iterator<std::string>(in), {}};
  const std::string &formatter = words.at(0);
  const auto number = [&](std::size_t i) { return i < words.size() ? std::strtoull(words[i].c_str(), nullptr, 0) : 0; };
  for (const formatters *group : {&measures, &names, &flags}) {
    if (const auto found = group->find(formatter); found != group->end()) {
      wall_ahead = static_cast<std::int64_t>(number(2));
      no_local_time = words.back() == "no_local_time";
      return found->second(number(1));
    }
  }
  const auto given = [&](const auto *pointer) { return words.back() != "null" ? pointer : nullptr; };
  const ravix_channel_info_t channel{static_cast<std::uint32_t>(number(1)), static_cast<std::uint32_t>(number(2)),
                                     static_cast<std::uint16_t>(number(3)), static_cast<std::uint16_t>(number(4))};
  ravix_ip_addr_t ip{static_cast<std::uint8_t>(number(1)), {}};
  ravix_ssid_t ssid{static_cast<std::uint8_t>(number(1)), {}};
  for (std::size_t i = 0; i < std::size(ssid.ssid) && 2 * i < words.back().size(); ++i) {
    ssid.ssid[i] = static_cast<std::uint8_t>(std::strtoul(words.back().substr(2 * i, 2).c_str(), nullptr, 16));
  }
  std::copy_n(ssid.ssid, std::size(ip.addr), ip.addr);
  return formatter == "mac"       ? text_by(ravix_str_mac, given(ssid.ssid))
         : formatter == "uuid"    ? text_by(ravix_str_uuid, given(ssid.ssid))
         : formatter == "ip_addr" ? text_by(ravix_str_ip_addr, given(&ip))
         : formatter == "channel" ? text_by(ravix_str_channel_info, given(&channel))
                                  : text_by(ravix_str_ssid, given(&ssid), formatter == "ssid_hex");
}

TEST(Texts, AreAsWritten) {
  const harness::heap heap;
  harness::expect_answers("texts", answer);
  EXPECT_EQ(0U, heap.requests());
}

// The values and names of tests/data/names.txt, and the text of what stands in none of its lists.
TEST(Names, AreThoseOfTheInterfaceAndNoOthers) {
  auto lists = harness::written_names();
  EXPECT_EQ(lists.size(), 1 + names.size() + flags.size()); // and that of ravix_str_enabled
  for (const auto &[list, text_of] : names) {
    const std::map<std::int64_t, std::string> named(lists[list].begin(), lists[list].end());
    for (std::int64_t i = 0; i < 73000; ++i) {
      const std::int64_t value = i < 70000 ? i - 300 : INT32_MIN + (i - 70000);
      const std::string number = std::to_string(list == "connect_status" ? value : value & UINT32_MAX);
      const std::string text = named.contains(value) ? named.at(value)
                               : list == "id"        ? std::to_string(value)
                               : list == "status"    ? std::strerror(static_cast<int>(-value))
                                                     : "<invalid value: " + number + ">";
      ASSERT_EQ(text_of(static_cast<std::uint64_t>(value)), text) << list << ' ' << value;
    }
  }
  for (const auto &[list, text_of] : flags) {
    std::map<std::uint64_t, std::string> alone;
    std::string all = "[ ";
    for (const auto &[mask, name] : lists[list]) {
      alone[static_cast<std::uint64_t>(mask)] = "[ " + name + " ]";
      all += name + " ";
    }
    EXPECT_EQ(text_of(UINT64_MAX), all + "]");
    for (std::uint64_t bit = 1; bit != 0; bit <<= 1) {
      EXPECT_EQ(text_of(bit), alone.contains(bit) ? alone[bit] : "[ ]") << list << ' ' << bit;
    }
  }
}

// --- The area that the texts share ---

// Each text follows the one before, to the area's last character, and changes nothing but its own place, whatever it is
// and whatever lies there; one that comes to lie at the area's begin, nothing but that and what is left behind the text
// before it. Fixed words take no place.
TEST(Area, TextsFollowEachOtherAndChangeNothingBehindTheirEnd) {
  std::mt19937_64 random(1); // NOLINT(cert-msc32-c,cert-msc51-cpp): the same values in each run
  const char *place = ravix_str_bitfield_64(0), *begin = place;
  for (int i = 0; i < 200; ++i) {
    place = ravix_str_bitfield_64(0);
    begin = std::min(begin, place);
  }
  place += 65;
  const char *const end = begin + 4096;
  formatters records;
  for (const char *call : {"mac 0", "uuid 0", "ip_addr 1 FFFEC77B", "ip_addr 2 FEDCBA98765432100F", "ip_addr 9",
                           "ssid 9 80", "ssid_hex 32 80FF", "channel 5180000 5210000 4"}) {
    records[call] = [call](std::uint64_t /*value*/) { return answer(call); };
  }
  for (int i = 0; i < 100; ++i) {
    for (const formatters *group : {&measures, &names, &flags, &std::as_const(records)}) {
      for (const auto &[what, text_of] : *group) {
        constexpr char other = '\x80';                       // than all characters of texts
        std::memset(const_cast<char *>(begin), other, 4096); // NOLINT(cppcoreguidelines-pro-type-const-cast)
        text_of(random() >> random() % 64);
        const auto is_other = [](const char *from, const char *to) {
          return std::all_of(from, to, [](char c) { return c == other; });
        };
        const bool is_fixed = latest.data() < begin || latest.data() >= end;
        const char *text = is_fixed ? end : latest.data(), *behind = is_fixed ? end : text + latest.size() + 1;
        const bool has_moved = !is_fixed && place + latest.size() >= end;
        ASSERT_TRUE(is_fixed || text == (has_moved ? begin : place)) << what << ": " << latest;
        ASSERT_TRUE(is_other(begin, text) && is_other(behind, has_moved ? place : end)) << what << ": " << latest;
        place = is_fixed ? place : behind;
      }
    }
  }
}

// Eight threads format at once, each a number of another length. In one round they make no more text than the area
// holds, so that all of it can be read when all have finished. RAVIX_TEST_ROUNDS sets the number of rounds.
TEST(Area, EightThreads) {
  constexpr unsigned threads = 8;
  const char *wanted = std::getenv("RAVIX_TEST_ROUNDS"); // NOLINT(concurrency-mt-unsafe)
  const long rounds = wanted != nullptr ? std::strtol(wanted, nullptr, 10) : 300;
  constexpr const char *(*formats[])(std::uint32_t n) = {
      [](std::uint32_t n) { return ravix_str_bitrate(n); },
      [](std::uint32_t n) { return ravix_str_power(static_cast<std::int32_t>(n | 0x80000000U)); },
      [](std::uint32_t n) { return ravix_str_event_log_control(1U << n % 2); },
      [](std::uint32_t n) { return ravix_str_sta_state(100 + n); },
      [](std::uint32_t n) { return ravix_str_bitfield_32(n); },
      [](std::uint32_t n) { return ravix_str_timestamp(n); }};
  const auto make = [&](std::uint32_t n, auto &texts) {
    for (std::size_t i = 0; i < texts.size(); ++i) {
      texts[i] = formats[i % std::size(formats)](n);
    }
  };
  constexpr std::size_t most = 3 * std::size(formats);
  pthread_barrier_t together; // sleeps, where that of C++ may spin: 15 s under emulation
  pthread_barrier_init(&together, nullptr, threads);
  std::atomic<int> wrong = 0;
  std::vector<std::thread> workers;
  for (std::uint32_t n = 1234567890; workers.size() < threads; n /= 10) {
    std::array<std::string, most> alone;
    make(n, alone);
    workers.emplace_back([&, n, alone] {
      for (long round = 0; round < rounds; ++round) {
        std::array<const char *, most> texts;
        pthread_barrier_wait(&together);
        make(n, texts);
        pthread_barrier_wait(&together);
        wrong += std::ranges::equal(alone, texts) ? 0 : 1;
        pthread_barrier_wait(&together);
      }
    });
  }
  std::ranges::for_each(workers, &std::thread::join);
  pthread_barrier_destroy(&together);
  EXPECT_EQ(wrong, 0);
}

} // namespace
