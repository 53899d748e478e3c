// The desktop of the window system that the program is built for. Its back end, which the build
// chooses, makes it; main calls this once.
#pragma once

#include <memory>

#include "platform/desktop.h"

namespace holdem {

// The main window's frame tells how high a caption bar is.
std::unique_ptr<Desktop> MakeNativeDesktop(WindowHandle mainWindow);

}  // namespace holdem
