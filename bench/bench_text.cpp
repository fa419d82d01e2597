// Formatters beside snprintf and fmt with the same format, parsers beside sscanf and a plain lookup. The peers write
// into a local array and take no lock.
#include "ravix_types_str_convert.h"
#include "ravix_types_util.h"

#include <benchmark/benchmark.h>
#include <fmt/core.h>

#include <array>
#include <cctype>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <random>
#include <string>
#include <vector>

namespace {

constexpr std::size_t samples = 256; // a power of two; enough that no branch predictor learns them by heart

template <class Make> auto sampled(Make make) {
  std::mt19937 random(1); // NOLINT(cert-msc32-c,cert-msc51-cpp): the same samples in each run
  std::vector<decltype(make(random))> values;
  for (std::size_t i = 0; i < samples; ++i) {
    values.push_back(make(random));
  }
  return values;
}

// Measures `work` on one sample after the other.
template <class Samples, class Work> void measure(const std::string &name, const Samples &values, Work work) {
  benchmark::RegisterBenchmark(name.c_str(), [values, work](benchmark::State &state) {
    std::size_t at = 0;
    for (auto _ : state) {
      work(values[at++ % samples]);
    }
  });
}

// The three ways of making one text: `ours` returns it, the peers write it into an array of 512 characters.
template <class Samples, class Ours, class Printf, class Fmt>
void compare(const std::string &name, const Samples &values, Ours ours, Printf with_snprintf, Fmt with_fmt) {
  measure(name + "/ravix", values, [ours](const auto &value) { benchmark::DoNotOptimize(ours(value)); });
  measure(name + "/snprintf", values, [with_snprintf](const auto &value) {
    char text[512];
    with_snprintf(text, value);
    benchmark::DoNotOptimize(text);
    benchmark::ClobberMemory();
  });
  measure(name + "/fmt", values, [with_fmt](const auto &value) {
    char text[512];
    *with_fmt(text, value) = '\0';
    benchmark::DoNotOptimize(text);
    benchmark::ClobberMemory();
  });
}

template <std::size_t Count> auto random_octets() {
  return sampled([](auto &random) {
    std::array<std::uint8_t, Count> octets;
    for (std::uint8_t &octet : octets) {
      octet = static_cast<std::uint8_t>(random());
    }
    return octets;
  });
}

template <class Integer> auto random_integers(Integer least, Integer most) {
  return sampled([=](auto &random) {
    return static_cast<Integer>(std::uniform_int_distribution<std::int64_t>(least, most)(random));
  });
}

template <class Bits> void compare_bits(const std::string &name, const char *(*ours)(Bits)) {
  constexpr int width = std::numeric_limits<Bits>::digits;
  const auto values = sampled([](auto &random) { return static_cast<Bits>(std::uint64_t{random()} << 32 | random()); });
  compare(
      name, values, ours,
      [](char *text, Bits value) {
        for (int bit = width; bit-- > 0;) {
          text += snprintf(text, 2, "%u", static_cast<unsigned>(value >> bit & 1));
        }
      },
      [=](char *text, Bits value) { return fmt::format_to(text, "{:0{}b}", value, width); });
}

const std::array<const char *, 32> capability_names = {
    "WPA_PSK", "WPA_ENT", "WPA2_PSK", "WPA2_ENT", "WPA3_PSK", "OWE",    "OWE_TRANS",     "PMF",
    "PRIVACY", "WPS",     "2GHZ",     "5GHZ",     "6GHZ",     "WME",    "STBC",          "LDPC",
    "WME_PS",  "TXBF",    "AMSDU",    "AMPDU",    "UAPSD",    "MUMIMO", "11N_2G_256QAM", "11NAC_1024QAM",
    "RRM",     "FBT",     "BTM",      "MLO",      "QCA",      "MINI",   "ZEL",           "ZELWDS"};

bool plain_role_opmode(const char *text, std::uint8_t *output) {
  static constexpr std::pair<const char *, std::uint8_t> names[] = {
      {"INVALID_MIN", 0}, {"AP_HOME", 1},     {"AP_GUEST", 2},     {"ATACLIENT", 3},       {"REPEATER", 6},
      {"AP_HOTSPOT", 7},  {"AP_HOME_OWE", 8}, {"AP_GUEST_OWE", 9}, {"AP_HOTSPOT_OWE", 10}, {"INVALID_MAX", 11}};
  char copy[128] = {};
  snprintf(copy, sizeof copy, "%s", text);
  for (char *character = copy; *character != '\0'; ++character) {
    *character = static_cast<char>(std::toupper(static_cast<unsigned char>(*character)));
  }
  for (const auto &[name, value] : names) {
    if (std::strcmp(name, copy) == 0) {
      *output = value;
      return true;
    }
  }
  return false;
}

void register_formatters() {
  compare(
      "mac", random_octets<6>(), [](const auto &mac) { return ravix_str_mac(mac.data()); },
      [](char *text, const auto &o) {
        snprintf(text, 512, "%02X:%02X:%02X:%02X:%02X:%02X", o[0], o[1], o[2], o[3], o[4], o[5]);
      },
      [](char *text, const auto &o) {
        return fmt::format_to(text, "{:02X}:{:02X}:{:02X}:{:02X}:{:02X}:{:02X}", o[0], o[1], o[2], o[3], o[4], o[5]);
      });
  compare(
      "uuid", random_octets<16>(), [](const auto &uuid) { return ravix_str_uuid(uuid.data()); },
      [](char *text, const auto &o) {
        snprintf(text, 512, "%02X%02X%02X%02X-%02X%02X-%02X%02X-%02X%02X-%02X%02X%02X%02X%02X%02X", o[0], o[1], o[2],
                 o[3], o[4], o[5], o[6], o[7], o[8], o[9], o[10], o[11], o[12], o[13], o[14], o[15]);
      },
      [](char *text, const auto &o) {
        return fmt::format_to(
            text,
            "{:02X}{:02X}{:02X}{:02X}-{:02X}{:02X}-{:02X}{:02X}-{:02X}{:02X}-{:02X}{:02X}{:02X}{:02X}{:02X}{:02X}",
            o[0], o[1], o[2], o[3], o[4], o[5], o[6], o[7], o[8], o[9], o[10], o[11], o[12], o[13], o[14], o[15]);
      });
  const auto address = [](std::uint8_t version) {
    return sampled([=](auto &random) {
      ravix_ip_addr_t ip{version, {}};
      for (std::uint8_t &octet : ip.addr) {
        octet = static_cast<std::uint8_t>(random());
      }
      return ip;
    });
  };
  const auto format_ip = [](const ravix_ip_addr_t &ip) { return ravix_str_ip_addr(&ip); };
  compare(
      "ipv4", address(RAVIX_IP_VERSION_4), format_ip,
      [](char *text, const auto &ip) {
        snprintf(text, 512, "%u.%u.%u.%u", ip.addr[0], ip.addr[1], ip.addr[2], ip.addr[3]);
      },
      [](char *text, const auto &ip) {
        return fmt::format_to(text, "{}.{}.{}.{}", ip.addr[0], ip.addr[1], ip.addr[2], ip.addr[3]);
      });
  const auto group = [](const ravix_ip_addr_t &ip, unsigned i) { return ip.addr[i] << 8 | ip.addr[i + 1]; };
  compare(
      "ipv6", address(RAVIX_IP_VERSION_6), format_ip,
      [=](char *text, const auto &ip) {
        snprintf(text, 512, "%x:%x:%x:%x:%x:%x:%x:%x", group(ip, 0), group(ip, 2), group(ip, 4), group(ip, 6),
                 group(ip, 8), group(ip, 10), group(ip, 12), group(ip, 14));
      },
      [=](char *text, const auto &ip) {
        return fmt::format_to(text, "{:x}:{:x}:{:x}:{:x}:{:x}:{:x}:{:x}:{:x}", group(ip, 0), group(ip, 2), group(ip, 4),
                              group(ip, 6), group(ip, 8), group(ip, 10), group(ip, 12), group(ip, 14));
      });
  const auto frequencies =
      sampled([](auto &random) { return static_cast<std::uint32_t>(5180000 + random() % 350 * 5000); });
  compare(
      "frequency", frequencies, ravix_str_frequency,
      [](char *text, std::uint32_t value) { snprintf(text, 512, "%u kHz", value); },
      [](char *text, std::uint32_t value) { return fmt::format_to(text, "{} kHz", value); });
  compare(
      "wifi_freq", frequencies, ravix_str_wifi_freq,
      [](char *text, std::uint32_t value) {
        snprintf(text, 512, "%4u MHz (%3u)", value / 1000, ravix_frequency_to_channel(value));
      },
      [](char *text, std::uint32_t value) {
        return fmt::format_to(text, "{:4} MHz ({:3})", value / 1000, ravix_frequency_to_channel(value));
      });
  compare(
      "id", random_integers<std::int32_t>(1, 5000), ravix_str_id,
      [](char *text, std::int32_t value) { snprintf(text, 512, "%d", value); },
      [](char *text, std::int32_t value) { return fmt::format_to(text, "{}", value); });
  compare(
      "power", random_integers<std::int32_t>(-95, 30), ravix_str_power,
      [](char *text, std::int32_t value) { snprintf(text, 512, "%d dBm", value); },
      [](char *text, std::int32_t value) { return fmt::format_to(text, "{} dBm", value); });
  compare(
      "percentage", random_integers<std::uint32_t>(0, 100), ravix_str_percentage,
      [](char *text, std::uint32_t value) { snprintf(text, 512, "%u%%", value); },
      [](char *text, std::uint32_t value) { return fmt::format_to(text, "{}%", value); });
  compare_bits<std::uint8_t>("bitfield_8", ravix_str_bitfield_8);
  compare_bits<std::uint16_t>("bitfield_16", ravix_str_bitfield_16);
  compare_bits<std::uint32_t>("bitfield_32", ravix_str_bitfield_32);
  compare_bits<std::uint64_t>("bitfield_64", ravix_str_bitfield_64);
  compare(
      "flags_32_names", std::vector<std::uint32_t>(samples, UINT32_MAX), ravix_str_capabilities,
      [](char *text, std::uint32_t) {
        text += snprintf(text, 512, "[ ");
        for (const char *name : capability_names) {
          text += snprintf(text, 32, "%s ", name);
        }
        snprintf(text, 2, "]");
      },
      [](char *text, std::uint32_t) {
        text = fmt::format_to(text, "[ ");
        for (const char *name : capability_names) {
          text = fmt::format_to(text, "{} ", name);
        }
        return fmt::format_to(text, "]");
      });
  const auto channels = sampled([](auto &random) {
    ravix_channel_info_t info;
    ravix_create_channel_info(static_cast<std::uint32_t>(5180000 + random() % 8 * 20000),
                              std::array<std::uint16_t, 4>{1, 2, 4, 16}[random() % 4], false, 0, &info);
    return info;
  });
  const auto label = [](const ravix_channel_info_t &info) {
    switch (info.channel_width) {
    case RAVIX_CHANNEL_WIDTH_20:
      return "20";
    case RAVIX_CHANNEL_WIDTH_40:
      return "40";
    case RAVIX_CHANNEL_WIDTH_80:
      return "80";
    case RAVIX_CHANNEL_WIDTH_160:
      return "160";
    case RAVIX_CHANNEL_WIDTH_320:
      return "320";
    default:
      return "INV";
    }
  };
  compare(
      "channel_info", channels, [](const ravix_channel_info_t &info) { return ravix_str_channel_info(&info); },
      [=](char *text, const ravix_channel_info_t &info) {
        std::uint32_t lowest = 0;
        std::uint32_t highest = 0;
        ravix_channel_info_to_lowest_and_highest_channel(&info, &lowest, &highest);
        snprintf(text, 512, "%4u/%4u/%3s/%04x/%3u-%3u", info.primary_freq / 1000, info.center_freq / 1000, label(info),
                 info.puncture_map, lowest, highest);
      },
      [=](char *text, const ravix_channel_info_t &info) {
        std::uint32_t lowest = 0;
        std::uint32_t highest = 0;
        ravix_channel_info_to_lowest_and_highest_channel(&info, &lowest, &highest);
        return fmt::format_to(text, "{:4}/{:4}/{:>3}/{:04x}/{:3}-{:3}", info.primary_freq / 1000,
                              info.center_freq / 1000, label(info), info.puncture_map, lowest, highest);
      });
}

void register_parsers() {
  const auto macs = sampled([](auto &random) {
    std::array<char, 18> text{};
    snprintf(text.data(), text.size(), "%02X:%02X:%02X:%02X:%02X:%02X", static_cast<unsigned>(random() & 255),
             static_cast<unsigned>(random() & 255), static_cast<unsigned>(random() & 255),
             static_cast<unsigned>(random() & 255), static_cast<unsigned>(random() & 255),
             static_cast<unsigned>(random() & 255));
    return text;
  });
  measure("mac_from_str/ravix", macs, [](const auto &text) {
    std::uint8_t o[6];
    benchmark::DoNotOptimize(ravix_mac_from_str(text.data(), o));
    benchmark::DoNotOptimize(o);
  });
  measure("mac_from_str/sscanf", macs, [](const auto &text) {
    std::uint8_t o[6];
    benchmark::DoNotOptimize(
        sscanf(text.data(), "%02hhx:%02hhx:%02hhx:%02hhx:%02hhx:%02hhx", o, o + 1, o + 2, o + 3, o + 4, o + 5));
    benchmark::DoNotOptimize(o);
  });
  const auto uuids = sampled([](auto &random) {
    std::array<char, 37> text{};
    std::array<std::uint8_t, 16> octets;
    for (std::uint8_t &octet : octets) {
      octet = static_cast<std::uint8_t>(random());
    }
    snprintf(text.data(), text.size(), "%s", ravix_str_uuid(octets.data()));
    return text;
  });
  measure("uuid_from_str/ravix", uuids, [](const auto &text) {
    std::uint8_t o[16];
    benchmark::DoNotOptimize(ravix_uuid_from_str(text.data(), o));
    benchmark::DoNotOptimize(o);
  });
  measure("uuid_from_str/sscanf", uuids, [](const auto &text) {
    std::uint8_t o[16];
    benchmark::DoNotOptimize(sscanf(text.data(),
                                    "%02hhx%02hhx%02hhx%02hhx-%02hhx%02hhx-%02hhx%02hhx-%02hhx%02hhx-"
                                    "%02hhx%02hhx%02hhx%02hhx%02hhx%02hhx",
                                    o, o + 1, o + 2, o + 3, o + 4, o + 5, o + 6, o + 7, o + 8, o + 9, o + 10, o + 11,
                                    o + 12, o + 13, o + 14, o + 15));
    benchmark::DoNotOptimize(o);
  });
  const auto names = sampled([](auto &random) {
    return std::array{"ap_home", "AP_GUEST", "Repeater", "ap_hotspot_owe", "AP_HOME_OWE", "ATACLIENT"}[random() % 6];
  });
  measure("role_opmode_from_str/ravix", names, [](const char *text) {
    std::uint8_t value = 0;
    benchmark::DoNotOptimize(ravix_role_opmode_from_str(text, &value));
    benchmark::DoNotOptimize(value);
  });
  measure("role_opmode_from_str/plain", names, [](const char *text) {
    std::uint8_t value = 0;
    benchmark::DoNotOptimize(plain_role_opmode(text, &value));
    benchmark::DoNotOptimize(value);
  });
}

const bool registered = (register_formatters(), register_parsers(), true);

} // namespace
