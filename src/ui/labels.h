// The labels of the windows: those that can be clicked, and how labels are made, coloured and
// filled with text. Boxes are in twips.
#pragma once

#include <QAbstractButton>
#include <QLabel>
#include <QString>
#include <string>

#include "platform/canvas.h"
#include "platform/qt/qt_text.h"
#include "ui/marks.h"

namespace holdem {

// A label that works as a button. A checkable one stands for a choice and has a frame while it is
// checked; a click alone does not check it, that is for whoever listens to `clicked`.
class ClickLabel : public GivesUpFocus<QAbstractButton> {
 public:
  ClickLabel(QWidget* parent, const QString& text, Qt::Alignment alignment);

  Qt::Alignment alignment() const { return alignment_; }
  void Raise() { raised_ = true; }  // draws an edge around it, as a button has

 protected:
  void paintEvent(QPaintEvent* event) override;
  void nextCheckState() override {}

 private:
  QRect InSight() const;

  const Qt::Alignment alignment_;
  bool raised_ = false;
};

// The object name of one of several controls of a kind, as "picDeck5".
QString Indexed(const char* name, int index);

// With an invalid background the window shows through.
void SetColors(QWidget& control, Color text, const QColor& background);

void SetBold(QWidget& control, double points);

QLabel& SetUpLabel(QLabel& label, const QString& name, const Rect& box, Qt::Alignment alignment,
                   Color text, const QColor& background = {});
// This one and the next return a label that the parent owns.
QLabel* AddLabel(QWidget* parent, const QString& name, const QString& text, const Rect& box,
                 Qt::Alignment alignment, Color color, const QColor& background = {});
ClickLabel* AddClickLabel(QWidget* parent, const QString& name, const char* text, const Rect& box,
                          Qt::Alignment alignment, Color color, const QColor& background = {});

// Sets the tooltip, and what screen readers say of the control. The text is shown literally, also
// where it looks like HTML. If the tooltip is open, it changes at once.
void SetTip(QWidget& control, const std::string& text);

// Paints nothing when the label shows this text already.
void SetText(QLabel& label, const std::string& text);

// Makes every label that does not wrap large enough for its text: a text too large for its box
// overhangs it instead of being cut.
void LetTextsOverhang(const QWidget& window);

}  // namespace holdem
