#include "play.h"

#include <algorithm>
#include <charconv>
#include <random>
#include <set>
#include <sstream>
#include <stdexcept>
#include <string_view>

namespace holdem::table_client {
namespace {

constexpr std::string_view kRanks = "A23456789TJQK";
constexpr std::string_view kSuits = "SDCH";

std::string CardText(Card card) {
  const auto index = static_cast<std::size_t>(card - 1);
  return {kRanks[index % kRanks.size()], kSuits[index / kRanks.size()]};
}

[[noreturn]] void Refuse(const std::string& what) { throw std::invalid_argument(what); }

Card ParseCard(const std::string& text) {
  const auto rank = kRanks.find(text.substr(0, 1));
  const auto suit = text.size() == 2 ? kSuits.find(text[1]) : kSuits.npos;
  if (rank == kRanks.npos || suit == kSuits.npos) Refuse("no card: " + text);
  return CardOf(static_cast<int>(suit) + 1, static_cast<int>(rank) + 1);
}

int ParseSeat(const Table& table, const std::string& text) {
  int seat = 0;
  const char* const end = text.data() + text.size();
  if (std::from_chars(text.data(), end, seat).ptr != end || !table.HasSeat(seat)) {
    Refuse("no seat of this table: " + text);
  }
  return seat;
}

std::vector<std::string> Split(const std::string& text, char separator) {
  std::vector<std::string> parts;
  std::istringstream stream(text);
  for (std::string part; std::getline(stream, part, separator);) {
    if (!part.empty()) parts.push_back(part);
  }
  return parts;
}

SeatLook& LookAt(Table& table, int seat) { return table.looks[static_cast<std::size_t>(seat)]; }

void NewHand(Table& table, const std::vector<std::string>& words) {
  table.hole = {};
  table.board = {};
  table.looks.fill(SeatLook::Empty);
  for (std::size_t i = 1; i < words.size(); ++i) {
    const auto equals = std::min(words[i].find('='), words[i].size() - 1);
    const std::string key = words[i].substr(0, equals);
    const std::string value = words[i].substr(equals + 1);
    const std::vector<std::string> list = Split(value, ',');
    if (key == "hero") {
      table.heroSeat = ParseSeat(table, value);
    } else if (key == "button") {
      table.buttonSeat = ParseSeat(table, value);
    } else if (key == "cards" && list.size() == 2) {
      table.hole = {ParseCard(list[0]), ParseCard(list[1])};
    } else if (key == "seats") {
      for (const std::string& seat : list) LookAt(table, ParseSeat(table, seat)) = SeatLook::In;
    } else {
      Refuse("not understood: " + words[i]);
    }
  }
  if (table.hole[0] == kNoCard) Refuse("a hand needs cards=");
  LookAt(table, table.heroSeat) = SeatLook::In;
}

void DealBoard(Table& table, const std::vector<std::string>& words) {
  const std::size_t first = words[0] == "flop" ? 0 : words[0] == "turn" ? 3 : 4;
  const std::size_t count = first == 0 ? 3 : 1;
  const auto& board = table.board;
  if (words.size() != 1 + count || board[first] != kNoCard ||
      (first > 0 && board[first - 1] == kNoCard)) {
    Refuse("not the time for this, or not so many cards");
  }
  for (std::size_t i = 0; i < count; ++i) table.board[first + i] = ParseCard(words[1 + i]);
}

void Fold(Table& table, int seat) {
  if (LookAt(table, seat) != SeatLook::In) Refuse("this seat holds no cards");
  LookAt(table, seat) = SeatLook::Folded;
  if (seat == table.heroSeat) table.hole = {};
}

void EndHand(Table& table) {
  table.hole = {};
  table.board = {};
  std::replace(table.looks.begin(), table.looks.end(), SeatLook::In, SeatLook::Folded);
}

void CheckCardsDiffer(const Table& table) {
  std::set<Card> seen;
  for (const auto& cards : {std::vector<Card>(table.hole.begin(), table.hole.end()),
                            std::vector<Card>(table.board.begin(), table.board.end())}) {
    for (const Card card : cards) {
      if (card != kNoCard && !seen.insert(card).second)
        Refuse("twice on the table: " + CardText(card));
    }
  }
}

std::string Joined(const std::vector<std::string>& parts) {
  std::string text;
  for (const std::string& part : parts) text += (text.empty() ? "" : ",") + part;
  return text.empty() ? "-" : text;
}

std::vector<std::string> Texts(const std::vector<int>& seats) {
  std::vector<std::string> texts;
  for (const int seat : seats) texts.push_back(std::to_string(seat));
  return texts;
}

template <typename Cards>
std::string CardTexts(const Cards& cards) {
  std::vector<std::string> texts;
  for (const Card card : cards) {
    if (card != kNoCard) texts.push_back(CardText(card));
  }
  return Joined(texts);
}

// Makes the lines up. Its draws are its own, so that a seed means the same hands everywhere.
class RandomPlay {
 public:
  RandomPlay(int layout, int heroSeat, std::uint32_t seed)
      : table_{.layout = layout, .heroSeat = heroSeat}, random_(seed), button_(Below(kSeatCount)) {}

  std::vector<std::string> lines;

  void PlayHand() {
    Shuffle();
    SitDown();
    MoveButton();
    AddLine("hand cards=", Joined({Deal(), Deal()}), " button=", std::to_string(button_),
            " seats=", Joined(Texts(opponents_)));
    heroIn_ = true;
    FoldSome();
    for (const char* const street : {"flop", "turn", "river"}) {
      if (Below(8) == 0) break;
      AddLine(street);
      for (int card = *street == 'f' ? 3 : 1; card > 0; --card) lines.back() += ' ' + Deal();
      FoldSome();
    }
    AddLine("end");
  }

 private:
  int Below(int limit) { return static_cast<int>(random_() % static_cast<unsigned>(limit)); }

  template <typename... Parts>
  void AddLine(const Parts&... parts) {
    lines.emplace_back();
    (lines.back().append(parts), ...);
  }

  void Shuffle() {
    deck_.clear();
    for (Card card = 1; card <= kCardCount; ++card) deck_.push_back(CardText(card));
    for (int left = kCardCount; left > 1; --left) {
      std::swap(deck_[static_cast<std::size_t>(left - 1)],
                deck_[static_cast<std::size_t>(Below(left))]);
    }
  }
  std::string Deal() {
    std::string card = deck_.back();
    deck_.pop_back();
    return card;
  }

  void SitDown() {
    opponents_.clear();
    for (int seat = 1; seat <= kSeatCount; ++seat) {
      if (table_.HasSeat(seat) && seat != table_.heroSeat && Below(5) > 0) {
        opponents_.push_back(seat);
      }
    }
    if (opponents_.empty()) opponents_.push_back(table_.heroSeat % 2 + 1);
  }

  void MoveButton() {
    do button_ = button_ % kSeatCount + 1;
    while (button_ != table_.heroSeat &&
           std::count(opponents_.begin(), opponents_.end(), button_) == 0);
  }

  // One opponent stays.
  void FoldSome() {
    const std::vector<int> before = opponents_;
    for (const int seat : before) {
      if (opponents_.size() == 1 || Below(4) > 0) continue;
      AddLine("fold ", std::to_string(seat));
      std::erase(opponents_, seat);
    }
    if (!heroIn_ || Below(8) > 0) return;
    AddLine("fold ", std::to_string(table_.heroSeat));
    heroIn_ = false;
  }

  Table table_;
  std::mt19937 random_;
  int button_;
  std::vector<std::string> deck_;
  std::vector<int> opponents_;  // that hold cards
  bool heroIn_ = false;
};

}  // namespace

std::optional<std::string> Play(Table& table, const std::string& line) try {
  const std::vector<std::string> words = Split(line, ' ');
  if (words.empty() || words[0][0] == '#' || words[0] == "caption") return std::nullopt;
  Table next = table;
  if (words[0] == "hand") {
    NewHand(next, words);
  } else if (words[0] == "flop" || words[0] == "turn" || words[0] == "river") {
    DealBoard(next, words);
  } else if (words[0] == "fold" && words.size() == 2) {
    Fold(next, ParseSeat(table, words[1]));
  } else if (words[0] == "button" && words.size() == 2) {
    next.buttonSeat = ParseSeat(table, words[1]);
  } else if (words[0] == "end" && words.size() == 1) {
    EndHand(next);
  } else {
    Refuse("not understood");
  }
  CheckCardsDiffer(next);
  table = next;
  return std::nullopt;
} catch (const std::invalid_argument& wrong) {
  return wrong.what();
}

std::vector<std::string> RandomHands(int layout, int heroSeat, int hands, std::uint32_t seed) {
  RandomPlay play(layout, heroSeat, seed);
  for (int hand = 0; hand < hands; ++hand) play.PlayHand();
  return play.lines;
}

std::string Describe(const Table& table) {
  std::vector<int> holding;
  for (int seat = 1; seat <= kSeatCount; ++seat) {
    if (table.looks[static_cast<std::size_t>(seat)] == SeatLook::In && seat != table.heroSeat) {
      holding.push_back(seat);
    }
  }
  return "layout=" + std::to_string(table.layout) + " hero=" + std::to_string(table.heroSeat) +
         " hole=" + CardTexts(table.hole) + " board=" + CardTexts(table.board) +
         " button=" + (table.buttonSeat == 0 ? "-" : std::to_string(table.buttonSeat)) +
         " holding=" + Joined(Texts(holding));
}

}  // namespace holdem::table_client
