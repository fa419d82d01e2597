# 32-bit ARM with hardware floating point, as the access points of today have it.
set(musl_processor armv7l)
set(musl_target arm-linux-musleabihf)
set(musl_emulator qemu-arm-static)
include(${CMAKE_CURRENT_LIST_DIR}/zig_musl.cmake)
