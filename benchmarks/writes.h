#pragma once

#include <filesystem>

namespace mill::bench {

/// Measures what it costs to write a file beside its place and rename it, as the program does,
/// against writing it in place.
void runWrites(const std::filesystem::path& folder);

}  // namespace mill::bench
