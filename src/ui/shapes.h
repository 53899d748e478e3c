// What is only looked at: shapes that decorate, and the eye of Auto Read.
#pragma once

#include <QLabel>

#include "platform/canvas.h"

namespace holdem {

// A shape that decorates: the mouse goes through it, unless its owner gives it a tooltip.
class Shape : public QWidget {
 public:
  enum class Form { Oval, DealerButton, Rectangle, RoundedFrame };

  // The box is in twips. The outline has the given width in logical pixels.
  Shape(QWidget* parent, const QString& name, const Rect& box, Form form, const QColor& fill,
        int outline);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  Form form_;
  QColor fill_;
  int outline_;
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
