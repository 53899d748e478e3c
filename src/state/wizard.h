// The answers given so far in the table setup wizard.
// Written by: autoread/setup_wizard
#pragma once

#include <array>

#include "state/seats.h"

namespace holdem {

struct Wizard {
  bool Open = false;
  Seat ChosenSeat;    // where the user sits; 0 while not chosen
  Seat ChosenDealer;  // where the button is; likewise
  std::array<bool, kSeats + 1> Present = {false, true, true, true, true, true,
                                          true,  true, true, true, true};  // by seat 1..10
};

inline Wizard wizard;

}  // namespace holdem
