#include "ui/shapes.h"

#include <QPainter>
#include <algorithm>

#include "design/main_layout.h"
#include "platform/qt/qt_drawing.h"
#include "ui/geometry.h"

namespace holdem {

Shape::Shape(QWidget* parent, const QString& name, const Rect& box, Form form, const QColor& fill,
             int outline)
    : QWidget(parent), form_(form), fill_(fill), outline_(outline) {
  SetNameAndBox(*this, name, box);
  setAttribute(Qt::WA_TransparentForMouseEvents);
}

void Shape::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  const bool decorates = form_ == Form::RoundedFrame;  // grey, or it would look like a button
  painter.setPen(QPen(decorates ? palette().color(QPalette::Dark) : Qt::black, outline_));
  painter.setBrush(fill_);
  const double inset = outline_ / 2.0;
  const QRectF box = QRectF(rect()).adjusted(inset, inset, -inset, -inset);
  if (form_ == Form::Oval) {
    painter.drawEllipse(box);
  } else if (form_ == Form::DealerButton) {
    const double radius = std::min(box.width(), box.height()) / 2;
    painter.drawEllipse(box.center(), radius, radius);
    QFont font = this->font();
    font.setPixelSize(std::max(1, qRound(1.4 * radius)));
    font.setBold(true);
    painter.setFont(font);
    painter.setPen(Qt::black);
    painter.drawText(box, Qt::AlignCenter, "D");
  } else {
    const double corner = form_ == Form::RoundedFrame ? 6 : 0;
    painter.drawRoundedRect(box, corner, corner);
  }
}

void EyeLabel::paintEvent(QPaintEvent*) {
  static const QtDrawing eye("eye");
  const double xRatio = width() / layout::kEyeBall.width;
  const double yRatio = height() / layout::kEyeBall.height;
  const auto& [left, top, pictureWidth, pictureHeight] = layout::kEye;
  const QRectF room((left - layout::kEyeBall.left) * xRatio, (top - layout::kEyeBall.top) * yRatio,
                    pictureWidth * xRatio, pictureHeight * yRatio);
  QRectF box(QPointF(), QSizeF(eye.Size()).scaled(room.size(), Qt::KeepAspectRatio));
  box.moveCenter(room.center());
  QPainter painter(this);
  eye.Paint(painter, box);
}

}  // namespace holdem
