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

class randomness {
public:
  // When tame, numbers and octets are small, so that most enumerated values have names.
  explicit randomness(unsigned seed, bool tame = false) : tame_(tame), engine_(seed) {}
  // Chosen by the octets, as far as they go.
  explicit randomness(std::span<const std::uint8_t> chosen) : tame_(false), engine_(0), chosen_(chosen) {}

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
  template <class T> T number() {
    T value = static_cast<T>(1);
    if (tame_) {
      value = static_cast<T>(value + static_cast<T>(up_to(9)));
    } else {
      bytes(&value, sizeof value);
    }
    return value;
  }
  bool once_in(std::uint32_t n) { return up_to(n - 1) == 0; }

  void bytes(void *memory, std::size_t size) {
    for (std::size_t i = 0; i < size; ++i) {
      static_cast<unsigned char *>(memory)[i] = static_cast<unsigned char>(tame_ ? 1 + up_to(9) : up_to(255));
    }
  }

  std::string word(std::size_t longest) {
    std::string text(up_to(static_cast<std::uint32_t>(longest)), ' ');
    for (char &character : text) {
      character = static_cast<char>('a' + up_to(25));
    }
    return text;
  }

private:
  bool tame_;
  std::mt19937 engine_;
  std::span<const std::uint8_t> chosen_;
};

template <has_record R> void fill(R &r, randomness &random);

// Gives a field a random value. The record is empty, or the field plain.
template <class R, class T, class Text>
void fill(const zel::ravix::scalar<R, T, Text> &field, R &r, randomness &random) {
  if constexpr (std::is_same_v<T, bool>) {
    r.*field.member = random.once_in(2);
  } else if constexpr (std::is_floating_point_v<T>) {
    r.*field.member = static_cast<T>(random.up_to(10000)) / T{8};
  } else if constexpr (std::is_integral_v<T>) {
    r.*field.member = random.template number<T>();
  } else {
    random.bytes(&(r.*field.member), sizeof(T));
  }
}
template <class R, std::size_t N> void fill(const zel::ravix::bytes<R, N> &field, R &r, randomness &random) {
  random.bytes(r.*field.member, N);
}
template <class R, std::size_t N> void fill(const zel::ravix::enum_array<R, N> &field, R &r, randomness &random) {
  random.bytes(r.*field.member, N);
}
template <class R, std::size_t N> void fill(const zel::ravix::bounded_text<R, N> &field, R &r, randomness &random) {
  std::memset(r.*field.member, 0, N);
  const std::string text = random.word(N - 1);
  std::memcpy(r.*field.member, text.data(), text.size());
}
template <class R, std::size_t N> void fill(const zel::ravix::counted_bytes<R, N> &field, R &r, randomness &random) {
  r.*field.length = static_cast<std::uint8_t>(random.up_to(N - 1));
  std::memset(r.*field.octets, 0, N);
  random.bytes(r.*field.octets, r.*field.length);
}
// Secrets begin with a mark that nothing else has, so that it can be looked for in outputs.
inline constexpr char secret_mark[] = "ZZZZ";
inline constexpr std::size_t secret_mark_length = sizeof secret_mark - 1;
template <class R, std::size_t N>
void fill(const zel::ravix::secret<zel::ravix::bounded_text<R, N>> &field, R &r, randomness &random) {
  const std::string text = secret_mark + random.word(N - 1 - secret_mark_length);
  std::memset(r.*field.member, 0, N);
  std::memcpy(r.*field.member, text.data(), text.size());
}
template <class R, std::size_t N>
void fill(const zel::ravix::secret<zel::ravix::counted_bytes<R, N>> &field, R &r, randomness &random) {
  fill(static_cast<const zel::ravix::counted_bytes<R, N> &>(field), r, random);
  r.*field.length = std::max(r.*field.length, static_cast<std::uint8_t>(secret_mark_length));
  std::memcpy(r.*field.octets, secret_mark, secret_mark_length);
}
template <class R, class T> void fill(const zel::ravix::nested<R, T> &field, R &r, randomness &random) {
  fill(r.*field.member, random);
}
template <class R, class T> void fill(const zel::ravix::owned<R, T> &field, R &r, randomness &random) {
  if (!random.once_in(4)) {
    r.*field.member = record<T>::create();
    fill(*(r.*field.member), random);
  }
}
// Never null: a role without it is incomplete.
template <class R, class T> void fill(const zel::ravix::role_config<R, T> &field, R &r, randomness &random) {
  r.*field.member = record<T>::create();
  fill(*(r.*field.member), random);
}
inline void choose_tag(ravix_cfg_auto_update_rule_t &rule, randomness &random) {
  rule.type = 1 + random.up_to(1);
}
inline void choose_tag(ravix_cfg_role_static_t &role, randomness &random) {
  role.op_mode = random.once_in(2) ? RAVIX_ROLE_OPMODE_REPEATER : RAVIX_ROLE_OPMODE_AP_HOTSPOT_OWE;
}
template <class Tag, class Wide, class Other, class R>
void fill(const zel::ravix::tagged<Tag, Wide, Other> &field, R &r, randomness &random) {
  if (Tag::of(r) == zel::ravix::alternative::none) {
    choose_tag(r, random);
  }
  field.use(r, [&](const auto &alternative) { fill(alternative, r, random); });
}
inline char *random_text(randomness &random) {
  return random.once_in(4) ? nullptr : slab_dstrdup(random.word(40).c_str(), "tests", __LINE__);
}
template <class R> void fill(const zel::ravix::owned_text<R> &field, R &r, randomness &random) {
  r.*field.member = random_text(random);
}
template <class R> void fill(const zel::ravix::owned_bytes<R> &field, R &r, randomness &random) {
  if (random.once_in(4)) {
    return;
  }
  r.*field.length = static_cast<std::uint8_t>(1 + random.up_to(254));
  r.*field.octets = static_cast<std::uint8_t *>(slab_dcalloc(1, r.*field.length, "tests", __LINE__));
  random.bytes(r.*field.octets, r.*field.length);
}
template <class E> void fill_element(E &element, randomness &random) {
  if constexpr (has_record<E>) {
    fill(element, random);
  } else if constexpr (std::is_same_v<E, char *>) {
    element = random_text(random);
  } else {
    if constexpr (std::is_integral_v<E>) {
      element = random.template number<E>();
    } else {
      random.bytes(&element, sizeof element);
    }
  }
}
template <class T> void fill_table(T &table, std::uint32_t count, randomness &random) {
  record<T>::init(&table, count);
  for (std::uint32_t i = 0; i < table.count; ++i) {
    fill_element(table.data[i], random);
  }
}
template <class T, class E, class Text>
void fill(const zel::ravix::entries<T, E, Text> & /*field*/, T &table, randomness &random) {
  fill_table(table, random.up_to(3), random);
}

// Makes a random record one that its own rules accept.
template <class R> void settle(R & /*r*/, randomness & /*random*/) {}
inline void settle(ravix_ip_addr_t &address, randomness &random) {
  address.version = static_cast<std::uint8_t>(1 + random.up_to(1));
}

// Fills an empty record.
template <has_record R> void fill(R &r, randomness &random) {
  zel::ravix::for_each_field<R>([&](const auto &field) { fill(field, r, random); });
  settle(r, random);
}

template <has_record R> std::string difference(const R &a, const R &b);

// Tells whether a field is the same in both records without any memory in common.
template <class Kind, class R>
requires(Kind::is_flat) bool alike(const Kind &field, const R &a, const R &b) {
  const auto bytes = [&](const R &r) {
    std::string all;
    field.members(r, [&](const auto &member) { all.append(reinterpret_cast<const char *>(&member), sizeof member); });
    return all;
  };
  return bytes(a) == bytes(b);
}
template <class R, class T>
requires(!zel::ravix::nested<R, T>::is_flat) bool alike(const zel::ravix::nested<R, T> &field, const R &a, const R &b) {
  return difference(a.*field.member, b.*field.member).empty();
}
template <class T> bool alike_pointees(const T *a, const T *b) {
  return a == nullptr || b == nullptr ? a == b : a != b && difference(*a, *b).empty();
}
template <class R, class T> bool alike(const zel::ravix::owned<R, T> &field, const R &a, const R &b) {
  return alike_pointees(a.*field.member, b.*field.member);
}
template <class Tag, class Wide, class Other, class R>
bool alike(const zel::ravix::tagged<Tag, Wide, Other> &field, const R &a, const R &b) {
  // Without a tag there is nothing but storage, which an empty record has empty.
  bool same = std::memcmp(&(a.*field.wide.member), &(b.*field.wide.member), sizeof(a.*field.wide.member)) == 0;
  field.use(a, [&](const auto &alternative) { same = alike(alternative, a, b); });
  return Tag::of(a) == Tag::of(b) && same;
}
inline bool alike_texts(const char *a, const char *b) {
  return a == nullptr || b == nullptr ? a == b : a != b && std::strcmp(a, b) == 0;
}
template <class R> bool alike(const zel::ravix::owned_text<R> &field, const R &a, const R &b) {
  return alike_texts(a.*field.member, b.*field.member);
}
template <class R> bool alike(const zel::ravix::owned_bytes<R> &field, const R &a, const R &b) {
  const std::uint8_t *first = a.*field.octets;
  const std::uint8_t *second = b.*field.octets;
  const std::size_t length = a.*field.length;
  return a.*field.length == b.*field.length &&
         (length == 0 ? first == nullptr && second == nullptr
                      : first != second && std::memcmp(first, second, length) == 0);
}
template <class T, class E, class Text>
bool alike(const zel::ravix::entries<T, E, Text> & /*field*/, const T &a, const T &b) {
  if (a.count != b.count || (a.data == nullptr) != (b.data == nullptr) || (a.data != nullptr && a.data == b.data)) {
    return false;
  }
  for (std::uint32_t i = 0; i < a.count; ++i) {
    if constexpr (has_record<E>) {
      if (!difference(a.data[i], b.data[i]).empty()) {
        return false;
      }
    } else if constexpr (std::is_same_v<E, char *>) {
      if (!alike_texts(a.data[i], b.data[i])) {
        return false;
      }
    } else if (std::memcmp(&a.data[i], &b.data[i], sizeof(E)) != 0) {
      return false;
    }
  }
  return true;
}

// Name of the first field that is not alike; empty for records that are the same and share nothing.
template <has_record R> std::string difference(const R &a, const R &b) {
  std::string name;
  zel::ravix::all_fields<R>([&](const auto &field) {
    if (!alike(field, a, b)) {
      name = field.name;
    }
    return name.empty();
  });
  return name;
}

// A record of its own on the stack: filled at random from a seed, or empty.
template <class R> struct sample {
  R value;

  sample() : value() { record<R>::clear(&value); }
  explicit sample(randomness random) : sample() { fill(value, random); }
  explicit sample(unsigned seed, bool tame = false) : sample(randomness(seed, tame)) {}
  explicit sample(std::span<const std::uint8_t> chosen) : sample(randomness(chosen)) {}
  ~sample() { record<R>::clear(&value); }
  sample(const sample &) = delete;
  sample &operator=(const sample &) = delete;
};

template <class R> std::string name_of() {
  const std::string_view mangled = typeid(R).name(); // the length of the name, and the name
  return std::string(mangled.substr(mangled.find_first_not_of("0123456789")));
}

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
