// The channel list validator: the lists of docs/channel-rules.md, those of tests/data, and one of every channel.
#include "golden.hpp"
#include "harness.hpp"

#include "ravix_types_str_convert.h"
#include "ravix_types_util.h"
#include "ravix_types_validation.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <fstream>
#include <map>
#include <numeric>
#include <regex>
#include <set>
#include <sstream>
#include <string>
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

const std::string rules_page = [] {
  std::ostringstream text;
  text << std::ifstream(RAVIX_DOCS "/channel-rules.md").rdbuf();
  return text.str();
}();

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
  const std::map<char, uint32_t> states = {{'.', 0}, {'A', 0x1}, {'P', 0x3}, {'p', 0x2}, {'X', 0x400}};
  channels result;
  uint32_t frequency = 1000 * static_cast<uint32_t>(std::stoul(text));
  const uint32_t step = 1000 * static_cast<uint32_t>(std::stoul(text.substr(text.find('+'))));
  for (const char letter : text.substr(text.find(' ') + 1)) {
    result.push_back({frequency, 20, frequency < 2500000 ? 0x03U : 0x37U, states.at(letter), 0});
    frequency += step;
  }
  return result;
}

std::string names(const ravix_string_table_t &errors) {
  std::string all;
  for (uint32_t i = 0; i < errors.count; ++i)
    all += (all.empty() ? "" : " ") + std::string(errors.data[i]);
  return all;
}

// The names of the violated rules.
std::string violated(const ravix_channel_list_t *list) {
  ravix_string_table_t errors = {};
  const bool accepted = ravix_validate_channel_list(list, &errors);
  EXPECT_EQ(accepted, errors.count == 0);
  std::string all = names(errors);
  ravix_types_string_table_clear(&errors);
  return all;
}
std::string violated(channels list) {
  const ravix_channel_list_t view = {static_cast<uint32_t>(list.size()), list.data()};
  return violated(&view);
}

TEST(ChannelRulesPage, SaysWhatTheValidatorSays) {
  harness::captured_log log;
  std::set<std::string> rules;
  std::string rule;
  const std::regex part("## (.*)|```list\n([^`]*)```\n+```log\n([^`]*)```");
  for (std::sregex_iterator found(rules_page.begin(), rules_page.end(), part), end; found != end; ++found) {
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

// What is said of channels that have every flag, with and without radar detection, against the table on the page.
TEST(StateFlags, ExcludeEachOtherAsThePageSays) {
  harness::captured_log log;
  violated(channels{{5260000, 20, RAVIX_CHANNEL_CAP_HT20 | RAVIX_CHANNEL_CAP_DFS, 0x7FF, 0}});
  const std::string told_of_radar = harness::logged(log);
  violated(channels{{5745000, 20, RAVIX_CHANNEL_CAP_HT20, 0x7FF, 0}});
  const std::string told = harness::logged(log);
  std::size_t rows = 0;
  for (const std::string &line : split(rules_page, '\n')) {
    lines columns = split(line, '|');
    if (!line.starts_with("| ") || columns.size() != 3 || columns[1] == " Flag ")
      continue;
    std::ranges::replace(columns[2], ',', ' ');
    const bool needs_radar = std::erase(columns[1], '*') != 0;
    std::string excludes = " is set alongside of ";
    excludes.append(ravix_str_channel_state(flags(columns[2], ravix_str_channel_state))).append("!");
    for (const std::string &name : split(columns[1], ',')) {
      const std::string flag = ravix_str_channel_state(flags(name, ravix_str_channel_state));
      EXPECT_NE(told_of_radar.find(flag + excludes), std::string::npos) << flag;
      EXPECT_EQ(told.find(flag + " is set on non DFS channel!") != std::string::npos, needs_radar) << flag;
      ++rows;
    }
  }
  EXPECT_EQ(rows, 9U);
  EXPECT_NE(told.find("[ ] is set on non DFS channel!"), std::string::npos) << "the reserved flag, which has no name";
}

TEST(ChannelList, IsJudgedAsWritten) {
  harness::expect_answers("channel_lists", [](const std::string &text) {
    const std::string names = violated(spelled(text));
    return names.empty() ? "accepted" : "refused: " + names;
  });
}

TEST(ErrorTable, HoldsTheLastListsNamesUnlessThatIsEmpty) {
  const harness::captured_log log;
  harness::heap heap;
  ravix_string_table_t errors = {};
  channels good = spelled("5180+20 AP"), bad = spelled("5190 | 41 | HT40 |");
  const ravix_channel_list_t empty = {}, no_array = {2, nullptr}, accepted = {2, good.data()},
                             refused = {1, bad.data()};
  const auto expect = [&](const ravix_channel_list_t *list, bool accept, const char *expected) {
    EXPECT_EQ(ravix_validate_channel_list(list, nullptr), accept);
    EXPECT_EQ(ravix_validate_channel_list(list, &errors), accept);
    EXPECT_EQ(names(errors), expected);
  };
  expect(&refused, false, "INVALID_FREQ INVALID_POWER NO_HT20");
  expect(&empty, true, "INVALID_FREQ INVALID_POWER NO_HT20");
  expect(nullptr, false, "INVALID_PTR");
  expect(&empty, true, "INVALID_PTR");
  expect(&accepted, true, "");
  expect(&no_array, false, "INVALID_PTR");
  for (std::size_t k = 1; k <= 6; ++k) { // each name asks for two blocks, and without one only that name is lost
    ravix_types_string_table_clear(&errors);
    heap.fail_only(k);
    EXPECT_FALSE(ravix_validate_channel_list(&refused, &errors));
    EXPECT_EQ(errors.count, 2U);
  }
  heap.fail_only(0);
  ravix_types_string_table_clear(&errors);
  EXPECT_EQ(heap.live(), 0U);
}

// The list of a band in which a channel is in use; where there is radar, the channels are clear of it.
channels list_of(const ravix_channel_info_t &channel, channels list) {
  const uint32_t reach = ravix_channel_width_to_frequency(channel.channel_width) / 2;
  const uint32_t lower_edge = channel.center_freq - reach;
  for (entry &e : list) {
    if (ravix_frequency_to_radio_band(e.frequency) == RAVIX_RADIO_BAND_5GHZ) {
      e.capabilities |= e.frequency < 5600000 ? RAVIX_CHANNEL_CAP_DFS : RAVIX_CHANNEL_CAP_DFS_WEATHER;
      e.state |= RAVIX_CHANNEL_STATE_DFS_CLEAR;
    }
    if (e.frequency >= lower_edge && e.frequency <= channel.center_freq + reach) {
      const bool punctured = channel.puncture_map >> ((e.frequency - lower_edge) / 20000) & 1;
      e.state |= punctured ? RAVIX_CHANNEL_STATE_PUNCTURED : RAVIX_CHANNEL_STATE_ACTIVE;
      e.state |= e.frequency == channel.primary_freq ? RAVIX_CHANNEL_STATE_PRI_CHAN : 0;
    }
  }
  return list;
}

TEST(ChannelList, OfEveryChannelIsAccepted) {
  harness::captured_log log;
  std::size_t made = 0;
  std::vector<uint16_t> maps(0x10000);
  std::iota(maps.begin(), maps.end(), uint16_t{0});
  std::erase_if(maps, [](uint16_t map) { return !ravix_puncture_map_is_valid(map, nullptr); });
  for (const char *band : {"2412+5 .............", "5180+20 ........", "5500+20 ............", "5745+20 ........",
                           "5955+20 ..........................................................."}) {
    const channels unused = spelled(band);
    for (const entry &primary : unused) {
      for (const uint16_t map : maps) {
        for (uint16_t choice = 0; choice <= 65; ++choice) { // a width, and a side
          ravix_channel_info_t channel = {};
          if (!ravix_create_channel_info(primary.frequency, choice / 2, choice % 2 != 0, map, &channel))
            continue;
          ++made;
          ASSERT_EQ(violated(list_of(channel, unused)) + harness::logged(log), "") << ravix_str_channel_info(&channel);
        }
      }
    }
  }
  EXPECT_GT(made, 2000U);
}

} // namespace
