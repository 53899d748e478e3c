#include "words/auto_read_words.h"

#include <bit>
#include <string_view>

#include "state/auto_read.h"

namespace holdem {
namespace {

// The length in bytes of the UTF-8 character that the text begins with; 0 where it begins with
// none.
std::size_t LengthOfCharacter(std::string_view text) {
  const auto first = static_cast<unsigned char>(text[0]);
  const auto ones = static_cast<std::size_t>(std::countl_one(first));
  const std::size_t length = ones == 0 ? 1 : ones;
  if (ones == 1 || length > 4 || length > text.size()) return 0;
  for (const char c : text.substr(1, length - 1)) {
    if (std::countl_one(static_cast<unsigned char>(c)) != 1) return 0;
  }
  return length;
}

bool IsControl(std::string_view character) {
  return character.size() == 1 &&
         (static_cast<unsigned char>(character[0]) < ' ' || character[0] == '\x7F');
}

std::string Quoted(const std::string& caption) { return "\"" + ShortCaption(caption) + "\""; }

// As: The table "Table 4"
std::string The(const char* what, const WindowRecord& window) {
  return std::string("The ") + what +
         (window.caption.empty() ? std::string() : ' ' + Quoted(window.caption));
}

std::string SizeInWords(int width, int height) {
  return std::to_string(width) + " \u00D7 " + std::to_string(height);
}

std::string LookInWords(const LastLook& look) {
  const WindowRecord& window = look.window;
  switch (look.finding) {
    case Finding::NoTable: return "There is no table on the screen.";
    case Finding::OtherSize:
      return The("window", window) + " would be a table at " +
             SizeInWords(look.tableWidth, look.tableHeight) + " but is " +
             SizeInWords(window.width, window.height) + ".";
    case Finding::OtherCaption:
      return "The caption of " + Quoted(window.caption) + " does not say Hold'em.";
    case Finding::Covered:
      return The("table", window) + " is covered by " +
             (look.coverCaption.empty() ? "another window" : Quoted(look.coverCaption)) + ".";
    case Finding::OffTheScreen: return The("table", window) + " is partly off the screen.";
    case Finding::Minimised: return The("table", window) + " is minimised.";
    case Finding::NotPainted: return The("table", window) + " is not painted yet.";
    case Finding::UnreadableScreen:
      return The("table", window) + " cannot be read: the screen's colours are not understood.";
  }
  return {};
}

}  // namespace

std::string ShortCaption(const std::string& caption) {
  constexpr int kLongest = 40;
  std::string words;
  std::string_view rest = caption;
  for (int characters = 0; !rest.empty(); ++characters) {
    if (characters == kLongest) return words + "\u2026";
    const std::size_t length = LengthOfCharacter(rest);
    const std::string_view character = rest.substr(0, length);
    words += length == 0 ? "\uFFFD" : IsControl(character) ? " " : character;
    rest.remove_prefix(length == 0 ? 1 : length);
  }
  return words;
}

std::string AutoReadInWords() {
  if (!autoRead.Following()) return LookInWords(autoRead.Look);
  return The("table", autoRead.CurrentTable) +
         " is followed. What you change by hand is set right by the next look at it.";
}

}  // namespace holdem
