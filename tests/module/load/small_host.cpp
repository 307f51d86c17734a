#include "small_host.h"

#include <cstdlib>
#include <cstring>

#include "settings/effect_settings.h"

namespace tarnwick {
namespace {

constexpr std::int16_t kWidth = 96;
constexpr std::int16_t kHeight = 64;
constexpr std::int16_t kPlanes = 3;

// A block is a pointer to its memory. Nothing moves here.
host::Handle NewBlock(std::int32_t size) {
  auto* const master = static_cast<char**>(std::malloc(sizeof(char*)));
  *master = static_cast<char*>(std::calloc(1, static_cast<std::size_t>(size)));
  return master;
}
void DisposeBlock(host::Handle block) {
  std::free(*block);
  std::free(block);
}
char* LockBlock(host::Handle block, host::Boolean) {
  return *block;
}
void UnlockBlock(host::Handle) {}

// All pixels lie ready from the beginning.
host::OSErr AdvanceState() {
  return host::noErr;
}

}  // namespace

SmallHost::SmallHost() : input_(std::size_t{kWidth} * kHeight * kPlanes) {
  for (std::size_t i = 0; i < input_.size(); ++i) input_[i] = static_cast<std::uint8_t>(i * 7 >> 1);
  output_.assign(input_.size(), 0);
  handles_.handleProcsVersion = 1;
  handles_.numHandleProcs = 8;
  handles_.newProc = NewBlock;
  handles_.disposeProc = DisposeBlock;
  handles_.lockProc = LockBlock;
  handles_.unlockProc = UnlockBlock;
  record_.handleProcs = &handles_;
  record_.advanceState = AdvanceState;
  record_.imageMode = host::plugInModeRGBColor;
  record_.depth = 8;
  record_.planes = kPlanes;
  record_.imageSize = {kHeight, kWidth};
  record_.filterRect = {0, 0, kHeight, kWidth};
  record_.inData = input_.data();
  record_.outData = output_.data();
  record_.inRowBytes = record_.outRowBytes = kWidth * kPlanes;
}

SmallHost::~SmallHost() {
  if (record_.parameters != nullptr) DisposeBlock(record_.parameters);
  if (slot_ != 0) DisposeBlock(reinterpret_cast<host::Handle>(slot_));
}

void SmallHost::ChooseTextures() {
  auto* const settings = reinterpret_cast<EffectSettings*>(*record_.parameters);
  for (char* const name :
       {settings->WashFileName1, settings->WashFileName2, settings->SurfaceFileName1,
        settings->SurfaceFileName2, settings->BackgroundFileName}) {
    std::strcpy(name, kNoTextureName);
  }
  settings->WashUse = settings->SurfaceUse = settings->BackgroundUse = 0;
  if (washTexture_ != nullptr) {
    std::strcpy(settings->WashFileName1, washTexture_);
    settings->WashUse = 1;
    settings->WashType1 = 1;
    settings->WashStainColor1 = 0x0000FF;
  }
  // The session's first byte asks for the dialog.
  **reinterpret_cast<host::Handle>(slot_) = 0;
}

std::int16_t SmallHost::Run(EntryPoint* entryPoint) {
  for (const std::int16_t selector :
       {host::filterSelectorPrepare, host::filterSelectorStart, host::filterSelectorContinue}) {
    std::int16_t result = 0;
    entryPoint(selector, &record_, &slot_, &result);
    if (result != 0 || record_.parameters == nullptr || slot_ == 0) return result != 0 ? result : 1;
    if (selector == host::filterSelectorPrepare) ChooseTextures();
  }
  std::int16_t result = 0;
  entryPoint(host::filterSelectorFinish, &record_, &slot_, &result);
  // No registry, no complaint.
  return result == host::errPlugInHostInsufficient ? std::int16_t{0} : result;
}

}  // namespace tarnwick
