// What is special in the events; what holds for every record is tested by its field list.
#include "harness.hpp"
#include "record_tools.hpp"

#include "ravix_types_event_fields.hpp"
#include "ravix_types_radiod_hal_fields.hpp"

#include <gtest/gtest.h>

#include <cstddef>
#include <cstring>
#include <string>
#include <vector>

namespace {

using zel::ravix::record;
using texts = std::vector<std::string>;

TEST(Events, ScanResultsCopyWhatIsPresentAndAllOrNothing) {
  harness::heap heap;
  {
    harness::captured_log log;
    const std::string copy = "ravix_types_event_scan_results_copy: ";
    harness::sample<ravix_event_scan_results_t> source;
    harness::sample<ravix_event_scan_results_t> dest;
    source.value.radio_id = 7;
    source.value.scan_results = ravix_types_scan_results_create();
    source.value.scan_results->scan_time = 42;
    ASSERT_EQ(ravix_types_event_scan_results_copy(&source.value, &dest.value), 0);
    EXPECT_EQ(dest.value.scan_parameter, nullptr);
    EXPECT_EQ(harness::difference(source.value, dest.value), "");

    source.value.scan_parameter = ravix_types_scan_parameter_create();
    for (const std::size_t k : {1U, 2U}) { // the parameters, the results
      heap.fail_only(k);
      EXPECT_EQ(ravix_types_event_scan_results_copy(&source.value, &dest.value), -12);
      EXPECT_EQ(log.take_texts(), (texts{"generic_clone: No memory available!", copy + "Copy error!"}));
      EXPECT_EQ(harness::difference(dest.value, harness::sample<ravix_event_scan_results_t>().value), "");
    }
  }
  EXPECT_EQ(heap.live(), 0U);
}

// An event with a message keeps 256 characters of it, and refers to the context of somebody else.
template <class Event> void copy_messages() {
  SCOPED_TRACE(typeid(Event).name());
  harness::heap heap;
  void *context = slab_dcalloc(1, 16, "tests", __LINE__);
  // Characters ahead of the terminator; the last has none.
  for (const std::size_t length :
       {std::size_t{0}, std::size_t{5}, std::size_t{255}, std::size_t{256}, std::size_t{257}}) {
    SCOPED_TRACE(length);
    Event source{};
    std::memset(source.error_message, 'x', sizeof source.error_message); // rubbish behind the terminator
    if (length < sizeof source.error_message) {
      source.error_message[length] = '\0';
    }
    source.hal_context = context;
    Event dest{};
    std::memset(dest.error_message, 'y', sizeof dest.error_message);
    ASSERT_EQ(record<Event>::copy(&source, &dest), 0);
    Event *clone = record<Event>::clone(&source);
    ASSERT_NE(clone, nullptr);
    std::string wanted(length < 256 ? length : 256, 'x');
    wanted.resize(257);
    for (const Event *made : {static_cast<const Event *>(&dest), static_cast<const Event *>(clone)}) {
      EXPECT_EQ(std::string(made->error_message, sizeof made->error_message), wanted);
      EXPECT_EQ(made->hal_context, context);
    }
    record<Event>::free(clone);
    EXPECT_EQ(heap.live(), 1U); // the context
  }
  slab_cbcontext_free(context, "tests", __LINE__);
}

TEST(HalEvents, KeepMessagesOf256CharactersAndContextsOfOthers) {
  copy_messages<radiod_hal_event_hw_init_t>();
  copy_messages<radiod_hal_event_hw_deinit_t>();
  copy_messages<radiod_hal_event_set_config_t>();
  copy_messages<radiod_hal_event_check_config_t>();
  copy_messages<radiod_hal_event_sanity_t>();
}

} // namespace
