#pragma once

#include <filesystem>

namespace mill::bench {

/// How long a user waits for the windows: from a click to a preview, for each step of a drag, for a
/// palette among many directories, for a long list of files.
void runWindows(const std::filesystem::path& folder);

}  // namespace mill::bench
