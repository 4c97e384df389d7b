#pragma once

#include <string>

namespace mill {

/// Writes the shared record to `path` as a standard bitmap with the colours of `PaletteTable`. An
/// older file is written over and keeps its tail. A failure brings a message; the result says
/// whether the file was written.
[[nodiscard]] bool WriteBitmap(const std::string& path);

}  // namespace mill
