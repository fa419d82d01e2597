/* Error log: modules and named loggers, each line tagged with source file, function and line.
 *
 * All functions may be called from any thread. Handles stay valid for the life of the process.
 */
#ifndef ZELCSOCK_CLOG_H
#define ZELCSOCK_CLOG_H

#include "zelcsock/export.h"

#ifdef __cplusplus
extern "C" {
#endif

struct clogmod; /* a module's handle */
struct clogger; /* a logger's handle */

/* The handle of a module, made on first use; null when logging is off or no further module can be registered. */
ZELCSOCK_API struct clogmod *clogmod_get_or_alloc(const char *module_name);

/* The logger behind a module; null for a null module. */
ZELCSOCK_API struct clogger *clogmod_get_clogger(struct clogmod *module);

/* The logger of that name; null selects the default logger. Null when logging is off or no further logger can be
 * registered. */
ZELCSOCK_API struct clogger *clogger_get(const char *name);

/* The logger's name; null for a null logger. The default logger is named "default". */
ZELCSOCK_API const char *clogger_get_name(struct clogger *logger);

/* Writes one error-level line, printf-style and without a line break at its end, to a module's log. A line break within
 * it becomes a blank. A null module writes nothing. */
ZELCSOCK_API void clogmod__err(struct clogmod *module, const char *file, const char *function, int line,
                               const char *format, ...) __attribute__((format(printf, 5, 6)));

/* The same for a logger. */
ZELCSOCK_API void clogger__err(struct clogger *logger, const char *file, const char *function, int line,
                               const char *format, ...) __attribute__((format(printf, 5, 6)));

/* Receives every log line of the process. name is the module's or the logger's; text has no line break.
 *
 * May run in several threads at once, and may itself use whatever logs. */
typedef void (*clog_host_sink_t)(void *context, const char *name, const char *file, const char *function, int line,
                                 const char *text);

/* Installs the host's sink for the whole process; null brings back the default, which writes
 * "name: text (file:line, function)" to standard error.
 *
 * Safe while other threads log. A thread that is writing a line may still be inside the previous sink when this
 * returns, so that sink's context must outlive the lines already under way. */
ZELCSOCK_API void clog_host_set_sink(clog_host_sink_t sink, void *context);

/* Turns logging off or on again. While it is off no module and no logger exists: the functions that look one up give
 * null. On at start. */
ZELCSOCK_API void clog_host_set_enabled(int enabled);

#ifdef __cplusplus
}
#endif

#endif
