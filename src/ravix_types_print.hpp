// How records become text: the two layouts that follow from a field list (field lines and differences), tables, and the
// stream that they are written to.
#pragma once

#include "ravix_types_cfg.h"
#include "ravix_types_common_fields.hpp"
#include "ravix_types_sta.h"

#include <array>
#include <concepts>
#include <cstddef>
#include <cstdint>
#include <ostream>
#include <string_view>
#include <tuple>

namespace zel::ravix {

// Records that print as one short text. A key's text is fixed: its octets reach no output.
inline const char *value_text(const ravix_channel_info_t &value) {
  return ravix_str_channel_info(&value);
}
inline const char *value_text(const ravix_ip_addr_t &value) {
  return ravix_str_ip_addr(&value);
}
inline const char *value_text(const ravix_ssid_t &value) {
  return ravix_str_ssid(&value, true);
}
inline const char *value_text(const ravix_key_t & /*value*/) {
  return "[SECRET]";
}

template <class T>
concept value_record = requires(const T &value) {
  value_text(value);
};

// Word that heads each entry of a table of records.
template <class E> inline constexpr const char *heading = nullptr;
template <> inline constexpr const char *heading<ravix_tlv_t> = "TLV";
template <> inline constexpr const char *heading<ravix_cfg_radius_server_t> = "RADIUS SERVER";
template <> inline constexpr const char *heading<ravix_cfg_security_extended_t> = "SECURITY EXTENDED";
template <> inline constexpr const char *heading<ravix_station_entry_t> = "STATION";
template <> inline constexpr const char *heading<ravix_remote_client_entry_t> = "REMOTE CLIENT";
template <> inline constexpr const char *heading<ravix_remote_ap_entry_t> = "REMOTE AP";
template <> inline constexpr const char *heading<ravix_station_history_entry_t> = "STATION HISTORY";

template <class E> inline constexpr bool has_heading = heading<E> != nullptr;

template <class T>
concept record_table = table_record<T> && has_heading<element_of<T>>;

// Difference of a field to a reference, as a difference print sees it.
template <class Kind, class R> int field_difference(const Kind &field, const R &r, const R &ref) {
  if constexpr (requires { field.difference(r, ref); }) {
    return field.difference(r, ref);
  } else {
    return field.compare(r, ref);
  }
}

// Collects text and writes it to a stream in pieces of some hundred characters, by unformatted output: the stream's own
// format, width and locale neither show nor change. What a stream throws passes through.
class printer {
public:
  explicit printer(std::ostream &stream) : stream_(stream) {}
  printer(const printer &) = delete;
  printer &operator=(const printer &) = delete;

  // Writes what has been collected; every print ends with it.
  void flush();

  void text(std::string_view piece);
  template <class... Pieces> void texts(Pieces... pieces) { (text(pieces), ...); }
  void blanks(std::size_t count);
  void left(std::string_view piece, std::size_t width);
  void right(std::string_view piece, std::size_t width);

  template <std::integral T> void decimal(T number, std::size_t width = 0) {
    widest_decimal(std::conditional_t<std::signed_integral<T>, std::int64_t, std::uint64_t>{number}, width);
  }
  // An address of somebody else's object.
  void decimal(const void *pointer);
  void fixed(float number, int decimals, std::size_t width);

  void text_or_null(const char *piece) { text(piece != nullptr ? piece : null_text); }

  template <value_record T> void value(const T &record) { text(value_text(record)); }

  // " name: text" per field, separated by line breaks.
  template <class R> void lines(const R &r) {
    const char *separator = " ";
    for_each_field<R>([&](const auto &field) {
      texts(separator, field.name, ": ");
      field.print(*this, r);
      separator = "\n ";
    });
  }

  // A table whose entries are headed "[WORD i]:" and printed by their field lines.
  template <table_record T> void listed(const T &table) {
    each(table, "\n", [&](std::uint32_t i) {
      header(heading<element_of<T>>, i);
      lines(table.data[i]);
    });
  }

  // A table of one line per entry under a header line; print_entry(entry) writes an entry's columns.
  template <table_record T> void columns(std::string_view header_line, const T &table, auto print_entry) {
    text(header_line);
    each(table, "\n", [&](std::uint32_t i) {
      index(i, table.count);
      print_entry(table.data[i]);
    });
  }

  // ---- difference prints: nothing for a value that equals its reference

  template <class T> void diff(const T &value, const T *ref, const char *name, unsigned indent, bool newline) {
    if (ref != nullptr && operations<T>::compare(&value, ref) == 0) {
      return;
    }
    if constexpr (value_record<T>) {
      label(name, ": ", indent);
      text(value_text(value));
    } else {
      if (name != nullptr) {
        label(name, ":\n", indent);
        ++indent;
      }
      if constexpr (!table_record<T> && !std::same_as<T, ravix_tlv_t>) {
        diff_fields(value, ref, indent, newline);
        return; // the last field has written the line's end
      } else {
        content(value, indent);
      }
    }
    text(newline ? "\n" : "");
  }

  // A record that is owned by pointer, which ends its own lines; null is a line of the field where it tells something.
  template <class T>
  void diff_pointee(const T *value, bool has_ref, const T *ref, const char *name, unsigned indent, bool newline) {
    if (value != nullptr) {
      diff(*value, ref, name, indent, true);
    } else if (!has_ref || ref != nullptr) {
      label(name, ": ", indent);
      text(null_text);
      text(newline ? "\n" : "");
    }
  }

  static constexpr const char *null_text = "<nullptr>";
  static constexpr const char *no_entries = "-- no entries --";

private:
  // A log line stays short: longer tables are only named as such.
  static constexpr std::uint32_t max_entries = 50;
  // Tables of short texts share one line up to this number.
  static constexpr std::uint32_t max_on_one_line = 5;

  void widest_decimal(std::int64_t number, std::size_t width);
  void widest_decimal(std::uint64_t number, std::size_t width);
  // Lower-case digits, at least as many as `width`.
  void hex(std::uintptr_t number, std::size_t width);
  void quoted(const char *piece);
  // Indentation and, unless it is null, the name and what follows it.
  void label(const char *name, const char *after, unsigned indent);
  // Calls print_entry(i) for each entry.
  template <table_record T> void each(const T &table, const char *separator, auto print_entry) {
    const std::uint32_t count = table::elements(table);
    if (count == 0) {
      text(no_entries);
    }
    for (std::uint32_t i = 0; i < count; ++i) {
      text(i == 0 ? "" : separator);
      print_entry(i);
    }
  }
  // "[i]: ", aligned for a table of `count` entries.
  void index(std::uint32_t i, std::uint32_t count);
  // "[WORD i]:" and a line break.
  void header(const char *word, std::uint32_t i);
  // Type, length and a dump of 16 octets a row.
  void content(const ravix_tlv_t &tlv, unsigned indent);

  template <class R> void diff_fields(const R &r, const R *ref, unsigned indent, bool newline) {
    std::size_t remaining = field_count<R>;
    for_each_field<R>([&](const auto &field) { diff_field(field, r, ref, indent, --remaining != 0 || newline); });
  }

  template <class Kind, class R>
  void diff_field(const Kind &field, const R &r, const R *ref, unsigned indent, bool newline) {
    if constexpr (requires { field.print_diff(*this, r, ref, indent, newline); }) {
      field.print_diff(*this, r, ref, indent, newline);
    } else if (ref == nullptr || field_difference(field, r, *ref) != 0) {
      label(field.name, ": ", indent);
      field.print(*this, r);
      text(newline ? "\n" : "");
    }
  }

  template <table_record T> void content(const T &table, unsigned indent) {
    const std::uint32_t count = table::elements(table);
    if (count == 0) {
      blanks(indent);
      text(no_entries);
    } else if constexpr (record_table<T>) {
      for (std::uint32_t i = 0; i < count; ++i) {
        blanks(indent);
        header(heading<element_of<T>>, i);
        diff<element_of<T>>(table.data[i], nullptr, nullptr, indent + 1, i + 1 < count);
      }
    } else if (count > max_entries) {
      blanks(indent);
      text("-- too many entries --");
    } else if (std::integral<element_of<T>> && count <= max_on_one_line) {
      blanks(indent);
      each(table, ", ", [&](std::uint32_t i) { entry(table, i); });
    } else {
      each(table, "\n", [&](std::uint32_t i) {
        blanks(indent);
        index(i, count);
        entry(table, i);
      });
    }
  }

  template <table_record T> void entry(const T &table, std::uint32_t i) {
    const auto &element = table.data[i];
    if constexpr (value_record<element_of<T>>) {
      value(element);
    } else if constexpr (std::same_as<element_of<T>, char *>) {
      quoted(element);
    } else {
      std::remove_cvref_t<decltype(std::get<0>(field_list<T>::fields))>::meaning::print(*this, element);
    }
  }

  std::ostream &stream_;
  std::array<char, 256> buffer_; // NOLINT(cppcoreguidelines-pro-type-member-init): only what is written is read
  std::size_t used_ = 0;
};

} // namespace zel::ravix
