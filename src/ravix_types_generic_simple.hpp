// The record frame: how every record is created, cloned and released.
#pragma once

#include "ravix_types_log.hpp"
#include "zelcsock/slab.h"

#include <cstddef>
#include <cstring>

// What records have alike but for their size and name is inlined where speed counts, and shared where size does. Where
// speed counts, a FLATTEN function takes in all that it calls, too.
#if defined(__OPTIMIZE_SIZE__)
#define RAVIX_ALIKE [[gnu::noinline]] inline
#define RAVIX_FLATTEN
#elif defined(__OPTIMIZE__)
#define RAVIX_ALIKE [[gnu::always_inline]] inline
#define RAVIX_FLATTEN [[gnu::flatten]]
#else
#define RAVIX_ALIKE inline
#define RAVIX_FLATTEN
#endif

namespace zel::ravix {

// Results of record operations.
inline constexpr int success = 0;
inline constexpr int invalid_argument = -22; // -EINVAL
inline constexpr int out_of_memory = -12;    // -ENOMEM; also: an owned record could not be cloned

namespace frame {

// Tags of the frame's own allocations and the lines of its messages. Log filters and leak reports of the device know
// these numbers, so they stay as they are wherever the code below moves to. A message names the source of the record's
// family together with the frame's line: that pairing is known to the same filters.
inline constexpr const char *source = "src/ravix_types_generic_simple";
inline constexpr int create_allocation_line = 35;
inline constexpr int create_no_memory_line = 37;
inline constexpr int clone_null_line = 64;
inline constexpr int clone_allocation_line = 68;
inline constexpr int clone_no_memory_line = 70;
inline constexpr int clone_copy_error_line = 75;
inline constexpr int free_line = 99;

// Zero-filled memory of a record, or null and a message.
RAVIX_ALIKE void *allocate_to_create(std::size_t size, const char *family) {
  void *record = slab_dcalloc(1, size, source, create_allocation_line);
  if (record == nullptr) [[unlikely]] {
    log_error({family, "generic_create", create_no_memory_line}, "No memory available!");
  }
  return record;
}

RAVIX_ALIKE void *allocate_to_clone(const void *old_obj, std::size_t size, const char *family) {
  if (old_obj == nullptr) [[unlikely]] {
    log_invalid_pointer({family, "generic_clone", clone_null_line}, "old_obj");
    return nullptr;
  }
  void *record = slab_dcalloc(1, size, source, clone_allocation_line);
  if (record == nullptr) [[unlikely]] {
    log_error({family, "generic_clone", clone_no_memory_line}, "No memory available!");
  }
  return record;
}

RAVIX_ALIKE void log_clone_copy_error(const char *family) {
  log_error({family, "generic_clone", clone_copy_error_line}, "Copy error!");
}

} // namespace frame

// New record in its empty state, or null. `family` is the source path of the record's family.
template <class T> T *generic_create(void (*clear)(T *), const char *family) {
  auto *record = static_cast<T *>(frame::allocate_to_create(sizeof(T), family));
  clear(record); // null is harmless
  return record;
}

// New deep copy of `old_obj`, or null.
template <class T>
T *generic_clone(const T *old_obj, int (*copy)(const T *, T *), void (*free)(T *), const char *family) {
  auto *record = static_cast<T *>(frame::allocate_to_clone(old_obj, sizeof(T), family));
  if (record != nullptr && copy(old_obj, record) != success) [[unlikely]] {
    frame::log_clone_copy_error(family);
    free(record);
    return nullptr;
  }
  return record;
}

// Clears and releases a record; null is harmless.
template <class T> void generic_free(T *record, void (*clear)(T *)) {
  if (record != nullptr) {
    clear(record);
    slab_cbcontext_free(record, frame::source, frame::free_line);
  }
}

} // namespace zel::ravix
