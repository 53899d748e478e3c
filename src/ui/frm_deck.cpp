#include "ui/frm_deck.h"

#include <QCloseEvent>
#include <QKeyEvent>
#include <QTimer>

#include "painting/card_face.h"
#include "painting/out_marker.h"
#include "platform/qt/qt_canvas.h"
#include "state/results.h"
#include "state/run.h"
#include "state/slots.h"
#include "ui/geometry.h"
#include "ui/in_words.h"

namespace holdem {
namespace {

constexpr int kLowScreen = 800;       // pixels
constexpr int kOwnerMayFollow = 200;  // milliseconds

// From the top: spades, hearts, clubs, diamonds, so that black and red rows alternate.
constexpr int RowOf(Card card) {
  constexpr std::array<int, 5> kRows = {0, 0, 3, 2, 1};
  return kRows[SuitOf(card)];
}

// Two to King, then the Ace.
constexpr int ColumnOf(Card card) { return RankWeight(RankOf(card)) - 2; }

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
  if (row != kNoOut) DrawOutMarker(canvas, lbllbl[row].color);
}

}  // namespace

DeckLayout LayoutDeck(int screenHeightPx) {
  const Size card = screenHeightPx < kLowScreen ? Size{400, 500} : Size{435, 615};
  constexpr double kMargin = 50;
  DeckLayout layout;
  for (Card code = 1; code <= kCardCount; ++code) {
    layout.picDeck[code] = {kMargin + 0.8 * card.width * ColumnOf(code),
                            kMargin + 1.05 * card.height * RowOf(code), card.width, card.height};
  }
  const Rect& lastOfFirstRow = layout.picDeck[CardOf(Spades, Ace)];
  const Rect& lastOfLastRow = layout.picDeck[CardOf(Diamonds, Ace)];
  layout.window = {lastOfFirstRow.left + 1.4 * card.width,
                   lastOfLastRow.top + 1.4 * card.height + 200};
  return layout;
}

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
    auto* const box = new CardBox(this, "picDeck" + QString::number(code), {.deckCard = code},
                                  [code](Canvas& canvas) { DrawDeckCard(canvas, code); });
    box->setGeometry(PixelRect(layout.picDeck[code]));
    box->onPress = [box, code, &drag](QMouseEvent& event) {
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
  setFocusPolicy(Qt::ClickFocus);
  setFocus();  // no card has the keyboard until it is asked for
  resize(PixelRect({0, 0, layout.window.width, layout.window.height}).size());
}

void frmDeck::TakeKeyboard() {
  activateWindow();
  if (focusWidget() == this) focusNextChild();
}

// The arrows go to the nearest card of the deck that way, along its row or its column.
void frmDeck::keyPressEvent(QKeyEvent* event) {
  const auto* const from = dynamic_cast<CardBox*>(focusWidget());
  const QPoint way = WayOf(event->key());
  if (from == nullptr || way.isNull()) return QWidget::keyPressEvent(event);
  CardBox* nearest = nullptr;
  int nearestDistance = 0;
  for (Card code = 1; code <= kCardCount; ++code) {
    const QPoint offset = picDeck_[code]->pos() - from->pos();
    const int distance = QPoint::dotProduct(offset, way);
    const bool onTheWay = distance > 0 && offset == distance * way && !picDeck_[code]->isHidden();
    if (!onTheWay || (nearest != nullptr && distance >= nearestDistance)) continue;
    nearest = picDeck_[code];
    nearestDistance = distance;
  }
  if (nearest != nullptr) nearest->setFocus(Qt::TabFocusReason);
}

void frmDeck::ShowDeck() {
  for (Card code = 1; code <= kCardCount; ++code) {
    const bool inDeck = slots.InDeck(code);
    if (picDeck_[code]->isHidden() == inDeck) picDeck_[code]->setVisible(inDeck);
    picDeck_[code]->update();  // its marker may have changed
  }
}

void frmDeck::changeEvent(QEvent* event) {
  if (event->type() == QEvent::WindowStateChange && isMinimized()) {
    // Unless it goes with its owner, of which the news may come a little later.
    QTimer::singleShot(kOwnerMayFollow, this, [this] {
      if (isMinimized() && !parentWidget()->isMinimized()) showNormal();
    });
  }
  QWidget::changeEvent(event);
}

void frmDeck::closeEvent(QCloseEvent* event) { event->setAccepted(run.Ending); }

}  // namespace holdem
