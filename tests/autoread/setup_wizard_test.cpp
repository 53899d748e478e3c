#include "autoread/setup_wizard.h"

#include "fakes/fake_ports.h"

namespace holdem {
namespace {

class SetupWizardTest : public ProgramTest {
 protected:
  SetupWizardTest() { OpenWizard(); }

  // What the seat buttons show, seat 1 first: J face, o button, B both, x ticked, - empty.
  static std::string Marks() {
    std::string marks;
    for (int seat = 1; seat <= kSeats; ++seat) {
      marks += "JoBx-"[static_cast<int>(MarkOfSeat(seat))];
    }
    return marks;
  }
  static void Click(std::initializer_list<int> clicked) {
    for (const int seat : clicked) EXPECT_FALSE(ClickWizardSeat(seat)) << seat;
  }
};

TEST_F(SetupWizardTest, AsksThreeQuestionsInManualMode) {
  EXPECT_EQ(WizardPrompt(), "Where are you Sitting?");
  EXPECT_EQ(Marks(), "JJJJJJJJJJ");
  EXPECT_TRUE(CanCancelWizard());
  EXPECT_FALSE(CanFinishWizard());
  Click({4});
  EXPECT_EQ(WizardPrompt(), "Where is the dealer button?");
  EXPECT_EQ(Marks(), "oooooooooo");
  EXPECT_FALSE(FinishWizard());
  Click({9});
  EXPECT_EQ(WizardPrompt(), "Uncheck any empty seats and click \"Begin ->\"");
  EXPECT_EQ(Marks(), "xxxJxxxxox");
  EXPECT_TRUE(CanFinishWizard());
  Click({1, 2, 4, 9, 1});
  EXPECT_EQ(Marks(), "x-xJxxxxox");

  seats.SeatStates[7] = FoldedTurn;
  EXPECT_TRUE(FinishWizard());
  EXPECT_EQ(Seating(), "i.iiiiiiii 4 9");
  EXPECT_EQ(seats.AutoReadSeat, 0);
}

TEST_F(SetupWizardTest, TwoSeatsStayOccupied) {
  Click({4, 9, 1, 2, 3, 5, 6, 7, 8});
  EXPECT_EQ(Marks(), "---J----ox");
  Click({10});  // the last ticked one may go: two remain
  EXPECT_EQ(Marks(), "---J----o-");

  OpenWizard();
  Click({4, 4, 1, 2, 3, 5, 6, 7, 8, 9, 10});
  EXPECT_EQ(Marks(), "---B-----x");
  Click({4});
  EXPECT_EQ(Marks(), "---B-----x");
}

TEST_F(SetupWizardTest, AsksOnlyForTheSeatWhileATableIsFollowed) {
  autoRead.WatchedWindow = 77;
  EXPECT_FALSE(CanCancelWizard());
  EXPECT_TRUE(ClickWizardSeat(8));
  EXPECT_EQ(seats.AutoReadSeat, 8);
  EXPECT_EQ(autoRead.SeatConfirmedWindow, 77U);
  EXPECT_EQ(Seating(), "iiiiiiiiii 8 1");
}

TEST_F(SetupWizardTest, ClosesWhenTheFollowedTableGoesAway) {
  EXPECT_FALSE(WatchWizard());  // no table, nothing to watch
  FollowATable();
  autoRead.SeatConfirmedWindow = 77;
  EXPECT_FALSE(WatchWizard());
  EXPECT_EQ(autoRead.SeatConfirmedWindow, 77U);

  const auto expectGone = [] {
    autoRead.SeatConfirmedWindow = 77;
    EXPECT_TRUE(WatchWizard());
    EXPECT_EQ(autoRead.SeatConfirmedWindow, 0U);
  };
  desktop.windows[0].caption = "Lobby";
  expectGone();
  desktop.windows[0].caption = "Table";
  autoRead.CurrentTable.width = 801;  // found as another table than it is
  expectGone();
  autoRead.CurrentTable.width = 800;
  autoRead.CurrentTable.height = 571;
  autoRead.TableLayout = 3;  // whose marker is not there
  expectGone();
  // Nobody knows as long as something lies over it: the wizard itself, perhaps.
  desktop.windows.insert(desktop.windows.begin(), {.handle = 5, .outer = {300, 300, 600, 500}});
  EXPECT_FALSE(WatchWizard());
  desktop.windows.erase(desktop.windows.begin());
  autoRead.CurrentTable.height = 562;
  autoRead.TableLayout = 1;
  desktop.windows.clear();
  expectGone();
}

}  // namespace
}  // namespace holdem
