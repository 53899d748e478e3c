#include "ui/seat_button.h"

#include <QPainter>
#include <QStyleOptionButton>

#include "ui/labels.h"
#include "ui/marks.h"
#include "words/in_words.h"

namespace holdem {
namespace {

// The signs, in a square of the given centre and half width.

void DrawFace(QPainter& painter, QPointF centre, double half) {
  painter.drawEllipse(centre, half, half);
  const QPointF eye(half * 0.38, -half * 0.25);
  painter.save();
  painter.setBrush(painter.pen().color());
  painter.drawEllipse(centre + eye, half * 0.1, half * 0.14);
  painter.drawEllipse(centre + QPointF(-eye.x(), eye.y()), half * 0.1, half * 0.14);
  painter.restore();
  const QRectF smile(centre.x() - half * 0.55, centre.y() - half * 0.45, half * 1.1, half);
  painter.drawArc(smile, 200 * 16, 140 * 16);
}

void DrawButton(QPainter& painter, QPointF centre, double half) {
  painter.drawEllipse(centre, half * 0.8, half * 0.8);
}

void DrawBox(QPainter& painter, QPointF centre, double half, bool ticked) {
  painter.drawRect(
      QRectF(centre.x() - half * 0.8, centre.y() - half * 0.8, half * 1.6, half * 1.6));
  if (!ticked) return;
  painter.drawPolyline(QPolygonF{centre + QPointF(-half * 0.45, 0),
                                 centre + QPointF(-half * 0.1, half * 0.4),
                                 centre + QPointF(half * 0.5, -half * 0.45)});
}

void DrawMark(QPainter& painter, const QRectF& box, SeatMark mark) {
  const QPointF centre = box.center();
  const double half = box.height() / 3;
  switch (mark) {
    case SeatMark::Face: return DrawFace(painter, centre, half);
    case SeatMark::Button: return DrawButton(painter, centre, half);
    case SeatMark::FaceAndButton:
      DrawFace(painter, centre - QPointF(half * 1.1, 0), half);
      return DrawButton(painter, centre + QPointF(half * 1.1, 0), half);
    case SeatMark::Ticked: return DrawBox(painter, centre, half, true);
    case SeatMark::Unticked: return DrawBox(painter, centre, half, false);
  }
}

}  // namespace

SeatButton::SeatButton(QWidget* parent, Seat seat) : QPushButton(parent) {
  setObjectName(Indexed("cmdHere", seat));
  setAutoDefault(false);
  setFocusPolicy(Qt::TabFocus);
  inWords = [seat] { return WizardSeatInWords(seat); };
  tip = [seat] { return WizardSeatTip(seat); };
  onActivate = [this] { click(); };
}

void SeatButton::SetMark(SeatMark mark) {
  mark_ = mark;
  setText(QtText(TextOf(mark)));
  update();
}

bool SeatButton::event(QEvent* event) {
  return ShowTip(*this, *event) || QPushButton::event(event);
}

void SeatButton::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  QStyleOptionButton option;
  initStyleOption(&option);
  option.text.clear();
  style()->drawControl(QStyle::CE_PushButton, &option, &painter, this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen(palette().color(QPalette::ButtonText), 1.5));
  DrawMark(painter, rect(), mark_);
  if (hasFocus()) DrawFocus(painter, rect().adjusted(2, 2, -2, -2));
}

}  // namespace holdem
