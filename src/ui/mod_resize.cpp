#include "ui/mod_resize.h"

#include <QGuiApplication>
#include <QScreen>

#include "design/screen_fit.h"
#include "platform/qt/qt_fonts.h"
#include "ui/geometry.h"
#include "ui/picture_box.h"

namespace holdem::modResize {

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

void SetControlFont(QWidget& control, double points) {
  Font font = ScaledFont(points);
  font.bold = control.font().bold();
  control.setFont(QtFont(font));
}

void ArrangeWindows(QWidget& mainWindow, QWidget& deckWindow) {
  const QScreen& screen = *QGuiApplication::primaryScreen();
  const QSize outer = mainWindow.frameGeometry().size();
  const QSize frame = outer - mainWindow.size();
  const Arrangement places = Arrange(outer.width(), outer.height(),
                                     deckWindow.frameGeometry().width(), screen.devicePixelRatio());
  mainWindow.resize(QSize(places.mainWidth, places.mainHeight) - frame);
  const QPoint corner = screen.geometry().topLeft();
  mainWindow.move(corner + QPoint(places.mainLeft, 0));
  deckWindow.move(corner + QPoint(places.deckLeft, places.deckTop));
}

}  // namespace holdem::modResize
