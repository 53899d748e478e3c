#include "ui/buttons.h"

#include <QStylePainter>
#include <climits>

#include "ui/geometry.h"

namespace holdem {
namespace {

constexpr int kWrapped = Qt::TextWordWrap | Qt::TextShowMnemonic;

}  // namespace

CommandButton::CommandButton(QWidget* parent, const QString& name, const QString& text,
                             const Rect& box)
    : GivesUpFocus(text, parent) {
  SetNameAndBox(*this, name, box);
  setFocusPolicy(Qt::TabFocus);
}

void CommandButton::paintEvent(QPaintEvent* event) {
  QPushButton::paintEvent(event);
  QPainter painter(this);
  if (hasFocus()) DrawFocus(painter, rect());
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
