// The program: sets the ports to the real world, starts, and runs until the main window is closed.

#include <QApplication>

#include "platform/native_desktop.h"
#include "platform/ports.h"
#include "platform/qt/qt_services.h"
#include "ui/appearance.h"
#include "ui/program.h"

int main(int argc, char* argv[]) {
  using namespace holdem;
  PreferPlacedWindows();
  QApplication application(argc, argv);
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
