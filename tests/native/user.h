// A person at the screen, for the tests of the real windows: the real pointer and keyboard of
// whatever window system there is, x11/user.cpp or win32/user.cpp. What has been done may reach the
// windows a moment later: wait for what comes of it. Points are physical pixels of the screen.
#pragma once

#include <string>

#include "platform/desktop.h"

namespace holdem::user {

void Click(PixelPoint at);
void DoubleClick(PixelPoint at);
void RightClick(PixelPoint at);
void Drag(PixelPoint from, PixelPoint to);

void PressKey(const std::string& chord);  // of "alt", "F4", "Return" and "Up", as in "alt+F4"

// Of any program.
void Activate(WindowHandle window);  // as from a task bar
void Minimise(WindowHandle window);
void Move(WindowHandle window, PixelPoint corner);
void Rename(WindowHandle window, const std::string& caption);  // as its program would

}  // namespace holdem::user
