// Record trees: copies beside the least that a copy can do, beside generated messages and beside the same shape by
// hand; tables that grow; comparisons.
#include "bench.hpp"
#include "inputs.hpp"
#include "plain_records.hpp"

#include "scan_results.pb.h"
#include "zelcsock/slab.h"

#include <tuple>

namespace bench {

namespace {

// ---- scan results

template <class Table> Table allocated_copy(const Table &source) {
  Table copy = source;
  copy.data = static_cast<decltype(copy.data)>(std::malloc(source.count * sizeof *source.data));
  std::memcpy(copy.data, source.data, source.count * sizeof *source.data);
  return copy;
}

void copy_blocks(const ravix_scan_results_t &source) {
  const auto noise = allocated_copy(source.noisefloor_table);
  const auto networks = allocated_copy(source.scan_table);
  keep(noise.data);
  keep(networks.data);
  std::free(noise.data);
  std::free(networks.data);
}

// Every field assigned by hand, into zeroed memory.
void copy_fields(const ravix_scan_results_t &source) {
  auto noise = source.noisefloor_table;
  noise.data = static_cast<ravix_noisefloor_entry_t *>(std::calloc(noise.count, sizeof *noise.data));
  for (std::uint32_t i = 0; i < noise.count; ++i) {
    const auto &from = source.noisefloor_table.data[i];
    auto &to = noise.data[i];
    to.frequency = from.frequency;
    to.noisefloor = from.noisefloor;
    to.load = from.load;
  }
  auto networks = source.scan_table;
  networks.data = static_cast<ravix_scan_entry_t *>(std::calloc(networks.count, sizeof *networks.data));
  for (std::uint32_t i = 0; i < networks.count; ++i) {
    const auto &from = source.scan_table.data[i];
    auto &to = networks.data[i];
    to.wlan_mode = from.wlan_mode;
    std::memcpy(to.bssid, from.bssid, sizeof to.bssid);
    to.ssid.len = from.ssid.len;
    std::memcpy(to.ssid.ssid, from.ssid.ssid, sizeof to.ssid.ssid);
    to.channel_info = from.channel_info;
    to.rssi = from.rssi;
    to.capabilities = from.capabilities;
  }
  keep(noise.data);
  keep(networks.data);
  std::free(noise.data);
  std::free(networks.data);
}

proto::ScanResults message_of(const ravix_scan_results_t &results) {
  proto::ScanResults message;
  message.set_scan_time(results.scan_time);
  for (std::uint32_t i = 0; i < results.noisefloor_table.count; ++i) {
    const auto &from = results.noisefloor_table.data[i];
    auto *to = message.add_noisefloors();
    to->set_frequency(from.frequency);
    to->set_noisefloor(from.noisefloor);
    to->set_load(from.load);
  }
  for (std::uint32_t i = 0; i < results.scan_table.count; ++i) {
    const auto &from = results.scan_table.data[i];
    auto *to = message.add_entries();
    to->set_wlan_mode(from.wlan_mode);
    to->set_bssid(from.bssid, sizeof from.bssid);
    to->set_ssid(from.ssid.ssid, from.ssid.len);
    to->mutable_channel_info()->set_primary_freq(from.channel_info.primary_freq);
    to->mutable_channel_info()->set_center_freq(from.channel_info.center_freq);
    to->mutable_channel_info()->set_channel_width(from.channel_info.channel_width);
    to->mutable_channel_info()->set_puncture_map(from.channel_info.puncture_map);
    to->set_rssi(from.rssi);
    to->set_capabilities(from.capabilities);
  }
  return message;
}

// ---- a role

// A zeroed block with a copy of another.
template <class T> T *block_copy(const T *source, std::size_t count = 1) {
  auto *copy = static_cast<T *>(std::calloc(count, sizeof(T)));
  std::memcpy(copy, source, count * sizeof(T));
  return copy;
}

ravix_cfg_role_static_t *copy_role(const ravix_cfg_role_static_t &source) {
  auto *role = block_copy(&source);
  auto &servers = role->security.auth_servers;
  servers.data = block_copy(servers.data, servers.count);
  role->config_ap = block_copy(source.config_ap);
  auto &macs = role->config_ap->access_control.macs_filtered;
  macs.data = block_copy(macs.data, macs.count);
  return role;
}

void free_role(ravix_cfg_role_static_t *role) {
  std::free(role->config_ap->access_control.macs_filtered.data);
  std::free(role->config_ap);
  std::free(role->security.auth_servers.data);
  std::free(role);
}

// The same with what a role owes besides: nothing past the end of a text or key, no secret in memory that is released.
void empty_past(auto &array, std::size_t used) {
  std::memset(&array[used], 0, sizeof array - used);
}

ravix_cfg_role_static_t *copy_tidy_role(const ravix_cfg_role_static_t &source) {
  ravix_cfg_role_static_t *role = copy_role(source);
  empty_past(role->if_name, strnlen(role->if_name, sizeof role->if_name - 1));
  empty_past(role->security.key.key, role->security.key.len);
  empty_past(role->config_ap->ssid.ssid, role->config_ap->ssid.len);
  for (std::uint32_t i = 0; i < role->security.auth_servers.count; ++i) {
    auto &secret = role->security.auth_servers.data[i].secret;
    empty_past(secret, strnlen(secret, sizeof secret - 1));
  }
  return role;
}

void free_tidy_role(ravix_cfg_role_static_t *role) {
  auto &servers = role->security.auth_servers;
  std::memset(&role->security.key, 0, sizeof role->security.key);
  std::memset(servers.data, 0, servers.count * sizeof *servers.data);
  keep(role);
  free_role(role);
}

// All blocks of the role as bytes.
int compare_blocks(const ravix_cfg_role_static_t &a, const ravix_cfg_role_static_t &b) {
  const auto &a_macs = a.config_ap->access_control.macs_filtered;
  const auto &b_macs = b.config_ap->access_control.macs_filtered;
  return std::memcmp(&a, &b, offsetof(ravix_cfg_role_static_t, security.auth_servers)) |
         std::memcmp(a.security.auth_servers.data, b.security.auth_servers.data,
                     a.security.auth_servers.count * sizeof *a.security.auth_servers.data) |
         std::memcmp(a.config_ap, b.config_ap, offsetof(ravix_cfg_role_config_ap_t, access_control.macs_filtered)) |
         std::memcmp(&a.config_ap->access_control.limits_enabled, &b.config_ap->access_control.limits_enabled,
                     sizeof *a.config_ap - offsetof(ravix_cfg_role_config_ap_t, access_control.limits_enabled)) |
         std::memcmp(a_macs.data, b_macs.data, a_macs.count * sizeof *a_macs.data);
}

// The fields by hand, each by the comparison that is due to it: texts up to their ends, octets up to their counts.
bool fields_differ(const ravix_cfg_role_static_t &a, const ravix_cfg_role_static_t &b) {
  const auto head = [](const ravix_cfg_role_static_t &r) {
    return std::tie(r.id, r.radio_id, r.enabled, r.mac_address_index, r.op_mode, r.power_level, r.wlan_mode,
                    r.channel_width, r.security.security, r.security.pmf_mode, r.security.key.len,
                    r.security.wps.enable, r.security.auth_servers.count, r.security.acct_servers.count,
                    r.config_ap->ssid.len);
  };
  if (head(a) != head(b) || std::strncmp(a.if_name, b.if_name, sizeof a.if_name) != 0 ||
      std::memcmp(a.security.key.key, b.security.key.key, a.security.key.len) != 0 ||
      std::memcmp(a.security.wps.uuid, b.security.wps.uuid, sizeof a.security.wps.uuid) != 0) {
    return true;
  }
  for (std::uint32_t i = 0; i < a.security.auth_servers.count; ++i) {
    const auto &one = a.security.auth_servers.data[i];
    const auto &other = b.security.auth_servers.data[i];
    if (one.port != other.port || one.addr.version != other.addr.version ||
        std::memcmp(one.addr.addr, other.addr.addr, 4) != 0 ||
        std::strncmp(one.secret, other.secret, sizeof one.secret) != 0) {
      return true;
    }
  }
  const auto flags = [](const ravix_cfg_role_config_ap_t &ap) {
    return std::tie(ap.ssid_set, ap.hidden_ssid_enabled, ap.user_isolation_enabled, ap.iptv_optimization_enabled,
                    ap.access_control.mac_filter_enabled, ap.access_control.mac_filter_type,
                    ap.access_control.macs_filtered.count, ap.access_control.limits_enabled,
                    ap.access_control.limits_max_clients, ap.access_control.limits_min_client_rssi,
                    ap.time_control.timeout_active, ap.time_control.timeout_minutes, ap.time_control.force_off);
  };
  const auto &macs = a.config_ap->access_control.macs_filtered;
  return flags(*a.config_ap) != flags(*b.config_ap) ||
         std::memcmp(a.config_ap->ssid.ssid, b.config_ap->ssid.ssid, a.config_ap->ssid.len) != 0 ||
         std::memcmp(macs.data, b.config_ap->access_control.macs_filtered.data, macs.count * sizeof *macs.data) != 0;
}

// ---- tables

// Adds an entry `count` times to an empty table.
template <class Table, class Entry>
void add_entries(std::uint32_t count, const Entry &entry, int (*add)(Table *, const Entry *), void (*clear)(Table *)) {
  Table table{};
  for (std::uint32_t i = 0; i < count; ++i) {
    add(&table, &entry);
  }
  keep(table.data);
  clear(&table);
}

template <class Entry, class Resize> void grow_array(std::uint32_t count, const Entry &entry, Resize resize) {
  Entry *data = nullptr;
  for (std::uint32_t i = 0; i < count; ++i) {
    data = static_cast<Entry *>(resize(data, (i + 1) * sizeof *data));
    std::memcpy(&data[i], &entry, sizeof entry);
  }
  keep(data);
  std::free(data);
}

} // namespace

void register_records() {
  const auto results = scan_results(1000, 60);
  const auto message = std::make_shared<proto::ScanResults>(message_of(*results));
  row("clone_scan",
      way{"ravix",
          [=] {
            ravix_scan_results_t *copy = ravix_types_scan_results_clone(results.get());
            keep(copy);
            ravix_types_scan_results_free(copy);
          }},
      way{"memcpy", [=] { copy_blocks(*results); }}, way{"by_field", [=] { copy_fields(*results); }},
      way{"protobuf", [=] {
            auto *copy = new proto::ScanResults;
            copy->CopyFrom(*message);
            keep(copy);
            delete copy;
          }});

  const auto role = full_role();
  const std::shared_ptr<ravix_cfg_role_static_t> twin(ravix_cfg_role_clone(role.get()), ravix_cfg_role_free);
  row("clone_role",
      way{"ravix",
          [=] {
            ravix_cfg_role_static_t *copy = ravix_cfg_role_clone(role.get());
            keep(copy);
            ravix_cfg_role_free(copy);
          }},
      way{"by_hand",
          [=] {
            ravix_cfg_role_static_t *copy = copy_role(*role);
            keep(copy);
            free_role(copy);
          }},
      way{"by_hand_tidy", [=] {
            ravix_cfg_role_static_t *copy = copy_tidy_role(*role);
            keep(copy);
            free_tidy_role(copy);
          }});
  require(ravix_cfg_role_compare(role.get(), twin.get()) == 0, "a role differs from its copy");
  row("compare_role", way{"ravix", [=] { benchmark::DoNotOptimize(ravix_cfg_role_compare(role.get(), twin.get())); }},
      way{"memcmp", [=] { benchmark::DoNotOptimize(compare_blocks(*role, *twin)); }},
      way{"by_field", [=] { benchmark::DoNotOptimize(fields_differ(*role, *twin)); }});

  const auto added = [](const std::string &name, const auto &entry, auto add, auto plain, auto clear) {
    for (const std::uint32_t count : {1000U, 100000U}) {
      row(name + std::to_string(count), way{"ravix", [=] { add_entries(count, entry, add, clear); }},
          way{"function", [=] { add_entries(count, entry, plain, clear); }},
          way{"realloc",
              [=] { grow_array(count, entry, [](void *data, std::size_t size) { return std::realloc(data, size); }); }},
          way{"slab", [=] {
                grow_array(count, entry,
                           [](void *data, std::size_t size) { return slab_drealloc(data, size, "bench", 0); });
              }});
    }
  };
  added("add_frequencies_", std::uint32_t{5180000}, ravix_types_frequency_table_add_entry, plain_add_frequency,
        ravix_types_frequency_table_clear);
  added("add_networks_", scan_entry(7), ravix_types_scan_table_add_entry, plain_add_network,
        ravix_types_scan_table_clear);
}

} // namespace bench
