#include "platform/native_desktop.h"

#include <cstdlib>

#include "platform/x11/x11_desktop.h"

namespace holdem {

// A Wayland program can do neither. Where both run, Qt would take Wayland, so X11 is put first.
void PreferPlacedWindows() {
  if (std::getenv("WAYLAND_DISPLAY") != nullptr && std::getenv("DISPLAY") != nullptr) {
    setenv("QT_QPA_PLATFORM", "xcb;wayland", 0);
  }
}

std::unique_ptr<Desktop> MakeNativeDesktop() { return std::make_unique<X11Desktop>(); }

}  // namespace holdem
