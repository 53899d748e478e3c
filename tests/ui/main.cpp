#include <gtest/gtest.h>

#include <QApplication>
#include <QTemporaryDir>
#include <clocale>
#include <locale>

#include "ui/appearance.h"

int main(int argc, char* argv[]) {
  testing::InitGoogleTest(&argc, argv);
  const QTemporaryDir settings;
  qputenv("XDG_CONFIG_HOME", settings.path().toLocal8Bit());  // never a person's own
  QApplication application(argc, argv);
  std::locale::global(std::locale(std::setlocale(LC_ALL, nullptr)));  // what Qt has made C's
  holdem::SetAppearance(application);
  return RUN_ALL_TESTS();
}
