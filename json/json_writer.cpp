#include "json_writer.hpp"

#include <algorithm>
#include <charconv>
#include <cmath>

namespace zel::ravix::json {

namespace {

constexpr char hex_characters[] = "0123456789abcdef";

// Stands for itself within a string.
constexpr bool is_plain(unsigned char octet) {
  return octet >= 0x20 && octet < 0x80 && octet != '"' && octet != '\\';
}

// Octets of the character in UTF-8 that the text begins with; 0 if it begins with none, or with a zero. By table 3-7 of
// the Unicode standard: the first octet tells how many follow, and the range of the second.
std::size_t character_length(std::string_view text) {
  const auto octet = [&](std::size_t i) { return static_cast<unsigned char>(text[i]); };
  const unsigned first = octet(0);
  if (first < 0x80) {
    return first != 0 ? 1 : 0;
  }
  const std::size_t length = first < 0xE0 ? 2 : first < 0xF0 ? 3 : 4;
  if (first < 0xC2 || first > 0xF4 || text.size() < length) {
    return 0;
  }
  unsigned lowest = 0x80;
  unsigned highest = 0xBF;
  switch (first) {
  case 0xE0: // could be said in two octets
    lowest = 0xA0;
    break;
  case 0xED: // surrogates
    highest = 0x9F;
    break;
  case 0xF0: // could be said in three octets
    lowest = 0x90;
    break;
  case 0xF4: // beyond U+10FFFF
    highest = 0x8F;
    break;
  default:
    break;
  }
  for (std::size_t i = 1; i < length; ++i) {
    if (octet(i) < lowest || octet(i) > highest) {
      return 0;
    }
    lowest = 0x80;
    highest = 0xBF;
  }
  return length;
}

bool is_text(std::string_view octets) {
  while (!octets.empty()) {
    const std::size_t length = character_length(octets);
    if (length == 0) {
      return false;
    }
    octets.remove_prefix(length);
  }
  return true;
}

} // namespace

int writer::finish() {
  flush();
  return failure_;
}

void writer::flush() {
  const auto length = static_cast<std::size_t>(end_ - buffer_.data());
  end_ = buffer_.data();
  if (failure_ == 0 && length != 0) {
    failure_ = std::min(write_(buffer_.data(), length, context_), 0);
  }
}

void writer::null() {
  raw("null");
}

void writer::nothing() {
  raw("{}");
}

void writer::boolean(bool value) {
  raw(value ? std::string_view("true") : std::string_view("false"));
}

void writer::number(float value) {
  if (!std::isfinite(value)) {
    null();
    return;
  }
  char *begin = room(longest);
  end_ = std::to_chars(begin, begin + longest, value).ptr; // the shortest that is read back as the same
}

void writer::magnitude(bool is_negative, std::uint64_t value) {
  char *begin = room(longest);
  *begin = '-';
  begin += is_negative ? 1 : 0;
  value = is_negative ? ~value + 1 : value;
  // Few exceed 32 bits, and divisions of 64 take several times as long on a processor that has no instruction for them.
  const auto low = static_cast<std::uint32_t>(value);
  end_ = (low == value ? std::to_chars(begin, begin + 20, low) : std::to_chars(begin, begin + 20, value)).ptr;
}

void writer::hex_number(std::uint64_t value) {
  raw("\"0x");
  char *begin = room(longest);
  end_ = std::to_chars(begin, begin + 16, value, 16).ptr;
  put('"');
}

void writer::address(const void *pointer) {
  hex_number(reinterpret_cast<std::uintptr_t>(pointer));
}

void writer::text(std::string_view clean) {
  put('"');
  for (; clean.size() > longest; clean.remove_prefix(longest)) {
    raw(clean.substr(0, longest));
  }
  raw(clean);
  put('"');
}

void writer::octets(std::string_view octets) {
  if (std::all_of(octets.begin(), octets.end(), [](char c) { return is_plain(static_cast<unsigned char>(c)); })) {
    text(octets);
    return;
  }
  if (!is_text(octets)) {
    raw("{\"hex\":");
    hex_digits(octets);
    put('}');
    return;
  }
  put('"');
  for (const char character : octets) {
    const auto octet = static_cast<unsigned char>(character);
    if (octet >= 0x20) {
      if (octet == '"' || octet == '\\') {
        put('\\');
      }
      put(character);
      continue;
    }
    constexpr char letters[] = "btnufr"; // of 8 and what follows; u: has none
    const char letter = octet >= 8 && octet < 14 ? letters[octet - 8] : 'u';
    put('\\');
    put(letter);
    if (letter == 'u') {
      raw("00");
      put(hex_characters[octet >> 4]);
      put(hex_characters[octet & 0xF]);
    }
  }
  put('"');
}

void writer::element(std::uint8_t type, std::string_view octets) {
  raw("{\"type\":");
  number(type);
  raw(",\"hex\":");
  hex_digits(octets);
  put('}');
}

void writer::hex_digits(std::string_view octets) {
  put('"');
  for (const char character : octets) {
    const auto octet = static_cast<unsigned char>(character);
    char *place = room(2);
    place[0] = hex_characters[octet >> 4];
    place[1] = hex_characters[octet & 0xF];
    end_ += 2;
  }
  put('"');
}

void writer::name(char before, const char *text, std::size_t length) {
  char *place = room(name_block + 3);
  place[0] = before;
  place[1] = '"';
  std::memcpy(place + 2, text, name_block);
  place[2 + length] = '"';
  end_ += length + 3;
}

void writer::key(char before, const char *text, std::size_t length) {
  char *place = room(key_block + 1);
  place[0] = before;
  std::memcpy(place + 1, text, key_block);
  end_ += length + 1;
}

bool writer::name_of(const name_list<std::int32_t> &names, std::int32_t value) {
  // Most lists count up from 0, so that a value is its own index.
  std::size_t index = static_cast<std::uint32_t>(value);
  if (index >= names.count || names.values[index] != value) {
    index = static_cast<std::size_t>(std::find(names.values, names.values + names.count, value) - names.values);
  }
  if (index == names.count) {
    return false;
  }
  text({names.name(index), names.length(index)});
  return true;
}

template <class Mask> void writer::flags(const name_list<Mask> &names, Mask value) {
  char before = '[';
  for (std::size_t i = 0; i < names.count && value != 0; ++i) {
    if ((names.values[i] & value) != 0) {
      name(before, names.name(i), names.length(i));
      before = ',';
      value &= ~names.values[i];
    }
  }
  if (value != 0) {
    put(before);
    hex_number(value);
    before = ',';
  }
  raw(before == '[' ? std::string_view("[]") : std::string_view("]"));
}

template void writer::flags(const name_list<std::uint32_t> &names, std::uint32_t value);
template void writer::flags(const name_list<std::uint64_t> &names, std::uint64_t value);

namespace {

const void *at_offset(const void *r, std::size_t offset) {
  return static_cast<const char *>(r) + offset;
}

} // namespace

void writer::object(const object_shape &shape, const void *r) {
  member_set present = shape.present != nullptr ? shape.present(r) : ~member_set{0};
  const char *keys = shape.keys;
  char before = '{';
  for (const member_row *row = shape.rows, *end = row + shape.count; row != end; ++row, present >>= 1) {
    if ((present & 1) != 0) {
      key(before, keys, row->key_length);
      before = ',';
      row->write(*this, at_offset(r, row->offset));
    }
    keys += row->key_length;
  }
  raw(before == '{' ? std::string_view("{}") : std::string_view("}"));
}

void writer::differences(const object_shape &shape, const void *r, const void *reference) {
  const auto present_in = [&](const void *record) {
    return shape.present != nullptr ? shape.present(record) : ~member_set{0};
  };
  const member_set now = present_in(r);
  const member_set before_now = present_in(reference);
  member_set shown = (now ^ before_now) | (now & before_now & shape.differing(r, reference));
  const char *keys = shape.keys;
  char before = '{';
  for (std::size_t i = 0; i < shape.count; ++i, keys += shape.rows[i - 1].key_length) {
    const member_row &row = shape.rows[i];
    if ((shown >> i & 1) == 0) {
      continue;
    }
    key(before, keys, row.key_length);
    before = ',';
    const void *value = at_offset(r, row.offset);
    if ((now >> i & 1) == 0) {
      null();
    } else if (row.diff != nullptr && (before_now >> i & 1) != 0) {
      row.diff(*this, value, at_offset(reference, row.offset));
    } else {
      row.write(*this, value);
    }
  }
  raw(before == '{' ? std::string_view("{}") : std::string_view("}"));
}

void writer::array(const void *data, std::size_t count, std::size_t size, write_function write) {
  put('[');
  for (std::size_t i = 0; i < count && failure_ == 0; ++i) {
    if (i != 0) {
      put(',');
    }
    write(*this, at_offset(data, i * size));
  }
  put(']');
}

} // namespace zel::ravix::json
