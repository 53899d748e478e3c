// The design geometry of the main window's controls, recorded once, and their scaling to whatever
// size the window has; where the two windows stand on the screen.
#pragma once

#include <QPointer>
#include <QWidget>
#include <vector>

#include "platform/canvas.h"

namespace holdem::modResize {

class Design {
 public:
  // Records where every control of the window stands and how large its font is. Called once; sizes
  // are always worked out from this record, never from the last size.
  void RecordDesign(const QWidget& window);

  bool IsRecorded() const { return !controls_.empty(); }

  // Scales every control to the window's size, fonts with the width only. Does nothing before the
  // design is recorded or while the window has no size.
  void ResizeControls(const QWidget& window) const;

 private:
  struct Record {
    QPointer<QWidget> control;
    Rect box;           // in its container, twips
    double points = 0;  // of its font; 0 for a picture
  };

  double DesignWidth_ = 0;  // of the window's client area when it was recorded, logical pixels
  double DesignHeight_ = 0;
  std::vector<Record> controls_;
};

// Moves both windows to where design/screen_fit puts them, and gives the main window its size.
// Where the window manager or the user has given the main window its size, it stays as and where it
// is, and only the deck window is moved.
void ArrangeWindows(QWidget& mainWindow, QWidget& deckWindow, bool mainSizeIsOurs = true);

}  // namespace holdem::modResize
