// Radio arithmetic against slow, obvious judges: the channels of the standard's tables, written out instead of computed
// with. Single calls with unusual arguments stand in tests/data/radio_calls.golden.
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

std::string text_of(const std::string &text) {
  return text;
}
std::string text_of(std::integral auto value) {
  return std::to_string(value);
}
std::string text_of(float value) {
  std::ostringstream out;
  out.precision(9);
  out << (std::isnan(value) ? std::abs(value) : value); // whether a NaN has a sign is up to the machine
  return out.str();
}

template <class... Values> std::string shown(const std::string &first, const Values &...more) {
  return (first + ... + (' ' + text_of(more)));
}
std::string shown(const auto &first, const auto &...more) {
  return shown(text_of(first), more...);
}
std::string shown(const info &c) {
  return '{' + shown(c.primary_freq, c.center_freq, c.channel_width, c.puncture_map) + '}';
}

// ---- Judges

const std::map<uint16_t, uint32_t> widths_khz = {{1, 20000}, {2, 40000}, {4, 80000}, {16, 160000}, {32, 320000}};

uint32_t judged_khz(uint16_t width) {
  return widths_khz.contains(width) ? widths_khz.at(width) : 0;
}

numbers series(uint32_t first, uint32_t last, uint32_t step) {
  numbers result;
  for (; first <= last; first += step)
    result.push_back(first);
  return result;
}

// A band: what its numbers count from, its primary channels, and the centres of its wider ones.
struct band_plan {
  int band;
  uint32_t start;
  numbers primaries;
  std::map<uint16_t, numbers> centers;
};
const band_plan plans[] = {
    {1, 2407000, series(1, 13, 1), {}},
    {2,
     5000000,
     {36,  40,  44,  48,  52,  56,  60,  64,  100, 104, 108, 112, 116, 120,
      124, 128, 132, 136, 140, 144, 149, 153, 157, 161, 165, 169, 173, 177},
     {{2, {38, 46, 54, 62, 102, 110, 118, 126, 134, 142, 151, 159, 167, 175}},
      {4, {42, 58, 106, 122, 138, 155, 171}},
      {16, {50, 114, 163}}}},
    {4,
     5950000,
     series(1, 233, 4),
     {{2, series(3, 227, 8)}, {4, series(7, 215, 16)}, {16, series(15, 207, 32)}, {32, series(31, 191, 32)}}},
};

numbers frequencies_of(const band_plan &plan) {
  numbers result;
  for (const uint32_t number : plan.primaries)
    result.push_back(plan.start + 5000 * number);
  if (plan.band == 1)
    result.push_back(2484000);
  return result;
}

const std::map<uint32_t, const band_plan *> &all_primaries() {
  static const auto all = [] {
    std::map<uint32_t, const band_plan *> result;
    for (const band_plan &plan : plans)
      for (const uint32_t f : frequencies_of(plan))
        result[f] = &plan;
    return result;
  }();
  return all;
}

// Centre of a channel; 0: there is none.
uint32_t judged_center(uint32_t primary, uint16_t width, bool ext_high) {
  const auto own = all_primaries().find(primary);
  if (own == all_primaries().end() || (primary == 2484000 && width != 1))
    return 0;
  if (width == 1)
    return primary;
  const band_plan &plan = *own->second;
  if (plan.band == 1) { // any two channels four apart
    const uint32_t second = ext_high ? primary + 20000 : primary - 20000;
    return width == 2 && second >= 2412000 && second <= 2472000 ? (primary + second) / 2 : 0;
  }
  uint32_t found = 0;
  for (const uint32_t number : plan.centers.contains(width) ? plan.centers.at(width) : numbers{}) {
    const uint32_t center = plan.start + 5000 * number;
    const bool covers = center - judged_khz(width) / 2 < primary && primary < center + judged_khz(width) / 2;
    found = covers && (found == 0 || ext_high) ? center : found;
  }
  return found;
}

const std::set<uint16_t> &judged_patterns(uint16_t width) {
  static std::map<uint16_t, std::set<uint16_t>> patterns = {
      {4, {0x0001, 0x0002, 0x0004, 0x0008}},
      {16,
       {0x0001, 0x0002, 0x0004, 0x0008, 0x0010, 0x0020, 0x0040, 0x0080,     // one of eight
        0x0003, 0x000C, 0x0030, 0x00C0}},                                   // 40 of 160 MHz
      {32, {0x0003, 0x000C, 0x0030, 0x00C0, 0x0300, 0x0C00, 0x3000, 0xC000, // 40 of 320 MHz
            0x000F, 0x00F0, 0x0F00, 0xF000,                                 // 80
            0xF003, 0xF00C, 0xF030, 0xF0C0, 0xF300, 0xFC00,                 // the upper 80 and 40 more
            0x003F, 0x00CF, 0x030F, 0x0C0F, 0x300F, 0xC00F}}};              // the lower 80 and 40 more
  return patterns[width];
}

TEST(Frequency, IsPrimaryOnlyWhereAChannelIsAndLeadsThereAndBack) {
  ASSERT_EQ(all_primaries().size(), 14U + 28U + 59U);
  std::size_t found = 0;
  for (uint32_t f = 0; f <= 7300000; ++f) {
    found += ravix_frequency_is_primary(f) ? 1 : 0;
  }
  EXPECT_EQ(found, all_primaries().size());
  for (const auto &[f, plan] : all_primaries()) {
    EXPECT_TRUE(ravix_frequency_is_primary(f)) << f;
    EXPECT_FALSE(ravix_frequency_is_primary(f + 0x80000000U)) << f;
    EXPECT_EQ(ravix_frequency_from_channel_and_band(ravix_frequency_to_channel(f), ravix_frequency_to_radio_band(f)),
              f);
  }
}

// ---- Channel descriptions

TEST(ChannelInfo, IsMadeAndIsValidOnlyAsTheJudgeSays) {
  std::set<decltype(fields({}))> all;
  for (const auto &[primary, plan] : all_primaries()) {
    for (const auto &[width, khz] : widths_khz) {
      for (const bool ext_high : {false, true}) {
        const uint32_t center = judged_center(primary, width, ext_high);
        const auto &patterns = judged_patterns(width);
        for (uint32_t m = 0; m <= (center != 0 ? 0xFFFF : 0); ++m) {
          const auto map = static_cast<uint16_t>(m);
          const bool judged = center != 0 && (map == 0 || patterns.contains(map)) &&
                              (map >> ((primary - (center - khz / 2)) / 20000) & 1) == 0;
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
    for (const uint32_t shift : {0U, 1U, 5000U, 10000U, 20000U, 0x80000000U}) {
      judge({primary, center + shift, width, map});
      judge({primary, center - shift, width, map});
      judge({primary + shift, center, width, map});
      judge({primary - shift, center, width, map});
    }
    for (uint16_t other = 0; other <= 64; ++other)
      judge({primary, center, other, map});
  }
}

TEST(PunctureMap, IsAnyWidthsPatternWithoutAChannel) {
  for (uint32_t map = 0; map <= 0xFFFF; ++map) {
    const bool known = std::ranges::any_of(
        widths_khz, [=](auto width) { return judged_patterns(width.first).contains(static_cast<uint16_t>(map)); });
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
  if (function == "at")
    return shown(ravix_frequency_to_channel(number(1)), ravix_frequency_to_radio_band(number(1)),
                 ravix_frequency_to_radio_sub_band(number(1)));
  if (function == "band")
    return shown(ravix_channel_to_radio_band(number(1)));
  if (function == "frequency")
    return shown(ravix_frequency_from_channel_and_band(number(1), number(2)),
                 ravix_radio_band_and_channel_to_frequency(number(2), number(1)));
  if (function == "width")
    return shown(ravix_channel_width_to_frequency(code(1)), ravix_channel_width_lower(code(1)),
                 ravix_channel_width_higher(code(1)));
  if (function == "width_of_khz")
    return shown(ravix_frequency_to_channel_width(number(1)));
  if (function == "width_of_capabilities")
    return shown(ravix_channel_capabilities_to_channel_width(number(1)));
  if (function == "match")
    return shown(ravix_channel_capabilities_match_width(number(1), code(2)));
  if (function == "mode")
    return shown(ravix_wlan_mode_is_valid(number(1)), ravix_get_highest_channel_width_from_mode(number(1)));
  if (function == "codes")
    return shown(dBm_to_ravix_rcpi_val(real(1)), dBm_to_ravix_anpi_val(real(1)), dB_to_ravix_rsni_val(real(1)));
  if (function == "decoded")
    return shown(ravix_rcpi_val_to_dBm(octet(1)), ravix_anpi_val_to_dBm(octet(1)), ravix_rsni_val_to_dB(octet(1)));
  if (function == "rsni")
    return shown(ravix_calculate_rsni_dB(real(1), real(2)));
  if (function == "factor") // in millionths, since the last digits are powf()'s own
    return shown(std::round(ravix_dB_to_factor(real(1)) / 1e-6F), std::round(ravix_dBm_to_power_mW(real(1)) / 1e-6F));
  if (function == "puncture")
    return shown(ravix_puncture_map_is_valid(code(1), channel(2)));
  if (function == "numbers") {
    uint32_t low = 7, high = 7;
    const bool done = ravix_channel_info_to_lowest_and_highest_channel(channel(1), given(2, &low), given(3, &high));
    return shown(done, '{' + shown(low, high) + '}');
  }
  if (function == "walk") {
    std::string visited;
    const int result = ravix_channel_info_check_range(list(1), channel(2), given(3, &collect), &visited);
    return shown(result, '{' + visited + " }");
  }
  if (function == "clear") {
    bool clear = number(3) == 1;
    const int result = ravix_channel_is_clear(list(1), channel(2), number(3), given(4, &clear));
    return shown(result, clear ? "{1}" : "{0}");
  }
  const int result =
      function == "auto"
          ? ravix_create_channel_info_auto(number(1), code(2), number(3) != 0, code(4), given(5, &written))
          : ravix_get_max_clear_channel_info(list(1), number(2), 1, true, code(3), given(4, &written));
  return shown(result, shown(written));
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
  for (const uint16_t width : {uint16_t{32}, uint16_t{16}, uint16_t{4}, uint16_t{2}, uint16_t{1}}) {
    if ((own->capabilities & 0x37) < width || (max_width != 0 && width > max_width))
      continue;
    bool exists = false;
    for (const bool side : {ext_high, !ext_high}) {
      const uint32_t center = judged_center(primary, width, side), half = judged_khz(width) / 2;
      exists = exists || center != 0;
      if (center != 0 && std::ranges::none_of(entries, [=](const entry &e) {
            return (e.capabilities & width) != 0 && e.frequency + half >= center && e.frequency <= center + half &&
                   (e.state & mask) != 0;
          })) {
        found = {primary, center, width, 0};
        return 0;
      }
    }
    if (!exists)
      return -22;
  }
  return -2;
}

TEST(Search, WidestClearChannelEqualsTheJudge) {
  harness::captured_log log;
  std::mt19937 random(20); // NOLINT(cert-msc32-c,cert-msc51-cpp): a failing round must come again
  const auto pick = [&random](auto... values) {
    const std::common_type_t<decltype(values)...> all[] = {values...};
    return all[random() % std::size(all)];
  };
  std::map<int, int> results;
  for (int round = 0; round < 20000; ++round) {
    const auto &plan = plans[random() % std::size(plans)];
    const uint32_t widths = plan.band == 1 ? 0x3 : plan.band == 2 ? 0x17 : 0x37;
    const unsigned density = pick(2U, 8U, 40U);
    std::vector<entry> entries;
    const numbers primaries = frequencies_of(plan);
    for (const uint32_t f : primaries) {
      const uint32_t caps = random() % 10 == 0 ? static_cast<uint32_t>(random() & 0xFF) : widths;
      if (random() % 30 != 0)
        entries.push_back({f, 20, caps, random() % density == 0 ? 1U << random() % 4 : 0U, 0});
    }
    if (random() % 4 == 0)
      std::ranges::shuffle(entries, random);
    const ravix_channel_list_t list = {static_cast<uint32_t>(entries.size()), entries.data()};
    const uint32_t primary = primaries[random() % primaries.size()];
    const uint32_t mask = pick(0U, 1U, 3U, 15U);
    const uint16_t max_width = static_cast<uint16_t>(pick(0, 1, 2, 4, 16, 32));
    const bool ext_high = random() % 2 == 0;
    info found = {1, 2, 3, 4}, want = {};
    const int result = ravix_get_max_clear_channel_info(&list, primary, mask, ext_high, max_width, &found);
    ASSERT_EQ(result, judged_search(entries, primary, mask, ext_high, max_width, want)) << round;
    ASSERT_EQ(fields(found), fields(want)) << round;
    ASSERT_EQ(log.take().empty(), result != -22);
    ++results[result];
  }
  EXPECT_GT(results[0], 1000);
  EXPECT_GT(results[-2], 1000);
  EXPECT_GT(results[-22], 100);
}

} // namespace
