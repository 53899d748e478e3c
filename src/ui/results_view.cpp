#include "ui/results_view.h"

#include <utility>

#include "design/main_layout.h"
#include "painting/out_marker.h"
#include "painting/row_colors.h"
#include "platform/qt/qt_canvas.h"
#include "state/run.h"
#include "ui/geometry.h"
#include "ui/labels.h"
#include "ui/spoken.h"
#include "words/explained.h"

namespace holdem {

namespace {

// The title of a row of the results grid, with the sign of the cards that would make it.
class RowTitle : public QLabel {
 public:
  RowTitle(QWidget* parent, int row) : QLabel(parent), row_(row) {}

 protected:
  void paintEvent(QPaintEvent* event) override {
    QLabel::paintEvent(event);
    QPainter painter(this);
    QtCanvas canvas(painter, size(), size(), {});
    if (row_ < kCategoryRows) DrawRowMarker(canvas, row_);
  }

  // The title is written beside the sign.
  void resizeEvent(QResizeEvent* event) override {
    const Rect box = TwipRect(rect());
    const double room = row_ < kCategoryRows ? RowMarkerRoom({box.width, box.height}) : 0;
    setContentsMargins(WholePixels(room), 0, 0, 0);
    QLabel::resizeEvent(event);
  }

 private:
  const int row_;
};

}  // namespace

ResultsView::ResultsView(QWidget* form) : form_(form) {
  for (const layout::Column& column : layout::kColumns) {
    QLabel* const header = AddLabel(form, Indexed("lblTop", column.headerIndex), column.header,
                                    HeaderBox(column), Qt::AlignCenter, kBlack);
    header->setWordWrap(true);
    if (column.headerIndex != 2)
      header->setToolTip(column.headerIndex == 0 ? kAboutMe : kAboutOthers);
  }
  for (int row = 0; row < kResultRows; ++row) AddGridRow(form, row);
  lblCurrentScore_ = new FigureLabel(form, &ScoreInWords, &ExplainScore);
  SetUpLabel(*lblCurrentScore_, "lblCurrentScore", layout::kCurrentScore, Qt::AlignCenter, kWhite);
  SetBold(*lblCurrentScore_, 8);
  lblAdvice_ = new FigureLabel(form, &AdviceInWords, &ExplainAdvice);
  SetUpLabel(*lblAdvice_, "lblAdvice", layout::kAdvice, Qt::AlignCenter, kWhite,
             QtColor(kTableGreen));
  SetBold(*lblAdvice_, 12);
  for (FigureLabel* const figure : Figures()) figure->setFocusPolicy(Qt::TabFocus);
  picHandMeter_ = new HandMeter(form);
  picHandMeter_->setGeometry(PixelRect(layout::kHandMeter));
}

void ResultsView::AddGridRow(QWidget* form, int row) {
  const auto setUp = [&](QLabel& cell, const char* name, int column, Color color,
                         Color background) {
    SetUpLabel(cell, Indexed(name, row), RowBox(layout::kColumns[column], row), Qt::AlignCenter,
               color, QtColor(background));
    if (row == kWinSplitRow) SetBold(cell, 8);
  };
  lblMe_[row] = new FigureLabel(
      form, [row] { return CellInWords("Me", row, results.lblMe[row]); },
      [row] { return ExplainMine(row); });
  setUp(*lblMe_[row], "lblMe", 0, kBlack, kWhite);
  auto* const title = new RowTitle(form, row);
  setUp(*title, "lbllbl", 1, kRowTitleText, kRowColors[row]);
  title->setText(lbllbl[row]);
  title->setToolTip(QtText(ExplainTitle(row)));
  lblThem_[row] = new FigureLabel(
      form, [row] { return CellInWords("Another player", row, results.lblThem[row]); },
      [row] { return ExplainTheirs(row); });
  setUp(*lblThem_[row], "lblThem", 2, kBlack, kWhite);
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
  if (run.Settled()) Announce();
}

// Tells screen readers which figures have changed, for those that remember what a control says, and
// has the answer said aloud, once.
void ResultsView::Announce() {
  for (FigureLabel* const figure : Figures()) figure->AnnounceChange();
  const Answer answer = AnswerInWords();
  const std::string news = News(std::exchange(said_, answer), answer);
  if (!news.empty()) sayAloud(*form_, news);
}

void ResultsView::ShowMeter() { picHandMeter_->update(); }

}  // namespace holdem
