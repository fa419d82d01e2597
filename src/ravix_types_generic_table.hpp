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

// What the tables must know of an element type E. The default is for numbers and addresses: copied and compared as
// bytes. Others have clear, copy, accepts and compare, and tell which visits of their elements a table may save.
template <class E> struct element {
  using entry = const E; // what an operation that takes one points to
  static constexpr bool is_bytes = true;
  // A copy overwrites every field, so that the elements to copy into need not be cleared.
  static constexpr bool is_flat = true;
  // Elements own memory or hold secrets, so that they are cleared before their array is released.
  static constexpr bool clear_before_release = false;

  static int copy(const E *src, E *dest) {
    std::memcpy(dest, src, sizeof(E));
    return success;
  }
  static int compare(const E *a, const E *b) { return std::memcmp(a, b, sizeof(E)); }
};

template <class T>
concept table_of_bytes = element<element_of<T>>::is_bytes;

template <class T> using entry_of = typename element<element_of<T>>::entry;

namespace table {

inline constexpr const char *own_path = "src/ravix_types_generic_table";

// A table that has no array has no elements, whatever its count says.
template <class T> std::uint32_t elements(const T &table) {
  return table.data != nullptr ? table.count : 0;
}

// Whether all elements may be copied.
template <class T> bool accepts(const T &table) {
  using E = element_of<T>;
  if constexpr (requires(const E &e) { element<E>::accepts(e); }) {
    return std::all_of(table.data, table.data + elements(table), element<E>::accepts);
  }
  return true;
}

// The functions below do what tables have in common, and speak in the name of the operation that they are part of.

// Zero-filled elements, or null and a message.
RAVIX_SHARED void *allocate_elements(std::uint32_t count, std::size_t size, const char *path) {
  void *data = slab_dcalloc(count, size, own_path, __LINE__);
  if (data == nullptr) [[unlikely]] {
    log_error({path, "generic_table_init"}, "No memory available!");
  }
  return data;
}

// An array with one element more, or null and what to return.
struct grown_array {
  void *data;
  int code;
};

RAVIX_SHARED grown_array grow(void *data, std::uint32_t count, std::uint32_t size, const char *path) {
  constexpr const char *function = "generic_table_add_entry";
  if (count == UINT32_MAX) [[unlikely]] {
    log_error({path, function}, "Maximum number of entries reached!");
    return {nullptr, invalid_argument};
  }
  // The device's 32-bit arithmetic on every platform: the sum is tested for a wrap, the product deliberately is not.
  const std::uint32_t old_size = count * size;
  const std::uint32_t new_size = old_size + size;
  if (new_size < old_size) [[unlikely]] {
    log_error({path, function}, "Overflow would occur!");
    return {nullptr, invalid_argument};
  }
  void *grown = slab_drealloc(data, data != nullptr ? new_size : size, own_path, __LINE__);
  if (grown == nullptr) [[unlikely]] {
    log_error({path, function}, "No memory available!");
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
    // Wipe: they may hold secrets and are about to be freed.
    std::memset(static_cast<void *>(table->data), 0, table->count * sizeof(E));
  } else if constexpr (element<E>::clear_before_release) {
    for (std::uint32_t i = 0; i < table->count; ++i) {
      element<E>::clear(&table->data[i]);
    }
  }
  table->count = 0;
  slab_cbcontext_free(table->data, table::own_path, __LINE__);
  table->data = nullptr;
}

// A table that is about to be copied into may leave its new elements zero-filled.
template <class T, bool ClearNew = !table_of_bytes<T>>
int generic_table_init(T *table, unsigned count, const char *path) {
  if (table == nullptr) [[unlikely]] {
    log_invalid_pointer({path, __func__}, "table");
    return invalid_argument;
  }
  generic_table_clear(table);
  table->count = 0;
  if (count == 0) {
    return success;
  }
  using E = element_of<T>;
  table->data = static_cast<E *>(table::allocate_elements(count, sizeof(E), path));
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

template <class T> T *generic_table_create(unsigned count, const char *path) {
  auto *table = static_cast<T *>(slab_dcalloc(1, sizeof(T), table::own_path, __LINE__));
  if (table == nullptr) [[unlikely]] {
    log_error({path, __func__}, "No memory available!");
    return nullptr;
  }
  if (generic_table_init(table, count, path) != success) [[unlikely]] {
    log_error({path, __func__}, "Init error!");
    generic_table_clear(table);
    slab_cbcontext_free(table, table::own_path, __LINE__);
    return nullptr;
  }
  return table;
}

template <class T> int generic_table_copy(const T *src, T *dest, const char *path) {
  if (!are_given(src, "src", dest, "dest", {path, __func__})) [[unlikely]] {
    return invalid_argument;
  }
  if (src == dest) [[unlikely]] {
    if (!table::accepts(*src)) {
      log_error({path, __func__}, "Copy error!");
      return invalid_argument;
    }
    return success;
  }
  using E = element_of<T>;
  const std::uint32_t count = table::elements(*src);
  if (const int code = generic_table_init<T, !element<E>::is_flat>(dest, count, path); code != success) [[unlikely]] {
    log_error({path, __func__}, "Init error!");
    return code;
  }
  if constexpr (table_of_bytes<T>) {
    if (count != 0) {
      std::memcpy(dest->data, src->data, count * sizeof(E));
    }
  } else {
    const E *from = src->data;
    E *to = dest->data;
    for (const E *end = from + count; from != end; ++from, ++to) {
      if (const int code = element<E>::copy(from, to); code != success) [[unlikely]] {
        log_error({path, __func__}, "Copy error!");
        generic_table_clear(dest);
        return code;
      }
    }
  }
  return success;
}

template <class T> RAVIX_SHARED int generic_table_add_entry(T *table, entry_of<T> *entry, const char *path) {
  if (!are_given(table, "table", entry, "entry", {path, __func__})) [[unlikely]] {
    return invalid_argument;
  }
  using E = element_of<T>;
  const std::uint32_t count = table::elements(*table);
  const auto offset = reinterpret_cast<std::uintptr_t>(entry) - reinterpret_cast<std::uintptr_t>(table->data);
  const table::grown_array array = table::grow(table->data, table->count, sizeof(E), path);
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
  if constexpr (!element<E>::is_flat) {
    std::memset(static_cast<void *>(slot), 0, sizeof(E));
  }
  if (const int code = element<E>::copy(entry, slot); code != success) [[unlikely]] {
    log_error({path, __func__}, "Copy error!");
    std::memset(static_cast<void *>(slot), 0, sizeof(E));
    return code;
  }
  table->count = count + 1;
  return success;
}

template <class T> bool generic_table_contains_entry(const T *table, entry_of<T> *entry, const char *path) {
  if (!are_given(table, "table", entry, "entry", {path, __func__})) [[unlikely]] {
    return false;
  }
  using E = element_of<T>;
  const std::uint32_t count = table::elements(*table);
  for (std::uint32_t i = 0; i < count; ++i) {
    if (element<E>::compare(&table->data[i], entry) == 0) {
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
    return order_of(a->count, b->count);
  }
  if (a->count == 0 || a->data == nullptr || b->data == nullptr) {
    return (table::elements(*a) != 0) - (table::elements(*b) != 0);
  }
  using E = element_of<T>;
  if constexpr (table_of_bytes<T>) {
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
