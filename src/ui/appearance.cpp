#include "ui/appearance.h"

#include <QIcon>
#include <QPainter>
#include <QPalette>
#include <QPixmapCache>
#include <QToolTip>

#include "platform/qt/qt_drawing.h"
#include "platform/qt/qt_fonts.h"
#include "ui/described.h"
#include "ui/spoken.h"

namespace holdem {
namespace {

constexpr int kPictureCache = 2048;  // KB; with more, Qt keeps pictures of wizards long closed

// The sizes that title bars and task lists show. Qt sends the whole icon to the window manager with
// every window. From a drawing it would also make one of 128 pixels, which alone would be three
// quarters of what is sent.
QIcon WindowIcon() {
  QIcon icon;
  for (const int size : {16, 32, 64}) icon.addPixmap(ProgramIcon(size, 1));
  return icon;
}

}  // namespace

void SetAppearance(QApplication& application) {
  QApplication::setApplicationVersion(PROGRAM_VERSION);
  QApplication::setDesktopFileName(PROGRAM_ID);
  QApplication::setStyle("Fusion");
  const QPalette light(QColor(240, 240, 240), QColor(240, 240, 240));
  QApplication::setPalette(light);
  QToolTip::setPalette(light);
  QApplication::setFont(QtFont(kMainWindowFont));
  InstallDescriptions();
  InstallSpeech();
  QPixmapCache::setCacheLimit(kPictureCache);
  application.setWindowIcon(WindowIcon());
}

QPixmap ProgramIcon(int size, double ratio) {
  QPixmap icon(QSize(size, size) * ratio);
  icon.fill(Qt::transparent);
  QPainter painter(&icon);
  QtDrawing("app_icon").Paint(painter, icon.rect());
  painter.end();
  icon.setDevicePixelRatio(ratio);
  return icon;
}

}  // namespace holdem
