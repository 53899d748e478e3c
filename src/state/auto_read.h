// What Auto Read knows: the table window that it follows, if any, and where it stands in the hand.
// Written by: autoread/
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "state/seats.h"
#include "state/window_handle.h"

namespace holdem {

// A window of another program, as found on the screen.
struct WindowRecord {
  std::uint32_t processId = 0;
  WindowHandle windowHandle = 0;
  std::string className;
  std::string caption;
  int width = 0;  // of the outer rectangle, in pixels
  int height = 0;
  int layout = 0;  // of the table it shows, 1..5; 0 for none
};

// A table for which the user has named the seat.
struct ConfirmedTable {
  WindowHandle window = 0;
  std::uint32_t process = 0;  // a handle may come again for another window
  int layout = 0;             // what it was then: chips may hide what tells layouts apart
  Seat seat;                  // of the table followed last, AutoReadSeat counts
};

// Why the window that comes nearest to a table is not followed, or that there is none.
enum class Finding {
  NoTable,
  OtherSize,     // than any table of its class
  OtherCaption,  // which does not say that it is Hold'em
  Covered,       // by another window
  OffTheScreen,  // if only in part
  Minimised,
  NotPainted,       // what every table shows is not there yet
  UnreadableScreen  // of colours that are not understood
};

// What the last look at the screen has found where it has found no table to follow.
struct LastLook {
  Finding finding = Finding::NoTable;
  WindowRecord window;  // which it is about; without a handle where there is none
  int tableWidth = 0;   // with OtherSize, what would make it a table, in pixels
  int tableHeight = 0;
  std::string coverCaption;  // with Covered, of the window that lies over it
};

struct AutoRead {
  std::vector<WindowRecord> TableCandidates;  // of the last discovery, the topmost first
  WindowRecord NearTable;  // the topmost window that came near one then; without a handle for none
  LastLook Look;
  // The table followed, and after it has been lost still the last one. The watcher begins to follow
  // one in `Follow`, which takes handle and layout from the record, and ends in
  // `ReturnToManualMode`; nothing else writes these three.
  WindowRecord CurrentTable;
  WindowHandle WatchedWindow = 0;               // 0 in Manual Mode
  int TableLayout = 0;                          // 1..5
  std::vector<ConfirmedTable> ConfirmedTables;  // as long as their windows live
  bool Ticking = false;   // a tick is going on; it may yield, and timers with it
  int WatchCycle = 0;     // 1, 2, 3, 1, ...; discovery runs on 1
  bool InHand = false;    // both hole cards have been read
  int CaptionAdjust = 0;  // 26 - the height in pixels of the caption bar measured last
  std::string lblMessage;

  bool Following() const { return WatchedWindow != 0; }
};

inline AutoRead autoRead;

}  // namespace holdem
