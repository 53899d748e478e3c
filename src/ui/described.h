// The base of controls that a screen reader cannot name by itself, since they are drawn or stand in
// a grid. They say in words what they show.
#pragma once

#include <functional>
#include <string>

class QEvent;
class QWidget;

namespace holdem {

// Tells screen readers that a control says something else now. Does nothing before
// InstallDescriptions.
inline std::function<void(QWidget& control)> tellScreenReaders = [](QWidget&) {};

class Described {
 public:
  virtual ~Described() = default;

  std::function<std::string()> inWords;
  std::function<std::string()> more;  // the keys that act on it, or what the figure means
  std::function<std::string()> tip;   // the tooltip; none while this gives no text
  std::function<void()> onActivate;   // what a click does, where it does anything

  // Called when what the control says may have changed. Tells screen readers if it has.
  void AnnounceChange();

 protected:
  // Called with every event of the control. Where the event asks for the tooltip, shows it and
  // returns true.
  bool ShowTip(QWidget& control, QEvent& event) const;

 private:
  std::string announced_;
};

// From now on screen readers, where there are any, hear what described controls say.
void InstallDescriptions();

}  // namespace holdem
