// Every enumeration and flag set of the interface with its values and their texts, as a table or as JSON: for tools
// that read logs or write configurations. The texts are the library's; which values have one is found by asking for
// them.
#include "standard_output.hpp"

#include "ravix_types_enums.h"
#include "ravix_types_str_convert.h"
#include "ravix_types_version.h"

#include <nlohmann/json.hpp>

#include <cstdint>
#include <cstring>
#include <exception>
#include <functional>
#include <iomanip>
#include <iostream>
#include <limits>
#include <string>
#include <string_view>
#include <vector>

namespace {

constexpr const char *help = R"(usage: ravix_names [--json] [NAME...]

Lists the enumerations and flag sets of the interface with the numbers and texts of their values.

  --json        as JSON
  NAME          only these, for example: ravix_names sta_state wlan_mode
  -h, --help    this text
)";

struct named_value {
  std::uint64_t bits; // of a flag; a value's two's complement
  std::string text;
};

struct name_list {
  std::string_view name;
  bool is_flags;
  std::function<std::vector<named_value>()> entries;
};

// A number without a name is shown as such, one that is no status as the C library's error text.
bool is_name(std::string_view text, std::int64_t value) {
  return !text.starts_with('<') && text != std::to_string(value) &&
         text != std::strerror(static_cast<int>(-value)); // NOLINT(concurrency-mt-unsafe): one thread
}

template <class Value> std::vector<named_value> values(const char *(*text)(Value)) {
  std::vector<named_value> found;
  // Values that share a text, as all flags that are on, are listed by the first of them.
  const auto look = [&](std::int64_t first, std::int64_t last) {
    for (auto value = first; value <= last; ++value) {
      const std::string shown = text(static_cast<Value>(value));
      if (is_name(shown, value) && (found.empty() || found.back().text != shown)) {
        found.push_back({static_cast<std::uint64_t>(value), shown});
      }
    }
  };
  constexpr std::int64_t most = 1023;
  if constexpr (std::is_signed_v<Value>) {
    look(std::numeric_limits<Value>::min() + 1, std::numeric_limits<Value>::min() + most);
    look(-most, most);
  } else {
    look(0, most);
  }
  return found;
}

template <class Value> std::vector<named_value> flags(const char *(*text)(Value)) {
  std::vector<named_value> found;
  constexpr std::string_view none = "[ ]";
  for (int bit = 0; bit < std::numeric_limits<Value>::digits; ++bit) {
    const Value flag = Value{1} << bit;
    if (const std::string_view shown = text(flag); shown != none) {
      found.push_back({flag, std::string(shown.substr(2, shown.size() - 4))}); // "[ NAME ]"
    }
  }
  return found;
}

#define RAVIX_VALUES(what, argument, shown) {#what, false, [] { return values(ravix_str_##what); }},
#define RAVIX_FLAGS(what, argument) {#what, true, [] { return flags(ravix_str_##what); }},

const std::vector<name_list> lists{
    {"id", false, [] { return values(ravix_str_id); }},
    {"status", false, [] { return values(ravix_str_status); }},
    {"enabled", false, [] { return values(ravix_str_enabled); }},
    RAVIX_ENUMERATIONS(RAVIX_VALUES) //
    RAVIX_FLAG_SETS(RAVIX_FLAGS)     //
};

void print_table(const name_list &list) {
  std::cout << list.name << (list.is_flags ? " (flags)\n" : "\n");
  for (const auto &[bits, text] : list.entries()) {
    std::cout << std::setw(13);
    if (list.is_flags) {
      std::cout << std::showbase << std::hex << bits << std::dec;
    } else {
      std::cout << static_cast<std::int64_t>(bits);
    }
    std::cout << "  " << text << '\n';
  }
}

void add_json(nlohmann::ordered_json &all, const name_list &list) {
  auto entries = nlohmann::ordered_json::array();
  for (const auto &[bits, text] : list.entries()) {
    nlohmann::ordered_json entry;
    if (list.is_flags) {
      entry["flag"] = bits;
    } else {
      entry["value"] = static_cast<std::int64_t>(bits);
    }
    entry["text"] = text;
    entries.push_back(entry);
  }
  all[list.is_flags ? "flags" : "values"][std::string(list.name)] = entries;
}

int run(const std::vector<std::string_view> &arguments) {
  bool as_json = false;
  std::vector<const name_list *> wanted;
  for (const std::string_view argument : arguments) {
    if (argument == "-h" || argument == "--help") {
      std::cout << help;
      return 0;
    }
    if (argument == "--json") {
      as_json = true;
      continue;
    }
    const auto before = wanted.size();
    for (const auto &list : lists) {
      if (list.name == argument) {
        wanted.push_back(&list);
      }
    }
    if (wanted.size() == before) {
      std::cerr << "ravix_names: " << argument << ": no such enumeration or flag set (see ravix_names --help)\n";
      return 2;
    }
  }
  if (wanted.empty()) {
    for (const auto &list : lists) {
      wanted.push_back(&list);
    }
  }

  nlohmann::ordered_json all{{"version", RAVIX_TYPES_VERSION}};
  for (const auto *list : wanted) {
    if (as_json) {
      add_json(all, *list);
    } else {
      print_table(*list);
    }
  }
  if (as_json) {
    std::cout << all.dump(2) << '\n';
  }
  return 0;
}

} // namespace

int main(int argc, char **argv) {
  try {
    return end_of_output("ravix_names", run({argv + 1, argv + argc}));
  } catch (const std::exception &error) {
    std::cerr << "ravix_names: " << error.what() << '\n';
    return 1;
  }
}
