// The functions that write records as JSON, for records of any type at run time, and what a reader makes of their text.
#pragma once

#include "ravix_types_json.h"
#include "record_tools.hpp"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <string>

namespace harness {

using json = nlohmann::ordered_json;

struct json_functions {
  const char *name; // what those of the record begin with
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
  {#NAME,                                                                                                              \
   [](const void *obj, ravix_json_write_t write, void *context) {                                                      \
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

// Without some of the members, in all records that are part of the value.
inline json without(bool (*left_out)(const std::string &key, const json &member), const json &value) {
  if (!value.is_structured()) {
    return value;
  }
  json kept = value.is_object() ? json::object() : json::array();
  for (const auto &[key, member] : value.items()) {
    if (value.is_array()) {
      kept.push_back(without(left_out, member));
    } else if (!left_out(key, member)) {
      kept[key] = without(left_out, member);
    }
  }
  return kept;
}
// Null is the same as absent in a difference.
inline json without_nulls(const json &value) {
  return without([](auto & /*key*/, auto &member) { return member.is_null(); }, value);
}
// The one field that a comparison passes over.
inline json without_index(const json &value) {
  return without([](auto &key, auto & /*member*/) { return key == "index"; }, value);
}

// What a difference leads to: parts that are equal to a comparison are not in it, and stay those of the reference.
inline json as_compared(const json &reference, const json &patch, json value) {
  if (!reference.is_object() || !patch.is_object() || !value.is_object()) {
    return value;
  }
  for (const auto &[key, before] : reference.items()) {
    if (!value.contains(key)) {
      continue;
    }
    json &member = value[key];
    if (patch.contains(key)) {
      member = as_compared(before, patch[key], member);
    } else if (before.is_structured() && without_index(before) == without_index(member)) {
      member = before;
    }
  }
  return value;
}

// Whether a difference, as a merge patch, makes the value of the reference. "{}" is nothing to apply.
inline bool leads_to(const json &reference, const json &patch, const json &value) {
  json patched = reference;
  if (patch != json::object()) {
    patched.merge_patch(patch);
  }
  // Members that a patch adds come last.
  return nlohmann::json(without_nulls(patched)) == nlohmann::json(without_nulls(as_compared(reference, patch, value)));
}

} // namespace harness
