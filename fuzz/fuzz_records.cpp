// A pair of random records of any type: cloned, copied, compared and printed, with the k-th allocation failed.
//
// - A clone and a copy are the same as their source and share nothing with it, or there is none: then it was told, a
//   clone is null and a copy empty. The source is never changed, and no block is left in the end.
// - Comparisons are turned round by turning round their arguments, and a clone is equal to its source.
// - Printing logs nothing, and a difference print is empty if and only if the records are equal.
// - All of it holds too for enumerated values without a name, lengths above capacity, texts without a terminator and
//   tables with a count but no array; only that a copy may then refuse its source, or lose what counts for nothing.
#include "fuzz.hpp"

#include "record_tools.hpp"

#include "ravix_types_printers.hpp"

#include <span>
#include <sstream>

namespace {

using fuzz::require;
using harness::difference;
using zel::ravix::record;

// What no party of the interface should send, in the fields that can hold it.
template <class Field, class R> void spoil(const Field & /*field*/, R & /*r*/) {}
template <class R, std::size_t N> void spoil(const zel::ravix::counted_bytes<R, N> &field, R &r) {
  r.*field.length = 0xFF;
}
template <class R, std::size_t N> void spoil(const zel::ravix::bounded_text<R, N> &field, R &r) {
  std::memset(r.*field.member, 'x', N);
}
template <class T, class E, class Text> void spoil(const zel::ravix::entries<T, E, Text> & /*field*/, T &table) {
  table.count += table.data == nullptr ? 5 : 0;
}
template <class R, class T> void spoil(const zel::ravix::nested<R, T> &field, R &r) {
  zel::ravix::for_each_field<T>([&](const auto &inner) { spoil(inner, r.*field.member); });
}

struct trial {
  std::span<const uint8_t> first, second;
  std::size_t k;
  bool all, spoilt;
  harness::heap heap;
  harness::captured_log log;

  // Runs an operation with its k-th allocation failed; tells whether it may have failed, or lost a text.
  template <class Operation> bool is_hampered(Operation operation) {
    all ? heap.fail_from(k) : heap.fail_only(k);
    operation();
    const bool failed = k != 0 && heap.requests() >= k;
    heap.fail_only(0);
    const bool told = !log.take().empty();
    require(told == failed || spoilt, "what fails is told, and nothing else");
    return told;
  }

  template <class R> void run() {
    {
      harness::sample<R> source(first), dest(second);
      const harness::sample<R> twin(first);
      if (spoilt) {
        zel::ravix::for_each_field<R>([&](const auto &field) { spoil(field, source.value); });
      }
      check_copies(source.value, dest.value);
      check_prints(source.value, dest.value);
      require(spoilt || difference(source.value, twin.value).empty(), "the source is unchanged");
    }
    require(heap.live() == 0, "no block is left");
  }

  template <class R> void check_copies(const R &source, R &dest) {
    R *clone = nullptr;
    const bool hampered = is_hampered([&] { clone = record<R>::clone(&source); });
    require(clone != nullptr || hampered, "a clone");
    if (clone != nullptr) {
      require(hampered || spoilt || difference(*clone, source).empty(), "a clone is the same and shares nothing");
      if constexpr (requires { record<R>::compare; } && !harness::compares_references<R>) {
        require(hampered || spoilt || record<R>::compare(clone, &source) == 0, "a clone is equal");
        require((record<R>::compare(&source, &dest) < 0) == (record<R>::compare(&dest, &source) > 0), "order");
      }
      record<R>::free(clone);
    }
    int code = 0;
    const bool copy_hampered = is_hampered([&] { code = record<R>::copy(&source, &dest); });
    require(code == 0 || copy_hampered, "a copy");
    if (code == 0) {
      require(copy_hampered || spoilt || difference(dest, source).empty(), "a copy is the same and shares nothing");
    } else if (code != -22) {
      require(difference(dest, harness::sample<R>().value).empty(), "a copy that failed is empty");
    }
  }

  template <class R> void check_prints(const R &a, const R &b) {
    if constexpr (requires(std::ostream & os) { os << a; }) {
      std::ostringstream out;
      out << a;
      require(!out.str().empty() && out.str().back() != '\n', "a print has no line break at its end");
    }
    if constexpr (requires(std::ostream & os) { print_diff(os, a, &b, "name", 1, true); }) {
      std::ostringstream whole, changes;
      print_diff(whole, a, nullptr, "name", 1, true);
      require(whole.str().starts_with(" name:") && whole.str().back() == '\n', "a print of all");
      print_diff(changes, a, &b, nullptr, 0, true);
      require(changes.str().empty() == (record<R>::compare(&a, &b) == 0), "a print of what differs");
    }
    require(log.take().empty(), "printing logs nothing");
  }
};

} // namespace

int LLVMFuzzerTestOneInput(const uint8_t *data, std::size_t size) {
  FuzzedDataProvider in(data, size);
  const auto type = in.ConsumeIntegral<uint8_t>();
  const auto k = in.ConsumeIntegralInRange<std::size_t>(0, 40);
  const bool all = in.ConsumeBool();
  const bool spoilt = in.ConsumeBool();
  const auto octets = in.ConsumeRemainingBytes<uint8_t>();
  const std::span<const uint8_t> chosen(octets);
  trial trial{chosen.first(chosen.size() / 2), chosen.subspan(chosen.size() / 2), k, all, spoilt, {}, {}};
  unsigned count = 0, at = 0;
  harness::for_all_records([&]<class R>() { ++count; });
  harness::for_all_records([&]<class R>() {
    if (at++ == type % count) {
      trial.template run<R>();
    }
  });
  return 0;
}
