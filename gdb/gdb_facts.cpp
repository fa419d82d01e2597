// Writes what the debugger's printers have to know, as JSON: the meaning of each field of each record, and which of two
// alternatives a record has. All of it stands in the field lists and the meanings that they name.
#include "json_text.hpp"
#include "ravix_types_all_fields.hpp"
#include "ravix_types_util.h"

#include <cstdint>
#include <iostream>
#include <map>
#include <string>
#include <string_view>
#include <type_traits>

namespace {

using namespace zel::ravix;

// What a meaning shows for a value.
struct collector {
  std::string all;
  void text(std::string_view piece) { all += piece; }
  template <class T> void decimal(T number) { all += std::to_string(number); }
};
template <class Meaning> std::string shown(auto value) {
  collector out;
  Meaning::print(out, value);
  return out.all;
}

// A pattern of Python's format() for what a meaning shows for all values but those that have a text of their own.
template <class Meaning, class T> std::string pattern(T sample) {
  std::string text = shown<Meaning>(sample);
  const std::string number = std::to_string(sample);
  const auto at = text.find(number);
  return at == std::string::npos ? text : text.replace(at, number.size(), "{}");
}

// The values of type T that have texts of their own.
template <class Meaning, class T> std::string names_of() {
  json all("{}");
  const auto add = [&](auto value) {
    const auto stored = static_cast<T>(value);
    all.add(std::to_string(static_cast<std::int64_t>(stored)), in_quotes(shown<Meaning>(stored)));
  };
  if constexpr (requires { Meaning::names; }) {
    for (const auto value : Meaning::names.values) {
      add(value);
    }
  } else if constexpr (Meaning::empty_is_none) {
    add(Meaning::empty);
  }
  if constexpr (std::is_same_v<Meaning, meaning::channel_frequency>) {
    for (const std::uint32_t band : {RAVIX_RADIO_BAND_2GHZ, RAVIX_RADIO_BAND_5GHZ, RAVIX_RADIO_BAND_6GHZ}) {
      for (std::uint32_t channel = 1; channel < 256; ++channel) {
        const std::uint32_t frequency = ravix_frequency_from_channel_and_band(channel, band);
        if (ravix_frequency_to_radio_band(frequency) == band && ravix_frequency_to_channel(frequency) == channel) {
          add(frequency);
        }
      }
    }
  }
  return all.text();
}

// Of values of type T.
template <class Meaning, class T> std::string facts_of() {
  json facts("{}");
  if constexpr (Meaning::kind == value_kind::flags) {
    json bits("[]");
    const name_list names = Meaning::names;
    for (std::size_t i = 0; i < names.count; ++i) {
      bits.add("[" + std::to_string(__builtin_ctzll(names.values[i])) + ", " + in_quotes(names.name(i)) + "]");
    }
    facts.add("flags", bits.text());
  } else if constexpr (Meaning::kind == value_kind::bits) {
    facts.add("bits", std::to_string(8 * sizeof(T)));
  } else if constexpr (Meaning::kind == value_kind::timestamp) {
    facts.add("timestamp", std::to_string(Meaning::empty));
  } else {
    if constexpr (std::is_base_of_v<meaning::percentage, Meaning>) {
      facts.add("most", "[100, " + in_quotes(pattern<Meaning>(T{101})) + "]");
    }
    facts.add(std::is_same_v<Meaning, meaning::status> ? "errors" : "otherwise", in_quotes(pattern<Meaning>(T{99})));
    facts.add("names", names_of<Meaning, T>());
  }
  return facts.text();
}

// Of a field: null if the debugger's own text is as good.
template <class Kind> std::string field_facts(const Kind & /*field*/) {
  if constexpr (requires { typename Kind::shown_as_secret; }) {
    return "{\"otherwise\": \"[SECRET]\", \"names\": {}}";
  } else if constexpr (requires { typename Kind::value; }) {
    using Meaning = typename Kind::meaning;
    if constexpr (std::is_void_v<Meaning> || !std::is_integral_v<typename Kind::value>) {
      return "";
    } else if constexpr (Meaning::kind != value_kind::octets) { // these are told by their length
      return facts_of<Meaning, typename Kind::value>();
    }
  }
  return "";
}

// Which values of a number stand for which of the two alternatives of a field.
template <auto Member, class Meaning>
std::string alternatives_by(const scalar<Member, Meaning> & /*tag*/, const auto &field) {
  json values("{}");
  for (int value = 0; value < 256; ++value) {
    record_of<Member> r{};
    r.*Member = static_cast<value_of<Member>>(value);
    if (const int which = field.which(r); which != 0) {
      values.add(std::to_string(value), in_quotes(which == 1 ? field.first.name : field.second.name));
    }
  }
  return values.text();
}
std::string alternatives_by(const auto & /*no number*/, const auto & /*field*/) {
  return "{}";
}

// The numbers of a record on which the alternatives of the field depend.
template <class R> std::string alternatives_of(const auto &field) {
  json all("{}");
  if constexpr (requires { field.first; }) {
    for_each_field<R>([&](const auto &tag) {
      if (const std::string values = alternatives_by(tag, field); values != "{}") {
        all.add(tag.name, values);
      }
    });
  }
  return all.text();
}

} // namespace

int main() {
  json texts("[]", ",\n  ");
  json records("{}", ",\n  ");
  std::map<std::string, std::size_t> numbers; // equal texts stand once
  for_each_record([&]<class R>(const char *type) {
    json fields("{}");
    std::string alternatives = "{}";
    for_each_field<R>([&](const auto &field) {
      const std::string facts = field_facts(field);
      if (!facts.empty() && numbers.try_emplace(facts, numbers.size()).second) {
        texts.add(facts);
      }
      fields.add(field.name, facts.empty() ? "null" : std::to_string(numbers[facts]));
      if (const std::string found = alternatives_of<R>(field); found != "{}") {
        alternatives = found;
      }
    });
    json record("{}");
    record.add("fields", fields.text());
    record.add("alternatives", alternatives);
    records.add(std::string_view(type).substr(0, std::string_view(type).size() - 2), record.text()); // without "_t"
  });
  std::cout << "{\"texts\": " << texts.text() << ",\n\"records\": " << records.text() << "}\n";
  return std::cout.flush() ? 0 : 1;
}
