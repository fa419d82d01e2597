// Writes what the debugger's printers have to know, as JSON: the meaning of each field of each record, and which of two
// alternatives a record has. All of it stands in the field lists and the meanings that they name.
#include "json_text.hpp"
#include "ravix_types_all_fields.hpp"
#include "ravix_types_util.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <iostream>
#include <map>
#include <regex>
#include <string>
#include <string_view>
#include <type_traits>

namespace {

using namespace zel::ravix;

// How numbers of type T are shown: some by names, the others by a pattern of Python's format(), where `s` and `ms` are
// the seconds of a time stamp and the rest of them. Flags are shown by the names of those that are set.
template <class Meaning, class T> std::string facts_of() {
  constexpr value_kind kind = Meaning::kind;
  json names("{}");
  const auto add = [&](auto value) { names.add(std::to_string(value), in_quotes(shown<Meaning>(value))); };
  if constexpr (requires { Meaning::names; }) {
    const name_list list = Meaning::names;
    for (std::size_t i = 0; i < list.count; ++i) {
      names.add(std::to_string(static_cast<T>(list.values[i])), in_quotes(list.name(i)));
    }
  } else if constexpr (Meaning::empty_is_none) {
    add(T{Meaning::empty});
  }
  if constexpr (std::is_same_v<Meaning, meaning::channel_frequency>) {
    for (std::uint32_t frequency = 2412000; frequency <= 7115000; frequency += 1000) {
      const std::uint32_t channel = ravix_frequency_to_channel(frequency);
      if (ravix_frequency_from_channel_and_band(channel, ravix_frequency_to_radio_band(frequency)) == frequency) {
        add(frequency);
      }
    }
  } else if constexpr (std::is_base_of_v<meaning::percentage, Meaning>) {
    for (std::uint8_t share = 101; share < RAVIX_MEASURE_INVALID; ++share) {
      add(share);
    }
  }
  const std::string rest = kind == value_kind::flags                  ? "flags"
                           : std::is_same_v<Meaning, meaning::status> ? "error"
                           : kind == value_kind::timestamp            ? "[{s}.{ms:03}]" // a date depends on clocks
                           : kind == value_kind::bits
                               ? "{:0" + std::to_string(8 * sizeof(T)) + "b}"
                               : std::regex_replace(shown<Meaning>(T{99}), std::regex("99"), "{}");
  return json("{}").add("names", names.text()).add("otherwise", in_quotes(rest)).text();
}

// Of a field: null if the debugger's own text is as good, or if octets are told by their length.
template <class Kind> std::string field_facts(const Kind & /*field*/) {
  if constexpr (requires { typename Kind::shown_as_secret; }) {
    return in_quotes("[SECRET]");
  } else if constexpr (requires {
                         requires std::is_integral_v<typename Kind::value> && Kind::meaning::kind != value_kind::octets;
                       }) {
    return facts_of<typename Kind::meaning, typename Kind::value>();
  }
  return "null";
}

// Which values of a number stand for which of the two alternatives of a field.
template <class Tag, class First, class Second>
void add_alternatives(json &all, const tagged<Tag, First, Second> &field) {
  json values("{}");
  for (std::uint8_t value = 0; value < UINT8_MAX; ++value) {
    typename Tag::R r{};
    r.*Tag::member = value;
    field.use(r, [&](const auto &alternative) { values.add(std::to_string(value), in_quotes(alternative.name)); });
  }
  all.add(Tag::name, values.text());
}
void add_alternatives(json & /*all*/, const auto & /*no alternatives*/) {}

} // namespace

int main() {
  json texts("[]", ",\n  "), records("{}", ",\n  ");
  std::map<std::string, std::size_t> numbers; // equal texts stand once
  for_each_record([&]<class R>(std::string_view type) {
    json fields("{}"), alternatives("{}");
    for_each_field<R>([&](const auto &field) {
      const std::string facts = field_facts(field);
      if (numbers.try_emplace(facts, numbers.size()).second) {
        texts.add(facts);
      }
      fields.add(field.name, std::to_string(numbers[facts]));
      add_alternatives(alternatives, field);
    });
    const std::string name(type.substr(0, type.size() - 2)); // without "_t"
    records.add(name, json("{}").add("fields", fields.text()).add("alternatives", alternatives.text()).text());
  });
  std::cout << "{\"texts\": " << texts.text() << ",\n\"records\": " << records.text() << "}\n";
  return std::cout.flush() ? 0 : 1;
}
