// A person at the screen, for the tests of the real windows: the real pointer and keyboard of
// whatever window system there is, x11/user.cpp or win32/user.cpp. What has been done may reach the
// windows a moment later: wait for what comes of it. Points are physical pixels of the screen.
#pragma once

#include "platform/desktop.h"

namespace holdem::user {

void Click(PixelPoint at);
void Drag(PixelPoint from, PixelPoint to);
void PressAltF4();

// Windows of any program.
void Activate(WindowHandle window);  // as from a task bar
void Minimise(WindowHandle window);

}  // namespace holdem::user
