#include "ui/frm_deck.h"

#include <QApplication>
#include <QCloseEvent>
#include <QKeyEvent>
#include <QTimer>
#include <algorithm>
#include <climits>
#include <utility>
#include <vector>

#include "design/deck_layout.h"
#include "painting/card_face.h"
#include "painting/out_marker.h"
#include "platform/qt/qt_canvas.h"
#include "state/results.h"
#include "state/run.h"
#include "state/screen.h"
#include "state/slots.h"
#include "ui/geometry.h"
#include "ui/typed_keys.h"
#include "words/in_words.h"

namespace holdem {
namespace {

constexpr int kOwnerMayFollow = 200;  // milliseconds

QPoint WayOf(int key) {
  switch (key) {
    case Qt::Key_Left: return {-1, 0};
    case Qt::Key_Right: return {1, 0};
    case Qt::Key_Up: return {0, -1};
    case Qt::Key_Down: return {0, 1};
    default: return {};
  }
}

void DrawDeckCard(Canvas& canvas, Card card) {
  DrawCardFace(canvas, card, kWhite);
  const int row = results.OutRows[card];
  if (row != kNoOut) DrawOutMarker(canvas, row);
}

}  // namespace

frmDeck::frmDeck(QWidget* owner, CardDrag& drag)
    : QWidget(owner, Qt::Tool | Qt::CustomizeWindowHint | Qt::WindowTitleHint) {
  setObjectName("frmDeck");
  setAttribute(Qt::WA_ShowWithoutActivating);  // the main window begins with the keyboard
  setWindowTitle("Deck - Drag or click cards in order");
  QPalette colors = palette();
  colors.setColor(QPalette::Window, QtColor(kTableGreen));
  setPalette(colors);

  const DeckLayout layout = LayoutDeck(screenState.ScreenHeightPx);
  for (Card code = 1; code <= kCardCount; ++code) {
    auto* const box = new CardBox(this, "picDeck" + QString::number(code), {.deckCard = code}, drag,
                                  [code](Canvas& canvas) { DrawDeckCard(canvas, code); });
    box->setGeometry(PixelRect(layout.picDeck[code]));
    box->onPress = [box, code, &drag](QMouseEvent& event) {
      // The second press of a double-click would take the card that lies beneath the first one.
      if (event.type() == QEvent::MouseButtonDblClick) return;
      if (event.button() == Qt::RightButton) ClickDeckCard(code);
      if (event.button() == Qt::LeftButton) drag.Begin(*box, code, event);
    };
    box->inWords = [code] { return DeckCardInWords(code); };
    box->tip = [code] { return DeckCardTip(code); };
    box->onActivate = [code] { ClickDeckCard(code); };
    box->setFocusPolicy(Qt::TabFocus);
    picDeck_[code] = box;
  }
  for (const int suit : {Spades, Diamonds, Clubs, Hearts}) picDeck_[CardOf(suit, Ace)]->raise();
  SetTabOrder();
  connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, QWidget* now) {
    auto* const card = dynamic_cast<CardBox*>(now);
    if (card != nullptr && card->window() == this) keyboardCard_ = card;
  });
  setFocusPolicy(Qt::ClickFocus);
  setFocus();  // no card has the keyboard until it is asked for
  ResizeToDesign();
}

// A window names several types, and a window manager takes the first that it knows. As a torn-off
// menu it gets no buttons to minimise or maximise from openbox; as any other type it would.
void frmDeck::showEvent(QShowEvent* event) {
  // Qt heeds this only now that there is a native window.
  setAttribute(Qt::WA_X11NetWmWindowTypeMenu);
  QWidget::showEvent(event);
}

void frmDeck::ResizeToDesign() {
  const DeckLayout layout = LayoutDeck(screenState.ScreenHeightPx);
  const QSize frame = frameGeometry().size() - size();
  resize((PixelSize(layout.window) - frame).expandedTo(PixelSize(layout.cards)));
}

void frmDeck::TakeKeyboard() {
  activateWindow();
  keyboardCard_->setFocus(Qt::TabFocusReason);
}

// Tab goes through the cards row by row.
void frmDeck::SetTabOrder() {
  std::vector<CardBox*> cards(Cards().begin(), Cards().end());
  std::ranges::sort(cards, {}, [](const CardBox* card) { return std::pair(card->y(), card->x()); });
  keyboardCard_ = cards.front();
  for (std::size_t i = 1; i < cards.size(); ++i) setTabOrder(cards[i - 1], cards[i]);
}

// The arrows go to the nearest card of the deck that way, along its row or its column.
void frmDeck::keyPressEvent(QKeyEvent* event) {
  if (EnterTypedCard(*event, focusWidget())) return;
  const auto* const from = dynamic_cast<CardBox*>(focusWidget());
  const QPoint way = WayOf(event->key());
  if (from == nullptr || way.isNull()) return QWidget::keyPressEvent(event);
  const auto ahead = [&](const CardBox* card) {
    const QPoint offset = card->pos() - from->pos();
    const int distance = QPoint::dotProduct(offset, way);
    return distance > 0 && offset == distance * way && !card->isHidden() ? distance : INT_MAX;
  };
  CardBox* const nearest = std::ranges::min(Cards(), {}, ahead);
  if (ahead(nearest) != INT_MAX) nearest->setFocus(Qt::TabFocusReason);
}

// The card of the deck nearest to the one that leaves it; that one itself when there is no other.
CardBox* frmDeck::NearestTo(const CardBox& going) const {
  const auto away = [&](const CardBox* card) {
    const bool inDeck = slots.InDeck(card->spot.deckCard);
    return inDeck ? (card->pos() - going.pos()).manhattanLength() : INT_MAX;
  };
  CardBox* const nearest = std::ranges::min(Cards(), {}, away);
  return away(nearest) == INT_MAX ? keyboardCard_ : nearest;
}

void frmDeck::ShowDeck() {
  for (Card code = 1; code <= kCardCount; ++code) {
    const bool inDeck = slots.InDeck(code);
    if (!inDeck && keyboardCard_ == picDeck_[code]) {
      keyboardCard_ = NearestTo(*picDeck_[code]);
      if (focusWidget() == picDeck_[code]) keyboardCard_->setFocus(Qt::OtherFocusReason);
    }
    if (picDeck_[code]->isHidden() == inDeck) picDeck_[code]->setVisible(inDeck);
    if (results.OutRows[code] != shownOuts_[code]) picDeck_[code]->update();
  }
  shownOuts_ = results.OutRows;
}

void frmDeck::changeEvent(QEvent* event) {
  if (event->type() == QEvent::WindowStateChange && isMinimized()) {
    // It comes back, unless the main window has been minimised too, which Qt may hear a little
    // later.
    QTimer::singleShot(kOwnerMayFollow, this, [this] {
      if (isMinimized() && !parentWidget()->isMinimized()) showNormal();
    });
  }
  QWidget::changeEvent(event);
}

void frmDeck::closeEvent(QCloseEvent* event) { event->setAccepted(run.Ending); }

}  // namespace holdem
