#include "platform/system/settings.h"

#include <QSettings>
#include <QStandardPaths>

#include "platform/system/text.h"

namespace forms {

namespace {

QString storePath(const std::string& application) {
  return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) +
         QLatin1Char('/') + shown(application) + QLatin1String(".ini");
}

QString keyPath(const std::string& section, const std::string& key) {
  return shown(section) + QLatin1Char('/') + shown(key);
}

/// A path that isn't valid UTF-8 can only be stored as bytes.
QVariant stored(const std::string& value) {
  const QByteArray bytes = QByteArray::fromStdString(value);
  return bytes.isValidUtf8() ? QVariant(QString::fromUtf8(bytes)) : QVariant(bytes);
}

}  // namespace

std::string GetSetting(const std::string& application, const std::string& section,
                       const std::string& key, const std::string& fallback) {
  const QSettings store(storePath(application), QSettings::IniFormat);
  const QVariant value = store.value(keyPath(section, key));
  return value.isValid() ? value.toByteArray().toStdString() : fallback;
}

bool GetFlag(const std::string& application, const std::string& section, const std::string& key,
             bool fallback) {
  const std::string value = GetSetting(application, section, key, "");
  if (value == "True") return true;
  if (value == "False") return false;
  return fallback;
}

bool SaveSetting(const std::string& application, const std::string& section, const std::string& key,
                 const std::string& value) {
  QSettings store(storePath(application), QSettings::IniFormat);
  store.setValue(keyPath(section, key), stored(value));
  store.sync();
  return store.status() == QSettings::NoError;
}

bool SaveFlag(const std::string& application, const std::string& section, const std::string& key,
              bool value) {
  return SaveSetting(application, section, key, std::string(value ? "True" : "False"));
}

std::string settingsFile(const std::string& application) {
  return bytesOf(storePath(application));
}

}  // namespace forms
