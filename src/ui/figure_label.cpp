#include "ui/figure_label.h"

#include "ui/marks.h"

namespace holdem {

FigureLabel::FigureLabel(QWidget* parent, std::function<std::string()> words,
                         std::function<std::string()> meaning)
    : QLabel(parent) {
  inWords = std::move(words);
  more = tip = std::move(meaning);
  setAccessibleName(" ");  // with a name of its own, a label does not announce each of its texts
}

bool FigureLabel::event(QEvent* event) { return ShowTip(*this, *event) || QLabel::event(event); }

// Plain text on one line: a fraction of what a label's own painting takes.
void FigureLabel::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  // With few colours a text on its own colour would be faintly there.
  const bool hidden = palette().color(foregroundRole()) == palette().color(QPalette::Window);
  if (!hidden) {
    painter.drawText(rect(), static_cast<int>(alignment()) | Qt::TextSingleLine, text());
  }
  if (hasFocus()) DrawFocus(painter, rect());
}

}  // namespace holdem
