#include "ui/controls.h"

#include <QPainter>
#include <QStylePainter>
#include <algorithm>
#include <climits>

#include "design/main_layout.h"
#include "painting/out_marker.h"
#include "platform/qt/qt_canvas.h"
#include "platform/qt/qt_drawing.h"
#include "state/results.h"
#include "ui/geometry.h"

namespace holdem {

namespace {

constexpr int kWrapped = Qt::TextWordWrap | Qt::TextShowMnemonic;

// Filled boxes are as thick on every side at every scale; a pen at half pixels may lose sides.
void DrawFrame(QPainter& painter, const QRect& box, int thickness, const QColor& color) {
  const QRect inside = box.adjusted(thickness, thickness, -thickness, -thickness);
  for (const QRect& side : QRegion(box) - inside) painter.fillRect(side, color);
}

// How much of its text's colour shows on a label that can be pressed, under the mouse.
constexpr double kHover = 0.12;
constexpr double kPressed = 0.3;
constexpr double kHoverEdge = 0.45;

// At least 3:1 against every ground in the windows that white is not: felt, paper, cards, levels.
const QColor kFocus(0, 50, 160);

QColor Faded(QColor color, double opacity) {
  color.setAlphaF(static_cast<float>(opacity));
  return color;
}

}  // namespace

void DrawFaint(QPainter& painter, const QRect& box, const QColor& background) {
  painter.fillRect(box, Faded(background, 0.75));
}

void DrawDropTarget(QPainter& painter, const QRect& box) {
  const QColor gold(255, 200, 0);
  painter.fillRect(box, Faded(gold, 0.35));
  DrawFrame(painter, box, 3, gold);
}

void DrawFocus(QPainter& painter, const QRect& box) {
  painter.fillRect(box, Faded(kFocus, 0.2));
  DrawFrame(painter, box, 1, Qt::white);
  DrawFrame(painter, box.adjusted(1, 1, -1, -1), 2, kFocus);
}

void GiveUpFocus(const QWidget& control) {
  if (control.hasFocus()) control.window()->setFocus();
}

Shape::Shape(QWidget* parent, const QString& name, Form form, const QColor& fill, int outline)
    : QWidget(parent), form_(form), fill_(fill), outline_(outline) {
  setObjectName(name);
  setAttribute(Qt::WA_TransparentForMouseEvents);
}

void Shape::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  const bool decorates = form_ == Form::RoundedFrame;  // grey, or it would look like a button
  painter.setPen(QPen(decorates ? palette().color(QPalette::Dark) : Qt::black, outline_));
  painter.setBrush(fill_);
  const double inset = outline_ / 2.0;
  const QRectF box = QRectF(rect()).adjusted(inset, inset, -inset, -inset);
  if (form_ == Form::Oval) {
    painter.drawEllipse(box);
  } else if (form_ == Form::Circle) {
    const double radius = std::min(box.width(), box.height()) / 2;
    painter.drawEllipse(box.center(), radius, radius);
    if (letter_.isEmpty()) return;
    QFont font = this->font();
    font.setPixelSize(std::max(1, qRound(1.4 * radius)));
    font.setBold(true);
    painter.setFont(font);
    painter.setPen(Qt::black);
    painter.drawText(box, Qt::AlignCenter, letter_);
  } else {
    const double corner = form_ == Form::RoundedFrame ? 6 : 0;
    painter.drawRoundedRect(box, corner, corner);
  }
}

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

RowTitle::RowTitle(QWidget* parent, int row) : QLabel(parent), row_(row) {}

void RowTitle::paintEvent(QPaintEvent* event) {
  QLabel::paintEvent(event);
  QPainter painter(this);
  QtCanvas canvas(painter, size(), size(), {});
  if (row_ < kCategoryRows) DrawRowMarker(canvas, row_);
}

// The title is written beside the sign.
void RowTitle::resizeEvent(QResizeEvent* event) {
  const Rect box = TwipRect(rect());
  const double room = row_ < kCategoryRows ? RowMarkerRoom({box.width, box.height}) : 0;
  setContentsMargins(WholePixels(room), 0, 0, 0);
  QLabel::resizeEvent(event);
}

CommandButton::CommandButton(QWidget* parent, const QString& name, const QString& text)
    : QPushButton(text, parent) {
  setObjectName(name);
  setFocusPolicy(Qt::TabFocus);
}

void CommandButton::paintEvent(QPaintEvent* event) {
  QPushButton::paintEvent(event);
  QPainter painter(this);
  if (hasFocus()) DrawFocus(painter, rect());
}

void CommandButton::mousePressEvent(QMouseEvent* event) {
  GiveUpFocus(*this);
  QPushButton::mousePressEvent(event);
}

void CaptionFrame::paintEvent(QPaintEvent*) {
  constexpr int kCaptionLeft = 9;  // pixels
  constexpr int kGap = 3;          // likewise, beside the caption
  QPainter painter(this);
  const QSize caption = fontMetrics().size(Qt::TextShowMnemonic, title());
  const QRect place(QPoint(kCaptionLeft, 0), caption);
  style()->drawItemText(&painter, place, Qt::AlignCenter | Qt::TextShowMnemonic, palette(),
                        isEnabled(), title(), QPalette::WindowText);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setClipRegion(QRegion(rect()) - place.adjusted(-kGap, 0, kGap, 0));
  painter.setPen(palette().color(QPalette::Dark));
  const int line = caption.height() / 2;
  painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, line + 0.5, -0.5, -0.5), 3, 3);
}

void EyeLabel::paintEvent(QPaintEvent*) {
  static const QtDrawing eye("eye");
  const double xRatio = width() / layout::kEyeBall.width;
  const double yRatio = height() / layout::kEyeBall.height;
  const auto& [left, top, pictureWidth, pictureHeight] = layout::kEye;
  const QRectF room((left - layout::kEyeBall.left) * xRatio, (top - layout::kEyeBall.top) * yRatio,
                    pictureWidth * xRatio, pictureHeight * yRatio);
  QRectF box(QPointF(), QSizeF(eye.Size()).scaled(room.size(), Qt::KeepAspectRatio));
  box.moveCenter(room.center());
  QPainter painter(this);
  eye.Paint(painter, box);
}

void WrappingCheckBox::mousePressEvent(QMouseEvent* event) {
  GiveUpFocus(*this);
  QCheckBox::mousePressEvent(event);
}

QStyleOptionButton WrappingCheckBox::Option() const {
  QStyleOptionButton option;
  initStyleOption(&option);
  option.text.clear();
  option.rect = rect() & parentWidget()->rect().translated(-pos());
  return option;
}

QRect WrappingCheckBox::TextBox() const {
  const QStyleOptionButton option = Option();
  QRect box = option.rect;
  box.setLeft(style()->subElementRect(QStyle::SE_CheckBoxContents, &option, this).left());
  return box;
}

QFont WrappingCheckBox::TextFont() const {
  constexpr double kLeastPoints = 2;
  const QSize room = TextBox().size();
  QFont fitting = font();
  const auto fits = [&] {
    const QSize size =
        QFontMetrics(fitting).boundingRect(0, 0, room.width(), INT_MAX, kWrapped, text()).size();
    return size.width() <= room.width() && size.height() <= room.height();
  };
  while (fitting.pointSizeF() > kLeastPoints && !fits()) {
    fitting.setPointSizeF(fitting.pointSizeF() - 0.25);
  }
  return fitting;
}

void WrappingCheckBox::paintEvent(QPaintEvent*) {
  QStylePainter painter(this);
  painter.drawControl(QStyle::CE_CheckBox, Option());
  painter.setFont(TextFont());
  painter.drawText(TextBox(), Qt::AlignVCenter | kWrapped, text());
  if (hasFocus()) DrawFocus(painter, TextBox());
}

}  // namespace holdem
