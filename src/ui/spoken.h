// What is said without being asked for: by a screen reader, where there is one.
#pragma once

#include <QWidget>
#include <functional>
#include <string>

#include "ui/described.h"

namespace holdem {

// Says a sentence on behalf of a window. Does nothing before InstallSpeech.
inline std::function<void(QWidget& window, const std::string& sentence)> sayAloud =
    [](QWidget&, const std::string&) {};

// Screen readers do not speak when the name of a label changes, but they do when a notification
// appears. This one says that it appears, and is never seen. Each sentence has one of its own: a
// reader asks for the words a little later, when the next sentence may be there already.
class Notification : public QWidget, public Described {
 public:
  Notification(QWidget* window, const std::string& sentence);
};

// From now on screen readers speak.
void InstallSpeech();

}  // namespace holdem
