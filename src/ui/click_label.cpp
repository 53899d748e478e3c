#include "ui/click_label.h"

#include <QPainter>

#include "ui/marks.h"

namespace holdem {
namespace {

// How much of its text's colour shows on a label that can be pressed, under the mouse.
constexpr double kHover = 0.12;
constexpr double kPressed = 0.3;
constexpr double kHoverEdge = 0.45;

}  // namespace

ClickLabel::ClickLabel(QWidget* parent, const QString& name, const QString& text,
                       Qt::Alignment alignment)
    : QAbstractButton(parent), alignment_(alignment) {
  setObjectName(name);
  setText(text);
  setFocusPolicy(Qt::TabFocus);
  setBackgroundRole(QPalette::Window);  // as a label, not as a button
  setAttribute(Qt::WA_Hover);           // painted anew when the mouse comes and goes
}

void ClickLabel::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  const QColor ink = palette().color(QPalette::WindowText);
  if (hasFocus()) {
    painter.fillRect(rect(), kFocus);
  } else if (underMouse() && isEnabled()) {
    painter.fillRect(InSight(), Faded(ink, isDown() ? kPressed : kHover));
    DrawFrame(painter, InSight(), 1, Faded(ink, kHoverEdge));
  }
  if (raised_ && !hasFocus()) DrawFrame(painter, InSight(), 1, Faded(ink, kHoverEdge));
  style()->drawItemText(&painter, rect(), static_cast<int>(alignment_) | Qt::TextShowMnemonic,
                        palette(), isEnabled(), text(),
                        hasFocus() ? QPalette::HighlightedText : QPalette::WindowText);
  if (isChecked()) DrawFrame(painter, InSight(), 1, ink);
}

// Where the next one in the row overlaps it, that one is in sight.
QRect ClickLabel::InSight() const {
  QRect box = rect();
  for (const auto* const other :
       parentWidget()->findChildren<QAbstractButton*>(Qt::FindDirectChildrenOnly)) {
    if (other->x() <= x() || !other->geometry().intersects(geometry())) continue;
    box.setRight(other->x() - x() - 1);
  }
  return box;
}

void ClickLabel::mousePressEvent(QMouseEvent* event) {
  GiveUpFocus(*this);
  QAbstractButton::mousePressEvent(event);
}

}  // namespace holdem
