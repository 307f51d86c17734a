#pragma once
#include "filter/filter_globals.h"

namespace tarnwick {

// The two blocks that the host keeps in handles. An error goes to *gResult.

// Which of them a call has made. They hold nothing yet.
struct MadeBlocks {
  bool settings = false;
  bool session = false;
};

// A new handle of the record's size into FilterRecord::parameters and into the
// slot, where there is none.
[[nodiscard]] MadeBlocks MakeMissingBlocks(FilterGlobals& g);
// Gives back what could be made but not filled: a later call would take what it
// holds for settings.
void DropBlocks(FilterGlobals& g, const MadeBlocks& made);

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
