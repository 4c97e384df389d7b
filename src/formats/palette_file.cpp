// Palette file.
//
//   offset  size  content
//        0    24  opaque head; files are written with the head of the current palette
//       24  1024  256 colours: Blue, Green, Red, Extra
//
// Anything after that is ignored. If the head has another length, the colours follow it directly.

#include "formats/palette_file.h"

#include <algorithm>

#include "formats/little_endian.h"

namespace mill {

Fault readPalette(std::span<const std::uint8_t> bytes, std::string& head, ColourTable& colours) {
  if (bytes.size() < kPaletteHeadSize) return Fault::PaletteIncomplete;
  head.assign(bytes.begin(), bytes.begin() + kPaletteHeadSize);

  const auto entries = bytes.subspan(kPaletteHeadSize);
  const std::size_t there = std::min<std::size_t>(entries.size() / kColourSize, kColours);
  colours = {};
  for (std::size_t i = 0; i < there; ++i) colours[i] = loadColour(entries, i * kColourSize);
  return there == kColours ? Fault::None : Fault::PaletteIncomplete;
}

std::vector<std::uint8_t> paletteBytes(const std::string& head, const ColourTable& colours) {
  std::vector<std::uint8_t> bytes(head.size() + kColourSize * kColours);
  std::copy(head.begin(), head.end(), bytes.begin());
  for (std::size_t i = 0; i < kColours; ++i) {
    storeColour(bytes, head.size() + i * kColourSize, colours[i]);
  }
  return bytes;
}

}  // namespace mill
