#include "dialog/sound.h"

#include <mmsystem.h>

namespace tarnwick {
namespace {

WavePlayer OrSystem(WavePlayer player) {
  return player != nullptr ? player : sndPlaySoundA;
}

}  // namespace

void PlaySoundResource(HINSTANCE module, int id, WavePlayer player) {
  const HRSRC place = FindResourceA(module, MAKEINTRESOURCEA(id), "WAVE");
  if (place == nullptr) return;
  const HGLOBAL loaded = LoadResource(module, place);
  if (loaded == nullptr) return;
  const void* const wave = LockResource(loaded);
  if (wave == nullptr) return;
  OrSystem(player)(static_cast<LPCSTR>(wave), SND_MEMORY | SND_ASYNC | SND_NODEFAULT);
}

void StopSound(WavePlayer player) {
  OrSystem(player)(nullptr, 0);
}

}  // namespace tarnwick
