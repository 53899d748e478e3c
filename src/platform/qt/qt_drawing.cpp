#include "platform/qt/qt_drawing.h"

#include <cassert>

namespace holdem {

QtDrawing::QtDrawing(const char* name) {
  [[maybe_unused]] const bool loaded =
      record_.load(QStringLiteral(":/drawings/%1.pic").arg(QLatin1String(name)));
  assert(loaded);
}

void QtDrawing::Paint(QPainter& painter, const QRectF& box) const {
  painter.save();
  painter.translate(box.topLeft());
  painter.scale(box.width() / Size().width(), box.height() / Size().height());
  painter.drawPicture(0, 0, record_);
  painter.restore();
}

}  // namespace holdem
