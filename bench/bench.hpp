// What the benchmarks have in common. A row is one work done in several ways, ours and its peers', each on the same
// values: registered as "<work>/<way>". What a row has to reach stands in targets.tsv.
#pragma once

#include <benchmark/benchmark.h>

#include <array>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <random>
#include <string>
#include <utility>
#include <vector>

namespace bench {

inline constexpr std::size_t samples = 256; // a power of two; enough that no branch predictor learns them by heart

// Values at random, the same in each run.
template <class Make> auto sampled(Make make, std::size_t count = samples) {
  std::mt19937 random(1); // NOLINT(cert-msc32-c,cert-msc51-cpp)
  std::vector<decltype(make(random))> values;
  for (std::size_t i = 0; i < count; ++i) {
    values.push_back(make(random));
  }
  return values;
}

template <class Octets> Octets random_octets(std::mt19937 &random) {
  Octets octets;
  for (auto &octet : octets) {
    octet = static_cast<std::uint8_t>(random());
  }
  return octets;
}

// One way of doing a row's work: a function of a sample.
template <class Work> struct way {
  const char *name;
  Work work;
};
template <class Work> way(const char *, Work) -> way<Work>;

template <class Value, class... Work>
void row(const std::string &name, const std::vector<Value> &values, way<Work>... ways) {
  (benchmark::RegisterBenchmark((name + "/" + ways.name).c_str(),
                                [values, work = ways.work](benchmark::State &state) {
                                  std::size_t at = 0;
                                  for (auto _ : state) {
                                    work(values[at]);
                                    at = at + 1 < values.size() ? at + 1 : 0;
                                  }
                                }),
   ...);
}

// A row of a single, larger work.
template <class... Work> void row(const std::string &name, way<Work>... ways) {
  (benchmark::RegisterBenchmark((name + "/" + ways.name).c_str(),
                                [work = ways.work](benchmark::State &state) {
                                  for (auto _ : state) {
                                    work();
                                  }
                                }),
   ...);
}

template <class Value> void keep(const Value &value) {
  benchmark::DoNotOptimize(value);
  benchmark::ClobberMemory();
}

// Ends the run if a peer does not do the work that it is compared for.
inline void require(bool holds, const char *what) {
  if (!holds) {
    std::fprintf(stderr, "bench: %s\n", what);
    std::abort();
  }
}

// Each source registers its rows here.
void register_text();
void register_parsers();
void register_radio();
void register_records();
void register_printers();
void register_json();
void register_growth();

} // namespace bench
