// The one way in which the library writes a diagnostic line.
#pragma once

#include <charconv>
#include <cstdint>
#include <initializer_list>
#include <iterator>
#include <string_view>

namespace zel::ravix {

// Where a message is raised. Functions that log take one as `call_site site = <source path>`, so that the function name
// and line are those of the caller and nobody types them. The path is that of the family's source, without ending.
struct call_site {
  const char *path;
  const char *function;
  int line;

  constexpr call_site(const char *source_path, // NOLINT(google-explicit-constructor): meant to convert
                      const char *function_name = __builtin_FUNCTION(), int line_number = __builtin_LINE())
      : path(source_path), function(function_name), line(line_number) {}
};

// A number as a part of a message.
class decimal {
public:
  explicit decimal(std::int64_t value) : end_(std::to_chars(text_, std::end(text_), value).ptr) {}
  operator std::string_view() const { return {text_, end_}; } // NOLINT(google-explicit-constructor): meant to convert

private:
  char text_[20];
  const char *end_;
};

// The functions below write one error-level line. They never throw: a line for which no memory is left is lost.
//
// What takes a call site passes it on in pieces, which travel in registers where the structure would be built on the
// stack of every function that may fail.
namespace line {

[[gnu::cold, gnu::noinline]] void log_error(const char *path, const char *function, int line,
                                            const char *message) noexcept;
[[gnu::cold, gnu::noinline]] void log_error(const char *path, const char *function, int line,
                                            std::initializer_list<std::string_view> parts) noexcept;
[[gnu::cold, gnu::noinline]] void log_invalid_pointer(const char *path, const char *function, int line,
                                                      const char *argument) noexcept;
[[gnu::cold, gnu::noinline]] void log_assertion(const char *path, const char *function, int line,
                                                const char *expression) noexcept;

} // namespace line

// A line of module "ravix".
[[gnu::always_inline]] inline void log_error(const call_site &site, const char *message) noexcept {
  line::log_error(site.path, site.function, site.line, message);
}

// The same in several parts.
[[gnu::always_inline]] inline void log_error(const call_site &site,
                                             std::initializer_list<std::string_view> parts) noexcept {
  line::log_error(site.path, site.function, site.line, parts);
}

// "Invalid pointer '<argument>'!"
[[gnu::always_inline]] inline void log_invalid_pointer(const call_site &site, const char *argument) noexcept {
  line::log_invalid_pointer(site.path, site.function, site.line, argument);
}

// "ASSERT: <expression>", to the default logger rather than to module "ravix". Execution goes on.
[[gnu::always_inline]] inline void log_assertion(const call_site &site, const char *expression) noexcept {
  line::log_assertion(site.path, site.function, site.line, expression);
}

} // namespace zel::ravix
