// Any bytes as a palette list: what the check lets through is read whole, colour by colour.

#include "formats/palette_list.h"
#include "fuzz.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace mill;
  if (size < kListHeadSize) return 0;
  const model::Bytes bytes(data, data + size);
  const fuzz::File<kListHeadSize> file(bytes);
  int count = 0;
  const Fault fault = checkPaletteList(file.head(), file.size(), count);
  const std::int64_t claimed = bytes[4] | bytes[5] << 8 | bytes[6] << 16 |
                               static_cast<std::int64_t>(static_cast<std::int8_t>(bytes[7])) << 24;
  const bool isValid = claimed > 0 && claimed <= 32767 && 52 + 1032 * claimed <= file.size();
  fuzz::require(isValid == (fault == Fault::None));
  if (!isValid) return 0;

  std::vector<ListPalette> palettes;
  fuzz::require(readPaletteList(count, file.reader(), palettes) == Fault::None);
  std::vector<model::ListRecord> records;
  for (const ListPalette& palette : palettes) records.push_back({palette.Entries, palette.Index});
  fuzz::require(std::ssize(records) == claimed);
  // The model writes the bytes without a meaning in its own way.
  model::Bytes written = model::paletteList(records);
  std::copy_n(bytes.begin(), 52, written.begin());
  for (std::size_t end = 52 + 1032; end <= written.size(); end += 1032) {
    std::copy_n(bytes.begin() + static_cast<std::ptrdiff_t>(end - 4), 4,
                written.begin() + static_cast<std::ptrdiff_t>(end - 4));
  }
  fuzz::require(std::equal(written.begin(), written.end(), bytes.begin()));
  return 0;
}
