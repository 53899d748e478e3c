#include "platform/qt/qt_canvas.h"

#include <array>

#include "platform/qt/qt_drawing.h"
#include "platform/qt/qt_fonts.h"
#include "platform/qt/qt_text.h"

namespace holdem {
namespace {

double Pixels(double twips) { return twips / kTwipsPerPixel; }

Size InTwips(QSizeF pixels) {
  return {pixels.width() * kTwipsPerPixel, pixels.height() * kTwipsPerPixel};
}

QRectF PixelBox(const Rect& box) {
  return {Pixels(box.left), Pixels(box.top), Pixels(box.width), Pixels(box.height)};
}

const QtDrawing& Drawing(Picture picture) {
  static const std::array<QtDrawing, 8> drawings = {
      QtDrawing("seat_in"),    QtDrawing("seat_folded"), QtDrawing("seat_me"),
      QtDrawing("seat_empty"), QtDrawing("suit_spades"), QtDrawing("suit_diamonds"),
      QtDrawing("suit_clubs"), QtDrawing("suit_hearts")};
  return drawings[static_cast<std::size_t>(picture)];
}

}  // namespace

QColor QtColor(Color color) { return {color.red, color.green, color.blue}; }

QtCanvas::QtCanvas(QPainter& painter, QSize inner, QSize outer, QColor background)
    : painter_(painter), inner_(inner), outer_(outer), background_(background) {}

Size QtCanvas::InnerSize() const { return InTwips(inner_); }

Size QtCanvas::OuterSize() const { return InTwips(outer_); }

void QtCanvas::Clear() {
  if (background_.isValid()) painter_.fillRect(QRect(QPoint(0, 0), inner_), background_);
}

void QtCanvas::Line(double x1, double y1, double x2, double y2, Color color) {
  // Boxes one pixel thick are crisp at every scale where a pen would straddle two device pixels.
  if (y1 == y2) {
    painter_.fillRect(QRectF(Pixels(x1), Pixels(y1), Pixels(x2 - x1), 1), QtColor(color));
  } else if (x1 == x2) {
    painter_.fillRect(QRectF(Pixels(x1), Pixels(y1), 1, Pixels(y2 - y1)), QtColor(color));
  } else {
    painter_.setPen(QtColor(color));
    painter_.drawLine(QPointF(Pixels(x1), Pixels(y1)), QPointF(Pixels(x2), Pixels(y2)));
  }
}

void QtCanvas::FilledBox(const Rect& box, Color color) {
  QRectF pixels = PixelBox(box);
  pixels.setSize(pixels.size().expandedTo({1, 1}));
  painter_.fillRect(pixels, QtColor(color));
}

void QtCanvas::BoxOutline(const Rect& box, Color color) {
  const double right = box.left + box.width;
  const double bottom = box.top + box.height;
  Line(box.left, box.top, right, box.top, color);
  Line(box.left, box.top, box.left, bottom, color);
  Line(right, box.top, right, bottom, color);
  Line(box.left, bottom, right + kTwipsPerPixel, bottom, color);
}

void QtCanvas::Circle(double x, double y, double radius, Color fill, Color outline) {
  painter_.setRenderHint(QPainter::Antialiasing);
  painter_.setPen(QtColor(outline));
  painter_.setBrush(QtColor(fill));
  painter_.drawEllipse(QPointF(Pixels(x), Pixels(y)), Pixels(radius), Pixels(radius));
  painter_.setRenderHint(QPainter::Antialiasing, false);
}

void QtCanvas::Stretched(Picture picture, const Rect& box) {
  Drawing(picture).Paint(painter_, PixelBox(box));
}

void QtCanvas::Text(double x, double y, std::string_view text, const Font& font, Color color) {
  painter_.setFont(QtFont(font));
  painter_.setPen(QtColor(color));
  const double ascent = QFontMetricsF(painter_.font()).ascent();
  painter_.drawText(QPointF(Pixels(x), Pixels(y) + ascent), QtText(text));
}

Size QtCanvas::TextSize(std::string_view text, const Font& font) const {
  const QFontMetricsF metrics{QtFont(font)};
  return InTwips({metrics.horizontalAdvance(QtText(text)), metrics.height()});
}

}  // namespace holdem
