#include "dialog/edits/texture_target.h"

#include "dialog/edits/active_effect.h"
#include "dialog/models/texture_matches.h"
#include "settings/ascii_text.h"
#include "settings/settings_access.h"
#include "textures/texture_load.h"
#include "textures/texture_path.h"

namespace tarnwick {
namespace {

using TextureName = char[kTextureNameSize];

TextureName& NameField(const LayerSlot& slot) {
  return *reinterpret_cast<TextureName*>(slot.fileName);
}

}  // namespace

std::string TextureTarget::Open(int tab) {
  const auto slot = ActiveSlot(tab, views_, layers_, settings_);
  tab_ = slot ? tab : kBasicTab;
  if (!slot) return {};
  kind_ = slot->kind;
  firstName_ = slot->Name();
  firstInvert_ = slot->layer->invert;
  return firstName_;
}

void TextureTarget::Load(std::string_view name, std::uint8_t invert) {
  const auto slot = ActiveSlot(tab_, views_, layers_, settings_);
  if (!slot) return;
  StoreTextureName(NameField(*slot), name);
  slot->layer->invert = invert;
  (void)LoadTexture(*slot->layer, render_, TexturePath(render_.textureFolder, slot->Name()));
}

TextureWork TextureTarget::Try(std::string_view name) {
  if (!IsOpen() || name.empty()) return {};
  Load(name, EqualIgnoringCase(name, kSolidTextureName) ? std::uint8_t{0} : firstInvert_);
  UpdateUseFlags(views_, settings_);
  return {.settingsChanged = true};
}

TextureWork TextureTarget::Accept(std::string_view name) {
  if (!IsOpen()) return {};
  const auto slot = ActiveSlot(tab_, views_, layers_, settings_);
  // What is selected has been tried by then, as a rule.
  const bool isNew = slot && !name.empty() && slot->Name() != name;
  if (isNew) Load(name, slot->layer->invert);
  tab_ = kBasicTab;
  return {
      .closeDrawer = true, .textureChosen = true, .settingsChanged = isNew, .clearProgress = true};
}

TextureWork TextureTarget::Cancel() {
  if (!IsOpen()) return {};
  const auto slot = ActiveSlot(tab_, views_, layers_, settings_);
  const bool isTried = slot && slot->Name() != firstName_;
  if (isTried) Load(firstName_, firstInvert_);
  tab_ = kBasicTab;
  return {.closeDrawer = true, .textureChosen = isTried, .settingsChanged = isTried};
}

}  // namespace tarnwick
