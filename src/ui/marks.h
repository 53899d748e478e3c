// How the control that has the keyboard is marked, and how a control gives the keyboard up.
#pragma once

#include <QPainter>
#include <QWidget>

namespace holdem {

// The colour of the mark. It has a contrast of at least 3:1 on every background of the windows on
// which the white line beside it has less: felt, paper, cards, levels.
inline constexpr QColor kFocus(0, 50, 160);

QColor Faded(QColor color, double opacity);

// Drawn as filled boxes, which have the same thickness on every side at every scale; a pen may lose
// sides where it falls on half pixels.
void DrawFrame(QPainter& painter, const QRect& box, int thickness, const QColor& color);

// Marks the control that has the keyboard; to be seen on every colour.
void DrawFocus(QPainter& painter, const QRect& box);

// Called when the mouse presses the control: the keyboard goes to the window, so that Space or
// Enter does not press the control again.
void GiveUpFocus(const QWidget& control);

// One of Qt's controls that gives the keyboard up when the mouse presses it.
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
