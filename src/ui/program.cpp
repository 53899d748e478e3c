#include "ui/program.h"

#include <QApplication>
#include <QScreen>
#include <QStyle>
#include <ctime>

#include "advice/hole_table.h"
#include "advice/think.h"
#include "cards/random.h"
#include "engine/analysis_pass.h"
#include "engine/run_protocol.h"
#include "platform/ports.h"
#include "state/advice_values.h"
#include "state/auto_read.h"
#include "state/run.h"
#include "state/screen.h"
#include "state/slots.h"
#include "table/card_slots.h"
#include "table/refresh.h"
#include "table/settings_gestures.h"
#include "ui/frm_about.h"
#include "ui/mod_resize.h"

namespace holdem {
namespace {

using namespace std::chrono_literals;

constexpr int kCaptionHeightOfLayouts = 26;  // pixels; of the windows whose layouts are known

}  // namespace

Program::Program() : form1_(drag_), deckWindow_(&form1_, drag_), display_(form1_, deckWindow_) {
  ports.display = &display_;
  QApplication::setQuitOnLastWindowClosed(false);
  qApp->installEventFilter(this);
  // Only now has the window manager framed the windows, so that their outer sizes are known.
  form1_.onFirstActivation = [this] { modResize::ArrangeWindows(form1_, deckWindow_); };
  form1_.onEnd = [this] { End(); };
  form1_.onAbout = [this] { ShowAbout(); };
  form1_.onSetup = [this] { SetUpTable(); };
  connect(&Timer1_, &QTimer::timeout, this, &Blink);
  connect(&tmrCheckRefresh_, &QTimer::timeout, this, &CheckRefresh);
}

void MeasureScreen() {
  const QSize size = QGuiApplication::primaryScreen()->size();
  screenState.ScreenWidthPx = size.width();
  screenState.ScreenHeightPx = size.height();
}

void Program::Start() {
  const std::time_t now = std::time(nullptr);
  SeedRandom(*std::localtime(&now));
  modHole::LoadHoleTable();
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
  run.RecalcNeeded = true;
  RefreshTable(true);
  for (const int slot : kSlotOrder) EmptySlot(slot);
  ShowDeckWindow();
  form1_.RecordDesign();
  Think(kNoScore);
  LoadLevels();
  LoadSpeed();
  LoadFoldDepth();
  autoRead.CaptionHeight = QApplication::style()->pixelMetric(QStyle::PM_TitleBarHeight);
  autoRead.CaptionAdjust = kCaptionHeightOfLayouts - autoRead.CaptionHeight;
  form1_.ShowAutoRead();
  modResize::ArrangeWindows(form1_, deckWindow_);
  run.RecalcNeeded = true;
  RunAnalysis();
  form1_.show();
  Timer1_.start(600ms);
  tmrCheckRefresh_.start(100ms);
}

// Centred under the main window, until the windows are arranged.
void Program::ShowDeckWindow() {
  const QRect main = form1_.frameGeometry();
  deckWindow_.move(main.left() + (main.width() - deckWindow_.width()) / 2,
                   main.top() + main.height());
  deckWindow_.show();
  slots.DeckShown = true;
}

void Program::ShowAbout() {
  auto* const about = new frmAbout(&form1_, frmAbout::Use::FromMenu);
  about->setAttribute(Qt::WA_DeleteOnClose);
  about->open();
}

void Program::SetUpTable() {
  run.RecalcNeeded = true;
  RefreshTable(true);
}

void Program::End() {
  run.Ending = true;
  Timer1_.stop();
  tmrCheckRefresh_.stop();
  QApplication::closeAllWindows();
  QCoreApplication::exit();
}

// A request to quit, of the session or the system, is never vetoed by the deck window.
bool Program::eventFilter(QObject* object, QEvent* event) {
  if (object == qApp && event->type() == QEvent::Quit) run.Ending = true;
  return false;
}

}  // namespace holdem
