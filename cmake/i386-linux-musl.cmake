# 32-bit x86, which aligns 64-bit numbers to 4 bytes.
set(musl_processor i386)
set(musl_target x86-linux-musl)
set(musl_emulator qemu-i386-static) # not every kernel for x86-64 runs its programs
include(${CMAKE_CURRENT_LIST_DIR}/zig_musl.cmake)
