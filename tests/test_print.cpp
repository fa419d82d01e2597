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
#include <iterator>
#include <map>
#include <memory>
#include <numeric>
#include <ostream>
#include <regex>
#include <set>
#include <sstream>
#include <streambuf>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>
#include <vector>

namespace {

using harness::for_all_records;
using harness::name_of;
using harness::sample;
using zel::ravix::table_record;

template <class R>
concept printable = std::is_class_v<R> && requires(std::ostream &stream, const R &value) {
  stream << value;
};
template <class R>
concept diffable = requires(std::ostream &stream, const R &value) {
  print_diff(stream, value, &value, "", 0U, true);
};

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

template <class R> std::string text(const R &value) {
  return printed_by([&](std::ostream &stream) { stream << value; });
}
template <class R>
std::string diff(const R &value, const R *reference, const char *name = nullptr, unsigned indent = 0,
                 bool newline = true) {
  return printed_by([&](std::ostream &stream) { print_diff(stream, value, reference, name, indent, newline); });
}
template <class R> std::string whole(const R &value) {
  return diff(value, static_cast<const R *>(nullptr));
}

// ---- specimens

// Calls visit(name, record) for the specimens, and for the records that they consist of.
template <class Visit> void for_each_specimen(Visit visit) {
#define VISIT(name) visit(#name, name);
  SPECIMENS(VISIT)
}
template <class Visit> void for_each_part(Visit visit) {
  for_each_specimen(visit);
  PARTS_OF_SPECIMENS(VISIT)
#undef VISIT
}

TEST(Specimens, PrintAsWritten) {
  harness::golden_sections sections;
  std::map<std::string, std::pair<std::string, const void *>> last; // by type
  for_each_specimen([&]<class R>(const std::string &name, const R &record) {
    if constexpr (printable<R>) {
      sections.add(name, text(record));
      return;
    } else {
      auto &[reference, before] = last[name_of<R>()];
      std::string shown = diff(record, static_cast<const R *>(before), nullptr, 0, false);
      shown.resize(shown.find_last_not_of('\n') + 1);
      shown = std::regex_replace(shown, std::regex(" (\n|$)"), " |$1");
      sections.add(before != nullptr ? std::string(name).append(" after ").append(reference) : name, shown);
      last[name_of<R>()] = {name, &record};
    }
  });
  sections.add("scan results without the names of networks",
               printed_by([](std::ostream &stream) { print_scan_results(stream, scan_results, true); }));
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
  for (const harness::record_type *type : harness::record_types()) {
    std::ranges::for_each(type->fields, [&](const auto &field) { missing.insert(type->name + "." + field.name); });
  }
  for_each_part([&]<class R>(const std::string & /*name*/, const R &record) {
    for (const auto &field : harness::type_of(typeid(R)).fields) {
      if (!field.has_same_octets(&record, &sample<R>().value)) {
        missing.erase(name_of<R>() + "." + field.name);
      }
    }
  });
  EXPECT_EQ(missing, std::set<std::string>{});
}

TEST(NewRecords, PrintAsWritten) {
  std::map<std::string, std::string> shown;
  for_all_records([&]<class R>() {
    if constexpr (!table_record<R> && printable<R>) {
      shown[name_of<R>()] = text(sample<R>().value);
    } else if constexpr (!table_record<R> && diffable<R>) {
      shown[name_of<R>()] = whole(sample<R>().value);
    }
  });
  for (auto &[name, lines] : shown) {
    lines = std::regex_replace(std::regex_replace(lines, std::regex("^ +|\n$"), ""), std::regex("\n *"), "; ");
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
  std::vector<std::string> entries;
  std::istringstream lines(content);
  for (std::string line; std::getline(lines, line);) {
    if (entries.empty() || line[0] != ' ') {
      entries.emplace_back();
    }
    entries.back() += line + '\n';
  }
  return entries;
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

// A whole, with the secret of its own that it hides, by which the judge tells records apart.
template <class R> std::string whole_with_secret(const R &r) {
  std::string secret;
  if constexpr (requires { r.security.key; }) {
    secret.assign(std::begin(r.security.key.key), std::end(r.security.key.key));
  } else if constexpr (requires { r.key; }) {
    secret.assign(std::begin(r.key.key), std::end(r.key.key));
  } else if constexpr (requires { r.secret; }) {
    secret = r.secret;
  }
  return std::regex_replace(whole(r), std::regex("(^|\n)( ?key|secret): .SECRET."), "$&" + secret);
}

// Records that are printed by a line for each field; the others are values of a single line, tables, elements.
template <class R, class... Other> constexpr bool is_none_of = (!std::is_same_v<R, Other> && ...);
template <class R>
constexpr bool is_record_of_fields = diffable<R> && !table_record<R> && !printable<R> &&
                                     is_none_of<R, ravix_tlv_t, ravix_ip_addr_t, ravix_ssid_t, ravix_key_t>;

// Whole, against itself, and with each of its fields empty.
TEST(Differences, ShowTheFieldsThatDifferAlone) {
  for_each_part([]<class R>(const std::string &name, const R &record) {
    if constexpr (is_record_of_fields<R>) {
      const auto expect = [&](const R &value, const R &reference) {
        const std::string shown = judged_difference(whole_with_secret(value), whole_with_secret(reference));
        EXPECT_EQ(diff(value, &reference), std::regex_replace(shown, std::regex("(.SECRET.)[^\n]*"), "$1")) << name;
      };
      expect(record, record);
      for (const auto &field : harness::type_of(typeid(R)).fields) {
        if (name_of<R>() + "." + field.name != "ravix_cfg_radius_server.index") { // which is not compared
          R other;                                                                // shares what the specimen has
          std::memcpy(&other, &record, sizeof other);
          field.take(&other, &sample<R>().value);
          expect(other, record);
          expect(record, other);
        }
      }
    }
  });
}

// The name above or before a content, the indentation of its lines, and its end.
template <class R>
std::string judged_layout(const R & /*of*/, const std::string &content, const char *name, unsigned indent,
                          bool ends_line) {
  std::string all = content;
  if (name != nullptr && (is_record_of_fields<R> || table_record<R> || std::is_same_v<R, ravix_tlv_t>)) {
    all = std::string(name) + ":\n" + indented(content, 1);
  } else if (name != nullptr) {
    all = std::string(name) + ": " + content;
  }
  all = indented(all, indent);
  return ends_line ? all : all.substr(0, all.size() - 1);
}

TEST(Differences, StandUnderTheirNameIndentedAndEndTheirLastLineAsAsked) {
  for_each_part([]<class R>(const std::string &of, const R &record) {
    if constexpr (diffable<R>) {
      const std::string content = whole(record);
      // A record that is the last field of another one ends its own line.
      const bool has_end = is_record_of_fields<R> && entries_of(content).back().find(":\n") != std::string::npos;
      for (const char *name : {static_cast<const char *>(nullptr), "", "value"}) {
        for (const unsigned indent : {0U, 1U, 2U, 47U, 48U, 49U, 97U, 300U}) {
          for (const bool newline : {false, true}) {
            EXPECT_EQ(diff(record, static_cast<const R *>(nullptr), name, indent, newline),
                      judged_layout(record, content, name, indent, newline || has_end))
                << of;
          }
        }
      }
    }
  });
}

// Nothing of the one is compared with the other, though their octets may be the same.
TEST(Differences, OfTwoAlternativesShowThePresentOneWhole) {
  ravix_cfg_auto_update_rule_t by_opmode{}, by_feature{};
  by_opmode.type = RAVIX_CFG_AUTO_UPDATE_RULE_ROLE_OPMODE;
  by_feature.type = RAVIX_CFG_AUTO_UPDATE_RULE_FEATURE;
  EXPECT_EQ(diff(by_opmode, &by_feature), "type: 1\nauto_update_role_opmode:\n role_opmode: INVALID_MIN\n");
  EXPECT_EQ(diff(by_feature, &by_opmode), "type: 2\nauto_update_features:\n feature: [ ]\n");
}

// ---- tables

// What a table shows of each entry, taken from its text: behind "[i]: ", "[HEADING i]:" or ", ".
std::vector<std::string> entries_shown(const std::string &table, const std::string &columns) {
  static const std::regex mark("(^|\n)\\[([A-Z ]+ | *)\\d+\\]:[ \n]");
  const std::regex separator = table[0] == '[' ? mark : std::regex(", ");
  const std::string rows = table.substr(columns.size());
  std::vector<std::string> entries(std::sregex_token_iterator(rows.begin(), rows.end(), separator, -1), {});
  entries.erase(entries.begin(), entries.begin() + (entries[0].empty() ? 1 : 0));
  return entries;
}

// All indices are as wide as the last one, but behind a heading.
std::string judged_index(const std::string &heading, std::size_t i, std::size_t count) {
  std::ostringstream index;
  const std::size_t width = heading.empty() ? std::to_string(count - 1).size() : 0;
  index << '[' << heading << std::setw(static_cast<int>(width)) << i << (heading.empty() ? "]: " : "]:\n");
  return index.str();
}

// The table of so many entries, of which the text of a few is known.
template <class T> std::string judged_table(const std::string &few, std::size_t count) {
  const std::string columns = std::regex_replace(few, std::regex("^(\\[.*[|].*\n)?[^]*"), "$1");
  const std::string heading = std::regex_replace(few, std::regex("^(\\[([A-Z ]+ )0\\]:\n)?[^]*"), "$2");
  const auto entries = entries_shown(few, columns);
  const bool is_short = std::is_integral_v<zel::ravix::element_of<T>> && count <= 5;
  std::string all = columns + (count == 0 ? "-- no entries --" : "");
  for (std::size_t i = 0; i < count; ++i) {
    all += i == 0 ? "" : is_short ? ", " : "\n";
    all += (is_short ? "" : judged_index(heading, i, count)) + entries[i % entries.size()];
  }
  return columns.empty() && heading.empty() && count > 50 ? "-- too many entries --" : all;
}

// The entries of a specimen over and over, shown like those of the specimen.
TEST(Tables, NumberTheirEntriesAndAreNotShownWhereThatIsTooLong) {
  for_each_part([]<class T>(const std::string &name, const T &some) {
    if constexpr (table_record<T>) {
      const auto shown = [](const T &t) {
        if constexpr (printable<T>) {
          return text(t);
        } else {
          const std::string lines = whole(t);
          return lines.substr(0, lines.size() - 1);
        }
      };
      for (const std::uint32_t count : {0U, 1U, 2U, 5U, 6U, 10U, 11U, 50U, 51U, 100U, 101U}) {
        const auto entries = std::make_unique<std::byte[]>(count * sizeof *some.data);
        T many = some;
        many.count = count;
        many.data = reinterpret_cast<decltype(many.data)>(entries.get());
        for (std::uint32_t i = 0; i < count; ++i) {
          std::memcpy(&many.data[i], &some.data[i % some.count], sizeof *many.data);
        }
        EXPECT_EQ(shown(many), judged_table<T>(shown(some), count)) << name;
      }
    }
  });
  std::uint32_t frequencies[51] = {};
  ravix_scan_parameter_t parameter = scan_parameter;
  parameter.frequencies = {51, frequencies};
  EXPECT_NE(text(parameter).find(" frequencies:\n  -- too many entries --\n ssids:"), std::string::npos);
}

// Rows of sixteen octets, at every length.
TEST(Elements, ShowTheirOctetsInRows) {
  std::vector<std::uint8_t> octets(UINT8_MAX);
  std::iota(octets.begin(), octets.end(), std::uint8_t{5});
  for (unsigned length = 0; length <= UINT8_MAX; ++length) {
    std::ostringstream expected;
    expected << "type: 7, length: " << length << std::hex << std::setfill('0');
    for (unsigned i = 0; i < (length + 15) / 16 * 16; ++i) {
      if (i % 16 == 0) {
        expected << '\n' << std::setw(8) << i << ": ";
      }
      if (i < length) {
        expected << std::setw(2) << unsigned{octets[i]} << ' ';
      } else {
        expected << "   ";
      }
    }
    EXPECT_EQ(whole(ravix_tlv_t{7, static_cast<std::uint8_t>(length), octets.data()}), expected.str() + "\n");
  }
}

TEST(Airtime, HasThreeDecimalsHoweverManyDigits) {
  EXPECT_EQ(text(ravix_radio_airtime_entry_t{0.5F, 12345.6875F, -0.0004F, 1e6F}),
            "   0.500, 12345.688,   -0.000, 1000000.000");
}

// ---- secrets

// Calls check(print) for each print of a record to a stream.
template <class R, class Check> void for_each_print(const R &record, Check check) {
  if constexpr (printable<R>) {
    check([&](std::ostream &stream) { stream << record; });
  }
  if constexpr (diffable<R>) {
    const sample<R> empty;
    check([&](std::ostream &stream) { print_diff(stream, record, static_cast<const R *>(nullptr), "value", 1, true); });
    check([&](std::ostream &stream) { print_diff(stream, record, &empty.value, nullptr, 0, false); });
  }
}

// All of them begin with the same word, which is looked for as it is and as hex digits in whatever layout.
TEST(Secrets, ReachNoOutput) {
  for_each_part([](const std::string &name, const auto &record) {
    for_each_print(record, [&](auto print) {
      const std::string shown = std::regex_replace(printed_by(print), std::regex("[ :,\n-]"), "");
      EXPECT_FALSE(std::regex_search(shown, std::regex("canary|63616e617279|63616E617279"))) << name << shown;
    });
  });
}

// The fields that show nothing of their value, and any whose name suggests that it should not.
TEST(Secrets, AreTheKeysOfNetworksAndTheSecretsOfServers) {
  const std::set<std::string> secrets = {"ravix_cfg_wlan_security.key", "ravix_cfg_radius_server.secret"};
  const std::set<std::string> names_alone = {"ravix_key.key", "ravix_cfg_security_extended.key_mgmt"};
  const std::regex suggestion("key|secret|pass|psk|pin|token|credential|private");
  std::set<std::string> hidden;
  for_each_part([&]<class R>(const std::string & /*name*/, const R &record) {
    for (const auto &field : harness::type_of(typeid(R)).fields) {
      const std::string name = name_of<R>() + "." + field.name;
      EXPECT_TRUE(!std::regex_search(field.name, suggestion) || secrets.contains(name) || names_alone.contains(name))
          << name;
      if constexpr (is_record_of_fields<R>) {
        R other;
        std::memcpy(&other, &record, sizeof other);
        field.take(&other, &sample<R>().value);
        if (!field.has_same_octets(&other, &record) && whole(other) == whole(record)) {
          hidden.insert(name);
        }
      }
    }
  });
  EXPECT_EQ(hidden, secrets);
  EXPECT_EQ(whole(home_network.security.key), "[SECRET]\n");
}

// ---- the stream

// Takes so many characters, then fails.
class short_buffer : public std::streambuf {
public:
  explicit short_buffer(std::size_t room) : memory_(room, '\0') { setp(memory_.data(), memory_.data() + room); }
  std::size_t taken() const { return static_cast<std::size_t>(pptr() - pbase()); }

private:
  std::string memory_;
};

void set_format(std::ostream &stream) {
  stream << std::hex << std::left << std::showbase << std::showpos << std::uppercase << std::scientific
         << std::boolalpha << std::setprecision(1) << std::setfill('#') << std::setw(10);
}

bool has_format(std::ostream &stream) {
  std::ostringstream twin;
  set_format(twin);
  return stream.flags() == twin.flags() && stream.precision() == 1 && stream.fill() == '#' && stream.width() == 10;
}

TEST(Streams, KeepTheirFormatWhichIsNotHeededAndStayFailed) {
  const auto check = [](auto print) {
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
          stream.exceptions(std::ios_base::goodbit);
        }
        print(stream);
        EXPECT_TRUE(stream.bad() && has_format(stream) && buffer.taken() == room);
        print(stream);
        EXPECT_EQ(buffer.taken(), room) << "nothing more goes to a stream that has failed";
      }
    }
  };
  for_each_part([&](const std::string & /*name*/, const auto &record) { for_each_print(record, check); });
}

// Counts whatever is done to it.
class touched_buffer : public std::streambuf {
public:
  int touches = 0;

private:
  int sync() override { return ++touches, 0; }
  int_type overflow(int_type character) override { return ++touches, character; }
  std::streamsize xsputn(const char * /*text*/, std::streamsize count) override { return ++touches, count; }
};

// Neither written to nor flushed, as std::cerr and what is tied to a stream would be by writing nothing, nor asked for
// its state.
TEST(Streams, AreLeftAloneByValuesThatAreEqual) {
  for (const harness::record_type *type : harness::record_types()) {
    const harness::any_sample r(*type, harness::randomness(1, harness::variety::full));
    if (type->print_diff == nullptr) {
      continue;
    }
    ASSERT_EQ(type->compare(r, r), 0) << type->name;
    touched_buffer buffer, tied_buffer;
    std::ostream stream(&buffer), tied(&tied_buffer);
    stream.tie(&tied);
    stream << std::unitbuf;
    type->print_diff(stream, r, r, "value");
    stream.setstate(std::ios_base::eofbit);
    stream.exceptions(std::ios_base::failbit);
    EXPECT_NO_THROW(type->print_diff(stream, r, r, "value"));
    EXPECT_EQ(buffer.touches + tied_buffer.touches, 0) << type->name;
    EXPECT_EQ(stream.rdstate(), std::ios_base::eofbit) << type->name;
  }
}

TEST(Streams, GetTheirFormatBackFromTheGuardEvenWhenTheyFailed) {
  for (const bool fails : {false, true}) {
    std::ostringstream stream;
    set_format(stream);
    stream.exceptions(std::ios_base::badbit);
    {
      const zel::ios_copyfmt guard(stream);
      stream << std::dec << std::setw(3) << std::setfill('0') << std::setprecision(9) << std::fixed << 7;
      stream.exceptions(std::ios_base::goodbit);
      stream.setstate(fails ? std::ios_base::badbit : std::ios_base::goodbit); // which it tells by an exception
    }
    EXPECT_TRUE(has_format(stream));
    EXPECT_EQ(stream.exceptions(), std::ios_base::badbit);
  }
}

} // namespace
