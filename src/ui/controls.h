// The small controls of the main window that the window system does not have as they are needed
// here.
#pragma once

#include <QCheckBox>
#include <QLabel>
#include <functional>

namespace holdem {

// A shape that only decorates: the mouse goes through it.
class Shape : public QWidget {
 public:
  enum class Form { Oval, Circle, Rectangle, RoundedFrame };

  // The outline has the given width in logical pixels.
  Shape(QWidget* parent, const QString& name, Form form, const QColor& fill, int outline);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  Form form_;
  QColor fill_;
  int outline_;
};

// A label that can be clicked: left button pressed and released on it.
class ClickLabel : public QLabel {
 public:
  ClickLabel(QWidget* parent, const QString& name, const QString& text);

  std::function<void()> onClick;

 protected:
  void mouseReleaseEvent(QMouseEvent* event) override;
};

// The sign that Auto Read is watching. Its text is the character that shows an eye in a symbol
// font; the eye is drawn, since not every system has that font.
class EyeLabel : public QLabel {
 public:
  using QLabel::QLabel;

 protected:
  void paintEvent(QPaintEvent* event) override;
};

// A check box whose text wraps inside its box.
class WrappingCheckBox : public QCheckBox {
 public:
  using QCheckBox::QCheckBox;

 protected:
  void paintEvent(QPaintEvent* event) override;
  bool hitButton(const QPoint& point) const override { return rect().contains(point); }
};

}  // namespace holdem
