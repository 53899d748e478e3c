// A row of level labels in its frame: how tight or loose the advice is, before or after the flop.
#pragma once

#include <array>

#include "platform/canvas.h"
#include "ui/labels.h"

namespace holdem {

class LevelRow {
 public:
  // Adds the controls to the main window, which owns them. A click on a label chooses its level.
  LevelRow(QWidget* form, const char* frameName, const char* title, const Rect& box,
           const char* labelName, void (*choose)(int level));

  // Frames the label of this level. A stored setting may lie outside 0..2; then no label is framed.
  void Frame(int level);

 private:
  std::array<ClickLabel*, 3> labels_{};
};

}  // namespace holdem
