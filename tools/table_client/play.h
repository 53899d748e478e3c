// What happens at the stand-in client's table, as lines of text: a script's, or those of hands made
// up at random. Played by main.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "table_picture.h"

namespace holdem::table_client {

// Plays one line; a blank one or one that begins with # changes nothing. Returns what is wrong with
// it, and the table then is as it was. The lines are
//   hand hero=3 cards=AS,KD button=7 seats=1,2,5   a new hand; seats are the opponents dealt in;
//                                                  hero and button stay when not given
//   flop 2C 7D TH | turn QS | river 9H             cards of the board
//   fold 5                                         the hero or an opponent
//   button 8
//   end                                            all cards go
//   caption TEXT                                   changes nothing here
std::optional<std::string> Play(Table& table, const std::string& line);

// Lines for so many hands in a row, the hero always in the same seat.
std::vector<std::string> RandomHands(int layout, int heroSeat, int hands, std::uint32_t seed);

// "layout=1 hero=3 hole=AS,KD board=2C,7D,TH button=7 holding=1,2,5": all that a reader can see, a
// dash for what is not there.
std::string Describe(const Table& table);

}  // namespace holdem::table_client
