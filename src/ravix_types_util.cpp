#include "ravix_types_util.h"

#include "ravix_types_log.hpp"
#include "ravix_types_radio.hpp"

#include <algorithm>
#include <bit>
#include <cfloat>
#include <cmath>
#include <cstddef>
#include <iterator>
#include <numeric>
#include <span>
#include <utility>

using zel::ravix::log_assertion;
using namespace zel::ravix::radio;

namespace {

constexpr const char *here = "src/ravix_types_util";

// ---- Radio rules. Frequencies are in kHz; ranges include both ends. Operating classes are those of IEEE 802.11,
// Table E-4.

// A channel's number counts the steps from the channel starting frequency of its class.
struct numbering {
  uint32_t first, last;
  uint32_t start, spacing;
};
constexpr numbering numberings[] = {
    {start_2ghz + 1, channel_14 - 1, start_2ghz, channel_spacing}, // class 81
    {channel_14, channel_14, 2414000, channel_spacing},            // class 82: channel 14
    {start_5ghz + 1, 5929999, start_5ghz, channel_spacing},        // classes 115 to 130
    {5930000, 5954999, 5925000, channel_spacing},                  // class 136: channel 2
    {5955000, 7124999, start_6ghz, channel_spacing},               // classes 131 to 135, 137
    {56160001, 64800000, 56160000, 2160000},                       // class 180
};

struct band_range {
  uint32_t first, last;
  uint8_t band, sub_band;
};
constexpr band_range bands[] = {
    {2401000, 2495000, RAVIX_RADIO_BAND_2GHZ, RAVIX_RADIO_SUB_BAND_FULL},
    {5170000, 5330000, RAVIX_RADIO_BAND_5GHZ, RAVIX_RADIO_SUB_BAND_LOW},
    {5490000, 5895000, RAVIX_RADIO_BAND_5GHZ, RAVIX_RADIO_SUB_BAND_HIGH},
    {5945000, 7125000, RAVIX_RADIO_BAND_6GHZ, RAVIX_RADIO_SUB_BAND_FULL},
};

// How numbers and frequencies of a band belong together, and which numbers mean the band when it is not told: none mean
// 6 GHz, which counts from 1 again.
struct band_numbers {
  uint8_t band;
  uint32_t start;
  uint32_t first, last;
};
constexpr band_numbers band_numberings[] = {
    {RAVIX_RADIO_BAND_2GHZ, start_2ghz, 1, number_of_channel_14},
    {RAVIX_RADIO_BAND_5GHZ, start_5ghz, 36, 177},
    {RAVIX_RADIO_BAND_6GHZ, start_6ghz, 1, 0},
};

// Channels that may be primary. Channels 32, 68 to 96 and those of 4.9 GHz are left out: no radio of ours uses them.
struct primary_range {
  uint32_t first, last;
  uint32_t spacing;
};
constexpr primary_range primaries[] = {
    {2412000, 2472000, 5000},                  // 1 to 13: class 81
    {channel_14, channel_14, channel_spacing}, // 14: class 82
    {5180000, 5320000, 20000},                 // 36 to 64: classes 115 and 118
    {5500000, 5720000, 20000},                 // 100 to 144: class 121
    {5745000, 5885000, 20000},                 // 149 to 177: class 125
    {5955000, 7115000, 20000},                 // 6 GHz, 1 to 233: class 131
};

struct channel_width {
  uint16_t code;
  uint32_t khz;
};
constexpr channel_width widths[] = {
    {RAVIX_CHANNEL_WIDTH_20, width_20_khz}, {RAVIX_CHANNEL_WIDTH_40, 40000},   {RAVIX_CHANNEL_WIDTH_80, 80000},
    {RAVIX_CHANNEL_WIDTH_160, 160000},      {RAVIX_CHANNEL_WIDTH_320, 320000},
};
constexpr uint32_t width_capabilities = RAVIX_CHANNEL_CAP_HT20 | RAVIX_CHANNEL_CAP_HT40 | RAVIX_CHANNEL_CAP_HT80 |
                                        RAVIX_CHANNEL_CAP_HT160 | RAVIX_CHANNEL_CAP_HT320;

constexpr uint32_t modes_of_5ghz = RAVIX_WLAN_MODE_11A | RAVIX_WLAN_MODE_11AC;
constexpr uint32_t modes_of_2ghz = RAVIX_WLAN_MODE_11B | RAVIX_WLAN_MODE_11G;

// The widest channel of a mode, most modern first.
struct mode_width {
  uint32_t modes;
  uint16_t width;
};
constexpr mode_width mode_widths[] = {
    {RAVIX_WLAN_MODE_11BE, RAVIX_CHANNEL_WIDTH_320},
    {RAVIX_WLAN_MODE_11AC | RAVIX_WLAN_MODE_11AX, RAVIX_CHANNEL_WIDTH_160},
    {RAVIX_WLAN_MODE_11N, RAVIX_CHANNEL_WIDTH_40},
    {RAVIX_WLAN_MODE_11A | RAVIX_WLAN_MODE_11B | RAVIX_WLAN_MODE_11G, RAVIX_CHANNEL_WIDTH_20},
};

// Half decibels of a measurement report as an 8-bit code (IEEE 802.11, 9.4.2.37 and 9.4.2.40): 0 stands for `zero` and
// for all below `least`, the highest code for all from `top` on.
struct half_decibels {
  float zero, least, top;

  constexpr float decode(uint8_t code) const { return static_cast<float>(code) * 0.5F + zero; }
  constexpr uint8_t encode(float value) const {
    // A value that is not below `top` may also be no number at all.
    const float shown = !(value < top) ? top : value < least ? zero : value;
    return static_cast<uint8_t>((shown - zero) * 2.0F);
  }
};
// `least` is deliberately half a step above code 0: what lies between is 0 all the same.
constexpr half_decibels channel_power = {-110.0F, -109.5F, 0.0F};
constexpr half_decibels signal_to_noise = {-10.0F, -10.0F, 117.0F};

// 2.4 GHz. The 40 MHz channels are made of any two channels four apart (classes 83 and 84).
constexpr int32_t highest_channel_but_14 = 13;
constexpr uint32_t highest_primary_with_upper_second = 2452000;
constexpr uint32_t lowest_primary_with_lower_second = 2432000;

// 5 and 6 GHz. Wider channels are fixed blocks of 20 MHz channels; a row is a run of equal blocks, given by the lowest
// channel of the first and their number. The blocks of a run adjoin, those of 320 MHz overlap by half.
struct block_run {
  uint8_t band;
  uint16_t width;
  uint32_t first, count;
};
constexpr block_run blocks[] = {
    {RAVIX_RADIO_BAND_5GHZ, RAVIX_CHANNEL_WIDTH_40, 5180000, 4}, // classes 116, 117, 119, 120
    {RAVIX_RADIO_BAND_5GHZ, RAVIX_CHANNEL_WIDTH_40, 5500000, 6}, // classes 122, 123
    {RAVIX_RADIO_BAND_5GHZ, RAVIX_CHANNEL_WIDTH_40, 5745000, 4}, // classes 126, 127
    {RAVIX_RADIO_BAND_5GHZ, RAVIX_CHANNEL_WIDTH_80, 5180000, 2}, // class 128
    {RAVIX_RADIO_BAND_5GHZ, RAVIX_CHANNEL_WIDTH_80, 5500000, 3},
    {RAVIX_RADIO_BAND_5GHZ, RAVIX_CHANNEL_WIDTH_80, 5745000, 2},
    {RAVIX_RADIO_BAND_5GHZ, RAVIX_CHANNEL_WIDTH_160, 5180000, 1}, // class 129
    {RAVIX_RADIO_BAND_5GHZ, RAVIX_CHANNEL_WIDTH_160, 5500000, 1},
    {RAVIX_RADIO_BAND_5GHZ, RAVIX_CHANNEL_WIDTH_160, 5745000, 1},
    {RAVIX_RADIO_BAND_6GHZ, RAVIX_CHANNEL_WIDTH_40, 5955000, 29}, // class 132
    {RAVIX_RADIO_BAND_6GHZ, RAVIX_CHANNEL_WIDTH_80, 5955000, 14}, // class 133
    {RAVIX_RADIO_BAND_6GHZ, RAVIX_CHANNEL_WIDTH_160, 5955000, 7}, // class 134
    {RAVIX_RADIO_BAND_6GHZ, RAVIX_CHANNEL_WIDTH_320, 5955000, 6}, // class 137
};

// Patterns in which 20 MHz subchannels may be punctured when a whole channel goes to one transmission (IEEE 802.11be,
// clause 36, the punctured channel information of non-OFDMA transmissions).
constexpr uint16_t patterns_80[] = {0x0001, 0x0002, 0x0004, 0x0008};
constexpr uint16_t patterns_160[] = {0x0001, 0x0002, 0x0004, 0x0008, 0x0010, 0x0020,
                                     0x0040, 0x0080, 0x0003, 0x000C, 0x0030, 0x00C0};
constexpr uint16_t patterns_320[] = {0x0003, 0x000C, 0x0030, 0x00C0, 0x0300, 0x0C00, 0x3000, 0xC000,
                                     0x000F, 0x00F0, 0x0F00, 0xF000, 0xF003, 0xF00C, 0xF030, 0xF0C0,
                                     0xF300, 0xFC00, 0x003F, 0x00CF, 0x030F, 0x0C0F, 0x300F, 0xC00F};

constexpr ravix_channel_info_t no_channel = {0, 0, RAVIX_CHANNEL_WIDTH_INVALID, RAVIX_PUNCTURE_MAP_INVALID};

template <typename Row, std::size_t size> constexpr bool ascends(const Row (&rows)[size]) {
  return std::ranges::all_of(rows, [](const Row &row) { return row.first <= row.last; }) &&
         std::ranges::adjacent_find(rows, [](const Row &a, const Row &b) { return a.last >= b.first; }) ==
             std::end(rows);
}

// What a function makes of the row of an ascending table whose range holds the frequency; 0 if there is none. Unrolled,
// so that the rows become constants of the code, and one test follows the other without a jump.
template <const auto &rows, std::size_t row = 0, typename Function>
constexpr auto from_row_at(uint32_t frequency, Function function) -> decltype(function(rows[0])) {
  static_assert(ascends(rows));
  if constexpr (row < std::size(rows)) {
    if (frequency - rows[row].first <= rows[row].last - rows[row].first) [[unlikely]] {
      return function(rows[row]);
    }
    return from_row_at<rows, row + 1>(frequency, function);
  }
  return 0;
}

// The band whose range holds the frequency, as a sum in which all others are 0: without a branch, as bands follow one
// another in no order that a processor could guess.
template <std::size_t... row> constexpr uint8_t sum_of_bands(uint32_t frequency, std::index_sequence<row...> /*rows*/) {
  const auto holds = [=](const band_range &range) { return frequency - range.first <= range.last - range.first; };
  return static_cast<uint8_t>(((uint32_t{holds(bands[row])} * bands[row].band) + ...));
}

// The row of a width code, null if there is none.
constexpr const channel_width *find_width(uint32_t code) {
  const auto *const row = std::ranges::find(widths, code, &channel_width::code);
  return row != std::end(widths) ? row : nullptr;
}

// Width 0 stands for any width.
bool is_puncture_pattern(uint16_t puncture_map, uint16_t width) {
  const auto has = [=](uint16_t code, std::span<const uint16_t> patterns) {
    return (width == RAVIX_CHANNEL_WIDTH_INVALID || width == code) &&
           std::ranges::find(patterns, puncture_map) != patterns.end();
  };
  return has(RAVIX_CHANNEL_WIDTH_80, patterns_80) || has(RAVIX_CHANNEL_WIDTH_160, patterns_160) ||
         has(RAVIX_CHANNEL_WIDTH_320, patterns_320);
}

// Centre of a 40 MHz channel in 2.4 GHz, 0 if the second channel does not fit in on that side.
uint32_t center_of_pair(uint32_t primary_freq, bool ext_high) {
  if (ext_high) {
    return primary_freq <= highest_primary_with_upper_second ? primary_freq + width_20_khz / 2 : 0;
  }
  return primary_freq >= lowest_primary_with_lower_second ? primary_freq - width_20_khz / 2 : 0;
}

// Centre of the block that a primary channel is part of, 0 if there is none of that width. Of two overlapping blocks
// `ext_high` takes the upper one.
uint32_t center_of_block(uint8_t band, uint32_t primary_freq, const channel_width &width, bool ext_high) {
  const uint32_t step = width.code == RAVIX_CHANNEL_WIDTH_320 ? width.khz / 2 : width.khz;
  const auto *const run = std::ranges::find_if(blocks, [&](const block_run &r) {
    return r.band == band && r.width == width.code && primary_freq - r.first < (r.count - 1) * step + width.khz;
  });
  if (run == std::end(blocks)) {
    return 0;
  }
  uint32_t block = std::min((primary_freq - run->first) / step, run->count - 1);
  if (!ext_high && block > 0 && primary_freq - run->first < (block - 1) * step + width.khz) {
    --block;
  }
  return run->first + block * step + (width.khz - width_20_khz) / 2;
}

// Centre of the channel around a primary channel, 0 if there is none of that width.
uint32_t center_of_channel(uint32_t primary_freq, uint16_t width_code, bool ext_high) {
  if (width_code == RAVIX_CHANNEL_WIDTH_20) {
    return primary_freq;
  }
  const channel_width *const width = find_width(width_code);
  if (width == nullptr || primary_freq == channel_14) {
    return 0;
  }
  const uint8_t band = ravix_frequency_to_radio_band(primary_freq);
  if (band == RAVIX_RADIO_BAND_2GHZ) {
    return width_code == RAVIX_CHANNEL_WIDTH_40 ? center_of_pair(primary_freq, ext_high) : 0;
  }
  return center_of_block(band, primary_freq, *width, ext_high);
}

} // namespace

// This and ravix_frequency_is_primary begin where the processor fetches, which is a tenth of their time.
[[gnu::aligned(64)]] uint32_t ravix_frequency_to_channel(uint32_t frequency) {
  return from_row_at<numberings>(frequency,
                                 [=](const numbering &row) { return (frequency - row.start) / row.spacing; });
}

uint8_t ravix_frequency_to_radio_band(uint32_t frequency) {
  return sum_of_bands(frequency, std::make_index_sequence<std::size(bands)>{});
}

uint8_t ravix_frequency_to_radio_sub_band(uint32_t frequency) {
  return from_row_at<bands>(frequency, [](const band_range &row) { return row.sub_band; });
}

uint8_t ravix_channel_to_radio_band(uint32_t channel) {
  for (const band_numbers &row : band_numberings) {
    if (channel >= row.first && channel <= row.last) {
      return row.band;
    }
  }
  return RAVIX_RADIO_BAND_INVALID_MIN;
}

uint32_t ravix_frequency_from_channel_and_band(uint32_t channel, uint32_t radio_band) {
  if (radio_band == RAVIX_RADIO_BAND_2GHZ && channel == number_of_channel_14) {
    return channel_14;
  }
  const auto *const row = std::ranges::find(band_numberings, radio_band, &band_numbers::band);
  return row != std::end(band_numberings) ? row->start + channel_spacing * channel : RAVIX_FREQUENCY_INVALID;
}

uint32_t ravix_radio_band_and_channel_to_frequency(uint32_t radio_band, uint32_t channel) {
  return ravix_frequency_from_channel_and_band(channel, radio_band);
}

[[gnu::aligned(64)]] bool ravix_frequency_is_primary(uint32_t frequency) {
  return from_row_at<primaries>(frequency,
                                [=](const primary_range &row) { return (frequency - row.first) % row.spacing == 0; });
}

uint32_t ravix_channel_width_to_frequency(uint16_t channel_width) {
  const auto *const row = find_width(channel_width);
  return row != nullptr ? row->khz : 0;
}

uint16_t ravix_frequency_to_channel_width(uint32_t width_khz) {
  const auto *const row = std::ranges::find(widths, width_khz, &channel_width::khz);
  return row != std::end(widths) ? row->code : uint16_t{RAVIX_CHANNEL_WIDTH_INVALID};
}

uint16_t ravix_channel_width_higher(uint16_t channel_width) {
  const auto *const row = find_width(channel_width);
  return row != nullptr && row + 1 != std::end(widths) ? row[1].code : uint16_t{RAVIX_CHANNEL_WIDTH_INVALID};
}

uint16_t ravix_channel_width_lower(uint16_t channel_width) {
  const auto *const row = find_width(channel_width);
  return row != nullptr && row != std::begin(widths) ? row[-1].code : uint16_t{RAVIX_CHANNEL_WIDTH_INVALID};
}

uint16_t ravix_channel_capabilities_to_channel_width(uint32_t capabilities) {
  return static_cast<uint16_t>(std::bit_floor(capabilities & width_capabilities));
}

bool ravix_channel_capabilities_match_width(uint32_t capabilities, uint16_t channel_width) {
  return (capabilities & channel_width & width_capabilities) != 0;
}

bool ravix_wlan_mode_is_valid(uint32_t wlan_mode) {
  constexpr uint32_t known = std::accumulate(std::begin(mode_widths), std::end(mode_widths), uint32_t{0},
                                             [](uint32_t modes, const mode_width &row) { return modes | row.modes; });
  return wlan_mode != 0 && (wlan_mode & ~known) == 0 &&
         ((wlan_mode & modes_of_5ghz) == 0 || (wlan_mode & modes_of_2ghz) == 0);
}

uint16_t ravix_get_highest_channel_width_from_mode(uint32_t wlan_mode) {
  const auto *const row =
      std::ranges::find_if(mode_widths, [=](const mode_width &r) { return (wlan_mode & r.modes) != 0; });
  return ravix_wlan_mode_is_valid(wlan_mode) ? row->width : uint16_t{RAVIX_CHANNEL_WIDTH_INVALID};
}

float ravix_rcpi_val_to_dBm(uint8_t rcpi) {
  return channel_power.decode(rcpi);
}

uint8_t dBm_to_ravix_rcpi_val(float dBm) {
  return channel_power.encode(dBm);
}

float ravix_rsni_val_to_dB(uint8_t rsni) {
  return signal_to_noise.decode(rsni);
}

uint8_t dB_to_ravix_rsni_val(float dB) {
  return signal_to_noise.encode(dB);
}

float ravix_anpi_val_to_dBm(uint8_t anpi) {
  return ravix_rcpi_val_to_dBm(anpi);
}

uint8_t dBm_to_ravix_anpi_val(float dBm) {
  return dBm_to_ravix_rcpi_val(dBm);
}

float ravix_dB_to_factor(float dB) {
  return powf(10.0F, dB / 10.0F);
}

float ravix_dBm_to_power_mW(float dBm) {
  return ravix_dB_to_factor(dBm);
}

float ravix_calculate_rsni_dB(float total_power, float noise_power) {
  if (noise_power == 0.0F && total_power >= 0.0F) {
    return total_power > 0.0F ? FLT_MAX : -FLT_MAX;
  }
  const float ratio = total_power / noise_power - 1.0F;
  return ratio <= 0.0F ? -FLT_MAX : 10.0F * log10f(ratio);
}

bool ravix_create_channel_info(uint32_t primary_freq, uint16_t channel_width, bool ext_high, uint16_t puncture_map,
                               ravix_channel_info_t *out) {
  if (out == nullptr) {
    return false;
  }
  *out = no_channel;
  if (!ravix_frequency_is_primary(primary_freq)) {
    return false;
  }
  const uint32_t center_freq = center_of_channel(primary_freq, channel_width, ext_high);
  const ravix_channel_info_t made = {primary_freq, center_freq, channel_width, puncture_map};
  if (center_freq == RAVIX_FREQUENCY_INVALID || !ravix_puncture_map_is_valid(puncture_map, &made)) {
    return false;
  }
  *out = made;
  return true;
}

bool ravix_channel_info_is_valid(const ravix_channel_info_t *channel_info) {
  if (channel_info == nullptr) {
    return false;
  }
  const bool ext_high = channel_info->primary_freq <= channel_info->center_freq;
  ravix_channel_info_t rebuilt = {};
  // All that can differ then is the centre.
  return ravix_create_channel_info(channel_info->primary_freq, channel_info->channel_width, ext_high,
                                   channel_info->puncture_map, &rebuilt) &&
         rebuilt.center_freq == channel_info->center_freq;
}

bool ravix_channel_info_to_lowest_and_highest_channel(const ravix_channel_info_t *channel_info, uint32_t *lowest,
                                                      uint32_t *highest) {
  if (channel_info == nullptr || lowest == nullptr || highest == nullptr) {
    return false;
  }
  *lowest = *highest = 0;
  if (!ravix_channel_info_is_valid(channel_info)) {
    return false;
  }
  if (channel_info->primary_freq == channel_14) {
    *lowest = *highest = number_of_channel_14;
    return true;
  }
  // Channel numbers of these bands count steps of 5 MHz.
  const auto center = static_cast<int32_t>(ravix_frequency_to_channel(channel_info->center_freq));
  const auto reach =
      static_cast<int32_t>(ravix_channel_width_to_frequency(channel_info->channel_width) / 2 / channel_spacing);
  const bool capped = ravix_frequency_to_radio_band(channel_info->primary_freq) == RAVIX_RADIO_BAND_2GHZ;
  *lowest = static_cast<uint32_t>(std::max(center - reach, 1));
  *highest = static_cast<uint32_t>(capped ? std::min(center + reach, highest_channel_but_14) : center + reach);
  return true;
}

bool ravix_puncture_map_is_valid(uint16_t puncture_map, const ravix_channel_info_t *channel_info) {
  if (puncture_map == 0) {
    return true;
  }
  if (!is_puncture_pattern(puncture_map, channel_info != nullptr ? channel_info->channel_width : uint16_t{0})) {
    return false;
  }
  if (channel_info == nullptr) {
    return true;
  }
  const uint32_t width_khz = ravix_channel_width_to_frequency(channel_info->channel_width);
  const uint32_t freq_block_begin = channel_info->center_freq - width_khz / 2;
  if (width_khz == RAVIX_FREQUENCY_INVALID) {
    log_assertion(here, "RAVIX_FREQUENCY_INVALID != width_khz");
  }
  if (channel_info->primary_freq <= freq_block_begin) {
    log_assertion(here, "channel_info->primary_freq > freq_block_begin");
  }
  const auto primary = static_cast<uint8_t>((channel_info->primary_freq - freq_block_begin) / width_20_khz);
  return primary > 15 || (puncture_map >> primary & 1) == 0;
}
