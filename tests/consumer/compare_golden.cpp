// usage: compare_golden NAME FILE [REASON]
//
// Compares a file with the expected text of that name, for tests that are scripts. With a reason the test fails anyway.
#include "golden.hpp"

#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <string>

int main(int argc, char **argv) {
  class comparison : public testing::Test {
  public:
    explicit comparison(char **arguments) : arguments_(arguments) {}

  private:
    void TestBody() override {
      std::ifstream file(arguments_[1], std::ios::binary);
      EXPECT_TRUE(file) << arguments_[1] << " cannot be read";
      harness::expect_golden(arguments_[0], std::string{std::istreambuf_iterator<char>(file), {}});
      EXPECT_EQ(arguments_[2], nullptr);
    }
    char **arguments_;
  };
  testing::InitGoogleTest(&argc, argv);
  if (argc < 3) {
    return 2;
  }
  testing::RegisterTest("File", "IsAsExpected", nullptr, nullptr, __FILE__, __LINE__,
                        [&]() -> testing::Test * { return new comparison(argv + 1); });
  return RUN_ALL_TESTS();
}
