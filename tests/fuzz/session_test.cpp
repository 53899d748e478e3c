#include "fuzz/session.h"

#include "effort.h"

namespace holdem::fuzz {
namespace {

std::vector<std::uint8_t> AnyBytes(RandomGenerator& random, std::size_t count) {
  std::vector<std::uint8_t> bytes(count);
  for (std::uint8_t& byte : bytes) byte = static_cast<std::uint8_t>(random.Next() >> 56);
  return bytes;
}

// Users without a plan; with other programs beside, and without.
TEST(Session, AnyScriptLeavesEverythingInOrder) {
  RandomGenerator random;
  int calculated = 0;
  for (int i = 0; i < Effort(1000); ++i) {
    const auto bytes = AnyBytes(random, 2000);
    Session session(i % 2 == 0, bytes);
    session.Play();
    calculated += session.calculated;
  }
  EXPECT_GT(calculated, Effort(1000) * 30);
}

// A hand in Manual Mode; then a table of nine comes up, the user says where he sits, it is
// followed, and the user sets it up once more. With one event at one of the moments at which the
// program lets others act: in the run that the gesture begins, in the one that the watcher does,
// while it asks for the seat, in the run after what it has read, and in the one after the wizard.
// False when there were not so many.
bool Play(int when, const std::string& event, Bytes bytes) {
  table_client::Table table{.layout = 4, .heroSeat = 1, .hole = {2, 23}, .board = {28, 20, 49, 12}};
  table.looks.fill(table_client::SeatLook::In);
  static const FakeWindow kWindow = TableWindow(table, 77);
  Session session(true);
  int moments = 0;
  session.atMoment = [&] {
    if (++moments != when) return;
    session.script = bytes;
    session.Do(event);
    session.script = {};
  };
  slots.picHand = {1, 22, 0, 0, 0, 0, 28, 20, 49};
  session.Do("press seat");
  session.desktop.windows = {kWindow};
  session.Do("watch");
  session.Do("resize");  // a pass before the refresh timer's
  session.WorkOff();
  session.Do("set up");
  session.Do("press seat");
  session.WorkOff();
  return moments >= when;
}

TEST(Session, AnyEventAtAnyMoment) {
  RandomGenerator random;
  const auto events = Session(true).events;
  for (const auto& [event, act] : events) {
    for (int variant = 0; variant < (kSanitized ? 1 : 8); ++variant) {
      const auto bytes = AnyBytes(random, 24);
      int when = 1;
      while (Play(when, event, bytes)) ++when;
      EXPECT_EQ(when, 4 * 13 + 2);
    }
  }
}

}  // namespace
}  // namespace holdem::fuzz
