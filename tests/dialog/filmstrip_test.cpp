#include "dialog/models/filmstrip.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace tarnwick {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

// "index@place", "*" for the hot one.
std::vector<std::string> Seen(const Filmstrip& film) {
  std::vector<std::string> cells;
  for (const FilmCell& cell : film.Cells()) {
    cells.push_back(std::to_string(cell.index) + "@" + std::to_string(cell.x) +
                    (cell.isHot ? "*" : ""));
  }
  return cells;
}

Filmstrip WithNames(int count) {
  Filmstrip film;
  film.SetCount(count);
  return film;
}

// Ten steps of the way and one that ends it.
void SlideWhole(Filmstrip& film, FilmSlide direction) {
  ASSERT_TRUE(film.StartSlide(direction));
  for (int i = 0; i < 10; ++i) ASSERT_FALSE(film.Step()) << i;
  ASSERT_TRUE(film.Step());
}

TEST(Filmstrip, PagesAndArrows) {
  const struct {
    int count, pages;
    bool canGoForward;
  } kCounts[] = {{0, 0, false}, {1, 1, false}, {5, 1, false}, {6, 2, true}, {11, 3, true}};
  for (const auto& c : kCounts) {
    const Filmstrip film = WithNames(c.count);
    EXPECT_EQ(film.PageCount(), c.pages) << c.count;
    EXPECT_EQ(film.CanGoForward(), c.canGoForward) << c.count;
    EXPECT_FALSE(film.CanGoBack()) << c.count;
  }
  EXPECT_THAT(Seen(WithNames(0)), IsEmpty());
  EXPECT_THAT(Seen(WithNames(2)), ElementsAre("0@0", "1@63"));
}

TEST(Filmstrip, TheSixthNameIsAloneOnTheSecondPage) {
  Filmstrip film = WithNames(6);
  EXPECT_THAT(Seen(film), ElementsAre("0@0", "1@63", "2@126", "3@189", "4@252"));
  SlideWhole(film, FilmSlide::kForward);
  EXPECT_THAT(Seen(film), ElementsAre("5@0"));
  EXPECT_TRUE(film.CanGoBack());
  EXPECT_FALSE(film.CanGoForward());
  SlideWhole(film, FilmSlide::kBack);
  EXPECT_EQ(film.Page(), 0);
  // Beyond the ends, where the arrows do not lead.
  SlideWhole(film, FilmSlide::kBack);
  EXPECT_EQ(film.Page(), 0);
  SlideWhole(film, FilmSlide::kForward);
  SlideWhole(film, FilmSlide::kForward);
  EXPECT_EQ(film.Page(), 1);
}

// sqrt(step / 10) * 5 cells of 63 pixels: 1.58, 2.24, 2.74, 3.16, 3.54, 3.87, 4.18, 4.47,
// 4.74 and 5, less what is whole.
TEST(Filmstrip, SlidesFastFirstAndEasesOut) {
  const struct {
    int first, shift;
  } kForward[] = {{0, 0},   {1, -36}, {2, -14}, {2, -46}, {3, -10}, {3, -33},
                  {3, -54}, {4, -11}, {4, -29}, {4, -46}, {5, 0}},
    kBack[] = {{9, -63}, {8, -26}, {7, -48}, {7, -16}, {6, -52}, {6, -29},
               {6, -8},  {5, -51}, {5, -33}, {5, -16}, {4, -63}};
  Filmstrip film = WithNames(30);
  film.StartSlide(FilmSlide::kForward);
  for (const auto& want : kForward) {
    EXPECT_THAT(film.Cells().front().index, want.first);
    EXPECT_THAT(film.Cells().front().x, want.shift) << want.first;
    EXPECT_EQ(film.Cells().size(), 6U);
    EXPECT_FALSE(film.StartSlide(FilmSlide::kBack)) << "one at a time";
    (void)film.Step();
  }
  SlideWhole(film, FilmSlide::kForward);
  film.StartSlide(FilmSlide::kBack);
  for (const auto& want : kBack) {
    EXPECT_EQ(film.Cells().front().index, want.first);
    EXPECT_EQ(film.Cells().front().x, want.shift) << want.first;
    (void)film.Step();
  }
  EXPECT_EQ(film.Page(), 1);
  EXPECT_THAT(Seen(film), ElementsAre("5@0", "6@63", "7@126", "8@189", "9@252"));
}

TEST(Filmstrip, ABackSlideStopsAtTheFirst) {
  Filmstrip film = WithNames(7);
  film.StartSlide(FilmSlide::kBack);
  EXPECT_THAT(Seen(film), ElementsAre("0@0", "1@63", "2@126", "3@189", "4@252", "5@315"));
  // On the way from the second page: what is not there is not painted.
  film.SetCount(7);
  SlideWhole(film, FilmSlide::kForward);
  film.StartSlide(FilmSlide::kBack);
  EXPECT_THAT(Seen(film), ElementsAre("4@-63", "5@0", "6@63"));
}

TEST(Filmstrip, WhichCellIsUnderThePointer) {
  const struct {
    int x, y, cell;
  } kPlaces[] = {{19, 30, -1}, {20, 0, 0},    {82, 63, 0},   {83, 30, 1},   {334, 30, 4},
                 {335, 30, 4}, {336, 30, -1}, {100, -1, -1}, {100, 64, -1}, {-5, 30, -1}};
  for (const auto& place : kPlaces) {
    Filmstrip film = WithNames(5);
    EXPECT_EQ(film.Move(place.x, place.y, false),
              place.cell < 0 ? FilmMove::kReleasePointer : FilmMove::kTakePointer);
    int hot = -1;
    for (const FilmCell& cell : film.Cells()) hot = cell.isHot ? cell.index : hot;
    EXPECT_EQ(hot, place.cell) << place.x << ' ' << place.y;
    EXPECT_EQ(film.PresetAt(place.x, place.y).value_or(-1), place.cell);
  }
  EXPECT_FALSE(WithNames(4).PresetAt(300, 30)) << "no name there";
}

TEST(Filmstrip, APressHoldsThePointer) {
  Filmstrip film = WithNames(5);
  film.Move(30, 30, false);
  EXPECT_FALSE(film.Press(10, 30));
  EXPECT_TRUE(film.Press(30, 30));
  EXPECT_THAT(Seen(film), ElementsAre("0@0", "1@63", "2@126", "3@189", "4@252"));
  EXPECT_EQ(film.Move(100, 30, true), FilmMove::kNone);
  EXPECT_TRUE(film.Release(100, 30));
  EXPECT_THAT(Seen(film), ElementsAre("0@0", "1@63*", "2@126", "3@189", "4@252"));
  EXPECT_EQ(film.Move(30, 30, true), FilmMove::kTakePointer);
  // Let go outside.
  film.Press(30, 30);
  EXPECT_FALSE(film.Release(5, 30));
  EXPECT_EQ(film.Move(30, 30, true), FilmMove::kTakePointer);
  // Let go where nobody heard of it.
  film.Press(30, 30);
  EXPECT_EQ(film.Move(30, 30, false), FilmMove::kTakePointer);
  EXPECT_TRUE(film.LosePointer());
  EXPECT_FALSE(film.LosePointer());
}

TEST(Filmstrip, ASlideAppliesNothingButFollowsThePointer) {
  Filmstrip film = WithNames(12);
  film.StartSlide(FilmSlide::kForward);
  (void)film.Step();
  EXPECT_FALSE(film.PresetAt(90, 30));
  film.Move(90, 30, false);
  EXPECT_EQ(Seen(film)[1], "2@27*");
  film.SetCount(12);
  EXPECT_FALSE(film.IsSliding());
  EXPECT_EQ(film.PresetAt(90, 30), 1);
}

TEST(Filmstrip, FitsItsRoom) {
  const struct {
    int room, x, width, arrow;
  } kRooms[] = {{710, 177, 355, 20},
                {355, 0, 355, 20},
                {347, 0, 347, 16},
                {320, 0, 320, 2},
                {315, 0, 315, 0}};
  for (const auto& c : kRooms) {
    const FilmPlace place = PlaceFilmstrip(c.room);
    EXPECT_EQ(place.x, c.x) << c.room;
    EXPECT_EQ(place.width, c.width) << c.room;
    Filmstrip film = WithNames(5);
    film.Resize(place.width, kFilmHeight);
    EXPECT_EQ(film.ArrowWidth(), c.arrow) << c.room;
    EXPECT_EQ(film.PresetAt(c.arrow, 1), 0);
    EXPECT_EQ(film.PresetAt(c.arrow + 314, 1), 4);
  }
  for (const auto& [width, adopted] : {std::pair{355, 358}, {354, 354}, {353, 354}, {351, 354}}) {
    EXPECT_EQ(AdoptedFilmWidth(width), adopted);
  }
}

}  // namespace
}  // namespace tarnwick
