#include "ui/frm_get_startup_info.h"

#include <QEvent>
#include <QPainter>
#include <QStyleOptionButton>

#include "design/in_words.h"
#include "design/wizard_layout.h"
#include "platform/qt/qt_canvas.h"
#include "platform/qt/qt_fonts.h"
#include "state/run.h"
#include "ui/controls.h"
#include "ui/geometry.h"

namespace holdem {
namespace {

using namespace std::chrono_literals;

constexpr Color kLightGrey{192, 192, 192};

// The signs, in a square of the given centre and half width.

void DrawFace(QPainter& painter, QPointF centre, double half) {
  painter.drawEllipse(centre, half, half);
  const QPointF eye(half * 0.38, -half * 0.25);
  painter.save();
  painter.setBrush(painter.pen().color());
  painter.drawEllipse(centre + eye, half * 0.1, half * 0.14);
  painter.drawEllipse(centre + QPointF(-eye.x(), eye.y()), half * 0.1, half * 0.14);
  painter.restore();
  const QRectF smile(centre.x() - half * 0.55, centre.y() - half * 0.45, half * 1.1, half);
  painter.drawArc(smile, 200 * 16, 140 * 16);
}

void DrawButton(QPainter& painter, QPointF centre, double half) {
  painter.drawEllipse(centre, half * 0.8, half * 0.8);
}

void DrawBox(QPainter& painter, QPointF centre, double half, bool ticked) {
  painter.drawRect(
      QRectF(centre.x() - half * 0.8, centre.y() - half * 0.8, half * 1.6, half * 1.6));
  if (!ticked) return;
  painter.drawPolyline(QPolygonF{centre + QPointF(-half * 0.45, 0),
                                 centre + QPointF(-half * 0.1, half * 0.4),
                                 centre + QPointF(half * 0.5, -half * 0.45)});
}

void DrawMark(QPainter& painter, const QRectF& box, SeatMark mark) {
  const QPointF centre = box.center();
  const double half = box.height() / 3;
  switch (mark) {
    case SeatMark::Face: return DrawFace(painter, centre, half);
    case SeatMark::Button: return DrawButton(painter, centre, half);
    case SeatMark::FaceAndButton:
      DrawFace(painter, centre - QPointF(half * 1.1, 0), half);
      return DrawButton(painter, centre + QPointF(half * 1.1, 0), half);
    case SeatMark::Ticked: return DrawBox(painter, centre, half, true);
    case SeatMark::Unticked: return DrawBox(painter, centre, half, false);
  }
}

QLabel* AddText(QWidget* parent, const QString& name, const Rect& box, const QFont& font,
                Color text) {
  auto* const label = new QLabel(parent);
  label->setObjectName(name);
  label->setGeometry(PixelRect(box));
  label->setFont(font);
  label->setAlignment(Qt::AlignCenter);
  label->setWordWrap(true);
  QPalette colors = label->palette();
  colors.setColor(QPalette::WindowText, QtColor(text));
  colors.setColor(QPalette::Window, QtColor(kLightGrey));
  label->setPalette(colors);
  return label;
}

QFont TitleFont() {
  QFont font("Garamond", 18, QFont::Bold);
  font.setFamilies({"Garamond", "EB Garamond", "Liberation Serif"});
  return font;
}

}  // namespace

void SeatButton::SetMark(SeatMark mark) {
  mark_ = mark;
  setText(QString::fromStdString(CaptionOf(mark)));
  update();
}

bool SeatButton::event(QEvent* event) {
  return ShowTip(*this, *event) || QPushButton::event(event);
}

void SeatButton::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  QStyleOptionButton option;
  initStyleOption(&option);
  option.text.clear();
  style()->drawControl(QStyle::CE_PushButton, &option, &painter, this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen(palette().color(QPalette::ButtonText), 1.5));
  DrawMark(painter, rect(), mark_);
  if (hasFocus()) DrawFocus(painter, rect().adjusted(2, 2, -2, -2));
}

frmGetStartupInfo::frmGetStartupInfo(QWidget* owner)
    : QDialog(owner, Qt::Dialog | Qt::FramelessWindowHint) {
  OpenWizard();
  setObjectName("frmGetStartupInfo");
  setWindowTitle(QString::fromStdString(WizardTitle()));
  setWindowModality(Qt::ApplicationModal);
  setFixedSize(PixelRect(wizard_layout::kWindow).size());
  const QPoint centre = owner->frameGeometry().center();
  move(centre.x() - width() / 2, centre.y() - height() / 2);

  auto* const table = new Shape(this, "Shape1", Shape::Form::Oval, QtColor(kTableGreen), 3);
  table->setGeometry(PixelRect(wizard_layout::kTable));
  auto* const frame = new Shape(this, "Shape2", Shape::Form::Rectangle, Qt::transparent, 1);
  frame->setGeometry(rect());

  Label2_ = AddText(this, "Label2", wizard_layout::kTitle, TitleFont(), kBlack);
  Label2_->setAutoFillBackground(true);
  Label1_ = AddText(this, "Label1", wizard_layout::kPrompt, QtFont({FontFamily::MsSansSerif, 13.5}),
                    kWhite);

  const bool nine = seats.SeatCount == 9;
  for (int seat = 1; seat <= kSeats; ++seat) {
    auto* const button = new SeatButton(this);
    button->setObjectName("cmdHere" + QString::number(seat));
    button->setAutoDefault(false);
    button->setFocusPolicy(Qt::TabFocus);
    button->inWords = [seat] { return WizardSeatInWords(seat); };
    button->tip = button->inWords;
    button->onActivate = [button] { button->click(); };
    Rect place = wizard_layout::kSeatButtons[seat];
    if (seat == 5 && nine) place.left = wizard_layout::kSeatFiveLeftOfNine;
    button->setGeometry(PixelRect(place));
    button->setVisible(seat != 6 || !nine);
    connect(button, &QPushButton::clicked, this, [this, seat] {
      const bool finished = ClickWizardSeat(seat);
      ShowQuestion();
      CloseWhen(finished);
    });
    cmdHere_[seat] = button;
  }

  cmdDone_ = new QPushButton("&Begin ->", this);
  cmdDone_->setObjectName("cmdDone");
  cmdDone_->setGeometry(PixelRect(wizard_layout::kBegin));
  cmdDone_->setFont(QtFont({FontFamily::MsSansSerif, 8, true}));
  connect(cmdDone_, &QPushButton::clicked, this, [this] { CloseWhen(FinishWizard()); });

  Command1_ = new QPushButton("&Cancel", this);
  Command1_->setObjectName("Command1");
  Command1_->setGeometry(PixelRect(wizard_layout::kCancel));
  Command1_->setAutoDefault(false);
  connect(Command1_, &QPushButton::clicked, this, &frmGetStartupInfo::reject);

  setFocusPolicy(Qt::ClickFocus);
  setFocus();  // a key meant for another window answers nothing
  connect(&tmrWatchWindow_, &QTimer::timeout, this, [this] { CloseWhen(WatchWizard()); });
  tmrWatchWindow_.start(300ms);
  ShowQuestion();
}

void frmGetStartupInfo::reject() {
  if (CanCancelWizard() || run.Ending) QDialog::reject();
}

void frmGetStartupInfo::done(int result) {
  CloseWizard();
  QDialog::done(result);
}

void frmGetStartupInfo::ShowQuestion() {
  Label2_->setText(QString::fromStdString(WizardTitle()));
  Label1_->setText(QString::fromStdString(WizardPrompt()));
  Command1_->setVisible(CanCancelWizard());
  for (int seat = 1; seat <= kSeats; ++seat) cmdHere_[seat]->SetMark(MarkOfSeat(seat));
  cmdDone_->setVisible(CanFinishWizard());
}

void frmGetStartupInfo::CloseWhen(bool finished) {
  if (finished) accept();
}

}  // namespace holdem
