#include "ravix_types_log.hpp"

#include "zelcsock/clog_stream.hpp"

#include <memory>
#include <ostream>
#include <utility>

namespace zel::ravix {

namespace {

using zel::logging::ClogAdapter;
using zel::logging::ClogAdapterBase;
using zel::logging::ClogErrorFunction;
using zel::logging::ClogStreamBuf;

template <class H, ClogErrorFunction<H> Function>
void write_line(const char *logger, const char *path, const char *function, int line,
                std::initializer_list<std::string_view> parts) noexcept {
  try {
    using Adapter = ClogAdapter<ClogErrorFunction<H>, Function>;
    std::unique_ptr<ClogAdapterBase> adapter = std::make_unique<Adapter>(logger, path, function, line);
    ClogStreamBuf stream(std::move(adapter));
    for (const std::string_view part : parts) {
      stream << part;
    }
    stream << std::endl; // NOLINT(performance-avoid-endl): ends the line
  } catch (...) {        // NOLINT(bugprone-empty-catch): the operation's result still tells of the failure
  }
}

} // namespace

void line::log_error(const char *path, const char *function, int line,
                     std::initializer_list<std::string_view> parts) noexcept {
  write_line<clogmod, clogmod__err>("ravix", path, function, line, parts);
}

void line::log_error(const char *path, const char *function, int line, const char *message) noexcept {
  write_line<clogmod, clogmod__err>("ravix", path, function, line, {message});
}

void line::log_invalid_pointer(const char *path, const char *function, int line, const char *argument) noexcept {
  log_error(path, function, line, {"Invalid pointer '", argument, "'!"});
}

void line::log_assertion(const char *path, const char *function, int line, const char *expression) noexcept {
  write_line<clogger, clogger__err>("", path, function, line, {"ASSERT: ", expression});
}

} // namespace zel::ravix
