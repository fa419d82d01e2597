#include "ravix_types_generic_simple.hpp"
#include "ravix_types_json.h"

#include <algorithm>
#include <string_view>

namespace {

constexpr const char *here = "json/ravix_types_json";

// Collects a piece's text and passes it on.
class lines {
public:
  explicit lines(const ravix_json_indent_t &target) : target_(target) {}

  void put(char character) {
    if (used_ == sizeof buffer_) {
      flush();
    }
    buffer_[used_++] = character;
  }
  void line_break() {
    put('\n');
    for (std::uint64_t blanks = std::uint64_t{target_.depth} * target_.indent; blanks > 0 && failure_ == 0; --blanks) {
      put(' ');
    }
  }
  int flush() {
    if (used_ != 0 && failure_ == 0) {
      failure_ = std::min(target_.write(buffer_, used_, target_.context), 0);
    }
    used_ = 0;
    return failure_;
  }

private:
  const ravix_json_indent_t &target_;
  int failure_ = 0;
  std::size_t used_ = 0;
  char buffer_[256]; // NOLINT(cppcoreguidelines-pro-type-member-init): only what is written is read
};

void pass_on(char character, ravix_json_indent_t &state, lines &out) {
  if (state.in_string) {
    state.in_string = character != '"' || state.is_escaped;
    state.is_escaped = character == '\\' && !state.is_escaped;
    out.put(character);
    return;
  }
  const bool closes = character == '}' || character == ']';
  state.depth -= closes && state.depth != 0 ? 1 : 0;
  if (state.is_open != closes) { // neither something behind an opening bracket nor what closes an empty one
    out.line_break();
  }
  state.is_open = false;
  out.put(character);
  switch (character) {
  case '"':
    state.in_string = true;
    break;
  case '{':
  case '[':
    ++state.depth;
    state.is_open = true;
    break;
  case ',':
    out.line_break();
    break;
  case ':':
    out.put(' ');
    break;
  default:
    break;
  }
}

} // namespace

int ravix_json_indent(const char *piece, size_t length, void *indent) {
  using namespace zel::ravix;
  if (!are_given(piece, "piece", indent, "indent", here)) {
    return invalid_argument;
  }
  auto &state = *static_cast<ravix_json_indent_t *>(indent);
  if (state.write == nullptr) {
    log_invalid_pointer(here, "write");
    return invalid_argument;
  }
  lines out(state);
  for (const char character : std::string_view(piece, length)) {
    pass_on(character, state, out);
  }
  return out.flush();
}
