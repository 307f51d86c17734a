#include "filter/host_blocks.h"

namespace tarnwick {
namespace {

using host::Handle;

Handle NewBlock(const FilterGlobals& g, std::size_t bytes) {
  const host::HandleProcs* const procs = g.gFilterRecord->handleProcs;
  if (procs == nullptr || procs->newProc == nullptr) return nullptr;
  return procs->newProc(static_cast<std::int32_t>(bytes));
}

char* Lock(const FilterGlobals& g, Handle handle) {
  const host::HandleProcs* const procs = g.gFilterRecord->handleProcs;
  return procs == nullptr || procs->lockProc == nullptr ? nullptr : procs->lockProc(handle, 1);
}

void Unlock(const FilterGlobals& g, Handle handle) {
  const host::HandleProcs* const procs = g.gFilterRecord->handleProcs;
  if (procs != nullptr && procs->unlockProc != nullptr) procs->unlockProc(handle);
}

void Dispose(const FilterGlobals& g, Handle handle) {
  const host::HandleProcs* const procs = g.gFilterRecord->handleProcs;
  if (procs != nullptr && procs->disposeProc != nullptr) procs->disposeProc(handle);
}

Handle SessionHandle(const FilterGlobals& g) {
  // The slot is the host's: it keeps the handle as a number.
  return reinterpret_cast<Handle>(*g.gDataSlot);  // NOLINT(performance-no-int-to-ptr)
}

}  // namespace

MadeBlocks MakeMissingBlocks(FilterGlobals& g) {
  MadeBlocks made;
  if (g.gDataSlot == nullptr) {
    *g.gResult = host::filterBadParameters;
    return made;
  }
  if (!HasSettings(g)) {
    g.gFilterRecord->parameters = NewBlock(g, sizeof(EffectSettings));
    made.settings = HasSettings(g);
    if (!made.settings) *g.gResult = host::memFullErr;
  }
  if (!HasSession(g)) {
    *g.gDataSlot = reinterpret_cast<std::intptr_t>(NewBlock(g, sizeof(SessionData)));
    made.session = HasSession(g);
    if (!made.session) *g.gResult = host::memFullErr;
  }
  return made;
}

void DropBlocks(FilterGlobals& g, const MadeBlocks& made) {
  if (made.settings) {
    Dispose(g, g.gFilterRecord->parameters);
    g.gFilterRecord->parameters = nullptr;
  }
  if (made.session) {
    Dispose(g, SessionHandle(g));
    *g.gDataSlot = 0;
  }
}

bool HasSettings(const FilterGlobals& g) {
  return g.gFilterRecord->parameters != nullptr;
}

bool HasSession(const FilterGlobals& g) {
  return g.gDataSlot != nullptr && *g.gDataSlot != 0;
}

bool LockBlocks(FilterGlobals& g) {
  if (!HasSettings(g) || !HasSession(g)) {
    *g.gResult = host::filterBadParameters;
    return false;
  }
  auto* const settings = reinterpret_cast<EffectSettings*>(Lock(g, g.gFilterRecord->parameters));
  auto* const data = reinterpret_cast<SessionData*>(Lock(g, SessionHandle(g)));
  g.gParams = settings;
  g.gData = data;
  if (settings == nullptr || data == nullptr) {
    *g.gResult = host::memFullErr;
    return false;
  }
  return true;
}

void UnlockBlocks(FilterGlobals& g) {
  if (HasSession(g)) Unlock(g, SessionHandle(g));
  if (HasSettings(g)) Unlock(g, g.gFilterRecord->parameters);
}

void InitSessionData(SessionData& data) {
  data.proxyTop = data.proxyLeft = data.proxyBottom = data.proxyRight = 0;
  data.queryForParameters = 1;
}

}  // namespace tarnwick
