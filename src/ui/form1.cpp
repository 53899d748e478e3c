#include "ui/form1.h"

#include <QCloseEvent>
#include <QKeyEvent>
#include <QPushButton>
#include <QSignalBlocker>
#include <utility>
#include <vector>

#include "design/in_words.h"
#include "design/main_layout.h"
#include "gestures/card_gestures.h"
#include "gestures/help_files.h"
#include "gestures/seat_gestures.h"
#include "gestures/settings_gestures.h"
#include "painting/advice_meter.h"
#include "painting/card_face.h"
#include "painting/row_colors.h"
#include "painting/seat_picture.h"
#include "platform/qt/qt_canvas.h"
#include "platform/qt/qt_fonts.h"
#include "state/advice_values.h"
#include "state/auto_read.h"
#include "state/results.h"
#include "state/run.h"
#include "state/settings.h"
#include "state/slots.h"
#include "table/refresh.h"
#include "ui/geometry.h"

namespace holdem {
namespace {

constexpr std::array<const char*, 3> kLevelCaptions = {"Tight", "Avg", "Loose"};
constexpr std::array<const char*, 3> kLevelTips = {"Play few hands, only the strong ones",
                                                   "Play the hands worth playing",
                                                   "Play many hands, also the weaker ones"};
constexpr std::array<Color, 3> kLevelColors = {{{255, 192, 192}, {255, 255, 192}, {192, 255, 192}}};
constexpr Color kBlindGreen{0, 192, 0};
// Legible on the table, on its rim and beside it.
constexpr const char* kBlindStyle =
    "background: black; border: 1px solid white; border-radius: 3px;";
QString Indexed(const char* name, int index) {
  return QString::fromLatin1(name) + QString::number(index);
}

QString QtText(const std::string& text) { return QString::fromStdString(text); }

void SetColors(QWidget& control, Color text, const QColor& background) {
  QPalette palette = control.palette();
  palette.setColor(QPalette::WindowText, QtColor(text));
  palette.setColor(QPalette::Window, background);
  control.setPalette(palette);
  control.setAutoFillBackground(background.isValid());
}

// A text too large for its box overhangs it rather than being cut.
template <typename Label>
void LetTextOverhang(Label& label) {
  const QSize text = label.fontMetrics().size(Qt::TextShowMnemonic, label.text());
  const QSize missing = (text - label.size()).expandedTo({0, 0});
  const int left = label.alignment() & Qt::AlignHCenter ? missing.width() / 2 : 0;
  const int top = missing.height() / 2;
  label.setGeometry(
      label.geometry().adjusted(-left, -top, missing.width() - left, missing.height() - top));
}

QLabel& SetUpLabel(QLabel& label, const QString& name, const Rect& box, Qt::Alignment alignment,
                   Color text, const QColor& background = {}) {
  label.setObjectName(name);
  label.setAlignment(alignment);
  label.setTextFormat(Qt::PlainText);
  SetColors(label, text, background);
  label.setGeometry(PixelRect(box));
  return label;
}

QLabel* AddLabel(QWidget* parent, const QString& name, const QString& text, const Rect& box,
                 Qt::Alignment alignment, Color color, const QColor& background = {}) {
  return &SetUpLabel(*new QLabel(text, parent), name, box, alignment, color, background);
}

ClickLabel* AddClickLabel(QWidget* parent, const QString& name, const char* text, const Rect& box,
                          Qt::Alignment alignment, Color color, const QColor& background = {}) {
  auto* const label = new ClickLabel(parent, name, text, alignment);
  SetColors(*label, color, background);
  label->setGeometry(PixelRect(box));
  return label;
}

void SetBold(QWidget& control, double points) {
  control.setFont(QtFont({FontFamily::MsSansSerif, points, true}));
}

// At the mouse, or below the control when it was opened by the keyboard.
void PopUp(QMenu& menu, const QWidget& control) {
  menu.popup(control.underMouse() ? QCursor::pos()
                                  : control.mapToGlobal(control.rect().bottomLeft()));
}

QAction* AddItem(QMenu& menu, const QString& name, const QString& caption,
                 std::function<void()> action) {
  QAction* const item = menu.addAction(caption);
  item->setObjectName(name);
  QObject::connect(item, &QAction::triggered, item, [action = std::move(action)] { action(); });
  return item;
}

void Prepare(QAction& action, const MenuItem& item) {
  action.setVisible(item.visible);
  action.setEnabled(item.enabled);
  action.setCheckable(item.checked);
  action.setChecked(item.checked);
  if (item.caption.empty()) return;
  const QString caption = QtText(item.caption);
  const qsizetype street = caption.indexOf("Pre-Flop");
  action.setText(QString(caption).insert(std::max<qsizetype>(street, 0), '&'));
}

void FrameLevel(const std::array<ClickLabel*, 3>& labels, int level) {
  for (int i = 0; i < 3; ++i) {
    labels[i]->setChecked(i == level);
    if (i == level) labels[i]->raise();  // they overlap a little
  }
}

void SetText(QLabel& label, const std::string& text) {
  const QString shown = QtText(text);
  if (label.text() == shown) return;
  label.setText(shown);
  AnnounceChange(label);
}

}  // namespace

Form1::Form1(CardDrag& drag) {
  setObjectName("Form1");
  setWindowTitle("Pellucor 4");
  setFont(QtFont(kMainWindowFont));
  ResizeToDesign();
  AddTable();
  AddAutoReadIndicator();
  AddMenus();
  AddCommands();
  AddResults();
  AddSeatMenu();
  AddSlots(drag);
  SetTabOrder();
  setAttribute(Qt::WA_AlwaysShowToolTips);  // also while the deck window has the keyboard
  setFocusPolicy(Qt::ClickFocus);
  setFocus();  // no control has the keyboard until it is asked for
}

void Form1::AddTable() {
  auto* const table =
      new Shape(this, "Shape1", Shape::Form::Oval, QtColor(kTableGreen), /*outline=*/8);
  table->setGeometry(PixelRect(layout::kTable));
  for (int seat = 1; seat <= kSeats; ++seat) {
    auto* const spot =
        new Shape(this, Indexed("shpDlrButton", seat), Shape::Form::Circle, Qt::white, 1);
    spot->setGeometry(PixelRect(layout::kButtonSpots[seat]));
    shpDlrButton_[seat] = spot;

    auto* const picture = new PictureBox(this, Indexed("picPlayer", seat),
                                         [seat](Canvas& canvas) { DrawSeat(canvas, seat); });
    picture->setGeometry(PixelRect(layout::kSeatPlaces[seat]));
    picture->onPress = [this, seat](const QMouseEvent& event) {
      if (event.button() == Qt::RightButton) {
        ShowSeatMenu(seat);
      } else {
        PressSeat(seat);
      }
    };
    picture->onDoubleClick = [seat](const QMouseEvent&) { DoubleClickSeat(seat); };
    picture->inWords = [seat] { return SeatInWords(seat); };
    picture->onActivate = [seat] { PressSeat(seat); };
    picture->onDelete = [seat] { DoubleClickSeat(seat); };
    picture->onMenuKey = [this, seat] { ShowSeatMenu(seat); };
    picture->setFocusPolicy(Qt::TabFocus);
    picture->tip = [seat] { return SeatTip(seat); };
    picture->setAccessibleDescription(
        "Space: folds, or is in again. Delete: empty. Menu key: more.");
    picPlayer_[seat] = picture;
  }
  const Rect mark{0, 0, layout::kBlindMark.width, layout::kBlindMark.height};
  lblSB_ = AddLabel(this, "lblSB", "SB", mark, Qt::AlignCenter, kBlindGreen);
  lblBB_ = AddLabel(this, "lblBB", "BB", mark, Qt::AlignCenter, kBlindGreen);
  lblSB_->setToolTip("Small blind");
  lblBB_->setToolTip("Big blind");
  for (QLabel* const blind : {lblSB_, lblBB_}) blind->setStyleSheet(kBlindStyle);
  lblCurrentScore_ =
      AddLabel(this, "lblCurrentScore", {}, layout::kCurrentScore, Qt::AlignCenter, kWhite);
  SetBold(*lblCurrentScore_, 8);
  lblMessage_ = AddLabel(this, "lblMessage", {}, layout::kMessage, Qt::AlignCenter, kWhite);
}

void Form1::AddSlots(CardDrag& drag) {
  for (const int slot : kSlotOrder) {
    auto* const box =
        new CardBox(this, Indexed("picHand", slot), {.slot = slot}, [slot](Canvas& canvas) {
          canvas.Clear();
          if (slots.IsFilled(slot)) {
            DrawCardFace(canvas, slots.picHand[slot], kWhite);
          } else if (slot == slots.MarkedSlot) {
            DrawSlotText(canvas, "?");
          }
        });
    box->setGeometry(PixelRect(layout::kSlots[slot]));
    box->SetBackground(slot >= kBoardSlots[0] ? QtColor(kTableGreen)
                                              : palette().color(QPalette::Window));
    box->onPress = [this, box, &drag](QMouseEvent& event) { PressSlot(*box, event, drag); };
    box->onDoubleClick = [this, box, &drag](QMouseEvent& event) {
      if (slots.IsFilled(box->Place.slot)) {
        PressSlot(*box, event, drag);
      } else {
        DoubleClickSlot(box->Place.slot);
      }
    };
    box->inWords = [slot] { return SlotInWords(slot); };
    box->onActivate = [slot] { DoubleClickSlot(slot); };
    box->onDelete = [slot] { RightPressSlot(slot); };
    box->setFocusPolicy(Qt::TabFocus);
    box->tip = [slot] { return SlotTip(slot); };
    box->setAccessibleDescription(
        "Rank and suit letters: that card. Space: a random card. Delete: back to the deck.");
    picHand_[slot] = box;
    ShowSlot(slot);
  }
}

void Form1::PressSlot(const CardBox& box, QMouseEvent& event, CardDrag& drag) {
  const int slot = box.Place.slot;
  if (!slots.IsFilled(slot)) return;
  if (event.button() == Qt::RightButton) RightPressSlot(slot);
  if (event.button() == Qt::LeftButton) drag.Begin(box, slots.picHand[slot], event);
}

void Form1::AddMenus() {
  const auto addMenu = [this](const char* labelName, const char* menuName, const char* caption,
                              const Rect& box) {
    auto* const menu = new QMenu(this);
    menu->setObjectName(menuName);
    auto* const label =
        AddClickLabel(this, labelName, caption, box, Qt::AlignLeft | Qt::AlignVCenter, kBlack);
    connect(label, &ClickLabel::clicked, menu, [menu, label] { PopUp(*menu, *label); });
    return menu;
  };
  QMenu& mnuFile = *addMenu("lblMnuFile", "mnuFile", "&File", layout::kMenuFile);
  QAction* const exit = AddItem(mnuFile, "mnuExit", "E&xit", [this] { onEnd(); });
  exit->setShortcut(Qt::CTRL | Qt::Key_Q);

  QMenu& mnuSpeed = *addMenu("lblMnuSpeed", "mnuSpeed", "&Speed", layout::kMenuSpeed);
  for (int speed = 0; speed < static_cast<int>(kSpeedChoices.size()); ++speed) {
    QAction* const item = AddItem(mnuSpeed, Indexed("mnuSpeedChoice", speed),
                                  QString("&") + kSpeedChoices[speed].caption, [this, speed] {
                                    ChooseSpeed(speed);
                                    ShowSettings();
                                  });
    item->setCheckable(true);
    mnuSpeedChoice_[speed] = item;
  }

  QMenu& mnuHelp = *addMenu("lblMnuHelp", "mnuHelp", "&Help", layout::kMenuHelp);
  QAction* const instructions =
      AddItem(mnuHelp, "mnuInstruct", "&Instructions", [] { OpenHelpFile(kInstructions); });
  instructions->setShortcut(Qt::Key_F1);
  AddItem(mnuHelp, "mnuReadMe", "&readme.txt", [] { OpenHelpFile(kReadMe); });
  AddItem(mnuHelp, "mnuAbout", "&About", [this] { onAbout(); });
  addActions({exit, instructions});  // their shortcuts are the window's
}

void Form1::AddCommands() {
  const auto addButton = [this](const char* name, const char* caption, const Rect& box) {
    auto* const button = new CommandButton(this, name, caption);
    button->setGeometry(PixelRect(box));
    return button;
  };
  cmdNewDeal_ = addButton("cmdNewDeal", "&New Hand", layout::kNewDeal);
  connect(cmdNewDeal_, &QPushButton::clicked, this, [] { NewHand(); });
  QPushButton* const cmdHelp = addButton("cmdHelp", "Hel&p", layout::kHelp);
  connect(cmdHelp, &QPushButton::clicked, this, [] { OpenHelpFile(kInstructions); });

  ClickLabel* const setup =
      AddClickLabel(this, "lblSetup", "Set&up", layout::kSetup, Qt::AlignCenter, kWhite);
  setup->setToolTip("Table Setup Wizard");
  connect(setup, &ClickLabel::clicked, this, [this] { onSetup(); });

  const auto addCheckBox = [this](const char* name, const char* caption, const Rect& box) {
    auto* const check = new WrappingCheckBox(caption, this);
    check->setObjectName(name);
    check->setFocusPolicy(Qt::TabFocus);
    check->setGeometry(PixelRect(box));
    return check;
  };
  chkFoldLevels_ =
      addCheckBox("chkFoldLevels", "&Watch Fold Depth (takes extra time)", layout::kFoldLevels);
  connect(chkFoldLevels_, &QCheckBox::toggled, this, &SetWatchFoldDepth);
  chk9Pl_ = addCheckBox("chk9Pl", "&9 Plr Table", layout::kNinePlayers);
  connect(chk9Pl_, &QCheckBox::toggled, this, &SetNineSeats);

  const auto addLevels = [this](const char* frameName, const char* caption, const Rect& box,
                                const char* labelName, void (*choose)(int)) {
    auto* const frame = new CaptionFrame(caption, this);
    frame->setObjectName(frameName);
    frame->setGeometry(PixelRect(box));
    std::array<ClickLabel*, 3> labels;
    for (int level = 0; level < 3; ++level) {
      labels[level] = AddClickLabel(frame, Indexed(labelName, level), kLevelCaptions[level],
                                    layout::kLevels[level], Qt::AlignCenter, kBlack,
                                    QtColor(kLevelColors[level]));
      labels[level]->setCheckable(true);
      labels[level]->setToolTip(kLevelTips[level]);
      connect(labels[level], &ClickLabel::clicked, this, [choose, level] { choose(level); });
    }
    return labels;
  };
  lblAdvicePre_ =
      addLevels("Frame1", "P&re Flop", layout::kPreFlopFrame, "lblAdvicePre", &ChooseLevelPre);
  lblAdvicePost_ =
      addLevels("Frame2", "Pos&t Flop", layout::kPostFlopFrame, "lblAdvicePost", &ChooseLevelPost);
}

void Form1::AddAutoReadIndicator() {
  auto* const frame = new Shape(this, "Shape2", Shape::Form::RoundedFrame, Qt::transparent, 1);
  frame->setGeometry(PixelRect(layout::kAutoFrame));
  lblEyeBall_ = new EyeLabel("N", this);
  lblEyeBall_->setObjectName("lblEyeBall");
  lblEyeBall_->setGeometry(PixelRect(layout::kEyeBall));
  lblEyeBall_->setToolTip("Reading the poker client's table");
  lblEyeBall_->setAccessibleName("Auto Read eye");
  lblAutoOn_ = AddLabel(this, "lblAutoOn", "Auto Read", layout::kAutoOn, Qt::AlignCenter, kBlack);
  lblManual_ = AddLabel(this, "lblManual", "Manual Mode", layout::kManual, Qt::AlignCenter, kBlack);
  lblManual_->setWordWrap(true);
}

void Form1::AddResults() {
  for (const layout::Column& column : layout::kColumns) {
    QLabel* const header = AddLabel(this, Indexed("lblTop", column.headerIndex), column.header,
                                    HeaderPlace(column), Qt::AlignCenter, kBlack);
    header->setWordWrap(true);
  }
  for (int row = 0; row < static_cast<int>(lbllbl.size()); ++row) {
    const auto addCell = [&](const char* name, int column, Color color, Color background) {
      auto* const cell = new ResultCell(this);
      SetUpLabel(*cell, Indexed(name, row), RowPlace(layout::kColumns[column], row),
                 Qt::AlignCenter, color, QtColor(background));
      if (row == kWinSplitRow) SetBold(*cell, 8);
      return cell;
    };
    lblMe_[row] = addCell("lblMe", 0, kBlack, kWhite);
    lblMe_[row]->inWords = [row] { return CellInWords("Me", row, results.lblMe[row]); };
    addCell("lbllbl", 1, kRowTitleText, kRowColors[row])->setText(lbllbl[row]);
    lblThem_[row] = addCell("lblThem", 2, kBlack, kWhite);
    lblThem_[row]->inWords = [row] {
      return CellInWords("Another player", row, results.lblThem[row]);
    };
  }
  lblAdvice_ = AddLabel(this, "lblAdvice", {}, layout::kAdvice, Qt::AlignCenter, kWhite,
                        QtColor(kTableGreen));
  SetBold(*lblAdvice_, 12);
  picHandMeter_ = new PictureBox(this, "picHandMeter", &DrawAdviceMeter);
  picHandMeter_->setGeometry(PixelRect(layout::kHandMeter));
  picHandMeter_->inWords = &MeterInWords;
  picHandMeter_->tip = &MeterInWords;
}

void Form1::AddSeatMenu() {
  mnuPlayer_.setObjectName("mnuPlayer");
  mnuIn_ = AddItem(mnuPlayer_, "mnuIn", "&In", &ChooseIn);
  constexpr std::array<const char*, FoldedRiver + 1> kFoldCaptions = {
      "", "", "&Folded", "Folded &Flop", "Folded &Turn", "Folded &River"};
  for (int folded = FoldedPreFlop; folded <= FoldedRiver; ++folded) {
    mnuFold_[folded] = AddItem(mnuPlayer_, Indexed("mnuFold", folded), kFoldCaptions[folded],
                               [folded] { ChooseFold(static_cast<SeatState>(folded)); });
  }
  mnuEmpty_ = AddItem(mnuPlayer_, "mnuEmpty", "&Empty Seat", &ChooseEmpty);
  mnuMe_ = AddItem(mnuPlayer_, "mnuMe", "&Me", &ChooseMe);
  mnuDealer_ = AddItem(mnuPlayer_, "mnuDealer", "&Dealer", &ChooseDealer);
}

void Form1::ShowSeatMenu(int seat) {
  const SeatMenu menu = OpenSeatMenu(seat);
  Prepare(*mnuIn_, menu.mnuIn);
  for (int folded = FoldedPreFlop; folded <= FoldedRiver; ++folded) {
    Prepare(*mnuFold_[folded], menu.mnuFold[folded]);
  }
  Prepare(*mnuEmpty_, menu.mnuEmpty);
  Prepare(*mnuMe_, menu.mnuMe);
  Prepare(*mnuDealer_, menu.mnuDealer);
  PopUp(mnuPlayer_, *picPlayer_[seat]);
}

// From the menus over the cards and the seats to the settings.
void Form1::SetTabOrder() {
  std::vector<QWidget*> order;
  for (const char* const name :
       {"lblMnuFile", "lblMnuSpeed", "lblMnuHelp", "cmdNewDeal", "lblSetup"}) {
    order.push_back(findChild<QWidget*>(name));
  }
  for (const int slot : kSlotOrder) order.push_back(picHand_[slot]);
  order.insert(order.end(), picPlayer_.begin() + 1, picPlayer_.end());
  order.insert(order.end(), {chkFoldLevels_, chk9Pl_, findChild<QWidget*>("cmdHelp")});
  order.insert(order.end(), lblAdvicePre_.begin(), lblAdvicePre_.end());
  order.insert(order.end(), lblAdvicePost_.begin(), lblAdvicePost_.end());
  for (std::size_t i = 1; i < order.size(); ++i) setTabOrder(order[i - 1], order[i]);
}

void Form1::PlaceBlindMark(QLabel& mark, int seat) {
  mark.setVisible(seat != 0);
  if (seat == 0) return;
  const int offset = qRound(layout::kBlindMarkOffset / kTwipsPerPixel);
  mark.move(shpDlrButton_[seat]->pos() + QPoint(offset, offset));
}

void Form1::ShowSeats() {
  picPlayer_[5]->move(qRound(frameGeometry().width() * layout::SeatFiveLeft(seats.SeatCount)),
                      picPlayer_[5]->y());
  picPlayer_[6]->setVisible(seats.SeatCount != 9);
  for (int seat = 1; seat <= kSeats; ++seat) {
    picPlayer_[seat]->update();
    AnnounceChange(*picPlayer_[seat]);
  }

  const ButtonMarks marks = ShowDealerButton(seats.DealerSeat);
  for (int seat = 1; seat <= kSeats; ++seat) {
    shpDlrButton_[seat]->setVisible(seat == marks.dealer);
  }
  PlaceBlindMark(*lblSB_, marks.smallBlind);
  PlaceBlindMark(*lblBB_, marks.bigBlind);

  const auto holes = layout::PlaceHoleSlots(TwipRect(picPlayer_[seats.MySeat]->geometry()));
  for (const int slot : kHoleSlots) picHand_[slot]->setGeometry(PixelRect(holes[slot]));

  const QSignalBlocker blocker(chk9Pl_);
  chk9Pl_->setChecked(seats.SeatCount == 9);
}

void Form1::ShowSlot(int slot) {
  picHand_[slot]->SetBorder(!slots.IsFilled(slot));
  AnnounceChange(*picHand_[slot]);
}

void Form1::ShowResults() {
  for (std::size_t row = 0; row < lblMe_.size(); ++row) {
    SetText(*lblMe_[row], results.lblMe[row]);
    SetText(*lblThem_[row], results.lblThem[row]);
  }
  SetText(*lblCurrentScore_, results.lblCurrentScore);
  SetText(*lblAdvice_, results.lblAdvice);
  const Color text = results.lblAdviceLit ? kWhite : kTableGreen;  // green on green: hidden
  if (lblAdvice_->palette().color(QPalette::WindowText) != QtColor(text)) {
    SetColors(*lblAdvice_, text, QtColor(kTableGreen));
  }
}

void Form1::ShowMeter() {
  picHandMeter_->update();
  AnnounceChange(*picHandMeter_);
}

void Form1::ShowSettings() {
  FrameLevel(lblAdvicePre_, settings.LevelPre);
  FrameLevel(lblAdvicePost_, settings.LevelPost);
  for (int speed = 0; speed < static_cast<int>(mnuSpeedChoice_.size()); ++speed) {
    mnuSpeedChoice_[speed]->setChecked(speed == settings.Speed);
  }
  const QSignalBlocker blocker(chkFoldLevels_);
  chkFoldLevels_->setChecked(seats.WatchFoldDepth);
}

void Form1::ShowAutoRead() {
  const bool following = autoRead.Following();
  lblEyeBall_->setVisible(following);
  lblAutoOn_->setVisible(following);
  lblManual_->setVisible(!following);
  SetText(*lblMessage_, autoRead.lblMessage);
  chk9Pl_->setEnabled(!following);
  cmdNewDeal_->setEnabled(!following);
}

void Form1::ResizeToDesign() {
  resize(PixelRect({0, 0, layout::kClient.width, layout::kClient.height}).size());
}

void Form1::RecordDesign() {
  design_.RecordDesign(*this);
  ResizeControls();
}

void Form1::ResizeControls() {
  design_.ResizeControls(*this);
  for (QWidget* const child : findChildren<QWidget*>()) {
    if (child->window() != this) continue;
    if (auto* const label = dynamic_cast<QLabel*>(child); label != nullptr && !label->wordWrap()) {
      LetTextOverhang(*label);
    } else if (auto* const clickLabel = dynamic_cast<ClickLabel*>(child)) {
      LetTextOverhang(*clickLabel);
    }
  }
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
  const auto* const slot = dynamic_cast<CardBox*>(focusWidget());
  const bool typed = event->text().size() == 1 && !(event->modifiers() & ~Qt::ShiftModifier);
  if (slot == nullptr || !typed) return QWidget::keyPressEvent(event);
  if (std::exchange(typingSlot_, slot->Place.slot) != slot->Place.slot) typing_ = {};
  const Card card = typing_.Type(event->text().front().toLatin1());
  if (card != kNoCard) DropDeckCard(card, slot->Place.slot);
}

void Form1::resizeEvent(QResizeEvent*) {
  if (!design_.IsRecorded()) return;
  ResizeControls();
  ShowMeter();
  RefreshTable(true);
  slots.MarkedSlot = kNoSlot;
  for (const int slot : kSlotOrder) ShowSlot(slot);
}

}  // namespace holdem
