// What the fuzz targets have in common.
#pragma once

#include "text_input.hpp"
#include "zelcsock/clog.h"

#include <fuzzer/FuzzedDataProvider.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <utility>
#include <vector>

namespace fuzz {

// An invariant of a target. One that does not hold ends the run, and libFuzzer keeps the input.
inline void require(bool holds, const char *invariant) {
  if (!holds) {
    std::fprintf(stderr, "does not hold: %s\n", invariant);
    std::abort();
  }
}

// Counts every log line while it lives, of one thread.
class counted_log {
public:
  counted_log() { clog_host_set_sink(count, this); }
  ~counted_log() { clog_host_set_sink(nullptr, nullptr); }
  counted_log(const counted_log &) = delete;
  counted_log &operator=(const counted_log &) = delete;

  // How many have been written since the last call.
  std::size_t take() { return std::exchange(lines_, 0); }

private:
  static void count(void *context, const char * /*name*/, const char * /*file*/, const char * /*function*/,
                    int /*line*/, const char * /*text*/) {
    ++static_cast<counted_log *>(context)->lines_;
  }

  std::size_t lines_ = 0;
};

// What a reader of a text says about it.
inline void check_problems(const text::problems &problems, const std::string &text, bool must_have_errors) {
  const auto lines = static_cast<std::size_t>(std::count(text.begin(), text.end(), '\n')) + 1;
  require(problems.has_errors() || !must_have_errors, "a text of which nothing could be read is told");
  require(problems.list().size() <= 200, "messages take a bounded amount of memory");
  for (const auto &problem : problems.list()) {
    require(problem.line >= 1 && problem.line <= lines, "a problem names a line of the text");
    require(std::none_of(problem.message.begin(), problem.message.end(), [](char c) { return c >= 0 && c < ' '; }),
            "a message has no control characters");
  }
}

} // namespace fuzz

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, std::size_t size);
