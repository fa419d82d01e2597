// Writes a JSON text in pieces: what a value looks like, and nothing about what it means.
#pragma once

#include "ravix_types_json.h"
#include "ravix_types_names.hpp"

#include <array>
#include <concepts>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string_view>

namespace zel::ravix::json {

class writer;

// Writes the value at an address.
using write_function = void (*)(writer &out, const void *at);
// Writes what differs in the value at an address from the one at another.
using diff_function = void (*)(writer &out, const void *at, const void *reference);

// Bits that stand for the members of an object, the first for the lowest.
using member_set = std::uint32_t;

// Octets that may be read from the begin of a key, so that it can be copied in one block.
inline constexpr std::size_t key_block = 32;

// A member of an object.
struct member_row {
  write_function write;
  diff_function diff; // null: the value stands whole in a difference
  std::uint16_t offset;
  std::uint8_t key_length; // of "name":
};

// How the object of a record is made.
struct object_shape {
  const member_row *rows;
  std::size_t count;
  const char *keys;                                              // one behind the other, without terminators
  member_set (*present)(const void *r);                          // null: all
  member_set (*differing)(const void *r, const void *reference); // null for what is not compared
};

class writer {
public:
  writer(ravix_json_write_t write, void *context) : write_(write), context_(context) {}
  writer(const writer &) = delete;
  writer &operator=(const writer &) = delete;

  // Ends the text; 0 or the negative result of a write. After such a result nothing more has been written.
  int finish();

  void null();
  void nothing(); // an object without members
  void boolean(bool value);
  template <std::integral T> void number(T value) {
    if constexpr (std::signed_integral<T>) {
      magnitude(value < 0, static_cast<std::uint64_t>(value));
    } else {
      magnitude(false, value);
    }
  }
  void number(float value);
  void address(const void *pointer);

  // A string of characters that stand for themselves.
  void text(std::string_view clean);
  // A string of octets; what is no text in UTF-8 is an object of their hexadecimal digits.
  void octets(std::string_view octets);
  // An object of the type and the octets of an element.
  void element(std::uint8_t type, std::string_view octets);

  // The value's name, or the number that it is shown as.
  template <std::integral T> void name_or_number(const name_list<std::int32_t> &names, T number_of_value) {
    if (!name_of(names, static_cast<std::int32_t>(number_of_value))) {
      number(number_of_value);
    }
  }
  template <class Mask> void flags(const name_list<Mask> &names, Mask value);

  void object(const object_shape &shape, const void *r);
  void differences(const object_shape &shape, const void *r, const void *reference);
  void array(const void *data, std::size_t count, std::size_t size, write_function write);

private:
  static constexpr std::size_t capacity = 256;
  static constexpr std::size_t longest = 48; // that is asked for at once

  // Room for that many octets, `longest` at most; what is written there counts once `end_` moves on.
  char *room(std::size_t size) {
    if (size > static_cast<std::size_t>(buffer_.data() + capacity - end_)) [[unlikely]] {
      flush();
    }
    return end_;
  }
  void put(char character) {
    *room(1) = character;
    ++end_;
  }
  // A short piece.
  void raw(std::string_view piece) {
    std::memcpy(room(piece.size()), piece.data(), piece.size());
    end_ += piece.size();
  }
  void key(char before, const char *text, std::size_t length);
  // A name of a list, in quotes behind a character.
  void name(char before, const char *text, std::size_t length);
  void hex_digits(std::string_view octets);
  void hex_number(std::uint64_t value);
  void magnitude(bool is_negative, std::uint64_t value);
  bool name_of(const name_list<std::int32_t> &names, std::int32_t value);
  void flush();

  ravix_json_write_t write_;
  void *context_;
  int failure_ = 0;
  std::array<char, capacity> buffer_; // NOLINT(cppcoreguidelines-pro-type-member-init): only what is written is read
  char *end_ = buffer_.data();
};

extern template void writer::flags(const name_list<std::uint32_t> &names, std::uint32_t value);
extern template void writer::flags(const name_list<std::uint64_t> &names, std::uint64_t value);

} // namespace zel::ravix::json
