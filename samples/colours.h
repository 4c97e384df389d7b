#pragma once

#include <cstdint>
#include <vector>

#include "formats/picture_record.h"
#include "image.h"

namespace samples {

/// The index that no coloured pixel has.
inline constexpr std::uint8_t kTransparent = 0;

/// A palette for every purpose: sixteen colours in sixteen shades each, from dark to light. Index
/// `16 * colour + shade`; index 0 is black.
mill::ColourTable basePalette();

/// `start`, moved towards the colours of `image`. Every entry stays near its neighbours, so that
/// the ramps stay ramps and a picture is still itself with the palette it started from.
mill::ColourTable fittedPalette(const mill::ColourTable& start, const Image& image);

/// Every colour multiplied by `tint`, and drawn by `grey` (0 to 1) towards its own grey.
mill::ColourTable tinted(mill::ColourTable colours, Rgb tint, double grey);

/// The indexes of `image` in `colours`, its transparent pixels at `kTransparent`. What the nearest
/// colour misses is handed on to the neighbours.
std::vector<std::uint8_t> quantised(const Image& image, const mill::ColourTable& colours);

}  // namespace samples
