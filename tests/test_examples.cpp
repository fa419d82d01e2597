// The example programs and their readers: what they make of good text, and what they say about bad text. The cases are
// data: command lines in tests/data/examples.golden, texts of iw in iw_scan_cases.golden and iw_phy_cases.golden.
#include "golden.hpp"
#include "iw_phy.hpp"
#include "iw_scan.hpp"

#include "ravix_types_str_convert.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cstdio>
#include <regex>
#include <string>
#include <sys/wait.h>
#include <unistd.h>
#include <utility>

namespace {

std::string replaced(std::string text, const std::string &from, const std::string &to) {
  for (std::size_t at = 0; (at = text.find(from, at)) != std::string::npos; at += to.size())
    text.replace(at, from.size(), to);
  return text;
}

// Runs one of the programs, by a shell for its redirections. What it prints on standard error comes first: how that and
// standard output interleave is up to the C library's buffers.
int run(const std::string &command_line, std::string &output) {
  const std::string kept = testing::TempDir() + "ravix-output-" + std::to_string(getpid());
  const std::string given = replaced("{ (" RAVIX_EXAMPLE_RUN + command_line + ") >" + kept + "; status=$?; cat " +
                                         kept + "; rm " + kept + "; exit $status; } 2>&1",
                                     "$DATA", RAVIX_EXAMPLE_DATA);
  std::FILE *pipe = popen(replaced(given, "$CASES", RAVIX_TEST_DATA).c_str(), "r"); // NOLINT(cert-env33-c): our own
  if (pipe == nullptr)
    return -1;
  std::array<char, 4096> block{};
  while (const auto got = std::fread(block.data(), 1, block.size(), pipe))
    output.append(block.data(), got);
  const int status = pclose(pipe);
  // What differs from run to run, or whenever a source is edited.
  output = std::regex_replace(output, std::regex("Scan time: .*"), "Scan time: now");
  output = std::regex_replace(output, std::regex(R"((src/\w+):\d+)"), "$1");
  output = replaced(output, RAVIX_EXAMPLE_DATA, "$DATA");
  return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

// A text as an answer: its first line stands behind the call, the others below.
std::string answer_of(std::string text) {
  text.resize(text.find_last_not_of('\n') + 1);
  return replaced(text, "\n", "\n    ");
}

TEST(Programs, DoAsRecorded) {
  harness::expect_answers("examples", [](const std::string &call) {
    const std::size_t golden = call.find(" > ");
    std::string output;
    std::string status = std::to_string(run(call.substr(0, golden), output));
    if (golden != std::string::npos) {
      harness::expect_golden(call.substr(golden + 3), output);
      return status;
    }
    return answer_of(status + (std::ranges::count(output, '\n') == 1 ? ": " : "\n") + output);
  });
}

// "line: message", with "note: " before a remark.
std::string told(const text::problems &problems) {
  std::string out;
  for (const auto &p : problems.list())
    out += std::to_string(p.line) + (p.is_error ? ": " : ": note: ") + p.message + '\n';
  return out;
}

TEST(Problems, AreKeptUpToAHundredOfAKindAndErrorsShownBeforeRemarks) {
  text::problems problems;
  for (std::size_t line = 1; line <= 150; ++line)
    problems.remark(line, "doubt");
  problems.error(151, "fault");
  EXPECT_EQ(problems.list().size(), 101U);
  testing::internal::CaptureStderr();
  problems.print("reader", "file");
  const std::string shown = testing::internal::GetCapturedStderr();
  EXPECT_TRUE(shown.starts_with("reader: file:1: note: doubt\n"));
  EXPECT_TRUE(shown.ends_with("reader: file:19: note: doubt\nreader: file:151: fault\n"
                              "reader: 131 more messages of this kind are not shown\n"));
}

std::string networks(const iw::scan &scan) {
  std::string out;
  for (const auto &network : scan.networks) {
    for (const char *text : {ravix_str_mac(network.bssid), ravix_str_ssid(&network.ssid, true),
                             ravix_str_channel_info(&network.channel_info), ravix_str_power(network.rssi)})
      out += std::string(text) + ' ';
    out += std::string(ravix_str_capabilities(network.capabilities)) + '\n';
  }
  return out;
}

// What a case stands for: line ends, parts that many cases have, and what a text file does not hold well.
std::string expanded(const std::string &input) {
  static const std::pair<const char *, const char *> words[] = {
      {" \\| ", "\n\t"},
      {" \\|\\| ", "\n\t\t"},
      {" \\|\\|\\| ", "\n\t\t\t"},
      {" \\{", "\n{"},
      {"\\{line (.*)\\}", "$1"},
      {"\\{network (.*)\\}", "BSS 02:00:00:00:00:01(on wlan0)\n\tfreq: $1\n\tsignal: -50.00 dBm\n\tSSID: net"},
      {"\\{no signal (.*)\\}", "BSS 02:00:00:00:00:01(on wlan0)\n\tfreq: $1\n\tSSID: net"},
      {"\\{named (.*)\\}", "BSS 02:00:00:00:00:01\n\tfreq: 2412\n\tsignal: -50.50 dBm\n\tSSID: $1"},
      {"\\{other\\}", "BSS 02:00:00:00:00:aa(on wlan0)\n\tfreq: 2412\n\tsignal: -50.00 dBm\n\tSSID: net"},
      {"\\{HT (.*)\\}", "\tHT capabilities:\n\t\tx\n\tHT operation:\n\t\t * secondary channel offset: $1"},
      {"\\{VHT (.*), (.*), (.*)\\}", "\tVHT operation:\n\t\t * channel width: $1\n\t\t * center freq segment 1: $2\n"
                                     "\t\t * center freq segment 2: $3"},
      {"\\{(HE|EHT) (.*), (.*), (.*)\\}", "\t$1 Operation:\n\t\tx\n\t\t\tChannel Width: $2\n"
                                          "\t\t\tCenter Frequency Segment 0: $3\n\t\t\tCenter Frequency Segment 1: $4"},
      {"\\{extension (\\d+):(.*)\\}", "\tUnknown Extension ID ($1):$2"},
      {"\\{element (\\d+):(.*)\\}", "\tUnknown IE ($1):$2"},
      {"\\{suites (.*)\\}", "\tRSN:\t * Version: 1\n\t\t * Authentication suites: $1"},
      {"\\{band (.)\\}", "Wiphy phy7\n\tBand $1:\n\t\t\tHT20/HT40\n\t\tVHT Capabilities (0x0):\n\t\tFrequencies:"}};
  std::string text = input + '\n';
  for (const auto &[word, meaning] : words)
    text = std::regex_replace(text, std::regex(word), meaning);
  text = replaced(replaced(text, "{NUL}", std::string(1, '\0')), "{cut}\n", "");
  return replaced(text, "{100000 letters}", std::string(100000, 'a'));
}

TEST(IwScan, TextsAreReadAsRecorded) {
  harness::expect_answers("iw_scan_cases", [](const std::string &input) {
    text::problems problems, others;
    const std::string given = expanded(input), read = networks(iw::read_scan(given, problems));
    if (problems.list().empty()) { // blanks for tabs, and line ends of another system, make no difference
      const std::string other = replaced(replaced(given, "\t", "    "), "\n", "  \r\n");
      EXPECT_EQ(networks(iw::read_scan(other, others)), read) << input;
    }
    static const std::string other = networks(iw::read_scan(expanded("{other}"), others));
    return answer_of(replaced(replaced(read, "02:00:00:00:00:01 'net' (len=3)", "net"), other, "other\n") +
                     told(problems));
  });
}

TEST(IwPhy, TextsAreReadAsRecorded) {
  harness::expect_answers("iw_phy_cases", [](const std::string &input) {
    text::problems problems;
    std::string out;
    for (const auto &phy : iw::read_phys(expanded(input), problems)) {
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
    return answer_of(out + told(problems));
  });
  std::string many = "Band 2:\n";
  for (int i = 0; i < 300; ++i)
    many += "\t* 5180 MHz [36]\n";
  text::problems problems;
  EXPECT_EQ(iw::read_phys(many, problems).at(0).bands.at(0).channels.size(), 256U);
  EXPECT_EQ(told(problems), "258: Band 2 has more than 256 channels, the rest is ignored\n");
}

} // namespace
