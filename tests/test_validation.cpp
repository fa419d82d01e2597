// The channel list validator: the lists of docs/channel-rules.md, those of tests/data, and random ones.
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
#include <random>
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

lines lines_of(const std::string &path) {
  std::ostringstream text;
  text << std::ifstream(path).rdbuf();
  return split(text.str(), '\n');
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
  const std::string all = names(errors);
  ravix_types_string_table_clear(&errors);
  return all;
}
std::string violated(channels list) {
  const ravix_channel_list_t view = {static_cast<uint32_t>(list.size()), list.data()};
  return violated(&view);
}

// The lines logged since the last call that hold a text.
lines written(harness::captured_log &log, const char *text = "") {
  lines all;
  for (const harness::log_line &line : log.take()) {
    if (line.text.find(text) != std::string::npos)
      all.push_back(line.text);
  }
  return all;
}

const std::string rules_page = RAVIX_DOCS "/channel-rules.md";

TEST(ChannelRulesPage, SaysWhatTheValidatorSays) {
  harness::captured_log log;
  std::map<std::string, int> runs;
  std::string rule, list, block, body;
  for (const std::string &line : lines_of(rules_page)) {
    if (line.starts_with("## ")) {
      rule = line.substr(3);
    } else if (line == "```list" || line == "```log") {
      block = line.substr(3);
      body.clear();
    } else if (line == "```" && block == "list") {
      list = body;
    } else if (line == "```" && block == "log") {
      EXPECT_EQ(list == "(no list)\n" ? violated(nullptr) : violated(parse(list, '\n')), rule) << list;
      EXPECT_EQ(written(log), split(body, '\n')) << list;
      ++runs[rule];
    } else {
      body += line + '\n';
    }
  }
  EXPECT_EQ(runs.size(), 1 + 16U); // the list that breaks nothing, and the rules
}

// Every state on each kind of channel, judged by the table on the page.
TEST(StateFlags, ExcludeEachOtherAsThePageSays) {
  std::map<uint32_t, uint32_t> excluded;
  uint32_t dfs_only = RAVIX_CHANNEL_STATE_DFS_RESERVED;
  for (const std::string &line : lines_of(rules_page)) {
    lines columns = split(line, '|');
    if (!line.starts_with("| ") || columns.size() != 3 || columns[1] == " Flag ")
      continue;
    std::ranges::replace(columns[2], ',', ' ');
    const bool star = std::erase(columns[1], '*') != 0;
    for (const std::string &name : split(columns[1], ',')) {
      const uint32_t flag = flags(name, ravix_str_channel_state);
      excluded[flag] = flags(columns[2], ravix_str_channel_state);
      dfs_only |= star ? flag : 0;
    }
  }
  ASSERT_EQ(excluded.size(), 9U);
  harness::captured_log log;
  for (const uint32_t dfs : {0U, RAVIX_CHANNEL_CAP_DFS, RAVIX_CHANNEL_CAP_DFS_WEATHER}) {
    for (uint32_t state = 0; state <= 0x7FF; ++state) {
      lines expected;
      for (uint32_t flag = 1; flag <= 0x400; flag <<= 1) {
        const std::string start = std::string("In frequency 5260 MHz ( 52): ") + ravix_str_channel_state(flag);
        const uint32_t others = state & flag ? state & excluded[flag] : 0;
        if ((state & dfs_only & flag) != 0 && dfs == 0)
          expected.push_back(start + " is set on non DFS channel!");
        if (others != 0)
          expected.push_back(start + " is set alongside of " + ravix_str_channel_state(others) + "!");
      }
      violated(channels{{5260000, 20, RAVIX_CHANNEL_CAP_HT20 | dfs, state, 0}});
      ASSERT_EQ(written(log, "]"), expected) << state;
    }
  }
}

TEST(ChannelList, IsJudgedAsRecorded) {
  harness::expect_answers("channel_lists", [](const std::string &text) {
    const std::string names = violated(spelled(text));
    return names.empty() ? "accepted" : "refused: " + names;
  });
}

TEST(ChannelList, EachDuplicateAndEachDisorderIsReported) {
  harness::captured_log log;
  std::mt19937 random(7); // NOLINT(cert-msc32-c,cert-msc51-cpp): a failing round must come again
  for (int round = 0; round < 3000; ++round) {
    channels list(1 + random() % 9);
    for (entry &e : list)
      e = {5955000 + 20000 * static_cast<uint32_t>(random() % 12), 20, 1, 0, 0};
    if (random() % 2 == 0)
      std::ranges::sort(list, {}, &entry::frequency);
    std::size_t expected = 0;
    for (std::size_t i = 0; i < list.size(); ++i) {
      for (std::size_t k = i + 1; k < list.size(); ++k)
        expected += list[k].frequency == list[i].frequency || (k == i + 1 && list[k].frequency < list[i].frequency);
    }
    violated(list);
    ASSERT_EQ(log.take().size(), expected) << round;
  }
}

TEST(ErrorTable, HoldsTheLastListsNamesUnlessThatIsEmpty) {
  const harness::captured_log log;
  harness::heap heap;
  ravix_string_table_t errors = {};
  const char *const stale = "STALE";
  ASSERT_EQ(ravix_types_string_table_add_entry(&errors, &stale), 0);
  channels good = spelled("5180+20 AP"), bad = spelled("5190 | 41 | HT40 |");
  const ravix_channel_list_t empty = {}, no_array = {2, nullptr}, accepted = {2, good.data()},
                             refused = {1, bad.data()};
  const std::pair<const ravix_channel_list_t *, const char *> cases[] = {
      {&empty, "STALE"},          {nullptr, "INVALID_PTR"}, {&empty, "INVALID_PTR"},
      {&no_array, "INVALID_PTR"}, {&accepted, ""},          {&refused, "INVALID_FREQ INVALID_POWER NO_HT20"}};
  for (const auto &[list, expected] : cases) {
    const bool accept = list == &empty || list == &accepted;
    EXPECT_EQ(ravix_validate_channel_list(list, nullptr), accept);
    EXPECT_EQ(ravix_validate_channel_list(list, &errors), accept);
    EXPECT_EQ(names(errors), expected);
  }
  // With little memory only names are lost, of three here; each asks for two blocks.
  for (const bool all : {false, true}) {
    for (std::size_t k = 1; k <= 6; ++k) {
      ravix_types_string_table_clear(&errors);
      all ? heap.fail_from(k) : heap.fail_only(k);
      EXPECT_FALSE(ravix_validate_channel_list(&refused, &errors));
      heap.fail_only(0);
      EXPECT_EQ(errors.count, all ? (k - 1) / 2 : 2);
    }
  }
  ravix_types_string_table_clear(&errors);
  EXPECT_EQ(heap.live(), 0U);
}

// ---- Lists made of channel descriptions

struct scene {
  channels list;
  std::size_t primary;     // index
  std::size_t first, last; // of the block
};

scene random_scene(std::mt19937 &random) {
  const char *const lists[] = {"2412+5 .............", "5180+20 ........", "5500+20 ............", "5745+20 ........",
                               "5955+20 ..........................................................."};
  scene s = {spelled(lists[random() % std::size(lists)]), 0, SIZE_MAX, 0};
  const bool has_radar = ravix_frequency_to_radio_band(s.list[0].frequency) == RAVIX_RADIO_BAND_5GHZ;
  ravix_channel_info_t channel = {};
  for (uint16_t map = 0; channel.primary_freq == 0; map = 0) {
    s.primary = random() % s.list.size();
    while (random() % 2 == 0 && (map == 0 || !ravix_puncture_map_is_valid(map, nullptr)))
      map = static_cast<uint16_t>(random() & random());
    const auto width = static_cast<uint16_t>(1 << random() % 6);
    ravix_create_channel_info(s.list[s.primary].frequency, width, random() % 2 == 0, map, &channel);
  }
  const uint32_t reach = ravix_channel_width_to_frequency(channel.channel_width) / 2;
  const uint32_t lower_edge = channel.center_freq - reach;
  for (std::size_t i = 0; i < s.list.size(); ++i) {
    entry &e = s.list[i];
    if (has_radar && random() % 2 == 0) {
      e.capabilities |= random() % 2 == 0 ? RAVIX_CHANNEL_CAP_DFS : RAVIX_CHANNEL_CAP_DFS_WEATHER;
      e.state |= RAVIX_CHANNEL_STATE_DFS_CLEAR;
    }
    if (e.frequency < lower_edge || e.frequency > channel.center_freq + reach)
      continue;
    s.first = std::min(s.first, i);
    s.last = i;
    const bool punctured = channel.puncture_map >> ((e.frequency - lower_edge) / 20000) & 1;
    e.state |= punctured ? RAVIX_CHANNEL_STATE_PUNCTURED : RAVIX_CHANNEL_STATE_ACTIVE;
  }
  s.list[s.primary].state |= RAVIX_CHANNEL_STATE_PRI_CHAN;
  return s;
}

// A rule, and what breaks it: bits that are cleared or set in an entry of that kind.
struct fault {
  const char *rule;
  enum { any, primary, other, inside_block } where;
  uint32_t entry::*member;
  uint32_t cleared, set;
};
constexpr fault faults[] = {
    {"INVALID_FREQ", fault::any, &entry::frequency, 0, 1},
    {"INVALID_DFS", fault::any, &entry::capabilities, 0, UINT32_MAX},
    {"NO_HT20", fault::any, &entry::capabilities, RAVIX_CHANNEL_CAP_HT20, 0},
    {"STATE_FLAG_MISMATCH", fault::primary, &entry::state, 0, RAVIX_CHANNEL_STATE_CAC_RUNNING},
    {"NO_PRIMARY_FLAG", fault::primary, &entry::state, RAVIX_CHANNEL_STATE_PRI_CHAN, 0},
    {"ACTIVE_ON_NOT_CLEARED", fault::primary, &entry::state, RAVIX_CHANNEL_STATE_DFS_CLEAR, 0},
    {"PRIMARY_WITHOUT_ACTIVE", fault::primary, &entry::state, RAVIX_CHANNEL_STATE_ACTIVE, 0},
    {"ACTIVE_GAP", fault::inside_block, &entry::state, UINT32_MAX, 0},
    {"MANY_PRIMARY_FLAGS", fault::other, &entry::state, 0, RAVIX_CHANNEL_STATE_PRI_CHAN},
    {"INVALID_ACTIVE", fault::primary, &entry::capabilities, UINT32_MAX, 0},
};

// False where there is nothing to break.
bool apply(const fault &f, scene &s, std::size_t i) {
  i = f.where == fault::primary ? s.primary : i;
  if ((f.where == fault::other && i == s.primary) || (f.where == fault::inside_block && (i <= s.first || i >= s.last)))
    return false;
  uint32_t &value = s.list[i].*f.member;
  const uint32_t before = value;
  value = (before & ~f.cleared) | f.set;
  return value != before;
}

TEST(Property, ValidChannelsMakeAcceptedListsAndOneFaultIsNamed) {
  harness::captured_log log;
  std::mt19937 random(33); // NOLINT(cert-msc32-c,cert-msc51-cpp): a failing round must come again
  std::map<std::string, int> broken;
  for (int round = 0; round < 1500; ++round) {
    const scene good = random_scene(random);
    violated(good.list);
    ASSERT_EQ(written(log), lines{}) << round;
    for (const fault &f : faults) {
      scene bad = good;
      if (apply(f, bad, random() % good.list.size())) {
        ASSERT_EQ(std::ranges::count(split(violated(bad.list), ' '), f.rule), 1) << round << f.rule;
        ++broken[f.rule];
      }
    }
    log.take();
  }
  for (const fault &f : faults)
    EXPECT_GT(broken[f.rule], 100) << f.rule;
}

} // namespace
