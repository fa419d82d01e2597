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

// Fails every n-th request of a thread that asks for it; counts blocks.
thread_local unsigned fail_every = 0;
thread_local unsigned requests = 0;
std::atomic<long> live_blocks;
std::atomic<long> lines;

void *request(void *old, std::size_t size) {
  if (fail_every != 0 && ++requests % fail_every == 0) {
    return nullptr;
  }
  live_blocks += old == nullptr ? 1 : 0;
  return old == nullptr ? std::calloc(1, size) : std::realloc(old, size);
}

const slab_host_allocator failing = {
    nullptr, [](void *, size_t count, size_t size, const char *, int) { return request(nullptr, count * size); },
    [](void *, void *ptr, size_t size, const char *, int) { return request(ptr, size); },
    [](void *, void *ptr, const char *, int) {
      --live_blocks;
      std::free(ptr);
    }};

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

TEST(Threads, WorkOnRecordsOfTheirOwnWhileAllocationsFailAndASinkUsesTheLibrary) {
  const char *wanted = std::getenv("RAVIX_TEST_ROUNDS"); // NOLINT(concurrency-mt-unsafe)
  const unsigned rounds = wanted != nullptr ? static_cast<unsigned>(std::strtoul(wanted, nullptr, 10)) : 5;
  slab_host_set_allocator(&failing);
  clog_host_set_sink(busy_sink, nullptr);
  std::atomic<unsigned> copied{0}, refused{0}, torn{0};
  std::vector<std::thread> workers;
  for (unsigned id = 0; id < 8; ++id) {
    workers.emplace_back([&, id] {
      for (unsigned round = 0; round < rounds; ++round) {
        for (const harness::record_type *type : harness::record_types()) {
          const harness::any_sample source(*type, id + round * 8), dest(*type, id), empty(*type);
          fail_every = 3 + round % 5;
          void *clone = type->clone(source);
          const bool is_copied = type->copy(source, dest) == 0;
          fail_every = 0;
          const bool is_torn = !type->difference(dest, is_copied ? source : empty).empty() ||
                               (clone != nullptr && !type->difference(clone, source).empty());
          torn += is_torn && !type->copies_leniently ? 1 : 0;
          type->free(clone);
          (is_copied ? copied : refused)++;
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
  slab_host_set_allocator(nullptr);
  EXPECT_EQ(torn, 0U);
  EXPECT_GT(copied, 0U);
  EXPECT_GT(refused, 0U);
  EXPECT_GT(lines, static_cast<long>(refused));
  EXPECT_EQ(live_blocks, 0);
}

} // namespace
