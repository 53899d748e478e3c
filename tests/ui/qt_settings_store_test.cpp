#include <gtest/gtest.h>
#include <sys/stat.h>

#include <QDir>
#include <QFile>

#include "platform/qt/qt_services.h"

namespace holdem {
namespace {

class QtSettingsStoreTest : public testing::Test {
 protected:
  QtSettingsStoreTest() { Clear(); }
  ~QtSettingsStoreTest() override { Clear(); }

  void Clear() {
    QFile::remove(path);
    QDir().rmdir(path);
    QDir().mkpath(QFileInfo(path).path());
  }
  void Fill(const QByteArray& bytes) {
    QFile file(path);
    ASSERT_TRUE(file.open(QFile::WriteOnly));
    file.write(bytes);
  }

  const QString path = qEnvironmentVariable("XDG_CONFIG_HOME") + "/Quorvane/Quorvane.conf";
};

TEST_F(QtSettingsStoreTest, KeepsTextsForTheNextStart) {
  QtSettingsStore().Write("FoldLevels", "Yes");
  EXPECT_EQ(QtSettingsStore().Read("FoldLevels"), "Yes");
  EXPECT_EQ(QtSettingsStore().Read("Speed"), "");
  Fill("[Settings]\nLevelPre=2\nSpeed=1, 5\n");
  EXPECT_EQ(QtSettingsStore().Read("LevelPre"), "2");
  EXPECT_EQ(QtSettingsStore().Read("Speed"), "1,5");
}

TEST_F(QtSettingsStoreTest, WhateverLiesThereTheProgramStarts) {
  const auto expectNothing = [] {
    QtSettingsStore store;
    EXPECT_EQ(store.Read("Speed"), "");
    store.Write("Speed", "2");
  };
  Fill(QByteArray(5000, '\xff') + "[[[\n=\0@Variant(");
  expectNothing();
  Clear();
  QDir().mkpath(path);
  expectNothing();
  Clear();
  ASSERT_EQ(mkfifo(path.toLocal8Bit().constData(), 0600), 0);
  expectNothing();
}

}  // namespace
}  // namespace holdem
