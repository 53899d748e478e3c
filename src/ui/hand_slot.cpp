#include "ui/hand_slot.h"

#include <QMouseEvent>

#include "design/main_layout.h"
#include "painting/card_face.h"
#include "platform/qt/qt_canvas.h"
#include "state/slots.h"
#include "ui/geometry.h"
#include "ui/labels.h"
#include "words/in_words.h"

namespace holdem {
namespace {

void DrawSlot(Canvas& canvas, Slot slot) {
  canvas.Clear();
  if (slots.IsFilled(slot)) {
    DrawCardFace(canvas, slots.picHand[slot], kWhite);
  } else if (slot == slots.TypedSlot) {
    DrawSlotText(canvas, TypedInWords());
  } else if (slot == slots.MarkedSlot) {
    DrawSlotText(canvas, "?");
  }
}

}  // namespace

HandSlot::HandSlot(QWidget* parent, Slot slot, CardDrag& drag)
    : CardBox(parent, Indexed("picHand", slot), {.slot = slot}, drag,
              [slot](Canvas& canvas) { DrawSlot(canvas, slot); }) {
  setGeometry(PixelRect(layout::kSlots[slot]));
  SetBackground(slot >= kBoardSlots[0] ? QtColor(kTableGreen)
                                       : parent->palette().color(QPalette::Window));
  onPress = [this, &drag](QMouseEvent& event) { Press(event, drag); };
  onDoubleClick = [this, slot, &drag](QMouseEvent& event) {
    if (slots.IsFilled(slot)) {
      Press(event, drag);
    } else {
      DoubleClickSlot(slot);
    }
  };
  inWords = [slot] { return SlotInWords(slot); };
  more = [slot] { return SlotKeys(slot); };
  tip = [slot] { return SlotTip(slot); };
  onActivate = [slot] { DoubleClickSlot(slot); };
  onDelete = [slot] { RightPressSlot(slot); };
  setFocusPolicy(Qt::TabFocus);
  ShowSlot();
}

void HandSlot::Press(QMouseEvent& event, CardDrag& drag) {
  const int slot = spot.slot;
  if (!slots.IsFilled(slot)) return;
  if (event.button() == Qt::RightButton) RightPressSlot(slot);
  if (event.button() == Qt::LeftButton) drag.Begin(*this, slots.picHand[slot], event);
}

void HandSlot::ShowSlot() {
  SetBorder(!slots.IsFilled(spot.slot));
  AnnounceChange();
}

}  // namespace holdem
