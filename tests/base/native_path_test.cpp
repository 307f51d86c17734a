#include "base/native_path.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <fstream>
#include <string>

#include "support/temp_folder.h"

namespace tarnwick::testing {
namespace {

// An umlaut in the code page of Western systems; no UTF-8, and on Linux a name like
// any other. Empty where there is no such letter.
std::string Umlaut() {
  const std::string name = "\xC4hren";
  return NameOfPath(PathOfName(name)) == name ? name : std::string();
}

TEST(NativePath, PlainNamesStayAsTheyAre) {
  for (const char* name : {"", "a", "C:\\Data\\Old Barn\\", "x/y.twk"}) {
    EXPECT_EQ(NameOfPath(PathOfName(name)), name);
  }
  EXPECT_EQ(PathOfName("Wood/Barn.twk").filename(), "Barn.twk");
}

TEST(NativePath, NamesTheFilesThatTheCLibraryNames) {
  const std::string name = Umlaut();
  ASSERT_FALSE(name.empty()) << "the system's code page has no such letter: take another one";
  const TempFolder folder;
  const std::string made = folder.Path() + "/" + name;
  std::FILE* const file = std::fopen(made.c_str(), "wb");
  ASSERT_NE(file, nullptr);
  std::fputs("barley", file);
  std::fclose(file);
  std::string text;
  std::ifstream(PathOfName(made)) >> text;
  EXPECT_EQ(text, "barley");
  for (const auto& entry : std::filesystem::directory_iterator(PathOfName(folder.Path()))) {
    EXPECT_EQ(NameOfPath(entry.path().filename()), name);
  }
}

#ifdef _WIN32
// What the code page lacks names no file, and does not throw.
TEST(NativePath, LettersOutOfReach) {
  const std::filesystem::path path = L"\u4E00\U0001F33E\xD83C.twk";
  std::string name;
  EXPECT_NO_THROW(name = NameOfPath(path));
  EXPECT_TRUE(name.ends_with(".twk"));
}
#endif

}  // namespace
}  // namespace tarnwick::testing
