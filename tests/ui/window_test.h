// The fixture of the window tests: the real windows with the world outside them faked, and a hand
// on mouse and keyboard that finds controls by their object names.
#pragma once

#include <QAction>
#include <QApplication>
#include <QLabel>
#include <QMouseEvent>
#include <QTest>
#include <memory>

#include "autoread/setup_wizard.h"
#include "fakes/fake_ports.h"
#include "table/refresh.h"
#include "ui/program.h"

namespace holdem {

class WindowTest : public ProgramTest {
 protected:
  // The windows as the user first sees them.
  void Load() {
    seats = {};
    slots = {};
    screenState = {.ScreenWidthPx = 1920, .ScreenHeightPx = 1080};
    program = std::make_unique<Program>();
    program->LoadMainWindow();
    // Within the offscreen platform's screen, where widgets are found by their position.
    Widget("Form1").move(0, 0);
    Widget("frmDeck").move(0, 400);
    settings.DealsPerRun = 20;  // enough to fill the grid
  }

  ~WindowTest() override {
    run.Ending = true;                  // the deck window may be closed now
    QCoreApplication::processEvents();  // what a test has left for later
    program.reset();
    BeginAgain();
  }

  // After an end, no event loop runs any more until the application's has begun once again.
  static void BeginAgain() {
    QTimer::singleShot(0, [] { QCoreApplication::exit(); });
    QCoreApplication::exec();
  }

  template <typename T>
  static T& The(const QString& name) {
    for (QWidget* const window : QApplication::topLevelWidgets()) {
      if (auto* const itself = dynamic_cast<T*>(window); itself && itself->objectName() == name) {
        return *itself;
      }
      if (auto* const found = window->findChild<T*>(name)) return *found;
    }
    ADD_FAILURE() << "there is no " << name.toStdString();
    std::abort();
  }
  static QWidget& Widget(const QString& name) { return The<QWidget>(name); }
  static std::string Text(const QString& label) { return The<QLabel>(label).text().toStdString(); }

  static QString Deck(Card card) { return "picDeck" + QString::number(card); }
  static QString Slot(int slot) { return "picHand" + QString::number(slot); }
  static QString Seat(int seat) { return "picPlayer" + QString::number(seat); }

  // Near the left edge, which no other card covers.
  static QPoint Spot(const QWidget& widget) { return {6, widget.height() / 2}; }

  static void Send(const QString& name, QEvent::Type type, Qt::MouseButton button,
                   Qt::MouseButtons held, QPoint onScreen) {
    QWidget& widget = Widget(name);
    QMouseEvent event(type, widget.mapFromGlobal(onScreen), onScreen, button, held, {});
    QApplication::sendEvent(&widget, &event);
  }
  static QPoint SpotOf(const QString& name) {
    if (name == "nowhere") return {5000, 5000};
    return Widget(name).mapToGlobal(Spot(Widget(name)));
  }
  static void Press(const QString& name, Qt::MouseButton button = Qt::LeftButton,
                    QEvent::Type type = QEvent::MouseButtonPress) {
    Send(name, type, button, button, SpotOf(name));
  }
  static void Release(const QString& name, const QString& over) {
    Send(name, QEvent::MouseButtonRelease, Qt::LeftButton, Qt::NoButton, SpotOf(over));
  }

  // "click picDeck1", "right picHand6", "double picPlayer4", "drag picDeck5 picHand9", "choose
  // mnuMe", "key picHand6 A Del Shift+F10".
  static void Do(const QString& gesture) {
    if (QWidget* const menu = QApplication::activePopupWidget()) menu->close();
    const QStringList words = gesture.split(' ');
    const QString &verb = words[0], &name = words[1];
    if (verb == "choose") return The<QAction>(name).trigger();
    if (verb == "right") return Press(name, Qt::RightButton);  // acts at once
    if (verb == "key") {
      Widget(name).setFocus(Qt::TabFocusReason);
      for (const QString& key : words.mid(2)) QTest::keySequence(&Widget(name), QKeySequence(key));
      return;
    }
    Press(name);
    Release(name, words.back());
    if (verb == "double") {
      Press(name, Qt::LeftButton, QEvent::MouseButtonDblClick);
      Release(name, name);
    }
  }

  // Cards and seats, as in "AS KD -- 2C, i3iiiiiiii 2 1"; without the seats of a program just
  // started.
  static std::string State() {
    std::string text = Cards() + ' ';
    while (text.ends_with("-- ")) text.resize(text.size() - 3);
    if (Seating() != "iiiiiiiiii 2 1") return text + Seating();
    return text.substr(0, text.find_last_not_of(' ') + 1);
  }

  // Every control shows what the state says.
  static void ExpectWindowsShowTheState() {
    const auto expect = [](const QString& name, const char* what, bool value) {
      EXPECT_EQ(The<QObject>(name).property(what).toBool(), value) << name.toStdString();
    };
    for (Card c = 1; c <= kCardCount; ++c) expect(Deck(c), "visible", slots.InDeck(c));
    for (const int slot : kSlotOrder) {  // only empty slots have a border
      const QImage picture = Widget(Slot(slot)).grab().toImage();
      EXPECT_EQ(picture.pixelColor(0, 0) == QColor(Qt::black), !slots.IsFilled(slot)) << slot;
    }
    for (int row = 0; row < kResultRows; ++row) {
      EXPECT_EQ(Text("lblMe" + QString::number(row)), results.lblMe[row]);
      EXPECT_EQ(Text("lblThem" + QString::number(row)), results.lblThem[row]);
    }
    EXPECT_EQ(Text("lblAdvice"), results.lblAdvice);
    const QColor advice = Widget("lblAdvice").palette().color(QPalette::WindowText);
    EXPECT_EQ(advice == QColor(Qt::white), results.lblAdviceLit);
    EXPECT_EQ(Text("lblCurrentScore"), results.lblCurrentScore);
    EXPECT_EQ(Text("lblMessage"), autoRead.lblMessage);
    expect("lblEyeBall", "visible", autoRead.Following());
    expect("lblAutoOn", "visible", autoRead.Following());
    expect("lblManual", "visible", !autoRead.Following());
    expect("chk9Pl", "enabled", !autoRead.Following());
    expect("cmdNewDeal", "enabled", !autoRead.Following());
    expect("chk9Pl", "checked", seats.SeatCount == 9);
    expect("chkFoldLevels", "checked", seats.WatchFoldDepth);
    for (const auto& [name, chosen] : {std::pair{"lblAdvicePre", settings.LevelPre},
                                       {"lblAdvicePost", settings.LevelPost},
                                       {"mnuSpeedChoice", settings.Speed}}) {
      for (int i = 0; i < 3; ++i) expect(name + QString::number(i), "checked", chosen == i);
    }
    for (int i = 0; i < 3; ++i) {  // the chosen level has a frame
      const QImage label = Widget("lblAdvicePost" + QString::number(i)).grab().toImage();
      EXPECT_EQ(label.pixelColor(0, 5) == QColor(Qt::black), settings.LevelPost == i);
    }
    expect(Seat(6), "visible", seats.SeatCount == 10);
    const double seatFive = seats.SeatCount == 10 ? 0.337 : 0.25;  // its left edge
    EXPECT_EQ(Widget(Seat(5)).x(), qRound(seatFive * Widget("Form1").frameGeometry().width()));
    const auto button = [](int seat) { return "shpDlrButton" + QString::number(seat); };
    const auto& [dealer, smallBlind, bigBlind] = seats.Marks;
    for (int seat = 1; seat <= kSeats; ++seat) expect(button(seat), "visible", seat == dealer);
    for (const auto& [mark, seat] : {std::pair{"lblSB", smallBlind}, {"lblBB", bigBlind}}) {
      expect(mark, "visible", seat != 0);
      if (seat != 0) EXPECT_EQ(Widget(mark).pos(), Widget(button(seat)).pos() + QPoint(1, 1));
    }
    EXPECT_TRUE(Widget("picHand1").geometry().intersects(Widget(Seat(seats.MySeat)).geometry()));
    if (!wizard.Open) return;
    EXPECT_EQ(Text("Label1"), WizardPrompt());
    EXPECT_EQ(Text("Label2"), WizardTitle());
    expect("Command1", "visible", CanCancelWizard());
    expect("cmdDone", "visible", CanFinishWizard());
    expect("cmdHere6", "visible", seats.SeatCount == 10);
    for (int seat = 1; seat <= kSeats; ++seat) {
      const auto& answer = The<QPushButton>("cmdHere" + QString::number(seat));
      EXPECT_EQ(answer.text().toStdString(), CaptionOf(MarkOfSeat(seat)));
    }
  }

  std::unique_ptr<Program> program;
};

class LoadedWindowTest : public WindowTest {
 protected:
  LoadedWindowTest() { Load(); }
};

}  // namespace holdem
