// A person at the screen, for the tests of the real windows: the real pointer and keyboard. What
// has been done may reach the windows a moment later: wait for what comes of it. Points are
// physical pixels of the screen.
#pragma once

#include <gtest/gtest.h>

#include <QProcess>
#include <QTest>

#include "platform/desktop.h"

namespace holdem::user {

// The test's own windows live on meanwhile.
inline void Xdotool(const std::string& words) {
  QProcess xdotool;
  xdotool.start("xdotool", QString::fromStdString(words).split(' '));
  EXPECT_TRUE(QTest::qWaitFor([&] { return xdotool.state() == QProcess::NotRunning; }));
  EXPECT_EQ(xdotool.exitCode(), 0);
}

inline void MoveTo(PixelPoint at, const std::string& andThere = "") {
  Xdotool("mousemove " + std::to_string(at.x) + ' ' + std::to_string(at.y) + andThere);
}
inline void Click(PixelPoint at) { MoveTo(at, " click 1"); }
inline void Drag(PixelPoint from, PixelPoint to) {
  MoveTo(from, " mousedown 1");
  MoveTo({(from.x + to.x) / 2, (from.y + to.y) / 2});
  MoveTo(to, " mouseup 1");
}
inline void PressAltF4() { Xdotool("key alt+F4"); }

// Windows of any program.
inline void Activate(WindowHandle window) {  // as from a task bar
  Xdotool("windowactivate " + std::to_string(window));
}
inline void Minimise(WindowHandle window) { Xdotool("windowminimize " + std::to_string(window)); }

}  // namespace holdem::user
