#include "platform/system/paths.h"

#include <algorithm>
#include <cctype>
#include <cstdlib>
#include <filesystem>

namespace sys {

namespace {

bool hasDrive(std::string_view path) {
  return path.size() >= 2 && path[1] == ':' && std::isalpha(static_cast<unsigned char>(path[0]));
}

/// The directory that has a link for each drive of the Wine prefix.
std::string wineDrives() {
  if (const char* prefix = std::getenv("WINEPREFIX"); prefix && *prefix) {
    return std::string(prefix) + "/dosdevices";
  }
  const char* home = std::getenv("HOME");
  return std::string(home ? home : "") + "/.wine/dosdevices";
}

/// The native directory of a drive. It doesn't exist if there is no such drive.
std::string driveRoot(char letter) {
  const char lower = static_cast<char>(std::tolower(static_cast<unsigned char>(letter)));
  return lower == 'z' ? "/" : wineDrives() + "/" + lower + ":/";
}

}  // namespace

std::string nativePath(std::string_view path) {
  std::string native;
  if (hasDrive(path)) {
    native = driveRoot(path[0]);
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
  if (!path.starts_with('/') && !hasDrive(path)) return std::string(path);
  std::string shown(hasDrive(path) ? "" : "Z:");
  shown += path;
  std::replace(shown.begin(), shown.end(), '/', '\\');
  return shown;
}

std::vector<std::string> drives() {
  std::vector<std::string> letters;
  for (char letter = 'A'; letter <= 'Z'; ++letter) {
    std::error_code error;
    if (std::filesystem::is_directory(driveRoot(letter), error)) letters.push_back({letter, ':'});
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

std::string_view directoryOf(std::string_view path) {
  const std::size_t end = path.rfind('\\');
  return end == std::string_view::npos ? std::string_view() : path.substr(0, end);
}

bool hasExtension(std::string_view path, std::string_view extension) {
  const auto isLetter = [](char a, char b) {
    return std::tolower(static_cast<unsigned char>(a)) == b;
  };
  return path.size() >= extension.size() &&
         std::equal(path.end() - std::ssize(extension), path.end(), extension.begin(), isLetter);
}

}  // namespace sys
