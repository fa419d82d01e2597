// A pair of random records of any type, sent through all operations with the k-th allocation failed: what
// harness::trial says holds. Both as JSON: a strict reader takes what is written and its difference, which leads from
// one to the other and is empty for equal records alone; no secret is told.
#include "fuzz.hpp"

#include "json_tools.hpp"
#include "record_tools.hpp"

#include <span>

namespace {

void check_json(const harness::record_type &type, const void *value, const void *reference) {
  const std::string text = harness::json_text(type, value);
  fuzz::require(harness::json::accept(text), "a record is JSON");
  fuzz::require(text.find(harness::secret_mark) == std::string::npos, "JSON tells no secret");
  if (type.compare == nullptr) {
    return;
  }
  const std::string diff = harness::json_diff(type, value, reference);
  const harness::json patch = harness::json::parse(diff, nullptr, false);
  fuzz::require(!patch.is_discarded(), "a difference is JSON");
  fuzz::require(diff.find(harness::secret_mark) == std::string::npos, "a difference tells no secret");
  const bool is_equal = type.compare(value, reference) == 0;
  fuzz::require(!is_equal || diff == "{}", "equal records have no difference");
  fuzz::require(is_equal || harness::leads_to(harness::json::parse(harness::json_text(type, reference)), patch,
                                              harness::json::parse(text)),
                "a difference leads to the value");
}

} // namespace

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
  const harness::randomness first(chosen.first(half), kind);
  const harness::randomness second(chosen.subspan(half));
  harness::trial trial;
  trial.run(*type, first, second, k, onward);
  fuzz::require(trial.broken.empty(), trial.broken.c_str());
  if (k % 8 == 1) { // not for each: a reader takes twice as long as all the rest
    check_json(*type, harness::any_sample(*type, first), harness::any_sample(*type, second));
  }
  return 0;
}
