#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace sys {

/// Paths are written with drives and backslashes: `Z:` is the root of the file system, and the
/// other letters are the drives of the user's Wine prefix (`$WINEPREFIX`, else `~/.wine`). Native
/// absolute paths are accepted as well. Names are bytes.

/// The native path for `path`, whether or not it exists; empty if it has neither a drive nor a
/// leading slash. Doesn't access the file system.
std::string nativePath(std::string_view path);

/// Converts an absolute native path to drive form, on `Z:`. A path with a drive gets backslashes;
/// any other text is returned unchanged.
std::string drivePath(std::string_view path);

/// The letters of all drives with their colons, in alphabetical order.
std::vector<std::string> drives();

/// `directory`, a backslash and `name`.
std::string join(std::string_view directory, std::string_view name);

/// The part after the last backslash of `path`.
std::string_view fileNameOf(std::string_view path);
/// Whether `path` ends in `extension`, such as ".pal", in large or small letters.
bool hasExtension(std::string_view path, std::string_view extension);
/// The part before the last backslash of `path`.
std::string_view directoryOf(std::string_view path);

}  // namespace sys
