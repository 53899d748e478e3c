// What is painted on a control to mark it: the mark of the keyboard, and those of a card in the
// air.
#pragma once

#include <QPainter>
#include <QWidget>

namespace holdem {

// At least 3:1 against every ground in the windows that white is not: felt, paper, cards, levels.
inline constexpr QColor kFocus(0, 50, 160);

QColor Faded(QColor color, double opacity);

// Filled boxes are as thick on every side at every scale; a pen at half pixels may lose sides.
void DrawFrame(QPainter& painter, const QRect& box, int thickness, const QColor& color);

// Marks the control that has the keyboard; to be seen on every colour.
void DrawFocus(QPainter& painter, const QRect& box);

// For a click with the mouse: no key may act on that control again unless it is asked for.
void GiveUpFocus(const QWidget& control);

// One of Qt's controls that gives the keyboard up so.
template <typename Control>
class GivesUpFocus : public Control {
 public:
  using Control::Control;

 protected:
  void mousePressEvent(QMouseEvent* event) override {
    GiveUpFocus(*this);
    Control::mousePressEvent(event);
  }
};

}  // namespace holdem
