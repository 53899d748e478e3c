// The bitmaps that the stand-in client draws its cards and texts with. They are its own: each rank
// has all its strokes, of which a card reader may look at any part.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace holdem::table_client {

using Bitmap = std::vector<std::string>;  // rows of # for ink and . for none

enum class RankStyle { Serif, Tall, Narrow, Bold };
enum class SuitStyle { Small, Large };

const Bitmap& RankGlyph(RankStyle style, int rank);  // 1 the Ace .. 13 the King
const Bitmap& SuitGlyph(SuitStyle style, int suit);  // 1 spades, diamonds, clubs, hearts
const Bitmap* LetterGlyph(char letter);              // five by seven; none for most letters

}  // namespace holdem::table_client
