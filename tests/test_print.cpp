// The texts of the stream operators and the difference printers: of specimens, as a person has written them; what the
// two layouts add to them, by a judge that knows nothing but texts; what printing does to the stream; and that no
// output tells a secret.
#include "ravix_types_printers.hpp"

#include "golden.hpp"
#include "record_tools.hpp"
#include "specimens.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <iomanip>
#include <ios>
#include <map>
#include <ostream>
#include <regex>
#include <set>
#include <sstream>
#include <streambuf>
#include <string>
#include <typeinfo>
#include <utility>
#include <vector>

namespace {

using harness::any_sample;
using harness::record_type;

// A time stamp begins with the date that it stands for now.
std::string undated(const std::string &text) {
  static const std::regex date(R"(\d\d\.\d\d\.\d{4} \d\d:\d\d:\d\d/)");
  return std::regex_replace(text, date, "<date>/");
}

template <class Print> std::string printed_by(Print print) {
  std::ostringstream stream;
  print(stream);
  return undated(stream.str());
}

std::string text(const record_type &type, const void *value) {
  return printed_by([&](std::ostream &stream) { type.print(stream, value); });
}
std::string diff(const record_type &type, const void *value, const void *reference, const char *name = nullptr,
                 unsigned indent = 0, bool newline = true) {
  return printed_by([&](std::ostream &stream) { type.print_diff(stream, value, reference, name, indent, newline); });
}
std::string whole(const record_type &type, const void *value) {
  return diff(type, value, nullptr);
}

// Values that a difference print shows on one line, and records that it shows by a line for each field.
bool is_of_one_line(const record_type &type) {
  return std::set<std::string>{"ravix_channel_info", "ravix_ip_addr", "ravix_ssid", "ravix_key"}.contains(type.name);
}
bool is_of_fields(const record_type &type) {
  return type.print_diff != nullptr && type.init == nullptr && !is_of_one_line(type) && type.name != "ravix_tlv";
}

// ---- specimens

struct specimen {
  std::string name;
  const record_type &type;
  const void *record;
};

#define SPECIMEN(name) {#name, harness::type_of(typeid(name)), &(name)},
const std::vector<specimen> specimens = {SPECIMENS(SPECIMEN)};
// With the records that they consist of.
const std::vector<specimen> parts = {SPECIMENS(SPECIMEN) PARTS_OF_SPECIMENS(SPECIMEN)};

TEST(Specimens, PrintAsWritten) {
  harness::golden_sections sections;
  const auto add = [&](const std::string &title, const std::string &shown) {
    sections.add(title,
                 std::regex_replace(shown.substr(0, shown.find_last_not_of('\n') + 1), std::regex(" (\n|$)"), " |$1"));
  };
  std::map<const record_type *, const specimen *> last;
  for (const specimen &now : specimens) {
    if (now.type.print != nullptr) {
      add(now.name, text(now.type, now.record));
    } else if (const specimen *before = std::exchange(last[&now.type], &now); before != nullptr) {
      add(now.name + " after " + before->name, diff(now.type, now.record, before->record));
    } else {
      add(now.name, whole(now.type, now.record));
    }
  }
  add("scan results without the names of networks",
      printed_by([](std::ostream &stream) { print_scan_results(stream, scan_results, true); }));
  const ravix_radio_airtime_entry_t airtimes{0.5F, 12345.6875F, -0.0004F, 1e6F};
  add("airtimes of few digits and of many", text(harness::type_of(typeid(airtimes)), &airtimes));
  const ravix_tlv_t full_row{7, 16, vendor_octets};
  add("an element of a full row", whole(harness::type_of(typeid(full_row)), &full_row));
  std::vector<std::uint8_t> octets(UINT8_MAX);
  const ravix_tlv_t longest{7, UINT8_MAX, octets.data()};
  const std::string rows = whole(harness::type_of(typeid(longest)), &longest);
  EXPECT_TRUE(std::ranges::count(rows, '\n') == 17 && rows.find("\n000000f0: 00 ") != std::string::npos) << rows;
  sections.expect("specimens");
}

TEST(ScanListing, IsMadeOfItsTableAndThatOfItsEntries) {
  for (const bool hide_ssid : {false, true}) {
    const auto shown = [&](auto print, const auto &what) {
      return printed_by([&](std::ostream &stream) { print(stream, what, hide_ssid); });
    };
    const std::string listed = shown(print_scan_table, scan_results.scan_table);
    EXPECT_TRUE(shown(print_scan_results, scan_results).ends_with("\nScan table:\n" + listed));
    EXPECT_TRUE(listed.ends_with("\n[2]: " + shown(print_scan_entry, heard[2])));
  }
}

TEST(Specimens, HaveAValueInEachFieldOfEachRecord) {
  std::set<std::string> missing;
  for (const record_type *type : harness::record_types()) {
    std::ranges::for_each(type->fields, [&](const auto &field) { missing.insert(type->name + "." + field.name); });
  }
  for (const auto &[name, type, record] : parts) {
    for (const auto &field : type.fields) {
      if (!field.has_same_octets(record, any_sample(type))) {
        missing.erase(type.name + "." + field.name);
      }
    }
  }
  EXPECT_EQ(missing, std::set<std::string>{});
}

TEST(NewRecords, PrintAsWritten) {
  std::map<std::string, std::string> shown;
  for (const record_type *type : harness::record_types()) {
    if (type->init == nullptr && (type->print != nullptr || type->print_diff != nullptr)) {
      const any_sample empty(*type);
      const std::string lines = type->print != nullptr ? text(*type, empty) : whole(*type, empty);
      shown[type->name] =
          std::regex_replace(std::regex_replace(lines, std::regex("^ +|\n$"), ""), std::regex("\n *"), "; ");
    }
  }
  std::string all;
  harness::expect_answers("new_records", [&](const std::string &name) {
    all += shown.at(name) + "; ";
    return shown.at(name);
  });
  for (const auto &[name, line] : shown) {
    EXPECT_NE(all.find(line + "; "), std::string::npos) << name << " stands nowhere: " << line;
  }
}

// ---- what a difference print adds to the texts of fields, judged by texts

// What stands in a text's first column: a line each, with the deeper lines below it.
std::vector<std::string> entries_of(const std::string &content) {
  static const std::regex entry("[^ \n][^\n]*\n( [^\n]*\n)*");
  return {std::sregex_token_iterator(content.begin(), content.end(), entry), {}};
}

std::string indented(const std::string &content, std::size_t blanks) {
  return std::regex_replace(content, std::regex("[^\n]+"), std::string(blanks, ' ') + "$&");
}

// What is to be shown of a whole when another one is the reference: a field that is there in both if it differs, and of
// a record in it no more than that. A table's entries, which no name begins, are shown together.
std::string judged_difference(const std::string &value, const std::string &reference) {
  const auto is_record = [](const std::string &entry) {
    const std::size_t end = entry.find(":\n ");
    return end != std::string::npos && entry[end + 3] >= 'a' && entry[end + 3] <= 'z';
  };
  const auto inner = [](const std::string &entry) {
    return std::regex_replace(entry.substr(entry.find('\n') + 1), std::regex("(^|\n) "), "$1");
  };
  std::string shown;
  const auto before = entries_of(reference);
  for (const std::string &entry : entries_of(value)) {
    const std::string name = entry.substr(0, entry.find(':') + 1);
    const auto twin = std::ranges::find_if(before, [&](const auto &other) { return other.starts_with(name); });
    if (twin == before.end() || !is_record(entry) || !is_record(*twin)) {
      shown += twin != before.end() && *twin == entry ? "" : entry;
    } else if (const std::string left = judged_difference(inner(entry), inner(*twin)); !left.empty()) {
      shown += name + '\n' + indented(left, 1);
    }
  }
  return shown;
}

// With each of its fields empty. That a secret differs does not show in the wholes.
TEST(Differences, ShowTheFieldsThatDifferAlone) {
  std::set<std::string> unheeded;
  for (const auto &[name, type, record] : parts) {
    const auto expect = [](const record_type &of, const void *value, const void *reference) {
      const auto without_secrets = [](const std::string &shown) {
        return std::regex_replace(shown, std::regex(" *(key|secret): .SECRET.\n"), "");
      };
      EXPECT_EQ(without_secrets(diff(of, value, reference)),
                without_secrets(judged_difference(whole(of, value), whole(of, reference))));
    };
    for (const auto &field : type.fields) {
      std::vector<std::byte> other(type.size); // shares what the specimen has
      std::memcpy(other.data(), record, type.size);
      field.take(other.data(), any_sample(type));
      if (type.compare != nullptr && !field.has_same_octets(other.data(), record) &&
          type.compare(other.data(), record) == 0) {
        unheeded.insert(type.name + "." + field.name);
      } else if (is_of_fields(type)) {
        SCOPED_TRACE(name + "." + field.name);
        expect(type, other.data(), record);
        expect(type, record, other.data());
      }
    }
  }
  EXPECT_EQ(unheeded, std::set<std::string>{"ravix_cfg_radius_server.index"});
}

// Under a name and with the blanks of an indentation; a record that is the last field of another one ends its own line.
TEST(Differences, StandUnderTheirNameIndentedAndEndTheirLastLineAsAsked) {
  for (const auto &[of, type, record] : parts) {
    if (type.print_diff == nullptr) {
      continue;
    }
    const std::string content = whole(type, record);
    const bool has_end = is_of_fields(type) && entries_of(content).back().find(":\n") != std::string::npos;
    for (const char *name : {static_cast<const char *>(nullptr), "", "value"}) {
      const std::string named = name == nullptr        ? content
                                : is_of_one_line(type) ? std::string(name) + ": " + content
                                                       : std::string(name) + ":\n" + indented(content, 1);
      for (const unsigned indent : {0U, 1U, 2U, 47U, 48U, 49U, 97U, 300U}) {
        const std::string lines = indented(named, indent);
        EXPECT_EQ(diff(type, record, nullptr, name, indent, true), lines) << of;
        EXPECT_EQ(diff(type, record, nullptr, name, indent, false), lines.substr(0, lines.size() - (has_end ? 0 : 1)));
      }
    }
  }
}

// Nothing of the one is compared with the other, though their octets may be the same.
TEST(Differences, OfTwoAlternativesShowThePresentOneWhole) {
  const record_type &rules = harness::type_of(typeid(ravix_cfg_auto_update_rule_t));
  ravix_cfg_auto_update_rule_t by_opmode{}, by_feature{};
  by_opmode.type = RAVIX_CFG_AUTO_UPDATE_RULE_ROLE_OPMODE;
  by_feature.type = RAVIX_CFG_AUTO_UPDATE_RULE_FEATURE;
  EXPECT_EQ(diff(rules, &by_opmode, &by_feature), "type: 1\nauto_update_role_opmode:\n role_opmode: INVALID_MIN\n");
  EXPECT_EQ(diff(rules, &by_feature, &by_opmode), "type: 2\nauto_update_features:\n feature: [ ]\n");
}

// ---- tables

// The entries of a specimen over and over: each as in a table of its own, behind an index as wide as the last one, or a
// heading and the index. Numbers stand on one line as long as they are few.
TEST(Tables, NumberTheirEntriesAndAreNotShownWhereThatIsTooLong) {
  for (const auto &[name, type, record] : parts) {
    if (type.init == nullptr) {
      continue;
    }
    const auto shown = [](const record_type &of, const void *table) {
      return of.print != nullptr ? text(of, table) : diff(of, table, nullptr, nullptr, 0, false);
    };
    const std::string some = shown(type, record);
    std::smatch begin; // the names of columns, and the first index
    std::regex_search(some, begin, std::regex("^(\\[.*[|].*\n)?(?:\\[([A-Z ]+ )?0\\]:[ \n])?"));
    const std::string columns = begin[1], heading = begin[2];
    for (const std::uint32_t count : {0U, 1U, 2U, 5U, 6U, 10U, 11U, 50U, 51U, 100U, 101U}) {
      std::string expected = columns + (count == 0 ? "-- no entries --" : "");
      const any_sample many(type);
      for (std::uint32_t i = 0; i < count; ++i) {
        const any_sample one(type);
        const void *entry = type.at(record, i % *type.count(const_cast<void *>(record)));
        type.add_entry(many, entry);
        type.add_entry(one, entry);
        std::string index = std::to_string(i);
        index.insert(0, heading.empty() ? std::to_string(count - 1).size() - index.size() : 0, ' ');
        if (some[0] == '[' || count > 5) {
          expected += i == 0 ? "[" : "\n[";
          expected += heading + index;
          expected += heading.empty() ? "]: " : "]:\n";
        } else {
          expected += i == 0 ? "" : ", ";
        }
        expected += shown(type, one).substr(begin[0].str().size());
      }
      const bool is_too_long = count > 50 && columns.empty() && heading.empty();
      EXPECT_EQ(shown(type, many), is_too_long ? "-- too many entries --" : expected) << name;
    }
  }
  std::uint32_t frequencies[51] = {};
  ravix_scan_parameter_t parameter = scan_parameter;
  parameter.frequencies = {51, frequencies};
  const std::string deeper = text(harness::type_of(typeid(parameter)), &parameter);
  EXPECT_NE(deeper.find(" frequencies:\n  -- too many entries --\n ssids:"), std::string::npos) << deeper;
}

// ---- secrets

// Calls check(name, print) for each print of a part to a stream.
template <class Check> void for_each_print(Check check) {
  for (const specimen &part : parts) {
    const record_type &type = part.type;
    if (type.print != nullptr) {
      check(part.name, [&](std::ostream &stream) { type.print(stream, part.record); });
    }
    if (type.print_diff != nullptr) {
      const any_sample empty(type);
      check(part.name, [&](std::ostream &stream) { type.print_diff(stream, part.record, nullptr, "value", 1, true); });
      check(part.name, [&](std::ostream &stream) { type.print_diff(stream, part.record, empty, nullptr, 0, false); });
    }
  }
}

// All of them begin with the same word, which is looked for as it is and as hex digits in whatever layout.
TEST(Secrets, ReachNoOutput) {
  for_each_print([](const std::string &name, const auto &print) {
    const std::string shown = std::regex_replace(printed_by(print), std::regex("[ :,\n-]"), "");
    EXPECT_FALSE(std::regex_search(shown, std::regex("canary|63616e617279|63616E617279"))) << name << shown;
  });
}

// The fields of which a name suggests that they should not be shown, and two that it does not tell the truth of.
TEST(Secrets, AreTheKeysOfNetworksAndTheSecretsOfServers) {
  const std::regex suggestion("key|secret|pass|psk|pin|token|credential|private");
  std::set<std::string> suggested;
  for (const record_type *type : harness::record_types()) {
    for (const auto &field : type->fields) {
      if (std::regex_search(field.name, suggestion)) {
        suggested.insert(type->name + "." + field.name);
      }
    }
  }
  EXPECT_EQ(suggested, (std::set<std::string>{"ravix_cfg_wlan_security.key", "ravix_cfg_radius_server.secret",
                                              "ravix_key.key", "ravix_cfg_security_extended.key_mgmt"}));
}

// ---- the stream

// Takes so many characters, then fails.
class short_buffer : public std::streambuf {
public:
  explicit short_buffer(std::size_t room) : memory_(room, '\0') { setp(memory_.data(), memory_.data() + room); }
  std::size_t taken() const { return static_cast<std::size_t>(pptr() - pbase()); }
  int flushes = 0;

private:
  int sync() override { return ++flushes, 0; }
  std::string memory_;
};

void set_format(std::ostream &stream) {
  stream << std::hex << std::left << std::showbase << std::showpos << std::uppercase << std::scientific
         << std::boolalpha << std::setprecision(1) << std::setfill('#') << std::setw(10);
  stream.exceptions(std::ios_base::eofbit);
}

bool has_format(std::ostream &stream) {
  std::ostringstream twin;
  set_format(twin);
  return stream.flags() == twin.flags() && stream.precision() == 1 && stream.fill() == '#' && stream.width() == 10 &&
         stream.exceptions() == std::ios_base::eofbit;
}

// Also by the guard for printers that set formats of their own.
TEST(Streams, KeepTheirFormatWhichIsNotHeededAndStayFailed) {
  const auto check = [](const std::string &name, const auto &print) {
    SCOPED_TRACE(name);
    std::ostringstream whole;
    set_format(whole);
    print(whole);
    EXPECT_TRUE(has_format(whole));
    EXPECT_EQ(undated(whole.str()), printed_by(print));
    const std::size_t size = whole.str().size();
    for (const std::size_t room : {std::size_t{0}, size / 2, size - 1}) {
      for (const bool throws : {false, true}) {
        short_buffer buffer(room);
        std::ostream stream(&buffer);
        set_format(stream);
        if (throws) {
          stream.exceptions(std::ios_base::badbit);
          EXPECT_THROW(print(stream), std::ios_base::failure);
          EXPECT_EQ(stream.exceptions(), std::ios_base::badbit);
          stream.exceptions(std::ios_base::eofbit);
        }
        print(stream);
        EXPECT_TRUE(stream.bad() && has_format(stream) && buffer.taken() == room);
        print(stream);
        EXPECT_EQ(buffer.taken(), room) << "nothing more goes to a stream that has failed";
      }
    }
  };
  for_each_print(check);
  check("zel::ios_copyfmt", [](std::ostream &stream) {
    const zel::ios_copyfmt guard(stream);
    stream.flags(std::ios_base::fixed);
    stream << std::setw(9) << std::setfill('0') << std::setprecision(3) << 7.5;
    stream.exceptions(std::ios_base::goodbit);
  });
}

// Neither written to nor flushed, as std::cerr and what is tied to a stream would be by writing nothing, nor asked for
// its state.
TEST(Streams, AreLeftAloneByValuesThatAreEqual) {
  for (const auto &[name, type, record] : parts) {
    if (type.print_diff == nullptr) {
      continue;
    }
    short_buffer buffer(0), tied_buffer(0);
    std::ostream stream(&buffer), tied(&tied_buffer);
    stream.tie(&tied);
    stream << std::unitbuf;
    type.print_diff(stream, record, record, "value", 0, true);
    stream.setstate(std::ios_base::eofbit);
    stream.exceptions(std::ios_base::failbit);
    EXPECT_NO_THROW(type.print_diff(stream, record, record, "value", 0, true));
    EXPECT_EQ(buffer.flushes + tied_buffer.flushes, 0) << name;
    EXPECT_EQ(stream.rdstate(), std::ios_base::eofbit) << name;
  }
}

} // namespace
