// The window system that the program is built for. Its back end, which the build chooses, defines
// these; main calls each once.
#pragma once

#include <memory>

#include "platform/desktop.h"

namespace holdem {

// Called before the application is made. Where the program can choose between window systems, takes
// the one that lets a program place its windows and drag between them.
void PreferPlacedWindows();

std::unique_ptr<Desktop> MakeNativeDesktop();

}  // namespace holdem
