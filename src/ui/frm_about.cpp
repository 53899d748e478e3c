#include "ui/frm_about.h"

#include <QKeyEvent>
#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QTimer>
#include <QVBoxLayout>

#include "ui/appearance.h"

namespace holdem {

frmAbout::frmAbout(QWidget* owner, Use use)
    : QDialog(owner, use == Use::StartUp ? Qt::Dialog | Qt::FramelessWindowHint : Qt::Dialog),
      use_(use) {
  constexpr int kShownAtStartUp = 2000;  // milliseconds
  constexpr int kIconSize = 96;
  setObjectName("frmAbout");
  setWindowTitle("About Pellucor 4");

  auto* const column = new QVBoxLayout(this);
  column->setSizeConstraint(QLayout::SetFixedSize);
  column->setContentsMargins(48, 24, 48, 24);
  const auto addLine = [&](const QString& name, const QString& text, double points, bool bold) {
    auto* const line = new QLabel(text);
    line->setObjectName(name);
    line->setAlignment(Qt::AlignCenter);
    QFont font = line->font();
    font.setPointSizeF(points);
    font.setBold(bold);
    line->setFont(font);
    column->addWidget(line);
    return line;
  };
  addLine("imgIcon", {}, 8, false)->setPixmap(ProgramIcon(kIconSize, devicePixelRatio()));
  addLine("lblTitle", "Pellucor 4", 20, true);
  addLine("lblVersion", "Version " PROGRAM_VERSION, 9, false);
  addLine("lblPurpose", "Texas Hold'em odds and playing advice at a glance", 9, false);
  addLine("lblLicence", "Free software under the MIT licence", 8, false);
  addLine("lblQt",
          "With Qt, \u00A9 The Qt Company Ltd. and others,\n"
          "under the GNU LGPL 3: see readme.txt",
          8, false);

  if (use == Use::FromMenu) {
    auto* const ok = new QPushButton("OK");
    ok->setObjectName("cmdOK");
    connect(ok, &QPushButton::clicked, this, &QDialog::accept);
    column->addSpacing(12);
    column->addWidget(ok, 0, Qt::AlignCenter);
  } else {
    QTimer::singleShot(kShownAtStartUp, this, &QDialog::accept);
  }
}

// At start-up the window manager puts no frame around it, so it draws an edge itself.
void frmAbout::paintEvent(QPaintEvent*) {
  if (use_ != Use::StartUp) return;
  QPainter painter(this);
  painter.fillRect(rect(), palette().windowText());
  painter.fillRect(rect().adjusted(1, 1, -1, -1), palette().window());
}

void frmAbout::mousePressEvent(QMouseEvent*) {
  if (use_ == Use::StartUp) accept();
}

void frmAbout::keyPressEvent(QKeyEvent* event) {
  if (use_ != Use::StartUp) return QDialog::keyPressEvent(event);
  accept();
}

}  // namespace holdem
