#pragma once

#include <string>

#include "platform/system/paths.h"

namespace mill {

/// Where temporary files go: never among the user's pictures or palettes.
std::string temporaryDirectory();

/// The bitmap that the preview shows.
inline std::string tempPicturePath() {
  return sys::join(temporaryDirectory(), "temp.bmp");
}

/// The colours of the standard bitmap that was opened last, as a palette file.
inline std::string tempPalettePath() {
  return sys::join(temporaryDirectory(), "bmp.pal");
}

}  // namespace mill
