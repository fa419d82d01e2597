// Defines the exported operations of a family's records: functions, not templates, so that their names are the ones in
// log lines. A family's source names its path `here` and includes its part of the list of records:
//
//   #define RAVIX_EVENT_RECORD RAVIX_DEFINE
//   #include "ravix_types_records.def"
#pragma once

#include "ravix_types_kinds.hpp"

namespace zel::ravix {

// A table with fields ahead of its entries is cleared and copied as a record.
template <class T> void table_clear(T *table, call_site site) {
  if constexpr (field_count<T> == 1) {
    generic_table_clear(table);
  } else {
    record_clear(table, site);
  }
}

template <class T> int table_copy(const T *src, T *dest, call_site site) {
  if constexpr (field_count<T> == 1) {
    return generic_table_copy(src, dest, site.path);
  } else {
    return record_copy(src, dest, site, [&](const T *from, T *to) { return record_copy_into_empty(*from, *to, site); });
  }
}

} // namespace zel::ravix

#define RAVIX_DEFINE(NAME, TYPE, SHAPE, COMPARED, PRINTED)                                                             \
  RAVIX_DEFINE_##SHAPE(NAME, TYPE) RAVIX_DEFINE_##SHAPE##_##COMPARED(NAME, TYPE)

#define RAVIX_DEFINE_record(NAME, TYPE)                                                                                \
  TYPE *NAME##_create(void) {                                                                                          \
    return zel::ravix::generic_create<TYPE>(NAME##_clear, here);                                                       \
  }                                                                                                                    \
  TYPE *NAME##_clone(const TYPE *old_obj) {                                                                            \
    return zel::ravix::generic_clone<TYPE>(old_obj, zel::ravix::copy_into_empty<TYPE>, NAME##_free, here);             \
  }                                                                                                                    \
  int NAME##_copy(const TYPE *src, TYPE *dest) {                                                                       \
    return zel::ravix::record_copy(src, dest, here, zel::ravix::copy_into_empty<TYPE>);                                \
  }                                                                                                                    \
  template <> RAVIX_FLATTEN int zel::ravix::copy_into_empty(const TYPE *src, TYPE *dest) {                             \
    return record_copy_into_empty(*src, *dest, {here, #NAME "_copy"});                                                 \
  }                                                                                                                    \
  RAVIX_FLATTEN void NAME##_clear(TYPE *obj) {                                                                         \
    zel::ravix::record_clear(obj, here);                                                                               \
  }                                                                                                                    \
  void NAME##_free(TYPE *obj) {                                                                                        \
    zel::ravix::generic_free<TYPE>(obj, NAME##_clear);                                                                 \
  }
#define RAVIX_DEFINE_record_uncompared(NAME, TYPE)
#define RAVIX_DEFINE_record_compared(NAME, TYPE)                                                                       \
  int NAME##_compare(const TYPE *a, const TYPE *b) {                                                                   \
    return zel::ravix::record_compare(a, b);                                                                           \
  }

#define RAVIX_DEFINE_table(NAME, TYPE)                                                                                 \
  int NAME##_init(TYPE *table, unsigned count) {                                                                       \
    return zel::ravix::generic_table_init(table, count, here);                                                         \
  }                                                                                                                    \
  TYPE *NAME##_create(unsigned count) {                                                                                \
    return zel::ravix::generic_table_create<TYPE>(count, here);                                                        \
  }                                                                                                                    \
  TYPE *NAME##_clone(const TYPE *old_obj) {                                                                            \
    return zel::ravix::generic_clone<TYPE>(old_obj, NAME##_copy, NAME##_free, here);                                   \
  }                                                                                                                    \
  int NAME##_copy(const TYPE *src, TYPE *dest) {                                                                       \
    return zel::ravix::table_copy(src, dest, here);                                                                    \
  }                                                                                                                    \
  void NAME##_clear(TYPE *table) {                                                                                     \
    zel::ravix::table_clear(table, here);                                                                              \
  }                                                                                                                    \
  void NAME##_free(TYPE *table) {                                                                                      \
    zel::ravix::generic_free<TYPE>(table, NAME##_clear);                                                               \
  }                                                                                                                    \
  int NAME##_add_entry(TYPE *table, zel::ravix::entry_of<TYPE> *entry) {                                               \
    return zel::ravix::generic_table_add_entry(table, entry, here);                                                    \
  }
#define RAVIX_DEFINE_table_uncompared(NAME, TYPE)
#define RAVIX_DEFINE_table_compared(NAME, TYPE)                                                                        \
  bool NAME##_contains_entry(const TYPE *table, zel::ravix::entry_of<TYPE> *entry) {                                   \
    return zel::ravix::generic_table_contains_entry(table, entry, here);                                               \
  }                                                                                                                    \
  int NAME##_compare(const TYPE *a, const TYPE *b) {                                                                   \
    return zel::ravix::generic_table_compare(a, b);                                                                    \
  }
