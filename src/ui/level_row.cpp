#include "ui/level_row.h"

#include <QGroupBox>
#include <QStyle>

#include "design/main_layout.h"
#include "platform/qt/qt_canvas.h"
#include "state/settings.h"
#include "ui/geometry.h"

namespace holdem {
namespace {

constexpr struct {
  const char* text;
  const char* tip;
  Color color;
} kLevels[] = {{"Tight", "Play few hands, only the strong ones", {255, 192, 192}},
               {"Avg", "Play the hands worth playing", {255, 255, 192}},
               {"Loose", "Play many hands, also the weaker ones", {192, 255, 192}}};

// A frame with its title on the line, whatever the size of the font.
class TitledFrame : public QGroupBox {
 public:
  using QGroupBox::QGroupBox;

 protected:
  void paintEvent(QPaintEvent*) override {
    constexpr int kTitleLeft = 9;  // pixels
    constexpr int kGap = 3;        // likewise, beside the title
    QPainter painter(this);
    const QSize size = fontMetrics().size(Qt::TextShowMnemonic, title());
    const QRect titleBox(QPoint(kTitleLeft, 0), size);
    style()->drawItemText(&painter, titleBox, Qt::AlignCenter | Qt::TextShowMnemonic, palette(),
                          isEnabled(), title(), QPalette::WindowText);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setClipRegion(QRegion(rect()) - titleBox.adjusted(-kGap, 0, kGap, 0));
    painter.setPen(palette().color(QPalette::Dark));
    const int line = size.height() / 2;
    painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, line + 0.5, -0.5, -0.5), 3, 3);
  }
};

}  // namespace

LevelRow::LevelRow(QWidget* form, const char* frameName, const char* title, const Rect& box,
                   const char* labelName, void (*choose)(int level)) {
  auto* const frame = new TitledFrame(title, form);
  SetNameAndBox(*frame, frameName, box);
  for (int level = 0; level < static_cast<int>(labels_.size()); ++level) {
    const auto& look = kLevels[level];
    ClickLabel* const label =
        AddClickLabel(frame, Indexed(labelName, level), look.text, layout::kLevels[level],
                      Qt::AlignCenter, kBlack, QtColor(look.color));
    label->setCheckable(true);
    label->setAutoExclusive(true);
    label->setToolTip(look.tip);
    QObject::connect(label, &ClickLabel::clicked, frame, [choose, level] { choose(level); });
    labels_[level] = label;
  }
}

void LevelRow::Frame(int level) {
  if (level < Tight || level > Loose) return;
  labels_[level]->setChecked(true);
  // Tab leads to the chosen one, the arrows to the others.
  for (ClickLabel* const label : labels_) {
    label->setFocusPolicy(label->isChecked() ? Qt::TabFocus : Qt::NoFocus);
  }
}

}  // namespace holdem
