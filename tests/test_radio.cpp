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

// Makes a call that is written as in the golden file; "null" as an argument is a null pointer.
std::string answer(const std::string &call) {
  std::vector<entry> entries = {{5220000, 20, 0xC8, 0, 0}, {5190000, 20, 1, 0, 0}, {5200000, 20, 0xE9, ~0U, 0}};
  for (const uint32_t f : {5240000U, 5170000U, 5169999U, 5250000U, 5250001U, 5180000U})
    entries.push_back({f, 20, 0x27, f == 5180000 ? 0x20U : 0U, 0});
  const ravix_channel_list_t full = {static_cast<uint32_t>(entries.size()), entries.data()}, no_array = {3, nullptr};

  std::istringstream in(call);
  const std::vector<std::string> words{std::istream_iterator<std::string>(in), {}};
  const std::string &function = words.at(0);
  const auto number = [&](std::size_t i) { return static_cast<uint32_t>(std::stoul(words.at(i), nullptr, 0)); };
  const auto code = [&](std::size_t i) { return static_cast<uint16_t>(number(i)); };
  const auto octet = [&](std::size_t i) { return static_cast<uint8_t>(number(i)); };
  const auto real = [&](std::size_t i) { return std::strtof(words.at(i).c_str(), nullptr); };
  const auto given = [&](std::size_t i, auto *pointer) { return words.at(i) != "null" ? pointer : nullptr; };
  const auto list = [&](std::size_t i) { return given(i, words.at(i) == "no_array" ? &no_array : &full); };
  info asked = {}, written = {1, 2, 3, 4};
  const auto channel = [&](std::size_t i) -> const info * {
    const char *const format = "%" SCNu32 "/%" SCNu32 "/%" SCNu16 "/%" SCNx16;
    const int read = std::sscanf( // NOLINT(cert-err34-c): the numbers stand in a file of ours
        words.at(i).c_str(), format, &asked.primary_freq, &asked.center_freq, &asked.channel_width,
        &asked.puncture_map);
    return read == 4 ? &asked : nullptr;
  };
  if (function == "numbers") {
    uint32_t low = 7, high = 7;
    const bool done = ravix_channel_info_to_lowest_and_highest_channel(channel(1), given(2, &low), given(3, &high));
    return shown(done) + " {" + shown(low, high) + '}';
  }
  if (function == "walk") {
    std::string visited;
    const int result = ravix_channel_info_check_range(list(1), channel(2), given(3, &collect), &visited);
    return shown(result) + " {" + visited + " }";
  }
  if (function == "clear") {
    bool clear = number(3) == 1;
    const int result = ravix_channel_is_clear(list(1), channel(2), number(3), given(4, &clear));
    return shown(result) + " {" + shown(clear) + '}';
  }
  if (function == "auto") {
    const int result = ravix_create_channel_info_auto(number(1), code(2), number(3) != 0, code(4), given(5, &written));
    return shown(result) + ' ' + shown(written);
  }
  if (function == "search") {
    const int result = ravix_get_max_clear_channel_info(list(1), number(2), 1, true, code(3), given(4, &written));
    return shown(result) + ' ' + shown(written);
  }
  const auto millionths = [](float value) { return std::round(value / 1e-6F); }; // the last digits are powf()'s own
  return function == "at"     ? shown(ravix_frequency_to_channel(number(1)), ravix_frequency_to_radio_band(number(1)),
                                      ravix_frequency_to_radio_sub_band(number(1)))
         : function == "band" ? shown(ravix_channel_to_radio_band(number(1)))
         : function == "frequency" ? shown(ravix_frequency_from_channel_and_band(number(1), number(2)),
                                           ravix_radio_band_and_channel_to_frequency(number(2), number(1)))
         : function == "width" ? shown(ravix_channel_width_to_frequency(code(1)), ravix_channel_width_lower(code(1)),
                                       ravix_channel_width_higher(code(1)))
         : function == "width_of_khz"          ? shown(ravix_frequency_to_channel_width(number(1)))
         : function == "width_of_capabilities" ? shown(ravix_channel_capabilities_to_channel_width(number(1)))
         : function == "match"                 ? shown(ravix_channel_capabilities_match_width(number(1), code(2)))
         : function == "mode"
             ? shown(ravix_wlan_mode_is_valid(number(1)), ravix_get_highest_channel_width_from_mode(number(1)))
         : function == "codes"
             ? shown(dBm_to_ravix_rcpi_val(real(1)), dBm_to_ravix_anpi_val(real(1)), dB_to_ravix_rsni_val(real(1)))
         : function == "decoded"
             ? shown(ravix_rcpi_val_to_dBm(octet(1)), ravix_anpi_val_to_dBm(octet(1)), ravix_rsni_val_to_dB(octet(1)))
         : function == "rsni" ? shown(ravix_calculate_rsni_dB(real(1), real(2)))
         : function == "factor"
             ? shown(millionths(ravix_dB_to_factor(real(1))), millionths(ravix_dBm_to_power_mW(real(1))))
             : shown(ravix_puncture_map_is_valid(code(1), channel(2)));
}

TEST(Calls, AreAnsweredAsRecorded) {
  harness::expect_answers("radio_calls", answer);
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
