// Palette list. Little-endian throughout.
//
//   offset  size      content
//        0     4      tag, not interpreted
//        4     4      N, the number of palettes, unsigned
//        8    44      not interpreted
//       52  1032 x N  records
//
// A record:
//
//        0  1024      256 colours of four bytes
//     1024     4      palette index, signed
//     1028     4      not interpreted
//
// The fourth byte of a colour gives the order of the other three: 255 means Red, Green, Blue,
// anything else Blue, Green, Red. One record may contain both.

#include "formats/palette_list.h"

#include <array>
#include <utility>

#include "formats/little_endian.h"

namespace mill {

namespace {

ListPalette loadRecord(std::span<const std::uint8_t, kListRecordSize> record) {
  ListPalette palette;
  for (std::size_t i = 0; i < kColours; ++i) {
    ColourEntry& colour = palette.Entries[i];
    colour = loadColour(record, i * kColourSize);
    if (colour.Extra == 255) std::swap(colour.Red, colour.Blue);
  }
  palette.Index = loadLittleEndian<std::int32_t>(record, kColours * kColourSize);
  return palette;
}

}  // namespace

Fault checkPaletteList(std::span<const std::uint8_t, kListHeadSize> head, std::int64_t fileSize,
                       int& count) {
  const std::int64_t found = loadLittleEndian<std::uint32_t>(head, 4);
  if (found < 1 || found > kListLimit) return Fault::NotAPaletteList;
  if (fileSize < kListHeadSize + found * kListRecordSize) return Fault::NotAPaletteList;
  count = static_cast<int>(found);
  return Fault::None;
}

Fault readPaletteList(int count, const ReadBytes& read, std::vector<ListPalette>& palettes) {
  std::vector<ListPalette> found;
  found.reserve(static_cast<std::size_t>(count));
  std::array<std::uint8_t, kListRecordSize> record;
  for (int i = 0; i < count; ++i) {
    if (!read(record)) return Fault::NotAPaletteList;
    found.push_back(loadRecord(record));
  }
  palettes = std::move(found);
  return Fault::None;
}

}  // namespace mill
