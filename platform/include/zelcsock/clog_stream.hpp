// Log lines written as C++ streams: an adapter names where a line goes, the stream collects its text.
#pragma once

#include "zelcsock/clog.h"
#include "zelcsock/export.h"

#include <memory>
#include <ostream>
#include <streambuf>
#include <string>
#include <utility>

namespace zel::logging {

// Longest piece, in characters, that the logger of that name takes at once; 0 for no bound.
ZELCSOCK_API int get_default_clogger_chunking(const std::string &logger_name);

// Where the lines of a stream go.
class ClogAdapterBase {
public:
  virtual ~ClogAdapterBase() = default;
  virtual void write(const char *text) const = 0;
  virtual int get_logger_chunking() const = 0;

protected:
  ClogAdapterBase() = default;
  ClogAdapterBase(const ClogAdapterBase &) = default;
  ClogAdapterBase &operator=(const ClogAdapterBase &) = default;
};

// Function that writes one error-level line to the log behind a handle H.
template <class H>
using ClogErrorFunction = void (*)(H *, const char *file, const char *function, int line, const char *format, ...);

// Lines of one call site: Function is clogmod__err (module logger) or clogger__err (named logger).
template <class F, F Function> class ClogAdapter;

template <class H, ClogErrorFunction<H> Function>
class ClogAdapter<ClogErrorFunction<H>, Function> final : public ClogAdapterBase {
public:
  // A null file or function is kept as an empty text.
  ClogAdapter(std::string name, const char *file, const char *function, int line)
      : name_(std::move(name)), file_(file != nullptr ? file : ""), function_(function != nullptr ? function : ""),
        line_(line) {}

  // Writes one line; nothing when the log does not exist.
  void write(const char *text) const override {
    if (H *handle = find(static_cast<H *>(nullptr)); handle != nullptr) {
      Function(handle, file_.c_str(), function_.c_str(), line_, "%s", text);
    }
  }

  int get_logger_chunking() const override {
    clogger *logger = logger_of(find(static_cast<H *>(nullptr)));
    const char *logger_name = logger != nullptr ? clogger_get_name(logger) : nullptr;
    return logger_name != nullptr ? get_default_clogger_chunking(logger_name) : 0;
  }

private:
  clogmod *find(const clogmod * /*kind*/) const { return clogmod_get_or_alloc(name_.c_str()); }
  clogger *find(const clogger * /*kind*/) const { return clogger_get(name_.empty() ? nullptr : name_.c_str()); }
  static clogger *logger_of(clogmod *module) { return module != nullptr ? clogmod_get_clogger(module) : nullptr; }
  static clogger *logger_of(clogger *logger) { return logger; }

  std::string name_;
  std::string file_;
  std::string function_;
  int line_;
  int reserved_ = 0; // part of the device's layout
};

// Stream whose lines, each ended by std::endl, go to an adapter, one write per line and without the line break at its
// end.
class ZELCSOCK_API ClogStreamBuf : public std::ostream {
public:
  explicit ClogStreamBuf(std::unique_ptr<ClogAdapterBase> adapter);
  ~ClogStreamBuf() override;
  ClogStreamBuf(const ClogStreamBuf &) = delete;
  ClogStreamBuf &operator=(const ClogStreamBuf &) = delete;

private:
  class Lines;
  std::unique_ptr<Lines> lines_;
};

} // namespace zel::logging
