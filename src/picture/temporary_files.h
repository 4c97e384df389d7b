#pragma once

#include <string>

#include "platform/system/environment.h"
#include "platform/system/paths.h"

namespace mill {

/// The bitmap that the preview shows.
inline std::string tempPicturePath() {
  return forms::join(forms::tempDirectory(), "temp.bmp");
}

/// The colours of the standard bitmap that was opened last, as a palette file.
inline std::string tempPalettePath() {
  return forms::join(forms::tempDirectory(), "bmp.pal");
}

}  // namespace mill
