// Texts read back: names and numbers in every parser, addresses against sscanf.
#include "ravix_types_str_convert.h"

#include "harness.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstdio>
#include <memory>
#include <optional>
#include <random>
#include <string>
#include <string_view>
#include <vector>

namespace {

constexpr std::int64_t untouched = 85; // no name and no number of the tests below

// One parser, whatever the type of its output.
struct parser {
  const char *function;
  bool (*parse)(const char *text, std::int64_t *output); // either may be null
};

template <class Output, bool (*Function)(const char *, Output *)> bool through(const char *text, std::int64_t *output) {
  auto value = static_cast<Output>(untouched);
  if constexpr (std::is_same_v<Output, bool>) {
    value = *output != 0;
  }
  const bool parsed = Function(text, output != nullptr ? &value : nullptr);
  if (output != nullptr) {
    *output = static_cast<std::int64_t>(value);
  }
  return parsed;
}

constexpr parser event_type = {"ravix_simulated_event_type_from_str",
                               through<std::uint8_t, ravix_simulated_event_type_from_str>};
constexpr parser role_opmode = {"ravix_role_opmode_from_str", through<std::uint8_t, ravix_role_opmode_from_str>};
constexpr parser method = {"ravix_connect_method_from_str", through<std::int32_t, ravix_connect_method_from_str>};
constexpr parser session = {"ravix_connect_session_id_from_str",
                            through<std::int32_t, ravix_connect_session_id_from_str>};
constexpr parser identifier = {"ravix_id_from_str", through<std::int32_t, ravix_id_from_str>};
constexpr parser frequency = {"ravix_frequency_from_str", through<std::uint32_t, ravix_frequency_from_str>};

// The function name under which a parser's lines are logged.
std::string logged_as(const parser &p) {
  return p.function == identifier.function ? "ravix_id_from_str" : "ravix_numval_from_str";
}

void expect_line(harness::captured_log &log, const std::string &function, const std::string &text) {
  const std::vector<harness::log_line> lines = log.take();
  ASSERT_EQ(1U, lines.size()) << function << ": " << text;
  EXPECT_EQ("ravix", lines[0].name);
  EXPECT_EQ("src/ravix_types_str_convert", lines[0].file);
  EXPECT_EQ(function, lines[0].function);
  EXPECT_GT(lines[0].line, 0);
  EXPECT_EQ(text, lines[0].text);
}

// The text is read as that value and nothing is logged; without a value it is refused, and the output is 0.
void expect_parsed(const parser &p, const std::string &text, std::optional<std::int64_t> value) {
  SCOPED_TRACE(std::string(p.function) + "(\"" + text + "\")");
  harness::captured_log log;
  std::int64_t output = untouched;
  EXPECT_EQ(value.has_value(), p.parse(text.c_str(), &output));
  EXPECT_EQ(value.value_or(0), output);
  if (value) {
    EXPECT_TRUE(log.take().empty());
  } else {
    expect_line(log, logged_as(p), "Invalid parameter value '" + text + "'!");
  }
}

std::string in_case(std::string text, int (*change)(int)) {
  std::transform(text.begin(), text.end(), text.begin(), [=](char c) { return static_cast<char>(change(c)); });
  return text;
}

std::string capitalized(const std::string &text) {
  return text.substr(0, 1) + in_case(text.substr(1), std::tolower);
}

TEST(Parse, EveryNameInEveryLetterCase) {
  const struct {
    parser p;
    std::string (*name)(std::int64_t value);
    std::vector<std::int64_t> values;
  } lists[] = {
      {event_type,
       [](std::int64_t value) -> std::string { return ravix_str_simulated_event_type(static_cast<uint32_t>(value)); },
       {0, 1, 2, 3}},
      {role_opmode,
       [](std::int64_t value) -> std::string { return ravix_str_role_opmode(static_cast<uint32_t>(value)); },
       {0, 1, 2, 3, 6, 7, 8, 9, 10, 11}},
      {method,
       [](std::int64_t value) -> std::string { return ravix_str_connect_method(static_cast<int32_t>(value)); },
       {0, 1, 2}},
      {session,
       [](std::int64_t value) -> std::string {
         return std::array{"INVALID", "ALL", "UNDEF", "LAST"}[static_cast<std::size_t>(-value)];
       },
       {0, -1, -2, -3}},
      {{"ravix_enabled_from_str", through<bool, ravix_enabled_from_str>},
       [](std::int64_t value) -> std::string { return ravix_str_enabled(value != 0); },
       {0, 1}},
  };
  for (const auto &list : lists) {
    for (const std::int64_t value : list.values) {
      const std::string name = list.name(value);
      ASSERT_NE('<', name[0]);
      for (const std::string &text : {name, in_case(name, std::tolower), capitalized(name)}) {
        expect_parsed(list.p, text, value);
      }
      expect_parsed(list.p, name + "X", std::nullopt);
      expect_parsed(list.p, " " + name, std::nullopt);
      expect_parsed(list.p, name.substr(0, name.size() - 1), std::nullopt);
    }
  }
}

TEST(Parse, ReservedIdentifiersInUpperCaseOnly) {
  for (const std::int32_t id : {-3, -2, -1, 0}) {
    const std::string name = ravix_str_id(id);
    expect_parsed(identifier, name, id);
    expect_parsed(identifier, in_case(name, std::tolower), std::nullopt);
    expect_parsed(identifier, capitalized(name), std::nullopt);
    expect_parsed(identifier, name + " ", std::nullopt);
  }
}

TEST(Parse, Numbers) {
  constexpr std::nullopt_t refused = std::nullopt;
  const std::string zeros(125, '0');
  const struct {
    const char *why;
    parser p;
    std::string text;
    std::optional<std::int64_t> value;
  } rows[] = {
      {"a single digit is not looked up", role_opmode, "4", 4},
      {"nor is this one", role_opmode, "5", 5},
      {"a value", role_opmode, "2", 2},
      {"two digits are looked up: the last sentinel", role_opmode, "11", 11},
      {"behind it", role_opmode, "12", refused},
      {"a hole, written with two digits", role_opmode, "04", refused},
      {"a value, written with two digits", role_opmode, "06", 6},
      {"more than eight bits, 2 in the lowest", role_opmode, "258", refused},
      {"more than 32 bits, 2 in the lowest", role_opmode, "4294967298", refused},
      {"more than 64 bits, 2 in the lowest", role_opmode, "18446744073709551618", refused},
      {"a minus makes it a name", role_opmode, "-1", refused},
      {"a single digit is not looked up", event_type, "9", 9},
      {"10 is no event", event_type, "10", refused},
      {"a single digit is not looked up", method, "7", 7},
      {"the sentinel", method, "02", 2},
      {"no method", method, "03", refused},
      {"a minus makes it a name", method, "-1", refused},
      {"most", session, "2147483647", 2147483647},
      {"one more", session, "2147483648", refused},
      {"a minus makes it a name", session, "-1", refused},
      {"none of the identifiers' names", session, "NONE", refused},
      {"most", identifier, "2147483647", 2147483647},
      {"one more", identifier, "2147483648", refused},
      {"least", identifier, "-2147483648", -2147483648},
      {"one less", identifier, "-2147483649", refused},
      {"negative", identifier, "-5", -5},
      {"a reserved one by number", identifier, "-3", -3},
      {"minus nothing", identifier, "-0", 0},
      {"far beyond 64 bits", identifier, "-99999999999999999999999", refused},
      {"two signs", identifier, "--5", refused},
      {"a sign alone", identifier, "-", refused},
      {"none of the sessions' names", identifier, "UNDEF", refused},
      {"something left over", identifier, "-5x", refused},
      {"most", frequency, "4294967295", 4294967295},
      {"one more", frequency, "4294967296", refused},
      {"a usual one", frequency, "5180000", 5180000},
      {"a single digit", frequency, "7", 7},
      {"negative", frequency, "-5", refused},
      {"minus nothing", frequency, "-0", 0},
      {"a unit", frequency, "5G", refused},
      {"a name", frequency, "INVALID", refused},
      {"a blank before it", frequency, " 5180000", refused},
      {"a blank behind it", frequency, "5180000 ", refused},
      {"a plus", frequency, "+5180000", refused},
      {"hexadecimal", frequency, "0x10", refused},
      {"a group separator", frequency, "5.180.000", refused},
      {"127 digits, the last of which counts", frequency, zeros + "42", 42},
      {"128 digits, the last of which does not", frequency, zeros + "427", 42},
      {"a letter as the 128th character", frequency, zeros + "42x", 42},
      {"a letter as the 127th", frequency, zeros + "4x", refused},
      {"the sign is one of the 127", identifier, "-" + zeros + "42", -4},
      {"200 digits", frequency, std::string(200, '1'), refused},
      {"200 digits", role_opmode, std::string(200, '1'), refused},
      {"a value in 127 digits", role_opmode, zeros + "11", 11},
      {"a name of more than 127 characters", role_opmode, "AP_HOME" + std::string(150, ' '), refused},
  };
  for (const auto &row : rows) {
    SCOPED_TRACE(row.why);
    expect_parsed(row.p, row.text, row.value);
  }
}

TEST(Parse, EnabledTakesTwoDigitsOnly) {
  harness::captured_log log;
  for (const bool before : {false, true}) {
    for (const std::string text : {"0", "1", "00", "01"}) {
      bool output = before;
      EXPECT_TRUE(ravix_enabled_from_str(text.c_str(), &output)) << text;
      EXPECT_EQ(text.back() == '1', output) << text;
      EXPECT_TRUE(log.take().empty());
    }
    for (const std::string text : {"2", "9", "02", "10", "-1", "TRUE", "O", "ONOFF"}) {
      bool output = before;
      EXPECT_FALSE(ravix_enabled_from_str(text.c_str(), &output)) << text;
      EXPECT_FALSE(output) << text;
      expect_line(log, "ravix_numval_from_str", "Invalid parameter value '" + text + "'!");
    }
  }
}

TEST(Parse, NothingToReadOrToWrite) {
  harness::captured_log log;
  for (const parser &p : {event_type, role_opmode, method, session, identifier, frequency}) {
    SCOPED_TRACE(p.function);
    std::int64_t output = untouched;
    EXPECT_FALSE(p.parse(nullptr, &output));
    expect_line(log, logged_as(p), "Invalid pointer 'str_param'!");
    EXPECT_FALSE(p.parse("1", nullptr));
    expect_line(log, logged_as(p), "Invalid pointer 'output'!");
    EXPECT_FALSE(p.parse(nullptr, nullptr));
    expect_line(log, logged_as(p), "Invalid pointer 'str_param'!");
    EXPECT_FALSE(p.parse("", &output));
    expect_line(log, logged_as(p), "str_param is empty!");
    EXPECT_EQ(untouched, output);
  }
  bool enabled = true;
  EXPECT_FALSE(ravix_enabled_from_str("", &enabled));
  EXPECT_TRUE(enabled);
  expect_line(log, "ravix_numval_from_str", "str_param is empty!");
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

TEST(Parse, AddressesAsPrinted) {
  const std::uint8_t mac[] = {0x00, 0x11, 0x22, 0x33, 0x44, 0x55};
  for (const char *text : {"00:11:22:33:44:55", "00-11-22-33-44-55", "001122334455", "00:11:22:33:44:55 and more"}) {
    std::uint8_t output[6] = {};
    EXPECT_TRUE(ravix_mac_from_str(text, output)) << text;
    EXPECT_TRUE(std::equal(output, output + 6, mac)) << text;
  }
  std::uint8_t output[16] = {};
  const std::string uuid = "01234567-89AB-CDEF-FEDC-BA9876543210";
  EXPECT_TRUE(ravix_uuid_from_str(in_case(uuid, std::tolower).c_str(), output));
  EXPECT_EQ(uuid, ravix_str_uuid(output));
}

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
      expected.fill(untouched);
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

TEST(Parse, NoAddressAtAll) {
  harness::captured_log log;
  for (const address_parser &p : address_parsers) {
    octets output;
    output.fill(untouched);
    const octets before = output;
    EXPECT_FALSE(p.parse(nullptr, output.data()));
    expect_line(log, p.function, "Invalid pointer 'str_param'!");
    EXPECT_FALSE(p.parse("00", nullptr));
    expect_line(log, p.function, "Invalid pointer 'output'!");
    EXPECT_FALSE(p.parse(nullptr, nullptr));
    expect_line(log, p.function, "Invalid pointer 'str_param'!");
    EXPECT_FALSE(p.parse("", output.data()));
    EXPECT_TRUE(log.take().empty());
    EXPECT_EQ(before, output);
  }
}

} // namespace
