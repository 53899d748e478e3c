// The main window at many sizes, also run at several device scales.
#include "ui/controls.h"
#include "ui/window_test.h"

namespace holdem {
namespace {

using GeometryTest = WindowTest;

// What the control's text needs, from its left edge.
QSize TextSize(const QWidget& control) {
  const auto* const label = dynamic_cast<const QLabel*>(&control);
  const auto* const check = dynamic_cast<const WrappingCheckBox*>(&control);
  const bool wraps = check != nullptr || (label != nullptr && label->wordWrap());
  const QRect room = check != nullptr ? check->TextBox() : control.rect();
  const QString text =
      control.property(control.property("title").isValid() ? "title" : "text").toString();
  if (text.isEmpty()) return {};
  const int flags = Qt::TextShowMnemonic | (wraps ? Qt::TextWordWrap : 0);
  const QRect taken = control.fontMetrics().boundingRect(0, 0, room.width(), 9999, flags, text);
  return taken.size() + QSize(room.left(), 0);
}

TEST_F(GeometryTest, NoTextIsCut) {
  Load();
  QWidget& form1 = Widget("Form1");
  const QSize designSize = form1.size();
  for (const double x : {0.6, 0.7, 0.8, 0.95, 1.0, 1.15, 1.35, 1.7, 2.2, 4.0}) {
    for (const double stretch : {1.0, 1.3}) {
      form1.resize(qRound(designSize.width() * x), qRound(designSize.height() * x * stretch));
      results.lblMe.fill("Current");  // the longest texts
      results.lblThem.fill("100%");
      results.lblCurrentScore = "Full House (Queens full of Sevens)";
      results.lblAdvice = "Small Blind: Call. Fold if raised.";
      autoRead.lblMessage = "You are active in this hand";
      ports.display->ShowResults();
      ports.display->ShowAutoRead();
      for (const QWidget* const control : form1.findChildren<QWidget*>()) {
        if (control->window() != &form1) continue;
        const QSize text = TextSize(*control);
        const QSize shown = (control->geometry() & control->parentWidget()->rect()).size();
        EXPECT_EQ(text.expandedTo(shown), shown) << control->objectName().toStdString() << ' ' << x;
      }
    }
  }
}

TEST_F(GeometryTest, ControlsScaleWithTheWindow) {
  Load();
  QWidget& form1 = Widget("Form1");
  const QRect slot = Widget("picHand8").geometry();
  const auto expect = [&](double x, double y) {
    EXPECT_EQ(Widget("picHand8").geometry(),
              QRect(qRound(slot.x() * x), qRound(slot.y() * y), qRound(slot.width() * x),
                    qRound(slot.height() * y)));
    EXPECT_NEAR(Widget("lblMe3").font().pointSizeF(), 8 * x, 0.01);
    ExpectWindowsShowTheState();
  };
  results.lblCurrentScore = "stale";
  form1.resize(620, 624);
  expect(0.8, 2.4);
  EXPECT_EQ(results.lblCurrentScore, "");  // the table is analysed anew
  form1.resize(775, 260);
  expect(1, 1);
  form1.showMinimized();
  form1.resize(0, 0);
  expect(1, 1);
}

TEST_F(GeometryTest, PlacesAtTheTableAndInTheDeck) {
  Load();
  EXPECT_EQ(Widget("picHand1").geometry(), QRect(429, 52, 36, 49));
  for (const double share : {0.337, 0.25}) {
    EXPECT_EQ(Widget(Seat(5)).x(), qRound(share * Widget("Form1").frameGeometry().width()));
    Do("click chk9Pl");
  }
  for (Card card = 1; card <= kCardCount; ++card) {  // each covers the right fifth of its left one
    const QWidget& box = Widget(Deck(card));
    const QPoint right(box.width() - 2, box.height() / 2);
    EXPECT_EQ(box.parentWidget()->childAt(box.pos() + Spot(box)), &box) << card;
    EXPECT_EQ(box.parentWidget()->childAt(box.pos() + right) == &box, RankOf(card) == Ace) << card;
  }
}

}  // namespace
}  // namespace holdem
