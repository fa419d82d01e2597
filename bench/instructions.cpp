// Ten operations for scripts/check-instructions to count the instructions of, under valgrind's callgrind. Each runs
// twice and is counted the second time, when calls are bound and blocks are at hand.
#include "inputs.hpp"

#include "ravix_types_printers.hpp"
#include "ravix_types_str_convert.h"
#include "ravix_types_util.h"
#include "ravix_types_validation.h"

#include <cstdint>
#include <functional>
#include <sstream>
#include <utility>

#include <valgrind/callgrind.h>

int main() {
  using namespace bench;
  const auto results = scan_results(1000, 60);
  const auto listed = scan_results(200, 0);
  const auto channels = channel_list(59);
  const auto role = full_role();
  const auto twin = full_role();
  const auto other = full_role();
  other->config_ap->access_control.macs_filtered.data[31][5] = 99;
  const std::uint8_t octets[16] = {0x02, 0x00, 0x5E, 0x10, 0x58, 0x08};
  std::uint8_t parsed[6];
  ravix_channel_info_t found;

  const std::pair<const char *, std::function<void()>> operations[] = {
      {"mac_text", [&] { ravix_str_mac(octets); }},
      {"channel_info_text", [&] { ravix_str_channel_info(&listed->scan_table.data[0].channel_info); }},
      {"capabilities_text", [&] { ravix_str_capabilities(UINT32_MAX); }},
      {"mac_parsed", [&] { ravix_mac_from_str("02:00:5E:10:58:08", parsed); }},
      {"clone_scan_results", [&] { ravix_types_scan_results_free(ravix_types_scan_results_clone(results.get())); }},
      {"clone_role", [&] { ravix_cfg_role_free(ravix_cfg_role_clone(role.get())); }},
      {"compare_role", [&] { ravix_cfg_role_compare(role.get(), twin.get()); }},
      {"print_difference",
       [&] {
         std::ostringstream stream;
         print_diff(stream, *other, role.get(), "role", 0, true);
       }},
      {"print_scan_table",
       [&] {
         std::ostringstream stream;
         print_scan_table(stream, listed->scan_table, false);
       }},
      {"validate_and_search",
       [&] {
         ravix_validate_channel_list(channels.get(), nullptr);
         ravix_get_max_clear_channel_info(channels.get(), channels->data[29].frequency, RAVIX_CHANNEL_STATE_RADAR_FOUND,
                                          true, 0, &found);
       }},
  };
  for (const auto &[name, operation] : operations) {
    operation();
    CALLGRIND_ZERO_STATS;
    CALLGRIND_TOGGLE_COLLECT;
    operation();
    CALLGRIND_TOGGLE_COLLECT;
    CALLGRIND_DUMP_STATS_AT(name);
  }
}
