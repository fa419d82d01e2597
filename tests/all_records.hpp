// What is special about some of all records, for the properties that hold for all of them.
#pragma once

#include "ravix_types_all_fields.hpp"

#include <type_traits>

namespace harness {

using zel::ravix::all_records;
using zel::ravix::type_list;

// Records whose values are never equal to a copy of them: they compare the references to their memory.
template <class R>
inline constexpr bool compares_references = std::is_same_v<R, ravix_tlv_t> || std::is_same_v<R, ravix_tlv_table_t>;

// Records whose copy reports success when no memory is left for a text, and tables of them.
template <class R>
inline constexpr bool copies_leniently =
    std::is_same_v<R, ravix_remote_ap_entry_t> || std::is_same_v<R, ravix_remote_ap_table_t> ||
    std::is_same_v<R, ravix_remote_client_entry_t> || std::is_same_v<R, ravix_remote_client_table_t>;

} // namespace harness
