#pragma once

#include <cstdint>
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

/// Changes whenever a file in the directory is made, renamed or removed; 0 if it can't be read.
std::int64_t stampOf(const std::string& directory);

/// Creates one directory in an existing one. False on failure.
bool makeDirectory(const std::string& path);

/// The names of the normal files in a directory that match a pattern of `*` and `?`, ignoring case,
/// in file system order. Empty if the directory can't be read.
std::vector<std::string> filesIn(const std::string& directory, const std::string& pattern);
/// Whether `filesIn` with "*.*" would return any.
bool hasFiles(const std::string& directory);
/// The names of the sub-directories that aren't hidden.
std::vector<std::string> directoriesIn(const std::string& directory);

}  // namespace sys
