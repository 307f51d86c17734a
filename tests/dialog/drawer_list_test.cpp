// What a drawer shows, and where it lies.
#include "dialog/models/drawer_list.h"

#include <gtest/gtest.h>

#include "controls/models/drawer_slide.h"
#include "dialog/models/drawer_places.h"

namespace tarnwick {
namespace {

TextureRecord Texture(const char* name, std::uint32_t set, std::uint32_t effects) {
  TextureRecord record;
  record.fileName = name;
  record.setId = set;
  record.effectMask = effects;
  return record;
}

// "No texture", "Solid", and 14 more: T0 to T13, the odd ones of set 20 and with effect
// 3, the others of set 10 and with effect 5.
DrawerList Textures() {
  std::vector<TextureRecord> records = {Texture("No_Texture.twk", 0, 0)};
  for (int i = 0; i < 14; ++i) {
    const std::string name = "T" + std::to_string(i) + ".twk";
    records.push_back(Texture(name.c_str(), i % 2 != 0 ? 20 : 10, i % 2 != 0 ? 1U << 3 : 1U << 5));
  }
  records.push_back(Texture("Solid.twk", 10, 0));
  DrawerList list;
  list.SetTextures(std::move(records), {{10, "First"}, {20, "Second"}});
  list.SetRows(2);
  return list;
}

std::string NamesOnPage(const DrawerList& list) {
  std::string names;
  for (int cell = 0; cell < list.CellCount(); ++cell) {
    const int place = list.PlaceOfCell(cell);
    names += place < 0 ? std::string("-") : list.DisplayName(place);
    names += ' ';
  }
  return names;
}

TEST(DrawerList, ShowsPagesOfCells) {
  DrawerList list = Textures();
  EXPECT_EQ(list.PageCount(), 3);  // 16 records, 6 to a page
  EXPECT_EQ(NamesOnPage(list), "No_Texture T0 T1 T2 T3 T4 ");
  EXPECT_FALSE(list.HasPageBefore());
  EXPECT_FALSE(list.TurnPage(-1));
  EXPECT_TRUE(list.TurnPage(1));
  EXPECT_TRUE(list.TurnPage(1));
  EXPECT_FALSE(list.TurnPage(1));
  EXPECT_EQ(NamesOnPage(list), "T11 T12 T13 Solid - - ");
  EXPECT_FALSE(list.HasPageAfter());
}

TEST(DrawerList, KeepsThePageOfAnotherHeightIfThereIsOne) {
  DrawerList list = Textures();
  ASSERT_TRUE(list.TurnPage(1));
  list.SetRows(3);
  EXPECT_EQ(list.Page(), 1);
  ASSERT_EQ(list.PageCount(), 2);
  list.SetRows(6);
  EXPECT_EQ(list.Page(), 0);
  list.SetRows(0);
  EXPECT_EQ(list.PageCount(), 0);
  EXPECT_EQ(list.PlaceOfCell(0), -1);
  list.SelectByName("T9.twk");  // nothing to divide by
  EXPECT_EQ(list.SelectedPlace(), 10);
  EXPECT_EQ(list.Page(), 0);
}

TEST(DrawerList, SelectsByNameInAnyCase) {
  DrawerList list = Textures();
  list.SelectByName("t7.TWK");
  EXPECT_EQ(list.SelectedPlace(), 8);
  EXPECT_EQ(list.Page(), 1);
  list.SelectByName("Gone.twk");
  EXPECT_EQ(list.SelectedPlace(), -1);
  EXPECT_EQ(list.Page(), 0);
  EXPECT_EQ(list.SelectedName(), "Gone.twk");
  list.Select(3);
  EXPECT_EQ(list.SelectedName(), "T2.twk");
  list.Select(99);
  EXPECT_EQ(list.SelectedPlace(), 3);
}

TEST(DrawerList, FiltersAndKeepsTheSelectedName) {
  DrawerList list = Textures();
  list.SelectByName("T7.twk");
  list.FilterTextures({3, 0});  // the second set of the table
  EXPECT_EQ(list.ShownNames(),
            (std::vector<std::string>{"No_Texture.twk", "T1.twk", "T3.twk", "T5.twk", "T7.twk",
                                      "T9.twk", "T11.twk", "T13.twk"}));
  EXPECT_EQ(list.SelectedPlace(), 4);
  EXPECT_EQ(list.Page(), 0);
  list.FilterTextures({2, 4});  // the first set, and effect 3, which none of it has
  EXPECT_EQ(list.ShownNames(), std::vector<std::string>{"No_Texture.twk"});
  EXPECT_EQ(list.SelectedPlace(), -1);
  EXPECT_EQ(list.SelectedName(), "T7.twk");
  list.FilterTextures({1, 6});  // both plain ones, whatever the effect says
  EXPECT_EQ(list.ShownNames(), (std::vector<std::string>{"No_Texture.twk", "Solid.twk"}));
  list.FilterTextures({0, 4});
  EXPECT_EQ(list.ShownCount(), 8);
  list.SelectByName("T13.twk");
  EXPECT_EQ(list.Page(), 1);
  list.FilterTextures({0, 0});
  EXPECT_EQ(list.SelectedPlace(), 14);
  EXPECT_EQ(list.Page(), 0);  // a filter always shows the first page
}

TEST(DrawerList, FiltersColorsByTheirCategories) {
  DrawerList list;
  list.SetColors({{"Reset Colors", {}},
                  {"Rust.twkpst", {"Red Tones", "Rust Tones"}},
                  {"Moss.twkpst", {"Green Tones"}},
                  {"Plain.twkpst", {}}});
  list.SetRows(3);
  EXPECT_EQ(NamesOnPage(list), "Reset Colors Rust Moss Plain - - - - - ");
  list.SelectByName("moss.twkpst");
  EXPECT_TRUE(list.FilterCategory(25));  // "Rust Tones"
  EXPECT_EQ(NamesOnPage(list), "Reset Colors Rust - - - - - - - ");
  EXPECT_EQ(list.SelectedPlace(), -1);
  // Rows of blanks, and rows that are none.
  for (const int row : {10, 19, -1, 29}) EXPECT_FALSE(list.FilterCategory(row)) << row;
  EXPECT_EQ(list.CategoryRow(), 25);
  EXPECT_EQ(list.ShownCount(), 2);
  EXPECT_TRUE(list.FilterCategory(4));  // "Green Tones"
  EXPECT_EQ(list.SelectedPlace(), 1);
  // Drawn by chance: what is marked stays until a filter looks for it.
  list.NameSelected("Rust.twkpst");
  EXPECT_EQ(list.SelectedPlace(), 1);
  EXPECT_EQ(list.SelectedName(), "Rust.twkpst");
  EXPECT_TRUE(list.FilterCategory(0));
  EXPECT_EQ(list.SelectedPlace(), 1);
  EXPECT_EQ(list.DisplayName(1), "Rust");
}

TEST(DrawerList, IsEmptyWithoutFiles) {
  DrawerList list;
  list.SetTextures({}, {});
  list.SetRows(3);
  EXPECT_EQ(list.PageCount(), 0);
  list.FilterTextures({1, 1});
  list.SelectByName("No_Texture.twk");
  EXPECT_EQ(list.SelectedPlace(), -1);
  EXPECT_FALSE(list.TurnPage(1));
  EXPECT_TRUE(list.ShownNames().empty());
}

TEST(DrawerPlaces, HoldAsManyRowsAsFit) {
  EXPECT_EQ(DrawerRows(259), 0);
  EXPECT_EQ(DrawerRows(260), 1);
  EXPECT_EQ(DrawerRows(589), 3);
  EXPECT_EQ(DrawerRows(590), 4);
  EXPECT_EQ(DrawerRows(-5), 0);
  EXPECT_EQ(DrawerCellPlace(4), (Place{122, 110, 122, 110}));
  const DrawerButtons buttons = DrawerButtonPlaces(392, 600);
  EXPECT_EQ(buttons.cancel, (Place{45, 543, 116, 38}));
  EXPECT_EQ(buttons.live, (Place{176, 543, 40, 38}));
  EXPECT_EQ(buttons.select, (Place{231, 543, 116, 38}));
}

// Each move of a panel 512 wide, until the tick that ends it.
std::vector<int> Moves(DrawerSlide& slide) {
  std::vector<int> moves;
  for (DrawerSlide::Step step = slide.Tick(512); step.isMove; step = slide.Tick(512)) {
    moves.push_back(step.shift);
    EXPECT_EQ(step.isLast, moves.size() == 11);
    if (moves.size() > 20) break;
  }
  return moves;
}

TEST(DrawerSlide, TakesElevenMovesEachWay) {
  DrawerSlide slide;
  EXPECT_FALSE(slide.Tick(512).isMove);
  slide.StartIn();
  EXPECT_EQ(Moves(slide),
            (std::vector<int>{-512, -460, -409, -358, -307, -256, -204, -153, -102, -51, 0}));
  EXPECT_TRUE(slide.IsStill());
  slide.StartOut();
  EXPECT_EQ(Moves(slide),
            (std::vector<int>{0, -51, -102, -153, -204, -256, -307, -358, -409, -460, -512}));
  EXPECT_TRUE(slide.IsStill());
}

TEST(DrawerSlide, TellsWhichWayItHasGone) {
  DrawerSlide slide;
  slide.StartIn();
  DrawerSlide::Step step;
  do step = slide.Tick(100);
  while (step.isMove);
  EXPECT_TRUE(step.isIn);
  EXPECT_FALSE(step.isOut);
  // Turned round on its way.
  slide.StartIn();
  (void)slide.Tick(100);
  slide.StartOut();
  do step = slide.Tick(100);
  while (step.isMove);
  EXPECT_TRUE(step.isOut);
}

}  // namespace
}  // namespace tarnwick
