#include "ui/card_drag.h"

#include <QApplication>
#include <QDialog>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QStyleHints>
#include <utility>

#include "painting/card_face.h"
#include "table/card_slots.h"
#include "ui/marks.h"

namespace holdem {
namespace {

// Lets what has been drawn fade into its background.
void DrawFaint(QPainter& painter, const QRect& box, const QColor& background) {
  painter.fillRect(box, Faded(background, 0.75));
}

// Marks where the card in the air would come to lie; to be seen on cards and on the table.
void DrawDropTarget(QPainter& painter, const QRect& box) {
  const QColor gold(255, 200, 0);
  painter.fillRect(box, Faded(gold, 0.35));
  DrawFrame(painter, box, 3, gold);
}

// The hole in the dragged picture, under the mouse, through which BoxAt finds what lies beneath.
// One pixel is enough; where the screen is not scaled by a whole number rounding may miss it, so
// its neighbours are left out too.
QRect HoleAt(QPoint grabbed, double scale) {
  const int spare = scale == qRound(scale) ? 0 : 1;
  return QRect(grabbed, QSize(1, 1)).adjusted(-spare, -spare, spare, spare);
}

// The picture of the dragged card: a window of its own that takes neither mouse nor keyboard.
std::unique_ptr<QWidget> CardPicture(Card card, QSize size, QPoint grabbed) {
  auto picture = std::make_unique<PictureBox>(
      nullptr, "dragPicture", [card](Canvas& canvas) { DrawCardFace(canvas, card, kWhite); });
  picture->setWindowFlags(Qt::ToolTip | Qt::FramelessWindowHint | Qt::WindowTransparentForInput |
                          Qt::WindowDoesNotAcceptFocus);
  picture->setAttribute(Qt::WA_ShowWithoutActivating);
  picture->setFixedSize(size);
  picture->setMask(QRegion(picture->rect()) - HoleAt(grabbed, picture->devicePixelRatio()));
  picture->setWindowOpacity(0.85);
  return picture;
}

// Null where no slot and no deck card is under the mouse.
CardBox* BoxAt(QPoint position) { return dynamic_cast<CardBox*>(QApplication::widgetAt(position)); }

bool IsEscape(const QEvent& event) {
  return event.type() == QEvent::KeyPress &&
         static_cast<const QKeyEvent&>(event).key() == Qt::Key_Escape;
}

}  // namespace

CardBox::CardBox(QWidget* parent, const QString& name, CardSpot at, CardDrag& drag,
                 std::function<void(Canvas&)> draw)
    : PictureBox(parent, name, std::move(draw)), spot(at), drag_(drag) {}

void CardBox::paintEvent(QPaintEvent* event) {
  PictureBox::paintEvent(event);
  QPainter painter(this);
  if (drag_.HasLifted(*this)) DrawFaint(painter, rect(), Background());
  if (drag_.IsOver(*this)) DrawDropTarget(painter, rect());
}

CardDrag::CardDrag() { qApp->installEventFilter(this); }

void CardDrag::Begin(CardBox& source, Card card, const QMouseEvent& press) {
  LiftCard();
  source_ = &source;
  card_ = card;
  pressed_ = press.globalPosition().toPoint();
  grabbed_ = press.position().toPoint();
}

bool CardDrag::eventFilter(QObject* object, QEvent* event) {
  if (!slots.CardInTheAir) return false;
  // The user has turned to another program, or a dialog has opened: the release of the mouse will
  // not come this way.
  if ((event->type() == QEvent::Show && qobject_cast<QDialog*>(object) != nullptr) ||
      (event->type() == QEvent::ApplicationStateChange &&
       QGuiApplication::applicationState() != Qt::ApplicationActive)) {
    Cancel();
    return false;
  }
  if (IsEscape(*event)) return Cancel(), true;
  if (!object->isWidgetType()) return false;
  switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
      return true;  // nothing else begins while a card is in the air
    case QEvent::MouseMove: return Move(static_cast<const QMouseEvent&>(*event)), true;
    case QEvent::MouseButtonRelease: return Drop(static_cast<const QMouseEvent&>(*event)), true;
    default: return false;
  }
}

void CardDrag::Move(const QMouseEvent& event) {
  if (!(event.buttons() & Qt::LeftButton)) return Cancel();  // it was released unseen
  const QPoint position = event.globalPosition().toPoint();
  if (!picture_) {
    const int moved = (position - pressed_).manhattanLength();
    if (moved < QGuiApplication::styleHints()->startDragDistance()) return;
    picture_ = CardPicture(card_, source_->size(), grabbed_);
    source_->update();
  }
  picture_->move(position - grabbed_);
  picture_->show();
  CardBox* const box = BoxAt(position);
  Aim(box != nullptr && CanDropCard(source_->spot, box->spot) ? box : nullptr);
}

void CardDrag::Aim(CardBox* target) {
  if (target == target_) return;
  for (CardBox* const box : {std::exchange(target_, target).data(), target}) {
    if (box != nullptr) box->update();
  }
}

void CardDrag::Cancel() {
  LowerCard();
  Aim(nullptr);
  picture_.reset();
  if (source_ != nullptr) source_->update();
}

void CardDrag::Drop(const QMouseEvent& release) {
  if (release.button() != Qt::LeftButton) return;
  Cancel();
  const CardBox* const box = BoxAt(release.globalPosition().toPoint());
  if (source_ != nullptr && box != nullptr) DropCard(source_->spot, card_, box->spot);
}

}  // namespace holdem
