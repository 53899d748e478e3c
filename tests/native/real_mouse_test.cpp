// The real windows on a real screen, driven by real pointer and key events.
#include <QMenu>

#include "native/user.h"
#include "platform/native_desktop.h"
#include "ui/window_test.h"

namespace holdem {
namespace {

class RealMouseTest : public WindowTest {
 protected:
  RealMouseTest() {
    MeasureScreen();
    program = std::make_unique<Program>();
    program->LoadMainWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&Widget("Form1")));
    // Side by side at the top, flush with the right edge, once the frames are known.
    EXPECT_TRUE(QTest::qWaitFor([] {
      const QRect main = Widget("Form1").frameGeometry();
      const QRect deckWindow = Widget("frmDeck").frameGeometry();
      return main.height() > Widget("Form1").height() &&
             deckWindow.right() == screenState.ScreenWidthPx - 1 &&
             main.topRight() + QPoint(1, 0) == deckWindow.topLeft() && main.top() == 0;
    }));
  }

  static WindowHandle Handle(const QString& window) { return Widget(window).winId(); }
  static PixelPoint On(const QString& name) { return {SpotOf(name).x(), SpotOf(name).y()}; }

  // A window that goes with its owner may be minimised or hidden.
  bool IsOnScreen(const QString& window) {
    return screen_->OuterRectangle(Handle(window)).has_value();
  }
  bool IsOnTop(const QString& window, PixelPoint at) {
    return screen_->WindowsAt({&at, 1}, 0).front() == Handle(window);
  }
  static bool Comes(const std::string& state) {
    return QTest::qWaitFor([&] { return State() == state && !run.Calculating; });
  }

 private:
  const std::unique_ptr<Desktop> screen_ = MakeNativeDesktop();
};

TEST_F(RealMouseTest, CardsAndTheMenuOfASeat) {
  user::Click(On(Deck(40)));
  user::Drag(On(Deck(14)), On(Slot(7)));
  ASSERT_TRUE(Comes("AH -- -- AD"));
  user::Drag(On(Slot(7)), On(Slot(1)));
  ASSERT_TRUE(Comes("AH AD"));
  user::Click(On(Seat(4)), true);
  const auto menu = [] { return qobject_cast<QMenu*>(QApplication::activePopupWidget()); };
  ASSERT_TRUE(QTest::qWaitFor([&] { return menu() && menu()->windowHandle()->isExposed(); }));
  const QPoint dealer = menu()->actionGeometry(&The<QAction>("mnuDealer")).center();
  user::Click({menu()->mapToGlobal(dealer).x(), menu()->mapToGlobal(dealer).y()});
  ASSERT_TRUE(Comes("AH AD dealer=4"));
  ExpectWindowsShowTheState();
}

TEST_F(RealMouseTest, TheDeckWindowStaysAndTheMainWindowEnds) {
  user::Activate(Handle("frmDeck"));
  EXPECT_TRUE(QTest::qWaitFor([] { return Widget("frmDeck").isActiveWindow(); }));
  user::PressAltF4();
  user::Click(On(Deck(40)));  // comes after it
  EXPECT_TRUE(Comes("AH"));
  EXPECT_TRUE(Widget("frmDeck").isVisible() && !run.Ending);
  user::Minimise(Handle("frmDeck"));
  EXPECT_TRUE(QTest::qWaitFor([&] { return !IsOnScreen("frmDeck"); }));
  user::Activate(Handle("Form1"));  // if the window manager has minimised the owner too
  EXPECT_TRUE(QTest::qWaitFor([&] { return IsOnScreen("frmDeck"); }));
  // Owned by the main window: it stays above it and goes with it.
  Widget("frmDeck").move(Widget("Form1").pos() + QPoint(100, 40));
  user::Activate(Handle("Form1"));
  EXPECT_TRUE(QTest::qWaitFor([&] { return IsOnTop("frmDeck", On(Deck(10))); }));
  user::Click(On(Deck(10)));
  EXPECT_TRUE(Comes("AH TS"));
  user::Minimise(Handle("Form1"));
  EXPECT_TRUE(QTest::qWaitFor([&] { return !IsOnScreen("frmDeck"); }));
  EXPECT_FALSE(QTest::qWaitFor([&] { return IsOnScreen("frmDeck"); }, 400));
  user::Activate(Handle("Form1"));
  EXPECT_TRUE(QTest::qWaitFor([&] { return IsOnScreen("frmDeck"); }));
  EXPECT_TRUE(QTest::qWaitForWindowActive(&Widget("Form1")));
  user::PressAltF4();
  EXPECT_TRUE(QTest::qWaitFor([] { return run.Ending; }));
}

}  // namespace
}  // namespace holdem
