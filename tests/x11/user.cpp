#include "native/user.h"

#include <gtest/gtest.h>

#include <QProcess>
#include <QTest>

namespace holdem::user {
namespace {

// The test's own windows live on meanwhile.
void Xdotool(const std::string& words) {
  QProcess xdotool;
  xdotool.start("xdotool", QString::fromStdString(words).split(' '));
  EXPECT_TRUE(QTest::qWaitFor([&] { return xdotool.state() == QProcess::NotRunning; }));
  EXPECT_EQ(xdotool.exitCode(), 0);
}

std::string Text(PixelPoint at) { return ' ' + std::to_string(at.x) + ' ' + std::to_string(at.y); }

}  // namespace

void Click(PixelPoint at) { Xdotool("mousemove" + Text(at) + " click 1"); }
void Drag(PixelPoint from, PixelPoint to) {
  const PixelPoint halfway{(from.x + to.x) / 2, (from.y + to.y) / 2};
  Xdotool("mousemove" + Text(from) + " mousedown 1 mousemove" + Text(halfway) + " mousemove" +
          Text(to) + " mouseup 1");
}
void PressAltF4() { Xdotool("key alt+F4"); }

void Activate(WindowHandle window) { Xdotool("windowactivate " + std::to_string(window)); }
void Minimise(WindowHandle window) { Xdotool("windowminimize " + std::to_string(window)); }

}  // namespace holdem::user
