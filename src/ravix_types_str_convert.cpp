#include "ravix_types_str_convert.h"

#include "ravix_types_log.hpp"
#include "ravix_types_names.hpp"
#include "ravix_types_str_ring_buffer.hpp"
#include "ravix_types_util.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <charconv>
#include <chrono>
#include <climits>
#include <cstdarg>
#include <cstdio>
#include <cstring>
#include <ctime>
#include <limits>
#include <mutex>
#include <optional>
#include <string_view>

using namespace zel::ravix;

namespace {

constexpr const char *here = "src/ravix_types_str_convert";

// Logs a null argument; `site` is the function that asks.
bool is_null(const void *pointer, const char *argument, call_site site = here) {
  if (pointer != nullptr) [[likely]] {
    return false;
  }
  log_invalid_pointer(site, argument);
  return true;
}

// --- Building texts ---

// Publishes the text that `build` writes: it gets a place for at most `Longest` characters and returns their end. The
// text grows where it is to stay, unless the area's end is so near that it might not fit; so `build` must change no
// character past the end but the next one, where the terminator goes: older texts lie there. Always inlined, since out
// of line the values would have to be handed over through memory, at a sixth of the whole cost.
template <std::size_t Longest, class Build> [[gnu::always_inline]] inline const char *build_text(Build build) {
  const std::lock_guard lock(format_mutex);
  if (char *place = format_buffer.room_for(Longest); place != nullptr) [[likely]] {
    format_buffer.advance_to(build(place));
  } else {
    char text[Longest]; // far less than the area, so that nothing is cut
    (void)format_buffer.try_append({text, static_cast<std::size_t>(build(text) - text)});
  }
  return format_buffer.finish();
}

// The same by a printf format, for texts that are not worth more.
[[gnu::format(printf, 1, 2)]] const char *ravix_str_format(const char *format, ...) {
  va_list args;
  va_start(args, format);
  std::unique_lock lock(format_mutex);
  const bool complete = format_buffer.try_vwrite(format, args);
  const char *result = format_buffer.finish();
  lock.unlock();
  va_end(args);
  if (!complete) {
    log_too_long();
  }
  return result;
}

// The functions below write one piece of a text and return its end.

template <std::size_t Size> char *put(char *out, const char (&literal)[Size]) {
  std::memcpy(out, literal, Size - 1);
  return out + Size - 1;
}

// Characters of the longest number.
constexpr std::size_t digits = std::numeric_limits<std::uint32_t>::digits10 + 2;

// "00" to "99".
constexpr auto digit_pairs = [] {
  std::array<char, 200> text{};
  for (std::size_t i = 0; i < 100; ++i) {
    text[2 * i] = static_cast<char>('0' + i / 10);
    text[2 * i + 1] = static_cast<char>('0' + i % 10);
  }
  return text;
}();

char *put_pair(char *out, std::uint32_t value) {
  std::memcpy(out, &digit_pairs[std::size_t{2} * value], 2);
  return out + 2;
}

char *put(char *out, std::uint32_t value) {
  if (value >= 10000) {
    out = put_pair(put(out, value / 10000), value / 100 % 100);
    return put_pair(out, value % 100);
  }
  if (value >= 100) {
    out = put(out, value / 100);
    return put_pair(out, value % 100);
  }
  // Of a single digit the leading zero is overwritten: a branch on it would be guessed wrong too often.
  *out = digit_pairs[std::size_t{2} * value];
  out += value >= 10 ? 1 : 0;
  *out = digit_pairs[std::size_t{2} * value + 1];
  return out + 1;
}

char *put(char *out, std::int32_t value) {
  const auto magnitude = static_cast<std::uint32_t>(value);
  *out = '-';
  out += value < 0 ? 1 : 0;
  return put(out, value < 0 ? 0 - magnitude : magnitude);
}

// "%<Width>u".
template <std::size_t Width> struct padded {
  static_assert(Width == 3 || Width == 4);
  std::uint32_t value;
};
template <std::size_t Width> char *put(char *out, padded<Width> number) {
  std::memset(out, ' ', Width);
  const std::size_t blanks = (number.value < 10) + (number.value < 100) + (Width == 4 && number.value < 1000);
  return put(out + blanks, number.value);
}

// The digits of each octet, and at the end how many they are.
constexpr auto octet_digits = [] {
  std::array<char, 1024> text{};
  for (std::size_t octet = 0; octet < 256; ++octet) {
    std::size_t at = 4 * octet;
    for (std::size_t power = 100; power > 0; power /= 10) {
      if (octet >= power || power == 1) {
        text[at++] = static_cast<char>('0' + octet / power % 10);
      }
    }
    text[4 * octet + 3] = static_cast<char>(at - 4 * octet);
  }
  return text;
}();

// "%u" of an octet that another character follows, which is overwritten.
char *put(char *out, std::uint8_t octet) {
  const char *text = &octet_digits[std::size_t{4} * octet];
  std::memcpy(out, text, 4);
  return out + text[3];
}

constexpr char upper_hex[] = "0123456789ABCDEF";
constexpr char lower_hex[] = "0123456789abcdef";

char *put_hex(char *out, std::uint8_t octet, const char (&hex_digits)[17]) {
  *out++ = hex_digits[octet >> 4];
  *out++ = hex_digits[octet & 0xF];
  return out;
}

// "%x", or "%04x" if `zeros` are to be kept.
char *put_hex_group(char *out, std::uint16_t value, bool zeros) {
  for (int shift = 12; shift > 0; shift -= 4) {
    *out = lower_hex[value >> shift & 0xF];
    out += zeros || value >> shift != 0 ? 1 : 0;
  }
  *out = lower_hex[value & 0xF];
  return out + 1;
}

// Octets in upper case; a separator stands before the octets whose bits are set in `separated`.
template <std::size_t Count, unsigned Separated, char Separator>
char *put_octets(char *out, const std::uint8_t *value) {
  for (std::size_t i = 0; i < Count; ++i) {
    if ((Separated >> i & 1U) != 0) {
      *out++ = Separator;
    }
    out = put_hex(out, value[i], upper_hex);
  }
  return out;
}

// Characters that a piece takes at most.
template <class Piece> constexpr std::size_t longest = digits;
template <std::size_t Size> constexpr std::size_t longest<char[Size]> = Size - 1;

// Publishes the pieces, one after the other.
template <class... Pieces> const char *joined(const Pieces &...pieces) {
  return build_text<(longest<Pieces> + ...)>([&](char *out) {
    ((out = put(out, pieces)), ...);
    return out;
  });
}

constexpr unsigned mac_separated = 0b111110;
constexpr unsigned uuid_separated = 0b10101010000;

// --- Names ---

using value_list = name_list<std::int32_t>;

const char *find_name(const value_list &names, std::int32_t value) {
  const std::int32_t *end = names.values + names.count;
  const std::int32_t *found = std::find(names.values, end, value);
  return found != end ? names.name(static_cast<std::size_t>(found - names.values)) : nullptr;
}

template <class Shown> const char *name_or_number(const value_list &names, Shown value) {
  if (const char *name = find_name(names, static_cast<std::int32_t>(value)); name != nullptr) {
    return name;
  }
  return joined("<invalid value: ", value, ">");
}

// Characters of the longest set of flags.
constexpr std::size_t longest_flags = 320;

// Copies the block of each name, since a copy of fixed size is a few instructions; so it builds in a place of its own.
template <class Mask> const char *flags_text(const name_list<Mask> &names, Mask value) {
  char text[longest_flags];
  char *out = put(text, "[ ");
  for (std::size_t i = 0; i < names.count; ++i) {
    if ((names.values[i] & ~value) == 0) {
      std::memcpy(out, names.name(i), name_block);
      out += names.length(i);
      *out++ = ' ';
    }
  }
  out = put(out, "]");
  const std::lock_guard lock(format_mutex);
  (void)format_buffer.try_append({text, static_cast<std::size_t>(out - text)}); // never cut either
  return format_buffer.finish();
}

template <class Mask, std::size_t Count, std::size_t Characters>
const char *flags_text(const name_table<Mask, Count, Characters> &table, Mask value) {
  static_assert(sizeof "[ ]" + Characters + name_block <= longest_flags);
  return flags_text(name_list<Mask>(table), value);
}

// --- Values ---

template <class Bits> const char *bits_text(Bits value) {
  constexpr unsigned width = std::numeric_limits<Bits>::digits;
  return build_text<width>([&](char *out) {
    for (unsigned at = 0; at < width; ++at) {
      out[at] = static_cast<char>('0' + (value >> (width - 1 - at) & 1));
    }
    return out + width;
  });
}

constexpr const char *invalid = "INVALID";

} // namespace

const char *ravix_str_frequency(uint32_t frequency) {
  return frequency == RAVIX_FREQUENCY_INVALID ? invalid : joined(frequency, " kHz");
}

const char *ravix_str_wifi_freq(uint32_t frequency) {
  const uint32_t channel = ravix_frequency_to_channel(frequency);
  if (channel == 0) {
    return ravix_str_frequency(frequency);
  }
  return joined(padded<4>{frequency / 1000}, " MHz (", padded<3>{channel}, ")");
}

const char *ravix_str_bitrate(uint32_t bitrate) {
  return joined(bitrate, " kbit/s");
}

const char *ravix_str_power(int32_t power) {
  return power == RAVIX_POWER_INVALID ? invalid : joined(power, " dBm");
}

const char *ravix_str_percentage(uint32_t percentage) {
  if (percentage <= 100) {
    return joined(percentage, "%");
  }
  if (percentage == RAVIX_MEASURE_INVALID) {
    return invalid;
  }
  // Unlike the form for enumerations, so that a log tells a measure that is out of range from a value without a name.
  return joined("<invalid value '", percentage, "'>");
}

const char *ravix_str_anpi(uint8_t anpi) {
  return anpi == RAVIX_MEASURE_INVALID ? invalid : joined(uint32_t{anpi});
}

const char *ravix_str_rcpi(uint8_t rcpi) {
  return ravix_str_anpi(rcpi);
}

const char *ravix_str_rsni(uint8_t rsni) {
  return ravix_str_anpi(rsni);
}

const char *ravix_str_index(int32_t index) {
  return index == RAVIX_INDEX_INVALID ? invalid : joined(index);
}

const char *ravix_str_id(int32_t id) {
  // None above 0 is reserved.
  const char *name = id <= RAVIX_ID_INVALID ? find_name(id_names, id) : nullptr;
  return name != nullptr ? name : joined(id);
}

const char *ravix_str_timestamp(int64_t timestamp) {
  using namespace std::chrono;
  if (timestamp == RAVIX_TIMESTAMP_INVALID) {
    return "";
  }
  const auto nanoseconds_of = [](auto now) { return duration_cast<nanoseconds>(now.time_since_epoch()).count(); };
  // The wall time of the stamp is (wall now - steady now) + stamp in nanoseconds, as whole seconds, truncated. A stamp
  // in nanoseconds may exceed 64 bits, so seconds and the rest of them are added up apart.
  constexpr int64_t second = 1'000'000'000;
  const int64_t rest =
      nanoseconds_of(system_clock::now()) - nanoseconds_of(steady_clock::now()) + timestamp % 1000 * (second / 1000);
  int64_t seconds = timestamp / 1000 + rest / second;
  if (seconds > 0 && rest % second < 0) {
    --seconds;
  } else if (seconds < 0 && rest % second > 0) {
    ++seconds;
  }
  const auto time = static_cast<std::time_t>(seconds);
  const auto whole = static_cast<long long>(timestamp / 1000);
  const auto milliseconds = static_cast<long long>(timestamp % 1000);
  std::tm date{};
  if (time != seconds || localtime_r(&time, &date) == nullptr) {
    return ravix_str_format("[%lld.%03lld]", whole, milliseconds);
  }
  return ravix_str_format("%02d.%02d.%04d %02d:%02d:%02d/[%lld.%03lld]", date.tm_mday, date.tm_mon + 1,
                          date.tm_year + 1900, date.tm_hour, date.tm_min, date.tm_sec, whole, milliseconds);
}

const char *ravix_str_bitfield_8(uint8_t value) {
  return bits_text(value);
}

const char *ravix_str_bitfield_16(uint16_t value) {
  return bits_text(value);
}

const char *ravix_str_bitfield_32(uint32_t value) {
  return bits_text(value);
}

const char *ravix_str_bitfield_64(uint64_t value) {
  return bits_text(value);
}

const char *ravix_str_ip_addr(const ravix_ip_addr_t *value) {
  if (is_null(value, "value")) {
    return "";
  }
  const uint8_t *octet = value->addr;
  switch (value->version) {
  case RAVIX_IP_VERSION_4:
    return build_text<4 * digits>([&](char *out) {
      for (unsigned i = 0; i < 3; ++i) {
        out = put(out, octet[i]);
        *out++ = '.';
      }
      return put(out, uint32_t{octet[3]});
    });
  case RAVIX_IP_VERSION_6:
    return build_text<8 * digits>([&](char *out) {
      for (unsigned i = 0; i < 16; i += 2) {
        out = put_hex_group(out, static_cast<uint16_t>(octet[i] << 8 | octet[i + 1]), false);
        *out++ = ':';
      }
      return out - 1;
    });
  default:
    return ravix_str_format("<Invalid IP version: %u>", unsigned{value->version});
  }
}

const char *ravix_str_mac(const uint8_t *value) {
  if (is_null(value, "value")) {
    return "";
  }
  return build_text<17>([&](char *out) { return put_octets<RAVIX_MAC_LEN, mac_separated, ':'>(out, value); });
}

const char *ravix_str_uuid(const uint8_t *value) {
  if (is_null(value, "value")) {
    return "";
  }
  return build_text<36>([&](char *out) { return put_octets<RAVIX_UUID_LEN, uuid_separated, '-'>(out, value); });
}

const char *ravix_str_ssid(const ravix_ssid_t *value, bool hex_if_unprintable) {
  // The record's own formatter, under whose name a null pointer is logged, is shared by all forms of an SSID.
  if (is_null(value, "value", {here, "ravix_str_ssid_impl"})) {
    return "";
  }
  const std::size_t shown = std::min<std::size_t>(value->len, RAVIX_MAX_SSID_LEN);
  return build_text<4 * RAVIX_MAX_SSID_LEN + 16 + digits>([&](char *out) {
    bool replaced = false;
    *out++ = '\'';
    for (std::size_t i = 0; i < shown; ++i) {
      const bool printable = std::isprint(value->ssid[i]) != 0;
      *out++ = printable ? static_cast<char>(value->ssid[i]) : ' ';
      replaced |= !printable;
    }
    *out++ = '\'';
    if (hex_if_unprintable && replaced) {
      out = put(out, "/[ ");
      for (std::size_t i = 0; i < shown; ++i) {
        out = put_hex(out, value->ssid[i], lower_hex);
        *out++ = ' ';
      }
      *out++ = ']';
    }
    out = put(put(out, " (len="), uint32_t{value->len});
    return put(out, ")");
  });
}

const char *ravix_str_channel_info(const ravix_channel_info_t *value) {
  if (is_null(value, "value")) {
    return "";
  }
  uint32_t lowest = 0;
  uint32_t highest = 0;
  // Before the lock is taken: checking a description may log.
  ravix_channel_info_to_lowest_and_highest_channel(value, &lowest, &highest);
  const uint32_t width = ravix_channel_width_to_frequency(value->channel_width) / 1000;
  return build_text<6 * digits>([&](char *out) {
    out = put(out, padded<4>{value->primary_freq / 1000});
    *out++ = '/';
    out = put(out, padded<4>{value->center_freq / 1000});
    *out++ = '/';
    out = width != 0 ? put(out, padded<3>{width}) : put(out, "INV");
    *out++ = '/';
    out = put_hex_group(out, value->puncture_map, true);
    *out++ = '/';
    out = put(out, padded<3>{lowest});
    *out++ = '-';
    return put(out, padded<3>{highest});
  });
}

const char *ravix_str_status(int32_t status) {
  if (const char *name = find_name(status_names, status); name != nullptr) {
    return name;
  }
  // Negated without overflow. strerror() may be called from any thread here: both musl and glibc give constant texts
  // for the codes that they know, and for others musl a constant one and glibc (from 2.32 on) one in the thread's own
  // buffer.
  return std::strerror(static_cast<int>(0U - static_cast<uint32_t>(status))); // NOLINT(concurrency-mt-unsafe)
}

const char *ravix_str_enabled(uint32_t enabled) {
  return find_name(enabled_names, enabled != 0 ? 1 : 0);
}

// A formatter per list of names.
#define RAVIX_STR_VALUE(what, argument, shown)                                                                         \
  const char *ravix_str_##what(argument value) {                                                                       \
    return name_or_number(what##_names, static_cast<shown>(value));                                                    \
  }
#define RAVIX_STR_FLAGS(what, argument)                                                                                \
  const char *ravix_str_##what(argument value) {                                                                       \
    return flags_text(what##_names, value);                                                                            \
  }
RAVIX_ENUMERATIONS(RAVIX_STR_VALUE)
RAVIX_FLAG_SETS(RAVIX_STR_FLAGS)

namespace {

// --- Parsing ---

constexpr bool is_digit(char character) {
  return character >= '0' && character <= '9';
}

constexpr char upper(char character) {
  return character >= 'a' && character <= 'z' ? static_cast<char>(character - 'a' + 'A') : character;
}

// The value of a name in any letter case.
std::optional<std::int64_t> find_value(const value_list &names, std::string_view name) {
  for (std::size_t i = 0; i < names.count; ++i) {
    if (names.length(i) == name.size() &&
        std::equal(name.begin(), name.end(), names.name(i), [](char given, char own) { return upper(given) == own; })) {
      return names.values[i];
    }
  }
  return std::nullopt;
}

// What a parser accepts.
struct accepted_values {
  std::int64_t lowest;
  std::int64_t highest;
  value_list names = {};   // without names a leading "-" is a sign, with names it is a letter like any other
  bool named_only = false; // numbers must have a name
  bool any_digit = true;   // but a single digit need not
};

std::optional<std::int64_t> parse(std::string_view text, const accepted_values &accepted) {
  const bool has_names = accepted.names.count != 0;
  const std::string_view number = text.substr(!has_names && text.front() == '-' ? 1 : 0);
  if (number.empty() || !std::all_of(number.begin(), number.end(), is_digit)) {
    return has_names ? find_value(accepted.names, text) : std::nullopt;
  }
  std::int64_t value = INT64_MAX; // beyond what any parser takes, and left when the number is larger still
  (void)std::from_chars(text.data(), text.data() + text.size(), value);
  if (text.size() == 1 && accepted.any_digit) {
    return value;
  }
  if (value < accepted.lowest || value > accepted.highest ||
      (accepted.named_only && find_name(accepted.names, static_cast<std::int32_t>(value)) == nullptr)) {
    return std::nullopt;
  }
  return value;
}

// Every parser of numbers and names; the lines are logged under its own name unless the caller states another.
template <class Output>
[[gnu::noinline]] bool ravix_numval_from_str(const char *str_param, Output *output, const accepted_values &accepted,
                                             call_site site = {here, "ravix_numval_from_str"}) {
  if (is_null(str_param, "str_param", site) || is_null(output, "output", site)) {
    return false;
  }
  constexpr std::size_t considered = 127;
  const std::string_view text(str_param, strnlen(str_param, considered));
  if (text.empty()) {
    log_error(site, "str_param is empty!");
    return false;
  }
  const std::optional<std::int64_t> value = parse(text, accepted);
  *output = static_cast<Output>(value.value_or(0));
  if (!value) {
    log_error(site, {"Invalid parameter value '", str_param, "'!"});
  }
  return value.has_value();
}

constexpr accepted_values named_values(const value_list &names) {
  return {INT32_MIN, INT32_MAX, names, true};
}

constexpr std::uint8_t no_hex_digit = UINT8_MAX;
constexpr auto hex_values = [] {
  std::array<std::uint8_t, UCHAR_MAX + 1> values{};
  values.fill(no_hex_digit);
  for (std::uint8_t i = 0; i < 16; ++i) {
    values[static_cast<unsigned char>(upper_hex[i])] = i;
    values[static_cast<unsigned char>(lower_hex[i])] = i;
  }
  return values;
}();

// Reads the common form only: two digits per octet, separated as by put_octets(). Writes all octets or none.
template <std::size_t Count>
bool read_octets(const char *text, unsigned separated, char separator, std::uint8_t *output) {
  std::array<std::uint8_t, Count> octets;
  for (std::size_t i = 0; i < Count; ++i) {
    if ((separated >> i & 1U) != 0 && *text++ != separator) {
      return false;
    }
    const std::uint8_t high = hex_values[static_cast<unsigned char>(*text)];
    if (high == no_hex_digit) {
      return false;
    }
    const std::uint8_t low = hex_values[static_cast<unsigned char>(text[1])];
    if (low == no_hex_digit) {
      return false;
    }
    octets[i] = static_cast<std::uint8_t>(high << 4 | low);
    text += 2;
  }
  std::copy(octets.begin(), octets.end(), output);
  return true;
}

} // namespace

bool ravix_mac_from_str(const char *str_param, uint8_t *output) {
  if (is_null(str_param, "str_param") || is_null(output, "output")) {
    return false;
  }
  if (read_octets<RAVIX_MAC_LEN>(str_param, mac_separated, ':', output) ||
      read_octets<RAVIX_MAC_LEN>(str_param, mac_separated, '-', output) ||
      read_octets<RAVIX_MAC_LEN>(str_param, 0, '\0', output)) {
    return true;
  }
  constexpr std::array formats = {"%02hhx:%02hhx:%02hhx:%02hhx:%02hhx:%02hhx",
                                  "%02hhx-%02hhx-%02hhx-%02hhx-%02hhx-%02hhx", "%02hhx%02hhx%02hhx%02hhx%02hhx%02hhx"};
  return std::any_of(formats.begin(), formats.end(), [&](const char *format) {
    return std::sscanf(str_param, format, &output[0], &output[1], &output[2], &output[3], &output[4], &output[5]) ==
           RAVIX_MAC_LEN;
  });
}

bool ravix_uuid_from_str(const char *str_param, uint8_t *output) {
  if (is_null(str_param, "str_param") || is_null(output, "output")) {
    return false;
  }
  return read_octets<RAVIX_UUID_LEN>(str_param, uuid_separated, '-', output) ||
         std::sscanf(str_param, // NOLINT(cert-err34-c): how it reads unusual text is part of the interface
                     "%02hhx%02hhx%02hhx%02hhx-%02hhx%02hhx-%02hhx%02hhx-%02hhx%02hhx-"
                     "%02hhx%02hhx%02hhx%02hhx%02hhx%02hhx",
                     &output[0], &output[1], &output[2], &output[3], &output[4], &output[5], &output[6], &output[7],
                     &output[8], &output[9], &output[10], &output[11], &output[12], &output[13], &output[14],
                     &output[15]) == RAVIX_UUID_LEN;
}

bool ravix_enabled_from_str(const char *str_param, bool *output) {
  accepted_values accepted = named_values(enabled_names);
  accepted.any_digit = false;
  return ravix_numval_from_str(str_param, output, accepted);
}

bool ravix_simulated_event_type_from_str(const char *str_param, uint8_t *output) {
  return ravix_numval_from_str(str_param, output, named_values(simulated_event_type_names));
}

bool ravix_role_opmode_from_str(const char *str_param, uint8_t *output) {
  return ravix_numval_from_str(str_param, output, named_values(role_opmode_names));
}

bool ravix_connect_method_from_str(const char *str_param, int32_t *output) {
  return ravix_numval_from_str(str_param, output, named_values(connect_method_names));
}

bool ravix_connect_session_id_from_str(const char *str_param, int32_t *output) {
  return ravix_numval_from_str(str_param, output, {0, INT32_MAX, connect_session_id_names});
}

bool ravix_id_from_str(const char *str_param, int32_t *output) {
  if (is_null(str_param, "str_param") || is_null(output, "output")) {
    return false;
  }
  // The reserved identifiers are read in upper case only; every other parser of names takes any letter case.
  const value_list names = id_names;
  for (std::size_t i = 0; i < names.count; ++i) {
    if (std::strcmp(str_param, names.name(i)) == 0) {
      *output = names.values[i];
      return true;
    }
  }
  return ravix_numval_from_str(str_param, output, {INT32_MIN, INT32_MAX}, here);
}

bool ravix_frequency_from_str(const char *str_param, uint32_t *output) {
  return ravix_numval_from_str(str_param, output, {0, UINT32_MAX});
}
