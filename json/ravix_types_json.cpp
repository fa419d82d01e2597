// The exported functions, and what a record's field list says about its JSON: a row per field, that names the function
// which all fields of its storage and meaning share.
#include "ravix_types_json.h"

#include "json_writer.hpp"
#include "ravix_types_all_fields.hpp"

#include <algorithm>
#include <bit>
#include <string_view>
#include <type_traits>

namespace zel::ravix::json {

namespace {

// Octets as characters.
std::string_view characters(const std::uint8_t *octets, std::size_t count) {
  return {reinterpret_cast<const char *>(octets), count};
}

// ---- records that are one value

void put_record(writer &out, const ravix_ip_addr_t &address) {
  if (address.version == RAVIX_IP_VERSION_4 || address.version == RAVIX_IP_VERSION_6) {
    out.text(ravix_str_ip_addr(&address));
  } else {
    out.null();
  }
}
void put_record(writer &out, const ravix_ssid_t &ssid) {
  out.octets(characters(ssid.ssid, std::min<std::size_t>(ssid.len, RAVIX_MAX_SSID_LEN)));
}
void put_record(writer &out, const ravix_tlv_t &element) {
  out.element(element.type, characters(element.value, element.value != nullptr ? element.len : 0));
}

void write_secret(writer &out, const void * /*at*/) {
  out.text("[SECRET]");
}
void put_record(writer &out, const ravix_key_t & /*key*/) {
  write_secret(out, nullptr);
}

template <class R>
concept value_record = requires(writer &out, const R &r) {
  put_record(out, r);
};
template <class R>
concept bare_table = table_record<R> && field_count<R>
== 1;
template <class R>
concept object_record = !value_record<R> && !bare_table<R>;

// ---- what is at an address

// Meanings by what they make of a value, so that fields which differ in their unit alone share a function.
template <class Meaning> auto plain_meaning() {
  if constexpr (Meaning::kind == value_kind::bits || (Meaning::kind == value_kind::number && !Meaning::empty_is_none)) {
    return meaning::number{};
  } else {
    return Meaning{};
  }
}

template <class Meaning, class T> void put_value(writer &out, T value) {
  if constexpr (Meaning::empty_is_none) {
    if (value == static_cast<T>(Meaning::empty)) {
      out.null();
      return;
    }
  }
  if constexpr (Meaning::kind == value_kind::flag) {
    out.boolean(value != 0);
  } else if constexpr (Meaning::kind == value_kind::flags) {
    using Mask = typename std::remove_cvref_t<decltype(Meaning::names)>::Value;
    static_assert(std::all_of(Meaning::names.values.begin(), Meaning::names.values.end(), std::has_single_bit<Mask>));
    out.flags(name_list<Mask>(Meaning::names), Mask{value});
  } else if constexpr (std::is_same_v<Meaning, meaning::status>) {
    out.name_or_number(Meaning::names, static_cast<std::int32_t>(value)); // some records carry its bits only
  } else if constexpr (Meaning::kind == value_kind::name || Meaning::kind == value_kind::identifier) {
    out.name_or_number(Meaning::names, value);
  } else if constexpr (std::is_pointer_v<T>) {
    out.address(value);
  } else {
    out.number(value);
  }
}

template <class T, class Meaning> void write_scalar(writer &out, const void *at) {
  T value;
  std::memcpy(&value, at, sizeof value);
  put_value<Meaning>(out, value);
}

template <class Meaning> void write_octets(writer &out, const void *at) {
  Meaning::print(out, static_cast<const std::uint8_t *>(at));
}

template <std::size_t Count, class Meaning> void write_values(writer &out, const void *at) {
  out.array(at, Count, 1, write_scalar<std::uint8_t, Meaning>);
}

template <std::size_t Size> void write_bounded_text(writer &out, const void *at) {
  const auto *text = static_cast<const char *>(at);
  out.octets({text, strnlen(text, Size)});
}

void write_owned_text(writer &out, const void *at) {
  const char *text = *static_cast<const char *const *>(at);
  if (text == nullptr) {
    out.null();
  } else {
    out.octets(text);
  }
}

template <class R> void write_record(writer &out, const void *at);
template <class R> void diff_record(writer &out, const void *at, const void *reference);

template <class R> void write_owned(writer &out, const void *at) {
  if (const R *record = *static_cast<const R *const *>(at); record != nullptr) {
    write_record<R>(out, record);
  } else {
    out.null();
  }
}

template <class R> void diff_owned(writer &out, const void *at, const void *reference) {
  const R *record = *static_cast<const R *const *>(at);
  const R *former = *static_cast<const R *const *>(reference);
  if (record != nullptr && former != nullptr) {
    diff_record<R>(out, record, former);
  } else {
    write_owned<R>(out, at);
  }
}

template <class E, class Meaning> constexpr write_function write_of_element() {
  if constexpr (has_fields<E>) {
    return write_record<E>;
  } else if constexpr (std::is_same_v<E, char *>) {
    return write_owned_text;
  } else if constexpr (Meaning::kind == value_kind::octets) {
    return write_octets<Meaning>;
  } else {
    return write_scalar<E, decltype(plain_meaning<Meaning>())>;
  }
}

// At the address of its count.
template <class T, class Meaning> void write_entries(writer &out, const void *at) {
  const T &table = *reinterpret_cast<const T *>(static_cast<const char *>(at) - offsetof(T, count));
  out.array(table.data, table::elements(table), sizeof(element_of<T>), write_of_element<element_of<T>, Meaning>());
}

// ---- kinds of field

// How a field's value is written, and what differs in it; null where it stands whole in a difference.
struct field_functions {
  write_function write;
  diff_function diff = nullptr;
};

// Records that have differences of their own.
template <class R>
concept compared_object = object_record<R> && requires {
  operations<R>::compare;
};

template <auto Member, class Meaning>
constexpr field_functions functions_of(const scalar<Member, Meaning> & /*field*/) {
  return {write_scalar<typename scalar<Member, Meaning>::value, decltype(plain_meaning<Meaning>())>};
}
template <auto Member, class Meaning> constexpr field_functions functions_of(const array<Member, Meaning> & /*field*/) {
  if constexpr (Meaning::kind == value_kind::octets) {
    return {write_octets<Meaning>};
  } else {
    return {write_values<array<Member, Meaning>::size, Meaning>};
  }
}
template <auto Member> constexpr field_functions functions_of(const bounded_text<Member> & /*field*/) {
  return {write_bounded_text<bounded_text<Member>::size>};
}
template <auto Member> constexpr field_functions functions_of(const owned_text<Member> & /*field*/) {
  return {write_owned_text};
}
template <auto Member> constexpr field_functions functions_of(const nested<Member> & /*field*/) {
  using T = typename nested<Member>::T;
  if constexpr (compared_object<T>) {
    return {write_record<T>, diff_record<T>};
  } else {
    return {write_record<T>};
  }
}
template <auto Member> constexpr field_functions functions_of(const owned<Member> & /*field*/) {
  using T = typename owned<Member>::T;
  if constexpr (compared_object<T>) {
    return {write_owned<T>, diff_owned<T>};
  } else {
    return {write_owned<T>};
  }
}
template <class T, class Meaning> constexpr field_functions functions_of(const entries<T, Meaning> & /*field*/) {
  return {write_entries<T, Meaning>};
}
template <class Kind> constexpr field_functions functions_of(const secret<Kind> & /*field*/) {
  return {write_secret};
}

// A record that is part of another has been compiled for its own comparison already.
template <auto Member, class R> bool differs(const nested<Member> & /*field*/, const R &r, const R &reference) {
  return operations<value_of<Member>>::compare(&(r.*Member), &(reference.*Member)) != 0;
}
template <class Kind, class R> bool differs(const Kind &field, const R &r, const R &reference) {
  if constexpr (requires { field.difference(r, reference); }) {
    return field.difference(r, reference) != 0;
  } else {
    return field.compare(r, reference) != 0;
  }
}

// ---- records

// Calls visit(field, is_present) for each field, and for both of those that share their storage; is_present(r) tells
// whether the record has the field at present.
template <class R> constexpr void for_each_member(auto visit) {
  for_each_field<R>([&](const auto &field) {
    if constexpr (requires { field.first; }) {
      visit(field.first, [&](const R &r) { return field.which(r) == 1; });
      visit(field.second, [&](const R &r) { return field.which(r) == 2; });
    } else {
      visit(field, [](const R & /*r*/) { return true; });
    }
  });
}

struct sizes {
  std::size_t members = 0, keys = 0;
  bool is_tagged = false;
};
template <class R> constexpr sizes sizes_of() {
  sizes sum;
  for_each_member<R>([&](const auto &field, auto /*is_present*/) {
    ++sum.members;
    sum.keys += std::string_view(field.name).size() + 3;
  });
  sum.is_tagged = sum.members != field_count<R>;
  return sum;
}

// The keys of a record, each as "name":
template <class R> constexpr auto keys_of() {
  std::array<char, sizes_of<R>().keys + key_block> text{};
  auto *at = text.begin();
  for_each_member<R>([&](const auto &field, auto /*is_present*/) {
    const std::string_view name = field.name;
    *at++ = '"';
    at = std::copy(name.begin(), name.end(), at);
    *at++ = '"';
    *at++ = ':';
  });
  return text;
}
template <class R> inline constexpr auto keys = keys_of<R>();

template <class R> constexpr auto rows_of() {
  std::array<member_row, sizes_of<R>().members> rows{};
  auto *row = rows.begin();
  for_each_member<R>([&](const auto &field, auto /*is_present*/) {
    const std::size_t length = std::string_view(field.name).size() + 3;
    const field_functions functions = functions_of(field);
    *row++ = {functions.write, functions.diff, static_cast<std::uint16_t>(field.offset),
              static_cast<std::uint8_t>(length)};
  });
  return rows;
}
template <class R> inline constexpr auto rows = rows_of<R>();

// Of which members something holds.
template <class R> member_set members_that(auto holds) {
  member_set found = 0;
  member_set bit = 1;
  for_each_member<R>([&](const auto &field, auto is_present) {
    found |= holds(field, is_present) ? bit : 0; // GCOVR_EXCL_BR_LINE: most fields are always there
    bit <<= 1;
  });
  return found;
}

template <class R> member_set present(const void *at) {
  const R &r = *static_cast<const R *>(at);
  return members_that<R>([&](const auto & /*field*/, auto is_present) { return is_present(r); });
}

// Of two that share their storage only what both records have is compared.
template <class R> member_set differing(const void *at, const void *reference) {
  const R &r = *static_cast<const R *>(at);
  const R &former = *static_cast<const R *>(reference);
  return members_that<R>([&](const auto &field, auto is_present) {
    return is_present(r) && is_present(former) && differs(field, r, former); // GCOVR_EXCL_BR_LINE: the same
  });
}

template <class R> constexpr object_shape shape_of() {
  constexpr sizes all = sizes_of<R>();
  static_assert(all.members <= 8 * sizeof(member_set));
  static_assert(
      std::all_of(rows<R>.begin(), rows<R>.end(), [](const member_row &row) { return row.key_length <= key_block; }));
  object_shape shape{rows<R>.data(), all.members, keys<R>.data(), nullptr, nullptr};
  if constexpr (all.is_tagged) {
    shape.present = present<R>;
  }
  if constexpr (compared_object<R>) {
    shape.differing = differing<R>;
  }
  return shape;
}
template <class R> inline constexpr object_shape shape = shape_of<R>();

template <class R> void write_record(writer &out, const void *at) {
  if constexpr (value_record<R>) {
    put_record(out, *static_cast<const R *>(at));
  } else if constexpr (bare_table<R>) {
    functions_of(std::get<0>(field_list<R>::fields)).write(out, at);
  } else {
    out.object(shape<R>, at);
  }
}

// Of records that are not equal.
template <class R> void diff_record(writer &out, const void *at, const void *reference) {
  out.differences(shape<R>, at, reference);
}

// ---- calls

constexpr const char *here = "json/ravix_types_json";

bool are_given(const void *record, const char *name, ravix_json_write_t write, call_site site) {
  return zel::ravix::are_given(record, name, reinterpret_cast<const void *>(write), "write", site);
}

// The two below are not taken into all those that call them.
[[gnu::noinline]] int to_json(const void *obj, write_function record, ravix_json_write_t write, void *context,
                              call_site site) {
  if (!are_given(obj, "obj", write, site)) {
    return invalid_argument;
  }
  writer out(write, context);
  record(out, obj);
  return out.finish();
}

template <class R> void write_difference(writer &out, const void *value, const void *reference) {
  if (operations<R>::compare(static_cast<const R *>(value), static_cast<const R *>(reference)) == 0) {
    out.nothing();
  } else if constexpr (object_record<R>) {
    diff_record<R>(out, value, reference);
  } else {
    write_record<R>(out, value);
  }
}

[[gnu::noinline]] int diff_to_json(const void *value, const void *reference, diff_function record,
                                   ravix_json_write_t write, void *context, call_site site) {
  if (!zel::ravix::are_given(value, "value", reference, "reference", site) ||
      !are_given(reference, "reference", write, site)) {
    return invalid_argument;
  }
  writer out(write, context);
  record(out, value, reference);
  return out.finish();
}

} // namespace

} // namespace zel::ravix::json

#define RAVIX_JSON_uncompared(NAME, TYPE)
#define RAVIX_JSON_compared(NAME, TYPE)                                                                                \
  int NAME##_diff_to_json(const TYPE *value, const TYPE *reference, ravix_json_write_t write, void *context) {         \
    using namespace zel::ravix::json;                                                                                  \
    return diff_to_json(value, reference, write_difference<TYPE>, write, context, here);                               \
  }
#define RAVIX_RECORD(NAME, TYPE, SHAPE, COMPARED, PRINTED)                                                             \
  int NAME##_to_json(const TYPE *obj, ravix_json_write_t write, void *context) {                                       \
    using namespace zel::ravix::json;                                                                                  \
    return to_json(obj, write_record<TYPE>, write, context, here);                                                     \
  }                                                                                                                    \
  RAVIX_JSON_##COMPARED(NAME, TYPE)
#include "ravix_types_records.def"
