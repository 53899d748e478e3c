// The main window at many sizes, also run at several device scales: every control inside its
// parent, none over another that it does not overlap in the design, no text cut.
#include <map>
#include <set>

#include "state/auto_read.h"
#include "state/results.h"
#include "ui/controls.h"
#include "ui/window_test.h"

namespace holdem {
namespace {

// Hold their places in the design although they reach over the window's edge, or over the seats.
const std::set<QString> kOverhanging = {"lblEyeBall",   "chkFoldLevels", "lblAdvice",
                                        "picHandMeter", "picHand0",      "picHand1"};

// Placed at run time, over the table and the seats.
const std::set<QString> kPlacedOnSeats = {"lblSB", "lblBB", "picHand0", "picHand1"};

// The size that the control's text needs when it has this width.
QSize TextSize(const QWidget& control, int width) {
  const QFontMetrics metrics = control.fontMetrics();
  const auto wrapped = [&](const QString& text, int room) {
    return metrics.boundingRect(0, 0, room, 10'000, Qt::TextWordWrap | Qt::TextShowMnemonic, text)
        .size();
  };
  if (const auto* const label = dynamic_cast<const QLabel*>(&control)) {
    return label->wordWrap() ? wrapped(label->text(), width) : metrics.size(0, label->text());
  }
  if (const auto* const check = dynamic_cast<const WrappingCheckBox*>(&control)) {
    const QRect contents = check->TextBox();
    EXPECT_TRUE(check->parentWidget()->rect().contains(contents.translated(check->pos())));
    return wrapped(check->text(), contents.width()) + QSize(contents.left(), 0);
  }
  if (const auto* const button = dynamic_cast<const QAbstractButton*>(&control)) {
    return metrics.size(Qt::TextShowMnemonic, button->text());
  }
  if (const auto* const frame = dynamic_cast<const CaptionFrame*>(&control)) {
    return metrics.size(Qt::TextShowMnemonic, frame->title());
  }
  return {};
}

std::vector<QWidget*> Controls(QWidget& window) {
  std::vector<QWidget*> controls;
  for (QWidget* const control : window.findChildren<QWidget*>()) {
    if (control->window() == &window) controls.push_back(control);
  }
  return controls;
}

using GeometryTest = WindowTest;

void ShowLongestTexts() {
  results.lblMe.fill("Current");
  results.lblThem.fill("100%");
  results.lblCurrentScore = "Full House (Queens full of Sevens)";
  results.lblAdvice = "Small Blind: Call. Fold if raised.";
  autoRead.lblMessage = "You are active in this hand";
  ports.display->ShowResults();
  ports.display->ShowAutoRead();
}

TEST_F(GeometryTest, EveryControlStaysInPlaceAndReadable) {
  std::map<QString, QRect> design;
  {
    CardDrag drag;
    Form1 asDesigned(drag);
    for (const QWidget* const control : Controls(asDesigned)) {
      design[control->objectName()] = control->geometry();
    }
  }
  Load();
  QWidget& form1 = Widget("Form1");
  const std::vector<QWidget*> controls = Controls(form1);
  const QSize designSize = form1.size();

  const std::vector<double> widths = {0.6, 0.7, 0.8, 0.95, 1.0, 1.15, 1.35, 1.7, 2.2, 4};
  for (const double x : widths) {
    for (const double stretch : {1.0, 1.3}) {
      form1.resize(qRound(designSize.width() * x), qRound(designSize.height() * x * stretch));
      ShowLongestTexts();  // a resize refreshes the table, which blanks them
      SCOPED_TRACE(testing::Message() << form1.width() << "x" << form1.height());
      for (const QWidget* const control : controls) {
        const std::string name = control->objectName().toStdString();
        if (!kOverhanging.contains(control->objectName())) {
          EXPECT_TRUE(control->parentWidget()->rect().contains(control->geometry())) << name;
        }
        const QSize text = TextSize(*control, control->width());
        const QRect shown = control->geometry() & control->parentWidget()->rect();
        EXPECT_LE(text.width(), shown.width()) << name;
        EXPECT_LE(text.height(), shown.height()) << name;
        for (const QWidget* const other : controls) {
          if (kPlacedOnSeats.contains(control->objectName()) ||
              kPlacedOnSeats.contains(other->objectName())) {
            continue;
          }
          if (other->parentWidget() != control->parentWidget() || other >= control ||
              design[control->objectName()].intersects(design[other->objectName()])) {
            continue;
          }
          EXPECT_FALSE(control->geometry().intersects(other->geometry()))
              << name << " over " << other->objectName().toStdString();
        }
      }
    }
  }
}

}  // namespace
}  // namespace holdem
