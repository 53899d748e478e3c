// The look that all windows share.
#pragma once

#include <QApplication>

namespace holdem {

// The same light colours and the same style on every desktop, so that what is painted stays
// legible.
void SetAppearance(QApplication& application);

}  // namespace holdem
