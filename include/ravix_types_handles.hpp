/**
 * @file
 * Owning handles for C++ (from C++17 on): records that release themselves, and tables as ranges. Nothing here costs
 * more than the C calls that it stands for, and nothing throws.
 *
 *     const ravix::handle<ravix_scan_table_t> found = ravix::create<ravix_scan_table_t>();
 *     if (found == nullptr || ravix::add(*found, network) != 0) {
 *       return -ENOMEM;
 *     }
 *     for (const ravix_scan_entry_t &entry : ravix::entries(*found)) {
 *       std::puts(ravix_str_ssid(&entry.ssid, true));
 *     }
 */
#ifndef RAVIX_TYPES_HANDLES_HPP
#define RAVIX_TYPES_HANDLES_HPP

#include "ravix_types.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <type_traits>
#if __cplusplus >= 202002L
#include <span>
#endif

/** @defgroup handles Owning handles
 *  @{ */

namespace ravix {

/** The functions of a record or table, by its structure: `create`, `clone`, `copy`, `clear`, `free`; of what is
 * compared `compare`; of a table `init` and `add_entry`, and `contains_entry` if it is compared. A type that is no
 * record has none, and what is below does not compile for it. */
template <class T> struct operations;

/** @cond */
#define RAVIX_OPERATIONS_record(NAME)
#define RAVIX_OPERATIONS_table(NAME)                                                                                   \
  static constexpr auto &init = NAME##_init;                                                                           \
  static constexpr auto &add_entry = NAME##_add_entry;
#define RAVIX_OPERATIONS_record_uncompared(NAME)
#define RAVIX_OPERATIONS_table_uncompared(NAME)
#define RAVIX_OPERATIONS_record_compared(NAME) static constexpr auto &compare = NAME##_compare;
#define RAVIX_OPERATIONS_table_compared(NAME)                                                                          \
  static constexpr auto &compare = NAME##_compare;                                                                     \
  static constexpr auto &contains_entry = NAME##_contains_entry;
#define RAVIX_RECORD(NAME, TYPE, SHAPE, COMPARED, PRINTED)                                                             \
  template <> struct operations<TYPE> {                                                                                \
    static constexpr auto &create = NAME##_create;                                                                     \
    static constexpr auto &clone = NAME##_clone;                                                                       \
    static constexpr auto &copy = NAME##_copy;                                                                         \
    static constexpr auto &clear = NAME##_clear;                                                                       \
    static constexpr auto &free = NAME##_free;                                                                         \
    RAVIX_OPERATIONS_##SHAPE(NAME) RAVIX_OPERATIONS_##SHAPE##_##COMPARED(NAME)                                         \
  };
#include "ravix_types_records.def"
#undef RAVIX_OPERATIONS_record
#undef RAVIX_OPERATIONS_table
#undef RAVIX_OPERATIONS_record_uncompared
#undef RAVIX_OPERATIONS_table_uncompared
#undef RAVIX_OPERATIONS_record_compared
#undef RAVIX_OPERATIONS_table_compared

// What is created and released, and no more.
template <> struct operations<ravix_station_history_t> {
  static constexpr auto &create = ravix_types_station_history_create;
  static constexpr auto &free = ravix_types_station_history_free;
};
template <> struct operations<ravix_btm_candidate_table_t> {
  static constexpr auto &create = ravix_types_btm_candidate_table_create;
  static constexpr auto &free = ravix_types_btm_candidate_table_free;
};
template <> struct operations<ravix_ap_channel_report_table_t> {
  static constexpr auto &create = ravix_types_ap_channel_report_table_create;
  static constexpr auto &free = ravix_types_ap_channel_report_table_free;
};
template <> struct operations<ravix_beacon_report_table_t> {
  static constexpr auto &create = ravix_types_beacon_report_table_create;
  static constexpr auto &free = ravix_types_beacon_report_table_free;
};
/** @endcond */

/** Releases a record with its own free function. */
struct releaser {
  /** @param record may be null */
  template <class T> void operator()(T *record) const noexcept { operations<T>::free(record); }
};

/** A record or table that is owned, or null. As large as a pointer. */
template <class T> using handle = std::unique_ptr<T, releaser>;

/** Creates a record in its empty state, or a table; see ravix_types_common.h.
 *  @tparam T the structure
 *  @param count of a table: its number of empty elements
 *  @return the record; null when memory is exhausted */
template <class T, class... Count> [[nodiscard]] handle<T> create(Count... count) noexcept {
  static_assert(sizeof...(Count) <= 1, "a table has one number of elements, a record none");
  if constexpr (std::is_invocable_v<decltype(operations<T>::create), unsigned> && sizeof...(Count) == 0) {
    return handle<T>(operations<T>::create(0));
  } else {
    return handle<T>(operations<T>::create(static_cast<unsigned>(count)...));
  }
}

/** Creates a deep copy.
 *  @param record what to copy
 *  @return the copy; null when it cannot be copied or memory is exhausted */
template <class T> [[nodiscard]] handle<T> clone(const T &record) noexcept {
  return handle<T>(operations<T>::clone(&record));
}

/** Makes a record a deep copy of another.
 *  @param source what to copy
 *  @param destination an initialised record
 *  @return 0 or what the record's copy function returns */
template <class T> [[nodiscard]] int copy(const T &source, T &destination) noexcept {
  return operations<T>::copy(&source, &destination);
}

/** Orders two records or tables.
 *  @param a a record or table
 *  @param b another of the same type
 *  @return negative, 0 or positive; only the sign counts */
template <class T> [[nodiscard]] int compare(const T &a, const T &b) noexcept {
  return operations<T>::compare(&a, &b);
}

/** An element of a table. */
template <class Table> using element = std::remove_pointer_t<decltype(Table::data)>;

/** Appends a deep copy of an entry to a table.
 *  @param table the table; its elements move
 *  @param entry what to append, which may be an element of the table
 *  @return 0 or what the table's add function returns */
template <class Table> [[nodiscard]] int add(Table &table, const element<Table> &entry) noexcept {
  return operations<Table>::add_entry(&table, &entry);
}

#if __cplusplus >= 202002L
/** The elements of a table; none of one without an array, whatever its count says.
 *  @param table the table
 *  @return its elements, valid until the table changes */
template <class Table> [[nodiscard]] std::span<element<Table>> entries(Table &table) noexcept {
  return {table.data, table.data != nullptr ? std::size_t{table.count} : 0};
}
/** As above, of a table that is not changed.
 *  @param table the table
 *  @return its elements, valid until the table changes */
template <class Table> [[nodiscard]] std::span<const element<Table>> entries(const Table &table) noexcept {
  return {table.data, table.data != nullptr ? std::size_t{table.count} : 0};
}
#else
/** The elements of a table as a range; C++20 programs get a std::span. */
template <class E> struct entry_range {
  E *first;                                                        /**< The first element. */
  std::size_t count;                                               /**< How many there are. */
  E *begin() const noexcept { return first; }                      /**< The first element. */
  E *end() const noexcept { return first + count; }                /**< Behind the last element. */
  std::size_t size() const noexcept { return count; }              /**< How many there are. */
  bool empty() const noexcept { return count == 0; }               /**< Whether there are none. */
  E &operator[](std::size_t i) const noexcept { return first[i]; } /**< The element of an index below the size. */
};
/** The elements of a table; none of one without an array, whatever its count says.
 *  @param table the table
 *  @return its elements, valid until the table changes */
template <class Table> [[nodiscard]] entry_range<element<Table>> entries(Table &table) noexcept {
  return {table.data, table.data != nullptr ? std::size_t{table.count} : 0};
}
/** As above, of a table that is not changed. */
template <class Table> [[nodiscard]] entry_range<const element<Table>> entries(const Table &table) noexcept {
  return {table.data, table.data != nullptr ? std::size_t{table.count} : 0};
}
#endif

} // namespace ravix

/** @} */

#endif
