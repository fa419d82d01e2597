// Records at random, and what it means that two are alike, by way of their field lists.
#pragma once

#include "all_records.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <random>
#include <span>
#include <string>
#include <string_view>
#include <type_traits>
#include <typeinfo>

namespace harness {

using zel::ravix::has_record;
using zel::ravix::record;

// What random records are like: some of what may be absent is; nothing is; they break every rule that a caller can
// break without a bad pointer (lengths beyond the capacity, texts without end, counts without an array); or their
// numbers and octets are small, so that most enumerated values have names.
enum class variety { usual, full, hostile, tame };

class randomness {
public:
  explicit randomness(unsigned seed, variety kind = variety::usual)
      : hostile(kind == variety::hostile), tame_(kind == variety::tame), full_(kind == variety::full), engine_(seed) {}
  // Chosen by the octets, as far as they go.
  explicit randomness(std::span<const std::uint8_t> chosen, variety kind = variety::usual) : randomness(0, kind) {
    chosen_ = chosen;
  }

  // From 0 to `most`, the same on every platform.
  [[gnu::noinline]] std::uint32_t up_to(std::uint32_t most) { // inlined, it leads g++ 12 to a warning without reason
    std::uint64_t next = 0;
    if (chosen_.empty()) {
      next = engine_();
    } else {
      next = chosen_.front();
      chosen_ = chosen_.subspan(1);
    }
    return static_cast<std::uint32_t>(next % (most + std::uint64_t{1}));
  }
  // Whether an optional thing is left out, and how many there are of something.
  bool absent() { return up_to(3) == 0 && !full_; }
  std::uint32_t some(std::uint32_t most) { return full_ ? 1 + up_to(most - 1) : up_to(most); }

  void bytes(void *memory, std::size_t size) {
    for (std::size_t i = 0; i < size; ++i) {
      static_cast<unsigned char *>(memory)[i] = static_cast<unsigned char>(tame_ ? 1 + up_to(9) : up_to(255));
    }
  }
  template <class T> T number() {
    T value = 0;
    if (tame_) {
      value = static_cast<T>(1 + up_to(9));
    } else {
      bytes(&value, sizeof value);
    }
    return value;
  }
  void word(char *to, std::size_t longest) {
    for (std::size_t i = some(static_cast<std::uint32_t>(longest)); i > 0; --i) {
      *to++ = static_cast<char>('a' + up_to(25));
    }
  }

  const bool hostile;

private:
  bool tame_;
  bool full_;
  std::mt19937 engine_;
  std::span<const std::uint8_t> chosen_;
};

template <has_record R> void fill(R &r, randomness &random);

inline char *random_text(randomness &random) {
  char text[41] = "";
  random.word(text, 40);
  return random.absent() ? nullptr : slab_dstrdup(text, "tests", __LINE__);
}

// A random value: of a record, of what it consists of, or of a table's element. It is empty or owns nothing.
template <class T> void fill_value(T &value, randomness &random) {
  if constexpr (has_record<T>) {
    fill(value, random);
  } else if constexpr (std::is_same_v<T, char *>) {
    value = random_text(random);
  } else if constexpr (std::is_same_v<T, bool>) {
    value = random.up_to(1) == 1;
  } else if constexpr (std::is_same_v<T, float>) {
    value = static_cast<float>(random.up_to(10000)) / 8;
  } else if constexpr (std::is_pointer_v<T> && has_record<std::remove_pointer_t<T>>) {
    if (!random.absent()) {
      value = record<std::remove_pointer_t<T>>::create();
      fill(*value, random);
    }
  } else if constexpr (std::is_integral_v<T>) {
    value = random.template number<T>();
  } else {
    random.bytes(&value, sizeof value);
  }
}

// A random value of a field, by default of each of its members.
template <class Kind, class R> void fill(const Kind &field, R &r, randomness &random) {
  field.members(
      r, [&](const auto &member) { fill_value(const_cast<std::remove_cvref_t<decltype(member)> &>(member), random); });
}
template <class R, std::size_t N> void fill(const zel::ravix::bounded_text<R, N> &field, R &r, randomness &random) {
  std::memset(r.*field.member, random.hostile ? 'x' : 0, N);
  random.word(r.*field.member, N - 1);
}
template <class R, std::size_t N> void fill(const zel::ravix::counted_bytes<R, N> &field, R &r, randomness &random) {
  const std::uint32_t length = random.up_to(N - 1);
  std::memset(r.*field.octets, 0, N);
  random.bytes(r.*field.octets, length);
  r.*field.length = static_cast<std::uint8_t>(length + (random.hostile ? N : 0));
}
// Secrets begin with a mark that nothing else has, so that it can be looked for in outputs.
inline constexpr char secret_mark[] = "ZZZZ";
inline constexpr std::size_t secret_mark_length = sizeof secret_mark - 1;
template <class R, std::size_t N>
void fill(const zel::ravix::secret<zel::ravix::bounded_text<R, N>> &field, R &r, randomness &random) {
  std::memset(r.*field.member, random.hostile ? 'x' : 0, N);
  std::memcpy(r.*field.member, secret_mark, secret_mark_length);
  random.word(&(r.*field.member)[secret_mark_length], N - 1 - secret_mark_length);
}
template <class R, std::size_t N>
void fill(const zel::ravix::secret<zel::ravix::counted_bytes<R, N>> &field, R &r, randomness &random) {
  fill(static_cast<const zel::ravix::counted_bytes<R, N> &>(field), r, random);
  r.*field.length = std::max(r.*field.length, static_cast<std::uint8_t>(secret_mark_length));
  std::memcpy(r.*field.octets, secret_mark, secret_mark_length);
}
template <class R> void fill(const zel::ravix::owned_bytes<R> &field, R &r, randomness &random) {
  r.*field.length = static_cast<std::uint8_t>(random.some(255));
  if (r.*field.length != 0 && !random.hostile) {
    r.*field.octets = static_cast<std::uint8_t *>(slab_dcalloc(1, r.*field.length, "tests", __LINE__));
    random.bytes(r.*field.octets, r.*field.length);
  }
}
template <class T> void fill_table(T &table, std::uint32_t count, randomness &random) {
  record<T>::init(&table, count);
  for (std::uint32_t i = 0; i < table.count; ++i) {
    fill_value(table.data[i], random);
  }
}
template <class T, class E, class Text>
void fill(const zel::ravix::entries<T, E, Text> & /*field*/, T &table, randomness &random) {
  if (random.hostile && random.absent()) {
    table.count = random.up_to(UINT32_MAX);
    return;
  }
  fill_table(table, random.some(3), random);
}
template <class R, class T> void fill(const zel::ravix::role_config<R, T> &field, R &r, randomness &random) {
  do {
    fill_value(r.*field.member, random);
  } while (r.*field.member == nullptr && !random.hostile); // a role without it is refused
}
inline void choose(ravix_cfg_auto_update_rule_t &rule, randomness &random) {
  rule.type = 1 + random.up_to(1);
}
inline void choose(ravix_cfg_role_static_t &role, randomness &random) {
  role.op_mode = static_cast<std::uint8_t>(random.up_to(UINT8_MAX));
}
template <class Tag, class Wide, class Other>
void fill(const zel::ravix::tagged<Tag, Wide, Other> &field, typename Tag::record_type &r, randomness &random) {
  using zel::ravix::alternative;
  while (Tag::of(r) == alternative::none && !random.hostile) {
    choose(r, random);
  }
  if (Tag::of(r) != alternative::none) {
    Tag::of(r) == alternative::wide ? fill(field.wide, r, random) : fill(field.other, r, random);
  }
}

// An attribute of a kind is filled as the kind.
template <template <class> class Attribute, class Kind, class R>
requires(std::is_base_of_v<Kind, Attribute<Kind>>) void fill(const Attribute<Kind> &field, R &r, randomness &random) {
  fill(static_cast<const Kind &>(field), r, random);
}

// Fills an empty record with what its own rules accept.
template <has_record R> void fill(R &r, randomness &random) {
  zel::ravix::for_each_field<R>([&](const auto &field) { fill(field, r, random); });
  if constexpr (std::is_same_v<R, ravix_ip_addr_t>) {
    r.version = static_cast<std::uint8_t>(random.hostile ? 77 : 1 + random.up_to(1));
  }
}

template <has_record R> std::string difference(const R &a, const R &b);

// Tells whether two values are the same without any memory in common.
template <class T> bool alike_values(const T &a, const T &b) {
  if constexpr (has_record<T>) {
    return difference(a, b).empty();
  } else if constexpr (std::is_same_v<T, char *>) {
    return a == nullptr || b == nullptr ? a == b : a != b && std::strcmp(a, b) == 0;
  } else if constexpr (std::is_pointer_v<T> && has_record<std::remove_pointer_t<T>>) {
    return a == nullptr || b == nullptr ? a == b : a != b && alike_values(*a, *b);
  } else {
    return std::memcmp(&a, &b, sizeof a) == 0;
  }
}

// Tells the same of a field, by default member by member.
template <class Kind, class R> bool alike(const Kind &field, const R &a, const R &b) {
  bool same = true;
  field.members(a, [&](const auto &member) {
    const auto offset = reinterpret_cast<const char *>(&member) - reinterpret_cast<const char *>(&a);
    const auto *other = reinterpret_cast<const char *>(&b) + offset;
    same = same && alike_values(member, *reinterpret_cast<decltype(&member)>(other));
  });
  return same;
}
// Two arrays of that many elements each.
template <class E> bool alike_arrays(const E *a, std::size_t count_a, const E *b, std::size_t count_b) {
  bool same = count_a == count_b && (a == nullptr) == (b == nullptr) && (a == nullptr || a != b);
  for (std::size_t i = 0; same && a != nullptr && i < count_a; ++i) {
    same = alike_values(a[i], b[i]);
  }
  return same;
}
template <class R> bool alike(const zel::ravix::owned_bytes<R> &field, const R &a, const R &b) {
  return alike_arrays(a.*field.octets, a.*field.length, b.*field.octets, b.*field.length);
}
template <class T, class E, class Text>
bool alike(const zel::ravix::entries<T, E, Text> & /*field*/, const T &a, const T &b) {
  return alike_arrays(a.data, a.count, b.data, b.count);
}
template <class Tag, class Wide, class Other>
bool alike(const zel::ravix::tagged<Tag, Wide, Other> &field, const typename Tag::record_type &a,
           const typename Tag::record_type &b) {
  return Tag::of(a) == zel::ravix::alternative::other ? alike(field.other, a, b) : alike(field.wide, a, b);
}

// Name of the first field that is not alike; empty for records that are the same and share nothing.
template <has_record R> std::string difference(const R &a, const R &b) {
  std::string name;
  zel::ravix::all_fields<R>([&](const auto &field) {
    name = alike(field, a, b) ? "" : field.name;
    return name.empty();
  });
  return name;
}

// A record of its own on the stack, empty or filled at random, and cleared at the end.
template <has_record R> struct sample {
  R value{};

  sample() { record<R>::clear(&value); }
  explicit sample(randomness random) : sample() { fill(value, random); }
  explicit sample(unsigned seed, variety kind = variety::usual) : sample(randomness(seed, kind)) {}
  explicit sample(std::span<const std::uint8_t> chosen) : sample(randomness(chosen)) {}
  ~sample() { record<R>::clear(&value); }
  sample(const sample &) = delete;
  sample &operator=(const sample &) = delete;
};

template <class R> std::string name_of() {
  const std::string_view mangled = typeid(R).name(); // the length of the name, and the name
  return std::string(mangled.substr(mangled.find_first_not_of("0123456789")));
}

// Runs a check for every record type.
template <class... R, class Check> void for_all(type_list<R...> /*records*/, Check check) {
  const auto run = [&]<class T>(T * /*type*/) {
    SCOPED_TRACE(typeid(T).name());
    check.template operator()<T>();
  };
  (run(static_cast<R *>(nullptr)), ...);
}
template <class Check> void for_all_records(Check check) {
  for_all(all_records{}, check);
}

} // namespace harness
