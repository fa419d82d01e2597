// What is asked of a channel list and of whole channels, and tells in the log why it fails. Its lines carry the source
// path of the arithmetic that it builds on, by which log filters know them.
#include "ravix_types_generic_simple.hpp"
#include "ravix_types_str_convert.h"
#include "ravix_types_util.h"

#include <algorithm>
#include <cerrno>
#include <span>

using zel::ravix::are_given;
using zel::ravix::log_error;
using zel::ravix::log_invalid_pointer;

namespace {

constexpr const char *here = "src/ravix_types_util";

// Whether the channels of a width lie on either side of a primary channel.
bool has_pairs(uint32_t primary_freq, uint16_t width) {
  return width == RAVIX_CHANNEL_WIDTH_40 && ravix_frequency_to_radio_band(primary_freq) == RAVIX_RADIO_BAND_2GHZ;
}
bool has_overlapping_blocks(uint32_t primary_freq, uint16_t width) {
  return width == RAVIX_CHANNEL_WIDTH_320 && ravix_frequency_to_radio_band(primary_freq) == RAVIX_RADIO_BAND_6GHZ;
}

// A list that claims entries but has no array counts as empty.
std::span<const ravix_channel_entry_t> entries(const ravix_channel_list_t &list) {
  return {list.data, list.data != nullptr ? list.count : 0};
}

struct clearance {
  uint32_t state_mask;
  bool clear;
};

void note_clearance(const ravix_channel_entry_t *entry, void *context, uint32_t /*frequency*/) {
  auto *const found = static_cast<clearance *>(context);
  found->clear = found->clear && (entry->state & found->state_mask) == 0;
}

} // namespace

int ravix_create_channel_info_auto(uint32_t primary_freq, uint16_t channel_width, bool ext_high, uint16_t puncture_map,
                                   ravix_channel_info_t *out) {
  if (ravix_create_channel_info(primary_freq, channel_width, ext_high, puncture_map, out)) [[likely]] {
    return 0;
  }
  if (has_pairs(primary_freq, channel_width)) {
    ext_high = !ext_high;
    if (ravix_create_channel_info(primary_freq, channel_width, ext_high, puncture_map, out)) [[likely]] {
      return 1;
    }
  }
  log_error(here, {"Failed to create channel_info with params: freq '", ravix_str_wifi_freq(primary_freq), "' and cw '",
                   ravix_str_channel_width(channel_width), "', ext_high: ", ext_high ? "1" : "0", "."});
  return RAVIX_FAIL_GENERAL;
}

int ravix_channel_info_check_range(const ravix_channel_list_t *chan_list, const ravix_channel_info_t *channel_info,
                                   ravix_channel_visitor_t chan_check_fct, void *context) {
  if (!are_given(chan_list, "chan_list", channel_info, "channel_info", here)) {
    return -EINVAL;
  }
  if (chan_check_fct == nullptr) {
    log_invalid_pointer(here, "chan_check_fct");
    return -EINVAL;
  }
  if (!ravix_channel_info_is_valid(channel_info)) {
    log_error(here, "channel_info is not valid!");
    return -EINVAL;
  }
  const uint32_t reach = ravix_channel_width_to_frequency(channel_info->channel_width) / 2;
  const uint32_t first = channel_info->center_freq - reach;
  const uint32_t last = channel_info->center_freq + reach;
  for (const ravix_channel_entry_t &entry : entries(*chan_list)) {
    if (ravix_channel_capabilities_match_width(entry.capabilities, channel_info->channel_width) &&
        entry.frequency >= first && entry.frequency <= last) {
      chan_check_fct(&entry, context, entry.frequency);
    }
  }
  return 0;
}

int ravix_channel_is_clear(const ravix_channel_list_t *chan_list, const ravix_channel_info_t *channel_info,
                           uint32_t state_mask, bool *clear) {
  if (!are_given(chan_list, "chan_list", channel_info, "channel_info", here)) {
    return -EINVAL;
  }
  if (clear == nullptr) {
    log_invalid_pointer(here, "chan_check_fct"); // named after the visitor, which every log reader knows it by
    return -EINVAL;
  }
  clearance found = {state_mask, true};
  const bool walked = ravix_channel_info_check_range(chan_list, channel_info, note_clearance, &found) >= 0;
  *clear = walked && found.clear;
  return walked ? 0 : RAVIX_FAIL_GENERAL;
}

int ravix_get_max_clear_channel_info(const ravix_channel_list_t *chan_list, uint32_t primary_freq, uint32_t state_mask,
                                     bool ext_high, uint16_t max_width, ravix_channel_info_t *channel_info) {
  if (!are_given(chan_list, "chan_list", channel_info, "channel_info", here)) {
    return -EINVAL;
  }
  *channel_info = {};
  const auto list = entries(*chan_list);
  const auto entry = std::ranges::find(list, primary_freq, &ravix_channel_entry_t::frequency);
  uint16_t width = entry != list.end() ? ravix_channel_capabilities_to_channel_width(entry->capabilities) : uint16_t{0};
  if (width == RAVIX_CHANNEL_WIDTH_INVALID) {
    log_error(here, {"No channel width applicable to primary freq '", ravix_str_wifi_freq(primary_freq), "'."});
    return -EINVAL;
  }
  if (max_width != 0 && max_width < width) {
    width = max_width;
  }
  for (; width != RAVIX_CHANNEL_WIDTH_INVALID; width = ravix_channel_width_lower(width)) {
    const bool two_sided = has_pairs(primary_freq, width) || has_overlapping_blocks(primary_freq, width);
    for (const bool side : {ext_high, !ext_high}) {
      const int made = ravix_create_channel_info_auto(primary_freq, width, side, 0, channel_info);
      if (made < 0) {
        log_error(here, "Failed to create max clear channel info.");
        *channel_info = {};
        return -EINVAL;
      }
      bool clear = false;
      if (ravix_channel_is_clear(chan_list, channel_info, state_mask, &clear) != 0) {
        log_error(here, "Clearance detection failed.");
        *channel_info = {};
        return RAVIX_FAIL_GENERAL;
      }
      if (clear) {
        return 0;
      }
      if (!two_sided || made == 1) { // there is no other side, or that was it already
        break;
      }
    }
  }
  *channel_info = {};
  return -ENOENT;
}
