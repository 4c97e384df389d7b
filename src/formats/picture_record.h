#pragma once

#include <array>
#include <cstdint>
#include <memory>
#include <new>
#include <span>
#include <string>

namespace mill {

/// One palette entry. In memory `Red` comes first; files store Blue, Green, Red, Extra, and the
/// code that reads or writes a file swaps them. `Extra` has no meaning and is preserved.
struct ColourEntry {
  std::uint8_t Red = 0;
  std::uint8_t Green = 0;
  std::uint8_t Blue = 0;
  std::uint8_t Extra = 0;

  bool operator==(const ColourEntry&) const = default;
};

inline constexpr int kColours = 256;
using ColourTable = std::array<ColourEntry, kColours>;

/// The pixel bytes of a picture. They start uninitialised, since the reader fills them all and a
/// large picture shouldn't be touched twice. Empty if there isn't enough memory.
class PixelArray {
 public:
  PixelArray() = default;
  explicit PixelArray(std::size_t size)
      : bytes_(new (std::nothrow) std::uint8_t[size]), size_(bytes_ ? size : 0) {}

  std::size_t size() const { return size_; }
  std::span<std::uint8_t> bytes() { return {bytes_.get(), size_}; }
  std::span<const std::uint8_t> bytes() const { return {bytes_.get(), size_}; }

 private:
  std::unique_ptr<std::uint8_t[]> bytes_;
  std::size_t size_ = 0;
};

/// The file header and info header of a standard bitmap, in file order and with the file's widths.
struct BitmapHeader {
  std::string bfType;
  std::int32_t bfSize = 0;
  std::int16_t bfReserved1 = 0;
  std::int16_t bfReserved2 = 0;
  std::int32_t bfOffBits = 0;
  std::int32_t biSize = 0;
  std::int32_t biWidth = 0;
  std::int32_t biHeight = 0;
  std::int16_t biPlanes = 0;
  std::int16_t biBitCount = 0;
  std::int32_t biCompression = 0;
  std::int32_t biSizeImage = 0;
  std::int32_t biXPelsPerMeter = 0;
  std::int32_t biYPelsPerMeter = 0;
  std::int32_t biClrUsed = 0;
  std::int32_t biClrImportant = 0;

  bool operator==(const BitmapHeader&) const = default;
};

/// The open picture. `Pixels` has one element more than the file has pixel bytes, which is 0; its
/// size doesn't follow later changes of `biSizeImage`.
struct PictureRecord : BitmapHeader {
  ColourTable Colours{};
  PixelArray Pixels;
  std::int32_t PaletteIndex = 0;
};

}  // namespace mill
