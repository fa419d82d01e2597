// The stand-in for libzelcsock: what the library relies on in it.
#include "harness.hpp"

#include "zelcsock/clog.h"
#include "zelcsock/clog_stream.hpp"

#include <gtest/gtest.h>

#include <cstring>
#include <memory>
#include <string>

namespace {

using zel::logging::ClogAdapter;
using zel::logging::ClogErrorFunction;
using zel::logging::ClogStreamBuf;
using ModuleAdapter = ClogAdapter<ClogErrorFunction<clogmod>, clogmod__err>;
using LoggerAdapter = ClogAdapter<ClogErrorFunction<clogger>, clogger__err>;

TEST(Slab, GivesZeroedBlocksAndTagsEveryRequest) {
  harness::heap heap;
  auto *block = static_cast<char *>(slab_dcalloc(3, 5, "src/a", 7));
  EXPECT_EQ(std::string(block, 15), std::string(15, '\0'));
  block = static_cast<char *>(slab_drealloc(block, 4096, "src/b", 8));
  char *text = slab_dstrdup("text", "src/c", 9);
  EXPECT_STREQ(text, "text");
  EXPECT_EQ(heap.live(), 2U);
  EXPECT_EQ(heap.requested(), (std::set<harness::heap::tag>{{"src/a", 7}, {"src/b", 8}, {"src/c", 9}}));
  slab_cbcontext_free(text, "", 0);
  slab_cbcontext_free(block, "", 0);
  slab_cbcontext_free(nullptr, "", 0);
  EXPECT_EQ(heap.live(), 0U);
}

TEST(Slab, FailsTheRequestsItIsToldToAndKeepsTheOldBlock) {
  harness::heap heap;
  void *block = slab_dcalloc(1, 1, "src/a", 1);
  heap.fail_only(2);
  void *second = slab_dcalloc(1, 1, "src/a", 1);
  EXPECT_NE(second, nullptr);
  EXPECT_EQ(slab_drealloc(block, 100, "src/a", 2), nullptr);
  EXPECT_EQ(heap.live(), 2U);
  heap.fail_from(1);
  EXPECT_EQ(slab_dcalloc(1, 1, "src/a", 1), nullptr);
  EXPECT_EQ(slab_dstrdup("", "src/a", 3), nullptr);
  slab_cbcontext_free(block, "", 0);
  slab_cbcontext_free(second, "", 0);
}

TEST(Log, WritesOneLinePerEndedLineWithItsCallSite) {
  harness::captured_log log;
  {
    ClogStreamBuf stream(std::make_unique<ModuleAdapter>("ravix", "src/x", "function", 12));
    stream << "first\n" << 1 << std::endl << "second" << std::endl << "not ended";
  }
  const auto lines = log.take();
  ASSERT_EQ(lines.size(), 2U);
  EXPECT_EQ(lines[0].name, "ravix");
  EXPECT_EQ(lines[0].file, "src/x");
  EXPECT_EQ(lines[0].function, "function");
  EXPECT_EQ(lines[0].line, 12);
  EXPECT_EQ(lines[0].text, "first 1");
  EXPECT_EQ(lines[1].text, "second");
}

TEST(Log, SelectsTheDefaultLoggerForAnEmptyNameAndKeepsNullPlacesEmpty) {
  harness::captured_log log;
  LoggerAdapter("", nullptr, nullptr, 1).write("to the default logger");
  LoggerAdapter("named", nullptr, nullptr, 2).write("to a named one");
  const auto lines = log.take();
  ASSERT_EQ(lines.size(), 2U);
  EXPECT_EQ(lines[0].name, "default");
  EXPECT_EQ(lines[0].file + lines[0].function, "");
  EXPECT_EQ(lines[1].name, "named");
}

TEST(Log, WritesNothingWhileItIsOff) {
  harness::captured_log log;
  clog_host_set_enabled(0);
  EXPECT_EQ(clogmod_get_or_alloc("ravix"), nullptr);
  EXPECT_EQ(clogger_get(nullptr), nullptr);
  ModuleAdapter("ravix", "", "", 1).write("lost");
  EXPECT_EQ(ModuleAdapter("ravix", "", "", 1).get_logger_chunking(), 0);
  clog_host_set_enabled(1);
  ModuleAdapter("ravix", "", "", 1).write("kept");
  ASSERT_EQ(log.take_texts(), std::vector<std::string>{": kept"});
}

TEST(Log, KeepsLongLinesWholeAndLetsASinkLogItself) {
  static int depth;
  depth = 0;
  static std::string longest;
  clog_host_set_sink(
      [](void *, const char *, const char *, const char *, int, const char *text) {
        if (++depth == 1) {
          longest = text;
          clogger__err(clogger_get(nullptr), "", "", 0, "from the sink");
        }
      },
      nullptr);
  const std::string text(5000, 'x');
  clogmod__err(clogmod_get_or_alloc("ravix"), "", "", 0, "%s", text.c_str());
  clog_host_set_sink(nullptr, nullptr);
  EXPECT_EQ(depth, 2);
  EXPECT_EQ(longest, text);
}

} // namespace
