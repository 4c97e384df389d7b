#pragma once

#include <functional>
#include <string>

#include "formats/picture_record.h"

namespace mill {

/// Called after each `LoadPalette` that read a file while `ShowPal` is on. The swatch window puts
/// itself here when it is loaded.
inline std::function<void()> updateSwatches;

/// Reads the palette file at `path`. A file that isn't there, can't be read or is too short brings
/// its message; a short one gives what it has, the others leave `head` and `colours` alone. True
/// where these have been read.
[[nodiscard]] bool readPaletteFile(const std::string& path, std::string& head,
                                   ColourTable& colours);

/// Writes `PaletteHeader` and `colours` over the file at `path`, keeping the tail of a longer one.
/// False, with a message, where that fails.
[[nodiscard]] bool writePaletteFile(const std::string& path, const ColourTable& colours);

/// Reads `CurrentPaletteFile` into `PaletteTable` and `PaletteHeader`.
void LoadPalette();

/// Writes `PaletteTable` over `CurrentPaletteFile`. False, with a message, where that fails.
[[nodiscard]] bool SavePalette();

}  // namespace mill
