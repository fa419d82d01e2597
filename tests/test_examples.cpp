// The example programs and their readers: what they make of good text, and what they say about bad text.
#include "golden.hpp"
#include "iw_phy.hpp"
#include "iw_scan.hpp"

#include "ravix_types_enums.h"
#include "ravix_types_str_convert.h"
#include "ravix_types_util.h"
#include "ravix_types_validation.h"

#include <gtest/gtest.h>

#include <array>
#include <cstdio>
#include <fstream>
#include <sstream>
#include <string>
#include <sys/wait.h>

namespace {

std::string file_content(const std::string &name) {
  std::ifstream file(name, std::ios::binary);
  std::ostringstream out;
  out << file.rdbuf();
  return out.str();
}

const std::string sample_phy = RAVIX_EXAMPLE_DATA "/iw_phy_sample.txt";
const std::string sample_scan = RAVIX_EXAMPLE_DATA "/iw_scan_sample.txt";

struct outcome {
  int status = -1;
  std::string output; // standard output and standard error
};

// Runs one of the programs, by a shell for its redirections.
outcome run(const std::string &command_line) {
  outcome result;
  // NOLINTNEXTLINE(cert-env33-c): all commands are written here
  std::FILE *pipe = popen((RAVIX_EXAMPLE_PROGRAMS "/" + command_line + " 2>&1").c_str(), "r");
  if (pipe == nullptr) {
    return result;
  }
  std::array<char, 4096> block{};
  while (const auto got = std::fread(block.data(), 1, block.size(), pipe)) {
    result.output.append(block.data(), got);
  }
  const int status = pclose(pipe);
  result.status = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
  return result;
}

// "line: message", with "note: " before a remark.
std::vector<std::string> texts(const text::problems &problems) {
  std::vector<std::string> out;
  for (const auto &p : problems.list()) {
    out.push_back(std::to_string(p.line) + (p.is_error ? ": " : ": note: ") + p.message);
  }
  return out;
}

// The text of one network: what every network has, and the lines given.
std::string network(const std::string &frequency, const std::string &more = "",
                    const std::string &address = "02:00:00:00:00:01") {
  return "BSS " + address + "(on wlan0)\n\tfreq: " + frequency + "\n\tsignal: -50.00 dBm\n\tSSID: net\n" + more;
}

TEST(IwScan, SampleIsListedAsRecorded) {
  const auto listed = run("scan_report " + sample_scan);
  EXPECT_EQ(listed.status, 0);
  // The first line has the time of the run.
  EXPECT_EQ(listed.output.substr(0, 11), "Scan time: ");
  harness::expect_golden("scan_report", listed.output.substr(listed.output.find('\n') + 1));
  EXPECT_EQ(run("scan_report").output.size(), listed.output.size());
  EXPECT_EQ(run("scan_report - <" + sample_scan).output.size(), listed.output.size());
}

TEST(IwScan, ProgramKeepsNamesOutAndFiltersWhatIsAskedFor) {
  const auto hidden = run("scan_report --hide-ssid " + sample_scan);
  EXPECT_EQ(hidden.status, 0);
  EXPECT_EQ(hidden.output.find("harbour"), std::string::npos);
  EXPECT_NE(hidden.output.find("[BSSID|CHANNEL_INFO|RSSI|"), std::string::npos);
  const auto some = run("scan_report --verbose --freq 5180,2437 --freq 6135 --ssid backhaul --ssid harbour-office");
  EXPECT_EQ(some.status, 0);
  EXPECT_NE(some.output.find("5180000 kHz, 2437000 kHz, 6135000 kHz"), std::string::npos);
  EXPECT_NE(some.output.find("[1]: '02:00:5E:10:6D:0D'"), std::string::npos);
  EXPECT_EQ(some.output.find("workshop"), std::string::npos);
  EXPECT_EQ(run("scan_report --help").status, 0);
  for (const auto *const bad :
       {"--nonsense", "--freq 5181", "--freq", "--ssid 123456789012345678901234567890123", "a b"}) {
    EXPECT_EQ(run(std::string("scan_report ") + bad).status, 2) << bad;
  }
}

TEST(IwScan, ProgramSaysWhyAnInputIsNoScan) {
  EXPECT_EQ(run("scan_report /nonexistent/scan").output,
            "scan_report: /nonexistent/scan: cannot be read: No such file or directory\n");
  EXPECT_EQ(run("scan_report /nonexistent/scan").status, 1);
  EXPECT_EQ(run("scan_report /").output, "scan_report: /: cannot be read: Is a directory\n");
  const auto empty = run("scan_report - </dev/null");
  EXPECT_EQ(empty.status, 1);
  EXPECT_EQ(empty.output.substr(0, empty.output.find('\n')), "scan_report: standard input:1: empty, so no scan");
  const auto other = run("scan_report " RAVIX_EXAMPLE_DATA "/../CMakeLists.txt");
  EXPECT_EQ(other.status, 1);
  EXPECT_NE(other.output.find("CMakeLists.txt:1: not a scan: no line begins with \"BSS \"\n"), std::string::npos);
  EXPECT_NE(other.output.find("-- no entries --"), std::string::npos);
}

// The channel that is made of the operation elements; "?": with a remark.
TEST(IwScan, ChannelIsTheWidestThatTheElementsDescribe) {
  const std::string ht = "\tHT capabilities:\n\t\tx\n\tHT operation:\n\t\t * secondary channel offset: ";
  const auto vht = [&](const char *width, int first, int second) {
    return ht + "above\n\tVHT operation:\n\t\t * channel width: " + width +
           "\n\t\t * center freq segment 1: " + std::to_string(first) +
           "\n\t\t * center freq segment 2: " + std::to_string(second) + "\n";
  };
  const auto six = [](const char *element, const char *width, int first, int second, const char *more = "") {
    return std::string("\t") + element + " Operation:\n\t\tx\n\t\t\tChannel Width: " + width +
           "\n\t\t\tCenter Frequency Segment 0: " + std::to_string(first) +
           "\n\t\t\tCenter Frequency Segment 1: " + std::to_string(second) + "\n" + more;
  };
  const struct {
    std::string frequency, elements, channel;
  } cases[] = {
      {"2412", "", "2412/2412/ 20/0000"},
      {"2437.0", ht + "above\n", "2437/2447/ 40/0000"},
      {"2437", ht + "below\n", "2437/2427/ 40/0000"},
      {"2462", ht + "above\n", "?2462/2462/ 20/0000"}, // would end above the band
      {"5180", ht + "above\n", "5180/5190/ 40/0000"},
      {"5180", ht + "below\n", "?5180/5180/ 20/0000"},
      {"5180", vht("0 (20 or 40 MHz)", 0, 0), "5180/5190/ 40/0000"},
      {"5180", vht("1 (80 MHz)", 42, 0), "5180/5210/ 80/0000"},
      {"5180", vht("1", 42, 0), "5180/5210/ 80/0000"},
      {"5180", vht("1 (80 MHz)", 42, 50), "5180/5250/160/0000"},
      {"5180", vht("1 (80 MHz)", 42, 155), "5180/5210/ 80/0000"}, // 80+80 MHz
      {"5180", vht("3 (80+80 MHz)", 42, 155), "5180/5210/ 80/0000"},
      {"5180", vht("2 (160 MHz)", 50, 0), "5180/5250/160/0000"},
      {"5180", vht("1 (80 MHz)", 155, 0), "?5180/5190/ 40/0000"}, // not around this primary channel
      {"5955", six("HE", "20 MHz", 1, 0), "5955/5955/ 20/0000"},
      {"5975", six("HE", "80 MHz", 7, 0), "5975/5985/ 80/0000"},
      {"5975", six("HE", "160 MHz", 7, 15), "5975/6025/160/0000"},
      {"5975", six("HE", "3 (80+80 or 160 MHz)", 7, 15), "5975/6025/160/0000"},
      {"5975", six("HE", "160 MHz", 15, 0), "5975/6025/160/0000"},
      {"6135", six("HE", "160 MHz", 39, 47) + six("EHT", "320 MHz", 47, 31), "6135/6105/320/0000"},
      {"6135", six("HE", "160 MHz", 39, 47) + six("EHT", "320 MHz", 47, 63), "6135/6265/320/0000"},
      {"6135", six("HE", "160 MHz", 39, 47) + six("EHT", "320 MHz", 47, 95), "?6135/6185/160/0000"},
      {"6135", six("HE", "80 MHz", 39, 0) + six("EHT", "160 MHz", 39, 47, "\t\tDisabled Subchannel Bitmap: 0x0030\n"),
       "6135/6185/160/0030"},
      {"6135", six("HE", "80 MHz", 39, 0) + six("EHT", "160 MHz", 39, 47, "\t\tDisabled Subchannel Bitmap: 0x0002\n"),
       "?6135/6185/160/0000"}, // the primary channel is punctured
  };
  for (const auto &c : cases) {
    SCOPED_TRACE(c.frequency + c.elements);
    text::problems problems;
    const auto scan = iw::read_scan(network(c.frequency, c.elements), problems);
    ASSERT_EQ(scan.networks.size(), 1U);
    EXPECT_FALSE(problems.has_errors());
    const std::string made = ravix_str_channel_info(&scan.networks[0].channel_info);
    EXPECT_EQ((problems.list().empty() ? "" : "?") + made.substr(0, made.rfind('/')), c.channel);
    EXPECT_TRUE(ravix_channel_info_is_valid(&scan.networks[0].channel_info));
  }
}

TEST(IwScan, BadBlocksAreToldByLineAndTheOthersKept) {
  const auto good = network("2412", "", "02:00:00:00:00:aa");
  const auto ht = std::string("\tHT capabilities:\n\t\tx\n");
  const struct {
    std::string text;
    std::size_t networks;
    std::string problem;
  } cases[] = {
      {good, 1, ""},
      {"$ iw dev wlan0 scan\n" + good, 1, ""},
      {good + "$ \n", 1, "5: note: BSS 02:00:00:00:00:aa: a line that is no part of a scan, ignored: '$'"},
      {network("2413") + good, 1,
       "2: BSS 02:00:00:00:00:01: no 2.4, 5 or 6 GHz channel at frequency '2413', network not listed"},
      {network("58320") + good, 1,
       "2: BSS 02:00:00:00:00:01: no 2.4, 5 or 6 GHz channel at frequency '58320', network not listed"},
      {network("99999999999999999999") + good, 1,
       "2: BSS 02:00:00:00:00:01: no 2.4, 5 or 6 GHz channel at frequency '99999999999999999999', network not listed"},
      {network("2412", "", "02:00:00:00:00") + good, 1,
       "1: 'BSS 02:00:00:00:00(on wlan0)' has no address, network not listed"},
      {network("2412", "", "02:00:00:00:00:0g") + good, 1,
       "1: 'BSS 02:00:00:00:00:0g(on wlan0)' has no address, network not listed"},
      {network("2412", "", "02:00:00:xx:xx:01"), 1,
       "1: note: BSS 02:00:00:xx:xx:01: masked digits of the address are read as 0"},
      {"BSS 02:00:00:00:00:01(on wlan0)\n\tfreq: 2412\n" + good, 1,
       "2: BSS 02:00:00:00:00:01: the block is cut: no SSID, network not listed"},
      {good + "BSS 02:00:00:00:00:01(on wlan0)\n", 1,
       "5: BSS 02:00:00:00:00:01: the block is cut: no frequency, network not listed"},
      {good + network("2412").substr(32), 1,
       "5: BSS 02:00:00:00:00:aa: a second frequency, so the line \"BSS ...\" of another network is missing, which is "
       "not listed"},
      {network("2412", ht) + good, 2,
       "6: BSS 02:00:00:00:00:01: the block is cut here, listed with what is known until then"},
      {good + network("2412", "\tHT operation:\n"), 2,
       "9: BSS 02:00:00:00:00:01: the block is cut here, listed with what is known until then"},
      {good + network("5180", "\tVHT capabilities:\n\t\tx\n"), 2,
       "10: BSS 02:00:00:00:00:01: the block is cut here, listed with what is known until then"},
      {good + network("2412", "\tWMM:\t * Param"), 2,
       "9: BSS 02:00:00:00:00:01: the block is cut here, listed with what is known until then"},
      {good + network("2412").substr(0, network("2412").size() - 1), 2, ""}, // only the last line end is lost
      {good + "\tSSID: " + std::string(100000, 'a') + "\n", 1, "5: a line of 100007 bytes, ignored"},
      {good + "\tx" + std::string(1, '\0') + "\n", 1, "5: a line with NUL bytes, ignored"},
      {"BSS 02:00:00:00:00:01\n\tfreq: 2412\n\tSSID: 123456789012345678901234567890123\n" + good, 1,
       "3: BSS 02:00:00:00:00:01: the SSID has more than 32 octets, network not listed"},
      {"BSS 02:00:00:00:00:01\n\tfreq: 2412\n\tsignal: 47/100\n\tSSID: x\n", 1,
       "3: note: BSS 02:00:00:00:00:01: signal '47/100' is not in dBm, taken as not known"},
      {network("2412", ht + "\tHT operation:\n\t\t * primary channel: 3\n"), 1,
       "8: note: BSS 02:00:00:00:00:01: HT operation has primary channel '3', but the frequency is that of channel 1, "
       "which is taken"},
  };
  for (const auto &c : cases) {
    SCOPED_TRACE(c.text.substr(0, 300));
    text::problems problems;
    const auto scan = iw::read_scan(c.text, problems);
    EXPECT_EQ(scan.networks.size(), c.networks);
    EXPECT_EQ(texts(problems), c.problem.empty() ? std::vector<std::string>{} : std::vector{c.problem});
  }
}

TEST(IwScan, NamesSignalsAndSuitesAreReadAsPrinted) {
  const auto read = [](const std::string &text) {
    text::problems problems;
    const auto scan = iw::read_scan(text, problems);
    EXPECT_TRUE(problems.list().empty()) << texts(problems)[0];
    return scan.networks.at(0);
  };
  const auto named = [&](const std::string &name) {
    const auto entry = read("BSS 02:00:00:00:00:01\n\tfreq: 2412\n\tsignal: -50.50 dBm\n\tSSID: " + name + "\n");
    EXPECT_EQ(entry.rssi, -51);
    return std::string(entry.ssid.ssid, entry.ssid.ssid + entry.ssid.len);
  };
  EXPECT_EQ(named(""), "");
  EXPECT_EQ(named(R"(\x20a\x5c b\x00\xfF\x20)"), std::string(" a\\ b\0\xFF ", 8));
  EXPECT_EQ(named(R"(\x2 \xg0)"), R"(\x2 \xg0)");
  EXPECT_EQ(named(std::string(31, 'a') + "\\x62").size(), 32U);
  // A hidden network that answers with its name.
  EXPECT_EQ(read("BSS 02:00:00:00:00:01\n\tfreq: 2412\n\tSSID: \n\tSSID: shown\n").ssid.len, 5);
  EXPECT_EQ(read("BSS 02:00:00:00:00:01\n\tfreq: 2412\n\tSSID: shown\n").rssi, RAVIX_POWER_INVALID);

  const struct {
    const char *suites;
    const char *capabilities;
  } cases[] = {
      {"PSK", "[ WPA2_PSK PRIVACY 2GHZ ]"},
      {"PSK SAE", "[ WPA2_PSK WPA3_PSK PRIVACY 2GHZ ]"},
      {"FT/PSK PSK/SHA-256", "[ WPA2_PSK PRIVACY 2GHZ FBT ]"},
      {"IEEE 802.1X", "[ WPA2_ENT PRIVACY 2GHZ ]"},
      {"FT/IEEE 802.1X IEEE 802.1X/SUITE-B-192", "[ WPA2_ENT PRIVACY 2GHZ FBT ]"},
      {"00-0f-ac:24 FT/SAE", "[ WPA3_PSK PRIVACY 2GHZ FBT ]"},
      {"OWE", "[ OWE PRIVACY 2GHZ ]"},
      {"01-02-03:4", "[ PRIVACY 2GHZ ]"},
  };
  for (const auto &c : cases) {
    const auto rsn = std::string("\tRSN:\t * Version: 1\n\t\t * Authentication suites: ") + c.suites + "\n";
    EXPECT_STREQ(ravix_str_capabilities(read(network("2412", rsn)).capabilities), c.capabilities);
    // Blanks for tabs, and line ends of another system.
    auto other = network("2412", rsn);
    for (std::size_t at = 0; (at = other.find_first_of("\t\n", at)) != std::string::npos; at += 4) {
      other.replace(at, 1, other[at] == '\t' ? "    " : "  \r\n");
    }
    EXPECT_STREQ(ravix_str_capabilities(read(other).capabilities), c.capabilities);
  }
  const auto bits = read(network("2412", "\tcapability: ESS (0x1431)\n"));
  EXPECT_STREQ(ravix_str_capabilities(bits.capabilities), "[ PRIVACY 2GHZ RRM ]");
}

TEST(IwScan, EveryCutOfTheSampleIsReadWithoutFaults) {
  const auto whole = file_content(sample_scan);
  text::problems none;
  const auto all = iw::read_scan(whole, none);
  ASSERT_EQ(all.networks.size(), 15U);
  EXPECT_TRUE(none.list().empty());
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

// The text of a radio with the given lines in the 5 GHz band.
std::string radio(const std::string &channels, const std::string &band = "2") {
  return "Wiphy phy7\n\tBand " + band + ":\n\t\t\tHT20/HT40\n\t\tVHT Capabilities (0x0):\n\t\tFrequencies:\n" +
         channels;
}

// The capabilities and state of each channel: "36 [ HT20 ] [ ]".
std::vector<std::string> lists_of(const iw::phy &phy) {
  std::vector<std::string> out;
  for (const auto &band : phy.bands) {
    const auto list = iw::make_channel_list(band);
    for (uint32_t i = 0; list && i < list->count; ++i) {
      const auto &entry = list->data[i];
      out.push_back(std::to_string(ravix_frequency_to_channel(entry.frequency)) + " " +
                    ravix_str_power(entry.max_power) + " " + ravix_str_channel_capabilities(entry.capabilities) + " " +
                    ravix_str_channel_state(entry.state));
    }
  }
  return out;
}

TEST(IwPhy, SampleGivesListsThatAreAccepted) {
  text::problems problems;
  const auto phys = iw::read_phys(file_content(sample_phy), problems);
  EXPECT_TRUE(problems.list().empty());
  ASSERT_EQ(phys.size(), 1U);
  EXPECT_EQ(phys[0].name, "phy0");
  std::vector<std::size_t> channels;
  std::vector<uint32_t> usable;
  for (const auto &band : phys[0].bands) {
    const auto list = iw::make_channel_list(band);
    EXPECT_TRUE(ravix_validate_channel_list(list.get(), nullptr));
    channels.push_back(band.channels.size());
    usable.push_back(list->count);
  }
  EXPECT_EQ(channels, (std::vector<std::size_t>{14, 28, 59}));
  EXPECT_EQ(usable, (std::vector<uint32_t>{13, 24, 24}));
}

TEST(IwPhy, BothFormsOfTheListingAreRead) {
  text::problems problems;
  const auto listed =
      radio("\t\t\t* 5180.0 MHz [36] (23.9 dBm)\n\t\t\t* 5200 MHz [40] (20.0 dBm) (no IR)\n"
            "\t\t\t* 5220 MHz [44] (disabled)\n\t\t\t* 5240 MHz [48]\n"
            "\t\t\t* 5260 MHz [52] (20.0 dBm) (passive scanning, no IBSS, radar detection)\n"
            "\t\t\t* 5280 MHz [56] (20.0 dBm) (radar detection)\n\t\t\t  DFS state: available (for 7 sec)\n"
            "\t\t\t* 5300 MHz [60] (20.0 dBm) (radar detection)\n\t\t\t  DFS state: unavailable\n"
            "\t\t\t  DFS CAC time: 600000 ms\n\tSupported commands:\n\t\t * connect\n");
  EXPECT_EQ(lists_of(iw::read_phys(listed, problems).at(0)),
            (std::vector<std::string>{"36 23 dBm [ HT20 HT40 ] [ ]", "40 20 dBm [ HT20 HT40 ] [ ]",
                                      "48 INVALID [ HT20 ] [ ]", "52 20 dBm [ HT20 HT40 DFS ] [ PRECAC_TODO ]",
                                      "56 20 dBm [ HT20 HT40 DFS ] [ DFS_CLEAR ]",
                                      "60 20 dBm [ HT20 DFS_WEATHER ] [ RADAR_FOUND ]"}));
  const std::string channels = "Band 2:\n\t* 5180 MHz [36] \n\t  Maximum TX power: 23.0 dBm\n"
                               "\t  Channel widths: 20MHz HT40+ VHT80\n\t* 5200 MHz [40]\n\t  Radar detection\n"
                               "\t  Channel widths: 20MHz HT40-\n\t* 5220 MHz [44] (disabled)\n";
  EXPECT_EQ(lists_of(iw::read_phys(channels, problems).at(0)),
            (std::vector<std::string>{"36 23 dBm [ HT20 HT40 ] [ ]", "40 INVALID [ HT20 HT40 DFS ] [ PRECAC_TODO ]"}));
  EXPECT_TRUE(problems.list().empty());
}

TEST(IwPhy, BadTextIsToldByLine) {
  const std::string good = "\t\t\t* 5180 MHz [36] (20.0 dBm)\n";
  const struct {
    std::string text;
    std::size_t channels;
    std::string problem;
  } cases[] = {
      {radio(good), 1, ""},
      {"", 0, "1: empty, so no description of a radio"},
      {"BSS 02:00:00:00:00:01\n", 0, "1: no description of a radio: no line \"Band 1:\", 2 or 4 with channels"},
      {radio(good) + radio(""), 1, "8: Band 2 has no channels, the text may be cut"},
      {radio(good) + radio(good, "3"), 1, "8: note: 'Band 3:' is none of 2.4, 5 and 6 GHz, ignored"},
      {radio(good + "\t\t\t* 5200 MHz [4"), 1, "7: a channel without its number: '5200 MHz [4'"},
      {radio(good + "\t\t\t* 5200 MHz [40] (20.0 d\n"), 2, "7: a channel is cut: '5200 MHz [40] (20.0 d'"},
      {radio(good + "\t\t\t* 5200 M"), 1, "7: the text is cut here"},
      {radio(good + "\t\t\t* 5200 MHz [41] (20.0 dBm)\n"), 2,
       "7: note: channel number and frequency do not agree, the frequency is taken: '5200 MHz [41] (20.0 dBm)'"},
      {radio(good + "\t\t\t* 5200 MHz [40] (20.0 W)\n"), 2,
       "7: a power that is not in dBm, taken as not known: '5200 MHz [40] (20.0 W)'"},
      {radio(good + std::string(100000, 'x') + "\n"), 1, "7: a line of 100000 bytes, ignored"},
  };
  for (const auto &c : cases) {
    SCOPED_TRACE(c.text.substr(0, 300));
    text::problems problems;
    std::size_t channels = 0;
    for (const auto &phy : iw::read_phys(c.text, problems)) {
      for (const auto &band : phy.bands) {
        channels += band.channels.size();
      }
    }
    EXPECT_EQ(channels, c.channels);
    auto told = texts(problems);
    told.resize(std::min<std::size_t>(told.size(), 1)); // a cut line may be told twice
    EXPECT_EQ(told, c.problem.empty() ? std::vector<std::string>{} : std::vector{c.problem});
  }
}

TEST(ChannelPlan, FindsTheWidestClearChannelAndUsesItConsistently) {
  const struct {
    const char *arguments;
    const char *channel; // "" if there is none
  } cases[] = {
      {"--primary 5180", "5180/5250/160/0000/ 34- 66"},
      {"--primary 5180 --max-width 160 --avoid radar,interference --mark-radar 5260-5320",
       "5180/5210/ 80/0000/ 34- 50"},
      {"--primary 5180 --max-width 40", "5180/5190/ 40/0000/ 34- 42"},
      {"--primary 5180 --avoid precac", "5180/5210/ 80/0000/ 34- 50"},
      {"--primary 5180 --avoid precac --mark-checked 5300-5320", "5180/5250/160/0000/ 34- 66"},
      {"--primary 5180 --mark-interference 5180", ""},
      {"--primary 5180 --mark-interference 5180 --avoid none", "5180/5250/160/0000/ 34- 66"},
      {"--primary 5700", "5700/5700/ 20/0000/138-142"},                 // 5720 is disabled
      {"--primary 5500", "5500/5510/ 40/0000/ 98-106"},                 // a radar in 5540
      {"--primary 5500 --puncture 5540", "5500/5570/160/0004/ 98-130"}, // which may be punctured
      {"--primary 5500 --puncture 5540 --mark-radar 5580", "5500/5530/ 80/0004/ 98-114"},
      {"--primary 5500 --puncture 5520-5540", "5500/5500/ 20/0000/ 98-102"}, // in no map for 5500
      {"--primary 6135", "6135/6105/320/0000/  1- 63"},
      {"--primary 6135 --side upper", "6135/6265/320/0000/ 31- 95"},
      {"--primary 6135 --mark-interference 5955", "6135/6265/320/0000/ 31- 95"},
      {"--primary 6415 --side upper", "6415/6265/320/0000/ 31- 95"}, // the upper one is disabled
      {"--primary 2412", "2412/2422/ 40/0000/  1-  7"},
      {"--primary 2437 --side upper", "2437/2447/ 40/0000/  4- 12"},
      {"--primary 2472 --max-width 20", "2472/2472/ 20/0000/ 11- 13"},
  };
  for (const auto &c : cases) {
    SCOPED_TRACE(c.arguments);
    const auto planned = run(std::string("channel_plan ") + c.arguments);
    const std::string channel = c.channel;
    EXPECT_EQ(planned.status, channel.empty() ? 1 : 0);
    EXPECT_NE(planned.output.find(channel.empty() ? "no clear channel" : channel), std::string::npos) << planned.output;
    EXPECT_EQ(planned.output.find("with this channel in use accepted") == std::string::npos, channel.empty());
  }
}

TEST(ChannelPlan, AllPrimaryChannelsAreGoneThrough) {
  const auto all = run("channel_plan --band 5 --list " + sample_phy);
  EXPECT_EQ(all.status, 0);
  harness::expect_golden("channel_plan", all.output);
}

TEST(ChannelPlan, RefusesListsByTheNamesOfTheRules) {
  // A driver that reports a channel of another numbering after the others.
  const auto name = testing::TempDir() + "channel_plan.txt";
  std::ofstream(name) << radio("* 5955 MHz [1]\n* 5975 MHz [5]\n* 5935 MHz [2]\n", "4");
  const auto refused = run("channel_plan " + name);
  EXPECT_EQ(refused.status, 1);
  EXPECT_NE(refused.output.find("list refused: INVALID_FREQ RADIO_MISMATCH INVALID_ORDER\n"), std::string::npos);
  EXPECT_NE(refused.output.find("5935 MHz (  2) is not a valid primary frequency!"), std::string::npos);
  EXPECT_EQ(refused.output.find("WIDEST"), std::string::npos);
  // A radar that is not avoided.
  const auto careless = run("channel_plan --primary 5500 --avoid none");
  EXPECT_EQ(careless.status, 1);
  EXPECT_NE(careless.output.find("in use refused: STATE_FLAG_MISMATCH ACTIVE_ON_NOT_CLEARED\n"), std::string::npos);
}

TEST(ChannelPlan, WrongArgumentsAreRefused) {
  for (const auto *const bad : {"--primary 5190", "--primary", "--max-width 60", "--side left", "--avoid rain",
                                "--mark-radar 5320-5260", "--mark-radar 5260,", "--band 60", "--svg x.svg",
                                "--puncture 5200", "--primary 5180 --puncture 5180", "--what", "a b"}) {
    EXPECT_EQ(run(std::string("channel_plan ") + bad).status, 2) << bad;
  }
  EXPECT_EQ(run("channel_plan --help").status, 0);
  EXPECT_EQ(run("channel_plan --phy phy9").output, "channel_plan: no radio 'phy9' in the text\n");
  EXPECT_EQ(run("channel_plan --band 5 --svg /nonexistent/x.svg").status, 1);
  EXPECT_EQ(run("channel_plan /nonexistent").output,
            "channel_plan: /nonexistent: cannot be read: No such file or directory\n");
}

TEST(ChannelPlan, PictureShowsEachChannelOnceAndTheBracketOverTheChannel) {
  const auto name = testing::TempDir() + "channel_plan.svg";
  ASSERT_EQ(run("channel_plan --primary 6135 --side upper --mark-interference 5995 --svg " + name).status, 0);
  const auto svg = file_content(name);
  const auto count = [&](const std::string &part) {
    std::size_t found = 0;
    for (auto at = svg.find(part); at != std::string::npos; at = svg.find(part, at + 1)) {
      ++found;
    }
    return found;
  };
  EXPECT_EQ(count(">320 MHz around 6265 MHz<"), 1U);
  for (const auto *const frequency : {"5955", "6135", "6415", "6435", "7115"}) {
    EXPECT_EQ(count(std::string(">") + frequency + "<"), 1U) << frequency;
  }
  EXPECT_EQ(count(">PRI<"), 1U);
  EXPECT_EQ(count(">INTERF.<"), 1U);
  EXPECT_EQ(count("fill=\"#1f4e79\" stroke="), 16U + 2U); // the channel, and twice in the legend
  EXPECT_EQ(count("stroke-linecap"), 16U + 2U);           // over each channel, and the two ends
  // The picture of the README.
  ASSERT_EQ(
      run("channel_plan --primary 5500 --mark-radar 5300,5540 --puncture 5540 --mark-interference 5785-5805 --svg " +
          name)
          .status,
      0);
  EXPECT_EQ(file_content(name), file_content(RAVIX_EXAMPLE_DATA "/../../docs/channel_plan.svg"));
}

TEST(ConfigDiff, PrintsTheChangesAsRecordedAndNoSecret) {
  const auto changes = run("config_diff --changes");
  EXPECT_EQ(changes.status, 0);
  harness::expect_golden("config_diff", changes.output);
  const auto all = run("config_diff");
  EXPECT_EQ(all.status, 0);
  EXPECT_TRUE(all.output.ends_with("===== what changed\n" + changes.output));
  for (const char *secret : {"herons", "welcome", "tide", "ebb", "keeper"}) {
    EXPECT_EQ(all.output.find(secret), std::string::npos) << secret;
  }
  EXPECT_EQ(run("config_diff --change").status, 2);
}

TEST(StationWatch, FollowsTheEventsAndEndsAsTheReadmeDoesInCpp) {
  const auto watched = run("station_watch");
  EXPECT_EQ(watched.status, 0);
  harness::expect_golden("station_watch", watched.output);
  const std::string last_part = run("test_readme").output;
  EXPECT_EQ(last_part.substr(0, 16), "radar detected:\n");
  EXPECT_EQ(watched.output.substr(watched.output.size() - last_part.size()), last_part);
  EXPECT_EQ(run("station_watch --help").status, 0);
  EXPECT_EQ(run("station_watch --nonsense").status, 2);
}

} // namespace
