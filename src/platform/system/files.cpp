#include "platform/system/files.h"

#include <cctype>
#include <filesystem>
#include <sys/stat.h>

#include "platform/system/paths.h"

namespace sys {

namespace {

namespace fs = std::filesystem;

bool isHidden(std::string_view name) {
  return name.starts_with('.');
}

/// A name with a backslash can't be expressed in drive form.
bool canBeNamed(const std::string& name) {
  return name.find('\\') == std::string::npos;
}

bool sameLetter(char a, char b) {
  return std::tolower(static_cast<unsigned char>(a)) == std::tolower(static_cast<unsigned char>(b));
}

bool matches(std::string_view name, std::string_view pattern) {
  if (pattern.empty()) return name.empty();
  if (pattern[0] == '*') {
    return matches(name, pattern.substr(1)) || (!name.empty() && matches(name.substr(1), pattern));
  }
  return !name.empty() && (pattern[0] == '?' || sameLetter(pattern[0], name[0])) &&
         matches(name.substr(1), pattern.substr(1));
}

/// Calls `visit` with each entry of a directory until it returns false. An unreadable directory has
/// no entries.
template <class Visit>
void eachEntry(const std::string& directory, Visit visit) {
  const fs::path native = nativePath(directory);
  if (native.empty()) return;
  std::error_code error;
  for (fs::directory_iterator entry(native, error), end; !error && entry != end;
       entry.increment(error)) {
    const std::string name = entry->path().filename().string();
    if (!isHidden(name) && canBeNamed(name) && !visit(*entry, name)) return;
  }
}

bool isFile(const fs::directory_entry& entry) {
  std::error_code error;
  return entry.is_regular_file(error);
}

}  // namespace

bool isNormalFile(const std::string& path) {
  const fs::path native = nativePath(path);
  std::error_code error;
  return !native.empty() && !isHidden(native.filename().string()) &&
         fs::is_regular_file(native, error);
}

bool isDirectory(const std::string& path) {
  const fs::path native = nativePath(path);
  std::error_code error;
  return !native.empty() && fs::is_directory(native, error);
}

bool exists(const std::string& path) {
  const fs::path native = nativePath(path);
  std::error_code error;
  return !native.empty() && fs::exists(native, error);
}

std::int64_t stampOf(const std::string& directory) {
  struct stat status {};
  if (::stat(nativePath(directory).c_str(), &status) != 0) return 0;
  return std::int64_t{status.st_mtim.tv_sec} * 1'000'000'000 + status.st_mtim.tv_nsec;
}

bool makeDirectory(const std::string& path) {
  const fs::path native = nativePath(path);
  std::error_code error;
  return !native.empty() && fs::create_directory(native, error);
}

bool isSame(const std::string& path, const std::string& other) {
  const std::string a = nativePath(path);
  const std::string b = nativePath(other);
  struct stat statusA {};
  struct stat statusB {};
  return !a.empty() && !b.empty() && ::stat(a.c_str(), &statusA) == 0 &&
         ::stat(b.c_str(), &statusB) == 0 && statusA.st_dev == statusB.st_dev &&
         statusA.st_ino == statusB.st_ino;
}

std::vector<std::string> filesIn(const std::string& directory, const std::string& pattern) {
  const std::string_view wanted = pattern == "*.*" ? "*" : std::string_view(pattern);
  std::vector<std::string> names;
  eachEntry(directory, [&](const fs::directory_entry& entry, const std::string& name) {
    if (matches(name, wanted) && isFile(entry)) names.push_back(name);
    return true;
  });
  return names;
}

bool hasFiles(const std::string& directory) {
  bool found = false;
  eachEntry(directory, [&](const fs::directory_entry& entry, const std::string&) {
    found = isFile(entry);
    return !found;
  });
  return found;
}

std::vector<std::string> directoriesIn(const std::string& directory) {
  std::vector<std::string> names;
  eachEntry(directory, [&](const fs::directory_entry& entry, const std::string& name) {
    std::error_code error;
    if (entry.is_directory(error)) names.push_back(name);
    return true;
  });
  return names;
}

}  // namespace sys
