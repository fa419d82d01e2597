#include "text_input.hpp"

#include <algorithm>
#include <array>
#include <cerrno>
#include <charconv>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <iostream>
#include <memory>
#include <utility>

namespace text {

namespace {

constexpr std::size_t most_input = std::size_t{64} << 20U;
constexpr std::size_t most_line = 8192; // the tools' longest lines, dumps of unknown elements, have less than 1000
constexpr std::size_t most_kept = 100;  // of a kind
constexpr std::size_t most_shown = 20;
constexpr std::string_view blanks = " \t\r\v\f";

char lower(char c) {
  return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}
bool same_letter(char a, char b) {
  return lower(a) == lower(b);
}

int hex_digit(char c) {
  if (c >= '0' && c <= '9') {
    return c - '0';
  }
  const char letter = lower(c);
  return letter >= 'a' && letter <= 'f' ? letter - 'a' + 10 : -1;
}

std::string_view without_bullet(std::string_view text) {
  return text.starts_with("* ") ? trim(text.substr(2)) : text;
}

} // namespace

void problems::add(problem p) {
  auto &count = p.is_error ? errors_ : remarks_;
  if (count++ < most_kept) {
    list_.push_back(std::move(p));
  }
}

void problems::print(const char *program, const std::string &input_name) const {
  auto shown = list_;
  std::stable_sort(shown.begin(), shown.end(), [](const auto &a, const auto &b) {
    return std::pair(b.is_error, a.line) < std::pair(a.is_error, b.line);
  });
  shown.resize(std::min(shown.size(), most_shown));
  std::stable_sort(shown.begin(), shown.end(), [](const auto &a, const auto &b) { return a.line < b.line; });
  for (const auto &p : shown) {
    std::cerr << program << ": " << (input_name == "-" ? "standard input" : input_name);
    if (p.line != 0) {
      std::cerr << ':' << p.line;
    }
    std::cerr << ": " << (p.is_error ? "" : "note: ") << p.message << '\n';
  }
  if (const auto others = errors_ + remarks_ - shown.size(); others != 0) {
    std::cerr << program << ": " << others << " more messages of this kind are not shown\n";
  }
}

std::optional<std::string> read(const std::string &name, std::string &content) {
  content.clear();
  const auto close = [](std::FILE *f) { static_cast<void>(f == stdin || std::fclose(f) == 0); };
  std::unique_ptr<std::FILE, decltype(close)> file(name == "-" ? stdin : std::fopen(name.c_str(), "rb"), close);
  if (!file) {
    return std::strerror(errno);
  }
  std::array<char, 65536> block{};
  std::size_t got = 0;
  while ((got = std::fread(block.data(), 1, block.size(), file.get())) > 0) {
    content.append(block.data(), got);
    if (content.size() > most_input) {
      return "more than " + std::to_string(most_input >> 20U) + " MiB";
    }
  }
  if (std::ferror(file.get()) != 0) {
    return std::strerror(errno);
  }
  return std::nullopt;
}

std::string sample(const std::string &file_name) {
  std::error_code ignored;
  const auto program = std::filesystem::read_symlink("/proc/self/exe", ignored);
  return (program.parent_path().parent_path() / "share" / "ravix_types" / file_name).string();
}

bool line_reader::next(line &out) {
  while (at_ < text_.size()) {
    ++number_;
    const auto whole = text_.substr(at_, text_.find('\n', at_) - at_);
    at_ += whole.size() + 1;
    if (whole.size() > most_line) {
      problems_.error(number_, "a line of " + std::to_string(whole.size()) + " bytes, ignored");
      continue;
    }
    if (whole.find('\0') != std::string_view::npos) {
      problems_.error(number_, "a line with NUL bytes, ignored");
      continue;
    }
    out.number = number_;
    out.content = without_bullet(trim(whole));
    if (out.content.empty()) {
      continue;
    }
    if (at_ > text_.size()) {
      problems_.remark(number_, "the last line has no line end: it may be cut");
    }
    out.indent = whole.find_first_not_of(blanks);
    const auto colon = out.content.find(": ");
    out.key = out.content.substr(0, colon);
    out.value = colon == std::string_view::npos ? std::string_view{} : trim(out.content.substr(colon + 2));
    // A list may begin on the line of its heading: "RSN:<tab> * Version: 1".
    if (const auto heading = out.content.find(":\t"); heading < colon) {
      out.key = out.content.substr(0, heading);
      out.value = without_bullet(trim(out.content.substr(heading + 2)));
    }
    if (out.key.ends_with(':')) {
      out.key.remove_suffix(1);
    }
    return true;
  }
  return false;
}

std::string_view trim(std::string_view text) {
  const auto begin = text.find_first_not_of(blanks);
  if (begin == std::string_view::npos) {
    return {};
  }
  return text.substr(begin, text.find_last_not_of(blanks) - begin + 1);
}

bool same(std::string_view a, std::string_view b) {
  return std::equal(a.begin(), a.end(), b.begin(), b.end(), same_letter);
}

bool starts_with(std::string_view text, std::string_view beginning) {
  return same(text.substr(0, beginning.size()), beginning);
}

bool contains(std::string_view text, std::string_view part) {
  return std::search(text.begin(), text.end(), part.begin(), part.end(), same_letter) != text.end();
}

std::string_view split(std::string_view &text, std::string_view separator) {
  const auto at = text.find(separator);
  const auto piece = text.substr(0, at);
  text.remove_prefix(at == std::string_view::npos ? text.size() : at + separator.size());
  return piece;
}

std::vector<std::string_view> comma_separated(std::string_view text) {
  std::vector<std::string_view> parts;
  for (bool is_last = false; !is_last;) {
    is_last = text.find(',') == std::string_view::npos;
    parts.push_back(split(text, ","));
  }
  return parts;
}

std::optional<uint32_t> number(std::string_view text) {
  const bool hex = starts_with(text, "0x");
  text.remove_prefix(hex ? 2 : 0);
  uint32_t value = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value, hex ? 16 : 10);
  return error == std::errc{} ? std::optional(value) : std::nullopt;
}

std::optional<uint32_t> megahertz(std::string_view text) {
  constexpr uint32_t most_mhz = 4'000'000;
  const auto whole = number(text);
  if (!whole || *whole > most_mhz || starts_with(text, "0x")) {
    return std::nullopt;
  }
  auto khz = *whole * 1000;
  const auto after = text.find_first_not_of("0123456789");
  if (after != std::string_view::npos && text[after] == '.') {
    uint32_t unit = 100;
    for (const char c : text.substr(after + 1)) {
      if (c < '0' || c > '9') {
        break;
      }
      khz += static_cast<uint32_t>(c - '0') * unit;
      unit /= 10;
    }
  }
  return khz;
}

std::optional<double> decimal(std::string_view text) {
  const bool negative = starts_with(text, "-");
  text.remove_prefix(negative ? 1 : 0);
  // Not every C++ library reads floating-point numbers; those here have few digits, and the quotient is exact.
  double digits = 0;
  double unit = 1;
  bool any = false;
  bool fraction = false;
  for (const char c : text) {
    if (c == '.' && !fraction) {
      fraction = true;
    } else if (c >= '0' && c <= '9') {
      any = true;
      if (!fraction || unit < 1e9) {
        digits = digits * 10 + (c - '0');
        unit *= fraction ? 10 : 1;
      }
    } else {
      break;
    }
  }
  const double value = (negative ? -digits : digits) / unit;
  return any && value > -1e6 && value < 1e6 ? std::optional(value) : std::nullopt;
}

std::vector<uint8_t> octets(std::string_view text) {
  std::vector<uint8_t> out;
  text.remove_prefix(starts_with(text, "0x") ? 2 : 0);
  while (text.size() >= 2 && hex_digit(text[0]) >= 0 && hex_digit(text[1]) >= 0) {
    out.push_back(static_cast<uint8_t>(hex_digit(text[0]) * 16 + hex_digit(text[1])));
    text.remove_prefix(2);
    text.remove_prefix(text.starts_with(' ') ? 1 : 0);
  }
  return out;
}

std::string quote(std::string_view text) {
  constexpr std::size_t most = 40;
  constexpr std::string_view digits = "0123456789abcdef";
  std::string out = "'";
  for (const char c : text.substr(0, most)) {
    if (c >= ' ' && c <= '~') {
      out += c;
    } else {
      const auto octet = static_cast<unsigned char>(c);
      out += {'\\', 'x', digits[octet >> 4U], digits[octet & 0xFU]};
    }
  }
  return out + (text.size() > most ? "...'" : "'");
}

} // namespace text
