#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <vector>

namespace sys {

/// A normal file is a regular one whose name doesn't begin with a dot. All paths are as in paths.h.

bool isNormalFile(const std::string& path);
bool isDirectory(const std::string& path);
/// Whether anything exists under that name.
bool exists(const std::string& path);
/// Whether both paths lead to the same file or directory, by any name or link.
bool isSame(const std::string& path, const std::string& other);

/// Creates one directory in an existing one. False on failure.
bool makeDirectory(const std::string& path);

/// The names of the normal files in a directory that match a pattern of `*` and `?`, ignoring case,
/// in file system order. Empty if the directory can't be read.
std::vector<std::string> filesIn(const std::string& directory, const std::string& pattern);
/// Whether `filesIn` with "*.*" would return any.
bool hasFiles(const std::string& directory);
/// The names of the sub-directories that aren't hidden.
std::vector<std::string> directoriesIn(const std::string& directory);

/// A regular file, read from its start.
class InputFile {
 public:
  /// Check `isOpen` before anything else.
  explicit InputFile(const std::string& path);
  ~InputFile();
  InputFile(const InputFile&) = delete;
  InputFile& operator=(const InputFile&) = delete;

  bool isOpen() const { return handle_ >= 0; }
  std::int64_t size() const { return size_; }
  /// Fills `bytes`; false if the file is too short or can't be read.
  bool read(std::span<std::uint8_t> bytes);

 private:
  int handle_ = -1;
  std::int64_t size_ = 0;
};

/// A regular file, written from its first byte. An existing file is overwritten and keeps its tail;
/// anything but a regular file is refused. Unless `close` returns true the output has failed: a new
/// file is then removed, and an existing one gets its old length back.
class OutputFile {
 public:
  /// Opens or creates the file and reserves `size` bytes, so that a full disk is noticed before an
  /// older file is overwritten. Check `isOpen` before anything else.
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
  std::int64_t oldSize_ = -1;  ///< of an existing file, else -1
};

}  // namespace sys
