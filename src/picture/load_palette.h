#pragma once

#include <string>

#include "formats/fault.h"
#include "formats/picture_record.h"

namespace mill {

struct PaletteRead {
  Fault fault = Fault::None;
  bool isRead = false;  ///< whether at least the head was there
};

/// Reads the palette file at `path`. The user gets a message if it is missing, unreadable or too
/// short. A short file supplies what it has, unless even its head is incomplete. Unless `isRead`,
/// `head` and `colours` are unchanged.
[[nodiscard]] PaletteRead readPaletteFile(const std::string& path, std::string& head,
                                          ColourTable& colours);

/// Writes `PaletteHeader` and `colours` to the file at `path`; the tail of a longer file stays. On
/// failure the user gets a message and the result is false.
[[nodiscard]] bool writePaletteFile(const std::string& path, const ColourTable& colours);

/// Reads `CurrentPaletteFile` into `PaletteTable` and `PaletteHeader`. The result tells of what the
/// user got a message: PaletteMissing, PaletteUnreadable or PaletteIncomplete.
Fault LoadPalette();

/// Writes `PaletteTable` to `CurrentPaletteFile`. On failure the user gets a message and the result
/// is false.
[[nodiscard]] bool SavePalette();

}  // namespace mill
