#include "environment/ui_file.h"

#include <gtest/gtest.h>

#include <fstream>
#include <iterator>

#include "support/temp_folder.h"

namespace tarnwick {
namespace {

using testing::TempFolder;

constexpr std::int32_t kUnset = -7;

struct Loaded {
  std::int32_t left = kUnset, top = kUnset, width = kUnset, height = kUnset;
  std::int32_t sharing = kUnset, sound = kUnset;
  bool operator==(const Loaded&) const = default;
};

std::ostream& operator<<(std::ostream& out, const Loaded& l) {
  return out << l.left << ' ' << l.top << ' ' << l.width << ' ' << l.height << ' ' << l.sharing
             << ' ' << l.sound;
}

Loaded Load(const std::string& path) {
  EffectSettings settings;
  settings.WindowLeft = settings.WindowTop = kUnset;
  settings.WindowWidth = settings.WindowHeight = kUnset;
  UiValues values{kUnset, kUnset, {}};
  LoadUiFile(path, settings, values);
  return {settings.WindowLeft,   settings.WindowTop,         settings.WindowWidth,
          settings.WindowHeight, values.resolutionOfSharing, values.useSound};
}

TEST(UiFile, IsReadLineByLine) {
  const struct {
    const char* name;
    const char* text;
    Loaded wanted;
  } kFiles[] = {
      {"all of it", "tfeL 1 ;x\n poT 2\nhtdW 3\nthgH 4\ntlsR 5\nnSsU 0\n", {1, kUnset, 3, 4, 5, 0}},
      {"ends of lines of all kinds, blanks and tabs before the key",
       "\ttfeL\t\t1\r\n  htdW 3\rthgH  4\n",
       {1, kUnset, 3, 4, kUnset, kUnset}},
      {"a last line needs no end", "tfeL 1\nhtdW 3", {1, kUnset, 3, kUnset, kUnset, kUnset}},
      {"letters of other alphabets end no line",
       "; h\xE9 \ntfeL 7\n;\xE9 tfeL 8\n",
       {7, kUnset, kUnset, kUnset, kUnset, kUnset}},
      {"without a number it is 0", "tfeL\nhtdW ;3\n", {0, kUnset, 0, kUnset, kUnset, kUnset}},
      {"comments, blank and short lines, unknown keys, other capitals",
       ";tfeL 1\n\ntfe\n;\nabcd 9\nTFEL 8\n",
       {}},
      {"the later line counts", "tfeL 1\ntfeL -2\n", {-2, kUnset, kUnset, kUnset, kUnset, kUnset}},
      {"what follows the number is not looked at",
       "thgH 12 34 ;56\n",
       {kUnset, kUnset, kUnset, 12, kUnset, kUnset}},
      {"the words the right way round are no keys", "Left 1\nWdth 2\n", {}},
  };
  const TempFolder folder;
  const std::string path = folder.Path() + "/ui.ini";
  for (const auto& file : kFiles) {
    std::ofstream(path, std::ios::binary) << file.text;
    EXPECT_EQ(Load(path), file.wanted) << file.name;
  }
  EXPECT_EQ(Load(folder.Path() + "/missing.ini"), Loaded{});
}

TEST(UiFile, IsWrittenAsItIsDocumented) {
  const TempFolder folder;
  const std::string path = folder.Path() + "/ui.ini";
  std::ofstream(path)
      << "an older and longer file, which has to go, whatever it may say of this "
         "and of that and of more than all lines of the new one together take up "
         "in the end, and then some.................................................";
  EffectSettings settings;
  settings.WindowLeft = -10;
  settings.WindowTop = 20;
  settings.WindowWidth = 923;
  settings.WindowHeight = 704;
  SaveUiFile(path, settings, {1024, 0, ""});
  std::ifstream in(path, std::ios::binary);
  const std::string text{std::istreambuf_iterator<char>(in), {}};
  EXPECT_EQ(text,
            ";Parameters for TarnwickStudio plug-in UI\n"
            "tfeL -10 \t\t\t\t;Left of window\n"
            " poT 20 \t\t\t\t;Top of window\n"
            "htdW 923 \t\t\t\t;Width of window\n"
            "thgH 704 \t\t\t\t;Height of window\n"
            "tlsR 1024 \t\t\t\t;Resolution of sharing\n"
            "nSsU 0 \t\t\t\t;Use sound for Auto\n");
  SaveUiFile(path, settings, {1024, 0, "http://host/news"});
  std::ifstream more(path, std::ios::binary);
  const std::string withNews{std::istreambuf_iterator<char>(more), {}};
  EXPECT_EQ(withNews, text + "sweN http://host/news \t\t\t\t;Address of news\n");
  // The top is not restored.
  EXPECT_EQ(Load(path), (Loaded{-10, kUnset, 923, 704, 1024, 0}));
  SaveUiFile(folder.Path() + "/no/such/folder/ui.ini", settings, {});
}

TEST(UiFile, KeepsTheAddressOfNews) {
  const struct {
    const char* name;
    const char* text;
    const char* wanted;
  } kFiles[] = {
      {"up to the comment", "sweN http://h/a \t\t\t\t;Address of news\n", "http://h/a"},
      {"at the end", "tfeL 1\n\tsweN\thttp://h/a", "http://h/a"},
      {"nothing", "sweN \t;Address of news\n", ""},
      {"no line takes an earlier one away", "tfeL 1\n", ""},
      {"nor does a comment count", ";sweN http://h/a\n", ""},
      {"an empty file tells nothing", "", "earlier"},
  };
  const TempFolder folder;
  const std::string path = folder.Path() + "/ui.ini";
  for (const auto& file : kFiles) {
    std::ofstream(path, std::ios::binary) << file.text;
    EffectSettings settings;
    UiValues values;
    values.newsAddress = "earlier";
    LoadUiFile(path, settings, values);
    EXPECT_EQ(values.newsAddress, file.wanted) << file.name;
    SaveUiFile(path, settings, values);
    UiValues again;
    LoadUiFile(path, settings, again);
    EXPECT_EQ(again.newsAddress, file.wanted) << file.name;
  }
}

}  // namespace
}  // namespace tarnwick
