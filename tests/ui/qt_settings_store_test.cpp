#include <gtest/gtest.h>
#include <sys/stat.h>

#include <QDir>
#include <QFile>

#include "platform/qt/qt_services.h"

namespace holdem {
namespace {

struct QtSettingsStoreTest : testing::Test {
  void Clear() { QFile::remove(folder) || QDir(folder).removeRecursively(); }
  void TearDown() override { Clear(); }

  const QString folder = qEnvironmentVariable("XDG_CONFIG_HOME") + "/Quorvane";
  const QString path = folder + "/Quorvane.conf";
};

TEST_F(QtSettingsStoreTest, KeepsTextsForTheNextStart) {
  QtSettingsStore().Write("FoldLevels", "Yes");  // as with a new user
  EXPECT_EQ(QtSettingsStore().Read("FoldLevels"), "Yes");
  QSettings(path, QSettings::IniFormat).setValue("Settings/Speed", QStringList({"1", "5"}));
  EXPECT_EQ(QtSettingsStore().Read("Speed"), "1,5");
}

// Whatever lies there, the program starts: nothing is read, and what is written is lost.
TEST_F(QtSettingsStoreTest, WhateverLiesInItsPlace) {
  const std::function<void()> cases[] = {
      [this] { EXPECT_EQ(mkfifo(path.toLocal8Bit().constData(), 0600), 0); },
      [this] { QDir().mkpath(path + ".lock"); },
      [this] { QDir().rmdir(folder), QFile::link("/dev/null", folder); }};  // no folder can be made
  for (const auto& prepare : cases) {
    SCOPED_TRACE(&prepare - cases);
    Clear();
    QDir().mkpath(folder);
    prepare();
    QtSettingsStore store;
    EXPECT_EQ(store.Read("Speed"), "");
    store.Write("Speed", "2");
  }
}

}  // namespace
}  // namespace holdem
