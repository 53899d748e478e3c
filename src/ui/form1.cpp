#include "ui/form1.h"

#include <QCloseEvent>
#include <QGroupBox>
#include <QPushButton>
#include <QSignalBlocker>

#include "painting/advice_meter.h"
#include "painting/card_face.h"
#include "painting/seat_picture.h"
#include "platform/qt/qt_canvas.h"
#include "platform/qt/qt_fonts.h"
#include "state/advice_values.h"
#include "state/auto_read.h"
#include "state/results.h"
#include "state/run.h"
#include "state/settings.h"
#include "state/slots.h"
#include "table/help_files.h"
#include "table/refresh.h"
#include "table/seat_gestures.h"
#include "table/settings_gestures.h"
#include "ui/geometry.h"
#include "ui/main_layout.h"

namespace holdem {
namespace {

constexpr std::array<const char*, 3> kLevelCaptions = {"Tight", "Avg", "Loose"};
constexpr std::array<Color, 3> kLevelColors = {{{255, 192, 192}, {255, 255, 192}, {192, 255, 192}}};
constexpr Color kBlindGreen{0, 192, 0};
// Legible on the table, on its rim and beside it.
constexpr const char* kBlindStyle =
    "background: black; border: 1px solid white; border-radius: 3px;";
// The caption stands on the frame's line, so that the labels have the whole inside.
constexpr const char* kLevelFrameStyle =
    "QGroupBox { border: 1px solid #a0a0a0; border-radius: 3px; margin-top: 7px; }"
    "QGroupBox::title { subcontrol-origin: margin; left: 6px; padding: 0 3px; }";

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

// Places the label; a text too long for its box overhangs it rather than being cut.
void PlaceLabel(QLabel& label, const Rect& box) {
  QRect place = PixelRect(box);
  const int missing = label.wordWrap() ? 0 : label.sizeHint().width() - place.width();
  if (missing > 0) {
    if (label.alignment() & Qt::AlignHCenter) place.translate(-missing / 2, 0);
    place.setWidth(place.width() + missing);
  }
  label.setGeometry(place);
}

void SetUpLabel(QLabel& label, const Rect& box, Qt::Alignment alignment, Color text,
                const QColor& background = {}) {
  label.setAlignment(alignment);
  label.setTextFormat(Qt::PlainText);
  SetColors(label, text, background);
  PlaceLabel(label, box);
}

QLabel* AddLabel(QWidget* parent, const QString& name, const QString& text, const Rect& box,
                 Qt::Alignment alignment, Color color, const QColor& background = {}) {
  auto* const label = new QLabel(text, parent);
  label->setObjectName(name);
  SetUpLabel(*label, box, alignment, color, background);
  return label;
}

void SetBold(QWidget& control, double points) {
  control.setFont(QtFont({FontFamily::MsSansSerif, points, true}));
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
  if (!item.caption.empty()) action.setText(QtText(item.caption));
}

void FrameLevel(const std::array<ClickLabel*, 3>& labels, int level) {
  for (int i = 0; i < 3; ++i) {
    labels[i]->setFrameStyle(i == level ? QFrame::Box | QFrame::Plain : QFrame::NoFrame);
    if (i == level) labels[i]->raise();  // they overlap a little
  }
}

void SetText(QLabel& label, const std::string& text) {
  if (const QString shown = QtText(text); label.text() != shown) label.setText(shown);
}

}  // namespace

Form1::Form1(CardDrag& drag) {
  setObjectName("Form1");
  setWindowTitle("Pellucor 4");
  setFont(QtFont(kMainWindowFont));
  resize(PixelRect({0, 0, layout::kClient.width, layout::kClient.height}).size());
  AddTable();
  AddAutoReadIndicator();
  AddMenus();
  AddCommands();
  AddResults();
  AddSeatMenu();
  AddSlots(drag);
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
    picPlayer_[seat] = picture;
  }
  const Rect mark{0, 0, layout::kBlindMark.width, layout::kBlindMark.height};
  lblSB_ = AddLabel(this, "lblSB", "SB", mark, Qt::AlignCenter, kBlindGreen);
  lblBB_ = AddLabel(this, "lblBB", "BB", mark, Qt::AlignCenter, kBlindGreen);
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
    auto* const label = new ClickLabel(this, labelName, caption);
    SetUpLabel(*label, box, Qt::AlignLeft | Qt::AlignVCenter, kBlack);
    label->onClick = [menu] { menu->popup(QCursor::pos()); };
    return menu;
  };
  QMenu& mnuFile = *addMenu("lblMnuFile", "mnuFile", "File", layout::kMenuFile);
  AddItem(mnuFile, "mnuExit", "Exit", [this] { onEnd(); });

  QMenu& mnuSpeed = *addMenu("lblMnuSpeed", "mnuSpeed", "Speed", layout::kMenuSpeed);
  for (int speed = 0; speed < static_cast<int>(kSpeedChoices.size()); ++speed) {
    QAction* const item = AddItem(mnuSpeed, Indexed("mnuSpeedChoice", speed),
                                  kSpeedChoices[speed].caption, [this, speed] {
                                    ChooseSpeed(speed);
                                    ShowSettings();
                                  });
    item->setCheckable(true);
    mnuSpeedChoice_[speed] = item;
  }

  QMenu& mnuHelp = *addMenu("lblMnuHelp", "mnuHelp", "Help", layout::kMenuHelp);
  AddItem(mnuHelp, "mnuInstruct", "Instructions", [] { OpenHelpFile(kInstructions); });
  AddItem(mnuHelp, "mnuReadMe", "readme.txt", [] { OpenHelpFile(kReadMe); });
  AddItem(mnuHelp, "mnuAbout", "About", [this] { onAbout(); });
}

void Form1::AddCommands() {
  const auto addButton = [this](const char* name, const char* caption, const Rect& box) {
    auto* const button = new QPushButton(caption, this);
    button->setObjectName(name);
    button->setGeometry(PixelRect(box));
    return button;
  };
  cmdNewDeal_ = addButton("cmdNewDeal", "New Hand", layout::kNewDeal);
  connect(cmdNewDeal_, &QPushButton::clicked, this, [] { NewHand(); });
  QPushButton* const cmdHelp = addButton("cmdHelp", "Help", layout::kHelp);
  connect(cmdHelp, &QPushButton::clicked, this, [] { OpenHelpFile(kInstructions); });

  auto* const setup = new ClickLabel(this, "lblSetup", "Setup");
  SetUpLabel(*setup, layout::kSetup, Qt::AlignCenter, kWhite);
  setup->setToolTip("Table Setup Wizard");
  setup->onClick = [this] { onSetup(); };

  const auto addCheckBox = [this](const char* name, const char* caption, const Rect& box) {
    auto* const check = new WrappingCheckBox(caption, this);
    check->setObjectName(name);
    check->setGeometry(PixelRect(box));
    return check;
  };
  chkFoldLevels_ =
      addCheckBox("chkFoldLevels", "Watch Fold Depth (takes extra time)", layout::kFoldLevels);
  connect(chkFoldLevels_, &QCheckBox::toggled, this, &SetWatchFoldDepth);
  chk9Pl_ = addCheckBox("chk9Pl", "9 Plr Table", layout::kNinePlayers);
  connect(chk9Pl_, &QCheckBox::toggled, this, &SetNineSeats);

  const auto addLevels = [this](const char* frameName, const char* caption, const Rect& box,
                                const char* labelName, void (*choose)(int)) {
    auto* const frame = new QGroupBox(caption, this);
    frame->setObjectName(frameName);
    frame->setStyleSheet(kLevelFrameStyle);
    frame->setGeometry(PixelRect(box));
    std::array<ClickLabel*, 3> labels;
    for (int level = 0; level < 3; ++level) {
      labels[level] = new ClickLabel(frame, Indexed(labelName, level), kLevelCaptions[level]);
      SetUpLabel(*labels[level], layout::kLevels[level], Qt::AlignCenter, kBlack,
                 QtColor(kLevelColors[level]));
      labels[level]->onClick = [choose, level] { choose(level); };
    }
    return labels;
  };
  lblAdvicePre_ =
      addLevels("Frame1", "Pre Flop", layout::kPreFlopFrame, "lblAdvicePre", &ChooseLevelPre);
  lblAdvicePost_ =
      addLevels("Frame2", "Post Flop", layout::kPostFlopFrame, "lblAdvicePost", &ChooseLevelPost);
}

void Form1::AddAutoReadIndicator() {
  auto* const frame = new Shape(this, "Shape2", Shape::Form::RoundedFrame, Qt::transparent, 1);
  frame->setGeometry(PixelRect(layout::kAutoFrame));
  lblEyeBall_ = new EyeLabel("N", this);
  lblEyeBall_->setObjectName("lblEyeBall");
  lblEyeBall_->setGeometry(PixelRect(layout::kEyeBall));
  lblAutoOn_ = AddLabel(this, "lblAutoOn", "Auto Read", layout::kAutoOn, Qt::AlignCenter, kBlack);
  lblManual_ = AddLabel(this, "lblManual", "Manual Mode", layout::kManual, Qt::AlignCenter, kBlack);
  lblManual_->setWordWrap(true);
  PlaceLabel(*lblManual_, layout::kManual);
}

void Form1::AddResults() {
  for (const layout::Column& column : layout::kColumns) {
    QLabel* const header = AddLabel(this, Indexed("lblTop", column.headerIndex), column.header,
                                    HeaderPlace(column), Qt::AlignCenter, kBlack);
    header->setWordWrap(true);
    PlaceLabel(*header, HeaderPlace(column));
  }
  for (int row = 0; row < static_cast<int>(lbllbl.size()); ++row) {
    const auto addCell = [&](const char* name, int column, const char* text, Color color,
                             Color background) {
      QLabel* const cell =
          AddLabel(this, Indexed(name, row), text, RowPlace(layout::kColumns[column], row),
                   Qt::AlignCenter, color, QtColor(background));
      if (row == kWinSplitRow) SetBold(*cell, 8);
      return cell;
    };
    lblMe_[row] = addCell("lblMe", 0, "", kBlack, kWhite);
    addCell("lbllbl", 1, lbllbl[row].caption, kResultRowText, lbllbl[row].color);
    lblThem_[row] = addCell("lblThem", 2, "", kBlack, kWhite);
  }
  lblAdvice_ = AddLabel(this, "lblAdvice", {}, layout::kAdvice, Qt::AlignCenter, kWhite,
                        QtColor(kTableGreen));
  SetBold(*lblAdvice_, 12);
  picHandMeter_ = new PictureBox(this, "picHandMeter", &DrawAdviceMeter);
  picHandMeter_->setGeometry(PixelRect(layout::kHandMeter));
}

void Form1::AddSeatMenu() {
  mnuPlayer_.setObjectName("mnuPlayer");
  mnuIn_ = AddItem(mnuPlayer_, "mnuIn", "In", &ChooseIn);
  constexpr std::array<const char*, FoldedRiver + 1> kFoldCaptions = {
      "", "", "Folded", "Folded Flop", "Folded Turn", "Folded River"};
  for (int folded = FoldedPreFlop; folded <= FoldedRiver; ++folded) {
    mnuFold_[folded] = AddItem(mnuPlayer_, Indexed("mnuFold", folded), kFoldCaptions[folded],
                               [folded] { ChooseFold(static_cast<SeatState>(folded)); });
  }
  mnuEmpty_ = AddItem(mnuPlayer_, "mnuEmpty", "Empty Seat", &ChooseEmpty);
  mnuMe_ = AddItem(mnuPlayer_, "mnuMe", "Me", &ChooseMe);
  mnuDealer_ = AddItem(mnuPlayer_, "mnuDealer", "Dealer", &ChooseDealer);
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
  mnuPlayer_.popup(QCursor::pos());
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
  for (int seat = 1; seat <= kSeats; ++seat) picPlayer_[seat]->update();

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

void Form1::ShowSlot(int slot) { picHand_[slot]->SetBorder(!slots.IsFilled(slot)); }

void Form1::ShowResults() {
  for (std::size_t row = 0; row < lblMe_.size(); ++row) {
    SetText(*lblMe_[row], results.lblMe[row]);
    SetText(*lblThem_[row], results.lblThem[row]);
  }
  SetText(*lblCurrentScore_, results.lblCurrentScore);
  SetText(*lblAdvice_, results.lblAdvice);
  if (lblAdvice_->palette().color(QPalette::WindowText) != QtColor(results.lblAdviceColor)) {
    SetColors(*lblAdvice_, results.lblAdviceColor, QtColor(kTableGreen));
  }
}

void Form1::ShowMeter() { picHandMeter_->update(); }

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

void Form1::closeEvent(QCloseEvent* event) {
  event->accept();
  if (!run.Ending) onEnd();
}

void Form1::changeEvent(QEvent* event) {
  if (event->type() == QEvent::ActivationChange && isActiveWindow()) screenState.MainShown = true;
  QWidget::changeEvent(event);
}

void Form1::resizeEvent(QResizeEvent*) {
  design_.ResizeControls(*this);
  ShowMeter();
  RefreshTable(true);
  slots.MarkedSlot = kNoSlot;
  for (const int slot : kSlotOrder) ShowSlot(slot);
}

}  // namespace holdem
