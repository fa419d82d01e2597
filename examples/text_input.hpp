// Text that another program printed: getting it, going through it line by line, and saying what is wrong with it.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace text {

// What is wrong with an input. An error means that something could not be read; a remark that it was read with a doubt.
struct problem {
  std::size_t line; // 0: the input as a whole
  bool is_error;
  std::string message;
};

// Keeps the first hundred errors and the first hundred remarks, and counts the others: a text may have millions.
class problems {
public:
  void error(std::size_t line, std::string message) { add({line, true, std::move(message)}); }
  void remark(std::size_t line, std::string message) { add({line, false, std::move(message)}); }
  // For an input that is something else altogether: what was said about its lines is of no use.
  void only_error(std::size_t line, std::string message) {
    *this = {};
    error(line, std::move(message));
  }
  const std::vector<problem> &list() const { return list_; }
  bool has_errors() const { return errors_ != 0; }

  // One line each on standard error, in the order of the input, no more than a screenful, and errors before remarks.
  void print(const char *program, const std::string &input_name) const;

private:
  void add(problem p);

  std::vector<problem> list_;
  std::size_t errors_ = 0, remarks_ = 0;
};

// Reads a file, or standard input for "-". On failure returns the reason, and `content` holds what came before it.
std::optional<std::string> read(const std::string &name, std::string &content);

// A sample that belongs to the example programs; they are found next to the program, before and after installation.
std::string sample(const std::string &file_name);

struct line {
  std::size_t number = 0;
  std::size_t indent = 0;      // blanks and tabs at its beginning
  std::string_view content;    // without blanks around it and without a bullet ("* ")
  std::string_view key, value; // before and after the first ": " (or ":" at the end); without one, all is key
};

// Goes through the lines that are not empty. Reports those that no tool prints, and leaves them out. A last line
// without a line end may be cut, which is remarked.
class line_reader {
public:
  line_reader(std::string_view text, problems &problems) : text_(text), problems_(problems) {}
  bool next(line &out);

private:
  std::string_view text_;
  problems &problems_;
  std::size_t at_ = 0;
  std::size_t number_ = 0;
};

std::string_view trim(std::string_view text);
// Of ASCII letters, without regard to case.
bool starts_with(std::string_view text, std::string_view beginning);
bool same(std::string_view a, std::string_view b);
bool contains(std::string_view text, std::string_view part);
// The part before the separator; takes it and the separator off the front of `text`.
std::string_view split(std::string_view &text, std::string_view separator);
// All parts between commas, of which the first and the last may be empty.
std::vector<std::string_view> comma_separated(std::string_view text);
// The number at the beginning: decimal, or hexadecimal after "0x".
std::optional<uint32_t> number(std::string_view text);
// The frequency in MHz at the beginning, with up to three decimals, in kHz.
std::optional<uint32_t> megahertz(std::string_view text);
// The decimal number at the beginning, which may have a sign and decimals.
std::optional<double> decimal(std::string_view text);
// Octets in hexadecimal, with or without blanks between them: "0x029b", "02 9b". They end where two digits are missing.
std::vector<uint8_t> octets(std::string_view text);
// For a message: cut to a readable length, with escapes for what cannot be printed.
std::string quote(std::string_view text);

} // namespace text
