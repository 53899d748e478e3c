// From twips to the logical pixels of the window system, and back.
#pragma once

#include <QRect>
#include <QWidget>

#include "platform/canvas.h"

namespace holdem {

inline int WholePixels(double twips) { return qRound(twips / kTwipsPerPixel); }
inline double Twips(int pixels) { return static_cast<double>(pixels) * kTwipsPerPixel; }

// Edges are rounded, not sizes, so that neighbours stay neighbours.
inline QRect PixelRect(const Rect& box) {
  const int left = WholePixels(box.left);
  const int top = WholePixels(box.top);
  return {left, top, WholePixels(box.left + box.width) - left,
          WholePixels(box.top + box.height) - top};
}

inline QSize PixelSize(const Size& size) {
  return {WholePixels(size.width), WholePixels(size.height)};
}

inline void SetNameAndBox(QWidget& control, const QString& name, const Rect& box) {
  control.setObjectName(name);
  control.setGeometry(PixelRect(box));
}

inline Rect TwipRect(const QRect& box) {
  return {Twips(box.x()), Twips(box.y()), Twips(box.width()), Twips(box.height())};
}

}  // namespace holdem
