#include "ui/labels.h"

#include <QStyle>
#include <QToolTip>

#include "platform/qt/qt_canvas.h"
#include "platform/qt/qt_fonts.h"
#include "ui/geometry.h"

namespace holdem {
namespace {

// How strongly a label that can be pressed is tinted with the colour of its text while the mouse is
// on it.
constexpr double kHover = 0.12;
constexpr double kPressed = 0.3;
constexpr double kHoverEdge = 0.45;

template <typename Label>
void LetTextOverhang(Label& label) {
  const QSize text = label.fontMetrics().size(Qt::TextShowMnemonic, label.text());
  const QSize missing = (text - label.contentsRect().size()).expandedTo({0, 0});
  const int left = label.alignment() & Qt::AlignHCenter ? missing.width() / 2 : 0;
  const int top = missing.height() / 2;
  label.setGeometry(
      label.geometry().adjusted(-left, -top, missing.width() - left, missing.height() - top));
}

}  // namespace

ClickLabel::ClickLabel(QWidget* parent, const QString& text, Qt::Alignment alignment)
    : GivesUpFocus(parent), alignment_(alignment) {
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

// The part of the label that can be seen: where labels of a row overlap, the right one of two lies
// on top.
QRect ClickLabel::InSight() const {
  QRect box = rect();
  for (const auto* const other :
       parentWidget()->findChildren<QAbstractButton*>(Qt::FindDirectChildrenOnly)) {
    if (other->x() <= x() || !other->geometry().intersects(geometry())) continue;
    box.setRight(other->x() - x() - 1);
  }
  return box;
}

QString Indexed(const char* name, int index) {
  return QString::fromLatin1(name) + QString::number(index);
}

void SetColors(QWidget& control, Color text, const QColor& background) {
  QPalette palette = control.palette();
  palette.setColor(QPalette::WindowText, QtColor(text));
  palette.setColor(QPalette::Window, background);
  control.setPalette(palette);
  control.setAutoFillBackground(background.isValid());
}

void SetBold(QWidget& control, double points) {
  control.setFont(QtFont({FontFamily::MsSansSerif, points, true}));
}

QLabel& SetUpLabel(QLabel& label, const QString& name, const Rect& box, Qt::Alignment alignment,
                   Color text, const QColor& background) {
  SetNameAndBox(label, name, box);
  label.setAlignment(alignment);
  label.setTextFormat(Qt::PlainText);
  SetColors(label, text, background);
  return label;
}

QLabel* AddLabel(QWidget* parent, const QString& name, const QString& text, const Rect& box,
                 Qt::Alignment alignment, Color color, const QColor& background) {
  return &SetUpLabel(*new QLabel(text, parent), name, box, alignment, color, background);
}

ClickLabel* AddClickLabel(QWidget* parent, const QString& name, const char* text, const Rect& box,
                          Qt::Alignment alignment, Color color, const QColor& background) {
  auto* const label = new ClickLabel(parent, text, alignment);
  SetNameAndBox(*label, name, box);
  SetColors(*label, color, background);
  return label;
}

void SetTip(QWidget& control, const std::string& text) {
  const QString words = QtText(text);
  if (control.accessibleDescription() == words) return;
  const QString before = control.toolTip();
  control.setAccessibleDescription(words);
  control.setToolTip("<qt>" + words.toHtmlEscaped() + "</qt>");
  if (!QToolTip::isVisible() || QToolTip::text() != before) return;
  QToolTip::showText(QCursor::pos(), control.toolTip(), control.window());
}

void SetText(QLabel& label, const std::string& text) {
  const QString shown = QtText(text);
  if (label.text() != shown) label.setText(shown);
}

void LetTextsOverhang(const QWidget& window) {
  for (QWidget* const child : window.findChildren<QWidget*>()) {
    if (child->window() != &window) continue;
    if (auto* const label = dynamic_cast<QLabel*>(child); label != nullptr && !label->wordWrap()) {
      LetTextOverhang(*label);
    } else if (auto* const clickLabel = dynamic_cast<ClickLabel*>(child)) {
      LetTextOverhang(*clickLabel);
    }
  }
}

}  // namespace holdem
