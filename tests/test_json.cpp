// Records and their differences as JSON: every record as a strict reader reads it, beside what its field list says of
// it; texts of all kinds; what stops a writer; and the lines of an indented text.
#include "ravix_types_json.hpp"

#include "golden.hpp"
#include "json_tools.hpp"
#include "specimens.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <functional>
#include <iomanip>
#include <ios>
#include <iterator>
#include <limits>
#include <numeric>
#include <sstream>
#include <string>
#include <string_view>
#include <type_traits>

namespace {

using namespace harness;
using zel::ravix::value_kind;

template <class R> std::string text_of(const R &record, unsigned indent = 0) {
  std::ostringstream stream;
  print_json(stream, record, indent);
  return stream.str();
}
template <class R> std::string diff_of(const R &value, const R &reference, unsigned indent = 0) {
  std::ostringstream stream;
  print_json_diff(stream, value, reference, indent);
  return stream.str();
}

// ---- what the field lists say: names and addresses by the formatters, texts by another library

template <class Meaning> std::string shown(auto value) {
  struct : std::string {
    void text(std::string_view piece) { append(piece); }
  } out;
  Meaning::print(out, value);
  return out;
}

std::string hex(const void *octets, std::size_t count) {
  std::string digits;
  for (std::size_t i = 0; i < count; ++i) {
    const unsigned octet = static_cast<const std::uint8_t *>(octets)[i];
    digits += {"0123456789abcdef"[octet / 16], "0123456789abcdef"[octet % 16]};
  }
  return digits;
}
std::string hex_number(std::uint64_t value) {
  std::ostringstream digits;
  digits << "0x" << std::hex << value;
  return digits.str();
}

// The library puts a mark in place of what is not UTF-8, and none of the tests' texts has it.
json text_value(const std::string &octets) {
  const std::string dumped = json(octets).dump(-1, ' ', false, json::error_handler_t::replace);
  const bool is_text = octets.find('\0') == std::string::npos && dumped.find("\xEF\xBF\xBD") == std::string::npos;
  return is_text ? json(octets) : json{{"hex", hex(octets.data(), octets.size())}};
}

template <class R> json value_of(const R &r);

template <class Meaning, class T> json number_value(T value) {
  if constexpr (Meaning::empty_is_none) {
    if (value == static_cast<T>(Meaning::empty)) {
      return nullptr;
    }
  }
  if constexpr (Meaning::kind == value_kind::flags) {
    json names = json::array();
    const std::string text = shown<Meaning>(value);
    std::istringstream in(text.substr(1, text.size() - 2)); // without the brackets
    std::ranges::copy(std::istream_iterator<std::string>(in), std::istream_iterator<std::string>(),
                      std::back_inserter(names));
    const auto &masks = Meaning::names.values;
    const auto known = std::accumulate(masks.begin(), masks.end(), std::uint64_t{0}, std::bit_or<>());
    if ((value & ~known) != 0) {
      names.push_back(hex_number(value & ~known));
    }
    return names;
  } else if constexpr (Meaning::kind == value_kind::flag) {
    return value != 0;
  } else if constexpr (Meaning::kind == value_kind::name || Meaning::kind == value_kind::identifier) {
    const bool has_name = std::ranges::count(Meaning::names.values, static_cast<std::int32_t>(value)) != 0;
    const bool is_status = std::is_same_v<Meaning, zel::ravix::meaning::status>; // its bits, in whatever type
    return has_name ? json(shown<Meaning>(value)) : is_status ? json(static_cast<std::int32_t>(value)) : json(value);
  } else if constexpr (std::is_pointer_v<T>) {
    return hex_number(reinterpret_cast<std::uintptr_t>(value));
  } else {
    return value;
  }
}

template <class Meaning, class T> json member_value(const T &member) {
  using pointee = std::remove_pointer_t<T>;
  if constexpr (zel::ravix::has_fields<T>) {
    return value_of(member);
  } else if constexpr (std::is_pointer_v<T> && zel::ravix::has_fields<pointee>) {
    return member != nullptr ? value_of(*member) : json();
  } else if constexpr (std::is_same_v<T, char *>) {
    return member != nullptr ? text_value(member) : json();
  } else if constexpr (std::is_same_v<std::remove_extent_t<T>, char>) {
    return text_value(std::string(member, strnlen(member, sizeof member)));
  } else if constexpr (std::is_array_v<T> && Meaning::kind == value_kind::octets) {
    return shown<Meaning>(&member[0]);
  } else if constexpr (std::is_array_v<T>) {
    json values = json::array();
    std::ranges::transform(member, std::back_inserter(values), number_value<Meaning, std::uint8_t>);
    return values;
  } else {
    return number_value<Meaning>(zel::ravix::number_of(member));
  }
}

template <class T, class Meaning> json field_value(const zel::ravix::entries<T, Meaning> & /*field*/, const T &table) {
  json values = json::array();
  for (std::uint32_t i = 0; i < zel::ravix::table::elements(table); ++i) {
    values.push_back(member_value<Meaning>(table.data[i]));
  }
  return values;
}
template <class Kind, class R> json field_value(const Kind &field, const R &r) {
  json value = "[SECRET]";
  if constexpr (!requires { typename Kind::shown_as_secret; }) {
    field.members(r, [&](const auto &member) { value = member_value<typename Kind::meaning>(member); });
  }
  return value;
}

template <class R> json value_of(const R &r) {
  json object = json::object();
  zel::ravix::for_each_field<R>([&](const auto &field) {
    const auto add = [&](const auto &present) { object[present.name] = field_value(present, r); };
    if constexpr (requires { field.first; }) {
      field.use(r, add);
    } else {
      add(field);
    }
  });
  return zel::ravix::table_record<R> && object.size() == 1 ? object.front() : object;
}
template <> json value_of(const ravix_ip_addr_t &address) {
  const bool is_address = address.version == 1 || address.version == 2;
  return is_address ? json(ravix_str_ip_addr(&address)) : json();
}
template <> json value_of(const ravix_ssid_t &ssid) {
  return text_value({reinterpret_cast<const char *>(ssid.ssid), std::min<std::size_t>(ssid.len, 32)});
}
template <> json value_of(const ravix_key_t & /*key*/) {
  return "[SECRET]";
}
template <> json value_of(const ravix_tlv_t &element) {
  return {{"type", element.type}, {"hex", hex(element.value, element.value != nullptr ? element.len : 0)}};
}

// ---- whole records

TEST(Json, IsAsWritten) {
  golden_sections sections;
  const auto add = [&](const char *title, const auto &record) { sections.add(title, text_of(record, 2)); };
  add("scan_request", scan_request);
  add("scan_of_all_radios", scan_of_all_radios);
  add("heard[2]", heard[2]);
  add("channels[2]", channels[2]);
  add("a width without a name", ravix_channel_info_t{5180000, 0, 2000, 0x000C});
  add("radio_airtime", radio_airtime);
  add("stations[1]", stations[1]);
  add("update_of_features", update_of_features);
  add("home_network.security", home_network.security);
  add("home_state.rsno_elements", home_state.rsno_elements);
  add("element_table", element_table);
  add("client_goes", client_goes);
  add("hw_init", hw_init);
  sections.add("uplink after home_network", diff_of(uplink, home_network, 2));
  sections.expect("json");
}

// The values are those of the record and nothing else, in the order of its fields; no secret is told, nothing logged
// and no memory taken. The judge reads numbers as they are: what has no name, no unit, and no end.
TEST(Json, HasTheValuesOfEveryRecord) {
  captured_log log;
  for_all_records([&]<class R>() {
    const sample<R> empty;
    EXPECT_EQ(json::parse(text_of(empty.value)), value_of(empty.value));
    for (const variety kind : {variety::usual, variety::full, variety::hostile}) {
      for (unsigned seed = 0; seed < 20; ++seed) {
        const sample<R> record(randomness(seed, kind));
        const json expected = value_of(record.value);
        log.take();
        heap heap;
        const std::string text = text_of(record.value);
        EXPECT_EQ(heap.requests(), 0U);
        EXPECT_TRUE(log.take().empty());
        ASSERT_EQ(json::parse(text), expected) << text;
        ASSERT_EQ(text, json::parse(text).dump());
        ASSERT_EQ(text_of(record.value, 2), json::parse(text).dump(2));
      }
    }
  });
}

TEST(Json, KeepsEveryFloatingPointNumber) {
  const auto written = [](float value) {
    return json::parse(text_of(ravix_radio_airtime_entry_t{value, 0, 0, 0}))["rxc"];
  };
  using limits = std::numeric_limits<float>;
  for (const float value : {0.1F, 1e10F, 16777217.0F, -3.4e-38F, limits::max(), limits::min(), limits::denorm_min(),
                            std::nextafter(1.0F, 2.0F), -0.0F, 123456.789F}) {
    EXPECT_EQ(written(value).get<float>(), value);
  }
  for (const float none : {-1.0F, limits::infinity(), -limits::infinity(), limits::quiet_NaN()}) {
    EXPECT_TRUE(written(none).is_null()) << none;
  }
}

// ---- texts

// Every pair of octets, and what may follow it.
TEST(JsonTexts, AreStringsIfTheyAreUtf8) {
  for (unsigned pair = 0; pair < 0x10000; ++pair) {
    for (const std::string_view end : {"", "\x80", "\xBF", "\x7F", "\x80\x80", "\xBF\xBF", "\x80\xC0"}) {
      ravix_ssid_t ssid{static_cast<std::uint8_t>(2 + end.size()),
                        {static_cast<std::uint8_t>(pair >> 8), static_cast<std::uint8_t>(pair & 0xFF)}};
      std::ranges::copy(end, &ssid.ssid[2]);
      ASSERT_EQ(text_of(ssid), value_of(ssid).dump()) << pair << end;
    }
  }
}

// ---- differences

TEST(JsonDifferences, LeadFromTheReferenceToTheValue) {
  const captured_log log; // rules of types at random speak up when they are cleared
  for (const record_type *type : record_types()) {
    if (type->compare == nullptr) {
      continue;
    }
    SCOPED_TRACE(type->name);
    const auto expect_difference = [&](const void *value, const void *reference, variety kind = variety::usual) {
      const json patch = json::parse(json_diff(*type, value, reference));
      const json before = json::parse(json_text(*type, reference)), after = json::parse(json_text(*type, value));
      const bool is_equal = type->compare(value, reference) == 0;
      EXPECT_TRUE(is_equal ? patch == json::object() : leads_to(before, patch, after)) << before << patch << after;
      for (const auto &field : type->fields) {
        if (!is_equal && after.contains(field.name) && after != patch && kind != variety::hostile) {
          const bool differs = type->compares_references || field.compare(value, reference, false) != 0;
          EXPECT_EQ(patch.contains(field.name), differs) << field.name;
        }
      }
    };
    for (unsigned seed = 0; seed < 10; ++seed) {
      const any_sample empty(*type), other(*type, seed + 100);
      for (const variety kind : {variety::usual, variety::full, variety::hostile}) {
        const any_sample value(*type, randomness(seed, kind));
        for (const any_sample *reference : {&empty, &other, &value}) {
          expect_difference(value, *reference, kind);
          expect_difference(*reference, value, kind);
        }
      }
      const any_sample value(*type, seed);
      for (std::size_t same = 0; same < 10000; same += 1 + same / 8) { // more than any record takes
        expect_difference(any_sample(*type, randomness(seed, same)), value);
      }
    }
  }
}

TEST(JsonDifferences, HaveNoMoreThanDiffers) {
  sample<ravix_cfg_radius_server_t> server(1, variety::full);
  server.value.addr.version = RAVIX_IP_VERSION_6; // every octet of it counts, and none of the secret behind it
  ravix_cfg_radius_server_t other = server.value;
  other.index = 7;
  EXPECT_EQ(diff_of(other, server.value), "{}"); // the operator's order alone
  other.port = 1645;
  EXPECT_EQ(diff_of(other, server.value), R"({"index":7,"port":1645})");
  other = server.value;
  other.secret[0] = '!';
  EXPECT_EQ(diff_of(other, server.value), R"({"secret":"[SECRET]"})");

  // Within a table that is equal otherwise the order does not show either.
  ravix_cfg_wlan_security_t security{};
  security.auth_servers = {1, &server.value};
  ravix_cfg_wlan_security_t changed = security;
  other = server.value;
  other.index = 7;
  changed.auth_servers.data = &other;
  changed.pmf_mode = RAVIX_PMF_MODE_MANDATORY;
  EXPECT_EQ(diff_of(changed, security), R"({"pmf_mode":"MANDATORY"})");

  ravix_cfg_role_static_t role = home_network;
  ravix_cfg_role_config_ap_t access_point = *home_network.config_ap;
  role.config_ap = &access_point;
  access_point.access_control.limits_max_clients = 9;
  EXPECT_EQ(diff_of(role, home_network), R"({"config_ap":{"access_control":{"limits_max_clients":9}}})");
  role.config_ap = nullptr;
  EXPECT_EQ(diff_of(role, home_network), R"({"config_ap":null})");
  role.op_mode = RAVIX_ROLE_OPMODE_INVALID_MIN; // has neither configuration
  EXPECT_EQ(diff_of(role, home_network), R"({"op_mode":"INVALID_MIN","config_ap":null})");
}

// ---- what stops a writer

struct stopper {
  int stop_at = 0, calls = 0;
  std::string text = {};

  static int write(const char *piece, std::size_t length, void *context) {
    auto &self = *static_cast<stopper *>(context);
    self.text.append(piece, length);
    EXPECT_NE(length, 0U);
    return ++self.calls == self.stop_at ? -1000 - self.calls : self.calls;
  }
};

TEST(JsonWriters, StopAtTheFirstFailureAndPassItOn) {
  const auto expect_stops = [](auto to_json) {
    const std::string whole = json_text(to_json);
    stopper target;
    for (int k = 1; target.text != whole; ++k) {
      target = {k};
      ASSERT_EQ(to_json(stopper::write, &target), -1000 - k);
      ASSERT_TRUE(whole.starts_with(target.text));
      ASSERT_EQ(target.calls, k);
    }
  };
  for (const record_type *type : record_types()) {
    SCOPED_TRACE(type->name);
    const any_sample record(*type, randomness(3, variety::full)), empty(*type);
    const auto &functions = json_functions_of(*type);
    expect_stops([&](auto write, void *context) { return functions.whole(record, write, context); });
    expect_stops([&](auto write, void *context) {
      ravix_json_indent_t lines{write, context, 3, 0, false, false, false};
      return functions.whole(record, ravix_json_indent, &lines);
    });
    if (functions.diff != nullptr) {
      expect_stops([&](auto write, void *context) { return functions.diff(record, empty, write, context); });
    }
  }
}

std::string refusal(const std::string &function, const std::string &argument) {
  return "\n    ravix json/ravix_types_json " + function + ": Invalid pointer '" + argument + "'!";
}

TEST(JsonWriters, RefuseNullArgumentsInOneLine) {
  captured_log log;
  stopper target;
  for (const record_type *type : record_types()) {
    const any_sample r(*type);
    const auto expect_refusal = [&](int code, const std::string &operation, const std::string &argument) {
      EXPECT_EQ(code, -22);
      EXPECT_EQ(logged(log), refusal(type->prefix + operation, argument));
    };
    const auto &[whole, diff] = json_functions_of(*type);
    expect_refusal(whole(nullptr, stopper::write, &target), "_to_json", "obj");
    expect_refusal(whole(r, nullptr, &target), "_to_json", "write");
    if (diff != nullptr) {
      expect_refusal(diff(nullptr, r, stopper::write, &target), "_diff_to_json", "value");
      expect_refusal(diff(r, nullptr, stopper::write, &target), "_diff_to_json", "reference");
      expect_refusal(diff(r, r, nullptr, &target), "_diff_to_json", "write");
    }
  }
  ravix_json_indent_t lines{};
  EXPECT_EQ(ravix_json_indent(nullptr, 1, &lines), -22);
  EXPECT_EQ(ravix_json_indent("1", 1, nullptr), -22);
  EXPECT_EQ(ravix_json_indent("1", 1, &lines), -22);
  EXPECT_EQ(log.take().size(), 3U);
  EXPECT_EQ(target.calls, 0);
}

// ---- lines and streams

TEST(JsonLines, AreTheSameHoweverTheTextComes) {
  const std::string texts[] = {
      text_of(scan_finished), text_of(home_network), R"(["a{[\"\\",{"\\\"]":1}])", "[]", "{}", "[[],{}]"};
  for (const std::string &text : texts) {
    for (const unsigned indent : {0U, 1U, 300U}) {
      for (const std::size_t piece : {std::size_t{1}, std::size_t{7}, text.size()}) {
        const std::string lines = json_text([&](auto write, void *context) {
          ravix_json_indent_t state{write, context, indent, 0, false, false, false};
          for (std::size_t at = 0; at < text.size(); at += piece) {
            ravix_json_indent(&text[at], std::min(piece, text.size() - at), &state);
          }
          return 0;
        });
        EXPECT_EQ(lines, json::parse(text).dump(static_cast<int>(indent)));
      }
    }
  }
}

TEST(JsonStreams, NeitherShowNorLoseTheirFormat) {
  std::ostringstream stream;
  stream << std::hex << std::showbase << std::setfill('*') << std::setw(99);
  print_json(stream, microwave_oven);
  EXPECT_EQ(stream.width(), 99);
  EXPECT_EQ(stream.str(), R"({"radio_id":1,"primary_freq":2462000,"active":true,"channel_change":true})");
  stream.setstate(std::ios::failbit);
  print_json(stream, home_network);
  EXPECT_LT(stream.str().size(), 100U);

  struct : std::streambuf {
  } full; // takes nothing
  std::ostream throwing(&full);
  throwing.exceptions(std::ios::badbit);
  EXPECT_THROW(print_json(throwing, home_network, 2), std::ios::failure);
}

} // namespace
