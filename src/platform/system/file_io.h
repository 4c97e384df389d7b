#pragma once

#include <array>
#include <cstdint>
#include <span>
#include <string>
#include <sys/stat.h>

namespace sys {

/// A normal file, read from its start. Small files are read with a single system call.
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
  bool fillBuffer();
  std::size_t takeBuffered(std::span<std::uint8_t> bytes);

  int handle_ = -1;
  std::int64_t size_ = 0;
  std::array<std::uint8_t, 1 << 13> buffer_;
  std::span<const std::uint8_t> buffered_;  ///< what has been read from the file, but not yet taken
};

/// What becomes of the bytes of a longer, older file that lie beyond the new ones.
enum class Tail { Keep, Drop };

/// A file that appears under its name in one step. The bytes are written to a hidden file in the
/// same directory, and `commit` renames it. Hold the directory meanwhile. So at every moment,
/// whatever fails and even if the program is killed, the name holds either what was there before or
/// the whole new file.
///
/// The new file has the mode of the one it replaces. A link is replaced itself; what it leads to
/// stays as it is. Directories, devices, pipes and write-protected files aren't replaced.
class OutputFile {
 public:
  /// Check `isOpen` before anything else.
  OutputFile(const std::string& path, Tail tail);
  ~OutputFile();
  OutputFile(const OutputFile&) = delete;
  OutputFile& operator=(const OutputFile&) = delete;

  bool isOpen() const { return handle_ >= 0; }
  /// Whether the name, now, is one for the file at `path`, too.
  bool wouldReplace(const std::string& path) const;
  bool write(std::span<const std::uint8_t> bytes);
  /// Without it, or if it returns false, nothing has changed.
  [[nodiscard]] bool commit();

 private:
  bool examineOld();
  void createHidden();
  bool keepTail();
  void abandon();

  std::string path_;
  std::string hidden_;
  Tail tail_;
  int handle_ = -1;
  std::int64_t written_ = 0;
  bool hasOld_ = false;  ///< whether the name, or the link that it is, holds an older file
  struct stat old_ {};
};

/// Held while files are written into a directory. The first to hold one removes the hidden files
/// that a killed program has left there; while another copy of the program holds it, they stay.
class DirectoryHold {
 public:
  explicit DirectoryHold(const std::string& directory);
  ~DirectoryHold();
  DirectoryHold(const DirectoryHold&) = delete;
  DirectoryHold& operator=(const DirectoryHold&) = delete;

 private:
  int handle_ = -1;
};

}  // namespace sys
