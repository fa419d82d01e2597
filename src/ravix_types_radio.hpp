// Figures of the bands that more than one source needs. Frequencies are in kHz.
#pragma once

#include <cstdint>

namespace zel::ravix::radio {

// Channel starting frequencies: a channel's number counts steps of 5 MHz from there (IEEE 802.11, Table E-4).
inline constexpr std::uint32_t start_2ghz = 2407000;
inline constexpr std::uint32_t start_5ghz = 5000000;
inline constexpr std::uint32_t start_6ghz = 5950000;
inline constexpr std::uint32_t channel_spacing = 5000;

// The one channel of 2.4 GHz that stands apart (class 82).
inline constexpr std::uint32_t channel_14 = 2484000;
inline constexpr std::uint32_t number_of_channel_14 = 14;

inline constexpr std::uint32_t width_20_khz = 20000;

} // namespace zel::ravix::radio
