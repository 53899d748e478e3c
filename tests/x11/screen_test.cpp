// The start on the screen that it runs on, run on screens of several sizes: the message or none,
// and where the windows are put. With SCREENSHOTS set to a folder, leaves a picture of the screen
// there.
#include <QMessageBox>
#include <QPushButton>
#include <QScreen>

#include "ui/window_test.h"

namespace holdem {
namespace {

using ScreenTest = WindowTest;

TEST_F(ScreenTest, WindowsAreArrangedForTheScreen) {
  const QSize screen = QGuiApplication::primaryScreen()->size();
  MeasureScreen();
  program = std::make_unique<Program>();
  program->Start();
  QTest::keyClick(&Widget("frmAbout"), Qt::Key_Space);
  auto* const message = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
  const bool small = screen.width() <= 1024 || screen.height() <= 768;
  ASSERT_EQ(message != nullptr, small);
  if (small) {
    EXPECT_EQ(message->text(), QString("Screen Resolution: %1x%2\r\nProgram will be resized")
                                   .arg(screen.width())
                                   .arg(screen.height()));
    ASSERT_TRUE(QTest::qWaitForWindowExposed(message));
    QTest::mouseClick(message->button(QMessageBox::Ok), Qt::LeftButton);
  }

  QWidget& form1 = Widget("Form1");
  QWidget& deckWindow = Widget("frmDeck");
  ASSERT_TRUE(QTest::qWaitForWindowActive(&form1));
  ASSERT_TRUE(QTest::qWaitFor([&] {
    return form1.frameGeometry().height() > form1.height() &&
           deckWindow.frameGeometry().topLeft() == form1.frameGeometry().topRight() + QPoint(1, 0);
  }));
  EXPECT_EQ(Widget("picHand0").internalWinId(), 0U);  // only whole windows are the display's
  const QRect main = form1.frameGeometry();
  const QSize frame = main.size() - form1.size();
  QSizeF expected = QSizeF(775, 260) + frame;
  const double available = screen.height() - 550;
  if (available > 100 && expected.height() > available) {
    expected = {expected.width() * available / expected.height(), available};
  }
  EXPECT_NEAR(main.width(), expected.width(), 0.5);
  EXPECT_EQ(main.height(), qRound(expected.height()));
  EXPECT_EQ(main.top(), 0);
  EXPECT_EQ(main.left(), screen.width() - main.width() - deckWindow.frameGeometry().width());

  for (const Card card : {1, 13, 14, 30, 52}) Do("click " + Deck(card));
  if (qEnvironmentVariableIsSet("SCREENSHOTS")) {
    QTest::qWait(300);
    const auto file = QString("%1x%2.png").arg(screen.width()).arg(screen.height());
    QGuiApplication::primaryScreen()->grabWindow(0).save(qEnvironmentVariable("SCREENSHOTS") + '/' +
                                                         file);
  }
}

}  // namespace
}  // namespace holdem
