// Records of any type at run time: their operations and fields in tables, records at random, what it means that two are
// alike, and what must hold of every operation.
#pragma once

#include "harness.hpp"
#include "ravix_types_all_fields.hpp"

#include <gtest/gtest.h>

#include <cstddef>
#include <cstdint>
#include <functional>
#include <iosfwd>
#include <memory>
#include <random>
#include <span>
#include <string>
#include <typeinfo>
#include <vector>

namespace harness {

// What random records are like: some of what may be absent is; nothing is; or they break every rule that a caller can
// break without a bad pointer (lengths beyond the capacity, texts without end, counts without an array).
enum class variety { usual, full, hostile };

class randomness {
public:
  explicit randomness(unsigned seed, variety of = variety::usual) : kind(of), engine_(scattered(seed)) {}
  // Chosen by the octets, as far as they go.
  explicit randomness(std::span<const std::uint8_t> chosen, variety of = variety::usual) : kind(of), chosen_(chosen) {}
  // The same as of the seed for that many choices, and different from there on.
  randomness(unsigned seed, std::size_t same) : randomness(seed) { same_ = same; }

  std::uint32_t up_to(std::uint32_t most); // from 0 to `most`, the same on every platform
  // Whether an optional thing is left out, and how many there are of something.
  bool absent() { return up_to(3) == 0 && kind != variety::full; }
  std::uint32_t some(std::uint32_t most) { return kind == variety::full ? 1 + up_to(most - 1) : up_to(most); }
  void bytes(void *memory, std::size_t size);
  void word(char *to, std::size_t longest);
  std::size_t choices() const { return choices_; } // made so far

  const variety kind;

private:
  static std::uint32_t scattered(std::size_t seed) { return static_cast<std::uint32_t>((seed + 1) * 2654435761U); }

  std::independent_bits_engine<std::minstd_rand, 32, std::uint32_t> engine_; // copied often, so small
  std::span<const std::uint8_t> chosen_;
  std::size_t choices_ = 0, same_ = SIZE_MAX;
};

struct field_type {
  const char *name;
  std::size_t begin, end; // its octets in the record, and the padding behind them
  bool is_compared;
  const void *kind; // from the field list
  int (*order)(const void *kind, const void *a, const void *b, bool strictly);

  // Negative, 0 or positive. Strictly, values differ too if they share memory, or in what no comparison heeds.
  int compare(const void *a, const void *b, bool strictly) const { return order(kind, a, b, strictly); }

  bool has_same_octets(const void *a, const void *b) const;
  void take(void *to, const void *from) const; // by octets, whatever they refer to
};

struct record_type {
  std::string name;
  const std::type_info *info;
  std::size_t size;
  std::vector<field_type> fields;
  // What its exported functions begin with, and the source path that they are told under.
  std::string prefix, source;
  bool compares_references; // a copy is never equal to its source: references to memory are compared
  bool copies_leniently;    // a copy succeeds when no memory is left for a text

  void *(*create)(unsigned count); // which a table starts with
  void *(*clone)(const void *old_obj);
  int (*copy)(const void *src, void *dest);
  void (*clear)(void *obj);
  void (*free)(void *obj);
  int (*compare)(const void *a, const void *b); // null for what is not compared
  // Null for what is not printed.
  void (*print)(std::ostream &os, const void *value);
  void (*print_diff)(std::ostream &os, const void *value, const void *ref, const char *name, unsigned indent,
                     bool newline);

  // Of tables; else null.
  std::size_t element_size;
  void (*clear_element)(void *element);
  int (*order_elements)(const void *a, const void *b, bool strictly);
  std::uint32_t *(*count)(void *table);
  void *(*data)(const void *table);
  int (*init)(void *table, unsigned count);
  int (*add_entry)(void *table, const void *entry);
  bool (*contains_entry)(const void *table, const void *entry); // null unless compared

  // Fills an empty record with what its own rules accept.
  void (*fill)(void *r, randomness &random);
  // What a comparison should give.
  int order(const void *a, const void *b, bool strictly) const;
  // Name of the first field that differs strictly; "" for records that are the same and share nothing.
  std::string difference(const void *a, const void *b) const;
  // "<source path> <function>" of the line that tells of a failed operation: "create", "copy" and so on. The function
  // is the exported one, or the template that all records or tables share.
  std::string site(const std::string &operation) const;
  void *at(const void *table, std::size_t i) const { return static_cast<char *>(data(table)) + i * element_size; }
};

const std::vector<const record_type *> &record_types();
const record_type &type_of(const std::type_info &info);

// A record in memory of its own, empty or filled at random, and cleared at the end.
class any_sample {
public:
  explicit any_sample(const record_type &type) : type_(type), memory_(new std::byte[type.size]{}) { type.clear(*this); }
  any_sample(const record_type &type, randomness random) : any_sample(type) { type.fill(*this, random); }
  any_sample(const record_type &type, unsigned seed) : any_sample(type, randomness(seed)) {}
  ~any_sample() { type_.clear(*this); }
  any_sample(const any_sample &) = delete;
  any_sample &operator=(const any_sample &) = delete;
  operator void *() const { return memory_.get(); } // NOLINT(google-explicit-constructor): stands for the record

private:
  const record_type &type_;
  std::unique_ptr<std::byte[]> memory_;
};

// Puts records through every operation, each with its k-th request for memory failed, alone or with all that follow:
//
// - A clone and a copy are the same as their source, share nothing with it and outlive it. An operation that fails says
//   so in its result and in the log, under its own name, and leaves its destination empty or as it was; nothing else is
//   logged.
// - Printing logs nothing, writes text alone, and a difference print is empty if and only if the records are equal.
// - New elements and cleared records are empty, and a table gains an entry at a time. Blocks have just the size of what
//   they hold. The source is never changed, and no block is left in the end.
// - All of it holds for hostile records too; only that they may be refused, and lose what counts for nothing.
class trial {
public:
  std::string broken; // the first of it that does not hold
  harness::heap heap;
  harness::captured_log log;

  // Tells whether the k-th request was reached by any operation; k = 0 fails none.
  bool run(const record_type &type, const randomness &first, const randomness &second, std::size_t k, bool onward);
  // One operation, which tells whether it succeeded, with its k-th request failed. Tells whether it was reached.
  bool run(const std::function<bool()> &operation, std::size_t k, bool onward);

private:
  struct records;
  struct attempt {
    const record_type *type = nullptr;
    bool is_hostile = false, onward = false;
    std::size_t k = 0;
    bool is_reached = false;
  };
  void copy(const records &all);
  void grow(const records &all);
  void print(const records &all);
  void require(bool holds, const char *invariant);
  bool succeeds(const std::string &name, const std::function<bool()> &operation);

  attempt now_;
};

// ---- the same for types that are known

template <class R> std::string difference(const R &a, const R &b) {
  return type_of(typeid(R)).difference(&a, &b);
}

template <class R> struct sample : any_sample {
  R &value = *static_cast<R *>(static_cast<void *>(*this));

  sample() : any_sample(type_of(typeid(R))) {}
  explicit sample(randomness random) : any_sample(type_of(typeid(R)), random) {}
  explicit sample(unsigned seed, variety kind = variety::usual) : sample(randomness(seed, kind)) {}
};

// Runs a check for every record type.
template <class Check> void for_all_records(Check check) {
  zel::ravix::for_each_record([&]<class R>(const char *name) {
    SCOPED_TRACE(name);
    check.template operator()<R>();
  });
}

} // namespace harness
