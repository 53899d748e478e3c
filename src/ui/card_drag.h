// Cards dragged with the mouse between the deck window and the slots. CardDrag watches the mouse
// for the whole program, since the card on which a drag began may be hidden or emptied before it
// ends.
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

// A slot, or a card of the deck window. It is drawn faint while its card is being dragged, and lit
// while a card is held over it that can be dropped there.
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

  // Begins a drag of the card that `source` holds, at the press that the event reports.
  void Begin(CardBox& source, Card card, const QMouseEvent& press);

  // Whether the card of this box is being dragged, and whether the dragged card is held over it and
  // can be dropped there. Both are false until the mouse has moved far enough to make a drag of a
  // press.
  bool HasLifted(const CardBox& box) const { return picture_ && &box == source_; }
  bool IsOver(const CardBox& box) const { return &box == target_; }

 protected:
  bool eventFilter(QObject* object, QEvent* event) override;

 private:
  void Move(const QMouseEvent& event);
  void Aim(CardBox* target);
  void Drop(const QMouseEvent& release);
  void Cancel();

  QPointer<CardBox> source_;
  QPointer<CardBox> target_;  // under the mouse, where the card can be dropped
  Card card_ = kNoCard;
  QPoint pressed_;                    // on the screen
  QPoint grabbed_;                    // within the card
  std::unique_ptr<QWidget> picture_;  // follows the cursor once the card has been lifted
};

}  // namespace holdem
