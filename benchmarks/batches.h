#pragma once

#include <filesystem>

namespace mill::bench {

/// Measures whole conversions through the real window, from the click on "Yes" until the window
/// hides, against a plain loop over the same files; then again with the palette search and the
/// swatch window.
void runBatches(const std::filesystem::path& folder);

}  // namespace mill::bench
