// What holds when many threads use the library at once, and when a log sink uses it.
#include "record_tools.hpp"

#include "ravix_types_str_convert.h"
#include "ravix_types_validation.h"
#include "zelcsock/clog.h"

#include <gtest/gtest.h>

#include <atomic>
#include <cstdlib>
#include <thread>
#include <vector>

namespace {

std::atomic<unsigned> lines;

// A sink that formats values and works on records, which may log in turn, while the library logs.
void busy_sink(void * /*context*/, const char * /*name*/, const char * /*file*/, const char * /*function*/, int line,
               const char * /*text*/) {
  static thread_local int depth = 0;
  ++lines;
  if (++depth == 1) {
    EXPECT_NE(ravix_str_frequency(static_cast<std::uint32_t>(line)), nullptr); // all write to one area: not to be read
    EXPECT_EQ(ravix_types_ssid_clone(nullptr), nullptr);
  }
  --depth;
}

TEST(Threads, WorkOnRecordsOfTheirOwnWhileASinkUsesTheLibrary) {
  const char *wanted = std::getenv("RAVIX_TEST_ROUNDS"); // NOLINT(concurrency-mt-unsafe)
  const unsigned rounds = wanted != nullptr ? static_cast<unsigned>(std::strtoul(wanted, nullptr, 10)) : 5;
  clog_host_set_sink(busy_sink, nullptr);
  std::atomic<unsigned> torn = 0;
  std::vector<std::thread> workers;
  for (unsigned id = 0; id < 8; ++id) {
    workers.emplace_back([&, id] {
      for (unsigned round = 0; round < rounds; ++round) {
        for (const harness::record_type *type : harness::record_types()) {
          const harness::any_sample source(*type, id + round * 8), dest(*type, id);
          void *clone = type->clone(source);
          torn += type->copy(source, dest) == 0 && type->difference(dest, clone).empty() ? 0 : 1;
          type->free(clone);
          EXPECT_EQ(type->copy(nullptr, dest), -22);
        }
      }
    });
  }
  // Meanwhile, lines of the tables, the parsers, the validator and the formatters.
  std::uint8_t mac[RAVIX_MAC_LEN];
  EXPECT_EQ(ravix_types_id_table_add_entry(nullptr, nullptr), -22);
  EXPECT_FALSE(ravix_mac_from_str(nullptr, mac));
  EXPECT_FALSE(ravix_validate_channel_list(nullptr, nullptr));
  EXPECT_FALSE(ravix_types_mac_table_contains_entry(nullptr, &mac));
  EXPECT_STREQ(ravix_str_mac(nullptr), "");
  for (std::thread &worker : workers) {
    worker.join();
  }
  clog_host_set_sink(nullptr, nullptr);
  EXPECT_EQ(torn, 0U);
  EXPECT_EQ(lines, 2 * (8 * harness::record_types().size() * rounds + 5)); // each with one of the sink's
}

} // namespace
