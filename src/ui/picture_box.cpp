#include "ui/picture_box.h"

#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

#include "platform/qt/qt_canvas.h"
#include "ui/keyboard.h"
#include "ui/marks.h"

namespace holdem {

PictureBox::PictureBox(QWidget* parent, const QString& name, std::function<void(Canvas&)> draw)
    : QWidget(parent), draw_(std::move(draw)) {
  setObjectName(name);
}

void PictureBox::SetBackground(const QColor& color) {
  background_ = color;
  update();
}

QColor PictureBox::Background() const {
  return background_.isValid() ? background_ : palette().color(QPalette::Window);
}

void PictureBox::SetBorder(bool border) {
  border_ = border;
  update();
}

void PictureBox::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  const QRect inner = border_ ? rect().adjusted(1, 1, -1, -1) : rect();
  if (border_) painter.fillRect(rect(), Qt::black);
  painter.translate(inner.topLeft());
  QtCanvas canvas(painter, inner.size().expandedTo({0, 0}), size(), background_);
  draw_(canvas);
  painter.resetTransform();
  if (hasFocus()) DrawFocus(painter, rect());
}

bool PictureBox::event(QEvent* event) { return ShowTip(*this, *event) || QWidget::event(event); }

void PictureBox::mousePressEvent(QMouseEvent* event) {
  GiveUpFocus(*this);
  if (onPress) onPress(*event);
}

void PictureBox::mouseDoubleClickEvent(QMouseEvent* event) {
  if (!onDoubleClick || event->button() != Qt::LeftButton) return mousePressEvent(event);
  onDoubleClick(*event);
}

void PictureBox::keyPressEvent(QKeyEvent* event) {
  const int key = event->key();
  const bool menuKey = key == Qt::Key_F10 && event->modifiers() & Qt::ShiftModifier;
  const std::function<void()> action = IsOneOf(key, Qt::Key_Space, Qt::Key_Return, Qt::Key_Enter)
                                           ? onActivate
                                       : key == Qt::Key_Delete ? onDelete
                                       : menuKey               ? onMenuKey
                                                               : nullptr;
  if (!action) return QWidget::keyPressEvent(event);
  action();
}

void PictureBox::contextMenuEvent(QContextMenuEvent* event) {
  if (event->reason() == QContextMenuEvent::Keyboard && onMenuKey) onMenuKey();
}

}  // namespace holdem
