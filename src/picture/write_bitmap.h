#pragma once

#include <string>

namespace mill {

/// Writes the shared record to `path` as a standard bitmap with the colours of `PaletteTable`. An
/// existing file is overwritten from its start and keeps its tail. On failure the user gets a
/// message and the result is false.
[[nodiscard]] bool WriteBitmap(const std::string& path);

}  // namespace mill
