#pragma once

#include <cstdint>
#include <filesystem>
#include <span>
#include <string>
#include <vector>

#include "formats/picture_record.h"

namespace samples {

/// Writes the whole of a file. Throws std::runtime_error, with the path, where that fails.
void writeFile(const std::filesystem::path& path, std::span<const std::uint8_t> bytes);

/// The bytes of `colours` as a palette file with the head of the samples.
std::vector<std::uint8_t> paletteFile(const mill::ColourTable& colours);

struct KestrelPicture {
  std::int32_t width = 0;
  std::int32_t height = 0;
  std::vector<std::uint8_t> indexes = {};
  std::int32_t paletteIndex = 0;
  std::string magic = "KS";
  int rowPadding = 0;  ///< bytes behind each row
  int surplus = 0;     ///< bytes behind the picture
};
std::vector<std::uint8_t> kestrelFile(const KestrelPicture& picture);

/// How the colours of a list record are stored. Mixed: every second one this way, the others that.
enum class ColourOrder { BlueFirst, RedFirst, Mixed };

struct ListRecord {
  mill::ColourTable colours;
  std::int32_t index = 0;
  ColourOrder order = ColourOrder::BlueFirst;
};
std::vector<std::uint8_t> paletteListFile(std::span<const ListRecord> records);

}  // namespace samples
