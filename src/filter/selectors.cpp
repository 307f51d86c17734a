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
constexpr std::int64_t kTileSide = 256;

// Both interfaces have to be there, and a reference has to come into being.
bool HostAnswersActions(host::SPBasicSuite* broker) {
  if (!DescriptorSuite(broker, host::kPSActionDescriptorSuite, 3)) return false;
  const ReferenceSuite references(broker, host::kPSActionReferenceSuite, 3);
  if (!references) return false;
  host::ActionReference* reference = nullptr;
  if (references->Make(&reference) != host::noErr || reference == nullptr) return false;
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
  const std::int64_t planes = record.planes + (record.maskData != nullptr ? 1 : 0);
  const auto tile = [](std::int64_t from, std::int64_t to) {
    return std::clamp<std::int64_t>(to - from, 0, kTileSide);
  };
  const std::int64_t worst = 2 * planes * tile(rect.top, rect.bottom) * tile(rect.left, rect.right);
  if (worst >= 0 && worst < record.maxSpace) record.maxSpace = static_cast<std::int32_t>(worst);
}

// Whatever happens, the host is not asked for more.
class RequestEnd {
 public:
  explicit RequestEnd(host::FilterRecord& record) : record_(record) {}
  ~RequestEnd() { EmptyRequest(record_); }
  RequestEnd(const RequestEnd&) = delete;
  RequestEnd& operator=(const RequestEnd&) = delete;

 private:
  host::FilterRecord& record_;
};

// The bridge to the render: one request for everything.
void StartProcessing(FilterGlobals& g) {
  host::FilterRecord& record = *g.gFilterRecord;
  const RequestEnd end(record);
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

void ReadUiFile(FilterGlobals& g, EffectSettings& settings) {
  if (g.folders.modulePath.empty()) return;
  LoadUiFile(g.folders.modulePath + kUiFileName, settings, g.ui);
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
  // it lies now, since it may have moved since then. If it has gone, the file's
  // other values count all the same.
  const bool readsUiFile = g.gParams != nullptr;
  g.HostHasActions = HostAnswersActions(g.gBasicSuite);
  if (HasSettings(g) && HasSession(g)) {
    if (LockBlocks(g) && readsUiFile) ReadUiFile(g, *g.gParams);
  } else {
    if (readsUiFile) {
      EffectSettings gone;
      ReadUiFile(g, gone);
    }
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
