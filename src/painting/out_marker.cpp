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
  double dot = 0;  // its radius, as a share of the marker's
  std::array<Stroke, 2> strokes;
};

constexpr Stroke kNone, kAcross{0.8, 0}, kUpright{0, 0.8}, kRising{0.55, -0.55},
    kFalling{0.55, 0.55};
constexpr std::array<Sign, kCategoryRows> kSigns = {{{0, {kNone, kNone}},
                                                     {0, {kAcross, kNone}},
                                                     {0, {kUpright, kNone}},
                                                     {0, {kRising, kNone}},
                                                     {1.0 / 3, {kNone, kNone}},
                                                     {0, {kAcross, kUpright}},
                                                     {0, {kRising, kFalling}},
                                                     {0.5, {kNone, kNone}}}};

void DrawMarker(Canvas& surface, double x, double y, double radius, int row) {
  surface.Circle(x, y, radius, kRowColors[row], kBlack);
  if (const double dot = kSigns[row].dot; dot > 0) {
    surface.Circle(x, y, radius * dot, kBlack, kBlack);
  }
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
