#pragma once
#include <cstdint>

#include "toolbox/strokes.h"

namespace tarnwick::content {

// Cracks as dry plaster, mud or old varnish has them: each runs on with a
// jerk now and then, sends out branches, and ends where it meets another.
struct CrackStyle {
  int starts = 6;              // cracks that begin by themselves
  float length = 900.0F;       // of those, pixels, give or take a half
  float radius = 2.5F;         // half width where they begin
  float jerk = 0.5F;           // radians, from piece to piece
  float pull = 0.08F;          // how firmly it returns to its own direction, 0..1
  float branchEvery = 120.0F;  // pixels from branch to branch
  float branchAngle = 1.1F;    // radians, give or take a third
  float branchShare = 0.6F;    // a branch's length and width to its parent's
  int generations = 4;         // branches of branches
  float step = 7.0F;           // length of a piece
};

// Adds cracks all over a sheet, in one fixed order by `seed`; strength falls
// with each generation.
void AddCracks(StrokeSet& strokes, const Sheet& sheet, const CrackStyle& style, std::uint32_t seed);

// One crack and its branches from a given place and heading.
void AddCrack(StrokeSet& strokes, const Sheet& sheet, const CrackStyle& style, float x, float y,
              float heading, std::uint32_t seed);

}  // namespace tarnwick::content
