#include "ui/form1.h"

#include <QActionGroup>
#include <QClipboard>
#include <QCloseEvent>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QSignalBlocker>
#include <utility>

#include "design/main_layout.h"
#include "gestures/card_gestures.h"
#include "gestures/help_files.h"
#include "gestures/seat_gestures.h"
#include "gestures/settings_gestures.h"
#include "platform/qt/qt_fonts.h"
#include "state/auto_read.h"
#include "state/run.h"
#include "state/screen.h"
#include "table/card_slots.h"
#include "table/history.h"
#include "table/refresh.h"
#include "ui/geometry.h"
#include "ui/labels.h"
#include "ui/menus.h"
#include "ui/radio_menu.h"
#include "ui/spoken.h"
#include "ui/typed_keys.h"
#include "words/auto_read_words.h"
#include "words/explained.h"
#include "words/in_words.h"

namespace holdem {

Form1::Form1(CardDrag& drag)
    : table_(this),
      results_(this),
      lblAdvicePre_(this, "Frame1", "P&re Flop", layout::kPreFlopFrame, "lblAdvicePre",
                    &ChooseLevelPre),
      lblAdvicePost_(this, "Frame2", "Pos&t Flop", layout::kPostFlopFrame, "lblAdvicePost",
                     &ChooseLevelPost) {
  setObjectName("Form1");
  setWindowTitle("Pellucor 4");
  setFont(QtFont(kMainWindowFont));
  ResizeToDesign();
  AddAutoReadIndicator();
  AddMenus();
  AddCommands();
  AddShortcuts();
  table_.AddSlots(drag);
  setAttribute(Qt::WA_AlwaysShowToolTips);  // also while the deck window has the keyboard
  setFocusPolicy(Qt::ClickFocus);
  SetTabOrder();
  setFocus();  // no control has the keyboard until it is asked for
}

void Form1::AddAutoReadIndicator() {
  new Shape(this, "Shape2", layout::kAutoFrame, Shape::Form::RoundedFrame, Qt::transparent, 1);
  lblEyeBall_ = new EyeLabel("N", this);
  SetNameAndBox(*lblEyeBall_, "lblEyeBall", layout::kEyeBall);
  lblEyeBall_->setAccessibleName("Auto Read eye");
  lblAutoOn_ = AddLabel(this, "lblAutoOn", "Auto Read", layout::kAutoOn, Qt::AlignCenter, kBlack);
  lblManual_ = AddLabel(this, "lblManual", "Manual Mode", layout::kManual, Qt::AlignCenter, kBlack);
  lblManual_->setWordWrap(true);
  lblMessage_ = AddLabel(this, "lblMessage", {}, layout::kMessage, Qt::AlignCenter, kWhite);
}

QMenu& Form1::AddMenu(QMenu* menu, const char* labelName, const char* menuName, const char* text,
                      const Rect& box) {
  menu->setObjectName(menuName);
  auto* const label =
      AddClickLabel(this, labelName, text, box, Qt::AlignLeft | Qt::AlignVCenter, kBlack);
  connect(label, &ClickLabel::clicked, menu, [menu, label] { PopUp(*menu, *label); });
  return *menu;
}

void Form1::AddMenus() {
  QMenu& mnuFile = AddMenu(new QMenu(this), "lblMnuFile", "mnuFile", "&File", layout::kMenuFile);
  AddItem(mnuFile, "mnuExit", "E&xit", [this] { onEnd(); })->setShortcut(Qt::CTRL | Qt::Key_Q);

  QMenu& mnuSpeed =
      AddMenu(new RadioMenu(this), "lblMnuSpeed", "mnuSpeed", "&Speed", layout::kMenuSpeed);
  auto* const speeds = new QActionGroup(&mnuSpeed);
  for (int speed = 0; speed < static_cast<int>(kSpeedChoices.size()); ++speed) {
    QAction* const item =
        AddItem(mnuSpeed, Indexed("mnuSpeedChoice", speed),
                QString("&") + kSpeedChoices[speed].text, [speed] { ChooseSpeed(speed); });
    item->setCheckable(true);
    speeds->addAction(item);
    mnuSpeedChoice_[speed] = item;
  }

  QMenu& mnuHelp = AddMenu(new QMenu(this), "lblMnuHelp", "mnuHelp", "&Help", layout::kMenuHelp);
  QAction* const instructions =
      AddItem(mnuHelp, "mnuInstruct", "&Instructions", [] { OpenHelpFile(kInstructions); });
  instructions->setShortcut(Qt::Key_F1);
  AddItem(mnuHelp, "mnuReadMe", "&readme.txt", [] { OpenHelpFile(kReadMe); });
  AddItem(mnuHelp, "mnuAbout", "&About", [this] { onAbout(); });
  addAction(instructions);  // so that its shortcut works in the whole window
}

WrappingCheckBox* Form1::AddCheckBox(const char* name, const char* text, const Rect& box) {
  auto* const check = new WrappingCheckBox(text, this);
  SetNameAndBox(*check, name, box);
  check->setFocusPolicy(Qt::TabFocus);
  return check;
}

void Form1::AddCommands() {
  cmdNewDeal_ = new CommandButton(this, "cmdNewDeal", "&New Hand", layout::kNewDeal);
  connect(cmdNewDeal_, &QPushButton::clicked, this, [this] {
    NewHand();
    if (focusWidget() != this) table_.FocusFirstSlot();  // where the next card typed will go
  });
  auto* const cmdHelp = new CommandButton(this, "cmdHelp", "Hel&p", layout::kHelp);
  connect(cmdHelp, &QPushButton::clicked, this, [] { OpenHelpFile(kInstructions); });

  ClickLabel* const setup =
      AddClickLabel(this, "lblSetup", "Set&up", layout::kSetup, Qt::AlignCenter, kWhite);
  setup->Raise();
  setup->setToolTip("Table Setup Wizard");
  connect(setup, &ClickLabel::clicked, this, [this] { onSetup(); });

  chkFoldLevels_ =
      AddCheckBox("chkFoldLevels", "&Watch Fold Depth (takes extra time)", layout::kFoldLevels);
  chkFoldLevels_->setToolTip(kAboutFoldDepth);
  connect(chkFoldLevels_, &QCheckBox::toggled, this, &SetWatchFoldDepth);
  chk9Pl_ = AddCheckBox("chk9Pl", "&9 Plr Table", layout::kNinePlayers);
  connect(chk9Pl_, &QCheckBox::toggled, this, &ChooseNineSeats);
}

// Adds the keys that do the same whichever control of this window or of the deck window has the
// keyboard.
void Form1::AddShortcuts() {
  const auto add = [this](const QList<QKeySequence>& keys, auto act) {
    auto* const command = new QAction(this);
    command->setShortcuts(keys);
    connect(command, &QAction::triggered, this, act);
    addAction(command);
  };
  add({Qt::Key_F6}, [this] { onOtherWindow(); });
  add({Qt::CTRL | Qt::Key_Z}, [] { TakeBackGesture(); });
  add({Qt::CTRL | Qt::SHIFT | Qt::Key_Z, Qt::CTRL | Qt::Key_Y}, [] { RepeatGesture(); });
  add({Qt::CTRL | Qt::Key_C},
      [] { QGuiApplication::clipboard()->setText(QtText(TableInWords())); });
  for (int seat = 1; seat <= kSeats; ++seat) {
    add({Qt::CTRL | static_cast<Qt::Key>(Qt::Key_0 + seat % kSeats)}, [seat] { PressSeat(seat); });
  }
}

// Tab goes from the menus over the cards, the results and the seats to the settings.
void Form1::SetTabOrder() {
  QStringList order = {"lblMnuFile", "lblMnuSpeed", "lblMnuHelp", "cmdNewDeal", "lblSetup"};
  for (const Slot slot : kSlotOrder) order += Indexed("picHand", slot);
  order += {"lblCurrentScore", Indexed("lblMe", kWinSplitRow), "lblAdvice"};
  for (int seat = 1; seat <= kSeats; ++seat) order += Indexed("picPlayer", seat);
  order += {"chkFoldLevels", "chk9Pl", "cmdHelp"};
  for (const char* const row : {"lblAdvicePre", "lblAdvicePost"}) {
    for (const int level : {Tight, Avg, Loose}) order += Indexed(row, level);
  }
  QWidget* before = this;
  for (const QString& name : order) {
    auto* const control = findChild<QWidget*>(name);
    setTabOrder(std::exchange(before, control), control);
  }
}

void Form1::ShowSeats() {
  table_.ShowSeats();
  const QSignalBlocker blocker(chk9Pl_);
  chk9Pl_->setChecked(seats.IsOfNine());
}

void Form1::ShowSettings() {
  ShowLevelPre(settings.LevelPre);
  ShowLevelPost(settings.LevelPost);
  if (settings.Speed != kNoSpeed) mnuSpeedChoice_[settings.Speed]->setChecked(true);
  const QSignalBlocker blocker(chkFoldLevels_);
  chkFoldLevels_->setChecked(seats.WatchFoldDepth);
}

// Says aloud what ShowAutoRead is about to change: that a table has been found or lost, and a new
// message.
void Form1::SayOfAutoRead() {
  if (!isVisible()) return;
  const bool following = autoRead.Following();
  const std::string& message = autoRead.lblMessage;
  if (following == lblAutoOn_->isHidden()) {
    sayAloud(*this, following ? "Auto Read: table found" : "Auto Read: table lost");
  }
  if (!message.empty() && QtText(message) != lblMessage_->text()) sayAloud(*this, message);
}

void Form1::ShowAutoRead() {
  const bool following = autoRead.Following();
  SayOfAutoRead();
  lblEyeBall_->setVisible(following);
  lblAutoOn_->setVisible(following);
  lblManual_->setVisible(!following);
  SetText(*lblMessage_, autoRead.lblMessage);
  chk9Pl_->setEnabled(!following);
  cmdNewDeal_->setEnabled(!following);
  for (QLabel* const label : {lblEyeBall_, lblAutoOn_, lblManual_}) {
    SetTip(*label, AutoReadInWords());
  }
  cmdNewDeal_->setToolTip(QtText(ExplainNewHand()));
}

void Form1::ResizeToDesign() { resize(PixelSize(layout::kClient)); }

void Form1::RecordDesign() {
  design_.RecordDesign(*this);
  ResizeControls();
}

void Form1::ResizeControls() {
  design_.ResizeControls(*this);
  LetTextsOverhang(*this);
}

void Form1::closeEvent(QCloseEvent* event) {
  event->accept();
  if (!run.Ending) onEnd();
}

void Form1::changeEvent(QEvent* event) {
  if (event->type() == QEvent::ActivationChange && isActiveWindow()) screenState.MainShown = true;
  QWidget::changeEvent(event);
}

void Form1::keyPressEvent(QKeyEvent* event) {
  if (!EnterTypedCard(*event, focusWidget())) QWidget::keyPressEvent(event);
}

void Form1::resizeEvent(QResizeEvent*) {
  if (!design_.IsRecorded()) return;
  ResizeControls();
  ShowMeter();
  RefreshTable(true);
  HideMarker();
}

}  // namespace holdem
