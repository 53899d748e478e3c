#include "platform/qt/qt_services.h"

#include <QCoreApplication>
#include <QDesktopServices>
#include <QDir>
#include <QFileInfo>
#include <QLockFile>
#include <QStandardPaths>
#include <QStringList>
#include <QUrl>

namespace holdem {
namespace {

// The name under which settings have been kept from the first: it must stay.
constexpr const char* kApplication = "Quorvane";
constexpr int kLockPatience = 200;  // milliseconds

QString SettingPath(const std::string& key) {
  return QStringLiteral("Settings/") + QString::fromStdString(key);
}

// Qt waits for ever where another program holds the lock of the file, or where something that is no
// lock has its name. So the lock is tried here first. The registry of Windows has none.
bool CanBeWritten(const QSettings& settings) {
  const QString file = settings.fileName();
  if (file.startsWith(QStringLiteral("\\HKEY_"))) return true;
  QDir().mkpath(QFileInfo(file).path());
  return QLockFile(file + QStringLiteral(".lock")).tryLock(kLockPatience);
}

}  // namespace

QtSettingsStore::QtSettingsStore() {
  // Where the file should be there may be something else, such as a pipe: Qt would wait for ever to
  // read it.
  const QFileInfo file(QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) +
                       QStringLiteral("/%1/%1.conf").arg(kApplication));
  if (file.exists() && !file.isFile()) return;
  settings_ = std::make_unique<QSettings>(kApplication, kApplication);
  settings_->setFallbacksEnabled(false);  // the user's own settings only
}

std::string QtSettingsStore::Read(const std::string& key) {
  if (settings_ == nullptr) return {};
  // A text with commas comes back as a list.
  return settings_->value(SettingPath(key)).toStringList().join(',').toStdString();
}

void QtSettingsStore::Write(const std::string& key, const std::string& text) {
  if (settings_ == nullptr || (settings_->contains(SettingPath(key)) && Read(key) == text)) return;
  if (!CanBeWritten(*settings_)) return;
  settings_->setValue(SettingPath(key), QString::fromStdString(text));
  settings_->sync();
}

std::string QtShell::ProgramFolder() {
  const QFileInfo program(QCoreApplication::applicationFilePath());
  const QString resolved = program.canonicalPath();
  return QDir::toNativeSeparators(resolved.isEmpty() ? program.absolutePath() : resolved)
      .toStdString();
}

bool QtShell::Exists(const std::string& path) {
  return QFileInfo::exists(QString::fromStdString(path));
}

void QtShell::Open(const std::string& path) {
  QDesktopServices::openUrl(QUrl::fromLocalFile(QString::fromStdString(path)));
}

}  // namespace holdem
