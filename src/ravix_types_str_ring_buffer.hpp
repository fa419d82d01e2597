// The area in which the formatters' texts are built and, for a while, stay readable.
#pragma once

#include <cstdarg>
#include <cstddef>
#include <mutex>
#include <string_view>

namespace zel::ravix {

// A fixed area that rotates: each finished text is followed by the next one, and one that reaches the end of the area
// is moved, unfinished, to its beginning. A text is built by any number of writes and closed by one finish. Takes no
// lock and never allocates; a text that exceeds the area is cut, with one log line.
class ring_buffer {
public:
  static constexpr std::size_t capacity = 4096;

  constexpr ring_buffer() = default;
  ring_buffer(const ring_buffer &) = delete;
  ring_buffer &operator=(const ring_buffer &) = delete;

  [[gnu::format(printf, 2, 3)]] void write(const char *format, ...);
  [[gnu::format(printf, 2, 0)]] void vwrite(const char *format, va_list args);
  void append(std::string_view text);

  // The text that was built, valid until later texts come round to it; "" if nothing was written.
  const char *finish() noexcept {
    if (start == cursor) {
      return "";
    }
    const char *result = start;
    cursor = cursor >= buffer + capacity ? buffer : cursor + 1;
    start = cursor;
    return result;
  }

  [[gnu::format(printf, 2, 3)]] const char *write_and_finish(const char *format, ...);
  [[gnu::format(printf, 2, 0)]] const char *vwrite_and_finish(const char *format, va_list args);

  // The writers without the log line, for those who hold a lock: false if the text was cut.
  [[gnu::format(printf, 2, 0)]] [[nodiscard]] bool try_vwrite(const char *format, va_list args) noexcept;
  [[nodiscard]] bool try_append(std::string_view text) noexcept;

  // Building in place: where to put at most `longest` characters, or null if so many might not fit; then the end of
  // them.
  char *room_for(std::size_t longest) noexcept {
    return static_cast<std::size_t>(buffer + capacity - cursor) > longest ? cursor : nullptr;
  }
  void advance_to(char *end) noexcept {
    *end = '\0';
    cursor = end;
  }

private:
  template <class Put> bool place(Put put) noexcept;

  char buffer[capacity] = {};
  char *start = buffer;  // of the text that is being built
  char *cursor = buffer; // its end, where the next piece goes
};

// What is logged when a text was cut.
void log_too_long() noexcept;

// The area of all formatters, and the lock under which each builds its text. Nothing is logged under this lock: a log
// sink may want to format something itself.
extern constinit ring_buffer format_buffer;
extern constinit std::mutex format_mutex;

} // namespace zel::ravix
