// The record frame: how every record is created, cloned and released.
#pragma once

#include "ravix_types_log.hpp"
#include "zelcsock/slab.h"

#include <cstring>

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

} // namespace frame

// New record in its empty state, or null. `family` is the source path of the record's family.
template <class T> T *generic_create(void (*clear)(T *), const char *family) {
  auto *record = static_cast<T *>(slab_dcalloc(1, sizeof(T), frame::source, frame::create_allocation_line));
  if (record == nullptr) [[unlikely]] {
    log_error({family, "generic_create", frame::create_no_memory_line}, "No memory available!");
    return nullptr;
  }
  clear(record);
  return record;
}

// New deep copy of `old_obj`, or null.
template <class T>
T *generic_clone(const T *old_obj, int (*copy)(const T *, T *), void (*free)(T *), const char *family) {
  if (old_obj == nullptr) [[unlikely]] {
    log_invalid_pointer({family, "generic_clone", frame::clone_null_line}, "old_obj");
    return nullptr;
  }
  auto *record = static_cast<T *>(slab_dcalloc(1, sizeof(T), frame::source, frame::clone_allocation_line));
  if (record == nullptr) [[unlikely]] {
    log_error({family, "generic_clone", frame::clone_no_memory_line}, "No memory available!");
    return nullptr;
  }
  if (copy(old_obj, record) != success) [[unlikely]] {
    log_error({family, "generic_clone", frame::clone_copy_error_line}, "Copy error!");
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
