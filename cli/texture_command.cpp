// tarnwick texture: pictures to textures and back, for who makes textures.
#include <array>
#include <filesystem>
#include <system_error>

#include "command.h"
#include "did_you_mean.h"
#include "option_parser.h"
#include "option_values.h"
#include "output_file.h"
#include "picture_formats.h"
#include "picture_load.h"
#include "picture_save.h"
#include "settings/ascii_text.h"
#include "text_table.h"
#include "textures/texture_effects.h"
#include "textures/wash_file.h"
#include "textures/wash_file_writer.h"
#include "vips_library.h"

namespace tarnwick {
namespace {

namespace fs = std::filesystem;

constexpr std::array<OptionRow, 5> kImportOptions = {{
    {"output", 'o', "FILE.twk", "the texture to make"},
    {"set-id", 0, "N", "the set that holds the texture; 0 when left out"},
    {"effects", 0, "NAME,...", "by which it is found, such as \"Metals,Scratches\""},
    {"force", 'f', "", "replace a file that is there"},
    {"help", 'h', "", "this text"},
}};

constexpr std::array<OptionRow, 4> kExportOptions = {{
    {"output", 'o', "PICTURE", "the picture to make; its extension tells the format"},
    {"quality", 0, "N", "1 to 100, for formats that lose; 92 when left out"},
    {"force", 'f', "", "replace a file that is there"},
    {"help", 'h', "", "this text"},
}};

// The one operand and -o of both commands.
struct InAndOut {
  fs::path input;
  fs::path output;
};

InAndOut TakeFiles(const ParsedArguments& arguments, const std::string& command) {
  if (arguments.operands.size() != 1) {
    FailUse(command, "takes one file, but got " + std::to_string(arguments.operands.size()),
            "see tarnwick " + command + " --help");
  }
  const std::string* output = arguments.Value("output");
  if (output == nullptr) FailUse(command, "has no output", "give -o FILE");
  RequireWritableTarget(*output);
  std::error_code fault;
  if (fs::equivalent(arguments.operands[0], *output, fault)) {
    FailUse(*output, "is the input itself", "name another file");
  }
  return {arguments.operands[0], *output};
}

std::uint32_t ParseEffects(const std::string& list) {
  const std::vector<std::string> names(kTextureEffects.begin(), kTextureEffects.end());
  std::uint32_t mask = 0;
  std::size_t start = 0;
  while (start <= list.size()) {
    const std::size_t end = std::min(list.find(',', start), list.size());
    std::string name = list.substr(start, end - start);
    name.erase(0, name.find_first_not_of(' '));
    name.erase(name.find_last_not_of(' ') + 1);
    const std::uint32_t bit = TextureEffectMask(name);
    if (bit == 0) {
      FailUse("--effects", "no effect is called \"" + name + "\"",
              DidYouMean(name, names, "one of " + JoinNames(names)));
    }
    mask |= bit;
    start = end + 1;
  }
  return mask;
}

void WarnOfName(Console& console, const fs::path& output) {
  constexpr std::size_t kLongestName = 31;
  const std::string name = output.filename().string();
  if (name.size() > kLongestName) {
    console.Warning(name + ": is longer than " + std::to_string(kLongestName) +
                    " characters, so that the dialog cannot show it (shorten it)");
  }
}

ExitCode Import(Console& console, std::span<const std::string> words) {
  const ParsedArguments arguments = ParseArguments(kImportOptions, words);
  if (arguments.Has("help")) {
    Print(
        "usage: tarnwick texture import PICTURE -o FILE.twk [options]\n\n"
        "Any picture becomes one grey plane: 255 has no effect, 0 the full one.\n"
        "Textures look best from 2048 pixels upward, without visible repeats.\n\n" +
        OptionsHelp(kImportOptions));
    return ExitCode::kDone;
  }
  const InAndOut files = TakeFiles(arguments, "texture import");
  if (!EqualIgnoringCase(files.output.extension().string(), ".twk")) {
    FailUse(files.output.string(), "the name of a texture ends in .twk", "add it");
  }
  WashFileHeader header;
  header.setId = static_cast<std::uint32_t>(NumberOption(arguments, "set-id", 0, UINT32_MAX, 0));
  if (const std::string* list = arguments.Value("effects")) header.effectMask = ParseEffects(*list);
  WarnOfName(console, files.output);

  const VipsLibrary library(0);
  PictureNotes notes;
  const vips::VImage grey = LoadGreyPicture(files.input, notes);
  for (const std::string& note : notes) console.Warning(files.input.string() + ": " + note);
  header.width = grey.width();
  header.height = grey.height();
  const std::span samples(
      static_cast<const std::uint8_t*>(grey.data()),
      static_cast<std::size_t>(header.width) * static_cast<std::size_t>(header.height));
  OutputFile output(files.output, arguments.Has("force"));
  switch (WriteWashFile(output.TemporaryPath(), header, samples)) {
    case WashWriteOutcome::kDone:
      break;
    case WashWriteOutcome::kOutOfMemory:
      throw std::bad_alloc();
    case WashWriteOutcome::kBadPicture:
    case WashWriteOutcome::kCannotWrite:
      FailInput(files.output.string(), "cannot be written", "check disk space");
  }
  output.Commit();
  return ExitCode::kDone;
}

vips::VImage TextureAsImage(const fs::path& path) {
  AWashFile file;
  std::error_code fault;
  if (!fs::exists(path, fault)) FailInput(path.string(), "no such file", "check the name");
  if (!file.Open(path.string())) FailInput(path.string(), "is no texture file", "make it again");
  ImagePtr image;
  const bool whole = file.ReadImage(image);
  const std::uint8_t* plane = image ? image->PeekInterior() : nullptr;
  if (!whole || plane == nullptr) {
    FailInput(path.string(), "its samples are damaged", "make it again");
  }
  // The engine reads the first plane alone, so that is the texture.
  const std::size_t size =
      static_cast<std::size_t>(image->Width()) * static_cast<std::size_t>(image->Height());
  const vips::VImage view =
      vips::VImage::new_from_memory(const_cast<std::uint8_t*>(plane), size, image->Width(),
                                    image->Height(), 1, VIPS_FORMAT_UCHAR)
          .copy(vips::VImage::option()->set("interpretation", VIPS_INTERPRETATION_B_W));
  return IntoMemory(view);
}

ExitCode Export(Console&, std::span<const std::string> words) {
  const ParsedArguments arguments = ParseArguments(kExportOptions, words);
  if (arguments.Has("help")) {
    Print("usage: tarnwick texture export FILE.twk -o PICTURE [options]\n\n" +
          OptionsHelp(kExportOptions) + "\nformats: " + FormatNames() + "\n");
    return ExitCode::kDone;
  }
  const InAndOut files = TakeFiles(arguments, "texture export");
  const PictureFormat& format = FormatOf(files.output, true);
  const int quality = QualityOption(arguments);
  const VipsLibrary library(0);
  const vips::VImage image = TextureAsImage(files.input);
  OutputFile output(files.output, arguments.Has("force"));
  SaveImage(image, output.TemporaryPath(), files.output.string(), format, quality);
  output.Commit();
  return ExitCode::kDone;
}

constexpr std::array<Command, 2> kCommands = {{
    {"import", "a picture becomes a texture", Import},
    {"export", "a texture becomes a picture", Export},
}};

}  // namespace

ExitCode RunTexture(Console& console, std::span<const std::string> arguments) {
  return RunGroup(console, arguments, "tarnwick texture", kCommands,
                  "  tarnwick texture import wall.jpg -o Wall.twk --effects \"Stone/Minerals\"\n"
                  "  tarnwick texture export Rusted.twk -o rusted.png\n");
}

}  // namespace tarnwick
