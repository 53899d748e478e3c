// The program from its start to its end: the windows, the timers, and the order in which they come
// up.
#pragma once

#include <QObject>
#include <QTimer>

#include "ui/card_drag.h"
#include "ui/dialogs.h"
#include "ui/form1.h"
#include "ui/frm_deck.h"
#include "ui/window_display.h"

namespace holdem {

// Sets ports.display; the other ports must be set before.
class Program : public QObject {
 public:
  Program();
  ~Program() override;

  // The start-up sequence: everything up to the About window, after which the main window loads.
  void Start();

  // Loads and shows the main window and starts the timers.
  void LoadMainWindow();

  // Ends the program at once, also in the middle of a run.
  void End();

 protected:
  bool eventFilter(QObject* object, QEvent* event) override;

 private:
  void AfterAbout();
  void ArrangeOnceFramed(int tries, QSize askedMain, QSize askedDeck);
  void ShowAbout();
  void SetUpTable();

  Dialogs dialogs_{[this] { End(); }};
  CardDrag drag_;
  Form1 form1_;
  frmDeck deckWindow_;
  WindowDisplay display_;
  QTimer Timer1_{this};
  QTimer tmrAutoWatcher_{this};
  QTimer tmrCheckRefresh_{this};
};

// The screen's size in its own pixels, which the windows need before they are made.
void MeasureScreen();

}  // namespace holdem
