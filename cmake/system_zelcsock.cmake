# The device's own libzelcsock as ravix::zelcsock; for this build, and for projects that use what it installed.
find_library(ZELCSOCK_LIBRARY zelcsock REQUIRED)
find_path(ZELCSOCK_INCLUDE_DIR zelcsock/slab.h REQUIRED)
if(NOT TARGET ravix::zelcsock)
  # Of a shared library the linker is told the directory when it links a program to libravix_types.so.
  if(ZELCSOCK_LIBRARY MATCHES "\\.a$")
    add_library(ravix::zelcsock STATIC IMPORTED)
  else()
    add_library(ravix::zelcsock SHARED IMPORTED)
  endif()
  set_target_properties(ravix::zelcsock PROPERTIES IMPORTED_LOCATION ${ZELCSOCK_LIBRARY}
                                                   INTERFACE_INCLUDE_DIRECTORIES ${ZELCSOCK_INCLUDE_DIR})
endif()
