// A pair of random records of any type, sent through all operations with the k-th allocation failed: what
// harness::trial says holds.
#include "fuzz.hpp"

#include "record_tools.hpp"

#include <span>

int LLVMFuzzerTestOneInput(const uint8_t *data, std::size_t size) {
  FuzzedDataProvider in(data, size);
  const auto &types = harness::record_types();
  const auto *type = types[in.ConsumeIntegral<uint8_t>() % types.size()];
  const auto k = in.ConsumeIntegralInRange<std::size_t>(0, 40);
  const bool onward = in.ConsumeBool();
  const auto kind = in.ConsumeBool() ? harness::variety::hostile : harness::variety::usual;
  const auto octets = in.ConsumeRemainingBytes<uint8_t>();
  const auto chosen = std::span<const uint8_t>(octets);
  const auto half = chosen.size() / 2;
  harness::trial trial;
  trial.run(*type, harness::randomness(chosen.first(half), kind), harness::randomness(chosen.subspan(half)), k, onward);
  fuzz::require(trial.broken.empty(), trial.broken.c_str());
  return 0;
}
