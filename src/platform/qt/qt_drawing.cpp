#include "platform/qt/qt_drawing.h"

#include <QPixmapCache>
#include <cassert>

namespace holdem {

QtDrawing::QtDrawing(const char* name) : name_(QLatin1String(name)) {
  [[maybe_unused]] const bool loaded = record_.load(":/drawings/" + name_ + ".pic");
  assert(loaded);
}

// The deck shows each suit many times: it is drawn once for each size.
void QtDrawing::Paint(QPainter& painter, const QRectF& box) const {
  const double scale = painter.device()->devicePixelRatioF();
  const QSize pixels = (box.size() * scale).toSize();
  if (pixels.isEmpty()) return;
  const QString key =
      QStringLiteral("%1 %2x%3").arg(name_).arg(pixels.width()).arg(pixels.height());
  QPixmap drawn;
  if (!QPixmapCache::find(key, &drawn)) {
    drawn = QPixmap(pixels);
    drawn.fill(Qt::transparent);
    QPainter onto(&drawn);
    onto.scale(1.0 * pixels.width() / Size().width(), 1.0 * pixels.height() / Size().height());
    onto.drawPicture(0, 0, record_);
    QPixmapCache::insert(key, drawn);
  }
  drawn.setDevicePixelRatio(scale);
  const QPoint corner = (box.topLeft() * scale).toPoint();  // where no pixel is split
  painter.drawPixmap(QPointF(corner) / scale, drawn);
}

}  // namespace holdem
