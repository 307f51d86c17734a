#include "mesh_shapes.h"

#include <algorithm>
#include <array>
#include <vector>

#include "portable_math.h"

namespace tarnwick::photo {

Board BoardBetween(Vec3 from, Vec3 to, Vec3 outward, float width, float thickness) {
  Board board;
  board.origin = from;
  board.along = Normalized(to - from);
  board.across = Normalized(Cross(board.along, outward));
  board.outward = Cross(board.across, board.along);
  board.length = Length(to - from);
  board.width = width;
  board.thickness = thickness;
  return board;
}

void AddBoard(Mesh& mesh, const Board& b) {
  // The section, from the back edge over the front to the other back edge; the
  // narrow bevels catch the light as worn edges do.
  const float h = b.width / 2;
  const float t = b.thickness / 2;
  const float e = Min(0.004f, t / 2);
  const std::array<std::array<float, 2>, 8> section{{{-h, -t},
                                                     {-h, t - e},
                                                     {-h + e, t},
                                                     {h - e, t},
                                                     {h, t - e},
                                                     {h, -t},
                                                     {h - e, -t - e},
                                                     {-h + e, -t - e}}};
  const auto centre = [&](float v, std::size_t i) {
    const float wave = b.warp * Noise2(v * 0.9f + b.seed * 61, b.seed * 97 + 3);
    const float edge =
        0.4f * b.warp * Noise2(v * 3.1f, b.seed * 173 + (section[i][0] < 0 ? 0.0f : 9.5f));
    const float cup = b.warp * 0.8f * (b.seed - 0.4f) * (section[i][0] / h) * (section[i][0] / h);
    const float slant = b.topSlant * section[i][0] * (v / b.length);
    return b.origin + b.along * (v + slant) + b.across * (section[i][0] + edge) +
           b.outward * (section[i][1] + wave + cup);
  };
  for (std::size_t i = 0; i < section.size(); ++i) {
    const std::size_t j = (i + 1) % section.size();
    for (int k = 0; k < b.steps; ++k) {
      const float v0 = b.length * static_cast<float>(k) / static_cast<float>(b.steps);
      const float v1 = b.length * static_cast<float>(k + 1) / static_cast<float>(b.steps);
      // Narrow sides take their u from beyond the front's edge.
      const float u0 = section[i][0] + (i == 0 || i > 4 ? section[i][1] - t : 0.0f);
      const float u1 = section[j][0] + (i == 0 || i >= 4 ? section[j][1] - t : 0.0f);
      const auto p = mesh.Add({centre(v0, i), {}, u0, v0 + b.vStart});
      const auto q = mesh.Add({centre(v0, j), {}, u1, v0 + b.vStart});
      const auto r = mesh.Add({centre(v1, j), {}, u1, v1 + b.vStart});
      const auto s = mesh.Add({centre(v1, i), {}, u0, v1 + b.vStart});
      mesh.Quad(p, q, r, s, b.material, b.seed);
    }
  }
  for (const float v : {0.0f, b.length}) {
    std::array<std::uint32_t, 8> rim;
    for (std::size_t i = 0; i < rim.size(); ++i)
      rim[i] = mesh.Add({centre(v, i), {}, section[i][0] * 0.2f, v + b.vStart + section[i][1]});
    for (std::size_t i = 1; i + 1 < rim.size(); ++i)
      mesh.Face(rim[0], rim[i], rim[i + 1], b.material, b.seed);
  }
}

void AddTube(Mesh& mesh, std::span<const TubePoint> path, int sides, Material material,
             float seed) {
  Vec3 side;
  Vec3 up;
  std::vector<std::uint32_t> ring;
  std::vector<std::uint32_t> before;
  float v = 0;
  for (std::size_t i = 0; i < path.size(); ++i) {
    const Vec3 along =
        Normalized(path[std::min(i + 1, path.size() - 1)].centre - path[i == 0 ? 0 : i - 1].centre);
    if (i == 0) {
      Basis(along, side, up);
    } else {
      // Carried along the bend rather than made anew: the tube must not twist.
      side = Normalized(side - along * Dot(side, along));
      up = Cross(along, side);
      v += Length(path[i].centre - path[i - 1].centre);
    }
    ring.clear();
    for (int k = 0; k <= sides; ++k) {
      const float turn = static_cast<float>(k) / static_cast<float>(sides);
      const Vec3 n = side * Cos(2 * kPi * turn) + up * Sin(2 * kPi * turn);
      ring.push_back(
          mesh.Add({path[i].centre + n * path[i].radius, n, turn * 2 * kPi * path[0].radius, v}));
    }
    for (std::size_t k = 0; i > 0 && k + 1 < ring.size(); ++k)
      mesh.Quad(before[k], before[k + 1], ring[k + 1], ring[k], material, seed);
    before = ring;
  }
}

void AddLathe(Mesh& mesh, std::span<const ProfilePoint> profile, int sides, Material material,
              float seed) {
  const auto normal = [&](std::size_t i) {
    const float dr = profile[i + 1].radius - profile[i].radius;
    const float dh = profile[i + 1].height - profile[i].height;
    return Normalized(Vec3{dh, -dr, 0});
  };
  for (std::size_t i = 0; i + 1 < profile.size(); ++i) {
    const Vec3 own = normal(i);
    Vec3 low = own;
    Vec3 high = own;
    if (i > 0 && Dot(own, normal(i - 1)) > 0.65f) low = Normalized(own + normal(i - 1));
    if (i + 2 < profile.size() && Dot(own, normal(i + 1)) > 0.65f)
      high = Normalized(own + normal(i + 1));
    std::uint32_t before[2] = {};
    for (int k = 0; k <= sides; ++k) {
      const float turn = static_cast<float>(k) / static_cast<float>(sides);
      const float c = Cos(2 * kPi * turn);
      const float s = Sin(2 * kPi * turn);
      const auto point = [&](const ProfilePoint& p, Vec3 n) {
        return mesh.Add(
            {{p.radius * c, p.height, p.radius * s}, {n.x * c, n.y, n.x * s}, turn, p.height});
      };
      const std::uint32_t now[2] = {point(profile[i], low), point(profile[i + 1], high)};
      if (k > 0) mesh.Quad(before[0], now[0], now[1], before[1], material, seed);
      before[0] = now[0];
      before[1] = now[1];
    }
  }
}

void AddStone(Mesh& mesh, Vec3 centre, Vec3 half, float turn, int detail, Random& random) {
  const float seed = random.Unit();
  const Vec3 shift{seed * 91, seed * 57, seed * 133};
  const int rows = detail;
  const int columns = detail * 2;
  const float c = Cos(turn);
  const float s = Sin(turn);
  const auto first = static_cast<std::uint32_t>(mesh.vertices.size());
  for (int j = 0; j <= rows; ++j) {
    for (int i = 0; i <= columns; ++i) {
      const float theta = kPi * static_cast<float>(j) / static_cast<float>(rows);
      const float phi = 2 * kPi * static_cast<float>(i % columns) / static_cast<float>(columns);
      Vec3 d{Sin(theta) * Cos(phi), Cos(theta), Sin(theta) * Sin(phi)};
      // Blown up towards the box it fills, then dented.
      const float m = Max(Max(d.x < 0 ? -d.x : d.x, d.y < 0 ? -d.y : d.y), d.z < 0 ? -d.z : d.z);
      const float r = Mix(1, 1 / m, 0.45f) * (1 + 0.22f * Fbm3(d * 1.4f + shift, 3));
      d = d * half * r;
      mesh.Add({centre + Vec3{d.x * c + d.z * s, d.y, d.z * c - d.x * s},
                {},
                d.x + seed * 40,
                d.y + d.z * 0.7f});
    }
  }
  const auto at = [&](int i, int j) {
    return first + static_cast<std::uint32_t>(j * (columns + 1) + i);
  };
  for (int j = 0; j < rows; ++j)
    for (int i = 0; i < columns; ++i)
      mesh.Quad(at(i, j), at(i + 1, j), at(i + 1, j + 1), at(i, j + 1), Material::kStone, seed);
  // Smooth normals: the sum of the faces around a vertex; the seam shares both.
  for (std::size_t k = mesh.triangles.size() - static_cast<std::size_t>(rows * columns) * 2;
       k < mesh.triangles.size(); ++k) {
    auto& t = mesh.triangles[k];
    const Vec3 a = mesh.vertices[t.corner[0]].position;
    Vec3 n =
        Cross(mesh.vertices[t.corner[1]].position - a, mesh.vertices[t.corner[2]].position - a);
    if (Dot(n, a - centre) < 0) n = -n;
    for (const auto corner : t.corner) mesh.vertices[corner].normal += n;
  }
  for (int j = 0; j <= rows; ++j) {
    const Vec3 sum = mesh.vertices[at(0, j)].normal + mesh.vertices[at(columns, j)].normal;
    mesh.vertices[at(0, j)].normal = mesh.vertices[at(columns, j)].normal = sum;
  }
  for (std::size_t k = first; k < mesh.vertices.size(); ++k)
    mesh.vertices[k].normal = Normalized(mesh.vertices[k].normal);
}

void AddBlade(Mesh& mesh, const Blade& b) {
  const Vec3 up = Cross(b.side, b.along);
  const auto point = [&](float v, float w) {
    const Vec3 p = b.base + b.along * (b.length * v) + b.side * (b.width * 0.5f * w) +
                   up * (b.width * 0.5f * b.fold * (w < 0 ? -w : w) - b.curl * b.length * v * v);
    return mesh.Add({p, {}, w, v});
  };
  const auto base = point(0, 0);
  const auto tip = point(1, 0);
  if (!b.fine) {
    const auto left = point(0.45f, -1);
    const auto right = point(0.45f, 1);
    mesh.Face(base, left, tip, b.material, b.seed);
    mesh.Face(base, tip, right, b.material, b.seed);
    return;
  }
  const auto rib = point(0.5f, 0);
  for (const float w : {-1.0f, 1.0f}) {
    const auto low = point(0.25f, w * 0.85f);
    const auto high = point(0.62f, w * 0.8f);
    mesh.Face(base, low, rib, b.material, b.seed);
    mesh.Face(low, high, rib, b.material, b.seed);
    mesh.Face(high, tip, rib, b.material, b.seed);
  }
}

}  // namespace tarnwick::photo
