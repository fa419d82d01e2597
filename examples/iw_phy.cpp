#include "iw_phy.hpp"

#include "ravix_types_enums.h"
#include "ravix_types_util.h"

#include <algorithm>
#include <cmath>
#include <iterator>

namespace iw {

namespace {

using text::problems;

constexpr uint32_t up_to_40 = RAVIX_CHANNEL_CAP_HT20 | RAVIX_CHANNEL_CAP_HT40;
constexpr uint32_t up_to_80 = up_to_40 | RAVIX_CHANNEL_CAP_HT80;
constexpr uint32_t up_to_160 = up_to_80 | RAVIX_CHANNEL_CAP_HT160;

// Lines of a band's capabilities that tell a width. HT, VHT, HE and EHT each have their own.
struct width_line {
  std::string_view beginning;
  uint32_t bands;
  uint32_t widths;
};

constexpr uint32_t any_band = RAVIX_RADIO_BAND_2GHZ | RAVIX_RADIO_BAND_5GHZ | RAVIX_RADIO_BAND_6GHZ;
constexpr uint32_t above_2ghz = RAVIX_RADIO_BAND_5GHZ | RAVIX_RADIO_BAND_6GHZ;

constexpr width_line width_lines[] = {
    {"HT20/HT40", any_band, up_to_40},
    {"VHT Capabilities", RAVIX_RADIO_BAND_5GHZ, up_to_80},
    {"Supported Channel Width: 160 MHz", RAVIX_RADIO_BAND_5GHZ, up_to_160},
    {"HE40/2.4GHz", RAVIX_RADIO_BAND_2GHZ, up_to_40},
    {"HE40/HE80/5GHz", above_2ghz, up_to_80},
    {"HE160/5GHz", above_2ghz, up_to_160},
    {"HE160/HE80+80/5GHz", above_2ghz, up_to_160},
    {"320MHz in 6GHz Supported", RAVIX_RADIO_BAND_6GHZ, up_to_160 | RAVIX_CHANNEL_CAP_HT320},
};

// Number of a band in the kernel's interface to its band here; 0: 60 GHz and below 1 GHz.
constexpr uint8_t bands_by_number[] = {0, RAVIX_RADIO_BAND_2GHZ, RAVIX_RADIO_BAND_5GHZ, 0, RAVIX_RADIO_BAND_6GHZ};

// No band has half as many. What is made of the channels goes through all of them for each, so that a text of millions
// would be worked on for hours.
constexpr std::size_t most_channels = 256;

// Channels 182 to 196, which no radio of ours uses, count from 4 GHz.
bool is_number_of(uint32_t number, uint32_t frequency) {
  const bool is_4_9_ghz = number >= 182 && number <= 196 && frequency == 4'000'000 + 5000 * number;
  return is_4_9_ghz || number == ravix_frequency_to_channel(frequency);
}

class phy_reader {
public:
  phy_reader(std::string_view text, problems &problems) : lines_(text, problems), problems_(problems) {}
  std::vector<phy> read();

private:
  void begin_band(const text::line &line);
  void end_band();
  bool channel(const text::line &line);
  void flags(const text::line &line, std::string_view words);
  void detail(const text::line &line);

  text::line_reader lines_;
  problems &problems_;
  std::vector<phy> result_;
  phy_band *band_ = nullptr;
  std::size_t band_line_ = 0;
  std::string band_name_;
  bool is_overfull_ = false;
};

std::vector<phy> phy_reader::read() {
  text::line line;
  while (lines_.next(line)) {
    if (line.indent == 0 && line.content.starts_with("Wiphy ")) {
      end_band();
      result_.push_back({std::string(line.content.substr(6)), {}});
    } else if (line.content.starts_with("Band ") && line.content.ends_with(':')) {
      begin_band(line);
    } else if (band_ != nullptr && !channel(line)) {
      detail(line);
    }
  }
  end_band();
  const bool has_band =
      std::any_of(result_.begin(), result_.end(), [](const phy &radio) { return !radio.bands.empty(); });
  if (!has_band) {
    problems_.only_error(1, line.number == 0 ? "empty, so no description of a radio"
                                             : "no description of a radio: no line \"Band 1:\", 2 or 4 with channels");
  }
  return std::move(result_);
}

void phy_reader::begin_band(const text::line &line) {
  end_band();
  const auto number = text::number(line.content.substr(5));
  if (!number || *number >= std::size(bands_by_number) || bands_by_number[*number] == 0) {
    problems_.remark(line.number, text::quote(line.content) + " is none of 2.4, 5 and 6 GHz, ignored");
    return;
  }
  if (result_.empty()) {
    result_.push_back({"radio", {}}); // the listing of channels does not begin with the name
  }
  result_.back().bands.push_back({bands_by_number[*number], RAVIX_CHANNEL_CAP_HT20, {}});
  band_ = &result_.back().bands.back();
  band_line_ = line.number;
  is_overfull_ = false;
  band_name_ = "Band " + std::to_string(*number); // not as it is written: that may hold anything
}

void phy_reader::end_band() {
  if (band_ != nullptr && band_->channels.empty()) {
    problems_.error(band_line_, band_name_ + " has no channels, the text may be cut");
    result_.back().bands.pop_back();
  }
  band_ = nullptr;
}

// "5260.0 MHz [52] (24.0 dBm) (no IR, radar detection)"
bool phy_reader::channel(const text::line &line) {
  auto words = line.content;
  const auto frequency = text::megahertz(words);
  const auto unit = words.find_first_not_of("0123456789.");
  if (!frequency || unit == std::string_view::npos || !words.substr(unit).starts_with(" MHz")) {
    return false;
  }
  static_cast<void>(text::split(words, "["));
  const auto number = text::number(words);
  if (!number || words.find(']') == std::string_view::npos) {
    problems_.error(line.number, "a channel without its number: " + text::quote(line.content));
    return true;
  }
  if (band_->channels.size() == most_channels) {
    if (!is_overfull_) {
      problems_.error(line.number, band_name_ + " has more than " + std::to_string(most_channels) +
                                       " channels, the rest is ignored");
    }
    is_overfull_ = true;
    return true;
  }
  auto &channel = band_->channels.emplace_back();
  channel.frequency = *frequency;
  channel.number = *number;
  flags(line, words);
  if (!channel.is_disabled && !is_number_of(*number, *frequency)) {
    problems_.remark(line.number,
                     "channel number and frequency do not agree, the frequency is taken: " + text::quote(line.content));
  }
  return true;
}

// What stands in parentheses behind a channel.
void phy_reader::flags(const text::line &line, std::string_view words) {
  auto &channel = band_->channels.back();
  static_cast<void>(text::split(words, "("));
  while (!words.empty()) {
    if (words.find(')') == std::string_view::npos) {
      problems_.error(line.number, "a channel is cut: " + text::quote(line.content));
      return;
    }
    auto group = text::split(words, ")");
    static_cast<void>(text::split(words, "("));
    while (!group.empty()) {
      const auto flag = text::split(group, ", ");
      if (const auto power = text::decimal(flag); power && text::contains(flag, "dBm") && std::abs(*power) < 200) {
        channel.max_power = static_cast<int16_t>(std::floor(*power));
      } else if (text::same(flag, "disabled")) {
        channel.is_disabled = true;
      } else if (text::same(flag, "radar detection")) {
        channel.has_radar_detection = true;
      } else if (text::same(flag, "no IR") || text::same(flag, "passive scanning")) {
        channel.has_no_ir = true;
      } else if (power) {
        problems_.error(line.number, "a power that is not in dBm, taken as not known: " + text::quote(line.content));
      }
    }
  }
}

// Lines of a band before its channels, and lines of a channel below it.
void phy_reader::detail(const text::line &line) {
  for (const auto &known : width_lines) {
    if ((known.bands & band_->radio_band) != 0 && text::starts_with(line.content, known.beginning)) {
      band_->widths |= known.widths;
    }
  }
  if (band_->channels.empty()) {
    return;
  }
  auto &channel = band_->channels.back();
  if (text::same(line.key, "Maximum TX power")) {
    if (const auto power = text::decimal(line.value); power && std::abs(*power) < 200) {
      channel.max_power = static_cast<int16_t>(std::floor(*power));
    }
  } else if (text::same(line.key, "Radar detection")) {
    channel.has_radar_detection = true;
  } else if (text::same(line.key, "No IR")) {
    channel.has_no_ir = true;
  } else if (text::same(line.key, "DFS state")) {
    channel.has_radar_detection = true;
    channel.state = text::starts_with(line.value, "available")     ? RAVIX_CHANNEL_STATE_DFS_CLEAR
                    : text::starts_with(line.value, "unavailable") ? RAVIX_CHANNEL_STATE_RADAR_FOUND
                                                                   : RAVIX_CHANNEL_STATE_PRECAC_TODO;
  } else if (text::same(line.key, "DFS CAC time")) {
    constexpr uint32_t ten_minutes_ms = 600'000;
    channel.has_long_check = text::number(line.value).value_or(0) >= ten_minutes_ms;
  } else if (text::same(line.key, "Channel widths")) {
    for (auto rest = line.value; !rest.empty();) {
      const auto word = text::split(rest, " ");
      for (const auto &[name, width] :
           {std::pair{"320", RAVIX_CHANNEL_CAP_HT320}, std::pair{"160", RAVIX_CHANNEL_CAP_HT160},
            std::pair{"80", RAVIX_CHANNEL_CAP_HT80}, std::pair{"40", RAVIX_CHANNEL_CAP_HT40},
            std::pair{"20", RAVIX_CHANNEL_CAP_HT20}}) {
        channel.widths |= text::contains(word, name) ? width : 0;
      }
    }
    band_->widths |= channel.widths;
  }
}

} // namespace

std::vector<phy> read_phys(std::string_view text, problems &problems) {
  return phy_reader(text, problems).read();
}

std::vector<phy_channel> set_aside(phy_band &band) {
  auto &channels = band.channels;
  std::stable_sort(channels.begin(), channels.end(), [](const auto &a, const auto &b) {
    return std::pair(a.frequency, a.is_disabled) < std::pair(b.frequency, b.is_disabled);
  });
  std::vector<phy_channel> kept, others;
  for (const auto &channel : channels) {
    const bool is_fit = ravix_frequency_is_primary(channel.frequency) &&
                        ravix_frequency_to_radio_band(channel.frequency) == band.radio_band &&
                        (kept.empty() || kept.back().frequency != channel.frequency);
    (channel.is_disabled || is_fit ? kept : others).push_back(channel);
  }
  channels = std::move(kept);
  return others;
}

bool has_all_of(const ravix_channel_list_t &list, const ravix_channel_info_t &channel) {
  const auto half = ravix_channel_width_to_frequency(channel.channel_width) / 2;
  for (auto f = channel.center_freq - half + 10000; f < channel.center_freq + half; f += 20000) {
    if (std::none_of(list.data, list.data + list.count, [f](const auto &entry) { return entry.frequency == f; })) {
      return false;
    }
  }
  return true;
}

ravix::handle<ravix_channel_list_t> make_channel_list(const phy_band &band) {
  auto list = ravix::create<ravix_channel_list_t>();
  for (const auto &channel : band.channels) {
    if (channel.is_disabled) {
      continue;
    }
    ravix_channel_entry_t entry;
    ravix_types_channel_entry_clear(&entry);
    entry.frequency = channel.frequency;
    entry.max_power = channel.max_power;
    entry.capabilities = (channel.widths != 0 ? channel.widths & band.widths : band.widths) | RAVIX_CHANNEL_CAP_HT20;
    if (channel.has_radar_detection) {
      entry.capabilities |= channel.has_long_check ? RAVIX_CHANNEL_CAP_DFS_WEATHER : RAVIX_CHANNEL_CAP_DFS;
      // Until something else is known, a check for radar comes before the first use.
      entry.state = channel.state != 0 ? channel.state : RAVIX_CHANNEL_STATE_PRECAC_TODO;
    }
    if (!list || ravix::add(*list, entry) != 0) {
      return nullptr;
    }
  }
  if (!list) {
    return nullptr;
  }
  // A search takes a channel without an entry for clear, so that no wide channel with such a one may be offered.
  for (uint32_t i = 0; i < list->count; ++i) {
    auto &entry = list->data[i];
    for (uint16_t width = RAVIX_CHANNEL_WIDTH_40; width != 0; width = ravix_channel_width_higher(width)) {
      ravix_channel_info_t channel;
      const auto is_usable = [&](bool ext_high) {
        return ravix_create_channel_info(entry.frequency, width, ext_high, 0, &channel) && has_all_of(*list, channel);
      };
      if (!is_usable(false) && !is_usable(true)) {
        entry.capabilities &= ~uint32_t{width};
      }
    }
  }
  return list;
}

} // namespace iw
