// What is special about some of all records, for the properties that hold for all of them.
#pragma once

#include "ravix_types_all_fields.hpp"

namespace harness {

using zel::ravix::all_records;
using zel::ravix::type_list;

// Records whose values are never equal to a copy of them: they compare the references to their memory.
template <class R> inline constexpr bool compares_references = false;
template <> inline constexpr bool compares_references<ravix_tlv_t> = true;
template <> inline constexpr bool compares_references<ravix_tlv_table_t> = true;

// Records whose copy reports success when no memory is left for a text, and tables of them.
template <class R> inline constexpr bool copies_leniently = false;
template <> inline constexpr bool copies_leniently<ravix_remote_ap_table_t> = true;
template <> inline constexpr bool copies_leniently<ravix_remote_ap_entry_t> = true;
template <> inline constexpr bool copies_leniently<ravix_remote_client_table_t> = true;
template <> inline constexpr bool copies_leniently<ravix_remote_client_entry_t> = true;

} // namespace harness
