// The window system that the program is built for. Its back end, which the build chooses, defines
// these; main calls each once.
#pragma once

#include <memory>

#include "platform/desktop.h"

namespace holdem {

// Where several are to be had, the one that lets a program place its windows and drag between them.
// Before there is an application.
void PreferPlacedWindows();

std::unique_ptr<Desktop> MakeNativeDesktop();

}  // namespace holdem
