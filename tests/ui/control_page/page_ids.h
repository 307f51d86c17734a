#pragma once

namespace tarnwick::testui {

// What is on the page; the scenarios use the same numbers.
enum PageId : int {
  kDisableAll = 90,
  kSlider = 100,  // its edit field and up-down are the next two
  kSnapSlider = 110,
  kGauge = 120,
  kLine = 121,
  kLimited = 122,
  kBall = 130,  // with two edit fields, as the next has
  kOffsetBall = 140,
  kSwatch = 150,
  kButton = 160,
  kToggle = 161,
  kImageButton = 170,
  kCheckButton = 171,
  kLink = 180,
  kDeadLink = 181,
  kLabel = 182,
  kChosenLabel = 183,
  kDeadLabel = 184,
  kImage = 190,
};

}  // namespace tarnwick::testui
