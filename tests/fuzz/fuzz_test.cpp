#include "fuzz/fuzz.h"

#include <gtest/gtest.h>

#include "effort.h"
#include "fakes/table_window.h"
#include "fuzz/session.h"

namespace holdem::fuzz {
namespace {

using table_client::Table;

std::vector<std::uint8_t> AnyBytes(RandomGenerator& random, int count) {
  std::vector<std::uint8_t> bytes(static_cast<std::size_t>(count));
  for (std::uint8_t& byte : bytes) byte = static_cast<std::uint8_t>(random.Next() >> 56);
  return bytes;
}

std::string Hex(const std::vector<std::uint8_t>& bytes) {
  std::string text;
  for (const int byte : bytes)
    text += std::string{"0123456789abcdef"[byte >> 4], "0123456789abcdef"[byte & 15]};
  return text;
}

// A hand in Manual Mode; then a table of nine comes up, the user says where he sits, it is
// followed, and the user sets it up once more.
void NewHandFromTheTable(Session& session) {
  slots.picHand = {1, 22, 0, 0, 0, 0, 28, 20, 49};
  session.Do(Event::PressSeat);
  static const FakeWindow kTable = [] {
    Table table{.layout = 4, .heroSeat = 1, .hole = {2, 23}, .board = {28, 20, 49, 12}};
    table.looks.fill(table_client::SeatLook::In);
    return TableWindow(table, 77);
  }();
  session.desktop.windows = {kTable};
  session.Do(Event::Watch);
  session.WorkOff();
  session.Do(Event::Setup);
  session.Do(Event::WizardSeat);
  session.WorkOff();
}

TEST(Fuzz, AnyBytesAreSurvived) {
  const struct {
    const char* name;
    int (*target)(Bytes);
    int runs, longest;
  } targets[] = {{"settings", FuzzSettings, 20000, 160},
                 {"program", FuzzProgram, 400, 2000}};
  for (const auto& t : targets) {
    RandomGenerator random;
    int tried = 0;
    for (int i = 0; i < Effort(t.runs); ++i) {
      const auto bytes = AnyBytes(random, static_cast<int>(random.Next() % t.longest));
      try {
        tried += t.target(bytes);
      } catch (const Broken& broken) {
        FAIL() << t.name << ": " << broken.what() << "\nby " << Hex(bytes);
      }
    }
    EXPECT_GT(tried, Effort(t.runs) / 10) << t.name;
  }
}

// A user without a plan, who never turns to another program.
TEST(Fuzz, AHundredThousandGesturesLeaveEverythingInOrder) {
  RandomGenerator random;
  int gestures = 0;
  int calculated = 0;
  while (gestures < Effort(150'000)) {
    const auto bytes = AnyBytes(random, 3000);
    Session session(Session::Mode::Manual, bytes);
    try {
      session.Play();
    } catch (const Broken& broken) {
      FAIL() << broken.what() << "\nby " << Hex(bytes);
    }
    gestures += session.gestures;
    calculated += session.calculated;
  }
  EXPECT_GT(calculated, gestures / 10);
}

// Each event at each moment at which the program lets others act: in a run that a gesture has
// begun, in one that the watcher has (a table of nine comes up), while it asks for the seat, in the
// run after what it has read, and in the one after the wizard.
TEST(Fuzz, AnyEventAtAnyMoment) {
  // Plays with one event at one moment; returns how many moments there were.
  const auto play = [](int when, Event event, Bytes bytes) {
    int moments = 0;
    Session session(Session::Mode::Auto);
    session.atMoment = [&] {
      if (++moments != when) return;
      session.Give(bytes);
      session.Do(event);
      session.Give({});
    };
    NewHandFromTheTable(session);
    return moments;
  };
  const int moments = play(0, Event::End, {});
  ASSERT_EQ(moments, 4 * 13 + 1);
  RandomGenerator random;
  for (int event = 0; event < kEvents; ++event) {
    for (int variant = 0; variant < (kSanitized ? 1 : 8); ++variant) {
      const auto bytes = AnyBytes(random, 24);
      for (int when = 1; when <= moments; ++when) {
        try {
          play(when, static_cast<Event>(event), bytes);
        } catch (const Broken& broken) {
          FAIL() << "event " << event << " at moment " << when << ": " << broken.what() << "\nby "
                 << Hex(bytes);
        }
      }
    }
  }
}

}  // namespace
}  // namespace holdem::fuzz
