// Any bytes as a palette file: what is there comes back in its place, what isn't is 0.

#include "formats/palette_file.h"
#include "fuzz.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace mill;
  std::string head = "untouched";
  ColourTable colours = model::someColours(1);
  const Fault fault = readPalette({data, size}, head, colours);
  fuzz::require((fault == Fault::None) == (size >= 1048));
  model::Bytes expected(data, data + std::min<std::size_t>(size, 1048));
  if (size < 24) {
    fuzz::require(head == "untouched" && colours == model::someColours(1));
    return 0;
  }
  expected.resize(expected.size() - expected.size() % 4);
  expected.resize(1048);
  fuzz::require(paletteBytes(head, colours) == expected);
  fuzz::require(model::paletteFile(head, colours) == expected);
  return 0;
}
