#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <vector>

#include "formats/fault.h"
#include "formats/picture_record.h"

namespace mill {

/// The opaque head of a palette file, in bytes.
inline constexpr int kPaletteHeadSize = 24;
/// The whole of a palette file, in bytes.
inline constexpr int kPaletteFileSize = kPaletteHeadSize + 4 * kColours;

/// Reads the first 1048 of `bytes`, a palette file from its start.
/// Fault: PaletteIncomplete; below 24 bytes nothing changes then, from 24 on the head and the whole
/// entries that are there are taken and the missing ones are all 0.
[[nodiscard]] Fault readPalette(std::span<const std::uint8_t> bytes, std::string& head,
                                ColourTable& colours);

/// The bytes of a palette file: `head` with its present length, then the colours.
std::vector<std::uint8_t> paletteBytes(const std::string& head, const ColourTable& colours);

}  // namespace mill
