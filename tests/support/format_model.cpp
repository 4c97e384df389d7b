#include "support/format_model.h"

#include <algorithm>

namespace model {

namespace {

void put(Bytes& file, std::int64_t number, int size) {
  for (int i = 0; i < size; ++i) file.push_back(static_cast<std::uint8_t>(number >> (8 * i)));
}

void put(Bytes& file, const std::string& text) {
  file.insert(file.end(), text.begin(), text.end());
}

void put(Bytes& file, const Bytes& bytes) {
  file.insert(file.end(), bytes.begin(), bytes.end());
}

void putBlueFirst(Bytes& file, const Colour& c) {
  put(file, Bytes{c.blue, c.green, c.red, c.extra});
}

std::int32_t number(const Bytes& file, std::size_t at) {
  return static_cast<std::int32_t>(file[at] | file[at + 1] << 8 | file[at + 2] << 16 |
                                   static_cast<std::uint32_t>(file[at + 3]) << 24);
}

/// size / height - width in whole numbers, halves to the even neighbour.
int roundedDifference(int width, int height, int size) {
  const int below = size / height - width;
  const int twiceRest = size % height * 2;
  if (twiceRest == height) return below % 2 == 0 ? below : below + 1;
  return twiceRest < height ? below : below + 1;
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

Bytes somePixels(std::size_t count) {
  Bytes pixels(count);
  for (std::size_t i = 0; i < count; ++i)
    pixels[i] = static_cast<std::uint8_t>(i * 7 + i / 251 + 1);
  return pixels;
}

Bytes kestrelBitmap(const Kestrel& picture) {
  Bytes file;
  put(file, picture.magic);
  put(file, Bytes(18, 0xA1));
  put(file, picture.width, 4);
  put(file, picture.height, 4);
  put(file, picture.depth, 2);
  put(file, Bytes(10, 0xA2));
  put(file, picture.dataSize, 4);
  put(file, picture.pixels);
  put(file, Bytes(20, 0xA3));
  put(file, picture.paletteIndex, 4);
  put(file, picture.behind);
  return file;
}

Bytes convertedBitmap(const Bytes& kestrel, const Colours& colours) {
  const int width = number(kestrel, 20);
  const int height = number(kestrel, 24);
  int size = number(kestrel, 40);
  int padding = 0;
  if (height > 0 && width * height != size) padding = roundedDifference(width, height, size);
  const int dataSize = size;
  if (padding > 10) {
    padding = 0;
    size = width * height;
  }

  Bytes file;
  put(file, "BM");
  put(file, size + 1078, 4);
  put(file, 0, 2);
  put(file, 0, 2);
  put(file, 1078, 4);
  put(file, 40, 4);
  put(file, width, 4);
  put(file, height, 4);
  put(file, 1, 2);
  put(file, 8, 2);
  put(file, 0, 4);
  put(file, size, 4);
  put(file, 0, 4);
  put(file, 0, 4);
  put(file, 256, 4);
  put(file, 256, 4);
  for (const Colour& colour : colours) putBlueFirst(file, colour);
  for (int y = height - 1; y >= 0; --y) {
    for (int x = 0; x < width + std::max(padding, 0); ++x) {
      const int at = (width + padding) * y + x;
      file.push_back(at < dataSize ? kestrel[44 + static_cast<std::size_t>(at)] : std::uint8_t{0});
    }
  }
  return file;
}

Bytes paletteFile(const std::string& head, const Colours& colours) {
  Bytes file;
  put(file, head);
  for (const Colour& colour : colours) putBlueFirst(file, colour);
  return file;
}

Bytes paletteList(const std::vector<ListRecord>& records) {
  Bytes file;
  put(file, "LIST");
  put(file, static_cast<std::int64_t>(records.size()), 4);
  put(file, Bytes(44, 0xA4));
  for (const ListRecord& record : records) {
    for (const Colour& c : record.colours) {
      if (c.extra == 255) {
        put(file, Bytes{c.red, c.green, c.blue, c.extra});
      } else {
        putBlueFirst(file, c);
      }
    }
    put(file, record.index, 4);
    put(file, Bytes(4, 0xA5));
  }
  return file;
}

std::function<bool(std::span<std::uint8_t>)> reader(const Bytes& bytes, std::size_t at,
                                                    std::size_t end) {
  return [&bytes, at, end](std::span<std::uint8_t> to) mutable {
    if (at + to.size() > std::min(end, bytes.size())) return false;
    std::copy_n(bytes.begin() + static_cast<std::ptrdiff_t>(at), to.size(), to.begin());
    at += to.size();
    return true;
  };
}

std::function<bool(std::span<const std::uint8_t>)> writer(Bytes& bytes, std::size_t limit) {
  return [&bytes, limit](std::span<const std::uint8_t> from) {
    if (bytes.size() + from.size() > limit) return false;
    bytes.insert(bytes.end(), from.begin(), from.end());
    return true;
  };
}

}  // namespace model
