#include "table/card_gestures.h"

#include "cards/deck.h"
#include "fakes/fake_ports.h"
#include "table/card_slots.h"

namespace holdem {
namespace {

class CardGesturesTest : public ProgramTest {};

TEST_F(CardGesturesTest, MoveCardsBetweenDeckAndSlots) {
  const Card queen = CardsOf("QD")[0];
  const Card ace = CardsOf("AS")[0];
  const Card seven = CardsOf("7S")[0];
  const CardPlace inDeck{.deckCard = queen}, hole{.slot = 0};
  const CardPlace turn{.slot = kTurnSlot}, river{.slot = kRiverSlot};
  const char* gap = "AS 9D -- 5H KH 7S";
  const struct {
    std::function<void()> gesture;
    const char *before, *after;
    Reaction reaction;
  } cases[] = {
      {[=] { ClickDeckCard(queen); }, "", "QD", Calculated},
      {[=] { ClickDeckCard(queen); }, gap, "AS 9D QD 5H KH 7S", Calculated},
      {[=] { ClickDeckCard(queen); }, kTurnHand, "AS 9D 2C 5H KH 7S QD", Calculated},
      {[=] { ClickDeckCard(queen); }, kRiverHand, kRiverHand, Nothing},
      {[=] { ClickDeckCard(ace); }, gap, gap, Nothing},  // no longer in the deck
      {[=] { DropCard(inDeck, queen, inDeck); }, "AS", "AS QD", Calculated},
      {[=] { DropCard(inDeck, queen, {.deckCard = 30}); }, "AS", "AS", Nothing},
      {[=] { DropCard(inDeck, queen, river); }, "AS", "AS -- -- -- -- -- QD", Calculated},
      {[=] { DropCard(inDeck, queen, hole); }, kTurnHand, kTurnHand, Redone},
      {[=] { DropCard({.deckCard = ace}, ace, hole); }, kTurnHand, kTurnHand, Nothing},
      {[=] { DropCard(turn, seven, river); }, kTurnHand, "AS 9D 2C 5H KH -- 7S", Calculated},
      {[=] { DropCard(turn, seven, hole); }, kTurnHand, kTurnHand, Redone},
      {[=] { DropCard(hole, queen, river); }, kTurnHand, kTurnHand, Nothing},  // refilled since
      {[=] { DropCard(hole, ace, inDeck); }, kFlopHand, "-- 9D 2C 5H KH", Calculated},
      {[=] { DropCard(hole, queen, inDeck); }, kFlopHand, kFlopHand, Nothing},
      {[] { RightPressSlot(8); }, kRiverHand, "AS 9D 2C 5H -- 7S JD", Calculated},
      {[] { RightPressSlot(6); }, gap, gap, Nothing},
      {[] { DoubleClickSlot(1); }, gap, gap, Nothing}};
  for (const auto& c : cases) {
    SCOPED_TRACE(testing::Message() << &c - cases << ": " << c.before << " -> " << c.after);
    Put(c.before);
    EXPECT_EQ(ReactionTo(c.gesture), c.reaction);
    EXPECT_EQ(slots.picHand, SlotsOf(c.after));
  }
}

TEST_F(CardGesturesTest, ARandomCardIsNeverOneThatLiesInASlot) {
  Put("AS");
  for (const int slot : {10, 9, 8, 7, 6, 1}) {
    deck.free = 1;  // as left by a run that began before the first card was entered
    EXPECT_EQ(ReactionTo([&] { DoubleClickSlot(slot); }), Calculated);
    EXPECT_EQ(std::count(slots.picHand.begin(), slots.picHand.end(), slots.picHand[slot]), 1);
  }
}

TEST_F(CardGesturesTest, NewHandTakesAllCardsBack) {
  for (const WindowHandle watched : {0, 77}) {
    Put("-- -- 2C 5H KH 7S JD");
    PutSeats("i3.45i..i2 2 2");
    autoRead.WatchedWindow = watched;
    display.shown["seats"] = 0;
    EXPECT_EQ(ReactionTo(NewHand), Calculated);
    EXPECT_EQ(slots.picHand, SlotsOf(""));
    EXPECT_EQ(Seating(), watched != 0 ? "i3.45i..i2 2 2" : "i3.iii..ii 2 4");
    EXPECT_EQ(display.shown["seats"], 1);
  }
}

TEST_F(CardGesturesTest, TheMarkerBlinksOnTheNextSlotToFill) {
  const std::pair<const char*, int> cases[] = {
      {"", 0}, {"-- AS 9D 2C", 0}, {"AS 9D", 6}, {kTurnHand, 10}, {kRiverHand, kNoSlot}};
  for (const auto& [cards, next] : cases) {
    Put(cards);
    for (int tick = 1; tick <= 8; ++tick) {
      autoRead.WatchedWindow = tick > 4 ? 77 : 0;
      const int marked = tick == 1 || tick == 3 ? next : kNoSlot;
      const int shown = display.shown["slot " + std::to_string(marked)];
      Blink();
      EXPECT_EQ(slots.MarkedSlot, marked) << cards;
      if (marked == kNoSlot) continue;
      EXPECT_EQ(display.shown["slot " + std::to_string(marked)], shown + 1) << cards;
    }
  }
  Put("");
  slots.MarkedSlot = 0;
  ClickDeckCard(1);  // the card covers the marker
  EXPECT_EQ(slots.MarkedSlot, kNoSlot);
}

TEST_F(CardGesturesTest, TheAdviceBlinksUnlessItIsStillThoughtAbout) {
  for (const Color before : {kWhite, kTableGreen}) {
    const Color other = before == kWhite ? kTableGreen : kWhite;
    const std::pair<const char*, Color> cases[] = {
        {"Fold", other}, {kThinking, kWhite}, {"", before}};
    for (const auto& [text, after] : cases) {
      results.lblAdvice = text;
      results.lblAdviceColor = before;
      Blink();
      EXPECT_EQ(results.lblAdviceColor, after) << text;
    }
  }
}

}  // namespace
}  // namespace holdem
