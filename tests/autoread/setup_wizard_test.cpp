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
  static std::string Seating() {
    std::string states;
    for (int seat = 1; seat <= kSeats; ++seat) states += ".i2345"[seats.SeatStates[seat]];
    return states + " " + std::to_string(seats.MySeat) + " " + std::to_string(seats.DealerSeat);
  }
};

TEST_F(SetupWizardTest, AsksThreeQuestionsInManualMode) {
  EXPECT_EQ(WizardTitle(), "Table Setup Wizard");
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

TEST_F(SetupWizardTest, CaptionsAreTheCharactersOfTheSymbolFont) {
  EXPECT_EQ(CaptionOf(SeatMark::Face), "J");
  EXPECT_EQ(CaptionOf(SeatMark::Button), "\u00A1");
  EXPECT_EQ(CaptionOf(SeatMark::FaceAndButton), "J\u00A1");
  EXPECT_EQ(CaptionOf(SeatMark::Ticked), "\u00FE");
  EXPECT_EQ(CaptionOf(SeatMark::Unticked), "\u00A8");
}

TEST_F(SetupWizardTest, AsksOnlyForTheSeatWhileATableIsFollowed) {
  autoRead.WatchedWindow = 77;
  const std::string before = Seating();
  EXPECT_EQ(WizardTitle(), "Table Detected");
  EXPECT_FALSE(CanCancelWizard());
  EXPECT_TRUE(ClickWizardSeat(8));
  EXPECT_EQ(seats.MySeat, 8);
  EXPECT_EQ(seats.AutoReadSeat, 8);
  EXPECT_EQ(autoRead.SeatConfirmedWindow, 77U);
  seats.MySeat = 2;
  EXPECT_EQ(Seating(), before);
}

TEST_F(SetupWizardTest, ClosesWhenTheFollowedTableGoesAway) {
  EXPECT_FALSE(WatchWizard());  // no table, nothing to watch
  desktop.windows = {{.handle = 77, .caption = "Table", .outer = {0, 0, 800, 571}}};
  autoRead.WatchedWindow = autoRead.SeatConfirmedWindow = 77;
  autoRead.CurrentTable = {.windowHandle = 77, .caption = "Table", .layout = 1};
  autoRead.TableLayout = 1;
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
  autoRead.TableLayout = 3;  // whose marker is not there
  expectGone();
  autoRead.TableLayout = 1;
  desktop.windows.clear();
  expectGone();
}

}  // namespace
}  // namespace holdem
