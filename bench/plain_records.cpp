#include "plain_records.hpp"

#include "zelcsock/slab.h"

#include <cerrno>
#include <cstddef>
#include <cstring>

namespace bench {

namespace {

template <class Table, class Entry> int add_entry(Table *table, const Entry *entry) {
  void *grown = slab_drealloc(table->data, (std::size_t{table->count} + 1) * sizeof *entry, "bench", 0);
  if (grown == nullptr) {
    return -ENOMEM;
  }
  table->data = static_cast<Entry *>(grown);
  std::memcpy(&table->data[table->count], entry, sizeof *entry);
  ++table->count;
  return 0;
}

} // namespace

int plain_add_frequency(ravix_frequency_table_t *table, const std::uint32_t *khz) {
  return add_entry(table, khz);
}

int plain_add_network(ravix_scan_table_t *table, const ravix_scan_entry_t *entry) {
  return add_entry(table, entry);
}

} // namespace bench
