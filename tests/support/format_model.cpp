#include "support/format_model.h"

#include <algorithm>

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
  return static_cast<int>(file[at] | file[at + 1] << 8 | file[at + 2] << 16 |
                          static_cast<unsigned>(file[at + 3]) << 24);
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
