#include "ui/mod_resize.h"

#include <QGuiApplication>
#include <QScreen>
#include <algorithm>

#include "figures/percent_text.h"
#include "platform/qt/qt_fonts.h"
#include "state/screen.h"
#include "ui/picture_box.h"

namespace holdem::modResize {
namespace {

constexpr double kSmallestFont = 2;
constexpr double kLargestFont = 72;
constexpr double kSmallFontsUpTo = 7;  // points
constexpr int kFreeBelow = 550;        // pixels of the screen below the main window
constexpr int kLeastHeight = 100;      // pixels; below this nothing is gained by shrinking

bool IsPicture(const QWidget& control) {
  return dynamic_cast<const PictureBox*>(&control) != nullptr;
}

// Edges are scaled, not sizes, so that neighbours stay neighbours.
QRect Scaled(const QRect& box, double xRatio, double yRatio) {
  const int left = RoundHalfEven(xRatio * box.x());
  const int top = RoundHalfEven(yRatio * box.y());
  return {left, top, RoundHalfEven(xRatio * (box.x() + box.width())) - left,
          RoundHalfEven(yRatio * (box.y() + box.height())) - top};
}

}  // namespace

void Design::RecordDesign(const QWidget& window) {
  size_ = window.size();
  records_.clear();
  for (QWidget* const control : window.findChildren<QWidget*>()) {
    if (control->window() != &window) continue;  // of a window that this one owns
    records_.push_back(
        {control, control->geometry(), IsPicture(*control) ? 0 : control->font().pointSizeF()});
  }
}

void Design::ResizeControls(const QWidget& window) const {
  if (!IsRecorded() || window.size().isEmpty()) return;
  const double xRatio = static_cast<double>(window.width()) / size_.width();
  const double yRatio = static_cast<double>(window.height()) / size_.height();
  for (const Record& record : records_) {
    if (record.control == nullptr) continue;
    record.control->setGeometry(Scaled(record.geometry, xRatio, yRatio));
    if (record.points > 0) SetControlFont(*record.control, xRatio * record.points);
  }
}

Font ScaledFont(double points) {
  const double size = std::clamp(points, kSmallestFont, kLargestFont);
  return {size <= kSmallFontsUpTo ? FontFamily::SmallFonts : FontFamily::MsSansSerif, size};
}

void SetControlFont(QWidget& control, double points) {
  Font font = ScaledFont(points);
  font.bold = control.font().bold();
  control.setFont(QtFont(font));
}

void ArrangeWindows(QWidget& mainWindow, QWidget& deckWindow) {
  const QSize outer = mainWindow.frameGeometry().size();
  const QSize frame = outer - mainWindow.size();
  int width = outer.width();
  const int available = screenState.ScreenHeightPx - kFreeBelow;
  if (available > kLeastHeight && outer.height() > available) {
    width = RoundHalfEven(static_cast<double>(available) / outer.height() * outer.width());
    mainWindow.resize(width - frame.width(), available - frame.height());
  }
  const QPoint screen = QGuiApplication::primaryScreen()->geometry().topLeft();
  const int left = screenState.ScreenWidthPx - width - deckWindow.frameGeometry().width();
  mainWindow.move(screen + QPoint(left, 0));
  deckWindow.move(screen + QPoint(left + width, 0));
}

bool IsSmallScreen() {
  return screenState.ScreenWidthPx < 1025 || screenState.ScreenHeightPx < 769;
}

std::string SmallScreenMessage() {
  return "Screen Resolution: " + std::to_string(screenState.ScreenWidthPx) + "x" +
         std::to_string(screenState.ScreenHeightPx) + "\r\nProgram will be resized";
}

}  // namespace holdem::modResize
