#include "native/user.h"

#include <gtest/gtest.h>

#include <QProcess>
#include <QTest>

namespace holdem::user {
namespace {

// The test's own windows live on meanwhile.
void Xdotool(const QStringList& arguments) {
  QProcess xdotool;
  xdotool.start("xdotool", arguments);
  EXPECT_TRUE(QTest::qWaitFor([&] { return xdotool.state() == QProcess::NotRunning; }));
  EXPECT_EQ(xdotool.exitCode(), 0);
}

QStringList Words(PixelPoint point) { return {QString::number(point.x), QString::number(point.y)}; }
QStringList To(PixelPoint point) { return QStringList{"mousemove"} + Words(point); }

}  // namespace

void Click(PixelPoint at) { Xdotool(To(at) + QStringList{"click", "1"}); }
void DoubleClick(PixelPoint at) {
  Xdotool(To(at) + QStringList{"click", "--repeat", "2", "--delay", "60", "1"});
}
void RightClick(PixelPoint at) { Xdotool(To(at) + QStringList{"click", "3"}); }
void Drag(PixelPoint from, PixelPoint to) {
  Xdotool(To(from) + QStringList{"mousedown", "1"} +
          To({(from.x + to.x) / 2, (from.y + to.y) / 2}) + To(to) + QStringList{"mouseup", "1"});
}

void PressKey(const std::string& chord) { Xdotool({"key", QString::fromStdString(chord)}); }

void Activate(WindowHandle window) { Xdotool({"windowactivate", QString::number(window)}); }
void Minimise(WindowHandle window) { Xdotool({"windowminimize", QString::number(window)}); }
void Move(WindowHandle window, PixelPoint corner) {
  Xdotool(QStringList{"windowmove", QString::number(window)} + Words(corner));
}
void Rename(WindowHandle window, const std::string& caption) {
  Xdotool({"set_window", "--name", QString::fromStdString(caption), QString::number(window)});
}

}  // namespace holdem::user
