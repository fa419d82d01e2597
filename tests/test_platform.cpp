// The stand-in for libzelcsock: what the library relies on in it.
#include "golden.hpp"
#include "harness.hpp"

#include "zelcsock/clog.h"
#include "zelcsock/clog_stream.hpp"

#include <gtest/gtest.h>

#include <memory>
#include <string>

namespace {

using zel::logging::ClogAdapter;
using zel::logging::ClogErrorFunction;
using zel::logging::ClogStreamBuf;
using ModuleAdapter = ClogAdapter<ClogErrorFunction<clogmod>, clogmod__err>;
using LoggerAdapter = ClogAdapter<ClogErrorFunction<clogger>, clogger__err>;

TEST(Log, WritesOneLinePerEndedLineWithItsCallSite) {
  harness::captured_log log;
  const std::string longest(5000, 'x');
  {
    ClogStreamBuf stream(std::make_unique<ModuleAdapter>("ravix", "src/x", "function", 12));
    stream << "first\n" << 1 << std::endl << longest << std::endl << "not ended";
  }
  LoggerAdapter("", nullptr, nullptr, 1).write("to the default logger");
  LoggerAdapter("named", "", "", 2).write("to a named one");
  clog_host_set_enabled(0);
  EXPECT_EQ(clogmod_get_or_alloc("ravix"), nullptr);
  EXPECT_EQ(clogger_get(nullptr), nullptr);
  EXPECT_EQ(ModuleAdapter("ravix", "", "", 1).get_logger_chunking(), 0);
  ModuleAdapter("ravix", "", "", 1).write("lost while the log is off");
  clog_host_set_enabled(1);
  ModuleAdapter("ravix", nullptr, "generic_create", 3).write("kept"); // of which the line is told
  EXPECT_EQ(harness::logged(log), "\n    ravix src/x function: first 1\n    ravix src/x function: " + longest +
                                      "\n    default  : to the default logger\n    named  : to a named one"
                                      "\n    ravix :3 generic_create: kept");
}

// The last test of this program: it leaves no room for further names.
TEST(Log, HasRoomForSixteenNamesOfUpTo31Characters) {
  const std::string longest(31, 'n');
  EXPECT_EQ(clogger_get((longest + "n").c_str()), nullptr);
  EXPECT_STREQ(clogger_get_name(clogger_get(longest.c_str())), longest.c_str());
  int modules = 0;
  for (int i = 0; i < 100; ++i) {
    const std::string name = "module " + std::to_string(i);
    if (clogmod *module = clogmod_get_or_alloc(name.c_str()); module != nullptr) {
      ++modules;
      EXPECT_EQ(clogger_get_name(clogmod_get_clogger(module)), name);
      EXPECT_EQ(clogmod_get_or_alloc(name.c_str()), module);
    }
  }
  EXPECT_LT(modules, 16) << "with the longest name";
  EXPECT_GT(modules, 10);
}

} // namespace
