// Kinds of field: how a field is stored, and with that how it is cleared, copied and compared. A kind is a small class
// over the members that it covers:
//
//   name, offset                  of the field, and of its first member in the structure
//   meaning, value                what its values stand for, or void, and their type (see ravix_types_meanings.hpp)
//   is_flat, is_secret            owns no memory; may not be shown
//   members(r, visit)             calls visit for each structure member that the kind covers
//   clear(r, site)                releases what the field owns, gives it its empty value
//   accepts(src)                  tells whether the value may be copied, memory permitting; `refusal` is the message
//                                 of a field that refuses for itself
//   copy(src, dest, site)         copies into the cleared field; a failure names the message and the result. A field
//                                 that cannot fail has copy_members(src, dest) instead
//   compare(a, b)                 negative, 0 or positive
//   print(out, r)                 the value's text, on one line
//   print_diff(out, r, ref, ...)  the lines of a difference print (defaults to "name: text")
//
// A flat field has besides:
//
//   trim(src, dest)               empties what lies behind the value in `dest`, which holds the octets of `src`
//
// A new kind is a new class here or beside the family that needs it, never a case in the operations.
#pragma once

#include "ravix_types_meanings.hpp"
#include "ravix_types_operations.hpp"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string_view>
#include <tuple>
#include <type_traits>

namespace zel::ravix {

template <auto Member> struct member_traits;
template <class R, class T, T R::*Member> struct member_traits<Member> {
  using record = R;
  using value = T;
};
template <auto Member> using record_of = typename member_traits<Member>::record;
template <auto Member> using value_of = typename member_traits<Member>::value;

// What every kind has.
template <class Meaning, auto... Members> struct any_kind {
  using meaning = Meaning;
  static constexpr bool is_secret = false;
  const char *name;
  std::size_t offset;

  template <class R, class Visit> static void members(R &r, Visit visit) { (visit(r.*Members), ...); }
  template <class R> static bool accepts(const R & /*src*/) { return true; }
};

// Kinds of which every value may be copied by assignment, and most are empty when they are zero.
template <class Meaning, auto... Members> struct flat_kind : any_kind<Meaning, Members...> {
  static constexpr bool is_flat = true;

  template <class R> static void clear(R &r, call_site /*site*/) {
    (std::memset(&(r.*Members), 0, sizeof(r.*Members)), ...);
  }
  template <class R> static void copy_members(const R &src, R &dest) {
    (std::memcpy(&(dest.*Members), &(src.*Members), sizeof(dest.*Members)), ...);
  }
  template <class R> static void trim(const R & /*src*/, R & /*dest*/) {}
};

// A value as a number. Of a flag it is the octet: memory of a caller's may hold any, and to read a bool that is neither
// 0 nor 1 is undefined.
template <class T> auto number_of(const T &member) {
  std::conditional_t<std::is_same_v<T, bool>, std::uint8_t, T> number;
  static_assert(sizeof number == sizeof member);
  std::memcpy(&number, &member, sizeof number);
  return number;
}

// Number, flag set, enumerated value, flag or pointer that is not owned.
template <auto Member, class Meaning> struct scalar : flat_kind<Meaning, Member> {
  using R = record_of<Member>;
  using value = decltype(number_of(value_of<Member>{}));

  static void clear(R &r, call_site /*site*/) { r.*Member = static_cast<value_of<Member>>(Meaning::empty); }
  static int compare(const R &a, const R &b) {
    const auto left = number_of(a.*Member);
    const auto right = number_of(b.*Member);
    return left == right ? 0 : (left < right ? -1 : 1);
  }
  template <class Out> static void print(Out &out, const R &r) { Meaning::print(out, number_of(r.*Member)); }
};

// Octets or enumerated values of a fixed number, all of which count.
template <auto Member, class Meaning> struct array : flat_kind<Meaning, Member> {
  using R = record_of<Member>;
  using value = std::uint8_t;
  static constexpr std::size_t size = sizeof(value_of<Member>);

  static int compare(const R &a, const R &b) {
    const int order = std::memcmp(a.*Member, b.*Member, size);
    return Meaning::kind == value_kind::octets ? order : order_of(order, 0);
  }
  template <class Out> static void print(Out &out, const R &r) {
    if constexpr (Meaning::kind == value_kind::octets) {
      Meaning::print(out, &(r.*Member)[0]);
    } else {
      const char *separator = "";
      for (const std::uint8_t value : r.*Member) {
        out.text(separator);
        Meaning::print(out, value);
        separator = ", ";
      }
    }
  }
};

// A count of octets and the octets, in an array one larger than the most that count.
template <auto Length, auto Octets> struct counted_octets : flat_kind<void, Length, Octets> {
  using R = record_of<Length>;
  static constexpr std::size_t size = sizeof(value_of<Octets>);
  static constexpr std::array<std::uint8_t, size> zeros{};
  const char *refusal; // message when the count exceeds what the array may hold

  static bool accepts(const R &src) { return src.*Length < size; }
  // Most are trimmed already, and to look costs less than to write.
  static void trim(const R &src, R &dest) {
    const std::size_t used = src.*Length;
    if (std::memcmp(&(src.*Octets)[used], zeros.data(), size - used) != 0) [[unlikely]] {
      std::memset(&(dest.*Octets)[used], 0, size - used);
    }
  }
  static int compare(const R &a, const R &b) {
    if (a.*Length != b.*Length) {
      return order_of(a.*Length, b.*Length);
    }
    return std::memcmp(a.*Octets, b.*Octets, std::min<std::size_t>(a.*Length, size));
  }
};

// Zero-terminated text in an array of its own; the copy never fills the last character.
template <auto Member> struct bounded_text : flat_kind<void, Member> {
  using R = record_of<Member>;
  static constexpr std::size_t size = sizeof(value_of<Member>);

  static void trim(const R &src, R &dest) {
    const std::size_t used = std::min(view(src).size(), size - 1);
    std::memset(&(dest.*Member)[used], 0, size - used);
  }
  static int compare(const R &a, const R &b) { return std::strncmp(a.*Member, b.*Member, size); }
  template <class Out> static void print(Out &out, const R &r) { out.text(view(r)); }

  // The text up to its terminator, or all of the array if it has none.
  static std::string_view view(const R &r) { return {r.*Member, strnlen(r.*Member, size)}; }
};

// Record or table embedded in the record.
template <auto Member> struct nested : any_kind<void, Member> {
  using R = record_of<Member>;
  using T = value_of<Member>;
  static constexpr bool is_flat = zel::ravix::is_flat<T>();
  static constexpr bool is_secret = has_secret<T>();

  static void clear(R &r, call_site /*site*/) { element<T>::clear(&(r.*Member)); }
  static bool accepts(const R &src) { return accepts_fields(src.*Member); }
  static failure copy(const R &src, R &dest, call_site /*site*/) {
    const int code = element<T>::copy(&(src.*Member), &(dest.*Member));
    return code == success ? failure{} : copy_error(code);
  }
  static void trim(const R &src, R &dest) { trim_fields(src.*Member, dest.*Member); }
  static int compare(const R &a, const R &b) { return compare_fields(a.*Member, b.*Member); }
  template <class Out> static void print(Out &out, const R &r) { out.value(r.*Member); }
  template <class Out> void print_diff(Out &out, const R &r, const R *ref, unsigned indent, bool /*newline*/) const {
    out.diff(r.*Member, ref != nullptr ? &(ref->*Member) : nullptr, this->name, indent, true);
  }
};

// Kinds that own memory.
template <auto... Members> struct owning_kind : any_kind<void, Members...> { static constexpr bool is_flat = false; };

// Pointer to a record that is owned, or null.
template <auto Member> struct owned : owning_kind<Member> {
  using R = record_of<Member>;
  using T = std::remove_pointer_t<value_of<Member>>;

  static void clear(R &r, call_site /*site*/) {
    operations<T>::free(r.*Member);
    r.*Member = nullptr;
  }
  static bool accepts(const R &src) { return src.*Member == nullptr || accepts_fields(*(src.*Member)); }
  static failure copy(const R &src, R &dest, call_site /*site*/) {
    if (src.*Member == nullptr) {
      return {};
    }
    dest.*Member = operations<T>::clone(src.*Member);
    return dest.*Member != nullptr ? failure{} : copy_error(out_of_memory);
  }
  static int compare(const R &a, const R &b) { return operations<T>::compare(a.*Member, b.*Member); }
  template <class Out> void print_diff(Out &out, const R &r, const R *ref, unsigned indent, bool newline) const {
    out.diff_pointee(r.*Member, ref != nullptr, ref != nullptr ? ref->*Member : nullptr, this->name, indent, newline);
  }
};

// Orders two texts, null before any.
inline int compare_texts(const char *a, const char *b) {
  return a == nullptr || b == nullptr ? (a != nullptr) - (b != nullptr) : std::strcmp(a, b);
}

// Zero-terminated text that is owned, or null.
template <auto Member> struct owned_text : owning_kind<Member> {
  using R = record_of<Member>;

  static void clear(R &r, call_site site) {
    slab_cbcontext_free(r.*Member, site.path, site.line);
    r.*Member = nullptr;
  }
  static failure copy(const R &src, R &dest, call_site site) {
    if (src.*Member == nullptr) {
      return {};
    }
    dest.*Member = slab_dstrdup(src.*Member, site.path, site.line);
    return dest.*Member != nullptr ? failure{} : failure{"No memory available!", out_of_memory};
  }
  static int compare(const R &a, const R &b) { return compare_texts(a.*Member, b.*Member); }
  template <class Out> static void print(Out &out, const R &r) { out.text_or_null(r.*Member); }
};

// An 8-bit count of octets and the octets, owned; null when the count is 0.
template <auto Length, auto Octets> struct owned_octets : owning_kind<Length, Octets> {
  using R = record_of<Length>;

  static void clear(R &r, call_site site) {
    r.*Length = 0;
    slab_cbcontext_free(r.*Octets, site.path, site.line);
    r.*Octets = nullptr;
  }
  static failure copy(const R &src, R &dest, call_site site) {
    const std::size_t used = src.*Octets != nullptr ? src.*Length : 0; // a count without octets counts nothing
    if (used == 0) {
      return {};
    }
    dest.*Octets = static_cast<std::uint8_t *>(slab_dcalloc(1, used, site.path, site.line));
    if (dest.*Octets == nullptr) [[unlikely]] {
      return {"No memory available!", out_of_memory};
    }
    dest.*Length = src.*Length;
    std::memcpy(dest.*Octets, src.*Octets, used);
    return {};
  }
  // Compares the references, not what they refer to: readers of a difference rely on an element of its own memory
  // counting as changed.
  static int compare(const R &a, const R &b) {
    if (a.*Length != b.*Length) {
      return order_of(a.*Length, b.*Length);
    }
    if (a.*Octets == nullptr || b.*Octets == nullptr) {
      return (a.*Octets != nullptr) - (b.*Octets != nullptr);
    }
    return std::memcmp(&(a.*Octets), &(b.*Octets), std::min<std::size_t>(a.*Length, sizeof(a.*Octets)));
  }
};

// The count and array of a table. The meaning is that of plain elements; records have field lists of their own.
template <class T, class Meaning = void> struct entries : owning_kind<&T::count, &T::data> {
  using meaning = Meaning;
  using value = element_of<T>;

  static void clear(T &table, call_site /*site*/) { generic_table_clear(&table); }
  static bool accepts(const T &src) { return table::accepts(src); }
  static failure copy(const T &src, T &dest, call_site site) {
    const int code = generic_table_copy(&src, &dest, site.path);
    return code == success ? failure{} : copy_error(code);
  }
  static int compare(const T &a, const T &b) { return generic_table_compare(&a, &b); }
};

// The field list of a table, which has entries and nothing else.
template <class T, class Meaning = void> struct table_fields {
  static constexpr std::tuple fields{entries<T, Meaning>{"data", offsetof(T, count)}};
};

template <class T>
concept table_record = requires(const T &table) {
  table.count;
  table.data;
};

// The field list of most tables.
template <table_record T> struct field_list<T> : table_fields<T> {};

// ---- attributes

// A field that the record's comparison passes over; a difference print still shows it.
template <class Kind> struct not_compared : Kind {
  explicit constexpr not_compared(Kind kind) : Kind(kind) {}
  template <class R> static int compare(const R & /*a*/, const R & /*b*/) { return 0; }
  template <class R> static int difference(const R &a, const R &b) { return Kind::compare(a, b); }
};

// A field that no output may show.
template <class Kind> struct secret : Kind {
  using shown_as_secret = void;
  static constexpr bool is_secret = true;
  explicit constexpr secret(Kind kind) : Kind(kind) {}
  template <class Out, class R> static void print(Out &out, const R & /*r*/) { out.text("[SECRET]"); }
};

// ---- lists

// The field of a member whose storage its type tells.
template <auto Member, class Meaning = void> constexpr auto field(const char *name, std::size_t offset) {
  using T = value_of<Member>;
  if constexpr (std::is_same_v<std::remove_extent_t<T>, char>) {
    return bounded_text<Member>{{name, offset}};
  } else if constexpr (std::is_same_v<T, char *>) {
    return owned_text<Member>{{name, offset}};
  } else if constexpr (std::is_array_v<T>) {
    return array<Member, Meaning>{{name, offset}};
  } else if constexpr (std::is_same_v<T, bool>) {
    return scalar<Member, zel::ravix::meaning::flag>{{name, offset}};
  } else if constexpr (std::is_class_v<T>) {
    return nested<Member>{name, offset};
  } else if constexpr (std::is_same_v<T, void *>) {
    return scalar<Member, zel::ravix::meaning::address>{{name, offset}};
  } else if constexpr (std::is_pointer_v<T>) {
    return owned<Member>{{{name, offset}}};
  } else {
    return scalar<Member, std::conditional_t<std::is_void_v<Meaning>, zel::ravix::meaning::number, Meaning>>{
        {name, offset}};
  }
}

// Begins the field list of a record, which its entries call R.
#define RAVIX_FIELD_LIST(RECORD) template <> struct field_list<RECORD> : list_of<RECORD>

// An entry of the field list: the member and, unless its type tells, the meaning of its value.
#define RAVIX_FIELD(MEMBER, ...)                                                                                       \
  zel::ravix::field<&R::MEMBER __VA_OPT__(, zel::ravix::meaning::) __VA_ARGS__>(#MEMBER, offsetof(R, MEMBER))

// An entry whose octets another member counts.
#define RAVIX_COUNTED_OCTETS(LENGTH, OCTETS, REFUSAL)                                                                  \
  zel::ravix::counted_octets<&R::LENGTH, &R::OCTETS> {                                                                 \
    {{#OCTETS, offsetof(R, LENGTH)}}, REFUSAL                                                                          \
  }

} // namespace zel::ravix
