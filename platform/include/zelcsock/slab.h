/* Tagged allocator: every block carries the source path and line of the call that made it.
 *
 * Blocks are aligned for any object. All functions may be called from any thread. Releasing a block twice, or one that
 * did not come from here, is an error of the caller that is not detected.
 */
#ifndef ZELCSOCK_SLAB_H
#define ZELCSOCK_SLAB_H

#include "zelcsock/export.h"

#include <stddef.h>

#ifdef __cplusplus
extern "C" {
#endif

/* Zero-filled block of count times size bytes; null when memory is exhausted or the product overflows. */
ZELCSOCK_API void *slab_dcalloc(size_t count, size_t size, const char *file, int line);

/* Resizes a block, moving it if it must; a null ptr allocates. The first bytes keep their content, new ones are
 * undefined. Null when memory is exhausted: the old block then stays valid. */
ZELCSOCK_API void *slab_drealloc(void *ptr, size_t size, const char *file, int line);

/* Copy of a zero-terminated text in a block of its own; null when memory is exhausted. The text must not be null. */
ZELCSOCK_API char *slab_dstrdup(const char *text, const char *file, int line);

/* Releases a block; null is harmless. */
ZELCSOCK_API void slab_cbcontext_free(void *ptr, const char *file, int line);

/* What a host program may put under the functions above, for instance to count blocks or to fail the k-th request.
 *
 * The functions have the contracts of calloc, realloc and free, and get the tag of the call besides. They may be called
 * from several threads at once and must not call the slab functions themselves. */
struct slab_host_allocator {
  void *context;
  void *(*allocate_zeroed)(void *context, size_t count, size_t size, const char *file, int line);
  void *(*resize)(void *context, void *ptr, size_t size, const char *file, int line);
  void (*release)(void *context, void *ptr, const char *file, int line);
};

/* Installs the host's allocator for the whole process; null brings back calloc, realloc and free.
 *
 * The structure is referred to, not copied: it must stay valid and unchanged while it is installed. A block must be
 * released under the allocator that made it, unless both get their memory from the same place. */
ZELCSOCK_API void slab_host_set_allocator(const struct slab_host_allocator *allocator);

#ifdef __cplusplus
}
#endif

#endif
