// The fixture of the window tests: the real windows with the world outside them faked, and a hand
// on the mouse that finds widgets by their object names.
#pragma once

#include <QApplication>
#include <QMouseEvent>
#include <QTest>
#include <memory>
#include <optional>

#include "fakes/fake_ports.h"
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

  static QWidget& Widget(const QString& name) {
    for (QWidget* const window : QApplication::topLevelWidgets()) {
      if (window->objectName() == name) return *window;
      if (auto* const found = window->findChild<QWidget*>(name)) return *found;
    }
    ADD_FAILURE() << "no widget " << name.toStdString();
    std::abort();
  }

  static QString Text(const QString& label) { return static_cast<QLabel&>(Widget(label)).text(); }

  // Near the left edge, which no other card covers.
  static QPoint Spot(const QWidget& widget) { return {6, widget.height() / 2}; }

  static void Send(QWidget& widget, QEvent::Type type, Qt::MouseButton button,
                   Qt::MouseButtons held, std::optional<QPoint> onScreen = {}) {
    const QPoint global = onScreen ? *onScreen : widget.mapToGlobal(Spot(widget));
    QMouseEvent event(type, widget.mapFromGlobal(global), global, button, held, Qt::NoModifier);
    QApplication::sendEvent(&widget, &event);
  }

  static void Press(const QString& name, Qt::MouseButton button) {
    Send(Widget(name), QEvent::MouseButtonPress, button, button);
  }

  static void Click(const QString& name, Qt::MouseButton button = Qt::LeftButton) {
    Press(name, button);
    Send(Widget(name), QEvent::MouseButtonRelease, button, Qt::NoButton);
  }

  static void DoubleClick(const QString& name, Qt::MouseButton button = Qt::LeftButton) {
    Click(name, button);
    Send(Widget(name), QEvent::MouseButtonDblClick, button, button);
    Send(Widget(name), QEvent::MouseButtonRelease, button, Qt::NoButton);
  }

  // From a widget to a point on the screen.
  static void Drag(const QString& source, QPoint target) {
    QWidget& from = Widget(source);
    Press(source, Qt::LeftButton);
    Send(from, QEvent::MouseMove, Qt::NoButton, Qt::LeftButton, target);
    Send(from, QEvent::MouseButtonRelease, Qt::LeftButton, Qt::NoButton, target);
  }

  static void Drag(const QString& source, const QString& target) {
    const QWidget& to = Widget(target);
    Drag(source, to.mapToGlobal(Spot(to)));
  }

  static QString Deck(Card card) { return "picDeck" + QString::number(card); }
  static QString Slot(int slot) { return "picHand" + QString::number(slot); }
  static QString Seat(int seat) { return "picPlayer" + QString::number(seat); }

  static std::vector<Card> CardsInSlots() {
    std::vector<Card> cards;
    for (const int slot : kSlotOrder) cards.push_back(slots.picHand[slot]);
    return cards;
  }

  // What the windows show is what the state says.
  static void ExpectWindowsShowTheState() {
    for (Card card = 1; card <= kCardCount; ++card) {
      EXPECT_EQ(Widget(Deck(card)).isVisible(), slots.InDeck(card)) << card;
    }
    for (int row = 0; row < 9; ++row) {
      EXPECT_EQ(Text("lblMe" + QString::number(row)).toStdString(), results.lblMe[row]);
      EXPECT_EQ(Text("lblThem" + QString::number(row)).toStdString(), results.lblThem[row]);
    }
    EXPECT_EQ(Text("lblAdvice").toStdString(), results.lblAdvice);
    EXPECT_EQ(Text("lblCurrentScore").toStdString(), results.lblCurrentScore);
    EXPECT_EQ(static_cast<QCheckBox&>(Widget("chk9Pl")).isChecked(), seats.SeatCount == 9);
    EXPECT_EQ(Widget("picPlayer6").isVisible(), seats.SeatCount == 10);
    for (int seat = 1; seat <= kSeats; ++seat) {
      EXPECT_EQ(Widget("shpDlrButton" + QString::number(seat)).isVisible(),
                seat == seats.DealerSeat);
    }
    EXPECT_TRUE(Widget("picHand1").geometry().intersects(Widget(Seat(seats.MySeat)).geometry()));
  }

  std::unique_ptr<Program> program;
};

}  // namespace holdem
