#pragma once

#include <string>

namespace sys {

/// The directory for temporary files: the environment variable `temp` as it is. If that isn't set,
/// `TEMP` or `TMPDIR` if only this user can write there, else a private directory of the user.
std::string tempDirectory();

}  // namespace sys
