// Kestrel Bitmap: 8-bit pixels and the index of a palette, no colours. Little-endian throughout.
//
//   offset  size  content
//        0     2  "KS" or "ks"
//        2    18  not interpreted
//       20     4  width in pixels, signed
//       24     4  height in pixels, signed
//       28     2  bits per pixel, signed
//       30    10  not interpreted
//       40     4  S, the size of the data in bytes, signed
//       44     S  rows of one byte per pixel, the top row first
//     44+S    20  not interpreted
//     64+S     4  palette index, signed
//
// S may be more than width x height: rows can carry a few bytes beyond their width, or further
// bytes follow the picture. rowPadding() tells the two apart.

#include "formats/kestrel_bitmap.h"

#include <array>
#include <cmath>
#include <limits>
#include <utility>

#include "formats/little_endian.h"

namespace mill {

namespace {

constexpr std::int32_t kMaxWidth = 32767;
constexpr std::int32_t kMaxHeight = 32768;
constexpr int kMaxPadding = 10;

constexpr int kTailUnused = 20;
constexpr int kTailIndex = 4;
constexpr int kTailSize = kTailUnused + kTailIndex;
static_assert(kKestrelHeadSize + kTailSize == kKestrelFrameSize);

constexpr std::int32_t kMaxDifference = std::numeric_limits<std::int16_t>::max();

// Within these limits every count fits in 32 bits: the area, and the data size plus what is
// reported beyond it, since the data size is height x (width + difference).
static_assert(std::int64_t{kMaxWidth} * kMaxHeight <= std::numeric_limits<std::int32_t>::max());
static_assert((kMaxWidth + kMaxDifference + 0.5) * kMaxHeight + kKestrelFrameSize + kTailSize <=
              std::numeric_limits<std::int32_t>::max());

/// Bytes per row beyond the width, padding or not. Expects a height above 0.
double rowDifference(std::int32_t width, std::int32_t height, std::int32_t dataSize) {
  return std::nearbyint(static_cast<double>(dataSize) / height - width);
}

bool isDamaged(const KestrelHead& head, std::int64_t fileSize) {
  if (head.width < 0 || head.width > kMaxWidth) return true;
  if (head.height < 0 || head.height > kMaxHeight) return true;
  if (head.dataSize < 0) return true;
  if (fileSize < std::int64_t{kKestrelFrameSize} + head.dataSize) return true;
  if (head.height == 0) return head.dataSize > 0;
  const double difference = rowDifference(head.width, head.height, head.dataSize);
  // Rows without any byte would turn a file of a few bytes into a picture of a gigabyte.
  const bool isWithoutRows = head.width > 0 && head.width + difference <= 0;
  return isWithoutRows || difference > kMaxDifference;
}

/// The size of the pixel data without any surplus that follows the rows.
std::int32_t imageSize(const KestrelHead& head) {
  if (head.height == 0) return head.dataSize;
  const bool surplus = rowDifference(head.width, head.height, head.dataSize) > kMaxPadding;
  return surplus ? head.width * head.height : head.dataSize;
}

}  // namespace

bool isKestrelBitmap(std::span<const std::uint8_t, 2> magic) {
  return (magic[0] == 'K' && magic[1] == 'S') || (magic[0] == 'k' && magic[1] == 's');
}

int rowPadding(std::int32_t width, std::int32_t height, std::int32_t dataSize) {
  if (height <= 0) return 0;
  const double difference = rowDifference(width, height, dataSize);
  return difference > kMaxPadding ? 0 : static_cast<int>(difference);
}

Fault checkKestrelHead(std::span<const std::uint8_t, kKestrelHeadSize> bytes, std::int64_t fileSize,
                       KestrelHead& head) {
  const KestrelHead found{.width = loadLittleEndian<std::int32_t>(bytes, 20),
                          .height = loadLittleEndian<std::int32_t>(bytes, 24),
                          .bitCount = loadLittleEndian<std::int16_t>(bytes, 28),
                          .dataSize = loadLittleEndian<std::int32_t>(bytes, 40)};
  if (isDamaged(found, fileSize)) return Fault::PictureDamaged;
  if (found.bitCount != 8) return Fault::WrongDepth;
  head = found;
  return Fault::None;
}

Fault readKestrelBitmap(const KestrelHead& head, const ReadBytes& read, PictureRecord& record,
                        Progress& progress) {
  const auto dataSize = static_cast<std::size_t>(head.dataSize);
  const std::int32_t bfSize = head.dataSize + kKestrelHeadSize;
  progress.start(bfSize);
  progress.report(kKestrelFrameSize);

  PixelArray pixels(dataSize + 1);
  if (pixels.size() == 0) return Fault::PictureUnreadable;
  if (!readReported(pixels.bytes().first(dataSize), read, progress))
    return Fault::PictureUnreadable;
  pixels.bytes().back() = 0;

  std::array<std::uint8_t, kTailSize> tail;
  if (!read(tail)) return Fault::PictureUnreadable;
  progress.report(kTailUnused);
  progress.report(kTailIndex);

  record.bfType = "KSTL";
  record.bfSize = bfSize;
  record.biWidth = head.width;
  record.biHeight = head.height;
  record.biBitCount = head.bitCount;
  record.biSizeImage = imageSize(head);
  record.Pixels = std::move(pixels);
  record.PaletteIndex = loadLittleEndian<std::int32_t>(tail, kTailUnused);
  return Fault::None;
}

}  // namespace mill
