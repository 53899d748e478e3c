// The real windows on a real X display with a window manager, driven by real pointer and key
// events.

#include <QProcess>

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

  static void Xdotool(const QStringList& arguments) {
    QProcess xdotool;
    xdotool.start("xdotool", arguments);
    EXPECT_TRUE(QTest::qWaitFor([&] { return xdotool.state() == QProcess::NotRunning; }));
    EXPECT_EQ(xdotool.exitCode(), 0);
  }

  // As from a task bar.
  static void Activate(const QString& window) {
    Xdotool({"windowactivate", QString::number(Widget(window).winId())});
    EXPECT_TRUE(QTest::qWaitForWindowActive(&Widget(window)));
  }

  static QStringList To(QPoint point) {
    return {"mousemove", QString::number(point.x()), QString::number(point.y())};
  }
  static QPoint On(const QString& name) {
    const QWidget& widget = Widget(name);
    return widget.mapToGlobal(Spot(widget));
  }

  static void RealClick(const QString& name, const char* button = "1") {
    Xdotool(To(On(name)) + QStringList{"click", button});
  }
  static void RealDrag(const QString& from, const QString& to) {
    const QPoint start = On(from);
    const QPoint end = On(to);
    Xdotool(To(start) + QStringList{"mousedown", "1"} + To((start + end) / 2) + To(end) +
            QStringList{"mouseup", "1"});
  }

  static bool Quiet(int cards) {
    return QTest::qWaitFor([cards] {
      const auto known = CardsInSlots();
      return std::count_if(known.begin(), known.end(), [](Card card) { return card != 0; }) ==
                 cards &&
             !run.Calculating;
    });
  }
};

TEST_F(RealMouseTest, SevenCardsClickedAndDragged) {
  RealClick(Deck(40));
  RealClick(Deck(1));
  ASSERT_TRUE(Quiet(2));
  RealDrag(Deck(14), Slot(7));
  RealDrag(Deck(9), Slot(6));
  RealClick(Deck(23), "3");
  ASSERT_TRUE(Quiet(5));
  EXPECT_EQ(Text("lblMe2"), "Current");  // three Aces
  EXPECT_TRUE(Text("lblMe8").endsWith("%"));
  RealClick(Deck(52));
  RealDrag(Deck(39), Slot(10));
  ASSERT_TRUE(Quiet(7));
  EXPECT_EQ(CardsInSlots(), (std::vector<Card>{40, 1, 9, 14, 23, 52, 39}));
  EXPECT_TRUE(QTest::qWaitFor([] { return Text("lblMe5") == "Final"; }));  // Aces full
  ExpectWindowsShowTheState();

  RealDrag(Slot(10), Deck(30));
  RealClick(Slot(9), "3");
  ASSERT_TRUE(Quiet(5));
  RealClick("cmdNewDeal");
  ASSERT_TRUE(Quiet(0));
  ExpectWindowsShowTheState();
}

TEST_F(RealMouseTest, SeatsAndMenu) {
  RealClick(Seat(5));
  EXPECT_TRUE(QTest::qWaitFor([] { return seats.SeatStates[5] == FoldedPreFlop; }));
  Xdotool(To(On(Seat(7))) + QStringList{"click", "--repeat", "2", "--delay", "60", "1"});
  EXPECT_TRUE(QTest::qWaitFor([] { return seats.SeatStates[7] == Empty; }));
  RealClick(Seat(4), "3");
  EXPECT_TRUE(QTest::qWaitFor([] { return QApplication::activePopupWidget() != nullptr; }));
  Xdotool({"key", "Up", "Return"});  // the last item, "Dealer"
  EXPECT_TRUE(QTest::qWaitFor([] { return seats.DealerSeat == 4; }));
  ExpectWindowsShowTheState();
}

TEST_F(RealMouseTest, TheDeckWindowStaysAndTheMainWindowEnds) {
  RealClick(Deck(40));
  Xdotool(To(Widget("frmDeck").mapToGlobal(QPoint(100, 195))) + QStringList{"click", "1"});
  EXPECT_TRUE(QTest::qWaitFor([] { return Widget("frmDeck").isActiveWindow(); }));
  Xdotool({"key", "alt+F4"});
  QTest::qWait(200);
  EXPECT_TRUE(Widget("frmDeck").isVisible());
  EXPECT_FALSE(run.Ending);
  Widget("frmDeck").showMinimized();
  EXPECT_TRUE(QTest::qWaitFor([] { return Widget("frmDeck").isMinimized(); }));
  Activate("Form1");  // if the window manager has minimised the owner too
  EXPECT_TRUE(QTest::qWaitFor([] { return !Widget("frmDeck").isMinimized(); }));
  // Owned by the main window: it stays above it and goes with it.
  Widget("frmDeck").move(Widget("Form1").pos() + QPoint(100, 40));
  Widget("Form1").raise();
  QTest::qWait(200);
  RealClick(Deck(10));
  EXPECT_TRUE(QTest::qWaitFor([] { return slots.IsFilled(1); }));
  Widget("Form1").showMinimized();
  EXPECT_TRUE(QTest::qWaitFor([] { return Widget("frmDeck").isMinimized(); }));
  QTest::qWait(400);
  EXPECT_TRUE(Widget("frmDeck").isMinimized());
  Activate("Form1");
  EXPECT_TRUE(QTest::qWaitFor([] { return !Widget("frmDeck").isMinimized(); }));
  Xdotool({"key", "alt+F4"});
  EXPECT_TRUE(QTest::qWaitFor([] { return run.Ending; }));
}

}  // namespace
}  // namespace holdem
