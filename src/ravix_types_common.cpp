#include "ravix_types_common_fields.hpp"

#include <cstring>

namespace {

constexpr const char *here = "src/ravix_types_common";

// Element operations of the text table.
void string_clear(char **slot) {
  slab_cbcontext_free(*slot, here, __LINE__);
  *slot = nullptr;
}

int string_copy(const char *const *src, char **dest) {
  using namespace zel::ravix;
  if (src == nullptr) {
    log_invalid_pointer(here, "src");
    return invalid_argument;
  }
  if (dest == nullptr) {
    log_invalid_pointer(here, "dest");
    return invalid_argument;
  }
  string_clear(dest);
  if (*src == nullptr) {
    return success;
  }
  *dest = slab_dstrdup(*src, here, __LINE__);
  if (*dest == nullptr) {
    log_error(here, "No memory available!");
    return out_of_memory;
  }
  return success;
}

} // namespace

void zel::ravix::element<char *>::clear(char **slot) {
  string_clear(slot);
}

int zel::ravix::element<char *>::copy(const char *const *src, char **dest) {
  return string_copy(src, dest);
}

RAVIX_COMPARED_RECORD(ravix_types_channel_info, ravix_channel_info_t)
RAVIX_COMPARED_RECORD(ravix_types_ip_addr, ravix_ip_addr_t)
RAVIX_COMPARED_RECORD(ravix_types_key, ravix_key_t)
RAVIX_COMPARED_RECORD(ravix_types_ssid, ravix_ssid_t)
RAVIX_COMPARED_RECORD(ravix_types_tlv, ravix_tlv_t)
RAVIX_COMPARED_TABLE(ravix_types_frequency_table, ravix_frequency_table_t)
RAVIX_COMPARED_TABLE(ravix_types_id_table, ravix_id_table_t)
RAVIX_COMPARED_TABLE(ravix_types_mac_table, ravix_mac_table_t)
RAVIX_COMPARED_TABLE(ravix_types_ssid_table, ravix_ssid_table_t)
RAVIX_COMPARED_TABLE(ravix_types_string_table, ravix_string_table_t)
RAVIX_COMPARED_TABLE(ravix_types_tlv_table, ravix_tlv_table_t)
