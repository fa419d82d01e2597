// Expected texts as files in tests/data: long texts are data, to be read as they are printed.
//
// <name>.txt is written by hand, from what the interface says, and no run changes it. <name>.golden is recorded: what a
// program printed, read by a person before it was committed. With RAVIX_UPDATE_GOLDEN=1 a test that fails in nothing
// else rewrites the recorded files that differ, says how many lines that are, and fails all the same. Where CI is set
// that is refused.
#pragma once

#include "harness.hpp"

#include <cstdint>
#include <functional>
#include <map>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace harness {

// Compares a text with the file of that name; a difference is shown by its first line.
void expect_golden(const std::string &name, std::string_view text);

// What has been logged since the log was last read: below each other, in a line of its own each, indented by four
// blanks. Of the functions whose lines log filters know, the line is told.
std::string logged(captured_log &log);

// A file of calls, each with its answer: "<call> = <answer>", or several in a line, with " // " between them; and below
// it, indented by four blanks, what was logged meanwhile. Lines that begin with '#' are comments. Makes every call that
// stands in the file, so that a new case is a new line.
void expect_answers(const std::string &name, const std::function<std::string(const std::string &call)> &answer);

// The names of tests/data/names.txt with their values, by list.
std::map<std::string, std::vector<std::pair<std::int64_t, std::string>>> written_names();

// Collects texts that share a file, each under a title: "--- <title>", the text; with empty lines between them. The
// file may begin with comments.
class golden_sections {
public:
  void add(std::string_view title, std::string_view text) {
    collected_.append("--- ").append(title).append("\n").append(text).append("\n");
  }
  void expect(const std::string &name) const;

private:
  std::string collected_;
};

} // namespace harness
