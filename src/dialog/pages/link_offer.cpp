#include "dialog/pages/link_offer.h"

#include "dialog/edits/link_edits.h"
#include "resources/page_ids.h"

namespace tarnwick {
namespace {

struct Source {
  LayerKind kind;
  int id;
};
// What the dialog ends with is the place in here, from 1 on.
constexpr Source kSources[] = {{LayerKind::kWash, TARNWICK_LINK_AS_WASH},
                               {LayerKind::kSurface, TARNWICK_LINK_AS_SURFACE},
                               {LayerKind::kBackground, TARNWICK_LINK_AS_BACKGROUND}};
constexpr INT_PTR kDeclined = -1;

struct Offer {
  LayerKind own;
  const TextureMatches& matches;
};

INT_PTR CALLBACK LinkProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  if (message == WM_INITDIALOG) {
    const auto& offer = *reinterpret_cast<const Offer*>(lParam);
    const LayerKind first = PreselectedSource(offer.own, offer.matches);
    for (const Source& source : kSources) {
      const bool isShown =
          source.kind == offer.own || AreMatched(offer.own, source.kind, offer.matches);
      const HWND radio = GetDlgItem(window, source.id);
      ShowWindow(radio, isShown ? SW_SHOW : SW_HIDE);
      SendMessageA(radio, BM_SETCHECK, source.kind == first ? BST_CHECKED : BST_UNCHECKED, 0);
    }
    return TRUE;
  }
  if (message != WM_COMMAND) return FALSE;
  if (LOWORD(wParam) == IDCANCEL) {
    EndDialog(window, kDeclined);
    return TRUE;
  }
  if (LOWORD(wParam) != IDOK) return FALSE;
  INT_PTR answer = kDeclined;
  for (INT_PTR i = 0; i < 3; ++i) {
    if (IsDlgButtonChecked(window, kSources[i].id) == BST_CHECKED) answer = i + 1;
  }
  EndDialog(window, answer);
  return TRUE;
}

}  // namespace

std::optional<LayerKind> AskForLink(HINSTANCE instance, HWND owner, LayerKind own,
                                    const TextureMatches& matches) {
  const Offer offer{own, matches};
  const INT_PTR answer = DialogBoxParamA(instance, MAKEINTRESOURCEA(TARNWICK_LINK_OFFER), owner,
                                         LinkProc, reinterpret_cast<LPARAM>(&offer));
  if (answer < 1 || answer > 3) return std::nullopt;
  return kSources[answer - 1].kind;
}

}  // namespace tarnwick
