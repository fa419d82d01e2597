#include "golden.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <cstdlib>
#include <fstream>
#include <iterator>

namespace harness {

namespace {

std::string path_of(const std::string &name) {
  return RAVIX_TEST_DATA "/" + name + ".golden";
}

} // namespace

void expect_golden(const std::string &name, std::string_view text) {
  const std::string path = path_of(name);
  const char *update = std::getenv("RAVIX_UPDATE_GOLDEN"); // NOLINT(concurrency-mt-unsafe): nothing changes it
  if (update != nullptr && std::string_view(update) == "1") {
    EXPECT_TRUE((std::ofstream(path, std::ios::binary) << text).flush()) << path << " cannot be written";
    return;
  }
  std::ifstream file(path, std::ios::binary);
  EXPECT_TRUE(file) << path << " cannot be read";
  const std::string expected{std::istreambuf_iterator<char>(file), {}};
  if (expected == text) {
    return;
  }
  const auto same = std::ranges::mismatch(expected, text).in1 - expected.begin();
  const auto begin = expected.substr(0, static_cast<std::size_t>(same)).rfind('\n') + 1;
  const auto line = [&](std::string_view whole) {
    whole.remove_prefix(begin);
    const auto length = std::min(whole.find('\n'), whole.size() - 1) + 1; // with its end, which may be what differs
    return testing::PrintToString(std::string(whole.substr(0, length)));
  };
  ADD_FAILURE() << path << ":" << std::count(expected.begin(), expected.begin() + same, '\n') + 1 << ": expected "
                << line(expected) << "\n  but got " << line(text) << "\n(RAVIX_UPDATE_GOLDEN=1 rewrites the file)";
}

std::string logged(captured_log &log) {
  std::string all;
  for (const log_line &line : log.take()) {
    all += "\n    " + line.name + ' ' + line.file + ' ' + line.function + ": " + line.text;
  }
  return all;
}

void expect_answers(const std::string &name, const std::function<std::string(const std::string &call)> &answer) {
  captured_log log;
  std::ifstream file(path_of(name));
  std::string answered;
  for (std::string line; std::getline(file, line);) {
    if (line.starts_with("    ")) {
      continue; // logged anew
    }
    const bool is_call = !line.empty() && line[0] != '#';
    const std::string call = is_call ? line.substr(0, line.find(" = ")) : line;
    answered += is_call ? call + " = " + answer(call) : call;
    answered += logged(log) + '\n';
  }
  expect_golden(name, answered);
}

void expect_outcomes(const std::string &name, const std::function<std::string(const std::string &input)> &outcome) {
  std::ifstream file(path_of(name));
  std::string all;
  for (std::string title; std::getline(file, title);) {
    if (!title.starts_with("===")) {
      continue; // an outcome, which is told anew
    }
    std::string input;
    for (std::string line; std::getline(file, line) && line != "---";) {
      input += line + '\n';
    }
    all.append(title).append("\n").append(input).append("---\n").append(outcome(input));
  }
  expect_golden(name, all);
}

} // namespace harness
