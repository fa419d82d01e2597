#include "ravix_types_radio_env_fields.hpp"

namespace {
constexpr const char *here = "src/ravix_types_radio_env";
}

RAVIX_RECORD(ravix_types_scan_parameter, ravix_scan_parameter_t)
RAVIX_RECORD(ravix_types_scan_entry, ravix_scan_entry_t)
RAVIX_TABLE(ravix_types_scan_table, ravix_scan_table_t)
RAVIX_RECORD(ravix_types_scan_results, ravix_scan_results_t)
RAVIX_RECORD(ravix_types_noisefloor_entry, ravix_noisefloor_entry_t)
RAVIX_TABLE(ravix_types_noisefloor_table, ravix_noisefloor_table_t)
RAVIX_RECORD(ravix_types_channel_entry, ravix_channel_entry_t)
RAVIX_TABLE(ravix_types_channel_list, ravix_channel_list_t)
RAVIX_RECORD(ravix_types_radio_load_entry, ravix_radio_load_entry_t)
RAVIX_TABLE(ravix_types_radio_load_table, ravix_radio_load_table_t)
RAVIX_RECORD(ravix_types_radio_airtime_entry, ravix_radio_airtime_entry_t)

// The airtime table carries a value ahead of its entries, so it is cleared and copied as a record.
RAVIX_TABLE_FRAME(ravix_types_radio_airtime_table, ravix_radio_airtime_table_t)
RAVIX_RECORD_CLEAR(ravix_types_radio_airtime_table, ravix_radio_airtime_table_t)
RAVIX_RECORD_COPY(ravix_types_radio_airtime_table, ravix_radio_airtime_table_t)
