// The one way in which the library writes a diagnostic line.
#pragma once

#include <initializer_list>
#include <string_view>

namespace zel::ravix {

// Where a message is raised. Functions that log take one as `call_site site = <source path>`, so that the function name
// and line are those of the caller and nobody types them. The path is that of the family's source, without ending.
struct call_site {
  const char *file;
  const char *function;
  int line;

  constexpr call_site(const char *source, // NOLINT(google-explicit-constructor): meant to convert
                      const char *function_name = __builtin_FUNCTION(), int line_number = __builtin_LINE())
      : file(source), function(function_name), line(line_number) {}
};

// Writes the parts as one error-level line of module "ravix". Never throws: a line for which no memory is left is lost.
[[gnu::cold, gnu::noinline]] void log_error(call_site site, std::initializer_list<std::string_view> parts) noexcept;

// "Invalid pointer '<argument>'!"
[[gnu::cold, gnu::noinline]] void log_invalid_pointer(call_site site, std::string_view argument) noexcept;

// "ASSERT: <expression>", to the default logger rather than to module "ravix". Execution goes on.
[[gnu::cold, gnu::noinline]] void log_assertion(call_site site, std::string_view expression) noexcept;

} // namespace zel::ravix
