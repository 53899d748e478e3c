// The stand-in poker client's real windows, found and read as the watcher does it.

#include <gtest/gtest.h>

#include "autoread/layouts.h"
#include "autoread/mod_card_read.h"
#include "autoread/mod_windows.h"
#include "other_program.h"
#include "platform/ports.h"
#include "platform/win32/win32_desktop.h"
#include "shown_window.h"

namespace holdem {
namespace {

using modWindows::IsTableObscured;
using modWindows::Points;

std::string Joined(const std::vector<std::string>& words) {
  std::string text;
  for (const std::string& word : words) text += (text.empty() ? "" : ",") + word;
  return text.empty() ? "-" : text;
}

std::string CardsAt(int seat, int count) {
  std::vector<modCardRead::CardPosition> positions;
  for (int card = 1; card <= count; ++card) positions.push_back({seat, card});
  const auto cards = modCardRead::ReadCards(positions);
  if (!cards) return "gone";
  std::vector<std::string> texts;
  for (const Card card : *cards) {
    if (!IsRealCard(card)) continue;
    texts.push_back({"?A23456789TJQK"[RankOf(card)], "?SDCH"[SuitOf(card)]});
  }
  return Joined(texts);
}

// What the table shows, in the client's words.
std::string ReadTable() {
  const int button = modCardRead::FindDealerSeat().value_or(-1);
  const auto holding = modCardRead::SeatsHoldingCards().value_or(std::array<bool, kSeats + 1>{});
  std::vector<std::string> opponents;
  for (int seat = 1; seat <= kSeats; ++seat) {
    if (holding[static_cast<std::size_t>(seat)] && seat != seats.MySeat) {
      opponents.push_back(std::to_string(seat));
    }
  }
  return "shows layout=" + std::to_string(autoRead.TableLayout) +
         " hero=" + std::to_string(seats.MySeat) + " hole=" + CardsAt(seats.MySeat, 2) +
         " board=" + CardsAt(kBoardSeat, 5) +
         " button=" + (button == 0 ? "-" : std::to_string(button)) +
         " holding=" + Joined(opponents);
}

// By layout, and whether the client counts the screen's own pixels.
class EveryLayout : public testing::TestWithParam<std::tuple<int, bool>> {};

TEST_P(EveryLayout, AllThatIsShownIsReadBack) {
  const auto [layout, aware] = GetParam();
  Win32Desktop desktop;
  ports.desktop = &desktop;
  LoadTableLayouts();
  seats.MySeat = 2 * layout - 1;

  const std::string number = std::to_string(layout);
  OtherProgram client("Z:" TABLE_CLIENT, "--wait-for-go --hands 4 --layout " + number + " --seed " +
                                             number + " --hero " + std::to_string(seats.MySeat) +
                                             " --position 90,60" + (aware ? " --aware" : ""));
  const std::string window = client.ReadLine().value_or("ended");
  auto shown = client.ReadLine();

  modWindows::FindTableWindows();
  ASSERT_EQ(autoRead.TableCandidates.size(), 1u);
  autoRead.CurrentTable = autoRead.TableCandidates[0];
  autoRead.TableLayout = autoRead.CurrentTable.layout;
  autoRead.WatchedWindow = autoRead.CurrentTable.windowHandle;
  const WindowHandle table = autoRead.WatchedWindow;
  EXPECT_EQ(window, "window " + std::to_string(table));
  EXPECT_EQ(autoRead.CurrentTable.processId, client.id());
  ASSERT_EQ(autoRead.TableLayout, layout);
  EXPECT_EQ(modCardRead::HasLayout3Marker(table), layout == 3);

  for (const Points points : {Points::WholeWindow, Points::SeatsOfTable}) {
    EXPECT_FALSE(IsTableObscured(table, points));
    const ShownWindow cover(kAfx, {300, 300, 700, 450});
    // The table may only now get the focus, which would raise it over a common window.
    SetWindowPos(cover.get(), HWND_TOPMOST, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE);
    EXPECT_TRUE(IsTableObscured(table, points));
  }

  int states = 0;
  for (; shown && *shown != "done"; shown = client.ReadLine(), ++states) {
    // What the client has drawn comes to the screen a moment later, through another program.
    std::string read = ReadTable();
    for (int tries = 0; read != *shown && tries < 100; ++tries) {
      Sleep(20);
      read = ReadTable();
    }
    ASSERT_EQ(read, *shown);
    client.WriteLine("go");
  }
  EXPECT_TRUE(shown) << "the client has failed";
  EXPECT_GT(states, 4 * 3);
}

INSTANTIATE_TEST_SUITE_P(, EveryLayout,
                         testing::Combine(testing::Range(1, kLayouts + 1), testing::Bool()));

TEST(TableClientTest, ATableThatGoesIsObscured) {
  Win32Desktop desktop;
  ports.desktop = &desktop;
  autoRead.TableLayout = 1;
  OtherProgram client("Z:" TABLE_CLIENT, "--wait-for-go");
  const auto window = client.ReadLine().value_or("window 0");
  const WindowHandle table = std::stoull(window.substr(window.find(' ')));
  client.ReadLine();
  for (const Points points : {Points::WholeWindow, Points::SeatsOfTable}) {
    ShowWindow(Native(table), SW_RESTORE);
    EXPECT_FALSE(IsTableObscured(table, points));
    ShowWindow(Native(table), SW_MINIMIZE);
    EXPECT_TRUE(IsTableObscured(table, points));
  }
  ShowWindow(Native(table), SW_RESTORE);
  EXPECT_FALSE(IsTableObscured(table, Points::WholeWindow));
  client.Kill();
  EXPECT_TRUE(IsTableObscured(table, Points::WholeWindow));
}

}  // namespace
}  // namespace holdem
