# What `cmake --install` puts where, and the Debian packages that `cpack` makes of it.
include(GNUInstallDirs)
include(CMakePackageConfigHelpers)

set(ravix_package_dir ${CMAKE_INSTALL_LIBDIR}/cmake/ravix_types)
set(ravix_data_dir ${CMAKE_INSTALL_DATADIR}/ravix_types)

# ravix_install_library(<target> <component>): the library, the other kind of it (a static archive beside a shared
# library, from the same objects), its headers, and its CMake target.
function(ravix_install_library target component)
  set(targets ${target})
  if(BUILD_SHARED_LIBS)
    add_library(${target}_static STATIC $<TARGET_OBJECTS:${target}>)
    set_target_properties(${target}_static PROPERTIES OUTPUT_NAME ${target} LINKER_LANGUAGE CXX)
    target_include_directories(${target}_static INTERFACE $<INSTALL_INTERFACE:${CMAKE_INSTALL_INCLUDEDIR}>)
    list(APPEND targets ${target}_static)
  endif()
  install(TARGETS ${targets} EXPORT ravix_types
          LIBRARY COMPONENT ${component} NAMELINK_COMPONENT ${component}-dev
          ARCHIVE COMPONENT ${component}-dev
          FILE_SET HEADERS COMPONENT ${component}-dev)
endfunction()

ravix_install_library(ravix_types types)
set_target_properties(ravix_types PROPERTIES EXPORT_NAME types)
# The platform library is found beside this one in any prefix; in the system's own directories nobody needs to be told.
if(NOT CMAKE_INSTALL_PREFIX STREQUAL "/usr")
  set_target_properties(ravix_types PROPERTIES INSTALL_RPATH "$ORIGIN")
endif()
if(RAVIX_PLATFORM STREQUAL "bundled")
  ravix_install_library(zelcsock zelcsock)
  set(static_zelcsock zelcsock_static)
else()
  set(static_zelcsock ravix::zelcsock)
  install(FILES cmake/system_zelcsock.cmake DESTINATION ${ravix_package_dir} COMPONENT types-dev)
endif()
if(TARGET ravix_types_static)
  set_target_properties(ravix_types_static PROPERTIES EXPORT_NAME types_static)
  target_link_libraries(ravix_types_static INTERFACE ${static_zelcsock})
endif()

configure_package_config_file(cmake/ravix_types-config.cmake.in ${PROJECT_BINARY_DIR}/cmake/ravix_types-config.cmake
                              INSTALL_DESTINATION ${ravix_package_dir})
write_basic_package_version_file(${PROJECT_BINARY_DIR}/cmake/ravix_types-config-version.cmake
                                 COMPATIBILITY SameMajorVersion)
install(EXPORT ravix_types NAMESPACE ravix:: FILE ravix_types-targets.cmake DESTINATION ${ravix_package_dir}
        COMPONENT types-dev)
install(FILES ${PROJECT_BINARY_DIR}/cmake/ravix_types-config.cmake
              ${PROJECT_BINARY_DIR}/cmake/ravix_types-config-version.cmake
        DESTINATION ${ravix_package_dir} COMPONENT types-dev)

file(RELATIVE_PATH ravix_pc_to_prefix /${CMAKE_INSTALL_LIBDIR}/pkgconfig /)
string(REGEX REPLACE "/$" "" ravix_pc_to_prefix "${ravix_pc_to_prefix}")
# What the archive needs: asked for by `pkg-config --static`, and by every program where there is nothing but the archive.
set(ravix_pc_libs_private "-lzelcsock -lstdc++ -lm")
if(NOT BUILD_SHARED_LIBS)
  set(ravix_pc_libs " ${ravix_pc_libs_private}")
endif()
configure_file(cmake/ravix_types.pc.in ${PROJECT_BINARY_DIR}/ravix_types.pc @ONLY)
install(FILES ${PROJECT_BINARY_DIR}/ravix_types.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig COMPONENT types-dev)

# Debian packages, split as Debian does; see scripts/package.
string(REPLACE "-" "~" CPACK_PACKAGE_VERSION "${RAVIX_VERSION}") # 1.0.0~dev comes before 1.0.0
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME ravix-types)
set(CPACK_PACKAGE_CONTACT "The libravix_types authors <root@localhost>")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION libs)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS ${CMAKE_LIBRARY_OUTPUT_DIRECTORY})
set(CPACK_COMPONENTS_ALL types types-dev)
set(CPACK_DEBIAN_TYPES_PACKAGE_NAME libravix-types${PROJECT_VERSION_MAJOR})
set(CPACK_DEBIAN_TYPES-DEV_PACKAGE_NAME libravix-types-dev)
set(CPACK_DEBIAN_TYPES-DEV_PACKAGE_SECTION libdevel)
set(CPACK_DEBIAN_TYPES-DEV_PACKAGE_DEPENDS "libravix-types${PROJECT_VERSION_MAJOR} (= ${CPACK_PACKAGE_VERSION})")
if(RAVIX_PLATFORM STREQUAL "bundled")
  list(APPEND CPACK_COMPONENTS_ALL zelcsock zelcsock-dev)
  set(CPACK_DEBIAN_ZELCSOCK_PACKAGE_NAME libzelcsock${PROJECT_VERSION_MAJOR})
  set(CPACK_DEBIAN_ZELCSOCK-DEV_PACKAGE_NAME libzelcsock-dev)
  set(CPACK_DEBIAN_ZELCSOCK-DEV_PACKAGE_SECTION libdevel)
  set(CPACK_DEBIAN_ZELCSOCK-DEV_PACKAGE_DEPENDS "libzelcsock${PROJECT_VERSION_MAJOR} (= ${CPACK_PACKAGE_VERSION})")
  set(CPACK_DEBIAN_TYPES_PACKAGE_DEPENDS "libzelcsock${PROJECT_VERSION_MAJOR}")
  string(APPEND CPACK_DEBIAN_TYPES-DEV_PACKAGE_DEPENDS ", libzelcsock-dev")
endif()
include(CPack)
