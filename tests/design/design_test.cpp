#include "advice/post_flop.h"
#include "design/deck_layout.h"
#include "design/screen_fit.h"
#include "engine/analysis_pass.h"
#include "engine/run_protocol.h"
#include "engine/simulation.h"
#include "fakes/fake_ports.h"
#include "table/seat_rules.h"
#include "words/explained.h"
#include "words/in_words.h"

namespace holdem {
namespace {

struct InWordsTest : ProgramTest {
  void Add(const std::string& situation, std::string words) {
    for (std::size_t end; (end = words.find('\n')) != std::string::npos;)
      words.replace(end, 1, " / ");
    said += situation + ": \"" + words + "\"\n";
  }

  std::string said;
};

TEST_F(InWordsTest, WhatScreenReadersAndTooltipsSay) {
  PutSeats("iii.2345ii 2 1");
  MarkButtonAndBlinds(1);
  for (const char* depth : {"fold depth off", "fold depth on"}) {
    for (int seat = 1; seat <= kSeats; ++seat) Add(depth, SeatTip(seat));
    seats.WatchFoldDepth = true;
  }
  FollowATable();
  for (const int seat : {2, 4, 5}) Add("followed", SeatTip(seat));
  PutSeats(".i..i..... 5 2");
  MarkButtonAndBlinds(2);
  for (const int seat : {2, 5}) Add("two players", SeatTip(seat));
  for (const int chosenDealer : {0, 4, 6}) {
    wizard = {.ChosenSeat = 4, .ChosenDealer = chosenDealer};
    wizard.Present[1] = false;
    for (const int seat : {1, 4, 6, 10})
      Add("wizard, user on 4, button on " + std::to_string(chosenDealer), WizardSeatTip(seat));
  }
  for (const double score : {kNoScore, -4.0, -1.0, 0.0, 0.5, 2.0, 3.0}) {
    advice.MeterScore = score;
    Add("score " + std::to_string(score), MeterInWords());
  }
  Add("no advice", AdviceInWords());
  slots.TypedSlot = 6;
  slots.TypedRank = 'T';
  Add("typed", SlotTip(6));
  for (int row = 0; row < kResultRows; ++row)
    Add("cell " + std::to_string(row), CellInWords("Me", row, row < 4 ? "" : " 12%"));
  Add("tip of a card that is no out", DeckCardTip(52));
  Put(kTurnHand);
  results.lblMe = {" 40%", kCurrent, "", " 5%", " 0.3%", "", "", "", " 61%"};
  results.lblThem[8] = " 100%";
  results.lblCurrentScore = "Pair of Aces";
  results.lblAdvice = "Check or Fold";
  analysis.PlayerCount = 7;
  analysis.FoldedCount = 3;
  std::istringstream copied(TableInWords());
  for (std::string line; std::getline(copied, line);) Add("copied", line);
  ExpectApproved("words", said);
}

TEST_F(InWordsTest, WhatTooltipsSayOfTheFigures) {
  for (const auto& [win, split] : {std::pair{0.27, 0.01}, {0.0, 0.0}, {0.004, 0.0}, {0.0, 1.0}})
    Add("price", PriceOfACall(win, split));
  const auto addAll = [&](const std::string& situation) {
    for (const int row : {1, 4, 6, 8}) {
      Add(situation + ", me, " + lbllbl[row], ExplainMine(row));
      Add(situation + ", another, " + lbllbl[row], ExplainTheirs(row));
    }
    Add(situation + ", advice", ExplainAdvice());
    Add(situation + ", new hand", ExplainNewHand());
  };
  Put("AS KD");
  Recalculate();
  addAll("before the flop");
  Put("AS KD 2C 5H KH");
  Recalculate();
  simulation.SimTally[kMe] = {.deals = 1000, .wins = 300, .splits = 40};
  results.lblMe = {"", kCurrent, "", "", " 5%", "", "", "", " 34%"};
  results.lblThem = {"", " 20%", "", "", "", "", "", "", " 70%"};
  advice.WinSplitChance = 0.34;
  PostFlopStep();
  FollowATable();
  addAll("on the flop");
  // An Ace that was read twice does no harm; then what lacks something.
  const std::pair<const char*, const char*> gaps[] = {{"AS AS AD AC AH", "iiiiiiiiii 2 1"},
                                                      {"AS KD 2C", "iiiiiiiiii 2 1"},
                                                      {"AS KD 2C 5H KH -- 9S", "iiiiiiiiii 2 1"},
                                                      {"AS KD 2C 5H KH", "2i22222222 2 1"}};
  for (const auto& [cards, seating] : gaps) {
    Put(cards), PutSeats(seating);
    Recalculate();
    Add(std::string(cards) + ", " + seating, ExplainAdvice());
  }
  MarkTableChanged();
  Add("a change that is not worked out", ExplainTheirs(8));
  ExpectApproved("explained", said);
}

using ScreenFitTest = ProgramTest;

TEST_F(ScreenFitTest, TheWindowsStandInTheFreePartOfTheScreen) {
  const std::tuple<int, PixelArea, double, PixelArea, PixelPoint> cases[] = {
      // The screen's height, what is free of it, the scale; then, scaled, both windows.
      {840, {0, 40, 1117, 840}, 1, {0, 40, 785, 330}, {785, 40}},
      {840, {200, 0, 1316, 840}, 1, {531, 0, 1316, 290}, {984, 290}},  // too narrow for both
      {651, {0, 0, 1920, 651}, 1, {1315, 0, 1588, 101}, {1588, 0}},    // 550 stay free below
      {650, {0, 0, 1920, 650}, 1, {803, 0, 1588, 290}, {1588, 0}},     // with 100 nothing is gained
      {480, {0, 0, 640, 440}, 1, {0, 0, 640, 236}, {308, 228}},        // as far below as it fits
      {1024, {0, 41, 1280, 1024}, 2, {0, 21, 640, 257}, {308, 257}},
      {984, {0, 0, 1921, 984}, 1.5, {166, 0, 948, 289}, {948, 0}}};
  for (const auto& [height, own, scale, main, deck] : cases) {
    screenState.ScreenHeightPx = height;
    const PixelArea free = modResize::LogicalArea(own, scale);
    EXPECT_EQ(modResize::PlaceMain(785, 290, 332, free, scale), main) << own.right;
    EXPECT_EQ(modResize::PlaceDeck(main, 332, 212, free), deck) << own.right;
  }
}

TEST_F(ScreenFitTest, SmallScreensAndFontsHaveTheirBorders) {
  const std::tuple<int, int, bool> screens[] = {
      {1025, 769, false}, {1024, 769, true}, {1025, 768, true}, {640, 480, true}};
  for (const auto& [width, height, small] : screens) {
    screenState = {.ScreenWidthPx = width, .ScreenHeightPx = height};
    EXPECT_EQ(modResize::IsSmallScreen(), small) << width << "x" << height;
  }
  EXPECT_EQ(modResize::SmallScreenMessage(),
            "Screen Resolution: 640x480\r\nProgram will be resized");
  constexpr auto kSmall = FontFamily::SmallFonts, kSans = FontFamily::MsSansSerif;
  const std::pair<double, Font> fonts[] = {
      {1.9, {kSmall, 2}}, {7.0, {kSmall, 7}}, {7.01, {kSans, 7.01}}, {73.0, {kSans, 72}}};
  for (const auto& [points, font] : fonts) EXPECT_EQ(modResize::ScaledFont(points), font) << points;
}

// From the Two on the left to the Ace, black and red rows by turns.
TEST_F(ScreenFitTest, TheDeckIsSmallerOnALowScreen) {
  const std::tuple<int, const char*, Rect> places[] = {
      {799, "2S", {50, 50, 400, 500}},       {799, "AH", {3890, 575, 400, 500}},
      {800, "2S", {50, 50, 435, 615}},       {800, "3H", {398, 695.75, 435, 615}},
      {800, "KC", {3878, 1341.5, 435, 615}}, {800, "AD", {4226, 1987.25, 435, 615}}};
  for (const auto& [screen, card, place] : places)
    EXPECT_TRUE(LayoutDeck(screen).picDeck[CardsOf(card)[0]] == place) << screen << card;
  const auto [at, window, cards] = LayoutDeck(800);
  EXPECT_EQ(std::tuple(window.width, window.height), std::tuple(4835, 3048.25));
  EXPECT_EQ(std::tuple(cards.width, cards.height), std::tuple(4661, 2602.25));
}

}  // namespace
}  // namespace holdem
