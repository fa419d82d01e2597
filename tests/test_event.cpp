// What is special in the events; what holds for every record is tested by its field list.
#include "harness.hpp"

#include "ravix_types_event.h"
#include "ravix_types_radiod_hal_fields.hpp"

#include <gtest/gtest.h>

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string>
#include <vector>

namespace {

using zel::ravix::record;
using texts = std::vector<std::string>;

TEST(Events, EmptyMeasuresAreUnknown) {
  ravix_event_client_rssi_update_t signal{};
  ravix_types_event_client_rssi_update_clear(&signal);
  EXPECT_EQ(signal.rsni, 255);
  EXPECT_EQ(signal.rcpi, 255);
  EXPECT_EQ(signal.anpi, 255);
  ravix_event_radar_detected_t radar{};
  radar.expire_ts_uptime = 1;
  ravix_types_event_radar_detected_clear(&radar);
  EXPECT_EQ(radar.level_dbm, 32767);
  EXPECT_EQ(radar.expire_ts_uptime, 0);
}

TEST(Events, ScanResultsCopyWhatIsPresentAndAllOrNothing) {
  harness::heap heap;
  harness::captured_log log;
  const std::string copy = "ravix_types_event_scan_results_copy: ";
  ravix_event_scan_results_t source{};
  ravix_event_scan_results_t dest{};
  source.radio_id = 7;
  source.scan_results = ravix_types_scan_results_create();
  source.scan_results->scan_time = 42;
  ASSERT_EQ(ravix_types_event_scan_results_copy(&source, &dest), 0);
  EXPECT_EQ(dest.scan_parameter, nullptr);
  ASSERT_NE(dest.scan_results, nullptr);
  EXPECT_NE(dest.scan_results, source.scan_results);
  EXPECT_EQ(dest.scan_results->scan_time, 42);

  source.scan_parameter = ravix_types_scan_parameter_create();
  for (std::size_t k : {1U, 2U}) { // the parameters, the results
    heap.fail_only(k);
    EXPECT_EQ(ravix_types_event_scan_results_copy(&source, &dest), -12);
    EXPECT_EQ(log.take_texts(), (texts{"generic_clone: No memory available!", copy + "Copy error!"}));
    EXPECT_EQ(dest.radio_id, 0);
    EXPECT_EQ(dest.scan_parameter, nullptr);
    EXPECT_EQ(dest.scan_results, nullptr);
    EXPECT_EQ(heap.live(), 2U); // the source's
  }
  ravix_types_event_scan_results_clear(&source);
  EXPECT_EQ(heap.live(), 0U);
}

// The events with a message.
template <class Event> void copy_messages(const char *name) {
  SCOPED_TRACE(name);
  harness::heap heap;
  int context = 4711;
  struct row {
    const char *sentence;
    std::size_t length; // characters ahead of the terminator; all of the array if it has none
  };
  for (const row &row : {row{"empty", 0}, row{"short", 5}, row{"one short of full", 255}, row{"exactly full", 256},
                         row{"without a terminator", sizeof(Event::error_message)}}) {
    SCOPED_TRACE(row.sentence);
    Event source{};
    std::memset(source.error_message, 'x', sizeof source.error_message); // rubbish behind the terminator
    if (row.length < sizeof source.error_message) {
      source.error_message[row.length] = '\0';
    }
    source.hal_context = &context;
    Event dest{};
    std::memset(dest.error_message, 'y', sizeof dest.error_message);
    ASSERT_EQ(record<Event>::copy(&source, &dest), 0);
    const std::size_t kept = row.length < 256 ? row.length : 256;
    const std::string wanted = std::string(kept, 'x') + std::string(sizeof dest.error_message - kept, '\0');
    EXPECT_EQ(std::string(dest.error_message, sizeof dest.error_message), wanted);

    Event *clone = record<Event>::clone(&source);
    ASSERT_NE(clone, nullptr);
    EXPECT_EQ(std::string(clone->error_message, sizeof clone->error_message), wanted);
    EXPECT_EQ(clone->hal_context, &context);
    EXPECT_EQ(heap.live(), 1U); // nothing but the clone
    record<Event>::free(clone);
    EXPECT_EQ(source.hal_context, &context);
  }
  // A context that the heap does know is not released either.
  void *block = slab_dcalloc(1, 16, "tests", __LINE__);
  Event source{};
  source.hal_context = block;
  Event *clone = record<Event>::clone(&source);
  record<Event>::free(clone);
  EXPECT_EQ(heap.live(), 1U);
  slab_cbcontext_free(block, "tests", __LINE__);
}

TEST(HalEvents, KeepMessagesOf256CharactersAndContextsOfOthers) {
  copy_messages<radiod_hal_event_hw_init_t>("hw_init");
  copy_messages<radiod_hal_event_hw_deinit_t>("hw_deinit");
  copy_messages<radiod_hal_event_set_config_t>("set_config");
  copy_messages<radiod_hal_event_check_config_t>("check_config");
  copy_messages<radiod_hal_event_sanity_t>("sanity");
}

} // namespace
