#include "ui/window_test.h"

namespace holdem {
namespace {

class WizardTest : public WindowTest {
 protected:
  WizardTest() { Load(); }

  static bool IsOpen() { return Window() != nullptr && Window()->isVisible(); }
  static QWidget* Window() { return Widget("Form1").findChild<QWidget*>("frmGetStartupInfo"); }
};

TEST_F(WizardTest, SetupAsksThreeQuestions) {
  Do("click lblSetup");
  ASSERT_TRUE(IsOpen() && wizard.Open && Window()->isModal());
  EXPECT_EQ(Text("Label2"), "Table Setup Wizard");
  const std::string first = Text("Label1");
  EXPECT_FALSE(Widget("cmdDone").isVisible());
  EXPECT_TRUE(Widget("Command1").isVisible());
  for (const char* const seat : {"7", "8", "3"}) Do(QString("click cmdHere") + seat);
  EXPECT_NE(Text("Label1"), first);
  EXPECT_EQ(The<QPushButton>("cmdHere7").text(), "J");
  EXPECT_EQ(The<QPushButton>("cmdHere3").text(), "\u00A8");
  const int before = run.LastCalcTicks;
  run.LastChangeTicks = before + 5;
  Do("click cmdDone");
  EXPECT_FALSE(IsOpen() || wizard.Open);
  EXPECT_EQ(State(), "ii.iiiiiii 7 8");
  EXPECT_EQ(run.LastCalcTicks, before + 5);  // a pass has run
  ExpectWindowsShowTheState();
}

TEST_F(WizardTest, CancelAndEscapeChangeNothing) {
  Do("click chk9Pl");
  for (const bool byKey : {false, true}) {
    Do("click lblSetup");
    EXPECT_FALSE(Widget("cmdHere6").isVisible());  // at a table of nine
    EXPECT_EQ(Widget("cmdHere5").x(), 2040 / 15);
    Do("click cmdHere7");
    byKey ? QTest::keyClick(Window(), Qt::Key_Escape) : Do("click Command1");
    EXPECT_FALSE(IsOpen() || wizard.Open);
    EXPECT_EQ(State(), "iiiii.iiii 2 1");
    QTest::qWait(0);  // deletes the window
  }
}

// As the watcher asks: it waits for the answer, and needs no more than the seat.
TEST_F(WizardTest, AFollowedTableAsksForTheSeatOnly) {
  FollowATable();
  QTimer::singleShot(0, [] {
    EXPECT_EQ(Text("Label2"), "Table Detected");
    EXPECT_FALSE(Widget("Command1").isVisible());
    QTest::keyClick(Window(), Qt::Key_Escape);
    EXPECT_TRUE(IsOpen());
    Do("click cmdHere4");
  });
  ports.display->AskSeat();
  EXPECT_EQ(seats.MySeat, 4);
  EXPECT_EQ(autoRead.SeatConfirmedWindow, 77U);
  EXPECT_FALSE(wizard.Open);
}

TEST_F(WizardTest, ClosesWhenTheTableChangesItsCaptionOrTheProgramEnds) {
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

  FollowATable();
  QTimer::singleShot(0, [&] { program->End(); });
  ports.display->AskSeat();
  EXPECT_TRUE(run.Ending);
}

}  // namespace
}  // namespace holdem
