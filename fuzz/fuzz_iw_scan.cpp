// The reader of what "iw dev <interface> scan" prints, on the whole input as a text.
//
// - Whatever the text, each network listed has a valid channel, an SSID within its capacity and a signal level that a
//   radio can have; loads are percentages of primary channels.
// - A text without a network is told, by an error or by a remark for each network of another band; each problem names a
//   line of the text, its message has no control characters, and there are no more than two hundred.
#include "fuzz.hpp"

#include "iw_scan.hpp"

#include "ravix_types_util.h"

using fuzz::require;

int LLVMFuzzerTestOneInput(const uint8_t *data, std::size_t size) {
  const std::string text(reinterpret_cast<const char *>(data), size);
  text::problems problems;
  const iw::scan scan = iw::read_scan(text, problems);
  for (const auto &network : scan.networks) {
    require(ravix_channel_info_is_valid(&network.channel_info), "a network has a valid channel");
    require(network.ssid.len <= RAVIX_MAX_SSID_LEN, "an SSID is within its capacity");
    require(network.rssi == RAVIX_POWER_INVALID || std::abs(network.rssi) <= 200, "a signal level");
  }
  for (const auto &entry : scan.load) {
    require(ravix_frequency_is_primary(entry.frequency) && entry.load <= 100, "a load");
  }
  const bool has_other_bands = std::any_of(problems.list().begin(), problems.list().end(), [](const auto &p) {
    return !p.is_error && p.message.ends_with("network not listed");
  });
  fuzz::check_problems(problems, text, scan.networks.empty() && !has_other_bands);
  return 0;
}
