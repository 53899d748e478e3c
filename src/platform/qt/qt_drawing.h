// The program's drawings: those of assets/, crisp in every size.
#pragma once

#include <QPainter>
#include <QPicture>
#include <QString>

namespace holdem {

class QtDrawing {
 public:
  // The name is that of the file in assets/, without its ending.
  explicit QtDrawing(const char* name);

  QSize Size() const { return record_.boundingRect().size(); }  // as drawn
  // Stretched to the box, in whole pixels of the device.
  void Paint(QPainter& painter, const QRectF& box) const;

 private:
  QPixmap Drawn(QSize pixels, double scale) const;

  QString name_;
  QPicture record_;  // as the build has recorded it
};

}  // namespace holdem
