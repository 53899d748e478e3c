#include "ui/hand_meter.h"

#include <QPainter>

#include "painting/advice_meter.h"
#include "platform/qt/qt_canvas.h"
#include "state/analysis.h"
#include "words/in_words.h"

namespace holdem {

HandMeter::HandMeter(QWidget* parent) : PictureBox(parent, "picHandMeter", &DrawMeterPointer) {
  inWords = &MeterInWords;
  tip = &MeterInWords;
}

void HandMeter::paintEvent(QPaintEvent* event) {
  const QSize pixels = (QSizeF(size()) * devicePixelRatioF()).toSize();
  const bool beforeFlop = analysis.CurrentStreet == PreFlop;
  if (scale_.size() != pixels || scaleIsBeforeFlop_ != beforeFlop) {
    scale_ = QPixmap(pixels);
    scale_.setDevicePixelRatio(devicePixelRatioF());
    scale_.fill(palette().color(QPalette::Window));
    scaleIsBeforeFlop_ = beforeFlop;
    QPainter painter(&scale_);
    QtCanvas canvas(painter, size(), size(), {});
    DrawMeterScale(canvas);
  }
  QPainter(this).drawPixmap(0, 0, scale_);
  PictureBox::paintEvent(event);
}

}  // namespace holdem
