/**
 * @file
 * Validation of the channel list that a radio reports.
 */
#ifndef RAVIX_TYPES_VALIDATION_H
#define RAVIX_TYPES_VALIDATION_H

#include "ravix_types_common.h"
#include "ravix_types_radio_env.h"

#ifdef __cplusplus
extern "C" {
#endif

/** @addtogroup arithmetic
 *  @{ */

/**
 * Checks that a channel list is consistent in itself.
 *
 * The entries must be primary channels of one band in ascending order; their power limits, DFS marks and state flags
 * must fit together; one channel is primary; the active channels form one block without gaps, which together with the
 * primary and the punctured channels is a channel that the primary's capabilities allow. An empty list is consistent.
 *
 * The check goes on after a violation. Each violation is one log line of module "ravix" and sets a code; codes, in
 * ascending order:
 *
 * | Name | Violated rule |
 * |---|---|
 * | INVALID_PTR | There is a list. |
 * | INVALID_FREQ | Every frequency may be that of a primary channel. |
 * | RADIO_MISMATCH | All frequencies are of the band of the first one. |
 * | DOUBLE_FREQUENCY | No frequency occurs twice. |
 * | INVALID_ORDER | Frequencies ascend. |
 * | INVALID_POWER | A power limit is 0 to 40 dBm, or not known. |
 * | INVALID_DFS | A DFS mark is set in 5 GHz alone, and only one of the two. |
 * | NO_HT20 | Every channel is capable of 20 MHz. |
 * | STATE_FLAG_MISMATCH | State flags do not contradict each other or the lack of a DFS mark. |
 * | NO_PRIMARY_FLAG | Where a channel is active, one is primary. |
 * | ACTIVE_ON_NOT_CLEARED | An active DFS channel has been cleared. |
 * | PRIMARY_WITHOUT_ACTIVE | The primary channel is active. |
 * | ACTIVE_GAP | The active and the punctured channels are adjacent. |
 * | MANY_PRIMARY_FLAGS | At most one channel is primary. |
 * | INVALID_ACTIVE | The active block has the extent of a channel, and the primary channel's capabilities allow it. |
 * | INVALID_CHANNEL_INFO | Block, primary and punctured channels are a channel that exists. |
 *
 * @param list the list; the cost grows linearly with its length if it ascends
 * @param errors null, or a table that is cleared and receives the name of each violated rule once, in the order above.
 * An empty list leaves it as it is. Names for which no memory is left are missing from it; the result stays right.
 * @return true if no rule is violated
 */
RAVIX_API bool ravix_validate_channel_list(const ravix_channel_list_t *list, ravix_string_table_t *errors);

/** @} */

#ifdef __cplusplus
}
#endif

#endif
