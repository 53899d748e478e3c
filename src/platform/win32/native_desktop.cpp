#include "platform/native_desktop.h"

#include "platform/win32/win32_desktop.h"

namespace holdem {

void PreferPlacedWindows() {}

std::unique_ptr<Desktop> MakeNativeDesktop() { return std::make_unique<Win32Desktop>(); }

}  // namespace holdem
