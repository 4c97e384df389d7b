#pragma once

#include <cstdint>

#include "platform/forms/control.h"

namespace forms {

/// A palette as 16 × 16 swatches, row by row, named `name(0)` to `name(255)`. Neighbours share the
/// line between them. The colours of all swatches together cost one repaint.
class SwatchGrid : public Control {
 public:
  static constexpr int kSwatches = 256;

  /// `left` and `top` are those of swatch 0, `pitch` the way from one swatch to the next; a swatch
  /// is a pixel larger than that. Twips.
  SwatchGrid(Container& parent, const char* name, int left, int top, int pitch,
             IndexHandler click = {});

  void setBackColor(int index, std::uint8_t red, std::uint8_t green, std::uint8_t blue);
};

}  // namespace forms
