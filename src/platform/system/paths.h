#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace sys {

/// Paths are written with a drive and backslashes, and mean files of this system: `Z:` is the root
/// of its file system, and the other letters are the drives of the user's Wine prefix
/// (`$WINEPREFIX`, else `~/.wine`). A native absolute path means itself. Names are bytes.

/// The native path that `path` means, whether or not it exists; empty for a path that has neither a
/// drive nor a leading slash. Asks nothing of the file system.
std::filesystem::path nativePath(std::string_view path);

/// An absolute native path in drive form, on `Z:`. A path with a drive gets its backslashes; one
/// that means nothing stays as it is.
std::string drivePath(std::string_view path);

/// The letters of all drives with their colons, in alphabetical order.
std::vector<std::string> drives();

/// `directory`, a backslash and `name`.
std::string join(std::string_view directory, std::string_view name);

/// What follows the last backslash of `path`.
std::string_view fileNameOf(std::string_view path);

}  // namespace sys
