#include "zelcsock/slab.h"

#include <atomic>
#include <cstdlib>
#include <cstring>

namespace {

void *default_allocate_zeroed(void * /*context*/, size_t count, size_t size, const char * /*file*/, int /*line*/) {
  return std::calloc(count, size);
}

void *default_resize(void * /*context*/, void *ptr, size_t size, const char * /*file*/, int /*line*/) {
  return std::realloc(ptr, size);
}

void default_release(void * /*context*/, void *ptr, const char * /*file*/, int /*line*/) {
  std::free(ptr);
}

constexpr slab_host_allocator default_allocator{nullptr, default_allocate_zeroed, default_resize, default_release};

constinit std::atomic<const slab_host_allocator *> current{&default_allocator};

const slab_host_allocator &allocator() {
  return *current.load(std::memory_order_acquire);
}

} // namespace

void *slab_dcalloc(size_t count, size_t size, const char *file, int line) {
  const auto &host = allocator();
  return host.allocate_zeroed(host.context, count, size, file, line);
}

void *slab_drealloc(void *ptr, size_t size, const char *file, int line) {
  const auto &host = allocator();
  return host.resize(host.context, ptr, size, file, line);
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
  if (ptr != nullptr) {
    const auto &host = allocator();
    host.release(host.context, ptr, file, line);
  }
}

void slab_host_set_allocator(const slab_host_allocator *host) {
  current.store(host != nullptr ? host : &default_allocator, std::memory_order_release);
}
