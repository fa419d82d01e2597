/* Sends the library's log to syslog, by the hook that the platform library has for programs on a host. Links both
 * libraries: ravix::types and ravix::zelcsock. */
#include <ravix_types.h>
#include <zelcsock/clog.h>

#include <syslog.h>

static void to_syslog(void *context, const char *name, const char *file, const char *function, int line,
                      const char *text) {
  (void)context;
  syslog(LOG_ERR, "%s: %s (%s:%d, %s)", name, text, file, line, function);
}

int main(void) {
  openlog("log_to_syslog", LOG_PERROR, LOG_DAEMON); /* to standard error as well, so that there is something to see */
  clog_host_set_sink(to_syslog, NULL);

  uint32_t frequency = 0;
  (void)ravix_frequency_from_str("channel 6", &frequency); /* refused, which is one line */
  closelog();
  return 0;
}
