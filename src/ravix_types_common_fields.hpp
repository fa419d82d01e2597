// Field lists of the common values and tables.
#pragma once

#include "ravix_types_common.h"
#include "ravix_types_fields.hpp"
#include "ravix_types_str_convert.h"

namespace zel::ravix {

template <> struct record<ravix_channel_info_t> {
  RAVIX_COMPARED_OPERATIONS(ravix_types_channel_info)
  using R = ravix_channel_info_t;
  static constexpr std::tuple fields{
      scalar{&R::primary_freq, "primary_freq", ravix_str_wifi_freq},
      scalar{&R::center_freq, "center_freq", ravix_str_wifi_freq},
      scalar{&R::channel_width, "channel_width", ravix_str_channel_width},
      scalar{&R::puncture_map, "puncture_map", ravix_str_bitfield_16},
  };
};

// The octets of an address, of which those of its version count.
struct address_octets : bytes<ravix_ip_addr_t, 16> {
  using R = ravix_ip_addr_t;
  constexpr address_octets() : bytes{&R::addr, "addr", ravix_str_uuid} {}

  static int compare(const R &a, const R &b) {
    switch (a.version) {
    case RAVIX_IP_VERSION_4:
      return compare_octets<4>(a.addr, b.addr);
    case RAVIX_IP_VERSION_6:
      return compare_octets<16>(a.addr, b.addr);
    default:
      return -1; // deliberate: what is no address equals nothing, not even itself
    }
  }
};

template <> struct record<ravix_ip_addr_t> {
  RAVIX_COMPARED_OPERATIONS(ravix_types_ip_addr)
  using R = ravix_ip_addr_t;
  static constexpr std::tuple fields{
      scalar{&R::version, "version"},
      address_octets{},
  };
};

template <> struct record<ravix_key_t> {
  RAVIX_COMPARED_OPERATIONS(ravix_types_key)
  using R = ravix_key_t;
  static constexpr std::tuple fields{
      secret{counted_bytes{&R::len, &R::key, "key", "src->len is greater than RAVIX_MAX_KEY_LEN!"}},
  };
};

template <> struct record<ravix_ssid_t> {
  RAVIX_COMPARED_OPERATIONS(ravix_types_ssid)
  using R = ravix_ssid_t;
  static constexpr std::tuple fields{
      counted_bytes{&R::len, &R::ssid, "ssid", "src->len is greater than RAVIX_MAX_SSID_LEN!"},
  };
};

template <> struct record<ravix_tlv_t> {
  RAVIX_COMPARED_OPERATIONS(ravix_types_tlv)
  using R = ravix_tlv_t;
  static constexpr std::tuple fields{
      scalar{&R::type, "type"},
      owned_bytes{&R::len, &R::value, "value"},
  };
};

template <> struct record<ravix_frequency_table_t> {
  RAVIX_COMPARED_TABLE_OPERATIONS(ravix_types_frequency_table)
  using T = ravix_frequency_table_t;
  static constexpr std::tuple fields{entries{&T::count, &T::data, ravix_str_frequency}};
};

template <> struct record<ravix_id_table_t> {
  RAVIX_COMPARED_TABLE_OPERATIONS(ravix_types_id_table)
  using T = ravix_id_table_t;
  static constexpr std::tuple fields{entries{&T::count, &T::data, ravix_str_id}};
};

template <> struct record<ravix_mac_table_t> {
  RAVIX_COMPARED_TABLE_OPERATIONS(ravix_types_mac_table)
  using T = ravix_mac_table_t;
  static constexpr std::tuple fields{entries{&T::count, &T::data, ravix_str_mac}};
};

template <> struct record<ravix_ssid_table_t> {
  RAVIX_COMPARED_TABLE_OPERATIONS(ravix_types_ssid_table)
  using T = ravix_ssid_table_t;
  static constexpr std::tuple fields{entries{&T::count, &T::data}};
};

// Owned texts as elements: a slot may be null.
template <> struct element<char *> {
  using source = const char *const;
  static constexpr bool is_plain = false;
  static constexpr bool is_flat = false;
  static constexpr bool clear_before_release = true;

  static void clear(char **slot);
  static int copy(const char *const *src, char **dest);
  static int compare(const char *const *a, const char *const *b) { return compare_texts(*a, *b); }
};

template <> struct record<ravix_string_table_t> {
  RAVIX_COMPARED_TABLE_OPERATIONS(ravix_types_string_table)
  using T = ravix_string_table_t;
  static constexpr std::tuple fields{entries{&T::count, &T::data}};
};

template <> struct record<ravix_tlv_table_t> {
  RAVIX_COMPARED_TABLE_OPERATIONS(ravix_types_tlv_table)
  using T = ravix_tlv_table_t;
  static constexpr std::tuple fields{entries{&T::count, &T::data}};
};

} // namespace zel::ravix
