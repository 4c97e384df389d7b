#pragma once

#include "formats/picture_record.h"
#include "platform/forms/swatch_grid.h"

namespace mill {

/// Gives each swatch the colour of its entry.
inline void showColours(forms::SwatchGrid& grid, const ColourTable& colours) {
  for (int i = 0; i < kColours; ++i) {
    const ColourEntry& colour = colours[static_cast<std::size_t>(i)];
    grid.setBackColor(i, colour.Red, colour.Green, colour.Blue);
  }
}

}  // namespace mill
