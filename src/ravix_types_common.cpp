#include "ravix_types_common_fields.hpp"

#include "ravix_types_define.hpp"

constexpr const char *here = "src/ravix_types_common";

// Owned texts as elements of a table; a failed copy is known to log filters by the name "string_copy".
void zel::ravix::element<char *>::clear(char **slot) {
  slab_cbcontext_free(*slot, here, __LINE__);
  *slot = nullptr;
}

int zel::ravix::element<char *>::copy(const char *const *src, char **dest) {
  const call_site site = {here, "string_copy"};
  if (!are_given(src, "src", dest, "dest", site)) {
    return invalid_argument;
  }
  clear(dest);
  if (*src == nullptr) {
    return success;
  }
  *dest = slab_dstrdup(*src, here, __LINE__);
  if (*dest == nullptr) {
    log_error(site, "No memory available!");
    return out_of_memory;
  }
  return success;
}

#define RAVIX_COMMON_RECORD RAVIX_DEFINE
#include "ravix_types_records.def"
