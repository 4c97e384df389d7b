#pragma once

#include <string>
#include <vector>

namespace sys {

/// The directory for temporary files: the environment variable `temp` as it is. If that isn't set,
/// `TEMP` or `TMPDIR` if only this user can write there, else a private directory of the user. None
/// of them if it is one of the `avoided` directories, by any name.
///
/// The private directory belongs to the copy of the program that was started first. Another one
/// that runs at the same time gets a directory of its own, which is removed when it ends.
std::string tempDirectory(const std::vector<std::string>& avoided = {});

}  // namespace sys
