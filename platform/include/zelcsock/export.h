/* Marks what libzelcsock exports. */
#ifndef ZELCSOCK_EXPORT_H
#define ZELCSOCK_EXPORT_H

#define ZELCSOCK_API __attribute__((visibility("default")))

#endif
