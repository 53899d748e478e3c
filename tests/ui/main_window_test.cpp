// The program from its start to its end, and what its windows do by themselves.
#include <QHelpEvent>
#include <QMessageBox>
#include <QToolTip>

#include "engine/run_protocol.h"
#include "ui/buttons.h"
#include "ui/window_test.h"

namespace holdem {
namespace {

using MainWindowTest = LoadedWindowTest;

TEST_F(MainWindowTest, TheStartShowsAboutThenTheMessageThenTheWindows) {
  store.texts = {{"LevelPost", "2"}, {"Speed", "1"}, {"FoldLevels", "Yes"}};
  for (const QString dismissed : {"click frmAbout", "key frmAbout Escape", "in time"}) {
    const bool small = dismissed.startsWith("key");
    program.reset();
    screenState = {.ScreenWidthPx = small ? 1024 : 1920, .ScreenHeightPx = 1080};
    program = std::make_unique<Program>();
    program->Start();
    if (dismissed != "in time") Do(dismissed);
    EXPECT_TRUE(QTest::qWaitFor([&] { return Widget("Form1").isVisible() != small; }));
    if (small) The<QDialog>("message").close();
    for (const QString stored : {"lblAdvicePost2", "mnuSpeedChoice1", "chkFoldLevels"})
      EXPECT_TRUE(The<QObject>(stored).property("checked").toBool()) << stored.toStdString();
    EXPECT_EQ(program->findChild<QTimer*>("tmrAutoWatcher")->interval(), 500);
    MarkTableChanged();
    EXPECT_TRUE(QTest::qWaitFor([] { return run.Settled() && slots.MarkedSlot == 0; }));
    ExpectWindowsShowTheState();
    QTest::qWait(0);  // deletes what was closed
  }
}

// What has no frame is arranged in the end, as it then is.
TEST_F(WindowTest, ASizeThatTheWindowManagerGivesItIsKept) {
  screenState = {.ScreenWidthPx = 1920, .ScreenHeightPx = 1080};
  program = std::make_unique<Program>();
  QWidget &form1 = Widget("Form1"), &deckWindow = Widget("frmDeck");
  form1.setWindowFlag(Qt::FramelessWindowHint);
  program->LoadMainWindow();
  EXPECT_EQ(deckWindow.y(), form1.y());
  form1.resize(1596, 960);
  EXPECT_TRUE(QTest::qWaitFor([&] { return deckWindow.y() != form1.y(); }));
  EXPECT_EQ(form1.size(), QSize(1596, 960));
}

TEST_F(MainWindowTest, EndsAtOnceInTheMiddleOfARun) {
  const std::function<void()> endings[] = {
      [] { Widget("Form1").close(); }, [] { Do("choose mnuExit"); },
      [] { QTest::keyClick(&Widget("Form1"), Qt::Key_Q, Qt::ControlModifier); },
      [] { QApplication::sendEvent(qApp, std::make_unique<QEvent>(QEvent::Quit).get()); }};
  for (const auto& end : endings) {
    run = {};
    Load();
    EXPECT_FALSE(Widget("frmDeck").close());  // by itself it stays
    Widget("frmDeck").showMinimized();
    EXPECT_TRUE(QTest::qWaitFor([] { return !Widget("frmDeck").isMinimized(); }));
    for (const Card card : {1, 13, 14, 30}) Do("click " + Deck(card));
    settings.DealsPerRun = 100'000'000;
    QTimer::singleShot(0, end);
    Do("click " + Deck(52));
    EXPECT_TRUE(run.Ending);
    EXPECT_FALSE(Widget("Form1").isVisible() || Widget("frmDeck").isVisible());
    EXPECT_EQ(results.lblAdvice, "Thinking...");  // nothing is written any more
  }
}

TEST_F(MainWindowTest, MessagesStayUntilOk) {
  Do("choose mnuReadMe");  // is not there
  EXPECT_EQ(The<QMessageBox>("message").text().toStdString(),
            "Error opening file \"" + Path("/opt/pellucor/readme.txt") + "\"");
  EXPECT_FALSE(The<QMessageBox>("message").isModal());  // the main window can be closed
  The<QMessageBox>("message").close();
  for (const QString closing : {"click cmdOK", "key cmdOK Escape"}) {
    Do("choose mnuAbout");
    Do("click frmAbout"), Do("key frmAbout Space");
    EXPECT_TRUE(Widget("frmAbout").isVisible());
    Do(closing);
    EXPECT_FALSE(Widget("frmAbout").isVisible()) << closing.toStdString();
    QTest::qWait(0);  // deletes it
  }
}

// As the watcher asks: it waits for the answer, and needs no more than the seat.
TEST_F(MainWindowTest, TheWizardOfAFollowedTable) {
  FollowATable();
  Do("click lblSetup");  // it is no table any more
  EXPECT_TRUE(Widget("Command1").isVisible() && !autoRead.Following());
  Do("click Command1");
  const std::function<void()> endings[] = {
      [] { Do("click cmdHere4"); }, [this] { desktop.windows[0].caption = "Lobby"; },
      [] { Widget("Form1").close(); }, [] { Widget("frmGetStartupInfo").close(); },
      [] { Do("key cmdHere4 Ctrl+Q"); }};
  for (const auto& end : endings) {
    run = {};
    BeginAgain();
    Load();
    const Sights manual = LookAtAll();
    FollowATable();
    ports.display->ShowSeats();
    ports.display->ShowAutoRead();
    EXPECT_EQ(Changed(manual), &end == endings ? "9Pl AutoOn EyeBall Manual NewDeal" : "");
    QTimer::singleShot(450, [this, end] {  // it looks for changes every 300 ms
      Do("click " + Deck(1));              // held back
      for (const QString& name : {Seat(4), QString("cmdHelp"), QString("chkFoldLevels")}) {
        QAccessibleActionInterface& actions = *Said(name)->actionInterface();
        actions.doAction(actions.actionNames().first());  // likewise
      }
      EXPECT_FALSE(seats.WatchFoldDepth || !shell.opened.empty());
      EXPECT_EQ(Said("cmdHere4")->text(QAccessible::Name), "Seat 4");
      EXPECT_FALSE(Widget("Command1").isVisible() || Widget("lblManual").isVisible());
      Do("key cmdHere4 Escape");
      EXPECT_EQ(State(), "");
      ExpectWindowsShowTheState();
      end();
    });
    ports.display->AskSeat();
    EXPECT_FALSE(wizard.Open);
    EXPECT_EQ(seats.MySeat, &end == endings ? 4 : 2);
    EXPECT_EQ(run.Ending, &end - endings > 1);
  }
}

// Also in a tooltip that is open, and whatever another program's caption looks like.
TEST_F(MainWindowTest, TheIndicatorSaysWhatTheLastLookHasFound) {
  autoRead.Look = {Finding::Covered, {.caption = "<b>A"}, 0, 0, "<i>B"};
  ports.display->ShowAutoRead();
  const auto said = Said("lblManual")->text(QAccessible::Description);
  EXPECT_EQ(said, "The table \"<b>A\" is covered by \"<i>B\".");
  QHelpEvent rest(QEvent::ToolTip, {}, {});
  QApplication::sendEvent(&Widget("lblManual"), &rest);
  EXPECT_TRUE(QToolTip::text().contains("&lt;b&gt;A")) << QToolTip::text().toStdString();
  FollowATable();
  ports.display->ShowAutoRead();
  EXPECT_TRUE(QToolTip::text().contains("is followed")) << QToolTip::text().toStdString();
  QToolTip::hideText();
}

// What is told later covers what is told earlier. The main window is so large that a pixel is a
// twip of its design, which is in whole pixels of 15 twips; the wizard keeps its size.
TEST_F(MainWindowTest, WhereControlsStand) {
  QWidget& form1 = Widget("Form1");
  Do("click lblSetup");
  form1.resize(form1.size() * 15);
  QString stand;
  for (const QWidget* const control : form1.findChildren<QWidget*>()) {
    if (control->window() == &Widget("frmDeck") || qobject_cast<const QMenu*>(control)) continue;
    QDebug(&stand).nospace() << control->objectName() << ' ' << control->geometry() << ' '
                             << control->property("text").toString() << '\n';
  }
  ExpectApproved("places", stand.toStdString());
}

// At many sizes, also run at several device scales.
using GeometryTest = LoadedWindowTest;

// What the control's text needs, from its left edge.
QSize TextSize(const QWidget& control) {
  const auto* const label = dynamic_cast<const QLabel*>(&control);
  const auto* const check = dynamic_cast<const WrappingCheckBox*>(&control);
  const bool wraps = check != nullptr || (label != nullptr && label->wordWrap());
  const QRect room = check != nullptr ? check->TextBox() : control.contentsRect();
  const QString text =
      control.property(control.property("title").isValid() ? "title" : "text").toString();
  if (text.isEmpty()) return {};
  const int flags = Qt::TextShowMnemonic | (wraps ? Qt::TextWordWrap : 0);
  const QRect taken = control.fontMetrics().boundingRect(0, 0, room.width(), 9999, flags, text);
  return taken.size() + QSize(room.left(), 0);
}

TEST_F(GeometryTest, NoTextIsCut) {
  QWidget& form1 = Widget("Form1");
  const QSize designSize = form1.size();
  for (const double x : {0.6, 0.7, 0.8, 0.95, 1.0, 1.15, 1.35, 1.7, 2.2, 4.0}) {
    form1.resize(designSize * x + QSize(0, x > 1 ? 400 : 0));  // maximised, it is higher
    results.lblMe.fill("Current");                             // the longest texts
    results.lblThem.fill("100%");
    results.lblCurrentScore = "Full House (Queens full of Sevens)";
    results.lblAdvice = "Small Blind: Call. Fold if raised.";
    autoRead.lblMessage = "You are active in this hand";
    ports.display->ShowResults();
    ports.display->ShowAutoRead();
    for (const QWidget* const control : form1.findChildren<QWidget*>()) {
      if (control->window() != &form1) continue;
      const QSize text = TextSize(*control);
      const QSize shown = (control->geometry() & control->parentWidget()->rect()).size();
      EXPECT_EQ(text.expandedTo(shown), shown) << control->objectName().toStdString() << ' ' << x;
    }
    const QImage title = Widget("lbllbl7").grab().toImage();  // its sign ends where it begins
    const int end = (Widget("lbllbl7").contentsRect().left() - 1) * title.devicePixelRatio();
    for (int y = 0; y < title.height(); ++y)
      EXPECT_EQ(title.pixelColor(end, y), title.pixelColor(title.width() - 1, 0)) << x;
    EXPECT_NE(title.pixelColor(end / 2, title.height() / 2), title.pixelColor(end, 0)) << x;
  }
}

TEST_F(GeometryTest, ControlsScaleWithTheWindow) {
  const std::tuple<QSize, QRect, double> cases[] = {{{620, 624}, {173, 211, 33, 137}, 6.4},
                                                    {{775, 260}, {216, 88, 41, 57}, 8},
                                                    {{0, 0}, {216, 88, 41, 57}, 8}};
  for (const auto& [size, slot, points] : cases) {
    results.lblCurrentScore = "stale";
    Widget("Form1").resize(size);
    EXPECT_EQ(results.lblCurrentScore, "");  // the table is analysed anew
    EXPECT_EQ(Widget("picHand8").geometry(), slot);
    EXPECT_NEAR(Widget("lblMe3").font().pointSizeF(), points, 0.01);
    EXPECT_TRUE(Widget("lblMe8").font().bold() && Widget("lblCurrentScore").font().bold());
    ExpectWindowsShowTheState();
  }
}

}  // namespace
}  // namespace holdem
