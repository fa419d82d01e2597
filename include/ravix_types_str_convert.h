/**
 * @file
 * Values as text, and text as values.
 *
 * # Formatters: ravix_str_... {#formatters}
 *
 * Every function returns a zero-terminated text that the caller neither owns nor frees. Fixed words ("INVALID", "ALL",
 * the names of values) are constants and stay valid. The texts of errno values that ravix_str_status() gives are the C
 * library's, with a lifetime of their own: see there. All other texts lie in one buffer of 4096 characters that the
 * whole process shares and that rotates: a text stays readable until later formatting, in any thread, comes round to
 * it. So several results can be arguments of one log line, but a result that is needed for longer has to be copied.
 *
 * A formatter never fails and never allocates (the C library may, for such an errno value). What has no text is shown
 * as the function's description says.
 *
 * **Null pointers.** Where a function takes a pointer, a null one gives "" and an error-level line "Invalid pointer
 * 'value'!" of log module "ravix".
 *
 * **Threads.** All functions may be called from any thread. One lock is held while a text is built, and never while a
 * log line is written. The text that was returned is protected by nothing: use or copy it at once.
 *
 * **Locale.** Results do not depend on the locale, but for ravix_str_ssid(), which asks isprint() what is printable,
 * and ravix_str_status(), whose errno texts are the C library's. ravix_str_timestamp() shows local time.
 *
 * # Parsers: ravix_..._from_str {#parsers}
 *
 * Every parser returns true when `output` has been set from the text. A failure is told by one error-level line of log
 * module "ravix":
 *
 * - a null argument: "Invalid pointer 'str_param'!" or "Invalid pointer 'output'!"; `output` is untouched;
 * - an empty text: "str_param is empty!"; `output` is untouched;
 * - any other text that is not accepted: "Invalid parameter value '<text>'!"; `output` is 0.
 *
 * Only the first 127 characters of a text count. Numbers are decimal, without blanks, "+" or anything after them. Names
 * are those that the formatters print, in any letter case, sentinels ("invalid_max") included. In a parser that knows
 * names a text that begins with "-" is a name, never a negative number. A single digit is stored as it is, even if it
 * is no value of the enumeration (only ravix_enabled_from_str() refuses all but "0" and "1"). Parsers may be called
 * from any thread, take no lock and do not depend on the locale.
 */
#ifndef RAVIX_TYPES_STR_CONVERT_H
#define RAVIX_TYPES_STR_CONVERT_H

#include "ravix_types_common.h"
#include "ravix_types_enums.h"

#include <stdbool.h>
#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

/** @defgroup text Text */

/** @defgroup str_values Text of measures and addresses
 *  @ingroup text
 *  @{ */

/** "<n> kHz", or "INVALID" for 0. */
RAVIX_API const char *ravix_str_frequency(uint32_t frequency);
/** Frequency in kHz as "<MHz> MHz (<channel>)", e.g. "2412 MHz (  1)"; the number is four characters wide and the
 *  channel three. A frequency without a channel number is shown as by ravix_str_frequency(). */
RAVIX_API const char *ravix_str_wifi_freq(uint32_t frequency);
/** "<n> kbit/s". */
RAVIX_API const char *ravix_str_bitrate(uint32_t bitrate);
/** "<n> dBm", or "INVALID" for RAVIX_POWER_INVALID. */
RAVIX_API const char *ravix_str_power(int32_t power);
/** "<n>%", "INVALID" for 255 (RAVIX_MEASURE_INVALID), or "<invalid value '<n>'>" for anything else above 100. */
RAVIX_API const char *ravix_str_percentage(uint32_t percentage);
/** Code of an average noise power indicator as a number, or "INVALID" for 255. Not converted to dBm. */
RAVIX_API const char *ravix_str_anpi(uint8_t anpi);
/** Code of a received channel power indicator, as ravix_str_anpi(). */
RAVIX_API const char *ravix_str_rcpi(uint8_t rcpi);
/** Code of a received signal-to-noise indicator, as ravix_str_anpi(). */
RAVIX_API const char *ravix_str_rsni(uint8_t rsni);
/** Index as a number, or "INVALID" for RAVIX_INDEX_INVALID. */
RAVIX_API const char *ravix_str_index(int32_t index);
/** Identifier of a record as a number, or "UNSPECIFIED", "NONE", "ALL", "INVALID" for the reserved ones
 *  (`RAVIX_ID_...`). */
RAVIX_API const char *ravix_str_id(int32_t id);
/** Time stamp in milliseconds of the steady clock, as the local date and time that it stands for now and the stamp
 *  itself in seconds: "16.11.2026 04:40:29/[12345.678]"; only "[12345.678]" when there is no such date. "" for
 *  RAVIX_TIMESTAMP_INVALID. Both numbers of a negative stamp carry their sign: -1500 is "[-1.-500]". */
RAVIX_API const char *ravix_str_timestamp(int64_t timestamp);
/** The bits of a value as "0" and "1", highest first, e.g. "00000101". */
RAVIX_API const char *ravix_str_bitfield_8(uint8_t value);
/** @copydoc ravix_str_bitfield_8 */
RAVIX_API const char *ravix_str_bitfield_16(uint16_t value);
/** @copydoc ravix_str_bitfield_8 */
RAVIX_API const char *ravix_str_bitfield_32(uint32_t value);
/** @copydoc ravix_str_bitfield_8 */
RAVIX_API const char *ravix_str_bitfield_64(uint64_t value);
/** IPv4 as "192.0.2.1"; IPv6 as its eight groups in lower-case hexadecimal without leading zeros and without "::";
 *  "<Invalid IP version: <n>>" for any other version. */
RAVIX_API const char *ravix_str_ip_addr(const ravix_ip_addr_t *value);
/** Six octets (RAVIX_MAC_LEN) as "00:1A:2B:3C:4D:5E". */
RAVIX_API const char *ravix_str_mac(const uint8_t *value);
/** Sixteen octets (RAVIX_UUID_LEN) as "00112233-4455-6677-8899-AABBCCDDEEFF". */
RAVIX_API const char *ravix_str_uuid(const uint8_t *value);
/**
 * SSID as "'<text>' (len=<n>)", with a blank for each unprintable octet. With `hex_if_unprintable`, an SSID that has
 * an unprintable octet is shown as "'<text>'/[ 0a 6f ] (len=<n>)". The length shown is the one stored, even one beyond
 * RAVIX_MAX_SSID_LEN, at which the text is cut. The log line for a null pointer names "ravix_str_ssid_impl".
 * @param value the SSID
 * @param hex_if_unprintable also as hexadecimal where it is not printable
 * @return its text, see @ref formatters
 */
RAVIX_API const char *ravix_str_ssid(const ravix_ssid_t *value, bool hex_if_unprintable);
/** Channel description as "<primary MHz>/<centre MHz>/<width>/<puncture map>/<lowest>-<highest channel>", e.g.
 *  "5180/5210/ 80/0000/ 34- 50". The width is "INV" when its code is none; the two channel numbers are 0 when
 *  ravix_channel_info_is_valid() refuses the description. */
RAVIX_API const char *ravix_str_channel_info(const ravix_channel_info_t *value);

/** @} */

/** @defgroup str_names Names of values
 *  @ingroup text
 *  Each function gives the name of a value, as the constants' own names end, or "<invalid value: <n>>".
 *  @{ */

/** Result code, `RAVIX_STATUS_...`. Any other value is taken as a negative errno value and shown as strerror() does: by
 *  a text of the C library's. It may be valid only until this thread's next call with such a value, or of strerror(),
 *  and no longer than the thread; so not two of them in one printf(), but a copy of the first. */
RAVIX_API const char *ravix_str_status(int32_t status);
/** "OFF" for 0 and "ON" for any other value. */
RAVIX_API const char *ravix_str_enabled(uint32_t enabled);
/** `RAVIX_DEVICE_CLASS_...` */
RAVIX_API const char *ravix_str_device_class(uint32_t value);
/** `RAVIX_ENCRYPTION_...` */
RAVIX_API const char *ravix_str_encryption(uint32_t value);
/** `RAVIX_ENCRYPTION_AKM_...` */
RAVIX_API const char *ravix_str_encryption_akm(uint32_t value);
/** `RAVIX_ENCRYPTION_CIPHER_SUITE_...` */
RAVIX_API const char *ravix_str_encryption_cipher_suite(uint32_t value);
/** `RAVIX_ENCRYPTION_GROUP_MGMT_CIPHER_...` */
RAVIX_API const char *ravix_str_encryption_group_mgmt_cipher(uint32_t value);
/** `RAVIX_PMF_MODE_...` */
RAVIX_API const char *ravix_str_pmf_mode(uint32_t value);
/** `RAVIX_PWE_MODE_...` */
RAVIX_API const char *ravix_str_pwe_mode(uint32_t value);
/** `RAVIX_RADIO_BAND_...`: "2.4 GHz", "5 GHz", "6 GHz" */
RAVIX_API const char *ravix_str_radio_band(uint32_t value);
/** `RAVIX_RADIO_SUB_BAND_...` */
RAVIX_API const char *ravix_str_radio_sub_band(uint32_t value);
/** `RAVIX_MAC_ACCESS_TYPE_...` */
RAVIX_API const char *ravix_str_mac_access_type(uint32_t value);
/** `RAVIX_SIMULATED_EVENT_TYPE_...` */
RAVIX_API const char *ravix_str_simulated_event_type(uint32_t value);
/** `RAVIX_ROLE_OPMODE_...` */
RAVIX_API const char *ravix_str_role_opmode(uint32_t value);
/** `RAVIX_STATION_TYPE_...` */
RAVIX_API const char *ravix_str_station_type(uint32_t value);
/** `RAVIX_STA_STATE_...` */
RAVIX_API const char *ravix_str_sta_state(uint32_t value);
/** `RAVIX_SPECIAL_HANDLING_TRIGGER_...` */
RAVIX_API const char *ravix_str_special_handling_trigger(uint32_t value);
/** `RAVIX_SECURITY_...` */
RAVIX_API const char *ravix_str_security(uint32_t value);
/** `RAVIX_ROLE_STATE_...` */
RAVIX_API const char *ravix_str_role_state(uint32_t value);
/** `RAVIX_RADAR_TYPE_...` */
RAVIX_API const char *ravix_str_radar_type(uint32_t value);
/** `RAVIX_EVENT_...` */
RAVIX_API const char *ravix_str_event(uint32_t value);
/** `RAVIX_DEVICE_OPMODE_...` */
RAVIX_API const char *ravix_str_device_opmode(uint32_t value);
/** `RAVIX_CONNECT_STATUS_...` */
RAVIX_API const char *ravix_str_connect_status(int32_t value);
/** `RAVIX_CONNECT_METHOD_...`; a negative value is shown as an unsigned number. */
RAVIX_API const char *ravix_str_connect_method(int32_t value);
/** `RAVIX_CHANNEL_WIDTH_...`: "INVALID", "20 MHz" ... "320 MHz" */
RAVIX_API const char *ravix_str_channel_width(uint32_t value);
/** `RAVIX_CHANNEL_CHANGE_REASON_...` */
RAVIX_API const char *ravix_str_channel_change_reason(uint32_t value);
/** `RAVIX_PARAM_ID_...` */
RAVIX_API const char *ravix_str_param_id(uint32_t value);

/** @} */

/** @defgroup str_flags Names of flags
 *  @ingroup text
 *  Each function lists the flags of a set, e.g. "[ 11A 11N ]"; "[ ]" for none. Bits without a name are left out.
 *  @{ */

/** `RAVIX_CHANNEL_CAP_...` */
RAVIX_API const char *ravix_str_channel_capabilities(uint32_t value);
/** `RAVIX_WLAN_MODE_...` */
RAVIX_API const char *ravix_str_wlan_mode(uint32_t value);
/** `RAVIX_CHANNEL_USER_FLAG_...` */
RAVIX_API const char *ravix_str_channel_user_flags(uint32_t value);
/** `RAVIX_EVENT_LOG_CONTROL_...` */
RAVIX_API const char *ravix_str_event_log_control(uint32_t value);
/** `RAVIX_MLO_MODE_...` */
RAVIX_API const char *ravix_str_mlo_mode(uint32_t value);
/** `RAVIX_FEATURE_...` */
RAVIX_API const char *ravix_str_features(uint64_t value);
/** `RAVIX_CHANNEL_STATE_...` */
RAVIX_API const char *ravix_str_channel_state(uint32_t value);
/** `RAVIX_CAPABILITY_...`, grouped by topic rather than by bit. */
RAVIX_API const char *ravix_str_capabilities(uint32_t value);

/** @} */

/** @defgroup from_str Values from text
 *  @ingroup text
 *  @{ */

/** Six octets as two hexadecimal digits each, separated by ":" or by "-", or not at all. Reads as sscanf() with
 *  "%02hhx" does: an octet may also be one digit, or have a blank before it, and text after the last octet is ignored.
 *  On failure `output` may hold some octets of the text; only null arguments are logged. */
RAVIX_API bool ravix_mac_from_str(const char *str_param, uint8_t *output);
/** Sixteen octets as ravix_str_uuid() prints them, in either letter case; otherwise as ravix_mac_from_str(). */
RAVIX_API bool ravix_uuid_from_str(const char *str_param, uint8_t *output);
/** "ON", "OFF", "1" or "0". */
RAVIX_API bool ravix_enabled_from_str(const char *str_param, bool *output);
/** Name or number of `RAVIX_SIMULATED_EVENT_TYPE_...` */
RAVIX_API bool ravix_simulated_event_type_from_str(const char *str_param, uint8_t *output);
/** Name or number of `RAVIX_ROLE_OPMODE_...` */
RAVIX_API bool ravix_role_opmode_from_str(const char *str_param, uint8_t *output);
/** Name or number of `RAVIX_CONNECT_METHOD_...` */
RAVIX_API bool ravix_connect_method_from_str(const char *str_param, int32_t *output);
/** A number from 0 to 2147483647, or the name of one of `RAVIX_CONNECT_SESSION_ID_...` */
RAVIX_API bool ravix_connect_session_id_from_str(const char *str_param, int32_t *output);
/** A number from -2147483648 to 2147483647, or one of "INVALID", "ALL", "NONE" and "UNSPECIFIED" in upper case. */
RAVIX_API bool ravix_id_from_str(const char *str_param, int32_t *output);
/** Frequency in kHz: a number from 0 to 4294967295. */
RAVIX_API bool ravix_frequency_from_str(const char *str_param, uint32_t *output);

/** @} */

#ifdef __cplusplus
}
#endif

#endif
