// Writes the JSON Schema (2020-12) of what the library writes for each record, and for each difference. What a value
// may be follows from the field lists and the meanings that they name. What it stands for is said by the comments of
// the headers, which are read here; a record, field or list of names without one is an error.
//
// usage: json_schema VERSION HEADER...
#include "json_text.hpp"
#include "ravix_types_all_fields.hpp"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <exception>
#include <fstream>
#include <iostream>
#include <limits>
#include <map>
#include <regex>
#include <sstream>
#include <stdexcept>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>
#include <vector>

namespace {

using namespace zel::ravix;

// ---- what the headers say

// The comments, by "structure", "structure.member", and the name of a list of names.
class documentation {
public:
  void read(std::istream &header) {
    std::string line, comment, structure, declaration;
    while (std::getline(header, line)) {
      if (line.starts_with("/**")) {
        comment.clear();
      }
      if (line.starts_with("/**") || line.starts_with(" *")) {
        comment += line + '\n';
        if (line.find("*/") != std::string::npos) {
          take_list(comment);
        }
      } else if (constexpr std::string_view begin = "typedef struct "; line.starts_with(begin)) {
        structure = line.substr(begin.size(), line.find(' ', begin.size()) - begin.size());
        add(structure, comment);
        comment.clear();
      } else if (line.starts_with("}")) {
        structure.clear();
      } else if (!structure.empty()) {
        declaration += line + '\n';
        if (line.find("*/") != std::string::npos) {
          take_member(structure, declaration);
        }
        if (line.ends_with("*/") || line.ends_with("{") || line.ends_with("};")) { // also of what shares its storage
          declaration.clear();
        }
      }
    }
  }

  const std::string &of(const std::string &what) const {
    const auto found = texts_.find(what);
    return found != texts_.end() ? found->second : throw std::runtime_error("no comment tells what " + what + " is");
  }

private:
  void add(const std::string &what, const std::string &comment) {
    if (std::string text = words(comment); !text.empty()) {
      texts_[what] = std::move(text);
    }
  }

  // Without what makes it a comment, and in one line.
  static std::string words(const std::string &comment) {
    std::istringstream in(comment);
    std::string out;
    for (std::string word; in >> word;) {
      if (word != "/**" && word != "/**<" && word != "*" && word != "*/") {
        out += (out.empty() ? "" : " ") + word;
      }
    }
    return out;
  }

  // "type name[size]; /**< text */"
  void take_member(const std::string &structure, const std::string &declaration) {
    const std::size_t begin = declaration.find("/**<");
    const std::size_t end = declaration.rfind(';', begin);
    const std::size_t before = declaration.rfind(';', end - 1);
    const std::size_t declared = before == std::string::npos ? 0 : before;
    const std::size_t name_end = std::min(declaration.find('[', declared), end);
    const std::size_t name_begin = declaration.find_last_of(" *", name_end) + 1;
    add(structure + '.' + declaration.substr(name_begin, name_end - name_begin), declaration.substr(begin));
  }

  // Of what its formatter's name tells: "text. See ravix_str_name()." or "@name heading", and the text below it.
  void take_list(const std::string &comment) {
    constexpr std::string_view see = "See ravix_str_", name = "@name ";
    if (const std::size_t at = comment.find(see); at != std::string::npos) {
      std::string text = comment.substr(0, at);
      if (const std::size_t heading = text.find(name); heading != std::string::npos) {
        text.replace(text.find('\n', heading), 1, ". ").erase(0, heading + name.size());
      }
      add(comment.substr(at + see.size(), comment.find('(', at) - at - see.size()), text);
    }
  }

  std::map<std::string, std::string> texts_;
} told;

json described(const std::string &text) {
  json schema("{}");
  schema.add("description", in_quotes(text));
  return schema;
}

// ---- values

std::string reference(const std::string &name) {
  return in_quotes("#/$defs/" + name);
}
std::string any_of(const std::string &first, const std::string &second) {
  return json("[]").add(first).add(second).text();
}
std::string type(std::string_view name) {
  return "{\"type\": " + in_quotes(name) + "}";
}

std::map<std::string, std::string> definitions; // other than of records

constexpr const char *bits_pattern = R"("^0x[0-9a-f]+$")"; // of an address too
constexpr const char *ip_pattern = R"("^(([0-9]{1,3}[.]){3}[0-9]{1,3}|([0-9a-f]{1,4}:){7}[0-9a-f]{1,4})$")";

// The name of a list of names, or null for what is no such list.
template <class Meaning> constexpr const char *list_name() {
#define RAVIX_NAME_OF(what, ...)                                                                                       \
  if (std::is_same_v<Meaning, meaning::what>) {                                                                        \
    return #what;                                                                                                      \
  }
  RAVIX_ENUMERATIONS(RAVIX_NAME_OF)
  RAVIX_FLAG_SETS(RAVIX_NAME_OF)
  RAVIX_NAME_OF(id)
  RAVIX_NAME_OF(status)
#undef RAVIX_NAME_OF
  return nullptr;
}

// A list of names, which all fields of its meaning refer to.
template <class Meaning> std::string named() {
  const name_list names = Meaning::names;
  json texts("[]"), values("[]");
  for (std::size_t i = 0; i < names.count; ++i) {
    texts.add(in_quotes(names.name(i)));
    values.add(std::to_string(names.values[i]));
  }
  std::string name = list_name<Meaning>();
  const std::string one_of = "{\"enum\": " + texts.text() + "}";
  json schema = described(told.of(name));
  if constexpr (Meaning::kind == value_kind::flags) {
    schema.add("type", in_quotes("array"));
    const std::string others = std::string(R"({"type": "string", "pattern": )") + bits_pattern + '}';
    schema.add("items", "{\"anyOf\": " + any_of(one_of, others) + "}");
    schema.add("uniqueItems", "true");
  } else {
    schema.add("anyOf", any_of(one_of, R"({"type": "integer", "not": {"enum": )" + values.text() + "}}"));
  }
  definitions[name] = schema.text();
  return name;
}

// The octets of an address, by what the formatter shows for the highest.
template <class Meaning> std::string pattern() {
  const std::vector<std::uint8_t> highest(16, 255);
  return in_quotes('^' + std::regex_replace(shown<Meaning>(highest.data()), std::regex("F"), "[0-9A-F]") + '$');
}

// The range of a number. A lowest or highest value that stands for none does not count.
template <class Meaning, class T> void add_range(json &schema) {
  std::conditional_t<std::is_signed_v<T>, std::int64_t, std::uint64_t> least = std::numeric_limits<T>::min();
  auto most = least;
  most = std::numeric_limits<T>::max();
  if constexpr (Meaning::empty_is_none) {
    constexpr T none = Meaning::empty;
    least += none == least ? 1 : 0;
    most -= none == most ? 1 : 0;
  }
  schema.add("minimum", std::to_string(least)).add("maximum", std::to_string(most));
}

template <class Meaning, class T> void add_value(json &schema) {
  constexpr value_kind kind = Meaning::kind;
  if constexpr (list_name<Meaning>() != nullptr) {
    schema.add("$ref", reference(named<Meaning>()));
    if constexpr (kind == value_kind::name) { // a status is signed, though some records carry its bits only
      add_range<Meaning, std::conditional_t<std::is_same_v<Meaning, meaning::status>, std::int32_t, T>>(schema);
    }
  } else if constexpr (kind == value_kind::flag) {
    schema.add("type", in_quotes("boolean"));
  } else if constexpr (kind == value_kind::octets) {
    schema.add("type", in_quotes("string")).add("pattern", pattern<Meaning>());
  } else if constexpr (std::is_floating_point_v<T>) {
    schema.add("type", R"(["number", "null"])");
  } else if constexpr (std::is_pointer_v<T>) {
    schema.add("type", R"(["string", "null"])").add("pattern", bits_pattern);
  } else {
    schema.add("type", Meaning::empty_is_none ? R"(["integer", "null"])" : in_quotes("integer"));
    add_range<Meaning, T>(schema);
  }
}

constexpr const char *hexadecimal = R"("^([0-9a-f]{2})*$")";

// Text that may be no UTF-8.
std::string text() {
  definitions["text"] =
      described("Octets: as text if they are UTF-8 without a zero octet, otherwise as hexadecimal digits.")
          .add("anyOf", any_of(type("string"), "{\"$ref\": " + reference("octets") + "}"))
          .text();
  definitions["octets"] =
      described("Octets that are no text.")
          .add("type", in_quotes("object"))
          .add("properties", std::string(R"({"hex": {"type": "string", "pattern": )") + hexadecimal + "}}")
          .add("required", R"(["hex"])")
          .add("additionalProperties", "false")
          .text();
  return "text";
}

// ---- fields

template <class R> std::string name_of() {
  std::string found;
  for_each_record([&]<class Other>(std::string_view structure) {
    if (std::is_same_v<R, Other>) {
      found = structure.substr(0, structure.size() - 2); // without "_t"
    }
  });
  return found;
}

template <class R> std::string reference_to() {
  return "{\"$ref\": " + reference(name_of<R>()) + "}";
}

template <auto Member, class Meaning> void add_field(json &schema, const scalar<Member, Meaning> & /*field*/) {
  add_value<Meaning, value_of<Member>>(schema);
}
template <auto Member, class Meaning> void add_field(json &schema, const array<Member, Meaning> &field) {
  if constexpr (Meaning::kind == value_kind::octets) {
    add_value<Meaning, std::uint8_t>(schema);
  } else {
    json item("{}");
    add_value<Meaning, std::uint8_t>(item);
    const std::string count = std::to_string(field.size);
    schema.add("type", in_quotes("array")).add("items", item.text()).add("minItems", count).add("maxItems", count);
  }
}
template <auto Length, auto Octets> void add_field(json &schema, const counted_octets<Length, Octets> & /*field*/) {
  schema.add("$ref", reference(text()));
}
template <auto Member> void add_field(json &schema, const bounded_text<Member> & /*field*/) {
  schema.add("$ref", reference(text()));
}
template <auto Member> void add_field(json &schema, const owned_text<Member> & /*field*/) {
  schema.add("anyOf", any_of(type("null"), "{\"$ref\": " + reference(text()) + "}"));
}
template <auto Length, auto Octets> void add_field(json &schema, const owned_octets<Length, Octets> & /*field*/) {
  schema.add("type", in_quotes("string")).add("pattern", hexadecimal);
}
template <auto Member> void add_field(json &schema, const nested<Member> & /*field*/) {
  schema.add("$ref", reference(name_of<value_of<Member>>()));
}
template <auto Member> void add_field(json &schema, const owned<Member> & /*field*/) {
  schema.add("anyOf", any_of(type("null"), reference_to<typename owned<Member>::T>()));
}
template <class T, class Meaning> void add_field(json &schema, const entries<T, Meaning> & /*field*/) {
  using element = typename entries<T, Meaning>::value;
  json item("{}");
  if constexpr (has_fields<element>) {
    item.add("$ref", reference(name_of<element>()));
  } else if constexpr (std::is_same_v<element, char *>) {
    item.add("anyOf", any_of(type("null"), "{\"$ref\": " + reference(text()) + "}"));
  } else {
    add_value<Meaning, element>(item);
  }
  schema.add("type", in_quotes("array")).add("items", item.text());
}
template <class Kind> void add_field(json &schema, const secret<Kind> & /*field*/) {
  schema.add("const", in_quotes("[SECRET]"));
}

// Calls visit(name, field, is_tagged) for what may be a member of the record's object: of alternatives each.
template <class R, class Visit> void for_each_property(Visit visit) {
  for_each_field<R>([&](const auto &field) {
    if constexpr (requires { field.first; }) {
      visit(field.first.name, field.first, true);
      visit(field.second.name, field.second, true);
    } else if constexpr (std::is_same_v<R, ravix_tlv_t>) {
      visit(field.is_flat ? field.name : "hex", field, false); // beside its type
    } else {
      visit(field.name, field, false);
    }
  });
}

template <class Kind> std::string description(const std::string &record, const Kind &field) {
  std::string text = told.of(record + '.' + field.name);
  if constexpr (requires { Kind::meaning::unit; }) {
    const std::string unit = Kind::meaning::unit;
    text += unit.empty() ? "" : " Unit: " + unit + '.';
  }
  return text;
}

// ---- records

// The record's value is that of its only field.
template <class R> constexpr bool is_one_value() {
  return field_count<R> == 1 && (table_record<R> || !all_fields<R>([](const auto &field) {
                                   return !requires {
                                     field.refusal;
                                   };
                                 }));
}
template <class R> constexpr bool is_object() {
  return !is_one_value<R>() && !std::is_same_v<R, ravix_ip_addr_t>;
}

// An object of which each member has a line of its own.
class lines {
public:
  explicit lines(std::size_t indent) : break_('\n' + std::string(indent, ' ')), members_("{}", ',' + break_) {}
  void add(const std::string &key, const std::string &value) { members_.add(key, value); }
  std::string text() const { return std::string(members_.text()).insert(1, break_); }

private:
  std::string break_;
  json members_;
};

template <class R> std::string schema_of() {
  const std::string record = name_of<R>();
  json schema = described(told.of(record));
  if constexpr (std::is_same_v<R, ravix_ip_addr_t>) {
    schema.add("type", R"(["string", "null"])").add("pattern", ip_pattern);
  } else if constexpr (is_one_value<R>()) {
    for_each_field<R>([&](const auto &field) { add_field(schema, field); });
  } else {
    lines properties(6);
    json required("[]"), alternatives("[]");
    for_each_property<R>([&](const char *name, const auto &field, bool is_tagged) {
      json property = described(description(record, field));
      add_field(property, field);
      properties.add(name, property.text());
      (is_tagged ? alternatives : required).add(in_quotes(name));
    });
    schema.add("type", in_quotes("object")).add("properties", properties.text()).add("required", required.text());
    schema.add("additionalProperties", "false");
    if (!alternatives.is_empty()) {
      schema.add("not", "{\"required\": " + alternatives.text() + "}");
    }
  }
  return schema.text();
}

template <class Kind>
concept owned_record = requires(const Kind &field) {
  []<auto Member>(const owned<Member> &){}(field);
};

// Of a field that is `same` as in the whole record unless it is a record itself.
template <class Kind> std::string differing(const Kind & /*field*/, const std::string &same, bool is_tagged) {
  if constexpr (requires { typename Kind::T; }) {
    using T = typename Kind::T;
    const std::string part = "{\"$ref\": " + reference(name_of<T>() + (is_object<T>() ? "_diff" : "")) + "}";
    return is_tagged || owned_record<Kind> ? "{\"anyOf\": " + any_of(type("null"), part) + "}" : part;
  }
  return same;
}

template <class R> std::string difference_schema_of() {
  const std::string record = name_of<R>();
  json schema = described("Difference of two " + record + ": a JSON merge patch (RFC 7396).");
  if constexpr (is_object<R>()) {
    lines properties(6);
    for_each_property<R>([&](const char *name, const auto &field, bool is_tagged) {
      properties.add(name,
                     differing(field, "{\"$ref\": " + reference(record + "/properties/" + name) + "}", is_tagged));
    });
    schema.add("type", in_quotes("object")).add("properties", properties.text()).add("additionalProperties", "false");
  } else {
    schema.add("anyOf", any_of(R"({"type": "object", "maxProperties": 0})", reference_to<R>()));
  }
  return schema.text();
}

std::string whole_schema(const std::string &version) {
  lines all(4);
  for_each_record([&]<class R>(const char * /*structure*/) { all.add(name_of<R>(), schema_of<R>()); });
  for_each_record([&]<class R>(const char * /*structure*/) {
    if constexpr (requires { operations<R>::compare; }) {
      all.add(name_of<R>() + "_diff", difference_schema_of<R>());
    }
  });
  for (const auto &[name, schema] : definitions) {
    all.add(name, schema);
  }
  lines schema(2);
  schema.add("$schema", in_quotes("https://json-schema.org/draft/2020-12/schema"));
  schema.add("title", in_quotes("Records of libravix_types " + version + " as JSON"));
  schema.add("$defs", all.text());
  return schema.text();
}

} // namespace

int main(int argc, char **argv) {
  try {
    for (int i = 2; i < argc; ++i) {
      std::ifstream header(argv[i]);
      told.read(header);
    }
    std::cout << whole_schema(argc > 1 ? argv[1] : "") << '\n';
  } catch (const std::exception &failed) {
    std::cerr << "json_schema: " << failed.what() << '\n';
    return 1;
  }
  return std::cout.flush() ? 0 : 1;
}
