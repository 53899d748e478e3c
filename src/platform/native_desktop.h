// The window system that the program is built for. Its back end, which the build chooses, defines
// these; main calls each once.
#pragma once

#include <memory>

#include "platform/desktop.h"

namespace holdem {

// Where several are to be had, the one that lets a program place its windows and drag between them.
// Before there is an application.
void PreferPlacedWindows();

// The main window's frame tells how high a caption bar is.
std::unique_ptr<Desktop> MakeNativeDesktop(WindowHandle mainWindow);

}  // namespace holdem
