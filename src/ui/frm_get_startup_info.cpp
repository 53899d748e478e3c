#include "ui/frm_get_startup_info.h"

#include <QApplication>

#include "autoread/setup_wizard.h"
#include "design/wizard_layout.h"
#include "platform/qt/qt_canvas.h"
#include "platform/qt/qt_fonts.h"
#include "state/run.h"
#include "ui/geometry.h"
#include "ui/labels.h"
#include "ui/shapes.h"
#include "ui/spoken.h"

namespace holdem {
namespace {

using namespace std::chrono_literals;

constexpr Color kLightGrey{192, 192, 192};

QLabel* AddText(QWidget* parent, const char* name, const Rect& box, const QFont& font, Color text,
                const QColor& background = {}) {
  QLabel* const label = AddLabel(parent, name, {}, box, Qt::AlignCenter, text, background);
  label->setFont(font);
  label->setWordWrap(true);
  return label;
}

QFont TitleFont() {
  QFont font("Garamond", 18, QFont::Bold);
  font.setFamilies({"Garamond", "EB Garamond", "Liberation Serif"});
  return font;
}

}  // namespace

frmGetStartupInfo::frmGetStartupInfo(QWidget* owner)
    : QDialog(owner, Qt::Dialog | Qt::FramelessWindowHint) {
  OpenWizard();
  setObjectName("frmGetStartupInfo");
  setWindowTitle(QtText(WizardTitle()));
  setFont(QtFont(kMainWindowFont));  // the desktop's own may be too large for the buttons
  setFixedSize(PixelRect(wizard_layout::kWindow).size());
  const QPoint centre = owner->frameGeometry().center();
  move(centre.x() - width() / 2, centre.y() - height() / 2);
  AddTable();
  for (int seat = 1; seat <= kSeats; ++seat) AddSeatButton(seat);
  AddCommands();

  setFocusPolicy(Qt::ClickFocus);
  setFocus();  // a key meant for another window answers nothing
  tmrWatchWindow_.setObjectName("tmrWatchWindow");
  connect(&tmrWatchWindow_, &QTimer::timeout, this, [this] { CloseWhen(WatchWizard()); });
  tmrWatchWindow_.start(300ms);
  ShowQuestion();
}

void frmGetStartupInfo::AddTable() {
  new Shape(this, "Shape1", wizard_layout::kTable, Shape::Form::Oval, QtColor(kTableGreen), 3);
  new Shape(this, "Shape2", wizard_layout::kWindow, Shape::Form::Rectangle, Qt::transparent, 1);
  Label2_ =
      AddText(this, "Label2", wizard_layout::kTitle, TitleFont(), kBlack, QtColor(kLightGrey));
  Label1_ = AddText(this, "Label1", wizard_layout::kPrompt, QtFont({FontFamily::MsSansSerif, 13.5}),
                    kWhite);
}

void frmGetStartupInfo::AddSeatButton(Seat seat) {
  auto* const button = new SeatButton(this, seat);
  Rect box = wizard_layout::kSeatButtons[seat];
  if (seat == kSeatClosingUp && seats.IsOfNine()) box.left = wizard_layout::kLeftClosingUp;
  button->setGeometry(PixelRect(box));
  button->setVisible(seats.Exists(seat));
  connect(button, &QPushButton::clicked, this, [this, seat] {
    const bool finished = ClickWizardSeat(seat);
    ShowQuestion();
    CloseWhen(finished);
  });
  cmdHere_[seat] = button;
}

void frmGetStartupInfo::AddCommands() {
  cmdDone_ = new QPushButton("&Begin ->", this);
  SetNameAndBox(*cmdDone_, "cmdDone", wizard_layout::kBegin);
  SetBold(*cmdDone_, 8);
  connect(cmdDone_, &QPushButton::clicked, this, [this] { CloseWhen(FinishWizard()); });

  Command1_ = new QPushButton("&Cancel", this);
  SetNameAndBox(*Command1_, "Command1", wizard_layout::kCancel);
  Command1_->setAutoDefault(false);
  connect(Command1_, &QPushButton::clicked, this, &frmGetStartupInfo::reject);
}

void frmGetStartupInfo::reject() {
  if (CanCancelWizard() || run.Ending) QDialog::reject();
}

// While a table is followed the answer is needed, so whoever closes the wizard then closes the
// program.
void frmGetStartupInfo::closeEvent(QCloseEvent* event) {
  if (!CanCancelWizard() && !run.Ending) parentWidget()->close();
  QDialog::closeEvent(event);
}

void frmGetStartupInfo::done(int result) {
  CloseWizard();
  QDialog::done(result);
}

// A screen reader speaks the question when the window becomes active. While the user plays in
// another program it does not become active, so the question is said aloud.
void frmGetStartupInfo::showEvent(QShowEvent* event) {
  QDialog::showEvent(event);
  if (QApplication::activeWindow() == nullptr) {
    sayAloud(*parentWidget(), WizardTitle() + ": " + WizardPrompt());
  }
}

void frmGetStartupInfo::ShowQuestion() {
  Label2_->setText(QtText(WizardTitle()));
  const bool asksMore = isVisible() && Label1_->text() != QtText(WizardPrompt());
  Label1_->setText(QtText(WizardPrompt()));
  if (asksMore) sayAloud(*parentWidget(), WizardPrompt());
  Command1_->setVisible(CanCancelWizard());
  for (int seat = 1; seat <= kSeats; ++seat) cmdHere_[seat]->SetMark(MarkOfSeat(seat));
  cmdDone_->setVisible(CanFinishWizard());
}

void frmGetStartupInfo::CloseWhen(bool finished) {
  if (finished) accept();
}

}  // namespace holdem
