#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>

#include <QDir>
#include <QFile>
#include <csignal>

#include "platform/qt/qt_services.h"

namespace holdem {
namespace {

class QtSettingsStoreTest : public testing::Test {
 protected:
  QtSettingsStoreTest() { QDir().mkpath(folder); }
  ~QtSettingsStoreTest() override { Clear(); }

  void Clear() { QFile::remove(folder) || QDir(folder).removeRecursively(); }
  void Fill(const QByteArray& bytes) {
    QFile file(path);
    EXPECT_TRUE(file.open(QFile::WriteOnly) && file.write(bytes));
  }

  const QString folder = qEnvironmentVariable("XDG_CONFIG_HOME") + "/Quorvane";
  const QString path = folder + "/Quorvane.conf";
};

TEST_F(QtSettingsStoreTest, KeepsTextsForTheNextStart) {
  Clear();  // as with a new user
  QtSettingsStore().Write("FoldLevels", "Yes");
  EXPECT_EQ(QtSettingsStore().Read("FoldLevels"), "Yes");
  EXPECT_EQ(QtSettingsStore().Read("Speed"), "");
  Fill("[Settings]\nLevelPre=2\nSpeed=1, 5\n");
  EXPECT_EQ(QtSettingsStore().Read("LevelPre"), "2");
  EXPECT_EQ(QtSettingsStore().Read("Speed"), "1,5");
}

// Whatever lies there, the program starts: nothing is read, and what is written is lost.
TEST_F(QtSettingsStoreTest, WhateverLiesInItsPlace) {
  const std::function<void()> cases[] = {
      [this] { Fill(QByteArray(5000, '\xff') + "[[[\n=\0@Variant("); },
      [this] { QDir().mkpath(path); },
      [this] { EXPECT_EQ(mkfifo(path.toLocal8Bit().constData(), 0600), 0); },
      [this] { QFile::link("/dev/full", path); },
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

TEST_F(QtSettingsStoreTest, AFullDiskLosesNothingThatWasKept) {
  QtSettingsStore().Write("LevelPre", "2");
  std::signal(SIGXFSZ, SIG_IGN);
  rlimit usual;
  getrlimit(RLIMIT_FSIZE, &usual);
  const rlimit full{.rlim_cur = 0, .rlim_max = usual.rlim_max};
  setrlimit(RLIMIT_FSIZE, &full);
  QtSettingsStore().Write("Speed", "1");
  setrlimit(RLIMIT_FSIZE, &usual);
  EXPECT_EQ(QtSettingsStore().Read("LevelPre"), "2");
  EXPECT_EQ(QtSettingsStore().Read("Speed"), "");
}

TEST(QtShell, AFolderCountsAsAFile) {
  EXPECT_TRUE(QtShell().Exists("/"));
  EXPECT_TRUE(QtShell().Exists("/proc/self/exe"));
  EXPECT_FALSE(QtShell().Exists("/proc/self/exe/readme.txt"));
}

}  // namespace
}  // namespace holdem
