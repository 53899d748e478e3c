#include "platform/qt/qt_fonts.h"

#include <QFontDatabase>
#include <QStringList>
#include <algorithm>

namespace holdem {
namespace {

// The first of the families that the system has. Qt is given no more: for a list, or for a family
// that is not there, it looks through all fonts for a similar one.
QStringList Installed(const QStringList& families) {
  static const QStringList kAll = QFontDatabase::families();
  for (const QString& family : families) {
    if (kAll.contains(family)) return {family};
  }
  return families;
}

}  // namespace

QFont QtFont(const Font& font) {
  static const QStringList kFamilies[] = {
      // by FontFamily
      Installed({"Times New Roman", "Liberation Serif"}),
      Installed({"Liberation Sans Narrow", "Arial Narrow", "Liberation Sans", "Arial"}),
      Installed({"Liberation Sans", "Arial"})};
  const bool serif = font.family == FontFamily::TimesNewRoman;
  QFont made;
  made.setFamilies(kFamilies[static_cast<int>(font.family)]);
  made.setStyleHint(serif ? QFont::Serif : QFont::SansSerif);
  made.setPointSizeF(std::max(font.points, 1.0));  // a picture may have no size left
  made.setBold(font.bold);
  return made;
}

}  // namespace holdem
