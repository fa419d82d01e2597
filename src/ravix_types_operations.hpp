// The operations of a record that follow from its field list: clear, copy and compare.
#pragma once

#include "ravix_types_field_list.hpp"
#include "ravix_types_generic_simple.hpp"
#include "ravix_types_generic_table.hpp"
#include "ravix_types_handles.hpp"

namespace zel::ravix {

// The exported operations of a record.
using ::ravix::operations;

// Copies into a record that is empty or zero-filled. Speaks in the exported copy's name, and leaves `dest` empty when
// it fails. A record has a function of its own, one for its copy, its clone and all the records that it is part of; a
// table's copy empties what it overwrites anyway.
template <class R> int copy_into_empty(const R *src, R *dest) {
  return operations<R>::copy(src, dest);
}
#define RAVIX_COPY_OF_record(TYPE) template <> int copy_into_empty(const TYPE *src, TYPE *dest);
#define RAVIX_COPY_OF_table(TYPE)
#define RAVIX_RECORD(NAME, TYPE, SHAPE, COMPARED, PRINTED) RAVIX_COPY_OF_##SHAPE(TYPE)
#include "ravix_types_records.def"
#undef RAVIX_COPY_OF_record
#undef RAVIX_COPY_OF_table

// What a failed copy of a field logs and returns. Without a message the field has said what there is to say; with the
// code for success the failure is told in the log only.
struct failure {
  const char *message = nullptr;
  int code = success;

  constexpr explicit operator bool() const { return message != nullptr || code != success; }
};

inline constexpr failure copy_error(int code) {
  return {"Copy error!", code};
}

template <class R> void clear_fields(R &r, call_site site) {
  for_each_field<R>([&](const auto &field) { field.clear(r, site); });
}

template <class R> bool accepts_fields(const R &src) {
  return all_fields<R>([&](const auto &field) { return field.accepts(src); });
}

// Empties what lies behind the values of a copy. Each kind looks at `src` for that: `dest` has just been written in a
// few wide stores, and to read it octet by octet would wait for them, which takes several times as long as all the
// rest.
template <class R> void trim_fields(const R &src, R &dest) {
  for_each_field<R>([&](const auto &field) { field.trim(src, dest); });
}

// Copies a record that owns nothing, whatever `dest` holds.
template <class R> void copy_flat(const R &src, R &dest) {
  dest = src;
  trim_fields(src, dest);
}

template <class Field, class R> failure copy_field(const Field &field, const R &src, R &dest, call_site site) {
  if constexpr (requires { field.copy(src, dest, site); }) {
    return field.copy(src, dest, site);
  } else {
    field.copy_members(src, dest);
    field.trim(src, dest);
    return {};
  }
}

// Copies the fields into a cleared record, up to the first that fails.
template <class R> failure copy_fields(const R &src, R &dest, call_site site) {
  failure failed;
  all_fields<R>([&](const auto &field) { return !(failed = copy_field(field, src, dest, site)); });
  return failed;
}

template <class R> int compare_fields(const R &a, const R &b) {
  int order = 0;
  all_fields<R>([&](const auto &field) { return (order = field.compare(a, b)) == 0; });
  return order;
}

// Logs a refused copy. Cold.
[[gnu::cold, gnu::noinline]] inline int refuse(call_site site, const char *message) {
  log_error(site, message);
  return invalid_argument;
}

// Success, or -22 and a line for a record that holds what its kind of field refuses.
template <class R> int check_values(const R &src, call_site site) {
  const char *refusal = nullptr;
  for_each_field<R>([&](const auto &field) {
    if constexpr (requires { field.refusal; }) {
      refusal = field.accepts(src) ? refusal : field.refusal;
    }
  });
  return refusal == nullptr ? success : refuse(site, refusal);
}

template <class R> void record_clear(R *obj, call_site site) {
  if (obj == nullptr) {
    return;
  }
  if constexpr (requires { field_list<R>::clear(*obj, site); }) {
    field_list<R>::clear(*obj, site);
  } else {
    clear_fields(*obj, site);
  }
}

// The part of a copy that can fail, into a record that is empty, zero-filled or owns nothing: `dest` ends as a full
// copy or empty.
template <class R> int record_copy_into_empty(const R &src, R &dest, call_site site) {
  if constexpr (is_flat<R>()) {
    if (accepts_fields(src)) [[likely]] {
      copy_flat(src, dest);
      return success;
    }
  }
  if (const int code = check_values(src, site); code != success) [[unlikely]] {
    return code;
  }
  const failure failed = copy_fields(src, dest, site);
  if (failed) [[unlikely]] {
    if (failed.message != nullptr) {
      refuse(site, failed.message);
    }
    operations<R>::clear(&dest);
  }
  return failed.code;
}

// `copy` is copy_into_empty() or does what it does.
template <class R, class Copy> int record_copy(const R *src, R *dest, call_site site, Copy copy) {
  if (!are_given(dest, "dest", src, "src", site)) [[unlikely]] {
    return invalid_argument;
  }
  // Refused values leave `dest` untouched, and that includes a record that is its own copy.
  if (const int code = check_values(*src, site); code != success) [[unlikely]] {
    return code;
  }
  if (src == dest) [[unlikely]] {
    return accepts_fields(*src) ? success : refuse(site, copy_error(invalid_argument).message);
  }
  if constexpr (!is_flat<R>()) {
    operations<R>::clear(dest);
  }
  return copy(src, dest);
}

// One function, without calls from record to record.
template <class R> RAVIX_FLATTEN int record_compare(const R *a, const R *b) {
  if (a == nullptr || b == nullptr) {
    return (a != nullptr) - (b != nullptr);
  }
  return compare_fields(*a, *b);
}

// Records as elements of tables.
template <has_fields R> struct element<R> {
  using entry = const R;
  static constexpr bool is_bytes = false;
  static constexpr bool is_flat = zel::ravix::is_flat<R>();
  static constexpr bool clear_before_release = !is_flat || has_secret<R>();

  static void clear(R *obj) {
    if constexpr (is_flat) {
      clear_fields(*obj, table::own_path);
    } else {
      operations<R>::clear(obj);
    }
  }

  static int copy(const R *src, R *dest) {
    if constexpr (is_flat) {
      if (accepts_fields(*src)) [[likely]] {
        copy_flat(*src, *dest);
        return success;
      }
    }
    return copy_into_empty(src, dest);
  }

  static bool accepts(const R &src) { return accepts_fields(src); }
  static int compare(const R *a, const R *b) { return compare_fields(*a, *b); }
};

} // namespace zel::ravix
