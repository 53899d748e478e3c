// What the window system costs: a run of the simulation in the real windows against the same run
// without yields, and the start of the program against that of a bare window.

#include <QApplication>
#include <QProcess>
#include <QTimer>
#include <QWindow>
#include <cstdlib>
#include <cstring>
#include <optional>

#include "engine/analysis_pass.h"
#include "engine/simulation.h"
#include "gestures/card_gestures.h"
#include "platform/native_desktop.h"
#include "platform/ports.h"
#include "platform/qt/qt_services.h"
#include "rows.h"
#include "state/settings.h"
#include "still_display.h"
#include "table/card_slots.h"
#include "ui/appearance.h"
#include "ui/program.h"

namespace holdem::bench {
namespace {

// The program as main sets it up.
struct RealProgram {
  RealProgram() {
    ports.settingsStore = &settingsStore;
    ports.shell = &shell;
    ports.clock = &clock;
    MeasureScreen();
    program.emplace();
    desktop = MakeNativeDesktop();
    ports.desktop = desktop.get();
  }

  QtSettingsStore settingsStore;
  QtShell shell;
  QtClock clock;
  std::optional<Program> program;
  std::unique_ptr<Desktop> desktop;
};

// Lets the application run until every window that it shows is on the screen.
class UntilShown : public QObject {
 public:
  UntilShown() {
    qApp->installEventFilter(this);
    QApplication::exec();
  }

 protected:
  bool eventFilter(QObject*, QEvent* event) override {
    if (event->type() == QEvent::Expose) QTimer::singleShot(0, this, &QuitWhenShown);
    return false;
  }

 private:
  static void QuitWhenShown() {
    for (const QWindow* window : QGuiApplication::topLevelWindows()) {
      if (window->isVisible() && !window->isExposed()) return;
    }
    QApplication::exit();
  }
};

class WithoutYields : public StillDisplay {
 public:
  explicit WithoutYields(Display& display) : display_(display) {}
  void ShowResults() override { display_.ShowResults(); }
  void ShowMeter() override { display_.ShowMeter(); }

 private:
  Display& display_;
};

constexpr Card kLastFlopCard = 31;
constexpr Card kOtherCard = 44;

// Ten players on the flop, in windows that stand.
void SetUpRun(Program& program) {
  program.LoadMainWindow();
  const UntilShown shown;
  settings.DealsPerRun = kSpeedChoices.back().deals;
  const std::array<Card, 5> cards = {3, 10, 17, 24, kLastFlopCard};
  for (std::size_t i = 0; i < cards.size(); ++i) FillSlot(kSlotOrder[i], cards[i]);
  Recalculate();
}

constexpr const char* kStartProgram = "--start-program";
constexpr const char* kStartBareWindow = "--start-bare-window";

// What the processes do whose start is measured: they end with their windows on the screen. The
// About window closes as soon as it is asked for, instead of staying for two seconds.
void StartProgram() {
  RealProgram real;
  real.program->Start();
  for (QWidget* const window : QApplication::topLevelWidgets()) {
    if (window->objectName() == "frmAbout") window->close();
  }
  const UntilShown shown;
  std::_Exit(EXIT_SUCCESS);
}
void StartBareWindow() {
  QWidget window;
  window.resize(775, 260);  // as large as the main window
  window.show();
  const UntilShown shown;
  std::_Exit(EXIT_SUCCESS);
}

void StartProcess(const char* argument) {
  if (QProcess::execute(QCoreApplication::applicationFilePath(), {argument}) != EXIT_SUCCESS) {
    std::abort();
  }
}

int Main(int argc, char** argv) {
  QApplication application(argc, argv);
  if (argc > 1 && std::strcmp(argv[1], kStartBareWindow) == 0) StartBareWindow();
  SetAppearance(application);
  if (argc > 1 && std::strcmp(argv[1], kStartProgram) == 0) StartProgram();

  RealProgram real;
  SetUpRun(*real.program);
  Display* const withYields = ports.display;
  WithoutYields withoutYields(*withYields);
  const auto runOn = [](Display* display) {
    return [=] {
      ports.display = display;
      RunSimulation();
    };
  };
  StillDisplay nothingShown;
  const auto clickAnotherCard = [=] {
    ports.display = withYields;
    const int slot = kBoardSlots[2];
    const Card card = slots.picHand[slot];
    EmptySlot(slot);
    ClickDeckCard(card == kLastFlopCard ? kOtherCard : kLastFlopCard);
    QApplication::processEvents();  // paints
  };
  return Measure(argc, argv,
                 {{.what = "An accurate run on the flop, 10 players, in the real window",
                   .against = "without yields",
                   .limit = Row::Limit::AtMostTimesSlower,
                   .times = 5,
                   .items = 1,
                   .run = runOn(withYields),
                   .runAgainst = runOn(&withoutYields)},
                  {.what = "The same, from a clicked card to the painted figures",
                   .against = "the bare run",
                   .limit = Row::Limit::AtMostTimesSlower,
                   .times = 3,
                   .items = 1,
                   .run = clickAnotherCard,
                   .runAgainst = runOn(&nothingShown)},
                  {.what = "The start, until the main window stands",
                   .against = "a bare window",
                   .limit = Row::Limit::AtMostTimesSlower,
                   .times = 2,
                   .items = 1,
                   .run = [] { StartProcess(kStartProgram); },
                   .runAgainst = [] { StartProcess(kStartBareWindow); }}});
}

}  // namespace
}  // namespace holdem::bench

int main(int argc, char** argv) { return holdem::bench::Main(argc, argv); }
