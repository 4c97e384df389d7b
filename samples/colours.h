#pragma once

#include <array>
#include <cstdint>
#include <vector>

#include "formats/picture_record.h"
#include "paint.h"

namespace samples {

/// Never used for a coloured pixel.
inline constexpr std::uint8_t kTransparent = 0;

using Palette = std::array<Rgb, mill::kColours>;

/// A general-purpose palette: sixteen colours in sixteen shades each, from dark to light. Index
/// `16 * colour + shade`; index 0 is black.
Palette basePalette();

/// Some of those sixteen colours. From red to rose they are in rainbow order.
enum Hue { kWood = 1, kRed, kGold = 4, kGreen = 6, kBlue = 9, kRose = 12, kSkin, kSlate };

/// A shade of one of them, from 0 (dark) to 1.
Rgb shade(int hue, double t);

/// The base palette moved towards the colours of a picture, but so little that the picture still
/// looks right in the base palette.
Palette fittedPalette(const std::vector<Pixel>& pixels);

/// The indexes of a picture in `colours`, transparent pixels at `kTransparent`.
std::vector<std::uint8_t> quantised(const std::vector<Pixel>& pixels, int width,
                                    const Palette& colours);

}  // namespace samples
