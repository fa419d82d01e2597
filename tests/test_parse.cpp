// Texts read back: names and numbers in every parser, addresses against sscanf.
#include "golden.hpp"
#include "harness.hpp"

#include "ravix_types_str_convert.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstdio>
#include <memory>
#include <random>
#include <string>
#include <string_view>
#include <type_traits>
#include <vector>

namespace {

// One parser, whatever the type of its output: the value in the output is given and returned as `before`. A parser of
// octets is asked for the first one.
template <auto Function> bool through(const char *text, std::int64_t *output) {
  const auto call = [&]<class Output>(bool (*parse)(const char *, Output *)) {
    std::array<Output, RAVIX_UUID_LEN> value = {static_cast<Output>(output != nullptr ? *output : 0)};
    const bool parsed = parse(text, output != nullptr ? value.data() : nullptr);
    if (output != nullptr)
      *output = static_cast<std::int64_t>(value[0]);
    return parsed;
  };
  return call(Function);
}

template <auto Formatter> std::string name_of(std::int64_t value) {
  const auto call = [&]<class Value>(const char *(*format)(Value)) { return format(static_cast<Value>(value)); };
  return call(Formatter);
}

std::string name_of_session(std::int64_t value) {
  return std::array{"INVALID", "ALL", "UNDEF", "LAST"}.at(static_cast<std::size_t>(-value));
}

const struct {
  std::string_view name;
  bool (*parse)(const char *text, std::int64_t *output); // either may be null
  std::string (*name_of)(std::int64_t value);
  std::vector<std::int64_t> named;
} parsers[] = {
    {"event_type", through<ravix_simulated_event_type_from_str>, name_of<ravix_str_simulated_event_type>, {0, 1, 2, 3}},
    {"role_opmode",
     through<ravix_role_opmode_from_str>,
     name_of<ravix_str_role_opmode>,
     {0, 1, 2, 3, 6, 7, 8, 9, 10, 11}},
    {"method", through<ravix_connect_method_from_str>, name_of<ravix_str_connect_method>, {0, 1, 2}},
    {"session", through<ravix_connect_session_id_from_str>, name_of_session, {0, -1, -2, -3}},
    {"enabled", through<ravix_enabled_from_str>, name_of<ravix_str_enabled>, {0, 1}},
    {"identifier", through<ravix_id_from_str>, name_of<ravix_str_id>, {0, -1, -2, -3}},
    {"frequency", through<ravix_frequency_from_str>, nullptr, {}},
    {"mac", through<ravix_mac_from_str>, nullptr, {}},
    {"uuid", through<ravix_uuid_from_str>, nullptr, {}},
};

TEST(Parse, TextsAreReadAsRecorded) {
  harness::expect_answers("parse", [](const std::string &call) {
    const std::string name = call.substr(0, call.find(' '));
    const auto *const parser = std::ranges::find(parsers, name, [](const auto &p) { return p.name; });
    const std::string rest = call.substr(name.size() + 1);
    const std::string text = rest.starts_with('"') ? rest.substr(1, rest.rfind('"') - 1) : "";
    const char *const given = rest.starts_with("null") ? nullptr : text.c_str();
    if (rest.ends_with(" null"))
      return std::string(parser->parse(given, nullptr) ? "read" : "refused");
    std::int64_t output = 85; // which no parser sets here
    const bool read = parser->parse(given, &output);
    return (read ? "read " : "refused ") + std::to_string(output);
  });
}

std::string in_case(std::string text, int (*change)(int), std::size_t from = 0) {
  std::transform(text.begin() + static_cast<std::ptrdiff_t>(from), text.end(),
                 text.begin() + static_cast<std::ptrdiff_t>(from),
                 [=](char c) { return static_cast<char>(change(c)); });
  return text;
}

TEST(Parse, NamesInEveryLetterCaseAndReservedIdentifiersAsPrinted) {
  for (const auto &parser : parsers) {
    for (const std::int64_t value : parser.named) {
      const std::string name = parser.name_of(value);
      ASSERT_NE('<', name[0]);
      for (const std::string &text : {name, in_case(name, std::tolower), in_case(name, std::tolower, 1)}) {
        const bool readable = text == name || parser.name != "identifier";
        std::int64_t output = 1 - value;
        EXPECT_EQ(readable, parser.parse(text.c_str(), &output)) << parser.name << ' ' << text;
        EXPECT_EQ(readable ? value : 0, output) << parser.name << ' ' << text;
      }
    }
  }
}

// --- Addresses ---

using octets = std::array<std::uint8_t, RAVIX_UUID_LEN>;

struct address_parser {
  const char *function;
  bool (*parse)(const char *text, std::uint8_t *output);
  bool (*judge)(const char *text, octets &o);
  std::vector<std::string> samples;
};

bool scanned_mac(const char *text, octets &o) {
  const auto scan = [&](const char *format) {
    return std::sscanf(text, format, &o[0], &o[1], &o[2], &o[3], &o[4], &o[5]) == 6;
  };
  return scan("%02hhx:%02hhx:%02hhx:%02hhx:%02hhx:%02hhx") || scan("%02hhx-%02hhx-%02hhx-%02hhx-%02hhx-%02hhx") ||
         scan("%02hhx%02hhx%02hhx%02hhx%02hhx%02hhx");
}

bool scanned_uuid(const char *text, octets &o) {
  const char *format = "%02hhx%02hhx%02hhx%02hhx-%02hhx%02hhx-%02hhx%02hhx-%02hhx%02hhx-"
                       "%02hhx%02hhx%02hhx%02hhx%02hhx%02hhx";
  return std::sscanf(text, format, &o[0], &o[1], &o[2], &o[3], &o[4], &o[5], &o[6], &o[7], &o[8], &o[9], &o[10], &o[11],
                     &o[12], &o[13], &o[14], &o[15]) == 16;
}

const address_parser address_parsers[] = {
    {"ravix_mac_from_str",
     ravix_mac_from_str,
     scanned_mac,
     {"00:1A:2b:3C:4d:5E", "00-1A-2b-3C-4d-5E", "001A2b3C4d5E", "00.1A.2b.3C.4d.5E", " 0: 1: 2: 3: 4: 5", "0x:1",
      "+1:-2:3:4:5:6"}},
    {"ravix_uuid_from_str",
     ravix_uuid_from_str,
     scanned_uuid,
     {"00112233-4455-6677-8899-AAbbCCddEEff", "0 1 2 3 - 4 5- 6 7-8 9-a b c d e f",
      "00112233445566778899AABBCCDDEEFF"}},
};

// Result and octets, those of a failed attempt included, are sscanf's for every text.
TEST(Parse, AddressesAsScanned) {
  std::mt19937 random(1); // NOLINT(cert-msc32-c,cert-msc51-cpp): the same texts in each run
  constexpr std::string_view alphabet = "0123456789abcdefABCDEFxXgG:-+ \t.";
  harness::captured_log log;
  for (const address_parser &p : address_parsers) {
    std::array<int, 2> seen = {};
    for (int round = 0; round < 100000; ++round) {
      std::string text = p.samples[random() % p.samples.size()];
      for (auto mutations = random() % 4; mutations > 0 && !text.empty(); --mutations) {
        const std::size_t at = random() % text.size();
        switch (random() % 4) {
        case 0:
          text[at] = alphabet[random() % alphabet.size()];
          break;
        case 1:
          text.insert(at, 1, alphabet[random() % alphabet.size()]);
          break;
        case 2:
          text.erase(at, 1);
          break;
        default:
          text.resize(at);
          break;
        }
      }
      // In memory of its own size, so that a sanitizer sees a character read behind the end.
      const auto exact = std::make_unique<char[]>(text.size() + 1);
      std::copy(text.begin(), text.end(), exact.get());
      octets expected;
      expected.fill(85);
      octets output = expected;
      const bool readable = p.judge(text.c_str(), expected);
      ASSERT_EQ(readable, p.parse(exact.get(), output.data())) << p.function << " of '" << text << "'";
      ASSERT_EQ(expected, output) << p.function << " of '" << text << "'";
      ++seen[readable ? 1 : 0];
    }
    EXPECT_GT(seen[0], 10000) << "refused";
    EXPECT_GT(seen[1], 10000) << "read";
  }
  EXPECT_TRUE(log.take().empty()) << "an address that cannot be read is not logged";
}

} // namespace
