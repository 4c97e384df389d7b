#pragma once

#include <filesystem>

namespace mill::bench {

/// Measures how long a user waits: from a click to its preview, for each step of a drag, for a
/// palette among many directories, for a long list of files.
void runWindows(const std::filesystem::path& folder);

}  // namespace mill::bench
