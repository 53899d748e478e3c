// A Canvas over a QPainter, at the resolution of whatever it paints on.
#pragma once

#include <QPainter>

#include "platform/canvas.h"

namespace holdem {

class QtCanvas : public Canvas {
 public:
  // The painter's origin is the top-left corner of the inner area. `painter` is not owned. Sizes in
  // logical pixels; Clear() fills with `background`, or with nothing when it is not valid.
  QtCanvas(QPainter& painter, QSize inner, QSize outer, QColor background);

  Size InnerSize() const override;
  Size OuterSize() const override;
  void Clear() override;
  void Line(double x1, double y1, double x2, double y2, Color color) override;
  void FilledBox(const Rect& box, Color color) override;
  void BoxOutline(const Rect& box, Color color) override;
  void Circle(double x, double y, double radius, Color fill, Color outline) override;
  void Stretched(Picture picture, const Rect& box) override;
  void Text(double x, double y, std::string_view text, const Font& font, Color color) override;
  Size TextSize(std::string_view text, const Font& font) const override;

 private:
  QPainter& painter_;
  QSize inner_;
  QSize outer_;
  QColor background_;
};

QColor QtColor(Color color);

}  // namespace holdem
