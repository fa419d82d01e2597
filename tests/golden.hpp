// Expected texts as files, tests/data/<name>.golden: long texts are data, to be read as they are printed.
#pragma once

#include "harness.hpp"

#include <functional>
#include <string>
#include <string_view>

namespace harness {

// Compares a text with the golden file of that name; a difference is shown by its first line. When the environment has
// RAVIX_UPDATE_GOLDEN=1, the file is rewritten instead: read what git then shows as changed.
void expect_golden(const std::string &name, std::string_view text);

// What has been logged since the log was last read: below each other, in a line of its own each, indented by four
// blanks.
std::string logged(captured_log &log);

// A golden file of calls, each with its answer: "<call> = <answer>", and below it, indented by four blanks, what was
// logged meanwhile. Lines that begin with '#' are comments. Makes every call that stands in the file, so that a new
// case is a new line: the call alone, which RAVIX_UPDATE_GOLDEN=1 completes.
void expect_answers(const std::string &name, const std::function<std::string(const std::string &call)> &answer);

// The same for inputs of several lines: "=== <title>", the input, "---", and what comes of it.
void expect_outcomes(const std::string &name, const std::function<std::string(const std::string &input)> &outcome);

// Collects texts that share a golden file, each under a title: "--- <title>", the text, an empty line.
class golden_sections {
public:
  void add(std::string_view title, std::string_view text) {
    collected_.append("--- ").append(title).append("\n").append(text).append("\n\n");
  }
  void expect(const std::string &name) const { expect_golden(name, collected_); }

private:
  std::string collected_;
};

} // namespace harness
