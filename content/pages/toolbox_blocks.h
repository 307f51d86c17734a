#pragma once
#include <string>
#include <string_view>
#include <vector>

#include "toolbox/field.h"

namespace tarnwick::content {

// A building block of the toolbox as its page shows it.
struct ToolboxBlock {
  std::string_view name;  // of its header in toolbox/, without ".h"
  std::string_view what;  // one sentence: what recipes use it for
  // A demonstration for a sheet of kBlockWidth x kBlockHeight, 0..1.
  Field (*paint)(const Sheet& sheet);
};

inline constexpr int kBlockWidth = 600, kBlockHeight = 450;

// A family of blocks: a chapter and a sheet of the page.
struct ToolboxChapter {
  std::string_view title;
  std::string_view fileName;  // of its sheet
  std::vector<ToolboxBlock> blocks;
};

// From arithmetic to materials.
[[nodiscard]] ToolboxChapter GroundBlocks();
[[nodiscard]] ToolboxChapter FigureBlocks();
[[nodiscard]] ToolboxChapter MaterialBlocks();

// All of them, in that order.
[[nodiscard]] std::vector<ToolboxChapter> ToolboxChapters();

// The generated part of docs/toolbox.md, in Markdown.
[[nodiscard]] std::string ToolboxPage();

}  // namespace tarnwick::content
