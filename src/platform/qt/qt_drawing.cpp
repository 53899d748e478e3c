#include "platform/qt/qt_drawing.h"

#include <QPixmapCache>
#include <cassert>

namespace holdem {

QtDrawing::QtDrawing(const char* name) : name_(QLatin1String(name)) {
  [[maybe_unused]] const bool loaded = record_.load(":/drawings/" + name_ + ".pic");
  assert(loaded);
}

// Painted once for each size and kept, since the deck shows each suit many times.
QPixmap QtDrawing::Drawn(QSize pixels, double scale) const {
  const QString key =
      QStringLiteral("%1 %2x%3@%4").arg(name_).arg(pixels.width()).arg(pixels.height()).arg(scale);
  QPixmap drawn;
  if (QPixmapCache::find(key, &drawn)) return drawn;
  drawn = QPixmap(pixels);
  drawn.fill(Qt::transparent);
  QPainter painter(&drawn);
  painter.scale(1.0 * pixels.width() / Size().width(), 1.0 * pixels.height() / Size().height());
  painter.drawPicture(0, 0, record_);
  painter.end();
  drawn.setDevicePixelRatio(scale);
  QPixmapCache::insert(key, drawn);
  return drawn;
}

void QtDrawing::Paint(QPainter& painter, const QRectF& box) const {
  const double scale = painter.device()->devicePixelRatioF();
  const QSize pixels = (box.size() * scale).toSize();
  if (pixels.isEmpty()) return;
  const QTransform toDevice = painter.deviceTransform();
  const QPointF corner = toDevice.map(box.topLeft()).toPoint();  // on whole pixels
  painter.drawPixmap(toDevice.inverted().map(corner), Drawn(pixels, scale));
}

}  // namespace holdem
