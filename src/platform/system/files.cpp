#include "platform/system/files.h"

#include <cctype>
#include <cerrno>
#include <fcntl.h>
#include <filesystem>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

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

bool makeDirectory(const std::string& path) {
  const fs::path native = nativePath(path);
  std::error_code error;
  return !native.empty() && fs::create_directory(native, error);
}

bool isSame(const std::string& path, const std::string& other) {
  const fs::path a = nativePath(path);
  const fs::path b = nativePath(other);
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

InputFile::InputFile(const std::string& path) {
  const fs::path native = nativePath(path);
  if (native.empty()) return;
  // Non-blocking, since a pipe without a writer would hang the program; only regular files pass.
  handle_ = ::open(native.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY);
  struct stat status {};
  if (handle_ >= 0 && (::fstat(handle_, &status) != 0 || !S_ISREG(status.st_mode))) {
    ::close(handle_);
    handle_ = -1;
  }
  size_ = status.st_size;
}

InputFile::~InputFile() {
  if (isOpen()) ::close(handle_);
}

bool InputFile::read(std::span<std::uint8_t> bytes) {
  while (!bytes.empty()) {
    const ssize_t count = ::read(handle_, bytes.data(), bytes.size());
    if (count < 0 && errno == EINTR) continue;
    if (count <= 0) return false;
    bytes = bytes.subspan(static_cast<std::size_t>(count));
  }
  return true;
}

OutputFile::OutputFile(const std::string& path, std::int64_t size)
    : path_(nativePath(path).string()) {
  if (path_.empty() || !open()) return;
  if (!reserve(size)) abandon();
}

OutputFile::~OutputFile() {
  if (isOpen()) abandon();
}

bool OutputFile::open() {
  handle_ = ::open(path_.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
  if (handle_ >= 0 || errno != EEXIST) return handle_ >= 0;
  // Checked before opening, since opening a device can have side effects.
  struct stat status {};
  if (::stat(path_.c_str(), &status) != 0 || !S_ISREG(status.st_mode)) return false;
  // Readable too: without support by the file system, reserving space has to read.
  handle_ = ::open(path_.c_str(), O_RDWR | O_CLOEXEC | O_NONBLOCK | O_NOCTTY);
  if (handle_ < 0) return false;
  if (::fstat(handle_, &status) != 0 || !S_ISREG(status.st_mode)) {
    ::close(handle_);
    handle_ = -1;
    return false;
  }
  oldSize_ = status.st_size;
  return true;
}

bool OutputFile::reserve(std::int64_t size) {
  // A new file has nothing to lose: if writing fails, it is removed.
  if (oldSize_ < 0 || size <= 0) return true;
  return ::posix_fallocate(handle_, 0, size) == 0;
}

bool OutputFile::write(std::span<const std::uint8_t> bytes) {
  while (!bytes.empty()) {
    const ssize_t count = ::write(handle_, bytes.data(), bytes.size());
    if (count < 0 && errno == EINTR) continue;
    if (count <= 0) return false;
    bytes = bytes.subspan(static_cast<std::size_t>(count));
  }
  return true;
}

bool OutputFile::close() {
  const int handle = std::exchange(handle_, -1);
  if (::close(handle) == 0) return true;
  const int undone = oldSize_ < 0 ? ::unlink(path_.c_str()) : ::truncate(path_.c_str(), oldSize_);
  static_cast<void>(undone);  // the user hears of the original failure
  return false;
}

void OutputFile::abandon() {
  if (oldSize_ < 0) {
    ::unlink(path_.c_str());
  } else if (::ftruncate(handle_, oldSize_) != 0) {
    // The length stays as the failed write left it; the user hears of the original failure.
  }
  ::close(std::exchange(handle_, -1));
}

}  // namespace sys
