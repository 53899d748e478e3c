// Labels as the windows make them: put in twips, coloured, never cut.
#pragma once

#include <QAbstractButton>
#include <QLabel>
#include <QString>
#include <string>

#include "platform/canvas.h"
#include "platform/qt/qt_text.h"
#include "ui/marks.h"

namespace holdem {

// A label that can be clicked. Where it stands for a choice, the frame of the chosen one is drawn;
// the choice itself is made by whoever listens.
class ClickLabel : public GivesUpFocus<QAbstractButton> {
 public:
  ClickLabel(QWidget* parent, const QString& name, const QString& text, Qt::Alignment alignment);

  Qt::Alignment alignment() const { return alignment_; }
  void Raise() { raised_ = true; }  // has an edge, as a button does

 protected:
  void paintEvent(QPaintEvent* event) override;
  void nextCheckState() override {}

 private:
  QRect InSight() const;

  const Qt::Alignment alignment_;
  bool raised_ = false;
};

// The object name of one of several controls of a kind.
QString Indexed(const char* name, int index);

// The window shows through an invalid background.
void SetColors(QWidget& control, Color text, const QColor& background);

void SetBold(QWidget& control, double points);

QLabel& SetUpLabel(QLabel& label, const QString& name, const Rect& box, Qt::Alignment alignment,
                   Color text, const QColor& background = {});
// Owned by the parent, as the next.
QLabel* AddLabel(QWidget* parent, const QString& name, const QString& text, const Rect& box,
                 Qt::Alignment alignment, Color color, const QColor& background = {});
ClickLabel* AddClickLabel(QWidget* parent, const QString& name, const char* text, const Rect& box,
                          Qt::Alignment alignment, Color color, const QColor& background = {});

// Shown as it is, whatever it contains, when the mouse rests on the control, and said by screen
// readers. A tooltip that is open says it at once.
void SetTip(QWidget& control, const std::string& text);

// A text that stays is not painted anew.
void SetText(QLabel& label, const std::string& text);

// Every label of the window that does not wrap: a text too large for its box overhangs it rather
// than being cut.
void LetTextsOverhang(const QWidget& window);

}  // namespace holdem
