# Settings that every library and program of the project shares.

# x86: copies and fills of more than a few words go to the C library, whose instructions fit the processor. The compiler's
# own "rep movs" and "rep stos" take three times as long for the sizes of a record, and more code.
include(CheckCXXCompilerFlag)
check_cxx_compiler_flag(-mstringop-strategy=libcall RAVIX_HAS_STRINGOP_STRATEGY)

# Code is compiled as C11 and C++20 with the project's warnings; nothing is exported unless it says so.
function(ravix_target target)
  set_target_properties(${target} PROPERTIES
    C_STANDARD 11 C_STANDARD_REQUIRED ON C_EXTENSIONS OFF
    CXX_STANDARD 20 CXX_STANDARD_REQUIRED ON CXX_EXTENSIONS OFF
    C_VISIBILITY_PRESET hidden CXX_VISIBILITY_PRESET hidden VISIBILITY_INLINES_HIDDEN ON
    POSITION_INDEPENDENT_CODE ON)
  target_compile_options(${target} PRIVATE
    -Wall -Wextra -Wpedantic -Wconversion -Wshadow $<$<BOOL:${RAVIX_WERROR}>:-Werror>
    # Paths in the binary do not depend on where the build runs.
    -ffile-prefix-map=${PROJECT_SOURCE_DIR}/=
    # Calls inside one library are bound at link time: an exported function may be inlined by its own library.
    -fno-semantic-interposition)
  if(RAVIX_HAS_STRINGOP_STRATEGY)
    target_compile_options(${target} PRIVATE -mstringop-strategy=libcall)
  endif()
  # Calls into other libraries load their address instead of passing a stub that does: more code, and a twentieth less time.
  if(RAVIX_HAS_STRINGOP_STRATEGY AND RAVIX_OPTIMIZE STREQUAL "speed")
    target_compile_options(${target} PRIVATE -fno-plt)
  endif()
  if(RAVIX_OPTIMIZE STREQUAL "size")
    target_compile_options(${target} PRIVATE $<$<CONFIG:Release>:-Os>)
  else()
    target_compile_options(${target} PRIVATE $<$<CONFIG:Release>:-O2>)
  endif()
  get_target_property(type ${target} TYPE)
  if(type STREQUAL "SHARED_LIBRARY")
    target_link_options(${target} PRIVATE -Wl,-Bsymbolic-functions)
    if(NOT CMAKE_CXX_FLAGS MATCHES "-fsanitize") # clang has the runtime of a sanitizer in the programs alone
      target_link_options(${target} PRIVATE -Wl,--no-undefined)
    endif()
  endif()
endfunction()
