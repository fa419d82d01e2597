// The channel list validator: the lists of docs/channel-rules.md, and those of tests/data.
#include "channel_judge.hpp"
#include "golden.hpp"
#include "harness.hpp"

#include "ravix_types_str_convert.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <fstream>
#include <map>
#include <numeric>
#include <regex>
#include <set>
#include <sstream>
#include <string>
#include <tuple>
#include <vector>

namespace {

using lines = std::vector<std::string>;
using entry = ravix_channel_entry_t;
using channels = std::vector<entry>;

lines split(const std::string &text, char separator) {
  lines parts;
  std::istringstream stream(text);
  for (std::string part; std::getline(stream, part, separator);)
    parts.push_back(part);
  return parts;
}

// The set of flags that a text names.
uint32_t flags(const std::string &text, const char *(*name)(uint32_t)) {
  uint32_t result = 0;
  std::istringstream words(text);
  for (std::string word; words >> word;) {
    uint32_t bit = 1;
    while (bit != 0 && name(bit) != "[ " + word + " ]")
      bit <<= 1;
    EXPECT_NE(bit, 0U) << "unknown flag " << word;
    result |= bit;
  }
  return result;
}

// A list with "MHz | dBm | capabilities | state" for each channel.
channels parse(const std::string &text, char separator) {
  channels result;
  for (const std::string &line : split(text, separator)) {
    lines columns = split(line, '|');
    columns.resize(4);
    const bool no_power = columns[1].find_first_of("0123456789") == std::string::npos;
    result.push_back({static_cast<uint32_t>(std::stoul(columns[0])) * 1000,
                      static_cast<int16_t>(no_power ? RAVIX_POWER_INVALID : std::stoi(columns[1])),
                      flags(columns[2], ravix_str_channel_capabilities), flags(columns[3], ravix_str_channel_state),
                      0});
  }
  return result;
}

// A list spelled as "<first MHz>+<step MHz> <letter for each channel>", or as above.
channels spelled(const std::string &text) {
  if (text.find('|') != std::string::npos)
    return parse(text, ';');
  const std::map<char, uint32_t> states = {{'.', 0}, {'A', 0x1}, {'P', 0x3}, {'p', 0x2}, {'X', 0x400}, {'R', 0x80}};
  channels result;
  uint32_t frequency = 1000 * static_cast<uint32_t>(std::stoul(text));
  const uint32_t step = 1000 * static_cast<uint32_t>(std::stoul(text.substr(text.find('+'))));
  for (const char letter : text.substr(text.find(' ') + 1)) {
    result.push_back({frequency, 20, frequency < 2500000 ? 0x03U : 0x37U, states.at(letter), 0});
    frequency += step;
  }
  return result;
}

// The names of the violated rules.
std::string violated(const ravix_channel_list_t *list) {
  lines names;
  const bool is_accepted = judge::is_accepted(list, names);
  EXPECT_EQ(is_accepted, names.empty());
  return std::accumulate(names.begin(), names.end(), std::string(),
                         [](const auto &all, const auto &name) { return all + (all.empty() ? "" : " ") + name; });
}
std::string violated(channels list) {
  const ravix_channel_list_t view = {static_cast<uint32_t>(list.size()), list.data()};
  return violated(&view);
}

TEST(ChannelRulesPage, SaysWhatTheValidatorSays) {
  harness::captured_log log;
  std::ostringstream page;
  page << std::ifstream(RAVIX_DOCS "/channel-rules.md").rdbuf();
  const std::string text = page.str();
  std::set<std::string> rules;
  std::string rule;
  const std::regex part("## (.*)|```list\n([^`]*)```\n+```log\n([^`]*)```");
  for (std::sregex_iterator found(text.begin(), text.end(), part), end; found != end; ++found) {
    const std::smatch &match = *found;
    if (match[1].matched) {
      rule = match[1];
      continue;
    }
    const std::string list = match[2];
    EXPECT_EQ(list == "(no list)\n" ? violated(nullptr) : violated(parse(list, '\n')), rule) << list;
    std::string told;
    for (const harness::log_line &written : log.take())
      told += written.text + '\n';
    EXPECT_EQ(told, match[3]) << list;
    rules.insert(rule);
  }
  EXPECT_EQ(rules.size(), 1 + 16U); // the list that breaks nothing, and the rules
}

TEST(ChannelList, IsJudgedAsWritten) {
  harness::expect_answers("channel_lists", [](const std::string &text) {
    const std::string names = violated(spelled(text));
    return names.empty() ? "accepted" : "refused: " + names;
  });
}

// The channels of its band, of which those of the channel are in use. Channel 14 stands in lists of its own.
channels list_of(const judge::info &channel) {
  channels list;
  const uint32_t reach = judge::widths.at(channel.channel_width).khz / 2, lower_edge = channel.center_freq - reach;
  for (const uint32_t frequency : judge::widths.at(RAVIX_CHANNEL_WIDTH_20).centers) {
    entry e{frequency, 20, frequency < 2500000 ? 0x03U : 0x37U, 0, 0};
    if (frequency == channel.primary_freq)
      e.state = RAVIX_CHANNEL_STATE_ACTIVE | RAVIX_CHANNEL_STATE_PRI_CHAN;
    else if (frequency >= lower_edge && frequency <= channel.center_freq + reach)
      e.state = (channel.puncture_map >> (frequency - lower_edge) / 20000 & 1) != 0 ? RAVIX_CHANNEL_STATE_PUNCTURED
                                                                                    : RAVIX_CHANNEL_STATE_ACTIVE;
    if (ravix_frequency_to_radio_band(frequency) == ravix_frequency_to_radio_band(channel.primary_freq) &&
        frequency != 2484000)
      list.push_back(e);
  }
  return list;
}

TEST(ChannelList, OfEveryChannelIsAccepted) {
  const harness::captured_log log;
  std::set<std::tuple<uint32_t, uint32_t, uint16_t, uint16_t>> all;
  for (const auto &[width, of] : judge::widths) {
    judge::numbers maps = of.patterns;
    maps.push_back(0);
    for (const uint32_t primary : judge::widths.at(RAVIX_CHANNEL_WIDTH_20).centers) {
      for (const uint32_t map : maps) {
        for (const bool ext_high : {false, true})
          all.insert(judge::fields(judge::channel(primary, width, ext_high, static_cast<uint16_t>(map))));
      }
    }
  }
  for (const auto &[primary, center, width, map] : all) {
    if (primary != 0 && primary != 2484000) {
      ASSERT_EQ(violated(list_of({primary, center, width, map})), "") << primary << ' ' << center << ' ' << map;
    }
  }
}

TEST(ErrorTable, HoldsTheLastListsNamesUnlessThatIsEmpty) {
  const harness::captured_log log;
  harness::heap heap;
  ravix_string_table_t errors = {};
  channels good = spelled("5180+20 AP"), bad = spelled("5190 | 41 | HT40 |");
  const ravix_channel_list_t empty = {}, no_array = {2, nullptr}, accepted = {2, good.data()},
                             refused = {1, bad.data()};
  const auto expect = [&](const ravix_channel_list_t *list, bool accept, const lines &expected) {
    EXPECT_EQ(ravix_validate_channel_list(list, nullptr), accept);
    EXPECT_EQ(ravix_validate_channel_list(list, &errors), accept);
    EXPECT_EQ(lines(errors.data, errors.data + errors.count), expected);
  };
  expect(&refused, false, {"INVALID_FREQ", "INVALID_POWER", "NO_HT20"});
  expect(&empty, true, {"INVALID_FREQ", "INVALID_POWER", "NO_HT20"});
  expect(nullptr, false, {"INVALID_PTR"});
  expect(&accepted, true, {});
  expect(&no_array, false, {"INVALID_PTR"});
  for (std::size_t k = 1; k <= 6; ++k) { // each name asks for two blocks, and without one only that name is lost
    ravix_types_string_table_clear(&errors);
    heap.fail_only(k);
    EXPECT_FALSE(ravix_validate_channel_list(&refused, &errors));
    EXPECT_EQ(errors.count, 2U);
  }
  ravix_types_string_table_clear(&errors);
  EXPECT_EQ(heap.live(), 0U);
}

} // namespace
