#include "conversion/bitmap.h"

#include <QBuffer>
#include <QImage>
#include <QImageReader>

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstdlib>
#include <new>
#include <span>
#include <utility>
#include <vector>

#include "formats/little_endian.h"
#include "formats/standard_bitmap.h"
#include "platform/system/file_io.h"

namespace mill {

namespace {

/// The index of the source pixel, of `given`, under the centre of each of the `wanted` pixels.
std::vector<int> sources(int given, int wanted) {
  std::vector<int> from(static_cast<std::size_t>(wanted));
  for (int i = 0; i < wanted; ++i) {
    from[static_cast<std::size_t>(i)] =
        static_cast<int>((2 * std::int64_t{i} + 1) * given / (2 * std::int64_t{wanted}));
  }
  return from;
}

/// Qt's fast scaling samples in steps of 1/4096 and drifts.
QImage stretched(const QImage& image, int width, int height) {
  if (image.format() != QImage::Format_Indexed8) {
    return image.scaled(width, height, Qt::IgnoreAspectRatio, Qt::FastTransformation);
  }
  QImage result(width, height, image.format());
  if (result.isNull()) return result;
  result.setColorTable(image.colorTable());
  const std::vector<int> columns = sources(image.width(), width);
  const std::vector<int> rows = sources(image.height(), height);
  for (int y = 0; y < height; ++y) {
    const uchar* from = image.constScanLine(rows[static_cast<std::size_t>(y)]);
    uchar* to = result.scanLine(y);
    for (const int column : columns) *to++ = from[column];
  }
  return result;
}

/// The headers and colours that a bitmap of this program begins with.
using Head = std::array<std::uint8_t, kBitmapDataOffset>;

/// Reads the rows into the image, where they take as many bytes as in the file. Qt's own reader
/// refuses pictures above 268 million pixels. Filled with colour 0 first, since the last row of a
/// file without padding is shorter.
QImage readRows(const Head& head, sys::InputFile& file) {
  const auto width = loadLittleEndian<std::int32_t>(head, 18);
  const auto height = loadLittleEndian<std::int32_t>(head, 22);
  if (width <= 0 || height == 0 || height == INT32_MIN) return {};
  QImage image(width, std::abs(height), QImage::Format_Indexed8);
  if (image.isNull()) return image;
  QList<QRgb> colours;
  for (std::size_t i = 0; i < kColours; ++i) {
    const ColourEntry colour = loadColour(head, kBitmapHeadSize + i * kColourSize);
    colours.append(qRgb(colour.Red, colour.Green, colour.Blue));
  }
  image.setColorTable(colours);
  image.fill(0);
  for (int row = 0; row < image.height(); ++row) {
    uchar* line = image.scanLine(height > 0 ? image.height() - 1 - row : row);
    if (!file.read({line, static_cast<std::size_t>(image.bytesPerLine())})) break;
  }
  return image;
}

/// Filled with colour 0 first, since the reader leaves out what a run-length bitmap skips.
QImage readCompressed(const Head& head, sys::InputFile& file) {
  QByteArray bytes(file.size(), Qt::Uninitialized);
  std::copy(head.begin(), head.end(), bytes.begin());
  const std::span whole(reinterpret_cast<std::uint8_t*>(bytes.data()),
                        static_cast<std::size_t>(bytes.size()));
  if (!file.read(whole.subspan(head.size()))) return {};
  QBuffer buffer(&bytes);
  QImageReader reader(&buffer, "BMP");
  QImage image(reader.size(), reader.imageFormat());
  image.fill(0);
  return reader.read(&image) ? image : QImage();
}

QImage readImage(const std::string& path) {
  sys::InputFile file(path);
  Head head;
  if (!file.isOpen() || !file.read(head)) return {};
  const bool isCompressed = loadLittleEndian<std::int32_t>(head, 30) != 0;
  return isCompressed ? readCompressed(head, file) : readRows(head, file);
}

}  // namespace

std::shared_ptr<const QImage> loadBitmap(const std::string& path, int width, int height) {
  try {
    QImage image = readImage(path);
    if (!image.isNull() && (width != 0 || height != 0)) image = stretched(image, width, height);
    return image.isNull() ? nullptr : std::make_shared<QImage>(std::move(image));
  } catch (const std::bad_alloc&) {
    return nullptr;
  }
}

}  // namespace mill
