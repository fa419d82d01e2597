// Expected texts as files, tests/data/<name>.golden: long texts are data, to be read as they are printed.
#pragma once

#include <string>
#include <string_view>

namespace harness {

// Compares a text with the golden file of that name; a difference is shown by its first line. When the environment has
// RAVIX_UPDATE_GOLDEN=1, the file is rewritten instead: read what git then shows as changed.
void expect_golden(const std::string &name, std::string_view text);

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
