// Makes base.pal, the palette that the program starts with, and a folder of sample pictures with
// their palettes. The files are the same on every machine.

#include <algorithm>
#include <exception>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <map>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>

#include "colours.h"
#include "formats/kestrel_bitmap.h"
#include "formats/little_endian.h"
#include "formats/palette_file.h"
#include "formats/palette_list.h"
#include "scenes.h"

namespace {

using namespace samples;
namespace fs = std::filesystem;
using Bytes = std::vector<std::uint8_t>;

void writeFile(const fs::path& path, const Bytes& bytes) {
  fs::create_directories(fs::absolute(path).parent_path());
  std::ofstream file(path, std::ios::binary | std::ios::trunc);
  file.write(reinterpret_cast<const char*>(bytes.data()), std::ssize(bytes));
  file.close();
  if (!file) throw std::runtime_error(path.string() + ": can't be written");
}

/// The colours in the byte order of the files.
mill::ColourTable entries(const Palette& colours) {
  const auto part = [](double value) {
    return static_cast<std::uint8_t>(std::clamp(value, 0.0, 1.0) * 255 + 0.5);
  };
  mill::ColourTable table;
  for (std::size_t i = 0; i < table.size(); ++i) {
    table[i] = {part(colours[i].red), part(colours[i].green), part(colours[i].blue)};
  }
  return table;
}

void writePalette(const fs::path& path, const Palette& colours) {
  std::string head = "256 sample colours";
  head.resize(mill::kPaletteHeadSize);
  writeFile(path, mill::paletteBytes(head, entries(colours)));
}

void writePicture(const fs::path& root, const Sample& sample, const Bytes& indexes) {
  const int stride = sample.width + sample.padding;
  const int dataSize = stride * sample.height + sample.surplus;
  Bytes file(static_cast<std::size_t>(mill::kKestrelFrameSize + dataSize));
  std::copy(sample.magic.begin(), sample.magic.end(), file.begin());
  mill::storeLittleEndian(file, 20, sample.width);
  mill::storeLittleEndian(file, 24, sample.height);
  mill::storeLittleEndian(file, 28, std::int16_t{8});
  mill::storeLittleEndian(file, 40, dataSize);
  for (int y = 0; y < sample.height; ++y) {
    std::copy_n(indexes.begin() + y * sample.width, sample.width,
                file.begin() + mill::kKestrelHeadSize + y * stride);
  }
  mill::storeLittleEndian(file, file.size() - sizeof sample.palette, sample.palette);
  writeFile(root / "pictures" / sample.name, file);
}

/// Takes turns in colour order: blue first, red first, and red first in every second colour.
void writePaletteList(const fs::path& path, const std::map<int, Palette>& palettes) {
  Bytes file(mill::kListHeadSize);
  mill::storeLittleEndian(file, 4, static_cast<std::uint32_t>(palettes.size()));
  for (int turn = 0; const auto& [index, colours] : palettes) {
    std::size_t at = file.size();
    file.resize(at + mill::kListRecordSize);
    for (int i = 0; mill::ColourEntry colour : entries(colours)) {
      const bool redFirst = turn % 3 == 1 || (turn % 3 == 2 && i % 2 == 1);
      // 255 in the fourth byte marks red first.
      colour.Extra = redFirst ? 255 : 0;
      if (redFirst) std::swap(colour.Red, colour.Blue);
      mill::storeColour(file, at, colour);
      at += mill::kColourSize;
      ++i;
    }
    mill::storeLittleEndian(file, at, index);
    ++turn;
  }
  writeFile(path, file);
}

void makeSamples(const fs::path& root) {
  const fs::path palettes = root / "palettes";
  fs::create_directories(root / "converted");
  std::map<int, Palette> list;
  for (const Sample& sample : kSamples) {
    std::vector<Pixel> pixels;
    for (int y = 0; y < sample.height; ++y) {
      for (int x = 0; x < sample.width; ++x) {
        pixels.push_back(sample.scene((x + 0.5) / sample.height, (y + 0.5) / sample.height));
      }
    }
    const Palette colours = list[sample.palette] = fittedPalette(pixels);
    writePalette(palettes / sample.folder / (std::to_string(sample.palette) + ".pal"), colours);
    writePicture(root, sample, quantised(pixels, sample.width, colours));
  }
  writePaletteList(palettes / "ironveil.ksl", list);

  // The harbour by moonlight: blue, with dark reds.
  Palette night = list[25];
  for (Rgb& colour : night) {
    colour = mix(colour * 0.6, Rgb{0.4, 0.56, 1.0} * (colour.green * 0.6 + colour.blue * 0.5), 0.7);
  }
  writePalette(palettes / "night/25.pal", night);

  // Every index once, as sixteen rows of sixteen squares.
  Bytes chart(256 * 256);
  for (std::size_t i = 0; i < chart.size(); ++i) {
    chart[i] = static_cast<std::uint8_t>(i / 4096 * 16 + i % 256 / 16);
  }
  writePicture(root, {"chart.bmp", "day", nullptr, 256, 256, 31}, chart);
  writePicture(root, {"dot.bmp", "day", nullptr, 1, 1, 31, "KS", 3}, {40});
}

}  // namespace

int main(int count, char** arguments) {
  const std::string_view command = count == 3 ? arguments[1] : "";
  try {
    if (command == "base") {
      writePalette(arguments[2], basePalette());
    } else if (command == "samples") {
      makeSamples(arguments[2]);
    } else {
      throw std::invalid_argument("needs \"base FILE\" or \"samples DIR\"");
    }
  } catch (const std::exception& error) {
    std::cerr << "make-samples: " << error.what() << '\n';
    return 1;
  }
  return 0;
}
