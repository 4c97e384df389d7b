#pragma once

#include <QSettings>

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
  /// Writes what has been set. False if the file couldn't be written.
  [[nodiscard]] bool save();

  /// The path of the file, for a message.
  std::string file() const;

 private:
  QSettings store_;
};

}  // namespace sys
