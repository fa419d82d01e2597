// Golden texts of the difference printers, and that no output tells a secret.
#include "golden.hpp"
#include "harness.hpp"
#include "record_tools.hpp"

#include "ravix_types_print.hpp"
#include "ravix_types_printers.hpp"

#include <gtest/gtest.h>

#include <cstdint>
#include <sstream>
#include <string>
#include <string_view>

namespace {

using harness::for_all_records;
using harness::name_of;
using harness::randomness;
using harness::sample;
using harness::variety;
using zel::ravix::record;
using zel::ravix::table_record;

template <class R>
concept diffable = requires(std::ostream &stream, const R &value) {
  print_diff(stream, value, &value, "", 0U, true);
};
template <class R>
concept printable = requires(std::ostream &stream, const R &value) {
  stream << value;
};

template <class R>
std::string diff(const R &value, const R *reference, const char *name = "value", unsigned indent = 1,
                 bool newline = true) {
  std::ostringstream stream;
  print_diff(stream, value, reference, name, indent, newline);
  return stream.str();
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
        EXPECT_FALSE(whole.ends_with('\n'));
        EXPECT_EQ(diff(table.value, &none.value, "value", 1, false), count == 0 ? "" : whole);
        if (!zel::ravix::record_table<T> || count < 5) {
          golden.add(name_of<T>() + " of " + std::to_string(count), whole);
        } else { // there is no upper limit
          EXPECT_NE(whole.find(" " + std::to_string(count - 1) + "]:\n"), std::string::npos);
        }
      }
    }
  });
  golden.expect("diff_tables");
}

TEST(Differences, OfWhatIsMissingOrOfAnotherKind) {
  outputs golden;
  const auto add = [&]<class R>(const std::string &title, const R &value, const R *reference, bool newline = true) {
    golden.add(title, diff(value, reference, "value", 1, newline));
  };
  for (const unsigned length : {0U, 1U, 16U, 17U, 33U}) {
    std::uint8_t octets[33] = {0x00, 0x7F, 0x80, 0xFF};
    const ravix_tlv_t tlv{221, static_cast<std::uint8_t>(length), length == 0 ? nullptr : octets};
    add("TLV of " + std::to_string(length), tlv, nothing<ravix_tlv_t>);
  }

  using rule = ravix_cfg_auto_update_rule_t;
  const rule no_rule{};
  for (const std::uint32_t type : {1U, 2U, 7U}) {
    rule typed{};
    typed.type = type;
    add("rule of type " + std::to_string(type), typed, nothing<rule>);
    add("rule of type " + std::to_string(type) + " after none", typed, &no_rule);
    add("no rule after one of type " + std::to_string(type), no_rule, &typed);
  }

  using role = ravix_cfg_role_static_t;
  ravix_cfg_role_config_ap_t ap_config{};
  ravix_cfg_role_config_sta_t station_config{};
  role ap{};
  ap.op_mode = RAVIX_ROLE_OPMODE_AP_HOME;
  role bare = ap;
  role station{};
  station.op_mode = RAVIX_ROLE_OPMODE_REPEATER;
  role odd{};
  odd.op_mode = 4;
  ap.config_ap = &ap_config;
  station.config_sta = &station_config;
  odd.config_ap = reinterpret_cast<ravix_cfg_role_config_ap_t *>(std::uintptr_t{1}); // never looked at
  add("access point where a station was", ap, &station);
  add("station where an access point was", station, &ap);
  add("access point where none was", ap, &bare);
  add("access point that has lost its configuration", bare, &ap);
  add("the same without a line end", bare, &ap, false);
  add("role of no kind", odd, nothing<role>);
  add("role of no kind where an access point was", odd, &ap);
  role renamed = bare;
  renamed.id = 1;
  add("incomplete before and after", renamed, &bare);

  using state = ravix_cfg_role_dynamic_t;
  ravix_cfg_owe_transition_t partner{};
  const state single{};
  state linked{};
  linked.owe_transition = &partner;
  add("role state that has lost its partner", single, &linked);
  add("role state that has found a partner", linked, &single);
  add("role state of no multi-link device, without a line end", single, nothing<state>, false);

  const sample<ravix_cfg_radius_server_t> server(1, variety::tame);
  ravix_cfg_radius_server_t moved = server.value;
  moved.index = -9;
  EXPECT_EQ(diff(moved, &server.value), "") << "a server is the same wherever it stands";
  moved.port = 65535;
  add("server that has moved and changed", moved, &server.value);
  moved.addr.version = 0;
  add("server of no address after itself", moved, &moved);
  golden.expect("diff_special");
}

// Tells whether a text has a secret's mark, as it is or as hex digits of whatever layout.
bool tells_secret(std::string text) {
  std::erase_if(text, [](char c) { return std::string_view(" :-,\n").find(c) != std::string_view::npos; });
  return text.find(harness::secret_mark) != std::string::npos || text.find("5a5a5a5a") != std::string::npos ||
         text.find("5A5A5A5A") != std::string::npos;
}

TEST(Secrets, ReachNoOutputAndNoLogLine) {
  harness::captured_log log;
  harness::heap heap;
  for_all_records([&]<class R>() {
    for (unsigned seed = 0; seed < 5; ++seed) {
      const sample<R> r(seed);
      sample<R> dest;
      std::string all;
      if constexpr (diffable<R>) {
        all += diff(r.value, nothing<R>) + diff(r.value, const_cast<const R *>(&dest.value));
        EXPECT_TRUE(!zel::ravix::is_secret<R>() || all.find("[SECRET]") != std::string::npos);
      }
      if constexpr (printable<R>) {
        all += (std::ostringstream() << r.value).str();
      }
      for (std::size_t k = 0; k < 20; ++k) { // what a copy says when it fails
        heap.fail_only(k);
        record<R>::copy(&r.value, &dest.value);
      }
      heap.fail_only(0);
      for (const std::string &text : log.take_texts()) {
        all += text + "\n";
      }
      EXPECT_FALSE(tells_secret(all)) << all;
    }
  });
}

} // namespace
