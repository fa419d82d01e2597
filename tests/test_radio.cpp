// Radio arithmetic against slow, obvious judges. Single calls with unusual arguments stand in radio_calls.txt.
#include "channel_judge.hpp"
#include "golden.hpp"
#include "harness.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <concepts>
#include <cstdint>
#include <cstdlib>
#include <iomanip>
#include <iterator>
#include <map>
#include <random>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

namespace {

using judge::entry;
using judge::fields;
using judge::info;
using judge::numbers;

const numbers &primaries = judge::widths.at(RAVIX_CHANNEL_WIDTH_20).centers;

// ---- What is shown of results

float shown_of(float value) {
  return std::isnan(value) ? std::abs(value) : value; // whether a NaN has a sign is up to the machine
}
int64_t shown_of(std::integral auto value) {
  return value;
}
std::string shown(const auto &first, const auto &...more) {
  std::ostringstream out;
  out << shown_of(first);
  ((out << ' ' << shown_of(more)), ...);
  return out.str();
}
std::string shown(const info &c) {
  return '{' + shown(c.primary_freq, c.center_freq, c.channel_width, c.puncture_map) + '}';
}

TEST(Frequency, IsPrimaryOnlyWhereAChannelIsAndLeadsThereAndBack) {
  numbers found;
  for (uint32_t f = 0; f <= 7300000; ++f) {
    if (ravix_frequency_is_primary(f))
      found.push_back(f);
  }
  ASSERT_EQ(found, primaries);
  for (const uint32_t f : found) {
    EXPECT_FALSE(ravix_frequency_is_primary(f + 0x80000000U)) << f;
    EXPECT_EQ(ravix_frequency_from_channel_and_band(ravix_frequency_to_channel(f), ravix_frequency_to_radio_band(f)),
              f);
  }
}

// ---- Channel descriptions

TEST(ChannelInfo, IsMadeAndIsValidOnlyAsTheJudgeSays) {
  std::vector<info> all;
  for (const uint32_t primary : primaries) {
    for (const auto &[width, of] : judge::widths) {
      for (const bool ext_high : {false, true}) {
        const uint32_t center = judge::center_of(primary, width, ext_high);
        for (uint32_t m = 0; m <= (center != 0 ? 0xFFFF : 0); ++m) {
          const auto map = static_cast<uint16_t>(m);
          const info want = judge::if_allowed({primary, center, width, map});
          info made = {1, 2, 3, 4};
          const bool is_made = ravix_create_channel_info(primary, width, ext_high, map, &made);
          if (is_made != (want.center_freq != 0) || fields(made) != fields(want))
            FAIL() << shown(primary, width, ext_high, map) << " made " << shown(made);
          if (is_made)
            all.push_back(made);
        }
      }
    }
  }
  EXPECT_GT(all.size(), 4000U);
  const auto check = [](const info &channel) {
    ASSERT_EQ(ravix_channel_info_is_valid(&channel), judge::is_valid(channel)) << shown(channel);
  };
  for (const auto &[primary, center, width, map] : all) {
    for (const uint32_t shift : {1U, 5000U, 10000U, 20000U, 0x80000000U, 0U, -1U, -5000U, -10000U, -20000U}) {
      check({primary, center + shift, width, map});
      check({primary + shift, center, width, map});
    }
    for (uint16_t other = 0; other <= 64; ++other)
      check({primary, center, other, map});
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
    std::istringstream in(word);
    char slash = 0;
    in >> std::setbase(0) >> channel.primary_freq >> slash >> channel.center_freq >> slash >> channel.channel_width;
    in >> slash >> channel.puncture_map;
    return given(&channel);
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

const std::map<std::string, std::string (*)(const arguments &a)> calls = {
    {"at", results<ravix_frequency_to_channel, ravix_frequency_to_radio_band, ravix_frequency_to_radio_sub_band>},
    {"band", results<ravix_channel_to_radio_band>},
    {"frequency_of", results<ravix_radio_band_and_channel_to_frequency>},
    {"frequency", results<ravix_frequency_from_channel_and_band>},
    {"width", results<ravix_channel_width_to_frequency, ravix_channel_width_lower, ravix_channel_width_higher>},
    {"width_of_khz", results<ravix_frequency_to_channel_width>},
    {"width_of_capabilities", results<ravix_channel_capabilities_to_channel_width>},
    {"match", results<ravix_channel_capabilities_match_width>},
    {"mode", results<ravix_wlan_mode_is_valid, ravix_get_highest_channel_width_from_mode>},
    {"codes", results<dBm_to_ravix_rcpi_val, dBm_to_ravix_anpi_val, dB_to_ravix_rsni_val>},
    {"decoded", results<ravix_rcpi_val_to_dBm, ravix_anpi_val_to_dBm, ravix_rsni_val_to_dB>},
    {"rsni", results<ravix_calculate_rsni_dB>},
    {"factor", results<ravix_dB_to_factor, ravix_dBm_to_power_mW>},
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

TEST(Search, WidestClearChannelEqualsTheJudge) {
  harness::captured_log log;
  std::mt19937 random(20); // NOLINT(cert-msc32-c,cert-msc51-cpp): a failing round must come again
  std::map<int, int> results;
  for (int round = 0; round < 20000; ++round) {
    const uint32_t density = 2U << 2 * (random() % 3);
    std::vector<entry> entries;
    for (const uint32_t frequency : primaries) {
      const uint32_t all_widths = frequency < 2500000 ? 0x3 : frequency < 5900000 ? 0x17 : 0x37;
      const auto capabilities = random() % 10 == 0 ? static_cast<uint32_t>(random() & 0xFF) : all_widths;
      if (random() % 30 != 0)
        entries.push_back({frequency, 20, capabilities, random() % density == 0 ? 1U << random() % 4 : 0U, 0});
    }
    if (random() % 4 == 0)
      std::ranges::shuffle(entries, random);
    const ravix_channel_list_t list = {static_cast<uint32_t>(entries.size()), entries.data()};
    const uint32_t primary = primaries[random() % primaries.size()], mask = (1U << random() % 5) - 1;
    const uint16_t limits[] = {0, 1, 2, 4, 16, 32}, max_width = limits[random() % std::size(limits)];
    const bool ext_high = random() % 2 == 0;
    info found = {1, 2, 3, 4}, want = {};
    const int result = ravix_get_max_clear_channel_info(&list, primary, mask, ext_high, max_width, &found);
    ASSERT_EQ(result, judge::search(entries, primary, mask, ext_high, max_width, want)) << round;
    ASSERT_EQ(fields(found), fields(want)) << round;
    ASSERT_EQ(log.take().empty(), result != -22);
    ++results[result];
  }
  EXPECT_GT(std::min({results[0], results[-2], results[-22]}), 100);
}

} // namespace
