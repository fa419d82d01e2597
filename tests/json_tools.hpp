// The functions that write records as JSON, for records of any type at run time, and what a reader makes of their text.
#pragma once

#include "ravix_types_json.h"
#include "record_tools.hpp"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <cstddef>
#include <string>

namespace harness {

using json = nlohmann::ordered_json;

struct json_functions {
  int (*whole)(const void *obj, ravix_json_write_t write, void *context);
  // Null for what is not compared.
  int (*diff)(const void *value, const void *reference, ravix_json_write_t write, void *context);
};

inline const json_functions &json_functions_of(const record_type &type) {
#define RAVIX_JSON_uncompared(NAME, TYPE) nullptr
#define RAVIX_JSON_compared(NAME, TYPE)                                                                                \
  [](const void *value, const void *reference, ravix_json_write_t write, void *context) {                              \
    return NAME##_diff_to_json(static_cast<const TYPE *>(value), static_cast<const TYPE *>(reference), write,          \
                               context);                                                                               \
  }
#define RAVIX_RECORD(NAME, TYPE, SHAPE, COMPARED, PRINTED)                                                             \
  {[](const void *obj, ravix_json_write_t write, void *context) {                                                      \
     return NAME##_to_json(static_cast<const TYPE *>(obj), write, context);                                            \
   },                                                                                                                  \
   RAVIX_JSON_##COMPARED(NAME, TYPE)},
  static constexpr json_functions all[] = {
#include "ravix_types_records.def"
  };
#undef RAVIX_JSON_uncompared
#undef RAVIX_JSON_compared
  const auto &types = record_types(); // in the same order
  return all[std::find(types.begin(), types.end(), &type) - types.begin()];
}

// What a function(write, context) writes.
template <class ToJson> std::string json_text(ToJson to_json) {
  std::string text;
  const auto append = [](const char *piece, std::size_t length, void *context) {
    static_cast<std::string *>(context)->append(piece, length);
    return 0;
  };
  const int code = to_json(append, static_cast<void *>(&text));
  return code == 0 ? text : "returned " + std::to_string(code);
}
inline std::string json_text(const record_type &type, const void *r) {
  return json_text([&](auto write, void *context) { return json_functions_of(type).whole(r, write, context); });
}
inline std::string json_diff(const record_type &type, const void *r, const void *reference) {
  return json_text(
      [&](auto write, void *context) { return json_functions_of(type).diff(r, reference, write, context); });
}

// What a comparison goes by: without what is null, the same as absent, and the one field that it passes over.
inline nlohmann::json compared(nlohmann::json value) {
  if (value.is_object()) {
    std::erase_if(value.get_ref<nlohmann::json::object_t &>(),
                  [](const auto &member) { return member.second.is_null() || member.first == "index"; });
  }
  if (value.is_structured()) {
    std::ranges::transform(value, value.begin(), compared);
  }
  return value;
}

// Whether a difference, as a merge patch, makes the value of the reference. "{}" is nothing to apply.
inline bool leads_to(json reference, const json &patch, const json &value) {
  if (patch != json::object()) {
    reference.merge_patch(patch);
  }
  return compared(reference) == compared(value);
}

} // namespace harness
