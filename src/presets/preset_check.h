#pragma once
#include <string>
#include <string_view>
#include <vector>

namespace tarnwick {

// What is odd about a preset. The reader takes all of it in silence.
enum class PresetFaultKind {
  kNoHeader,    // the file is refused
  kUnknownKey,  // the line does nothing
  kNoKey,       // neither blank, comment nor key line: does nothing
  kUnknownVersion,
  kNotANumber,   // read as 0, or only its beginning is read
  kOutOfRange,   // taken as it stands
  kNameTooLong,  // cut
  kBrokenLine,   // a control byte or one from 0x80 up ends the line early
  kUnendedLine,  // the last line lacks its end and is lost
};

struct PresetFault {
  int line = 0;  // from 1, as an editor counts them
  PresetFaultKind kind = PresetFaultKind::kNoKey;
  std::string text;  // complete, without the line's number
};

// A texture that the preset names, for the caller to look for.
struct PresetTexture {
  int line = 0;
  std::string name;
};

struct PresetReport {
  std::vector<PresetFault> faults;  // in the order of the lines
  std::vector<PresetTexture> textures;
};

// Reads a preset for its faults only, as version 2 until it says otherwise.
// "No_Texture.twk" is not listed as a texture.
[[nodiscard]] PresetReport CheckPreset(std::string_view bytes);

}  // namespace tarnwick
