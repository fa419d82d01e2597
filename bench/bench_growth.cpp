// How cost grows with the number of elements: named "growth/<work>/<elements>".
#include "bench.hpp"
#include "inputs.hpp"

#include "ravix_types_json.h"
#include "ravix_types_printers.hpp"
#include "ravix_types_validation.h"

#include <sstream>

namespace bench {

namespace {

// Registers a work for each size; `prepare(count)` gives its input.
template <class Prepare, class Work> void growth(const std::string &name, Prepare prepare, Work work) {
  for (const std::uint32_t count : {10U, 59U, 100U, 1000U, 10000U, 100000U}) {
    benchmark::RegisterBenchmark(("growth/" + name + "/" + std::to_string(count)).c_str(),
                                 [=](benchmark::State &state) {
                                   const auto input = prepare(count);
                                   for (auto _ : state) {
                                     work(*input);
                                   }
                                 });
  }
}

std::shared_ptr<ravix_scan_results_t> networks(std::uint32_t count) {
  return scan_results(count, 0);
}

std::shared_ptr<ravix_ssid_table_t> ssids(std::uint32_t count) {
  std::shared_ptr<ravix_ssid_table_t> table(ravix_types_ssid_table_create(count), ravix_types_ssid_table_free);
  for (std::uint32_t i = 0; i < count; ++i) {
    table->data[i] = scan_entry(i).ssid;
  }
  return table;
}

} // namespace

void register_growth() {
  growth("clone", networks, [](const ravix_scan_results_t &results) {
    ravix_scan_results_t *copy = ravix_types_scan_results_clone(&results);
    keep(copy);
    ravix_types_scan_results_free(copy);
  });
  growth(
      "compare",
      [](std::uint32_t count) {
        return std::make_shared<std::pair<decltype(ssids(0)), decltype(ssids(0))>>(ssids(count), ssids(count));
      },
      [](const auto &tables) {
        benchmark::DoNotOptimize(ravix_types_ssid_table_compare(tables.first.get(), tables.second.get()));
      });
  growth("print", networks, [](const ravix_scan_results_t &results) {
    std::ostringstream stream;
    print_scan_table(stream, results.scan_table, false);
    keep(stream);
  });
  growth("json", networks, [](const ravix_scan_results_t &results) {
    std::size_t octets = 0;
    const auto count = [](const char *, std::size_t length, void *context) {
      *static_cast<std::size_t *>(context) += length;
      return 0;
    };
    ravix_types_scan_results_to_json(&results, count, &octets);
    keep(octets);
  });
  growth("validate", ascending_list, [](const ravix_channel_list_t &list) {
    benchmark::DoNotOptimize(ravix_validate_channel_list(&list, nullptr));
  });
  growth("clear_search", channel_list, [](const ravix_channel_list_t &list) {
    ravix_channel_info_t found;
    benchmark::DoNotOptimize(ravix_get_max_clear_channel_info(&list, list.data[0].frequency,
                                                              RAVIX_CHANNEL_STATE_RADAR_FOUND, true, 0, &found));
    keep(found);
  });
}

} // namespace bench
