// What is painted on a control to mark it: the mark of the keyboard, and those of a card in the
// air.
#pragma once

#include <QPainter>
#include <QWidget>

namespace holdem {

// At least 3:1 against every ground in the windows that white is not: felt, paper, cards, levels.
inline constexpr QColor kFocus(0, 50, 160);

QColor Faded(QColor color, double opacity);

// Filled boxes are as thick on every side at every scale; a pen at half pixels may lose sides.
void DrawFrame(QPainter& painter, const QRect& box, int thickness, const QColor& color);

// Marks the control that has the keyboard; to be seen on every colour.
void DrawFocus(QPainter& painter, const QRect& box);

// Lets what has been drawn fade into its background.
void DrawFaint(QPainter& painter, const QRect& box, const QColor& background);

// Marks where the card in the air would come to lie; to be seen on cards and on the table.
void DrawDropTarget(QPainter& painter, const QRect& box);

// For a click with the mouse: no key may act on that control again unless it is asked for.
void GiveUpFocus(const QWidget& control);

}  // namespace holdem
