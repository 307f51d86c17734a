// tarnwick gallery: a photograph in every look of the library, as a page.
#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <new>
#include <system_error>

#include "command.h"
#include "data_folders.h"
#include "gallery_looks.h"
#include "gallery_options.h"
#include "gallery_page.h"
#include "gallery_pictures.h"
#include "output_file.h"
#include "picture_formats.h"
#include "picture_load.h"
#include "picture_save.h"
#include "vips_library.h"

namespace tarnwick {
namespace {

namespace fs = std::filesystem;

constexpr int kSmallSide = 480;
constexpr int kSmallQuality = 86;
constexpr int kLargeQuality = 90;
constexpr char kPageName[] = "index.html";

// All files that the run makes, the page first.
std::vector<fs::path> Targets(const fs::path& folder, const std::vector<GalleryLook>& looks) {
  std::vector<fs::path> targets = {folder / kPageName};
  const auto add = [&](std::string_view id) {
    targets.push_back(folder / SmallPicture(id));
    targets.push_back(folder / LargePicture(id));
  };
  add(kOriginalId);
  for (const GalleryLook& look : looks) add(look.id);
  return targets;
}

// All that could stop the run, before any of its work.
void RequireFreeTargets(const GalleryOptions& options, const std::vector<fs::path>& targets) {
  std::error_code fault;
  for (const fs::path& target : targets) {
    if (fs::equivalent(target, options.photo, fault) && !fault) {
      FailUse(target.string(), "is the photograph itself", "choose another folder");
    }
    if (!fs::exists(fs::symlink_status(target, fault))) continue;
    if (!options.force) {
      FailInput(target.string(), "is there already", "give --force to make the gallery anew");
    }
  }
  const fs::path& page = targets.front();
  std::ifstream file(page, std::ios::binary);
  if (!file) return;
  const std::string html{std::istreambuf_iterator<char>(file), {}};
  if (!IsGalleryPage(html)) {
    FailInput(page.string(), "is no page of a gallery and stays", "choose another folder");
  }
}

void MakeFolders(const fs::path& folder) {
  const fs::path large = LargePicture(kOriginalId);
  const fs::path small = SmallPicture(kOriginalId);
  for (const fs::path& made :
       {folder, folder / large.parent_path(), folder / small.parent_path()}) {
    std::error_code fault;
    fs::create_directories(made, fault);
    if (fault || !fs::is_directory(made, fault)) {
      FailUse(made.string(), "cannot be made a folder", "choose another -o DIR");
    }
  }
}

void WritePage(const fs::path& path, const std::string& text, bool mayReplace) {
  OutputFile file(path, mayReplace);
  std::ofstream stream(file.TemporaryPath(), std::ios::binary | std::ios::trunc);
  stream << text;
  stream.close();
  if (!stream) FailInput(path.string(), "cannot be written", "check disk space");
  file.Commit();
}

class GalleryRun {
 public:
  GalleryRun(const GalleryOptions& options, const Picture& photo, const fs::path& textures,
             ThreadPool& pool, Console& console)
      : options_(options),
        console_(console),
        textures_(textures),
        pictures_(photo, textures, pool),
        smallScale_(ScaleFor(photo.Width(), photo.Height(), kSmallSide)),
        largeScale_(ScaleFor(photo.Width(), photo.Height(), options.largeSide)) {}

  void MakePictures(std::string_view id, const ComposedSettings& look, ViewMode view) {
    AlertList alerts;
    MakePicture(SmallPicture(id), look, view, smallScale_, kSmallQuality, alerts);
    MakePicture(LargePicture(id), look, view, largeScale_, kLargeQuality, alerts);
    for (const std::string& text : alerts.Texts()) {
      if (std::ranges::find(told_, text) != told_.end()) continue;
      told_.push_back(text);
      console_.Warning(text + " (" + AlertAdvice(text, textures_, look.settings) + ")");
    }
  }

  [[nodiscard]] int SmallScale() const { return smallScale_; }
  [[nodiscard]] int LargeScale() const { return largeScale_; }

 private:
  void MakePicture(const fs::path& name, const ComposedSettings& look, ViewMode view, int scale,
                   int quality, AlertList& alerts) {
    const fs::path path = options_.folder / name;
    const Picture shown = pictures_.Render(look, scale, view, alerts, options_.photo);
    OutputFile file(path, options_.force);
    PictureNotes ignored;  // Told of the photograph already, if at all.
    SavePicture(shown, file.TemporaryPath(), path.string(), FormatOf(path), quality, ignored);
    file.Commit();
  }

  const GalleryOptions& options_;
  Console& console_;
  fs::path textures_;
  GalleryPictures pictures_;
  int smallScale_;
  int largeScale_;
  std::vector<std::string> told_;
};

// What a command line needs to find the same library again.
std::vector<std::string> DataWords(const ParsedArguments& arguments) {
  std::vector<std::string> words;
  for (const char* name : {"data", "textures", "presets"}) {
    if (const std::string* value = arguments.Value(name)) {
      words.push_back("--" + std::string(name));
      words.push_back(*value);
    }
  }
  return words;
}

GalleryPage Describe(const GalleryOptions& options, const ParsedArguments& arguments,
                     const Picture& photo, const GalleryRun& run) {
  GalleryPage page;
  page.title = options.title;
  page.photo = options.photo.string();
  page.photoName = options.photo.filename().string();
  page.dataWords = DataWords(arguments);
  const PreviewWindow small = WholeWindow(photo.Width(), photo.Height(), run.SmallScale());
  const PreviewWindow large = WholeWindow(photo.Width(), photo.Height(), run.LargeScale());
  page.smallWidth = small.width;
  page.smallHeight = small.height;
  page.largeWidth = large.width;
  page.largeHeight = large.height;
  return page;
}

ExitCode MakeGallery(const GalleryOptions& options, const ParsedArguments& arguments,
                     const DataFolders& folders, Console& console) {
  bool failed = false;
  const std::vector<GalleryLook> looks = ListLooks(folders, options.kinds, console, failed);
  if (looks.empty()) {
    FailUse("gallery", "there is no preset to show in " + folders.Presets().string(),
            "choose another --kind, or see tarnwick presets list");
  }
  const std::vector<fs::path> targets = Targets(options.folder, looks);
  RequireFreeTargets(options, targets);

  const VipsLibrary library(options.threads);
  PictureNotes notes;
  Picture photo = LoadPicture(options.photo, notes);
  for (const std::string& note : notes) console.Warning(options.photo.string() + ": " + note);
  // Browsers show CMYK badly; as it stands here, the picture is sRGB.
  photo.fromCmyk = false;
  MakeFolders(options.folder);

  ThreadPool pool(options.threads);
  const fs::path textures = folders.HasTextures() ? folders.Textures() : fs::path();
  GalleryRun run(options, photo, textures, pool, console);
  run.MakePictures(kOriginalId, looks.front().composed, ViewMode::kOriginal);
  for (std::size_t i = 0; i < looks.size(); ++i) {
    console.DrawProgress(
        std::to_string(i + 1) + "/" + std::to_string(looks.size()) + " " + looks[i].name,
        static_cast<int>(100 * i / looks.size()));
    run.MakePictures(looks[i].id, looks[i].composed, ViewMode::kComposite);
  }
  console.WipeProgress();
  // The page comes last: it never names a picture that is not there.
  WritePage(targets.front(), GalleryPageText(Describe(options, arguments, photo, run), looks),
            options.force);
  return failed ? ExitCode::kInputFailed : ExitCode::kDone;
}

}  // namespace

ExitCode RunGallery(Console& console, std::span<const std::string> words) {
  const ParsedArguments arguments = ParseArguments(GalleryOptionRows(), words);
  if (arguments.Has("help")) {
    Print(GalleryHelp());
    return ExitCode::kDone;
  }
  if (arguments.Has("quiet")) console.BeQuiet();
  const GalleryOptions options = ReadGalleryOptions(arguments);
  const DataFolders folders(arguments);
  try {
    return MakeGallery(options, arguments, folders, console);
  } catch (const std::bad_alloc&) {
    FailInput(options.photo.string(), "there is not enough memory for it",
              "close other programs or make the picture smaller");
  }
}

}  // namespace tarnwick
