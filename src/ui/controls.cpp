#include "ui/controls.h"

#include <QMouseEvent>
#include <QPainter>
#include <QStyleOptionButton>
#include <QStylePainter>
#include <QSvgRenderer>
#include <algorithm>

namespace holdem {

Shape::Shape(QWidget* parent, const QString& name, Form form, const QColor& fill, int outline)
    : QWidget(parent), form_(form), fill_(fill), outline_(outline) {
  setObjectName(name);
  setAttribute(Qt::WA_TransparentForMouseEvents);
}

void Shape::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen(Qt::black, outline_));
  painter.setBrush(fill_);
  const double inset = outline_ / 2.0;
  const QRectF box = QRectF(rect()).adjusted(inset, inset, -inset, -inset);
  if (form_ == Form::Oval) {
    painter.drawEllipse(box);
  } else if (form_ == Form::Circle) {
    const double radius = std::min(box.width(), box.height()) / 2;
    painter.drawEllipse(box.center(), radius, radius);
  } else {
    const double corner = form_ == Form::RoundedFrame ? 6 : 0;
    painter.drawRoundedRect(box, corner, corner);
  }
}

ClickLabel::ClickLabel(QWidget* parent, const QString& name, const QString& text)
    : QLabel(text, parent) {
  setObjectName(name);
}

void ClickLabel::mouseReleaseEvent(QMouseEvent* event) {
  const bool clicked = event->button() == Qt::LeftButton && rect().contains(event->pos());
  if (clicked && onClick) onClick();
}

void EyeLabel::paintEvent(QPaintEvent*) {
  static QSvgRenderer eye(QStringLiteral(":/assets/eye.svg"));
  constexpr double kShare = 0.68;  // of the label, as the character would take
  QSizeF size = eye.defaultSize();
  size.scale(QSizeF(rect().size()) * kShare, Qt::KeepAspectRatio);
  QPainter painter(this);
  QRectF box(QPointF(), size);
  box.moveCenter(QRectF(rect()).center());
  eye.render(&painter, box);
}

void WrappingCheckBox::paintEvent(QPaintEvent*) {
  QStylePainter painter(this);
  QStyleOptionButton option;
  initStyleOption(&option);
  option.text.clear();
  painter.drawControl(QStyle::CE_CheckBox, option);
  const int left = style()->subElementRect(QStyle::SE_CheckBoxContents, &option, this).left();
  painter.drawText(rect().adjusted(left, 0, 0, 0), Qt::AlignVCenter | Qt::TextWordWrap, text());
}

}  // namespace holdem
