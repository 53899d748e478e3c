// Buttons and check boxes that show clearly when they have the keyboard.
#pragma once

#include <QCheckBox>
#include <QPushButton>
#include <QStyleOptionButton>

namespace holdem {

// A button that shows clearly when it has the keyboard.
class CommandButton : public QPushButton {
 public:
  CommandButton(QWidget* parent, const QString& name, const QString& text);

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
};

// A check box whose text wraps inside its box, or inside the part of it that its parent shows.
class WrappingCheckBox : public QCheckBox {
 public:
  using QCheckBox::QCheckBox;

  QRect TextBox() const;   // beside the box that is ticked
  QFont TextFont() const;  // the control's own, or smaller where its text would not fit

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  bool hitButton(const QPoint& point) const override { return rect().contains(point); }

 private:
  QStyleOptionButton Option() const;
};

}  // namespace holdem
