#include "ui/appearance.h"

#include <QIcon>
#include <QPalette>
#include <QToolTip>

#include "platform/qt/qt_fonts.h"
#include "ui/described.h"

namespace holdem {

void PreferPlacedWindows() {
  if (qEnvironmentVariableIsSet("WAYLAND_DISPLAY") && qEnvironmentVariableIsSet("DISPLAY") &&
      !qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) {
    qputenv("QT_QPA_PLATFORM", "xcb;wayland");
  }
}

void SetAppearance(QApplication& application) {
  QApplication::setApplicationVersion(PROGRAM_VERSION);
  QApplication::setDesktopFileName(PROGRAM_ID);
  QApplication::setStyle("Fusion");
  const QPalette light(QColor(240, 240, 240), QColor(240, 240, 240));
  QApplication::setPalette(light);
  QToolTip::setPalette(light);
  QApplication::setFont(QtFont(kMainWindowFont));
  InstallDescriptions();
  application.setWindowIcon(QIcon(":/assets/app_icon.svg"));
}

}  // namespace holdem
