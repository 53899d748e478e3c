// Controls that a screen reader could not name by itself, since they are drawn or stand in a grid:
// they say in words what they show, when they are asked.
#pragma once

#include <functional>
#include <string>

class QEvent;
class QWidget;

namespace holdem {

// How screen readers are told that a control says something else now.
inline std::function<void(QWidget& control)> tellScreenReaders = [](QWidget&) {};

class Described {
 public:
  virtual ~Described() = default;

  std::function<std::string()> inWords;
  std::function<std::string()> more;  // the keys that act on it, or what the figure means
  std::function<std::string()> tip;   // for the mouse, where it helps; no tooltip while it is empty
  std::function<void()> onActivate;   // what a click does, where it does anything

  // What the control says may have changed: screen readers are told when it has.
  void AnnounceChange();

 protected:
  // Shows the tooltip when the event, of this control, asks for one.
  bool ShowTip(QWidget& control, QEvent& event) const;

 private:
  std::string announced_;
};

// From now on screen readers, where there are any, hear what described controls say.
void InstallDescriptions();

}  // namespace holdem
