#include "plain_radio.hpp"

#include "ravix_types_enums.h"

namespace bench {

std::uint32_t plain_channel(std::uint32_t khz) {
  if (khz >= 2407001 && khz <= 2483999) {
    return (khz - 2407000) / 5000;
  }
  if (khz == 2484000) {
    return 14;
  }
  if (khz >= 5000001 && khz <= 5929999) {
    return (khz - 5000000) / 5000;
  }
  if (khz >= 5930000 && khz <= 5954999) {
    return (khz - 5925000) / 5000;
  }
  if (khz >= 5955000 && khz <= 7124999) {
    return (khz - 5950000) / 5000;
  }
  if (khz >= 56160001 && khz <= 64800000) {
    return (khz - 56160000) / 2160000;
  }
  return 0;
}

std::uint8_t plain_band(std::uint32_t khz) {
  if (khz >= 2401000 && khz <= 2495000) {
    return RAVIX_RADIO_BAND_2GHZ;
  }
  if (khz >= 5170000 && khz <= 5330000) {
    return RAVIX_RADIO_BAND_5GHZ;
  }
  if (khz >= 5490000 && khz <= 5895000) {
    return RAVIX_RADIO_BAND_5GHZ;
  }
  if (khz >= 5945000 && khz <= 7125000) {
    return RAVIX_RADIO_BAND_6GHZ;
  }
  return 0;
}

bool plain_primary(std::uint32_t khz) {
  if (khz >= 2412000 && khz <= 2472000) {
    return (khz - 2412000) % 5000 == 0;
  }
  if (khz == 2484000) {
    return true;
  }
  if (khz >= 5180000 && khz <= 5320000) {
    return (khz - 5180000) % 20000 == 0;
  }
  if (khz >= 5500000 && khz <= 5720000) {
    return (khz - 5500000) % 20000 == 0;
  }
  if (khz >= 5745000 && khz <= 5885000) {
    return (khz - 5745000) % 20000 == 0;
  }
  if (khz >= 5955000 && khz <= 7115000) {
    return (khz - 5955000) % 20000 == 0;
  }
  return false;
}

std::uint8_t plain_call(std::uint32_t khz) {
  return static_cast<std::uint8_t>(khz);
}

} // namespace bench
