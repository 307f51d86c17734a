#include "host/scenario_lines.h"

#include <algorithm>
#include <filesystem>
#include <fstream>

#include "host/words.h"

namespace tarnwick::testhost {
namespace {

using Lines = std::vector<ScenarioLine>;

std::string FirstWord(const ScenarioLine& line) {
  Words words(line.text);
  return words.IsEmpty() ? std::string() : words.Next("word");
}

std::vector<std::string> FoldersOf(const std::string& path) {
  std::vector<std::string> names;
  for (const auto& entry : std::filesystem::directory_iterator(path)) {
    if (entry.is_directory()) names.push_back(entry.path().filename().string());
  }
  std::sort(names.begin(), names.end());
  return names;
}

std::string Replaced(std::string text, const std::string& name, const std::string& value) {
  const std::string mark = "${" + name + "}";
  for (std::size_t at = text.find(mark); at != std::string::npos; at = text.find(mark, at)) {
    text.replace(at, mark.size(), value);
    at += value.size();
  }
  return text;
}

// The line of the `end` that closes the loop before `from`.
std::size_t EndOf(const Lines& lines, std::size_t from) {
  int depth = 1;
  for (std::size_t i = from; i < lines.size(); ++i) {
    const std::string word = FirstWord(lines[i]);
    if (word == "for") ++depth;
    if (word == "end" && --depth == 0) return i;
  }
  throw ScenarioError("a loop has no end");
}

std::vector<std::string> ValuesOf(Words& words, const std::string& dataFolder) {
  if (words.Accept("folders")) {
    words.Demand("of");
    std::vector<std::string> names = FoldersOf(dataFolder + '/' + words.Next("folder"));
    if (words.Accept("except")) {
      while (!words.IsEmpty()) std::erase(names, words.Next("folder"));
    }
    return names;
  }
  std::vector<std::string> values;
  while (!words.IsEmpty()) values.push_back(words.Next("value"));
  return values;
}

void Unroll(const Lines& lines, const std::string& dataFolder, Lines& out) {
  for (std::size_t i = 0; i < lines.size(); ++i) {
    const std::string word = FirstWord(lines[i]);
    if (word == "end") throw ScenarioError("an end without a loop");
    if (word != "for") {
      if (!word.empty()) out.push_back(lines[i]);
      continue;
    }
    Words words(lines[i].text);
    words.Demand("for");
    const std::string name = words.Next("name");
    words.Demand("in");
    const std::size_t end = EndOf(lines, i + 1);
    for (const std::string& value : ValuesOf(words, dataFolder)) {
      Lines body(lines.begin() + static_cast<std::ptrdiff_t>(i) + 1,
                 lines.begin() + static_cast<std::ptrdiff_t>(end));
      for (ScenarioLine& line : body) line.text = Replaced(line.text, name, value);
      Unroll(body, dataFolder, out);
    }
    i = end;
  }
}

}  // namespace

std::vector<Scenario> ReadScenarios(const std::string& path, const std::string& dataFolder) {
  std::ifstream in(path);
  if (!in) throw ScenarioError("cannot be read");
  Lines lines;
  std::string text;
  for (int number = 1; std::getline(in, text); ++number) lines.push_back({number, text});
  Lines unrolled;
  Unroll(lines, dataFolder, unrolled);
  std::vector<Scenario> scenarios;
  for (const ScenarioLine& line : unrolled) {
    Words words(line.text);
    if (words.Accept("scenario")) {
      scenarios.push_back({words.Next("title"), {}});
    } else if (scenarios.empty()) {
      throw ScenarioError("line " + std::to_string(line.number) + ": no scenario has begun");
    } else {
      scenarios.back().lines.push_back(line);
    }
  }
  return scenarios;
}

}  // namespace tarnwick::testhost
