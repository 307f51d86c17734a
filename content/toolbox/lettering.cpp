#include "toolbox/lettering.h"

#include <array>
#include <vector>

#include "toolbox/maths.h"

namespace tarnwick::content {
namespace {

// Each letter as lines through points of a lattice 5 wide and 7 high, a pair
// of figures for column and row; a comma lifts the pen.
constexpr std::array<std::string_view, 26> kLetters = {"062046,1434",
                                                       "0006,003041423303,3344453606",
                                                       "4130100105163645",
                                                       "0006,003041453606",
                                                       "40000646,0333",
                                                       "400006,0333",
                                                       "41301001051636454323",
                                                       "0006,4046,0343",
                                                       "2026",
                                                       "4045361605",
                                                       "0006,4003,0346",
                                                       "000646",
                                                       "0600234046",
                                                       "06004640",
                                                       "103041453616050110",
                                                       "06003041423303",
                                                       "103041453616050110,2446",
                                                       "06003041423303,2346",
                                                       "413010010213334445361605",
                                                       "0040,2026",
                                                       "000516364540",
                                                       "002640",
                                                       "0016233640",
                                                       "0046,4006",
                                                       "002340,2326",
                                                       "00400646"};
constexpr std::array<std::string_view, 10> kFigures = {
    "103041453616050110",          "112026",   "01103041420646",
    "01103041423313,334445361605", "36300444", "40000212324345361605",
    "413010010516364544331304",    "004016",   "13020110304142331304051636454433",
    "423313020110304145361605"};

std::string_view ShapeOf(char letter) {
  if (letter >= 'A' && letter <= 'Z') return kLetters[static_cast<std::size_t>(letter - 'A')];
  if (letter >= '0' && letter <= '9') return kFigures[static_cast<std::size_t>(letter - '0')];
  return {};
}

float Advance(const Lettering& style, char letter) {
  const float share = letter == 'I' || letter == '1' ? 0.55F : 1.0F;
  return style.height * (style.narrow * share + style.space);
}

}  // namespace

float LengthOf(const Lettering& style, std::string_view text) {
  float length = 0.0F;
  for (const char letter : text) length += Advance(style, letter);
  return length;
}

void AddLettering(StrokeSet& strokes, const Lettering& style, std::string_view text) {
  float x = style.x;
  float y = style.y;
  float heading = style.heading;
  for (const char letter : text) {
    const float advance = Advance(style, letter);
    // A letter stands on the chord of its own piece of the base line.
    heading += 0.5F * style.bend * advance;
    const float ux = Cos(heading);
    const float uy = Sin(heading);
    const float inset = letter == 'I' || letter == '1' ? 0.22F * style.narrow : 0.0F;
    std::vector<StrokePoint> line;
    const auto finish = [&] {
      if (!line.empty()) strokes.Add(line);
      line.clear();
    };
    int column = -1;
    for (const char c : ShapeOf(letter)) {
      if (c == ',') finish();
      if (c < '0' || c > '9') continue;
      if (column < 0) {
        column = c - '0';
        continue;
      }
      const float along =
          style.height * (style.narrow * 0.25F * static_cast<float>(column) - inset);
      const float up = style.height * (1.0F - static_cast<float>(c - '0') / 6.0F);
      line.push_back(
          {x + ux * along + uy * up, y + uy * along - ux * up, style.radius, style.strength});
      column = -1;
    }
    finish();
    x += ux * advance;
    y += uy * advance;
    heading += 0.5F * style.bend * advance;
  }
}

}  // namespace tarnwick::content
