// JSON that the programs of the build write for others to read: built up as text, item by item.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

// Of printable text.
inline std::string in_quotes(std::string_view text) {
  std::string out = "\"";
  for (const char character : text) {
    out += character == '"' || character == '\\' ? "\\" : "";
    out += character;
  }
  return out + '"';
}

// A list or object; what is added are values as JSON.
class json {
public:
  explicit json(std::string_view brackets, std::string_view separator = ", ")
      : text_(1, brackets[0]), separator_(separator), end_(brackets[1]) {}
  json &add(const std::string &item) {
    text_ += (is_empty() ? "" : separator_) + item;
    return *this;
  }
  json &add(std::string_view key, const std::string &value) { return add(in_quotes(key) + ": " + value); }
  bool is_empty() const { return text_.size() == 1; }
  std::string text() const { return text_ + end_; }

private:
  std::string text_, separator_;
  char end_;
};

// What a meaning shows for a value.
struct shown_text {
  std::string all;
  void text(std::string_view piece) { all += piece; }
  void decimal(auto number) { all += std::to_string(number); }
};
template <class Meaning> std::string shown(auto value) {
  shown_text out;
  Meaning::print(out, value);
  return out.all;
}
