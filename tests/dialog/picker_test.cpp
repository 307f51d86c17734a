// The full-size picker: where things lie, which page numbers stand in its strip, and what
// is chosen on which page.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "dialog/models/fit_picture.h"
#include "dialog/models/picker_grid.h"
#include "dialog/models/picker_pages.h"
#include "dialog/models/picker_strip.h"

namespace tarnwick {
namespace {

TEST(PickerGrid, DividesTheFrame) {
  // 711 is no multiple of 4, 349 no even number.
  const PickerGrid grid = GridIn({30, 40, 711, 349});
  EXPECT_EQ(grid.place, (Place{30 + 8, 54, 694, 328}));
  EXPECT_EQ(grid.cellWidth, 173);
  EXPECT_EQ(grid.cellHeight, 164);
  EXPECT_EQ(grid.thumbnail.width, 161);
  EXPECT_EQ(grid.thumbnail.height, 120);
  EXPECT_EQ(PickerCellPlace(grid, 0), (Place{0, 0, 173, 164}));
  EXPECT_EQ(PickerCellPlace(grid, 6), (Place{346, 164, 173, 164}));
  EXPECT_EQ(DetailButtonPlace(grid, 1), (Place{148, 112, 16, 16}));
  // It grows away from the cell's edge.
  EXPECT_EQ(DetailButtonPlace(grid, 1.5F), (Place{140, 112, 24, 24}));
  EXPECT_EQ(SelectButtonPlace(grid), (Place{123, 137, 44, 19}));
  const Place caption = CellCaptionPlace(grid);
  EXPECT_EQ(caption.x, 5);
  EXPECT_EQ(caption.y, 144);
  EXPECT_LT(caption.x + caption.width, 123);
}

TEST(PickerGrid, HasPicturesInNoSpaceAtAll) {
  for (const Place& frame : {Place{0, 0, 0, 0}, Place{5, 5, 13, 19}, Place{0, 0, -4, -4}}) {
    const PickerGrid grid = GridIn(frame);
    EXPECT_GE(grid.place.width, 0);
    EXPECT_GE(grid.place.height, 0);
    EXPECT_GE(grid.thumbnail.width, 1);
    EXPECT_GE(grid.thumbnail.height, 1);
    EXPECT_GE(CellCaptionPlace(grid).width, 0);
  }
}

TEST(PickerGrid, PutsArrowsAndBandsRoundTheFrame) {
  const Place frame = {30, 40, 710, 350};
  // Half of 40 + 390 - 125.
  EXPECT_EQ(PreviousPagePlace(frame), (Place{2, 152, 28, 125}));
  EXPECT_EQ(NextPagePlace(frame), (Place{740, 152, 28, 125}));
  const PickerBands bands = BandsOf(frame, 770, 480, 96);
  EXPECT_EQ(bands.filters, (Place{30, 10, 710, 30}));
  EXPECT_EQ(bands.pages, (Place{30, 400, 710, 30}));
  EXPECT_EQ(bands.faceAbove, (Place{0, 0, 770, 10}));
  EXPECT_EQ(bands.faceBelow, (Place{0, 430, 770, 50}));
  // Half as high again, as what stands on them is.
  const PickerBands fine = BandsOf({45, 60, 1065, 525}, 1155, 720, 144);
  EXPECT_EQ(fine.filters, (Place{45, 15, 1065, 45}));
  EXPECT_EQ(fine.pages, (Place{45, 600, 1065, 45}));
}

TEST(PickerGrid, PutsTheDetailsBelowTheirPicture) {
  const DetailPlaces places = DetailPlacesIn(312, 260, 96, 1);
  EXPECT_EQ(places.picture, (Place{20, 20, 272, 180}));
  EXPECT_EQ(places.close, (Place{294, 4, 14, 14}));
  EXPECT_EQ(places.setTop, 180 + 25);
  EXPECT_EQ(places.nameTop, 180 + 35);
  EXPECT_EQ(places.valueLeft, 85);
  EXPECT_EQ(DetailPlacesIn(30, 40, 96, 1).picture.width, 0);
}

// Pages from 1, a run of them as "first-last@x".
std::string Runs(int pages, int current, int width, float scale = 1) {
  std::string text;
  const auto labels = PageLabels(pages, current, width, scale);
  for (std::size_t i = 0; i < labels.size();) {
    std::size_t end = i + 1;
    while (end < labels.size() && labels[end].page == labels[end - 1].page + 1 &&
           labels[end].x == labels[end - 1].x + labels[end - 1].width) {
      ++end;
    }
    if (!text.empty()) text += ' ';
    text += std::to_string(labels[i].page + 1) + '-' + std::to_string(labels[end - 1].page + 1) +
            '@' + std::to_string(labels[i].x);
    i = end;
  }
  return text;
}

TEST(PickerStrip, LeavesPagesOutWhereTheyAreMany) {
  struct Row {
    int pages, current, width;
    const char* runs;
  };
  // Widths: 9 for one digit, 16 for two, 24 for three.
  const Row rows[] = {
      {0, 0, 692, ""},
      {1, 0, 692, "1-1@104"},
      {21, 11, 692, "1-21@104"},
      // Pages stand twice where the ends meet. 692 - 104 - 13 x 16 = 380.
      {22, 11, 692, "1-13@104 10-22@380"},
      {40, 11, 692, "1-13@104 28-40@380"},
      {40, 28, 692, "1-13@104 28-40@380"},
      // 692 - 104 - 5 x 16 = 508; 346 - 120 = 226.
      {40, 12, 692, "1-5@104 7-17@226 36-40@508"},
      {40, 27, 692, "1-5@104 22-32@226 36-40@508"},
      {25, 12, 692, "1-5@104 7-17@226 21-25@508"},
      // 692 - 104 - 5 x 24 = 468. Eleven of 24 would reach 490.
      {140, 110, 692, "1-5@104 105-115@204 136-140@468"},
      {140, 110, 760, "1-5@104 105-115@260 136-140@536"},
  };
  for (const Row& row : rows) {
    EXPECT_EQ(Runs(row.pages, row.current, row.width), row.runs) << row.pages << " " << row.current;
  }
}

TEST(PickerStrip, WidensWithTheFont) {
  // Nine of 14 (13.5), then those of 24, from 156 on.
  const auto labels = PageLabels(12, 3, 1600, 1.5F);
  ASSERT_EQ(labels.size(), 12U);
  EXPECT_EQ(labels[0].x, 156);
  EXPECT_EQ(labels[9].x, 156 + 9 * 14);
  EXPECT_EQ(labels[11].width, 24);
}

TEST(PickerStrip, HasItsEndsWhereTheyFit) {
  const StripPlaces places = StripPlacesIn(692, 21, 1);
  EXPECT_EQ(places.first, (Place{0, 4, 20, 15}));
  EXPECT_EQ(places.last, (Place{672, 4, 20, 15}));
  EXPECT_EQ(places.previous, (Place{27, 4, 30, 15}));
  EXPECT_EQ(places.next, (Place{630, 4, 30, 15}));
  EXPECT_EQ(places.dotsLeft, 104);
  EXPECT_EQ(places.dotsRight, 588);
  EXPECT_EQ(places.dotsY, 11);
  const StripPlaces fine = StripPlacesIn(1614, 44, 1.5F);
  EXPECT_GE(fine.labelTop, 0);
  EXPECT_LE(fine.labelTop + fine.labelHeight, 44);
  EXPECT_LE(fine.previous.x + fine.previous.width, fine.dotsLeft);
  EXPECT_LE(fine.next.x + fine.next.width, fine.last.x);
}

TEST(PickerStrip, KnowsWhereCommandsGo) {
  EXPECT_EQ(PageOfCommand(kFirstPageCommand, 7, 9), 0);
  EXPECT_EQ(PageOfCommand(kLastPageCommand, 7, 9), 8);
  EXPECT_EQ(PageOfCommand(kNextPageCommand, 7, 9), 8);
  EXPECT_EQ(PageOfCommand(kNextPageCommand, 8, 9), 8);
  EXPECT_EQ(PageOfCommand(kPreviousPageCommand, 7, 9), 6);
  EXPECT_EQ(PageOfCommand(kPreviousPageCommand, 0, 9), 0);
  EXPECT_EQ(PageOfCommand(kPageCommands + 5, 7, 9), 5);
  EXPECT_EQ(PageOfCommand(kPageCommands + 99, 7, 9), 8);
  EXPECT_EQ(PageOfCommand(199, 7, 9), std::nullopt);
  EXPECT_EQ(PageOfCommand(104, 7, 9), std::nullopt);
  EXPECT_EQ(PageOfCommand(kLastPageCommand, 0, 0), 0);
}

// Twenty textures T0 to T19; the odd ones in set 20 and with effect 3.
struct Stage {
  Stage() {
    for (int i = 0; i < 20; ++i) {
      TextureRecord record;
      record.fileName = "T" + std::to_string(i) + ".twk";
      record.setId = i % 2 != 0 ? 20 : 10;
      record.effectMask = i % 2 != 0 ? 1U << 3 : 1U << 5;
      catalogue.records.push_back(record);
    }
  }
  TextureCatalogue catalogue;
  const TextureSetTable sets = {{10, "First"}, {20, "Second"}, {30, "Third"}};
  PickerPages pages{catalogue, sets};
};

TEST(PickerPages, OpensWhereTheSelectedOneIs) {
  Stage stage;
  stage.pages.Open("t17.TWK");
  EXPECT_EQ(stage.pages.PageCount(), 3);
  EXPECT_EQ(stage.pages.Page(), 2);
  EXPECT_EQ(stage.catalogue.currentIndex, 17);
  EXPECT_EQ(stage.pages.PlaceOfCell(3), 19);
  EXPECT_EQ(stage.pages.PlaceOfCell(4), -1);
  stage.pages.Open("Gone.twk");
  EXPECT_EQ(stage.pages.Page(), 0);
  EXPECT_EQ(stage.catalogue.currentIndex, -1);
  stage.catalogue.currentIndex = 9;
  stage.pages.Open(nullptr);
  EXPECT_EQ(stage.pages.Page(), 1);
  EXPECT_FALSE(stage.pages.GoTo(3));
  EXPECT_FALSE(stage.pages.GoTo(-1));
  EXPECT_FALSE(stage.pages.GoTo(1));
}

TEST(PickerPages, FiltersKeepTheName) {
  Stage stage;
  stage.pages.Open("T17.twk");
  stage.pages.Filter({2, 3});
  EXPECT_EQ(stage.pages.PageCount(), 2);
  EXPECT_EQ(stage.pages.Page(), 0);
  EXPECT_EQ(stage.catalogue.currentIndex, 8);  // 1, 3, 5, ... 17
  stage.pages.Filter({1, 0});
  EXPECT_EQ(stage.catalogue.currentIndex, -1);
  stage.pages.Accept();
  EXPECT_EQ(stage.catalogue.selectedName, "T17.twk");
  stage.pages.Filter({3, 0});
  EXPECT_EQ(stage.pages.PageCount(), 0);
  EXPECT_EQ(stage.pages.PlaceOfCell(0), -1);
  EXPECT_FALSE(stage.pages.Move(1));
  stage.pages.Cancel();
  EXPECT_EQ(stage.catalogue.currentIndex, 17);
  EXPECT_EQ(stage.catalogue.selectedName, "T17.twk");
}

TEST(PickerPages, MovesAcrossPages) {
  Stage stage;
  stage.pages.Open("T5.twk");
  EXPECT_TRUE(stage.pages.Move(4));
  EXPECT_EQ(stage.pages.Page(), 1);
  EXPECT_FALSE(stage.pages.Move(4));
  EXPECT_EQ(stage.catalogue.currentIndex, 13);
  EXPECT_TRUE(stage.pages.Move(4));
  // Beyond the last one: it stays.
  EXPECT_FALSE(stage.pages.Move(4));
  EXPECT_EQ(stage.catalogue.currentIndex, 17);
  // From elsewhere its page comes up again.
  EXPECT_TRUE(stage.pages.GoTo(0));
  EXPECT_TRUE(stage.pages.Move(1));
  EXPECT_EQ(stage.pages.Page(), 2);
  stage.pages.Accept();
  EXPECT_EQ(stage.catalogue.selectedName, "T18.twk");
  // Without a mark it begins on the page.
  stage.pages.Open("Gone.twk");
  EXPECT_TRUE(stage.pages.GoTo(1));
  EXPECT_FALSE(stage.pages.Move(-1));
  EXPECT_EQ(stage.catalogue.currentIndex, 8);
}

ThumbnailPicture Greys(int width, int height, const std::vector<int>& greys) {
  ThumbnailPicture picture(width, height);
  for (std::size_t i = 0; i < greys.size(); ++i) {
    for (std::size_t c = 0; c < 3; ++c) {
      picture.samples[i * 3 + c] = static_cast<std::uint8_t>(greys[i]);
    }
  }
  return picture;
}

TEST(FitPicture, StretchesSmoothly) {
  // Middles of four fall at -0.25, 0.25, 0.75 and 1.25 of two.
  EXPECT_EQ(FitPicture(Greys(2, 1, {0, 200}), {4, 2}).samples,
            Greys(4, 2, {0, 50, 150, 200, 0, 50, 150, 200}).samples);
  EXPECT_EQ(FitPicture(Greys(1, 1, {77}), {3, 2}).samples,
            Greys(3, 2, {77, 77, 77, 77, 77, 77}).samples);
  EXPECT_EQ(FitPicture(Greys(4, 1, {0, 100, 200, 40}), {2, 1}).samples,
            Greys(2, 1, {50, 120}).samples);
  EXPECT_EQ(FitPicture(ThumbnailPicture(), {3, 2}).width, 0);
}

TEST(FitPicture, CutsTheMiddleOut) {
  const ThumbnailPicture five = Greys(5, 3, {0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14});
  EXPECT_EQ(CentreOf(five, {3, 1}).samples, Greys(3, 1, {6, 7, 8}).samples);
  EXPECT_EQ(CentreOf(five, {9, 1}).samples, Greys(5, 1, {5, 6, 7, 8, 9}).samples);
  EXPECT_EQ(CentreOf(five, {9, 9}).samples, five.samples);
}

}  // namespace
}  // namespace tarnwick
