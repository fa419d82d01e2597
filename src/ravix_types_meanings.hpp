// What values mean. Each meaning stands here once: how a value is shown, which value a cleared field has, whether that
// one says that there is no value, in which unit a number counts, and which names there are. Printers, the debugger's
// printers, JSON, and the tests all go by these; a field list names the meaning of each field.
#pragma once

#include "ravix_types_cfg.h"
#include "ravix_types_common.h"
#include "ravix_types_names.hpp"
#include "ravix_types_str_convert.h"

#include <cstddef>
#include <cstdint>

namespace zel::ravix {

enum class value_kind : std::uint8_t {
  number,     // of a unit, or of nothing that has one
  name,       // of a list
  flags,      // of a list, any number of them
  bits,       // of which each counts
  flag,       // on or off; any octet but 0 is on
  timestamp,  // ms of the monotonic clock
  identifier, // a number, of which some have names
  octets,     // such as those of an address
};

namespace meaning {

// A plain number.
struct number {
  static constexpr value_kind kind = value_kind::number;
  static constexpr int empty = 0;              // the value of a cleared field
  static constexpr bool empty_is_none = false; // the empty value says "not known" or "never"
  static constexpr const char *unit = "";

  template <class Out, class T> static void print(Out &out, T value) { out.decimal(value); }
};

// The address of somebody else's object.
struct address : number {
  static constexpr std::nullptr_t empty = nullptr;
  static constexpr bool empty_is_none = true;
};

// What the formatter of the interface shows.
template <auto Formatter> struct shown_by : number {
  template <class Out, class T> static void print(Out &out, T value) { out.text(Formatter(value)); }
};

// The same of a number whose empty value says "not known" or "never".
template <auto Formatter, auto Empty> struct known_or_empty : shown_by<Formatter> {
  static constexpr auto empty = Empty;
  static constexpr bool empty_is_none = true;
};

struct seconds : number {
  static constexpr const char *unit = "s";
  template <class Out, class T> static void print(Out &out, T value) {
    out.decimal(value);
    out.text(" s");
  }
};

struct frequency : known_or_empty<ravix_str_frequency, RAVIX_FREQUENCY_INVALID> {
  static constexpr const char *unit = "kHz";
};

// A frequency of a channel, shown with the channel's number.
struct channel_frequency : known_or_empty<ravix_str_wifi_freq, RAVIX_FREQUENCY_INVALID> {
  static constexpr const char *unit = "kHz";
};

struct bitrate : shown_by<ravix_str_bitrate> {
  static constexpr const char *unit = "kbit/s";
};

struct power : known_or_empty<ravix_str_power, RAVIX_POWER_INVALID> {
  static constexpr const char *unit = "dBm";
};

struct percentage : known_or_empty<ravix_str_percentage, RAVIX_MEASURE_INVALID> {
  static constexpr const char *unit = "%";
};

// A percentage whose unit stands apart.
struct spaced_percentage : percentage {
  template <class Out> static void print(Out &out, std::uint8_t value) {
    if (value == RAVIX_MEASURE_INVALID) {
      out.text("INVALID");
    } else {
      out.decimal(value);
      out.text(" %");
    }
  }
};

// A number of which the highest says that it is not known, shown like the others.
struct measure : number {
  static constexpr int empty = RAVIX_MEASURE_INVALID;
  static constexpr bool empty_is_none = true;
};

// Codes of IEEE 802.11, 9.4.2.37 to 9.4.2.40, shown as such.
struct rcpi : known_or_empty<ravix_str_rcpi, RAVIX_MEASURE_INVALID> {};
struct rsni : known_or_empty<ravix_str_rsni, RAVIX_MEASURE_INVALID> {};
struct anpi : known_or_empty<ravix_str_anpi, RAVIX_MEASURE_INVALID> {};

// A share of the air time.
struct airtime : number {
  static constexpr float empty = -1.0F;
  static constexpr bool empty_is_none = true;
};

// A limit on clients; the highest number is none.
struct client_limit : number {
  static constexpr std::uint32_t empty = RAVIX_MAX_CLIENTS_UNLIMITED;
};

struct index : known_or_empty<ravix_str_index, RAVIX_INDEX_INVALID> {};

struct timestamp : known_or_empty<ravix_str_timestamp, std::int64_t{RAVIX_TIMESTAMP_INVALID}> {
  static constexpr value_kind kind = value_kind::timestamp;
  static constexpr const char *unit = "ms";
};

struct flag : shown_by<ravix_str_enabled> {
  static constexpr value_kind kind = value_kind::flag;
  static constexpr const auto &names = enabled_names;
};

template <auto Formatter> struct bits : shown_by<Formatter> { static constexpr value_kind kind = value_kind::bits; };
struct bits_8 : bits<ravix_str_bitfield_8> {};
struct bits_16 : bits<ravix_str_bitfield_16> {};
struct bits_32 : bits<ravix_str_bitfield_32> {};

template <auto Formatter> struct octets : shown_by<Formatter> {
  static constexpr value_kind kind = value_kind::octets;
};
struct mac : octets<ravix_str_mac> {};
struct uuid : octets<ravix_str_uuid> {};

// What has names.
template <auto Formatter, const auto &Names, value_kind Kind = value_kind::name> struct named : shown_by<Formatter> {
  static constexpr value_kind kind = Kind;
  static constexpr const auto &names = Names;
};

struct id : named<ravix_str_id, id_names, value_kind::identifier> {};
struct status : named<ravix_str_status, status_names> {
  // Some records carry the bits of the code only.
  template <class Out, class T> static void print(Out &out, T value) {
    out.text(ravix_str_status(static_cast<std::int32_t>(value)));
  }
};

#define RAVIX_MEANING_OF_VALUES(what, argument, shown)                                                                 \
  struct what : named<ravix_str_##what, what##_names> {};
#define RAVIX_MEANING_OF_FLAGS(what, argument)                                                                         \
  struct what : named<ravix_str_##what, what##_names, value_kind::flags> {};
RAVIX_ENUMERATIONS(RAVIX_MEANING_OF_VALUES)
RAVIX_FLAG_SETS(RAVIX_MEANING_OF_FLAGS)

} // namespace meaning

} // namespace zel::ravix
