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

// Every log line is counted, until somebody starts anew.
inline std::size_t lines_logged = 0;
inline const bool is_counting = [] {
  clog_host_set_sink([](auto...) { ++lines_logged; }, nullptr);
  return true;
}();

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
