// Formatters beside snprintf and fmt with the same format, parsers beside sscanf and a plain lookup. The peers write
// into a local array and take no lock; what fmt takes under one is the floor of ours.
#include "bench.hpp"

#include "ravix_types_str_convert.h"
#include "ravix_types_util.h"

#include <fmt/compile.h>

#include <cctype>
#include <limits>
#include <mutex>

namespace bench {

namespace {

constexpr std::size_t longest = 512;

// The ways of making one text: `ours` returns it, the peers write it into an array.
template <class Value, class Ours, class Printf, class Fmt>
void text_row(const std::string &name, const std::vector<Value> &values, Ours ours, Printf with_snprintf,
              Fmt with_fmt) {
  for (const Value &value : values) {
    char text[longest];
    with_snprintf(text, value);
    require(std::strcmp(ours(value), text) == 0, "snprintf makes another text");
    *with_fmt(text, value) = '\0';
    require(std::strcmp(ours(value), text) == 0, "fmt makes another text");
  }
  row(name, values, way{"ravix", [=](const Value &value) { benchmark::DoNotOptimize(ours(value)); }},
      way{"snprintf",
          [=](const Value &value) {
            char text[longest];
            with_snprintf(text, value);
            keep(text);
          }},
      way{"fmt",
          [=](const Value &value) {
            char text[longest];
            *with_fmt(text, value) = '\0';
            keep(text);
          }},
      way{"fmt_locked", [=](const Value &value) {
            static std::mutex mutex;
            const std::lock_guard lock(mutex);
            char text[longest];
            *with_fmt(text, value) = '\0';
            keep(text);
          }});
}

template <class Integer> auto random_integers(std::int64_t least, std::int64_t most) {
  return sampled([=](auto &random) {
    return static_cast<Integer>(std::uniform_int_distribution<std::int64_t>(least, most)(random));
  });
}

template <class Bits> void bits_row(const std::string &name, const char *(*ours)(Bits)) {
  constexpr int width = std::numeric_limits<Bits>::digits;
  const auto values = sampled([](auto &random) { return static_cast<Bits>(std::uint64_t{random()} << 32 | random()); });
  text_row(
      name, values, ours,
      [](char *text, Bits value) {
        for (int bit = width; bit-- > 0;) {
          text += snprintf(text, 2, "%u", static_cast<unsigned>(value >> bit & 1));
        }
      },
      [=](char *text, Bits value) { return fmt::format_to(text, FMT_COMPILE("{:0{}b}"), value, width); });
}

const std::array<const char *, 32> capability_names = {
    "WPA_PSK", "WPA_ENT", "WPA2_PSK", "WPA2_ENT", "WPA3_PSK", "OWE",    "OWE_TRANS",     "PMF",
    "PRIVACY", "WPS",     "2GHZ",     "5GHZ",     "6GHZ",     "WME",    "STBC",          "LDPC",
    "WME_PS",  "TXBF",    "AMSDU",    "AMPDU",    "UAPSD",    "MUMIMO", "11N_2G_256QAM", "11NAC_1024QAM",
    "RRM",     "FBT",     "BTM",      "MLO",      "QCA",      "MINI",   "ZEL",           "ZELWDS"};

ravix_ip_addr_t random_address(std::mt19937 &random, std::uint8_t version) {
  ravix_ip_addr_t address{version, {}};
  for (std::uint8_t &octet : address.addr) {
    octet = static_cast<std::uint8_t>(random());
  }
  return address;
}

const char *width_label(const ravix_channel_info_t &info) {
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
}

bool plain_role_opmode(const char *text, std::uint8_t *output) {
  static constexpr std::pair<const char *, std::uint8_t> names[] = {
      {"INVALID_MIN", 0}, {"AP_HOME", 1},     {"AP_GUEST", 2},     {"ATACLIENT", 3},       {"REPEATER", 6},
      {"AP_HOTSPOT", 7},  {"AP_HOME_OWE", 8}, {"AP_GUEST_OWE", 9}, {"AP_HOTSPOT_OWE", 10}, {"INVALID_MAX", 11}};
  char copy[128] = {};
  std::strncpy(copy, text, sizeof copy - 1);
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

constexpr char mac_format[] = "%02X:%02X:%02X:%02X:%02X:%02X";
constexpr char uuid_format[] = "%02X%02X%02X%02X-%02X%02X-%02X%02X-%02X%02X-%02X%02X%02X%02X%02X%02X";
constexpr char mac_scan[] = "%02hhx:%02hhx:%02hhx:%02hhx:%02hhx:%02hhx";
constexpr char uuid_scan[] = "%02hhx%02hhx%02hhx%02hhx-%02hhx%02hhx-%02hhx%02hhx-%02hhx%02hhx-"
                             "%02hhx%02hhx%02hhx%02hhx%02hhx%02hhx";

// Calls a function with its arguments, `octets` one by one and last.
template <std::size_t Count, class Octets, class Function> auto spread(Octets &&octets, Function function) {
  return [&]<std::size_t... i>(std::index_sequence<i...>) {
    return function(octets[i]...);
  }
  (std::make_index_sequence<Count>{});
}

} // namespace

void register_text() {
  text_row(
      "mac", sampled(random_octets<std::array<std::uint8_t, 6>>), [](auto &mac) { return ravix_str_mac(mac.data()); },
      [](char *text, auto &mac) { spread<6>(mac, [=](auto... o) { snprintf(text, longest, mac_format, o...); }); },
      [](char *text, auto &mac) {
        return spread<6>(mac, [=](auto... o) {
          return fmt::format_to(text, FMT_COMPILE("{:02X}:{:02X}:{:02X}:{:02X}:{:02X}:{:02X}"), o...);
        });
      });
  text_row(
      "uuid", sampled(random_octets<std::array<std::uint8_t, 16>>),
      [](auto &uuid) { return ravix_str_uuid(uuid.data()); },
      [](char *text, auto &uuid) { spread<16>(uuid, [=](auto... o) { snprintf(text, longest, uuid_format, o...); }); },
      [](char *text, auto &uuid) {
        return spread<16>(uuid, [=](auto... o) {
          return fmt::format_to(text,
                                FMT_COMPILE("{:02X}{:02X}{:02X}{:02X}-{:02X}{:02X}-{:02X}{:02X}-{:02X}{:02X}-"
                                            "{:02X}{:02X}{:02X}{:02X}{:02X}{:02X}"),
                                o...);
        });
      });
  const auto address_text = [](const ravix_ip_addr_t &address) { return ravix_str_ip_addr(&address); };
  text_row(
      "ipv4", sampled([](auto &random) { return random_address(random, RAVIX_IP_VERSION_4); }), address_text,
      [](char *text, auto &ip) {
        spread<4>(ip.addr, [=](auto... o) { snprintf(text, longest, "%u.%u.%u.%u", o...); });
      },
      [](char *text, auto &ip) {
        return spread<4>(ip.addr, [=](auto... o) { return fmt::format_to(text, FMT_COMPILE("{}.{}.{}.{}"), o...); });
      });
  const auto groups = [](const ravix_ip_addr_t &ip) {
    std::array<unsigned, 8> all{};
    for (std::size_t i = 0; i < 8; ++i) {
      all[i] = static_cast<unsigned>(ip.addr[2 * i] << 8 | ip.addr[2 * i + 1]);
    }
    return all;
  };
  text_row(
      "ipv6", sampled([](auto &random) { return random_address(random, RAVIX_IP_VERSION_6); }), address_text,
      [=](char *text, auto &ip) {
        spread<8>(groups(ip), [=](auto... g) { snprintf(text, longest, "%x:%x:%x:%x:%x:%x:%x:%x", g...); });
      },
      [=](char *text, auto &ip) {
        return spread<8>(groups(ip), [=](auto... g) {
          return fmt::format_to(text, FMT_COMPILE("{:x}:{:x}:{:x}:{:x}:{:x}:{:x}:{:x}:{:x}"), g...);
        });
      });
  const auto frequencies =
      sampled([](auto &random) { return static_cast<std::uint32_t>(5180000 + random() % 350 * 5000); });
  text_row(
      "frequency", frequencies, ravix_str_frequency,
      [](char *text, std::uint32_t value) { snprintf(text, longest, "%u kHz", value); },
      [](char *text, std::uint32_t value) { return fmt::format_to(text, FMT_COMPILE("{} kHz"), value); });
  text_row(
      "wifi_freq", frequencies, ravix_str_wifi_freq,
      [](char *text, std::uint32_t value) {
        snprintf(text, longest, "%4u MHz (%3u)", value / 1000, ravix_frequency_to_channel(value));
      },
      [](char *text, std::uint32_t value) {
        return fmt::format_to(text, FMT_COMPILE("{:4} MHz ({:3})"), value / 1000, ravix_frequency_to_channel(value));
      });
  text_row(
      "id", random_integers<std::int32_t>(1, 5000), ravix_str_id,
      [](char *text, std::int32_t value) { snprintf(text, longest, "%d", value); },
      [](char *text, std::int32_t value) { return fmt::format_to(text, FMT_COMPILE("{}"), value); });
  text_row(
      "power", random_integers<std::int32_t>(-95, 30), ravix_str_power,
      [](char *text, std::int32_t value) { snprintf(text, longest, "%d dBm", value); },
      [](char *text, std::int32_t value) { return fmt::format_to(text, FMT_COMPILE("{} dBm"), value); });
  text_row(
      "percentage", random_integers<std::uint32_t>(0, 100), ravix_str_percentage,
      [](char *text, std::uint32_t value) { snprintf(text, longest, "%u%%", value); },
      [](char *text, std::uint32_t value) { return fmt::format_to(text, FMT_COMPILE("{}%"), value); });
  bits_row<std::uint8_t>("bits_8", ravix_str_bitfield_8);
  bits_row<std::uint16_t>("bits_16", ravix_str_bitfield_16);
  bits_row<std::uint32_t>("bits_32", ravix_str_bitfield_32);
  bits_row<std::uint64_t>("bits_64", ravix_str_bitfield_64);
  text_row(
      "flags", std::vector<std::uint32_t>(samples, UINT32_MAX), ravix_str_capabilities,
      [](char *text, std::uint32_t) {
        text += snprintf(text, longest, "[ ");
        for (const char *name : capability_names) {
          text += snprintf(text, 32, "%s ", name);
        }
        snprintf(text, 2, "]");
      },
      [](char *text, std::uint32_t) {
        text = fmt::format_to(text, FMT_COMPILE("[ "));
        for (const char *name : capability_names) {
          text = fmt::format_to(text, FMT_COMPILE("{} "), name);
        }
        return fmt::format_to(text, FMT_COMPILE("]"));
      });
  const auto channels = sampled([](auto &random) {
    ravix_channel_info_t info;
    ravix_create_channel_info(static_cast<std::uint32_t>(5180000 + random() % 8 * 20000),
                              std::array<std::uint16_t, 4>{1, 2, 4, 16}[random() % 4], false, 0, &info);
    return info;
  });
  const auto numbers = [](const ravix_channel_info_t &info) {
    std::pair<std::uint32_t, std::uint32_t> ends;
    ravix_channel_info_to_lowest_and_highest_channel(&info, &ends.first, &ends.second);
    return ends;
  };
  text_row(
      "channel_info", channels, [](auto &info) { return ravix_str_channel_info(&info); },
      [=](char *text, auto &info) {
        const auto [lowest, highest] = numbers(info);
        snprintf(text, longest, "%4u/%4u/%3s/%04x/%3u-%3u", info.primary_freq / 1000, info.center_freq / 1000,
                 width_label(info), info.puncture_map, lowest, highest);
      },
      [=](char *text, auto &info) {
        const auto [lowest, highest] = numbers(info);
        return fmt::format_to(text, FMT_COMPILE("{:4}/{:4}/{:>3}/{:04x}/{:3}-{:3}"), info.primary_freq / 1000,
                              info.center_freq / 1000, width_label(info), info.puncture_map, lowest, highest);
      });
}

void register_parsers() {
  const auto octets_row = [](const char *name, auto octets, auto format, auto ours, const char *scan) {
    using Octets = decltype(octets);
    const auto texts = sampled([=](auto &random) { return std::string(format(random_octets<Octets>(random).data())); });
    row(name, texts,
        way{"ravix",
            [=](const std::string &text) {
              Octets read;
              benchmark::DoNotOptimize(ours(text.c_str(), read.data()));
              keep(read);
            }},
        way{"sscanf", [=](const std::string &text) {
              Octets read;
              spread<std::tuple_size_v<Octets>>(read, [&](auto &...o) {
                benchmark::DoNotOptimize(sscanf(text.c_str(), scan, &o...)); // NOLINT(cert-err34-c)
              });
              keep(read);
            }});
  };
  octets_row("parse_mac", std::array<std::uint8_t, 6>{}, ravix_str_mac, ravix_mac_from_str, mac_scan);
  octets_row("parse_uuid", std::array<std::uint8_t, 16>{}, ravix_str_uuid, ravix_uuid_from_str, uuid_scan);
  const auto parsed_by = [](auto parse) {
    return [=](const char *text) {
      std::uint8_t value = 0;
      benchmark::DoNotOptimize(parse(text, &value));
      benchmark::DoNotOptimize(value);
    };
  };
  row("parse_name", sampled([](auto &random) {
        return std::array{
            "ap_home", "AP_GUEST", "Repeater", "ap_hotspot_owe", "AP_HOME_OWE", "ATACLIENT"}[random() % 6];
      }),
      way{"ravix", parsed_by(ravix_role_opmode_from_str)}, way{"plain", parsed_by(plain_role_opmode)});
}

} // namespace bench
