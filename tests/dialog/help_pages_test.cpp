#include "dialog/models/help_pages.h"

#include <gtest/gtest.h>

namespace tarnwick {
namespace {

TEST(HelpPages, EachCodeHasItsOwn) {
  const struct {
    int code;
    const char* page;
  } kPages[] = {
      {777, "basic.html"},      {778, "wash.html"},           {779, "surface.html"},
      {780, "background.html"}, {877, "texture_picker.html"}, {0, "index.html"},
      {776, "index.html"},      {781, "index.html"},          {876, "index.html"},
      {-1, "index.html"},
  };
  for (const auto& row : kPages) EXPECT_STREQ(HelpPageOf(row.code), row.page) << row.code;
}

}  // namespace
}  // namespace tarnwick
