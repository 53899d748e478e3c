#include "ui/window_test.h"

namespace holdem {
namespace {

class WizardTest : public WindowTest {
 protected:
  WizardTest() { Load(); }

  static void Here(int seat) {
    QTest::mouseClick(&Widget("cmdHere" + QString::number(seat)), Qt::LeftButton);
  }
  static bool IsOpen() { return Window() != nullptr && Window()->isVisible(); }
  static QWidget* Window() { return Widget("Form1").findChild<QWidget*>("frmGetStartupInfo"); }
};

TEST_F(WizardTest, SetupAsksThreeQuestions) {
  Click("lblSetup");
  ASSERT_TRUE(IsOpen());
  EXPECT_TRUE(wizard.Open);
  EXPECT_TRUE(Window()->isModal());
  EXPECT_EQ(Text("Label2"), "Table Setup Wizard");
  EXPECT_FALSE(Widget("cmdDone").isVisible());
  EXPECT_TRUE(Widget("Command1").isVisible());
  Here(7);
  Here(8);
  Here(3);
  EXPECT_EQ(static_cast<QPushButton&>(Widget("cmdHere7")).text(), "J");
  EXPECT_EQ(static_cast<QPushButton&>(Widget("cmdHere3")).text(), "\u00A8");
  const int before = run.LastCalcTicks;
  run.LastChangeTicks = before + 5;
  QTest::mouseClick(&Widget("cmdDone"), Qt::LeftButton);
  EXPECT_FALSE(IsOpen());
  EXPECT_FALSE(wizard.Open);
  EXPECT_EQ(seats.MySeat, 7);
  EXPECT_EQ(seats.DealerSeat, 8);
  EXPECT_EQ(seats.SeatStates[3], Empty);
  EXPECT_EQ(run.LastCalcTicks, before + 5);  // a pass has run
  ExpectWindowsShowTheState();
}

TEST_F(WizardTest, CancelAndEscapeChangeNothing) {
  for (const bool byKey : {false, true}) {
    Click("lblSetup");
    Here(7);
    if (byKey) {
      QTest::keyClick(Window(), Qt::Key_Escape);
    } else {
      QTest::mouseClick(&Widget("Command1"), Qt::LeftButton);
    }
    EXPECT_FALSE(IsOpen());
    EXPECT_FALSE(wizard.Open);
    EXPECT_EQ(seats.MySeat, 2);
    QTest::qWait(0);  // deletes the window
  }
}

TEST_F(WizardTest, AtATableOfNineSeatSixIsNotThere) {
  static_cast<QCheckBox&>(Widget("chk9Pl")).click();
  Click("lblSetup");
  EXPECT_FALSE(Widget("cmdHere6").isVisible());
  EXPECT_EQ(Widget("cmdHere5").x(), 2040 / 15);
}

// As the watcher asks: it waits for the answer, and needs no more than the seat.
TEST_F(WizardTest, AFollowedTableAsksForTheSeatOnly) {
  FollowATable();
  bool asked = false;
  QTimer::singleShot(0, [&] {
    asked = IsOpen();
    EXPECT_EQ(Text("Label2"), "Table Detected");
    EXPECT_FALSE(Widget("Command1").isVisible());
    QTest::keyClick(Window(), Qt::Key_Escape);
    EXPECT_TRUE(IsOpen());
    Here(4);
  });
  ports.display->AskSeat();
  EXPECT_TRUE(asked);
  EXPECT_EQ(seats.MySeat, 4);
  EXPECT_EQ(autoRead.SeatConfirmedWindow, 77U);
  EXPECT_FALSE(wizard.Open);
}

TEST_F(WizardTest, ClosesWhenTheTableChangesItsCaption) {
  FollowATable();
  // Not before: it looks every 300 ms.
  bool openAfterALook = false;
  QTimer::singleShot(450, [&] {
    openAfterALook = IsOpen();
    desktop.windows[0].caption = "Lobby";
  });
  ports.display->AskSeat();
  EXPECT_TRUE(openAfterALook);
  EXPECT_EQ(seats.MySeat, 2);
  EXPECT_EQ(autoRead.SeatConfirmedWindow, 0U);
}

TEST_F(WizardTest, TheProgramMayEndWhileTheWizardIsOpen) {
  FollowATable();
  QTimer::singleShot(0, [&] { program->End(); });
  ports.display->AskSeat();
  EXPECT_TRUE(run.Ending);
}

TEST_F(WizardTest, IndicatorsFollowAutoRead) {
  autoRead.WatchedWindow = 77;
  autoRead.lblMessage = "You are active in this hand";
  ports.display->ShowAutoRead();
  EXPECT_TRUE(Widget("lblEyeBall").isVisible());
  EXPECT_TRUE(Widget("lblAutoOn").isVisible());
  EXPECT_FALSE(Widget("lblManual").isVisible());
  EXPECT_FALSE(Widget("chk9Pl").isEnabled());
  EXPECT_FALSE(Widget("cmdNewDeal").isEnabled());
  EXPECT_EQ(Text("lblMessage"), "You are active in this hand");
}

}  // namespace
}  // namespace holdem
