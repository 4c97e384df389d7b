#include "files.h"

#include <algorithm>
#include <fstream>
#include <iterator>
#include <stdexcept>

#include "formats/kestrel_bitmap.h"
#include "formats/little_endian.h"
#include "formats/palette_file.h"

namespace samples {

void writeFile(const std::filesystem::path& path, std::span<const std::uint8_t> bytes) {
  std::ofstream file(path, std::ios::binary | std::ios::trunc);
  file.write(reinterpret_cast<const char*>(bytes.data()),
             static_cast<std::streamsize>(bytes.size()));
  file.close();
  if (!file) throw std::runtime_error(path.string() + ": can't be written");
}

std::vector<std::uint8_t> paletteFile(const mill::ColourTable& colours) {
  std::string head = "256 sample colours";
  head.resize(mill::kPaletteHeadSize);
  return mill::paletteBytes(head, colours);
}

std::vector<std::uint8_t> kestrelFile(const KestrelPicture& picture) {
  constexpr std::uint8_t kFill = 0;
  const auto width = static_cast<std::size_t>(picture.width);
  const std::size_t stride = width + static_cast<std::size_t>(picture.rowPadding);
  const std::size_t dataSize =
      stride * static_cast<std::size_t>(picture.height) + static_cast<std::size_t>(picture.surplus);
  std::vector<std::uint8_t> file(mill::kKestrelFrameSize + dataSize, kFill);
  std::copy(picture.magic.begin(), picture.magic.end(), file.begin());
  mill::storeLittleEndian(file, 20, picture.width);
  mill::storeLittleEndian(file, 24, picture.height);
  mill::storeLittleEndian(file, 28, std::int16_t{8});
  mill::storeLittleEndian(file, 40, static_cast<std::int32_t>(dataSize));
  for (std::size_t y = 0; y < static_cast<std::size_t>(picture.height); ++y) {
    std::copy_n(picture.indexes.begin() + static_cast<std::ptrdiff_t>(y * width), width,
                file.begin() + static_cast<std::ptrdiff_t>(mill::kKestrelHeadSize + y * stride));
  }
  mill::storeLittleEndian(file, file.size() - sizeof picture.paletteIndex, picture.paletteIndex);
  return file;
}

std::vector<std::uint8_t> paletteListFile(std::span<const ListRecord> records) {
  constexpr std::size_t kHeadSize = 52;
  constexpr std::size_t kColoursSize = mill::kColourSize * mill::kColours;
  constexpr std::size_t kTrailerSize = 4;
  constexpr std::size_t kRecordSize = kColoursSize + sizeof(std::int32_t) + kTrailerSize;

  std::vector<std::uint8_t> file(kHeadSize + kRecordSize * records.size());
  mill::storeLittleEndian(file, 4, static_cast<std::uint32_t>(records.size()));
  std::size_t at = kHeadSize;
  for (const ListRecord& record : records) {
    for (std::size_t i = 0; i < mill::kColours; ++i) {
      mill::ColourEntry colour = record.colours[i];
      const bool redFirst = record.order == ColourOrder::RedFirst ||
                            (record.order == ColourOrder::Mixed && i % 2 == 1);
      // 255 in the fourth byte is what tells a reader that red comes first.
      colour.Extra = redFirst ? 255 : 0;
      if (redFirst) std::swap(colour.Red, colour.Blue);
      mill::storeColour(file, at + i * mill::kColourSize, colour);
    }
    mill::storeLittleEndian(file, at + kColoursSize, record.index);
    at += kRecordSize;
  }
  return file;
}

}  // namespace samples
