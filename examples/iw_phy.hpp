// Reads what "iw phy" and "iw list" print about a radio, and "iw phy <name> channels", and makes channel lists of it.
#pragma once

#include "text_input.hpp"

#include "ravix_types_handles.hpp"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace iw {

struct phy_channel {
  uint32_t frequency = 0; // kHz
  uint32_t number = 0;
  int16_t max_power = RAVIX_POWER_INVALID;
  uint32_t widths = 0; // RAVIX_CHANNEL_CAP_HT...; 0: those of the band
  uint32_t state = 0;  // RAVIX_CHANNEL_STATE_...
  bool is_disabled = false;
  bool has_radar_detection = false;
  bool has_long_check = false; // of ten minutes instead of one: weather radars
  bool has_no_ir = false;      // "no IR": no transmission of one's own accord, so no access point may start there
};

struct phy_band {
  uint8_t radio_band = 0; // RAVIX_RADIO_BAND_...
  uint32_t widths = 0;    // RAVIX_CHANNEL_CAP_HT...
  std::vector<phy_channel> channels;
};

struct phy {
  std::string name;
  std::vector<phy_band> bands;
};

// Reads all radios of the text, of each the bands of 2.4, 5 and 6 GHz.
std::vector<phy> read_phys(std::string_view text, text::problems &problems);

// The channels of a band that are not disabled, in the order of the radio. A channel is capable of a width if the radio
// is, and if all of the wide channel can be used. Null if memory is exhausted.
ravix::handle<ravix_channel_list_t> make_channel_list(const phy_band &band);

// Puts the channels of a band in ascending order and takes out those that no list may have: what is no primary channel
// of the band, and what is in it already. Returns these.
std::vector<phy_channel> set_aside(phy_band &band);

// Whether the list has every 20 MHz channel of a channel description.
bool has_all_of(const ravix_channel_list_t &list, const ravix_channel_info_t &channel);

} // namespace iw
