// Which channels there are, by the tables of tests/data/channels.txt, and what follows from that for channel lists: a
// slow and obvious judge, for tests and fuzz targets.
#pragma once

#include "ravix_types_util.h"
#include "ravix_types_validation.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstdint>
#include <fstream>
#include <map>
#include <sstream>
#include <string>
#include <tuple>
#include <vector>

namespace judge {

using info = ravix_channel_info_t;
using entry = ravix_channel_entry_t;
using numbers = std::vector<uint32_t>;

inline auto fields(const info &c) {
  return std::tuple(c.primary_freq, c.center_freq, c.channel_width, c.puncture_map);
}

// ---- Channels

struct width {
  uint32_t khz;
  numbers centers, patterns; // the centres in kHz, ascending
};
inline const std::map<uint16_t, width> widths = [] {
  std::map<uint16_t, width> read = {{1, {20000, {}, {}}}, {2, {40000, {}, {}}}, {4, {80000, {}, {}}}};
  read[16].khz = 160000;
  read[32].khz = 320000;
  std::ifstream file(RAVIX_TEST_DATA "/channels.txt");
  for (std::string line, what, word; std::getline(file, line);) {
    std::istringstream words(line);
    uint32_t mhz = 0;
    for (words >> what >> mhz >> word; words >> word;) { // comments have no number there
      const auto of = std::ranges::find(read, 1000 * mhz, [](const auto &row) { return row.second.khz; });
      const auto number = static_cast<uint32_t>(std::stoul(word, nullptr, 0));
      what == "puncturing" ? of->second.patterns.push_back(number) : of->second.centers.push_back(1000 * number);
    }
  }
  return read;
}();

// Centre of a channel; 0: there is none. Where there are two, or in 2.4 GHz, the side chooses.
inline uint32_t center_of(uint32_t primary, uint16_t code, bool ext_high) {
  uint32_t found = 0;
  if (const auto of = widths.find(code); of != widths.end()) {
    const auto &[khz, centers, patterns] = of->second;
    for (auto at = std::ranges::lower_bound(centers, primary - khz / 2); at != centers.end() && *at < primary + khz / 2;
         ++at) {
      const bool is_pair = *at < 2500000 && *at != primary;
      const bool covers = (primary - (*at - khz / 2)) % 20000 == 10000 && !(is_pair && (*at > primary) != ext_high);
      found = covers && (found == 0 || ext_high) ? *at : found;
    }
  }
  return found;
}

// The channel, if it has a centre and may be punctured like that; otherwise what stands for none.
inline info if_allowed(const info &c) {
  const auto allows = [&](const width &of) {
    const uint32_t subchannel = (c.primary_freq - (c.center_freq - of.khz / 2)) / 20000;
    return (c.puncture_map >> subchannel & 1) == 0 && std::ranges::count(of.patterns, c.puncture_map) != 0;
  };
  const bool is_allowed = c.center_freq != 0 && (c.puncture_map == 0 || allows(widths.at(c.channel_width)));
  return is_allowed ? c : info{0, 0, 0, 0xFFFF};
}
inline info channel(uint32_t primary, uint16_t width, bool ext_high, uint16_t map) {
  return if_allowed({primary, center_of(primary, width, ext_high), width, map});
}
inline bool is_valid(const info &c) {
  return c.center_freq != 0 && std::ranges::any_of(std::array{false, true}, [&](bool ext_high) {
           return fields(c) == fields(channel(c.primary_freq, c.channel_width, ext_high, c.puncture_map));
         });
}

// ---- Channel lists

// Whether an entry is of the channel's width and lies between its edges.
inline auto is_within(const info &c) {
  return [=, half = widths.at(c.channel_width).khz / 2](const entry &e) {
    return (e.capabilities & c.channel_width) != 0 && e.frequency + half >= c.center_freq &&
           e.frequency <= c.center_freq + half;
  };
}

// The widest clear channel: every width downward, and both sides, the one asked for first.
inline int search(const std::vector<entry> &list, uint32_t primary, uint32_t mask, bool ext_high, uint16_t max_width,
                  info &found) {
  const auto own = std::ranges::find(list, primary, &entry::frequency);
  const auto capable = static_cast<uint16_t>(std::bit_floor(own != list.end() ? own->capabilities & 0x37 : 0));
  const uint16_t widest = max_width != 0 ? std::min(capable, max_width) : capable;
  for (uint16_t width = widest; width != 0; width = ravix_channel_width_lower(width)) {
    bool exists = false;
    for (const bool side : {ext_high, !ext_high}) {
      found = {primary, center_of(primary, width, side), width, 0};
      if (found.center_freq == 0)
        continue;
      exists = true;
      if (std::ranges::none_of(
              list, [&, inside = is_within(found)](const entry &e) { return (e.state & mask) != 0 && inside(e); }))
        return 0;
    }
    found = {};
    if (!exists)
      return -22;
  }
  return widest != 0 ? -2 : -22;
}

// Whether a list is accepted, and the names of the rules that it violates.
inline bool is_accepted(const ravix_channel_list_t *list, std::vector<std::string> &names) {
  ravix_string_table_t errors{};
  const bool result = ravix_validate_channel_list(list, &errors);
  names.assign(errors.data, errors.data + errors.count);
  ravix_types_string_table_clear(&errors);
  return result;
}

} // namespace judge
