// A pair of random records of any type, sent through all operations with the k-th allocation failed, or none: what
// harness::trial says holds. Both as JSON: a strict reader takes what is written and its difference, which leads from
// one to the other and is empty for equal records alone; no secret is told.
#include "fuzz.hpp"

#include "json_tools.hpp"
#include "record_tools.hpp"

#include <numeric>
#include <span>

namespace {

harness::json read(const std::string &text) {
  fuzz::require(text.find(harness::secret_mark) == std::string::npos, "JSON tells no secret");
  harness::json value = harness::json::parse(text, nullptr, false);
  fuzz::require(!value.is_discarded(), "what is written is JSON");
  return value;
}

void check_json(const harness::record_type &type, const void *value, const void *reference) {
  const harness::json wanted = read(harness::json_text(type, value));
  if (type.compare == nullptr) {
    return;
  }
  const harness::json patch = read(harness::json_diff(type, value, reference));
  if (type.compare(value, reference) == 0) {
    fuzz::require(patch == harness::json::object(), "equal records have no difference");
  } else {
    fuzz::require(harness::leads_to(read(harness::json_text(type, reference)), patch, wanted),
                  "a difference leads to the value");
  }
}

} // namespace

int LLVMFuzzerTestOneInput(const uint8_t *data, std::size_t size) {
  FuzzedDataProvider in(data, size);
  const auto &types = harness::record_types();
  const auto *type = types[in.ConsumeIntegral<uint8_t>() % types.size()];
  // Printers and a reader take three times as long as all the rest: not for each, nor for a kind of input that the
  // search might prefer.
  const bool is_shown = std::accumulate(data, data + size, 0U) % 16 == 0;
  const auto k = in.ConsumeIntegralInRange<std::size_t>(1, 40);
  const bool onward = in.ConsumeBool();
  const auto kind = in.ConsumeBool() ? harness::variety::hostile : harness::variety::usual;
  const auto octets = in.ConsumeRemainingBytes<uint8_t>();
  const auto chosen = std::span<const uint8_t>(octets);
  const auto half = chosen.size() / 2;
  const harness::randomness first(chosen.first(half), kind);
  const harness::randomness second(chosen.subspan(half));
  harness::trial trial;
  trial.run(*type, first, second, is_shown ? 0 : k, onward);
  fuzz::require(trial.broken.empty(), trial.broken.c_str());
  if (is_shown) {
    check_json(*type, harness::any_sample(*type, first), harness::any_sample(*type, second));
  }
  return 0;
}
