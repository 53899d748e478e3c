// The main window: the table with its seats and card slots, the results grid, the advice, the
// menus. It draws from the state and passes what the user does on to gestures/.
// Windows and controls keep the names by which everybody knows them, also where another would say
// more (Form1, lbllbl): state, object names, tests and approved texts share them, so that one
// search finds all there is of a control.
#pragma once

#include <QLabel>
#include <QPushButton>
#include <QWidget>
#include <array>
#include <functional>

#include "state/settings.h"
#include "ui/buttons.h"
#include "ui/card_drag.h"
#include "ui/level_row.h"
#include "ui/mod_resize.h"
#include "ui/results_view.h"
#include "ui/table_view.h"

namespace holdem {

class Form1 : public QWidget {
 public:
  explicit Form1(CardDrag& drag);

  // Redraw what the Display port says has changed.
  void ShowSeats();
  void ShowSlot(Slot slot) { table_.ShowSlot(slot); }
  void ShowResults() { results_.ShowResults(); }
  void ShowMeter() { results_.ShowMeter(); }
  void ShowSettings();
  void ShowAutoRead();

  void ResizeToDesign();

  // Records where the controls stand; from now on they are scaled when the size of the window
  // changes.
  void RecordDesign();

  std::function<void()> onEnd;  // File > Exit, or the window is closed
  std::function<void()> onAbout;
  std::function<void()> onSetup;
  std::function<void()> onOtherWindow;  // the keyboard is to go to the deck window, or back

 protected:
  void closeEvent(QCloseEvent* event) override;
  void changeEvent(QEvent* event) override;
  void focusInEvent(QFocusEvent*) override {}  // looks the same: nothing to paint
  void focusOutEvent(QFocusEvent*) override {}
  void keyPressEvent(QKeyEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  void AddAutoReadIndicator();
  void AddMenus();
  QMenu& AddMenu(QMenu* menu, const char* labelName, const char* menuName, const char* text,
                 const Rect& box);
  void AddCommands();
  void AddShortcuts();
  WrappingCheckBox* AddCheckBox(const char* name, const char* text, const Rect& box);
  void SetTabOrder();
  void SayOfAutoRead();

  void ResizeControls();

  TableView table_;  // made first: some of the others lie above it
  ResultsView results_;
  LevelRow lblAdvicePre_;
  LevelRow lblAdvicePost_;
  WrappingCheckBox* chk9Pl_ = nullptr;
  WrappingCheckBox* chkFoldLevels_ = nullptr;
  QPushButton* cmdNewDeal_ = nullptr;
  QLabel* lblEyeBall_ = nullptr;
  QLabel* lblAutoOn_ = nullptr;
  QLabel* lblManual_ = nullptr;
  QLabel* lblMessage_ = nullptr;
  std::array<QAction*, kSpeedChoices.size()> mnuSpeedChoice_{};

  modResize::Design design_;
};

}  // namespace holdem
