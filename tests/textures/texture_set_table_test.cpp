#include "textures/texture_set_table.h"

#include <gtest/gtest.h>

#include "support/temp_folder.h"

namespace tarnwick::testing {
namespace {

std::string Listed(const TextureSetTable& sets) {
  std::string text;
  for (const TextureSetEntry& set : sets) text += std::to_string(set.id) + '=' + set.name + ';';
  return text;
}

const std::string kLongest(63, 'n');

const struct {
  const char* name;
  std::string text;
  std::string sets;
  std::vector<int> faultyLines;
} kTables[] = {
    {"order of the lines", "7\tForge\n2\tPaper Drawer\n", "7=Forge;2=Paper Drawer;", {}},
    {"comments, blanks, empty lines", "; sets\n\n  ; more\n \t \n 1 \t Wood  \n", "1=Wood;", {}},
    {"lines of other systems",
     "\xEF\xBB\xBF"
     "1\tA\r\n2\tB",
     "1=A;2=B;",
     {}},
    {"largest number, longest name", "4294967295\t" + kLongest, "4294967295=" + kLongest + ';', {}},
    {"a longer name is cut", "1\t" + kLongest + "x\n2\tB\n", "1=" + kLongest + ";2=B;", {1}},
    {"a cut behind a blank",
     "1\t" + kLongest.substr(1) + " x\n",
     "1=" + kLongest.substr(1) + ";",
     {1}},
    {"no number", "one\tA\n\tB\n-1\tC\n4294967296\tD\n1 E\n5\tF\n", "5=F;", {1, 2, 3, 4, 5}},
    {"no name", "1\n2\t\n3\tC\n", "3=C;", {1, 2}},
    {"a number twice", "1\tA\n1\tB\n2\tC\n", "1=A;2=C;", {2}},
    {"a name twice", "1\tA\n2\ta\n", "1=A;", {2}},
    {"a control character in a name", "1\tA\x1B[31m\n2\tB\tC\n3\tD\n", "3=D;", {1, 2}},
    {"nothing", "", "", {}},
};

TEST(TextureSetTable, Lines) {
  for (const auto& c : kTables) {
    SCOPED_TRACE(c.name);
    std::vector<SetTableFault> faults;
    EXPECT_EQ(Listed(ParseTextureSets(c.text, faults)), c.sets);
    std::vector<int> lines;
    for (const SetTableFault& fault : faults) {
      lines.push_back(fault.line);
      EXPECT_FALSE(fault.text.empty());
    }
    EXPECT_EQ(lines, c.faultyLines);
  }
}

TEST(TextureSetTable, FilesAndLookUps) {
  const TextureSetTable sets = {{7, "Forge"}, {2, "Paper Drawer"}};
  const std::string text = TextureSetText(sets);
  const TempFolder folder;
  const std::string path = folder.Put(kTextureSetFile, Bytes(text.begin(), text.end()));
  TextureSetTable read = {{1, "old"}};
  std::vector<SetTableFault> faults;
  ASSERT_TRUE(LoadTextureSets(path, read, faults));
  EXPECT_EQ(Listed(read), Listed(sets));
  EXPECT_TRUE(faults.empty());
  EXPECT_EQ(FindSetName(read, 2), "Paper Drawer");
  EXPECT_EQ(FindSetName(read, 3), "");
  EXPECT_EQ(FindSetRow(read, "paper drawer"), 2);
  EXPECT_EQ(FindSetRow(read, "paper"), 0);
  EXPECT_FALSE(LoadTextureSets(folder.Path(), read, faults));
  EXPECT_TRUE(read.empty());
  EXPECT_FALSE(LoadTextureSets(folder.Path() + "/none", read, faults));
  EXPECT_FALSE(LoadTextureSets("/proc/self/mem", read, faults));
  // A file without end is read for 64 KiB, to the end of a line.
  std::string longText = "1\tA\n";
  while (longText.size() < (1U << 16)) longText += "; " + std::string(97, 'x') + "\n";
  std::ofstream(path, std::ios::binary) << longText << "2\tB\n";
  faults.clear();
  EXPECT_TRUE(LoadTextureSets(path, read, faults));
  EXPECT_EQ(Listed(read), "1=A;");
  EXPECT_EQ(faults.size(), 1U);
}

}  // namespace
}  // namespace tarnwick::testing
