/**
 * @file
 * Radio arithmetic: frequencies, channels, bands and widths; signal encodings; channel descriptions and clear channels.
 *
 * **Units.** A frequency is an unsigned number of kHz, 0 (RAVIX_FREQUENCY_INVALID) is none. A channel number is that of
 * IEEE 802.11, 0 is none. A width is one of `RAVIX_CHANNEL_WIDTH_...`, whose values are those of the channel capability
 * bits of the same width.
 *
 * **Failure.** The conversions are defined for every argument: what they do not know gives 0 or false, and nothing is
 * logged. Functions that return a status say what they log; a log line goes to module "ravix".
 *
 * **Threads.** Nothing here keeps state, allocates or locks. Only the text of a log line is made under the format lock,
 * so any number of threads may call these functions, as long as none writes the records that another one reads.
 */
#ifndef RAVIX_TYPES_UTIL_H
#define RAVIX_TYPES_UTIL_H

#include "ravix_types_common.h"
#include "ravix_types_enums.h"
#include "ravix_types_radio_env.h"

#ifdef __cplusplus
extern "C" {
#endif

/** @defgroup arithmetic Radio arithmetic
 *  What every party of the interface must compute in the same way.
 *  @{ */

/** @name Frequency, channel and band
 *  Operating classes of IEEE 802.11, Table E-4.
 *  @{ */

/**
 * Channel number of a frequency, without regard to whether a channel may be used there.
 *
 * A frequency off the channel grid gets the number of the channel below: 2483999 gives 15. Channel 2 of the 6 GHz band
 * (operating class 136) is found at 5935000, the 60 GHz channels 1 to 4 at 58320000 to 64800000.
 * @param frequency in kHz
 * @return the number; 0 outside the bands
 */
RAVIX_API uint32_t ravix_frequency_to_channel(uint32_t frequency);

/**
 * Radio band of a frequency.
 * @param frequency in kHz
 * @return `RAVIX_RADIO_BAND_...`; 0 outside the three bands, which includes 5330001 to 5489999 and all of 60 GHz
 */
RAVIX_API uint8_t ravix_frequency_to_radio_band(uint32_t frequency);

/**
 * Part of its band in which a frequency lies: `LOW` or `HIGH` of 5 GHz, `FULL` in the other bands.
 * @param frequency in kHz
 * @return `RAVIX_RADIO_SUB_BAND_...`; 0 outside the three bands
 */
RAVIX_API uint8_t ravix_frequency_to_radio_sub_band(uint32_t frequency);

/**
 * Radio band of a channel number, 2.4 GHz (1 to 14) or 5 GHz (36 to 177).
 *
 * Never 6 GHz: that band counts its channels from 1 again, so a number alone does not tell it.
 * @param channel channel number
 * @return `RAVIX_RADIO_BAND_...`; 0 for other numbers
 */
RAVIX_API uint8_t ravix_channel_to_radio_band(uint32_t channel);

/**
 * Centre frequency of a channel.
 *
 * The number is not checked against the band: channel 15 of 2.4 GHz gives 2482000, and the product wraps modulo 2^32.
 * @param channel channel number
 * @param radio_band `RAVIX_RADIO_BAND_...`
 * @return the frequency in kHz; 0 if the band is none of the three
 */
RAVIX_API uint32_t ravix_frequency_from_channel_and_band(uint32_t channel, uint32_t radio_band);

/**
 * The same as ravix_frequency_from_channel_and_band() with the arguments in the other order.
 * @param radio_band `RAVIX_RADIO_BAND_...`
 * @param channel channel number
 * @return the frequency in kHz; 0 if the band is none of the three
 */
RAVIX_API uint32_t ravix_radio_band_and_channel_to_frequency(uint32_t radio_band, uint32_t channel);

/**
 * Whether a frequency is the centre of a channel that may be the primary 20 MHz channel: channels 1 to 14 of 2.4 GHz;
 * 36 to 64, 100 to 144 and 149 to 177 of 5 GHz; 1, 5, ... 233 of 6 GHz.
 * @param frequency in kHz
 * @return true if it is
 */
RAVIX_API bool ravix_frequency_is_primary(uint32_t frequency);
/** @} */

/** @name Widths, capabilities and modes
 *  @{ */

/**
 * Width in kHz of a width code; 0 for a value that is none.
 * @param channel_width width code, `RAVIX_CHANNEL_WIDTH_...`
 * @return the width in kHz
 */
RAVIX_API uint32_t ravix_channel_width_to_frequency(uint16_t channel_width);

/**
 * Width code of a width in kHz; RAVIX_CHANNEL_WIDTH_INVALID unless it is exactly 20, 40, 80, 160 or 320 MHz.
 * @param width_khz width in kHz
 * @return the width code
 */
RAVIX_API uint16_t ravix_frequency_to_channel_width(uint32_t width_khz);

/**
 * The next wider width; 0 above 320 MHz and for a value that is no width.
 * @param channel_width width code, `RAVIX_CHANNEL_WIDTH_...`
 * @return its neighbour
 */
RAVIX_API uint16_t ravix_channel_width_higher(uint16_t channel_width);

/**
 * The next narrower width; 0 below 20 MHz and for a value that is no width.
 * @param channel_width width code, `RAVIX_CHANNEL_WIDTH_...`
 * @return its neighbour
 */
RAVIX_API uint16_t ravix_channel_width_lower(uint16_t channel_width);

/**
 * The widest width that a set of `RAVIX_CHANNEL_CAP_...` allows; 0 if it allows none.
 * @param capabilities set of `RAVIX_CHANNEL_CAP_...`
 * @return the width code
 */
RAVIX_API uint16_t ravix_channel_capabilities_to_channel_width(uint32_t capabilities);

/**
 * Whether a set of `RAVIX_CHANNEL_CAP_...` allows a width.
 *
 * Bits that stand for no width (DFS among them) never match. Of several widths ORed together one has to match.
 * @param capabilities set of `RAVIX_CHANNEL_CAP_...`
 * @param channel_width width code, `RAVIX_CHANNEL_WIDTH_...`
 * @return true if it does
 */
RAVIX_API bool ravix_channel_capabilities_match_width(uint32_t capabilities, uint16_t channel_width);

/**
 * Whether a set of `RAVIX_WLAN_MODE_...` makes sense: not empty, no unknown bit, and no mode of 5 GHz alone (11A, 11AC)
 * beside one of 2.4 GHz alone (11B, 11G).
 * @param wlan_mode set of `RAVIX_WLAN_MODE_...`
 * @return true if it does
 */
RAVIX_API bool ravix_wlan_mode_is_valid(uint32_t wlan_mode);

/**
 * The widest width that a set of `RAVIX_WLAN_MODE_...` can use; 0 if the set is not valid.
 * @param wlan_mode set of `RAVIX_WLAN_MODE_...`
 * @return the width code
 */
RAVIX_API uint16_t ravix_get_highest_channel_width_from_mode(uint32_t wlan_mode);
/** @} */

/** @name Signal encodings
 *  The 8-bit codes of measurement reports, in steps of half a dB, and linear power. The value 255, "not known"
 *  (RAVIX_MEASURE_INVALID), is not treated apart: test for it before decoding.
 *  @{ */

/**
 * Received channel power indicator (IEEE 802.11-2020, 9.4.2.37) to dBm: value / 2 - 110.
 * @param rcpi code
 * @return the power in dBm
 */
RAVIX_API float ravix_rcpi_val_to_dBm(uint8_t rcpi);

/**
 * dBm to received channel power indicator: 0 below -109.5 dBm, 220 from 0 dBm on and for NaN; never 255. A power so
 * little below 0 dBm that the sum with 110 rounds to 110 gives 220, too.
 * @param dBm power
 * @return the code
 */
RAVIX_API uint8_t dBm_to_ravix_rcpi_val(float dBm);

/**
 * Received signal to noise indicator (IEEE 802.11-2020, 9.4.2.40) to dB: value / 2 - 10.
 * @param rsni code
 * @return the ratio in dB
 */
RAVIX_API float ravix_rsni_val_to_dB(uint8_t rsni);

/**
 * dB to received signal to noise indicator: 0 below -10 dB, 254 from 117 dB on and for NaN; never 255.
 * @param dB ratio
 * @return the code
 */
RAVIX_API uint8_t dB_to_ravix_rsni_val(float dB);

/**
 * Average noise power indicator to dBm; coded as the RCPI is.
 * @param anpi code
 * @return the power in dBm
 */
RAVIX_API float ravix_anpi_val_to_dBm(uint8_t anpi);

/**
 * dBm to average noise power indicator; coded as the RCPI is.
 * @param dBm power
 * @return the code
 */
RAVIX_API uint8_t dBm_to_ravix_anpi_val(float dBm);

/**
 * Linear factor of a ratio in dB.
 * @param dB ratio
 * @return the factor, linear
 */
RAVIX_API float ravix_dB_to_factor(float dB);

/**
 * Power in mW of a power in dBm.
 * @param dBm power
 * @return the power in mW
 */
RAVIX_API float ravix_dBm_to_power_mW(float dBm);

/**
 * Signal to noise ratio in dB.
 * @param total_power signal and noise together, linear
 * @param noise_power the noise alone, linear, in the same unit
 * @return the ratio; FLT_MAX without noise, -FLT_MAX without a signal above the noise, NaN if an argument is NaN
 */
RAVIX_API float ravix_calculate_rsni_dB(float total_power, float noise_power);
/** @} */

/** @name Channel descriptions
 *  @{ */

/**
 * Makes the description of a channel.
 *
 * The primary channel and the width determine the channel, except where `ext_high` chooses: at 40 MHz in 2.4 GHz it
 * puts the second 20 MHz above the primary channel rather than below, and of two overlapping 320 MHz channels in 6 GHz
 * it takes the upper one.
 *
 * @param primary_freq centre of the primary 20 MHz channel in kHz
 * @param channel_width width code; 2.4 GHz has channels up to 40 MHz (channel 14: 20 MHz), 5 GHz up to 160 MHz
 * @param ext_high the side, see above; without effect elsewhere
 * @param puncture_map as in ravix_channel_info_t, see ravix_puncture_map_is_valid(); 0 below 80 MHz
 * @param out receives the description; on failure 0, 0, 0 and RAVIX_PUNCTURE_MAP_INVALID
 * @return true if there is such a channel; false if not, or if `out` is null. Logs nothing.
 */
RAVIX_API bool ravix_create_channel_info(uint32_t primary_freq, uint16_t channel_width, bool ext_high,
                                         uint16_t puncture_map, ravix_channel_info_t *out);

/**
 * The same as ravix_create_channel_info(), but tries the other side too where a 40 MHz channel in 2.4 GHz does not fit.
 * @param primary_freq, channel_width, ext_high, puncture_map, out as there
 * @return 0: made as asked; 1: made with the other side; RAVIX_FAIL_GENERAL with one log line: there is no such channel
 */
RAVIX_API int ravix_create_channel_info_auto(uint32_t primary_freq, uint16_t channel_width, bool ext_high,
                                             uint16_t puncture_map, ravix_channel_info_t *out);

/**
 * Whether a description is one that ravix_create_channel_info() makes. False for null. Logs nothing.
 * @param channel_info the description; may be null
 * @return true if it is
 */
RAVIX_API bool ravix_channel_info_is_valid(const ravix_channel_info_t *channel_info);

/**
 * The range of channel numbers, in steps of 5 MHz, between the edges of a channel; at the edges of a band it is cut.
 * @param channel_info the description
 * @param lowest receives the lowest number; 0 if the description is not valid
 * @param highest receives the highest number; 0 if the description is not valid
 * @return true if the description is valid; false if not, or if an argument is null (then nothing is written). Logs
 * nothing.
 */
RAVIX_API bool ravix_channel_info_to_lowest_and_highest_channel(const ravix_channel_info_t *channel_info,
                                                                uint32_t *lowest, uint32_t *highest);

/**
 * Whether a set of 20 MHz subchannels may be punctured (IEEE 802.11be).
 *
 * 0, nothing punctured, always may. Otherwise the map must be one of the patterns that the standard has for the width
 * of the channel, and must leave the primary channel alone.
 *
 * @param puncture_map as in ravix_channel_info_t
 * @param channel_info the channel; null: any width will do, and no primary channel is looked at. A record of width 0
 * counts as any width as well. A record whose width or primary channel makes no sense is reported by a log line
 * "ASSERT: ..." of the default logger; the answer is given all the same.
 * @return true if it may
 */
RAVIX_API bool ravix_puncture_map_is_valid(uint16_t puncture_map, const ravix_channel_info_t *channel_info);
/** @} */

/** @name Channels of a list
 *  Entries that do not have the capability for the width of the channel are passed over.
 *  @{ */

/**
 * Called for an entry of a channel list.
 * @param entry the entry; belongs to the list
 * @param context what the caller passed
 * @param frequency that of the entry
 */
typedef void (*ravix_channel_visitor_t)(const ravix_channel_entry_t *entry, void *context, uint32_t frequency);

/**
 * Calls a function for each entry of a list, in its order, that lies inside a channel, edges included.
 * @param chan_list the list
 * @param channel_info the channel
 * @param chan_check_fct what to call
 * @param context handed on to it; may be null
 * @return 0; -22 with a log line if `chan_list`, `channel_info` or `chan_check_fct` is null or the description not
 * valid
 */
RAVIX_API int ravix_channel_info_check_range(const ravix_channel_list_t *chan_list,
                                             const ravix_channel_info_t *channel_info,
                                             ravix_channel_visitor_t chan_check_fct, void *context);

/**
 * Whether no entry of a list that lies inside a channel has one of some state flags.
 * @param chan_list the list
 * @param channel_info the channel
 * @param state_mask set of `RAVIX_CHANNEL_STATE_...` to avoid
 * @param clear receives the answer; false on RAVIX_FAIL_GENERAL
 * @return 0; -22 with a log line if an argument is null; RAVIX_FAIL_GENERAL with a log line if the description is not
 * valid
 */
RAVIX_API int ravix_channel_is_clear(const ravix_channel_list_t *chan_list, const ravix_channel_info_t *channel_info,
                                     uint32_t state_mask, bool *clear);

/**
 * Finds the widest channel around a primary channel that is clear of some state flags.
 *
 * Begins with the widest width that the primary channel's entry is capable of and goes down. Where `ext_high` makes a
 * difference (see ravix_create_channel_info()), the side asked for is tried first, then the other one.
 *
 * @param chan_list the list
 * @param primary_freq centre of the primary channel in kHz; the list must have an entry for it
 * @param state_mask set of `RAVIX_CHANNEL_STATE_...` to avoid
 * @param ext_high the side that is tried first
 * @param max_width widest width to try; 0: no limit
 * @param channel_info receives the channel; all zero after every failure but that of a null argument, which leaves it
 * alone
 * @return 0; -2: not even the primary channel is clear; -22 with a log line: null argument, or no entry or no width for
 * the primary channel; -22 with two, the inner one first: no such channel at a width that the entry claims to be
 * capable of; RAVIX_FAIL_GENERAL with two: the list could not be examined
 */
RAVIX_API int ravix_get_max_clear_channel_info(const ravix_channel_list_t *chan_list, uint32_t primary_freq,
                                               uint32_t state_mask, bool ext_high, uint16_t max_width,
                                               ravix_channel_info_t *channel_info);
/** @} */

/** @} */

#ifdef __cplusplus
}
#endif

#endif
