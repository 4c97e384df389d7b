#pragma once

#include <string>

namespace forms {

/// The directory for temporary files: the environment variable `temp` as it is; where it isn't set,
/// `TEMP` or `TMPDIR` if only this user can write there, else a directory of the user's own.
std::string tempDirectory();

/// Starts the desktop's own viewer on a file, whether or not the file exists, and doesn't wait for
/// it. False where the viewer can't be started.
bool openWithViewer(const std::string& path);

}  // namespace forms
