// Texts read back: names of tests/data/names.txt, texts as they stand in parse.txt, addresses as sscanf() reads them.
#include "golden.hpp"
#include "harness.hpp"

#include "ravix_types_str_convert.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstdio>
#include <functional>
#include <map>
#include <memory>
#include <random>
#include <string>
#include <string_view>
#include <vector>

namespace {

using octets = std::array<std::uint8_t, RAVIX_UUID_LEN>;

// What comes of a text, whatever the type of a parser's output; of octets it is the first one.
using parser = std::function<std::string(const char *text, bool has_output)>;
template <class Output> parser answer_of(bool (*parse)(const char *, Output *)) {
  return [parse](const char *text, bool has_output) {
    std::array<Output, RAVIX_UUID_LEN> output = {static_cast<Output>(85)}; // which no parser sets here
    std::string result = parse(text, has_output ? output.data() : nullptr) ? "read" : "refused";
    return has_output ? result + ' ' + std::to_string(output[0]) : result;
  };
}

const std::map<std::string, parser> parsers = {{"simulated_event_type", answer_of(ravix_simulated_event_type_from_str)},
                                               {"role_opmode", answer_of(ravix_role_opmode_from_str)},
                                               {"connect_method", answer_of(ravix_connect_method_from_str)},
                                               {"connect_session_id", answer_of(ravix_connect_session_id_from_str)},
                                               {"enabled", answer_of(ravix_enabled_from_str)},
                                               {"id", answer_of(ravix_id_from_str)},
                                               {"frequency", answer_of(ravix_frequency_from_str)},
                                               {"mac", answer_of(ravix_mac_from_str)},
                                               {"uuid", answer_of(ravix_uuid_from_str)}};

// Whether a parser tells what it refuses, and the lines that it logs, with that text.
bool has_lines(const std::string &name) {
  return name != "mac" && name != "uuid";
}
std::string line_of(const std::string &name, const std::string &text) {
  const bool is_shared = has_lines(name) && name != "id";
  return "\n    ravix src/ravix_types_str_convert " +
         (is_shared ? "ravix_numval_from_str" : "ravix_" + name + "_from_str") + ": " + text;
}

TEST(Parse, TextsAreReadAsWritten) {
  harness::expect_answers("parse", [](const std::string &call) {
    harness::captured_log log;
    const std::size_t blank = call.find(' ');
    const std::string name = call.substr(0, blank), given = call.substr(blank + 2, call.size() - blank - 3);
    std::string answer = parsers.at(name)(given.c_str(), true);
    const bool is_told = has_lines(name) && answer.starts_with("refused");
    EXPECT_EQ(harness::logged(log), is_told ? line_of(name, "Invalid parameter value '" + given + "'!") : "");
    return answer;
  });
}

TEST(Parse, NamesAreReadInAnyLetterCase) {
  for (const auto &[list, names] : harness::written_names()) {
    if (!parsers.contains(list) || list == "id") { // whose names are read in upper case only
      continue;
    }
    for (const auto &[value, name] : names) {
      std::string lower = name;
      std::ranges::transform(lower, lower.begin(), [](char c) { return c >= 'A' && c <= 'Z' ? char(c + 32) : c; });
      for (const std::string &text : {name, lower, name.substr(0, 1) + lower.substr(1)}) {
        EXPECT_EQ(parsers.at(list)(text.c_str(), true), "read " + std::to_string(value)) << list << ' ' << text;
      }
    }
  }
}

TEST(Parse, NothingToReadAndNowhereToWriteAreToldApart) {
  harness::captured_log log;
  for (const auto &row : parsers) {
    const std::string &name = row.first;
    const auto expect = [&](const char *text, bool has_output, const std::string &answer, const std::string &line) {
      EXPECT_EQ(row.second(text, has_output), answer);
      EXPECT_EQ(harness::logged(log), line.empty() ? "" : line_of(name, line));
    };
    const std::string untouched = name == "enabled" ? "refused 1" : "refused 85";
    expect("", true, untouched, has_lines(name) ? "str_param is empty!" : "");
    expect(nullptr, true, untouched, "Invalid pointer 'str_param'!");
    expect(nullptr, false, "refused", "Invalid pointer 'str_param'!");
    expect("1", false, "refused", "Invalid pointer 'output'!");
  }
}

// Result and octets, those of a failed attempt included, are those of sscanf() by the first of the formats that leads
// to so many octets, for every text: samples with up to three faults.
void expect_as_scanned(bool (*parse)(const char *text, std::uint8_t *output), int count,
                       const std::vector<const char *> &formats, const std::vector<std::string> &samples) {
  std::mt19937 random(1); // NOLINT(cert-msc32-c,cert-msc51-cpp): the same texts in each run
  constexpr std::string_view alphabet = "0123456789abcdefABCDEFxXgG:-+ \t.\xFF";
  const harness::captured_log log;
  std::array<int, 2> seen = {};
  for (int round = 0; round < 100000; ++round) {
    std::string text = samples[random() % samples.size()];
    for (auto faults = random() % 4; faults > 0 && !text.empty(); --faults) {
      const std::size_t lost = random() % 6 == 0 ? std::string::npos : random() % 2;
      text.replace(random() % text.size(), lost, random() % 2, alphabet[random() % alphabet.size()]);
    }
    // In memory of its own size, so that a sanitizer sees a character read behind the end.
    const auto exact = std::make_unique<char[]>(text.size() + 1);
    std::ranges::copy(text, exact.get());
    octets o;
    o.fill(85);
    octets output = o;
    const bool readable = std::ranges::any_of(formats, [&](const char *format) {
      return std::sscanf(exact.get(), format, &o[0], &o[1], &o[2], &o[3], &o[4], &o[5], &o[6], &o[7], &o[8], &o[9],
                         &o[10], &o[11], &o[12], &o[13], &o[14], &o[15]) == count;
    });
    ASSERT_EQ(readable, parse(exact.get(), output.data())) << text;
    ASSERT_EQ(o, output) << text;
    ++seen[readable ? 1 : 0];
  }
  EXPECT_GT(std::min(seen[0], seen[1]), 10000);
}

TEST(Parse, AddressesAsScanned) {
  expect_as_scanned(ravix_mac_from_str, RAVIX_MAC_LEN,
                    {"%02hhx:%02hhx:%02hhx:%02hhx:%02hhx:%02hhx", "%02hhx-%02hhx-%02hhx-%02hhx-%02hhx-%02hhx",
                     "%02hhx%02hhx%02hhx%02hhx%02hhx%02hhx"},
                    {"00:1A:2b:3C:4d:5E", "00-1A-2b-3C-4d-5E", "001A2b3C4d5E", "00.1A.2b.3C.4d.5E", " 0: 1: 2: 3: 4: 5",
                     "0x:1", "+1:-2:3:4:5:6"});
  expect_as_scanned(ravix_uuid_from_str, RAVIX_UUID_LEN,
                    {"%02hhx%02hhx%02hhx%02hhx-%02hhx%02hhx-%02hhx%02hhx-%02hhx%02hhx-"
                     "%02hhx%02hhx%02hhx%02hhx%02hhx%02hhx"},
                    {"00112233-4455-6677-8899-AAbbCCddEEff", "0 1 2 3 - 4 5- 6 7-8 9-a b c d e f",
                     "00112233445566778899AABBCCDDEEFF"});
}

} // namespace
