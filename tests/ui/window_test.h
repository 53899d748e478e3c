// The fixture of the window tests: the real windows with the world outside them faked, an eye on
// what is painted, and a hand on mouse and keyboard: it goes to where a control stands and presses
// whatever lies there.
#pragma once

#include <QAccessible>
#include <QAction>
#include <QApplication>
#include <QBackingStore>
#include <QLabel>
#include <QMenu>
#include <QPointer>
#include <QRegularExpression>
#include <QTest>
#include <QTimer>
#include <QWindow>
#include <memory>

#include "autoread/setup_wizard.h"
#include "fakes/fake_ports.h"
#include "ui/hand_meter.h"
#include "ui/program.h"

namespace holdem {

struct WindowTest : ProgramTest {
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

  // After an end, no event loop runs any more until the application's has begun once again.
  static void BeginAgain() {
    QTimer::singleShot(0, [] { QCoreApplication::exit(); });
    QCoreApplication::exec();
  }

  template <typename T>
  static T& The(const QString& name) {
    for (QWidget* const window : QApplication::topLevelWidgets()) {
      const bool itself = window->objectName() == name;
      auto* const found = itself ? dynamic_cast<T*>(window) : window->findChild<T*>(name);
      if (found != nullptr) return *found;
    }
    ADD_FAILURE() << "there is no " << name.toStdString();
    std::abort();
  }
  static QWidget& Widget(const QString& name) { return The<QWidget>(name); }
  static QAccessibleInterface* Said(const QString& name) {
    return QAccessible::queryAccessibleInterface(&Widget(name));
  }

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
    if (mouseIn == nullptr) return;  // the press has closed it
    qt_handleMouseEvent(mouseIn, mouseIn->mapFromGlobal(at), at, held, button, type, {}, clock);
  }
  static void Press(QWidget& window, QPoint at, Qt::MouseButton button) {
    mouseIn = window.windowHandle();
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
    if (!menu.isVisible())
      Do(name == "mnuPlayer" ? "right " + Seat(seats.MenuSeat) : "click lblM" + name.mid(1));
    EXPECT_TRUE(menu.isVisible() && action.isVisible()) << item.toStdString();
    const QPoint place = menu.mapToGlobal(menu.actionGeometry(&action).center());
    Press(menu, place, Qt::LeftButton);
    Release(place);
  }

  // "click picDeck1", "right picHand6", "double picPlayer4", "double-right picHand0", "drag
  // picDeck5 picHand9", "choose mnuMe", "key picHand6 A Del Shift+F10".
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
    const auto button = verb.endsWith("right") ? Qt::RightButton : Qt::LeftButton;
    const QPoint start = SpotOf(name), end = SpotOf(words.back());
    Press(name, button);
    if (verb == "drag") MoveCard(end);
    Release(end, button);
    if (!verb.startsWith("double")) return;
    Mouse(QEvent::MouseButtonPress, start, button, button);
    Release(start, button);
  }

  // What is seen of a window, and where its controls are in sight, what lies further up later.
  struct Sight {
    QImage pixels;
    std::vector<std::pair<QString, QRect>> places;

    std::size_t OwnerAt(QPoint pixel) const {
      const QPoint at = pixel / pixels.devicePixelRatio();
      std::size_t owner = places.size() - 1;
      while (owner > 0 && !places[owner].second.contains(at)) --owner;
      return owner;
    }
  };
  // What is due is painted, and nothing more: a control that nobody has asked to be is out of date.
  static Sight Look(QWidget& window) {
    QEvent due(QEvent::UpdateRequest);
    QApplication::sendEvent(&window, &due);
    const auto& painted = dynamic_cast<QImage&>(*window.backingStore()->paintDevice());
    Sight sight{painted.copy(), {{window.objectName(), window.rect()}}};
    for (const QWidget* const control : window.findChildren<QWidget*>()) {
      const QWidget& frame = *control->parentWidget();
      const bool hidden = control->window() != &window || !control->isVisible();
      const QRect shown = hidden ? QRect() : control->geometry() & frame.rect();
      sight.places.emplace_back(control->objectName(),
                                shown.translated(frame.mapTo(&window, QPoint())));
    }
    return sight;
  }
  using Sights = std::map<QWidget*, Sight>;
  static Sights LookAtAll() {
    QCoreApplication::processEvents();
    Sights sights;
    for (QWidget* const window : QApplication::topLevelWidgets())
      if (window->isVisible() && window->backingStore()) sights[window] = Look(*window);
    return sights;
  }
  // What looks different in the windows that have been open all the time: cards of the deck by
  // their names, controls without the prefix of their kind, those of a column of the grid as one.
  static std::string Differences(const Sights& before, const Sights& after) {
    std::set<QString> found;
    for (const auto& [window, is] : after) {
      const Sight& was = before.contains(window) ? before.at(window) : is;
      if (was.pixels == is.pixels || was.pixels.size() != is.pixels.size()) continue;
      std::set<std::size_t> owners;
      for (int y = 0; y < is.pixels.height(); ++y) {
        const auto *then = reinterpret_cast<const QRgb*>(was.pixels.constScanLine(y)),
                   *now = reinterpret_cast<const QRgb*>(is.pixels.constScanLine(y));
        for (int x = 0; x < is.pixels.width(); ++x)
          if (then[x] != now[x]) owners.insert(std::max(was.OwnerAt({x, y}), is.OwnerAt({x, y})));
      }
      for (const std::size_t owner : owners) found.insert(Plainly(is.places[owner].first));
    }
    return QStringList(found.begin(), found.end()).join(' ').toStdString();
  }
  static std::string Changed(const Sights& before) { return Differences(before, LookAtAll()); }
  static QString Plainly(QString name) {
    if (name.startsWith("picDeck")) return TextOf(name.mid(7).toInt()).c_str();
    static const QRegularExpression spare("^(lbl|pic|cmd|chk|shp)|(?<=lblMe|lblThem)\\d$");
    return name.remove(spare);
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
    const Sights seen = LookAtAll();
    Sights anew = seen;
    for (auto& [window, sight] : anew) sight.pixels = Anew(*window);
    EXPECT_EQ(Differences(seen, anew), "") << "should have been painted anew";
    HandMeter meter(&Widget("Form1"));
    meter.resize(Widget("picHandMeter").size());
    EXPECT_TRUE(Anew(Widget("picHandMeter")) == Anew(meter)) << "has an old scale";

    std::map<QString, std::string> texts = {{"lblAdvice", results.lblAdvice},
                                            {"lblCurrentScore", results.lblCurrentScore},
                                            {"lblMessage", autoRead.lblMessage}};
    for (int row = 0; row < kResultRows; ++row) {
      texts["lblMe" + QString::number(row)] = results.lblMe[row];
      texts["lblThem" + QString::number(row)] = results.lblThem[row];
    }
    if (wizard.Open) {
      texts.insert({{"Label1", WizardPrompt()}, {"Label2", WizardTitle()}});
      EXPECT_EQ(Widget("cmdHere5").x(), seats.SeatCount == 10 ? 168 : 136);
      const QRect asked = Widget("frmGetStartupInfo").geometry().adjusted(0, 0, 1, 1);
      EXPECT_EQ(asked.center(), Widget("Form1").frameGeometry().center());
    }
    for (const auto& [name, text] : texts)
      EXPECT_EQ(The<QLabel>(name).text().toStdString(), text) << name.toStdString();
    const QColor written = Widget("lblAdvice").palette().color(QPalette::WindowText);
    EXPECT_EQ(written == QColor(Qt::white), results.lblAdviceLit);
    EXPECT_EQ(Widget(Seat(6)).isVisible(), seats.SeatCount == 10);
    const double seatFive = seats.SeatCount == 10 ? 0.337 : 0.25;  // its left edge
    EXPECT_EQ(Widget(Seat(5)).x(), qRound(seatFive * Widget("Form1").frameGeometry().width()));
    EXPECT_TRUE(Widget("picHand1").geometry().intersects(Widget(Seat(seats.MySeat)).geometry()));
  }

  std::unique_ptr<Program> program;
  QTimer patience;
  static inline QPointer<QWindow> mouseIn;
};

struct LoadedWindowTest : WindowTest {
  LoadedWindowTest() { Load(); }
};

}  // namespace holdem
