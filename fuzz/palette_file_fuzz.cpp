// Any bytes as a palette file: what is there comes back in its place, what isn't is 0.

#include "formats/palette_file.h"
#include "fuzz.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace mill;
  const std::string untouched = "untouched";
  std::string head = untouched;
  ColourTable colours{};
  const Fault fault = readPalette({data, size}, head, colours);
  fuzz::require((fault == Fault::None) == (size >= kPaletteFileSize));
  if (size < kPaletteHeadSize) {
    fuzz::require(head == untouched);
    return 0;
  }

  std::vector<std::uint8_t> expected(data, data + std::min<std::size_t>(size, kPaletteFileSize));
  expected.resize(expected.size() - expected.size() % 4);
  expected.resize(kPaletteFileSize);
  fuzz::require(paletteBytes(head, colours) == expected);
  return 0;
}
