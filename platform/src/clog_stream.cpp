#include "zelcsock/clog_stream.hpp"

#include <cstddef>
#include <utility>

namespace zel::logging {

int get_default_clogger_chunking(const std::string & /*logger_name*/) {
  return 0;
}

class ClogStreamBuf::Lines : public std::streambuf {
public:
  explicit Lines(std::unique_ptr<ClogAdapterBase> adapter)
      : adapter_(std::move(adapter)), chunk_(static_cast<std::size_t>(adapter_->get_logger_chunking())) {}

protected:
  int_type overflow(int_type character) override {
    if (!traits_type::eq_int_type(character, traits_type::eof())) {
      put(traits_type::to_char_type(character));
    }
    return traits_type::not_eof(character);
  }

  std::streamsize xsputn(const char *text, std::streamsize count) override {
    for (std::streamsize i = 0; i < count; ++i) {
      put(text[i]);
    }
    return count;
  }

  // A line ends where std::endl flushes, not at a line break in a text that it quotes.
  int sync() override {
    if (line_.ends_with('\n')) {
      line_.pop_back();
      hand_over();
    }
    return 0;
  }

private:
  void put(char character) {
    line_ += character;
    if (chunk_ != 0 && line_.size() == chunk_) {
      hand_over();
    }
  }

  void hand_over() {
    adapter_->write(line_.c_str());
    line_.clear();
  }

  std::unique_ptr<ClogAdapterBase> adapter_;
  std::size_t chunk_;
  std::string line_;
};

ClogStreamBuf::ClogStreamBuf(std::unique_ptr<ClogAdapterBase> adapter)
    : std::ostream(nullptr), lines_(std::make_unique<Lines>(std::move(adapter))) {
  rdbuf(lines_.get());
}

ClogStreamBuf::~ClogStreamBuf() = default;

} // namespace zel::logging
