#include "bench.hpp"

#include "zelcsock/clog.h"

int main(int argc, char **argv) {
  // What a log line costs is the host's business; how many are written is part of the work.
  clog_host_set_sink([](void *, const char *, const char *, const char *, int, const char *) {}, nullptr);
  bench::register_text();
  bench::register_parsers();
  bench::register_radio();
  bench::register_records();
  bench::register_printers();
  bench::register_json();
  bench::register_growth();
  benchmark::Initialize(&argc, argv);
  if (benchmark::ReportUnrecognizedArguments(argc, argv)) {
    return 1;
  }
  benchmark::RunSpecifiedBenchmarks();
  benchmark::Shutdown();
}
