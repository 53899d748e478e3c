// The answers given so far in the table setup wizard.
// Written by: autoread/setup_wizard
#pragma once

#include <array>

#include "state/seats.h"

namespace holdem {

struct Wizard {
  bool Open = false;
  int chosenSeat = 0;    // where the user sits; 0 while not chosen
  int chosenDealer = 0;  // where the button is; likewise
  std::array<bool, kSeats + 1> present = {false, true, true, true, true, true,
                                          true,  true, true, true, true};  // by seat 1..10
};

inline Wizard wizard;

}  // namespace holdem
