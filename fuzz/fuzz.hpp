// What the fuzz targets have in common.
#pragma once

#include "harness.hpp"
#include "text_input.hpp"

#include <fuzzer/FuzzedDataProvider.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <vector>

namespace fuzz {

// An invariant of a target. One that does not hold ends the run, and libFuzzer keeps the input.
inline void require(bool holds, const char *invariant) {
  if (!holds) {
    std::fprintf(stderr, "does not hold: %s\n", invariant);
    std::abort();
  }
}

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
