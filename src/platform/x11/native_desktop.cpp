#include "platform/native_desktop.h"

#include "platform/x11/x11_desktop.h"

namespace holdem {

std::unique_ptr<Desktop> MakeNativeDesktop(WindowHandle mainWindow) {
  auto desktop = std::make_unique<X11Desktop>();
  desktop->SetMainWindow(mainWindow);
  return desktop;
}

}  // namespace holdem
