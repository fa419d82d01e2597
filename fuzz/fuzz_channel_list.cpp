// A channel list of any entries: walk, clearance, widest clear channel and validator.
//
// - Nothing of it changes the list.
// - A walk visits, in order, just the entries of its width between the edges.
// - The widest clear channel is what a search by the tables of channels finds; if there is none, all is zero, and only
//   "nothing is clear" logs no line.
// - The validator accepts if and only if it logs nothing; each rule that it names has a line, and is named once.
// - The entries in use of an accepted list are those of a channel around the list's primary channel.
#include "channel_judge.hpp"
#include "fuzz.hpp"

#include "ravix_types_radio_env.h"

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

void check_search(entry_list &entries, uint32_t primary, uint32_t mask, uint16_t most, bool ext_high) {
  fuzz::lines_logged = 0;
  const ravix_channel_list_t list{static_cast<uint32_t>(entries.size()), entries.data()};
  ravix_channel_info_t found, expected{};
  const int code = ravix_get_max_clear_channel_info(&list, primary, mask, ext_high, most, &found);
  require(code == judge::search(entries, primary, mask, ext_high, most, expected), "whether a channel is clear");
  require(judge::fields(found) == judge::fields(expected), "the widest clear channel, or zero");
  require((fuzz::lines_logged == 0) == (code == 0 || code == -2), "lines of a search");
  if (code == 0) {
    bool is_clear = false;
    visits visited, within;
    for (const auto &entry : entries) {
      if (judge::is_within(found)(entry)) {
        within.push_back(&entry);
      }
    }
    const auto visit = [](const ravix_channel_entry_t *entry, void *context, uint32_t /*frequency*/) {
      static_cast<visits *>(context)->push_back(entry);
    };
    require(ravix_channel_info_check_range(&list, &found, visit, &visited) == 0, "a valid channel can be walked");
    require(visited == within, "a walk visits what lies between the edges");
    require(ravix_channel_is_clear(&list, &found, mask, &is_clear) == 0 && is_clear, "the channel found is clear");
  }
}

// Whether the entries in use are those of a channel.
bool are_of_a_channel(const entry_list &entries, uint32_t primary) {
  uint64_t map = 0, bit = 0;
  for (const auto &entry : entries) {
    bit = bit != 0 ? bit << 1 : (entry.state & (active | punctured)) != 0;
    map |= (entry.state & punctured) != 0 ? bit : 0;
  }
  for (const auto &[width, of] : judge::widths) {
    for (const bool ext_high : {false, true}) {
      const auto channel = judge::channel(primary, width, ext_high, static_cast<uint16_t>(map));
      const auto is_as_in_use = [&, reach = of.khz / 2](const ravix_channel_entry_t &entry) {
        const bool is_inside =
            entry.frequency + reach >= channel.center_freq && entry.frequency <= channel.center_freq + reach;
        return is_inside == ((entry.state & (active | punctured)) != 0);
      };
      if (channel.center_freq != 0 && std::ranges::all_of(entries, is_as_in_use)) {
        return true;
      }
    }
  }
  return false;
}

} // namespace

int LLVMFuzzerTestOneInput(const uint8_t *data, std::size_t size) {
  fuzz::lines_logged = 0;
  FuzzedDataProvider in(data, size);
  const auto mask = in.ConsumeIntegral<uint16_t>();
  const auto most = in.ConsumeIntegralInRange<uint16_t>(0, 64);
  const bool ext_high = in.ConsumeBool();
  entry_list entries = entries_from(in);
  const entry_list before = entries;
  const ravix_channel_list_t list{static_cast<uint32_t>(entries.size()), entries.data()};
  std::vector<std::string> names;
  const bool accepted = judge::is_accepted(&list, names);
  const std::size_t lines = fuzz::lines_logged;
  require(accepted == (lines == 0) && accepted == names.empty() && lines >= names.size(), "lines of the validator");
  require(std::set<std::string>(names.begin(), names.end()).size() == names.size(), "each rule is named once");
  bool has_tried_other = false; // each of them fails with the same lines
  for (const auto &entry : before) {
    if (ravix_frequency_is_primary(entry.frequency) || !std::exchange(has_tried_other, true)) {
      check_search(entries, entry.frequency, mask, most, ext_high);
    }
    if (accepted && (entry.state & RAVIX_CHANNEL_STATE_PRI_CHAN) != 0 && entry.frequency != 2484000) {
      require(are_of_a_channel(entries, entry.frequency), "the channel in use of an accepted list");
    }
  }
  require(size == 0 || entries.empty() || std::memcmp(&entries[0], &before[0], entries.size() * sizeof entries[0]) == 0,
          "the list is unchanged");
  return 0;
}
