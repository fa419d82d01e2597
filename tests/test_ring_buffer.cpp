// The rotating area and its lock, which the library does not export: this program has the area, and the formatters that
// use it, as a copy of its own.
#include "ravix_types_str_convert.h"
#include "ravix_types_str_ring_buffer.hpp"

#include "golden.hpp"
#include "harness.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <future>
#include <memory>
#include <mutex>
#include <random>
#include <string>

namespace {

using zel::ravix::ring_buffer;

constexpr std::size_t capacity = ring_buffer::capacity;

// Pieces of every length, put in every way, against a judge that knows only where the text begins, what it is, and the
// rules: an unfinished text that reaches the end of the area moves to its beginning, and there it is cut.
TEST(RingBuffer, PiecesBecomeTextsThatFollowEachOther) {
  harness::captured_log log;
  const auto ring = std::make_unique<ring_buffer>();
  const char *const area = reinterpret_cast<const char *>(ring.get()); // its first member is the area itself
  std::mt19937 random(1); // NOLINT(cert-msc32-c,cert-msc51-cpp): the same pieces in each run
  std::size_t start = 0;
  std::string built;
  bool full = false;
  std::size_t number_cut = 0;
  for (int round = 0; round < 50000; ++round) {
    const std::size_t to_end = capacity - std::min(capacity - 1, start + built.size());
    const std::size_t lengths[] = {random() % 3000 >> random() % 12, to_end + 1 - random() % 3,
                                   capacity - built.size() - random() % 2, 3 * capacity};
    const std::size_t length = lengths[random() % std::size(lengths)];
    const std::string piece(length, static_cast<char>('a' + random() % 26));
    const bool fits_here = !full && start + built.size() + length < capacity;
    full = full || built.size() + length >= capacity;
    start = fits_here ? start : 0;
    built += piece;
    built.resize(std::min(built.size(), capacity - 1));
    char *const place = ring->room_for(length);
    ASSERT_EQ(fits_here, place != nullptr);
    const auto way = random() % 4;
    number_cut += way < 2 && full ? 1 : 0;
    if (way == 0) {
      ring->write("%s", piece.c_str());
    } else if (way == 1) {
      ring->append(piece);
    } else if (way == 2 && fits_here) {
      ring->advance_to(std::copy(piece.begin(), piece.end(), place));
    } else {
      ASSERT_EQ(!full, ring->try_append(piece)) << "only tells its caller";
    }
    if (random() % 3 == 0) {
      const char *const text = ring->finish();
      ASSERT_EQ(built, text);
      ASSERT_TRUE(built.empty() ? text < area || text >= area + capacity : text == area + start);
      start = built.empty() ? start : full ? 0 : start + built.size() + 1;
      built.clear();
      full = false;
    }
  }
  EXPECT_GT(number_cut, 1000U);
  EXPECT_EQ(log.take().size(), number_cut);
}

TEST(RingBuffer, CutsATextThatCannotBeFormatted) {
  harness::captured_log log;
  const auto ring = std::make_unique<ring_buffer>();
  const wchar_t unknown[] = {0x7FFFFFFF, 0}; // no character in any encoding
  ring->write("begin ");
  EXPECT_EQ(0U, std::string(ring->write_and_finish("%ls", static_cast<const wchar_t *>(unknown))).find("begin "));
  EXPECT_EQ(harness::logged(log), "\n    ravix src/ravix_types_str_ring_buffer vwrite: String is too long!");
  EXPECT_STREQ("next", ring->write_and_finish("%s", "next"));
}

// Built in place, elsewhere, and by a printf format.
TEST(Formatters, BeginNoTextUntilTheLockIsFree) {
  for (const char *(*format)() : {+[] { return ravix_str_bitrate(1); }, +[] { return ravix_str_capabilities(1); },
                                  +[] { return ravix_str_timestamp(1); }}) {
    std::future<const char *> text;
    const std::lock_guard lock(zel::ravix::format_mutex);
    text = std::async(std::launch::async, format);
    EXPECT_EQ(text.wait_for(std::chrono::milliseconds(50)), std::future_status::timeout);
  }
}

} // namespace
