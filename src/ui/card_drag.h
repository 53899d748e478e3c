// Cards dragged with the mouse between the deck window and the slots. The drag is followed by the
// program, not by the card it began on, since that card may be hidden or emptied while the drag
// lasts.
#pragma once

#include <QObject>
#include <QPoint>
#include <QWidget>
#include <memory>
#include <optional>

#include "gestures/card_gestures.h"
#include "ui/picture_box.h"

namespace holdem {

// A picture box that holds a card: a slot or a deck card.
class CardBox : public PictureBox {
 public:
  CardBox(QWidget* parent, const QString& name, CardPlace place, std::function<void(Canvas&)> draw)
      : PictureBox(parent, name, std::move(draw)), Place(place) {}

  const CardPlace Place;
};

class CardDrag : public QObject {
 public:
  CardDrag();
  ~CardDrag() override;

  // Begins a drag of the card that `source` holds, at the press that the event reports.
  void Begin(const CardBox& source, Card card, const QMouseEvent& press);

 protected:
  bool eventFilter(QObject* object, QEvent* event) override;

 private:
  void Move(QPoint position);
  void Drop(QPoint position);
  void Cancel();

  CardPlace source_;
  Card card_ = kNoCard;
  QPoint pressed_;                    // on the screen
  QPoint grabbed_;                    // within the card
  std::unique_ptr<QWidget> picture_;  // follows the cursor once the card has left its place
  QSize pictureSize_;
};

}  // namespace holdem
