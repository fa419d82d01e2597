#include "zelcsock/clog_stream.hpp"

#include <cstddef>
#include <utility>

namespace zel::logging {

// The stand-in takes lines of any length, so it never asks an adapter for a bound.
int get_default_clogger_chunking(const std::string & /*logger_name*/) {
  return 0;
}

class ClogStreamBuf::Lines : public std::streambuf {
public:
  explicit Lines(std::unique_ptr<ClogAdapterBase> adapter) : adapter_(std::move(adapter)) {
    line_.reserve(256); // more than most lines have
  }

protected:
  int_type overflow(int_type character) override {
    if (!traits_type::eq_int_type(character, traits_type::eof())) {
      line_ += traits_type::to_char_type(character);
    }
    return traits_type::not_eof(character);
  }

  std::streamsize xsputn(const char *text, std::streamsize count) override {
    line_.append(text, static_cast<std::size_t>(count));
    return count;
  }

  // A line ends where std::endl flushes, not at a line break in a text that it quotes.
  int sync() override {
    if (line_.ends_with('\n')) {
      line_.pop_back();
      adapter_->write(line_.c_str());
      line_.clear();
    }
    return 0;
  }

private:
  std::unique_ptr<ClogAdapterBase> adapter_;
  std::string line_;
};

ClogStreamBuf::ClogStreamBuf(std::unique_ptr<ClogAdapterBase> adapter)
    : std::ostream(nullptr), lines_(std::make_unique<Lines>(std::move(adapter))) {
  rdbuf(lines_.get());
}

ClogStreamBuf::~ClogStreamBuf() = default;

} // namespace zel::logging
