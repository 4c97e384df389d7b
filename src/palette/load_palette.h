#pragma once

#include <functional>

namespace mill {

/// Called after each `LoadPalette` that read a file while `ShowPal` is on. The swatch window puts
/// itself here when it is loaded.
inline std::function<void()> updateSwatches;

/// Reads `CurrentPaletteFile` into `PaletteTable` and `PaletteHeader`. A file that isn't there,
/// can't be read or is too short brings its message; only a short one changes the palette.
void LoadPalette();

/// Writes `PaletteHeader` and `PaletteTable` over `CurrentPaletteFile`, keeping the tail of a
/// longer file. A failure brings a message.
void SavePalette();

}  // namespace mill
