// Prints records of every type as JSON, empty, at random, full and hostile, and what differs in them from others: a
// line each, behind the name of its definition in the schema.
#include "record_tools.hpp"

#include "ravix_types_json.hpp"

#include <cstddef>
#include <iostream>
#include <string>
#include <string_view>

namespace {

template <class R> void print(const std::string &definition, const R &value) {
  std::cout << definition << ' ';
  print_json(std::cout, value);
  std::cout << '\n';
}

// Nothing for records that are not compared.
template <class R> void print_differences(const std::string &definition, const R &value, const R &reference) {
  if constexpr (requires { print_json_diff(std::cout, value, reference); }) {
    std::cout << definition << "_diff ";
    print_json_diff(std::cout, value, reference);
    std::cout << '\n';
  }
}

template <class R> void print_all(const std::string &definition) {
  using harness::randomness;
  using harness::variety;
  const harness::sample<R> empty;
  print(definition, empty.value);
  for (const variety kind : {variety::usual, variety::full, variety::hostile}) {
    for (unsigned seed = 1; seed <= 6; ++seed) {
      const harness::sample<R> value(seed, kind);
      const harness::sample<R> other(
          randomness(seed, std::size_t{3} * seed)); // the usual one of this seed, but for its end
      print(definition, value.value);
      for (const harness::sample<R> *reference : {&empty, &value, &other}) {
        print_differences(definition, value.value, reference->value);
        print_differences(definition, reference->value, value.value);
      }
    }
  }
}

} // namespace

int main() {
  zel::ravix::for_each_record([]<class R>(std::string_view structure) {
    print_all<R>(std::string(structure.substr(0, structure.size() - 2))); // without "_t"
  });
  return std::cout.flush() ? 0 : 1;
}
