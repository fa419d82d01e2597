// Draws a radio's band as a picture (SVG) that can be read on a phone and printed in grey.
#pragma once

#include "iw_phy.hpp"

#include "ravix_types_common.h"

#include <string>

namespace picture {

// One box per channel of the radio, marked by what the list has in `state`; a bracket over `found`, if it is not null.
std::string draw_band(const std::string &title, const std::string &subtitle, const iw::phy_band &band,
                      const ravix_channel_list_t &list, const ravix_channel_info_t *found);

} // namespace picture
