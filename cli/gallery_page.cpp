#include "gallery_page.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <filesystem>

#include "gallery_assets.h"
#include "json_writer.h"
#include "page_text.h"
#include "picture_formats.h"

namespace tarnwick {
namespace {

namespace fs = std::filesystem;

constexpr std::string_view kGeneratorTag = "<meta name=\"generator\" content=\"tarnwick gallery";

std::string_view StepOption(AgeStep::Kind kind) {
  switch (kind) {
    case AgeStep::Kind::kPreset:
      return "--preset";
    case AgeStep::Kind::kSet:
      return "--set";
    case AgeStep::Kind::kSurfaceColors:
      return "--surface-colors";
    case AgeStep::Kind::kBackgroundColors:
      return "--background-colors";
    case AgeStep::Kind::kSeed:
      return "--seed";
  }
  return "";
}

void WriteNames(JsonWriter& json, std::string_view key, std::span<const std::string> names) {
  json.Key(key).BeginArray();
  for (const std::string& name : names) json.String(name);
  json.EndArray();
}

void WriteLook(JsonWriter& json, const GalleryPage& page, const GalleryLook& look) {
  json.BeginObject();
  json.Key("id").String(look.id);
  json.Key("name").String(look.name);
  json.Key("kind").String(PresetKindWord(look.kind));
  json.Key("kindTitle").String(KindTitle(look.kind));
  json.Key("folder").String(look.folder);
  json.Key("small").String(SmallPicture(look.id));
  json.Key("large").String(LargePicture(look.id));
  json.Key("command").String(LookCommand(page, look));
  json.Key("textures").BeginArray();
  for (const LookTexture& texture : look.textures) {
    json.BeginObject();
    json.Key("role").String(texture.role);
    json.Key("name").String(texture.name);
    json.Key("set").String(texture.set);
    json.EndObject();
  }
  json.EndArray();
  WriteNames(json, "effects", look.effects);
  WriteNames(json, "categories", look.categories);
  json.EndObject();
}

std::string DataText(const GalleryPage& page, std::span<const GalleryLook> looks) {
  JsonWriter json;
  json.BeginObject();
  json.Key("width").Number(std::int64_t{page.largeWidth});
  json.Key("height").Number(std::int64_t{page.largeHeight});
  json.Key("looks").BeginArray();
  for (const GalleryLook& look : looks) WriteLook(json, page, look);
  json.EndArray();
  json.EndObject();
  return JsonForScript(json.Text());
}

std::string CardText(const GalleryPage& page, const GalleryLook& look) {
  const std::array<std::pair<std::string_view, std::string>, 7> values = {{
      {"id", look.id},
      {"name", EscapeHtml(look.name)},
      {"folder", EscapeHtml(look.folder)},
      {"small", SmallPicture(look.id)},
      {"large", LargePicture(look.id)},
      {"width", std::to_string(page.smallWidth)},
      {"height", std::to_string(page.smallHeight)},
  }};
  return FillTemplate(kGalleryCard, values);
}

// How wide a card is at least, so that cards of any shape take about one area.
std::string CardWidth(const GalleryPage& page) {
  const double ratio = static_cast<double>(page.smallWidth) / std::max(page.smallHeight, 1);
  const double rem = std::clamp(14 * std::sqrt(ratio), 11.5, 26.0);
  return std::to_string(static_cast<int>(rem * 16)) + "px";
}

// The cards of each kind under its heading, in the order of the looks.
std::string GroupsText(const GalleryPage& page, std::span<const GalleryLook> looks) {
  std::string text;
  for (std::size_t begin = 0; begin < looks.size();) {
    std::string cards;
    std::size_t end = begin;
    while (end < looks.size() && looks[end].kind == looks[begin].kind) {
      cards += CardText(page, looks[end++]);
    }
    const std::array<std::pair<std::string_view, std::string>, 2> values = {{
        {"kind", EscapeHtml(KindTitle(looks[begin].kind))},
        {"cards", cards},
    }};
    text += FillTemplate(kGalleryGroup, values);
    begin = end;
  }
  return text;
}

}  // namespace

std::string SmallPicture(std::string_view id) {
  return "small/" + std::string(id) + ".jpg";
}

std::string LargePicture(std::string_view id) {
  return "large/" + std::string(id) + ".jpg";
}

std::string LookCommand(const GalleryPage& page, const GalleryLook& look) {
  std::string command = "tarnwick age";
  const auto add = [&](std::string_view word) { command += " " + ShellWord(word); };
  for (const std::string& word : page.dataWords) add(word);
  for (const AgeStep& step : look.steps) {
    add(StepOption(step.kind));
    add(step.value);
  }
  const fs::path photo = page.photo;
  const std::string extension = photo.extension().string();
  const PictureFormat* format = FindFormat(extension);
  const bool isWritable = !extension.empty() && format != nullptr && format->color;
  add("-o");
  add(photo.stem().string() + " - " + look.name + (isWritable ? extension : ".jpg"));
  if (page.photo.starts_with('-')) add("--");
  add(page.photo);
  return command;
}

std::string GalleryPageText(const GalleryPage& page, std::span<const GalleryLook> looks) {
  const std::string count = std::to_string(looks.size()) + (looks.size() == 1 ? " look" : " looks");
  const std::array<std::pair<std::string_view, std::string>, 13> values = {{
      {"generator", std::string(kGeneratorTag) + " " TARNWICK_VERSION "\">"},
      {"title", EscapeHtml(page.title)},
      {"photo", EscapeHtml(page.photoName)},
      {"count", count},
      {"original", LargePicture(kOriginalId)},
      {"originalSmall", SmallPicture(kOriginalId)},
      {"width", std::to_string(page.largeWidth)},
      {"height", std::to_string(page.largeHeight)},
      {"card", CardWidth(page)},
      {"style", std::string(kGalleryStyle)},
      {"groups", GroupsText(page, looks)},
      {"data", DataText(page, looks)},
      {"script", std::string(kGalleryScript)},
  }};
  return FillTemplate(kGalleryPage, values);
}

bool IsGalleryPage(std::string_view html) {
  return html.find(kGeneratorTag) != std::string_view::npos;
}

}  // namespace tarnwick
