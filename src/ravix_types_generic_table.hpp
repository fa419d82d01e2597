// Bounded tables: a counted array of elements, allocated exactly to its count.
//
// Messages carry the source path of the table's family, allocations the path of this header; both carry lines of this
// header. Functions are named by __func__ or by hand: a captured name of a template would carry its arguments.
#pragma once

#include "ravix_types_generic_simple.hpp"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <type_traits>

namespace zel::ravix {

// Element type of a table.
template <class T> using element_of = std::remove_pointer_t<decltype(T::data)>;

// What the tables must know of an element type E. The default is for plain elements, which own nothing: copied and
// compared as bytes. Others have clear, copy and compare, and tell which visits of their elements a table may save.
template <class E> struct element {
  using source = const E; // what `entry` points to
  static constexpr bool is_plain = true;
  // A copy overwrites every field, so that the elements to copy into need not be cleared.
  static constexpr bool is_flat = true;
  // Elements own memory or hold secrets, so that they are cleared before their array is released.
  static constexpr bool clear_before_release = false;
};

template <class T>
concept plain_table = element<element_of<T>>::is_plain;

template <class T> using entry_of = typename element<element_of<T>>::source;

namespace table {

inline constexpr const char *source = "src/ravix_types_generic_table";

// A table that has no array has no elements, whatever its count says.
template <class T> std::uint32_t elements(const T &table) {
  return table.data != nullptr ? table.count : 0;
}

// Whether all elements may be copied.
template <class T> bool copyable(const T &table) {
  using E = element_of<T>;
  if constexpr (requires(const E &e) { element<E>::copyable(e); }) {
    return std::all_of(table.data, table.data + elements(table), element<E>::copyable);
  }
  return true;
}

// The functions below do what is alike for all tables, and speak in the name of the operation that they are part of.

// Zero-filled elements, or null and a message.
RAVIX_ALIKE void *allocate_elements(std::uint32_t count, std::size_t size, const char *family) {
  void *data = slab_dcalloc(count, size, source, __LINE__);
  if (data == nullptr) [[unlikely]] {
    log_error({family, "generic_table_init"}, "No memory available!");
  }
  return data;
}

// Null checks of a copy; success or -22. Tests `src` before `dest`, unlike the copy of a record.
RAVIX_ALIKE int check_copy_arguments(const void *src, const void *dest, const char *family) {
  if (src == nullptr) [[unlikely]] {
    log_invalid_pointer({family, "generic_table_copy"}, "src");
    return invalid_argument;
  }
  if (dest == nullptr) [[unlikely]] {
    log_invalid_pointer({family, "generic_table_copy"}, "dest");
    return invalid_argument;
  }
  return success;
}

// Null checks of an operation that takes an entry.
RAVIX_ALIKE bool has_entry_arguments(const void *table, const void *entry, call_site site) {
  if (table == nullptr) [[unlikely]] {
    log_invalid_pointer(site, "table");
    return false;
  }
  if (entry == nullptr) [[unlikely]] {
    log_invalid_pointer(site, "entry");
    return false;
  }
  return true;
}

// An array with one element more, or null and what to return.
struct grown_array {
  void *data;
  int code;
};

RAVIX_ALIKE grown_array grow(void *data, std::uint32_t count, std::uint32_t size, const char *family) {
  constexpr const char *function = "generic_table_add_entry";
  if (count == UINT32_MAX) [[unlikely]] {
    log_error({family, function}, "Maximum number of entries reached!");
    return {nullptr, invalid_argument};
  }
  // The device's 32-bit arithmetic on every platform: the sum is tested for a wrap, the product deliberately is not.
  const std::uint32_t old_size = count * size;
  const std::uint32_t new_size = old_size + size;
  if (new_size < old_size) [[unlikely]] {
    log_error({family, function}, "Overflow would occur!");
    return {nullptr, invalid_argument};
  }
  void *grown = slab_drealloc(data, data != nullptr ? new_size : size, source, __LINE__);
  if (grown == nullptr) [[unlikely]] {
    log_error({family, function}, "No memory available!");
    return {nullptr, out_of_memory};
  }
  return {grown, success};
}

} // namespace table

template <class T> void generic_table_clear(T *table) {
  if (table == nullptr || table->data == nullptr) {
    return;
  }
  using E = element_of<T>;
  if constexpr (element<E>::clear_before_release && element<E>::is_flat) {
    // Nothing of them need stay; their empty values are of no use any more.
    std::memset(static_cast<void *>(table->data), 0, table->count * sizeof(E));
  } else if constexpr (element<E>::clear_before_release) {
    for (std::uint32_t i = 0; i < table->count; ++i) {
      element<E>::clear(&table->data[i]);
    }
  }
  table->count = 0;
  slab_cbcontext_free(table->data, table::source, __LINE__);
  table->data = nullptr;
}

// A table that is about to be copied into may leave its new elements zero-filled.
template <class T, bool ClearNew = !plain_table<T>>
int generic_table_init(T *table, unsigned count, const char *family) {
  if (table == nullptr) [[unlikely]] {
    log_invalid_pointer({family, __func__}, "table");
    return invalid_argument;
  }
  generic_table_clear(table);
  table->count = 0;
  if (count == 0) {
    return success;
  }
  using E = element_of<T>;
  table->data = static_cast<E *>(table::allocate_elements(count, sizeof(E), family));
  if (table->data == nullptr) [[unlikely]] {
    return out_of_memory;
  }
  table->count = count;
  if constexpr (ClearNew) {
    for (std::uint32_t i = 0; i < count; ++i) {
      element<E>::clear(&table->data[i]);
    }
  }
  return success;
}

template <class T> T *generic_table_create(unsigned count, const char *family) {
  auto *table = static_cast<T *>(slab_dcalloc(1, sizeof(T), table::source, __LINE__));
  if (table == nullptr) [[unlikely]] {
    log_error({family, __func__}, "No memory available!");
    return nullptr;
  }
  if (generic_table_init(table, count, family) != success) [[unlikely]] {
    log_error({family, __func__}, "Init error!");
    generic_table_clear(table);
    slab_cbcontext_free(table, table::source, __LINE__);
    return nullptr;
  }
  return table;
}

template <class T> int generic_table_copy(const T *src, T *dest, const char *family) {
  if (const int code = table::check_copy_arguments(src, dest, family); code != success) [[unlikely]] {
    return code;
  }
  if (src == dest) [[unlikely]] {
    if (!table::copyable(*src)) {
      log_error({family, __func__}, "Copy error!");
      return invalid_argument;
    }
    return success;
  }
  using E = element_of<T>;
  const std::uint32_t count = table::elements(*src);
  if (const int code = generic_table_init<T, !element<E>::is_flat>(dest, count, family); code != success) [[unlikely]] {
    log_error({family, __func__}, "Init error!");
    return code;
  }
  if constexpr (plain_table<T>) {
    if (count != 0) {
      std::memcpy(dest->data, src->data, count * sizeof(E));
    }
  } else {
    const E *from = src->data;
    E *to = dest->data;
    for (const E *end = from + count; from != end; ++from, ++to) {
      if (const int code = element<E>::copy(from, to); code != success) [[unlikely]] {
        log_error({family, __func__}, "Copy error!");
        generic_table_clear(dest);
        return code;
      }
    }
  }
  return success;
}

template <class T> RAVIX_ALIKE int generic_table_add_entry(T *table, entry_of<T> *entry, const char *family) {
  if (!table::has_entry_arguments(table, entry, {family, __func__})) [[unlikely]] {
    return invalid_argument;
  }
  using E = element_of<T>;
  const std::uint32_t count = table::elements(*table);
  const auto offset = reinterpret_cast<std::uintptr_t>(entry) - reinterpret_cast<std::uintptr_t>(table->data);
  const table::grown_array array = table::grow(table->data, table->count, sizeof(E), family);
  auto *grown = static_cast<E *>(array.data);
  if (grown == nullptr) [[unlikely]] {
    return array.code;
  }
  // An entry of the table itself has moved with the array.
  if (offset < count * sizeof(E)) [[unlikely]] {
    entry = grown + offset / sizeof(E);
  }
  table->data = grown;
  table->count = count;
  E *slot = &grown[count];
  if constexpr (plain_table<T>) {
    std::memcpy(slot, entry, sizeof(E));
  } else {
    if constexpr (!element<E>::is_flat) {
      std::memset(static_cast<void *>(slot), 0, sizeof(E));
    }
    if (const int code = element<E>::copy(entry, slot); code != success) [[unlikely]] {
      log_error({family, __func__}, "Copy error!");
      std::memset(static_cast<void *>(slot), 0, sizeof(E));
      return code;
    }
  }
  table->count = count + 1;
  return success;
}

template <class T> bool generic_table_contains_entry(const T *table, entry_of<T> *entry, const char *family) {
  if (!table::has_entry_arguments(table, entry, {family, __func__})) [[unlikely]] {
    return false;
  }
  using E = element_of<T>;
  const std::uint32_t count = table::elements(*table);
  for (std::uint32_t i = 0; i < count; ++i) {
    if constexpr (plain_table<T>) {
      if (std::memcmp(&table->data[i], entry, sizeof(E)) == 0) {
        return true;
      }
    } else if (element<E>::compare(&table->data[i], entry) == 0) {
      return true;
    }
  }
  return false;
}

// Orders two tables by their counts, then plain elements as bytes in memory order, others by the first that differs.
template <class T> int generic_table_compare(const T *a, const T *b) {
  if (a == nullptr || b == nullptr) {
    return (a != nullptr) - (b != nullptr);
  }
  if (a->count != b->count) {
    return a->count < b->count ? -1 : 1;
  }
  if (a->count == 0 || a->data == nullptr || b->data == nullptr) {
    return (table::elements(*a) != 0) - (table::elements(*b) != 0);
  }
  using E = element_of<T>;
  if constexpr (plain_table<T>) {
    return std::memcmp(a->data, b->data, a->count * sizeof(E));
  } else {
    for (std::uint32_t i = 0; i < a->count; ++i) {
      if (const int order = element<E>::compare(&a->data[i], &b->data[i]); order != 0) {
        return order;
      }
    }
    return 0;
  }
}

} // namespace zel::ravix
