// Auto Read from end to end: the program follows the stand-in client.
#include "native/follow_table_test.h"

#include <QTemporaryFile>
#include <random>

#include "native/user.h"

namespace holdem {
namespace {

// How often to do it; more for a longer run by hand, as the environment says.
int AsOften(const char* variable, int usually) {
  const char* const wanted = std::getenv(variable);
  return wanted != nullptr ? std::atoi(wanted) : usually;
}

TEST_F(FollowTableTest, HandsInEveryLayout) {
  const int hands = AsOften("HANDS_A_LAYOUT", 40);
  for (int layout = 1; layout <= kLayouts; ++layout) {
    SCOPED_TRACE(layout);
    seatToChoose = layout == 4 ? 7 : 2 + layout;
    Follow(*std::make_unique<TableClient>(Table(layout, seatToChoose, 10 + layout, hands)));
    EXPECT_GE(wizardsSeen, layout);  // one more where a table was found before it was painted
    if (HasFailure()) break;
    EXPECT_TRUE(QTest::qWaitFor([] { return !autoRead.Following(); }));
  }
  std::printf("%d states followed, %d misread\n", statesFollowed, statesMisread);
}

TEST_F(FollowTableTest, HandsAtTheRealIntervals) {
  SetIntervals(500, 100);
  seatToChoose = 4;
  TableClient client(Table(5, 4, 99, 3));
  Follow(client);
}

TEST_F(FollowTableTest, CoveredMinimisedAndShownAgain) {
  seatToChoose = 5;
  TableClient client(Table(2, 5, 7, 2));
  ASSERT_TRUE(QTest::qWaitFor([&] { return autoRead.Following() && Shows(client.Now()); }));
  const auto lost = [] { return !autoRead.Following(); };
  const auto found = [&] { return autoRead.Following() && Shows(client.Now()); };
  const std::string state = StateText().substr(0, StateText().find("following"));

  QWidget cover(nullptr, Qt::ToolTip);
  cover.setGeometry(0, 320, 1000, 700);
  cover.show();
  EXPECT_TRUE(QTest::qWaitFor(lost));
  EXPECT_EQ(StateText().substr(0, StateText().find("following")), state);
  EXPECT_TRUE(Widget("lblManual").isVisible());
  cover.hide();
  EXPECT_TRUE(QTest::qWaitFor(found));

  user::Minimise(client.Id());
  EXPECT_TRUE(QTest::qWaitFor(lost));
  user::Activate(client.Id());
  EXPECT_TRUE(QTest::qWaitFor(found));
  user::Move(client.Id(), {900, 800});  // half off the screen
  EXPECT_TRUE(QTest::qWaitFor(lost));
  user::Move(client.Id(), {100, 340});
  EXPECT_TRUE(QTest::qWaitFor(found));
  EXPECT_EQ(wizardsSeen, 1);  // the same table is not asked for again
}

TEST_F(FollowTableTest, ACaptionThatChangesUnderTheWizardClosesIt) {
  QTemporaryFile script;
  ASSERT_TRUE(script.open());
  script.write("caption Lobby\n");
  script.close();
  program->findChild<QTimer*>("tmrAutoWatcher")->stop();  // until the client is there
  TableClient client({"--layout", "1", "--position", "60,330", "--script", script.fileName()});
  bool asked = false;  // the watcher waits for the wizard, so the change comes out of a timer
  QTimer renaming;
  QObject::connect(&renaming, &QTimer::timeout, &renaming, [&] {
    if (!wizard.Open || asked) return;
    asked = true;
    user::Rename(client.Id(), "Lobby");
  });
  renaming.start(50);
  program->findChild<QTimer*>("tmrAutoWatcher")->start();
  EXPECT_TRUE(QTest::qWaitFor([&] { return asked && !wizard.Open; }));
  EXPECT_EQ(autoRead.SeatConfirmedWindow, 0U);
  EXPECT_EQ(seats.MySeat, 2);
}

TEST_F(FollowTableTest, TheUppermostOfTwoTablesIsFollowed) {
  seatToChoose = 4;
  program->findChild<QTimer*>("tmrAutoWatcher")->stop();
  TableClient below(Table(1, 4, 5, 1));
  TableClient above(Table(5, 4, 6, 1) + QStringList{"--position", "70,345"});
  user::Activate(above.Id());
  program->findChild<QTimer*>("tmrAutoWatcher")->start();
  EXPECT_TRUE(QTest::qWaitFor([&] { return autoRead.WatchedWindow == above.Id(); }));
  user::Activate(below.Id());
  EXPECT_TRUE(QTest::qWaitFor([&] { return autoRead.WatchedWindow == below.Id(); }));
}

// Killed at any moment, the client leaves what was last read, and the program alive.
TEST_F(FollowTableTest, ATableMayDieAtAnyMoment) {
  seatToChoose = 4;
  SetIntervals(3, 5);
  std::mt19937 random(5);
  const int deaths = AsOften("DEATHS", 40);
  for (int death = 0; death < deaths; ++death) {
    TableClient client(Table(1 + death % kLayouts, 4, death, 3));
    for (int steps = static_cast<int>(random() % 4); steps > 0; --steps) client.Next();
    const Shown last = client.Now();
    const bool settled = death % 4 == 0 && QTest::qWaitFor([&] { return Shows(last); });
    QTest::qWait(static_cast<int>(random() % 12));
    const bool hadCards = settled && CardsInSlots() != std::vector<Card>(7);
    client.Kill();
    ASSERT_TRUE(QTest::qWaitFor([] { return !autoRead.Following() && !wizard.Open; }));
    ASSERT_TRUE(!hadCards || Shows(last)) << StateText();
  }
}

}  // namespace
}  // namespace holdem
