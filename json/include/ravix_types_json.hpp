/**
 * @file
 * Records as JSON on C++ streams (from C++17 on); the form is that of ravix_types_json.h.
 *
 * - `print_json(os, record)` writes a whole record or table.
 * - `print_json_diff(os, value, reference)` writes what differs in a value from a reference, of the records that are
 *   compared.
 *
 * Both take the number of blanks for each level as one more argument; without it, or with 0, the text is one line. It
 * never ends with a line break: the caller adds one. The stream's format, width and locale neither show nor change. A
 * stream that fails gets nothing more; one that is set to throw does so, and nothing else throws.
 */
#ifndef RAVIX_TYPES_JSON_HPP
#define RAVIX_TYPES_JSON_HPP

#include "ravix_types_json.h"

#include <ostream>

/** @addtogroup json
 *  @{ */

/** @cond */
namespace ravix::detail {

inline int write_json(const char *piece, size_t length, void *context) {
  auto &os = *static_cast<std::ostream *>(context);
  return os.write(piece, static_cast<std::streamsize>(length)) ? 0 : -1;
}

// Calls to_json(write, context).
template <class ToJson> void print_json(std::ostream &os, unsigned indent, ToJson to_json) {
  if (indent == 0) {
    to_json(write_json, &os);
    return;
  }
  ravix_json_indent_t lines{};
  lines.write = write_json;
  lines.context = &os;
  lines.indent = indent;
  to_json(ravix_json_indent, &lines);
}

} // namespace ravix::detail

#define RAVIX_PRINT_JSON_uncompared(NAME, TYPE)
#define RAVIX_PRINT_JSON_compared(NAME, TYPE)                                                                          \
  inline void print_json_diff(std::ostream &os, const TYPE &value, const TYPE &reference, unsigned indent = 0) {       \
    ravix::detail::print_json(os, indent, [&](ravix_json_write_t write, void *context) {                               \
      NAME##_diff_to_json(&value, &reference, write, context);                                                         \
    });                                                                                                                \
  }
#define RAVIX_RECORD(NAME, TYPE, SHAPE, COMPARED, PRINTED)                                                             \
  inline void print_json(std::ostream &os, const TYPE &record, unsigned indent = 0) {                                  \
    ravix::detail::print_json(                                                                                         \
        os, indent, [&](ravix_json_write_t write, void *context) { NAME##_to_json(&record, write, context); });        \
  }                                                                                                                    \
  RAVIX_PRINT_JSON_##COMPARED(NAME, TYPE)
#include "ravix_types_records.def"
#undef RAVIX_PRINT_JSON_uncompared
#undef RAVIX_PRINT_JSON_compared
/** @endcond */

/** @} */

#endif
