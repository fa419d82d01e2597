#include "golden.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <sstream>
#include <utility>
#include <vector>

namespace harness {

namespace {

struct expected_file {
  std::filesystem::path path;
  bool is_recorded;

  explicit expected_file(const std::string &name) {
    const std::filesystem::path stem = std::filesystem::path(RAVIX_TEST_DATA) / name;
    is_recorded = !std::filesystem::exists(stem.string() + ".txt");
    path = stem.string() + (is_recorded ? ".golden" : ".txt");
  }
  std::string text() const {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
  }
};

bool is_set(const char *variable, const char *value = nullptr) {
  const char *found = std::getenv(variable); // NOLINT(concurrency-mt-unsafe): nothing changes it
  return found != nullptr && (value == nullptr ? *found != '\0' : std::string_view(found) == value);
}

std::vector<std::string> lines_of(const std::string &text) {
  std::istringstream in(text);
  std::vector<std::string> lines;
  for (std::string line; std::getline(in, line);) {
    lines.push_back(line);
  }
  return lines;
}

// How many lines of a text another one has not.
std::size_t lines_missing(const std::string &text, const std::string &other) {
  std::vector<std::string> lines = lines_of(text), others = lines_of(other), missing;
  std::ranges::sort(lines);
  std::ranges::sort(others);
  std::ranges::set_difference(lines, others, std::back_inserter(missing));
  return missing.size();
}

// Rewrites recorded files when a test has ended, since only then it is known that nothing else is wrong with it.
class rewriter : public testing::EmptyTestEventListener {
public:
  rewriter() { testing::UnitTest::GetInstance()->listeners().Append(this); }

  std::map<std::filesystem::path, std::string> texts;

private:
  void OnTestEnd(const testing::TestInfo &test) override {
    const bool has_failed = test.result()->Failed();
    for (const auto &[path, text] : std::exchange(texts, {})) {
      if (has_failed) {
        ADD_FAILURE() << "did not rewrite " << path << ": the test fails in something else too";
        continue;
      }
      const std::string before = expected_file(std::filesystem::path(path).replace_extension()).text();
      EXPECT_TRUE((std::ofstream(path, std::ios::binary) << text).flush()) << path << " cannot be written";
      ADD_FAILURE() << "rewrote " << path << ": " << lines_missing(text, before) << " lines added, "
                    << lines_missing(before, text) << " removed; the next run accepts them, so read them first";
    }
  }
};
rewriter &rewrites = *new rewriter; // owned by the test framework

} // namespace

void expect_golden(const std::string &name, std::string_view text) {
  const expected_file file(name);
  const bool is_update = file.is_recorded && is_set("RAVIX_UPDATE_GOLDEN", "1");
  if (is_update && is_set("CI")) {
    ADD_FAILURE() << "RAVIX_UPDATE_GOLDEN is refused where CI is set: there is nobody who reads what changes";
  } else if (is_update && file.text() != text) {
    rewrites.texts[file.path] = text;
  } else if (file.text() != text) {
    const auto expected = lines_of(file.text() + "<end>"), got = lines_of(std::string(text) + "<end>");
    const auto [wanted, shown] = std::ranges::mismatch(expected, got);
    ADD_FAILURE() << file.path.string() << ":" << wanted - expected.begin() + 1 << ": expected "
                  << testing::PrintToString(*wanted) << "\n  but got " << testing::PrintToString(*shown)
                  << (file.is_recorded ? "\n(RAVIX_UPDATE_GOLDEN=1 rewrites the file)" : "\n(written by hand)");
  }
}

std::string logged(captured_log &log) {
  std::string all;
  for (const log_line &line : log.take()) {
    const bool has_fixed_line = line.function == "generic_create" || line.function == "generic_clone";
    const std::string place = line.file + (has_fixed_line ? ':' + std::to_string(line.line) : "");
    all += "\n    " + line.name + ' ' + place + ' ' + line.function + ": " + line.text;
  }
  return all;
}

void expect_answers(const std::string &name, const std::function<std::string(const std::string &call)> &answer) {
  captured_log log;
  std::string answered;
  for (const std::string &line : lines_of(expected_file(name).text())) {
    if (line.starts_with("    ")) {
      continue; // logged anew
    }
    const bool has_calls = !line.empty() && line[0] != '#';
    answered += has_calls ? "" : line;
    for (std::size_t at = 0; has_calls && at < line.size();) {
      const std::string row = line.substr(at, line.find(" // ", at) - at);
      const std::string call = row.substr(0, row.find(" = "));
      answered += (at == 0 ? "" : " // ") + call + " = " + answer(call);
      at += row.size() + 4;
    }
    answered += logged(log) + '\n';
  }
  expect_golden(name, answered);
}

std::map<std::string, std::vector<std::pair<std::int64_t, std::string>>> written_names() {
  std::map<std::string, std::vector<std::pair<std::int64_t, std::string>>> lists;
  std::string what;
  for (std::string line : lines_of(expected_file("names").text())) {
    if (!line.empty() && line[0] != '#' && line[0] != ' ') {
      what = line.substr(0, line.find(':'));
      line.erase(0, what.size() + 1);
    }
    std::istringstream entries(line[0] != '#' ? line : "");
    for (std::string entry; std::getline(entries >> std::ws, entry, ',');) {
      const std::size_t blank = entry.find(' ');
      lists[what].emplace_back(std::stoll(entry.substr(0, blank), nullptr, 0), entry.substr(blank + 1));
    }
  }
  return lists;
}

void golden_sections::expect(const std::string &name) const {
  const std::string text = expected_file(name).text();
  expect_golden(name, text.substr(0, text.starts_with('#') ? text.find("--- ") : 0) + collected_);
}

} // namespace harness
