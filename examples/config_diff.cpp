// Two configurations of a device with three radios, before and after an operator's changes, and what changed between
// them: as a daemon logs it when it is handed a new configuration.
#include "standard_output.hpp"

#include "ravix_types_cfg.h"
#include "ravix_types_enums.h"
#include "ravix_types_handles.hpp"
#include "ravix_types_json.hpp"
#include "ravix_types_printers.hpp"
#include "ravix_types_str_convert.h"

#include <algorithm>
#include <cstring>
#include <exception>
#include <initializer_list>
#include <iostream>
#include <new>
#include <sstream>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace {

constexpr const char *help = R"(usage: config_diff [OPTION...]

Builds the configuration of a device with three radios (home, guest and hotspot access points, an uplink), changes what
an operator would change, and prints it before, after, and what changed.

  --changes     print only what changed
  --json        print for programs: an object with "before", "after" and "changes", or the last alone. In each of them
                records stand by their identifiers, and the changes are a JSON merge patch (RFC 7396)
  -h, --help    this text
)";

// Records find each other by identifier, so the configuration is a few lists of them.
struct configuration {
  ravix::handle<ravix_cfg_global_settings_t> global;
  std::vector<ravix::handle<ravix_cfg_hardware_static_t>> hardware;
  std::vector<ravix::handle<ravix_cfg_radio_static_t>> radios;
  std::vector<ravix::handle<ravix_cfg_role_static_t>> roles;
  std::vector<ravix::handle<ravix_cfg_role_dynamic_t>> role_states;
};

// The library has logged the reason of a null record or a code other than 0.
template <class record> record *made(record *r) {
  return r != nullptr ? r : throw std::bad_alloc();
}

void done(int code) {
  if (code != 0) {
    throw std::runtime_error(ravix_str_status(code));
  }
}

template <std::size_t size> void set_text(char (&field)[size], std::string_view text) {
  std::memset(field, 0, size);
  std::memcpy(field, text.data(), std::min(text.size(), size - 1));
}

template <std::size_t size> void set_octets(uint8_t (&field)[size], uint8_t &length, std::string_view text) {
  std::memset(field, 0, size);
  length = static_cast<uint8_t>(std::min(text.size(), size - 1));
  std::memcpy(field, text.data(), length);
}

void set_ssid(ravix_ssid_t &ssid, std::string_view name) {
  set_octets(ssid.ssid, ssid.len, name);
}

void set_key(ravix_key_t &key, std::string_view passphrase) {
  set_octets(key.key, key.len, passphrase);
}

void add_radius_server(ravix_cfg_radius_server_table_t &servers, uint16_t port, std::string_view secret) {
  ravix_cfg_radius_server_t server{};
  ravix_cfg_radius_server_clear(&server);
  server.index = static_cast<int32_t>(servers.count);
  server.port = port;
  server.addr = {RAVIX_IP_VERSION_4, {192, 0, 2, 10}};
  set_text(server.secret, secret);
  done(ravix_cfg_radius_server_table_add_entry(&servers, &server));
}

void add_filtered(ravix_cfg_role_static_t &role, std::initializer_list<const char *> addresses) {
  for (const char *address : addresses) {
    ravix_mac_t mac{};
    if (!ravix_mac_from_str(address, mac)) {
      throw std::runtime_error(std::string("no MAC address: ") + address);
    }
    done(ravix_types_mac_table_add_entry(&role.config_ap->access_control.macs_filtered, &mac));
  }
}

// ---- the configuration before

struct radio_plan {
  int32_t id;
  uint8_t band;
  uint32_t primary_freq;
  uint32_t wlan_mode;
  uint16_t width;
};

constexpr radio_plan radio_plans[] = {
    {1, RAVIX_RADIO_BAND_2GHZ, 2437000,
     RAVIX_WLAN_MODE_11G | RAVIX_WLAN_MODE_11N | RAVIX_WLAN_MODE_11AX | RAVIX_WLAN_MODE_11BE, RAVIX_CHANNEL_WIDTH_20},
    {2, RAVIX_RADIO_BAND_5GHZ, 5180000,
     RAVIX_WLAN_MODE_11A | RAVIX_WLAN_MODE_11N | RAVIX_WLAN_MODE_11AC | RAVIX_WLAN_MODE_11AX | RAVIX_WLAN_MODE_11BE,
     RAVIX_CHANNEL_WIDTH_80},
    {3, RAVIX_RADIO_BAND_6GHZ, 6135000, RAVIX_WLAN_MODE_11AX | RAVIX_WLAN_MODE_11BE, RAVIX_CHANNEL_WIDTH_160},
};

// A role on a radio, without what its operating mode asks for.
ravix::handle<ravix_cfg_role_static_t> make_role(int32_t id, const radio_plan &radio, uint8_t op_mode,
                                                 uint8_t security) {
  ravix::handle<ravix_cfg_role_static_t> role(made(ravix_cfg_role_create()));
  role->id = id;
  role->radio_id = radio.id;
  role->enabled = true;
  role->mac_address_index = id - 1;
  set_text(role->if_name, "wlan" + std::to_string(id - 1));
  role->op_mode = op_mode;
  role->power_level = 100;
  role->wlan_mode = radio.wlan_mode;
  role->channel_width = radio.width;
  role->security.security = security;
  role->security.pmf_mode = RAVIX_PMF_MODE_SUPPORTED;
  return role;
}

ravix::handle<ravix_cfg_role_static_t> make_ap(int32_t id, const radio_plan &radio, uint8_t op_mode, uint8_t security,
                                               std::string_view ssid) {
  ravix::handle<ravix_cfg_role_static_t> role = make_role(id, radio, op_mode, security);
  role->config_ap = made(ravix_cfg_role_config_ap_create());
  set_ssid(role->config_ap->ssid, ssid);
  role->config_ap->ssid_set = true;
  return role;
}

// What a home access point announces, and the multi-link device that it is a link of.
ravix::handle<ravix_cfg_role_dynamic_t> make_home_state(const ravix_cfg_role_static_t &role,
                                                        std::initializer_list<int32_t> links) {
  ravix::handle<ravix_cfg_role_dynamic_t> state(made(ravix_cfg_role_dynamic_create()));
  state->id = role.id;
  state->enabled = true;
  state->mac[0] = 0x02;
  state->mac[5] = static_cast<uint8_t>(role.id);
  state->wlan_mode = role.wlan_mode;
  state->channel_width = role.channel_width;
  state->valid = true;
  state->radio_master_id = role.radio_id;
  state->security = role.security.security;
  state->rsn_element = {RAVIX_ENCRYPTION_RSN,
                        RAVIX_PMF_MODE_SUPPORTED,
                        RAVIX_PWE_MODE_HAP_H2E,
                        {RAVIX_ENCRYPTION_AKM_PSK, RAVIX_ENCRYPTION_AKM_SAE},
                        {RAVIX_ENCRYPTION_CIPHER_SUITE_CCMP128},
                        {RAVIX_ENCRYPTION_GROUP_MGMT_CIPHER_BIP_CMAC128},
                        {RAVIX_ENCRYPTION_CIPHER_SUITE_CCMP128}};
  ravix_cfg_security_extended_t strict = state->rsn_element;
  strict.pmf_mode = RAVIX_PMF_MODE_MANDATORY;
  strict.pwe_mode = RAVIX_PWE_MODE_H2E;
  strict.key_mgmt[0] = RAVIX_ENCRYPTION_AKM_SAE_EXT;
  strict.key_mgmt[1] = 0;
  strict.pairwise_ciphers[0] = RAVIX_ENCRYPTION_CIPHER_SUITE_GCMP256;
  done(ravix_cfg_security_extended_table_add_entry(&state->rsno_elements, &strict));
  state->cfg_mld = made(ravix_cfg_mld_create());
  state->cfg_mld->mld_mac[0] = 0x02;
  state->cfg_mld->mld_mac[5] = 0xFF;
  for (const int32_t link : links) {
    done(ravix_types_id_table_add_entry(&state->cfg_mld->mld_role_ids, &link));
  }
  return state;
}

configuration make_configuration() {
  configuration config;
  config.global.reset(made(ravix_cfg_global_settings_create()));
  config.global->wlan_enabled = true;
  config.global->use_channel_12_13 = true;
  config.global->event_control = RAVIX_EVENT_LOG_CONTROL_WARNING | RAVIX_EVENT_LOG_CONTROL_ERROR;
  config.global->device_opmode = RAVIX_DEVICE_OPMODE_REPEATER;
  config.global->meshd_settings.band_steering = true;

  for (const radio_plan &plan : radio_plans) {
    ravix_cfg_hardware_static_t *chip = config.hardware.emplace_back(made(ravix_cfg_hw_create())).get();
    chip->id = plan.id;
    chip->vendor_id = 1;
    chip->chip_type = static_cast<uint8_t>(10 + plan.id);
    chip->hw_interface = plan.id - 1;

    ravix_cfg_radio_static_t *radio = config.radios.emplace_back(made(ravix_cfg_radio_create())).get();
    radio->id = plan.id;
    set_text(radio->if_name, "radio" + std::to_string(plan.id - 1));
    radio->enabled = true;
    radio->hw_id = chip->id;
    radio->mac_address_index = plan.id - 1;
    radio->radio_band = plan.band;
    radio->radio_sub_band = RAVIX_RADIO_SUB_BAND_FULL;
    radio->coexistence_enabled = plan.band == RAVIX_RADIO_BAND_2GHZ;
    radio->primary_freq = plan.primary_freq;
  }

  for (const radio_plan &plan : radio_plans) { // the home network: on every radio, under the radio's number
    const uint8_t security = plan.band == RAVIX_RADIO_BAND_6GHZ ? RAVIX_SECURITY_WPA3PSK : RAVIX_SECURITY_WPA2_WPA3;
    ravix::handle<ravix_cfg_role_static_t> home =
        make_ap(plan.id, plan, RAVIX_ROLE_OPMODE_AP_HOME, security, "harbour-home");
    set_key(home->security.key, "eleven grey herons");
    home->security.wps.enable = plan.band != RAVIX_RADIO_BAND_6GHZ;
    ravix_uuid_from_str("2a7e1b54-93c0-4d1f-8e66-020000000001", home->security.wps.uuid);
    home->config_ap->access_control.mac_filter_enabled = true;
    home->config_ap->access_control.mac_filter_type = RAVIX_MAC_ACCESS_TYPE_BLACKLIST;
    add_filtered(*home, {"02:00:00:00:0A:01", "02:00:00:00:0A:02"});
    config.role_states.push_back(make_home_state(*home, {1, 2, 3}));
    config.roles.push_back(std::move(home));
  }

  ravix::handle<ravix_cfg_role_static_t> guest =
      make_ap(4, radio_plans[0], RAVIX_ROLE_OPMODE_AP_GUEST, RAVIX_SECURITY_WPA2PSK, "harbour-guest");
  set_key(guest->security.key, "welcome on board");
  guest->config_ap->user_isolation_enabled = true;
  guest->config_ap->time_control = {true, 240, false};
  config.roles.push_back(std::move(guest));

  ravix::handle<ravix_cfg_role_static_t> hotspot =
      make_ap(5, radio_plans[1], RAVIX_ROLE_OPMODE_AP_HOTSPOT, RAVIX_SECURITY_WPA2ENT, "harbour-hotspot");
  add_radius_server(hotspot->security.auth_servers, 1812, "tide and time");
  add_radius_server(hotspot->security.acct_servers, 1813, "tide and time");
  hotspot->config_ap->access_control.limits_enabled = true;
  hotspot->config_ap->access_control.limits_max_clients = 64;
  hotspot->config_ap->access_control.limits_min_client_rssi = -80;
  config.roles.push_back(std::move(hotspot));

  ravix::handle<ravix_cfg_role_static_t> uplink =
      make_role(6, radio_plans[1], RAVIX_ROLE_OPMODE_REPEATER, RAVIX_SECURITY_WPA3PSK);
  set_key(uplink->security.key, "lighthouse keeper");
  uplink->config_sta = made(ravix_cfg_role_config_sta_create());
  uplink->config_sta->uplink_configured = true;
  set_ssid(uplink->config_sta->uplink.ssid, "harbour-main");
  config.roles.push_back(std::move(uplink));
  return config;
}

// ---- the operator's changes

template <class pointer, class Clone> std::vector<pointer> cloned(const std::vector<pointer> &records, Clone clone) {
  std::vector<pointer> copies;
  copies.reserve(records.size());
  for (const pointer &record : records) {
    copies.emplace_back(made(clone(record.get())));
  }
  return copies;
}

configuration clone(const configuration &config) {
  return {ravix::handle<ravix_cfg_global_settings_t>(made(ravix_cfg_global_settings_clone(config.global.get()))),
          cloned(config.hardware, ravix_cfg_hw_clone), cloned(config.radios, ravix_cfg_radio_clone),
          cloned(config.roles, ravix_cfg_role_clone), cloned(config.role_states, ravix_cfg_role_dynamic_clone)};
}

void change(configuration &config) {
  for (const ravix::handle<ravix_cfg_role_static_t> &role : config.roles) {
    switch (role->op_mode) {
    case RAVIX_ROLE_OPMODE_AP_HOME: // a new name and passphrase, and one more address to refuse
      set_ssid(role->config_ap->ssid, "lighthouse");
      set_key(role->security.key, "twelve grey herons");
      add_filtered(*role, {"02:00:00:00:0A:03"});
      if (role->radio_id == 2) {
        role->channel_width = RAVIX_CHANNEL_WIDTH_160;
      }
      break;
    case RAVIX_ROLE_OPMODE_AP_HOTSPOT:
      set_text(role->security.auth_servers.data[0].secret, "ebb and flow");
      break;
    default:
      break;
    }
  }
  config.role_states[1]->channel_width = RAVIX_CHANNEL_WIDTH_160;
}

// ---- printing

template <class pointer>
void print_list(std::ostream &os, const char *what, const std::vector<pointer> &records,
                const std::vector<pointer> *reference) {
  for (std::size_t i = 0; i < records.size(); ++i) {
    const std::string name = what + (" " + std::to_string(records[i]->id));
    print_diff(os, *records[i], reference != nullptr ? (*reference)[i].get() : nullptr, name.c_str(), 0, true);
  }
}

// Prints a configuration, or what differs in it from the reference.
void print(std::ostream &os, const configuration &config, const configuration *reference) {
  print_diff(os, *config.global, reference != nullptr ? reference->global.get() : nullptr, "global settings", 0, true);
  print_list(os, "hardware", config.hardware, reference != nullptr ? &reference->hardware : nullptr);
  print_list(os, "radio", config.radios, reference != nullptr ? &reference->radios : nullptr);
  print_list(os, "role", config.roles, reference != nullptr ? &reference->roles : nullptr);
  print_list(os, "role state", config.role_states, reference != nullptr ? &reference->role_states : nullptr);
}

// ---- printing for programs

using json_members = std::vector<std::pair<std::string, std::string>>;

std::string json_object(const json_members &members) {
  std::string object = "{";
  for (const auto &[key, value] : members) {
    object.append(object.size() == 1 ? "\"" : ",\"").append(key).append("\":").append(value);
  }
  return object += '}';
}

// Adds a record, or what differs in it from the reference, if anything does.
template <class record>
void add_json(json_members &members, const std::string &key, const record &r, const record *reference) {
  std::ostringstream json;
  if (reference == nullptr) {
    print_json(json, r);
  } else {
    print_json_diff(json, r, *reference);
  }
  if (json.str() != "{}") {
    members.emplace_back(key, json.str());
  }
}

template <class pointer>
void add_json_list(json_members &members, const char *what, const std::vector<pointer> &records,
                   const std::vector<pointer> *reference) {
  json_members list;
  for (std::size_t i = 0; i < records.size(); ++i) {
    add_json(list, std::to_string(records[i]->id), *records[i], reference != nullptr ? (*reference)[i].get() : nullptr);
  }
  if (reference == nullptr || !list.empty()) {
    members.emplace_back(what, json_object(list));
  }
}

std::string json_of(const configuration &config, const configuration *reference) {
  json_members members;
  add_json(members, "global_settings", *config.global, reference != nullptr ? reference->global.get() : nullptr);
  add_json_list(members, "hardware", config.hardware, reference != nullptr ? &reference->hardware : nullptr);
  add_json_list(members, "radios", config.radios, reference != nullptr ? &reference->radios : nullptr);
  add_json_list(members, "roles", config.roles, reference != nullptr ? &reference->roles : nullptr);
  add_json_list(members, "role_states", config.role_states, reference != nullptr ? &reference->role_states : nullptr);
  return json_object(members);
}

int run(int argc, char **argv) {
  bool only_changes = false;
  bool as_json = false;
  for (int i = 1; i < argc; ++i) {
    const std::string_view argument = argv[i];
    if (argument == "-h" || argument == "--help") {
      std::cout << help;
      return 0;
    }
    if (argument == "--changes") {
      only_changes = true;
    } else if (argument == "--json") {
      as_json = true;
    } else {
      std::cerr << "config_diff: unknown argument: " << argument << " (see --help)\n";
      return 2;
    }
  }
  try {
    const configuration before = make_configuration();
    configuration after = clone(before);
    change(after);
    if (as_json) {
      const std::string changes = json_of(after, &before);
      std::cout << (only_changes ? changes
                                 : json_object({{"before", json_of(before, nullptr)},
                                                {"after", json_of(after, nullptr)},
                                                {"changes", changes}}))
                << '\n';
      return 0;
    }
    if (!only_changes) {
      std::cout << "===== before\n";
      print(std::cout, before, nullptr);
      std::cout << "===== after\n";
      print(std::cout, after, nullptr);
      std::cout << "===== what changed\n";
    }
    print(std::cout, after, &before);
  } catch (const std::exception &failed) {
    std::cerr << "config_diff: " << failed.what() << '\n';
    return 1;
  }
  return 0;
}

} // namespace

int main(int argc, char **argv) {
  return end_of_output("config_diff", run(argc, argv));
}
