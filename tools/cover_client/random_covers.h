// Windows of any size put over a followed table, to see what Auto Read makes of it. Used by main
// and by the tests.
#pragma once

#include <cstdint>
#include <functional>
#include <random>
#include <vector>

#include "platform/desktop.h"

namespace holdem::cover_client {

struct Cover {
  PixelArea area;          // on the screen
  bool takesMouse = true;  // else clicks go through it
  bool owned = false;      // by the table
  PixelColor color = 0;
};
using Covers = std::vector<Cover>;

// Of the placements, or of the covers that touch nothing that is read or asked for.
struct Tally {
  int placements = 0;
  int wrong = 0;    // another card than the table shows
  int emptied = 0;  // no card where the table shows one
  int seats = 0;    // seats or button rewritten
  int manual = 0;   // no longer followed
  int harmless = 0;
  int kept = 0;  // harmless, and followed all the time

  void Add(const Tally& other);
};

// REQUIRES ports.desktop with a table that stands still and is followed. `show` puts the covers on
// the screen in place of those of before, and comes back when they are there.
Tally CoverTable(int placements, std::minstd_rand& random,
                 const std::function<void(const Covers&)>& show);

}  // namespace holdem::cover_client
