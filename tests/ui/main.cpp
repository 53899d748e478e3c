#include <gtest/gtest.h>

#include <QApplication>

#include "ui/appearance.h"

int main(int argc, char* argv[]) {
  testing::InitGoogleTest(&argc, argv);
  QApplication application(argc, argv);
  holdem::SetAppearance(application);
  return RUN_ALL_TESTS();
}
