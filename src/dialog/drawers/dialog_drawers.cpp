#include "dialog/drawers/dialog_drawers.h"

#include <commctrl.h>

#include <new>
#include <utility>
#include <vector>

#include "base/native_path.h"
#include "dialog/drawers/drawer_ids.h"
#include "dialog/edits/active_effect.h"
#include "dialog/edits/detail_look.h"
#include "dialog/models/drawer_panel.h"
#include "dialog/picker/texture_picker.h"
#include "environment/platform_calls.h"
#include "presets/color_list.h"
#include "presets/color_preset.h"
#include "textures/texture_set_table.h"
#include "textures/texture_thumbnail.h"

namespace tarnwick {
namespace {

constexpr float kFullRelief = 150.0F;

CellTarget CellTargetOf(LayerKind kind) {
  switch (kind) {
    case LayerKind::kBackground:
      return CellTarget::kBackground;
    case LayerKind::kSurface:
      return CellTarget::kSurface;
    case LayerKind::kWash:
      break;
  }
  return CellTarget::kWash;
}

}  // namespace

DialogDrawers::DialogDrawers(FilterGlobals& g, const EffectViews& views, LivePreview& preview,
                             PresetLibrary& presets, DialogDrawerHooks hooks)
    : g_(g),
      views_(views),
      preview_(preview),
      presets_(presets),
      hooks_(std::move(hooks)),
      texture_(*g.gParams, g.layers, g.render, views),
      color_(*g.gParams, PresetsOf(g), g.layers, g.render,
             [this](std::string_view name, PresetKind kind) {
               return presets_.LoadPreset(name, kind);
             }),
      cellPreview_(g, preview, g.folders.dataFolder) {}

DialogDrawers::~DialogDrawers() {
  textures_.reset();
  colors_.reset();
  if (panel_ != nullptr) DeleteObject(panel_);
}

void DialogDrawers::Bar::Report(int done, int total) {
  if (window == nullptr) return;
  // The bar counts in hundredths.
  SendMessageA(window, PBM_SETPOS, static_cast<WPARAM>(total > 0 ? done * 100 / total : 0), 0);
  UpdateWindow(window);
}

void DialogDrawers::Create(HWND owner, HWND bar, const StripShade& shade, const Place& place) {
  owner_ = owner;
  bar_.window = bar;
  shade_ = shade;
  MakePanel(place);
  textures_ = std::make_unique<TDrawerPicker>(DrawerMode::kTextures);
  colors_ = std::make_unique<TDrawerPicker>(DrawerMode::kColors);
  for (TDrawerPicker* const drawer : {textures_.get(), colors_.get()}) {
    drawer->panelBitmap = panel_;
    drawer->hooks.progress = &bar_;
    drawer->hooks.fail = hooks_.fail;
    drawer->closed = [this] { Closed(); };
  }
  textures_->hooks.livePreview = [this](ThumbnailPicture& picture) {
    return cellPreview_.Preview(CellTargetOf(texture_.Kind()), views_, picture);
  };
  colors_->hooks.colorPreview = [this](const std::string& name) { return ColorPicture(name); };
  laidHeight_ = place.height;
  // One that cannot be made stays out.
  if (textures_->Create(owner, place.x, place.y, place.width, place.height, kTextureDrawer)) {
    textures_->SetSets(TextureSets());
    textures_->OpenList(WashSlot(g_.layers, *g_.gParams, false).Name(), g_.folders.dataFolder);
  }
  if (colors_->Create(owner, place.x, place.y, place.width, place.height, kColorDrawer)) {
    colors_->OpenList({}, g_.folders.colorFolder);
  }
}

TextureSetTable DialogDrawers::TextureSets() const {
  TextureSetTable sets;
  if (g_.folders.dataFolder.empty()) return sets;
  std::vector<SetTableFault> faults;  // lines of a table that say nothing are passed over
  (void)LoadTextureSets(PathOfName(g_.folders.dataFolder) / kTextureSetFile, sets, faults);
  return sets;
}

void DialogDrawers::MakePanel(const Place& place) {
  const COLORREF color = GetSysColor(COLOR_BTNFACE);
  const FaceColor face = {GetBValue(color), GetGValue(color), GetRValue(color)};
  const std::vector<std::uint8_t> pixels =
      BuildDrawerPanel(shade_, face, place.width, place.height);
  const HBITMAP old = panel_;
  panel_ = nullptr;
  if (!pixels.empty()) {
    BITMAPINFO info{};
    info.bmiHeader = {
        sizeof info.bmiHeader, place.width, -place.height, 1, 24, BI_RGB, 0, 0, 0, 0, 0};
    const HDC screen = GetDC(nullptr);
    panel_ =
        CreateDIBitmap(screen, &info.bmiHeader, CBM_INIT, pixels.data(), &info, DIB_RGB_COLORS);
    ReleaseDC(nullptr, screen);
  }
  for (TDrawerPicker* const drawer : {textures_.get(), colors_.get()}) {
    if (drawer != nullptr) drawer->panelBitmap = panel_;
  }
  if (old != nullptr) DeleteObject(old);
}

void DialogDrawers::Open(TDrawerPicker& drawer) {
  focusBefore_ = GetFocus();
  hooks_.setBusy(true);
  drawer.Open();
}

// The page can be used again, from where it was left.
void DialogDrawers::Closed() {
  hooks_.setBusy(false);
  GiveFocusBack();
}

// Behind a box that asks something nothing takes the keys: then it is due after that.
void DialogDrawers::GiveFocusBack() {
  if (focusBefore_ == nullptr || OpenOne() != nullptr) return;
  if (IsWindowEnabled(owner_) == FALSE) return;
  const HWND focus = std::exchange(focusBefore_, nullptr);
  if (IsWindowVisible(focus) != FALSE && IsWindowEnabled(focus) != FALSE) SetFocus(focus);
}

bool DialogDrawers::TakeFocus() {
  TDrawerPicker* const drawer = OpenOne();
  if (drawer != nullptr) SetFocus(drawer->window);
  return drawer != nullptr;
}

void DialogDrawers::OpenTextures(int tab) {
  if (!textures_ || textures_->window == nullptr || OpenOne() != nullptr) return;
  const std::string name = texture_.Open(tab);
  if (!texture_.IsOpen()) return;
  PrepareCells(tab, false);
  Open(*textures_);
  textures_->OpenList(name, g_.folders.dataFolder);
}

// For the effect that `texture_` is open for. Odd, and kept: the full-size picker makes
// its relief of the other surface's depth, as the colour drawer does.
void DialogDrawers::PrepareCells(int tab, bool isDepthCrossed) {
  const EffectSettings& settings = *g_.gParams;
  cellPreview_.MakeBackdrop();
  if (texture_.Kind() == LayerKind::kWash) cellPreview_.MakeBackgroundStage();
  if (texture_.Kind() == LayerKind::kSurface) {
    const bool isSecond =
        ActiveSlot(tab, views_, g_.layers, *g_.gParams)->layer == &g_.layers.surfaces[1];
    const std::int32_t depth =
        isSecond != isDepthCrossed ? settings.SurfaceDepth2 : settings.SurfaceDepth1;
    cellPreview_.SetReliefFactor(static_cast<float>(depth) / kFullRelief);
  }
}

void DialogDrawers::OpenFullSize(int tab) {
  if (OpenOne() != nullptr) return;
  const std::string name = texture_.Open(tab);
  if (!texture_.IsOpen()) return;
  const LayerKind kind = texture_.Kind();
  TPicker picker;
  picker.kind = kind;
  picker.helpFolder = g_.folders.helpFolder;
  try {
    picker.sets = TextureSets();
    picker.Build(g_.folders.dataFolder, ScanTextureNames(PathOfName(g_.folders.dataFolder)), {},
                 picker.sets);
  } catch (const std::bad_alloc&) {
    ShowAlertBox("Cannot allocate memory in TPicker::InitWSHList", owner_);
    picker.records.clear();
    picker.filtered.clear();
  }
  picker.hooks = {[&](ThumbnailSize size) {
                    // What is missing is told over the picker.
                    g_.ownerWindow = picker.dialog;
                    cellPreview_.SetSize(size);
                    PrepareCells(tab, true);
                  },
                  [&](ThumbnailPicture& picture) {
                    return cellPreview_.Preview(CellTargetOf(kind), views_, picture);
                  },
                  [&](const std::string& tried, ThumbnailSize size) {
                    return LookAtTexture(g_, preview_, views_, kind, tried, size);
                  },
                  hooks_.fail};
  picker.livePreview = g_.session.PickerLivePreview != 0;
  (void)OpenTexturePicker(name.c_str(), owner_, &picker);
  g_.session.PickerLivePreview = picker.livePreview ? 1 : 0;
  g_.ownerWindow = owner_;
  // The drawers count on their own size.
  cellPreview_.SetSize(kDrawerThumbnail);
  bar_.Report(0, 0);
  if (!picker.isAccepted) return DoTextureWork(texture_.Cancel());
  if (picker.selectedName != name) DoTextureWork(texture_.Try(picker.selectedName));
  DoTextureWork(texture_.Accept(picker.selectedName));
}

void DialogDrawers::OpenColors(int tab) {
  if (!colors_ || colors_->window == nullptr || OpenOne() != nullptr) return;
  const auto slot = ActiveSlot(tab, views_, g_.layers, *g_.gParams);
  if (!slot || slot->kind == LayerKind::kWash) return;
  if (slot->kind == LayerKind::kSurface) {
    cellPreview_.SetReliefFactor(color_.OpenForSurface(views_).depthFactor);
  } else {
    (void)color_.OpenForBackground();
  }
  cellPreview_.MakeBackdrop();
  TextureRecord record;
  record.fileName = slot->Name();
  colorSource_ = LoadOrMakeThumbnail(g_.folders.dataFolder, record, kDrawerThumbnail, true);
  Open(*colors_);
  colors_->OpenList({}, g_.folders.colorFolder);
}

TDrawerPicker* DialogDrawers::OpenOne() {
  for (TDrawerPicker* const drawer : {textures_.get(), colors_.get()}) {
    if (drawer != nullptr && (drawer->IsOpen() || drawer->IsSliding())) return drawer;
  }
  return nullptr;
}

bool DialogDrawers::Command(int id, WORD notification) {
  if (id == kTextureDrawer) return TextureTold(notification), true;
  if (id == kColorDrawer) return ColorTold(notification), true;
  return false;
}

void DialogDrawers::TextureTold(WORD notification) {
  if (!textures_) return;
  const std::string name = textures_->SelectedName();
  TextureWork work;
  if (notification == kDrawerAccepted) {
    work = texture_.Accept(name);
  } else if (notification == kDrawerCancelled) {
    work = texture_.Cancel();
  } else {
    work = texture_.Try(name);
  }
  if (work.closeDrawer) textures_->Close();
  DoTextureWork(work);
}

void DialogDrawers::DoTextureWork(const TextureWork& work) {
  if (work.closeDrawer) cellPreview_.FreeBackgroundStage();
  if (work.textureChosen) hooks_.textureChosen();
  if (work.settingsChanged) hooks_.settingsChanged();
  if (work.clearProgress) bar_.Report(0, 0);
  if (work.closeDrawer) GiveFocusBack();
}

void DialogDrawers::ColorTold(WORD notification) {
  if (!colors_) return;
  const std::string name = colors_->SelectedName();
  ColorWork work;
  if (notification == kDrawerAccepted) {
    work = color_.Accept(name);
  } else if (notification == kDrawerCancelled) {
    work = color_.Cancel();
  } else {
    work = color_.Try(name);
  }
  if (work.closeDrawer) {
    colorSource_.reset();
    colors_->Close();
  }
  if (work.showPage) hooks_.showPage();
  if (work.settingsChanged) hooks_.settingsChanged();
  if (work.clearProgress) bar_.Report(0, 0);
  if (work.closeDrawer) GiveFocusBack();
}

// Of the file nothing but its tones is taken, whatever else may be in it.
std::optional<ThumbnailPicture> DialogDrawers::ColorPicture(const std::string& name) {
  if (!colorSource_ || color_.Target() == ColorTargetKind::kNone) return std::nullopt;
  const bool isSurface = color_.Target() == ColorTargetKind::kSurface;
  const PresetKind kind = isSurface ? PresetKind::kSurfaceColor : PresetKind::kBackgroundColor;
  ColorPreset colors;
  if (LoadColorPreset(PathOfName(presets_.Folders().File(kind, PresetNameOf(name))), colors) !=
      PresetLoad::kLoaded) {
    return std::nullopt;
  }
  const CellTones tones = {colors.highlight, colors.midtone, colors.shadow};
  return cellPreview_.PreviewColors(isSurface ? CellTarget::kSurface : CellTarget::kBackground,
                                    views_, *colorSource_, tones);
}

bool DialogDrawers::Accept() {
  TDrawerPicker* const drawer = OpenOne();
  if (drawer != nullptr) drawer->Accept();
  return drawer != nullptr;
}

bool DialogDrawers::Cancel() {
  TDrawerPicker* const drawer = OpenOne();
  if (drawer != nullptr) drawer->Cancel();
  return drawer != nullptr;
}

void DialogDrawers::Move(const Place& place) {
  const bool isResized =
      textures_ && (textures_->width != place.width || textures_->height != place.height);
  if (isResized) MakePanel(place);
  for (TDrawerPicker* const drawer : {textures_.get(), colors_.get()}) {
    if (drawer != nullptr) drawer->MoveTo(place.x, place.y, place.width, place.height);
  }
}

void DialogDrawers::Relayout() {
  if (!textures_ || textures_->height == std::exchange(laidHeight_, textures_->height)) return;
  textures_->Relayout();
  colors_->Relayout();
}

void DialogDrawers::NameColors(const std::string& name) {
  if (!colors_ || name.empty()) return;
  colors_->NameSelected(name == kResetColorsName ? name : name + ".twkpst");
}

DrawerLists DialogDrawers::Lists() {
  return {
      [this] { return textures_ ? textures_->List().ShownNames() : std::vector<std::string>(); },
      [this] {
        std::vector<std::string> names;
        for (int i = 0; colors_ && i < colors_->List().ShownCount(); ++i) {
          names.emplace_back(PresetNameOf(colors_->List().DisplayName(i)));
        }
        return names;
      }};
}

}  // namespace tarnwick
