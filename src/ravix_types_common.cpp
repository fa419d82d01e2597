#include "ravix_types_common_fields.hpp"

#include "ravix_types_define.hpp"

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

#define RAVIX_COMMON_RECORD RAVIX_DEFINE
#include "ravix_types_records.def"
