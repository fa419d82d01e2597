// Listings and difference prints to a string stream, beside the same bytes made by snprintf and appended to a string.
#include "bench.hpp"
#include "inputs.hpp"

#include "ravix_types_printers.hpp"
#include "ravix_types_str_convert.h"

#include <sstream>

namespace bench {

namespace {

// Text that grows by pieces of printf.
class pieces {
public:
  template <class... Arguments> void add(const char *format, Arguments... arguments) {
    char piece[256];
    const int size = snprintf(piece, sizeof piece, format, arguments...); // NOLINT(clang-diagnostic-format-nonliteral)
    text_.append(piece, static_cast<std::size_t>(size));
  }
  const std::string &text() const { return text_; }

private:
  std::string text_;
};

void add_mac(pieces &out, const char *format, const std::uint8_t *o) {
  out.add(format, o[0], o[1], o[2], o[3], o[4], o[5]);
}

template <std::size_t Count> void add_flags(pieces &out, const flag (&flags)[Count], std::uint32_t value) {
  out.add("[ ");
  for (const flag &each : flags) {
    if ((value & each.mask) != 0) {
      out.add("%s ", each.name);
    }
  }
  out.add("]");
}

std::string printed_listing(const ravix_scan_table_t &table) {
  pieces out;
  out.add("[BSSID|CHANNEL_INFO|SSID|RSSI|WLAN MODE|CAPS]\n");
  const int width = snprintf(nullptr, 0, "%u", table.count - 1);
  for (std::uint32_t i = 0; i < table.count; ++i) {
    const ravix_scan_entry_t &entry = table.data[i];
    const ravix_channel_info_t &channel = entry.channel_info;
    add_mac(out, i == 0 ? "[" : "\n[", entry.bssid);
    out.add("%*u]: ", width, i);
    add_mac(out, "'%02X:%02X:%02X:%02X:%02X:%02X' ", entry.bssid);
    std::uint32_t lowest = 0;
    std::uint32_t highest = 0;
    ravix_channel_info_to_lowest_and_highest_channel(&channel, &lowest, &highest);
    out.add("%4u/%4u/%3u/%04x/%3u-%3u ", channel.primary_freq / 1000, channel.center_freq / 1000,
            ravix_channel_width_to_frequency(channel.channel_width) / 1000, channel.puncture_map, lowest, highest);
    char ssid[64];
    snprintf(ssid, sizeof ssid, "'%.*s' (len=%u)", entry.ssid.len, reinterpret_cast<const char *>(entry.ssid.ssid),
             unsigned{entry.ssid.len});
    out.add("%-44s ", ssid);
    char power[16];
    snprintf(power, sizeof power, "%d dBm", entry.rssi);
    out.add("%6s ", power);
    add_flags(out, modes, entry.wlan_mode);
    out.add(" ");
    add_flags(out, capabilities, entry.capabilities);
  }
  return out.text();
}

// What differs between the role and its changed copy, told line by line without any comparing.
std::string printed_difference(const ravix_cfg_role_static_t &role) {
  pieces out;
  out.add("role:\n");
  out.add(" enabled: %s\n", role.enabled ? "ON" : "OFF");
  out.add(" power_level: %u%%\n", unsigned{role.power_level});
  out.add(" channel_width: %u MHz\n", ravix_channel_width_to_frequency(role.channel_width) / 1000);
  out.add(" security:\n");
  out.add("  key: %s\n", "[SECRET]");
  out.add("  auth_servers:\n");
  for (std::uint32_t i = 0; i < role.security.auth_servers.count; ++i) {
    const ravix_cfg_radius_server_t &server = role.security.auth_servers.data[i];
    const std::uint8_t *o = server.addr.addr;
    out.add("   [%s %u]:\n", "RADIUS SERVER", i);
    out.add("    index: %d\n", server.index);
    out.add("    port: %u\n", unsigned{server.port});
    out.add("    addr: %u.%u.%u.%u\n", o[0], o[1], o[2], o[3]);
    out.add("    secret: %s\n", "[SECRET]");
  }
  out.add(" config_ap:\n");
  const ravix_cfg_role_config_ap_t &ap = *role.config_ap;
  out.add("  ssid: '%.*s' (len=%u)\n", ap.ssid.len, reinterpret_cast<const char *>(ap.ssid.ssid),
          unsigned{ap.ssid.len});
  out.add("  access_control:\n   macs_filtered:\n");
  const ravix_mac_table_t &macs = ap.access_control.macs_filtered;
  for (std::uint32_t i = 0; i < macs.count; ++i) {
    out.add("    [%2u]: ", i);
    add_mac(out, "%02X:%02X:%02X:%02X:%02X:%02X\n", macs.data[i]);
  }
  return out.text();
}

// A role in which an operator has changed a little of everything.
std::shared_ptr<ravix_cfg_role_static_t> changed_role() {
  auto role = full_role();
  role->enabled = false;
  role->power_level = 50;
  role->channel_width = RAVIX_CHANNEL_WIDTH_160;
  role->security.key.key[0] = 'x';
  role->security.auth_servers.data[1].port = 1645;
  role->config_ap->ssid = ssid_of("another network");
  role->config_ap->access_control.macs_filtered.data[31][5] = 99;
  return role;
}

template <class Print> std::string streamed(Print print) {
  std::ostringstream stream;
  print(stream);
  return stream.str();
}

// The text of a stream beside that of a peer. Both start with nothing and end with a string.
template <class Print, class Peer> void print_row(const char *name, Print print, Peer peer) {
  require(streamed(print) == peer(), "snprintf makes another text");
  row(name, way{"ravix", [=] { keep(streamed(print)); }}, way{"snprintf", [=] { keep(peer()); }});
}

} // namespace

void register_printers() {
  const auto results = scan_results(200, 0);
  print_row(
      "print_scan", [=](std::ostream &stream) { print_scan_table(stream, results->scan_table, false); },
      [=] { return printed_listing(results->scan_table); });
  const auto before = full_role();
  const auto after = changed_role();
  print_row(
      "print_diff", [=](std::ostream &stream) { print_diff(stream, *after, before.get(), "role", 0, true); },
      [=] { return printed_difference(*after); });
}

} // namespace bench
