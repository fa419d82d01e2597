#include "record_tools.hpp"

#include "ravix_types_printers.hpp"

#include <algorithm>
#include <cstring>
#include <sstream>
#include <type_traits>

namespace harness {

using zel::ravix::has_fields;
using zel::ravix::operations;

// ---- records at random

std::uint32_t randomness::up_to(std::uint32_t most) {
  if (choices_++ == same_) {
    engine_.seed(scattered(same_ + 1000003));
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

// ---- values

template <class R> void fill(R &r, randomness &random);
template <class R> int order(const R &a, const R &b, bool strictly);

template <class T> void fill_value(T &value, randomness &random) {
  if constexpr (has_fields<T>) {
    fill(value, random);
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
      fill(*value, random);
    }
  } else {
    random.bytes(&value, sizeof(T));
  }
}

template <class E> int order_arrays(const E *a, std::size_t count_a, const E *b, std::size_t count_b, bool strictly);

template <class T> int order_values(const T &a, const T &b, bool strictly) {
  if constexpr (has_fields<T>) {
    return order(a, b, strictly);
  } else if constexpr (std::is_same_v<T, char *>) {
    const std::size_t length = a != nullptr && b != nullptr ? std::min(std::strlen(a), std::strlen(b)) + 1 : 0;
    return order_arrays(a, length, b, length, strictly);
  } else if constexpr (std::is_pointer_v<T> && has_fields<std::remove_pointer_t<T>>) {
    return order_arrays(a, 1, b, 1, strictly);
  } else if constexpr (std::is_scalar_v<T> && !std::is_same_v<T, bool>) { // a flag may be any octet
    return (a > b) - (a < b);
  } else {
    return std::memcmp(&a, &b, sizeof(T));
  }
}

template <class E> int order_arrays(const E *a, std::size_t count_a, const E *b, std::size_t count_b, bool strictly) {
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
    order = order_values(a[i], b[i], strictly);
  }
  return order;
}

// ---- fields, member by member unless their kind asks for more

template <class Kind, class R> void fill_field(const Kind &field, R &r, randomness &random) {
  field.members(r, [&]<class T>(const T &member) { fill_value(const_cast<T &>(member), random); });
}
template <class Kind, class R> int order_field(const Kind &field, const R &a, const R &b, bool strictly) {
  int order = 0;
  field.members(a, [&]<class T>(const T &member) {
    const auto offset = reinterpret_cast<const char *>(&member) - reinterpret_cast<const char *>(&a);
    const auto *other = reinterpret_cast<const T *>(reinterpret_cast<const char *>(&b) + offset);
    order = order != 0 ? order : order_values(member, *other, strictly);
  });
  return order;
}

template <auto Member, class R>
void fill_field(const zel::ravix::bounded_text<Member> & /*field*/, R &r, randomness &random) {
  std::memset(r.*Member, random.kind == variety::hostile ? 'x' : 0, sizeof(r.*Member));
  random.word(r.*Member, sizeof(r.*Member) - 1);
}

template <auto Length, auto Octets, class R>
void fill_field(const zel::ravix::counted_octets<Length, Octets> & /*field*/, R &r, randomness &random) {
  constexpr std::size_t size = sizeof(r.*Octets);
  const std::uint32_t length = random.up_to(size - 1);
  random.bytes(r.*Octets, length);
  r.*Length = static_cast<std::uint8_t>(length + (random.kind == variety::hostile ? size : 0));
}

// Begins with the mark of secrets.
template <class Kind, class R> void fill_field(const zel::ravix::secret<Kind> &field, R &r, randomness &random) {
  fill_field(static_cast<const Kind &>(field), r, random);
  field.members(r, []<class T>(const T &member) {
    auto &value = const_cast<T &>(member);
    if constexpr (std::is_array_v<T>) {
      std::memcpy(value, secret_mark.data(), secret_mark.size());
    } else {
      value = std::max(value, static_cast<T>(secret_mark.size()));
    }
  });
}

template <auto Length, auto Octets, class R>
void fill_field(const zel::ravix::owned_octets<Length, Octets> & /*field*/, R &r, randomness &random) {
  r.*Length = static_cast<std::uint8_t>(random.some(255));
  if (r.*Length != 0 && random.kind != variety::hostile) {
    r.*Octets = static_cast<std::uint8_t *>(slab_dcalloc(1, r.*Length, "tests", __LINE__));
    random.bytes(r.*Octets, r.*Length);
  }
}
template <auto Length, auto Octets, class R>
int order_field(const zel::ravix::owned_octets<Length, Octets> & /*field*/, const R &a, const R &b, bool strictly) {
  return order_arrays(a.*Octets, a.*Length, b.*Octets, b.*Length, strictly);
}

template <class T, class Meaning>
void fill_field(const zel::ravix::entries<T, Meaning> & /*field*/, T &table, randomness &random) {
  if (random.kind == variety::hostile && random.absent()) {
    table.count = random.up_to(UINT32_MAX);
    return;
  }
  operations<T>::init(&table, random.some(3));
  std::for_each(table.data, table.data + table.count, [&](auto &element) { fill_value(element, random); });
}
template <class T, class Meaning>
int order_field(const zel::ravix::entries<T, Meaning> & /*field*/, const T &a, const T &b, bool strictly) {
  return order_arrays(a.data, a.count, b.data, b.count, strictly);
}

// Neither of the two, or a role without what it owns, is refused.
template <class Tag, class First, class Second, class R>
void fill_field(const zel::ravix::tagged<Tag, First, Second> &field, R &r, randomness &random) {
  do {
    r.*Tag::member = static_cast<std::uint8_t>(random.up_to(RAVIX_ROLE_OPMODE_INVALID_MAX));
    field.use(r, [&](const auto &chosen) { fill_field(chosen, r, random); });
  } while (random.kind != variety::hostile && !field.accepts(r));
}
template <class Tag, class First, class Second, class R>
int order_field(const zel::ravix::tagged<Tag, First, Second> &field, const R &a, const R &b, bool strictly) {
  const int order = field.which(a) - field.which(b);
  return order != 0          ? order
         : Tag::is_second(a) ? order_field(field.second, a, b, strictly)
                             : order_field(field.first, a, b, strictly);
}

// ---- records

template <class R> void fill(R &r, randomness &random) {
  zel::ravix::for_each_field<R>([&](const auto &field) { fill_field(field, r, random); });
  if constexpr (std::is_same_v<R, ravix_ip_addr_t>) {
    r.version = static_cast<std::uint8_t>(random.kind == variety::hostile ? 77 : 1 + random.up_to(1));
    if (r.version == RAVIX_IP_VERSION_4) {
      std::memset(&r.addr[4], 0, sizeof r.addr - 4); // do not count
    }
  }
}

template <class R> int order(const R &a, const R &b, bool strictly) {
  static const record_type &type = type_of(typeid(R));
  return type.order(&a, &b, strictly);
}

// An operation on records of a type, as one on those of any type.
template <class A>
using untyped = std::conditional_t<!std::is_pointer_v<A>, A,
                                   std::conditional_t<std::is_const_v<std::remove_pointer_t<A>>, const void *, void *>>;
template <auto Operation> struct erased;
template <class Result, class... A, Result (*Operation)(A...)> struct erased<Operation> {
  static untyped<Result> call(untyped<A>... arguments) { return Operation(static_cast<A>(arguments)...); }
};
template <class Kind, class R> int order_any_field(const void *kind, const void *a, const void *b, bool strictly) {
  return order_field(*static_cast<const Kind *>(kind), *static_cast<const R *>(a), *static_cast<const R *>(b),
                     strictly);
}
template <class T> int order_any(const void *a, const void *b, bool strictly) {
  return order_values(*static_cast<const T *>(a), *static_cast<const T *>(b), strictly);
}

void add_field(record_type &row, const field_type &field) {
  if (!row.fields.empty()) {
    row.fields.back().end = field.begin;
  }
  row.fields.push_back(field);
}

template <class R> record_type row_of(const char *prefix, const char *type, const char *source) {
  using operations = zel::ravix::operations<R>;
  record_type row{};
  row.name = std::string(type, std::strlen(type) - 2); // without "_t"
  row.info = &typeid(R);
  row.size = sizeof(R);
  zel::ravix::for_each_field<R>([&]<class Kind>(const Kind &field) {
    constexpr bool is_compared = !requires(const R &r) {
      field.difference(r, r);
    };
    add_field(row, {field.name, field.offset, sizeof(R), is_compared, &field, order_any_field<Kind, R>});
  });
  row.prefix = prefix;
  row.source = source;
  row.compares_references = row.name.starts_with("ravix_tlv");
  row.copies_leniently = row.name.starts_with("ravix_remote_");
  row.clone = erased<operations::clone>::call;
  row.copy = erased<operations::copy>::call;
  row.clear = erased<operations::clear>::call;
  row.free = erased<operations::free>::call;
  row.fill = [](void *r, randomness &random) { fill(*static_cast<R *>(r), random); };
  if constexpr (requires { operations::compare; }) {
    row.compare = erased<operations::compare>::call;
    row.print_diff = [](std::ostream &os, const void *r, const void *ref, const char *name, unsigned indent,
                        bool newline) {
      print_diff(os, *static_cast<const R *>(r), static_cast<const R *>(ref), name, indent, newline);
    };
  }
  if constexpr (requires(std::ostream & os, const R &r) { os << r; }) {
    row.print = [](std::ostream &os, const void *r) { os << *static_cast<const R *>(r); };
  }
  if constexpr (requires { operations::init; }) {
    using E = zel::ravix::element_of<R>;
    row.create = erased<operations::create>::call;
    row.element_size = sizeof(E);
    if constexpr (has_fields<E>) {
      row.clear_element = erased<zel::ravix::operations<E>::clear>::call;
    }
    row.order_elements = order_any<E>;
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

} // namespace

const std::vector<const record_type *> &record_types() {
#define ROW_OF(NAME, TYPE, SOURCE)                                                                                     \
  [] {                                                                                                                 \
    static const record_type row = row_of<TYPE>(#NAME, #TYPE, "src/" SOURCE);                                          \
    return &row;                                                                                                       \
  }(),
#define RAVIX_COMMON_RECORD(NAME, TYPE, ...) ROW_OF(NAME, TYPE, "ravix_types_common")
#define RAVIX_RADIO_ENV_RECORD(NAME, TYPE, ...) ROW_OF(NAME, TYPE, "ravix_types_radio_env")
#define RAVIX_API_REQUEST_RECORD(NAME, TYPE, ...) ROW_OF(NAME, TYPE, "ravix_types_api_request")
#define RAVIX_STA_RECORD(NAME, TYPE, ...) ROW_OF(NAME, TYPE, "ravix_types_sta")
#define RAVIX_CFG_RECORD(NAME, TYPE, ...) ROW_OF(NAME, TYPE, "ravix_types_cfg")
#define RAVIX_EVENT_RECORD(NAME, TYPE, ...) ROW_OF(NAME, TYPE, "ravix_types_event")
#define RAVIX_RADIOD_HAL_RECORD(NAME, TYPE, ...) ROW_OF(NAME, TYPE, "ravix_types_radiod_hal")
  static const std::vector<const record_type *> rows = {
#include "ravix_types_records.def"
  };
  return rows;
}

const record_type &type_of(const std::type_info &info) {
  return **std::ranges::find_if(record_types(), [&](const record_type *type) { return *type->info == info; });
}

bool field_type::has_same_octets(const void *a, const void *b) const {
  return std::memcmp(static_cast<const char *>(a) + begin, static_cast<const char *>(b) + begin, end - begin) == 0;
}
void field_type::take(void *to, const void *from) const {
  std::memcpy(static_cast<char *>(to) + begin, static_cast<const char *>(from) + begin, end - begin);
}

int record_type::order(const void *a, const void *b, bool strictly) const {
  int order = 0;
  for (auto field = fields.begin(); order == 0 && field != fields.end(); ++field) {
    order = strictly || field->is_compared ? field->compare(a, b, strictly) : 0;
  }
  return order;
}

std::string record_type::difference(const void *a, const void *b) const {
  const auto found = std::ranges::find_if(fields, [&](const auto &field) { return field.compare(a, b, true) != 0; });
  return found != fields.end() ? found->name : "";
}

std::string record_type::site(const std::string &operation) const {
  const bool is_exported = operation == "copy" && (init == nullptr || fields.size() > 1);
  const bool is_of_tables = init != nullptr && operation != "clone";
  return source + " " + (is_exported ? prefix + "_" : is_of_tables ? "generic_table_" : "generic_") + operation;
}

// ---- what must hold of every operation

// What a run works on.
struct trial::records {
  any_sample source, source_twin, dest, dest_twin, empty;
};

void trial::require(bool holds, const char *invariant) {
  if (!holds && broken.empty()) {
    broken = (now_.type != nullptr ? now_.type->name : "") + ", request " + std::to_string(now_.k) + ": " + invariant;
  }
}

bool is_told_by(const std::vector<log_line> &lines, const std::string &site) {
  return std::ranges::any_of(lines, [&](const log_line &line) { return line.file + " " + line.function == site; });
}

// Runs an operation; tells whether it succeeded and did so in full.
bool trial::succeeds(const std::string &name, const std::function<bool()> &operation) {
  const auto &[type, is_hostile, onward, k, is_reached] = now_;
  log.take();
  onward ? heap.fail_from(k) : heap.fail_only(k);
  const bool succeeded = operation();
  const bool failed = k != 0 && heap.requests() >= k;
  heap.fail_only(0);
  now_.is_reached = is_reached || failed;
  bool text_lost = type != nullptr && type->copies_leniently;
  const auto lines = log.take();
  for (const log_line &line : lines) {
    require(line.name == "ravix" || is_hostile, "the module of a line");
    require(line.file.starts_with("src/ravix_types_") && line.file.find('.') == std::string::npos, "its source");
    require(!line.function.empty() && line.line > 0, "its place");
    // A text that a lenient copy has lost is told by the copy's own line and nothing else.
    text_lost = text_lost && line.function.ends_with("_entry_copy") && line.text == "No memory available!";
  }
  require(!failed || !lines.empty(), "a failed request is told");
  require(failed || lines.empty() || is_hostile, "nothing is told without need");
  require(succeeded == (lines.empty() || text_lost), "an operation that fails says so");
  require(succeeded || type == nullptr || is_told_by(lines, type->site(name)), "and where");
  return succeeded && lines.empty();
}

bool trial::run(const std::function<bool()> &operation, std::size_t k, bool onward) {
  now_ = {nullptr, false, onward, k};
  succeeds("", operation);
  return now_.is_reached;
}

bool trial::run(const record_type &type, const randomness &first, const randomness &second, std::size_t k,
                bool onward) {
  now_ = {&type, first.kind == variety::hostile, onward, k};
  const std::size_t before = heap.live();
  {
    const records all{{type, first}, {type, first}, {type, second}, {type, second}, any_sample(type)};
    if (k == 0) { // asks for no memory
      print(all);
    }
    grow(all);
    copy(all);
  }
  require(heap.live() == before, "no block is left");
  return now_.is_reached;
}

void trial::print(const records &all) {
  const record_type &type = *now_.type;
  log.take();
  std::ostringstream out, changes;
  if (type.print != nullptr) {
    type.print(out, all.source);
  }
  if (type.print_diff != nullptr) {
    type.print_diff(changes, all.source, all.dest, nullptr, 1, true);
    require(changes.str().empty() == (type.compare(all.source, all.dest) == 0), "a print of what differs");
    type.print_diff(out, all.source, nullptr, "name", 1, true);
    type.print_diff(out, all.dest, all.source, nullptr, 1, true);
  }
  require((out.str() + changes.str()).find('\0') == std::string::npos, "what is printed is text");
  require(log.take().empty(), "printing logs nothing");
}

void trial::copy(const records &all) {
  const record_type &type = *now_.type;
  const bool is_hostile = now_.is_hostile;
  const auto same = [&](const void *a, const void *b) { return type.difference(a, b).empty(); };
  require(is_hostile || type.compare == nullptr || type.compare(all.source, all.source) == 0, "equal to itself");
  void *clone = nullptr;
  const bool is_cloned = succeeds("clone", [&] { return (clone = type.clone(all.source)) != nullptr; });
  int code = 0;
  const bool is_copied = succeeds("copy", [&] { return (code = type.copy(all.source, all.dest)) == 0; });
  const bool is_refused = code == -22 && is_hostile;
  require(code == 0 || code == -12 || code == RAVIX_FAIL_GENERAL || is_refused, "the result of a copy");
  require(code == 0 || same(all.dest, all.empty) || (is_refused && same(all.dest, all.dest_twin)), "all or nothing");
  const int self_code = type.copy(all.source, all.source); // goes by the value alone, whatever memory is left
  const auto lines = log.take();
  require(now_.k != 0 || self_code == (code == 0 ? 0 : -22), "a copy onto itself is refused as any other");
  require(self_code == 0 ? lines.empty() : lines.size() == 1 && is_told_by(lines, type.site("copy")), "in one line");
  require(same(all.source, all.source_twin), "the source is unchanged");
  require(!is_cloned || !is_copied || same(clone, all.dest), "copies are the same");
  for (const any_sample *source : {&all.source, &all.source_twin}) { // which is still there when the source is cleared
    require(is_hostile || !is_cloned || same(clone, *source), "a clone is the same");
    require(is_hostile || !is_copied || same(all.dest, *source), "a copy is the same");
    type.clear(all.source);
    require(is_hostile || same(all.source, all.empty), "a cleared record is empty");
  }
  require(!is_cloned || heap.size_of(clone) == type.size, "no more memory than a record has");
  type.free(clone);
  require(!is_cloned || heap.last_release() == heap::tag{"src/ravix_types_generic_simple", 99}, "who releases it");
}

void trial::grow(const records &all) {
  const record_type &type = *now_.type;
  std::vector<std::byte> blank(type.element_size);
  if (type.clear_element != nullptr) {
    type.clear_element(blank.data());
  }
  // Whether it is a table of that many empty elements, or an empty record of another kind.
  const auto is_new = [&](void *made, std::uint32_t count) {
    if (type.init == nullptr || count == 0) {
      return type.difference(made, all.empty).empty();
    }
    bool is_blank = *type.count(made) == count && heap.size_of(type.data(made)) == count * blank.size();
    for (std::uint32_t i = 0; i < count && is_blank; ++i) {
      is_blank = type.order_elements(type.at(made, i), blank.data(), true) == 0;
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
  if (type.init == nullptr) {
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
  require(code == 0 || code == -12 || now_.is_hostile, "the result of an addition");
  require(*type.count(all.dest) == count + (code == 0 ? 1 : 0), "an entry more");
  for (std::uint32_t i = 0; i < count; ++i) {
    require(type.order_elements(type.at(all.dest, i), type.at(all.dest_twin, i), true) == 0, "the others remain");
  }
  const void *added = type.at(all.dest, count);
  if (!is_added) {
    const bool has_spare = code != 0 && heap.size_of(type.data(all.dest)) > count * blank.size();
    const std::vector<std::byte> zeros(blank.size());
    require(!has_spare || std::memcmp(added, zeros.data(), zeros.size()) == 0, "a spare entry is zero-filled");
    return;
  }
  require(heap.size_of(type.data(all.dest)) == (count + 1) * blank.size(), "an array of the entries alone");
  require(now_.is_hostile || type.order_elements(added, entry, true) == 0, "the entry is the same");
}

} // namespace harness
