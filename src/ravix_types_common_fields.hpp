// Field lists of the common values and tables.
#pragma once

#include "ravix_types_kinds.hpp"

namespace zel::ravix {

RAVIX_FIELD_LIST(ravix_channel_info_t) {
  static constexpr std::tuple fields{
      RAVIX_FIELD(primary_freq, channel_frequency),
      RAVIX_FIELD(center_freq, channel_frequency),
      RAVIX_FIELD(channel_width, channel_width),
      RAVIX_FIELD(puncture_map, bits_16),
  };
};

// The octets of an address, of which those of its version count.
struct address_octets : array<&ravix_ip_addr_t::addr, meaning::uuid> {
  static int compare(const R &a, const R &b) {
    switch (a.version) {
    case RAVIX_IP_VERSION_4:
      return std::memcmp(a.addr, b.addr, 4);
    case RAVIX_IP_VERSION_6:
      return std::memcmp(a.addr, b.addr, 16);
    default:
      return -1; // deliberate: what is no address equals nothing, not even itself
    }
  }
};

RAVIX_FIELD_LIST(ravix_ip_addr_t) {
  static constexpr std::tuple fields{
      RAVIX_FIELD(version),
      address_octets{{{"addr", offsetof(R, addr)}}},
  };
};

RAVIX_FIELD_LIST(ravix_key_t) {
  static constexpr std::tuple fields{
      secret{RAVIX_COUNTED_OCTETS(len, key, "src->len is greater than RAVIX_MAX_KEY_LEN!")},
  };
};

RAVIX_FIELD_LIST(ravix_ssid_t) {
  static constexpr std::tuple fields{
      RAVIX_COUNTED_OCTETS(len, ssid, "src->len is greater than RAVIX_MAX_SSID_LEN!"),
  };
};

RAVIX_FIELD_LIST(ravix_tlv_t) {
  static constexpr std::tuple fields{
      RAVIX_FIELD(type),
      owned_octets<&R::len, &R::value>{{"value", offsetof(R, len)}},
  };
};

template <> struct field_list<ravix_frequency_table_t> : table_fields<ravix_frequency_table_t, meaning::frequency> {};
template <> struct field_list<ravix_id_table_t> : table_fields<ravix_id_table_t, meaning::id> {};
template <> struct field_list<ravix_mac_table_t> : table_fields<ravix_mac_table_t, meaning::mac> {};

// Owned texts as elements: a slot may be null.
template <> struct element<char *> {
  using entry = const char *const;
  static constexpr bool is_bytes = false;
  static constexpr bool is_flat = false;
  static constexpr bool clear_before_release = true;

  static void clear(char **slot);
  static int copy(const char *const *src, char **dest);
  static int compare(const char *const *a, const char *const *b) { return compare_texts(*a, *b); }
};

} // namespace zel::ravix
