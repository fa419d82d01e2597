// The reader of what "iw phy" prints, on the whole input as a text, and the channel lists that are made of it.
//
// - Whatever the text, each band of each radio has channels, and powers that a radio can have.
// - A width that an entry of a list is capable of is one of a channel: a search for the widest channel around a primary
//   channel finds one.
// - What is set aside and what remains are together the band; the list of what remains is not refused for a frequency.
// - A text without a band is told, each problem names a line of the text, its message has no control characters, and
//   there are no more than two hundred.
#include "channel_judge.hpp"
#include "fuzz.hpp"

#include "iw_phy.hpp"

using fuzz::require;

namespace {

void check_set_aside(iw::phy_band band) {
  const auto size = band.channels.size();
  const auto others = iw::set_aside(band);
  require(size == band.channels.size() + others.size(), "no channel is lost");
  std::vector<std::string> violated;
  judge::is_accepted(iw::make_channel_list(band).get(), violated);
  for (const std::string rule : {"INVALID_FREQ", "RADIO_MISMATCH", "DOUBLE_FREQUENCY", "INVALID_ORDER"}) {
    require(std::ranges::count(violated, rule) == 0, "what remains is ascending and of the band");
  }
}

} // namespace

int LLVMFuzzerTestOneInput(const uint8_t *data, std::size_t size) {
  const std::string text(reinterpret_cast<const char *>(data), size);
  text::problems problems;
  bool has_band = false;
  for (const auto &radio : iw::read_phys(text, problems)) {
    for (const auto &band : radio.bands) {
      has_band = true;
      const auto list = iw::make_channel_list(band);
      require(list && !band.channels.empty() && list->count <= band.channels.size(), "a band has channels");
      for (uint32_t i = 0; i < list->count; ++i) {
        const auto &entry = list->data[i];
        require(entry.max_power == RAVIX_POWER_INVALID || std::abs(entry.max_power) <= 200, "a power");
        ravix_channel_info_t found;
        const int code = ravix_get_max_clear_channel_info(list.get(), entry.frequency, 0, false, 0, &found);
        require(code == 0 || !ravix_frequency_is_primary(entry.frequency), "a channel is found");
      }
      check_set_aside(band);
    }
  }
  fuzz::check_problems(problems, text, !has_band);
  return 0;
}
