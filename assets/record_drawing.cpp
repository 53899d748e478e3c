// Records a drawing as the commands that paint it, so that only the build needs a reader of SVG:
//   record_drawing DRAWING.svg RECORD.pic

#include <QGuiApplication>
#include <QPainter>
#include <QPicture>
#include <QSvgRenderer>
#include <cstdio>

// Ends with 1 for what is no drawing, or where the record cannot be written.
int main(int argc, char* argv[]) {
  qputenv("QT_QPA_PLATFORM", "minimal");
  const QGuiApplication application(argc, argv);
  const QStringList arguments = QGuiApplication::arguments();
  if (arguments.size() != 3) {
    std::fputs("usage: record_drawing DRAWING.svg RECORD.pic\n", stderr);
    return 2;
  }
  QSvgRenderer drawing(arguments[1]);
  if (!drawing.isValid()) return 1;
  QPicture record;
  record.setBoundingRect({{0, 0}, drawing.defaultSize()});
  QPainter painter(&record);
  painter.setRenderHint(QPainter::Antialiasing);
  drawing.render(&painter, record.boundingRect());
  painter.end();
  return record.save(arguments[2]) ? 0 : 1;
}
