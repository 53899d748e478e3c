// The small controls of the main window that the window system does not have as they are needed
// here.
#pragma once

#include <QAbstractButton>
#include <QCheckBox>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QStyleOptionButton>

#include "ui/described.h"

namespace holdem {

// Marks the control that has the keyboard; to be seen on every colour.
void DrawFocus(QPainter& painter, const QRect& box);

// Lets what has been drawn fade into its background.
void DrawFaint(QPainter& painter, const QRect& box, const QColor& background);

// Marks where the card in the air would come to lie; to be seen on cards and on the table.
void DrawDropTarget(QPainter& painter, const QRect& box);

// For a click with the mouse: no key may act on that control again unless it is asked for.
void GiveUpFocus(const QWidget& control);

// A shape that only decorates: the mouse goes through it.
class Shape : public QWidget {
 public:
  enum class Form { Oval, Circle, Rectangle, RoundedFrame };

  // The outline has the given width in logical pixels.
  Shape(QWidget* parent, const QString& name, Form form, const QColor& fill, int outline);

  void SetLetter(const QString& letter) { letter_ = letter; }  // in the middle of a circle

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  Form form_;
  QColor fill_;
  int outline_;
  QString letter_;
};

// A label that can be clicked. Where it stands for a choice, the frame of the chosen one is drawn;
// the choice itself is made by whoever listens.
class ClickLabel : public QAbstractButton {
 public:
  ClickLabel(QWidget* parent, const QString& name, const QString& text, Qt::Alignment alignment);

  Qt::Alignment alignment() const { return alignment_; }
  void Raise() { raised_ = true; }  // has an edge, as a button does

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void nextCheckState() override {}

 private:
  QRect InSight() const;

  const Qt::Alignment alignment_;
  bool raised_ = false;
};

// A figure or a result in words. It says what it shows when it is asked, and what has changed only
// when it is told to.
class FigureLabel : public QLabel, public Described {
 public:
  // What it shows in words, and what that means.
  FigureLabel(QWidget* parent, std::function<std::string()> words,
              std::function<std::string()> meaning);

 protected:
  bool event(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
};

// The title of a row of the results grid, with the sign of the cards that would make it.
class RowTitle : public QLabel {
 public:
  RowTitle(QWidget* parent, int row);

 protected:
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  const int row_;
};

// A button that shows clearly when it has the keyboard.
class CommandButton : public QPushButton {
 public:
  CommandButton(QWidget* parent, const QString& name, const QString& text);

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
};

// A frame with its caption on the line, whatever the size of the font.
class CaptionFrame : public QGroupBox {
 public:
  using QGroupBox::QGroupBox;

 protected:
  void paintEvent(QPaintEvent* event) override;
};

// The sign that Auto Read is watching. Its text is the character that shows an eye in a symbol
// font; the eye is drawn, since not every system has that font.
class EyeLabel : public QLabel {
 public:
  using QLabel::QLabel;

 protected:
  void paintEvent(QPaintEvent* event) override;
};

// A check box whose text wraps inside its box, or inside the part of it that its parent shows.
class WrappingCheckBox : public QCheckBox {
 public:
  using QCheckBox::QCheckBox;

  QRect TextBox() const;   // beside the box that is ticked
  QFont TextFont() const;  // the control's own, or smaller where its text would not fit

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  bool hitButton(const QPoint& point) const override { return rect().contains(point); }

 private:
  QStyleOptionButton Option() const;
};

}  // namespace holdem
