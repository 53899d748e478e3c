// The fixture of the window tests: the real windows with the world outside them faked, an eye on
// what is painted, and a hand on mouse and keyboard: it goes to where a control stands and presses
// whatever lies there.
#pragma once

#include <QAction>
#include <QApplication>
#include <QBackingStore>
#include <QLabel>
#include <QMenu>
#include <QPainter>
#include <QPointer>
#include <QRegularExpression>
#include <QTest>
#include <QWindow>
#include <memory>

#include "autoread/setup_wizard.h"
#include "fakes/fake_ports.h"
#include "table/refresh.h"
#include "ui/hand_meter.h"
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
    QCursor::setPos(790, 790);  // away from them
    for (QTimer* const timer : program->findChildren<QTimer*>()) timer->stop();
    settings.DealsPerRun = 20;  // enough to fill the grid
  }

  // A test that waits for what does not come fails in the end.
  WindowTest() {
    patience.callOnTimeout([] {
      ADD_FAILURE() << "waits in vain";
      run.Ending = run.AbortRequested = true;
      QCoreApplication::exit();
    });
    patience.start(60'000);
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
  static QPoint SpotOf(const QString& name) {
    if (name == "nowhere") return {5000, 5000};
    return Widget(name).mapToGlobal(QPoint(2, Widget(name).height() / 2));
  }

  // As the window system tells of the mouse: the window that has it finds the control by the place.
  static void Mouse(QEvent::Type type, QPoint at, Qt::MouseButtons held = {},
                    Qt::MouseButton button = Qt::NoButton, int pause = 0) {
    static int clock = 0;
    clock += pause;
    if (mouseIn_ == nullptr) return;  // the press has closed it
    qt_handleMouseEvent(mouseIn_, mouseIn_->mapFromGlobal(at), at, held, button, type, {}, clock);
  }
  static void Press(QWidget& window, QPoint at, Qt::MouseButton button) {
    mouseIn_ = window.windowHandle();
    Mouse(QEvent::MouseMove, at);
    Mouse(QEvent::MouseButtonPress, at, button, button, /*pause=*/1000);
  }
  static void Press(const QString& name, Qt::MouseButton button = Qt::LeftButton) {
    QWidget &control = Widget(name), &window = *control.window();
    const QPoint spot = SpotOf(name);
    const QWidget* const there = window.childAt(window.mapFromGlobal(spot));
    EXPECT_TRUE(control.isVisible()) << name.toStdString();
    EXPECT_TRUE(there == &control || &window == &control) << name.toStdString() << " is covered";
    Press(window, spot, button);
  }
  static void MoveCard(QPoint to) { Mouse(QEvent::MouseMove, to, Qt::LeftButton); }
  static void Release(QPoint at, Qt::MouseButton button = Qt::LeftButton) {
    Mouse(QEvent::MouseButtonRelease, at, {}, button);
  }

  // An item of a menu, which is open or is opened as one opens it.
  static void Choose(const QString& item) {
    auto& action = The<QAction>(item);
    auto& menu = dynamic_cast<QMenu&>(*action.parent());
    const QString name = menu.objectName();
    if (!menu.isVisible()) {
      Do(name == "mnuPlayer" ? "right " + Seat(seats.MenuSeat) : "click lblM" + name.mid(1));
    }
    EXPECT_TRUE(menu.isVisible() && action.isVisible()) << item.toStdString();
    const QPoint place = menu.mapToGlobal(menu.actionGeometry(&action).center());
    Press(menu, place, Qt::LeftButton);
    Release(place);
  }

  // "click picDeck1", "right picHand6", "double picPlayer4", "drag picDeck5 picHand9", "choose
  // mnuMe", "key picHand6 A Del Shift+F10".
  static void Do(const QString& gesture) {
    const QStringList words = gesture.split(' ');
    const QString &verb = words[0], &name = words[1];
    if (verb == "choose") return Choose(name);
    if (QWidget* const menu = QApplication::activePopupWidget()) menu->close();
    if (verb == "key") {
      Widget(name).setFocus(Qt::TabFocusReason);
      for (const QString& key : words.mid(2)) QTest::keySequence(&Widget(name), QKeySequence(key));
      return;
    }
    const auto button = verb == "right" ? Qt::RightButton : Qt::LeftButton;
    const QPoint start = SpotOf(name), end = SpotOf(words.back());
    Press(name, button);
    if (verb == "drag") MoveCard(end);
    Release(end, button);
    if (verb != "double") return;
    Mouse(QEvent::MouseButtonPress, start, button, button);
    Release(start);
  }

  // What is seen of a window, and for each pixel the number of the control it belongs to, higher
  // the further up that lies.
  struct Sight {
    QImage pixels, owners;
    QStringList names;
  };
  // What is due is painted, and nothing more: a control that nobody has asked to be is out of date.
  static Sight Look(QWidget& window) {
    QEvent due(QEvent::UpdateRequest);
    QApplication::sendEvent(&window, &due);
    auto& painted = dynamic_cast<QImage&>(*window.backingStore()->paintDevice());
    Sight sight{painted.copy(), {window.size(), painted.format()}, {window.objectName()}};
    sight.owners.fill(Qt::black);
    QPainter painter(&sight.owners);
    for (const QWidget* const control : window.findChildren<QWidget*>()) {
      sight.names += control->objectName();
      if (control->window() != &window || !control->isVisible()) continue;
      const QPoint corner = control->parentWidget()->mapTo(&window, QPoint());
      const QRect shown = control->geometry() & control->parentWidget()->rect();
      painter.fillRect(shown.translated(corner), QColor(QRgb(sight.names.size() - 1)));
    }
    return sight;
  }
  using Sights = std::map<QWidget*, Sight>;
  static Sights LookAtAll() {
    QCoreApplication::processEvents();
    Sights sights;
    for (QWidget* const window : QApplication::topLevelWidgets()) {
      if (window->isVisible() && window->backingStore()) sights[window] = Look(*window);
    }
    return sights;
  }
  // What looks different in the windows that have been open all the time: cards of the deck by
  // their names, controls without the prefix of their kind, those of a column of the grid as one.
  static std::string Differences(const Sights& before, const Sights& after) {
    std::set<std::string> found;
    for (const auto& [window, is] : after) {
      const Sight& was = before.contains(window) ? before.at(window) : is;
      if (was.pixels == is.pixels || was.pixels.size() != is.pixels.size()) continue;
      for (int y = 0; y < is.owners.height(); ++y) {
        const auto *then = was.pixels.constScanLine(y), *now = is.pixels.constScanLine(y);
        if (std::equal(now, now + is.pixels.bytesPerLine(), then)) continue;  // for speed
        for (int x = 0; x < is.owners.width(); ++x) {
          if (was.pixels.pixel(x, y) == is.pixels.pixel(x, y)) continue;
          const QRgb owner = std::max(was.owners.pixel(x, y), is.owners.pixel(x, y));
          found.insert(Plainly(is.names[owner & 0xFFFFFF]));
        }
      }
    }
    std::string text;
    for (const std::string& name : found) text += (text.empty() ? "" : " ") + name;
    return text;
  }
  static std::string Changed(const Sights& before) { return Differences(before, LookAtAll()); }
  static std::string Plainly(QString name) {
    if (name.startsWith("picDeck")) return TextOf(name.mid(7).toInt());
    static const QRegularExpression spare("^(lbl|pic|cmd|chk|shp)|(?<=lblMe|lblThem)\\d$");
    return name.remove(spare).toStdString();
  }
  static QImage Anew(QWidget& control) {
    return control.grab().toImage().convertToFormat(QImage::Format_RGB32);
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
    const Sights seen = LookAtAll();
    Sights anew = seen;
    for (auto& [window, sight] : anew) sight.pixels = Anew(*window);
    EXPECT_EQ(Differences(seen, anew), "") << "should have been painted anew";
    HandMeter meter(&Widget("Form1"));
    meter.resize(Widget("picHandMeter").size());
    EXPECT_TRUE(Anew(Widget("picHandMeter")) == Anew(meter)) << "has an old scale";
    for (Card c = 1; c <= kCardCount; ++c) expect(Deck(c), "visible", slots.InDeck(c));
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
    expect(Seat(6), "visible", seats.SeatCount == 10);
    const double seatFive = seats.SeatCount == 10 ? 0.337 : 0.25;  // its left edge
    EXPECT_EQ(Widget(Seat(5)).x(), qRound(seatFive * Widget("Form1").frameGeometry().width()));
    const auto button = [](int seat) { return "shpDlrButton" + QString::number(seat); };
    const auto& [dealer, smallBlind, bigBlind] = seats.Marks;
    for (int seat = 1; seat <= kSeats; ++seat) expect(button(seat), "visible", seat == dealer);
    for (const auto& [mark, seat] : {std::pair{"lblSB", smallBlind}, {"lblBB", bigBlind}}) {
      expect(mark, "visible", seat != 0);
      if (seat == 0) continue;
      EXPECT_EQ(Widget(mark).pos(), Widget(button(seat)).pos() + QPoint(1, 1));
    }
    EXPECT_TRUE(Widget("picHand1").geometry().intersects(Widget(Seat(seats.MySeat)).geometry()));
    if (!wizard.Open) return;
    EXPECT_EQ(Text("Label1"), WizardPrompt());
    EXPECT_EQ(Text("Label2"), WizardTitle());
    expect("Command1", "visible", CanCancelWizard());
    expect("cmdDone", "visible", CanFinishWizard());
  }

  std::unique_ptr<Program> program;
  QTimer patience;

 private:
  static inline QPointer<QWindow> mouseIn_;
};

class LoadedWindowTest : public WindowTest {
 protected:
  LoadedWindowTest() { Load(); }
};

}  // namespace holdem
