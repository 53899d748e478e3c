#include "ui/program.h"

#include <QApplication>
#include <QScreen>
#include <QTimer>
#include <QWindow>
#include <algorithm>
#include <cmath>
#include <ctime>

#include "advice/show_advice.h"
#include "autoread/watcher.h"
#include "cards/random.h"
#include "design/screen_fit.h"
#include "engine/analysis_pass.h"
#include "gestures/settings_gestures.h"
#include "platform/ports.h"
#include "state/advice_values.h"
#include "state/run.h"
#include "state/screen.h"
#include "state/slots.h"
#include "state/wizard.h"
#include "table/blink.h"
#include "table/card_slots.h"
#include "table/refresh.h"
#include "ui/frm_about.h"
#include "ui/frm_get_startup_info.h"
#include "ui/mod_resize.h"

namespace holdem {
namespace {

using namespace std::chrono_literals;

constexpr int kFrameTries = 20;    // 50 ms apart: a second
constexpr auto kAnswered = 500ms;  // by then a window manager has answered

// The screen's own pixels along one side. Qt has rounded them to logical ones: 1366 pixels at 1.5
// are 911, and these would be 1366.5. A scaled screen has an even number of pixels both ways, so
// the nearest even number is right.
int OwnPixels(double scaled) {
  return scaled == std::floor(scaled) ? static_cast<int>(scaled) : 2 * qRound(scaled / 2);
}

// Whether the window still has the size that was asked for, which comes back rounded on a scaled
// screen.
bool HasSize(const QWidget& window, QSize asked) {
  const QSize off = window.size() - asked;
  return std::max(std::abs(off.width()), std::abs(off.height())) <= 1;
}

}  // namespace

Program::Program() : form1_(drag_), deckWindow_(&form1_, drag_), display_(form1_, deckWindow_) {
  ports.display = &display_;
  QApplication::setQuitOnLastWindowClosed(false);
  qApp->installEventFilter(this);
  form1_.onEnd = [this] { End(); };
  form1_.onAbout = [this] { ShowAbout(); };
  form1_.onSetup = [this] { SetUpTable(); };
  form1_.onOtherWindow = [this] {
    if (QApplication::activeWindow() == &deckWindow_) return form1_.activateWindow();
    deckWindow_.TakeKeyboard();
  };
  connect(qApp, &QApplication::focusChanged, this, [](QWidget*, const QWidget* now) {
    if (now == nullptr || !slots.TypedIntoNext) ForgetTyped();
  });
}

// The windows, which go after this, still report that they lose the keyboard.
Program::~Program() { qApp->disconnect(this); }

void MeasureScreen() {
  const QScreen& screen = *QGuiApplication::primaryScreen();
  const QSizeF size = QSizeF(screen.size()) * screen.devicePixelRatio();
  screenState.ScreenWidthPx = OwnPixels(size.width());
  screenState.ScreenHeightPx = OwnPixels(size.height());
}

void Program::Start() {
  const std::time_t now = std::time(nullptr);
  SeedRandom(*std::localtime(&now));
  auto* const about = new frmAbout(nullptr, frmAbout::Use::StartUp);
  about->setAttribute(Qt::WA_DeleteOnClose);
  connect(about, &QDialog::finished, this, &Program::AfterAbout);
  about->show();
}

void Program::AfterAbout() {
  if (run.Ending || screenState.MainShown) return;
  if (!modResize::IsSmallScreen()) return LoadMainWindow();
  connect(OpenMessage(nullptr, modResize::SmallScreenMessage()), &QDialog::finished, this, [this] {
    if (!run.Ending) LoadMainWindow();
  });
}

void Program::LoadMainWindow() {
  seats.DealerSeat = 1;
  seats.MySeat = 2;
  SeatsChanged();
  for (const Slot slot : kSlotOrder) EmptySlot(slot);
  // From here on it counts as shown. It comes up after the main window, below: a window that is on
  // the screen before its owner is not kept above it.
  slots.DeckShown = true;
  form1_.RecordDesign();
  Think(kNoScore);
  LoadLevels();
  LoadSpeed();
  LoadFoldDepth();
  form1_.ShowAutoRead();
  modResize::ArrangeWindows(form1_, deckWindow_);
  Recalculate();
  form1_.show();
  deckWindow_.show();
  ArrangeOnceFramed(kFrameTries, form1_.size(), deckWindow_.size());
  const auto every = [this](std::chrono::milliseconds interval, const char* name, auto act) {
    auto* const timer = new QTimer(this);
    timer->setObjectName(name);
    connect(timer, &QTimer::timeout, this, act);
    timer->start(interval);
  };
  every(600ms, "Timer1", [] { Blink(QApplication::cursorFlashTime() > 0); });
  every(500ms, "tmrAutoWatcher", &WatchTable);
  every(100ms, "tmrCheckRefresh", &CheckRefresh);
}

// Waits until the window manager, if there is one, has put frames around both windows, since their
// outer sizes are known only then; and arranges them. A window that no longer has the size that was
// asked for has got another from the window manager or the user, and keeps it.
void Program::ArrangeOnceFramed(int tries, QSize askedMain, QSize askedDeck) {
  const auto framed = [](const QWidget& window) {
    return !window.windowHandle()->frameMargins().isNull();
  };
  if (run.Ending) return;
  if (tries > 0 && (!framed(form1_) || !framed(deckWindow_))) {
    QTimer::singleShot(50ms, this,
                       [=, this] { ArrangeOnceFramed(tries - 1, askedMain, askedDeck); });
    return;
  }
  const bool mainSizeIsOurs = HasSize(form1_, askedMain);
  if (mainSizeIsOurs) form1_.ResizeToDesign();
  if (HasSize(deckWindow_, askedDeck)) deckWindow_.ResizeToDesign();
  modResize::ArrangeWindows(form1_, deckWindow_, mainSizeIsOurs);
  form1_.ShowSeats();
  // A window manager may refuse a size without telling Qt. Then Qt is told here what size the
  // window has.
  QTimer::singleShot(kAnswered, this, [this] {
    if (run.Ending) return;
    for (QWidget* const window :
         {static_cast<QWidget*>(&form1_), static_cast<QWidget*>(&deckWindow_)}) {
      window->resize(window->windowHandle()->size());
    }
  });
}

void Program::ShowAbout() {
  auto* const about = new frmAbout(&form1_, frmAbout::Use::FromMenu);
  about->setAttribute(Qt::WA_DeleteOnClose);
  about->show();
}

void Program::SetUpTable() {
  if (wizard.Open) return;
  LookAgainAtTable();
  if (wizard.Open || run.Ending) return;  // looking may let other events in
  auto* const wizardWindow = new frmGetStartupInfo(&form1_);
  wizardWindow->setAttribute(Qt::WA_DeleteOnClose);
  connect(wizardWindow, &QDialog::finished, this, [] {
    if (!run.Ending) SeatsChanged();
  });
  wizardWindow->show();
}

void Program::End() {
  run.Ending = true;
  for (QTimer* const timer : findChildren<QTimer*>()) timer->stop();
  QApplication::closeAllWindows();
  QCoreApplication::exit();
}

// When the session or the system asks the program to quit, the deck window must not refuse to
// close.
bool Program::eventFilter(QObject* object, QEvent* event) {
  if (object == qApp && event->type() == QEvent::Quit) run.Ending = true;
  return false;
}

}  // namespace holdem
