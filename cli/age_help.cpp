#include <array>

#include "age_options.h"
#include "data_folders.h"
#include "picture_formats.h"

namespace tarnwick {
namespace {

constexpr std::array<OptionRow, 24> kRows = {{
    {"preset", 'p', "NAME|FILE",
     "apply a preset: by its name in the data folder or as a file; may be given again", true},
    {"set", 's', "FIELD=VALUE", "change one setting; may be given again", true},
    {"surface-colors", 0, "NAME|FILE", "take the surface's three tones from a colour preset", true},
    {"background-colors", 0, "NAME|FILE", "the same for the background", true},
    {"seed", 0, "N",
     "the seed of both washes' patches; holds against presets, not against a later --set"},
    {"output", 'o', "FILE", "the result of a single input"},
    {"output-dir", 0, "DIR", "folder for the results of one or more inputs; made if missing"},
    {"suffix", 0, "TEXT", "added to the names in that folder, before the extension"},
    {"format", 0, "EXT", "format of the results in that folder; else as the input"},
    {"force", 'f', "", "replace files that are there, even the input"},
    {"quality", 0, "N", "1 to 100 for formats that lose, 92 when left out"},
    {"selection", 0, "MASK",
     "grey picture of the input's size: 255 selected, 0 not; what washes call inside and outside"},
    {"view", 0, "NAME",
     "show one part: composite, wash1, wash2, background, surface1, surface2, original"},
    {"scale", 0, "N", "a preview at 1/N of the size"},
    {"window", 0, "X,Y,W,H", "a part of the preview, in shown pixels; else the whole picture"},
    {"save-preset", 0, "FILE", "write the settings as a preset; needs no input"},
    {"kind", 0, "KIND",
     "what it holds: user (all), wash, surface, background, surface-color or background-color"},
    {"strict", 0, "", "refuse textures that are missing or damaged, and values out of range"},
    {"threads", 0, "N", "threads to work with; else one for each processor"},
    kDataOption,
    kTexturesOption,
    kPresetsOption,
    {"quiet", 'q', "", "no progress bar"},
    {"help", 'h', "", "this text"},
}};

}  // namespace

std::span<const OptionRow> AgeOptionRows() {
  return kRows;
}

std::string AgeHelp() {
  return "usage: tarnwick age [options] INPUT -o OUTPUT\n"
         "       tarnwick age [options] INPUT... --output-dir DIR\n"
         "\n"
         "Ages photographs. Starts from the default settings; presets and --set change them\n"
         "in the order given.\n"
         "\n" +
         OptionsHelp(AgeOptionRows()) +
         "\n"
         "fields: tarnwick settings list shows what --set takes. Case does not matter. Colours\n"
         "  are #rrggbb or the decimal colour word, choices a number or a name, textures go\n"
         "  with or without .twk. WashUse=0, SurfaceUse=0 and BackgroundUse=0 take the\n"
         "  textures of their group away, as in a preset, since a group with a texture is\n"
         "  always on; to switch it on again, name a texture.\n"
         "\n"
         "pictures: " +
         WrapText(FormatNames() + " can be written; what can be read is more.", 10, 86) +
         "\n"
         "  8-bit RGB stays in its own profile. Grey becomes RGB, 16 bits become 8. CMYK goes\n"
         "  through its profile to RGB and back. EXIF orientation is applied.\n"
         "\n"
         "examples:\n"
         "  tarnwick age photo.jpg -o aged.jpg\n"
         "  tarnwick age --preset \"Rusted Tin Sign\" --set WashCoverage1=40 photo.jpg -o "
         "aged.jpg\n"
         "  tarnwick age --set SurfaceUse=0 --set WashStainColor2=#805020 in.png -o out.png\n"
         "  tarnwick age --seed 7 --output-dir aged --suffix -aged *.jpg\n"
         "  tarnwick age --scale 4 --view wash1 photo.jpg -o wash.png\n"
         "  tarnwick age --set WashType1=Stain --save-preset \"My Stain.twkpst\"\n"
         "\n"
         "exit status: 0 done, 1 some input failed, 2 wrong use\n";
}

}  // namespace tarnwick
