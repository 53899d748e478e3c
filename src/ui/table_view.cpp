#include "ui/table_view.h"

#include <QMouseEvent>
#include <algorithm>

#include "design/main_layout.h"
#include "gestures/seat_gestures.h"
#include "painting/seat_picture.h"
#include "platform/qt/qt_canvas.h"
#include "ui/geometry.h"
#include "ui/labels.h"
#include "words/explained.h"
#include "words/in_words.h"

namespace holdem {
namespace {

constexpr Color kBlindGreen{0, 192, 0};
const QColor kGold(242, 182, 50);  // as the user's own seat
// Legible on the table, on its rim and beside it.
constexpr const char* kBlindStyle =
    "background: black; border: 1px solid white; font-weight: bold; font-family: Liberation Sans, "
    "Arial;";

QLabel* AddBlindMark(QWidget* parent, const char* name, const char* text, const char* tip) {
  const Rect box{0, 0, layout::kBlindMark.width, layout::kBlindMark.height};
  QLabel* const mark = AddLabel(parent, name, text, box, Qt::AlignCenter, kBlindGreen);
  mark->setToolTip(tip);
  mark->setStyleSheet(kBlindStyle);
  return mark;
}

}  // namespace

TableView::TableView(QWidget* form) : form_(form), mnuPlayer_(*new PlayerMenu(form)) {
  new Shape(form, "Shape1", layout::kTable, Shape::Form::Oval, QtColor(kTableGreen), 8);
  shpMySeat_ = new Shape(form, "shpMySeat", {}, Shape::Form::RoundedFrame, kGold, 1);
  for (int seat = 1; seat <= kSeats; ++seat) AddSeat(seat);
  lblSB_ = AddBlindMark(form, "lblSB", "SB", kAboutSmallBlind);
  lblBB_ = AddBlindMark(form, "lblBB", "BB", kAboutBigBlind);
}

void TableView::AddSeat(Seat seat) {
  auto* const spot = new Shape(form_, Indexed("shpDlrButton", seat), layout::kButtonSpots[seat],
                               Shape::Form::DealerButton, Qt::white, 1);
  spot->setToolTip(kAboutDealer);
  shpDlrButton_[seat] = spot;

  auto* const picture = new PictureBox(form_, Indexed("picPlayer", seat),
                                       [seat](Canvas& canvas) { DrawSeat(canvas, seat); });
  picture->setGeometry(PixelRect(layout::kSeatBoxes[seat]));
  const auto openMenu = [this, seat, picture] { mnuPlayer_.OpenAt(seat, *picture); };
  picture->onPress = [seat, openMenu](const QMouseEvent& event) {
    if (event.button() == Qt::RightButton) return openMenu();
    PressSeat(seat);
  };
  picture->onDoubleClick = [seat](const QMouseEvent&) { DoubleClickSeat(seat); };
  picture->onActivate = [seat] { PressSeat(seat); };
  picture->onDelete = [seat] { EmptySeat(seat); };
  picture->onMenuKey = openMenu;
  picture->inWords = [seat] { return SeatInWords(seat); };
  picture->more = [seat] { return SeatKeys(seat); };
  picture->tip = [seat] { return SeatTip(seat); };
  picture->setFocusPolicy(Qt::TabFocus);
  picPlayer_[seat] = picture;
}

void TableView::AddSlots(CardDrag& drag) {
  for (const Slot slot : kSlotOrder) picHand_[slot] = new HandSlot(form_, slot, drag);
  for (int seat = 1; seat <= kSeats; ++seat) shpDlrButton_[seat]->raise();
  lblSB_->raise();
  lblBB_->raise();
}

void TableView::PlaceBlindMark(QLabel& mark, Seat seat) {
  mark.setVisible(seat != 0);
  if (seat == 0) return;
  const int offset = WholePixels(layout::kBlindMarkOffset);
  mark.move(shpDlrButton_[seat]->pos() + QPoint(offset, offset));
  GiveCardsTheMouse(mark);
}

// A mark that lies over a hole card leaves the mouse to the card; elsewhere the mark has the mouse,
// for its tooltip.
void TableView::GiveCardsTheMouse(QWidget& mark) {
  const auto covers = [&](Slot slot) {
    return mark.geometry().intersects(picHand_[slot]->geometry());
  };
  mark.setAttribute(Qt::WA_TransparentForMouseEvents, std::ranges::any_of(kHoleSlots, covers));
}

// The frame is there because the cards cover most of the picture of the user's seat.
void TableView::FrameMySeat() {
  constexpr int kMargin = 3;  // pixels
  QRect frame = picPlayer_[seats.MySeat]->geometry();
  for (const Slot slot : kHoleSlots) frame |= picHand_[slot]->geometry();
  shpMySeat_->setGeometry(frame.adjusted(-kMargin, -kMargin, kMargin, kMargin));
}

void TableView::ShowSeats() {
  PictureBox& closingUp = *picPlayer_[kSeatClosingUp];
  const double left = layout::LeftOfSeatClosingUp(seats.IsOfNine());
  closingUp.move(qRound(form_->frameGeometry().width() * left), closingUp.y());
  const ButtonMarks& marks = seats.Marks;
  for (int seat = 1; seat <= kSeats; ++seat) {
    picPlayer_[seat]->setVisible(seats.Exists(seat));
    picPlayer_[seat]->update();
    picPlayer_[seat]->AnnounceChange();
    shpDlrButton_[seat]->setVisible(seat == marks.dealer);
  }
  const auto holes = layout::PlaceHoleSlots(TwipRect(picPlayer_[seats.MySeat]->geometry()));
  for (const Slot slot : kHoleSlots) picHand_[slot]->setGeometry(PixelRect(holes[slot]));
  FrameMySeat();
  if (marks.dealer != 0) GiveCardsTheMouse(*shpDlrButton_[marks.dealer]);
  PlaceBlindMark(*lblSB_, marks.smallBlind);
  PlaceBlindMark(*lblBB_, marks.bigBlind);
}

}  // namespace holdem
