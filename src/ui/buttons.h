// Buttons and check boxes that show clearly when they have the keyboard.
#pragma once

#include <QCheckBox>
#include <QPushButton>
#include <QStyleOptionButton>

#include "platform/canvas.h"
#include "ui/marks.h"

namespace holdem {

class CommandButton : public GivesUpFocus<QPushButton> {
 public:
  CommandButton(QWidget* parent, const QString& name, const QString& text, const Rect& box);

 protected:
  void paintEvent(QPaintEvent* event) override;
};

// A check box whose text is wrapped to fit the control, or as much of the control as its parent
// shows.
class WrappingCheckBox : public GivesUpFocus<QCheckBox> {
 public:
  using GivesUpFocus::GivesUpFocus;

  QRect TextBox() const;   // right of the box that is ticked
  QFont TextFont() const;  // the control's own, or smaller where its text would not fit

 protected:
  void paintEvent(QPaintEvent* event) override;
  bool hitButton(const QPoint& point) const override { return rect().contains(point); }

 private:
  QStyleOptionButton Option() const;
};

}  // namespace holdem
