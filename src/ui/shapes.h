// What is only looked at: shapes that decorate, and the eye of Auto Read.
#pragma once

#include <QLabel>

namespace holdem {

// A shape that only decorates: the mouse goes through it.
class Shape : public QWidget {
 public:
  enum class Form { Oval, Circle, Rectangle, RoundedFrame };

  // The outline has the given width in logical pixels.
  Shape(QWidget* parent, const QString& name, Form form, const QColor& fill, int outline);

  void SetLetter(const QString& letter) { letter_ = letter; }  // in the middle of a circle

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  Form form_;
  QColor fill_;
  int outline_;
  QString letter_;
};

// The eye that shows that Auto Read follows a table. Its text is the character for an eye in a
// symbol font; since not every system has that font, the eye is drawn.
class EyeLabel : public QLabel {
 public:
  using QLabel::QLabel;

 protected:
  void paintEvent(QPaintEvent* event) override;
};

}  // namespace holdem
