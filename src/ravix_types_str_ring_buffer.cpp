#include "ravix_types_str_ring_buffer.hpp"

#include "ravix_types_log.hpp"

#include <algorithm>
#include <cstdio>
#include <cstring>

namespace zel::ravix {

constinit ring_buffer format_buffer;
constinit std::mutex format_mutex;

void log_too_long() noexcept {
  log_error({"src/ravix_types_str_ring_buffer", "vwrite"}, "String is too long!");
}

// `put` stores as much of a piece as fits into a room, the terminator included, and returns the length of all of it, or
// a negative number. A piece that did not fit is put again after the unfinished text has moved to the beginning, unless
// it already was there.
template <class Put> bool ring_buffer::place(Put put) noexcept {
  for (;;) {
    const auto room = static_cast<std::size_t>(buffer + capacity - cursor);
    const std::ptrdiff_t length = put(cursor, room);
    if (length >= 0 && static_cast<std::size_t>(length) < room) {
      cursor += length;
      return true;
    }
    if (start == buffer) {
      cursor = buffer + capacity;
      return false;
    }
    const auto built = static_cast<std::size_t>(cursor - start);
    std::memmove(buffer, start, built);
    start = buffer;
    cursor = buffer + built;
  }
}

bool ring_buffer::try_vwrite(const char *format, va_list args) noexcept {
  return place([&](char *to, std::size_t room) -> std::ptrdiff_t {
    va_list again;
    va_copy(again, args);
    const int length = std::vsnprintf(to, room, format, again); // NOLINT(clang-analyzer-valist.Uninitialized): copied
    va_end(again);
    return length;
  });
}

bool ring_buffer::try_append(std::string_view text) noexcept {
  return place([&](char *to, std::size_t room) {
    if (room != 0) {
      const std::size_t fitting = std::min(text.size(), room - 1);
      std::copy_n(text.data(), fitting, to);
      to[fitting] = '\0';
    }
    return static_cast<std::ptrdiff_t>(text.size());
  });
}

void ring_buffer::vwrite(const char *format, va_list args) {
  if (!try_vwrite(format, args)) {
    log_too_long();
  }
}

void ring_buffer::append(std::string_view text) {
  if (!try_append(text)) {
    log_too_long();
  }
}

void ring_buffer::write(const char *format, ...) {
  va_list args;
  va_start(args, format);
  vwrite(format, args);
  va_end(args);
}

const char *ring_buffer::vwrite_and_finish(const char *format, va_list args) {
  vwrite(format, args);
  return finish();
}

const char *ring_buffer::write_and_finish(const char *format, ...) {
  va_list args;
  va_start(args, format);
  const char *result = vwrite_and_finish(format, args);
  va_end(args);
  return result;
}

} // namespace zel::ravix
