#include "design/deck_layout.h"

namespace holdem {
namespace {

constexpr int kLowScreen = 800;  // pixels

// From the top: spades, hearts, clubs, diamonds, so that black and red rows alternate.
constexpr int RowOf(Card card) {
  constexpr std::array<int, 5> kRows = {0, 0, 3, 2, 1};
  return kRows[SuitOf(card)];
}

// Two to King, then the Ace.
constexpr int ColumnOf(Card card) { return RankWeight(RankOf(card)) - 2; }

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
  layout.cards = {lastOfFirstRow.left + card.width, lastOfLastRow.top + card.height};
  return layout;
}

}  // namespace holdem
