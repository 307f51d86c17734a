#include "filter/selectors.h"

#include <algorithm>

#include "environment/platform_calls.h"
#include "filter/filter_windows.h"
#include "filter/host_blocks.h"
#include "filter/host_rects.h"
#include "filter/host_suites.h"
#include "filter/render_effects.h"
#include "filter/scripting.h"

namespace tarnwick {
namespace {

// The largest tile that the hint to the host reckons with.
constexpr std::int32_t kTileSide = 256;

// Both interfaces have to be there, and a reference has to come into being.
bool HostAnswersActions(host::SPBasicSuite* broker) {
  const DescriptorSuite descriptors(broker, host::kPSActionDescriptorSuite, 3);
  if (!descriptors) return false;
  const ReferenceSuite references(broker, host::kPSActionReferenceSuite, 3);
  if (!references) return false;
  host::ActionReference* reference = nullptr;
  if (references->Make(&reference) != host::noErr) return false;
  references->Free(reference);
  return true;
}

void InitBlocks(FilterGlobals& g) {
  const MadeBlocks made = MakeMissingBlocks(g);
  if (*g.gResult != host::noErr || !LockBlocks(g)) return DropBlocks(g, made);
  InitSettingsToDefaults(*g.gParams, g.session);
  InitSessionData(*g.gData);
}

void LowerMaxSpace(host::FilterRecord& record) {
  const Rect rect = GetFilterRect(record);
  const std::int32_t planes = record.planes + (record.maskData != nullptr ? 1 : 0);
  const std::int32_t worst =
      2 * planes * std::min(rect.Height(), kTileSide) * std::min(rect.Width(), kTileSide);
  record.maxSpace = std::min(record.maxSpace, worst);
}

// The bridge to the render: one request for everything.
void StartProcessing(FilterGlobals& g) {
  host::FilterRecord& record = *g.gFilterRecord;
  record.inLoPlane = record.outLoPlane = 0;
  record.inHiPlane = record.outHiPlane = static_cast<std::int16_t>(record.planes - 1);
  InitPaths(g);
  const Rect rect = GetFilterRect(record);
  SetInRect(record, rect);
  SetOutRect(record, rect);
  SetMaskRect(record, rect);
  record.inputRate = host::kFixedOne;
  record.maskRate = host::kFixedOne;
  *g.gResult =
      record.advanceState != nullptr ? record.advanceState() : host::errPlugInHostInsufficient;
  if (*g.gResult == host::noErr) RenderEffects(g);
  EmptyRequest(record);
}

// True when the run is to go on.
bool AskUser(FilterGlobals& g) {
  if (g.gParams->ApplyToAll == 1 && g.gParams->ApplyToAllFirst == 0) {
    // A later picture of a run that was confirmed at its first one.
    g.DialogActive = 0;
    return true;
  }
  FilterWindows* const windows = TheFilterWindows();
  const bool accepted = windows == nullptr || windows->ShowMainDialog(g);
  *g.gResult = host::noErr;
  return accepted;
}

}  // namespace

void InitPaths(FilterGlobals& g) {
  g.folders = FoldersOf(ModuleFileName());
}

std::string UiFilePath(const FilterGlobals& g) {
  return g.folders.modulePath + kUiFileName;
}

void DoAbout(FilterGlobals& g) {
  InitPaths(g);
  FilterWindows* const windows = TheFilterWindows();
  if (windows != nullptr) windows->ShowAboutBox(g);
}

void DoParameters(FilterGlobals& g) {
  const MadeBlocks made = MakeMissingBlocks(g);
  if (*g.gResult != host::noErr || !LockBlocks(g)) return DropBlocks(g, made);
  if (made.settings) InitSettingsToDefaults(*g.gParams, g.session);
  InitSessionData(*g.gData);
}

void DoPrepare(FilterGlobals& g) {
  InitPaths(g);
  // Only where an earlier selector has locked the settings; and into the block as
  // it lies now, since it may have moved or gone since then.
  const bool readsUiFile = g.gParams != nullptr;
  g.HostHasActions = HostAnswersActions(g.gBasicSuite);
  if (HasSettings(g) && HasSession(g)) {
    if (LockBlocks(g) && readsUiFile) LoadUiFile(UiFilePath(g), *g.gParams, g.ui);
  } else {
    InitBlocks(g);
  }
  g.gFilterRecord->bufferSpace = 0;
  LowerMaxSpace(*g.gFilterRecord);
}

void DoStart(FilterGlobals& g) {
  if (!LockBlocks(g)) return;
  EffectSettings& settings = *g.gParams;
  ReadRegistryParameters(g);
  const std::int16_t amount = settings.Amount;
  const std::uint16_t disposition = settings.Disposition;
  const std::uint8_t ignoreSelection = settings.IgnoreSelection;
  bool displayDialog = false;
  const host::OSErr scripted = ReadScriptParameters(g, displayDialog);
  bool goesOn = true;
  if (scripted == host::noErr && displayDialog) goesOn = AskUser(g);
  g.gData->queryForParameters = 0;
  if (!goesOn) {
    settings.Disposition = disposition;
    settings.Amount = amount;
    settings.IgnoreSelection = ignoreSelection;
    *g.gResult = host::userCanceledErr;
    return;
  }
  StartProcessing(g);
}

void DoContinue(FilterGlobals& g) {
  EmptyRequest(*g.gFilterRecord);
}

void DoFinish(FilterGlobals& g) {
  if (!LockBlocks(g)) return;
  // Whatever the outcome was: a cancelled run's settings are the last used too.
  (void)WriteScriptParameters(g);
  (void)WriteRegistryParameters(g);
}

}  // namespace tarnwick
