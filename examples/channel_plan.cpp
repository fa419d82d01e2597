// Judges the channel lists of a radio, as the text that iw prints, and finds the widest clear channels.
#include "band_picture.hpp"
#include "iw_phy.hpp"
#include "standard_output.hpp"
#include "text_input.hpp"

#include "ravix_types_enums.h"
#include "ravix_types_json.hpp"
#include "ravix_types_printers.hpp"
#include "ravix_types_str_convert.h"
#include "ravix_types_util.h"
#include "ravix_types_validation.h"

#include <algorithm>
#include <fstream>
#include <iostream>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace {

constexpr const char *program = "channel_plan";
constexpr const char *sample_name = "iw_phy_sample.txt";

constexpr const char *help = R"(usage: channel_plan [OPTION...] [FILE]

Reads what "iw phy" (or "iw list") prints about a radio from FILE, from standard input if FILE is "-", or from the
sample that comes with the program. Checks the channel list of each band, and finds the widest clear channel around each
primary channel, or around the one that is asked for. If a list is refused, it sets aside what a list may not have.

  --primary MHZ             plan with this primary channel; without it, all are gone through
  --max-width MHZ           look for channels up to this width: 20, 40, 80, 160 or 320
  --side lower|upper        side to try first where there is a choice: 40 MHz in 2.4 GHz, 320 MHz in 6 GHz
  --avoid STATES            what a clear channel is free of, a list of: radar, interference, precac, cac, off, none
                            (default: radar,interference)
  --mark-radar MHZ          set marks on channels before looking; each takes a list of frequencies and ranges,
  --mark-interference MHZ   for example 5260-5320,5500
  --mark-checked MHZ        checked for radar, and free of it
  --puncture MHZ            leave these 20 MHz channels out of the channel in use (802.11be)
  --allow-no-ir             use channels that are marked "no IR" too, where no access point may start
  --band 2.4|5|6            this band only
  --phy NAME                the radio, if FILE describes several
  --list                    print the channel list too
  --json                    print for programs: an array of the bands, each with its channel list
  --svg FILE                draw the band of --primary or --band
  -h, --help                this text

Exit status: 0; 1 if something could not be read, a list is refused, or there is no clear channel; 2 for a wrong
argument.
)";

struct range {
  uint32_t low, high; // kHz
};

struct options {
  std::string input;
  uint32_t primary = 0;
  uint16_t max_width = 0;
  bool ext_high = false;
  uint32_t avoid = RAVIX_CHANNEL_STATE_RADAR_FOUND | RAVIX_CHANNEL_STATE_INTERFERENCE_FOUND;
  std::vector<range> radar, interference, checked, punctured;
  bool allow_no_ir = false;
  uint8_t band = 0;
  std::string phy;
  bool print_list = false;
  bool as_json = false;
  std::string svg;
};

constexpr std::pair<std::string_view, std::vector<range> options::*> range_options[] = {
    {"--mark-radar", &options::radar},
    {"--mark-interference", &options::interference},
    {"--mark-checked", &options::checked},
    {"--puncture", &options::punctured},
};

constexpr std::pair<std::string_view, uint32_t> state_words[] = {
    {"radar", RAVIX_CHANNEL_STATE_RADAR_FOUND},
    {"interference", RAVIX_CHANNEL_STATE_INTERFERENCE_FOUND},
    {"precac", RAVIX_CHANNEL_STATE_PRECAC_TODO},
    {"cac", RAVIX_CHANNEL_STATE_CAC_RUNNING},
    {"off", RAVIX_CHANNEL_STATE_1_MINUTE_OFF | RAVIX_CHANNEL_STATE_10_MINUTES_OFF},
    {"none", 0},
};

std::optional<uint32_t> frequency_from(std::string_view text) {
  const bool is_number = !text.empty() && text.find_first_not_of("0123456789.") == std::string_view::npos;
  return is_number ? text::megahertz(text) : std::nullopt;
}

std::optional<std::vector<range>> ranges_from(std::string_view text) {
  std::vector<range> out;
  for (auto item : text::comma_separated(text)) {
    const bool is_range = item.find('-') != std::string_view::npos;
    const auto low = frequency_from(text::split(item, "-"));
    const auto high = is_range ? frequency_from(item) : low;
    if (!low || !high || *low > *high) {
      return std::nullopt;
    }
    out.push_back({*low, *high});
  }
  return out;
}

bool is_in(const std::vector<range> &ranges, uint32_t frequency) {
  return std::any_of(ranges.begin(), ranges.end(),
                     [=](const range &r) { return r.low <= frequency && frequency <= r.high; });
}

int wrong_argument(const std::string &message) {
  std::cerr << program << ": " << message << " (see --help)\n";
  return 2;
}

// Takes the value of an option; false if it is none.
bool set_option(std::string_view name, std::string_view value, options &out) {
  if (name == "--primary") {
    out.primary = frequency_from(value).value_or(0);
    return ravix_frequency_is_primary(out.primary);
  }
  if (name == "--max-width") {
    out.max_width = ravix_frequency_to_channel_width(frequency_from(value).value_or(0));
    return out.max_width != 0;
  }
  if (name == "--side") {
    out.ext_high = value == "upper";
    return value == "upper" || value == "lower";
  }
  if (name == "--avoid") {
    out.avoid = 0;
    for (const auto word : text::comma_separated(value)) {
      const auto *const known = std::find_if(std::begin(state_words), std::end(state_words),
                                             [&](const auto &state) { return state.first == word; });
      if (known == std::end(state_words)) {
        return false;
      }
      out.avoid |= known->second;
    }
    return true;
  }
  if (name == "--band") {
    out.band = value == "2.4" ? RAVIX_RADIO_BAND_2GHZ
               : value == "5" ? RAVIX_RADIO_BAND_5GHZ
               : value == "6" ? RAVIX_RADIO_BAND_6GHZ
                              : 0;
    return out.band != 0;
  }
  if (name == "--phy" || name == "--svg") {
    (name == "--phy" ? out.phy : out.svg) = value;
    return !value.empty();
  }
  const auto *const known = std::find_if(std::begin(range_options), std::end(range_options),
                                         [=](const auto &option) { return option.first == name; });
  const auto more = ranges_from(value);
  if (known == std::end(range_options) || !more) {
    return false;
  }
  auto &ranges = out.*known->second;
  ranges.insert(ranges.end(), more->begin(), more->end());
  return true;
}

// Returns an exit status if the program ends here.
std::optional<int> read_arguments(const std::vector<std::string> &arguments, options &out) {
  constexpr std::string_view with_value[] = {
      "--primary",      "--max-width", "--side", "--avoid", "--mark-radar", "--mark-interference",
      "--mark-checked", "--puncture",  "--band", "--phy",   "--svg"};
  for (std::size_t i = 0; i < arguments.size(); ++i) {
    const auto &argument = arguments[i];
    if (argument == "-h" || argument == "--help") {
      std::cout << help;
      return 0;
    }
    if (argument == "--list") {
      out.print_list = true;
    } else if (argument == "--json") {
      out.as_json = true;
    } else if (argument == "--allow-no-ir") {
      out.allow_no_ir = true;
    } else if (std::find(std::begin(with_value), std::end(with_value), argument) != std::end(with_value)) {
      if (++i == arguments.size()) {
        return wrong_argument(argument + " needs a value");
      }
      if (!set_option(argument, arguments[i], out)) {
        return wrong_argument(argument + " does not take " + text::quote(arguments[i]));
      }
    } else if (argument.size() > 1 && argument[0] == '-') {
      return wrong_argument("unknown option " + text::quote(argument));
    } else if (out.input.empty()) {
      out.input = argument;
    } else {
      return wrong_argument("more than one file");
    }
  }
  if (!out.svg.empty() && out.primary == 0 && out.band == 0) {
    return wrong_argument("--svg draws one band, so it needs --primary or --band");
  }
  if (out.primary != 0 && out.band != 0 && ravix_frequency_to_radio_band(out.primary) != out.band) {
    return wrong_argument("the primary channel is not in that band");
  }
  if (!out.punctured.empty() && out.primary == 0) {
    return wrong_argument("--puncture needs --primary");
  }
  if (is_in(out.punctured, out.primary)) {
    return wrong_argument("the primary channel cannot be punctured");
  }
  if (out.input.empty()) {
    out.input = text::sample(sample_name);
  }
  return std::nullopt;
}

void mark(ravix_channel_list_t &list, const options &wanted) {
  for (uint32_t i = 0; i < list.count; ++i) {
    auto &entry = list.data[i];
    constexpr uint32_t checks = RAVIX_CHANNEL_STATE_PRECAC_TODO | RAVIX_CHANNEL_STATE_DFS_CLEAR;
    if (is_in(wanted.checked, entry.frequency)) {
      entry.state = (entry.state & ~checks) | RAVIX_CHANNEL_STATE_DFS_CLEAR;
    }
    if (is_in(wanted.radar, entry.frequency)) {
      entry.state = (entry.state & ~checks) | RAVIX_CHANNEL_STATE_RADAR_FOUND;
    }
    if (is_in(wanted.interference, entry.frequency)) {
      entry.state |= RAVIX_CHANNEL_STATE_INTERFERENCE_FOUND;
    }
  }
}

// What the library says of a list.
struct verdict {
  bool is_accepted = false;
  ravix::handle<ravix_string_table_t> violations; // names of the rules; null if memory is exhausted
};

verdict judge(const ravix_channel_list_t &list) {
  verdict result{false, ravix::create<ravix_string_table_t>()};
  result.is_accepted = ravix_validate_channel_list(&list, result.violations.get());
  return result;
}

// The punctured channels of a wide one as its puncture map.
uint16_t puncture_map(const ravix_channel_info_t &channel, const std::vector<range> &punctured) {
  const auto width = ravix_channel_width_to_frequency(channel.channel_width);
  uint32_t map = 0;
  for (uint32_t i = 0; i < width / 20000; ++i) {
    map |= is_in(punctured, channel.center_freq - width / 2 + 10000 + 20000 * i) ? UINT32_C(1) << i : 0;
  }
  return static_cast<uint16_t>(map);
}

bool has_no_ir(const iw::phy_band &band, uint32_t frequency) {
  return std::any_of(band.channels.begin(), band.channels.end(),
                     [=](const auto &c) { return c.frequency == frequency && !c.is_disabled && c.has_no_ir; });
}

// The widest channel that is clear, of which the radio has all 20 MHz channels and may start on them, and that may be
// punctured as wanted.
std::optional<ravix_channel_info_t> find_widest(const iw::phy_band &band, const ravix_channel_list_t &list,
                                                uint32_t primary, const options &wanted) {
  const auto copy = ravix::create<ravix_channel_list_t>();
  if (!copy) {
    return std::nullopt;
  }
  for (uint32_t i = 0; i < list.count; ++i) {
    auto entry = list.data[i];
    if (is_in(wanted.punctured, entry.frequency)) {
      entry.state = 0; // what is punctured is not used, so it need not be clear
    } else if (has_no_ir(band, entry.frequency) && !wanted.allow_no_ir) {
      continue; // a channel that has no entry here is not found
    }
    if (ravix_types_channel_list_add_entry(copy.get(), &entry) != 0) {
      return std::nullopt;
    }
  }
  uint16_t width = wanted.max_width == 0 ? uint16_t{RAVIX_CHANNEL_WIDTH_320} : wanted.max_width;
  while (width != 0) {
    for (const bool ext_high : {wanted.ext_high, !wanted.ext_high}) {
      ravix_channel_info_t found;
      if (ravix_get_max_clear_channel_info(copy.get(), primary, wanted.avoid, ext_high, width, &found) != 0) {
        return std::nullopt;
      }
      found.puncture_map = puncture_map(found, wanted.punctured);
      if (iw::has_all_of(*copy, found) && ravix_channel_info_is_valid(&found)) {
        return found;
      }
      width = std::min(width, found.channel_width);
    }
    width = ravix_channel_width_lower(width);
  }
  return std::nullopt;
}

// Sets the state that the channels have while the channel is in use; radar checks are then over.
void use(ravix_channel_list_t &list, const ravix_channel_info_t &channel, const options &wanted) {
  const auto half = ravix_channel_width_to_frequency(channel.channel_width) / 2;
  for (uint32_t i = 0; i < list.count; ++i) {
    auto &entry = list.data[i];
    const auto f = entry.frequency;
    if (f + half < channel.center_freq || f > channel.center_freq + half) {
      continue;
    }
    if (is_in(wanted.punctured, f)) {
      entry.state |= RAVIX_CHANNEL_STATE_PUNCTURED;
      continue;
    }
    const bool is_dfs = (entry.capabilities & (RAVIX_CHANNEL_CAP_DFS | RAVIX_CHANNEL_CAP_DFS_WEATHER)) != 0;
    if (is_dfs && (entry.state & RAVIX_CHANNEL_STATE_RADAR_FOUND) == 0) {
      entry.state |= RAVIX_CHANNEL_STATE_DFS_CLEAR;
    }
    entry.state &= ~(RAVIX_CHANNEL_STATE_PRECAC_TODO | RAVIX_CHANNEL_STATE_CAC_RUNNING);
    entry.state |= RAVIX_CHANNEL_STATE_ACTIVE | (f == channel.primary_freq ? RAVIX_CHANNEL_STATE_PRI_CHAN : 0);
  }
}

// The channel around a primary one.
struct widest {
  uint32_t primary;
  bool has_no_ir;
  std::optional<ravix_channel_info_t> found;
};

struct plan {
  bool is_good = true;
  ravix::handle<ravix_channel_list_t> list; // null if memory is exhausted
  verdict of_radio;                         // on the radio's own list
  std::vector<iw::phy_channel> others;      // that no list may have: set aside
  bool was_descending = false;
  std::optional<verdict> of_others; // on the list without them, in ascending order
  std::vector<widest> channels;     // around every primary channel, or the wanted one; none of a list that is refused
  std::optional<verdict> in_use;    // on the list with the only one in use

  const verdict &of_list() const { return in_use ? *in_use : of_others ? *of_others : of_radio; }
  const ravix_channel_info_t *found() const {
    return channels.empty() || !channels.front().found ? nullptr : &*channels.front().found;
  }
};

// The list of a band with the marks of the arguments; null if memory is exhausted.
ravix::handle<ravix_channel_list_t> marked_list(const iw::phy_band &band, const options &wanted) {
  auto list = iw::make_channel_list(band);
  if (list) {
    mark(*list, wanted);
  }
  return list;
}

// Makes and judges the list of a band. If it is refused, what remains of the band is without the channels that no list
// may have. False if no list is accepted.
bool make_list(iw::phy_band &band, const options &wanted, plan &result) {
  result.list = marked_list(band, wanted);
  if (!result.list) {
    return false;
  }
  result.of_radio = judge(*result.list);
  result.is_good = result.of_radio.is_accepted;
  if (result.is_good) {
    return true;
  }
  const auto is_below = [](const auto &a, const auto &b) { return a.frequency < b.frequency; };
  result.was_descending = !std::is_sorted(band.channels.begin(), band.channels.end(), is_below);
  result.others = iw::set_aside(band);
  if (result.others.empty() && !result.was_descending) {
    return false;
  }
  result.list = marked_list(band, wanted);
  if (!result.list) {
    return false;
  }
  result.of_others = judge(*result.list);
  return result.of_others->is_accepted;
}

plan plan_band(iw::phy_band &band, const options &wanted) {
  plan result;
  if (!make_list(band, wanted, result)) {
    return result;
  }
  auto &list = *result.list;
  const auto add = [&](uint32_t primary) {
    const bool is_marked = has_no_ir(band, primary);
    const bool is_left_out = is_marked && !wanted.allow_no_ir;
    result.channels.push_back(
        {primary, is_marked, is_left_out ? std::nullopt : find_widest(band, list, primary, wanted)});
  };
  if (wanted.primary != 0) {
    add(wanted.primary);
    if (result.found() != nullptr) {
      use(list, *result.found(), wanted);
      result.in_use = judge(list);
    }
    result.is_good = result.in_use && result.in_use->is_accepted && result.is_good;
    return result;
  }
  for (uint32_t i = 0; i < list.count; ++i) {
    add(list.data[i].frequency);
  }
  return result;
}

// ---- output

void print_heading(const iw::phy_band &band) {
  const auto count = [&](bool iw::phy_channel::*flag) {
    return std::count_if(band.channels.begin(), band.channels.end(), [=](const auto &c) { return c.*flag; });
  };
  std::cout << ravix_str_radio_band(band.radio_band) << ": " << band.channels.size() << " channels, "
            << count(&iw::phy_channel::is_disabled) << " disabled, " << count(&iw::phy_channel::has_radar_detection)
            << " with radar detection, " << count(&iw::phy_channel::has_no_ir) << " with no IR, up to "
            << ravix_str_channel_width(ravix_channel_capabilities_to_channel_width(band.widths)) << ": ";
}

void print_verdict(const char *what, const verdict &of) {
  std::cout << what << (of.is_accepted ? " accepted" : " refused:");
  for (uint32_t i = 0; of.violations && i < of.violations->count; ++i) {
    std::cout << ' ' << of.violations->data[i];
  }
  std::cout << '\n';
}

void print_channel(const widest &channel, const options &wanted) {
  const bool is_left_out = channel.has_no_ir && !wanted.allow_no_ir;
  const std::string width = channel.found ? ravix_str_channel_width(channel.found->channel_width) : "-";
  std::cout << ravix_str_wifi_freq(channel.primary) << "  "
            << std::string(7 - std::min<std::size_t>(7, width.size()), ' ') << width << "  ";
  if (channel.found) {
    std::cout << ravix_str_channel_info(&*channel.found);
  } else {
    std::cout << (is_left_out ? "no IR" : "no clear channel");
  }
  std::cout << (wanted.primary == 0 && channel.has_no_ir && !is_left_out ? "  no IR\n" : "\n");
}

void print(const plan &planned, const options &wanted) {
  print_verdict("list", planned.of_radio);
  for (const auto &channel : planned.others) {
    std::cout << (&channel == &planned.others.front() ? "set aside: " : ", ") << channel.frequency / 1000 << " MHz ["
              << channel.number << ']';
  }
  std::cout << (planned.others.empty() ? "" : "\n");
  if (planned.of_others) {
    print_verdict(planned.others.empty() ? "list in ascending order" : "list of the others", *planned.of_others);
  }
  const bool is_planned = planned.of_others ? planned.of_others->is_accepted : planned.of_radio.is_accepted;
  if (!is_planned) {
    return;
  }
  std::cout << (wanted.primary == 0 ? "PRIMARY         WIDEST   CHANNEL_INFO\n" : "");
  for (const auto &channel : planned.channels) {
    print_channel(channel, wanted);
  }
  if (planned.in_use) {
    print_verdict("list with this channel in use", *planned.in_use);
  }
  if (wanted.print_list) {
    std::cout << *planned.list << '\n';
  }
}

// The same for programs, as a list and its judgement.
void print_as_json(uint8_t radio_band, const plan &planned) {
  std::vector<uint32_t> others;
  for (const auto &channel : planned.others) {
    others.push_back(channel.frequency);
  }
  std::cout << R"({"radio_band":")" << ravix_str_radio_band(radio_band) << R"(","violations":)";
  print_json(std::cout, *planned.of_radio.violations);
  std::cout << R"(,"set_aside":)";
  print_json(std::cout, ravix_frequency_table_t{static_cast<uint32_t>(others.size()), others.data()});
  std::cout << R"(,"channel_list":)";
  print_json(std::cout, *planned.list);
  std::cout << R"(,"channel_list_violations":)";
  print_json(std::cout, *planned.of_list().violations);
  std::cout << R"(,"channels":[)";
  for (const auto &channel : planned.channels) {
    std::cout << (&channel == &planned.channels.front() ? "" : ",") << R"({"primary_freq":)" << channel.primary
              << R"(,"no_ir":)" << (channel.has_no_ir ? "true" : "false") << R"(,"channel_info":)";
    if (channel.found) {
      print_json(std::cout, *channel.found);
    } else {
      std::cout << "null";
    }
    std::cout << '}';
  }
  std::cout << "]}";
}

int draw(const iw::phy &radio, const iw::phy_band &band, const plan &planned, const options &wanted) {
  std::string subtitle =
      band.radio_band == RAVIX_RADIO_BAND_2GHZ ? "channels overlap, 5 MHz apart" : "channels that the radio has";
  if (wanted.primary != 0) {
    subtitle = "primary channel " + std::to_string(ravix_frequency_to_channel(wanted.primary)) +
               (planned.found() != nullptr ? ", widest clear channel" : ", no clear channel");
  }
  std::ofstream file(wanted.svg, std::ios::binary);
  file << picture::draw_band(radio.name + ": " + ravix_str_radio_band(band.radio_band), subtitle, band, *planned.list,
                             planned.found());
  file.close();
  if (!file) {
    std::cerr << program << ": cannot write " << wanted.svg << '\n';
    return 1;
  }
  return 0;
}

// Whether a radio has the channels that the arguments name; says what is missing.
bool has_named_channels(const iw::phy &radio, const options &wanted) {
  std::vector<iw::phy_channel> all;
  for (const auto &band : radio.bands) {
    all.insert(all.end(), band.channels.begin(), band.channels.end());
  }
  const auto find = [&](const range &r) {
    return std::find_if(all.begin(), all.end(),
                        [&](const auto &c) { return r.low <= c.frequency && c.frequency <= r.high; });
  };
  bool has_all = true;
  const auto is_missing = [&](const std::string &what) {
    std::cerr << program << ": " << radio.name << what << '\n';
    has_all = false;
  };
  for (const auto &[name, ranges] : range_options) {
    for (const range &r : wanted.*ranges) {
      if (find(r) == all.end()) {
        is_missing(" has no channel that " + std::string(name) + " names: " + std::to_string(r.low / 1000) +
                   (r.low == r.high ? "" : "-" + std::to_string(r.high / 1000)) + " MHz");
      }
    }
  }
  if (wanted.primary != 0) {
    const auto primary = find({wanted.primary, wanted.primary});
    const std::string at = std::string(" the channel at ") + ravix_str_wifi_freq(wanted.primary);
    if (primary == all.end() || primary->is_disabled) {
      is_missing((primary == all.end() ? " does not have" : " has disabled") + at);
    } else if (primary->has_no_ir && !wanted.allow_no_ir) {
      is_missing(" has no IR on" + at + ": no access point may start there (see --allow-no-ir)");
    }
  }
  return has_all;
}

int run(const options &wanted) {
  std::string content;
  text::problems problems;
  if (const auto reason = text::read(wanted.input, content)) {
    problems.error(0, "cannot be read: " + *reason);
    problems.print(program, wanted.input);
    return 1;
  }
  auto radios = iw::read_phys(content, problems);
  problems.print(program, wanted.input);
  int status = problems.has_errors() ? 1 : 0;
  const auto radio = std::find_if(radios.begin(), radios.end(),
                                  [&](const iw::phy &r) { return wanted.phy.empty() || r.name == wanted.phy; });
  if (radio == radios.end()) {
    if (!wanted.phy.empty()) {
      std::cerr << program << ": no radio " << text::quote(wanted.phy) << " in the text\n";
    }
    return 1;
  }
  if (!has_named_channels(*radio, wanted)) {
    return 1;
  }
  const auto wanted_band = wanted.primary == 0 ? wanted.band : ravix_frequency_to_radio_band(wanted.primary);
  bool is_done = false;
  for (auto &band : radio->bands) {
    if (wanted_band != 0 && band.radio_band != wanted_band) {
      continue;
    }
    if (!wanted.as_json) {
      std::cout << (is_done ? "\n" : "");
      print_heading(band);
    }
    const auto planned = plan_band(band, wanted);
    if (!planned.list || !planned.of_radio.violations || !planned.of_list().violations) {
      return 1;
    }
    if (wanted.as_json) {
      std::cout << (is_done ? "," : "[");
      print_as_json(band.radio_band, planned);
    } else {
      print(planned, wanted);
    }
    is_done = true;
    status = planned.is_good ? status : 1;
    if (!wanted.svg.empty() && draw(*radio, band, planned, wanted) != 0) {
      status = 1;
    }
  }
  if (is_done && wanted.as_json) {
    std::cout << "]\n";
  }
  if (!is_done) {
    std::cerr << program << ": " << radio->name << " has no channels in that band\n";
    status = 1;
  }
  return status;
}

} // namespace

int main(int argc, char **argv) {
  options wanted;
  const auto status = read_arguments({argv + 1, argv + argc}, wanted);
  return end_of_output(program, status ? *status : run(wanted));
}
