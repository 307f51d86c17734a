#include <gtest/gtest.h>

#include <unistd.h>

#include <filesystem>
#include <stdexcept>

#include "resources/art_generator/drawing.h"

namespace tarnwick {
namespace {

class ArtSources : public testing::Test {
 protected:
  void SetUp() override {
    folders_.sources =
        std::filesystem::path(testing::TempDir()) / ("art_" + std::to_string(::getpid()));
    std::filesystem::create_directories(folders_.sources);
  }
  void TearDown() override { std::filesystem::remove_all(folders_.sources); }

  void Write(const char* name, const std::string& text) const {
    WriteWholeFile(folders_.sources / (std::string(name) + ".svg"), text);
  }

  ArtFolders folders_;
};

TEST_F(ArtSources, TakeTheirStateAndWhatTheyLieOn) {
  Write("plate", "<svg class=\"normal\"><?include grain?><rect/></svg>");
  Write("grain", "<svg width=\"4\" class=\"normal\"><g><circle/></g></svg>\n");
  Write("button", "<svg class=\"normal\"><?include plate?><b class=\"normal\"/></svg>");
  // Only the root takes the state, once.
  EXPECT_EQ(ArtSource(folders_, "button", "checked hover"),
            "<svg class=\"checked hover\"><g><circle/></g><rect/><b class=\"normal\"/></svg>");
}

TEST_F(ArtSources, StopTheBuildWhenTheyCannotBeFollowed) {
  Write("stateless", "<svg><g class=\"normal\"/></svg>");
  Write("endless", "<svg class=\"normal\"><?include stateless</svg>");
  Write("lost", "<svg class=\"normal\"><?include nowhere?></svg>");
  Write("empty", "class=\"normal\"");
  Write("on_empty", "<svg class=\"normal\"><?include empty?></svg>");
  for (const char* name : {"stateless", "endless", "lost", "on_empty", "missing"}) {
    EXPECT_THROW((void)ArtSource(folders_, name, "hover"), std::runtime_error) << name;
  }
}

}  // namespace
}  // namespace tarnwick
