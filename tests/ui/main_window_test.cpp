#include <QAction>
#include <QMessageBox>

#include "ui/frm_about.h"
#include "ui/window_test.h"

namespace holdem {
namespace {

using MainWindowTest = WindowTest;

QAction& Item(const QString& name) {
  for (QWidget* const window : QApplication::topLevelWidgets()) {
    if (auto* const found = window->findChild<QAction*>(name)) return *found;
  }
  ADD_FAILURE() << "no item " << name.toStdString();
  std::abort();
}

TEST_F(MainWindowTest, StartsWithoutStoredSettings) {
  Load();
  EXPECT_EQ(seats.MySeat, 2);
  EXPECT_EQ(seats.DealerSeat, 1);
  EXPECT_EQ(store.writes, std::vector<std::string>{"Speed=0"});
  EXPECT_TRUE(Item("mnuSpeedChoice0").isChecked());
  EXPECT_FALSE(Item("mnuSpeedChoice1").isChecked());
  EXPECT_TRUE(Widget("lblManual").isVisible());
  EXPECT_FALSE(Widget("lblAutoOn").isVisible());
  EXPECT_FALSE(Widget("lblEyeBall").isVisible());
  EXPECT_FALSE(run.RecalcNeeded);  // the first pass has run
  ExpectWindowsShowTheState();
}

TEST_F(MainWindowTest, StartsWithWhateverIsStored) {
  const struct {
    const char* pre;
    const char* post;
    const char* speed;
    const char* fold;
    int framedPre, framedPost, checkedSpeed;
    bool watch;
  } kCases[] = {
      {"0", "2", "1", "Yes", 0, 2, 1, true},
      {"7", "garbage", "7", "yes", -1, 0, 0, false},
      {"99999", "-99999", "1e9", "No", 1, 1, 0, false},
      {"", " 2 ", "1.5", "Yes\n", 1, 2, 2, false},
  };
  for (const auto& stored : kCases) {
    SCOPED_TRACE(stored.pre);
    program.reset();
    settings = {};
    store.texts = {{"LevelPre", stored.pre},
                   {"LevelPost", stored.post},
                   {"Speed", stored.speed},
                   {"FoldLevels", stored.fold}};
    Load();
    for (int level = 0; level < 3; ++level) {
      const auto framed = [&](const char* row) {
        return static_cast<ClickLabel&>(Widget(row + QString::number(level))).isChecked();
      };
      EXPECT_EQ(framed("lblAdvicePre"), level == stored.framedPre) << level;
      EXPECT_EQ(framed("lblAdvicePost"), level == stored.framedPost) << level;
      EXPECT_EQ(Item("mnuSpeedChoice" + QString::number(level)).isChecked(),
                level == stored.checkedSpeed);
    }
    EXPECT_EQ(static_cast<QCheckBox&>(Widget("chkFoldLevels")).isChecked(), stored.watch);
    EXPECT_EQ(store.texts["FoldLevels"], stored.fold);
  }
}

TEST_F(MainWindowTest, SpeedMenu) {
  Load();
  store.writes.clear();
  for (int times = 0; times < 2; ++times) {  // the second choice changes nothing
    Item("mnuSpeedChoice1").trigger();
    EXPECT_TRUE(Item("mnuSpeedChoice1").isChecked());
    EXPECT_FALSE(Item("mnuSpeedChoice0").isChecked());
  }
  EXPECT_EQ(settings.DealsPerRun, 3000);
  EXPECT_EQ(store.writes, std::vector<std::string>{"Speed=1"});
}

TEST_F(MainWindowTest, LevelLabels) {
  Load();
  store.writes.clear();
  Click("lblAdvicePost1");  // framed already
  EXPECT_TRUE(store.writes.empty());
  Click("lblAdvicePost2");
  Click("lblAdvicePre0");
  EXPECT_EQ(store.writes, (std::vector<std::string>{"LevelPost=2", "LevelPre=0"}));
  EXPECT_EQ(settings.LevelPost, Loose);
  EXPECT_EQ(settings.LevelPre, Tight);
}

TEST_F(MainWindowTest, MenusOpenFromTheirLabels) {
  Load();
  for (const char* const name : {"File", "Speed", "Help"}) {
    Click(QString("lblMnu") + name);
    QWidget* const menu = QApplication::activePopupWidget();
    ASSERT_NE(menu, nullptr) << name;
    EXPECT_EQ(menu->objectName(), QString("mnu") + name);
    menu->close();
  }
}

TEST_F(MainWindowTest, SeatMenu) {
  Load();
  const auto open = [](int seat) {
    Press(Seat(seat), Qt::RightButton);
    QWidget* const menu = QApplication::activePopupWidget();
    EXPECT_NE(menu, nullptr);
    if (menu != nullptr) menu->close();
  };
  open(4);
  EXPECT_EQ(Item("mnuFold2").text(), "&Folded");
  EXPECT_FALSE(Item("mnuFold3").isVisible());
  EXPECT_TRUE(Item("mnuIn").isChecked());
  Item("mnuFold2").trigger();
  EXPECT_EQ(seats.SeatStates[4], FoldedPreFlop);

  static_cast<QCheckBox&>(Widget("chkFoldLevels")).click();
  EXPECT_EQ(store.texts["FoldLevels"], "Yes");
  open(4);
  EXPECT_EQ(Item("mnuFold2").text(), "Folded &Pre-Flop");
  EXPECT_TRUE(Item("mnuFold5").isVisible());
  EXPECT_TRUE(Item("mnuFold2").isChecked());
  EXPECT_FALSE(Item("mnuIn").isChecked());
  Item("mnuDealer").trigger();
  EXPECT_EQ(seats.DealerSeat, 4);

  open(9);
  Item("mnuMe").trigger();
  EXPECT_EQ(seats.MySeat, 9);
  EXPECT_EQ(seats.AutoReadSeat, 9);
  open(9);
  EXPECT_FALSE(Item("mnuIn").isEnabled());
  EXPECT_FALSE(Item("mnuEmpty").isEnabled());
  EXPECT_TRUE(Item("mnuDealer").isEnabled());
  open(3);
  Item("mnuEmpty").trigger();
  EXPECT_EQ(seats.SeatStates[3], Empty);
  ExpectWindowsShowTheState();
}

TEST_F(MainWindowTest, NineSeatTableMovesSeatFive) {
  Load();
  const int outer = Widget("Form1").frameGeometry().width();
  EXPECT_EQ(Widget("picPlayer5").x(), qRound(0.337 * outer));
  static_cast<QCheckBox&>(Widget("chk9Pl")).click();
  EXPECT_EQ(Widget("picPlayer5").x(), qRound(0.25 * outer));
  ExpectWindowsShowTheState();
  static_cast<QCheckBox&>(Widget("chk9Pl")).click();
  EXPECT_EQ(seats.SeatStates[6], Empty);
  ExpectWindowsShowTheState();
}

// The marks of the blinds stand at their seats' button spots, the hole cards over the user's seat.
TEST_F(MainWindowTest, BlindMarksAndHoleSlots) {
  Load();
  const auto spot = [](int seat) { return Widget("shpDlrButton" + QString::number(seat)).pos(); };
  EXPECT_EQ(Widget("lblSB").pos(), spot(2) + QPoint(1, 1));
  EXPECT_EQ(Widget("lblBB").pos(), spot(3) + QPoint(1, 1));
  for (int seat = 3; seat <= kSeats; ++seat) DoubleClick(Seat(seat));
  EXPECT_EQ(Widget("lblSB").pos(), spot(1) + QPoint(1, 1));  // heads-up
  EXPECT_EQ(Widget("lblBB").pos(), spot(2) + QPoint(1, 1));
  static_cast<QCheckBox&>(Widget("chk9Pl")).click();
  EXPECT_TRUE(Widget("lblSB").isVisible());

  // 5640 + 0.22 x 1095 twips from the left, 840 - 0.1 x 615 from the top.
  EXPECT_EQ(Widget("picHand0").geometry(), QRect(392, 52, 37, 49));
  EXPECT_EQ(Widget("picHand1").geometry(), QRect(429, 52, 36, 49));
}

TEST_F(MainWindowTest, OnlyEmptySlotsHaveABorder) {
  Load();
  Click(Deck(1));
  const auto corner = [](int slot) { return Widget(Slot(slot)).grab().toImage().pixelColor(0, 0); };
  EXPECT_NE(corner(0), QColor(Qt::black));
  EXPECT_EQ(corner(1), QColor(Qt::black));
  Press(Slot(0), Qt::RightButton);
  EXPECT_EQ(corner(0), QColor(Qt::black));
}

TEST_F(MainWindowTest, EverySizeIsPainted) {
  Load();
  for (const Card card : {1, 13, 14, 30, 52}) Click(Deck(card));
  for (const QSize size : {QSize(1, 1), QSize(40, 20), QSize(3000, 2000), QSize(775, 260)}) {
    Widget("Form1").resize(size);
    Widget("Form1").grab();
  }
  EXPECT_EQ(Widget("picHand6").size(), QSize(41, 57));
}

TEST_F(MainWindowTest, HelpFilesOpenOrAreMissed) {
  Load();
  shell.existing = {Path("/opt/pellucor/instruct.html")};
  QTest::mouseClick(&Widget("cmdHelp"), Qt::LeftButton);
  Item("mnuInstruct").trigger();
  EXPECT_EQ(shell.opened, (std::vector<std::string>(2, Path("/opt/pellucor/instruct.html"))));
  Item("mnuReadMe").trigger();
  auto* const message = Widget("Form1").findChild<QMessageBox*>();
  ASSERT_NE(message, nullptr);
  EXPECT_EQ(message->text(),
            ("Error opening file \"" + Path("/opt/pellucor/readme.txt") + "\"").c_str());
  EXPECT_EQ(message->standardButtons(), QMessageBox::Ok);
  message->close();
}

TEST_F(MainWindowTest, AboutFromTheMenuStaysUntilOk) {
  Load();
  Item("mnuAbout").trigger();
  QWidget& about = Widget("frmAbout");
  EXPECT_TRUE(about.isModal());
  QTest::mouseClick(&about, Qt::LeftButton);
  EXPECT_TRUE(about.isVisible());
  QTest::mouseClick(&Widget("cmdOK"), Qt::LeftButton);
  EXPECT_FALSE(about.isVisible());
}

TEST_F(MainWindowTest, AboutAtStartUpClosesAndTheMainWindowLoads) {
  seats = {};
  slots = {};
  program = std::make_unique<Program>();
  screenState = {.ScreenWidthPx = 800, .ScreenHeightPx = 600};
  program->Start();
  EXPECT_EQ(seats.MySeat, 5);
  QWidget& about = Widget("frmAbout");
  EXPECT_EQ(about.findChild<QPushButton*>(), nullptr);
  QTest::keyClick(&about, Qt::Key_Space);
  // A small screen: first the message.
  auto* const message = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
  ASSERT_NE(message, nullptr);
  EXPECT_EQ(message->text(), "Screen Resolution: 800x600\r\nProgram will be resized");
  EXPECT_FALSE(Widget("Form1").isVisible());
  message->close();
  EXPECT_TRUE(Widget("Form1").isVisible());
  EXPECT_TRUE(Widget("frmDeck").isVisible());
  EXPECT_EQ(seats.MySeat, 2);
}

TEST_F(MainWindowTest, ControlsScaleWithTheWindow) {
  Load();
  QWidget& form1 = Widget("Form1");
  const QRect slot = Widget("picHand8").geometry();
  form1.resize(form1.size() * 8 / 10);
  EXPECT_EQ(Widget("picHand8").geometry(),
            QRect(qRound(slot.x() * 0.8), qRound(slot.y() * 0.8), qRound(slot.width() * 0.8),
                  qRound(slot.height() * 0.8)));
  EXPECT_NEAR(Widget("lblMe3").font().pointSizeF(), 6.4, 0.01);
  EXPECT_EQ(Widget(Deck(2)).size(), QSize(29, 41));  // the deck window keeps its own size
  results.lblCurrentScore = "stale";
  form1.resize(form1.width(), form1.height() * 3);
  EXPECT_EQ(Widget("picHand8").y(), qRound(slot.y() * 0.8 * 3));
  EXPECT_EQ(results.lblCurrentScore, "");  // the table is analysed anew
  form1.resize(775, 260);
  const auto expectDesign = [&] {
    EXPECT_EQ(Widget("picHand8").geometry(), slot);
    EXPECT_NEAR(Widget("lblMe3").font().pointSizeF(), 8, 0.01);
  };
  expectDesign();
  ExpectWindowsShowTheState();
  form1.showMinimized();
  form1.resize(0, 0);
  expectDesign();
}

TEST_F(MainWindowTest, TheDeckWindowCannotBeClosed) {
  Load();
  EXPECT_FALSE(Widget("frmDeck").close());
  EXPECT_TRUE(Widget("frmDeck").isVisible());
}

TEST_F(MainWindowTest, ClosingTheMainWindowInTheMiddleOfARunEndsItAtOnce) {
  Load();
  for (const Card card : {1, 13, 14, 30}) Click(Deck(card));
  settings.DealsPerRun = 100'000'000;
  QTimer::singleShot(0, [] { Widget("Form1").close(); });
  Click(Deck(52));
  EXPECT_TRUE(run.Ending);
  EXPECT_FALSE(Widget("Form1").isVisible());
  EXPECT_FALSE(Widget("frmDeck").isVisible());
  EXPECT_EQ(results.lblAdvice, "Thinking...");  // nothing is written any more
  EXPECT_EQ(results.lblMe[8], "");
}

TEST_F(MainWindowTest, AdviceAndMarkerBlink) {
  Load();
  results.lblAdvice = "Fold";
  const auto color = [] { return Widget("lblAdvice").palette().color(QPalette::WindowText); };
  const QColor before = color();
  EXPECT_TRUE(QTest::qWaitFor([&] { return color() != before; }, 2000));
  EXPECT_TRUE(QTest::qWaitFor([&] { return slots.MarkedSlot == 0; }, 2000));
}

TEST_F(MainWindowTest, EachDeckCardCoversTheRightFifthOfItsLeftNeighbour) {
  Load();
  QWidget& deckWindow = Widget("frmDeck");
  for (Card card = 1; card <= kCardCount; ++card) {
    const QWidget& box = Widget(Deck(card));
    EXPECT_EQ(deckWindow.childAt(box.mapTo(&deckWindow, Spot(box))), &box) << card;
    const QPoint rightEdge = box.mapTo(&deckWindow, QPoint(box.width() - 2, box.height() / 2));
    EXPECT_EQ(deckWindow.childAt(rightEdge) == &box, RankOf(card) == Ace) << card;
  }
}

}  // namespace
}  // namespace holdem
