#pragma once

#include <string>

namespace sys {

/// The directory for temporary files: the environment variable `temp` as it is; where it isn't set,
/// `TEMP` or `TMPDIR` if only this user can write there, else a directory of the user's own.
std::string tempDirectory();

}  // namespace sys
