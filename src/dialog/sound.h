#pragma once
#include <windows.h>

namespace tarnwick {

inline constexpr int kAutoSound = 236;  // what the module's resources call it

// Starts a sound from memory, or with null ends the one that plays: sndPlaySoundA.
using WavePlayer = BOOL(WINAPI*)(LPCSTR wave, UINT flags);

// Plays the resource `id` of type "WAVE" and returns at once; a sound that still
// plays is cut off. Nothing happens without the resource or without a sound card.
void PlaySoundResource(HINSTANCE module, int id, WavePlayer player = nullptr);

// Silence. The system reads a sound from the module's own memory as it plays, so
// the dialog calls this at its end, before a host may unload the module.
void StopSound(WavePlayer player = nullptr);

}  // namespace tarnwick
