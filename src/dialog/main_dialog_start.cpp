// How the main dialog comes into being, and how it goes.
#include <windows.h>

#include <commctrl.h>

#include <algorithm>

#include "controls/color_swatch.h"
#include "controls/control_button.h"
#include "controls/control_classes.h"
#include "controls/control_shared.h"
#include "controls/label_control.h"
#include "controls/models/dpi_scale.h"
#include "controls/tool_tip.h"
#include "dialog/dialog_commands.h"
#include "dialog/hot_keys.h"
#include "dialog/main_dialog.h"
#include "dialog/models/new_layer_options.h"
#include "dialog/sound.h"
#include "environment/live_preview_flag.h"
#include "filter/document_layers.h"
#include "resources/art_ids.h"

namespace tarnwick {
namespace {

constexpr int kLabelHeight = 20;

// Visible, a child, clips what it overlaps and what is in it, follows the pointer.
constexpr DWORD kTabStyle =
    WS_CHILD | WS_VISIBLE | WS_CLIPSIBLINGS | WS_CLIPCHILDREN | TCS_HOTTRACK;

struct Tip {
  int id;
  const char* text;
};

// Odd, and kept: those of the zoom buttons are crossed.
constexpr Tip kTips[] = {
    {IDOK, "Apply effect"},
    {IDCANCEL, "Don't apply effect"},
    {kZoomIn, "Decrease preview size (press CTRL + zero to fit in preview window)"},
    {kZoomOut, "Enlarge preview size (press CTRL + zero to fit in preview window)"},
    {kPercentage, "Preview scale"},
    {kManual,
     "View the Tarnwick Studio user manual to learn more (press F1 for tab specific info)"},
    {kViewAll, "View all Tarnwick Studio presets"},
    {kAuto, "Apply random Tarnwick Studio effects"},
    {kAbout, "Review user information for plug-in"},
};

struct HeaderSkin {
  int id, normal, hover;
};

constexpr HeaderSkin kHeaderSkins[] = {
    {kManual, TARNWICK_ART_MANUAL, TARNWICK_ART_MANUAL_HOVER},
    {kViewAll, TARNWICK_ART_PRESETS, TARNWICK_ART_PRESETS_HOVER},
    {kAuto, TARNWICK_ART_AUTO, TARNWICK_ART_AUTO_HOVER},
    {kAbout, TARNWICK_ART_ABOUT, TARNWICK_ART_ABOUT_HOVER},
};

// Of the pages' buttons; the pages borrow them.
constexpr int kPageArt[] = {
    TARNWICK_ART_FILM_FORWARD, TARNWICK_ART_FILM_FORWARD_HOVER, TARNWICK_ART_FILM_FORWARD_DISABLED,
    TARNWICK_ART_FILM_BACK,    TARNWICK_ART_FILM_BACK_HOVER,    TARNWICK_ART_FILM_BACK_DISABLED,
    TARNWICK_ART_ROTATE_LEFT,  TARNWICK_ART_ROTATE_LEFT_HOVER,  TARNWICK_ART_ROTATE_LEFT_DISABLED,
    TARNWICK_ART_ROTATE_RIGHT, TARNWICK_ART_ROTATE_RIGHT_HOVER, TARNWICK_ART_ROTATE_RIGHT_DISABLED,
    TARNWICK_ART_LINKED,       TARNWICK_ART_LINKED_HOVER,       TARNWICK_ART_LINKED_DISABLED,
    TARNWICK_ART_LINK,         TARNWICK_ART_LINK_HOVER,         TARNWICK_ART_LINK_DISABLED,
};

constexpr int kFarthest = 100000;

int DpiOfScreen() {
  const HDC screen = GetDC(nullptr);
  const int dpi = GetDeviceCaps(screen, LOGPIXELSY);
  ReleaseDC(nullptr, screen);
  return dpi;
}

}  // namespace

void MainDialog::Start() {
  g_.ownerWindow = window_;
  ColorPickers().fallbackOwner = window_;
  screenDpi_ = DpiOfScreen();
  dpiFactor_ = DpiFactorOf(screenDpi_);
  RegisterHotKeys(window_);
  EffectSettings& settings = *g_.gParams;
  if (settings.BatchMode != 0) {
    SetWindowTextA(Item(IDOK), settings.ApplyToAll != 0 ? "Apply to All" : "Apply");
  }
  for (const int id : kPageArt) (void)bitmaps_.LoadOnFace(instance_, id);
  (void)bitmaps_.Load(instance_, TARNWICK_ART_BAND_TILE);
  openHand_ = LoadCursorA(instance_, MAKEINTRESOURCEA(TARNWICK_ART_OPEN_HAND));
  closedHand_ = LoadCursorA(instance_, MAKEINTRESOURCEA(TARNWICK_ART_CLOSED_HAND));
  // Before the labels, which paint as they are made.
  SharedControls().fonts = MakeControlFonts(screenDpi_);
  // Its place grows less than the dialog's own font does.
  SendMessageA(Item(kPercentage), WM_SETFONT,
               reinterpret_cast<WPARAM>(SharedControls().fonts.FontThumbCaption), FALSE);
  MakeOptions();
  FindFrame();
  strips_.LoadShade(bitmaps_.Load(instance_, TARNWICK_ART_CORNER_SHADE));

  g_.DialogActive = 1;
  bar_.window = Item(kProgressBar);
  SendMessageA(bar_.window, PBM_SETRANGE, 0, MAKELPARAM(0, 100));
  help_ = std::make_unique<HelpViewer>(window_, g_.folders.helpFolder);
  drawerLists_ = UnfilteredDrawers(g_.folders.dataFolder, g_.folders.colorFolder);
  preview_ = std::make_unique<LivePreview>(g_, &bar_);
  pane_ = GetControlRecord<TPreviewContaner>(Item(kPane), kPreviewClass);
  if (pane_ != nullptr) {
    pane_->openHand = openHand_;
    pane_->closedHand = closedHand_;
    // The pane's own procedure calls it, so nothing may be thrown out of it.
    pane_->moveOffset = [this](int dx, int dy) {
      try {
        MoveOffset(dx, dy);
      } catch (...) {
        Fail();
      }
    };
  }
  MakeTabs();
  MakePages();
  MakeStrip();
  ShowOptions();
  EnableOptions();
  SkinHeader();
  PutWindow();
  AddTips();
  OpenPreview();
  cancelSnapshot_ = lastUsedSnapshot_ = settings;
  g_.session.PickerLivePreview = LoadLivePreviewFlag() ? 1 : 0;
  MakeDrawers();
  isStarted_ = true;
  LookForNews();
}

void MainDialog::MakeOptions() {
  for (std::size_t i = 0; i < kNewLayerOptions.size(); ++i) {
    const NewLayerOption& option = kNewLayerOptions[i];
    // The label takes over the id of one that the template holds for it.
    const HWND held = Item(option.labelId);
    if (held != nullptr) DestroyWindow(held);
    const int width = static_cast<int>(210.0F * dpiFactor_) + (i == kBackgroundOption ? 50 : 0);
    TContaner* const label = CreateLabelControl(0, 0, width, kLabelHeight, window_, option.labelId,
                                                option.text, true, true);
    optionLabels_[i] = label;
    if (label != nullptr) label->style = kTrackingLabel;
  }
}

void MainDialog::FindFrame() {
  RECT pane{};
  GetWindowRect(Item(kPane), &pane);
  MapWindowPoints(nullptr, window_, reinterpret_cast<POINT*>(&pane), 2);
  frame_.dpi = screenDpi_;
  frame_.previewLeft = PreviewLeftFor(pane.left, screenDpi_);
  frame_.previewTop = pane.top;
  RECT strip{};
  GetWindowRect(Item(kPaneFrame), &strip);
  MapWindowPoints(nullptr, window_, reinterpret_cast<POINT*>(&strip), 2);
  const StripOrigin origin = StripOriginFor(strip.left, strip.top, frame_.previewTop, screenDpi_);
  stripFrame_ = {origin.x, origin.y, 0, screenDpi_};
}

void MainDialog::MakeTabs() {
  tabs_ = CreateWindowExA(0, WC_TABCONTROLA, "", kTabStyle, 10, 80, 400, 400, window_,
                          reinterpret_cast<HMENU>(static_cast<INT_PTR>(kTabControl)), instance_,
                          nullptr);
  if (tabs_ == nullptr) return;
  SendMessageA(tabs_, WM_SETFONT, reinterpret_cast<WPARAM>(SharedControls().fonts.FontMediumBold),
               FALSE);
  char texts[kTabs][20] = {"   Basic   ", "    Wash   ", "  Surface  ", "  Background  "};
  for (int i = 0; i < kTabs; ++i) {
    TCITEMA item{};
    item.mask = TCIF_TEXT;
    item.pszText = texts[i];
    SendMessageA(tabs_, TCM_INSERTITEMA, static_cast<WPARAM>(i), reinterpret_cast<LPARAM>(&item));
  }
}

void MainDialog::MakePages() {
  edits_ = std::make_unique<SettingEdits>(g_, views_, preview_.get());
  preview_->SetLinkPropagation([this](LayerKind kind) { PropagateLinksOf(kind); });
  presets_ = std::make_unique<PresetLibrary>(
      g_, views_, lastUsedSnapshot_,
      PresetLibraryHooks{[this] { SyncStrip(); }, [this] { ShowOptions(); },
                         [this] { SendMessageA(window_, WM_COMMAND, kSettingsChanged, 0); },
                         [this] { UpdatePage(PageUpdate::kShowSettings); },
                         [this](KeptLayers kept) { preview_->RemakeLayers(kept); }});
  if (tabs_ == nullptr) return;
  pages_ = std::make_unique<SettingsPages>(PageContext{g_,
                                                       views_,
                                                       instance_,
                                                       window_,
                                                       *edits_,
                                                       *presets_,
                                                       bitmaps_,
                                                       dice_,
                                                       [this] { EndDialog(window_, IDCANCEL); },
                                                       [this] { Fail(); },
                                                       {},
                                                       [this](int tab) {
                                                         if (drawers_) drawers_->OpenTextures(tab);
                                                       },
                                                       [this](int tab) {
                                                         if (drawers_) drawers_->OpenColors(tab);
                                                       },
                                                       [this](int tab) {
                                                         if (drawers_) drawers_->OpenFullSize(tab);
                                                       }});
  pages_->Select(views_.currentTab, PagePlace());
}

void MainDialog::MakeDrawers() {
  drawers_ = std::make_unique<DialogDrawers>(
      g_, views_, *preview_, *presets_,
      DialogDrawerHooks{[this](bool isBusy) { SetBusy(isBusy); },
                        [this] {
                          if (pages_ && pages_->Current() != nullptr) {
                            pages_->Current()->TextureChosen();
                          }
                        },
                        [this] { UpdatePage(PageUpdate::kShowSettings); },
                        [this] { SendMessageA(window_, WM_COMMAND, kSettingsChanged, 0); },
                        [this] { Fail(); }});
  drawers_->Create(window_, bar_.window, strips_.Shade(), layout_.drawer);
  drawerLists_ = drawers_->Lists();
}

void MainDialog::EnableOptions() {
  for (std::size_t i = 0; i < kNewLayerOptions.size(); ++i) {
    const bool isOffered =
        IsOptionOffered(i, g_.HostHasActions, g_.gFilterRecord->planes,
                        g_.gFilterRecord->imageMode == host::plugInModeCMYKColor);
    EnableWindow(Item(kNewLayerOptions[i].boxId), isOffered ? TRUE : FALSE);
    TContaner* const label = optionLabels_[i];
    if (label != nullptr) EnableWindow(label->window, isOffered ? TRUE : FALSE);
  }
}

void MainDialog::SkinHeader() {
  for (const HeaderSkin& skin : kHeaderSkins) {
    auto* const button = GetControlRecord<ControlButton>(Item(skin.id), kButtonClass);
    if (button != nullptr) SetButtonBitmaps(*button, skin.normal, skin.hover, skin.normal, 0);
  }
  const auto show = [&](int id, int art) {
    SendMessageA(Item(id), STM_SETIMAGE, IMAGE_BITMAP,
                 reinterpret_cast<LPARAM>(bitmaps_.Load(instance_, art)));
  };
  show(kLeftHeader, TARNWICK_ART_BAND_LEFT);
  show(kRightHeader, TARNWICK_ART_BAND_RIGHT);
}

// A tip covers its control as large as that is now: after all have their sizes.
void MainDialog::AddTips() {
  for (const Tip& tip : kTips) AddToolTip(Item(tip.id), tip.text, nullptr);
  for (const NewLayerOption& option : kNewLayerOptions) {
    AddToolTip(Item(option.boxId), option.tip, nullptr);
    AddToolTip(Item(option.labelId), option.tip, nullptr);
  }
}

void MainDialog::PutWindow() {
  const EffectSettings& settings = *g_.gParams;
  // Farther than any screen; a file may hold any number.
  const auto within = [](std::int32_t value) { return std::clamp(value, -kFarthest, kFarthest); };
  const int left = within(settings.WindowLeft);
  const int top = within(settings.WindowTop);
  RECT place = {left, top, left + within(settings.WindowWidth),
                top + within(settings.WindowHeight)};
  // A screen that has gone takes its windows along: start where there is one.
  if (MonitorFromRect(&place, MONITOR_DEFAULTTONULL) == nullptr) {
    OffsetRect(&place, -place.left, -place.top);
  }
  MoveWindow(window_, place.left, place.top, place.right - place.left, place.bottom - place.top,
             TRUE);
  // Also where the frame was that already.
  Place();
}

void MainDialog::OpenPreview() {
  const PaneSize pane = PaneNow();
  preview_->Open(pane);
  TakePan();
  zoomSkins_.Skin(Item(kZoomIn), Item(kZoomOut), bitmaps_, instance_);
  SetZoomButtons({false, preview_->Zoom().maximum > 1});
  PrintPercentage();
  if (*g_.gResult == host::noErr) {
    RefreshPreview();
  } else {
    *g_.gResult = host::noErr;
  }
}

void MainDialog::Finish() {
  g_.DialogActive = 0;
  UnregisterHotKeys(window_);
  if (help_) help_->Stop();
  if (hasPlayed_) StopSound();
  news_.reset();
  // One that never came up, or is only an icon now, has no place worth keeping.
  if (isStarted_ && IsIconic(window_) == FALSE) {
    RECT place{};
    GetWindowRect(window_, &place);
    EffectSettings& settings = *g_.gParams;
    settings.WindowLeft = place.left;
    settings.WindowTop = place.top;
    settings.WindowWidth = place.right - place.left;
    settings.WindowHeight = place.bottom - place.top;
  }
  pane_ = nullptr;
  drawers_.reset();
  pages_.reset();
  presets_.reset();
  edits_.reset();
  preview_.reset();
  FreeDocumentLayers(g_);
  bitmaps_.Free();
  FreeControlFonts(SharedControls().fonts);
}

}  // namespace tarnwick
