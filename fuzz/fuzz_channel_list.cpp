// A channel list of any entries: walk, clearance, widest clear channel and validator.
//
// - Nothing of it changes the list.
// - A walk visits, in order, just the entries of its width between the edges.
// - A channel is clear if no entry that a walk visits has one of the flags. The widest clear channel is clear, around
//   its primary channel and not too wide; if there is none, all is zero, and only "nothing is clear" logs no line.
// - The validator accepts if and only if it logs nothing; each rule that it names has a line, and is named once.
// - The active block of an accepted list is a valid channel around the list's primary channel.
#include "fuzz.hpp"

#include "ravix_types_radio_env.h"
#include "ravix_types_util.h"
#include "ravix_types_validation.h"

#include <cstring>
#include <set>

namespace {

using fuzz::require;
using entry_list = std::vector<ravix_channel_entry_t>;
using visits = std::vector<const ravix_channel_entry_t *>;

constexpr uint32_t active = RAVIX_CHANNEL_STATE_ACTIVE, primary_in_use = active | RAVIX_CHANNEL_STATE_PRI_CHAN;
constexpr uint32_t punctured = RAVIX_CHANNEL_STATE_PUNCTURED;

// A run of channels, here and there with anything in its place.
entry_list entries_from(FuzzedDataProvider &in) {
  entry_list entries;
  auto frequency = in.PickValueInArray({2412000U, 2437000U, 5180000U, 5500000U, 5745000U, 5955000U, 6875000U});
  const auto step = in.PickValueInArray({5000U, 20000U});
  const auto widths = in.ConsumeIntegral<uint8_t>() | RAVIX_CHANNEL_CAP_HT20;
  while (in.remaining_bytes() != 0 && entries.size() < 64) {
    const auto flags = in.ConsumeIntegral<uint8_t>();
    const auto state = in.PickValueInArray({0U, active, active, primary_in_use, punctured, 8U * flags, 1U * flags});
    entries.push_back({frequency, RAVIX_POWER_INVALID, widths, state, 0});
    if (flags > 240) {
      const auto bits = in.ConsumeIntegral<uint32_t>();
      entries.back() = {in.ConsumeBool() ? frequency : bits, static_cast<int16_t>(bits), bits, bits >> flags % 24, 0};
    }
    frequency += flags % 16 == 15 ? in.PickValueInArray({0U, 40000U, 25000U, 180000U}) : step;
  }
  return entries;
}

bool is_clear(const ravix_channel_list_t &list, const ravix_channel_info_t &channel, uint32_t mask) {
  visits visited, inside;
  bool expected = true, found = false;
  for (const auto *entry = list.data; entry != list.data + list.count; ++entry) {
    const auto distance = std::abs(int64_t{entry->frequency} - channel.center_freq);
    if ((entry->capabilities & channel.channel_width) != 0 &&
        distance * 2 <= ravix_channel_width_to_frequency(channel.channel_width)) {
      inside.push_back(entry);
      expected = expected && (entry->state & mask) == 0;
    }
  }
  const auto visit = [](const ravix_channel_entry_t *entry, void *context, uint32_t /*frequency*/) {
    static_cast<visits *>(context)->push_back(entry);
  };
  require(ravix_channel_info_check_range(&list, &channel, visit, &visited) == 0, "a valid channel can be walked");
  require(visited == inside, "a walk visits what lies between the edges");
  require(ravix_channel_is_clear(&list, &channel, mask, &found) == 0 && found == expected, "what is clear");
  return found;
}

void check_search(const ravix_channel_list_t &list, uint32_t primary, uint32_t mask, uint16_t most, bool ext_high) {
  fuzz::counted_log log;
  ravix_channel_info_t found;
  const ravix_channel_info_t none{};
  const int code = ravix_get_max_clear_channel_info(&list, primary, mask, ext_high, most, &found);
  require((log.take() == 0) == (code == 0 || code == -2), "lines of a search");
  require((code != 0) == (ravix_types_channel_info_compare(&found, &none) == 0), "what is not found is zero");
  if (code == 0) {
    require(ravix_channel_info_is_valid(&found) && is_clear(list, found, mask), "the channel found is clear");
    require(found.primary_freq == primary && (most == 0 || found.channel_width <= most), "the channel as wanted");
  }
}

// Whether the block of active entries is a channel. Its edges lie half an entry beyond it; in 2.4 GHz, where entries
// are closer, on entries or beyond the ends of the list.
bool has_channel_in_use(const entry_list &entries, uint32_t primary) {
  const bool is_2ghz = ravix_frequency_to_radio_band(primary) == RAVIX_RADIO_BAND_2GHZ;
  uint32_t lowest = 0, highest = 0, map = 0, bit = 1;
  for (const auto &entry : entries) {
    const bool is_used = (entry.state & (active | punctured)) != 0;
    lowest = lowest == 0 && is_used ? entry.frequency : lowest;
    highest = is_used ? entry.frequency : highest;
    map |= (entry.state & punctured) != 0 ? bit : 0;
    bit <<= lowest != 0 ? 1 : 0;
  }
  for (uint16_t width = 1; width != 0; width = ravix_channel_width_higher(width)) {
    for (const bool ext_high : {false, true}) {
      ravix_channel_info_t made;
      const bool is_made = ravix_create_channel_info(primary, width, ext_high, static_cast<uint16_t>(map), &made);
      const auto reach = ravix_channel_width_to_frequency(width) / 2 - (is_2ghz ? 0 : 10000);
      const auto first = std::max(made.center_freq - reach, is_2ghz ? entries.front().frequency : 0);
      const auto last = std::min(made.center_freq + reach, is_2ghz ? entries.back().frequency : UINT32_MAX);
      if (is_made && lowest == first && highest == last) {
        return true;
      }
    }
  }
  return false;
}

} // namespace

int LLVMFuzzerTestOneInput(const uint8_t *data, std::size_t size) {
  fuzz::counted_log log;
  FuzzedDataProvider in(data, size);
  const auto mask = in.ConsumeIntegral<uint16_t>();
  const auto most = in.ConsumeIntegralInRange<uint16_t>(0, 64);
  const bool ext_high = in.ConsumeBool();
  entry_list entries = entries_from(in);
  const entry_list before = entries;
  const ravix_channel_list_t list{static_cast<uint32_t>(entries.size()), entries.data()};
  ravix_string_table_t names{};
  const bool accepted = ravix_validate_channel_list(&list, &names);
  const std::size_t lines = log.take();
  require(accepted == (lines == 0) && accepted == (names.count == 0) && lines >= names.count, "lines of the validator");
  require(std::set<std::string>(names.data, names.data + names.count).size() == names.count, "each rule is named once");
  ravix_types_string_table_clear(&names);
  bool has_tried_other = false; // each of them fails with the same lines
  for (const auto &entry : before) {
    if (ravix_frequency_is_primary(entry.frequency) || !std::exchange(has_tried_other, true)) {
      check_search(list, entry.frequency, mask, most, ext_high);
    }
    if (accepted && (entry.state & RAVIX_CHANNEL_STATE_PRI_CHAN) != 0 && entry.frequency != 2484000) {
      require(has_channel_in_use(entries, entry.frequency), "the channel in use of an accepted list");
    }
  }
  require(size == 0 || entries.empty() || std::memcmp(&entries[0], &before[0], entries.size() * sizeof entries[0]) == 0,
          "the list is unchanged");
  return 0;
}
