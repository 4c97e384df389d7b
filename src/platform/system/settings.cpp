#include "platform/system/settings.h"

#include <QDir>
#include <QFileInfo>
#include <QLockFile>
#include <QStandardPaths>

#include "platform/system/text.h"

namespace sys {

namespace {

constexpr int kPatience = 900;  // milliseconds

}  // namespace

Settings::Settings(const std::string& application, const std::string& section)
    : path_(QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) +
            QLatin1Char('/') + shown(application) + QLatin1String(".ini")),
      section_(shown(section) + QLatin1Char('/')) {
  if (isUsable()) read_.emplace(path_, QSettings::IniFormat);
}

/// Opening a pipe would hang the program.
bool Settings::isUsable() const {
  const QFileInfo file(path_);
  return !file.exists() || file.isFile();
}

std::string Settings::text(const char* key, const std::string& fallback) const {
  const QVariant value = read_ ? read_->value(section_ + shown(key)) : QVariant();
  return value.isValid() ? value.toByteArray().toStdString() : fallback;
}

bool Settings::flag(const char* key, bool fallback) const {
  const std::string value = text(key, "");
  return value == "True" || (value != "False" && fallback);
}

void Settings::setText(const char* key, const std::string& value) {
  // A path that isn't valid UTF-8 can only be stored as bytes.
  const QByteArray bytes = QByteArray::fromStdString(value);
  unsaved_[section_ + shown(key)] =
      bytes.isValidUtf8() ? QVariant(QString::fromUtf8(bytes)) : QVariant(bytes);
}

void Settings::setFlag(const char* key, bool value) {
  setText(key, value ? "True" : "False");
}

bool Settings::save() const {
  if (!isUsable()) return false;
  QDir().mkpath(QFileInfo(path_).path());
  // QSettings itself would wait for this lock for half a minute.
  QLockFile lock(path_ + QLatin1String(".lock"));
  if (!lock.tryLock(kPatience)) return false;
  lock.unlock();
  {
    QSettings store(path_, QSettings::IniFormat);
    for (const auto& [key, value] : unsaved_) store.setValue(key, value);
    store.sync();
    if (store.status() == QSettings::AccessError) return false;
  }
  // A format error met on reading sticks in the status, so only reading again tells of success.
  return QSettings(path_, QSettings::IniFormat).status() == QSettings::NoError;
}

std::string Settings::file() const {
  return bytesOf(path_);
}

}  // namespace sys
