// The look that all windows share.
#pragma once

#include <QApplication>
#include <QPixmap>

namespace holdem {

// The same light colours and the same style on every desktop, so that what is painted stays
// legible.
void SetAppearance(QApplication& application);

// The program's icon, a square of `size` logical pixels with `ratio` of the screen's in each.
QPixmap ProgramIcon(int size, double ratio);

}  // namespace holdem
