// The program: sets the ports to the real world, starts, and runs until the main window is closed.

#include <QApplication>
#include <cstdio>
#include <cstdlib>

#include "platform/native_desktop.h"
#include "platform/ports.h"
#include "platform/qt/qt_services.h"
#include "ui/appearance.h"
#include "ui/program.h"

namespace {

// While the application is made, the only fatal message is that no display can be opened. Qt would
// abort then, and advise to install the program anew.
void EndWithoutDisplay(QtMsgType type, const QMessageLogContext&, const QString&) {
  if (type != QtFatalMsg) return;
  std::fputs("pellucor: no display can be opened; DISPLAY must name one that is running.\n",
             stderr);
  std::_Exit(EXIT_FAILURE);
}

}  // namespace

int main(int argc, char* argv[]) {
  using namespace holdem;
  PreferPlacedWindows();
  const auto usualHandler = qInstallMessageHandler(&EndWithoutDisplay);
  QApplication application(argc, argv);
  qInstallMessageHandler(usualHandler);
  SetAppearance(application);

  QtSettingsStore settingsStore;
  QtShell shell;
  QtClock clock;
  ports.settingsStore = &settingsStore;
  ports.shell = &shell;
  ports.clock = &clock;

  MeasureScreen();
  Program program;
  const auto desktop = MakeNativeDesktop();
  ports.desktop = desktop.get();
  program.Start();
  return QApplication::exec();
}
