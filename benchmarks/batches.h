#pragma once

#include <filesystem>
#include <string>

namespace mill::bench {

/// Measures whole conversions through the real window, from the click on "Yes" until the window
/// hides, against a plain loop over the same files; then again with the palette search and the
/// swatch window. Each measurement is made by a fresh process of this program.
void runBatches(const std::filesystem::path& folder);

/// What such a process does: measures "plain", "window" or "search" on so many pictures of a size
/// in the folder, and prints processor time and elapsed time in seconds, the share of painting, and
/// the peak of memory in MB. With "make" it makes the pictures first of all.
void runBatch(const std::filesystem::path& folder, const std::string& what, int count, int width,
              int height);

}  // namespace mill::bench
