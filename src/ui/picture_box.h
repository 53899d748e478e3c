// A widget that is drawn by a function of painting/, and calls back when mouse or keys act on it.
#pragma once

#include <QWidget>
#include <functional>

#include "platform/canvas.h"
#include "ui/described.h"

class QMouseEvent;

namespace holdem {

class PictureBox : public QWidget, public Described {
 public:
  PictureBox(QWidget* parent, const QString& name, std::function<void(Canvas&)> draw);

  void SetBackground(const QColor& color);  // for Clear(); without one the window shows through
  void SetBorder(bool border);              // a single line; the picture then lies inside it

  // The second press of a double-click with the left button calls onDoubleClick, where that is set;
  // every other press calls onPress.
  std::function<void(QMouseEvent&)> onPress;
  std::function<void(QMouseEvent&)> onDoubleClick;

  // Called, while the picture has the keyboard, for Delete, and for the menu key or Shift+F10.
  // Space and Enter call onActivate.
  std::function<void()> onDelete;
  std::function<void()> onMenuKey;

 protected:
  QColor Background() const;  // what is seen beneath the picture

  bool event(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void contextMenuEvent(QContextMenuEvent* event) override;

 private:
  std::function<void(Canvas&)> draw_;
  QColor background_;
  bool border_ = false;
};

}  // namespace holdem
