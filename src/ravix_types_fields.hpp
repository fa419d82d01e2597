// Field lists: what a record consists of, said once, and the record operations that follow from it.
//
// The field list of a record R is `record<R>::fields`, a tuple with one kind object per field in declaration order. A
// kind is a small class that says what its field's empty value is, how it is copied and compared, and what its text is:
//
//   members(r, visit)             calls visit for each structure member that the kind covers
//   clear(r, site)                releases what the field owns, gives it its empty value
//   copyable(src)                 tells whether the value may be copied, memory permitting
//   copy(src, dest, site)         copies into the cleared field; a failure names the message and the result
//   compare(a, b)                 negative, 0 or positive
//   print(out, r)                 the value's text, on one line
//   print_diff(out, r, ref, ...)  the lines of a difference print (defaults to "name: text")
//
// A field whose record owns nothing (is_flat) has besides:
//
//   transfer(src, dest)           copies a copyable value over whatever dest holds
//   settle(src, dest)             the rest of that where dest has the bytes of src already: empties those past the end
//
// A new kind is a new class here or beside the family that needs it, never a case in the operations below.
#pragma once

#include "ravix_types_generic_simple.hpp"
#include "ravix_types_generic_table.hpp"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string_view>
#include <tuple>
#include <type_traits>
#include <utility>

namespace zel::ravix {

// Specialised for each record: `fields` and, by RAVIX_OPERATIONS, the record's exported operations.
template <class R> struct record;

template <class T>
concept has_record = requires {
  record<T>::fields;
};

template <class R>
using field_indices = std::make_index_sequence<std::tuple_size_v<std::remove_cvref_t<decltype(record<R>::fields)>>>;

template <class R, class Visit> constexpr void for_each_field(Visit visit) {
  [&]<std::size_t... i>(std::index_sequence<i...>) {
    (visit(std::get<i>(record<R>::fields)), ...);
  }
  (field_indices<R>{});
}

// All of the fields satisfy the predicate; stops at the first that does not.
template <class R, class Predicate> constexpr bool all_fields(Predicate holds) {
  return [&]<std::size_t... i>(std::index_sequence<i...>) {
    return (holds(std::get<i>(record<R>::fields)) && ...); // GCOVR_EXCL_BR_LINE: most fields cannot fail
  }
  (field_indices<R>{});
}

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

// Whether a record owns nothing and its copy can be done in one pass, and whether it holds a secret.
template <class R> constexpr bool is_flat() {
  return all_fields<R>([](const auto &field) { return field.is_flat; });
}

template <class R> constexpr bool is_secret() {
  return !all_fields<R>([](const auto &field) { return !field.is_secret; });
}

// ---- operations that follow from a field list

template <class R> void clear_fields(R &r, call_site site) {
  for_each_field<R>([&](const auto &field) { field.clear(r, site); });
}

template <class R> bool copyable_fields(const R &src) {
  return all_fields<R>([&](const auto &field) { return field.copyable(src); });
}

template <class R> inline void settle_fields(const R &src, R &dest) {
  for_each_field<R>([&](const auto &field) { field.settle(src, dest); });
}

// A few wide moves instead of one or two for each field.
template <class R> inline void transfer_fields(const R &src, R &dest) {
  dest = src;
  settle_fields(src, dest);
}

template <class R> int compare_fields(const R &a, const R &b) {
  int order = 0;
  all_fields<R>([&](const auto &field) { return (order = field.compare(a, b)) == 0; });
  return order;
}

// Copies the fields into a cleared record, up to the first that fails.
template <class R> failure copy_fields(const R &src, R &dest, call_site site) {
  failure failed;
  all_fields<R>([&](const auto &field) { return !(failed = field.copy(src, dest, site)); });
  return failed;
}

// Null checks of a record's copy; success or -22.
RAVIX_ALIKE int check_copy_arguments(const void *src, const void *dest, call_site site) {
  if (dest == nullptr) [[unlikely]] {
    log_invalid_pointer(site, "dest");
    return invalid_argument;
  }
  if (src == nullptr) [[unlikely]] {
    log_invalid_pointer(site, "src");
    return invalid_argument;
  }
  return success;
}

template <class R> void record_clear(R *obj, call_site site) {
  if (obj != nullptr) {
    clear_fields(*obj, site);
  }
}

// Tells why a copy fails, out of the way of those that succeed.
[[gnu::cold, gnu::noinline]] inline int refuse(call_site site, const char *message) {
  log_error(site, message);
  return invalid_argument;
}

// Values that a record refuses as a whole; success or -22.
template <class R> int check_values(const R &src, call_site site) {
  const char *refusal = nullptr;
  for_each_field<R>([&](const auto &field) {
    if constexpr (requires { field.refusal; }) {
      refusal = field.copyable(src) ? refusal : field.refusal;
    }
  });
  return refusal == nullptr ? success : refuse(site, refusal);
}

// The part of a copy that can fail, into a record that is empty, zero-filled or owns nothing: `dest` ends as a full
// copy or empty.
template <class R> int record_copy_into_empty(const R &src, R &dest, call_site site) {
  if constexpr (is_flat<R>()) {
    if (copyable_fields(src)) [[likely]] {
      transfer_fields(src, dest);
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
    record<R>::clear(&dest);
  }
  return failed.code;
}

template <class R> int record_copy(const R *src, R *dest, call_site site) {
  if (const int code = check_copy_arguments(src, dest, site); code != success) [[unlikely]] {
    return code;
  }
  // Refused values leave `dest` untouched, and that includes a record that is its own copy.
  if (const int code = check_values(*src, site); code != success) [[unlikely]] {
    return code;
  }
  if (src == dest) [[unlikely]] {
    return copyable_fields(*src) ? success : refuse(site, copy_error(invalid_argument).message);
  }
  if constexpr (!is_flat<R>()) {
    record<R>::clear(dest);
  }
  return record<R>::copy_into_empty(src, dest);
}

// One function, without calls from record to record.
template <class R> RAVIX_FLATTEN int record_compare(const R *a, const R *b) {
  if (a == nullptr || b == nullptr) {
    return (a != nullptr) - (b != nullptr);
  }
  return compare_fields(*a, *b);
}

// Records as elements of tables.
template <has_record R> struct element<R> {
  using source = const R;
  static constexpr bool is_plain = false;
  static constexpr bool is_flat = zel::ravix::is_flat<R>();
  static constexpr bool clear_before_release = !is_flat || is_secret<R>();

  static void clear(R *obj) {
    if constexpr (is_flat) {
      clear_fields(*obj, table::source);
    } else {
      record<R>::clear(obj);
    }
  }

  static int copy(const R *src, R *dest) {
    if constexpr (is_flat) {
      if (copyable_fields(*src)) [[likely]] {
        transfer_fields(*src, *dest);
        return success;
      }
    }
    if constexpr (requires { record<R>::add_entry; }) {
      return record<R>::copy(src, dest);
    } else {
      return record<R>::copy_into_empty(src, dest);
    }
  }

  static bool copyable(const R &src) { return copyable_fields(src); }
  static int compare(const R *a, const R *b) { return compare_fields(*a, *b); }
};

// ---- octets in words

// A word of 16 octets, for which 64-bit processors have instructions.
using wide_word [[gnu::vector_size(16)]] = std::uint64_t;

template <class Word> [[gnu::always_inline]] inline bool any_bit(const Word &word) {
  if constexpr (sizeof word == sizeof(wide_word)) {
    return (word[0] | word[1]) != 0;
  } else {
    return word != 0;
  }
}

// Whether any bit is set in any word of N octets, each word being what `word_at` makes of the octets from an offset on.
// The last word overlaps the one before it.
template <std::size_t N, class WordAt> [[gnu::always_inline]] inline bool any_bit_in_words(WordAt word_at) {
  using word = std::conditional_t<
      N >= sizeof(wide_word) && sizeof(std::uintptr_t) == sizeof(std::uint64_t), wide_word,
      std::conditional_t<N >= sizeof(std::uintptr_t), std::uintptr_t,
                         std::conditional_t<N >= sizeof(std::uint32_t), std::uint32_t, std::uint8_t>>>;
  return any_bit([&]<std::size_t... i>(std::index_sequence<i...>) __attribute__((always_inline)) {
    return (word_at(std::min(i * sizeof(word), N - sizeof(word)), word{}) | ...);
  }(std::make_index_sequence<(N + sizeof(word) - 1) / sizeof(word)>{}));
}

template <class Word> [[gnu::always_inline]] inline Word load_word(const void *octets, std::size_t at, Word word) {
  std::memcpy(&word, static_cast<const std::uint8_t *>(octets) + at, sizeof word);
  return word;
}

// Masks of N octets: of all past the first `used`, and of the first `used`.
template <std::size_t N> struct octet_masks {
  static constexpr auto octets = [] {
    std::array<std::uint8_t, 3 * N> zeros_ones_zeros{};
    std::fill_n(zeros_ones_zeros.begin() + N, N, std::uint8_t{UINT8_MAX});
    return zeros_ones_zeros;
  }();
  static const std::uint8_t *past(std::size_t used) { return octets.data() + N - used; }
  static const std::uint8_t *first(std::size_t used) { return octets.data() + 2 * N - used; }
};

// Tells whether the octets from `used` on are 0, as in every record that was a copy before. Reading them in words under
// a mask costs less than writing them: the lengths of SSIDs follow no pattern that a branch or a call could profit
// from.
template <std::size_t N> [[gnu::always_inline]] inline bool rest_is_zero(const std::uint8_t *octets, std::size_t used) {
  const std::uint8_t *rest = octet_masks<N>::past(used);
  return !any_bit_in_words<N>(
      [=](std::size_t at, auto word) { return load_word(octets, at, word) & load_word(rest, at, word); });
}

// Sets an array's octets from `from` to its end `to` to 0. A call: inlined, it becomes a ladder of tests and
// stores that is no faster.
[[gnu::noinline]] inline void empty_octets(void *array, std::size_t from, std::size_t to) {
  std::memset(static_cast<std::uint8_t *>(array) + from, 0, to - from);
}

// The first `used` of N octets, compared as memcmp does. Most are alike, and that takes a few instructions to find out.
template <std::size_t N>
[[gnu::always_inline]] inline int compare_octets(const std::uint8_t *a, const std::uint8_t *b, std::size_t used) {
  const std::uint8_t *counted = octet_masks<N>::first(used);
  const bool differ = any_bit_in_words<N>([=](std::size_t at, auto word) {
    return (load_word(a, at, word) ^ load_word(b, at, word)) & load_word(counted, at, word);
  });
  return differ ? std::memcmp(a, b, used) : 0;
}

template <std::size_t N>
[[gnu::always_inline]] inline int compare_octets(const std::uint8_t *a, const std::uint8_t *b) {
  const bool differ =
      any_bit_in_words<N>([=](std::size_t at, auto word) { return load_word(a, at, word) ^ load_word(b, at, word); });
  return differ ? std::memcmp(a, b, N) : 0;
}

// ---- kinds of field

// Text of a value that is a plain number.
struct decimal_text {};
inline constexpr decimal_text decimal;

template <class Out, class T> void print_value(Out &out, const T &value, decimal_text /*text*/) {
  out.decimal(value);
}

template <class Out, class T, class Argument>
void print_value(Out &out, const T &value, const char *(*text)(Argument)) {
  out.text(text(value));
}

// Kinds of which every value may be copied by assignment; they have no failure.
struct plain_kind {
  static constexpr bool is_flat = true;
  static constexpr bool is_secret = false;
  const char *name;

  template <class R> static bool copyable(const R & /*src*/) { return true; }
  template <class R> static void settle(const R & /*src*/, R & /*dest*/) {}
};

// Copy of a flat field, in terms of its transfer.
template <class Kind, class R> failure transfer_field(const Kind &kind, const R &src, R &dest) {
  kind.transfer(src, dest);
  return {};
}

// The value of a field. Of a flag it is the octet: memory of a caller's may hold any, and to read a bool that is
// neither 0 nor 1 is undefined.
template <class T> auto value_of(const T &field) {
  std::conditional_t<std::is_same_v<T, bool>, std::uint8_t, T> value;
  static_assert(sizeof value == sizeof field);
  std::memcpy(&value, &field, sizeof value);
  return value;
}

// Number, flag set, enumerated value, flag or pointer that is not owned.
template <class R, class T, class Text = decimal_text> struct scalar : plain_kind {
  T R::*member;
  Text text;
  T empty;
  const char *unit;

  constexpr scalar(T R::*field, const char *field_name, Text field_text = {}, T empty_value = {},
                   const char *printed_unit = "")
      : plain_kind{field_name}, member(field), text(field_text), empty(empty_value), unit(printed_unit) {}

  template <class Visit> void members(const R &r, Visit visit) const { visit(r.*member); }
  void clear(R &r, call_site /*site*/) const { r.*member = empty; }
  failure copy(const R &src, R &dest, call_site /*site*/) const { return transfer_field(*this, src, dest); }
  void transfer(const R &src, R &dest) const { std::memcpy(&(dest.*member), &(src.*member), sizeof(T)); }
  int compare(const R &a, const R &b) const {
    const auto left = value_of(a.*member);
    const auto right = value_of(b.*member);
    return left == right ? 0 : (left < right ? -1 : 1);
  }
  template <class Out> void print(Out &out, const R &r) const {
    print_value(out, value_of(r.*member), text);
    out.text(unit);
  }
};
template <class R, class T, class Text = decimal_text, class... More>
scalar(T R::*, const char *, Text = {}, More...) -> scalar<R, T, Text>;

// Octets of fixed number, such as a MAC address.
template <class R, std::size_t N> struct bytes : plain_kind {
  std::uint8_t (R::*member)[N];
  const char *(*text)(const std::uint8_t *);

  constexpr bytes(std::uint8_t (R::*field)[N], const char *field_name, const char *(*field_text)(const std::uint8_t *))
      : plain_kind{field_name}, member(field), text(field_text) {}

  template <class Visit> void members(const R &r, Visit visit) const { visit(r.*member); }
  void clear(R &r, call_site /*site*/) const { std::memset(r.*member, 0, N); }
  failure copy(const R &src, R &dest, call_site /*site*/) const { return transfer_field(*this, src, dest); }
  void transfer(const R &src, R &dest) const { std::memcpy(dest.*member, src.*member, N); }
  int compare(const R &a, const R &b) const { return compare_octets<N>(a.*member, b.*member); }
  template <class Out> void print(Out &out, const R &r) const { out.text(text(r.*member)); }
};

// A count of octets and the octets, in an array one larger than the most that count.
template <class R, std::size_t N> struct counted_bytes : plain_kind {
  std::uint8_t R::*length;
  std::uint8_t (R::*octets)[N];
  const char *refusal; // message when the count exceeds what the array may hold

  constexpr counted_bytes(std::uint8_t R::*length_field, std::uint8_t (R::*octets_field)[N], const char *field_name,
                          const char *refusal_message)
      : plain_kind{field_name}, length(length_field), octets(octets_field), refusal(refusal_message) {}

  template <class Visit> void members(const R &r, Visit visit) const {
    visit(r.*length);
    visit(r.*octets);
  }
  void clear(R &r, call_site /*site*/) const {
    r.*length = 0;
    std::memset(r.*octets, 0, N);
  }
  bool copyable(const R &src) const { return src.*length < N; }
  failure copy(const R &src, R &dest, call_site /*site*/) const { return transfer_field(*this, src, dest); }
  void transfer(const R &src, R &dest) const {
    dest.*length = src.*length;
    std::memcpy(dest.*octets, src.*octets, N);
    settle(src, dest);
  }
  void settle(const R &src, R &dest) const {
    if (!rest_is_zero<N>(src.*octets, src.*length)) [[unlikely]] {
      empty_octets(dest.*octets, src.*length, N);
    }
  }
  int compare(const R &a, const R &b) const {
    if (a.*length != b.*length) {
      return a.*length < b.*length ? -1 : 1;
    }
    return compare_octets<N>(a.*octets, b.*octets, std::min<std::size_t>(a.*length, N));
  }
};

// Zero-terminated text in an array of its own; the copy never fills the last character.
template <class R, std::size_t N> struct bounded_text : plain_kind {
  char (R::*member)[N];

  constexpr bounded_text(char (R::*field)[N], const char *field_name) : plain_kind{field_name}, member(field) {}

  template <class Visit> void members(const R &r, Visit visit) const { visit(r.*member); }
  void clear(R &r, call_site /*site*/) const { std::memset(r.*member, 0, N); }
  failure copy(const R &src, R &dest, call_site /*site*/) const { return transfer_field(*this, src, dest); }
  void transfer(const R &src, R &dest) const {
    std::memcpy(dest.*member, src.*member, N);
    settle(src, dest);
  }
  void settle(const R &src, R &dest) const { empty_octets(dest.*member, std::min(view(src).size(), N - 1), N); }
  int compare(const R &a, const R &b) const { return std::strncmp(a.*member, b.*member, N); }
  template <class Out> void print(Out &out, const R &r) const { out.text(view(r)); }

private:
  // The text up to its terminator, or all of the array if it has none.
  std::string_view view(const R &r) const {
    const char *text = r.*member;
    const void *end = std::memchr(text, '\0', N);
    return {text, end != nullptr ? static_cast<std::size_t>(static_cast<const char *>(end) - text) : N};
  }
};

// Array of enumerated values, all of whose slots count.
template <class R, std::size_t N> struct enum_array : plain_kind {
  std::uint8_t (R::*member)[N];
  const char *(*text)(std::uint32_t);

  constexpr enum_array(std::uint8_t (R::*field)[N], const char *field_name, const char *(*field_text)(std::uint32_t))
      : plain_kind{field_name}, member(field), text(field_text) {}

  template <class Visit> void members(const R &r, Visit visit) const { visit(r.*member); }
  void clear(R &r, call_site /*site*/) const { std::memset(r.*member, 0, N); }
  failure copy(const R &src, R &dest, call_site /*site*/) const { return transfer_field(*this, src, dest); }
  void transfer(const R &src, R &dest) const { std::memcpy(dest.*member, src.*member, N); }
  int compare(const R &a, const R &b) const {
    const int order = compare_octets<N>(a.*member, b.*member);
    return (order > 0) - (order < 0);
  }
  template <class Out> void print(Out &out, const R &r) const {
    const char *separator = "";
    for (const std::uint8_t value : r.*member) {
      out.text(separator);
      out.text(text(value));
      separator = ", ";
    }
  }
};

// Record or table embedded in the record.
template <class R, class T> struct nested {
  static constexpr bool is_flat = zel::ravix::is_flat<T>();
  static constexpr bool is_secret = zel::ravix::is_secret<T>();
  T R::*member;
  const char *name;

  template <class Visit> void members(const R &r, Visit visit) const { visit(r.*member); }
  void clear(R &r, call_site site) const {
    if constexpr (is_flat) {
      clear_fields(r.*member, site);
    } else {
      record<T>::clear(&(r.*member));
    }
  }
  failure copy(const R &src, R &dest, call_site /*site*/) const {
    const int code = element<T>::copy(&(src.*member), &(dest.*member));
    return code == success ? failure{} : copy_error(code);
  }
  bool copyable(const R &src) const { return copyable_fields(src.*member); }
  void transfer(const R &src, R &dest) const { transfer_fields(src.*member, dest.*member); }
  void settle(const R &src, R &dest) const { settle_fields(src.*member, dest.*member); }
  int compare(const R &a, const R &b) const { return compare_fields(a.*member, b.*member); }
  template <class Out> void print(Out &out, const R &r) const { out.value(r.*member); }
  template <class Out> void print_diff(Out &out, const R &r, const R *ref, unsigned indent, bool /*newline*/) const {
    out.diff(r.*member, ref != nullptr ? &(ref->*member) : nullptr, name, indent, true);
  }
};
template <class R, class T> nested(T R::*, const char *) -> nested<R, T>;

// Kinds that own memory.
struct owning_kind {
  static constexpr bool is_flat = false;
  static constexpr bool is_secret = false;
  const char *name;

  template <class R> static bool copyable(const R & /*src*/) { return true; }
};

// Pointer to a record that is owned, or null.
template <class R, class T> struct owned : owning_kind {
  T *R::*member;

  constexpr owned(T *R::*field, const char *field_name) : owning_kind{field_name}, member(field) {}

  template <class Visit> void members(const R &r, Visit visit) const { visit(r.*member); }
  void clear(R &r, call_site /*site*/) const {
    record<T>::free(r.*member);
    r.*member = nullptr;
  }
  bool copyable(const R &src) const { return src.*member == nullptr || copyable_fields(*(src.*member)); }
  failure copy(const R &src, R &dest, call_site /*site*/) const {
    if (src.*member == nullptr) {
      return {};
    }
    dest.*member = record<T>::clone(src.*member);
    return dest.*member != nullptr ? failure{} : copy_error(out_of_memory);
  }
  int compare(const R &a, const R &b) const { return record<T>::compare(a.*member, b.*member); }
  template <class Out> void print_diff(Out &out, const R &r, const R *ref, unsigned indent, bool newline) const {
    out.diff_pointee(r.*member, ref != nullptr, ref != nullptr ? ref->*member : nullptr, name, indent, newline);
  }
};

// Orders two texts, null before any.
inline int compare_texts(const char *a, const char *b) {
  return a == nullptr || b == nullptr ? (a != nullptr) - (b != nullptr) : std::strcmp(a, b);
}

// Zero-terminated text that is owned, or null.
template <class R> struct owned_text : owning_kind {
  char *R::*member;
  int lost_code; // result of a copy for which no memory is left

  constexpr owned_text(char *R::*field, const char *field_name, int lost = out_of_memory)
      : owning_kind{field_name}, member(field), lost_code(lost) {}

  template <class Visit> void members(const R &r, Visit visit) const { visit(r.*member); }
  void clear(R &r, call_site site) const {
    slab_cbcontext_free(r.*member, site.file, site.line);
    r.*member = nullptr;
  }
  failure copy(const R &src, R &dest, call_site site) const {
    if (src.*member == nullptr) {
      return {};
    }
    dest.*member = slab_dstrdup(src.*member, site.file, site.line);
    return dest.*member != nullptr ? failure{} : failure{"No memory available!", lost_code};
  }
  int compare(const R &a, const R &b) const { return compare_texts(a.*member, b.*member); }
  template <class Out> void print(Out &out, const R &r) const { out.text_or_null(r.*member); }
};

// An 8-bit count of octets and the octets, owned; null when the count is 0.
template <class R> struct owned_bytes : owning_kind {
  std::uint8_t R::*length;
  std::uint8_t *R::*octets;

  constexpr owned_bytes(std::uint8_t R::*length_field, std::uint8_t *R::*octets_field, const char *field_name)
      : owning_kind{field_name}, length(length_field), octets(octets_field) {}

  template <class Visit> void members(const R &r, Visit visit) const {
    visit(r.*length);
    visit(r.*octets);
  }
  void clear(R &r, call_site site) const {
    r.*length = 0;
    slab_cbcontext_free(r.*octets, site.file, site.line);
    r.*octets = nullptr;
  }
  failure copy(const R &src, R &dest, call_site site) const {
    const std::size_t used = src.*octets != nullptr ? src.*length : 0; // a count without octets counts nothing
    if (used == 0) {
      return {};
    }
    dest.*octets = static_cast<std::uint8_t *>(slab_dcalloc(1, used, site.file, site.line));
    if (dest.*octets == nullptr) [[unlikely]] {
      return {"No memory available!", out_of_memory};
    }
    dest.*length = src.*length;
    std::memcpy(dest.*octets, src.*octets, used);
    return {};
  }
  // Compares the references, not what they refer to: readers of a difference rely on an element of its own memory
  // counting as changed.
  int compare(const R &a, const R &b) const {
    if (a.*length != b.*length) {
      return a.*length < b.*length ? -1 : 1;
    }
    if (a.*octets == nullptr || b.*octets == nullptr) {
      return (a.*octets != nullptr) - (b.*octets != nullptr);
    }
    return std::memcmp(&(a.*octets), &(b.*octets), std::min<std::size_t>(a.*length, sizeof(a.*octets)));
  }
};

// The count and array of a table. Text is the formatter of plain elements; records have theirs.
template <class T, class E, class Text = decimal_text> struct entries : owning_kind {
  std::uint32_t T::*count;
  E *T::*data;
  Text text;

  constexpr entries(std::uint32_t T::*count_field, E *T::*data_field, Text element_text = {})
      : owning_kind{"data"}, count(count_field), data(data_field), text(element_text) {}

  template <class Visit> void members(const T &t, Visit visit) const {
    visit(t.*count);
    visit(t.*data);
  }
  void clear(T &t, call_site /*site*/) const { generic_table_clear(&t); }
  bool copyable(const T &src) const { return table::copyable(src); }
  failure copy(const T &src, T &dest, call_site site) const {
    const int code = generic_table_copy(&src, &dest, site.file);
    return code == success ? failure{} : copy_error(code);
  }
  int compare(const T &a, const T &b) const { return generic_table_compare(&a, &b); }
};
template <class T, class E, class Text = decimal_text>
entries(std::uint32_t T::*, E *T::*, Text = {}) -> entries<T, E, Text>;

// ---- attributes

// A field that the record's comparison passes over; a difference print still shows it.
template <class Kind> struct not_compared : Kind {
  explicit constexpr not_compared(Kind kind) : Kind(kind) {}
  template <class R> int compare(const R & /*a*/, const R & /*b*/) const { return 0; }
  template <class R> int difference(const R &a, const R &b) const { return Kind::compare(a, b); }
};

// A field that no output may show.
template <class Kind> struct secret : Kind {
  static constexpr bool is_secret = true;
  explicit constexpr secret(Kind kind) : Kind(kind) {}
  template <class Out, class R> void print(Out &out, const R & /*r*/) const { out.text("[SECRET]"); }
};

} // namespace zel::ravix

// ---- exported operations, one line per record

// Name the exported operations of a record or table; they stand in its record<>. A record, not a table, has one
// besides: its copy into a zero-filled or empty record, which speaks in the exported copy's name.
#define RAVIX_OPERATIONS(NAME)                                                                                         \
  static constexpr auto &create = NAME##_create;                                                                       \
  static constexpr auto &clone = NAME##_clone;                                                                         \
  static constexpr auto &copy = NAME##_copy;                                                                           \
  static decltype(NAME##_copy) copy_into_empty;                                                                        \
  static constexpr auto &clear = NAME##_clear;                                                                         \
  static constexpr auto &free = NAME##_free;
#define RAVIX_COMPARED_OPERATIONS(NAME)                                                                                \
  RAVIX_OPERATIONS(NAME)                                                                                               \
  static constexpr auto &compare = NAME##_compare;
#define RAVIX_TABLE_OPERATIONS(NAME)                                                                                   \
  RAVIX_OPERATIONS(NAME)                                                                                               \
  static constexpr auto &init = NAME##_init;                                                                           \
  static constexpr auto &add_entry = NAME##_add_entry;
#define RAVIX_COMPARED_TABLE_OPERATIONS(NAME)                                                                          \
  RAVIX_TABLE_OPERATIONS(NAME)                                                                                         \
  static constexpr auto &contains_entry = NAME##_contains_entry;                                                       \
  static constexpr auto &compare = NAME##_compare;

// The macros below define exported operations in a family's source; `here` is that source's path. Functions, not
// templates, so that their names and lines are the ones in log lines.

// What is alike for every record, whatever its copy and clear do.
#define RAVIX_RECORD_FRAME(NAME, T)                                                                                    \
  T *NAME##_create(void) {                                                                                             \
    return zel::ravix::generic_create<T>(NAME##_clear, here);                                                          \
  }                                                                                                                    \
  T *NAME##_clone(const T *old_obj) {                                                                                  \
    return zel::ravix::generic_clone<T>(old_obj, zel::ravix::record<T>::copy_into_empty, NAME##_free, here);           \
  }                                                                                                                    \
  void NAME##_free(T *obj) {                                                                                           \
    zel::ravix::generic_free<T>(obj, NAME##_clear);                                                                    \
  }
#define RAVIX_RECORD_CLEAR(NAME, T)                                                                                    \
  RAVIX_FLATTEN void NAME##_clear(T *obj) {                                                                            \
    zel::ravix::record_clear(obj, here);                                                                               \
  }
#define RAVIX_RECORD_COPY(NAME, T)                                                                                     \
  int NAME##_copy(const T *src, T *dest) {                                                                             \
    return zel::ravix::record_copy(src, dest, here);                                                                   \
  }                                                                                                                    \
  RAVIX_FLATTEN int zel::ravix::record<T>::copy_into_empty(const T *src, T *dest) {                                    \
    return record_copy_into_empty(*src, *dest, {here, #NAME "_copy"});                                                 \
  }
#define RAVIX_RECORD_COMPARE(NAME, T)                                                                                  \
  int NAME##_compare(const T *a, const T *b) {                                                                         \
    return zel::ravix::record_compare(a, b);                                                                           \
  }

// A record without and with comparison.
#define RAVIX_RECORD(NAME, T) RAVIX_RECORD_FRAME(NAME, T) RAVIX_RECORD_CLEAR(NAME, T) RAVIX_RECORD_COPY(NAME, T)
#define RAVIX_COMPARED_RECORD(NAME, T)                                                                                 \
  RAVIX_RECORD(NAME, T)                                                                                                \
  RAVIX_RECORD_COMPARE(NAME, T)

// What is alike for every table.
#define RAVIX_TABLE_FRAME(NAME, T)                                                                                     \
  int NAME##_init(T *table, unsigned count) {                                                                          \
    return zel::ravix::generic_table_init(table, count, here);                                                         \
  }                                                                                                                    \
  T *NAME##_create(unsigned count) {                                                                                   \
    return zel::ravix::generic_table_create<T>(count, here);                                                           \
  }                                                                                                                    \
  T *NAME##_clone(const T *old_obj) {                                                                                  \
    return zel::ravix::generic_clone<T>(old_obj, NAME##_copy, NAME##_free, here);                                      \
  }                                                                                                                    \
  void NAME##_free(T *table) {                                                                                         \
    zel::ravix::generic_free<T>(table, NAME##_clear);                                                                  \
  }                                                                                                                    \
  int NAME##_add_entry(T *table, zel::ravix::entry_of<T> *entry) {                                                     \
    return zel::ravix::generic_table_add_entry(table, entry, here);                                                    \
  }

// A table without and with comparison and search.
#define RAVIX_TABLE(NAME, T)                                                                                           \
  RAVIX_TABLE_FRAME(NAME, T)                                                                                           \
  void NAME##_clear(T *table) {                                                                                        \
    zel::ravix::generic_table_clear(table);                                                                            \
  }                                                                                                                    \
  int NAME##_copy(const T *src, T *dest) {                                                                             \
    return zel::ravix::generic_table_copy(src, dest, here);                                                            \
  }
#define RAVIX_COMPARED_TABLE(NAME, T)                                                                                  \
  RAVIX_TABLE(NAME, T)                                                                                                 \
  bool NAME##_contains_entry(const T *table, zel::ravix::entry_of<T> *entry) {                                         \
    return zel::ravix::generic_table_contains_entry(table, entry, here);                                               \
  }                                                                                                                    \
  int NAME##_compare(const T *a, const T *b) {                                                                         \
    return zel::ravix::generic_table_compare(a, b);                                                                    \
  }
