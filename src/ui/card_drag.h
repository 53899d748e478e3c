// Cards dragged with the mouse between the deck window and the slots. The drag is followed by the
// program, not by the card it began on, since that card may be hidden or emptied while the drag
// lasts.
#pragma once

#include <QObject>
#include <QPoint>
#include <QPointer>
#include <QWidget>
#include <memory>

#include "gestures/card_gestures.h"
#include "ui/picture_box.h"

namespace holdem {

class CardDrag;

// A picture box that holds a card: a slot or a deck card. Faint while its card is in the air, lit
// while one is held over it that would come to lie there.
class CardBox : public PictureBox {
 public:
  // The drag is not owned and outlives the box.
  CardBox(QWidget* parent, const QString& name, CardSpot at, CardDrag& drag,
          std::function<void(Canvas&)> draw);

  const CardSpot spot;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  CardDrag& drag_;
};

class CardDrag : public QObject {
 public:
  CardDrag();
  ~CardDrag() override;

  // Begins a drag of the card that `source` holds, at the press that the event reports.
  void Begin(CardBox& source, Card card, const QMouseEvent& press);

  // What the drag makes of a box, once its card has been lifted.
  bool HasLifted(const CardBox& box) const { return picture_ && &box == source_; }
  bool IsOver(const CardBox& box) const { return &box == target_; }

 protected:
  bool eventFilter(QObject* object, QEvent* event) override;

 private:
  void Move(QPoint position);
  void Aim(CardBox* target);
  void Drop(QPoint position);
  void Cancel();

  QPointer<CardBox> source_;
  QPointer<CardBox> target_;  // under the mouse, where the card can be dropped
  Card card_ = kNoCard;
  QPoint pressed_;                    // on the screen
  QPoint grabbed_;                    // within the card
  std::unique_ptr<QWidget> picture_;  // follows the cursor once the card has been lifted
};

}  // namespace holdem
