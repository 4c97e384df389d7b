#include "platform/system/temp_directory.h"

#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <fcntl.h>
#include <filesystem>
#include <memory>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

#include "platform/system/files.h"
#include "platform/system/paths.h"

namespace sys {

namespace {

namespace fs = std::filesystem;

constexpr const char* kName = "raster-mill";

std::string variable(const char* name) {
  const char* value = std::getenv(name);
  return value ? value : "";
}

/// If others can write to a directory, they could plant a file under a known name.
bool isPrivate(const std::string& directory) {
  struct stat status {};
  return ::stat(directory.c_str(), &status) == 0 && S_ISDIR(status.st_mode) &&
         status.st_uid == ::getuid() && (status.st_mode & (S_IWGRP | S_IWOTH)) == 0;
}

/// A directory that nobody else can use, as long as this object lives. Not held if it isn't this
/// user's, is a link, or another copy of the program holds it.
class PrivateDirectory {
 public:
  explicit PrivateDirectory(fs::path path) : path_(std::move(path)) {
    // What is tested and changed here is the directory that was opened, whatever its name may lead
    // to later.
    handle_ = ::open(path_.c_str(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC);
    struct stat status {};
    isHeld_ = handle_ >= 0 && ::fstat(handle_, &status) == 0 && status.st_uid == ::getuid() &&
              ::fchmod(handle_, S_IRWXU) == 0 && lock();
  }
  ~PrivateDirectory() {
    std::error_code error;
    if (isHeld_ && isTemporary) fs::remove_all(path_, error);
    for (const int handle : {lock_, handle_}) {
      if (handle >= 0) ::close(handle);
    }
  }
  PrivateDirectory(const PrivateDirectory&) = delete;
  PrivateDirectory& operator=(const PrivateDirectory&) = delete;

  bool isHeld() const { return isHeld_; }
  /// Whether it hasn't been removed.
  bool exists() const {
    struct stat status {};
    return isHeld_ && ::fstat(handle_, &status) == 0 && status.st_nlink > 0;
  }
  const fs::path& path() const { return path_; }

  bool isTemporary = false;  ///< goes with this object

 private:
  /// Where the file system has no locks, nobody else can hold the directory either.
  bool lock() {
    lock_ = ::openat(handle_, ".lock", O_RDWR | O_CREAT | O_NOFOLLOW | O_CLOEXEC, 0600);
    return ::flock(lock_, LOCK_EX | LOCK_NB) == 0 || errno != EWOULDBLOCK;
  }

  fs::path path_;
  int handle_ = -1;
  int lock_ = -1;
  bool isHeld_ = false;
};

/// As the desktop's conventions have it, a relative path doesn't count.
fs::path cacheDirectory() {
  const std::string given = variable("XDG_CACHE_HOME");
  return given.starts_with('/') ? fs::path(given) : fs::path(variable("HOME")) / ".cache";
}

/// Removes the directories that killed copies of the program have left.
void clearTemporary(const fs::path& base) {
  std::error_code error;
  for (fs::directory_iterator entry(base, error), end; !error && entry != end;
       entry.increment(error)) {
    const std::string name = entry->path().filename().string();
    if (!name.starts_with(std::string(kName) + "-")) continue;
    PrivateDirectory left(entry->path());
    left.isTemporary = true;  // so it goes at once, unless it is in use
  }
}

/// One with a random name; empty on failure.
fs::path makeTemporary(const fs::path& base) {
  std::string pattern = (base / kName).string() + "-XXXXXX";
  return ::mkdtemp(pattern.data()) ? pattern : "";
}

std::unique_ptr<PrivateDirectory> holdOwn() {
  const fs::path base = cacheDirectory();
  std::error_code error;
  fs::create_directories(base, error);
  ::mkdir((base / kName).c_str(), S_IRWXU);
  auto own = std::make_unique<PrivateDirectory>(base / kName);
  if (own->isHeld()) {
    clearTemporary(base);
    return own;
  }
  for (const fs::path& place : {base, fs::temp_directory_path(error), fs::path("/tmp")}) {
    own = std::make_unique<PrivateDirectory>(makeTemporary(place));
    own->isTemporary = true;
    if (own->isHeld()) break;
  }
  return own;
}

/// Held until the program ends, or until somebody removes the directory.
std::string ownDirectory() {
  static std::unique_ptr<PrivateDirectory> own;
  if (!own || !own->exists()) {
    own.reset();
    own = holdOwn();
  }
  return drivePath(own->path().string());
}

bool isOneOf(const std::vector<std::string>& directories, const std::string& directory) {
  return std::any_of(directories.begin(), directories.end(),
                     [&](const std::string& each) { return isSame(each, directory); });
}

}  // namespace

std::string tempDirectory(const std::vector<std::string>& avoided) {
  if (std::string given = variable("temp"); !given.empty() && !isOneOf(avoided, given))
    return given;
  for (const char* name : {"TEMP", "TMPDIR"}) {
    const std::string given = variable(name);
    if (given.empty() || !isPrivate(nativePath(given))) continue;
    if (!isOneOf(avoided, given)) return drivePath(given);
  }
  return ownDirectory();
}

}  // namespace sys
