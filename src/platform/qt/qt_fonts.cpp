#include "platform/qt/qt_fonts.h"

#include <QStringList>
#include <algorithm>

namespace holdem {

QFont QtFont(const Font& font) {
  const bool serif = font.family == FontFamily::TimesNewRoman;
  QFont made;
  made.setFamilies({QString(serif ? "Times New Roman" : "Liberation Sans"),
                    QString(serif ? "Liberation Serif" : "Arial")});
  made.setStyleHint(serif ? QFont::Serif : QFont::SansSerif);
  made.setPointSizeF(std::max(font.points, 1.0));  // a picture may have no size left
  made.setBold(font.bold);
  return made;
}

}  // namespace holdem
