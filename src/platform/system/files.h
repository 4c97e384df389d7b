#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <vector>

namespace sys {

/// A normal file is a regular one whose name doesn't begin with a dot. All paths are as in paths.h.

bool isNormalFile(const std::string& path);
bool isDirectory(const std::string& path);
/// Whether there is anything under that name.
bool exists(const std::string& path);
/// True where both paths lead to the same file or directory, by whatever name or link.
bool isSame(const std::string& path, const std::string& other);

/// Makes one directory in one that is there. False where that fails.
bool makeDirectory(const std::string& path);

/// The names of the normal files in a directory that match a pattern of `*` and `?`, without regard
/// to case, in the order of the file system; none where the directory can't be read.
std::vector<std::string> filesIn(const std::string& directory, const std::string& pattern);
/// Whether `filesIn` with "*.*" would give any.
bool hasFiles(const std::string& directory);
/// The names of the sub-directories that aren't hidden.
std::vector<std::string> directoriesIn(const std::string& directory);

/// A regular file that is read from its start.
class InputFile {
 public:
  /// Look at `isOpen` before anything else.
  explicit InputFile(const std::string& path);
  ~InputFile();
  InputFile(const InputFile&) = delete;
  InputFile& operator=(const InputFile&) = delete;

  bool isOpen() const { return handle_ >= 0; }
  std::int64_t size() const { return size_; }
  /// Fills all of `bytes`; false where the file ends before or can't be read.
  bool read(std::span<std::uint8_t> bytes);

 private:
  int handle_ = -1;
  std::int64_t size_ = 0;
};

/// A regular file that is written from its first byte. One that exists is written over and keeps
/// its tail; only regular files are ever written. Until `close` has said true the output counts as
/// failed: a file that was made for it is then removed, and one that was there keeps its length.
class OutputFile {
 public:
  /// Opens or makes the file, with space for `size` bytes, so that a full disk shows before the
  /// first byte of an older file is lost. Look at `isOpen` before anything else.
  OutputFile(const std::string& path, std::int64_t size);
  ~OutputFile();
  OutputFile(const OutputFile&) = delete;
  OutputFile& operator=(const OutputFile&) = delete;

  bool isOpen() const { return handle_ >= 0; }
  bool write(std::span<const std::uint8_t> bytes);
  bool close();

 private:
  bool open();
  bool reserve(std::int64_t size);
  void abandon();

  std::string path_;
  int handle_ = -1;
  std::int64_t oldSize_ = -1;  ///< of a file that was there before, else -1
};

}  // namespace sys
