// What is said without being asked for: by a screen reader, where there is one.
#pragma once

#include <QWidget>
#include <functional>
#include <string>

#include "ui/described.h"

namespace holdem {

// Says a sentence on behalf of a window.
inline std::function<void(QWidget& window, const std::string& sentence)> sayAloud =
    [](QWidget&, const std::string&) {};

// Readers drop changes of a label's name; what they speak is a notification that is shown. This one
// says that it is, but is never seen. Each sentence has its own: a reader asks for it a little
// later, when there may be the next.
class Notification : public QWidget, public Described {
 public:
  Notification(QWidget* window, const std::string& sentence);
};

// From now on screen readers speak.
void InstallSpeech();

}  // namespace holdem
