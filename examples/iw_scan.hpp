// Reads what "iw dev <interface> scan" prints.
#pragma once

#include "text_input.hpp"

#include "ravix_types_radio_env.h"

#include <string_view>
#include <vector>

namespace iw {

struct scan {
  std::vector<ravix_scan_entry_t> networks;   // in the order of the text
  std::vector<ravix_noisefloor_entry_t> load; // per primary channel, ascending; noise is not part of a scan's text
};

// Reads all networks that can be read. What cannot be, or only in part, is told in `problems`.
scan read_scan(std::string_view text, text::problems &problems);

} // namespace iw
