#include "platform/native_desktop.h"

#include "platform/win32/win32_desktop.h"

namespace holdem {

void PreferPlacedWindows() {}

// Every window has a caption bar of the same height.
std::unique_ptr<Desktop> MakeNativeDesktop(WindowHandle) {
  return std::make_unique<Win32Desktop>();
}

}  // namespace holdem
