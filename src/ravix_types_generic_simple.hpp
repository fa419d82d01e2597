// The record frame: how every record is created, cloned and released.
#pragma once

#include "ravix_types_log.hpp"
#include "zelcsock/slab.h"

#include <cstddef>

// Where size counts, what records have in common but for a size and a name is one function for all of them
// (RAVIX_SHARED). Where speed counts, a FLATTEN function takes in all that it calls. Without "hot", g++ would hold what
// lies behind its many tests for rare, and make it small instead of fast.
#if defined(__OPTIMIZE_SIZE__)
#define RAVIX_SHARED [[gnu::noinline]] inline
#define RAVIX_FLATTEN
#elif defined(__OPTIMIZE__)
#define RAVIX_SHARED inline
#define RAVIX_FLATTEN [[gnu::flatten, gnu::hot]]
#else
#define RAVIX_SHARED inline
#define RAVIX_FLATTEN
#endif

namespace zel::ravix {

// Results of record operations.
inline constexpr int success = 0;
inline constexpr int invalid_argument = -22; // -EINVAL
inline constexpr int out_of_memory = -12;    // -ENOMEM; also: an owned record could not be cloned

// Tells whether both pointers are given; logs the first that is null.
RAVIX_SHARED bool are_given(const void *first, const char *first_name, const void *second, const char *second_name,
                            call_site site) {
  if (first != nullptr && second != nullptr) [[likely]] {
    return true;
  }
  log_invalid_pointer(site, first == nullptr ? first_name : second_name);
  return false;
}

// Negative, 0 or positive, as all comparisons are.
template <class T> constexpr int order_of(T a, T b) {
  return (a > b) - (a < b);
}

namespace frame {

// Tags of the frame's own allocations and the lines of its messages. Log filters and leak reports of the device know
// these numbers, so they stay as they are wherever the code below moves to. A message names the source of the record's
// family together with the frame's line: that pairing is known to the same filters.
inline constexpr const char *own_path = "src/ravix_types_generic_simple";
inline constexpr int create_allocation_line = 35;
inline constexpr int create_no_memory_line = 37;
inline constexpr int clone_null_line = 64;
inline constexpr int clone_allocation_line = 68;
inline constexpr int clone_no_memory_line = 70;
inline constexpr int clone_copy_error_line = 75;
inline constexpr int free_line = 99;

// Zero-filled memory of a record, or null and a message. `path` is the source path of the record's family.
inline void *allocate(std::size_t size, int line, call_site no_memory) {
  void *record = slab_dcalloc(1, size, own_path, line);
  if (record == nullptr) [[unlikely]] {
    log_error(no_memory, "No memory available!");
  }
  return record;
}

RAVIX_SHARED void *allocate_to_create(std::size_t size, const char *path) {
  return allocate(size, create_allocation_line, {path, "generic_create", create_no_memory_line});
}

RAVIX_SHARED void *allocate_to_clone(const void *old_obj, std::size_t size, const char *path) {
  if (old_obj == nullptr) [[unlikely]] {
    log_invalid_pointer({path, "generic_clone", clone_null_line}, "old_obj");
    return nullptr;
  }
  return allocate(size, clone_allocation_line, {path, "generic_clone", clone_no_memory_line});
}

RAVIX_SHARED void log_clone_copy_error(const char *path) {
  log_error({path, "generic_clone", clone_copy_error_line}, "Copy error!");
}

} // namespace frame

// New record in its empty state, or null.
template <class T> T *generic_create(void (*clear)(T *), const char *path) {
  auto *record = static_cast<T *>(frame::allocate_to_create(sizeof(T), path));
  clear(record); // null is harmless
  return record;
}

// New deep copy of `old_obj`, or null.
template <class T>
T *generic_clone(const T *old_obj, int (*copy)(const T *, T *), void (*free)(T *), const char *path) {
  auto *record = static_cast<T *>(frame::allocate_to_clone(old_obj, sizeof(T), path));
  if (record != nullptr && copy(old_obj, record) != success) [[unlikely]] {
    frame::log_clone_copy_error(path);
    free(record);
    return nullptr;
  }
  return record;
}

// Clears and releases a record; null is harmless.
template <class T> void generic_free(T *record, void (*clear)(T *)) {
  if (record != nullptr) {
    clear(record);
    slab_cbcontext_free(record, frame::own_path, frame::free_line);
  }
}

} // namespace zel::ravix
