#include "barn.h"
#include "mesh_shapes.h"
#include "noise.h"

namespace tarnwick::photo {

float RoofHeight(float x) {
  const float middle = -kBarnWidth / 2;
  const float d = x < middle ? middle - x : x - middle;
  return kRidgeHeight - d * (kRidgeHeight - kEaveHeight) / (kBarnWidth / 2) + 0.12f;
}

namespace {

constexpr float kSill = 0.24f;  // where the boards begin, above the stones

// Dark sheets a hand's breadth behind the boards: what shows through the gaps.
void AddInside(Mesh& mesh) {
  const auto wall = [&](Vec3 a, Vec3 b, Vec3 c, Vec3 d) {
    mesh.Quad(mesh.Add({a, {}, 0, 0}), mesh.Add({b, {}, 1, 0}), mesh.Add({c, {}, 1, 1}),
              mesh.Add({d, {}, 0, 1}), Material::kDark, 0);
  };
  constexpr float kIn = 0.06f;
  const float left = -kBarnWidth + kIn;
  const float back = -kBarnLength + kIn;
  const float low = -0.2f;
  const float high = kEaveHeight + 0.05f;
  const float door = kDoorCentre + kDoorWidth / 2;
  wall({left, low, -kIn}, {kDoorCentre - kDoorWidth / 2, low, -kIn},
       {kDoorCentre - kDoorWidth / 2, high, -kIn}, {left, high, -kIn});
  wall({door, low, -kIn}, {-kIn, low, -kIn}, {-kIn, high, -kIn}, {door, high, -kIn});
  wall({kDoorCentre - kDoorWidth / 2, kDoorHeight, -kIn}, {door, kDoorHeight, -kIn},
       {door, high, -kIn}, {kDoorCentre - kDoorWidth / 2, high, -kIn});
  wall({left, high, -kIn}, {-kIn, high, -kIn}, {-kBarnWidth / 2, kRidgeHeight, -kIn},
       {-kBarnWidth / 2, kRidgeHeight, -kIn});
  wall({left, high, back}, {-kIn, high, back}, {-kBarnWidth / 2, kRidgeHeight, back},
       {-kBarnWidth / 2, kRidgeHeight, back});
  wall({-kIn, low, -kIn}, {-kIn, low, back}, {-kIn, high, back}, {-kIn, high, -kIn});
  wall({left, low, -kIn}, {left, low, back}, {left, high, back}, {left, high, -kIn});
  wall({left, low, back}, {-kIn, low, back}, {-kIn, high, back}, {left, high, back});
}

// A board of the long side, in two pieces where a window is in its way.
void AddSideBoard(Mesh& mesh, const Board& whole) {
  for (const float z : kWindowZ) {
    const float off = whole.origin.z - z;
    if (whole.origin.x < -1 || (off < 0 ? -off : off) > kWindowHalfWidth + 0.02f) continue;
    Board low = whole;
    low.length = kWindowY - kWindowHalfHeight - whole.origin.y;
    Board high = whole;
    const float rise = kWindowY + kWindowHalfHeight - whole.origin.y;
    high.origin.y += rise;
    high.vStart += rise;
    high.length -= rise;
    AddBoard(mesh, low);
    AddBoard(mesh, high);
    return;
  }
  AddBoard(mesh, whole);
}

}  // namespace

void AddWalls(Mesh& mesh) {
  Random random(11);
  AddInside(mesh);
  // The gable, board by board.
  float x = -kBarnWidth;
  while (x < -0.02f) {
    const float width = Min(random.Range(0.145f, 0.205f), -x);
    Board b;
    b.width = width - random.Range(0.003f, 0.009f);
    b.across = {1, 0, 0};
    b.along = Normalized({random.Signed() * 0.0025f, 1, 0});
    b.outward = {0, 0, 1};
    b.thickness = random.Range(0.018f, 0.026f);
    b.warp = random.Range(0.002f, 0.008f);
    b.material = Material::kBoardRed;
    b.seed = random.Unit();
    const float middle = x + width / 2;
    const bool overDoor =
        middle > kDoorCentre - kDoorWidth / 2 && middle < kDoorCentre + kDoorWidth / 2;
    const float foot = overDoor ? kDoorHeight - 0.02f : kSill + random.Range(-0.035f, 0.02f);
    b.origin = {middle, foot, random.Range(-0.003f, 0.004f)};
    b.length = RoofHeight(middle) - foot - 0.015f;
    b.topSlant =
        (middle < -kBarnWidth / 2 ? 1.0f : -1.0f) * (kRidgeHeight - kEaveHeight) / (kBarnWidth / 2);
    b.vStart = foot - kSill;
    b.steps = 10;
    AddBoard(mesh, b);
    x += width;
  }
  // The long side and, unseen but for its shadow, the other one.
  for (const float side : {0.0f, -kBarnWidth}) {
    float z = 0;
    while (z > -kBarnLength) {
      const float width = random.Range(0.145f, 0.205f);
      Board b;
      b.width = width - random.Range(0.003f, 0.010f);
      b.across = {0, 0, side == 0 ? -1.0f : 1.0f};
      b.along = {0, 1, 0};
      b.outward = {side == 0 ? 1.0f : -1.0f, 0, 0};
      b.thickness = random.Range(0.018f, 0.026f);
      b.warp = random.Range(0.003f, 0.010f);
      b.material = Material::kBoardRed;
      b.seed = random.Unit();
      const float foot = kSill + random.Range(-0.05f, 0.03f);
      b.origin = {side, foot, z - width / 2};
      b.length = kEaveHeight - foot + 0.06f;
      b.vStart = foot - kSill;
      AddSideBoard(mesh, b);
      z -= width;
    }
  }
}

void AddFooting(Mesh& mesh) {
  Random random(23);
  const auto course = [&](Vec3 from, Vec3 along, float length, float turn) {
    float at = 0;
    while (at < length) {
      const float size = random.Range(0.22f, 0.46f);
      const float height = random.Range(0.13f, 0.19f);
      const Vec3 centre = from + along * (at + size / 2) + Vec3{0, random.Range(0.06f, 0.10f), 0};
      const Vec3 half{size * 0.47f, height, random.Range(0.12f, 0.18f)};
      const float askew = random.Signed() * 0.12f;
      AddStone(mesh, centre, half, turn + askew, 22, random);
      at += size * 0.93f;
    }
  };
  const float door = kDoorCentre + kDoorWidth / 2;
  course({-kBarnWidth - 0.05f, 0, -0.06f}, {1, 0, 0},
         kBarnWidth + kDoorCentre - kDoorWidth / 2 + 0.05f, 0);
  course({door, 0, -0.06f}, {1, 0, 0}, -door + 0.05f, 0);
  course({-0.06f, 0, 0.05f}, {0, 0, -1}, kBarnLength, 1.5708f);
  course({-kBarnWidth + 0.06f, 0, 0.05f}, {0, 0, -1}, kBarnLength, 1.5708f);
  // The worn sill of the doors.
  AddStone(mesh, {kDoorCentre - 0.5f, -0.02f, 0.1f}, {0.78f, 0.09f, 0.32f}, 0.03f, 26, random);
  AddStone(mesh, {kDoorCentre + 0.78f, -0.03f, 0.12f}, {0.52f, 0.09f, 0.29f}, -0.05f, 26, random);
}

}  // namespace tarnwick::photo
