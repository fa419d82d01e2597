/**
 * @file
 * Common values: the small records that all others embed, and tables of them.
 *
 * # The life-cycle of every record {#lifecycle}
 *
 * A record type `ravix_<name>_t` is handled through the same functions, named `ravix_types_<name>_<operation>`
 * (configuration records: `ravix_cfg_<name>_<operation>`):
 *
 * - `_create()` gives a new record in its empty state, or null when memory is exhausted.
 * - `_clone(old_obj)` gives a new deep copy, or null: null argument, memory exhausted, or a copy that fails.
 * - `_copy(src, dest)` makes `dest` a deep copy of `src`. What `dest` owned before is released. Mind the order of the
 *   arguments. All or nothing: on failure `dest` is empty. It is as it was only after a null argument, and where the
 *   record is itself a key or an SSID that is too long. Copying a record or table onto itself changes nothing and
 *   returns 0, or -22 with one log line if it could not be copied elsewhere either.
 * - `_clear(obj)` releases what the record owns and gives it its empty state: zero, null, or the value that the field's
 *   description names as "empty".
 * - `_free(obj)` clears the record and releases it. For records from `_create` and `_clone` only.
 * - `_compare(a, b)` orders two records by their fields in declared order: negative, 0 or positive. Only the sign
 *   counts. Null sorts before any record; two nulls are equal.
 *
 * `_clear` and `_free` accept null and never fail.
 *
 * **Flags.** A `bool` of a record is one octet: 0 is off, any other is on. A copy keeps the octet, and records are
 * ordered by it.
 *
 * **Padding.** What lies between fields is unspecified, but for a cleared ravix_cfg_auto_update_rule_t, all of which is
 * zero. So compare records by `_compare`, never as octets.
 *
 * **Ownership.** The caller owns what `_create` and `_clone` return. A record owns everything that its pointers refer
 * to, unless the field says otherwise; all of it comes from the platform allocator. Two records never share memory. A
 * record may also live on the stack or inside another structure: clear it once before its first use (or zero it and
 * clear it), and again when done.
 *
 * **Errors.** Operations that can fail return 0 for success, -22 (-EINVAL) for an invalid argument, -12 (-ENOMEM) when
 * memory is exhausted or an owned record could not be cloned, or the code of the nested operation that failed; or they
 * return null. Each failure writes one error-level line of log module "ravix" before it returns. Nothing throws, and
 * nothing aborts.
 *
 * **Threads.** No operation locks. A record may be used by one thread at a time, distinct records by any number.
 *
 * # Tables {#tables}
 *
 * A table `ravix_<name>_table_t` is a counted array that the table owns: `data` has exactly `count` elements and is
 * null when the table is empty; only after an addition that was refused an empty table may have an array, so clear
 * every table. Beside the operations above it has:
 *
 * - `_init(table, count)` releases what the table held and gives it `count` empty elements, which count: to be filled
 *   in place. 0, -22 or -12.
 * - `_create(count)` gives a new table that has been initialised so, or null.
 * - `_add_entry(table, entry)` appends a deep copy of the entry. The array grows by exactly one element, so a table
 *   whose size is known is better made by `_create(count)`. 0, -22 (also: 4294967295 entries reached), -12, or the code
 *   of the entry's copy. On failure the table has the entries that it had; after an entry that cannot be copied its
 *   array has room for one more, zero-filled, until the next addition.
 * - `_contains_entry(table, entry)` tells whether an element equals the entry, by a search from the start. Of a null
 *   argument: false and a log line.
 *
 * A table with a count and no array has no elements. `_init(table, 0)`, a copy into it and the addition of an entry
 * that cannot be copied make its count 0; `_clear` leaves its count alone; `_compare` orders it by its count, below a
 * table of as many elements.
 *
 * A table's `_copy` tests `src` for null before `dest`; a record's tests `dest` first.
 */
#ifndef RAVIX_TYPES_COMMON_H
#define RAVIX_TYPES_COMMON_H

#include <stdbool.h>
#include <stdint.h>

/** Marks what the library exports. */
#define RAVIX_API __attribute__((visibility("default")))

/** @defgroup common Common values
 *  Channel descriptions, addresses, keys, SSIDs, type-length-value elements, and tables of common values.
 *  @{ */

/** Octets of a MAC address. */
#define RAVIX_MAC_LEN 6
/** Octets of a UUID. */
#define RAVIX_UUID_LEN 16
/** Most octets of a key or passphrase (IEEE 802.11: a 256-bit key written as 64 hex digits). */
#define RAVIX_MAX_KEY_LEN 64
/** Most octets of an SSID (IEEE 802.11-2020, 9.4.2.2). */
#define RAVIX_MAX_SSID_LEN 32
/** Frequency in kHz that stands for "none". */
#define RAVIX_FREQUENCY_INVALID 0
/** Signed 16-bit dBm value that stands for "not known" or "no limit". */
#define RAVIX_POWER_INVALID INT16_MAX
/** 8-bit percentage, load, RCPI, RSNI or ANPI value that stands for "not known". */
#define RAVIX_MEASURE_INVALID UINT8_MAX
/** Index that stands for "none". */
#define RAVIX_INDEX_INVALID INT32_MIN
/** Time stamp of something that never happened, or has not been set. */
#define RAVIX_TIMESTAMP_INVALID INT64_MAX
/** Puncture map that construction writes first; never valid. */
#define RAVIX_PUNCTURE_MAP_INVALID 0xFFFF
/** The library's generic failure value, INT32_MIN + 1; distinct from every negative errno value. */
#define RAVIX_FAIL_GENERAL (INT32_MIN + 1)

#ifdef __cplusplus
extern "C" {
#endif

/** A MAC address: its six octets in the order in which they are sent. */
typedef uint8_t ravix_mac_t[RAVIX_MAC_LEN];

/** Description of a channel. Made and checked by the functions of ravix_types_util.h. Owns nothing. */
typedef struct ravix_channel_info {
  uint32_t primary_freq;  /**< Centre of the primary 20 MHz channel in kHz; 0: none. */
  uint32_t center_freq;   /**< Centre of the whole channel in kHz; that of the primary channel at 20 MHz. */
  uint16_t channel_width; /**< Width code, `RAVIX_CHANNEL_WIDTH_...`; 0: invalid. */
  uint16_t puncture_map;  /**< Bit i set: the i-th 20 MHz subchannel from the lower edge is punctured (802.11be). */
} ravix_channel_info_t;

/** Version of an IP address. */
enum ravix_ip_version {
  RAVIX_IP_VERSION_INVALID = 0, /**< No address. */
  RAVIX_IP_VERSION_4 = 1,       /**< IPv4. */
  RAVIX_IP_VERSION_6 = 2        /**< IPv6. */
};

/** IP address. Owns nothing. */
typedef struct ravix_ip_addr {
  uint8_t version;  /**< `RAVIX_IP_VERSION_4` or `_6`; anything else is no address. */
  uint8_t addr[16]; /**< Address in network byte order; IPv4 uses the first four octets, the rest stay zero. */
} ravix_ip_addr_t;

/** Key or passphrase. A secret: printers show "[SECRET]" in its place. Owns nothing. */
typedef struct ravix_key {
  uint8_t len;                        /**< Octets used, at most RAVIX_MAX_KEY_LEN; a longer key cannot be copied. */
  uint8_t key[RAVIX_MAX_KEY_LEN + 1]; /**< The octets; the one after the last is always 0. */
} ravix_key_t;

/** SSID: arbitrary octets, not necessarily text. Owns nothing. */
typedef struct ravix_ssid {
  uint8_t len;                          /**< Octets used, at most RAVIX_MAX_SSID_LEN; a longer one cannot be copied. */
  uint8_t ssid[RAVIX_MAX_SSID_LEN + 1]; /**< The octets; the one after the last is always 0. */
} ravix_ssid_t;

/** Type-length-value element. */
typedef struct ravix_tlv {
  uint8_t type;   /**< Element type. */
  uint8_t len;    /**< Octets at `value`. */
  uint8_t *value; /**< Owned buffer of exactly `len` octets; null when `len` is 0. */
} ravix_tlv_t;

/** Table of frequencies. */
typedef struct ravix_frequency_table {
  uint32_t count; /**< Number of elements. */
  uint32_t *data; /**< Owned array of frequencies in kHz; null when empty. */
} ravix_frequency_table_t;

/** Table of record identifiers. */
typedef struct ravix_id_table {
  uint32_t count; /**< Number of elements. */
  int32_t *data;  /**< Owned array of identifiers (`RAVIX_ID_...` for the reserved ones); null when empty. */
} ravix_id_table_t;

/** Table of MAC addresses. */
typedef struct ravix_mac_table {
  uint32_t count;    /**< Number of elements. */
  ravix_mac_t *data; /**< Owned array of addresses; null when empty. */
} ravix_mac_table_t;

/** Table of SSIDs. */
typedef struct ravix_ssid_table {
  uint32_t count;     /**< Number of elements. */
  ravix_ssid_t *data; /**< Owned array of SSIDs; null when empty. */
} ravix_ssid_table_t;

/** Table of texts. */
typedef struct ravix_string_table {
  uint32_t count; /**< Number of elements. */
  char **data;    /**< Owned array of owned, zero-terminated texts, each of which may be null; null when empty. */
} ravix_string_table_t;

/** Table of type-length-value elements. */
typedef struct ravix_tlv_table {
  uint32_t count;    /**< Number of elements. */
  ravix_tlv_t *data; /**< Owned array of elements; null when empty. */
} ravix_tlv_table_t;

/** @name Channel description
 *  Compared by primary frequency, centre, width and puncture map.
 *  @{ */
RAVIX_API ravix_channel_info_t *ravix_types_channel_info_create(void);
RAVIX_API ravix_channel_info_t *ravix_types_channel_info_clone(const ravix_channel_info_t *old_obj);
RAVIX_API int ravix_types_channel_info_copy(const ravix_channel_info_t *src, ravix_channel_info_t *dest);
RAVIX_API void ravix_types_channel_info_clear(ravix_channel_info_t *obj);
RAVIX_API void ravix_types_channel_info_free(ravix_channel_info_t *obj);
RAVIX_API int ravix_types_channel_info_compare(const ravix_channel_info_t *a, const ravix_channel_info_t *b);
/** @} */

/** @name IP address
 *  Compared by version, then by the octets that the version uses. Two addresses of version 0, or of an unknown version,
 *  never compare equal: the result is -1, even for an address and itself.
 *  @{ */
RAVIX_API ravix_ip_addr_t *ravix_types_ip_addr_create(void);
RAVIX_API ravix_ip_addr_t *ravix_types_ip_addr_clone(const ravix_ip_addr_t *old_obj);
RAVIX_API int ravix_types_ip_addr_copy(const ravix_ip_addr_t *src, ravix_ip_addr_t *dest);
RAVIX_API void ravix_types_ip_addr_clear(ravix_ip_addr_t *obj);
RAVIX_API void ravix_types_ip_addr_free(ravix_ip_addr_t *obj);
RAVIX_API int ravix_types_ip_addr_compare(const ravix_ip_addr_t *a, const ravix_ip_addr_t *b);
/** @} */

/** @name Key
 *  A key whose `len` exceeds RAVIX_MAX_KEY_LEN is refused by copy and clone (-22, `dest` untouched). Compared by
 * length, then by its octets.
 *  @{ */
RAVIX_API ravix_key_t *ravix_types_key_create(void);
RAVIX_API ravix_key_t *ravix_types_key_clone(const ravix_key_t *old_obj);
RAVIX_API int ravix_types_key_copy(const ravix_key_t *src, ravix_key_t *dest);
RAVIX_API void ravix_types_key_clear(ravix_key_t *obj);
RAVIX_API void ravix_types_key_free(ravix_key_t *obj);
RAVIX_API int ravix_types_key_compare(const ravix_key_t *a, const ravix_key_t *b);
/** @} */

/** @name SSID
 *  An SSID whose `len` exceeds RAVIX_MAX_SSID_LEN is refused by copy and clone (-22, `dest` untouched). Compared by
 *  length, then by its octets.
 *  @{ */
RAVIX_API ravix_ssid_t *ravix_types_ssid_create(void);
RAVIX_API ravix_ssid_t *ravix_types_ssid_clone(const ravix_ssid_t *old_obj);
RAVIX_API int ravix_types_ssid_copy(const ravix_ssid_t *src, ravix_ssid_t *dest);
RAVIX_API void ravix_types_ssid_clear(ravix_ssid_t *obj);
RAVIX_API void ravix_types_ssid_free(ravix_ssid_t *obj);
RAVIX_API int ravix_types_ssid_compare(const ravix_ssid_t *a, const ravix_ssid_t *b);
/** @} */

/** @name Type-length-value element
 *  Compared by type, length, and then by the `value` references themselves, not by what they refer to: two elements
 *  with buffers of their own are never equal unless both have none.
 *  @{ */
RAVIX_API ravix_tlv_t *ravix_types_tlv_create(void);
RAVIX_API ravix_tlv_t *ravix_types_tlv_clone(const ravix_tlv_t *old_obj);
RAVIX_API int ravix_types_tlv_copy(const ravix_tlv_t *src, ravix_tlv_t *dest);
RAVIX_API void ravix_types_tlv_clear(ravix_tlv_t *obj);
RAVIX_API void ravix_types_tlv_free(ravix_tlv_t *obj);
RAVIX_API int ravix_types_tlv_compare(const ravix_tlv_t *a, const ravix_tlv_t *b);
/** @} */

/** @name Frequency table
 *  Tables of one count are compared by the bytes of their arrays as they lie in memory, which is not numeric order.
 *  @{ */
RAVIX_API int ravix_types_frequency_table_init(ravix_frequency_table_t *table, unsigned count);
RAVIX_API ravix_frequency_table_t *ravix_types_frequency_table_create(unsigned count);
RAVIX_API ravix_frequency_table_t *ravix_types_frequency_table_clone(const ravix_frequency_table_t *old_obj);
RAVIX_API int ravix_types_frequency_table_copy(const ravix_frequency_table_t *src, ravix_frequency_table_t *dest);
RAVIX_API void ravix_types_frequency_table_clear(ravix_frequency_table_t *table);
RAVIX_API void ravix_types_frequency_table_free(ravix_frequency_table_t *table);
RAVIX_API int ravix_types_frequency_table_add_entry(ravix_frequency_table_t *table, const uint32_t *entry);
RAVIX_API bool ravix_types_frequency_table_contains_entry(const ravix_frequency_table_t *table, const uint32_t *entry);
RAVIX_API int ravix_types_frequency_table_compare(const ravix_frequency_table_t *a, const ravix_frequency_table_t *b);
/** @} */

/** @name Identifier table
 *  Tables of one count are compared by the bytes of their arrays as they lie in memory, which is not numeric order.
 *  @{ */
RAVIX_API int ravix_types_id_table_init(ravix_id_table_t *table, unsigned count);
RAVIX_API ravix_id_table_t *ravix_types_id_table_create(unsigned count);
RAVIX_API ravix_id_table_t *ravix_types_id_table_clone(const ravix_id_table_t *old_obj);
RAVIX_API int ravix_types_id_table_copy(const ravix_id_table_t *src, ravix_id_table_t *dest);
RAVIX_API void ravix_types_id_table_clear(ravix_id_table_t *table);
RAVIX_API void ravix_types_id_table_free(ravix_id_table_t *table);
RAVIX_API int ravix_types_id_table_add_entry(ravix_id_table_t *table, const int32_t *entry);
RAVIX_API bool ravix_types_id_table_contains_entry(const ravix_id_table_t *table, const int32_t *entry);
RAVIX_API int ravix_types_id_table_compare(const ravix_id_table_t *a, const ravix_id_table_t *b);
/** @} */

/** @name MAC address table
 *  @{ */
RAVIX_API int ravix_types_mac_table_init(ravix_mac_table_t *table, unsigned count);
RAVIX_API ravix_mac_table_t *ravix_types_mac_table_create(unsigned count);
RAVIX_API ravix_mac_table_t *ravix_types_mac_table_clone(const ravix_mac_table_t *old_obj);
RAVIX_API int ravix_types_mac_table_copy(const ravix_mac_table_t *src, ravix_mac_table_t *dest);
RAVIX_API void ravix_types_mac_table_clear(ravix_mac_table_t *table);
RAVIX_API void ravix_types_mac_table_free(ravix_mac_table_t *table);
RAVIX_API int ravix_types_mac_table_add_entry(ravix_mac_table_t *table, const ravix_mac_t *entry);
RAVIX_API bool ravix_types_mac_table_contains_entry(const ravix_mac_table_t *table, const ravix_mac_t *entry);
RAVIX_API int ravix_types_mac_table_compare(const ravix_mac_table_t *a, const ravix_mac_table_t *b);
/** @} */

/** @name SSID table
 *  @{ */
RAVIX_API int ravix_types_ssid_table_init(ravix_ssid_table_t *table, unsigned count);
RAVIX_API ravix_ssid_table_t *ravix_types_ssid_table_create(unsigned count);
RAVIX_API ravix_ssid_table_t *ravix_types_ssid_table_clone(const ravix_ssid_table_t *old_obj);
RAVIX_API int ravix_types_ssid_table_copy(const ravix_ssid_table_t *src, ravix_ssid_table_t *dest);
RAVIX_API void ravix_types_ssid_table_clear(ravix_ssid_table_t *table);
RAVIX_API void ravix_types_ssid_table_free(ravix_ssid_table_t *table);
RAVIX_API int ravix_types_ssid_table_add_entry(ravix_ssid_table_t *table, const ravix_ssid_t *entry);
RAVIX_API bool ravix_types_ssid_table_contains_entry(const ravix_ssid_table_t *table, const ravix_ssid_t *entry);
RAVIX_API int ravix_types_ssid_table_compare(const ravix_ssid_table_t *a, const ravix_ssid_table_t *b);
/** @} */

/** @name Text table
 *  An entry is passed as a pointer to the text's pointer, which may be null: null texts are kept, and equal each other.
 *  @{ */
RAVIX_API int ravix_types_string_table_init(ravix_string_table_t *table, unsigned count);
RAVIX_API ravix_string_table_t *ravix_types_string_table_create(unsigned count);
RAVIX_API ravix_string_table_t *ravix_types_string_table_clone(const ravix_string_table_t *old_obj);
RAVIX_API int ravix_types_string_table_copy(const ravix_string_table_t *src, ravix_string_table_t *dest);
RAVIX_API void ravix_types_string_table_clear(ravix_string_table_t *table);
RAVIX_API void ravix_types_string_table_free(ravix_string_table_t *table);
RAVIX_API int ravix_types_string_table_add_entry(ravix_string_table_t *table, const char *const *entry);
RAVIX_API bool ravix_types_string_table_contains_entry(const ravix_string_table_t *table, const char *const *entry);
RAVIX_API int ravix_types_string_table_compare(const ravix_string_table_t *a, const ravix_string_table_t *b);
/** @} */

/** @name Type-length-value table
 *  @{ */
RAVIX_API int ravix_types_tlv_table_init(ravix_tlv_table_t *table, unsigned count);
RAVIX_API ravix_tlv_table_t *ravix_types_tlv_table_create(unsigned count);
RAVIX_API ravix_tlv_table_t *ravix_types_tlv_table_clone(const ravix_tlv_table_t *old_obj);
RAVIX_API int ravix_types_tlv_table_copy(const ravix_tlv_table_t *src, ravix_tlv_table_t *dest);
RAVIX_API void ravix_types_tlv_table_clear(ravix_tlv_table_t *table);
RAVIX_API void ravix_types_tlv_table_free(ravix_tlv_table_t *table);
RAVIX_API int ravix_types_tlv_table_add_entry(ravix_tlv_table_t *table, const ravix_tlv_t *entry);
RAVIX_API bool ravix_types_tlv_table_contains_entry(const ravix_tlv_table_t *table, const ravix_tlv_t *entry);
RAVIX_API int ravix_types_tlv_table_compare(const ravix_tlv_table_t *a, const ravix_tlv_table_t *b);
/** @} */

#ifdef __cplusplus
}
#endif

/** @} */

#endif
