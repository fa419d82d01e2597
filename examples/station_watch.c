/* What a listener of the interface does with stations, in C: it keeps a table of an access point's clients, follows the
 * daemon's events in it, and writes both to a log, and an event as JSON. Nothing but the public C headers is needed for
 * that. */
#include "ravix_types.h"
#include "ravix_types_json.h"

#include <stdio.h>
#include <string.h>

static const char help[] = "usage: station_watch [OPTION]\n"
                           "\n"
                           "Shows the clients of an access point, and how its log follows their events: a client\n"
                           "connects, another one's signal fades, a radar is detected.\n"
                           "\n"
                           "  -h, --help    this text\n";

static const ravix_mac_t laptop = {0x02, 0x00, 0x5E, 0x20, 0x00, 0x01};
static const ravix_mac_t phone = {0x02, 0x00, 0x5E, 0x20, 0x00, 0x02};
static const ravix_mac_t doorbell = {0x02, 0x00, 0x5E, 0x20, 0x00, 0x03};

/* A client as the daemon reports it; false, after a line of the library's log, when there is no memory for it. */
static bool add_client(ravix_station_table_t *table, const ravix_mac_t hwaddr, uint32_t state, uint32_t mode,
                       int16_t rssi, uint32_t rate) {
  ravix_station_entry_t client;
  ravix_types_station_entry_clear(&client);
  client.state = state;
  client.mode = mode;
  client.security = RAVIX_SECURITY_WPA2_WPA3;
  memcpy(client.hwaddr, hwaddr, sizeof client.hwaddr);
  client.signal_rssi = rssi;
  client.rate_tx_current = rate;
  return ravix_create_channel_info(5500000, RAVIX_CHANNEL_WIDTH_80, false, 0, &client.channel_info) &&
         ravix_types_station_table_add_entry(table, &client) == 0;
}

static ravix_station_entry_t *find_client(ravix_station_table_t *table, const ravix_mac_t hwaddr) {
  for (uint32_t i = 0; i < table->count; ++i) {
    if (memcmp(table->data[i].hwaddr, hwaddr, sizeof(ravix_mac_t)) == 0) {
      return &table->data[i];
    }
  }
  return NULL;
}

/* Many texts fit into one call: each stays valid until later ones come round to it. */
static void print_clients(const ravix_station_table_t *table) {
  printf("%u clients:\n", (unsigned)table->count);
  for (uint32_t i = 0; i < table->count; ++i) {
    const ravix_station_entry_t *client = &table->data[i];
    printf("  %s %-13s %s %-9s %s %-14s %s\n", ravix_str_mac(client->hwaddr), ravix_str_sta_state(client->state),
           ravix_str_channel_info(&client->channel_info), ravix_str_security(client->security),
           ravix_str_power(client->signal_rssi), ravix_str_bitrate(client->rate_tx_current),
           ravix_str_wlan_mode(client->mode));
  }
}

/* Takes a piece of JSON; what is negative ends it. */
static int write_to_file(const char *piece, size_t length, void *file) {
  return fwrite(piece, 1, length, file) == length ? 0 : -1;
}

static void on_state_update(ravix_station_table_t *table, const ravix_event_client_state_update_t *event) {
  ravix_station_entry_t *client = find_client(table, event->mac);
  printf("role %s: client %s: %s -> %s%s\n", ravix_str_id(event->role_id), ravix_str_mac(event->mac),
         ravix_str_sta_state(event->old_state), ravix_str_sta_state(event->new_state),
         client != NULL ? "" : " (not in the table)");
  if (client != NULL) {
    client->state = event->new_state;
  }
  printf("the same for programs: ");
  ravix_types_event_client_state_update_to_json(event, write_to_file, stdout);
  printf("\n");
}

static void on_signal_update(ravix_station_table_t *table, const ravix_event_client_rssi_update_t *event) {
  ravix_station_entry_t *client = find_client(table, event->mac);
  printf("role %s: client %s: RCPI %s, RSNI %s, ANPI %s", ravix_str_id(event->role_id), ravix_str_mac(event->mac),
         ravix_str_rcpi(event->rcpi), ravix_str_rsni(event->rsni), ravix_str_anpi(event->anpi));
  if (client != NULL && event->rcpi != RAVIX_MEASURE_INVALID) {
    const int16_t now = (int16_t)ravix_rcpi_val_to_dBm(event->rcpi);
    printf(", signal %s -> %s", ravix_str_power(client->signal_rssi), ravix_str_power(now));
    client->signal_rssi = now;
  }
  printf("\n");
}

/* The same lines as operator<< writes in C++. */
static void on_radar_detected(const ravix_event_radar_detected_t *event) {
  printf("radar detected:\n");
  printf(" radio_id: %s\n", ravix_str_id(event->radio_id));
  printf(" expire_ts_uptime: %lld s\n", (long long)event->expire_ts_uptime);
  printf(" freq_start: %s\n", ravix_str_wifi_freq(event->freq_start));
  printf(" freq_end: %s\n", ravix_str_wifi_freq(event->freq_end));
  printf(" radar_type: %s\n", ravix_str_radar_type(event->radar_type));
  printf(" level_dbm: %s\n", ravix_str_power(event->level_dbm));
  printf(" flags: %s\n", ravix_str_bitfield_32(event->flags));
}

/* What the daemon sends in this example. */
static void receive_events(ravix_station_table_t *table) {
  ravix_event_client_state_update_t state = {2, {0}, RAVIX_STA_STATE_ASSOCIATED, RAVIX_STA_STATE_CONNECTED};
  memcpy(state.mac, phone, sizeof state.mac);
  on_state_update(table, &state);

  ravix_event_client_rssi_update_t signal;
  ravix_types_event_client_rssi_update_clear(&signal);
  signal.role_id = 2;
  memcpy(signal.mac, laptop, sizeof signal.mac);
  signal.rcpi = dBm_to_ravix_rcpi_val(-78);
  signal.rsni = dB_to_ravix_rsni_val(12);
  on_signal_update(table, &signal);

  ravix_event_radar_detected_t radar;
  ravix_types_event_radar_detected_clear(&radar);
  radar.radio_id = 1;
  radar.expire_ts_uptime = 5421;
  radar.freq_start = 5500000;
  radar.freq_end = 5520000;
  radar.radar_type = RAVIX_RADAR_TYPE_ETSI_2;
  on_radar_detected(&radar);
}

/* The exit status; a log that nobody has received is no success. */
static int end_of_output(int status) {
  if (fflush(stdout) == 0 && !ferror(stdout)) {
    return status;
  }
  fputs("station_watch: standard output cannot be written\n", stderr);
  return 1;
}

int main(int argc, char **argv) {
  if (argc > 1) {
    const bool wanted = strcmp(argv[1], "-h") == 0 || strcmp(argv[1], "--help") == 0;
    fputs(help, wanted ? stdout : stderr);
    return end_of_output(wanted ? 0 : 2);
  }
  ravix_station_table_t *table = ravix_types_station_table_create(0);
  const uint32_t since_ac = RAVIX_WLAN_MODE_11A | RAVIX_WLAN_MODE_11N | RAVIX_WLAN_MODE_11AC;
  const bool ready =
      table != NULL &&
      add_client(table, laptop, RAVIX_STA_STATE_CONNECTED, since_ac | RAVIX_WLAN_MODE_11AX, -58, 866700) &&
      add_client(table, phone, RAVIX_STA_STATE_ASSOCIATED, since_ac, -63, 433300) &&
      add_client(table, doorbell, RAVIX_STA_STATE_AUTHENTICATED, RAVIX_WLAN_MODE_11A | RAVIX_WLAN_MODE_11N,
                 RAVIX_POWER_INVALID, 6000);
  if (ready) {
    print_clients(table);
    receive_events(table);
  }
  ravix_types_station_table_free(table);
  return end_of_output(ready ? 0 : 1);
}
