#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <vector>

#include "formats/fault.h"
#include "formats/picture_record.h"

namespace mill {

/// The size of the opaque head, in bytes.
inline constexpr int kPaletteHeadSize = 24;
/// The size of a whole palette file, in bytes.
inline constexpr int kPaletteFileSize = kPaletteHeadSize + 4 * kColours;

/// Reads a palette from the first 1048 of `bytes`. Fault: PaletteIncomplete. Fewer than 24 bytes
/// change nothing; from 24 on, the head and all complete entries are taken, and missing entries are
/// all 0.
[[nodiscard]] Fault readPalette(std::span<const std::uint8_t> bytes, std::string& head,
                                ColourTable& colours);

/// The bytes of a palette file: `head` as long as it is, then the colours.
std::vector<std::uint8_t> paletteBytes(const std::string& head, const ColourTable& colours);

}  // namespace mill
