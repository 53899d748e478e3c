#include "autoread/confirmed_tables.h"

#include <algorithm>

#include "platform/desktop.h"
#include "platform/ports.h"
#include "state/seats.h"

namespace holdem {

ConfirmedTable* Confirmed() {
  const auto found = std::ranges::find_if(autoRead.ConfirmedTables, [](const auto& table) {
    return table.window == autoRead.CurrentTable.windowHandle &&
           table.process == autoRead.CurrentTable.processId;
  });
  return found == autoRead.ConfirmedTables.end() ? nullptr : &*found;
}

void Confirm() {
  Withdraw();
  autoRead.ConfirmedTables.push_back({autoRead.WatchedWindow, autoRead.CurrentTable.processId,
                                      autoRead.TableLayout, seats.AutoReadSeat});
}

void Withdraw() {
  std::erase_if(autoRead.ConfirmedTables,
                [](const auto& table) { return table.window == autoRead.WatchedWindow; });
}

void KeepSeat() {
  if (ConfirmedTable* const last = Confirmed()) last->seat = seats.AutoReadSeat;
}

void ForgetClosedTables() {
  std::erase_if(autoRead.ConfirmedTables, [](const auto& table) {
    return ports.desktop->ClassName(table.window).empty() ||
           ports.desktop->ProcessId(table.window) != table.process;
  });
}

}  // namespace holdem
