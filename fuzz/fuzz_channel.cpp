// Channel descriptions: any one, and those that are made from a primary channel, a width, a side and a puncture map.
//
// - What is made, and what is valid, is what the tables of channels say; what is not made leaves 0, 0, 0, FFFF.
// - Making with a fallback logs one line when it fails and none otherwise; checking a description logs nothing.
// - The channel numbers enclose that of the primary channel, and are 0 for a description that is not valid.
// - A map that is valid for a channel is one for some channel, whatever nonsense the description holds.
// - The text reads back as the description's own numbers.
#include "channel_judge.hpp"
#include "fuzz.hpp"

#include "ravix_types_str_convert.h"

using fuzz::require;

static void check_description(const ravix_channel_info_t &channel) {
  fuzz::lines_logged = 0;
  const bool is_valid = judge::is_valid(channel);
  require(ravix_channel_info_is_valid(&channel) == is_valid, "what is valid");
  uint32_t lowest = 1, highest = 1;
  require(ravix_channel_info_to_lowest_and_highest_channel(&channel, &lowest, &highest) == is_valid, "valid");
  const uint32_t number = is_valid ? ravix_frequency_to_channel(channel.primary_freq) : 0;
  require(lowest <= number && number <= highest, "the channel numbers enclose the primary channel's");
  require(is_valid || highest == 0, "an invalid description has no channel numbers");
  unsigned mhz, center_mhz, map, low, high;
  const char *text = ravix_str_channel_info(&channel);
  require(std::sscanf(text, "%u/%u/%*3[^/]/%x/%u-%u", &mhz, &center_mhz, &map, &low, &high) == 5, "the text's parts");
  require(mhz == channel.primary_freq / 1000 && center_mhz == channel.center_freq / 1000, "the text's frequencies");
  require(map == channel.puncture_map && low == lowest && high == highest, "the text's map and channel numbers");
  require(fuzz::lines_logged == 0, "checking and printing a description log nothing");
  if (ravix_puncture_map_is_valid(channel.puncture_map, &channel)) {
    require(ravix_puncture_map_is_valid(channel.puncture_map, nullptr), "a valid map is valid for some channel");
  }
}

int LLVMFuzzerTestOneInput(const uint8_t *data, std::size_t size) {
  FuzzedDataProvider in(data, size);
  // Any bits, or a primary channel by its number in a band, a width by its bit and a narrow map.
  const bool is_likely = in.ConsumeBool();
  const auto number = in.ConsumeIntegral<uint32_t>();
  const auto band = in.PickValueInArray({1U, 2U, 4U});
  const auto primary = is_likely ? ravix_frequency_from_channel_and_band(number & 0xFFU, band) : number;
  const auto width = static_cast<uint16_t>(is_likely ? 1U << in.ConsumeIntegralInRange(0, 6) : number >> 8U);
  const auto map = static_cast<uint16_t>(in.ConsumeIntegral<uint8_t>() << in.ConsumeIntegralInRange(0, 8));
  const bool ext_high = in.ConsumeBool();
  check_description({primary, primary + 10000U * in.ConsumeIntegralInRange(0U, 32U) - 160000U, width, map});

  ravix_channel_info_t made, by_fallback;
  const bool is_made = ravix_create_channel_info(primary, width, ext_high, map, &made);
  check_description(made);
  require(is_made == ravix_channel_info_is_valid(&made), "what is made is valid");
  require(judge::fields(made) == judge::fields(judge::channel(primary, width, ext_high, map)), "what is made");
  fuzz::lines_logged = 0;
  const int code = ravix_create_channel_info_auto(primary, width, ext_high, map, &by_fallback);
  require((code == 0) == is_made, "no fallback without need");
  require((code < 0) != judge::is_valid(by_fallback), "what a fallback makes is valid");
  require(fuzz::lines_logged == (code < 0 ? 1 : 0), "one line for what cannot be made");
  return 0;
}
