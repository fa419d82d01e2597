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
void write_line(const char *logger, const call_site &site, std::initializer_list<std::string_view> parts) noexcept {
  try {
    using Adapter = ClogAdapter<ClogErrorFunction<H>, Function>;
    std::unique_ptr<ClogAdapterBase> adapter = std::make_unique<Adapter>(logger, site.file, site.function, site.line);
    ClogStreamBuf stream(std::move(adapter));
    for (const std::string_view part : parts) {
      stream << part;
    }
    stream << std::endl; // NOLINT(performance-avoid-endl): ends the line
  } catch (...) {        // NOLINT(bugprone-empty-catch): the operation's result still tells of the failure
  }
}

} // namespace

void log_error(call_site site, std::initializer_list<std::string_view> parts) noexcept {
  write_line<clogmod, clogmod__err>("ravix", site, parts);
}

void log_invalid_pointer(call_site site, std::string_view argument) noexcept {
  log_error(site, {"Invalid pointer '", argument, "'!"});
}

void log_assertion(call_site site, std::string_view expression) noexcept {
  write_line<clogger, clogger__err>("", site, {"ASSERT: ", expression});
}

} // namespace zel::ravix
