// What the tests see of the library's surroundings: its log lines and its heap.
#pragma once

#include "zelcsock/clog.h"
#include "zelcsock/slab.h"

#include <algorithm>
#include <cstddef>
#include <cstdlib>
#include <cstring>
#include <map>
#include <set>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace harness {

struct log_line {
  std::string name;     // of the module or logger
  std::string file;     // source path, without ending
  std::string function; // that raised the line
  int line = 0;
  std::string text;
};

inline int sign(int order) {
  return (order > 0) - (order < 0);
}

// Captures every log line while it lives, of one thread.
class captured_log {
public:
  captured_log() { clog_host_set_sink(write, this); }
  ~captured_log() { clog_host_set_sink(nullptr, nullptr); }
  captured_log(const captured_log &) = delete;
  captured_log &operator=(const captured_log &) = delete;

  // What has been written since the last call.
  std::vector<log_line> take() { return std::exchange(lines_, {}); }

private:
  static void write(void *context, const char *name, const char *file, const char *function, int line,
                    const char *text) {
    static_cast<captured_log *>(context)->lines_.push_back({name, file, function, line, text});
  }

  std::vector<log_line> lines_;
};

// Secrets at random begin with a mark that nothing else has, so that it can be looked for.
inline constexpr std::string_view secret_mark = "ZZZZ";

// Knows the library's blocks while it lives, and fails requests on demand; for one thread.
class heap {
public:
  using tag = std::pair<std::string_view, int>; // source path and line of a request, a constant of the sources

  heap() { slab_host_set_allocator(&hooks_); }
  ~heap() { slab_host_set_allocator(nullptr); }
  heap(const heap &) = delete;
  heap &operator=(const heap &) = delete;

  // The k-th request from now on fails (1: the next), alone or with all that follow; 0: none.
  void fail_only(std::size_t k) { arm(k, false); }
  void fail_from(std::size_t k) { arm(k, true); }

  // Blocks made under this heap and not yet released.
  std::size_t live() const { return live_.size(); }
  // What was asked for when a block was made; 0 for what is none.
  std::size_t size_of(const void *block) const { return live_.contains(block) ? live_.at(block) : 0; }
  // Requests since construction or the last call of a fail function.
  std::size_t requests() const { return requests_; }
  // Tags of all requests, and of those that were failed (alone or with all that follow).
  const std::set<tag> &requested() const { return requested_; }
  const std::set<tag> &failed_only() const { return failed_[0]; }
  const std::set<tag> &failed_from() const { return failed_[1]; }
  const tag &last_release() const { return last_release_; }
  // Blocks that were released with a secret in them.
  std::size_t secrets_released() const { return secrets_released_; }

private:
  void arm(std::size_t k, bool all) {
    requests_ = 0;
    fail_at_ = k;
    fail_all_ = all;
  }
  void *request(void *old, std::size_t count, std::size_t size, const char *file, int line) {
    requested_.insert({file, line}); // which allocates for a new one only
    ++requests_;
    if (fail_at_ != 0 && (requests_ == fail_at_ || (fail_all_ && requests_ > fail_at_))) {
      failed_[fail_all_ ? 1 : 0].emplace(file, line);
      return nullptr;
    }
    void *block = std::calloc(count, size);
    if (const std::size_t kept = size_of(old); old != nullptr) { // always moves, and leaves nothing of use behind
      std::memcpy(block, old, std::min(kept, size));
      std::memset(old, 0xA5, kept);
      std::free(old);
    }
    live_.erase(old);
    live_[block] = count * size;
    return block;
  }
  static void *allocate_zeroed(void *context, std::size_t count, std::size_t size, const char *file, int line) {
    return static_cast<heap *>(context)->request(nullptr, count, size, file, line);
  }
  static void *resize(void *context, void *ptr, std::size_t size, const char *file, int line) {
    auto *self = static_cast<heap *>(context);
    const std::size_t kept = self->size_of(ptr);
    void *block = self->request(ptr, 1, size, file, line);
    if (block != nullptr && size > kept) {
      std::memset(static_cast<char *>(block) + kept, 0xA5, size - kept); // nobody may rely on what it holds
    }
    return block;
  }
  static void release(void *context, void *ptr, const char *file, int line) {
    auto *self = static_cast<heap *>(context);
    const std::string_view octets(static_cast<const char *>(ptr), self->size_of(ptr));
    self->secrets_released_ += octets.find(secret_mark) != std::string_view::npos ? 1 : 0;
    self->live_.erase(ptr);
    self->last_release_ = {file, line};
    std::free(ptr);
  }

  slab_host_allocator hooks_{this, allocate_zeroed, resize, release};
  std::map<const void *, std::size_t> live_;
  std::set<tag> requested_, failed_[2];
  tag last_release_;
  std::size_t requests_ = 0, fail_at_ = 0, secrets_released_ = 0;
  bool fail_all_ = false;
};

} // namespace harness
