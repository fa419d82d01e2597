#include "golden.hpp"

#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>
#include <iterator>
#include <sstream>

namespace harness {

void expect_golden(const std::string &name, std::string_view text) {
  const std::string path = RAVIX_TEST_DATA "/" + name + ".golden";
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
  std::istringstream wanted(expected);
  std::istringstream got{std::string(text)};
  std::string wanted_line;
  std::string got_line;
  int line = 0;
  bool more = true;
  while (more && wanted_line == got_line) {
    ++line;
    const bool more_wanted = !std::getline(wanted, wanted_line).fail();
    const bool more_got = !std::getline(got, got_line).fail();
    wanted_line = more_wanted ? "'" + wanted_line + "'" : "(end)";
    got_line = more_got ? "'" + got_line + "'" : "(end)";
    more = more_wanted && more_got;
  }
  ADD_FAILURE() << path << ":" << line << ": expected " << wanted_line << "\n  but got " << got_line
                << (wanted_line == got_line ? " with another line end" : "")
                << "\n(RAVIX_UPDATE_GOLDEN=1 rewrites the file)";
}

} // namespace harness
