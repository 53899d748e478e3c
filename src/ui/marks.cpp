#include "ui/marks.h"

namespace holdem {

QColor Faded(QColor color, double opacity) {
  color.setAlphaF(static_cast<float>(opacity));
  return color;
}

void DrawFrame(QPainter& painter, const QRect& box, int thickness, const QColor& color) {
  const QRect inside = box.adjusted(thickness, thickness, -thickness, -thickness);
  for (const QRect& side : QRegion(box) - inside) painter.fillRect(side, color);
}

void DrawFocus(QPainter& painter, const QRect& box) {
  painter.fillRect(box, Faded(kFocus, 0.2));
  DrawFrame(painter, box, 1, Qt::white);
  DrawFrame(painter, box.adjusted(1, 1, -1, -1), 2, kFocus);
}

void GiveUpFocus(const QWidget& control) {
  if (control.hasFocus()) control.window()->setFocus();
}

}  // namespace holdem
