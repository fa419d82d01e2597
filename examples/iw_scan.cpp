#include "iw_scan.hpp"

#include "ravix_types_enums.h"
#include "ravix_types_str_convert.h"
#include "ravix_types_util.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <cstring>
#include <limits>
#include <map>
#include <string>

namespace iw {

namespace {

using text::problems;

// What a line inside an element says about a network. Lines that list several features separate them by ", ".
struct feature {
  std::string_view element, line; // beginning of the feature's text; empty: the element is there
  uint32_t capabilities;
};

constexpr feature features[] = {
    {"HT capabilities", "TX STBC", RAVIX_CAPABILITY_STBC},
    {"HT capabilities", "RX STBC", RAVIX_CAPABILITY_STBC},
    {"HT capabilities", "RX LDPC", RAVIX_CAPABILITY_LDPC},
    {"HT capabilities", "Max AMSDU length", RAVIX_CAPABILITY_AMSDU},
    {"HT capabilities", "Maximum RX AMPDU length", RAVIX_CAPABILITY_AMPDU},
    {"VHT capabilities", "TX STBC", RAVIX_CAPABILITY_STBC},
    {"VHT capabilities", "RX STBC", RAVIX_CAPABILITY_STBC},
    {"VHT capabilities", "RX LDPC", RAVIX_CAPABILITY_LDPC},
    {"VHT capabilities", "SU Beamformer", RAVIX_CAPABILITY_TXBF},
    {"VHT capabilities", "MU Beamformer", RAVIX_CAPABILITY_TXBF | RAVIX_CAPABILITY_MUMIMO},
    {"HE capabilities", "STBC Tx", RAVIX_CAPABILITY_STBC},
    {"HE capabilities", "STBC Rx", RAVIX_CAPABILITY_STBC},
    {"HE capabilities", "LDPC Coding in Payload", RAVIX_CAPABILITY_LDPC},
    {"HE capabilities", "SU Beamformer", RAVIX_CAPABILITY_TXBF},
    {"HE capabilities", "MU Beamformer", RAVIX_CAPABILITY_TXBF | RAVIX_CAPABILITY_MUMIMO},
    {"HE capabilities", "Full Bandwidth UL MU-MIMO", RAVIX_CAPABILITY_MUMIMO},
    {"HE capabilities", "A-MSDU in A-MPDU", RAVIX_CAPABILITY_AMSDU | RAVIX_CAPABILITY_AMPDU},
    {"RSN", "", RAVIX_CAPABILITY_PRIVACY},
    {"WPA", "", RAVIX_CAPABILITY_PRIVACY},
    {"WPS", "", RAVIX_CAPABILITY_WPS},
    {"WMM", "", RAVIX_CAPABILITY_WME},
    {"WMM", "u-APSD", RAVIX_CAPABILITY_UAPSD},
    {"RM enabled capabilities", "", RAVIX_CAPABILITY_RRM},
    {"Mobility Domain", "", RAVIX_CAPABILITY_FBT},
    {"Extended capabilities", "BSS Transition", RAVIX_CAPABILITY_BTM},
    {"OWE Transition Mode", "", RAVIX_CAPABILITY_OWE_TRANS},
    {"HE 6 GHz Band capabilities", "", RAVIX_CAPABILITY_AMPDU}, // their length, which takes the place of that of HT
    {"Multi-Link", "", RAVIX_CAPABILITY_MLO},
    {"Basic Multi-Link", "", RAVIX_CAPABILITY_MLO},
};

// Authentication suites: the names by which they are printed, and their numbers (IEEE 802.11-2020, 9.4.2.24.3), which
// are printed where the name is not known.
struct suite {
  std::string_view name;
  uint32_t capabilities;
};

constexpr suite rsn_suites[] = {
    {"FT/PSK", RAVIX_CAPABILITY_WPA2_PSK | RAVIX_CAPABILITY_FBT},
    {"00-0f-ac:4", RAVIX_CAPABILITY_WPA2_PSK | RAVIX_CAPABILITY_FBT},
    {"PSK", RAVIX_CAPABILITY_WPA2_PSK},
    {"PSK/SHA-256", RAVIX_CAPABILITY_WPA2_PSK},
    {"00-0f-ac:2", RAVIX_CAPABILITY_WPA2_PSK},
    {"00-0f-ac:6", RAVIX_CAPABILITY_WPA2_PSK},
    {"FT/SAE", RAVIX_CAPABILITY_WPA3_PSK | RAVIX_CAPABILITY_FBT},
    {"00-0f-ac:9", RAVIX_CAPABILITY_WPA3_PSK | RAVIX_CAPABILITY_FBT},
    {"00-0f-ac:25", RAVIX_CAPABILITY_WPA3_PSK | RAVIX_CAPABILITY_FBT},
    {"SAE", RAVIX_CAPABILITY_WPA3_PSK},
    {"SAE-EXT-KEY", RAVIX_CAPABILITY_WPA3_PSK},
    {"00-0f-ac:8", RAVIX_CAPABILITY_WPA3_PSK},
    {"00-0f-ac:24", RAVIX_CAPABILITY_WPA3_PSK},
    {"OWE", RAVIX_CAPABILITY_OWE},
    {"00-0f-ac:18", RAVIX_CAPABILITY_OWE},
    // "IEEE 802.1X..." is printed in two words, of which the second one tells.
    {"FT/IEEE", RAVIX_CAPABILITY_FBT},
    {"802.1X", RAVIX_CAPABILITY_WPA2_ENT},
    {"802.1X/SHA-256", RAVIX_CAPABILITY_WPA2_ENT},
    {"802.1X/SHA-384", RAVIX_CAPABILITY_WPA2_ENT},
    {"802.1X/SUITE-B", RAVIX_CAPABILITY_WPA2_ENT},
    {"802.1X/SUITE-B-192", RAVIX_CAPABILITY_WPA2_ENT},
    {"00-0f-ac:1", RAVIX_CAPABILITY_WPA2_ENT},
    {"00-0f-ac:3", RAVIX_CAPABILITY_WPA2_ENT | RAVIX_CAPABILITY_FBT},
    {"00-0f-ac:5", RAVIX_CAPABILITY_WPA2_ENT},
    {"FILS/SHA-256", RAVIX_CAPABILITY_WPA2_ENT},
    {"FILS/SHA-384", RAVIX_CAPABILITY_WPA2_ENT},
    {"FT/FILS/SHA-256", RAVIX_CAPABILITY_WPA2_ENT | RAVIX_CAPABILITY_FBT},
    {"FT/FILS/SHA-384", RAVIX_CAPABILITY_WPA2_ENT | RAVIX_CAPABILITY_FBT},
};

constexpr suite wpa_suites[] = {
    {"PSK", RAVIX_CAPABILITY_WPA_PSK},
    {"802.1X", RAVIX_CAPABILITY_WPA_ENT},
};

template <std::size_t n> uint32_t suite_capabilities(const suite (&suites)[n], std::string_view names) {
  uint32_t found = 0;
  while (!names.empty()) {
    const auto name = text::split(names, " ");
    const auto *known = std::find_if(suites, suites + n, [&](const suite &s) { return text::same(s.name, name); });
    found |= known == suites + n ? 0 : known->capabilities;
  }
  return found;
}

// What an operation element says about the channel.
struct operation {
  uint32_t width_mhz = 0;         // 0: nothing, or what the elements of older standards say
  std::vector<uint32_t> segments; // channel numbers of the centres, in the order of the element
  uint16_t puncture_map = 0;
  bool is_open = false; // its first field has been read, its last one not
};

// The channel that an operation element describes.
struct claim {
  const char *element;
  uint16_t width;
  uint32_t center; // kHz
  uint16_t puncture_map;
};

// A network while its lines are read.
struct block {
  ravix_scan_entry_t entry{};
  std::string name; // for messages
  std::size_t last_line = 0;
  std::size_t indent = 0;                      // of the element headings
  std::string_view element;                    // that the present line belongs to
  const struct known_element *known = nullptr; // the same, if it is one of those below
  std::size_t content = 0;                     // lines of this element
  std::size_t cut_line = 0;                    // of the first element of which something is missing
  std::string_view cut_element;
  bool is_closed = false;  // the lines that follow are of another network
  bool is_refused = false; // has been told to be unreadable
  bool has_frequency = false, has_ssid = false;
  bool ht = false, vht = false, he = false, eht = false, cck = false, ofdm = false;
  operation ht_operation, vht_operation, he_operation, eht_operation;
};

// Elements that tell a standard by being there, or the channel, or that versions of iw print as octets under a number.
struct known_element {
  std::string_view name;
  uint32_t number; // IEEE 802.11-2020, 9.4.2.1; 256 and the extension, where there is one; 0: the name is always known
  bool block::*standard;
  operation block::*channel;
};

constexpr uint32_t extended = 256;

constexpr known_element known_elements[] = {
    {"HT capabilities", 0, &block::ht, nullptr},
    {"HT operation", 0, nullptr, &block::ht_operation},
    {"VHT capabilities", 0, &block::vht, nullptr},
    {"VHT operation", 0, nullptr, &block::vht_operation},
    {"HE capabilities", extended + 35, &block::he, nullptr},
    {"HE operation", extended + 36, nullptr, &block::he_operation},
    {"HE 6 GHz Band capabilities", extended + 59, &block::he, nullptr},
    {"EHT operation", extended + 106, nullptr, &block::eht_operation},
    {"EHT capabilities", extended + 108, &block::eht, nullptr},
    {"Mobility Domain", 54, nullptr, nullptr},
    {"Multi-Link", extended + 107, nullptr, nullptr},
};

// The element of a heading, or null. The octets begin with the extension if the heading does not tell it.
const known_element *find_element(std::string_view heading, std::string_view &octets) {
  const std::size_t bracket = heading.find('(');
  const std::string_view behind = heading.substr(bracket == std::string_view::npos ? 0 : bracket + 1);
  const auto printed = text::number(behind).value_or(0) & 0xFFU;
  uint32_t number = text::starts_with(heading, "Unknown Extension ID (") ? extended + printed
                    : text::starts_with(heading, "Unknown IE (")         ? printed
                                                                         : 0;
  if (number == extended - 1) {
    const auto extension = text::octets(text::split(octets, " "));
    number = extended + (extension.empty() ? 0U : extension[0]);
  }
  const auto *const known =
      std::find_if(std::begin(known_elements), std::end(known_elements), [&](const known_element &e) {
        return number != 0 ? e.number == number : text::same(e.name, heading);
      });
  return known == std::end(known_elements) ? nullptr : known;
}

// Widths in MHz by their numbers in the operation elements; 0 leaves the matter to the older elements. Three bits are a
// number, of which the third one has another meaning in HE operation.
template <operation block::*> constexpr uint32_t widths[8] = {20, 40, 80, 160, 320};
template <> constexpr uint32_t widths<&block::vht_operation>[8] = {0, 80, 160, 80};
template <> constexpr uint32_t widths<&block::he_operation>[8] = {20, 40, 80, 160, 20, 40, 80, 160};

// "02:00:00:00:00:01(on wlan0) -- associated". Digits that someone has masked ("xx") count as 0.
bool read_address(std::string_view text, ravix_mac_t &out, bool &is_masked) {
  constexpr std::size_t length = 3 * RAVIX_MAC_LEN - 1;
  if (text.size() < length || text.substr(length).find_first_not_of("( ") == 0) {
    return false;
  }
  std::string digits(text.substr(0, length));
  for (char &c : digits) {
    const bool mask = c == 'x' || c == 'X' || c == '*';
    is_masked = is_masked || mask;
    c = mask ? '0' : c;
  }
  for (std::size_t i = 0; i < RAVIX_MAC_LEN; ++i) {
    const auto octet = text::octets(std::string_view(digits).substr(3 * i, 2));
    if (octet.empty() || (i != 0 && digits[3 * i - 1] != ':')) {
      return false;
    }
    out[i] = octet[0];
  }
  return true;
}

// Octets outside the printable ASCII characters are written "\xNN", as are a backslash and blanks at either end.
bool read_ssid(std::string_view text, ravix_ssid_t &out) {
  ravix_types_ssid_clear(&out);
  while (!text.empty()) {
    if (out.len == RAVIX_MAX_SSID_LEN) {
      return false;
    }
    const auto escaped = text.starts_with("\\x") ? text::octets(text.substr(2, 2)) : std::vector<uint8_t>{};
    out.ssid[out.len++] = escaped.empty() ? static_cast<uint8_t>(text[0]) : escaped[0];
    text.remove_prefix(escaped.empty() ? 1 : 4);
  }
  return true;
}

// The disabled subchannel bitmap: two octets as they stand in the frame, the lowest eight subchannels first.
uint16_t puncture_map_at(const std::vector<uint8_t> &octets, std::size_t at) {
  return static_cast<uint16_t>(octets[at] | octets[at + 1] << 8U);
}

// "1 (80 MHz)", "160 MHz", "3". A range, "20 or 40 MHz", leaves the matter to the older elements: 0.
uint32_t read_width(std::string_view value, const uint32_t (&by_number)[8]) {
  if (!text::contains(value, "MHz")) {
    const auto number = text::number(value);
    return number && *number < std::size(by_number) ? by_number[*number] : 0;
  }
  for (const auto *const width : {"20 or 40", "320", "160", "80", "40", "20"}) {
    if (text::contains(value, width)) {
      return text::contains(width, "or") ? 0 : *text::number(width);
    }
  }
  return 0;
}

class scan_reader {
public:
  scan_reader(std::string_view text, problems &problems) : lines_(text, problems), problems_(problems) {}
  scan read();

private:
  void begin(const text::line &line);
  void heading(const text::line &line);
  void content(std::string_view key, std::string_view value);
  void leave_element();
  void end();

  void frequency(std::string_view value);
  void signal(std::string_view value);
  void ssid(std::string_view value);
  void capability(std::string_view value);
  void rates(std::string_view value);

  template <operation block::*element> void primary(std::string_view value);
  void ht_offset(std::string_view value);
  template <operation block::*element> void width(std::string_view value);
  template <operation block::*element> void segment(std::string_view value);
  void puncturing(std::string_view value);
  template <operation block::*element>
  void operation_information(const std::vector<uint8_t> &octets, std::size_t at, std::size_t size);
  void he_octets(std::string_view value);
  void eht_octets(std::string_view value);
  void rsn_suites_of(std::string_view value);
  void rsn_capabilities(std::string_view value);
  void wpa_suites_of(std::string_view value);
  void utilisation(std::string_view value);

  ravix_channel_info_t channel();
  uint32_t wlan_mode() const;
  void error(std::string_view message) { problems_.error(line_, now_.name + ": " + std::string(message)); }
  void remark(std::string_view message) { problems_.remark(line_, now_.name + ": " + std::string(message)); }

  using taker = void (scan_reader::*)(std::string_view value);
  struct key_taker {
    std::string_view element, key; // a heading has no element
    taker take;
  };
  static constexpr std::string_view as_octets = "octets"; // takes the place of a key where all of an element is octets
  static const key_taker takers[];
  static taker find(std::string_view element, std::string_view key);

  text::line_reader lines_;
  problems &problems_;
  std::size_t line_ = 0;
  bool in_block_ = false;
  std::size_t blocks_ = 0;
  block now_;
  std::map<uint32_t, uint8_t> load_;
  scan result_;
};

const scan_reader::key_taker scan_reader::takers[] = {
    {"", "freq", &scan_reader::frequency},
    {"", "signal", &scan_reader::signal},
    {"", "SSID", &scan_reader::ssid},
    {"", "capability", &scan_reader::capability},
    {"", "Supported rates", &scan_reader::rates},
    {"", "Extended supported rates", &scan_reader::rates},
    {"HT operation", "primary channel", &scan_reader::primary<&block::ht_operation>},
    {"HT operation", "secondary channel offset", &scan_reader::ht_offset},
    {"VHT operation", "channel width", &scan_reader::width<&block::vht_operation>},
    {"VHT operation", "center freq", &scan_reader::segment<&block::vht_operation>},
    {"HE operation", "primary channel", &scan_reader::primary<&block::he_operation>},
    {"HE operation", "channel width", &scan_reader::width<&block::he_operation>},
    {"HE operation", "center freq", &scan_reader::segment<&block::he_operation>},
    {"HE operation", as_octets, &scan_reader::he_octets},
    {"EHT operation", "channel width", &scan_reader::width<&block::eht_operation>},
    {"EHT operation", "center freq", &scan_reader::segment<&block::eht_operation>},
    {"EHT operation", "disabled subchannel bitmap", &scan_reader::puncturing},
    {"EHT operation", as_octets, &scan_reader::eht_octets},
    {"RSN", "Authentication suites", &scan_reader::rsn_suites_of},
    {"RSN", "Capabilities", &scan_reader::rsn_capabilities},
    {"WPA", "Authentication suites", &scan_reader::wpa_suites_of},
    {"BSS Load", "channel utilisation", &scan_reader::utilisation},
};

scan_reader::taker scan_reader::find(std::string_view element, std::string_view key) {
  const auto *const known = std::find_if(std::begin(takers), std::end(takers), [&](const key_taker &t) {
    // "center freq segment 1" and "Center Frequency Segment 0" are the same thing of different versions.
    return text::same(t.element, element) && (element.empty() ? text::same(key, t.key) : text::starts_with(key, t.key));
  });
  return known == std::end(takers) ? nullptr : known->take;
}

scan scan_reader::read() {
  text::line line;
  while (lines_.next(line)) {
    line_ = line.number;
    if (line.indent == 0 && line.content.starts_with("BSS ")) {
      end();
      begin(line);
    } else if (in_block_ && line.indent == 0) {
      remark("a line that is no part of a scan, ignored: " + text::quote(line.content));
    } else if (in_block_ && !now_.is_closed) {
      now_.indent = now_.indent == 0 ? line.indent : now_.indent;
      if (line.indent <= now_.indent) {
        leave_element();
        heading(line);
      } else {
        content(line.key, line.value);
      }
      now_.last_line = line.number;
    }
  }
  end();
  if (blocks_ == 0) {
    problems_.only_error(1, line_ == 0 ? "empty, so no scan" : "not a scan: no line begins with \"BSS \"");
  }
  for (const auto &[frequency, load] : load_) {
    result_.load.push_back({frequency, RAVIX_MEASURE_INVALID, load});
  }
  return std::move(result_);
}

void scan_reader::begin(const text::line &line) {
  ++blocks_;
  in_block_ = true;
  now_ = block{};
  now_.last_line = line.number;
  ravix_types_scan_entry_clear(&now_.entry);
  bool is_masked = false;
  if (read_address(line.content.substr(4), now_.entry.bssid, is_masked)) {
    now_.name = "BSS " + std::string(line.content.substr(4, 3 * RAVIX_MAC_LEN - 1));
    if (is_masked) {
      remark("masked digits of the address are read as 0");
    }
  } else {
    now_.is_refused = true;
    problems_.error(line.number, text::quote(line.content) + " has no address, network not listed");
  }
}

void scan_reader::heading(const text::line &line) {
  auto value = line.value;
  now_.known = find_element(line.key, value);
  now_.element = now_.known != nullptr ? now_.known->name : line.key;
  now_.content = 0;
  if (now_.known != nullptr && text::starts_with(value, "<invalid")) {
    remark(std::string(now_.element) + " is not valid as the network sends it, ignored");
    now_.known = nullptr;
    return;
  }
  if (now_.known != nullptr && now_.known->standard != nullptr) {
    now_.*now_.known->standard = true;
  }
  for (const auto &f : features) {
    now_.entry.capabilities |= f.line.empty() && text::same(f.element, now_.element) ? f.capabilities : 0;
  }
  if (const auto take = find("", line.key)) {
    (this->*take)(value);
  } else if (now_.known != nullptr && !text::same(now_.element, line.key)) {
    content(as_octets, value);
  } else if (!value.empty()) {
    // Content on the line of the heading: a list of features, or the first "key: value" of more.
    const auto key = text::split(value, ": ");
    content(key, value);
  }
}

void scan_reader::content(std::string_view key, std::string_view value) {
  ++now_.content;
  if (const auto take = find(now_.element, key)) {
    (this->*take)(value);
  }
  while (!key.empty()) {
    const auto item = text::split(key, ", ");
    for (const auto &f : features) {
      now_.entry.capabilities |=
          !f.line.empty() && text::same(f.element, now_.element) && text::starts_with(item, f.line) ? f.capabilities
                                                                                                    : 0;
    }
  }
}

// A text that has lost lines shows it by an element without content, or with its first field and not its last one.
void scan_reader::leave_element() {
  if (now_.known == nullptr || now_.cut_line != 0) {
    return;
  }
  const auto &[name, number, standard, channel] = *now_.known;
  const bool is_empty = now_.content == 0 && (standard != nullptr || channel != nullptr);
  if (is_empty || (channel != nullptr && (now_.*channel).is_open)) {
    now_.cut_line = now_.last_line;
    now_.cut_element = name;
  }
}

// Completes the network. In a cut one, what has been read is listed if it tells the network's name and channel.
void scan_reader::end() {
  if (!in_block_) {
    return;
  }
  in_block_ = false;
  leave_element();
  line_ = now_.last_line;
  if (now_.is_refused) {
    return;
  }
  if (!now_.has_frequency || !now_.has_ssid) {
    error(std::string("the block is cut: no ") + (now_.has_frequency ? "SSID" : "frequency") + ", network not listed");
    return;
  }
  if (now_.cut_line != 0) {
    problems_.error(now_.cut_line, now_.name + ": the block is cut in " + std::string(now_.cut_element) +
                                       ", listed with what else is known");
  }
  now_.entry.channel_info = channel();
  now_.entry.wlan_mode = wlan_mode();
  switch (ravix_frequency_to_radio_band(now_.entry.channel_info.primary_freq)) {
  case RAVIX_RADIO_BAND_2GHZ:
    // VHT is not meant for this band; what makers offer there is its 256-QAM.
    now_.entry.capabilities |= RAVIX_CAPABILITY_2GHZ | (now_.vht ? RAVIX_CAPABILITY_11N_2G_256QAM : 0);
    break;
  case RAVIX_RADIO_BAND_5GHZ:
    now_.entry.capabilities |= RAVIX_CAPABILITY_5GHZ;
    break;
  default:
    now_.entry.capabilities |= RAVIX_CAPABILITY_6GHZ;
    break;
  }
  result_.networks.push_back(now_.entry);
}

void scan_reader::frequency(std::string_view value) {
  if (now_.has_frequency) {
    error("a second frequency, so the line \"BSS ...\" of another network is missing, which is not listed");
    now_.is_closed = true;
  }
  if (now_.has_frequency || now_.is_refused) {
    return;
  }
  const auto khz = text::megahertz(value);
  if (!khz || !ravix_frequency_is_primary(*khz)) {
    constexpr uint32_t lowest_band = 700'000; // 802.11ah; less than that is what is left of a number
    now_.is_refused = true;
    if (khz && *khz >= lowest_band && ravix_frequency_to_radio_band(*khz) == 0) {
      remark("frequency " + text::quote(value) + " is in none of the bands 2.4, 5 and 6 GHz, network not listed");
    } else {
      error("no 2.4, 5 or 6 GHz channel at frequency " + text::quote(value) + ", network not listed");
    }
    return;
  }
  now_.has_frequency = true;
  now_.entry.channel_info.primary_freq = *khz;
}

void scan_reader::signal(std::string_view value) {
  const auto dbm = text::decimal(value);
  if (dbm && text::contains(value, "dBm") && std::abs(*dbm) < 200) {
    now_.entry.rssi = static_cast<int16_t>(std::lround(*dbm));
  } else {
    // Drivers without calibration give "47/100", which is no level.
    remark("signal " + text::quote(value) + " is not in dBm, taken as not known");
  }
}

void scan_reader::ssid(std::string_view value) {
  ravix_ssid_t ssid;
  if (!read_ssid(value, ssid)) {
    now_.is_refused = true;
    error("the SSID has more than " + std::to_string(RAVIX_MAX_SSID_LEN) + " octets, network not listed");
    return;
  }
  // A hidden network shows its name in probe responses, but not in its beacons; a text may have both.
  if (!now_.has_ssid || now_.entry.ssid.len == 0) {
    now_.entry.ssid = ssid;
  }
  now_.has_ssid = true;
}

void scan_reader::capability(std::string_view value) {
  // Capability information (IEEE 802.11-2020, 9.4.1.4) as the number in parentheses; the names before it vary.
  constexpr uint32_t privacy = 0x0010;
  constexpr uint32_t radio_measurement = 0x1000;
  const auto open = value.rfind('(');
  const auto bits = open == std::string_view::npos ? std::nullopt : text::number(value.substr(open + 1));
  if (bits ? (*bits & privacy) != 0 : text::contains(value, "Privacy")) {
    now_.entry.capabilities |= RAVIX_CAPABILITY_PRIVACY;
  }
  if (bits ? (*bits & radio_measurement) != 0 : text::contains(value, "RadioMeasure")) {
    now_.entry.capabilities |= RAVIX_CAPABILITY_RRM;
  }
}

void scan_reader::rates(std::string_view value) {
  while (!value.empty()) {
    const auto rate = text::decimal(text::split(value, " "));
    const bool is_cck = rate && (*rate == 1.0 || *rate == 2.0 || *rate == 5.5 || *rate == 11.0);
    now_.cck = now_.cck || is_cck;
    now_.ofdm = now_.ofdm || (rate && !is_cck);
  }
}

template <operation block::*element> void scan_reader::primary(std::string_view value) {
  now_.*element = operation{};
  (now_.*element).is_open = true;
  const auto channel = ravix_frequency_to_channel(now_.entry.channel_info.primary_freq);
  if (now_.has_frequency && text::number(value) != channel) {
    remark(std::string(now_.element) + " has primary channel " + text::quote(value) +
           ", but the frequency is that of channel " + std::to_string(channel) + ", which is taken");
  }
}

// The side of the second 20 MHz channel.
void scan_reader::ht_offset(std::string_view value) {
  const bool is_above = text::starts_with(value, "above");
  const bool is_below = text::starts_with(value, "below");
  const auto channel = ravix_frequency_to_channel(now_.entry.channel_info.primary_freq);
  now_.ht_operation = operation{};
  now_.ht_operation.is_open = !is_above && !is_below && !text::starts_with(value, "no secondary");
  if (is_above || is_below) {
    now_.ht_operation.width_mhz = 40;
    now_.ht_operation.segments = {is_above ? channel + 2 : channel - std::min(channel, 2U)};
  }
}

template <operation block::*element> void scan_reader::width(std::string_view value) {
  now_.*element = operation{};
  (now_.*element).width_mhz = read_width(value, widths<element>);
  (now_.*element).is_open = true;
}

template <operation block::*element> void scan_reader::segment(std::string_view value) {
  auto &segments = (now_.*element).segments;
  segments.push_back(text::number(value).value_or(0));
  (now_.*element).is_open = segments.size() < 2;
}

void scan_reader::puncturing(std::string_view value) {
  const auto octets = text::octets(value);
  now_.eht_operation.is_open = octets.size() < 2;
  now_.eht_operation.puncture_map = octets.size() < 2 ? uint16_t{0} : puncture_map_at(octets, 0);
}

// The operation information that begins at an octet: width, both centres and, of EHT, what is punctured. Its size is 0
// where there is none. An element that ends before stays open.
template <operation block::*element>
void scan_reader::operation_information(const std::vector<uint8_t> &octets, std::size_t at, std::size_t size) {
  auto &read = now_.*element;
  read = operation{};
  read.is_open = octets.size() < at + size;
  if (!read.is_open && size != 0) {
    read.width_mhz = widths<element>[octets[at] & 7U];
    read.segments = {octets[at + 1], octets[at + 2]};
    read.puncture_map = size < 5 ? uint16_t{0} : puncture_map_at(octets, at + 3);
  }
}

// HE Operation element (IEEE 802.11ax-2021, 9.4.2.249), of which the information on 6 GHz tells the width.
void scan_reader::he_octets(std::string_view value) {
  const auto octets = text::octets(value);
  std::size_t at = 6; // behind parameters, BSS color and basic rates
  const bool has_information = octets.size() >= at && (octets[2] & 0x02U) != 0;
  if (has_information) {
    at += (octets[1] & 0x40U) != 0 ? 3 : 0; // VHT operation information
    at += (octets[1] & 0x80U) != 0 ? 1 : 0; // number of networks at the same place
    if (octets.size() > at) {
      primary<&block::he_operation>(std::to_string(octets[at]));
    }
    ++at;
  }
  operation_information<&block::he_operation>(octets, at, has_information ? 4 : 0);
}

// EHT Operation element (IEEE 802.11be-2024).
void scan_reader::eht_octets(std::string_view value) {
  const auto octets = text::octets(value);
  constexpr std::size_t at = 5; // behind parameters and basic rates
  const bool has_information = octets.size() >= at && (octets[0] & 0x01U) != 0;
  const std::size_t size = (octets.empty() || (octets[0] & 0x02U) == 0) ? 3 : 5;
  operation_information<&block::eht_operation>(octets, at, has_information ? size : 0);
}

void scan_reader::rsn_suites_of(std::string_view value) {
  now_.entry.capabilities |= suite_capabilities(rsn_suites, value);
}

void scan_reader::rsn_capabilities(std::string_view value) {
  now_.entry.capabilities |= text::contains(value, "MFP-") ? RAVIX_CAPABILITY_PMF : 0;
}

void scan_reader::wpa_suites_of(std::string_view value) {
  now_.entry.capabilities |= suite_capabilities(wpa_suites, value);
}

// "103/255". Of all networks with this primary channel, the one that sees the most.
void scan_reader::utilisation(std::string_view value) {
  const auto used = text::number(value);
  if (used && *used <= 255 && now_.has_frequency) {
    auto &load = load_[now_.entry.channel_info.primary_freq];
    load = std::max(load, static_cast<uint8_t>((*used * 100 + 127) / 255));
  }
}

// The widest channel that an operation element describes without contradiction, at least the primary channel alone.
ravix_channel_info_t scan_reader::channel() {
  const auto primary = now_.entry.channel_info.primary_freq;
  const auto band = ravix_frequency_to_radio_band(primary);
  std::vector<claim> claims;
  const auto add = [&](const char *element, const operation &o) {
    auto width = o.width_mhz;
    auto center = width == 20          ? ravix_frequency_to_channel(primary) // some leave it out of the element
                  : o.segments.empty() ? 0
                                       : o.segments[0];
    const auto second = o.segments.size() < 2 ? 0 : o.segments[1];
    if (second != 0 && width == 320) {
      center = second;
    } else if (second != 0 && (width == 80 || width == 160)) {
      // The second centre is that of the whole 160 MHz, 40 MHz off the first; or of the other half of 80+80 MHz, of
      // which a channel description has only the half with the primary channel.
      const bool is_whole = std::max(center, second) - std::min(center, second) == 8;
      width = is_whole ? 160 : 80;
      center = is_whole ? second : center;
    }
    if (width != 0) {
      claims.push_back({element, ravix_frequency_to_channel_width(width * 1000),
                        ravix_frequency_from_channel_and_band(center, band), o.puncture_map});
    }
  };
  add("EHT operation", now_.eht_operation);
  add("HE operation", now_.he_operation);
  add("VHT operation", now_.vht_operation);
  add("HT operation", now_.ht_operation);
  if (claims.empty() && band == RAVIX_RADIO_BAND_6GHZ && now_.cut_line == 0) {
    remark(R"(this iw does not tell the width, 20 MHz is taken; a newer one does, or "iw -u")");
  }
  std::stable_sort(claims.begin(), claims.end(), [](const claim &a, const claim &b) { return a.width > b.width; });
  ravix_channel_info_t made;
  for (const auto &c : claims) {
    for (const auto map : {c.puncture_map, uint16_t{0}}) {
      for (const bool ext_high : {false, true}) {
        if (ravix_create_channel_info(primary, c.width, ext_high, map, &made) && made.center_freq == c.center) {
          if (map != c.puncture_map) {
            remark(std::string(c.element) + " punctures what cannot be punctured, taken as not punctured");
          }
          return made;
        }
      }
    }
    remark(std::string(c.element) + " has " + ravix_str_channel_width(c.width) + " around " +
           ravix_str_frequency(c.center) + ", which is no channel with this primary channel; a narrower one is taken");
  }
  static_cast<void>(ravix_create_channel_info(primary, RAVIX_CHANNEL_WIDTH_20, false, 0, &made));
  return made;
}

uint32_t scan_reader::wlan_mode() const {
  const auto band = ravix_frequency_to_radio_band(now_.entry.channel_info.primary_freq);
  const bool is_2ghz = band == RAVIX_RADIO_BAND_2GHZ;
  const bool is_5ghz = band == RAVIX_RADIO_BAND_5GHZ;
  uint32_t mode = is_5ghz ? RAVIX_WLAN_MODE_11A : 0;
  mode |= is_2ghz && now_.cck ? RAVIX_WLAN_MODE_11B : 0;
  mode |= is_2ghz && now_.ofdm ? RAVIX_WLAN_MODE_11G : 0;
  mode |= now_.ht ? RAVIX_WLAN_MODE_11N : 0;
  mode |= is_5ghz && now_.vht ? RAVIX_WLAN_MODE_11AC : 0;
  mode |= now_.he ? RAVIX_WLAN_MODE_11AX : 0;
  mode |= now_.eht ? RAVIX_WLAN_MODE_11BE : 0;
  return mode;
}

} // namespace

scan read_scan(std::string_view text, problems &problems) {
  return scan_reader(text, problems).read();
}

} // namespace iw
