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
  void decimal(auto number) { all += std::to_string(number); }
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
  return in_quotes(at == std::string::npos ? text : text.replace(at, number.size(), "{}"));
}

// The values of type T that have texts of their own.
template <class Meaning, class T> std::string names_of() {
  json all("{}");
  const auto add = [&](auto value) {
    const auto stored = static_cast<T>(value);
    all.add(std::to_string(stored), in_quotes(shown<Meaning>(stored)));
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
    json flags("{}");
    const name_list names = Meaning::names;
    for (std::size_t i = 0; i < names.count; ++i) {
      flags.add(names.name(i), std::to_string(names.values[i]));
    }
    facts.add("flags", flags.text());
  } else if constexpr (Meaning::kind == value_kind::bits) {
    facts.add("bits", std::to_string(8 * sizeof(T)));
  } else if constexpr (Meaning::kind == value_kind::timestamp) {
    facts.add("timestamp", std::to_string(Meaning::empty));
  } else {
    if constexpr (std::is_base_of_v<meaning::percentage, Meaning>) {
      facts.add("beyond 100", pattern<Meaning>(T{101}));
    }
    facts.add(std::is_same_v<Meaning, meaning::status> ? "errors" : "otherwise", pattern<Meaning>(T{99}));
    facts.add("names", names_of<Meaning, T>());
  }
  return facts.text();
}

// Of a field: null if the debugger's own text is as good, or if octets are told by their length.
template <class Kind> std::string field_facts(const Kind & /*field*/) {
  if constexpr (requires { typename Kind::shown_as_secret; }) {
    return in_quotes("[SECRET]");
  } else if constexpr (requires {
                         requires std::is_integral_v<typename Kind::value>;
                         Kind::meaning::kind;
                       }) {
    if constexpr (Kind::meaning::kind != value_kind::octets) {
      return facts_of<typename Kind::meaning, typename Kind::value>();
    }
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
  json texts("[]", ",\n  ");
  json records("{}", ",\n  ");
  std::map<std::string, std::size_t> numbers; // equal texts stand once
  for_each_record([&]<class R>(std::string_view type) {
    json fields("{}");
    json alternatives("{}");
    for_each_field<R>([&](const auto &field) {
      const std::string facts = field_facts(field);
      const auto [known, is_new] = numbers.try_emplace(facts, numbers.size());
      if (is_new) {
        texts.add(facts);
      }
      fields.add(field.name, std::to_string(known->second));
      add_alternatives(alternatives, field);
    });
    const std::string name(type.substr(0, type.size() - 2)); // without "_t"
    records.add(name, json("{}").add("fields", fields.text()).add("alternatives", alternatives.text()).text());
  });
  std::cout << "{\"texts\": " << texts.text() << ",\n\"records\": " << records.text() << "}\n";
  return std::cout.flush() ? 0 : 1;
}
