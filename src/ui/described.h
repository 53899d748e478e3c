// Controls that a screen reader could not name by itself, since they are drawn or stand in a grid:
// they say in words what they show, when they are asked.
#pragma once

#include <functional>
#include <string>

class QWidget;

namespace holdem {

class Described {
 public:
  virtual ~Described() = default;

  std::function<std::string()> inWords;
  std::function<void()> onActivate;  // what a click does, where it does anything
};

// From now on screen readers hear what described controls say.
void InstallDescriptions();

// The tooltip of a described control: what it says, then its hint (the accessible description).
void ShowDescription(QWidget& control, const Described& described);

}  // namespace holdem
