#include "conversion/bitmap.h"

#include <QBuffer>
#include <QImage>
#include <QImageReader>

#include <algorithm>
#include <cstdint>
#include <utility>
#include <vector>

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

/// Null if it can't be read.
QByteArray readWhole(const std::string& path) {
  sys::InputFile file(path);
  if (!file.isOpen()) return {};
  QByteArray bytes(file.size(), Qt::Uninitialized);
  const auto size = static_cast<std::size_t>(bytes.size());
  if (!file.read({reinterpret_cast<std::uint8_t*>(bytes.data()), size})) return {};
  return bytes;
}

/// Filled with colour 0 first, since the reader leaves out what a run-length bitmap skips, and what
/// the last row of a file without padding lacks.
QImage readImage(QByteArray bytes) {
  QBuffer buffer(&bytes);
  QImageReader reader(&buffer, "BMP");
  QImage image(reader.size(), reader.imageFormat());
  image.fill(0);
  return reader.read(&image) ? image : QImage();
}

}  // namespace

std::shared_ptr<const QImage> loadBitmap(const std::string& path, int width, int height) {
  QImage image = readImage(readWhole(path));
  if (!image.isNull() && (width != 0 || height != 0)) image = stretched(image, width, height);
  return image.isNull() ? nullptr : std::make_shared<QImage>(std::move(image));
}

}  // namespace mill
