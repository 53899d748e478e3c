#include "painting/out_marker.h"

#include <algorithm>

#include "painting/row_colors.h"

namespace holdem {
namespace {

// A stroke through the centre, from one end to the other; in shares of the radius.
struct Stroke {
  double right = 0;
  double down = 0;
};

struct Sign {
  bool dot = false;
  std::array<Stroke, 2> strokes;
};

constexpr Stroke kNone, kAcross{0.8, 0}, kUpright{0, 0.8}, kRising{0.55, -0.55},
    kFalling{0.55, 0.55};
constexpr std::array<Sign, kCategoryRows> kSigns = {{{false, {kNone, kNone}},
                                                     {false, {kAcross, kNone}},
                                                     {false, {kUpright, kNone}},
                                                     {false, {kRising, kNone}},
                                                     {true, {kNone, kNone}},
                                                     {false, {kAcross, kUpright}},
                                                     {false, {kRising, kFalling}},
                                                     {false, {kFalling, kNone}}}};

void DrawMarker(Canvas& surface, double x, double y, double radius, int row) {
  surface.Circle(x, y, radius, kRowColors[row], kBlack);
  if (kSigns[row].dot) surface.Circle(x, y, radius / 3, kBlack, kBlack);
  for (const auto& [right, down] : kSigns[row].strokes) {
    if (right == 0 && down == 0) continue;
    surface.Line(x - radius * right, y - radius * down, x + radius * right, y + radius * down,
                 kBlack);
  }
}

double RowMarkerRadius(const Size& title) {
  return std::min(title.height * 0.22, title.width * 0.045);
}

}  // namespace

void DrawOutMarker(Canvas& surface, int row) {
  const auto [width, height] = surface.InnerSize();
  DrawMarker(surface, width / 4, height * 4 / 5, width / 7, row);
}

void DrawRowMarker(Canvas& surface, int row) {
  const Size title = surface.InnerSize();
  DrawMarker(surface, RowMarkerRoom(title) * 0.44, title.height / 2, RowMarkerRadius(title), row);
}

double RowMarkerRoom(const Size& title) { return RowMarkerRadius(title) * 2.9; }

}  // namespace holdem
