// The fixture of the window tests: the real windows with the world outside them faked, and a hand
// on mouse and keyboard that finds controls by their object names.
#pragma once

#include <QAction>
#include <QApplication>
#include <QLabel>
#include <QMouseEvent>
#include <QTest>
#include <memory>

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
    // After an end, no event loop runs any more until the application's has begun once again.
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
    const QPoint nowhere(5000, 5000);
    return name == "nowhere" ? nowhere : Widget(name).mapToGlobal(Spot(Widget(name)));
  }
  static void Press(const QString& name, Qt::MouseButton button = Qt::LeftButton,
                    QEvent::Type type = QEvent::MouseButtonPress) {
    Send(name, type, button, button, SpotOf(name));
  }
  static void Release(const QString& name, const QString& over,
                      Qt::MouseButton button = Qt::LeftButton) {
    Send(name, QEvent::MouseButtonRelease, button, Qt::NoButton, SpotOf(over));
  }

  // "click picDeck1", "right picHand6", "double picPlayer4", "doubleright picHand6", "again
  // picDeck2" (the second of two quick clicks), "drag picDeck5 picHand9", "choose mnuMe", "key
  // picHand6 A Del Shift+F10".
  static void Do(const QString& gesture) {
    if (QWidget* const menu = QApplication::activePopupWidget()) menu->close();
    const QStringList words = gesture.split(' ');
    const QString &verb = words[0], &name = words[1];
    const auto button = verb.endsWith("right") ? Qt::RightButton : Qt::LeftButton;
    if (verb == "choose") return The<QAction>(name).trigger();
    if (verb == "key") {
      Widget(name).setFocus(Qt::TabFocusReason);
      for (const QString& key : words.mid(2)) {
        const QKeyCombination keys = QKeySequence(key)[0];
        QTest::keyClick(&Widget(name), keys.key(), keys.keyboardModifiers());
      }
      return;
    }
    if (verb != "again") Press(name, button);
    if (verb == "right") return;  // acts at once
    if (verb == "drag") return Release(name, words[2]);
    if (verb != "again") Release(name, name, button);
    if (verb == "click") return;
    Press(name, button, QEvent::MouseButtonDblClick);
    Release(name, name, button);
  }

  static std::vector<Card> CardsInSlots() {
    std::vector<Card> cards;
    for (const int slot : kSlotOrder) cards.push_back(slots.picHand[slot]);
    return cards;
  }

  // What is not as in a program just started, as in "AS KD -- 2C seat4=2 dealer=3".
  static std::string State() {
    std::string text;
    for (const Card card : CardsInSlots()) {
      text += {"-A23456789TJQK"[RankOf(card)], "-SDCH"[SuitOf(card)], ' '};
    }
    while (text.ends_with("-- ")) text.resize(text.size() - 3);
    const auto note = [&](const std::string& name, int value, int usual) {
      if (value != usual) text += name + "=" + std::to_string(value) + ' ';
    };
    for (int seat = 1; seat <= kSeats; ++seat) {
      note("seat" + std::to_string(seat), seats.SeatStates[seat], In);
    }
    note("me", seats.MySeat, 2);
    note("dealer", seats.DealerSeat, 1);
    note("seats", seats.SeatCount, 10);
    note("folds", seats.WatchFoldDepth, false);
    note("pre", settings.LevelPre, Avg);
    note("post", settings.LevelPost, Avg);
    note("speed", settings.Speed, 0);
    return text.substr(0, text.find_last_not_of(' ') + 1);
  }

  // Every control shows what the state says.
  static void ExpectWindowsShowTheState() {
    const auto expect = [](const QString& name, bool shown) {
      EXPECT_EQ(Widget(name).isVisible(), shown) << name.toStdString();
    };
    const auto checked = [](const QString& name) { return The<QAbstractButton>(name).isChecked(); };
    for (Card card = 1; card <= kCardCount; ++card) expect(Deck(card), slots.InDeck(card));
    for (const int slot : kSlotOrder) {  // only empty slots have a border
      const QImage picture = Widget(Slot(slot)).grab().toImage();
      EXPECT_EQ(picture.pixelColor(0, 0) == QColor(Qt::black), !slots.IsFilled(slot)) << slot;
    }
    for (int row = 0; row < 9; ++row) {
      EXPECT_EQ(Text("lblMe" + QString::number(row)), results.lblMe[row]);
      EXPECT_EQ(Text("lblThem" + QString::number(row)), results.lblThem[row]);
    }
    EXPECT_EQ(Text("lblAdvice"), results.lblAdvice);
    EXPECT_EQ(Text("lblCurrentScore"), results.lblCurrentScore);
    EXPECT_EQ(Text("lblMessage"), autoRead.lblMessage);
    for (const char* const name : {"lblEyeBall", "lblAutoOn"}) expect(name, autoRead.Following());
    expect("lblManual", !autoRead.Following());
    for (const char* const name : {"chk9Pl", "cmdNewDeal"}) {
      EXPECT_EQ(Widget(name).isEnabled(), !autoRead.Following()) << name;
    }
    EXPECT_EQ(checked("chk9Pl"), seats.SeatCount == 9);
    EXPECT_EQ(checked("chkFoldLevels"), seats.WatchFoldDepth);
    for (int i = 0; i < 3; ++i) {
      const QString number = QString::number(i);
      EXPECT_EQ(checked("lblAdvicePre" + number), settings.LevelPre == i);
      EXPECT_EQ(checked("lblAdvicePost" + number), settings.LevelPost == i);
      EXPECT_EQ(The<QAction>("mnuSpeedChoice" + number).isChecked(), settings.Speed == i);
    }
    expect(Seat(6), seats.SeatCount == 10);
    const ButtonMarks& marks = seats.Marks;
    for (int seat = 1; seat <= kSeats; ++seat) {
      const QString button = "shpDlrButton" + QString::number(seat);
      const auto isMarked = [&](const QString& mark) {
        return Widget(mark).isVisible() &&
               Widget(mark).pos() == Widget(button).pos() + QPoint(1, 1);
      };
      expect(button, seat == marks.dealer);
      EXPECT_EQ(isMarked("lblSB"), seat == marks.smallBlind) << seat;
      EXPECT_EQ(isMarked("lblBB"), seat == marks.bigBlind) << seat;
    }
    EXPECT_TRUE(Widget("picHand1").geometry().intersects(Widget(Seat(seats.MySeat)).geometry()));
  }

  std::unique_ptr<Program> program;
};

}  // namespace holdem
