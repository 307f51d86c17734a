#include "dialog/sound.h"

#include <gtest/gtest.h>

#include <cstring>
#include <fstream>
#include <iterator>
#include <string>

#include "resources/sound/auto_sound.h"

namespace tarnwick {
namespace {

struct Played {
  int count = 0;
  LPCSTR wave = nullptr;
  UINT flags = 0;
} played;

BOOL WINAPI Note(LPCSTR wave, UINT flags) {
  played = {played.count + 1, wave, flags};
  return TRUE;
}

// This program bears the module's resources. The file in it was made by a program
// of the building machine, the one to compare with by the code compiled for this one.
TEST(Sound, TheResourceIsWhatAnyCompilerMakes) {
  played = {};
  PlaySoundResource(GetModuleHandleA(nullptr), kAutoSound, Note);
  ASSERT_EQ(played.count, 1);
  EXPECT_EQ(played.flags, 7U) << "from memory, at once, no other sound in its place";
  const std::vector<std::uint8_t> wanted = AutoSound();
  EXPECT_EQ(std::memcmp(played.wave, wanted.data(), wanted.size()), 0);
}

TEST(Sound, AMissingResourceIsSilent) {
  played = {};
  PlaySoundResource(GetModuleHandleA(nullptr), 237, Note);
  PlaySoundResource(GetModuleHandleA("kernel32.dll"), kAutoSound, Note);
  EXPECT_EQ(played.count, 0);
}

TEST(Sound, CanBeEnded) {
  played = {};
  StopSound(Note);
  EXPECT_EQ(played.count, 1);
  EXPECT_EQ(played.wave, nullptr);
}

// Also where there is no sound card.
TEST(Sound, TheSystemTakesIt) {
  PlaySoundResource(GetModuleHandleA(nullptr), kAutoSound);
  StopSound();
}

}  // namespace
}  // namespace tarnwick
