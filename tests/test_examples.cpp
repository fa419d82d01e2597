// The example programs and their readers: what they make of good text, and what they say about bad text. The cases are
// data: command lines in tests/data/examples.golden, texts of iw in iw_scan_cases.golden and iw_phy_cases.golden.
#include "golden.hpp"
#include "iw_phy.hpp"
#include "iw_scan.hpp"

#include "ravix_types_enums.h"
#include "ravix_types_str_convert.h"
#include "ravix_types_util.h"

#include <gtest/gtest.h>

#include <array>
#include <cstdio>
#include <fstream>
#include <regex>
#include <sstream>
#include <string>
#include <sys/wait.h>
#include <unistd.h>

namespace {

std::string file_content(const std::string &name) {
  std::ifstream file(name, std::ios::binary);
  std::ostringstream out;
  out << file.rdbuf();
  return out.str();
}

std::string replaced(std::string text, const std::string &from, const std::string &to) {
  for (std::size_t at = 0; (at = text.find(from, at)) != std::string::npos; at += to.size())
    text.replace(at, from.size(), to);
  return text;
}

struct outcome {
  int status = -1;
  std::string output; // standard error, then standard output: how they interleave is up to the C library's buffers
};

// Runs one of the programs, by a shell for its redirections.
outcome run(const std::string &command_line) {
  outcome result;
  const std::string kept = testing::TempDir() + "ravix-output-" + std::to_string(getpid());
  const std::string given = replaced("{ " RAVIX_EXAMPLE_RUN + command_line + " >" + kept + "; status=$?; cat " + kept +
                                         "; rm " + kept + "; exit $status; } 2>&1",
                                     "$DATA", RAVIX_EXAMPLE_DATA);
  std::FILE *pipe = popen(replaced(given, "$CASES", RAVIX_TEST_DATA).c_str(), "r"); // NOLINT(cert-env33-c): our own
  if (pipe == nullptr)
    return result;
  std::array<char, 4096> block{};
  while (const auto got = std::fread(block.data(), 1, block.size(), pipe))
    result.output.append(block.data(), got);
  const int status = pclose(pipe);
  result.status = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
  // What differs from run to run, or whenever a source is edited.
  result.output = std::regex_replace(result.output, std::regex("Scan time: .*"), "Scan time: now");
  result.output = std::regex_replace(result.output, std::regex(R"((src/\w+):\d+)"), "$1");
  result.output = replaced(result.output, RAVIX_EXAMPLE_DATA, "$DATA");
  return result;
}

TEST(Programs, DoAsRecorded) {
  harness::expect_answers("examples", [](const std::string &call) {
    const std::size_t golden = call.find(" > ");
    const outcome done = run(call.substr(0, golden));
    if (golden != std::string::npos) {
      harness::expect_golden(call.substr(golden + 3), done.output);
      return std::to_string(done.status);
    }
    std::string answer = std::to_string(done.status) + '\n' + done.output;
    answer.resize(answer.find_last_not_of('\n') + 1);
    return replaced(answer, "\n", "\n    ");
  });
}

TEST(Programs, HelpThemselvesAndKeepSecretsAndNamesOut) {
  for (const char *program : {"scan_report", "channel_plan", "station_watch", "config_diff"}) {
    EXPECT_EQ(run(std::string(program) + " --help").status, 0) << program;
  }
  const std::string changes = run("config_diff").output;
  EXPECT_TRUE(changes.ends_with("===== what changed\n" + run("config_diff --changes").output));
  for (const char *secret : {"herons", "welcome", "tide", "ebb", "keeper"})
    EXPECT_EQ(changes.find(secret), std::string::npos) << secret;
  EXPECT_EQ(run("scan_report --hide-ssid").output.find("harbour"), std::string::npos);
  const std::string watched = run("station_watch").output;
  EXPECT_TRUE(watched.ends_with(run("test_readme").output))
      << "what station_watch.c prints by hand and the README's program in C++ as a whole";
}

// "line: message", with "note: " before a remark.
std::string told(const text::problems &problems) {
  std::string out;
  for (const auto &p : problems.list())
    out += std::to_string(p.line) + (p.is_error ? ": " : ": note: ") + p.message + '\n';
  return out;
}

std::string networks(const iw::scan &scan) {
  std::string out;
  for (const auto &network : scan.networks) {
    EXPECT_TRUE(ravix_channel_info_is_valid(&network.channel_info));
    for (const char *text : {ravix_str_mac(network.bssid), ravix_str_ssid(&network.ssid, true),
                             ravix_str_channel_info(&network.channel_info), ravix_str_power(network.rssi)})
      out += std::string(text) + ' ';
    out += std::string(ravix_str_capabilities(network.capabilities)) + '\n';
  }
  return out;
}

TEST(IwScan, TextsAreReadAsRecorded) {
  harness::expect_outcomes("iw_scan_cases", [](const std::string &input) {
    text::problems problems, others;
    const std::string read = networks(iw::read_scan(input, problems));
    if (problems.list().empty()) { // blanks for tabs, and line ends of another system, make no difference
      const std::string other = replaced(replaced(input, "\t", "    "), "\n", "  \r\n");
      EXPECT_EQ(networks(iw::read_scan(other, others)), read) << input;
    }
    return read + told(problems);
  });
}

TEST(IwScan, EveryCutOfTheSampleIsReadWithoutFaults) {
  const auto whole = file_content(RAVIX_EXAMPLE_DATA "/iw_scan_sample.txt");
  text::problems none;
  const auto all = iw::read_scan(whole, none);
  EXPECT_EQ(all.networks.size(), 15U);
  EXPECT_EQ(told(none), "");
  for (std::size_t size = 0; size < whole.size(); size += 97) {
    text::problems problems;
    const auto scan = iw::read_scan(std::string_view(whole).substr(0, size), problems);
    ASSERT_LE(scan.networks.size(), all.networks.size());
    for (std::size_t i = 0; i < scan.networks.size(); ++i) {
      ASSERT_EQ(scan.networks[i].channel_info.primary_freq, all.networks[i].channel_info.primary_freq);
      ASSERT_TRUE(ravix_channel_info_is_valid(&scan.networks[i].channel_info)) << size;
    }
  }
}

// What no text file holds well.
TEST(IwScan, LinesThatNoToolPrintsAreToldAndIgnored) {
  const std::string one = "(on wlan0)\n\tfreq: 2412\n\tSSID: net\n";
  const std::string good = "BSS 02:00:00:00:00:02" + one + "BSS 02:00:00:00:00:01" + one;
  const std::pair<std::string, std::string> cases[] = {
      {good + "\tSSID: " + std::string(100000, 'a') + "\n", "7: a line of 100007 bytes, ignored\n"},
      {good + "\tx" + std::string(1, '\0') + "\n", "7: a line with NUL bytes, ignored\n"},
      {good + "\tWMM:\t * Param", "7: BSS 02:00:00:00:00:01: the block is cut here, listed with what is known until "
                                  "then\n"},
      {good.substr(0, good.size() - 1), ""}, // only the last line end is lost
  };
  for (const auto &[input, problem] : cases) {
    text::problems problems;
    EXPECT_EQ(iw::read_scan(input, problems).networks.size(), 2U);
    EXPECT_EQ(told(problems), problem);
  }
}

TEST(IwPhy, TextsAreReadAsRecorded) {
  harness::expect_outcomes("iw_phy_cases", [](const std::string &input) {
    text::problems problems;
    std::string out;
    for (const auto &phy : iw::read_phys(input, problems)) {
      for (const auto &band : phy.bands) {
        out += phy.name + ", " + ravix_str_radio_band(band.radio_band) + ":\n";
        const auto list = iw::make_channel_list(band);
        for (uint32_t i = 0; list && i < list->count; ++i) {
          const auto &entry = list->data[i];
          for (const char *text : {ravix_str_wifi_freq(entry.frequency), ravix_str_power(entry.max_power),
                                   ravix_str_channel_capabilities(entry.capabilities)})
            out += std::string(text) + ' ';
          out += std::string(ravix_str_channel_state(entry.state)) + '\n';
        }
      }
    }
    return out + told(problems);
  });
  text::problems problems;
  iw::read_phys("Band 2:\n\t* 5180 MHz [36]\n\t* 5200 M", problems);
  EXPECT_EQ(told(problems), "3: the text is cut here\n");
  std::string many = "Band 2:\n";
  for (int i = 0; i < 300; ++i)
    many += "\t* 5180 MHz [36]\n";
  text::problems too_many;
  EXPECT_EQ(iw::read_phys(many, too_many).at(0).bands.at(0).channels.size(), 256U);
  EXPECT_EQ(told(too_many), "258: Band 2 has more than 256 channels, the rest is ignored\n");
}

TEST(Picture, ShowsEachChannelOnceAndTheBracketOverTheChannel) {
  const auto name = testing::TempDir() + "channel_plan.svg";
  ASSERT_EQ(run("channel_plan --primary 6135 --side upper --mark-interference 5995 --svg " + name).status, 0);
  const auto svg = file_content(name);
  const auto count = [&](const std::string &part) { // by how much the text shrinks
    return (svg.size() - replaced(svg, part, "").size()) / part.size();
  };
  for (const char *once : {">320 MHz around 6265 MHz<", ">5955<", ">6135<", ">7115<", ">PRI<", ">INTERF.<"})
    EXPECT_EQ(count(once), 1U) << once;
  EXPECT_EQ(count("fill=\"#1f4e79\" stroke="), 16U + 2U); // the channel, and twice in the legend
  EXPECT_EQ(count("stroke-linecap"), 16U + 2U);           // over each channel, and the two ends
  // The picture of the README, by the command that stands there.
  const auto readme = file_content(RAVIX_EXAMPLE_DATA "/../../README.md");
  const auto begin = readme.find("channel_plan --primary");
  ASSERT_EQ(run(replaced(readme.substr(begin, readme.find('\n', begin) - begin), "plan.svg", name)).status, 0);
  EXPECT_EQ(file_content(name), file_content(RAVIX_EXAMPLE_DATA "/../../docs/channel_plan.svg"));
}

} // namespace
