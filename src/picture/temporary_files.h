#pragma once

#include <string>

#include "platform/system/paths.h"
#include "platform/system/temp_directory.h"

namespace mill {

/// The bitmap that the preview shows.
inline std::string tempPicturePath() {
  return sys::join(sys::tempDirectory(), "temp.bmp");
}

/// The colours of the standard bitmap that was opened last, as a palette file.
inline std::string tempPalettePath() {
  return sys::join(sys::tempDirectory(), "bmp.pal");
}

}  // namespace mill
