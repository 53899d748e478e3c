// The main window at many sizes, also run at several device scales.
#include <map>
#include <set>

#include "ui/window_test.h"

namespace holdem {
namespace {

using GeometryTest = WindowTest;

// Hold their places in the design although they reach over the window's edge, or over the seats.
const std::set<QString> kOverhanging = {"lblEyeBall",   "chkFoldLevels", "lblAdvice",
                                        "picHandMeter", "picHand0",      "picHand1"};
// Placed at run time, over the table and the seats.
const std::set<QString> kPlacedOnSeats = {"lblSB", "lblBB", "picHand0", "picHand1"};

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

std::vector<QWidget*> Controls(QWidget& window) {
  std::vector<QWidget*> controls;
  for (QWidget* const control : window.findChildren<QWidget*>()) {
    if (control->window() == &window) controls.push_back(control);
  }
  return controls;
}

// Every control inside its parent, none over another that it does not overlap in the design, no
// text cut.
TEST_F(GeometryTest, EveryControlStaysInPlaceAndReadable) {
  std::map<QString, QRect> design;
  {
    CardDrag drag;
    Form1 asDesigned(drag);
    for (const QWidget* const c : Controls(asDesigned)) design[c->objectName()] = c->geometry();
  }
  Load();
  QWidget& form1 = Widget("Form1");
  const QSize designSize = form1.size();
  const auto mayOverlap = [&](const QWidget& a, const QWidget& b) {
    return a.parentWidget() != b.parentWidget() || kPlacedOnSeats.contains(a.objectName()) ||
           kPlacedOnSeats.contains(b.objectName()) ||
           design[a.objectName()].intersects(design[b.objectName()]);
  };
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
      for (const QWidget* const control : Controls(form1)) {
        SCOPED_TRACE(testing::Message() << control->objectName().toStdString() << ' ' << x);
        const QRect parent = control->parentWidget()->rect();
        if (!kOverhanging.contains(control->objectName())) {
          EXPECT_TRUE(parent.contains(control->geometry()));
        }
        const QSize text = TextSize(*control);
        const QSize shown = (control->geometry() & parent).size();
        EXPECT_EQ(text.expandedTo(shown), shown);
        for (const QWidget* const other : Controls(form1)) {
          EXPECT_TRUE(other == control || mayOverlap(*control, *other) ||
                      !control->geometry().intersects(other->geometry()))
              << other->objectName().toStdString();
        }
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
  form1.resize(620, 208);
  expect(0.8, 0.8);
  EXPECT_EQ(Widget(Deck(2)).size(), QSize(29, 41));  // the deck window keeps its own size
  results.lblCurrentScore = "stale";
  form1.resize(620, 624);
  expect(0.8, 2.4);
  EXPECT_EQ(results.lblCurrentScore, "");  // the table is analysed anew
  form1.resize(775, 260);
  expect(1, 1);
  form1.showMinimized();
  form1.resize(0, 0);
  expect(1, 1);
  for (const QSize size : {QSize(1, 1), QSize(3000, 2000)}) {
    form1.resize(size);
    form1.grab();
  }
}

TEST_F(GeometryTest, PlacesAtTheTableAndInTheDeck) {
  Load();
  // 5640 + 0.22 x 1095 twips from the left, 840 - 0.1 x 615 from the top.
  EXPECT_EQ(Widget("picHand0").geometry(), QRect(392, 52, 37, 49));
  EXPECT_EQ(Widget("picHand1").geometry(), QRect(429, 52, 36, 49));
  for (const double share : {0.337, 0.25}) {
    EXPECT_EQ(Widget(Seat(5)).x(), qRound(share * Widget("Form1").frameGeometry().width()));
    Do("click chk9Pl");
  }
  for (Card card = 1; card <= kCardCount; ++card) {  // each covers the right fifth of its left one
    const QWidget& box = Widget(Deck(card));
    const auto shows = [&](QPoint point) {
      return box.parentWidget()->childAt(box.pos() + point) == &box;
    };
    EXPECT_TRUE(shows(Spot(box))) << card;
    EXPECT_EQ(shows({box.width() - 2, box.height() / 2}), RankOf(card) == Ace) << card;
  }
}

}  // namespace
}  // namespace holdem
