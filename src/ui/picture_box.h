// A widget that is drawn by a painter on a canvas, and passes the mouse and the keys on.
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

  void SetBackground(const QColor& color);  // what Clear() leaves; the window shows through without
  void SetBorder(bool border);              // a single line; the picture then lies inside it

  // A second press in quick succession is a double-click when somebody listens for one with the
  // left button, and a press otherwise.
  std::function<void(QMouseEvent&)> onPress;
  std::function<void(QMouseEvent&)> onDoubleClick;

  // The keys of a picture that has the focus, beside those of onActivate, Space and Enter.
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
