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

template <class T> std::string value_facts(const auto &names) {
  json all("{}");
  for (std::size_t i = 0; i < names.count; ++i) {
    all.add(std::to_string(static_cast<std::int64_t>(static_cast<T>(names.values[i]))), quoted(names.name(i)));
  }
  return all.text();
}

// Of values of type T.
template <class Meaning, class T> std::string facts_of() {
  json facts("{}");
  constexpr value_kind kind = Meaning::kind;
  if constexpr (kind == value_kind::flags) {
    const name_list names = Meaning::names;
    json bits("[]");
    for (std::size_t i = 0; i < names.count; ++i) {
      bits.add("[" + std::to_string(__builtin_ctzll(names.values[i])) + ", " + quoted(names.name(i)) + "]");
    }
    facts.add("flags", bits.text());
  } else if constexpr (kind == value_kind::bits) {
    facts.add("bits", std::to_string(8 * sizeof(T)));
  } else if constexpr (kind == value_kind::timestamp) {
    facts.add("timestamp", std::to_string(Meaning::empty));
  } else if constexpr (kind == value_kind::flag) {
    facts.add("otherwise", quoted(shown<Meaning>(T{1})));
    facts.add("names", "{\"0\": " + quoted(shown<Meaning>(T{0})) + "}");
  } else if constexpr (kind == value_kind::name || kind == value_kind::identifier) {
    facts.add("names", value_facts<T>(name_list(Meaning::names)));
    facts.add(std::is_same_v<Meaning, meaning::status> ? "errors" : "otherwise", quoted(pattern<Meaning>(T{99})));
  } else {
    json names("{}");
    if constexpr (Meaning::empty_is_none) {
      names.add(std::to_string(Meaning::empty), quoted(shown<Meaning>(static_cast<T>(Meaning::empty))));
    }
    if constexpr (std::is_base_of_v<meaning::percentage, Meaning>) {
      facts.add("most", "[100, " + quoted(pattern<Meaning>(T{101})) + "]");
    }
    if constexpr (std::is_same_v<Meaning, meaning::channel_frequency>) {
      for (const std::uint32_t band : {RAVIX_RADIO_BAND_2GHZ, RAVIX_RADIO_BAND_5GHZ, RAVIX_RADIO_BAND_6GHZ}) {
        for (std::uint32_t channel = 1; channel < 256; ++channel) {
          const std::uint32_t frequency = ravix_frequency_from_channel_and_band(channel, band);
          if (ravix_frequency_to_radio_band(frequency) == band && ravix_frequency_to_channel(frequency) == channel) {
            names.add(std::to_string(frequency), quoted(ravix_str_wifi_freq(frequency)));
          }
        }
      }
    }
    facts.add("otherwise", quoted(pattern<Meaning>(T{99})));
    facts.add("names", names.text());
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

// What two alternatives depend on: the field before them, and which of its values stand for which.
template <class R, class Kind> std::string alternatives_of(const Kind &field) {
  json all("{}");
  if constexpr (requires { field.first; }) {
    for_each_field<R>([&](const auto &tag) {
      json values("{}");
      tag.members(R{}, [&](const auto &member) {
        using T = std::remove_cvref_t<decltype(member)>;
        if constexpr (std::is_integral_v<T> && !std::is_same_v<T, bool>) {
          for (unsigned value = 0; value < 256; ++value) {
            R r{};
            *reinterpret_cast<T *>(reinterpret_cast<char *>(&r) + tag.offset) = static_cast<T>(value);
            if (const int which = field.which(r); which != 0) {
              values.add(std::to_string(value), quoted(which == 1 ? field.first.name : field.second.name));
            }
          }
        }
      });
      if (values.text() != "{}") {
        all.add(tag.name, values.text());
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
