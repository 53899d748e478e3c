#include "platform/qt/qt_fonts.h"

namespace holdem {

QFont QtFont(const Font& font) {
  const bool serif = font.family == FontFamily::TimesNewRoman;
  QFont made;
  made.setFamilies({QString(serif ? "Times New Roman" : "Liberation Sans"),
                    QString(serif ? "Liberation Serif" : "Arial")});
  made.setStyleHint(serif ? QFont::Serif : QFont::SansSerif);
  made.setPointSizeF(font.points);
  made.setBold(font.bold);
  return made;
}

}  // namespace holdem
