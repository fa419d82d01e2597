#include "harness.hpp"

#include "zelcsock/clog.h"

#include <cstdlib>
#include <utility>

namespace harness {

captured_log::captured_log() {
  clog_host_set_sink(write, this);
}

captured_log::~captured_log() {
  clog_host_set_sink(nullptr, nullptr);
}

void captured_log::write(void *context, const char *name, const char *file, const char *function, int line,
                         const char *text) {
  auto *self = static_cast<captured_log *>(context);
  const std::lock_guard lock(self->mutex_);
  self->lines_.push_back({name, file, function, line, text});
}

std::vector<log_line> captured_log::take() {
  const std::lock_guard lock(mutex_);
  return std::exchange(lines_, {});
}

std::vector<std::string> captured_log::take_texts() {
  std::vector<std::string> texts;
  for (const log_line &line : take()) {
    texts.push_back(line.function + ": " + line.text);
  }
  return texts;
}

heap::heap() : hooks_{this, allocate_zeroed, resize, release} {
  slab_host_set_allocator(&hooks_);
}

heap::~heap() {
  slab_host_set_allocator(nullptr);
}

std::size_t heap::live() const {
  const std::lock_guard lock(mutex_);
  return live_.size();
}

std::size_t heap::requests() const {
  const std::lock_guard lock(mutex_);
  return requests_;
}

std::set<heap::tag> heap::requested() const {
  const std::lock_guard lock(mutex_);
  return requested_;
}

std::set<heap::tag> heap::failed() const {
  const std::lock_guard lock(mutex_);
  return failed_;
}

void heap::fail_only(std::size_t k) {
  arm(k, false);
}

void heap::fail_from(std::size_t k) {
  arm(k, true);
}

void heap::arm(std::size_t k, bool all) {
  const std::lock_guard lock(mutex_);
  requests_ = 0;
  fail_at_ = k;
  fail_all_ = all;
}

bool heap::refuse(const char *file, int line) {
  ++requests_;
  requested_.emplace(file, line);
  const bool refused = fail_at_ != 0 && (requests_ == fail_at_ || (fail_all_ && requests_ > fail_at_));
  if (refused) {
    failed_.emplace(file, line);
  }
  return refused;
}

void *heap::allocate_zeroed(void *context, std::size_t count, std::size_t size, const char *file, int line) {
  auto *self = static_cast<heap *>(context);
  const std::lock_guard lock(self->mutex_);
  void *block = self->refuse(file, line) ? nullptr : std::calloc(count, size);
  if (block != nullptr) {
    self->live_.insert(block);
  }
  return block;
}

void *heap::resize(void *context, void *ptr, std::size_t size, const char *file, int line) {
  auto *self = static_cast<heap *>(context);
  const std::lock_guard lock(self->mutex_);
  if (self->refuse(file, line)) {
    return nullptr;
  }
  self->live_.erase(ptr);
  void *block = std::realloc(ptr, size);
  self->live_.insert(block != nullptr ? block : ptr);
  return block;
}

void heap::release(void *context, void *ptr, const char * /*file*/, int /*line*/) {
  auto *self = static_cast<heap *>(context);
  const std::lock_guard lock(self->mutex_);
  self->live_.erase(ptr);
  std::free(ptr);
}

} // namespace harness
