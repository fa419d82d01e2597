// The rotating area, by itself: this program has its own copy of the class, which the library does not export.
#include "ravix_types_str_ring_buffer.hpp"

#include "harness.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <memory>
#include <random>
#include <string>
#include <vector>

namespace {

using zel::ravix::ring_buffer;

constexpr std::size_t capacity = ring_buffer::capacity;

class RingBuffer : public testing::Test {
protected:
  // Distance of a text from the begin of the area.
  std::ptrdiff_t at(const char *text) const { return text - area; }

  // How many lines have been logged, all of which have to be the one for a text that was cut.
  std::size_t cuts_logged() {
    const std::vector<harness::log_line> lines = log.take();
    for (const harness::log_line &line : lines) {
      EXPECT_EQ("ravix", line.name);
      EXPECT_EQ("src/ravix_types_str_ring_buffer", line.file);
      EXPECT_EQ("vwrite", line.function);
      EXPECT_GT(line.line, 0);
      EXPECT_EQ("String is too long!", line.text);
    }
    return lines.size();
  }

  harness::captured_log log;
  std::unique_ptr<ring_buffer> ring = std::make_unique<ring_buffer>();
  const char *area = reinterpret_cast<const char *>(ring.get()); // its first member is the area itself
};

TEST_F(RingBuffer, FinishWithoutTextAdvancesNothing) {
  EXPECT_STREQ("", ring->finish());
  ring->write("%s ", "[");
  ring->append("11A ");
  ring->write("%c", ']');
  EXPECT_STREQ("[ 11A ]", ring->finish());
  const char *empty = ring->finish();
  EXPECT_STREQ("", empty);
  EXPECT_TRUE(at(empty) < 0 || at(empty) >= static_cast<std::ptrdiff_t>(capacity)) << "it is no part of the area";
  ring->write("%s", "");
  ring->append("");
  EXPECT_STREQ("", ring->finish());
  EXPECT_EQ(8, at(ring->write_and_finish("%s", "next")));
  EXPECT_EQ(0U, cuts_logged());
}

TEST_F(RingBuffer, LongestTextAndLongerOnes) {
  for (const std::size_t length : {capacity - 1, capacity, capacity + 1, 3 * capacity}) {
    for (const bool printed : {true, false}) {
      for (const char *begin : {"", "begin "}) { // moved to the begin of the area together with what follows
        const std::string piece(length - std::strlen(begin), 'x');
        ring->write_and_finish("a text ahead of it");
        ring->append(begin);
        if (printed) {
          ring->write("%s", piece.c_str());
        } else {
          ring->append(piece);
        }
        EXPECT_EQ(length < capacity ? 0U : 1U, cuts_logged());
        ring->write("%s", "lost");
        ring->append("");
        EXPECT_EQ(2U, cuts_logged()) << "each piece that finds no room tells so";
        const char *text = ring->finish();
        EXPECT_EQ((begin + piece).substr(0, capacity - 1), text);
        EXPECT_EQ(0, at(text));
        EXPECT_EQ(0, at(ring->write_and_finish("next")));
      }
    }
  }
}

TEST_F(RingBuffer, FormatThatCannotBeWritten) {
  const wchar_t unknown[] = {0x7FFFFFFF, 0}; // no character in any encoding
  ring->write("begin ");
  ring->write("%ls", static_cast<const wchar_t *>(unknown));
  EXPECT_EQ(0U, std::string(ring->finish()).find("begin "));
  EXPECT_EQ(1U, cuts_logged());
}

TEST_F(RingBuffer, QuietWritersOnlyTellTheirCaller) {
  EXPECT_TRUE(ring->try_append("short"));
  EXPECT_FALSE(ring->try_append(std::string(capacity, 'x')));
  EXPECT_TRUE(log.take().empty());
}

// Random pieces against a judge that knows only where the text begins, how long it is, and the rules.
TEST_F(RingBuffer, RandomPieces) {
  std::mt19937 random(1); // NOLINT(cert-msc32-c,cert-msc51-cpp): the same pieces in each run
  std::size_t start = 0;
  std::string built;
  bool full = false;
  std::size_t cuts = 0;
  for (int round = 0; round < 20000; ++round) {
    const std::size_t length = random() % 8 != 0 ? random() % 100 : random() % 3000;
    const std::string piece(length, static_cast<char>('a' + random() % 26));
    if (random() % 2 != 0) {
      ring->write("%s", piece.c_str());
    } else {
      ring->append(piece);
    }
    if (!full && start + built.size() + length >= capacity) {
      start = 0;
    }
    full = full || built.size() + length >= capacity;
    cuts += full ? 1 : 0;
    built += piece;
    built.resize(std::min(built.size(), capacity - 1));
    if (random() % 3 == 0) {
      const char *text = ring->finish();
      ASSERT_EQ(built, text);
      if (!built.empty()) {
        ASSERT_EQ(static_cast<std::ptrdiff_t>(start), at(text));
        start = full ? 0 : start + built.size() + 1;
      }
      built.clear();
      full = false;
    }
  }
  EXPECT_GT(cuts, 0U);
  EXPECT_EQ(cuts, cuts_logged());
}

} // namespace
