/**
 * @file
 * Records as JSON (RFC 8259), for programs: test benches, shells, log collectors. From C++ on streams:
 * ravix_types_json.hpp.
 *
 * Every record and table of ravix_types_records.def has
 *
 *     int ravix_types_<name>_to_json(const ravix_<name>_t *obj, ravix_json_write_t write, void *context);
 *
 * named as its other functions (`ravix_cfg_<name>_to_json`, `radiod_hal_event_<name>_to_json`), which writes the whole
 * record. Every record that has a `_compare` also has
 *
 *     int ravix_types_<name>_diff_to_json(const ravix_<name>_t *value, const ravix_<name>_t *reference,
 *                                         ravix_json_write_t write, void *context);
 *
 * which writes what differs in a value from a reference.
 *
 * # Form {#json_form}
 *
 * The text is compact and in UTF-8; ravix_json_indent() breaks it into lines. A record is an object whose keys are the
 * names of its fields, in their order, and a table is an array. Values of enumerations and flags stand by their names,
 * `null` for what is not known or not there, and "[SECRET]" for keys and secrets. A difference is a JSON merge patch
 * (RFC 7396) with the fields that differ; `{}` for records that are equal by their `_compare`.
 *
 * All of it, with an example of each kind of field, is on one page: [Records as JSON](docs/json.md).
 *
 * # Contract
 *
 * The functions return 0; -22 (-EINVAL) for a null argument, after one log line of module "ravix"; or what `write` has
 * returned to stop. They allocate nothing, change nothing and take a bounded amount of stack. Nothing throws, except
 * what `write` itself throws. Any number of threads may write records; a record must not change meanwhile.
 *
 * Records may hold whatever a caller can write into one without a bad pointer: a count beyond its array counts up to
 * the array's end, a count without octets counts nothing.
 */
#ifndef RAVIX_TYPES_JSON_H
#define RAVIX_TYPES_JSON_H

#include "ravix_types.h"

#include <stddef.h>

/** @defgroup json JSON
 *  Records and their differences as JSON.
 *  @{ */

#ifdef __cplusplus
extern "C" {
#endif

/**
 * Takes the next piece of a JSON text. Pieces are a few hundred octets long; they may end within a word or a character,
 * and no zero follows them.
 * @param piece its octets, valid during the call
 * @param length how many they are, 1 at least
 * @param context what was given for it
 * @return 0 or more to go on; a negative value stops everything and is passed on to the caller
 */
typedef int (*ravix_json_write_t)(const char *piece, size_t length, void *context);

/** Breaks a JSON text into indented lines on its way: a context for ravix_json_indent(). The first three are set before
 *  the text begins, the others are zero then. Owns nothing. */
typedef struct ravix_json_indent_state {
  ravix_json_write_t write; /**< Where the indented text goes. */
  void *context;            /**< The context of `write`. */
  unsigned indent;          /**< Blanks for each level. */
  unsigned depth;           /**< Own: brackets that are open. */
  bool is_open;             /**< Own: the last of them has nothing in it as yet. */
  bool in_string;           /**< Own: within a string. */
  bool is_escaped;          /**< Own: behind a backslash. */
} ravix_json_indent_t;

/**
 * A `write` that passes a compact JSON text on with line breaks and indentation. The text does not end with a line
 * break.
 *
 *     ravix_json_indent_t lines = {.write = append, .context = &text, .indent = 2};
 *     ravix_types_scan_table_to_json(table, ravix_json_indent, &lines);
 *
 * @param piece see ravix_json_write_t
 * @param length see ravix_json_write_t
 * @param indent a ravix_json_indent_t
 * @return 0, or the negative value of its `write`; -22 and a log line for a null argument, or a null `write`
 */
RAVIX_API int ravix_json_indent(const char *piece, size_t length, void *indent);

/** @cond */
#define RAVIX_JSON_uncompared(NAME, TYPE)
#define RAVIX_JSON_compared(NAME, TYPE)                                                                                \
  RAVIX_API int NAME##_diff_to_json(const TYPE *value, const TYPE *reference, ravix_json_write_t write, void *context);
#define RAVIX_RECORD(NAME, TYPE, SHAPE, COMPARED, PRINTED)                                                             \
  RAVIX_API int NAME##_to_json(const TYPE *obj, ravix_json_write_t write, void *context);                              \
  RAVIX_JSON_##COMPARED(NAME, TYPE)
#include "ravix_types_records.def"
#undef RAVIX_JSON_uncompared
#undef RAVIX_JSON_compared
/** @endcond */

#ifdef __cplusplus
}
#endif

/** @} */

#endif
