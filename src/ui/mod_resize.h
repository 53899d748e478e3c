// Fits the main window to the screen: the design geometry of its controls, recorded once, and their
// scaling to whatever size the window has.
#pragma once

#include <QPointer>
#include <QRect>
#include <QSize>
#include <QWidget>
#include <string>
#include <vector>

#include "platform/canvas.h"

namespace holdem::modResize {

class Design {
 public:
  // Records where every control of the window stands and how large its font is. Called once; sizes
  // are always worked out from this record, never from the last size.
  void RecordDesign(const QWidget& window);

  bool IsRecorded() const { return !size_.isEmpty(); }

  // Scales every control to the window's size, fonts with the width only. Does nothing before the
  // design is recorded or while the window has no size.
  void ResizeControls(const QWidget& window) const;

 private:
  struct Record {
    QPointer<QWidget> control;
    QRect geometry;     // in its container, logical pixels
    double points = 0;  // of its font; 0 for a picture
  };

  QSize size_;
  std::vector<Record> records_;
};

// The font of a control at a scaled size in points, kept between 2 and 72; up to 7 points it is one
// for small sizes.
Font ScaledFont(double points);
void SetControlFont(QWidget& control, double points);

// Side by side at the top of the screen, flush with its right edge. A main window that would leave
// less than 550 pixels below it is made smaller, in proportion.
void ArrangeWindows(QWidget& mainWindow, QWidget& deckWindow);

// Whether the program has to be resized for this screen, and what to tell the user then.
bool IsSmallScreen();
std::string SmallScreenMessage();

}  // namespace holdem::modResize
