// Texts of the stream operators and the difference printers, as golden files; what they do to the stream; and that no
// output tells a secret.
#include "ravix_types_printers.hpp"

#include "golden.hpp"
#include "record_tools.hpp"

#include "ravix_types_print.hpp"

#include <gtest/gtest.h>

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <iomanip>
#include <ios>
#include <ostream>
#include <regex>
#include <sstream>
#include <streambuf>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace {

using harness::for_all_records;
using harness::name_of;
using harness::randomness;
using harness::sample;
using harness::variety;
using zel::ravix::record_table;
using zel::ravix::table_record;

template <class R>
concept printable = requires(std::ostream &stream, const R &value) {
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

// A filled record, but for what the machine or its C library has a say in.
template <class R> struct specimen : sample<R> {
  explicit specimen(randomness random) : sample<R>(random) {
    R &r = this->value;
    if constexpr (requires { r.status; }) {
      r.status = static_cast<decltype(r.status)>(0x80000002);
    }
    if constexpr (requires { r.hal_context; }) {
      r.hal_context = reinterpret_cast<void *>(std::uintptr_t{0x1A0}); // NOLINT(performance-no-int-to-ptr)
    }
    if constexpr (requires { r.recovery; }) { // is chosen behind a pointer
      r.recovery = true;
    }
  }
};

// ---- texts

// Filled with values that differ, and with the octet 255 over and over: numbers of all ones, texts without end, lengths
// beyond what is there. Tables of columns align their numbers.
TEST(Printers, RecordsEmptyAndFilled) {
  harness::golden_sections sections;
  const std::vector<std::uint8_t> ones(4096, 0xFF);
  for_all_records([&]<class R>() {
    if constexpr (printable<R>) {
      sections.add(name_of<R>(), text(specimen<R>(randomness(1, variety::tame)).value));
      sections.add(name_of<R>() + ", empty", text(sample<R>().value));
      sections.add(name_of<R>() + " of ones", text(specimen<R>(randomness(ones, variety::hostile)).value));
      if constexpr (table_record<R> && !record_table<R>) {
        for (const unsigned count : {10U, 11U}) {
          sample<R> table;
          randomness random(1, variety::tame);
          fill_table(table.value, count, random);
          sections.add(name_of<R>() + " of " + std::to_string(count), text(table.value));
        }
      }
    }
  });
  sections.add("odd numbers", text(ravix_radio_airtime_entry_t{0.5F, 12345.6875F, -0.0004F, 1e6F}));
  const sample<ravix_scan_results_t> some(4, variety::tame);
  sections.add("no network names", printed_by([&](std::ostream &stream) {
                 print_scan_entry(stream, some.value.scan_table.data[0], true);
                 print_scan_table(stream << "\n\n", {}, true);
                 print_scan_results(stream << "\n\n", some.value, true);
               }));
  sections.expect("print_records");
}

// ---- differences

template <class R>
std::string diff(const R &value, const R *reference, const char *name = "value", unsigned indent = 1,
                 bool newline = true) {
  return printed_by([&](std::ostream &stream) { print_diff(stream, value, reference, name, indent, newline); });
}

// Outputs by their titles, each with a '|' at its end.
struct outputs : harness::golden_sections {
  void add(const std::string &title, const std::string &text) { golden_sections::add(title, text + "|"); }
};

template <class R> constexpr const R *nothing = nullptr;

// What each output must be in view of the others.
template <class R> void expect_forms(const R &value) {
  const std::string whole = diff(value, nothing<R>);
  const std::string unended = diff(value, nothing<R>, "value", 1, false);
  EXPECT_EQ(whole, unended.ends_with('\n') ? unended : unended + '\n');
  const std::string nameless = diff(value, nothing<R>, nullptr, 2);
  EXPECT_EQ(whole, zel::ravix::value_record<R> ? " value: " + nameless.substr(2) : " value:\n" + nameless);
  EXPECT_EQ(diff(value, &value), "");
}

TEST(Differences, OfRecordsEmptyFilledAndOfEachField) {
  outputs golden;
  for_all_records([&]<class R>() {
    if constexpr (diffable<R> && !table_record<R>) {
      const sample<R> reference(4, variety::tame);
      expect_forms(reference.value);
      golden.add(name_of<R>(), diff(reference.value, nothing<R>, "value", 1, false));
      golden.add(name_of<R>() + ", empty", diff(sample<R>().value, nothing<R>, nullptr));
      randomness random(1, variety::tame);
      zel::ravix::for_each_field<R>([&](const auto &field) {
        sample<R> other(4, variety::tame);
        const std::string name = field.name;
        if (name == "op_mode" || name == "type") {
          return; // would be a record of another kind
        }
        while (zel::ravix::field_difference(field, other.value, reference.value) == 0) {
          field.clear(other.value, "tests");
          fill(field, other.value, random);
        }
        golden.add(name_of<R>() + ", other " + name, diff(other.value, &reference.value));
      });
    }
  });
  golden.expect("diff_records");
}

TEST(Differences, OfTables) {
  outputs golden;
  for_all_records([&]<class T>() {
    if constexpr (diffable<T> && table_record<T>) {
      for (const unsigned count : {0U, 1U, 5U, 6U, 11U, 50U, 51U}) {
        sample<T> table;
        const sample<T> none;
        randomness random(3, variety::tame);
        fill_table(table.value, count, random);
        expect_forms(table.value);
        const std::string whole = diff(table.value, nothing<T>, "value", 1, false);
        EXPECT_EQ(diff(table.value, &none.value, "value", 1, false), count == 0 ? "" : whole);
        if (!record_table<T> || count < 5) {
          golden.add(name_of<T>() + " of " + std::to_string(count), whole);
        } else { // there is no upper limit
          EXPECT_NE(whole.find(" " + std::to_string(count - 1) + "]:\n"), std::string::npos);
        }
      }
    }
  });
  golden.expect("diff_tables");
}

// Each value whole, and after each other; alternately with and without a line end.
template <class R> void add_all(outputs &golden, const std::vector<std::pair<std::string, R>> &values) {
  bool newline = false;
  for (const auto &[name, value] : values) {
    golden.add(name, diff(value, nothing<R>, "value", 1, newline));
    for (const auto &[reference_name, reference] : values) {
      golden.add(std::string(name).append(" after ").append(reference_name),
                 diff(value, &reference, "value", 1, newline = !newline));
    }
  }
}

TEST(Differences, OfWhatIsMissingOrOfAnotherKind) {
  outputs golden;
  std::uint8_t octets[17] = {0x00, 0x7F, 0x80, 0xFF};
  add_all<ravix_tlv_t>(golden, {{"none", {221, 0, nullptr}},
                                {"hollow", {221, 16, nullptr}},
                                {"a row", {221, 16, octets}},
                                {"more", {221, 17, octets}}});
  const auto rule = [](std::uint32_t type) {
    ravix_cfg_auto_update_rule_t made;
    std::memset(&made, 0, sizeof made); // braces would leave what lies beyond the first member of the union
    made.type = type;
    return made;
  };
  add_all<ravix_cfg_auto_update_rule_t>(
      golden, {{"no rule", rule(0)}, {"mode", rule(1)}, {"feature", rule(2)}, {"odd rule", rule(7)}});

  ravix_cfg_role_config_ap_t ap_config{};
  ravix_cfg_role_config_sta_t station_config{};
  const auto role = [](std::uint8_t mode, void *config, std::int32_t id = 0) {
    ravix_cfg_role_static_t made{};
    made.op_mode = mode;
    made.config_ap = static_cast<ravix_cfg_role_config_ap_t *>(config); // or that of a station
    made.id = id;
    return made;
  };
  void *odd_config = &octets; // never looked at
  add_all<ravix_cfg_role_static_t>(golden, {{"access point", role(RAVIX_ROLE_OPMODE_AP_HOME, &ap_config)},
                                            {"station", role(RAVIX_ROLE_OPMODE_REPEATER, &station_config)},
                                            {"incomplete", role(RAVIX_ROLE_OPMODE_AP_HOME, nullptr)},
                                            {"renamed incomplete", role(RAVIX_ROLE_OPMODE_AP_HOME, nullptr, 1)},
                                            {"odd role", role(4, odd_config)}});
  golden.expect("diff_special");
}

// Calls check(print) for each print of a record to a stream.
template <class Check>
void for_each_print(const harness::record_type &type, const void *r, const void *reference, Check check) {
  if (type.print != nullptr) {
    check([&](std::ostream &stream) { type.print(stream, r); });
  }
  if (type.print_diff != nullptr) {
    check([&](std::ostream &stream) { type.print_diff(stream, r, nullptr, "value"); });
    check([&](std::ostream &stream) { type.print_diff(stream, r, reference, nullptr); });
  }
}

// Tells whether a text has a secret's mark, as it is or as hex digits of whatever layout.
bool tells_secret(std::string text) {
  std::erase_if(text, [](char c) { return std::string_view(" :-,\n").find(c) != std::string_view::npos; });
  return text.find(harness::secret_mark) != std::string::npos || text.find("5a5a5a5a") != std::string::npos ||
         text.find("5A5A5A5A") != std::string::npos;
}

TEST(Secrets, ReachNoOutput) {
  for (const harness::record_type *type : harness::record_types()) {
    for (unsigned seed = 0; seed < 5; ++seed) {
      const auto check = [](auto print) {
        const std::string text = printed_by(print);
        EXPECT_FALSE(tells_secret(text)) << text;
      };
      for_each_print(*type, harness::any_sample(*type, seed), harness::any_sample(*type), check);
    }
  }
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
  for (const harness::record_type *type : harness::record_types()) {
    for_each_print(*type, harness::any_sample(*type, 5), harness::any_sample(*type), check);
  }
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
    const harness::any_sample r(*type, randomness(1, variety::full));
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
