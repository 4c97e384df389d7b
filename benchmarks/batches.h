#pragma once

#include <filesystem>
#include <string>

namespace mill::bench {

/// Measures whole conversions through the real window, from the click on "Yes" until the window
/// hides, against a plain loop over the same files; then again with the palette search and the
/// swatch window. Each measurement is made by a fresh process of this program.
void runBatches(const std::filesystem::path& folder);

/// What such a process does: measures "plain", "window" or "search" on one of the works, and prints
/// the result.
void runBatch(const std::filesystem::path& folder, const std::string& what, int work);

}  // namespace mill::bench
