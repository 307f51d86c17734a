#include <exception>
#include <new>

#include "filter/filter_globals.h"
#include "filter/float_state.h"
#include "filter/host_blocks.h"
#include "filter/plugin_main.h"
#include "filter/selectors.h"

namespace tarnwick {
namespace {

void RunHandler(std::int16_t selector, FilterGlobals& g) {
  switch (selector) {
    case host::filterSelectorAbout:
      return DoAbout(g);
    case host::filterSelectorParameters:
      return DoParameters(g);
    case host::filterSelectorPrepare:
      return DoPrepare(g);
    case host::filterSelectorStart:
      return DoStart(g);
    case host::filterSelectorContinue:
      return DoContinue(g);
    case host::filterSelectorFinish:
      return DoFinish(g);
    default:
      return;
  }
}

// Nothing may leave for the host: it is not built to catch it.
void RunGuarded(std::int16_t selector, FilterGlobals& g) {
  try {
    RunHandler(selector, g);
  } catch (const std::bad_alloc&) {
    *g.gResult = host::memFullErr;
  } catch (const HostServiceMissing&) {
    *g.gResult = host::errPlugInHostInsufficient;
  } catch (...) {
    *g.gResult = host::paramErr;
  }
  ReleaseSuite(g.gBasicSuite, g.accessSuite);
}

}  // namespace

void RunSelector(std::int16_t selector, void* record, std::intptr_t* data, std::int16_t* result) {
  if (record == nullptr || result == nullptr) return;
  const FloatState floats;
  // A host may hand in the word of an earlier call. What nobody handles leaves it.
  if (selector >= host::filterSelectorAbout && selector <= host::filterSelectorFinish) {
    *result = host::noErr;
  }
  FilterGlobals& g = Globals();
  g.gDataSlot = data;
  g.gResult = result;
  if (selector == host::filterSelectorAbout) {
    auto* const about = static_cast<host::AboutRecord*>(record);
    g.gFilterRecord = nullptr;
    g.gBasicSuite = about->sSPBasic;
    auto* const platform = static_cast<host::PlatformData*>(about->platformData);
    g.ownerWindow = platform != nullptr ? platform->hwnd : nullptr;
    RunGuarded(selector, g);
    return;
  }
  g.gFilterRecord = static_cast<host::FilterRecord*>(record);
  g.gBasicSuite = g.gFilterRecord->sSPBasic;
  const host::PlatformData* const platform = g.gFilterRecord->platformData;
  g.ownerWindow = platform != nullptr ? platform->hwnd : nullptr;
  if (g.gFilterRecord->bigDocumentData != nullptr) {
    g.gFilterRecord->bigDocumentData->PluginUsing32BitCoordinates = 1;
  }
  RunGuarded(selector, g);
  UnlockBlocks(g);
}

}  // namespace tarnwick
