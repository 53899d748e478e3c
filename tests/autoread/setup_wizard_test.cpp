#include "autoread/setup_wizard.h"

#include "fakes/fake_ports.h"
#include "table/history.h"

namespace holdem {
namespace {

struct SetupWizardTest : ProgramTest {
  SetupWizardTest() { OpenWizard(); }

  // What the seat buttons show after these clicks, seat 1 first: J face, o button, B both, x
  // ticked, - empty.
  static std::string Click(std::initializer_list<int> clicked) {
    for (const int seat : clicked) EXPECT_FALSE(ClickWizardSeat(seat)) << seat;
    std::string marks;
    for (int seat = 1; seat <= kSeats; ++seat) marks += "JoBx-"[static_cast<int>(MarkOfSeat(seat))];
    return marks;
  }
};

TEST_F(SetupWizardTest, AsksThreeQuestionsInManualMode) {
  EXPECT_EQ(WizardPrompt(), "Where are you Sitting?");
  EXPECT_EQ(Click({}), "JJJJJJJJJJ");
  EXPECT_EQ(Click({4}), "oooooooooo");
  EXPECT_EQ(WizardPrompt(), "Where is the dealer button?");
  EXPECT_FALSE(FinishWizard());
  EXPECT_EQ(Click({9, 1, 2, 4, 9, 2}), "-xxJxxxxox");
  EXPECT_EQ(WizardPrompt(), "Uncheck any empty seats and click \"Begin ->\"");
  EXPECT_TRUE(FinishWizard());
  EXPECT_EQ(Seating(), ".iiiiiiiii 4 9");
  TakeBackGesture();
  EXPECT_EQ(Seating(), "iiiiiiiiii 2 1");
}

TEST_F(SetupWizardTest, TwoSeatsStayOccupied) {
  EXPECT_EQ(Click({4, 9, 1, 2, 3, 5, 6, 7, 8}), "---J----ox");
  EXPECT_EQ(Click({10}), "---J----o-");  // the last ticked one may go: two remain
  OpenWizard();
  EXPECT_EQ(Click({4, 4, 1, 2, 3, 5, 6, 7, 8, 9, 10, 4}), "---B-----x");
}

TEST_F(SetupWizardTest, ClosesWhenTheFollowedTableGoesAway) {
  EXPECT_FALSE(WatchWizard());  // no table, nothing to watch
  const auto closes = [&](int layout, const char* caption, const PixelArea& covered = {}) {
    FollowATable();
    autoRead.ConfirmedTables = {{78}, {77, 9}};  // one of a process that is no more
    autoRead.TableLayout = layout;
    autoRead.CurrentTable.height = layout == 3 ? 571 : 562;
    desktop.windows[0].caption = caption;
    desktop.windows.insert(desktop.windows.begin(), {.handle = 5, .outer = covered});
    const bool closed = WatchWizard();
    EXPECT_EQ(autoRead.ConfirmedTables.size(), closed ? 1u : 2u);
    return closed;
  };
  EXPECT_FALSE(closes(1, "Table") || CanCancelWizard());
  EXPECT_TRUE(closes(1, "Lobby"));
  // Found as another table than it is, or without its marker.
  EXPECT_TRUE(closes(2, "Table") && closes(3, "Table"));
  // Nobody knows as long as something lies over it: the wizard itself, perhaps.
  EXPECT_FALSE(closes(3, "Table", {300, 300, 600, 500}));
  history.moments.resize(1);
  EXPECT_TRUE(ClickWizardSeat(3) && history.moments.empty());  // no gesture to be taken back
  desktop.windows.clear();
  autoRead.CurrentTable.caption.clear();  // as it reads of a window that has died
  EXPECT_TRUE(WatchWizard());
}

}  // namespace
}  // namespace holdem
