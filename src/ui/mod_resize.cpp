#include "ui/mod_resize.h"

#include <QGuiApplication>
#include <QScreen>

#include "design/screen_fit.h"
#include "platform/desktop.h"
#include "platform/ports.h"
#include "platform/qt/qt_fonts.h"
#include "state/screen.h"
#include "ui/geometry.h"
#include "ui/picture_box.h"

namespace holdem::modResize {
namespace {

void SetControlFont(QWidget& control, double points) {
  Font font = ScaledFont(points);
  font.bold = control.font().bold();
  control.setFont(QtFont(font));
}

}  // namespace

void Design::RecordDesign(const QWidget& window) {
  DesignWidth_ = window.width();
  DesignHeight_ = window.height();
  for (QWidget* const control : window.findChildren<QWidget*>()) {
    if (control->window() != &window) continue;  // of a window that this one owns
    const bool picture = dynamic_cast<const PictureBox*>(control) != nullptr;
    controls_.push_back(
        {control, TwipRect(control->geometry()), picture ? 0 : control->font().pointSizeF()});
  }
}

void Design::ResizeControls(const QWidget& window) const {
  if (!IsRecorded() || window.size().isEmpty()) return;
  const double xRatio = window.width() / DesignWidth_;
  const double yRatio = window.height() / DesignHeight_;
  for (const Record& record : controls_) {
    if (record.control == nullptr) continue;
    record.control->setGeometry(PixelRect(Scaled(record.box, xRatio, yRatio)));
    if (record.points > 0) SetControlFont(*record.control, xRatio * record.points);
  }
}

void ArrangeWindows(QWidget& mainWindow, QWidget& deckWindow, bool mainSizeIsOurs) {
  const QScreen& screen = *QGuiApplication::primaryScreen();
  const double scale = screen.devicePixelRatio();
  const QPoint corner = screen.geometry().topLeft();  // which Qt does not scale
  const PixelArea whole{0, 0, screenState.ScreenWidthPx, screenState.ScreenHeightPx};
  const PixelArea freeOwn = ports.desktop->FreeArea(whole.Moved({corner.x(), corner.y()}));
  const PixelArea free = LogicalArea(freeOwn.Moved({-corner.x(), -corner.y()}), scale);

  const QRect outer = mainWindow.frameGeometry().translated(-corner);
  const QSize deckFrame = deckWindow.frameGeometry().size();
  PixelArea main{outer.left(), outer.top(), outer.left() + outer.width(),
                 outer.top() + outer.height()};
  if (mainSizeIsOurs) {
    main = PlaceMain(main.Width(), main.Height(), deckFrame.width(), free, scale);
    mainWindow.resize(QSize(main.Width(), main.Height()) - (outer.size() - mainWindow.size()));
    mainWindow.move(corner + QPoint(main.left, main.top));
  }
  const auto [left, top] = PlaceDeck(main, deckFrame.width(), deckFrame.height(), free);
  deckWindow.move(corner + QPoint(left, top));
}

}  // namespace holdem::modResize
