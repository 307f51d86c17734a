#pragma once
#include "filter/filter_globals.h"

namespace tarnwick {

// The two blocks that the host keeps in handles. An error goes to *gResult.

// A new handle of the record's size, into FilterRecord::parameters or the slot.
void AllocateSettings(FilterGlobals& g);
void AllocateSession(FilterGlobals& g);

[[nodiscard]] bool HasSettings(const FilterGlobals& g);
[[nodiscard]] bool HasSession(const FilterGlobals& g);

// Locks both and sets gParams and gData. filterBadParameters when a block is
// missing, memFullErr when one cannot be locked; false then.
bool LockBlocks(FilterGlobals& g);
// Unlocks what is there.
void UnlockBlocks(FilterGlobals& g);

// No proxy; the next start shows the dialog.
void InitSessionData(SessionData& data);

}  // namespace tarnwick
