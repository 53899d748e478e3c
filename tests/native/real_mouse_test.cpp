// The real windows on a real screen, driven by real pointer and key events.

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
    EXPECT_TRUE(QTest::qWaitForWindowExposed(&Widget("frmDeck")));
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

  static PixelPoint On(const QString& name, std::optional<QPoint> spot = {}) {
    const QWidget& widget = Widget(name);
    const QPoint point = widget.mapToGlobal(spot.value_or(Spot(widget)));
    return {point.x(), point.y()};
  }

  static void Activate(const QString& window) {
    user::Activate(Handle(window));
    EXPECT_TRUE(QTest::qWaitForWindowActive(&Widget(window)));
  }

  // A window that goes with its owner may be minimised or hidden.
  bool IsOnScreen(const QString& window) {
    return screen_->OuterRectangle(Handle(window)).has_value();
  }

  static bool Quiet(int cards) {
    return QTest::qWaitFor([cards] {
      const auto known = CardsInSlots();
      return std::count_if(known.begin(), known.end(), [](Card card) { return card != 0; }) ==
                 cards &&
             !run.Calculating;
    });
  }

 private:
  const std::unique_ptr<Desktop> screen_ = MakeNativeDesktop();
};

TEST_F(RealMouseTest, SevenCardsClickedAndDragged) {
  user::Click(On(Deck(40)));
  user::Click(On(Deck(1)));
  ASSERT_TRUE(Quiet(2));
  user::Drag(On(Deck(14)), On(Slot(7)));
  user::Drag(On(Deck(9)), On(Slot(6)));
  user::RightClick(On(Deck(23)));
  ASSERT_TRUE(Quiet(5));
  EXPECT_EQ(Text("lblMe2"), "Current");  // three Aces
  EXPECT_TRUE(Text("lblMe8").endsWith("%"));
  user::Click(On(Deck(52)));
  user::Drag(On(Deck(39)), On(Slot(10)));
  ASSERT_TRUE(Quiet(7));
  EXPECT_EQ(CardsInSlots(), (std::vector<Card>{40, 1, 9, 14, 23, 52, 39}));
  EXPECT_TRUE(QTest::qWaitFor([] { return Text("lblMe5") == "Final"; }));  // Aces full
  ExpectWindowsShowTheState();

  user::Drag(On(Slot(10)), On(Deck(30)));
  user::RightClick(On(Slot(9)));
  ASSERT_TRUE(Quiet(5));
  user::Click(On("cmdNewDeal"));
  ASSERT_TRUE(Quiet(0));
  ExpectWindowsShowTheState();
}

TEST_F(RealMouseTest, SeatsAndMenu) {
  user::Click(On(Seat(5)));
  EXPECT_TRUE(QTest::qWaitFor([] { return seats.SeatStates[5] == FoldedPreFlop; }));
  user::DoubleClick(On(Seat(7)));
  EXPECT_TRUE(QTest::qWaitFor([] { return seats.SeatStates[7] == Empty; }));
  user::RightClick(On(Seat(4)));
  EXPECT_TRUE(QTest::qWaitFor([] { return QApplication::activePopupWidget() != nullptr; }));
  user::PressKey("Up");  // the last item, "Dealer"
  user::PressKey("Return");
  EXPECT_TRUE(QTest::qWaitFor([] { return seats.DealerSeat == 4; }));
  ExpectWindowsShowTheState();
}

TEST_F(RealMouseTest, TheDeckWindowStaysAndTheMainWindowEnds) {
  user::Click(On(Deck(40)));
  user::Click(On("frmDeck", QPoint(100, 195)));
  EXPECT_TRUE(QTest::qWaitFor([] { return Widget("frmDeck").isActiveWindow(); }));
  user::PressKey("alt+F4");
  QTest::qWait(200);
  EXPECT_TRUE(Widget("frmDeck").isVisible());
  EXPECT_FALSE(run.Ending);
  user::Minimise(Handle("frmDeck"));
  EXPECT_TRUE(QTest::qWaitFor([&] { return !IsOnScreen("frmDeck"); }));
  Activate("Form1");  // if the window manager has minimised the owner too
  EXPECT_TRUE(QTest::qWaitFor([&] { return IsOnScreen("frmDeck"); }));
  // Owned by the main window: it stays above it and goes with it.
  Widget("frmDeck").move(Widget("Form1").pos() + QPoint(100, 40));
  Widget("Form1").raise();
  QTest::qWait(200);
  user::Click(On(Deck(10)));
  EXPECT_TRUE(QTest::qWaitFor([] { return slots.IsFilled(1); }));
  user::Minimise(Handle("Form1"));
  EXPECT_TRUE(QTest::qWaitFor([&] { return !IsOnScreen("frmDeck"); }));
  QTest::qWait(400);
  EXPECT_FALSE(IsOnScreen("frmDeck"));
  Activate("Form1");
  EXPECT_TRUE(QTest::qWaitFor([&] { return IsOnScreen("frmDeck"); }));
  user::PressKey("alt+F4");
  EXPECT_TRUE(QTest::qWaitFor([] { return run.Ending; }));
}

}  // namespace
}  // namespace holdem
