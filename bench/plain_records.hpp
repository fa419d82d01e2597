// Peers of the record operations, in a shared library as ours are: what is left of an operation without its checks.
#pragma once

#include "ravix_types_radio_env.h"

#include <cstdint>

namespace bench {

// Grows the table by one entry, which must not be its own and owns nothing. Returns 0, or -12 without memory.
int plain_add_frequency(ravix_frequency_table_t *table, const std::uint32_t *khz);
int plain_add_network(ravix_scan_table_t *table, const ravix_scan_entry_t *entry);

} // namespace bench
