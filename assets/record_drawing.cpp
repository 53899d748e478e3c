// Records a drawing as the commands that paint it, so that only the build needs a reader of SVG:
//   record_drawing DRAWING.svg RECORD.pic

#include <QGuiApplication>
#include <QPainter>
#include <QPicture>
#include <QSvgRenderer>
#include <cstdio>

int main(int argc, char* argv[]) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  const QGuiApplication application(argc, argv);
  const QStringList arguments = QGuiApplication::arguments();
  QSvgRenderer drawing(arguments.value(1));
  if (arguments.size() != 3 || !drawing.isValid()) {
    std::fputs("usage: record_drawing DRAWING.svg RECORD.pic\n", stderr);
    return 2;
  }
  QPicture record;
  record.setBoundingRect({{0, 0}, drawing.defaultSize()});
  QPainter painter(&record);
  painter.setRenderHint(QPainter::Antialiasing);
  drawing.render(&painter, record.boundingRect());
  painter.end();
  return record.save(arguments[2]) ? 0 : 1;
}
