// The peers of the radio arithmetic: plain if-chains, in a shared library as ours is.
#pragma once

#include <cstdint>

namespace bench {

std::uint32_t plain_channel(std::uint32_t khz);
std::uint8_t plain_band(std::uint32_t khz);
bool plain_primary(std::uint32_t khz);

// No arithmetic at all: what a call takes.
std::uint8_t plain_call(std::uint32_t khz);

} // namespace bench
