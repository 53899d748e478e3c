#include "ui/card_drag.h"

#include <QApplication>
#include <QDialog>
#include <QMouseEvent>
#include <QStyleHints>

#include "painting/card_face.h"
#include "table/card_slots.h"

namespace holdem {
namespace {

// The picture of the dragged card: never in the way of the mouse.
std::unique_ptr<QWidget> CardPicture(Card card, QSize size) {
  auto picture = std::make_unique<PictureBox>(
      nullptr, "dragPicture", [card](Canvas& canvas) { DrawCardFace(canvas, card, kWhite); });
  picture->setWindowFlags(Qt::ToolTip | Qt::FramelessWindowHint | Qt::WindowTransparentForInput |
                          Qt::WindowDoesNotAcceptFocus);
  picture->setAttribute(Qt::WA_ShowWithoutActivating);
  picture->setFixedSize(size);
  picture->setWindowOpacity(0.85);
  return picture;
}

// Over no card of ours: nowhere.
std::optional<CardPlace> PlaceAt(QPoint position) {
  const auto* const box = dynamic_cast<const CardBox*>(QApplication::widgetAt(position));
  return box != nullptr ? std::optional(box->Place) : std::nullopt;
}

}  // namespace

CardDrag::CardDrag() { qApp->installEventFilter(this); }

CardDrag::~CardDrag() = default;

void CardDrag::Begin(const CardBox& source, Card card, const QMouseEvent& press) {
  LiftCard();
  source_ = source.Place;
  card_ = card;
  pressed_ = press.globalPosition().toPoint();
  grabbed_ = press.position().toPoint();
  pictureSize_ = source.size();
}

bool CardDrag::eventFilter(QObject* object, QEvent* event) {
  if (!slots.CardInTheAir) return false;
  // The release will not be heard here: the user has turned to another program or to a dialog.
  if ((event->type() == QEvent::Show && qobject_cast<QDialog*>(object) != nullptr) ||
      (event->type() == QEvent::ApplicationStateChange &&
       QGuiApplication::applicationState() != Qt::ApplicationActive)) {
    Cancel();
    return false;
  }
  if (!object->isWidgetType()) return false;
  switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
      return true;  // nothing else begins while a card is in the air
    case QEvent::MouseMove: {
      const auto* const move = static_cast<QMouseEvent*>(event);
      if (move->buttons() & Qt::LeftButton) {
        Move(move->globalPosition().toPoint());
      } else {  // the release went elsewhere
        Cancel();
      }
      return true;
    }
    case QEvent::MouseButtonRelease: {
      const auto* const release = static_cast<QMouseEvent*>(event);
      if (release->button() == Qt::LeftButton) Drop(release->globalPosition().toPoint());
      return true;
    }
    default: return false;
  }
}

void CardDrag::Move(QPoint position) {
  if (!picture_) {
    const int moved = (position - pressed_).manhattanLength();
    if (moved < QGuiApplication::styleHints()->startDragDistance()) return;
    picture_ = CardPicture(card_, pictureSize_);
  }
  picture_->move(position - grabbed_);
  picture_->show();
}

void CardDrag::Cancel() {
  LowerCard();
  picture_.reset();
}

void CardDrag::Drop(QPoint position) {
  Cancel();
  if (const auto target = PlaceAt(position)) DropCard(source_, card_, *target);
}

}  // namespace holdem
