// Field lists: what a record consists of, said once.
//
// The field list of a record R is `field_list<R>::fields`, a tuple with one object per field in declaration order. The
// object's class is the field's kind (see ravix_types_kinds.hpp), which knows how such a field is stored, cleared,
// copied and compared; the kind's `meaning` (see ravix_types_meanings.hpp) knows what its value stands for and how it
// is shown.
#pragma once

#include <cstddef>
#include <tuple>
#include <type_traits>
#include <utility>

namespace zel::ravix {

// Specialised for each record. Besides `fields` it may have `clear(r, site)`, in place of clearing field by field.
template <class R> struct field_list;

template <class Record> struct list_of { using R = Record; };

template <class T>
concept has_fields = requires {
  field_list<T>::fields;
};

template <class R>
inline constexpr std::size_t field_count = std::tuple_size_v<std::remove_cvref_t<decltype(field_list<R>::fields)>>;

template <class R, class Visit> constexpr void for_each_field(Visit visit) {
  [&]<std::size_t... i>(std::index_sequence<i...>) {
    (visit(std::get<i>(field_list<R>::fields)), ...);
  }
  (std::make_index_sequence<field_count<R>>{});
}

// All of the fields satisfy the predicate; stops at the first that does not.
template <class R, class Predicate> constexpr bool all_fields(Predicate holds) {
  return [&]<std::size_t... i>(std::index_sequence<i...>) {
    return (holds(std::get<i>(field_list<R>::fields)) && ...); // GCOVR_EXCL_BR_LINE: most fields cannot fail
  }
  (std::make_index_sequence<field_count<R>>{});
}

// A record that owns no memory: its copy is an assignment, and what lies behind a text's or SSID's end emptied.
template <class R> constexpr bool is_flat() {
  return all_fields<R>([](const auto &field) { return field.is_flat; });
}

template <class R> constexpr bool has_secret() {
  return !all_fields<R>([](const auto &field) { return !field.is_secret; });
}

} // namespace zel::ravix
