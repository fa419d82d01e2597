// Writes what the debugger's printers have to know, as JSON: which text shows which field of which record, and which of
// two alternatives a record has. All of it is asked of the field lists and through them of the library's formatters, so
// nothing is said here a second time.
#include "ravix_types_all_fields.hpp"
#include "ravix_types_util.h"

#include <concepts>
#include <cstdio>
#include <iostream>
#include <iterator>
#include <limits>
#include <map>
#include <set>
#include <sstream>
#include <string>
#include <string_view>
#include <type_traits>
#include <vector>

namespace {

using namespace zel::ravix;

// What a field prints.
struct collector {
  std::string all;
  void text(std::string_view piece) { all += piece; }
  template <class T> void decimal(T number) { all += std::to_string(number); }
};

std::string quoted(std::string_view text) {
  std::string out = "\"";
  for (const char character : text) {
    if (character == '"' || character == '\\') {
      out += '\\';
    }
    out += character;
  }
  return out + '"';
}

void replace(std::string &text, const std::string &what, const std::string &by) {
  if (const auto at = text.find(what); at != std::string::npos) {
    text.replace(at, what.size(), by);
  }
}

// The values that may have a text of their own.
template <class T> std::vector<T> special_values() {
  using limits = std::numeric_limits<T>;
  if constexpr (std::same_as<T, bool>) {
    return {false, true};
  } else {
    std::set<T> values;
    for (int i = 0; i < 256; ++i) {
      for (const T from : {T{0}, limits::min(), limits::max(), static_cast<T>(UINT32_C(1) << 31)}) {
        T value{};
        if (!__builtin_add_overflow(from, i, &value)) {
          values.insert(value);
        }
        if (!__builtin_sub_overflow(from, i, &value)) {
          values.insert(value);
        }
      }
    }
    values.insert(static_cast<T>(RAVIX_POWER_INVALID));
    if constexpr (std::same_as<T, std::uint32_t>) {
      for (T frequency = 1000; frequency < 8000000; frequency += 1000) {
        const T channel = ravix_frequency_to_channel(frequency);
        if (ravix_frequency_from_channel_and_band(channel, ravix_frequency_to_radio_band(frequency)) == frequency) {
          values.insert(frequency);
        }
      }
    }
    return {values.begin(), values.end()};
  }
}

// A flag set's names in the order in which they are shown, each with its bit.
template <class T, class Text> std::string flag_names(Text text) {
  std::map<std::string, int> bits;
  for (int i = 0; i < std::numeric_limits<T>::digits; ++i) {
    std::istringstream shown(text(static_cast<T>(T{1} << i)));
    std::string bracket;
    std::string name;
    if (shown >> bracket >> name && name != "]") {
      bits[name] = i;
    }
  }
  std::istringstream all(text(std::numeric_limits<T>::max()));
  std::string json;
  for (std::string name; all >> name;) {
    if (const auto bit = bits.find(name); bit != bits.end()) {
      json += (json.empty() ? "" : ", ") + ("[" + std::to_string(bit->second) + ", " + quoted(name) + "]");
    }
  }
  return "{\"flags\": [" + json + "]}";
}

// How a formatter shows the values of a type.
template <class T, class Text> std::string describe(Text text) {
  if constexpr (std::same_as<T, std::int64_t>) {
    if (text(RAVIX_TIMESTAMP_INVALID).empty()) {
      return "{\"timestamp\": " + std::to_string(RAVIX_TIMESTAMP_INVALID) + "}"; // else the text depends on the clock
    }
  }
  if (text(T{0}) == "[ ]") {
    return flag_names<T>(text);
  }
  if (const std::string bits = text(T{0}); bits.size() >= 8 && bits.find_first_not_of('0') == std::string::npos) {
    return "{\"bits\": " + std::to_string(bits.size()) + "}";
  }
  constexpr T sample = std::numeric_limits<T>::max() > 123456 ? static_cast<T>(123456) : static_cast<T>(123);
  std::string otherwise = text(sample);
  if (otherwise != text(T{1})) {
    replace(otherwise, std::to_string(sample), "{}");
  }
  std::string names;
  for (const T value : special_values<T>()) {
    const std::string number = std::to_string(value);
    const std::string shown = text(value);
    std::string expected = otherwise;
    replace(expected, "{}", number);
    if (shown != expected) {
      names += (names.empty() ? "" : ", ") + quoted(number) + ": " + quoted(shown);
    }
  }
  return "{\"otherwise\": " + quoted(otherwise) + ", \"names\": {" + names + "}}";
}

// A field's text as the field itself prints it.
template <class R, class Kind, class Value> std::string printed(const Kind &field, Value set) {
  R r{};
  set(r);
  collector out;
  field.print(out, r);
  return out.all;
}

// What describes the text of a field, or "" if the debugger's own is as good.
template <class R, class Kind> std::string text_of(const Kind & /*field*/) {
  return "";
}
template <class R, class Kind> std::string text_of(const secret<Kind> &field) {
  return "{\"otherwise\": " + quoted(printed<R>(field, [](R &) {})) + ", \"names\": {}}";
}
template <class R, std::integral T, class Text> std::string text_of(const scalar<R, T, Text> &field) {
  return describe<T>([&](T value) { return printed<R>(field, [&](R &r) { r.*field.member = value; }); });
}
template <class R, class Kind> std::string text_of(const not_compared<Kind> &field) {
  return text_of<R>(static_cast<const Kind &>(field));
}
template <class R, std::size_t N> std::string text_of(const bytes<R, N> &field) {
  std::string shown = printed<R>(field, [&](R &r) { std::memset(r.*field.member, 0xAB, N); });
  for (std::size_t i = 0; i < N; ++i) {
    replace(shown, "AB", "{:02X}");
  }
  return "{\"octets\": " + quoted(shown) + "}";
}
template <class R, std::size_t N> std::string text_of(const enum_array<R, N> &field) {
  return describe<std::uint8_t>([&](std::uint8_t value) { return std::string(field.text(value)); });
}
template <class R, std::integral E, class Argument>
std::string text_of(const entries<R, E, const char *(*)(Argument)> &field) {
  return describe<E>([&](E value) { return std::string(field.text(value)); });
}

// Which alternative the values of which field stand for, found by trying them.
template <class R, class Kind> std::string alternatives_of(const Kind & /*field*/) {
  return "";
}
template <class R, class Tag, class Wide, class Other>
std::string alternatives_of(const tagged<Tag, Wide, Other> &field) {
  std::string json;
  for_each_field<R>([&](const auto &tag) {
    if constexpr (requires(R r) { (r.*tag.member) = 255U; }) {
      for (unsigned value = 0; value < 256; ++value) {
        R r{};
        r.*tag.member = static_cast<std::remove_reference_t<decltype(r.*tag.member)>>(value);
        if (Tag::of(r) != alternative::none) {
          json += (json.empty() ? quoted(tag.name) + ": {" : std::string(", ")) + quoted(std::to_string(value)) + ": " +
                  quoted(Tag::of(r) == alternative::wide ? field.wide.name : field.other.name);
        }
      }
    }
  });
  return json.empty() ? json : json + "}";
}

// A structure's name, as the compiler writes it.
template <class T> std::string type_name() {
  const std::string_view here = __PRETTY_FUNCTION__;
  const std::size_t begin = here.find("T = ") + 4;
  return std::string(here.substr(begin, here.find_first_of(";]", begin) - begin));
}

class facts {
public:
  template <class R> void add() {
    std::string fields;
    std::string alternatives;
    for_each_field<R>([&](const auto &field) {
      const std::string text = text_of<R>(field);
      fields += (fields.empty() ? "" : ", ") + quoted(field.name) + ": " + (text.empty() ? "null" : number_of(text));
      alternatives += alternatives_of<R>(field);
    });
    records_ += (records_.empty() ? "" : ",\n  ") + quoted(type_name<R>()) + ": {\"fields\": {" + fields + "}" +
                (alternatives.empty() ? "" : ", \"alternatives\": {" + alternatives + "}") + "}";
  }

  void write(std::ostream &out) const {
    out << "{\"texts\": [\n  ";
    for (std::size_t i = 0; i < texts_.size(); ++i) {
      out << (i == 0 ? "" : ",\n  ") << texts_[i];
    }
    out << "\n],\n\"records\": {\n  " << records_ << "\n}}\n";
  }

private:
  // Equal texts stand once.
  std::string number_of(const std::string &text) {
    const auto [at, is_new] = numbers_.try_emplace(text, texts_.size());
    if (is_new) {
      texts_.push_back(text);
    }
    return std::to_string(at->second);
  }

  std::vector<std::string> texts_;
  std::map<std::string, std::size_t> numbers_;
  std::string records_;
};

template <class... R> void add_all(facts &all, type_list<R...> /*records*/) {
  (all.add<R>(), ...);
}

} // namespace

int main() {
  facts all;
  add_all(all, all_records{});
  all.write(std::cout);
  return std::cout.flush() ? 0 : 1;
}
