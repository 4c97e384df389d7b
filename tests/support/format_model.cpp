#include "support/format_model.h"

#include <algorithm>
#include <cstdlib>

namespace model {

namespace {

Bytes number(std::int64_t value, int size) {
  Bytes bytes;
  for (int i = 0; i < size; ++i) bytes.push_back(static_cast<std::uint8_t>(value >> (8 * i)));
  return bytes;
}

Bytes text(const std::string& text) {
  return {text.begin(), text.end()};
}

void put(Bytes& file, std::initializer_list<Bytes> parts) {
  for (const Bytes& part : parts) file.insert(file.end(), part.begin(), part.end());
}

void putBlueFirst(Bytes& file, const Colours& colours) {
  for (const auto& [red, green, blue, extra] : colours) put(file, {{blue, green, red, extra}});
}

int numberAt(const Bytes& file, std::size_t at) {
  std::uint32_t number = 0;
  for (std::size_t i = 4; i-- > 0;) number = number << 8 | file[at + i];
  return static_cast<int>(number);
}

/// size / height - width in whole numbers, halves to the even neighbour.
int roundedDifference(int width, int height, int size) {
  const int below = size / height - width;
  const int twiceRest = size % height * 2;
  const bool up = twiceRest > height || (twiceRest == height && below % 2 != 0);
  return up ? below + 1 : below;
}

}  // namespace

Colours someColours(int seed) {
  Colours colours;
  for (int i = 0; i < 256; ++i) {
    const auto part = [&](int step) { return static_cast<std::uint8_t>((i + seed) * step); };
    colours[static_cast<std::size_t>(i)] = {part(7), part(11), part(13), part(5)};
  }
  return colours;
}

Bytes somePixels(int count) {
  Bytes pixels;
  for (std::int64_t i = 0; i < count; ++i) {
    pixels.push_back(static_cast<std::uint8_t>(i * 7 + i / 251 + 1));
  }
  return pixels;
}

Bytes kestrelBitmap(const Kestrel& picture) {
  Bytes file;
  put(file,
      {text(picture.magic), Bytes(18, 0xA1), number(picture.width, 4), number(picture.height, 4),
       number(picture.depth, 2), Bytes(10, 0xA2), number(picture.dataSize, 4), picture.pixels,
       Bytes(20, 0xA3), number(picture.paletteIndex, 4), picture.behind});
  return file;
}

Bytes convertedBitmap(const Bytes& kestrel, const Colours& colours) {
  const int width = numberAt(kestrel, 20), height = numberAt(kestrel, 24);
  const int dataSize = numberAt(kestrel, 40);
  int size = dataSize, padding = 0;
  if (height > 0) padding = roundedDifference(width, height, size);
  if (padding > 10) {
    padding = 0;
    size = width * height;
  }

  Bytes file;
  put(file, {text("BM"), number(size + 1078, 4), number(0, 4), number(1078, 4)});
  put(file, {number(40, 4), number(width, 4), number(height, 4), number(1, 2), number(8, 2)});
  put(file, {number(0, 4), number(size, 4), number(0, 8), number(256, 4), number(256, 4)});
  putBlueFirst(file, colours);
  for (int y = height - 1; y >= 0; --y) {
    for (int x = 0; x < width + std::max(padding, 0); ++x) {
      const int at = (width + padding) * y + x;
      file.push_back(at < dataSize ? kestrel[44 + static_cast<std::size_t>(at)] : std::uint8_t{0});
    }
  }
  return file;
}

std::string refusal(const Bytes& file) {
  const std::string kind(file.begin(), file.begin() + std::min<std::ptrdiff_t>(2, ssize(file)));
  const auto size = static_cast<std::int64_t>(file.size());
  if (kind == "BM" || kind == "bm") {
    const std::string shape = "Only complete bitmaps with a table of 256 colours can be converted.";
    if (size < 1078 || numberAt(file, 10) != 1078 || numberAt(file, 14) != 40) return shape;
    const std::int64_t width = numberAt(file, 18), height = numberAt(file, 22);
    const std::int64_t imageSize = numberAt(file, 34);
    if (file[28] != 8 || file[29] != 0 || imageSize < 0 || 1078 + imageSize > size) return shape;
    const bool isTooLarge = numberAt(file, 30) == 0 && std::abs(width * height) > imageSize;
    return isTooLarge ? shape : "";
  }
  if (kind != "KS" && kind != "ks") return "This file is not a valid bitmap file.";
  const std::string damaged = "This picture file is damaged.";
  if (size < 68) return damaged;
  const std::int64_t width = numberAt(file, 20), height = numberAt(file, 24);
  const std::int64_t dataSize = numberAt(file, 40);
  if (width < 0 || width > 32767 || height < 0 || height > 32768) return damaged;
  if (dataSize < 0 || dataSize + 68 > size || (height == 0 && dataSize > 0)) return damaged;
  if (height > 0) {
    const int difference =
        roundedDifference(numberAt(file, 20), numberAt(file, 24), numberAt(file, 40));
    if (difference > 32767 || (width > 0 && width + difference <= 0)) return damaged;
  }
  const bool hasBytes = file[28] == 8 && file[29] == 0;
  return hasBytes ? "" : "Only pictures of 8 bits per pixel can be converted.";
}

Bytes changed(Bytes file, std::ptrdiff_t at, const Bytes& bytes) {
  std::copy(bytes.begin(), bytes.end(), file.begin() + at);
  return file;
}

std::vector<std::pair<std::string, Bytes>> brokenPictures() {
  const Bytes kestrel = kestrelBitmap({.width = 4, .height = 3, .dataSize = 12});
  const Bytes standard = convertedBitmap(kestrel, someColours(1));
  return {
      {"one byte", {'K'}},
      {"large and small letter", kestrelBitmap({.width = 1, .height = 1, .magic = "Ks"})},
      {"last byte missing", Bytes(kestrel.begin(), kestrel.end() - 1)},
      {"negative width", kestrelBitmap({.width = -2, .height = 2, .dataSize = 4})},
      {"negative height, 24 bits", kestrelBitmap({.height = -2, .dataSize = 4, .depth = 24})},
      {"too wide", kestrelBitmap({.width = 32768, .height = 1, .dataSize = 32768})},
      {"too high", kestrelBitmap({.width = 1, .height = 32769, .dataSize = 32769})},
      {"difference of 32768", kestrelBitmap({.width = 1, .height = 1, .dataSize = 32769})},
      {"rows without length", kestrelBitmap({.width = 32767, .height = 32768, .dataSize = 0})},
      {"24 bits", kestrelBitmap({.width = 2, .height = 2, .dataSize = 4, .depth = 24})},
      {"standard, 24 bits", changed(standard, 28, {24})},
      {"longer header", changed(standard, 14, {124})},
      {"shorter table", changed(standard, 10, {118, 0})},
      {"standard, last pixel missing", Bytes(standard.begin(), standard.end() - 1)},
      {"pixel size not filled in", changed(standard, 34, {0})},
      {"more pixels than bytes, top-down", changed(standard, 22, {0xFC, 0xFF, 0xFF, 0xFF})},
      {"smallest width and height", changed(standard, 18, {0, 0, 0, 0x80, 0, 0, 0, 0x80})},
  };
}

Bytes paletteFile(const std::string& head, const Colours& colours) {
  Bytes file = text(head);
  putBlueFirst(file, colours);
  return file;
}

Bytes paletteList(const std::vector<ListRecord>& records) {
  Bytes file;
  put(file, {text("LIST"), number(static_cast<int>(records.size()), 4), Bytes(44, 0xA4)});
  for (ListRecord record : records) {
    for (auto& [red, green, blue, extra] : record.colours) {
      if (extra == 255) std::swap(red, blue);
    }
    putBlueFirst(file, record.colours);
    put(file, {number(record.index, 4), Bytes(4, 0xA5)});
  }
  return file;
}

}  // namespace model
