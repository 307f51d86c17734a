#include "barn.h"
#include "mesh_shapes.h"
#include "noise.h"
#include "portable_math.h"

namespace tarnwick::photo {
namespace {

// One leaf of the doors, hung at `hinge` and opened by `angle`; `side` is the
// way from the hinge to the leaf's free edge.
void AddLeaf(Mesh& mesh, float hinge, float side, float angle, Random& random) {
  constexpr float kWidth = kDoorWidth / 2 - 0.012f;
  constexpr float kFoot = 0.085f;
  constexpr float kHead = kDoorHeight + 0.06f;
  const Vec3 pivot{hinge, 0, 0.035f};
  const Vec3 across{side * Cos(angle), 0, Sin(angle)};
  const Vec3 out{-side * Sin(angle), 0, Cos(angle)};
  const auto at = [&](float a, float y, float depth) {
    return pivot + across * a + Vec3{0, y, 0} + out * depth;
  };
  float a = 0;
  while (a < kWidth - 0.01f) {
    const float w = Min(random.Range(0.12f, 0.16f), kWidth - a);
    Board b;
    b.across = across;
    b.along = {0, 1, 0};
    b.outward = out;
    b.width = w - random.Range(0.002f, 0.006f);
    b.thickness = 0.022f;
    b.warp = 0.003f;
    b.material = Material::kBoardGreen;
    b.seed = random.Unit();
    const float uneven = random.Range(-0.012f, 0.012f);
    b.origin = at(a + w / 2, kFoot + uneven, random.Range(-0.002f, 0.002f));
    b.length = kHead - kFoot;
    b.steps = 10;
    AddBoard(mesh, b);
    a += w;
  }
  const auto brace = [&](Vec3 from, Vec3 to, float w, float thick) {
    Board b = BoardBetween(from, to, out, w, thick);
    b.material = Material::kBoardGreen;
    b.seed = random.Unit();
    b.vStart = 0.9f;
    b.warp = 0.002f;
    AddBoard(mesh, b);
  };
  constexpr float kLow = 0.36f;
  constexpr float kHigh = 2.02f;
  constexpr float kMid = 1.18f;
  for (const float y : {kLow, kMid, kHigh})
    brace(at(0.03f, y, 0.024f), at(kWidth - 0.03f, y, 0.024f), 0.15f, 0.026f);
  brace(at(0.10f, kLow + 0.06f, 0.023f), at(kWidth - 0.10f, kMid - 0.06f, 0.023f), 0.13f, 0.024f);
  brace(at(0.10f, kMid + 0.06f, 0.023f), at(kWidth - 0.10f, kHigh - 0.06f, 0.023f), 0.13f, 0.024f);
  // Strap hinges.
  for (const float y : {kLow, kHigh}) {
    Board strap = BoardBetween(at(-0.13f, y, 0.042f), at(0.62f, y, 0.042f), out, 0.048f, 0.008f);
    strap.material = Material::kIron;
    strap.warp = 0.001f;
    AddBoard(mesh, strap);
    const TubePoint pin[2] = {{at(0, y - 0.05f, 0.046f), 0.013f},
                              {at(0, y + 0.05f, 0.046f), 0.013f}};
    AddTube(mesh, pin, 8, Material::kIron, 0.3f);
    for (int i = 0; i < 4; ++i) {
      const Vec3 head3 = at(0.08f + 0.16f * static_cast<float>(i), y, 0.044f);
      const TubePoint bolt[3] = {
          {head3, 0.011f}, {head3 + out * 0.007f, 0.010f}, {head3 + out * 0.009f, 0.001f}};
      AddTube(mesh, bolt, 8, Material::kIron, 0.6f);
    }
  }
  // A bar for the hand.
  const TubePoint handle[4] = {{at(kWidth - 0.14f, 1.06f, 0.02f), 0.008f},
                               {at(kWidth - 0.14f, 1.075f, 0.075f), 0.009f},
                               {at(kWidth - 0.14f, 1.285f, 0.075f), 0.009f},
                               {at(kWidth - 0.14f, 1.30f, 0.02f), 0.008f}};
  AddTube(mesh, handle, 8, Material::kIron, 0.9f);
}

}  // namespace

void AddDoors(Mesh& mesh) {
  Random random(71);
  AddLeaf(mesh, kDoorCentre - kDoorWidth / 2, 1, 0.02f, random);
  AddLeaf(mesh, kDoorCentre + kDoorWidth / 2, -1, 0.17f, random);
  const auto frame = [&](Vec3 from, Vec3 to, float width) {
    Board b = BoardBetween(from, to, {0, 0, 1}, width, 0.026f);
    b.material = Material::kBoardWhite;
    b.seed = random.Unit();
    b.vStart = from.y < 1 ? 0.0f : 1.0f;
    b.warp = 0.002f;
    AddBoard(mesh, b);
  };
  const float left = kDoorCentre - kDoorWidth / 2;
  const float right = kDoorCentre + kDoorWidth / 2;
  frame({left - 0.06f, 0.08f, 0.026f}, {left - 0.06f, kDoorHeight + 0.08f, 0.026f}, 0.11f);
  frame({right + 0.06f, 0.08f, 0.026f}, {right + 0.06f, kDoorHeight + 0.08f, 0.026f}, 0.11f);
  frame({left - 0.14f, kDoorHeight + 0.13f, 0.030f}, {right + 0.14f, kDoorHeight + 0.13f, 0.030f},
        0.13f);
  // The hatch of the hay loft.
  const float y = 3.15f;
  for (int i = 0; i < 5; ++i) {
    Board b;
    b.across = {1, 0, 0};
    b.along = {0, 1, 0};
    b.outward = {0, 0, 1};
    b.width = 0.150f;
    b.thickness = 0.022f;
    b.origin = {kDoorCentre - 0.31f + 0.155f * static_cast<float>(i), y,
                0.032f + random.Range(-0.002f, 0.002f)};
    b.length = 0.80f;
    b.vStart = 1;
    b.material = Material::kBoardGreen;
    b.seed = random.Unit();
    AddBoard(mesh, b);
  }
  frame({kDoorCentre - 0.44f, y - 0.03f, 0.030f}, {kDoorCentre - 0.44f, y + 0.83f, 0.030f}, 0.09f);
  frame({kDoorCentre + 0.44f, y - 0.03f, 0.030f}, {kDoorCentre + 0.44f, y + 0.83f, 0.030f}, 0.09f);
  frame({kDoorCentre - 0.51f, y + 0.86f, 0.034f}, {kDoorCentre + 0.51f, y + 0.86f, 0.034f}, 0.10f);
  frame({kDoorCentre - 0.51f, y - 0.06f, 0.034f}, {kDoorCentre + 0.51f, y - 0.06f, 0.034f}, 0.09f);
}

}  // namespace tarnwick::photo
