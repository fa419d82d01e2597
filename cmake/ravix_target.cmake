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

# What the C++ compiler hands the linker besides what the C compiler does: a C program needs it with an archive.
set(RAVIX_CXX_RUNTIME ${CMAKE_CXX_IMPLICIT_LINK_LIBRARIES})
list(REMOVE_ITEM RAVIX_CXX_RUNTIME ${CMAKE_C_IMPLICIT_LINK_LIBRARIES})
list(FILTER RAVIX_CXX_RUNTIME EXCLUDE REGEX "/")

# ravix_library(<target> <name>): a library of the project, when its sources and what it links are known: ravix::<name>, of
# the kind that BUILD_SHARED_LIBS asks for, and ravix::<name>_static, its archive. It exports what cmake/<target>.map says.
function(ravix_library target name)
  ravix_target(${target})
  set_target_properties(${target} PROPERTIES VERSION ${PROJECT_VERSION} SOVERSION ${PROJECT_VERSION_MAJOR}
                                             EXPORT_NAME ${name})
  add_library(ravix::${name} ALIAS ${target})
  set(archive ${target})
  get_target_property(type ${target} TYPE)
  if(type STREQUAL "SHARED_LIBRARY")
    set(map ${PROJECT_SOURCE_DIR}/cmake/${target}.map)
    if(EXISTS ${map})
      target_link_options(${target} PRIVATE -Wl,--version-script=${map})
      set_property(TARGET ${target} APPEND PROPERTY LINK_DEPENDS ${map})
    endif()
    # From the same objects; inside another project it is built for those who link it only.
    set(archive ${target}_static)
    add_library(${archive} STATIC $<TARGET_OBJECTS:${target}>)
    set_target_properties(${archive} PROPERTIES OUTPUT_NAME ${target} EXPORT_NAME ${name}_static LINKER_LANGUAGE CXX)
    if(NOT RAVIX_INSTALL)
      set_target_properties(${archive} PROPERTIES EXCLUDE_FROM_ALL ON)
    endif()
    target_include_directories(${archive} INTERFACE
      $<BUILD_INTERFACE:$<TARGET_PROPERTY:${target},INTERFACE_INCLUDE_DIRECTORIES>>)
    get_target_property(needed ${target} LINK_LIBRARIES)
    get_target_property(offered ${target} INTERFACE_LINK_LIBRARIES) # whose headers its own include
    foreach(library IN LISTS needed)
      set(scope PRIVATE)
      if(library IN_LIST offered)
        set(scope PUBLIC)
      endif()
      if(TARGET ${library}_static)
        target_link_libraries(${archive} ${scope} ${library}_static)
      elseif(TARGET ${library})
        target_link_libraries(${archive} ${scope} ${library})
      endif()
    endforeach()
  endif()
  target_link_libraries(${archive} INTERFACE ${RAVIX_CXX_RUNTIME})
  add_library(ravix::${name}_static ALIAS ${archive})
endfunction()
