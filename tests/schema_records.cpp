// Prints records of every type as JSON, empty, at random, full and hostile, and what differs in them from others: a
// line each, behind the name of its definition in the schema.
#include "json_tools.hpp"

#include <cstddef>
#include <iostream>
#include <string>

using namespace harness;

int main() {
  for (const record_type *type : record_types()) {
    const any_sample empty(*type);
    std::cout << type->name << ' ' << json_text(*type, empty) << '\n';
    for (const variety kind : {variety::usual, variety::full, variety::hostile}) {
      for (unsigned seed = 1; seed <= 6; ++seed) {
        const any_sample value(*type, randomness(seed, kind));
        const any_sample other(*type, randomness(seed, std::size_t{3} * seed)); // the usual one, but for its end
        std::cout << type->name << ' ' << json_text(*type, value) << '\n';
        for (const any_sample *reference : {&empty, &value, &other}) {
          if (type->compare != nullptr) {
            std::cout << type->name << "_diff " << json_diff(*type, value, *reference) << '\n'
                      << type->name << "_diff " << json_diff(*type, *reference, value) << '\n';
          }
        }
      }
    }
  }
  return std::cout.flush() ? 0 : 1;
}
