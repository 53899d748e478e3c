// The About window: what the program is. At start-up it closes by itself; from the menu it has an
// OK button.
#pragma once

#include <QDialog>

namespace holdem {

class frmAbout : public QDialog {
 public:
  enum class Use { StartUp, FromMenu };

  frmAbout(QWidget* owner, Use use);

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  const Use use_;
};

}  // namespace holdem
