#include "ravix_types_steering.h"

#include "ravix_types_generic_simple.hpp"

#include <cstdint>
#include <type_traits>

namespace {

using namespace zel::ravix;

constexpr const char *here = "src/ravix_types_steering";

// What a target holds besides its array: a count of elements, or the length of the element that it becomes.
template <class T> struct target {
  static constexpr unsigned most = UINT32_MAX;
  static auto *&array(T &obj) { return obj.data; }
  static void set_size(T &obj, unsigned n) { obj.count = n; }
};

template <> struct target<ravix_ap_channel_report_t> {
  static constexpr unsigned most = RAVIX_MAX_AP_CHANNEL_REPORT_CHANNELS;
  static auto *&array(ravix_ap_channel_report_t &obj) { return obj.channels; }
  static void set_size(ravix_ap_channel_report_t &obj, unsigned n) { obj.length = static_cast<std::uint8_t>(n + 1); }
};

// Zeroed elements, or null after a log line.
template <class E> E *allocate(unsigned count, call_site site) {
  auto *array = static_cast<E *>(slab_dcalloc(count, sizeof(E), site.path, site.line));
  if (array == nullptr) {
    log_error(site, "No memory available!");
  }
  return array;
}

// Releases an owned array and leaves none.
template <class E> void release(E *&array, call_site site) {
  slab_cbcontext_free(array, site.path, site.line);
  array = nullptr;
}

template <class T> void clear(T *obj, call_site site = here) {
  if (obj != nullptr) {
    release(target<T>::array(*obj), site);
    target<T>::set_size(*obj, 0);
  }
}

// `name` is the target's name in the message for a null one.
template <class T> int init(T *obj, unsigned n, const char *name, void (*clear_target)(T *), call_site site = here) {
  if (obj == nullptr) {
    log_invalid_pointer(site, name);
    return invalid_argument;
  }
  clear_target(obj);
  if (n == 0) {
    return success;
  }
  if (n > target<T>::most) {
    log_error(site, "Maximum number of entries reached!");
    return invalid_argument;
  }
  auto *&array = target<T>::array(*obj);
  array = allocate<std::remove_reference_t<decltype(*array)>>(n, site);
  if (array == nullptr) {
    return out_of_memory;
  }
  target<T>::set_size(*obj, n);
  return success;
}

template <class T> T *create(unsigned n, int (*init_target)(T *, unsigned), call_site site = here) {
  T *obj = allocate<T>(1, site);
  if (obj != nullptr && init_target(obj, n) != success) {
    log_error(site, "Init error!");
    release(obj, site);
  }
  return obj;
}

} // namespace

int ravix_types_btm_candidate_table_init(ravix_btm_candidate_table_t *candidate_table, unsigned n) {
  return init(candidate_table, n, "candidate_table", ravix_types_btm_candidate_table_clear);
}

ravix_btm_candidate_table_t *ravix_types_btm_candidate_table_create(unsigned n) {
  return create(n, ravix_types_btm_candidate_table_init);
}

void ravix_types_btm_candidate_table_clear(ravix_btm_candidate_table_t *table) {
  clear(table);
}

void ravix_types_btm_candidate_table_free(ravix_btm_candidate_table_t *table) {
  generic_free(table, ravix_types_btm_candidate_table_clear);
}

int ravix_types_ap_channel_report_init(ravix_ap_channel_report_t *ap_channel_report, unsigned n) {
  return init(ap_channel_report, n, "ap_channel_report", ravix_types_ap_channel_report_clear);
}

void ravix_types_ap_channel_report_clear(ravix_ap_channel_report_t *report) {
  clear(report);
  if (report != nullptr) {
    report->operating_class = 0;
  }
}

int ravix_types_ap_channel_report_table_init(ravix_ap_channel_report_table_t *table, unsigned n) {
  return init(table, n, "table", ravix_types_ap_channel_report_table_clear);
}

ravix_ap_channel_report_table_t *ravix_types_ap_channel_report_table_create(unsigned n) {
  return create(n, ravix_types_ap_channel_report_table_init);
}

void ravix_types_ap_channel_report_table_clear(ravix_ap_channel_report_table_t *table) {
  if (table != nullptr && table->data != nullptr) {
    for (std::uint32_t i = 0; i < table->count; ++i) {
      ravix_types_ap_channel_report_clear(&table->data[i]);
    }
  }
  clear(table);
}

void ravix_types_ap_channel_report_table_free(ravix_ap_channel_report_table_t *table) {
  generic_free(table, ravix_types_ap_channel_report_table_clear);
}

// There is no initialiser that could report its failure, so memory that is missing is all there is to log.
ravix_beacon_report_table_t *ravix_types_beacon_report_table_create(unsigned n) {
  auto *table = allocate<ravix_beacon_report_table_t>(1, here);
  if (table != nullptr && init(table, n, "table", ravix_types_beacon_report_table_clear) != success) {
    release(table, here);
  }
  return table;
}

void ravix_types_beacon_report_table_clear(ravix_beacon_report_table_t *table) {
  clear(table);
}

void ravix_types_beacon_report_table_free(ravix_beacon_report_table_t *table) {
  generic_free(table, ravix_types_beacon_report_table_clear);
}

void ravix_types_beacon_report_rrm_req_params_clear(ravix_beacon_report_rrm_req_params_t *params) {
  if (params == nullptr) {
    return;
  }
  release(params->request_ids, here);
  params->request_count = 0;
  ravix_types_ap_channel_report_table_clear(&params->ap_channel_reports);
  if (params->subelements != nullptr) {
    for (std::uint32_t i = 0; i < params->subelement_count; ++i) {
      release(params->subelements[i].octets, here);
    }
  }
  release(params->subelements, here);
  params->subelement_count = 0;
}
