#include "ui/figure_label.h"

#include "ui/marks.h"

namespace holdem {

FigureLabel::FigureLabel(QWidget* parent, std::function<std::string()> words,
                         std::function<std::string()> meaning)
    : QLabel(parent) {
  inWords = std::move(words);
  more = tip = std::move(meaning);
  setAccessibleName(" ");  // without a name, Qt announces each new text
}

bool FigureLabel::event(QEvent* event) { return ShowTip(*this, *event) || QLabel::event(event); }

// One line of plain text takes a fraction of the time that QLabel's own painting takes.
void FigureLabel::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  // Text in the colour of its background is left out: on a display with few colours it would be
  // seen faintly.
  const bool hidden = palette().color(foregroundRole()) == palette().color(QPalette::Window);
  if (!hidden) {
    painter.drawText(rect(), static_cast<int>(alignment()) | Qt::TextSingleLine, text());
  }
  if (hasFocus()) DrawFocus(painter, rect());
}

}  // namespace holdem
