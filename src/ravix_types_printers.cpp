#include "ravix_types_printers.hpp"

#include "ravix_types_all_fields.hpp"
#include "ravix_types_print.hpp"

namespace {

using zel::ravix::printer;

// Runs a print on a stream.
template <class Print> std::ostream &print(std::ostream &os, Print what) {
  printer out(os);
  what(out);
  out.flush();
  return os;
}

// ---- scan listing

void show(printer &out, const ravix_scan_entry_t &entry, bool hide_ssid = false) {
  out.texts("'", ravix_str_mac(entry.bssid), "' ", ravix_str_channel_info(&entry.channel_info), " ");
  if (!hide_ssid) {
    out.left(zel::ravix::value_text(entry.ssid), 44);
    out.text(" ");
  }
  out.right(ravix_str_power(entry.rssi), 6);
  out.texts(" ", ravix_str_wlan_mode(entry.wlan_mode), " ", ravix_str_capabilities(entry.capabilities));
}

void show(printer &out, const ravix_scan_table_t &table, bool hide_ssid = false) {
  out.columns(hide_ssid ? "[BSSID|CHANNEL_INFO|RSSI|WLAN MODE|CAPS]\n"
                        : "[BSSID|CHANNEL_INFO|SSID|RSSI|WLAN MODE|CAPS]\n",
              table, [&](const ravix_scan_entry_t &entry) { show(out, entry, hide_ssid); });
}

// ---- columns of the radio environment

void show(printer &out, const ravix_noisefloor_entry_t &entry) {
  out.left(ravix_str_wifi_freq(entry.frequency), 14);
  out.text(" ");
  out.right(ravix_str_anpi(entry.noisefloor), 3);
  out.text(" ");
  out.decimal(entry.load, 3);
}

void show(printer &out, const ravix_channel_entry_t &entry) {
  out.left(ravix_str_wifi_freq(entry.frequency), 14);
  out.text(" ");
  out.right(ravix_str_power(entry.max_power), 6);
  out.texts(" ", ravix_str_channel_capabilities(entry.capabilities), " ", ravix_str_channel_state(entry.state), " ",
            ravix_str_channel_user_flags(entry.user_flags));
}

void show(printer &out, const ravix_radio_load_entry_t &entry) {
  out.right(ravix_str_percentage(entry.global_usage), 3);
  out.text(" ");
  out.right(ravix_str_percentage(entry.own_tx_usage), 3);
}

void show(printer &out, const ravix_radio_airtime_entry_t &entry) {
  const char *separator = "";
  for (const float value : {entry.rxc, entry.rxf, entry.txf, entry.noisefloor}) {
    out.text(separator);
    out.fixed(value, 3, 8);
    separator = ", ";
  }
}

// Their tables, each under its line of headings.
template <class T> constexpr const char *headings = nullptr;
template <> constexpr const char *headings<ravix_noisefloor_table_t> = "[FREQUENCY|NOISEFLOOR|LOAD]\n";
template <>
constexpr const char *headings<ravix_channel_list_t> = "[FREQUENCY|MAX_POWER|MAX_REG_POWER|CAPS|STATE|USER_FLAGS]\n";
template <> constexpr const char *headings<ravix_radio_load_table_t> = "[GLOBAL_USAGE|OWN_TX_USAGE]\n";
template <> constexpr const char *headings<ravix_radio_airtime_table_t> = "[RXC|RXF|TXF|NOISEFLOOR]\n";

template <class T>
requires(headings<T> != nullptr) void show(printer &out, const T &table) {
  out.columns(headings<T>, table, [&](const auto &entry) { show(out, entry); });
}

void show(printer &out, const ravix_scan_results_t &results, bool hide_ssid = false) {
  out.texts("Scan time: ", ravix_str_timestamp(results.scan_time), "\nNoisefloor table:\n");
  show(out, results.noisefloor_table);
  out.text("\nScan table:\n");
  show(out, results.scan_table, hide_ssid);
}

// ---- labelled nesting

void show(printer &out, const ravix_scan_parameter_t &parameter) {
  std::size_t remaining = zel::ravix::field_count<ravix_scan_parameter_t>;
  zel::ravix::for_each_field<ravix_scan_parameter_t>([&](const auto &field) {
    field.members(parameter, [&](const auto &table) {
      out.diff<std::remove_cvref_t<decltype(table)>>(table, nullptr, field.name, 1, --remaining != 0);
    });
  });
}

template <class T> void labelled(printer &out, const char *label, const T *value) {
  out.text(label);
  if (value == nullptr) {
    out.texts(" ", printer::null_text);
  } else {
    out.text("\n");
    show(out, *value);
  }
}

void show(printer &out, const ravix_start_scan_request_t &request) {
  out.texts(" radio_id: ", ravix_str_id(request.radio_id));
  labelled(out, "\nScan parameter:", request.scan_parameter);
}

void show(printer &out, const ravix_get_scan_results_response_t &response) {
  out.texts(" status: ", ravix_str_status(response.status));
  labelled(out, "\n scan_results:", response.scan_results);
}

void show(printer &out, const ravix_event_scan_results_t &event) {
  out.texts("Radio ID: ", ravix_str_id(event.radio_id));
  labelled(out, "\nScan parameter:", event.scan_parameter);
  labelled(out, "\nScan results:", event.scan_results);
}

// A whole record, in its own layout or in the one that follows from what it is.
template <class T> void show_whole(printer &out, const T &value) {
  if constexpr (requires { show(out, value); }) {
    show(out, value);
  } else if constexpr (zel::ravix::value_record<T>) {
    out.value(value);
  } else if constexpr (zel::ravix::record_table<T>) {
    out.listed(value);
  } else {
    out.lines(value);
  }
}

} // namespace

namespace zel {

// The copy stands on the stream's buffer: one without a buffer is born bad, and taking over the mask of a stream that
// throws would then throw right here. A stream that has lost its buffer meanwhile has such a copy nonetheless; the mask
// is the last that is taken over, so nothing is missing then.
ios_copyfmt::ios_copyfmt(std::basic_ios<char> &stream) : stream_(stream), saved_(stream.rdbuf()) {
  try {
    saved_.copyfmt(stream);
  } catch (const std::ios_base::failure &) { // NOLINT(bugprone-empty-catch): see above
  }
}

ios_copyfmt::~ios_copyfmt() {
  try {
    stream_.copyfmt(saved_);
  } catch (...) { // NOLINT(bugprone-empty-catch): a destructor must not throw; the stream's state still tells
  }
}

} // namespace zel

void print_scan_entry(std::ostream &os, const ravix_scan_entry_t &entry, bool hide_ssid) {
  print(os, [&](printer &out) { show(out, entry, hide_ssid); });
}

void print_scan_table(std::ostream &os, const ravix_scan_table_t &table, bool hide_ssid) {
  print(os, [&](printer &out) { show(out, table, hide_ssid); });
}

void print_scan_results(std::ostream &os, const ravix_scan_results_t &results, bool hide_ssid) {
  print(os, [&](printer &out) { show(out, results, hide_ssid); });
}

#define RAVIX_PRINT_unprinted(TYPE)
#define RAVIX_PRINT_printed(TYPE)                                                                                      \
  std::ostream &operator<<(std::ostream &os, const TYPE &value) {                                                      \
    return print(os, [&](printer &out) { show_whole(out, value); });                                                   \
  }
#define RAVIX_PRINT_DIFF_uncompared(TYPE)
#define RAVIX_PRINT_DIFF_compared(TYPE)                                                                                \
  void print_diff(std::ostream &os, const TYPE &value, const TYPE *reference, const char *name, unsigned indent,       \
                  bool newline) {                                                                                      \
    print(os, [&](printer &out) { out.diff(value, reference, name, indent, newline); });                               \
  }
#define RAVIX_RECORD(NAME, TYPE, SHAPE, COMPARED, PRINTED) RAVIX_PRINT_##PRINTED(TYPE) RAVIX_PRINT_DIFF_##COMPARED(TYPE)
#include "ravix_types_records.def"
