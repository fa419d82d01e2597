# As arm-linux-musl.cmake, in Thumb-2 instructions: a third less code, for devices of little flash.
set(musl_processor armv7l)
set(musl_target thumb-linux-musleabihf)
set(musl_emulator qemu-arm-static)
include(${CMAKE_CURRENT_LIST_DIR}/zig_musl.cmake)
