#include "ravix_types_print.hpp"

#include <algorithm>
#include <charconv>
#include <cstring>
#include <span>

namespace zel::ravix {

namespace {

// The digits of a number, written into `place`.
std::string_view digits_of(std::span<char> place, auto... number) {
  return {place.data(), std::to_chars(place.data(), place.data() + place.size(), number...).ptr};
}

} // namespace

void printer::flush() {
  if (used_ == 0) {
    return; // even a write of nothing would flush what is tied to the stream, and fail on a stream that has failed
  }
  stream_.write(buffer_.data(), static_cast<std::streamsize>(used_));
  used_ = 0;
}

void printer::text(std::string_view piece) {
  while (piece.size() > buffer_.size() - used_) {
    const std::size_t fitting = buffer_.size() - used_;
    std::memcpy(buffer_.data() + used_, piece.data(), fitting);
    used_ = buffer_.size();
    piece.remove_prefix(fitting);
    flush();
  }
  std::memcpy(buffer_.data() + used_, piece.data(), piece.size());
  used_ += piece.size();
}

void printer::blanks(std::size_t count) {
  static constexpr std::string_view some = "                                                ";
  for (; count > some.size(); count -= some.size()) {
    text(some);
  }
  text(some.substr(0, count));
}

void printer::left(std::string_view piece, std::size_t width) {
  text(piece);
  blanks(width - std::min(width, piece.size()));
}

void printer::right(std::string_view piece, std::size_t width) {
  blanks(width - std::min(width, piece.size()));
  text(piece);
}

void printer::widest_decimal(std::int64_t number, std::size_t width) {
  char place[24];
  right(digits_of(place, number), width);
}

void printer::widest_decimal(std::uint64_t number, std::size_t width) {
  char place[24];
  right(digits_of(place, number), width);
}

void printer::decimal(const void *pointer) {
  if (pointer == nullptr) {
    text(null_text);
    return;
  }
  text("0x");
  hex(reinterpret_cast<std::uintptr_t>(pointer), 1);
}

void printer::fixed(float number, int decimals, std::size_t width) {
  char place[64];
  right(digits_of(place, number, std::chars_format::fixed, decimals), width);
}

void printer::hex(std::uintptr_t number, std::size_t width) {
  char place[2 * sizeof number];
  const std::string_view digits = digits_of(place, number, 16);
  static constexpr std::string_view zeros = "00000000";
  text(zeros.substr(0, width - std::min(width, digits.size())));
  text(digits);
}

void printer::quoted(const char *piece) {
  if (piece == nullptr) {
    text(null_text);
    return;
  }
  texts("\"", piece, "\"");
}

void printer::label(const char *name, const char *after, unsigned indent) {
  blanks(indent);
  if (name != nullptr) {
    texts(name, after);
  }
}

void printer::index(std::uint32_t i, std::uint32_t count) {
  std::size_t width = 1;
  for (std::uint32_t highest = count - 1; highest >= 10; highest /= 10) {
    ++width;
  }
  char piece[16] = "[";
  std::memset(piece + 1, ' ', 10);
  for (std::size_t at = width; at == width || i != 0; --at, i /= 10) {
    piece[at] = static_cast<char>('0' + i % 10);
  }
  std::copy_n("]: ", 3, piece + width + 1);
  text({piece, width + 4});
}

void printer::header(const char *word, std::uint32_t i) {
  texts("[", word, " ");
  decimal(i);
  text("]:\n");
}

void printer::content(const ravix_tlv_t &tlv, unsigned indent) {
  constexpr std::size_t row = 16;
  const std::size_t length = tlv.value != nullptr ? tlv.len : 0;
  blanks(indent);
  text("type: ");
  decimal(tlv.type);
  text(", length: ");
  decimal(tlv.len);
  for (std::size_t offset = 0; offset < length; offset += row) {
    text("\n");
    blanks(indent);
    hex(offset, 8);
    text(": ");
    for (std::size_t i = offset; i < offset + row; ++i) {
      if (i < length) {
        hex(tlv.value[i], 2);
        text(" ");
      } else {
        text("   ");
      }
    }
  }
}

} // namespace zel::ravix
