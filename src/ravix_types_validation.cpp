#include "ravix_types_validation.h"

#include "ravix_types_log.hpp"
#include "ravix_types_names.hpp"
#include "ravix_types_radio.hpp"
#include "ravix_types_str_convert.h"
#include "ravix_types_util.h"

#include <algorithm>
#include <cstddef>
#include <initializer_list>
#include <iterator>
#include <span>
#include <string_view>

using zel::ravix::call_site;
using zel::ravix::decimal;
using zel::ravix::log_error;
using zel::ravix::log_invalid_pointer;
using zel::ravix::radio::channel_14;
using zel::ravix::radio::width_20_khz;

namespace {

constexpr const char *here = "src/ravix_types_validation";

// The rules, by the code of their violation, and the names of the violations.
#define RAVIX_RULES(...)                                                                                               \
  enum rule : uint8_t { __VA_ARGS__ };                                                                                 \
  constexpr auto rule_names = zel::ravix::make_name_table<"", #__VA_ARGS__, rule>({__VA_ARGS__})
RAVIX_RULES(INVALID_PTR, INVALID_FREQ, RADIO_MISMATCH, DOUBLE_FREQUENCY, INVALID_ORDER, INVALID_POWER, INVALID_DFS,
            NO_HT20, STATE_FLAG_MISMATCH, NO_PRIMARY_FLAG, ACTIVE_ON_NOT_CLEARED, PRIMARY_WITHOUT_ACTIVE, ACTIVE_GAP,
            MANY_PRIMARY_FLAGS, INVALID_ACTIVE, INVALID_CHANNEL_INFO);

constexpr uint32_t active = RAVIX_CHANNEL_STATE_ACTIVE;
constexpr uint32_t pri_chan = RAVIX_CHANNEL_STATE_PRI_CHAN;
constexpr uint32_t precac_todo = RAVIX_CHANNEL_STATE_PRECAC_TODO;
constexpr uint32_t cac_running = RAVIX_CHANNEL_STATE_CAC_RUNNING;
constexpr uint32_t dfs_clear = RAVIX_CHANNEL_STATE_DFS_CLEAR;
constexpr uint32_t radar_found = RAVIX_CHANNEL_STATE_RADAR_FOUND;
constexpr uint32_t interference_found = RAVIX_CHANNEL_STATE_INTERFERENCE_FOUND;
constexpr uint32_t dfs_reserved = RAVIX_CHANNEL_STATE_DFS_RESERVED;
constexpr uint32_t one_minute_off = RAVIX_CHANNEL_STATE_1_MINUTE_OFF;
constexpr uint32_t ten_minutes_off = RAVIX_CHANNEL_STATE_10_MINUTES_OFF;
constexpr uint32_t punctured = RAVIX_CHANNEL_STATE_PUNCTURED;

// Which state flags exclude each other, and which need a DFS channel. Each pair stands in both rows, so that a conflict
// is reported from both sides.
struct state_rule {
  uint32_t flag;
  uint32_t forbidden;
  bool dfs_only;
};
constexpr state_rule state_rules[] = {
    {active, precac_todo | cac_running | radar_found | punctured, false},
    {pri_chan, precac_todo | cac_running | radar_found | punctured, false},
    {precac_todo, active | pri_chan | cac_running | dfs_clear | one_minute_off | ten_minutes_off, true},
    {cac_running, active | pri_chan | precac_todo | dfs_clear | radar_found, true},
    {dfs_clear, precac_todo | cac_running | radar_found, true},
    {radar_found, active | pri_chan | cac_running | dfs_clear | one_minute_off | ten_minutes_off, true},
    {interference_found, 0, false},
    {dfs_reserved, 0, true},
    {one_minute_off, precac_todo | radar_found | ten_minutes_off, false},
    {ten_minutes_off, precac_todo | radar_found | one_minute_off, false},
    {punctured, active | pri_chan, false},
};
static_assert(std::ranges::all_of(state_rules, [](const state_rule &a) {
  return std::ranges::all_of(
      state_rules, [&](const state_rule &b) { return ((a.forbidden & b.flag) != 0) == ((b.forbidden & a.flag) != 0); });
}));

constexpr uint32_t dfs_capabilities = RAVIX_CHANNEL_CAP_DFS | RAVIX_CHANNEL_CAP_DFS_WEATHER;
constexpr int16_t highest_power = 40; // dBm

// 2.4 GHz lists have an entry every 5 MHz: a 20 MHz channel covers 5 of them, one of 40 MHz covers 9. Up to two are
// missing where the channel runs over the end of the list.
constexpr uint32_t active_counts_2ghz[] = {3, 4, 5, 7, 8, 9};

// How much of a channel (kHz) lies beyond the end of a 2.4 GHz list, told by the distance of the primary channel from
// the outermost active entry at that end. In a 40 MHz channel the primary may be the one away from the end; then the
// number of active entries tells it from a channel that is all there.
struct overhang {
  bool below;
  uint32_t distance;
  uint32_t far_distance, far_count;
  uint32_t missing;
};
constexpr overhang overhangs[] = {
    {true, 0, 20000, 7, 10000},
    {true, 5000, 25000, 8, 5000},
    {false, 5000, 25000, 8, 5000},
    {false, 0, 20000, 7, 10000},
};

// One pass over a channel list. Log lines carry the name of the function that was called.
class channel_list_check {
public:
  channel_list_check(call_site site, std::span<const ravix_channel_entry_t> entries)
      : site_(site), entries_(entries), band_(ravix_frequency_to_radio_band(entries.front().frequency)),
        has_primary_(std::ranges::any_of(entries, [](const auto &entry) { return (entry.state & pri_chan) != 0; })),
        ascends_(std::ranges::adjacent_find(entries, std::ranges::greater_equal{}, &ravix_channel_entry_t::frequency) ==
                 entries.end()) {}

  // The set of violated rules.
  uint32_t run() {
    for (std::size_t i = 0; i < entries_.size(); ++i) {
      const ravix_channel_entry_t &entry = entries_[i];
      check_frequency(i);
      check_power(entry);
      check_capabilities_and_state(entry);
      extend_block(entry);
    }
    check_block();
    return violations_;
  }

private:
  [[gnu::cold]] void violated(rule broken, std::initializer_list<std::string_view> parts, int line = __builtin_LINE()) {
    violations_ |= 1U << broken;
    log_error({site_.path, site_.function, line}, parts);
  }

  // An entry that violates a rule, and the line that says so.
  struct place {
    uint32_t frequency;
    int line;

    place(uint32_t entry_frequency, int line_number = __builtin_LINE()) // NOLINT(google-explicit-constructor)
        : frequency(entry_frequency), line(line_number) {}
  };
  template <class... Parts> [[gnu::cold]] void violated_at(place at, rule broken, const Parts &...parts) {
    violated(broken, {"In frequency ", ravix_str_wifi_freq(at.frequency), ": ", parts...}, at.line);
  }

  void check_frequency(std::size_t index) {
    const uint32_t frequency = entries_[index].frequency;
    if (!ravix_frequency_is_primary(frequency)) {
      violated(INVALID_FREQ, {ravix_str_wifi_freq(frequency), " is not a valid primary frequency!"});
    }
    if (ravix_frequency_to_radio_band(frequency) != band_) {
      violated_at(frequency, RADIO_MISMATCH, "radio band is different to the radio band of the first frequency ",
                  ravix_str_wifi_freq(entries_.front().frequency), "!");
    }
    if (!ascends_) {
      check_duplicates(index);
    }
    if (index + 1 < entries_.size() && frequency > entries_[index + 1].frequency) {
      violated_at(frequency, INVALID_ORDER, "ascending order is violated, the following frequency ",
                  ravix_str_wifi_freq(entries_[index + 1].frequency), " is smaller!");
    }
  }

  void check_duplicates(std::size_t index) {
    const uint32_t frequency = entries_[index].frequency;
    for (const ravix_channel_entry_t &later : entries_.subspan(index + 1)) {
      if (later.frequency == frequency) {
        violated(DOUBLE_FREQUENCY,
                 {"There are two entries with frequency ", ravix_str_wifi_freq(frequency), " in the list!"});
      }
    }
  }

  void check_power(const ravix_channel_entry_t &entry) {
    if (entry.max_power != RAVIX_POWER_INVALID && (entry.max_power < 0 || entry.max_power > highest_power)) {
      violated_at(entry.frequency, INVALID_POWER, "maxregpower (", decimal(entry.max_power), ") is out of range!");
    }
  }

  void check_capabilities_and_state(const ravix_channel_entry_t &entry) {
    const uint32_t dfs = entry.capabilities & dfs_capabilities;
    if (dfs != 0 && ravix_frequency_to_radio_band(entry.frequency) != RAVIX_RADIO_BAND_5GHZ) {
      violated_at(entry.frequency, INVALID_DFS, "a DFS flag is set for a non 5GHz frequency!");
      return; // a mark that makes no sense would only bring lines that do not either
    }
    if (dfs == dfs_capabilities) {
      violated_at(entry.frequency, INVALID_DFS, "DFS and DFS_WEATHER are both set!");
    }
    if ((entry.capabilities & RAVIX_CHANNEL_CAP_HT20) == 0) {
      violated_at(entry.frequency, NO_HT20, "HT20 is not set!");
    }
    for (const state_rule &row : state_rules) {
      if ((entry.state & row.flag) != 0) {
        check_state_flag(entry, row, dfs != 0);
      }
    }
  }

  void check_state_flag(const ravix_channel_entry_t &entry, const state_rule &row, bool dfs) {
    if (row.dfs_only && !dfs) {
      violated_at(entry.frequency, STATE_FLAG_MISMATCH, ravix_str_channel_state(row.flag),
                  " is set on non DFS channel!");
    }
    const uint32_t companions = entry.state & row.forbidden;
    if (companions != 0) {
      violated_at(entry.frequency, STATE_FLAG_MISMATCH, ravix_str_channel_state(row.flag), " is set alongside of ",
                  ravix_str_channel_state(companions), "!");
    }
    if (row.flag == active && !has_primary_) {
      violated_at(entry.frequency, NO_PRIMARY_FLAG, "ACTIVE is set and PRIMARY is set nowhere!");
    }
    if (row.flag == active && dfs && (entry.state & dfs_clear) == 0) {
      violated_at(entry.frequency, ACTIVE_ON_NOT_CLEARED, "DFS_CLEAR not set on ACTIVE DFS channel!");
    }
    if (row.flag == pri_chan && (entry.state & active) == 0) {
      violated_at(entry.frequency, PRIMARY_WITHOUT_ACTIVE, "PRIMARY is set without ACTIVE!");
    }
  }

  // Takes an entry into the block of active and punctured channels.
  void extend_block(const ravix_channel_entry_t &entry) {
    if ((entry.state & (active | punctured)) != 0) {
      ++count_;
      lowest_ = lowest_ == 0 ? entry.frequency : lowest_;
      highest_ = std::max(highest_, entry.frequency);
      if (gap_ != 0) {
        violated_at(entry.frequency, ACTIVE_GAP, "a gap of channels marked as ACTIVE is detected!");
        gap_ = 0;
      }
    } else if (highest_ != 0 && gap_ == 0) {
      gap_ = entry.frequency;
    }
    if (lowest_ != 0) {
      if ((entry.state & punctured) != 0) {
        puncture_map_ |= next_subchannel_;
      }
      next_subchannel_ = static_cast<uint16_t>(next_subchannel_ << 1);
    }
    if ((entry.state & pri_chan) != 0) {
      if (primary_ == 0) {
        primary_ = entry.frequency;
      } else {
        violated_at(entry.frequency, MANY_PRIMARY_FLAGS, "PRIMARY is already set on another channel!");
      }
    }
  }

  void check_block() {
    if (primary_ == 0) {
      return;
    }
    if (primary_ == channel_14) {
      if (count_ >= 2) {
        violated(INVALID_ACTIVE, {"Channel 14 is set as primary and more than one channel is set as ACTIVE!"});
      }
      return;
    }
    if (band_ == RAVIX_RADIO_BAND_2GHZ) {
      if (std::ranges::find(active_counts_2ghz, count_) == std::end(active_counts_2ghz)) {
        violated(INVALID_ACTIVE, {decimal(count_), " is not an allowed number of active channels!"});
        return;
      }
      add_overhang();
    }
    check_channel();
  }

  // Gives the block its full extent where it runs over an end of the list.
  void add_overhang() {
    for (const overhang &row : overhangs) {
      const uint32_t distance = row.below ? primary_ - lowest_ : highest_ - primary_;
      if (distance != row.distance && (distance != row.far_distance || count_ != row.far_count)) {
        continue;
      }
      if (row.below) {
        if (lowest_ != entries_.front().frequency) {
          violated(INVALID_ACTIVE, {"Frequency below channel list is used, but lowest channel is not active!"});
        }
        lowest_ -= row.missing;
      } else {
        if (highest_ != entries_.back().frequency) {
          violated(INVALID_ACTIVE, {"Frequency above channel list is used, but highest channel is not active!"});
        }
        highest_ += row.missing;
      }
      return;
    }
  }

  // Checks that the block is a channel, and one that the primary channel is capable of.
  void check_channel() {
    const uint32_t extent = highest_ - lowest_;
    const uint16_t width =
        ravix_frequency_to_channel_width(band_ == RAVIX_RADIO_BAND_2GHZ ? extent : extent + width_20_khz);
    if (width == RAVIX_CHANNEL_WIDTH_INVALID) {
      violated(INVALID_ACTIVE, {"Cannot determine channel width from lowest ", decimal(lowest_), " kHz and highest ",
                                decimal(highest_), " kHz!"});
      return;
    }
    const ravix_channel_info_t channel = {primary_, lowest_ + extent / 2, width, puncture_map_};
    if (!ravix_channel_info_is_valid(&channel)) {
      violated(INVALID_CHANNEL_INFO, {"Created channel info from list is invalid: ", ravix_str_channel_info(&channel)});
    }
    const auto entry = std::ranges::find(entries_, primary_, &ravix_channel_entry_t::frequency);
    if (width > ravix_channel_capabilities_to_channel_width(entry->capabilities)) {
      violated(INVALID_ACTIVE, {"Bandwidth ", ravix_str_channel_width(width), " is not possible on frequency ",
                                ravix_str_wifi_freq(primary_), "!"});
    }
  }

  const call_site site_;
  const std::span<const ravix_channel_entry_t> entries_; // at least one
  const uint8_t band_;                                   // of the first entry
  const bool has_primary_;
  const bool ascends_; // so that no frequency can occur twice

  uint32_t violations_ = 0;

  // The block of active and punctured channels; 0: none yet.
  uint32_t lowest_ = 0, highest_ = 0;
  uint32_t count_ = 0;
  uint32_t gap_ = 0; // first entry after the block
  uint32_t primary_ = 0;
  uint16_t puncture_map_ = 0;
  uint16_t next_subchannel_ = 1; // bit of the map; none from the seventeenth entry on
};

void list_names(uint32_t violations, ravix_string_table_t &errors) {
  ravix_types_string_table_clear(&errors);
  const zel::ravix::name_list<rule> names = rule_names;
  for (std::size_t code = 0; code < names.count; ++code) {
    if ((violations >> code & 1) != 0) {
      const char *const name = names.name(code);
      ravix_types_string_table_add_entry(&errors, &name);
    }
  }
}

} // namespace

bool ravix_validate_channel_list(const ravix_channel_list_t *list, ravix_string_table_t *errors) {
  uint32_t violations = 0;
  if (list == nullptr || (list->count != 0 && list->data == nullptr)) {
    log_invalid_pointer(here, "obj");
    violations = 1U << INVALID_PTR;
  } else if (list->count == 0) {
    return true; // a caller's table stays as it is: there was nothing to judge
  } else {
    violations = channel_list_check(here, {list->data, list->count}).run();
  }
  if (errors != nullptr) {
    list_names(violations, *errors);
  }
  return violations == 0;
}
