// The nine parsers, each on the whole input as a text.
//
// - What is accepted logs nothing. What is refused logs one line and leaves 0, of an empty text the output untouched;
//   addresses and UUIDs are refused without a line.
// - Only the first 127 characters count, and letter case does not, but for the reserved identifiers.
// - A value that was accepted is accepted again as its number, octets as they are printed.
#include "fuzz.hpp"

#include "ravix_types_str_convert.h"

#include <cctype>
#include <cstring>
#include <utility>

namespace {

using fuzz::require;

template <class T> using parser = bool (*)(const char *, T *);

template <class T> std::pair<bool, T> result_of(parser<T> parse, const std::string &text) {
  fuzz::lines_logged = 0;
  constexpr T untouched{1};
  T value = untouched;
  const bool accepted = parse(text.c_str(), &value);
  require(fuzz::lines_logged == (accepted ? 0 : 1), "one line for what is refused, none for what is accepted");
  require(accepted || value == (text.empty() ? untouched : T{}), "what is refused leaves 0");
  return {accepted, value};
}

template <class T> void check_number(parser<T> parse, const std::string &text, bool any_letter_case = true) {
  const auto result = result_of(parse, text);
  std::string alike = text.substr(0, 127);
  if (any_letter_case) {
    std::transform(alike.begin(), alike.end(), alike.begin(), [](unsigned char c) { return std::tolower(c); });
  }
  require(alike == text || result == result_of(parse, alike), "127 characters count, and letter case does not");
  if (result.first && (result.second >= T{} || !any_letter_case)) {
    require(result == result_of(parse, std::to_string(result.second)), "a value is accepted as its number");
  }
}

template <std::size_t size>
void check_octets(parser<uint8_t> parse, const char *(*print)(const uint8_t *), const std::string &text) {
  fuzz::lines_logged = 0;
  uint8_t read[size] = {}, again[size] = {};
  if (parse(text.c_str(), read)) {
    require(parse(print(read), again) && std::memcmp(read, again, size) == 0, "octets are read as they are printed");
  }
  require(fuzz::lines_logged == 0, "octets are refused without a line");
}

} // namespace

int LLVMFuzzerTestOneInput(const uint8_t *data, std::size_t size) {
  const std::string input(reinterpret_cast<const char *>(data), size);
  const std::string text = input.c_str(); // up to the terminator, if it has one
  check_octets<RAVIX_MAC_LEN>(ravix_mac_from_str, ravix_str_mac, text);
  check_octets<RAVIX_UUID_LEN>(ravix_uuid_from_str, ravix_str_uuid, text);
  check_number(ravix_enabled_from_str, text);
  check_number(ravix_simulated_event_type_from_str, text);
  check_number(ravix_role_opmode_from_str, text);
  check_number(ravix_connect_method_from_str, text);
  check_number(ravix_connect_session_id_from_str, text);
  check_number(ravix_id_from_str, text, false);
  check_number(ravix_frequency_from_str, text);
  return 0;
}
