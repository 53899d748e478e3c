// The real windows on a real screen, driven by real pointer and key events.
#include <QMessageBox>
#include <QPushButton>

#include "design/screen_fit.h"
#include "native/user.h"
#include "platform/native_desktop.h"
#include "ui/window_test.h"

namespace holdem {
namespace {

// Side by side at the top, flush with the right edge, once the frames are known.
bool AreArranged(const QWidget& form1, const QWidget& deckWindow) {
  return QTest::qWaitFor([&] {
    const QRect main = form1.frameGeometry();
    return main.height() > form1.height() && main.top() == 0 &&
           deckWindow.frameGeometry().topLeft() == main.topRight() + QPoint(1, 0) &&
           deckWindow.frameGeometry().right() == screenState.ScreenWidthPx - 1;
  });
}

// Run on screens of several sizes.
using ScreenTest = WindowTest;

TEST_F(ScreenTest, TheWindowsAreArrangedOnceTheMessageIsRead) {
  MeasureScreen();
  program = std::make_unique<Program>();
  program->Start();
  QTest::keyClick(&Widget("frmAbout"), Qt::Key_Space);
  if (modResize::IsSmallScreen()) {
    auto& message = The<QMessageBox>("message");
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&message));
    QTest::mouseClick(message.button(QMessageBox::Ok), Qt::LeftButton);
  }
  QWidget &form1 = Widget("Form1"), &deckWindow = Widget("frmDeck");
  ASSERT_TRUE(QTest::qWaitForWindowActive(&form1));
  EXPECT_TRUE(AreArranged(form1, deckWindow));
  const QRect main = form1.frameGeometry();
  const QSize designed = QSize(775, 260) + main.size() - form1.size();
  const auto arranged = modResize::Arrange(designed.width(), designed.height(),
                                           deckWindow.frameGeometry().width(), 1);
  EXPECT_EQ(main.size(), QSize(arranged.mainWidth, arranged.mainHeight));
  EXPECT_EQ(Widget("picHand0").internalWinId(), 0U);  // only whole windows are the display's
}

class RealMouseTest : public WindowTest {
 protected:
  RealMouseTest() {
    MeasureScreen();
    program = std::make_unique<Program>();
    program->LoadMainWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&Widget("Form1")));
    EXPECT_TRUE(AreArranged(Widget("Form1"), Widget("frmDeck")));
  }

  static WindowHandle Handle(const QString& window) { return Widget(window).winId(); }
  static PixelPoint On(const QString& name) { return {SpotOf(name).x(), SpotOf(name).y()}; }

  // Seen or not: a window that goes with its owner may be minimised or hidden.
  bool DeckBecomes(bool seen, int milliseconds = 5000) {
    return QTest::qWaitFor(
        [&] { return screen->OuterRectangle(Handle("frmDeck")).has_value() == seen; },
        milliseconds);
  }
  static bool Comes(const std::string& state) {
    return QTest::qWaitFor([&] { return State() == state && !run.Calculating; });
  }

  const std::unique_ptr<Desktop> screen = MakeNativeDesktop();
};

TEST_F(RealMouseTest, CardsAreDraggedFromWindowToWindow) {
  user::Click(On(Deck(40)));
  user::Drag(On(Deck(14)), On(Slot(7)));
  ASSERT_TRUE(Comes("AH -- -- AD"));
  user::Drag(On(Slot(7)), On(Slot(1)));
  ASSERT_TRUE(Comes("AH AD"));
}

TEST_F(RealMouseTest, TheDeckWindowStaysAndTheMainWindowEnds) {
  user::Activate(Handle("frmDeck"));
  EXPECT_TRUE(QTest::qWaitFor([] { return Widget("frmDeck").isActiveWindow(); }));
  user::PressAltF4();
  user::Click(On(Deck(40)));  // comes after it
  EXPECT_TRUE(Comes("AH"));
  EXPECT_TRUE(Widget("frmDeck").isVisible() && !run.Ending);
  user::Minimise(Handle("frmDeck"));  // which not every window manager does
  user::Activate(Handle("Form1"));    // if it has minimised the owner too
  EXPECT_TRUE(DeckBecomes(true));
  // Owned by the main window: it stays above it and goes with it.
  Widget("frmDeck").move(Widget("Form1").pos() + QPoint(100, 40));
  user::Activate(Handle("Form1"));
  const PixelPoint card = On(Deck(10));
  EXPECT_TRUE(QTest::qWaitFor([&] {
    return screen->WindowsAt({&card, 1}, 0).front() == Handle("frmDeck");
  }));
  user::Click(card);
  EXPECT_TRUE(Comes("AH TS"));
  user::Minimise(Handle("Form1"));
  EXPECT_TRUE(DeckBecomes(false));
  EXPECT_FALSE(DeckBecomes(true, 400));
  user::Activate(Handle("Form1"));
  EXPECT_TRUE(DeckBecomes(true));
  EXPECT_TRUE(QTest::qWaitForWindowActive(&Widget("Form1")));
  user::PressAltF4();
  EXPECT_TRUE(QTest::qWaitFor([] { return run.Ending; }));
}

}  // namespace
}  // namespace holdem
