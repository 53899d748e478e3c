// What the last look at the screen has found, in words for the indicator of Auto Read.
#pragma once

#include <string>

namespace holdem {

// Which table is followed, or why none is, in one or two sentences. It is valid UTF-8, whatever
// bytes the captions of other programs' windows hold.
std::string AutoReadInWords();

// At most 40 characters of a caption, with an ellipsis when it has been cut. Control characters are
// blanks; U+FFFD stands for each byte that is no part of a UTF-8 character.
std::string ShortCaption(const std::string& caption);

}  // namespace holdem
