#include "platform/system/settings.h"

#include <QStandardPaths>

#include "platform/system/text.h"

namespace sys {

Settings::Settings(const std::string& application, const std::string& section)
    : store_(QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) +
                 QLatin1Char('/') + shown(application) + QLatin1String(".ini"),
             QSettings::IniFormat) {
  store_.beginGroup(shown(section));
}

std::string Settings::text(const char* key, const std::string& fallback) const {
  const QVariant value = store_.value(shown(key));
  return value.isValid() ? value.toByteArray().toStdString() : fallback;
}

bool Settings::flag(const char* key, bool fallback) const {
  const std::string value = text(key, "");
  return value == "True" || (value != "False" && fallback);
}

void Settings::setText(const char* key, const std::string& value) {
  // A path that isn't valid UTF-8 can only be stored as bytes.
  const QByteArray bytes = QByteArray::fromStdString(value);
  store_.setValue(shown(key), bytes.isValidUtf8() ? QVariant(QString::fromUtf8(bytes)) : bytes);
}

void Settings::setFlag(const char* key, bool value) {
  setText(key, value ? "True" : "False");
}

bool Settings::save() {
  store_.sync();
  if (store_.status() != QSettings::FormatError) return store_.status() == QSettings::NoError;
  // A format error met on reading sticks in the status and hides whether writing failed. Another
  // object for the same file tries again to write what is still unsaved.
  QSettings again(store_.fileName(), store_.format());
  again.sync();
  return again.status() == QSettings::NoError;
}

std::string Settings::file() const {
  return bytesOf(store_.fileName());
}

}  // namespace sys
