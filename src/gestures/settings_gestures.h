// The four settings kept between runs of the program: reading them at start-up, and what the user
// does to change them. A stored text of any content starts the program with something sensible.
#pragma once

#include <string_view>

namespace holdem {

// A stored text as a whole number: its leading number, blanks skipped, "." as the decimal point,
// rounded with halves to even. 0 without a leading number; `otherwise` when empty or outside 16
// bits.
int SettingNumber(std::string_view text, int otherwise);

void LoadLevels();
void LoadSpeed();
void LoadFoldDepth();

// A click on one of a row's level labels; 0 Tight, 1 Avg, 2 Loose.
void ChooseLevelPre(int level);
void ChooseLevelPost(int level);

// 0..2; applies to the next simulation and starts none.
void ChooseSpeed(int speed);

void SetWatchFoldDepth(bool watch);

}  // namespace holdem
