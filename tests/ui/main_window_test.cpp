// The program from its start to its end, and what its windows do by themselves.
#include <QMessageBox>

#include "ui/window_test.h"

namespace holdem {
namespace {

using MainWindowTest = WindowTest;

TEST_F(MainWindowTest, TheStartShowsAboutThenTheMessageThenTheWindows) {
  for (const bool small : {false, true}) {
    program.reset();
    seats = {};
    screenState = {.ScreenWidthPx = small ? 1024 : 1920, .ScreenHeightPx = 1080};
    program = std::make_unique<Program>();
    program->Start();
    EXPECT_EQ(Widget("frmAbout").findChild<QPushButton*>(), nullptr);
    small ? QTest::keyClick(&Widget("frmAbout"), Qt::Key_Space) : Do("click frmAbout");
    auto* const message = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    EXPECT_EQ(message != nullptr, small);
    EXPECT_EQ(Widget("Form1").isVisible(), !small);
    if (message != nullptr) message->close();
    EXPECT_TRUE(Widget("Form1").isVisible() && Widget("frmDeck").isVisible());
    EXPECT_EQ(State(), "");
    EXPECT_EQ(settings.LevelPost, small ? Loose : Avg);
    EXPECT_EQ(settings.Speed, small);
    EXPECT_EQ(seats.WatchFoldDepth, small);
    EXPECT_FALSE(run.RecalcNeeded);  // the first pass has run
    ExpectWindowsShowTheState();
    QTest::qWait(0);  // deletes what was closed
    store.texts = {{"LevelPost", "2"}, {"Speed", "1"}, {"FoldLevels", "Yes"}};
  }
}

TEST_F(MainWindowTest, EndsAtOnceInTheMiddleOfARun) {
  const std::function<void()> endings[] = {
      [] { Widget("Form1").close(); }, [] { Do("choose mnuExit"); },
      [] { QApplication::sendEvent(qApp, std::make_unique<QEvent>(QEvent::Quit).get()); }};
  for (const auto& end : endings) {
    run = {};
    Load();
    EXPECT_FALSE(Widget("frmDeck").close());  // by itself it stays
    for (const Card card : {1, 13, 14, 30}) Do("click " + Deck(card));
    settings.DealsPerRun = 100'000'000;
    QTimer::singleShot(0, end);
    Do("click " + Deck(52));
    EXPECT_TRUE(run.Ending);
    EXPECT_FALSE(Widget("Form1").isVisible() || Widget("frmDeck").isVisible());
    EXPECT_EQ(results.lblAdvice, "Thinking...");  // nothing is written any more
    EXPECT_EQ(results.lblMe[8], "");
  }
}

TEST_F(MainWindowTest, HelpFilesOpenOrAreMissed) {
  Load();
  shell.existing = {Path("/opt/pellucor/instruct.html")};
  Do("click cmdHelp");
  Do("choose mnuInstruct");
  EXPECT_EQ(shell.opened.size(), 2U);
  Do("choose mnuReadMe");
  EXPECT_TRUE(The<QMessageBox>("").text().contains("readme.txt"));
  EXPECT_EQ(The<QMessageBox>("").standardButtons(), QMessageBox::Ok);
  The<QMessageBox>("").close();
}

TEST_F(MainWindowTest, AboutFromTheMenuStaysUntilOk) {
  Load();
  Do("choose mnuAbout");
  QWidget& about = Widget("frmAbout");
  EXPECT_TRUE(about.isModal());
  Do("click frmAbout");
  QTest::keyClick(&about, Qt::Key_Space);
  EXPECT_TRUE(about.isVisible());
  Do("click cmdOK");
  EXPECT_FALSE(about.isVisible());
}

TEST_F(MainWindowTest, WhatChangesWithTime) {
  Load();
  results.lblAdvice = "Fold";
  const auto color = [] { return Widget("lblAdvice").palette().color(QPalette::WindowText); };
  const QColor before = color();
  EXPECT_TRUE(QTest::qWaitFor([&] { return color() != before; }));
  EXPECT_TRUE(QTest::qWaitFor([&] { return slots.MarkedSlot == 0; }));
  FollowATable();
  autoRead.lblMessage = "You are active in this hand";
  ports.display->ShowAutoRead();
  ExpectWindowsShowTheState();
}

}  // namespace
}  // namespace holdem
