// Texts of the stream operators, as golden files, and what they do to the stream.
#include "ravix_types_printers.hpp"

#include "golden.hpp"
#include "record_tools.hpp"

#include "ravix_types_print.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <iomanip>
#include <ios>
#include <ostream>
#include <regex>
#include <sstream>
#include <streambuf>
#include <string>
#include <vector>

namespace {

using harness::for_all_records;
using harness::name_of;
using harness::randomness;
using harness::sample;
using harness::variety;

template <class R>
concept printable = requires(std::ostream &stream, const R &value) {
  stream << value;
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
// beyond what is there.
TEST(Printers, RecordsEmptyAndFilled) {
  harness::golden_sections sections;
  const std::vector<std::uint8_t> ones(4096, 0xFF);
  for_all_records([&]<class R>() {
    if constexpr (printable<R>) {
      sections.add(name_of<R>(), text(specimen<R>(randomness(1, variety::tame)).value));
      sections.add(name_of<R>() + ", empty", text(sample<R>().value));
      sections.add(name_of<R>() + " of ones", text(specimen<R>(randomness(ones, variety::hostile)).value));
    }
  });
  sections.add("odd numbers", text(ravix_radio_airtime_entry_t{0.5F, 12345.6875F, -0.0004F, 1e6F}));
  sections.expect("print_records");
}

TEST(Printers, TablesOfColumnsAlignTheirEntries) {
  harness::golden_sections sections;
  for_all_records([&]<class T>() {
    if constexpr (printable<T> && zel::ravix::table_record<T>) {
      T without_array{};
      without_array.count = 3;
      EXPECT_EQ(text(without_array), text(T{}));
      for (const unsigned count : {10U, 11U}) {
        sample<T> table;
        randomness random(1, variety::tame);
        fill_table(table.value, count, random);
        if (!zel::ravix::record_table<T>) { // the others number theirs without padding
          sections.add(name_of<T>() + " of " + std::to_string(count), text(table.value));
        }
      }
    }
  });
  sections.expect("print_tables");
}

TEST(Printers, KeepNetworkNamesOutOfALog) {
  harness::golden_sections sections;
  const sample<ravix_scan_results_t> some(4, variety::tame);
  for (const bool hide_ssid : {false, true}) {
    sections.add(hide_ssid ? "hidden" : "shown", printed_by([&](std::ostream &stream) {
                   print_scan_entry(stream, some.value.scan_table.data[0], hide_ssid);
                   print_scan_table(stream << "\n\n", {}, hide_ssid);
                   print_scan_results(stream << "\n\n", some.value, hide_ssid);
                 }));
  }
  sections.expect("print_scan");
}

// ---- the stream

// Takes so many characters, then fails.
class short_buffer : public std::streambuf {
public:
  explicit short_buffer(std::size_t room) : room_(room) {}
  std::size_t taken = 0;

protected:
  std::streamsize xsputn(const char * /*characters*/, std::streamsize count) override {
    const std::size_t fitting = std::min(static_cast<std::size_t>(count), room_ - taken);
    taken += fitting;
    return static_cast<std::streamsize>(fitting);
  }

private:
  std::size_t room_;
};

void set_format(std::ostream &stream) {
  stream << std::hex << std::left << std::showbase << std::showpos << std::uppercase << std::scientific
         << std::boolalpha << std::setprecision(1) << std::setfill('#') << std::setw(10);
}

// Calls check(print) for each print of a record to a stream.
template <class Check> void for_everything_printed(Check check) {
  for_all_records([&]<class R>() {
    const sample<R> some(5);
    if constexpr (printable<R>) {
      check([&](std::ostream &stream) { stream << some.value; });
    }
    if constexpr (requires(std::ostream & stream) { print_diff(stream, some.value, &some.value, "", 0U, true); }) {
      const R *nothing = nullptr;
      check([&](std::ostream &stream) { print_diff(stream, some.value, nothing, "value", 1, true); });
    }
  });
}

bool has_format(std::ostream &stream) {
  std::ostringstream twin;
  set_format(twin);
  return stream.flags() == twin.flags() && stream.precision() == 1 && stream.fill() == '#' && stream.width() == 10;
}

TEST(Streams, KeepTheirFormatWhichIsNotHeeded) {
  for_everything_printed([](auto print) {
    std::ostringstream stream;
    set_format(stream);
    print(stream);
    EXPECT_TRUE(has_format(stream));
    EXPECT_EQ(undated(stream.str()), printed_by(print));
  });
}

TEST(Streams, ThatFailStayFailedAndKeepTheirFormat) {
  for_everything_printed([](auto print) {
    std::ostringstream whole;
    print(whole);
    const std::size_t size = whole.str().size();
    for (const std::size_t room : {std::size_t{0}, size / 2, size - 1}) {
      for (const bool throws : {false, true}) {
        short_buffer buffer(room);
        std::ostream stream(&buffer);
        set_format(stream);
        if (throws) {
          stream.exceptions(std::ios_base::badbit);
          EXPECT_THROW(print(stream), std::ios_base::failure);
        } else {
          print(stream);
        }
        EXPECT_TRUE(stream.bad() && has_format(stream) && buffer.taken == room);
        stream.exceptions(std::ios_base::goodbit);
        print(stream);
        EXPECT_EQ(buffer.taken, room) << "nothing more goes to a stream that has failed";
      }
    }
  });
}

TEST(Streams, GetTheirFormatBackFromTheGuardOnEveryPath) {
  std::ostringstream stream;
  set_format(stream);
  stream.exceptions(std::ios_base::badbit);
  const auto spoil = [&](bool fail) {
    const zel::ios_copyfmt guard(stream);
    stream << std::dec << std::setw(3) << std::setfill('0') << std::setprecision(9) << std::fixed << 7;
    stream.exceptions(std::ios_base::goodbit);
    if (fail) {
      // Giving back the exception mask of a failed stream throws; the guard keeps that to itself.
      stream.setstate(std::ios_base::badbit);
      throw 1;
    }
  };
  spoil(false);
  EXPECT_TRUE(has_format(stream));
  EXPECT_EQ(stream.exceptions(), std::ios_base::badbit);
  EXPECT_THROW(spoil(true), int);
  EXPECT_TRUE(has_format(stream));
}

} // namespace
