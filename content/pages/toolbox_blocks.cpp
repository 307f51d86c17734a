#include "pages/toolbox_blocks.h"

namespace tarnwick::content {

std::vector<ToolboxChapter> ToolboxChapters() {
  return {GroundBlocks(), FigureBlocks(), MaterialBlocks()};
}

std::string ToolboxPage() {
  std::string page;
  for (const ToolboxChapter& chapter : ToolboxChapters()) {
    const std::string title(chapter.title);
    page += "## " + title + "\n\n![" + title + "](toolbox/" + std::string(chapter.fileName) +
            ")\n\n| Block | What it is for |\n|---|---|\n";
    for (const ToolboxBlock& block : chapter.blocks) {
      page += "| `" + std::string(block.name) + ".h` | " + std::string(block.what) + " |\n";
    }
    page += '\n';
  }
  page.pop_back();
  return page;
}

}  // namespace tarnwick::content
