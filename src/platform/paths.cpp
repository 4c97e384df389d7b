#include "platform/paths.h"

#include <algorithm>
#include <cctype>
#include <cstdlib>

namespace forms {

namespace {

bool hasDrive(std::string_view path) {
  return path.size() >= 2 && path[1] == ':' && std::isalpha(static_cast<unsigned char>(path[0]));
}

/// The directory with one link for each drive of the Wine prefix; empty without a home.
std::string wineDrives() {
  if (const char* prefix = std::getenv("WINEPREFIX"); prefix && *prefix) {
    return std::string(prefix) + "/dosdevices";
  }
  const char* home = std::getenv("HOME");
  return home && *home ? std::string(home) + "/.wine/dosdevices" : std::string();
}

/// The native directory that a drive stands for; empty where there is no such drive.
std::string driveRoot(char letter) {
  const char lower = static_cast<char>(std::tolower(static_cast<unsigned char>(letter)));
  if (lower == 'z') return "/";
  const std::string link = wineDrives() + "/" + lower + ":";
  std::error_code error;
  return std::filesystem::is_directory(link, error) ? link + "/" : std::string();
}

}  // namespace

std::filesystem::path nativePath(std::string_view path) {
  std::string native;
  if (hasDrive(path)) {
    native = driveRoot(path[0]);
    if (native.empty()) return {};
    path.remove_prefix(2);
  } else if (!path.starts_with('/')) {
    return {};
  }
  native.append(path);
  std::replace(native.begin(), native.end(), '\\', '/');
  const auto twoSeparators = [](char a, char b) { return a == '/' && b == '/'; };
  native.erase(std::unique(native.begin(), native.end(), twoSeparators), native.end());
  return native;
}

std::string drivePath(std::string_view path) {
  if (!path.starts_with('/')) return std::string(path);
  std::string shown = "Z:" + std::string(path);
  std::replace(shown.begin(), shown.end(), '/', '\\');
  return shown;
}

std::vector<std::string> drives() {
  std::vector<std::string> letters;
  for (char letter = 'A'; letter <= 'Z'; ++letter) {
    if (!driveRoot(letter).empty()) letters.push_back({letter, ':'});
  }
  return letters;
}

std::string join(std::string_view directory, std::string_view name) {
  std::string path;
  path.reserve(directory.size() + 1 + name.size());
  return path.append(directory).append(1, '\\').append(name);
}

std::string_view fileNameOf(std::string_view path) {
  return path.substr(path.rfind('\\') + 1);
}

}  // namespace forms
