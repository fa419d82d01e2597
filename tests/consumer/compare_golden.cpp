// usage: compare_golden NAME FILE [REASON]
//
// Compares a file with the expected text of that name, for tests that are scripts. With a reason the test fails anyway.
#include "golden.hpp"

#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <string>
#include <vector>

namespace {

std::vector<std::string> arguments;

TEST(File, IsAsExpected) {
  ASSERT_GE(arguments.size(), 3U) << "usage: compare_golden NAME FILE [REASON]";
  std::ifstream file(arguments[2], std::ios::binary);
  EXPECT_TRUE(file) << arguments[2] << " cannot be read";
  harness::expect_golden(arguments[1], std::string{std::istreambuf_iterator<char>(file), {}});
  EXPECT_EQ(arguments.size(), 3U);
}

} // namespace

int main(int argc, char **argv) {
  testing::InitGoogleTest(&argc, argv);
  arguments.assign(argv, argv + argc);
  return RUN_ALL_TESTS();
}
