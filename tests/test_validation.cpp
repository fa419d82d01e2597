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

constexpr uint32_t dfs_marks = RAVIX_CHANNEL_CAP_DFS | RAVIX_CHANNEL_CAP_DFS_WEATHER;

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

struct verdict {
  lines violated, written;
};

verdict judge(const ravix_channel_list_t *list) {
  harness::captured_log log;
  verdict result;
  ravix_string_table_t errors = {};
  const bool accepted = ravix_validate_channel_list(list, &errors);
  result.violated.assign(errors.data, errors.data + errors.count);
  ravix_types_string_table_clear(&errors);
  for (const auto &line : log.take()) {
    EXPECT_EQ(line.name + ' ' + line.file + ' ' + line.function,
              "ravix src/ravix_types_validation ravix_validate_channel_list");
    result.written.push_back(line.text);
  }
  EXPECT_EQ(accepted, result.violated.empty());
  EXPECT_EQ(accepted, result.written.empty());
  return result;
}
verdict judge(channels list) {
  const ravix_channel_list_t view = {static_cast<uint32_t>(list.size()), list.data()};
  return judge(&view);
}

const std::string rules_page = RAVIX_DOCS "/channel-rules.md";

TEST(ChannelRulesPage, SaysWhatTheValidatorSays) {
  lines headings;
  std::string list, block, body;
  int runs = 0;
  for (const std::string &line : lines_of(rules_page)) {
    if (line.starts_with("## ")) {
      headings.push_back(line.substr(3));
    } else if (line == "```list" || line == "```log") {
      block = line.substr(3);
      body.clear();
    } else if (line == "```" && block == "list") {
      list = body;
    } else if (line == "```" && block == "log") {
      const verdict result = list == "(no list)\n" ? judge(nullptr) : judge(parse(list, '\n'));
      EXPECT_EQ(result.violated, headings.empty() ? lines{} : lines{headings.back()}) << list;
      EXPECT_EQ(result.written, split(body, '\n')) << list;
      ++runs;
    } else {
      body += line + '\n';
    }
  }
  EXPECT_EQ(headings, (lines{"INVALID_PTR", "INVALID_FREQ", "RADIO_MISMATCH", "DOUBLE_FREQUENCY", "INVALID_ORDER",
                             "INVALID_POWER", "INVALID_DFS", "NO_HT20", "STATE_FLAG_MISMATCH", "NO_PRIMARY_FLAG",
                             "ACTIVE_ON_NOT_CLEARED", "PRIMARY_WITHOUT_ACTIVE", "ACTIVE_GAP", "MANY_PRIMARY_FLAGS",
                             "INVALID_ACTIVE", "INVALID_CHANNEL_INFO"}));
  EXPECT_GE(runs, 24);
}

// Every state on both kinds of channel, judged by the table on the page.
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
      lines written = judge(channels{{5260000, 20, RAVIX_CHANNEL_CAP_HT20 | dfs, state, 0}}).written;
      std::erase_if(written, [](const std::string &line) { return line.find("]") == std::string::npos; });
      ASSERT_EQ(written, expected) << state;
    }
  }
}

TEST(ChannelList, IsJudgedAsRecorded) {
  harness::expect_answers("channel_lists", [](const std::string &text) {
    channels list = spelled(text);
    const ravix_channel_list_t view = {static_cast<uint32_t>(list.size()), list.data()};
    ravix_string_table_t errors = {};
    std::string answer = ravix_validate_channel_list(&view, &errors) ? "accepted" : "refused:";
    for (uint32_t i = 0; i < errors.count; ++i)
      answer += std::string(" ") + errors.data[i];
    ravix_types_string_table_clear(&errors);
    return answer;
  });
}

// What a driver reports: band, kHz, channel, dBm or nothing, flags. The one of the file puts channel 2 of 6 GHz last.
TEST(ChannelList, OfARadioIsAcceptedUnlessItsDriverMixesNumberings) {
  std::map<std::string, channels> bands;
  for (const std::string &line : lines_of(RAVIX_TEST_DATA "/three_bands.channels.tsv")) {
    const lines columns = split(line, '\t');
    if (line[0] == '#' || columns.at(4) == "disabled")
      continue;
    const bool radar = columns[4].find("radar detection") != std::string::npos;
    bands[columns[0]].push_back({static_cast<uint32_t>(std::stoul(columns[1])),
                                 static_cast<int16_t>(columns[3].empty() ? RAVIX_POWER_INVALID : std::stoi(columns[3])),
                                 RAVIX_CHANNEL_CAP_HT20 | (radar ? RAVIX_CHANNEL_CAP_DFS : 0),
                                 radar ? RAVIX_CHANNEL_STATE_PRECAC_TODO : 0, 0});
  }
  EXPECT_EQ(judge(bands["2.4"]).written, lines{});
  EXPECT_EQ(judge(bands["5"]).written, lines{});
  EXPECT_EQ(judge(bands["6"]).violated, (lines{"INVALID_FREQ", "RADIO_MISMATCH", "INVALID_ORDER"}));
  bands["6"].pop_back();
  EXPECT_EQ(judge(bands["6"]).written, lines{});
  EXPECT_EQ(bands["6"].size(), 59U);
}

TEST(ChannelList, DuplicatesAndDisorderAreReportedEntryByEntry) {
  std::mt19937 random(7); // NOLINT(cert-msc32-c,cert-msc51-cpp): a failing round must come again
  for (int round = 0; round < 3000; ++round) {
    channels list(1 + random() % 9);
    for (entry &e : list)
      e = {5955000 + 20000 * static_cast<uint32_t>(random() % 12), 20, 1, 0, 0};
    if (random() % 2 == 0)
      std::ranges::sort(list, {}, &entry::frequency);
    lines expected;
    for (std::size_t i = 0; i < list.size(); ++i) {
      const std::string f = ravix_str_wifi_freq(list[i].frequency);
      for (std::size_t k = i + 1; k < list.size(); ++k) {
        if (list[k].frequency == list[i].frequency)
          expected.push_back("There are two entries with frequency " + f + " in the list!");
      }
      if (i + 1 < list.size() && list[i].frequency > list[i + 1].frequency) {
        expected.push_back("In frequency " + f + ": ascending order is violated, the following frequency " +
                           ravix_str_wifi_freq(list[i + 1].frequency) + " is smaller!");
      }
    }
    ASSERT_EQ(judge(list).written, expected) << round;
  }
}

TEST(ErrorTable, HoldsTheLastListsNamesUnlessThatIsEmpty) {
  harness::captured_log log;
  harness::heap heap;
  ravix_string_table_t errors = {};
  const auto validate = [&](const ravix_channel_list_t *list) {
    const bool accepted = ravix_validate_channel_list(list, nullptr);
    EXPECT_EQ(ravix_validate_channel_list(list, &errors), accepted);
    return accepted;
  };
  const auto only_name = [&] { return std::string(errors.count == 1 ? errors.data[0] : "?"); };
  const char *const stale = "STALE";
  ASSERT_EQ(ravix_types_string_table_add_entry(&errors, &stale), 0);
  channels good = spelled("5180+20 AP");
  const ravix_channel_list_t list = {2, good.data()}, empty = {}, no_array = {2, nullptr};
  EXPECT_TRUE(validate(&empty));
  EXPECT_EQ(only_name(), stale);
  for (const ravix_channel_list_t *none : {static_cast<const ravix_channel_list_t *>(nullptr), &no_array}) {
    EXPECT_FALSE(validate(none));
    EXPECT_EQ(only_name(), "INVALID_PTR");
    EXPECT_EQ(log.take_texts(), lines(2, "ravix_validate_channel_list: Invalid pointer 'obj'!"));
  }
  EXPECT_TRUE(validate(&list));
  EXPECT_EQ(errors.count, 0U);
  EXPECT_TRUE(log.take().empty());
  // With little memory only names are lost, of three here; each asks for two blocks.
  channels bad = spelled("5190 | 41 | HT40 |");
  const ravix_channel_list_t bad_list = {1, bad.data()};
  for (const bool all : {false, true}) {
    for (std::size_t k = 1; k <= 6; ++k) {
      ravix_types_string_table_clear(&errors);
      all ? heap.fail_from(k) : heap.fail_only(k);
      EXPECT_FALSE(ravix_validate_channel_list(&bad_list, &errors));
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
  ravix_channel_info_t channel;
  std::size_t primary;     // index
  std::size_t first, last; // of the block
};

scene random_scene(std::mt19937 &random) {
  scene s = {};
  const int band = 1 << random() % 3;
  for (uint32_t f = 2400000; f < 7200000; f += 1000) {
    if (ravix_frequency_is_primary(f) && ravix_frequency_to_radio_band(f) == band && f != 2484000)
      s.list.push_back({f, 20, band == 1 ? 0x03U : band == 2 ? 0x17U : 0x37U, 0, 0});
  }
  for (uint16_t map = 0; s.channel.primary_freq == 0; map = 0) {
    s.primary = random() % s.list.size();
    while (random() % 2 == 0 && (map == 0 || !ravix_puncture_map_is_valid(map, nullptr)))
      map = static_cast<uint16_t>(random() & random());
    const auto width = static_cast<uint16_t>(1 << random() % 6);
    ravix_create_channel_info(s.list[s.primary].frequency, width, random() % 2 == 0, map, &s.channel);
  }
  const uint32_t reach = ravix_channel_width_to_frequency(s.channel.channel_width) / 2;
  const uint32_t lower_edge = s.channel.center_freq - reach;
  s.first = s.list.size();
  for (std::size_t i = 0; i < s.list.size(); ++i) {
    entry &e = s.list[i];
    if (band == 2 && random() % 2 == 0) {
      e.capabilities |= random() % 2 == 0 ? RAVIX_CHANNEL_CAP_DFS : RAVIX_CHANNEL_CAP_DFS_WEATHER;
      e.state |= RAVIX_CHANNEL_STATE_DFS_CLEAR;
    }
    if (e.frequency < lower_edge || e.frequency > s.channel.center_freq + reach)
      continue;
    s.first = std::min(s.first, i);
    s.last = i;
    const bool punctured = s.channel.puncture_map >> ((e.frequency - lower_edge) / 20000) & 1;
    e.state |= punctured ? RAVIX_CHANNEL_STATE_PUNCTURED : RAVIX_CHANNEL_STATE_ACTIVE;
  }
  s.list[s.primary].state |= RAVIX_CHANNEL_STATE_PRI_CHAN;
  return s;
}

// One way to break each rule, at a random entry `i`; false where the scene does not allow it.
struct breaker {
  const char *name;
  bool (*apply)(scene &s, std::size_t i);
};
entry &primary_of(scene &s) {
  return s.list[s.primary];
}
const breaker breakers[] = {
    {"INVALID_FREQ", [](scene &s, std::size_t i) { return (s.list[i].frequency += 1000) != 0; }},
    {"RADIO_MISMATCH",
     [](scene &s, std::size_t) {
       s.list.push_back(s.list.back());
       return (s.list.back().frequency = s.list[0].frequency == 5180000 ? 5955000 : 5180000) != 0;
     }},
    {"DOUBLE_FREQUENCY", [](scene &s, std::size_t i) { return s.list.insert(s.list.begin(), entry(s.list[i])), true; }},
    {"INVALID_ORDER", [](scene &s, std::size_t i) { return i != 0 && (std::swap(s.list[i], s.list[i - 1]), true); }},
    {"INVALID_POWER", [](scene &s, std::size_t i) { return (s.list[i].max_power = 41) != 0; }},
    {"INVALID_DFS", [](scene &s, std::size_t i) { return (s.list[i].capabilities |= dfs_marks) != 0; }},
    {"NO_HT20", [](scene &s, std::size_t i) { return (s.list[i].capabilities &= ~RAVIX_CHANNEL_CAP_HT20) != 0; }},
    {"STATE_FLAG_MISMATCH",
     [](scene &s, std::size_t) { return (primary_of(s).state |= RAVIX_CHANNEL_STATE_CAC_RUNNING) != 0; }},
    {"NO_PRIMARY_FLAG",
     [](scene &s, std::size_t) { return (primary_of(s).state &= ~RAVIX_CHANNEL_STATE_PRI_CHAN) != 0; }},
    {"ACTIVE_ON_NOT_CLEARED",
     [](scene &s, std::size_t) {
       primary_of(s).state &= ~RAVIX_CHANNEL_STATE_DFS_CLEAR;
       return (primary_of(s).capabilities & dfs_marks) != 0;
     }},
    {"PRIMARY_WITHOUT_ACTIVE",
     [](scene &s, std::size_t) { return (primary_of(s).state &= ~RAVIX_CHANNEL_STATE_ACTIVE) != 0; }},
    {"ACTIVE_GAP",
     [](scene &s, std::size_t i) {
       const bool inner = s.last > s.first + 1;
       s.list[inner ? s.first + 1 + i % (s.last - s.first - 1) : 0].state = 0;
       return inner;
     }},
    {"MANY_PRIMARY_FLAGS",
     [](scene &s, std::size_t i) { return i != s.primary && (s.list[i].state |= RAVIX_CHANNEL_STATE_PRI_CHAN) != 0; }},
    {"INVALID_ACTIVE", // the narrower widths alone
     [](scene &s, std::size_t) { return primary_of(s).capabilities &= s.channel.channel_width - 1U, true; }},
    {"INVALID_CHANNEL_INFO",
     [](scene &s, std::size_t) { // punctured: all that can be
       for (std::size_t i = s.first; i <= s.last; ++i)
         s.list[i].state = i != s.primary ? uint32_t{RAVIX_CHANNEL_STATE_PUNCTURED} : s.list[i].state;
       return s.last > s.first;
     }},
};

TEST(Property, ValidChannelsMakeAcceptedListsAndOneFaultIsNamed) {
  std::mt19937 random(33); // NOLINT(cert-msc32-c,cert-msc51-cpp): a failing round must come again
  std::map<std::string, int> broken;
  for (int round = 0; round < 1500; ++round) {
    const scene good = random_scene(random);
    SCOPED_TRACE(std::to_string(round) + ": " + ravix_str_channel_info(&good.channel));
    ASSERT_EQ(judge(good.list).written, lines{});
    for (const breaker &fault : breakers) {
      scene bad = good;
      if (fault.apply(bad, random() % good.list.size())) {
        ASSERT_EQ(std::ranges::count(judge(bad.list).violated, fault.name), 1) << fault.name;
        ++broken[fault.name];
      }
    }
  }
  EXPECT_EQ(broken.size(), 15U); // a list that is there cannot break the first rule
  for (const auto &[name, count] : broken)
    EXPECT_GT(count, 200) << name;
}

} // namespace
