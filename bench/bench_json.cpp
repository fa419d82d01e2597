// Records as JSON, beside the same text made by two libraries for JSON that are fed with the values by hand: one that
// writes as it goes, and one that builds a tree first.
#include "bench.hpp"
#include "inputs.hpp"

#include "ravix_types_json.h"
#include "ravix_types_str_convert.h"

#include <nlohmann/json.hpp>
#include <rapidjson/stringbuffer.h>
#include <rapidjson/writer.h>

#include <memory>
#include <string>

namespace bench {

namespace {

// What is used again for each text, so that none pays for memory.
struct ours {
  std::string text;

  const std::string &write(const ravix_scan_table_t &table) {
    text.clear();
    const auto append = [](const char *piece, std::size_t length, void *context) {
      static_cast<std::string *>(context)->append(piece, length);
      return 0;
    };
    ravix_types_scan_table_to_json(&table, append, &text);
    return text;
  }
};

struct by_writer {
  rapidjson::StringBuffer buffer;
  rapidjson::Writer<rapidjson::StringBuffer> writer;

  template <std::size_t Size> void key(const char (&name)[Size]) { writer.Key(name, Size - 1); }
  template <std::size_t Size> void flags(const flag (&flags)[Size], std::uint32_t value) {
    writer.StartArray();
    for (const flag &each : flags) {
      if ((value & each.mask) != 0) {
        writer.String(each.name);
      }
    }
    writer.EndArray();
  }

  std::string_view write(const ravix_scan_table_t &table) {
    buffer.Clear();
    writer.Reset(buffer);
    writer.StartArray();
    for (std::uint32_t i = 0; i < table.count; ++i) {
      const ravix_scan_entry_t &entry = table.data[i];
      const ravix_channel_info_t &channel = entry.channel_info;
      writer.StartObject();
      key("wlan_mode");
      flags(modes, entry.wlan_mode);
      key("bssid");
      writer.String(ravix_str_mac(entry.bssid));
      key("ssid");
      writer.String(reinterpret_cast<const char *>(entry.ssid.ssid), entry.ssid.len);
      key("channel_info");
      writer.StartObject();
      key("primary_freq");
      writer.Uint(channel.primary_freq);
      key("center_freq");
      writer.Uint(channel.center_freq);
      key("channel_width");
      writer.String(ravix_str_channel_width(channel.channel_width));
      key("puncture_map");
      writer.Uint(channel.puncture_map);
      writer.EndObject();
      key("rssi");
      writer.Int(entry.rssi);
      key("capabilities");
      flags(capabilities, entry.capabilities);
      writer.EndObject();
    }
    writer.EndArray();
    return {buffer.GetString(), buffer.GetSize()};
  }
};

template <std::size_t Size> nlohmann::ordered_json names_of(const flag (&flags)[Size], std::uint32_t value) {
  auto names = nlohmann::ordered_json::array();
  for (const flag &each : flags) {
    if ((value & each.mask) != 0) {
      names.push_back(each.name);
    }
  }
  return names;
}

std::string by_tree(const ravix_scan_table_t &table) {
  auto networks = nlohmann::ordered_json::array();
  for (std::uint32_t i = 0; i < table.count; ++i) {
    const ravix_scan_entry_t &entry = table.data[i];
    const ravix_channel_info_t &channel = entry.channel_info;
    networks.push_back({{"wlan_mode", names_of(modes, entry.wlan_mode)},
                        {"bssid", ravix_str_mac(entry.bssid)},
                        {"ssid", std::string(reinterpret_cast<const char *>(entry.ssid.ssid), entry.ssid.len)},
                        {"channel_info",
                         {{"primary_freq", channel.primary_freq},
                          {"center_freq", channel.center_freq},
                          {"channel_width", ravix_str_channel_width(channel.channel_width)},
                          {"puncture_map", channel.puncture_map}}},
                        {"rssi", entry.rssi},
                        {"capabilities", names_of(capabilities, entry.capabilities)}});
  }
  return networks.dump();
}

} // namespace

void register_json() {
  const auto results = scan_results(200, 0);
  const ravix_scan_table_t &table = results->scan_table;
  const auto text = std::make_shared<ours>();
  const auto writer = std::make_shared<by_writer>();
  require(text->write(table) == writer->write(table), "the writer makes another text");
  require(text->write(table) == by_tree(table), "the tree makes another text");
  row("json_scan", way{"ravix", [=] { keep(text->write(results->scan_table)); }},
      way{"rapidjson", [=] { keep(writer->write(results->scan_table)); }},
      way{"nlohmann", [=] { keep(by_tree(results->scan_table)); }});
}

} // namespace bench
