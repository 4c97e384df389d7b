#pragma once

#include <string>

namespace forms {

/// The settings store: text values by application, section and key, kept in
/// `$XDG_CONFIG_HOME/<application>.ini`, or in `~/.config` where that isn't set.

/// The value, or `fallback` where the key doesn't exist.
std::string GetSetting(const std::string& application, const std::string& section,
                       const std::string& key, const std::string& fallback);
/// The words True and False; any other value counts as missing.
bool GetFlag(const std::string& application, const std::string& section, const std::string& key,
             bool fallback);

/// False where the store couldn't be written.
bool SaveSetting(const std::string& application, const std::string& section, const std::string& key,
                 const std::string& value);
bool SaveFlag(const std::string& application, const std::string& section, const std::string& key,
              bool value);

/// The store's file, for a message.
std::string settingsFile(const std::string& application);

}  // namespace forms
