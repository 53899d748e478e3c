// A label that is pressed as a button is: the menus, Setup, the levels.
#pragma once

#include <QAbstractButton>

namespace holdem {

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

}  // namespace holdem
