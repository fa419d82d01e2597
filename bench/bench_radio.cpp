// Radio arithmetic beside plain if-chains and linear scans, the channel list validator and the search for a clear
// channel.
#include "bench.hpp"
#include "inputs.hpp"
#include "plain_radio.hpp"

#include "ravix_types_util.h"
#include "ravix_types_validation.h"

#include <algorithm>

namespace bench {

namespace {

// All primary frequencies one after the other, as many a driver has them.
std::vector<std::uint32_t> all_primaries() {
  std::vector<std::uint32_t> all;
  for (std::uint32_t khz = 2412000; khz <= 7115000; khz += 1000) {
    if (plain_primary(khz)) {
      all.push_back(khz);
    }
  }
  return all;
}

// 300 frequencies of all bands, most of them those of channels, in no order.
std::vector<std::uint32_t> mixed_frequencies() {
  const std::vector<std::uint32_t> primaries = all_primaries();
  return sampled(
      [&](auto &random) {
        return random() % 3 != 0 ? primaries[random() % primaries.size()]
                                 : static_cast<std::uint32_t>(2400000 + random() % 960 * 5000);
      },
      300);
}

template <class Function> auto over(Function function) {
  return [=](std::uint32_t khz) { benchmark::DoNotOptimize(function(khz)); };
}

void require_same(auto ours, auto plain) {
  for (std::uint32_t khz = 2390000; khz <= 7130000; khz += 500) {
    require(ours(khz) == plain(khz), "a plain if-chain computes something else");
  }
}

} // namespace

void register_radio() {
  require_same(ravix_frequency_to_channel, plain_channel);
  require_same(ravix_frequency_to_radio_band, plain_band);
  require_same(ravix_frequency_is_primary, plain_primary);
  const std::vector<std::uint32_t> frequencies = mixed_frequencies();
  row("channel", frequencies, way{"ravix", over(ravix_frequency_to_channel)}, way{"if_chain", over(plain_channel)});
  row("band", frequencies, way{"ravix", over(ravix_frequency_to_radio_band)}, way{"if_chain", over(plain_band)},
      way{"call", over(plain_call)});
  row("primary", frequencies, way{"ravix", over(ravix_frequency_is_primary)}, way{"if_chain", over(plain_primary)},
      way{"linear_scan", over([all = all_primaries()](std::uint32_t khz) {
            return std::find(all.begin(), all.end(), khz) != all.end();
          })});

  const auto list = channel_list(59);
  require(ravix_validate_channel_list(list.get(), nullptr), "the 6 GHz list is not valid");
  row("validate_6ghz",
      way{"ravix", [=] { benchmark::DoNotOptimize(ravix_validate_channel_list(list.get(), nullptr)); }});
  const auto search = [=](std::uint32_t primary) {
    ravix_channel_info_t found;
    benchmark::DoNotOptimize(ravix_get_max_clear_channel_info(list.get(), primary, RAVIX_CHANNEL_STATE_RADAR_FOUND,
                                                              true, RAVIX_CHANNEL_WIDTH_320, &found));
    keep(found);
  };
  row("clear_search", way{"ravix", [=] { search(list->data[29].frequency); }});
  // All that is wider than 20 MHz is taken, so that every width is tried.
  const auto taken = channel_list(59);
  taken->data[28].state = taken->data[30].state = RAVIX_CHANNEL_STATE_RADAR_FOUND;
  row("clear_search_all_widths",
      way{"ravix", [=] {
            ravix_channel_info_t found;
            benchmark::DoNotOptimize(ravix_get_max_clear_channel_info(
                taken.get(), taken->data[29].frequency, RAVIX_CHANNEL_STATE_RADAR_FOUND, true, 0, &found));
            keep(found);
          }});
}

} // namespace bench
