#include "zelcsock/clog.h"

#include <array>
#include <atomic>
#include <cstdarg>
#include <cstddef>
#include <cstdio>
#include <cstring>
#include <memory>
#include <mutex>
#include <new>
#include <string_view>

// A module logs through a logger of its own name, so both handles are views of one entry of the registry.
struct clogger {
  char name[32];
};
struct clogmod {
  clogger logger;
};

namespace {

struct sink {
  clog_host_sink_t write;
  void *context;
};

void write_to_stderr(void * /*context*/, const char *name, const char *file, const char *function, int line,
                     const char *text) {
  std::fprintf(stderr, "%s: %s (%s:%d, %s)\n", name, text, file, line, function);
}

constexpr sink default_sink{write_to_stderr, nullptr};

constinit std::mutex registry_mutex;
constinit std::array<clogmod, 16> registry{};
constinit std::size_t registered = 0;
constinit sink current_sink = default_sink;
constinit std::atomic<bool> enabled{true};

clogmod *find_or_register(const char *name) {
  const std::lock_guard lock(registry_mutex);
  for (std::size_t i = 0; i < registered; ++i) {
    if (std::strcmp(registry[i].logger.name, name) == 0) {
      return &registry[i];
    }
  }
  if (registered == registry.size() || std::strlen(name) >= sizeof registry[0].logger.name) {
    return nullptr;
  }
  clogmod &entry = registry[registered++];
  std::memcpy(entry.logger.name, name, std::strlen(name));
  return &entry;
}

void write_line(const char *name, const char *file, const char *function, int line, const char *format,
                std::va_list arguments) {
  // Most lines fit the stack; a longer one is cut only when no memory is left for it.
  std::array<char, 512> local; // NOLINT(cppcoreguidelines-pro-type-member-init): vsnprintf fills it
  std::va_list again;
  va_copy(again, arguments);
  const int length = std::vsnprintf(local.data(), local.size(), format, arguments);
  std::unique_ptr<char[]> heap;
  if (length >= static_cast<int>(local.size())) {
    const std::size_t size = static_cast<std::size_t>(length) + 1;
    heap.reset(new (std::nothrow) char[size]);
    if (heap) {
      std::vsnprintf(heap.get(), size, format, again);
    }
  }
  va_end(again);
  if (length < 0) {
    return;
  }
  char *const text = heap ? heap.get() : local.data();
  for (char *c = text; *c != '\0'; ++c) {
    *c = *c == '\n' ? ' ' : *c; // one line, whatever text the message quotes
  }
  // The sink runs outside the lock: it may log itself.
  const sink target = [] {
    const std::lock_guard lock(registry_mutex);
    return current_sink;
  }();
  target.write(target.context, name, file, function, line, text);
}

} // namespace

clogmod *clogmod_get_or_alloc(const char *module_name) {
  return enabled.load() && module_name != nullptr ? find_or_register(module_name) : nullptr;
}

clogger *clogmod_get_clogger(clogmod *module) {
  return module != nullptr ? &module->logger : nullptr;
}

clogger *clogger_get(const char *name) {
  return clogmod_get_clogger(clogmod_get_or_alloc(name != nullptr ? name : "default"));
}

const char *clogger_get_name(clogger *logger) {
  return logger != nullptr ? logger->name : nullptr;
}

void clogmod__err(clogmod *module, const char *file, const char *function, int line, const char *format, ...) {
  if (module == nullptr) {
    return;
  }
  std::va_list arguments;
  va_start(arguments, format);
  write_line(module->logger.name, file, function, line, format, arguments);
  va_end(arguments);
}

void clogger__err(clogger *logger, const char *file, const char *function, int line, const char *format, ...) {
  if (logger == nullptr) {
    return;
  }
  std::va_list arguments;
  va_start(arguments, format);
  write_line(logger->name, file, function, line, format, arguments);
  va_end(arguments);
}

void clog_host_set_sink(clog_host_sink_t write, void *context) {
  const std::lock_guard lock(registry_mutex);
  current_sink = write != nullptr ? sink{write, context} : default_sink;
}

void clog_host_set_enabled(int on) {
  enabled.store(on != 0);
}
