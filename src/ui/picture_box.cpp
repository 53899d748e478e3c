#include "ui/picture_box.h"

#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

#include "platform/qt/qt_canvas.h"
#include "ui/controls.h"

namespace holdem {

PictureBox::PictureBox(QWidget* parent, const QString& name, std::function<void(Canvas&)> draw)
    : QWidget(parent), draw_(std::move(draw)) {
  setObjectName(name);
}

void PictureBox::SetBackground(const QColor& color) {
  background_ = color;
  update();
}

void PictureBox::SetBorder(bool border) {
  border_ = border;
  update();
}

void PictureBox::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  const QRect inner = border_ ? rect().adjusted(1, 1, -1, -1) : rect();
  if (border_) {
    painter.setPen(Qt::black);
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
  }
  painter.translate(inner.topLeft());
  QtCanvas canvas(painter, inner.size().expandedTo({0, 0}), size(), background_);
  draw_(canvas);
  painter.resetTransform();
  if (hasFocus()) DrawFocus(painter, rect());
}

bool PictureBox::event(QEvent* event) {
  if (event->type() != QEvent::ToolTip || !inWords) return QWidget::event(event);
  ShowDescription(*this, *this);
  return true;
}

void PictureBox::mousePressEvent(QMouseEvent* event) {
  if (onPress) onPress(*event);
}

void PictureBox::mouseDoubleClickEvent(QMouseEvent* event) {
  const bool heard = onDoubleClick && event->button() == Qt::LeftButton;
  if (heard) {
    onDoubleClick(*event);
  } else {
    mousePressEvent(event);
  }
}

void PictureBox::keyPressEvent(QKeyEvent* event) {
  const auto* const action = [&]() -> const std::function<void()>* {
    switch (event->key()) {
      case Qt::Key_Space:
      case Qt::Key_Return:
      case Qt::Key_Enter: return &onActivate;
      case Qt::Key_Delete:
      case Qt::Key_Backspace: return &onDelete;
      case Qt::Key_F10: return event->modifiers() & Qt::ShiftModifier ? &onMenuKey : nullptr;
      default: return nullptr;
    }
  }();
  if (action != nullptr && *action) {
    if (!event->isAutoRepeat()) (*action)();
  } else {
    QWidget::keyPressEvent(event);
  }
}

void PictureBox::contextMenuEvent(QContextMenuEvent* event) {
  if (event->reason() == QContextMenuEvent::Keyboard && onMenuKey) onMenuKey();
}

}  // namespace holdem
