#include "ui/results_view.h"

#include "design/in_words.h"
#include "design/main_layout.h"
#include "painting/advice_meter.h"
#include "painting/row_colors.h"
#include "platform/qt/qt_canvas.h"
#include "ui/geometry.h"
#include "ui/labels.h"

namespace holdem {

ResultsView::ResultsView(QWidget* form) {
  for (const layout::Column& column : layout::kColumns) {
    QLabel* const header = AddLabel(form, Indexed("lblTop", column.headerIndex), column.header,
                                    HeaderPlace(column), Qt::AlignCenter, kBlack);
    header->setWordWrap(true);
  }
  for (int row = 0; row < kResultRows; ++row) AddGridRow(form, row);
  lblCurrentScore_ =
      AddLabel(form, "lblCurrentScore", {}, layout::kCurrentScore, Qt::AlignCenter, kWhite);
  SetBold(*lblCurrentScore_, 8);
  lblAdvice_ = AddLabel(form, "lblAdvice", {}, layout::kAdvice, Qt::AlignCenter, kWhite,
                        QtColor(kTableGreen));
  SetBold(*lblAdvice_, 12);
  picHandMeter_ = new PictureBox(form, "picHandMeter", &DrawAdviceMeter);
  picHandMeter_->setGeometry(PixelRect(layout::kHandMeter));
  picHandMeter_->inWords = &MeterInWords;
  picHandMeter_->tip = &MeterInWords;
}

void ResultsView::AddGridRow(QWidget* form, int row) {
  const auto addCell = [&](const char* name, int column, Color color, Color background) {
    auto* const cell = new ResultCell(form);
    SetUpLabel(*cell, Indexed(name, row), RowPlace(layout::kColumns[column], row), Qt::AlignCenter,
               color, QtColor(background));
    if (row == kWinSplitRow) SetBold(*cell, 8);
    return cell;
  };
  lblMe_[row] = addCell("lblMe", 0, kBlack, kWhite);
  lblMe_[row]->inWords = [row] { return CellInWords("Me", row, results.lblMe[row]); };
  addCell("lbllbl", 1, kRowTitleText, kRowColors[row])->setText(lbllbl[row]);
  lblThem_[row] = addCell("lblThem", 2, kBlack, kWhite);
  lblThem_[row]->inWords = [row] {
    return CellInWords("Another player", row, results.lblThem[row]);
  };
}

void ResultsView::ShowResults() {
  for (int row = 0; row < kResultRows; ++row) {
    SetText(*lblMe_[row], results.lblMe[row]);
    SetText(*lblThem_[row], results.lblThem[row]);
  }
  SetText(*lblCurrentScore_, results.lblCurrentScore);
  SetText(*lblAdvice_, results.lblAdvice);
  const Color text = results.lblAdviceLit ? kWhite : kTableGreen;  // green on green: hidden
  if (lblAdvice_->palette().color(QPalette::WindowText) != QtColor(text)) {
    SetColors(*lblAdvice_, text, QtColor(kTableGreen));
  }
}

void ResultsView::ShowMeter() {
  picHandMeter_->update();
  AnnounceChange(*picHandMeter_);
}

}  // namespace holdem
