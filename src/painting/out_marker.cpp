#include "painting/out_marker.h"

namespace holdem {

void DrawOutMarker(Canvas& surface, Color color) {
  const auto [width, height] = surface.InnerSize();
  surface.Circle(width / 4, height * 4 / 5, width / 7, color, kBlack);
}

}  // namespace holdem
