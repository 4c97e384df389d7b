#include "platform/system/file_io.h"

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <filesystem>
#include <random>
#include <sys/file.h>
#include <unistd.h>
#include <utility>
#include <vector>

#include "platform/system/paths.h"

namespace sys {

namespace {

namespace fs = std::filesystem;

constexpr std::string_view kHiddenPrefix = ".raster-mill-";
constexpr std::string_view kHiddenSuffix = ".tmp";

/// The number of bytes read: 0 at the end of the file, -1 on failure.
ssize_t readOnce(int handle, std::span<std::uint8_t> bytes) {
  ssize_t count = 0;
  do {
    count = ::read(handle, bytes.data(), bytes.size());
  } while (count < 0 && errno == EINTR);
  return count;
}

/// Non-blocking, since a pipe without a writer would hang the program. -1 on failure.
int openToRead(const std::string& path) {
  int handle = -1;
  do {
    handle = ::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY);
  } while (handle < 0 && errno == EINTR);
  return handle;
}

/// A name that no other copy of the program uses, on whatever machine.
std::string hiddenName() {
  static const std::string unique = [] {
    std::random_device random;
    char digits[17];
    std::snprintf(digits, sizeof digits, "%08x%08x", random(), random());
    return std::string(digits);
  }();
  static int count = 0;
  return std::string(kHiddenPrefix) + unique + "-" + std::to_string(++count) +
         std::string(kHiddenSuffix);
}

void clearLeftovers(const fs::path& directory) {
  std::error_code error;
  for (fs::directory_iterator entry(directory, error), end; !error && entry != end;
       entry.increment(error)) {
    const std::string name = entry->path().filename().string();
    if (!name.starts_with(kHiddenPrefix) || !name.ends_with(kHiddenSuffix)) continue;
    ::unlink(entry->path().c_str());
  }
}

}  // namespace

InputFile::InputFile(const std::string& path) {
  const std::string native = nativePath(path);
  if (native.empty() || native[native.rfind('/') + 1] == '.') return;
  handle_ = openToRead(native);
  if (!isOpen()) return;
  struct stat status {};
  if (::fstat(handle_, &status) != 0 || !S_ISREG(status.st_mode)) {
    ::close(std::exchange(handle_, -1));
    return;
  }
  size_ = status.st_size;
}

InputFile::~InputFile() {
  if (isOpen()) ::close(handle_);
}

bool InputFile::fillBuffer() {
  const ssize_t count = readOnce(handle_, buffer_);
  if (count > 0) buffered_ = std::span(buffer_).first(static_cast<std::size_t>(count));
  return count > 0;
}

std::size_t InputFile::takeBuffered(std::span<std::uint8_t> bytes) {
  const std::size_t count = std::min(bytes.size(), buffered_.size());
  std::copy_n(buffered_.begin(), count, bytes.begin());
  buffered_ = buffered_.subspan(count);
  return count;
}

bool InputFile::read(std::span<std::uint8_t> bytes) {
  bytes = bytes.subspan(takeBuffered(bytes));
  while (bytes.size() >= buffer_.size()) {
    const ssize_t count = readOnce(handle_, bytes);
    if (count <= 0) return false;
    bytes = bytes.subspan(static_cast<std::size_t>(count));
  }
  while (!bytes.empty()) {
    if (!fillBuffer()) return false;
    bytes = bytes.subspan(takeBuffered(bytes));
  }
  return true;
}

OutputFile::OutputFile(const std::string& path, Tail tail) : path_(nativePath(path)), tail_(tail) {
  if (!path_.empty() && examineOld()) createHidden();
}

OutputFile::~OutputFile() {
  if (isOpen()) abandon();
}

/// False if what stands under the name can't be replaced.
bool OutputFile::examineOld() {
  if (::lstat(path_.c_str(), &old_) != 0) return errno == ENOENT;
  if (S_ISLNK(old_.st_mode)) {
    // A link that leads nowhere holds nothing.
    if (::stat(path_.c_str(), &old_) != 0) return errno == ENOENT || errno == ELOOP;
  } else if (::faccessat(AT_FDCWD, path_.c_str(), W_OK, AT_EACCESS) != 0) {
    return false;
  }
  hasOld_ = S_ISREG(old_.st_mode);
  return hasOld_;
}

bool OutputFile::wouldReplace(const std::string& path) const {
  struct stat other {};
  return hasOld_ && ::stat(nativePath(path).c_str(), &other) == 0 && old_.st_dev == other.st_dev &&
         old_.st_ino == other.st_ino;
}

void OutputFile::createHidden() {
  const std::string directory = path_.substr(0, path_.rfind('/') + 1);
  // Until the older file's mode is set, nobody else may read what it may have kept secret.
  const mode_t mode = hasOld_ ? 0600 : 0666;
  do {
    hidden_ = directory + hiddenName();
    handle_ = ::open(hidden_.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, mode);
  } while (handle_ < 0 && (errno == EINTR || errno == EEXIST));
  // Where modes don't exist, the file is written all the same.
  if (isOpen() && hasOld_) ::fchmod(handle_, old_.st_mode & 07777);
}

bool OutputFile::write(std::span<const std::uint8_t> bytes) {
  while (!bytes.empty()) {
    const ssize_t count = ::write(handle_, bytes.data(), bytes.size());
    if (count < 0 && errno == EINTR) continue;
    if (count <= 0) return false;
    written_ += count;
    bytes = bytes.subspan(static_cast<std::size_t>(count));
  }
  return true;
}

/// Copies what the older file has beyond the new bytes. A file that may be written but not read
/// can't keep it.
bool OutputFile::keepTail() {
  const int old = openToRead(path_);
  if (old < 0) return errno == EACCES;
  std::vector<std::uint8_t> piece(1 << 18);
  bool kept = ::lseek(old, written_, SEEK_SET) == written_;
  for (ssize_t count = 1; kept && count > 0;) {
    count = readOnce(old, piece);
    kept = count >= 0 && write(std::span(piece).first(static_cast<std::size_t>(count)));
  }
  ::close(old);
  return kept;
}

bool OutputFile::commit() {
  const bool hasTail = tail_ == Tail::Keep && hasOld_ && old_.st_size > written_;
  if (hasTail && !keepTail()) {
    abandon();
    return false;
  }
  // An interrupted close has closed the file all the same.
  const bool isClosed = ::close(std::exchange(handle_, -1)) == 0 || errno == EINTR;
  if (isClosed && ::rename(hidden_.c_str(), path_.c_str()) == 0) return true;
  ::unlink(hidden_.c_str());
  return false;
}

void OutputFile::abandon() {
  ::close(std::exchange(handle_, -1));
  ::unlink(hidden_.c_str());
}

DirectoryHold::DirectoryHold(const std::string& directory) {
  const std::string native = nativePath(directory);
  if (native.empty()) return;
  handle_ = ::open(native.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  if (handle_ < 0) return;
  if (::flock(handle_, LOCK_EX | LOCK_NB) == 0) clearLeftovers(native);
  ::flock(handle_, LOCK_SH | LOCK_NB);
}

DirectoryHold::~DirectoryHold() {
  if (handle_ >= 0) ::close(handle_);
}

}  // namespace sys
