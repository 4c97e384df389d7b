#pragma once

#include <filesystem>

namespace mill::bench {

/// Whole conversions through the real window, from the click on "Yes" to the window's hiding,
/// against a plain loop over the same files in the same run; and again with the palette search and
/// the swatch window on.
void runBatches(const std::filesystem::path& folder);

}  // namespace mill::bench
