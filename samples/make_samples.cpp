// Makes base.pal, the palette that the program starts with, and a folder of sample pictures with
// their palettes. The same files come out on every machine.

#include <exception>
#include <filesystem>
#include <iostream>
#include <map>
#include <string_view>
#include <vector>

#include "colours.h"
#include "files.h"
#include "scenes.h"

namespace {

using namespace samples;
namespace fs = std::filesystem;

/// The palette indexes that the pictures ask for.
enum Index : std::int32_t {
  kCoast = 25,
  kAlpine = 31,
  kSpace = 40,
  kAtlas = 44,
  kFractal = 52,
  kItems = 60,
  kHeraldry = 64,
  kMasonry = 70,
  kWaves = 77,
};

mill::ColourTable withKeyColour(mill::ColourTable colours) {
  colours[kTransparent] = {.Red = 255, .Green = 0, .Blue = 255};
  return colours;
}

class SampleFolder {
 public:
  explicit SampleFolder(const fs::path& root)
      : pictures_(root / "pictures"), palettes_(root / "palettes") {
    fs::create_directories(pictures_);
    fs::create_directories(root / "converted");
  }

  void addPalette(const std::string& folder, std::int32_t index, const mill::ColourTable& colours) {
    fs::create_directories(palettes_ / folder);
    writeFile(palettes_ / folder / (std::to_string(index) + ".pal"), paletteFile(colours));
    colours_.emplace(index, colours);
  }

  /// Makes a palette for `image` and keeps it in `folder`.
  void addFittedPalette(const std::string& folder, std::int32_t index, const Image& image) {
    addPalette(folder, index, fittedPalette(basePalette(), image));
  }

  /// Writes `image` in the palette of `shape.paletteIndex`, which is there by now.
  void addPicture(const std::string& name, const Image& image, KestrelPicture shape) {
    shape.width = image.width;
    shape.height = image.height;
    shape.indexes = quantised(image, colours_.at(shape.paletteIndex));
    writeFile(pictures_ / name, kestrelFile(shape));
  }

  void addIndexes(const std::string& name, const KestrelPicture& picture) {
    writeFile(pictures_ / name, kestrelFile(picture));
  }

  /// All palettes in one list, in every colour order by turns.
  void addList(const std::string& name) const {
    constexpr ColourOrder kOrders[] = {ColourOrder::BlueFirst, ColourOrder::RedFirst,
                                       ColourOrder::Mixed};
    std::vector<ListRecord> records;
    for (const auto& [index, colours] : colours_) {
      records.push_back({colours, index, kOrders[records.size() % std::size(kOrders)]});
    }
    writeFile(palettes_ / name, paletteListFile(records));
  }

  const mill::ColourTable& palette(std::int32_t index) const { return colours_.at(index); }

 private:
  fs::path pictures_;
  fs::path palettes_;
  std::map<std::int32_t, mill::ColourTable> colours_;
};

/// Every index once, as sixteen rows of sixteen squares.
KestrelPicture chart() {
  constexpr int kSide = 256;
  KestrelPicture picture{.width = kSide, .height = kSide, .paletteIndex = kAlpine};
  for (int y = 0; y < kSide; ++y) {
    for (int x = 0; x < kSide; ++x) {
      picture.indexes.push_back(static_cast<std::uint8_t>(y / 16 * 16 + x / 16));
    }
  }
  return picture;
}

void makeSamples(const fs::path& root) {
  SampleFolder folder(root);

  const Image bay = harbour(1280, 800);
  folder.addFittedPalette("dusk", kCoast, bay);
  folder.addPalette("night", kCoast, tinted(folder.palette(kCoast), {0.46, 0.58, 0.95}, 0.65));
  folder.addPicture("HARBOUR.BMP", bay, {.paletteIndex = kCoast});

  const Image mountains = summit(800, 600);
  folder.addFittedPalette("day", kAlpine, mountains);
  folder.addPicture("Summit.bmp", mountains, {.paletteIndex = kAlpine, .magic = "ks"});
  folder.addIndexes("chart.bmp", chart());

  const Image sky = nebula(800, 600);
  folder.addFittedPalette("space", kSpace, sky);
  folder.addPicture("Nebula.bmp", sky, {.paletteIndex = kSpace});

  const Image atlas = islandMap(402, 300);
  folder.addFittedPalette("day", kAtlas, atlas);
  folder.addPicture("islemap.bmp", atlas, {.paletteIndex = kAtlas, .rowPadding = 2});

  const Image valley = fractal(640, 480);
  folder.addFittedPalette("space", kFractal, valley);
  folder.addPicture("Seahorse.bmp", valley, {.paletteIndex = kFractal});

  const Image items = sprites();
  folder.addPalette("items", kItems, withKeyColour(fittedPalette(basePalette(), items)));
  folder.addPicture("ITEMS01.BMP", items, {.paletteIndex = kItems, .magic = "ks"});

  const Image arms = crest(190, 230);
  folder.addPalette("items", kHeraldry, withKeyColour(fittedPalette(basePalette(), arms)));
  folder.addPicture("crest.bmp", arms, {.paletteIndex = kHeraldry, .rowPadding = 2});

  const Image wall = stones(256, 256);
  folder.addFittedPalette("day", kMasonry, wall);
  folder.addPicture("stonewal.bmp", wall, {.paletteIndex = kMasonry, .surplus = 16 * 256});

  const Image waves = plasma(320, 240);
  folder.addFittedPalette("space", kWaves, waves);
  folder.addPicture("Plasma.bmp", waves, {.paletteIndex = kWaves});

  folder.addIndexes(
      "dot.bmp",
      {.width = 1, .height = 1, .indexes = {40}, .paletteIndex = kAlpine, .rowPadding = 3});

  folder.addList("ironveil.ksl");
}

}  // namespace

int main(int count, char** arguments) {
  const std::vector<std::string_view> words(arguments, arguments + count);
  try {
    if (words.size() == 3 && words[1] == "base") {
      writeFile(words[2], paletteFile(basePalette()));
    } else if (words.size() == 3 && words[1] == "samples") {
      makeSamples(words[2]);
    } else {
      std::cerr << "make-samples base FILE      writes the palette that the program starts with\n"
                   "make-samples samples DIR    writes sample pictures and their palettes\n";
      return 1;
    }
  } catch (const std::exception& error) {
    std::cerr << "make-samples: " << error.what() << '\n';
    return 1;
  }
  return 0;
}
