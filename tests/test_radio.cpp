// Radio arithmetic against slow, obvious judges: the channels of the standard's tables, written out in
// tests/data/channels.txt instead of computed. Single calls with unusual arguments stand in radio_calls.txt.
#include "golden.hpp"
#include "harness.hpp"

#include "ravix_types_util.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cinttypes>
#include <cmath>
#include <concepts>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <map>
#include <random>
#include <set>
#include <sstream>
#include <string>
#include <tuple>
#include <utility>
#include <vector>

namespace {

using info = ravix_channel_info_t;
using entry = ravix_channel_entry_t;
using numbers = std::vector<uint32_t>;

auto fields(const info &c) {
  return std::tuple(c.primary_freq, c.center_freq, c.channel_width, c.puncture_map);
}

// ---- What is shown of results

float shown_of(float value) {
  return std::isnan(value) ? std::abs(value) : value; // whether a NaN has a sign is up to the machine
}
int64_t shown_of(std::integral auto value) {
  return value;
}
std::string shown(const auto &first, const auto &...more) {
  std::ostringstream out;
  out.precision(9);
  out << shown_of(first);
  ((out << ' ' << shown_of(more)), ...);
  return out.str();
}
std::string shown(const info &c) {
  return '{' + shown(c.primary_freq, c.center_freq, c.channel_width, c.puncture_map) + '}';
}

// ---- Judges

const std::map<uint16_t, uint32_t> widths_khz = {{1, 20000}, {2, 40000}, {4, 80000}, {16, 160000}, {32, 320000}};

const char *const bands[] = {"2.4GHz", "5GHz", "6GHz"};

// Values by band, or "puncturing", and width in kHz.
std::map<std::string, std::map<uint32_t, numbers>> channels = [] {
  decltype(channels) read;
  std::ifstream file(RAVIX_TEST_DATA "/channels.txt");
  for (std::string line, word; std::getline(file, line);) {
    std::istringstream words(line);
    std::string what;
    uint32_t mhz = 0;
    for (words >> what >> mhz >> word; words >> word;) // comments have no number there
      read[what][1000 * mhz].push_back(static_cast<uint32_t>(std::stoul(word, nullptr, 0)));
  }
  return read;
}();

// Centre of a channel; 0: there is none. Where there are two, or in 2.4 GHz, the side chooses.
uint32_t judged_center(uint32_t primary, uint16_t width, bool ext_high) {
  const uint32_t khz = widths_khz.at(width);
  uint32_t found = 0;
  for (const char *band : bands) {
    for (const uint32_t mhz : channels[band][khz]) {
      const uint32_t center = 1000 * mhz, offset = primary - (center - khz / 2);
      const bool covers = offset < khz && offset % 20000 == 10000;
      const bool other_side = band == bands[0] && center != primary && (center > primary) != ext_high;
      found = covers && !other_side && (found == 0 || ext_high) ? center : found;
    }
  }
  return found;
}

const std::map<uint32_t, numbers> patterns = channels["puncturing"];

numbers all_primaries() {
  numbers all;
  for (const char *band : bands)
    std::ranges::transform(channels[band][20000], std::back_inserter(all), [](uint32_t mhz) { return 1000 * mhz; });
  return all;
}

TEST(Frequency, IsPrimaryOnlyWhereAChannelIsAndLeadsThereAndBack) {
  numbers found;
  for (uint32_t f = 0; f <= 7300000; ++f) {
    if (ravix_frequency_is_primary(f))
      found.push_back(f);
  }
  ASSERT_EQ(found, all_primaries());
  for (const uint32_t f : found) {
    EXPECT_FALSE(ravix_frequency_is_primary(f + 0x80000000U)) << f;
    EXPECT_EQ(ravix_frequency_from_channel_and_band(ravix_frequency_to_channel(f), ravix_frequency_to_radio_band(f)),
              f);
  }
}

// ---- Channel descriptions

TEST(ChannelInfo, IsMadeAndIsValidOnlyAsTheJudgeSays) {
  std::set<decltype(fields({}))> all;
  for (const uint32_t primary : all_primaries()) {
    for (const auto &[width, khz] : widths_khz) {
      for (const bool ext_high : {false, true}) {
        const uint32_t center = judged_center(primary, width, ext_high);
        const numbers known = patterns.contains(khz) ? patterns.at(khz) : numbers{};
        for (uint32_t m = 0; m <= (center != 0 ? 0xFFFF : 0); ++m) {
          const auto map = static_cast<uint16_t>(m);
          const bool judged = center != 0 && (map >> ((primary - (center - khz / 2)) / 20000) & 1) == 0 &&
                              (map == 0 || std::ranges::count(known, map) != 0);
          const info want = judged ? info{primary, center, width, map} : info{0, 0, 0, 0xFFFF};
          info made = {1, 2, 3, 4};
          if (ravix_create_channel_info(primary, width, ext_high, map, &made) != judged || fields(made) != fields(want))
            FAIL() << shown(primary, width, ext_high, map) << " made " << shown(made);
          if (judged)
            all.insert(fields(want));
        }
      }
    }
  }
  EXPECT_GT(all.size(), 2000U);
  const auto judge = [&all](const info &channel) {
    ASSERT_EQ(ravix_channel_info_is_valid(&channel), all.contains(fields(channel))) << shown(channel);
  };
  for (const auto &[primary, center, width, map] : all) {
    for (const uint32_t shift : {1U, 5000U, 10000U, 20000U, 0x80000000U, 0U, -1U, -5000U, -10000U, -20000U}) {
      judge({primary, center + shift, width, map});
      judge({primary + shift, center, width, map});
    }
    for (uint16_t other = 0; other <= 64; ++other)
      judge({primary, center, other, map});
  }
}

TEST(PunctureMap, IsAnyWidthsPatternWithoutAChannel) {
  for (uint32_t map = 0; map <= 0xFFFF; ++map) {
    const bool known =
        std::ranges::any_of(patterns, [=](const auto &of) { return std::ranges::count(of.second, map) != 0; });
    ASSERT_EQ(ravix_puncture_map_is_valid(static_cast<uint16_t>(map), nullptr), map == 0 || known) << map;
  }
}

// ---- Single calls

void collect(const entry *visited, void *context, uint32_t frequency) {
  *static_cast<std::string *>(context) += ' ' + std::to_string(visited->frequency == frequency ? frequency : 0);
}

std::vector<entry> listed = {{5220000, 20, 0xC8, 0, 0}, {5190000, 20, 1, 0, 0},    {5200000, 20, 0xE9, ~0U, 0},
                             {5240000, 20, 0x27, 0, 0}, {5170000, 20, 0x27, 0, 0}, {5169999, 20, 0x27, 0, 0},
                             {5250000, 20, 0x27, 0, 0}, {5250001, 20, 0x27, 0, 0}, {5180000, 20, 0x27, 0x20, 0}};
const ravix_channel_list_t full = {static_cast<uint32_t>(listed.size()), listed.data()}, no_array = {3, nullptr};

// An argument as it stands in the file, for a parameter of any type; "null" is a null pointer.
struct argument {
  std::string word;
  mutable info channel = {};

  auto given(auto *pointer) const { return word != "null" ? pointer : nullptr; }
  template <std::integral T> operator T() const { return static_cast<T>(std::stoul(word, nullptr, 0)); }
  operator float() const { return std::strtof(word.c_str(), nullptr); }
  operator const ravix_channel_list_t *() const { return given(word == "no_array" ? &no_array : &full); }
  operator const info *() const {
    auto &[primary, center, width, map] = channel;
    const char *const format = "%" SCNu32 "/%" SCNu32 "/%" SCNu16 "/%" SCNx16;
    const int read = // NOLINTNEXTLINE(cert-err34-c): the numbers stand in a file of ours
        std::sscanf(word.c_str(), format, &primary, &center, &width, &map);
    return read == 4 ? &channel : nullptr;
  }
};
using arguments = std::vector<argument>; // the first is the function

// What a function makes of the arguments; or several, one after the other.
template <class Result, class... T> std::string result_of(Result (*function)(T...), const arguments &a) {
  return [&]<std::size_t... i>(std::index_sequence<i...>) {
    return shown(function(a.at(i + 1)...));
  }
  (std::index_sequence_for<T...>{});
}
template <auto First, auto... More> std::string results(const arguments &a) {
  return (result_of(First, a) + ... + (' ' + result_of(More, a)));
}

uint32_t frequency_of(uint32_t channel, uint32_t band) {
  return ravix_radio_band_and_channel_to_frequency(band, channel);
}
float millionths_of_factor(float db) {
  return std::round(ravix_dB_to_factor(db) / 1e-6F); // the last digits are powf()'s own
}
float millionths_of_power(float dbm) {
  return std::round(ravix_dBm_to_power_mW(dbm) / 1e-6F);
}

const std::map<std::string, std::string (*)(const arguments &a)> calls = {
    {"at", results<ravix_frequency_to_channel, ravix_frequency_to_radio_band, ravix_frequency_to_radio_sub_band>},
    {"band", results<ravix_channel_to_radio_band>},
    {"frequency", results<ravix_frequency_from_channel_and_band, frequency_of>},
    {"width", results<ravix_channel_width_to_frequency, ravix_channel_width_lower, ravix_channel_width_higher>},
    {"width_of_khz", results<ravix_frequency_to_channel_width>},
    {"width_of_capabilities", results<ravix_channel_capabilities_to_channel_width>},
    {"match", results<ravix_channel_capabilities_match_width>},
    {"mode", results<ravix_wlan_mode_is_valid, ravix_get_highest_channel_width_from_mode>},
    {"codes", results<dBm_to_ravix_rcpi_val, dBm_to_ravix_anpi_val, dB_to_ravix_rsni_val>},
    {"decoded", results<ravix_rcpi_val_to_dBm, ravix_anpi_val_to_dBm, ravix_rsni_val_to_dB>},
    {"rsni", results<ravix_calculate_rsni_dB>},
    {"factor", results<millionths_of_factor, millionths_of_power>},
    {"puncture", results<ravix_puncture_map_is_valid>},
    {"numbers",
     [](const arguments &a) {
       uint32_t low = 7, high = 7;
       const bool done = ravix_channel_info_to_lowest_and_highest_channel(a[1], a[2].given(&low), a[3].given(&high));
       return shown(done) + " {" + shown(low, high) + '}';
     }},
    {"walk",
     [](const arguments &a) {
       std::string visited;
       const int result = ravix_channel_info_check_range(a[1], a[2], a[3].given(&collect), &visited);
       return shown(result) + " {" + visited + " }";
     }},
    {"clear",
     [](const arguments &a) {
       bool clear = a[3].word == "1";
       const int result = ravix_channel_is_clear(a[1], a[2], a[3], a[4].given(&clear));
       return shown(result) + " {" + shown(clear) + '}';
     }},
    {"auto",
     [](const arguments &a) {
       info made = {1, 2, 3, 4};
       const int result = ravix_create_channel_info_auto(a[1], a[2], a[3], a[4], a[5].given(&made));
       return shown(result) + ' ' + shown(made);
     }},
    {"search", [](const arguments &a) {
       info found = {1, 2, 3, 4};
       const int result = ravix_get_max_clear_channel_info(a[1], a[2], 1, true, a[3], a[4].given(&found));
       return shown(result) + ' ' + shown(found);
     }}};

TEST(Calls, AreAnsweredAsWritten) {
  harness::expect_answers("radio_calls", [](const std::string &call) {
    std::istringstream in(call);
    arguments given;
    for (std::string word; in >> word;)
      given.push_back({word});
    return calls.at(given.at(0).word)(given);
  });
  EXPECT_FALSE(ravix_channel_info_is_valid(nullptr));
  EXPECT_FALSE(ravix_create_channel_info(2412000, 1, false, 0, nullptr));
}

// ---- The widest clear channel: every width downward, and both sides, the one asked for first

int judged_search(const std::vector<entry> &entries, uint32_t primary, uint32_t mask, bool ext_high, uint16_t max_width,
                  info &found) {
  const auto own = std::ranges::find(entries, primary, &entry::frequency);
  if (own == entries.end() || (own->capabilities & 0x37) == 0)
    return -22;
  for (auto row = widths_khz.rbegin(); row != widths_khz.rend(); ++row) {
    const uint16_t width = row->first;
    const uint32_t half = row->second / 2;
    if ((own->capabilities & 0x37) < width || (max_width != 0 && width > max_width))
      continue;
    const auto is_in_the_way = [&](const entry &e) {
      return (e.capabilities & width) != 0 && e.frequency + half >= found.center_freq &&
             e.frequency <= found.center_freq + half && (e.state & mask) != 0;
    };
    bool exists = false;
    for (const bool side : {ext_high, !ext_high}) {
      found = {primary, judged_center(primary, width, side), width, 0};
      exists = exists || found.center_freq != 0;
      if (found.center_freq != 0 && std::ranges::none_of(entries, is_in_the_way))
        return 0;
    }
    if (!exists)
      return -22;
  }
  return -2;
}

TEST(Search, WidestClearChannelEqualsTheJudge) {
  harness::captured_log log;
  std::mt19937 random(20); // NOLINT(cert-msc32-c,cert-msc51-cpp): a failing round must come again
  std::map<int, int> results;
  for (int round = 0; round < 20000; ++round) {
    const char *const band = bands[random() % std::size(bands)];
    const uint32_t density = 2U << 2 * (random() % 3);
    std::vector<entry> entries;
    for (const uint32_t mhz : channels[band][20000]) {
      const uint32_t all_widths = band == bands[0] ? 0x3 : band == bands[1] ? 0x17 : 0x37;
      const auto capabilities = random() % 10 == 0 ? static_cast<uint32_t>(random() & 0xFF) : all_widths;
      if (random() % 30 != 0)
        entries.push_back({1000 * mhz, 20, capabilities, random() % density == 0 ? 1U << random() % 4 : 0U, 0});
    }
    if (random() % 4 == 0)
      std::ranges::shuffle(entries, random);
    const ravix_channel_list_t list = {static_cast<uint32_t>(entries.size()), entries.data()};
    const numbers &primaries = channels[band][20000];
    const uint32_t primary = 1000 * primaries[random() % primaries.size()], mask = (1U << random() % 5) - 1;
    const uint16_t limits[] = {0, 1, 2, 4, 16, 32}, max_width = limits[random() % std::size(limits)];
    const bool ext_high = random() % 2 == 0;
    info found = {1, 2, 3, 4}, want = {};
    const int result = ravix_get_max_clear_channel_info(&list, primary, mask, ext_high, max_width, &found);
    ASSERT_EQ(result, judged_search(entries, primary, mask, ext_high, max_width, want)) << round;
    ASSERT_EQ(fields(found), fields(result == 0 ? want : info{})) << round;
    ASSERT_EQ(log.take().empty(), result != -22);
    ++results[result];
  }
  EXPECT_GT(std::min({results[0], results[-2], results[-22]}), 100);
}

} // namespace
