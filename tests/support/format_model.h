#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <utility>
#include <vector>

#include "formats/picture_record.h"

/// An independent and deliberately simple implementation of the file formats, to test the program
/// against. It shares only the colour table's type with the program.
namespace model {

using Bytes = std::vector<std::uint8_t>;

using Colours = mill::ColourTable;

/// 256 colours without a pattern; they differ for every `seed`.
Colours someColours(int seed);
/// `count` bytes in which no row is like its neighbour.
Bytes somePixels(int count);

struct Kestrel {
  std::int32_t width = 0, height = 0, dataSize = 0;
  Bytes pixels = somePixels(dataSize);
  std::int32_t paletteIndex = 25;
  std::int16_t depth = 8;
  std::string magic = "KS";
  Bytes behind = {};
};

/// The bytes of a Kestrel Bitmap. `dataSize` is written as it is, whatever `pixels` holds.
Bytes kestrelBitmap(const Kestrel& picture);
/// What the file `kestrel` is converted to with these colours.
Bytes convertedBitmap(const Bytes& kestrel, const Colours& colours);
/// The message that a picture file is refused with; empty if it is opened.
std::string refusal(const Bytes& file);

/// A file with other bytes at one place.
Bytes changed(Bytes file, std::ptrdiff_t at, const Bytes& bytes);
/// Broken files and what is wrong with them.
std::vector<std::pair<std::string, Bytes>> brokenPictures();

Bytes paletteFile(const std::string& head, const Colours& colours);

struct ListRecord {
  Colours colours;
  std::int32_t index;
};
/// A palette list. A colour of `extra` 255 has red first in it, any other has blue first.
Bytes paletteList(const std::vector<ListRecord>& records);

}  // namespace model
