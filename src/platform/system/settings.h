#pragma once

#include <QSettings>
#include <QVariant>

#include <map>
#include <optional>
#include <string>

namespace sys {

/// One section of an application's settings: text values by key, kept in
/// `$XDG_CONFIG_HOME/<application>.ini`, or in `~/.config` if that isn't set.
class Settings {
 public:
  Settings(const std::string& application, const std::string& section);

  /// The value, or `fallback` if the key doesn't exist.
  std::string text(const char* key, const std::string& fallback) const;
  /// Reads the words True and False; any other value counts as missing.
  bool flag(const char* key, bool fallback) const;

  void setText(const char* key, const std::string& value);
  void setFlag(const char* key, bool value);
  /// Writes what has been set. False if the file couldn't be written, or another program keeps it
  /// locked for a second.
  [[nodiscard]] bool save() const;

  /// The path of the file, for a message.
  std::string file() const;

 private:
  bool isUsable() const;

  const QString path_;
  const QString section_;
  std::optional<QSettings> read_;  ///< none if what stands there isn't a file
  /// Kept back until they are saved: an object that has them would wait for a lock even at its end.
  std::map<QString, QVariant> unsaved_;
};

}  // namespace sys
