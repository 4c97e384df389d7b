// Any bytes as a palette list: what the check lets through is read whole, colour by colour.

#include "formats/little_endian.h"
#include "formats/palette_list.h"
#include "fuzz.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace mill;
  // The zeros behind short inputs make them complete lists of a few palettes.
  constexpr std::size_t kLeast = kListHeadSize + 3 * kListRecordSize;
  std::vector<std::uint8_t> bytes(data, data + size);
  bytes.resize(std::max(size, kLeast));
  const fuzz::File<kListHeadSize> file(bytes);
  int count = 0;
  if (checkPaletteList(file.head(), file.size(), count) != Fault::None) return 0;
  std::vector<ListPalette> palettes;
  fuzz::require(readPaletteList(count, file.reader(), palettes) == Fault::None);
  fuzz::require(palettes.size() == static_cast<std::size_t>(count));
  const std::uint8_t* at = bytes.data() + kListHeadSize;
  for (const ListPalette& palette : palettes) {
    for (const ColourEntry& colour : palette.Entries) {
      const bool redFirst = at[3] == 255;
      const ColourEntry expected{at[redFirst ? 0 : 2], at[1], at[redFirst ? 2 : 0], at[3]};
      fuzz::require(colour == expected);
      at += kColourSize;
    }
    fuzz::require(palette.Index == loadLittleEndian<std::int32_t>({at, 4}, 0));
    at += 8;
  }
  return 0;
}
