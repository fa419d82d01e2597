#include "record_tools.hpp"

#include "ravix_types_printers.hpp"

#include <algorithm>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <regex>
#include <sstream>
#include <string_view>
#include <type_traits>
#include <utility>

namespace harness {

using zel::ravix::has_fields;
using zel::ravix::operations;
using zel::ravix::record_of;

// ---- records at random

std::uint32_t randomness::up_to(std::uint32_t most) {
  if (choices_++ == same_) {
    engine_.seed(static_cast<std::uint32_t>(same_) + 1000003);
  }
  const std::uint64_t next = chosen_.empty() ? engine_() : chosen_.front();
  chosen_ = chosen_.subspan(chosen_.empty() ? 0 : 1);
  return static_cast<std::uint32_t>(next % (most + std::uint64_t{1}));
}

void randomness::bytes(void *memory, std::size_t size) {
  auto *octets = static_cast<char *>(memory);
  std::generate_n(octets, size, [&] { return static_cast<char>(static_cast<unsigned char>(up_to(255))); });
  // Only a secret has its mark: one that is found elsewhere would pass for a secret that is told.
  for (char *end = octets + size, *mark = octets;
       (mark = std::search(mark, end, secret_mark.begin(), secret_mark.end())) != end;) {
    *mark = 'z';
  }
}

void randomness::word(char *to, std::size_t longest) {
  std::generate_n(to, some(static_cast<std::uint32_t>(longest)), [&] { return static_cast<char>('a' + up_to(25)); });
}

namespace {

template <class R> const record_type &row_of();

// ---- values

template <class T> void fill_value(T &value, randomness &random) {
  if constexpr (has_fields<T>) {
    row_of<T>().fill(&value, random);
  } else if constexpr (std::is_same_v<T, char *>) {
    char text[41] = "";
    random.word(text, 40);
    value = random.absent() ? nullptr : slab_dstrdup(text, "tests", __LINE__);
  } else if constexpr (std::is_same_v<T, bool>) {
    const auto flag = static_cast<std::uint8_t>(random.up_to(random.kind == variety::hostile ? UINT8_MAX : 1));
    std::memcpy(&value, &flag, sizeof value);
  } else if constexpr (std::is_same_v<T, float>) {
    value = static_cast<float>(random.up_to(10000)) / 8;
  } else if constexpr (std::is_pointer_v<T> && has_fields<std::remove_pointer_t<T>>) {
    if (!random.absent()) {
      value = operations<std::remove_pointer_t<T>>::create();
      fill_value(*value, random);
    }
  } else {
    random.bytes(&value, sizeof value);
  }
}

// What the first of them that differs gives, or 0.
template <class All, class Compare> int first_order(const All &all, Compare compare) {
  int order = 0;
  for (auto each = std::begin(all); each != std::end(all) && order == 0; ++each) {
    order = compare(*each);
  }
  return order;
}

template <class E> int compare_arrays(const E *a, std::size_t count_a, const E *b, std::size_t count_b, bool strictly);

template <class T> int compare_values(const T &a, const T &b, bool strictly) {
  if constexpr (has_fields<T>) {
    return row_of<T>().order(&a, &b, strictly);
  } else if constexpr (std::is_same_v<T, char *>) {
    const std::size_t length = a != nullptr && b != nullptr ? std::min(std::strlen(a), std::strlen(b)) + 1 : 0;
    return compare_arrays(a, length, b, length, strictly);
  } else if constexpr (std::is_pointer_v<T> && has_fields<std::remove_pointer_t<T>>) {
    return compare_arrays(a, 1, b, 1, strictly);
  } else if constexpr (std::is_scalar_v<T> && !std::is_same_v<T, bool>) { // a flag may be any octet
    return (a > b) - (a < b);
  } else {
    return std::memcmp(&a, &b, sizeof a);
  }
}

// Two arrays of that many elements each.
template <class E> int compare_arrays(const E *a, std::size_t count_a, const E *b, std::size_t count_b, bool strictly) {
  if (count_a != count_b) {
    return count_a < count_b ? -1 : 1;
  }
  if (a == nullptr || b == nullptr) {
    return (a != nullptr) - (b != nullptr);
  }
  int order = a == b && strictly ? 1 : 0;
  if (zel::ravix::element<E>::is_bytes && order == 0) {
    return std::memcmp(a, b, count_a * sizeof(E));
  }
  for (std::size_t i = 0; i < count_a && order == 0; ++i) {
    order = compare_values(a[i], b[i], strictly);
  }
  return order;
}

template <class T> const value_type &value_of() {
  static const value_type value = [] {
    value_type made{};
    made.size = sizeof(T);
    made.alignment = std::is_arithmetic_v<T> ? sizeof(T) : alignof(T);
    if constexpr (has_fields<T>) {
      made.record = &row_of<T>();
    }
    made.fill = [](void *v, randomness &random) { fill_value(*static_cast<T *>(v), random); };
    made.compare = [](const void *a, const void *b, bool strictly) {
      return compare_values(*static_cast<const T *>(a), *static_cast<const T *>(b), strictly);
    };
    return made;
  }();
  return value;
}

// ---- kinds of field that are filled or compared otherwise than member by member

// The first `begin` characters are the mark of a secret.
template <auto Member>
void fill_as(const zel::ravix::bounded_text<Member> & /*field*/, record_of<Member> &r, randomness &random,
             std::size_t begin = 0) {
  constexpr std::size_t N = sizeof(r.*Member);
  std::memset(r.*Member, random.kind == variety::hostile ? 'x' : 0, N);
  std::memcpy(r.*Member, secret_mark.data(), begin);
  random.word(&(r.*Member)[begin], N - 1 - begin);
}
template <auto Length, auto Octets>
void fill_as(const zel::ravix::counted_octets<Length, Octets> & /*field*/, record_of<Length> &r, randomness &random,
             std::size_t begin = 0) {
  constexpr std::size_t N = sizeof(r.*Octets);
  const std::uint32_t length = random.up_to(N - 1);
  std::memset(r.*Octets, 0, N);
  random.bytes(r.*Octets, length);
  std::memcpy(r.*Octets, secret_mark.data(), begin);
  r.*Length =
      static_cast<std::uint8_t>(std::max<std::size_t>(length, begin) + (random.kind == variety::hostile ? N : 0));
}
template <class Kind, class R> void fill_as(const zel::ravix::secret<Kind> &field, R &r, randomness &random) {
  fill_as(static_cast<const Kind &>(field), r, random, secret_mark.size());
}

template <auto Length, auto Octets>
void fill_as(const zel::ravix::owned_octets<Length, Octets> & /*field*/, record_of<Length> &r, randomness &random) {
  r.*Length = static_cast<std::uint8_t>(random.some(255));
  if (r.*Length != 0 && random.kind != variety::hostile) {
    r.*Octets = static_cast<std::uint8_t *>(slab_dcalloc(1, r.*Length, "tests", __LINE__));
    random.bytes(r.*Octets, r.*Length);
  }
}
template <auto Length, auto Octets>
int compare_as(const zel::ravix::owned_octets<Length, Octets> & /*field*/, const record_of<Length> &a,
               const record_of<Length> &b, bool strictly) {
  return compare_arrays(a.*Octets, a.*Length, b.*Octets, b.*Length, strictly);
}

template <class T, class Meaning>
void fill_as(const zel::ravix::entries<T, Meaning> & /*field*/, T &table, randomness &random) {
  if (random.kind == variety::hostile && random.absent()) {
    table.count = random.up_to(UINT32_MAX);
  } else {
    row_of<T>().fill_table(&table, random.some(3), random);
  }
}
template <class T, class Meaning>
int compare_as(const zel::ravix::entries<T, Meaning> & /*field*/, const T &a, const T &b, bool strictly) {
  return compare_arrays(a.data, a.count, b.data, b.count, strictly);
}

template <auto Member>
void fill_as(const zel::ravix::role_config<Member> & /*field*/, record_of<Member> &r, randomness &random) {
  do {
    fill_value(r.*Member, random);
  } while (r.*Member == nullptr && random.kind != variety::hostile); // a role without it is refused
}

template <class Kind, class R> field_type field_of(const Kind &field, const R &empty);

void choose(ravix_cfg_auto_update_rule_t &rule, randomness &random) {
  rule.type = 1 + random.up_to(1);
}
void choose(ravix_cfg_role_static_t &role, randomness &random) {
  role.op_mode = static_cast<std::uint8_t>(random.up_to(UINT8_MAX));
}
template <class Tag, class First, class Second, class R>
field_type chosen_of(const zel::ravix::tagged<Tag, First, Second> &field, const R &r) {
  return Tag::is_second(r) ? field_of(field.second, r) : field_of(field.first, r);
}
template <class Tag, class First, class Second, class R>
void fill_as(const zel::ravix::tagged<Tag, First, Second> &field, R &r, randomness &random) {
  while (field.which(r) == 0 && random.kind != variety::hostile) {
    choose(r, random);
  }
  if (field.which(r) != 0) {
    chosen_of(field, r).fill(&r, random);
  }
}
template <class Tag, class First, class Second, class R>
int compare_as(const zel::ravix::tagged<Tag, First, Second> &field, const R &a, const R &b, bool strictly) {
  const int order = field.which(a) - field.which(b);
  return order != 0 ? order : chosen_of(field, a).compare(&a, &b, strictly);
}

// Filled and compared member by member.
field_type plain_field(const char *name, bool is_compared, std::vector<field_type::member> members) {
  field_type row{name, is_compared, std::move(members), {}, {}};
  row.fill = [list = row.members](void *r, randomness &random) {
    for (const auto &[offset, type] : list) {
      type->fill(static_cast<char *>(r) + offset, random);
    }
  };
  row.compare = [list = row.members](const void *a, const void *b, bool strictly) {
    return first_order(list, [&](const field_type::member &member) {
      const auto at = [&](const void *r) { return static_cast<const char *>(r) + member.offset; };
      return member.type->compare(at(a), at(b), strictly);
    });
  };
  return row;
}

template <class Kind, class R>
concept uncompared = requires(const Kind &field, const R &r) {
  field.difference(r, r);
};

template <class Kind, class R> field_type field_of(const Kind &field, const R &empty) {
  std::vector<field_type::member> members;
  field.members(empty, [&](const auto &member) {
    const auto offset = reinterpret_cast<const char *>(&member) - reinterpret_cast<const char *>(&empty);
    members.push_back({static_cast<std::size_t>(offset), &value_of<std::remove_cvref_t<decltype(member)>>()});
  });
  field_type row = plain_field(field.name, !uncompared<Kind, R>, std::move(members));
  if constexpr (requires(R & r, randomness & random) { fill_as(field, r, random); }) {
    row.fill = [&field](void *r, randomness &random) { fill_as(field, *static_cast<R *>(r), random); };
  }
  if constexpr (requires { compare_as(field, empty, empty, true); }) {
    row.compare = [&field](const void *a, const void *b, bool strictly) {
      return compare_as(field, *static_cast<const R *>(a), *static_cast<const R *>(b), strictly);
    };
  }
  return row;
}

// ---- records

template <class R, class... T> constexpr bool is_one_of = (std::is_same_v<R, T> || ...);

// An operation on records of a type, as one on those of any type.
template <class A>
using untyped = std::conditional_t<!std::is_pointer_v<A>, A,
                                   std::conditional_t<std::is_const_v<std::remove_pointer_t<A>>, const void *, void *>>;
template <auto Operation> struct erased;
template <class Result, class... A, Result (*Operation)(A...)> struct erased<Operation> {
  static untyped<Result> call(untyped<A>... arguments) { return Operation(static_cast<A>(arguments)...); }
};

template <class R> record_type make_row() {
  using operations = zel::ravix::operations<R>;
  constexpr bool is_table = requires {
    operations::init;
  };
  record_type row{};
  const std::string name = typeid(R).name();
  row.name = name.substr(name.find_first_not_of("0123456789")); // behind its length
  row.info = &typeid(R);
  row.size = sizeof(R);
  R empty{};
  operations::clear(&empty);
  zel::ravix::for_each_field<R>([&](const auto &field) { row.fields.push_back(field_of(field, empty)); });
  row.compares_references = is_one_of<R, ravix_tlv_t, ravix_tlv_table_t>;
  row.copies_leniently = is_one_of<R, ravix_remote_ap_entry_t, ravix_remote_ap_table_t, ravix_remote_client_entry_t,
                                   ravix_remote_client_table_t>;
  const auto allocates = [&](auto &...function) {
    (row.allocating.push_back(reinterpret_cast<const void *>(&function)), ...);
  };
  allocates(operations::create, operations::clone, operations::copy);
  row.clone = erased<operations::clone>::call;
  row.copy = erased<operations::copy>::call;
  row.clear = erased<operations::clear>::call;
  row.free = erased<operations::free>::call;
  if constexpr (requires { operations::compare; }) {
    row.compare = erased<operations::compare>::call;
  }
  if constexpr (requires(std::ostream & os) { os << empty; }) {
    row.print = [](std::ostream &os, const void *r) { os << *static_cast<const R *>(r); };
  }
  if constexpr (requires(std::ostream & os) { print_diff(os, empty, &empty, "", 1, true); }) {
    row.print_diff = [](std::ostream &os, const void *r, const void *ref, const char *heading) {
      print_diff(os, *static_cast<const R *>(r), static_cast<const R *>(ref), heading, 1, true);
    };
  }
  if constexpr (is_table) {
    allocates(operations::init, operations::add_entry);
    row.create = erased<operations::create>::call;
    row.element = &value_of<zel::ravix::element_of<R>>();
    row.count = [](void *t) { return &static_cast<R *>(t)->count; };
    row.data = [](const void *t) -> void * { return static_cast<const R *>(t)->data; };
    row.init = erased<operations::init>::call;
    row.add_entry = erased<operations::add_entry>::call;
  } else {
    row.create = [](unsigned /*count*/) -> void * { return operations::create(); };
  }
  if constexpr (requires { operations::contains_entry; }) {
    row.contains_entry = erased<operations::contains_entry>::call;
  }
  return row;
}

template <class R> const record_type &row_of() {
  static const record_type row = make_row<R>();
  return row;
}

// What the public headers declare for a record: what the names of its operations begin with, and its family's source.
struct declaration {
  std::string prefix, source;
};

// By the names of the structures.
const std::map<std::string, declaration> &declared_operations() {
  static const auto found = [] {
    std::map<std::string, declaration> all;
    const std::regex copy(R"((\w+)_copy\(const (\w+)_t \*src)");
    for (const auto &header : std::filesystem::directory_iterator(RAVIX_INCLUDE)) {
      std::ifstream file(header.path());
      const std::string text{std::istreambuf_iterator<char>(file), {}};
      for (std::sregex_iterator match(text.begin(), text.end(), copy), end; match != end; ++match) {
        all[(*match)[2]] = {(*match)[1], "src/" + header.path().stem().string()};
      }
    }
    return all;
  }();
  return found;
}

} // namespace

const std::vector<const record_type *> &record_types() {
  static const auto rows = [] {
    std::vector<const record_type *> all;
    zel::ravix::for_each_record([&]<class R>(const char * /*name*/) { all.push_back(&row_of<R>()); });
    return all;
  }();
  return rows;
}

const record_type &type_of(const std::type_info &info) {
  return **std::find_if(record_types().begin(), record_types().end(),
                        [&](const record_type *type) { return *type->info == info; });
}

bool field_type::has_same_octets(const void *a, const void *b) const {
  return std::ranges::all_of(members, [&](const member &m) {
    return std::memcmp(static_cast<const char *>(a) + m.offset, static_cast<const char *>(b) + m.offset,
                       m.type->size) == 0;
  });
}

void field_type::take(void *to, const void *from) const {
  for (const member &m : members) {
    std::memcpy(static_cast<char *>(to) + m.offset, static_cast<const char *>(from) + m.offset, m.type->size);
  }
}

void record_type::fill(void *r, randomness &random) const {
  for (const field_type &field : fields) {
    field.fill(r, random);
  }
  if (*info == typeid(ravix_ip_addr_t)) {
    auto &address = *static_cast<ravix_ip_addr_t *>(r);
    address.version = static_cast<std::uint8_t>(random.kind == variety::hostile ? 77 : 1 + random.up_to(1));
    if (address.version == RAVIX_IP_VERSION_4) {
      std::memset(&address.addr[4], 0, sizeof address.addr - 4); // do not count
    }
  }
}

void record_type::fill_table(void *table, std::uint32_t wanted, randomness &random) const {
  init(table, wanted);
  for (std::uint32_t i = 0; i < *count(table); ++i) {
    element->fill(at(table, i), random);
  }
}

std::string record_type::difference(const void *a, const void *b) const {
  const auto found =
      std::ranges::find_if(fields, [&](const field_type &field) { return field.compare(a, b, true) != 0; });
  return found != fields.end() ? found->name : "";
}

std::string record_type::site(const std::string &operation) const {
  const auto &[prefix, source] = declared_operations().at(name);
  const bool is_bare_table = element != nullptr && fields.size() == 1;
  const bool is_exported = operation == "copy" && !is_bare_table;
  const bool is_of_tables = element != nullptr && operation != "clone";
  return source + " " + (is_exported ? prefix + "_" : is_of_tables ? "generic_table_" : "generic_") + operation;
}

int record_type::order(const void *a, const void *b, bool strictly) const {
  return first_order(fields, [&](const field_type &field) {
    return strictly || field.is_compared ? field.compare(a, b, strictly) : 0;
  });
}

// ---- what must hold of every operation

// What a run works on.
struct trial::records {
  any_sample source, source_twin, dest, dest_twin, empty;
};

void trial::require(bool holds, const char *invariant) {
  if (!holds && broken.empty()) {
    broken = (type_ != nullptr ? type_->name : "") + ", request " + std::to_string(k_) + ": " + invariant;
  }
}

bool is_told_by(const std::vector<log_line> &lines, const std::string &site) {
  return std::ranges::any_of(lines, [&](const log_line &line) { return line.file + " " + line.function == site; });
}

// Runs an operation; tells whether it succeeded and did so in full.
bool trial::succeeds(const std::string &name, const std::function<bool()> &operation) {
  log.take();
  onward_ ? heap.fail_from(k_) : heap.fail_only(k_);
  const bool succeeded = operation();
  const bool failed = k_ != 0 && heap.requests() >= k_;
  heap.fail_only(0);
  reached_ = reached_ || failed;
  bool text_lost = type_ != nullptr && type_->copies_leniently;
  const auto lines = log.take();
  for (const log_line &line : lines) {
    require(line.name == "ravix" || is_hostile_, "the module of a line");
    require(line.file.starts_with("src/ravix_types_") && line.file.find('.') == std::string::npos, "its source");
    require(!line.function.empty() && line.line > 0, "its place");
    // A text that a lenient copy has lost is told by the copy's own line and nothing else.
    text_lost = text_lost && line.function.ends_with("_entry_copy") && line.text == "No memory available!";
  }
  require(!failed || !lines.empty(), "a failed request is told");
  require(failed || lines.empty() || is_hostile_, "nothing is told without need");
  require(succeeded == (lines.empty() || text_lost), "an operation that fails says so");
  require(succeeded || type_ == nullptr || is_told_by(lines, type_->site(name)), "and where");
  return succeeded && lines.empty();
}

bool trial::run(const std::function<bool()> &operation, std::size_t k, bool onward) {
  type_ = nullptr;
  is_hostile_ = false;
  k_ = k;
  onward_ = onward;
  reached_ = false;
  succeeds("", operation);
  return reached_;
}

bool trial::run(const record_type &type, const randomness &first, const randomness &second, std::size_t k,
                bool onward) {
  type_ = &type;
  is_hostile_ = first.kind == variety::hostile;
  k_ = k;
  onward_ = onward;
  reached_ = false;
  const std::size_t before = heap.live();
  {
    const records all{{type, first}, {type, first}, {type, second}, {type, second}, any_sample(type)};
    print(all);
    grow(all);
    copy(all);
  }
  require(heap.live() == before, "no block is left");
  return reached_;
}

void trial::print(const records &all) {
  log.take();
  std::ostringstream out, changes;
  if (type_->print != nullptr) {
    type_->print(out, all.source);
  }
  if (type_->print_diff != nullptr) {
    type_->print_diff(changes, all.source, all.dest, nullptr);
    require(changes.str().empty() == (type_->compare(all.source, all.dest) == 0), "a print of what differs");
    type_->print_diff(out, all.source, nullptr, "name");
    type_->print_diff(out, all.dest, all.source, nullptr);
  }
  require((out.str() + changes.str()).find('\0') == std::string::npos, "what is printed is text");
  require(log.take().empty(), "printing logs nothing");
}

void trial::copy(const records &all) {
  const record_type &type = *type_;
  require(is_hostile_ || type.compare == nullptr || type.compare(all.source, all.source) == 0, "equal to itself");
  void *clone = nullptr;
  const bool is_cloned = succeeds("clone", [&] { return (clone = type.clone(all.source)) != nullptr; });
  int code = 0;
  const bool is_copied = succeeds("copy", [&] { return (code = type.copy(all.source, all.dest)) == 0; });
  const bool is_empty = type.difference(all.dest, all.empty).empty();
  const bool is_refused = code == -22 && is_hostile_;
  require(code == 0 || code == -12 || code == RAVIX_FAIL_GENERAL || is_refused, "the result of a copy");
  const int self_code = type.copy(all.source, all.source); // goes by the value alone, whatever memory is left
  const auto lines = log.take();
  require(k_ != 0 || self_code == (code == 0 ? 0 : -22), "a copy onto itself is refused as any other");
  require(self_code == 0 ? lines.empty() : lines.size() == 1 && is_told_by(lines, type.site("copy")), "in one line");
  require(code == 0 || is_empty || (is_refused && type.difference(all.dest, all.dest_twin).empty()), "all or nothing");
  require(type.difference(all.source, all.source_twin).empty(), "the source is unchanged");
  require(!is_cloned || !is_copied || type.difference(clone, all.dest).empty(), "copies are the same");
  for (const bool is_cleared : {false, true}) {
    const void *source = is_cleared ? all.source_twin : all.source;
    require(is_hostile_ || !is_cloned || type.difference(clone, source).empty(), "a clone is the same");
    require(is_hostile_ || !is_copied || type.difference(all.dest, source).empty(), "a copy is the same");
    type.clear(all.source);
    require(is_hostile_ || type.difference(all.source, all.empty).empty(), "a cleared record is empty");
  }
  require(!is_cloned || heap.size_of(clone) == type.size, "no more memory than a record has");
  type.free(clone);
  require(!is_cloned || heap.last_release() == heap::tag{"src/ravix_types_generic_simple", 99}, "who releases it");
}

void trial::grow(const records &all) {
  const record_type &type = *type_;
  std::vector<std::byte> blank(type.element != nullptr ? type.element->size : 0);
  if (type.element != nullptr && type.element->record != nullptr) {
    type.element->record->clear(blank.data());
  }
  // Whether it is a table of that many empty elements, or an empty record of another kind.
  const auto is_new = [&](void *made, std::uint32_t count) {
    if (type.element == nullptr || count == 0) {
      return type.difference(made, all.empty).empty();
    }
    bool is_blank = *type.count(made) == count && heap.size_of(type.data(made)) == count * blank.size();
    for (std::uint32_t i = 0; i < count && is_blank; ++i) {
      is_blank = type.element->compare(type.at(made, i), blank.data(), true) == 0;
    }
    return is_blank;
  };
  for (const std::uint32_t count : {0U, 3U}) {
    void *made = nullptr;
    if (succeeds("create", [&] { return (made = type.create(count)) != nullptr; })) {
      require(heap.size_of(made) == type.size && is_new(made, count), "a new record is empty");
    }
    type.free(made);
  }
  if (type.element == nullptr) {
    return;
  }
  int code = 0;
  const any_sample table(type, 1);
  if (succeeds("init", [&] { return (code = type.init(table, 3)) == 0; })) {
    require(is_new(table, 3), "new elements are empty");
  }
  require(code == 0 || (code == -12 && *type.count(table) == 0), "the result of an initialisation");
  require(type.init(table, 0) == 0 && *type.count(table) == 0 && type.data(table) == nullptr, "a table without any");
  const void *entry = type.data(all.source);
  if (entry == nullptr || *type.count(all.source) == 0) {
    return;
  }
  const std::uint32_t count = *type.count(all.dest);
  const bool is_added = succeeds("add_entry", [&] { return (code = type.add_entry(all.dest, entry)) == 0; });
  require(code == 0 || code == -12 || is_hostile_, "the result of an addition");
  require(*type.count(all.dest) == count + (code == 0 ? 1 : 0), "an entry more");
  for (std::uint32_t i = 0; i < count; ++i) {
    require(type.element->compare(type.at(all.dest, i), type.at(all.dest_twin, i), true) == 0, "the others remain");
  }
  const void *added = type.at(all.dest, count);
  if (!is_added) {
    const bool has_spare = code != 0 && heap.size_of(type.data(all.dest)) > count * blank.size();
    const std::vector<std::byte> zeros(blank.size());
    require(!has_spare || std::memcmp(added, zeros.data(), zeros.size()) == 0, "a spare entry is zero-filled");
    return;
  }
  require(heap.size_of(type.data(all.dest)) == (count + 1) * blank.size(), "an array of the entries alone");
  require(is_hostile_ || type.element->compare(added, entry, true) == 0, "the entry is the same");
  if (succeeds("add_entry", [&] { return type.add_entry(all.dest, added) == 0; })) {
    require(type.element->compare(type.at(all.dest, count), type.at(all.dest, count + 1), true) == 0,
            "an entry of the table itself");
  }
}

} // namespace harness
