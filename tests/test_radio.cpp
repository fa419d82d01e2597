// Radio arithmetic against slow, obvious judges: lists of channels written out instead of computed with.
#include "harness.hpp"

#include "ravix_types_str_convert.h"
#include "ravix_types_util.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cfloat>
#include <cmath>
#include <cstdint>
#include <limits>
#include <map>
#include <random>
#include <set>
#include <string>
#include <tuple>
#include <vector>

namespace {

using lines = std::vector<std::string>;

constexpr uint16_t all_widths[] = {1, 2, 4, 16, 32};

// ---- Judges

uint32_t judged_khz(uint16_t width) {
  static const std::map<uint16_t, uint32_t> khz = {{1, 20000}, {2, 40000}, {4, 80000}, {16, 160000}, {32, 320000}};
  return khz.contains(width) ? khz.at(width) : 0;
}

uint32_t judged_channel(uint32_t f) {
  if (f <= 2407000)
    return 0;
  if (f < 2484000)
    return (f - 2407000) / 5000;
  if (f == 2484000)
    return 14;
  if (f <= 5000000)
    return 0;
  if (f < 5930000)
    return (f - 5000000) / 5000;
  if (f < 5955000)
    return (f - 5925000) / 5000;
  if (f < 7125000)
    return (f - 5950000) / 5000;
  if (f <= 56160000)
    return 0;
  return f <= 64800000 ? (f - 56160000) / 2160000 : 0;
}

struct placement {
  int band, sub_band;
};
placement judged_band(uint32_t f) {
  if (f >= 2401000 && f <= 2495000)
    return {1, 1};
  if (f >= 5170000 && f <= 5330000)
    return {2, 3};
  if (f >= 5490000 && f <= 5895000)
    return {2, 2};
  if (f >= 5945000 && f <= 7125000)
    return {4, 1};
  return {0, 0};
}

const std::vector<uint32_t> &primaries_2ghz() {
  static const std::vector<uint32_t> list = {2412000, 2417000, 2422000, 2427000, 2432000, 2437000, 2442000,
                                             2447000, 2452000, 2457000, 2462000, 2467000, 2472000, 2484000};
  return list;
}
const std::vector<uint32_t> &primaries_5ghz() {
  static const std::vector<uint32_t> list = {5180000, 5200000, 5220000, 5240000, 5260000, 5280000, 5300000,
                                             5320000, 5500000, 5520000, 5540000, 5560000, 5580000, 5600000,
                                             5620000, 5640000, 5660000, 5680000, 5700000, 5720000, 5745000,
                                             5765000, 5785000, 5805000, 5825000, 5845000, 5865000, 5885000};
  return list;
}
const std::vector<uint32_t> &primaries_6ghz() {
  static const std::vector<uint32_t> list = [] {
    std::vector<uint32_t> result;
    for (uint32_t channel = 1; channel <= 233; channel += 4) {
      result.push_back((5950 + channel * 5) * 1000);
    }
    return result;
  }();
  return list;
}
std::set<uint32_t> all_primaries() {
  std::set<uint32_t> result;
  for (const auto *list : {&primaries_2ghz(), &primaries_5ghz(), &primaries_6ghz()}) {
    result.insert(list->begin(), list->end());
  }
  return result;
}

struct block {
  uint32_t lower, upper;
};
std::vector<block> judged_blocks(int band, uint16_t width) {
  if (band == 2) {
    switch (width) {
    case 2:
      return {{5180000, 5200000}, {5220000, 5240000}, {5260000, 5280000}, {5300000, 5320000}, {5500000, 5520000},
              {5540000, 5560000}, {5580000, 5600000}, {5620000, 5640000}, {5660000, 5680000}, {5700000, 5720000},
              {5745000, 5765000}, {5785000, 5805000}, {5825000, 5845000}, {5865000, 5885000}};
    case 4:
      return {{5180000, 5240000}, {5260000, 5320000}, {5500000, 5560000}, {5580000, 5640000},
              {5660000, 5720000}, {5745000, 5805000}, {5825000, 5885000}};
    case 16:
      return {{5180000, 5320000}, {5500000, 5640000}, {5745000, 5885000}};
    default:
      return {};
    }
  }
  const auto row = [](uint32_t count, uint32_t step, uint32_t extent) {
    std::vector<block> result;
    for (uint32_t k = 0; k < count; ++k) {
      result.push_back({5955000 + step * k, 5955000 + step * k + extent});
    }
    return result;
  };
  switch (width) {
  case 2:
    return row(29, 40000, 20000);
  case 4:
    return row(14, 80000, 60000);
  case 16:
    return row(7, 160000, 140000);
  case 32:
    return {{5955000, 6255000}, {6115000, 6415000}, {6275000, 6575000},
            {6435000, 6735000}, {6595000, 6895000}, {6755000, 7055000}};
  default:
    return {};
  }
}

// Centre of a channel; 0: there is none.
uint32_t judged_center(uint32_t primary, uint16_t width, bool ext_high) {
  if (!all_primaries().contains(primary))
    return 0;
  if (width == 1)
    return primary;
  if (primary == 2484000)
    return 0;
  const int band = judged_band(primary).band;
  if (band == 1) {
    if (width != 2)
      return 0;
    const uint32_t second = ext_high ? primary + 20000 : primary - 20000;
    return second >= 2412000 && second <= 2472000 ? (primary + second) / 2 : 0;
  }
  uint32_t center = 0;
  for (const auto &[lower, upper] : judged_blocks(band, width)) {
    if (lower <= primary && primary <= upper && (center == 0 || ext_high)) {
      center = (lower + upper) / 2;
    }
  }
  return center;
}

const std::set<uint16_t> &judged_patterns(uint16_t width) {
  static const std::map<uint16_t, std::set<uint16_t>> patterns = {
      {4, {0x0001, 0x0002, 0x0004, 0x0008}},
      {16,
       {0x0001, 0x0002, 0x0004, 0x0008, 0x0010, 0x0020, 0x0040, 0x0080,     // one of eight
        0x0003, 0x000C, 0x0030, 0x00C0}},                                   // 40 of 160 MHz
      {32, {0x0003, 0x000C, 0x0030, 0x00C0, 0x0300, 0x0C00, 0x3000, 0xC000, // 40 of 320 MHz
            0x000F, 0x00F0, 0x0F00, 0xF000,                                 // 80
            0xF003, 0xF00C, 0xF030, 0xF0C0, 0xF300, 0xFC00,                 // the upper 80 and 40 more
            0x003F, 0x00CF, 0x030F, 0x0C0F, 0x300F, 0xC00F}}};              // the lower 80 and 40 more
  static const std::set<uint16_t> none;
  return patterns.contains(width) ? patterns.at(width) : none;
}

// Every 5 MHz step in use, every boundary of a rule, and the neighbours of all of them.
std::vector<uint32_t> frequencies() {
  std::vector<uint32_t> steps = {UINT32_MAX - 1};
  for (uint32_t f = 0; f <= 7200000; f += 5000)
    steps.push_back(f);
  for (uint32_t f = 55000000; f <= 66000000; f += 5000)
    steps.push_back(f);
  for (const uint32_t boundary :
       {2401000U, 2407000U, 2472000U, 2477000U, 2484000U, 2495000U, 5000000U, 5170000U, 5330000U,  5490000U,
        5895000U, 5929999U, 5930000U, 5945000U, 5949999U, 5954999U, 7124999U, 7125000U, 56160000U, 64800000U}) {
    steps.push_back(boundary);
  }
  std::vector<uint32_t> result;
  for (const uint32_t f : steps) {
    result.insert(result.end(), {f - 1, f, f + 1});
  }
  return result;
}

TEST(Frequency, EqualsTheJudgeAtEveryStepAndBoundary) {
  const auto primaries = all_primaries();
  ASSERT_EQ(primaries.size(), 14U + 28U + 59U);
  for (const uint32_t f : frequencies()) {
    SCOPED_TRACE(f);
    ASSERT_EQ(ravix_frequency_to_channel(f), judged_channel(f));
    ASSERT_EQ(ravix_frequency_to_radio_band(f), judged_band(f).band);
    ASSERT_EQ(ravix_frequency_to_radio_sub_band(f), judged_band(f).sub_band);
    ASSERT_EQ(ravix_frequency_is_primary(f), primaries.contains(f));
  }
}

TEST(Frequency, IsPrimaryForNoOtherKilohertz) {
  std::size_t count = 0;
  for (uint32_t f = 2300000; f <= 7300000; ++f) {
    count += ravix_frequency_is_primary(f) ? 1 : 0;
  }
  EXPECT_EQ(count, all_primaries().size());
}

TEST(Channel, BelongsToABandAndLeadsBackToItsFrequency) {
  for (uint32_t channel = 0; channel <= 300; ++channel) {
    const int band = channel >= 1 && channel <= 14 ? 1 : channel >= 36 && channel <= 177 ? 2 : 0;
    EXPECT_EQ(ravix_channel_to_radio_band(channel), band) << channel;
  }
  EXPECT_EQ(ravix_channel_to_radio_band(UINT32_MAX), 0);
  for (const uint32_t f : all_primaries()) {
    EXPECT_EQ(ravix_frequency_from_channel_and_band(ravix_frequency_to_channel(f), ravix_frequency_to_radio_band(f)),
              f);
  }
  const struct {
    const char *sentence;
    uint32_t channel, band, frequency;
  } rows[] = {
      {"a number is not checked against its band", 15, 1, 2482000},
      {"nor is zero", 0, 1, 2407000},
      {"14 is special in 2.4 GHz alone", 14, 4, 6020000},
      {"the product wraps", UINT32_MAX, 2, 5000000 - 5000},
      {"the two bits of two bands are no band", 36, 3, 0},
      {"nor is the sentinel", 36, 5, 0},
      {"nor is a band in a higher octet", 36, 0x102, 0},
  };
  for (const auto &row : rows) {
    EXPECT_EQ(ravix_frequency_from_channel_and_band(row.channel, row.band), row.frequency) << row.sentence;
    EXPECT_EQ(ravix_radio_band_and_channel_to_frequency(row.band, row.channel), row.frequency) << row.sentence;
  }
}

TEST(Width, StepsThroughTheFiveWidthsAndKnowsNoOther) {
  const std::map<uint32_t, std::pair<uint32_t, uint32_t>> neighbours = {// {narrower, wider}
                                                                        {1, {0, 2}},
                                                                        {2, {1, 4}},
                                                                        {4, {2, 16}},
                                                                        {16, {4, 32}},
                                                                        {32, {16, 0}}};
  for (uint32_t w = 0; w <= UINT16_MAX; ++w) {
    const auto width = static_cast<uint16_t>(w);
    const auto [lower, higher] = neighbours.contains(w) ? neighbours.at(w) : std::pair<uint32_t, uint32_t>{0, 0};
    ASSERT_EQ(ravix_channel_width_to_frequency(width), judged_khz(width)) << w;
    ASSERT_EQ(ravix_channel_width_lower(width), lower) << w;
    ASSERT_EQ(ravix_channel_width_higher(width), higher) << w;
  }
  for (const uint16_t width : all_widths) {
    EXPECT_EQ(ravix_frequency_to_channel_width(judged_khz(width)), width);
    EXPECT_EQ(ravix_frequency_to_channel_width(judged_khz(width) + 1), 0);
    EXPECT_EQ(ravix_frequency_to_channel_width(judged_khz(width) - 1), 0);
  }
  EXPECT_EQ(ravix_frequency_to_channel_width(0), 0);
}

TEST(Width, IsTakenFromCapabilities) {
  for (uint32_t caps = 0; caps <= 0x1FF; ++caps) {
    uint16_t widest = 0;
    for (const uint16_t width : all_widths) {
      widest = (caps & width) != 0 ? width : widest;
      ASSERT_EQ(ravix_channel_capabilities_match_width(caps, width), (caps & width) != 0) << caps;
    }
    ASSERT_EQ(ravix_channel_capabilities_to_channel_width(caps), widest) << caps;
  }
  EXPECT_FALSE(ravix_channel_capabilities_match_width(UINT32_MAX, 0xFFC8)); // no width among these bits
  EXPECT_TRUE(ravix_channel_capabilities_match_width(0x02, 0x13));          // one of several
}

TEST(Width, IsTakenFromTheMode) {
  for (uint32_t mode = 0; mode <= 0x1FF; ++mode) {
    const auto has = [mode](uint32_t bits) { return (mode & bits) != 0; };
    const bool valid = mode != 0 && !has(0x180) && !((has(0x01) || has(0x10)) && (has(0x02) || has(0x04)));
    ASSERT_EQ(ravix_wlan_mode_is_valid(mode), valid) << mode;
    const int width = !valid ? 0 : has(0x40) ? 32 : has(0x20) || has(0x10) ? 16 : has(0x08) ? 2 : 1;
    ASSERT_EQ(ravix_get_highest_channel_width_from_mode(mode), width) << mode;
  }
  EXPECT_FALSE(ravix_wlan_mode_is_valid(0x80000008));
}

TEST(Signal, CodesAreHalfDecibels) {
  for (int code = 0; code <= 255; ++code) {
    const auto value = static_cast<uint8_t>(code);
    const float dBm = static_cast<float>(code - 220) / 2;
    const float dB = static_cast<float>(code - 20) / 2;
    EXPECT_EQ(ravix_rcpi_val_to_dBm(value), dBm);
    EXPECT_EQ(ravix_anpi_val_to_dBm(value), dBm);
    EXPECT_EQ(ravix_rsni_val_to_dB(value), dB);
    EXPECT_EQ(dBm_to_ravix_rcpi_val(dBm), std::min(code, 220));
    EXPECT_EQ(dB_to_ravix_rsni_val(dB), std::min(code, 254));
    // Just below a step the code is that of the step before; the scale has ends.
    EXPECT_EQ(dBm_to_ravix_anpi_val(dBm - 0.01F), std::clamp(code - 1, 0, 220));
    EXPECT_EQ(dB_to_ravix_rsni_val(dB - 0.01F), std::clamp(code - 1, 0, 254));
  }
}

TEST(Signal, IsDefinedForEveryArgument) {
  const float infinity = std::numeric_limits<float>::infinity();
  const float nan = std::numeric_limits<float>::quiet_NaN();
  const struct {
    float value;
    int rcpi, rsni;
  } rows[] = {{-infinity, 0, 0},   {-FLT_MAX, 0, 0},     {-109.6F, 0, 0}, {-109.5F, 1, 0},    {-10.1F, 199, 0},
              {-10.0F, 200, 0},    {-0.0F, 220, 20},     {0.0F, 220, 20}, {117.0F, 220, 254}, {117.1F, 220, 254},
              {FLT_MAX, 220, 254}, {infinity, 220, 254}, {nan, 220, 254}, {-nan, 220, 254}};
  for (const auto &row : rows) {
    EXPECT_EQ(dBm_to_ravix_rcpi_val(row.value), row.rcpi) << row.value;
    EXPECT_EQ(dBm_to_ravix_anpi_val(row.value), row.rcpi) << row.value;
    EXPECT_EQ(dB_to_ravix_rsni_val(row.value), row.rsni) << row.value;
  }
  EXPECT_EQ(ravix_dB_to_factor(0.0F), 1.0F);
  EXPECT_FLOAT_EQ(ravix_dB_to_factor(30.0F), 1000.0F);
  EXPECT_FLOAT_EQ(ravix_dBm_to_power_mW(-3.0F), 0.50118723F);
  EXPECT_EQ(ravix_dB_to_factor(FLT_MAX), infinity);
  EXPECT_EQ(ravix_dBm_to_power_mW(-infinity), 0.0F);
  EXPECT_TRUE(std::isnan(ravix_dB_to_factor(nan)));
}

TEST(Signal, ToNoiseRatioHasTwoEnds) {
  const float infinity = std::numeric_limits<float>::infinity();
  const struct {
    const char *sentence;
    float total, noise, dB;
  } rows[] = {
      {"signal as strong as noise", 2, 1, 0},
      {"ten times as strong", 11, 1, 10},
      {"no signal", 1, 1, -FLT_MAX},
      {"less than the noise", 0.5F, 1, -FLT_MAX},
      {"no noise", 1, 0, FLT_MAX},
      {"no noise, infinite power", infinity, 0, FLT_MAX},
      {"neither", 0, 0, -FLT_MAX},
      {"negative power without noise", -1, 0, -FLT_MAX},
      {"negative noise", 1, -1, -FLT_MAX},
      {"endless noise", 1, infinity, -FLT_MAX},
      {"endless signal", infinity, 1, infinity},
  };
  for (const auto &row : rows) {
    EXPECT_EQ(ravix_calculate_rsni_dB(row.total, row.noise), row.dB) << row.sentence;
  }
  EXPECT_TRUE(std::isnan(ravix_calculate_rsni_dB(std::numeric_limits<float>::quiet_NaN(), 1)));
}

bool equal(const ravix_channel_info_t &a, const ravix_channel_info_t &b) {
  return a.primary_freq == b.primary_freq && a.center_freq == b.center_freq && a.channel_width == b.channel_width &&
         a.puncture_map == b.puncture_map;
}

TEST(ChannelInfo, EqualsTheJudgeForEveryPrimaryWidthSideAndMap) {
  const ravix_channel_info_t not_made = {0, 0, 0, 0xFFFF};
  std::size_t made_count = 0;
  for (const uint32_t primary : all_primaries()) {
    for (const uint16_t width : all_widths) {
      std::vector<bool> pattern(0x10000);
      pattern[0] = true;
      for (const uint16_t map : judged_patterns(width))
        pattern[map] = true;
      for (const bool ext_high : {false, true}) {
        const uint32_t center = judged_center(primary, width, ext_high);
        const uint32_t bit = (primary - (center - judged_khz(width) / 2)) / 20000;
        for (uint32_t map = 0; map <= 0xFFFF; ++map) {
          ravix_channel_info_t made = {1, 2, 3, 4};
          const bool possible = ravix_create_channel_info(primary, width, ext_high, static_cast<uint16_t>(map), &made);
          const bool judged = center != 0 && pattern[map] && (map >> bit & 1) == 0;
          const ravix_channel_info_t want =
              judged ? ravix_channel_info_t{primary, center, width, static_cast<uint16_t>(map)} : not_made;
          ASSERT_TRUE(possible == judged && equal(made, want) && ravix_channel_info_is_valid(&made) == judged)
              << primary << ' ' << width << ' ' << ext_high << ' ' << map << ": " << possible;
          made_count += judged ? 1 : 0;
        }
      }
    }
  }
  EXPECT_GT(made_count, 2000U);
}

TEST(ChannelInfo, IsNotMadeOfWhatIsNoChannel) {
  ravix_channel_info_t made = {};
  for (uint32_t width = 0; width <= UINT16_MAX; ++width) { // the judge knows the others
    for (const uint32_t primary : {2437000U, 2484000U, 5180000U, 6135000U}) {
      const bool possible = judged_center(primary, static_cast<uint16_t>(width), true) != 0;
      ASSERT_EQ(ravix_create_channel_info(primary, static_cast<uint16_t>(width), true, 0, &made), possible) << width;
    }
  }
  for (const uint32_t f : frequencies()) {
    ASSERT_EQ(ravix_create_channel_info(f, 1, false, 0, &made), all_primaries().contains(f)) << f;
  }
  EXPECT_FALSE(ravix_create_channel_info(2412000, 1, false, 0, nullptr));
}

// Every description that can be made.
std::vector<ravix_channel_info_t> all_channels() {
  std::vector<ravix_channel_info_t> result;
  for (const uint32_t primary : all_primaries()) {
    for (const uint16_t width : all_widths) {
      std::set<uint16_t> maps = judged_patterns(width);
      maps.insert(0);
      std::set<uint32_t> centers = {judged_center(primary, width, false), judged_center(primary, width, true)};
      centers.erase(0);
      for (const uint32_t center : centers) {
        for (const uint16_t map : maps) {
          if ((map >> ((primary - (center - judged_khz(width) / 2)) / 20000) & 1) == 0) {
            result.push_back({primary, center, width, map});
          }
        }
      }
    }
  }
  return result;
}

TEST(ChannelInfo, IsValidOnlyIfItCanBeMade) {
  const auto fields = [](const ravix_channel_info_t &channel) {
    return std::tuple(channel.primary_freq, channel.center_freq, channel.channel_width, channel.puncture_map);
  };
  const auto channels = all_channels();
  std::set<decltype(fields({}))> valid;
  for (const auto &channel : channels)
    valid.insert(fields(channel));
  EXPECT_FALSE(ravix_channel_info_is_valid(nullptr));
  const auto judge = [&](const ravix_channel_info_t &channel) {
    ASSERT_EQ(ravix_channel_info_is_valid(&channel), valid.contains(fields(channel)))
        << ravix_str_channel_info(&channel);
  };
  for (const ravix_channel_info_t &channel : channels) {
    judge(channel);
    for (const uint32_t shift : {1U, 5000U, 10000U, 20000U, 0x80000000U}) {
      const auto [primary, center, width, map] = channel;
      judge({primary, center + shift, width, map});
      judge({primary, center - shift, width, map});
      judge({primary + shift, center, width, map});
      judge({primary - shift, center, width, map});
    }
    for (uint16_t width = 0; width <= 64; ++width) {
      judge({channel.primary_freq, channel.center_freq, width, channel.puncture_map});
    }
  }
}

TEST(ChannelInfo, CoversTheChannelNumbersBetweenItsEdges) {
  uint32_t lowest = 0, highest = 0;
  for (const ravix_channel_info_t &channel : all_channels()) {
    // The number of an edge is its distance from the start of the band in steps of 5 MHz.
    const int band = judged_band(channel.primary_freq).band;
    const int start = band == 1 ? 2407 : band == 2 ? 5000 : 5950;
    const int half = static_cast<int>(judged_khz(channel.channel_width) / 2000);
    const int center = static_cast<int>(channel.center_freq / 1000);
    int low = std::max((center - half - start) / 5, 1);
    int high = (center + half - start) / 5;
    if (band == 1) {
      high = std::min(high, 13);
      if (channel.primary_freq == 2484000)
        low = high = 14;
    }
    ASSERT_TRUE(ravix_channel_info_to_lowest_and_highest_channel(&channel, &lowest, &highest));
    ASSERT_EQ(std::pair(lowest, highest), std::pair(static_cast<uint32_t>(low), static_cast<uint32_t>(high)))
        << ravix_str_channel_info(&channel);
  }
  const ravix_channel_info_t invalid = {2412000, 2412000, 2, 0};
  const ravix_channel_info_t valid = {2412000, 2412000, 1, 0};
  EXPECT_FALSE(ravix_channel_info_to_lowest_and_highest_channel(&invalid, &lowest, &highest));
  EXPECT_EQ(std::pair(lowest, highest), std::pair(0U, 0U));
  lowest = highest = 7;
  EXPECT_FALSE(ravix_channel_info_to_lowest_and_highest_channel(nullptr, &lowest, &highest));
  EXPECT_FALSE(ravix_channel_info_to_lowest_and_highest_channel(&valid, nullptr, &highest));
  EXPECT_FALSE(ravix_channel_info_to_lowest_and_highest_channel(&valid, &lowest, nullptr));
  EXPECT_EQ(std::pair(lowest, highest), std::pair(7U, 7U));
}

TEST(ChannelInfo, IsMadeWithTheOtherSideWhereTheFirstDoesNotFit) {
  harness::captured_log log;
  const struct {
    const char *sentence;
    uint32_t primary;
    uint16_t width;
    bool ext_high;
    uint16_t map;
    int result;
    uint32_t center;
    const char *line;
  } rows[] = {
      {"fits as asked", 2412000, 2, true, 0, 0, 2422000, nullptr},
      {"nothing below channel 1", 2412000, 2, false, 0, 1, 2422000, nullptr},
      {"nothing above channel 9", 2462000, 2, true, 0, 1, 2452000, nullptr},
      {"channel 14 has no second, and both sides are tried", 2484000, 2, true, 0, RAVIX_FAIL_GENERAL, 0,
       "freq '2484 MHz ( 14)' and cw '40 MHz', ext_high: 0."},
      {"other widths have no other side", 5180000, 32, true, 0, RAVIX_FAIL_GENERAL, 0,
       "freq '5180 MHz ( 36)' and cw '320 MHz', ext_high: 1."},
      {"a map that cannot be", 2437000, 2, false, 1, RAVIX_FAIL_GENERAL, 0,
       "freq '2437 MHz (  6)' and cw '40 MHz', ext_high: 1."},
      {"no block at the end of 6 GHz", 7115000, 2, false, 0, RAVIX_FAIL_GENERAL, 0,
       "freq '7115 MHz (233)' and cw '40 MHz', ext_high: 0."},
      {"no channel, no width", 0, 8, false, 0, RAVIX_FAIL_GENERAL, 0,
       "freq 'INVALID' and cw '<invalid value: 8>', ext_high: 0."},
  };
  for (const auto &row : rows) {
    SCOPED_TRACE(row.sentence);
    ravix_channel_info_t made = {};
    EXPECT_EQ(ravix_create_channel_info_auto(row.primary, row.width, row.ext_high, row.map, &made), row.result);
    const bool failed = row.line != nullptr;
    EXPECT_EQ(made.center_freq, row.center);
    EXPECT_EQ(made.puncture_map, failed ? 0xFFFF : row.map);
    EXPECT_EQ(log.take_texts(),
              failed
                  ? lines{std::string("ravix_create_channel_info_auto: Failed to create channel_info with params: ") +
                          row.line}
                  : lines{});
  }
  EXPECT_EQ(ravix_create_channel_info_auto(2412000, 1, false, 0, nullptr), RAVIX_FAIL_GENERAL);
  const auto written = log.take();
  ASSERT_EQ(written.size(), 1U);
  EXPECT_EQ(written[0].name + ' ' + written[0].file, "ravix src/ravix_types_util");
}

TEST(Puncturing, WithoutAChannelAnyPatternIsValid) {
  for (uint32_t m = 0; m <= 0xFFFF; ++m) {
    const auto map = static_cast<uint16_t>(m);
    const bool valid = map == 0 || judged_patterns(4).contains(map) || judged_patterns(16).contains(map) ||
                       judged_patterns(32).contains(map);
    ASSERT_EQ(ravix_puncture_map_is_valid(map, nullptr), valid) << m;
  }
}

TEST(Puncturing, NeverTakesThePrimaryAndReportsRecordsThatMakeNoSense) {
  harness::captured_log log;
  const lines no_width = {"ravix_puncture_map_is_valid: ASSERT: RAVIX_FREQUENCY_INVALID != width_khz"};
  const lines outside = {"ravix_puncture_map_is_valid: ASSERT: channel_info->primary_freq > freq_block_begin"};
  const lines both = {no_width[0], outside[0]};
  const struct {
    const char *sentence;
    ravix_channel_info_t channel;
    uint16_t map;
    bool valid;
    lines written;
  } rows[] = {
      {"the lowest subchannel is primary", {5180000, 5210000, 4, 0}, 0x0001, false, {}},
      {"the second one is", {5200000, 5210000, 4, 0}, 0x0001, true, {}},
      {"two of four are too many", {5240000, 5210000, 4, 0}, 0x0003, false, {}},
      {"two of eight are not", {5240000, 5250000, 16, 0}, 0x0003, true, {}},
      {"unless one of them is primary", {5200000, 5250000, 16, 0}, 0x0003, false, {}},
      {"the sixteenth subchannel is primary", {6255000, 6105000, 32, 0}, 0xC000, false, {}},
      {"a width without patterns", {5200000, 5190000, 2, 0}, 0x0001, false, {}},
      {"a width that is none", {5200000, 5190000, 8, 0}, 0x0001, false, {}},
      {"nothing punctured, nothing looked at", {0, 0, 0, 0}, 0, true, {}},
      {"the unset map, whatever the channel", {6255000, 6105000, 32, 0}, 0xFFFF, false, {}},
      {"width 0: any width's pattern", {20001, 1, 0, 0}, 0xF003, false, no_width},
      {"width 0: the first subchannel begins at the centre", {5200000, 5180000, 0, 0}, 0x0001, true, no_width},
      {"primary on the lower edge", {5170000, 5210000, 4, 0}, 0x0002, true, outside},
      {"primary below: the index wraps, beyond all bits", {5160000, 5210000, 4, 0}, 0x0002, true, outside},
      {"the index has 8 bits: 256 is 0", {5170000 + 256 * 20000, 5210000, 4, 0}, 0x0001, false, {}},
      {"centre near 0: the edge wraps, 2 subchannels below", {20000, 10000, 4, 0}, 0x0004, false, outside},
      {"all of it zero", {0, 0, 0, 0}, 0x0001, false, both},
  };
  for (const auto &row : rows) {
    EXPECT_EQ(ravix_puncture_map_is_valid(row.map, &row.channel), row.valid) << row.sentence;
    const auto written = log.take();
    lines texts;
    for (const auto &line : written) {
      texts.push_back(line.function + ": " + line.text);
      EXPECT_EQ(line.name + ' ' + line.file, "default src/ravix_types_util") << row.sentence;
    }
    EXPECT_EQ(texts, row.written) << row.sentence;
  }
}

// ---- Channels of a list

using entry = ravix_channel_entry_t;

ravix_channel_list_t list_of(std::vector<entry> &entries) {
  return {static_cast<uint32_t>(entries.size()), entries.data()};
}

void collect(const entry *visited, void *context, uint32_t frequency) {
  static_cast<std::vector<uint32_t> *>(context)->push_back(visited->frequency == frequency ? frequency : 0);
}

TEST(ChannelList, IsWalkedFromEdgeToEdge) {
  harness::captured_log log;
  std::vector<entry> entries;
  for (const uint32_t f : {5240000U, 5170000U, 5169999U, 5250000U, 5250001U, 5180000U, 5200000U}) {
    entries.push_back({f, 20, f == 5200000 ? UINT32_C(1) : UINT32_C(7), 0, 0});
  }
  const auto list = list_of(entries);
  const ravix_channel_info_t channel = {5180000, 5210000, 4, 0};
  const ravix_channel_info_t invalid = {5180000, 5210000, 2, 0};
  std::vector<uint32_t> visited;
  EXPECT_EQ(ravix_channel_info_check_range(&list, &channel, collect, &visited), 0);
  EXPECT_EQ(visited, (std::vector<uint32_t>{5240000, 5170000, 5250000, 5180000})); // in order, edges in, 20 MHz out
  EXPECT_EQ(log.take_texts(), lines{});
  EXPECT_EQ(ravix_channel_info_check_range(nullptr, nullptr, nullptr, &visited), -22);
  EXPECT_EQ(ravix_channel_info_check_range(&list, nullptr, nullptr, &visited), -22);
  EXPECT_EQ(ravix_channel_info_check_range(&list, &invalid, nullptr, &visited), -22);
  EXPECT_EQ(ravix_channel_info_check_range(&list, &invalid, collect, &visited), -22);
  const std::string name = "ravix_channel_info_check_range: ";
  EXPECT_EQ(log.take_texts(), (lines{name + "Invalid pointer 'chan_list'!", name + "Invalid pointer 'channel_info'!",
                                     name + "Invalid pointer 'chan_check_fct'!", name + "channel_info is not valid!"}));
  EXPECT_EQ(visited.size(), 4U);
}

TEST(ChannelList, ClearanceNamesItsArgumentsAndItsFailure) {
  harness::captured_log log;
  std::vector<entry> entries = {{5180000, 20, 3, RAVIX_CHANNEL_STATE_RADAR_FOUND, 0}, {5200000, 20, 1, UINT32_MAX, 0}};
  const auto list = list_of(entries);
  const ravix_channel_info_t channel = {5180000, 5190000, 2, 0};
  const ravix_channel_info_t invalid = {5180000, 5190000, 4, 0};
  bool clear = true;
  EXPECT_EQ(ravix_channel_is_clear(&list, &channel, RAVIX_CHANNEL_STATE_RADAR_FOUND, &clear), 0);
  EXPECT_FALSE(clear);
  // The entry that has every flag is not capable of 40 MHz and does not count.
  EXPECT_EQ(ravix_channel_is_clear(&list, &channel, ~RAVIX_CHANNEL_STATE_RADAR_FOUND, &clear), 0);
  EXPECT_TRUE(clear);
  EXPECT_EQ(log.take_texts(), lines{});
  EXPECT_EQ(ravix_channel_is_clear(&list, &invalid, 0, &clear), RAVIX_FAIL_GENERAL);
  EXPECT_FALSE(clear);
  EXPECT_EQ(ravix_channel_is_clear(nullptr, nullptr, 0, nullptr), -22);
  EXPECT_EQ(ravix_channel_is_clear(&list, nullptr, 0, nullptr), -22);
  EXPECT_EQ(ravix_channel_is_clear(&list, &channel, 0, nullptr), -22);
  EXPECT_EQ(log.take_texts(), (lines{"ravix_channel_info_check_range: channel_info is not valid!",
                                     "ravix_channel_is_clear: Invalid pointer 'chan_list'!",
                                     "ravix_channel_is_clear: Invalid pointer 'channel_info'!",
                                     "ravix_channel_is_clear: Invalid pointer 'chan_check_fct'!"}));
}

TEST(ChannelList, SearchFailsWithALineAndAnEmptyResult) {
  harness::captured_log log;
  const std::string search = "ravix_get_max_clear_channel_info: ";
  const std::string construction = "ravix_create_channel_info_auto: Failed to create channel_info with params: ";
  std::vector<entry> entries = {{5180000, 20, 0x27, 0, 0}, {5200000, 20, 0xC8, 0, 0}, {5190000, 20, 1, 0, 0}};
  const ravix_channel_list_t list = list_of(entries);
  const ravix_channel_list_t no_array = {3, nullptr};
  const struct {
    const char *sentence;
    const ravix_channel_list_t *list;
    uint32_t primary;
    uint16_t max_width;
    lines written;
  } rows[] = {
      {"no entry", &list, 5220000, 0, {search + "No channel width applicable to primary freq '5220 MHz ( 44)'."}},
      {"no width", &list, 5200000, 0, {search + "No channel width applicable to primary freq '5200 MHz ( 40)'."}},
      {"no array", &no_array, 5180000, 0, {search + "No channel width applicable to primary freq '5180 MHz ( 36)'."}},
      {"a capability that 5 GHz does not have",
       &list,
       5180000,
       0,
       {construction + "freq '5180 MHz ( 36)' and cw '320 MHz', ext_high: 1.",
        search + "Failed to create max clear channel info."}},
      {"a limit that is no width",
       &list,
       5180000,
       8,
       {construction + "freq '5180 MHz ( 36)' and cw '<invalid value: 8>', ext_high: 1.",
        search + "Failed to create max clear channel info."}},
      {"not a primary channel",
       &list,
       5190000,
       0,
       {construction + "freq '5190 MHz ( 38)' and cw '20 MHz', ext_high: 1.",
        search + "Failed to create max clear channel info."}},
  };
  for (const auto &row : rows) {
    ravix_channel_info_t found = {1, 2, 3, 4};
    EXPECT_EQ(ravix_get_max_clear_channel_info(row.list, row.primary, 1, true, row.max_width, &found), -22);
    EXPECT_TRUE(equal(found, {})) << row.sentence;
    EXPECT_EQ(log.take_texts(), row.written) << row.sentence;
  }
  ravix_channel_info_t found = {1, 2, 3, 4};
  EXPECT_EQ(ravix_get_max_clear_channel_info(nullptr, 5180000, 1, true, 0, &found), -22);
  EXPECT_EQ(ravix_get_max_clear_channel_info(&list, 5180000, 1, true, 0, nullptr), -22);
  EXPECT_TRUE(equal(found, {1, 2, 3, 4}));
  EXPECT_EQ(log.take_texts(),
            (lines{search + "Invalid pointer 'chan_list'!", search + "Invalid pointer 'channel_info'!"}));
}

bool judged_clear(const std::vector<entry> &entries, uint32_t center, uint16_t width, uint32_t mask) {
  return std::ranges::none_of(entries, [&](const entry &e) {
    return (e.capabilities & width) != 0 && e.frequency + judged_khz(width) / 2 >= center &&
           e.frequency <= center + judged_khz(width) / 2 && (e.state & mask) != 0;
  });
}

// Every width downward, and both sides, the one asked for first.
int judged_search(const std::vector<entry> &entries, uint32_t primary, uint32_t mask, bool ext_high, uint16_t max_width,
                  ravix_channel_info_t &found) {
  found = {};
  const auto own = std::ranges::find(entries, primary, &entry::frequency);
  if (own == entries.end() || (own->capabilities & 0x37) == 0)
    return -22;
  uint16_t widest = 0;
  for (const uint16_t width : all_widths)
    widest = (own->capabilities & width) != 0 ? width : widest;
  for (const uint16_t width : {uint16_t{32}, uint16_t{16}, uint16_t{4}, uint16_t{2}, uint16_t{1}}) {
    if (width > widest || (max_width != 0 && width > max_width))
      continue;
    bool exists = false;
    for (const bool side : {ext_high, !ext_high}) {
      const uint32_t center = judged_center(primary, width, side);
      exists = exists || center != 0;
      if (center != 0 && judged_clear(entries, center, width, mask)) {
        found = {primary, center, width, 0};
        return 0;
      }
    }
    if (!exists)
      return -22;
  }
  return -2;
}

TEST(ChannelList, WidestClearChannelEqualsTheJudge) {
  harness::captured_log log;
  std::mt19937 random(20); // NOLINT(cert-msc32-c,cert-msc51-cpp): a failing round must come again
  const auto pick = [&random](auto... values) {
    const std::common_type_t<decltype(values)...> all[] = {values...};
    return all[random() % std::size(all)];
  };
  std::map<int, int> results;
  for (int round = 0; round < 20000; ++round) {
    const auto &band = *pick(&primaries_2ghz(), &primaries_5ghz(), &primaries_6ghz());
    const uint32_t widths = &band == &primaries_2ghz() ? 0x3 : &band == &primaries_5ghz() ? 0x17 : 0x37;
    const unsigned density = pick(2U, 8U, 40U);
    std::vector<entry> entries;
    for (const uint32_t f : band) {
      if (random() % 30 == 0)
        continue;
      const uint32_t caps = random() % 10 == 0 ? static_cast<uint32_t>(random() & 0xFF) : widths;
      entries.push_back({f, 20, caps, random() % density == 0 ? UINT32_C(1) << random() % 4 : UINT32_C(0), 0});
    }
    if (random() % 4 == 0)
      std::ranges::shuffle(entries, random);
    const auto list = list_of(entries);
    const uint32_t primary = band[random() % band.size()];
    const uint32_t mask = pick(0U, 1U, 3U, 15U);
    const uint16_t max_width = static_cast<uint16_t>(pick(0, 1, 2, 4, 16, 32));
    const bool ext_high = random() % 2 == 0;
    ravix_channel_info_t found = {1, 2, 3, 4}, want = {};
    const int result = ravix_get_max_clear_channel_info(&list, primary, mask, ext_high, max_width, &found);
    ASSERT_EQ(result, judged_search(entries, primary, mask, ext_high, max_width, want)) << round;
    ASSERT_TRUE(equal(found, want)) << round << ' ' << ravix_str_channel_info(&found) << ' '
                                    << ravix_str_channel_info(&want);
    ASSERT_EQ(log.take().empty(), result != -22);
    ++results[result];
    if (result == 0) {
      bool clear = false;
      ASSERT_EQ(ravix_channel_is_clear(&list, &found, mask, &clear), 0);
      ASSERT_TRUE(clear);
    }
  }
  EXPECT_GT(results[0], 1000);
  EXPECT_GT(results[-2], 1000);
  EXPECT_GT(results[-22], 100);
}

} // namespace
