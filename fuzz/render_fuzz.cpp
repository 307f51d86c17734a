// Any bytes as settings and picture: a small render ends, and every instruction
// set and number of threads gives the same pixels, final and preview. Every
// field takes a few bytes: run with -len_control=0 -max_len=700.
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <string>
#include <vector>

#include "engine/apply_run.h"
#include "engine/picture_io.h"
#include "engine/render_layers.h"
#include "engine/render_pipeline.h"
#include "settings/settings_table.h"
#include "textures/wash_file_writer.h"

namespace {

using namespace tarnwick;
using Bytes = std::vector<std::uint8_t>;

constexpr const char* kTextures[] = {"Bumps.twk", "Thread.twk", "Dot.twk", "No_Texture.twk",
                                     "Missing.twk"};

// Three textures of unlike shapes, made once.
std::string TextureFolder() {
  static const std::string folder = [] {
    const auto path = std::filesystem::temp_directory_path() / "tarnwick-render-fuzz";
    std::filesystem::create_directories(path);
    const int sizes[][2] = {{37, 29}, {3, 61}, {1, 1}};
    for (std::size_t i = 0; i < 3; ++i) {
      const auto [width, height] = sizes[i];
      Bytes samples;
      for (int k = 0; k < width * height; ++k) {
        samples.push_back(static_cast<std::uint8_t>((k * k * 7 + k * 31) >> 2));
      }
      if (WriteWashFile((path / kTextures[i]).string(), {width, height, 1}, samples) !=
          WashWriteOutcome::kDone) {
        std::abort();
      }
    }
    return path.string();
  }();
  return folder;
}

// Deals out the input; 0 when there is no more.
class Input {
 public:
  Input(const std::uint8_t* data, std::size_t size) : data_(data), size_(size) {}
  std::uint8_t Byte() { return at_ < size_ ? data_[at_++] : std::uint8_t{0}; }

 private:
  const std::uint8_t* data_;
  std::size_t size_;
  std::size_t at_ = 0;
};

// Most values lie in the dialog's range, some are whatever fits the field.
double Value(Input& input, const SettingField& field) {
  const std::uint8_t kind = input.Byte();
  if (kind >= 0xF0 || !field.range.IsStated()) {
    std::int32_t word = 0;
    for (int i = 0; i < 4; ++i) word = word << 7 ^ static_cast<std::int8_t>(input.Byte());
    return word;
  }
  const double span = field.range.maximum - field.range.minimum;
  return field.range.minimum + static_cast<int>(span * input.Byte() / 255);
}

void SetField(Input& input, const SettingField& field, EffectSettings& settings) {
  char* const place = reinterpret_cast<char*>(&settings) + field.offset;
  if (field.type == SettingType::kText) {
    // A missing one takes long: its stand-in is large.
    const std::uint8_t pick = input.Byte();
    std::snprintf(place, kTextureNameSize, "%s", kTextures[pick == 255 ? 4 : pick % 4]);
    return;
  }
  const double value = Value(input, field);
  const auto whole = static_cast<std::int64_t>(value);
  if (field.type == SettingType::kFloat) {
    const auto number = static_cast<float>(value);
    std::memcpy(place, &number, sizeof number);
  } else {
    // The low bytes, as all that this runs on stores them first.
    std::memcpy(place, &whole, field.size);
  }
}

EffectSettings SettingsOf(Input& input) {
  EffectSettings settings;
  SettingsSession session;
  InitSettingsToDefaults(settings, session);
  for (const SettingField& field : SettingsTable()) {
    if (field.inSession || !UserMaySet(field)) continue;
    if (field.type == SettingType::kText || (input.Byte() & 1) != 0) {
      SetField(input, field, settings);
    }
  }
  return settings;
}

struct Picture {
  PictureJob job;
  Bytes in;
  Bytes selection;
  Bytes out;
};

void MakePicture(Input& input, Picture& picture) {
  PictureJob& job = picture.job;
  job.width = 1 + input.Byte() % 67;
  job.height = 1 + input.Byte() % 33;
  const std::uint8_t shape = input.Byte();
  job.planes = 3 + (shape & 1);
  const auto count = static_cast<std::size_t>(job.width * job.height);
  const std::uint8_t seed = input.Byte();
  for (std::size_t i = 0; i < count * static_cast<std::size_t>(job.planes); ++i) {
    picture.in.push_back(static_cast<std::uint8_t>(i * (seed | 1U) + (i >> 5) * 97));
  }
  for (std::size_t i = 0; (shape & 2) != 0 && i < count; ++i) {
    picture.selection.push_back(static_cast<std::uint8_t>(i * 5 + seed));
  }
  picture.out.assign(picture.in.size(), 0);
  job.in = picture.in.data();
  job.out = picture.out.data();
  job.inRowBytes = job.outRowBytes = static_cast<std::ptrdiff_t>(job.width) * job.planes;
  job.selection = picture.selection.empty() ? nullptr : picture.selection.data();
  job.selectionRowBytes = job.width;
  job.textureFolder = TextureFolder();
}

// As ApplyToPicture, with the instruction set chosen.
Bytes Render(const Picture& picture, EffectSettings settings, Isa isa, ThreadPool* pool) {
  const PictureJob& job = picture.job;
  RenderState state;
  EffectLayers layers;
  PageBuffer<std::uint8_t> plane;
  state.renderWidth = state.documentWidth = job.width;
  state.renderHeight = state.documentHeight = job.height;
  state.renderRowBytes = job.width * 4;
  state.planes = job.planes;
  state.hasSelection = job.selection != nullptr;
  state.selection = job.selection;
  state.selectionRowBytes = job.selectionRowBytes;
  state.textureFolder = job.textureFolder;
  state.pool = pool;
  state.isa = isa;
  if (!BuildSelectionPlane(job, plane)) std::abort();
  if (state.hasSelection || job.planes > 3) state.selectionPlane = plane.Data();
  if (FetchSource(state, job) != ApplyOutcome::kDone) std::abort();
  CreateLayers(layers, state, settings, SettingsSession{});
  RenderPipeline(layers, state, settings, ViewMode::kComposite);
  return {state.outputPixels.Data(), state.outputPixels.Data() + state.outputPixels.Size()};
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static ThreadPool pool(3);
  Input input(data, size);
  Picture picture;
  MakePicture(input, picture);
  PreviewWindow window = WholeWindow(picture.job.width, picture.job.height, 1 + input.Byte() % 5);
  window.x = input.Byte() % 8;
  window.y = input.Byte() % 8;
  window.view = static_cast<ViewMode>(input.Byte() % 7);
  EffectSettings settings = SettingsOf(input);

  const Bytes plain = Render(picture, settings, Isa::kPlain, nullptr);
  if (Render(picture, settings, BestIsa(), nullptr) != plain) std::abort();
  if (Render(picture, settings, Isa::kPlain, &pool) != plain) std::abort();

  SettingsSession session;
  EffectSettings shown = settings;
  picture.job.outRowBytes = static_cast<std::ptrdiff_t>(window.width) * picture.job.planes;
  if (RenderPreview(shown, session, picture.job, window) != ApplyOutcome::kDone) std::abort();
  const Bytes once = picture.out;
  picture.job.pool = &pool;
  shown = settings;
  if (RenderPreview(shown, session, picture.job, window) != ApplyOutcome::kDone) std::abort();
  if (picture.out != once) std::abort();
  return 0;
}
