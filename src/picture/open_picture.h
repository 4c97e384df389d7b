#pragma once

#include <string>

#include "picture/find_palette.h"

namespace mill {

/// Reads the picture file at `path` into the shared record and sets `PictureFileName` to its name.
/// For a file that is refused, the user gets a message and the state stays as it was. A run passes
/// its palette `names`; see `FindPalette`. In a run a picture is also refused for its palette file,
/// if that is there but can't be read or ends early; then no picture is open.
void OpenPicture(const std::string& path, PaletteNames* names = nullptr);

}  // namespace mill
