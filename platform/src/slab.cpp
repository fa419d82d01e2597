#include "zelcsock/slab.h"

#include <atomic>
#include <cstdlib>
#include <cstring>

namespace {

// The host's allocator; null for the C library's, which is called without a detour.
constinit std::atomic<const slab_host_allocator *> current{nullptr};

} // namespace

void *slab_dcalloc(size_t count, size_t size, const char *file, int line) {
  const slab_host_allocator *host = current.load(std::memory_order_acquire);
  return host == nullptr ? std::calloc(count, size) : host->allocate_zeroed(host->context, count, size, file, line);
}

void *slab_drealloc(void *ptr, size_t size, const char *file, int line) {
  const slab_host_allocator *host = current.load(std::memory_order_acquire);
  return host == nullptr ? std::realloc(ptr, size) : host->resize(host->context, ptr, size, file, line);
}

char *slab_dstrdup(const char *text, const char *file, int line) {
  const size_t size = std::strlen(text) + 1;
  void *copy = slab_drealloc(nullptr, size, file, line);
  if (copy != nullptr) {
    std::memcpy(copy, text, size);
  }
  return static_cast<char *>(copy);
}

void slab_cbcontext_free(void *ptr, const char *file, int line) {
  const slab_host_allocator *host = current.load(std::memory_order_acquire);
  if (host == nullptr) {
    std::free(ptr);
  } else if (ptr != nullptr) {
    host->release(host->context, ptr, file, line);
  }
}

void slab_host_set_allocator(const slab_host_allocator *host) {
  current.store(host, std::memory_order_release);
}
