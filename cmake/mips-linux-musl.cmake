# Big-endian 32-bit MIPS, as older routers have it.
set(musl_processor mips)
set(musl_target mips-linux-musleabi)
set(musl_emulator qemu-mips-static)
include(${CMAKE_CURRENT_LIST_DIR}/zig_musl.cmake)
