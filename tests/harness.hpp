// What the tests see of the library's surroundings: its log lines and its heap.
#pragma once

#include "zelcsock/slab.h"

#include <cstddef>
#include <map>
#include <mutex>
#include <ostream>
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

// Captures every log line of the process while it lives.
class captured_log {
public:
  captured_log();
  ~captured_log();
  captured_log(const captured_log &) = delete;
  captured_log &operator=(const captured_log &) = delete;

  // What has been written since the last call.
  std::vector<log_line> take();
  // The same as "function: text".
  std::vector<std::string> take_texts();

private:
  static void write(void *context, const char *name, const char *file, const char *function, int line,
                    const char *text);

  std::mutex mutex_;
  std::vector<log_line> lines_;
};

// Counts the library's blocks while it lives, and fails requests on demand.
class heap {
public:
  using tag = std::pair<std::string, int>; // source path and line of a request

  heap();
  ~heap();
  heap(const heap &) = delete;
  heap &operator=(const heap &) = delete;

  // Blocks made under this heap and not yet released.
  std::size_t live() const;
  // Requests since construction or the last call of a fail function.
  std::size_t requests() const;
  // The k-th request from now on fails (1: the next); 0: none.
  void fail_only(std::size_t k);
  // Every request from the k-th on fails; 0: none.
  void fail_from(std::size_t k);
  // Tags of all requests, and of those that were failed.
  std::set<tag> requested() const;
  std::set<tag> failed() const;

private:
  static void *allocate_zeroed(void *context, std::size_t count, std::size_t size, const char *file, int line);
  static void *resize(void *context, void *ptr, std::size_t size, const char *file, int line);
  static void release(void *context, void *ptr, const char *file, int line);
  bool refuse(const char *file, int line);
  void arm(std::size_t k, bool all);

  mutable std::mutex mutex_;
  slab_host_allocator hooks_;
  std::set<void *> live_;
  std::set<tag> requested_;
  std::set<tag> failed_;
  std::size_t requests_ = 0;
  std::size_t fail_at_ = 0;
  bool fail_all_ = false;
};

} // namespace harness
