#include "advice/pre_flop.h"

#include "advice/hole_table.h"
#include "engine/analysis_pass.h"
#include "fakes/fake_ports.h"
#include "reference/card_text.h"
#include "table/settings_gestures.h"

namespace holdem {
namespace {

enum Blind { None, Small, Big };

struct Situation {
  const char* cards;
  int players, percent;
  Blind blind;
  int level;
  float factor;
  double score;
  const char* text;
};

class PreFlopTest : public ProgramTest {
 protected:
  PreFlopTest() { modHole::LoadHoleTable(); }

  static void Hold(const std::string& cards) {
    const std::vector<Card> held = CardsOf(cards);
    for (std::size_t i = 0; i < kSlotOrder.size(); ++i) {
      slots.picHand[kSlotOrder[i]] = i < held.size() ? held[i] : kNoCard;
    }
  }

  static void Advise(const Situation& s) {
    Hold(s.cards);
    analysis.PlayerCount = s.players;
    analysis.PositionPercent = s.percent;
    analysis.IsSmallBlind = s.blind == Small;
    analysis.IsBigBlind = s.blind == Big;
    settings.LevelPre = s.level;
    PreFlopStep();
  }
};

TEST_F(PreFlopTest, AdviceByHandSeatAndLevel) {
  const Situation cases[] = {
      {"KS KD", 10, 50, None, Avg, 1, 0.17 * 2 / 0.21, "Raise or Re-Raise"},
      {"QS QD", 10, 50, None, Avg, 1, 0.13 * 2 / 0.21, "Raise or call raised"},
      {"KS 9S", 10, 50, None, Avg, 1, 0.06 * 2 / 0.21, "Raise or call 1 small raise"},
      {"KS 9D", 10, 50, None, Avg, 1, 0.02 * 2 / 0.21, "Call unraised only"},
      {"KS 2D", 10, 50, None, Avg, 1, -0.25, "Fold"},
      {"KS 2D", 10, 0, Small, Avg, 1.1, -0.4, "Small Blind: Call. Fold if raised."},
      {"KS 2D", 10, 11, Big, Avg, 1.1, -0.4, "Big Blind: Check or Fold"},
      {"7S 2D", 10, 0, Small, Avg, 1.1, -1, "Small Blind: Fold"},
      {"AS AD", 10, 100, None, Tight, 0.97, 2, "Raise or Re-Raise"},
      {"AS AD", 2, 0, Big, Loose, 0.75, 2, "Raise or Re-Raise"},
      // Heads-up on the button: the small blind, last to act.
      {"7S 2D", 2, 100, Small, Avg, 0.62, 0.07 * 2 / 0.54, "Small Blind: Call. Fold if raised."},
      {"KS 9D", 10, 33, None, Avg, 1.1, 0.01 * 2 / 0.2, "Call unraised only"},
      {"KS 9D", 10, 34, None, Avg, 1, 0.02 * 2 / 0.21, "Call unraised only"},
      {"KS 9D", 10, 65, None, Avg, 1, 0.02 * 2 / 0.21, "Call unraised only"},
      {"KS 9D", 10, 66, None, Avg, 0.9, 0.03 * 2 / 0.22, "Call unraised only"},
      {"KS 9D", 10, 99, None, Avg, 0.9, 0.03 * 2 / 0.22, "Call unraised only"},
      {"KS 9D", 10, 100, None, Avg, 0.82, 0.038 * 2 / 0.228, "Call unraised only"},
      {"KS 9D", 10, 50, None, Tight, 1.15, 0.005 * 2 / 0.195, "Call unraised only"},
      {"KS 9D", 10, 50, None, Loose, 0.85, 0.035 * 2 / 0.225, "Call unraised only"},
      {"KS 9D", 10, 50, None, 7, 1, 0.02 * 2 / 0.21, "Call unraised only"},
      {"KS 9D", 10, 50, None, -1, 1, 0.02 * 2 / 0.21, "Call unraised only"},
  };
  for (const Situation& s : cases) {
    SCOPED_TRACE(testing::Message() << s.cards << ", " << s.players << " players at " << s.percent);
    Advise(s);
    EXPECT_EQ(advice.StartOpponents, s.players - 1);
    EXPECT_EQ(advice.FairShare, 1.0 / s.players);
    EXPECT_FLOAT_EQ(advice.LevelFactor, s.factor);
    EXPECT_DOUBLE_EQ(advice.MeterThreshold, advice.LevelFactor * advice.FairShare);
    EXPECT_NEAR(advice.MeterValue, s.score, 3e-6);
    EXPECT_EQ(results.lblAdvice, s.text);
  }
}

// On these the exact score lies on a border. Single precision puts it a hair to one side, and the
// advice follows.
TEST_F(PreFlopTest, ScoresAHairFromABorderStayOnTheirSide) {
  const Situation cases[] = {
      {"AS 2D", 5, 25, None, Avg, 1.1, 0, "Fold"},
      {"TS 3S", 5, 25, None, Loose, 0.95, 0, "Fold"},
      {"QS 2D", 5, 50, None, Loose, 0.85, 0, "Fold"},
      {"9S 2S", 5, 75, None, Avg, 0.9, 0, "Call unraised only"},
      {"KS 2D", 10, 89, None, Avg, 0.9, 0, "Call unraised only"},
      {"JS 2D", 5, 50, Small, Avg, 1, -0.5, "Small Blind: Fold"},
      {"8S 3D", 2, 0, Small, Avg, 0.9, -0.5, "Small Blind: Fold"},
      {"9S 3D", 3, 67, Small, Avg, 0.9, -0.5, "Small Blind: Fold"},
      {"JS 9D", 2, 0, Big, Avg, 0.9, 0.5, "Big Blind: Check or Fold"},
      {"KS 5S", 3, 100, None, Avg, 0.82, 0.5, "Call unraised only"},
      {"AS JD", 2, 0, Big, Avg, 0.9, 1, "Raise or call 1 small raise"},
      {"TS TD", 2, 0, Big, Avg, 0.9, 1.5, "Raise or call raised"},
  };
  for (const Situation& s : cases) {
    Advise(s);
    EXPECT_EQ(results.lblAdvice, s.text) << s.cards;
    EXPECT_NE(advice.MeterValue, s.score) << s.cards;
    EXPECT_NEAR(advice.MeterValue, s.score, 3e-7) << s.cards;
  }
}

TEST_F(PreFlopTest, OutcomeColumn) {
  const struct {
    const char* cards;
    int players;
    std::array<std::string, 9> me;
    const char* them;
  } cases[] = {
      {"AS KS", 10, {"44%", "22%", "4%", " 3%", "7%", "2%", "", "", "22%"}, "78%"},
      {"AS KD", 10, {"44%", "22%", "4%", " 3%", "2%", "2%", "", "", "18%"}, "82%"},
      {"5S 5D", 10, {"", "40%", "12%", " 2%", "2%", "9%", "1%", "", "13%"}, "87%"},
      {"4S 5S", 10, {"44%", "22%", "4%", " 9%", "7%", "2%", "", "", "13%"}, "87%"},
      // 0.53 x 100 falls short of 53 in single precision.
      {"KS 2D", 2, {"44%", "22%", "4%", " 2%", "2%", "2%", "", "", "53%"}, "47%"},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.cards);
    results = {};
    Hold(c.cards);
    analysis.PlayerCount = c.players;
    PreFlopStep();
    EXPECT_EQ(results.lblMe, c.me);
    EXPECT_EQ(results.lblThem,
              (std::array<std::string, 9>{"", "", "", "", "", "", "", "", c.them}));
  }
}

// The whole pass: the pair that the user holds already stands in its row, and a level click redoes
// the advice. Ten seats, the user after the button: the small blind.
TEST_F(PreFlopTest, ALevelClickRedoesTheAdviceAtOnce) {
  Hold("5S 5D");
  RunAnalysis();
  EXPECT_EQ(results.lblMe[0], "Current");
  EXPECT_EQ(results.lblCurrentScore, "Pair of Fives");
  EXPECT_EQ(results.lblAdvice, "Small Blind: Call. Fold if raised.");
  EXPECT_FLOAT_EQ(advice.LevelFactor, 1.1);
  EXPECT_NEAR(advice.MeterValue, 0.2, 1e-6);
  ChooseLevelPre(Loose);
  EXPECT_FLOAT_EQ(advice.LevelFactor, 0.95);
  EXPECT_EQ(results.lblMe[0], "Current");
  ChooseLevelPost(Tight);
  EXPECT_FLOAT_EQ(advice.LevelFactor, 0.95);
}

}  // namespace
}  // namespace holdem
