// The program from its start to its end: the windows, the timers, and the order in which they come
// up.
#pragma once

#include <QObject>

#include "ui/card_drag.h"
#include "ui/dialogs.h"
#include "ui/form1.h"
#include "ui/frm_deck.h"
#include "ui/keyboard.h"
#include "ui/menus.h"
#include "ui/window_display.h"

namespace holdem {

// The constructor sets ports.display; all other ports must be set before Start.
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

  // The first four filter the events of the whole application, as this class does itself: what they
  // watch may go to any control of any window. Qt asks the filter that was installed last first,
  // and the first to take an event ends the round. So they are asked in this order: this class, for
  // a request to quit; the drag, for the mouse and Escape while a card is in the air; MenuPresses;
  // Keyboard; and Dialogs, which keeps what is left from all but the newest dialog. Keyboard comes
  // before Dialogs so that Ctrl+Q always ends the program; for all other keys it asks IsHeldBack.
  Dialogs dialogs_;
  Keyboard keyboard_{[this] { End(); }};
  MenuPresses menuPresses_;
  CardDrag drag_;
  Form1 form1_;
  frmDeck deckWindow_;
  WindowDisplay display_;
};

// The screen's size in its own pixels, which the windows need before they are made.
void MeasureScreen();

}  // namespace holdem
