// Standard bitmap with a table of 256 colours. Little-endian throughout.
//
//   offset  size  field             offset  size  field
//        0     2  bfType                28     2  biBitCount
//        2     4  bfSize                30     4  biCompression
//        6     2  bfReserved1           34     4  biSizeImage
//        8     2  bfReserved2           38     4  biXPelsPerMeter
//       10     4  bfOffBits             42     4  biYPelsPerMeter
//       14     4  biSize                46     4  biClrUsed
//       18     4  biWidth               50     4  biClrImportant
//       22     4  biHeight              54  1024  256 colours: Blue, Green, Red, Extra
//       26     2  biPlanes            1078        pixels, one byte each
//
// Only files of exactly this shape are read: biSize 40, bfOffBits 1078.

#include "formats/standard_bitmap.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <cstring>
#include <limits>
#include <memory>
#include <utility>

#include "formats/kestrel_bitmap.h"
#include "formats/little_endian.h"

namespace mill {

namespace {

constexpr std::size_t kTypeSize = 2;
constexpr std::int32_t kInfoHeaderSize = 40;
/// Keeps the size of the whole file, and the sum of its progress reports, within 32 bits.
constexpr std::int32_t kMaxImageSize = std::numeric_limits<std::int32_t>::max() - kBitmapDataOffset;
constexpr std::size_t kWriteChunk = 1 << 20;
static_assert(kWriteChunk > kBitmapDataOffset, "the first write holds headers and colours whole");

/// Visits the numbers of `header` in file order: all of its fields but `bfType`.
template <typename Header, typename Visit>
void eachNumber(Header& header, Visit visit) {
  visit(header.bfSize);
  visit(header.bfReserved1);
  visit(header.bfReserved2);
  visit(header.bfOffBits);
  visit(header.biSize);
  visit(header.biWidth);
  visit(header.biHeight);
  visit(header.biPlanes);
  visit(header.biBitCount);
  visit(header.biCompression);
  visit(header.biSizeImage);
  visit(header.biXPelsPerMeter);
  visit(header.biYPelsPerMeter);
  visit(header.biClrUsed);
  visit(header.biClrImportant);
}

BitmapHeader loadHeader(std::span<const std::uint8_t, kBitmapHeadSize> bytes) {
  BitmapHeader header;
  header.bfType.assign(bytes.begin(), bytes.begin() + kTypeSize);
  std::size_t at = kTypeSize;
  eachNumber(header, [&]<typename Number>(Number& number) {
    number = loadLittleEndian<Number>(bytes, at);
    at += sizeof number;
  });
  return header;
}

/// A `bfType` that isn't two characters long is cut or padded with 0, so the fields stay in place.
void storeHeader(const BitmapHeader& header, std::span<std::uint8_t, kBitmapHeadSize> bytes) {
  for (std::size_t i = 0; i < kTypeSize; ++i) {
    bytes[i] = i < header.bfType.size() ? static_cast<std::uint8_t>(header.bfType[i]) : 0;
  }
  std::size_t at = kTypeSize;
  eachNumber(header, [&]<typename Number>(const Number& number) {
    storeLittleEndian(bytes, at, number);
    at += sizeof number;
  });
}

/// Reports each header field by its size. `first` is the size of the first report, which may cover
/// more than `bfType`.
void reportHeader(std::int16_t first, Progress& progress) {
  progress.report(first);
  std::size_t at = kTypeSize;
  const BitmapHeader shape;
  eachNumber(shape, [&](const auto& number) {
    if (at >= static_cast<std::size_t>(first)) progress.report(sizeof number);
    at += sizeof number;
  });
}

bool isWrongShape(const BitmapHeader& header, std::int64_t fileSize) {
  // Other headers and shorter colour tables put the colours elsewhere.
  if (header.biSize != kInfoHeaderSize || header.bfOffBits != kBitmapDataOffset) return true;
  if (header.biBitCount != 8 || header.biSizeImage < 0) return true;
  if (header.biSizeImage > kMaxImageSize) return true;
  if (fileSize < std::int64_t{kBitmapDataOffset} + header.biSizeImage) return true;
  // abs(INT32_MIN) overflows 32 bits.
  const std::int64_t width = std::abs(std::int64_t{header.biWidth});
  const std::int64_t height = std::abs(std::int64_t{header.biHeight});
  return header.biCompression == 0 && width * height > header.biSizeImage;
}

/// How the rows of an output file are laid out in `Pixels`.
struct RowLayout {
  std::int64_t rows;      ///< number of rows, written last to first
  std::int64_t rowBytes;  ///< bytes of each row in the output
  std::int64_t stride;    ///< elements of `Pixels` from one row to the next

  std::int64_t bytes() const { return rows * rowBytes; }
};

RowLayout rowLayout(const PictureRecord& record, RowOrder order) {
  if (order == RowOrder::AsStored) {
    return {.rows = 1, .rowBytes = std::max(record.biSizeImage, 0), .stride = 0};
  }
  // Negative sizes mean that rows run the other way; nothing is left to turn around then.
  const std::int32_t width = std::max(record.biWidth, 0);
  const std::int64_t padding = rowPadding(width, record.biHeight, record.biSizeImage);
  return {.rows = std::max(record.biHeight, 0),
          .rowBytes = width + std::max<std::int64_t>(padding, 0),
          .stride = std::max<std::int64_t>(width + padding, 0)};
}

/// Buffers the bytes of an output file and writes them in large pieces, a small file in one. The
/// first piece always holds the headers and colours. Each piece is reported after it is written.
class Output {
 public:
  Output(std::int64_t fileSize, const WriteBytes& write, Progress& progress)
      : capacity_(static_cast<std::size_t>(std::min<std::int64_t>(fileSize, kWriteChunk))),
        staging_(std::make_unique_for_overwrite<std::uint8_t[]>(capacity_)),
        write_(write),
        progress_(progress) {}

  void putHead(const PictureRecord& record) {
    const std::span head(staging_.get(), kBitmapDataOffset);
    storeHeader(record, head.first<kBitmapHeadSize>());
    std::size_t at = kBitmapHeadSize;
    for (const ColourEntry& colour : record.Colours) {
      storeColour(head, at, colour);
      at += kColourSize;
    }
    used_ = head.size();
  }

  bool putPixels(std::span<const std::uint8_t> pixels) {
    while (!pixels.empty()) {
      // Pixels that would fill the whole buffer are written straight from the record.
      if (used_ == 0 && pixels.size() >= capacity_) {
        if (!writePiece(pixels.first(capacity_))) return false;
        pixels = pixels.subspan(capacity_);
        continue;
      }
      const std::size_t size = std::min(pixels.size(), capacity_ - used_);
      std::memcpy(staging_.get() + used_, pixels.data(), size);
      if (!advance(size)) return false;
      pixels = pixels.subspan(size);
    }
    return true;
  }

  bool putZeros(std::int64_t count) {
    while (count > 0) {
      const std::size_t room = capacity_ - used_;
      const auto size = std::min<std::int64_t>(count, static_cast<std::int64_t>(room));
      std::memset(staging_.get() + used_, 0, static_cast<std::size_t>(size));
      if (!advance(static_cast<std::size_t>(size))) return false;
      count -= size;
    }
    return true;
  }

  bool flush() { return used_ == 0 || writePiece({staging_.get(), std::exchange(used_, 0)}); }

 private:
  bool advance(std::size_t size) {
    used_ += size;
    return used_ < capacity_ || flush();
  }

  bool writePiece(std::span<const std::uint8_t> piece) {
    if (!write_(piece)) return false;
    std::size_t pixels = piece.size();
    if (!headReported_) {
      reportHeader(kTypeSize, progress_);
      progress_.report(kColourSize, kColours);
      headReported_ = true;
      pixels -= kBitmapDataOffset;
    }
    if (pixels > 0) progress_.report(1, static_cast<std::int32_t>(pixels));
    return true;
  }

  std::size_t capacity_;
  std::unique_ptr<std::uint8_t[]> staging_;
  std::size_t used_ = 0;
  bool headReported_ = false;
  const WriteBytes& write_;
  Progress& progress_;
};

bool putRow(std::span<const std::uint8_t> pixels, std::int64_t first, std::int64_t rowBytes,
            Output& output) {
  const auto size = static_cast<std::int64_t>(pixels.size());
  const std::int64_t there = std::clamp<std::int64_t>(size - first, 0, rowBytes);
  if (there > 0 && !output.putPixels(pixels.subspan(static_cast<std::size_t>(first),
                                                    static_cast<std::size_t>(there)))) {
    return false;
  }
  return output.putZeros(rowBytes - there);
}

}  // namespace

bool isStandardBitmap(std::span<const std::uint8_t, 2> magic) {
  return (magic[0] == 'B' && magic[1] == 'M') || (magic[0] == 'b' && magic[1] == 'm');
}

Fault checkStandardHead(std::span<const std::uint8_t, kBitmapHeadSize> bytes, std::int64_t fileSize,
                        BitmapHeader& header) {
  BitmapHeader found = loadHeader(bytes);
  if (isWrongShape(found, fileSize)) return Fault::WrongShape;
  header = std::move(found);
  return Fault::None;
}

Fault readStandardBitmap(const BitmapHeader& header, const ReadBytes& read, PictureRecord& record,
                         Progress& progress) {
  const auto imageSize = static_cast<std::size_t>(header.biSizeImage);
  progress.start(header.bfSize);
  reportHeader(kTypeSize + sizeof header.bfSize, progress);

  std::array<std::uint8_t, kColourSize * kColours> colours;
  if (!read(colours)) return Fault::PictureUnreadable;
  progress.report(kColourSize, kColours);

  PixelArray pixels(imageSize + 1);
  if (pixels.size() == 0) return Fault::PictureUnreadable;
  if (!readReported(pixels.bytes().first(imageSize), read, progress)) {
    return Fault::PictureUnreadable;
  }
  pixels.bytes().back() = 0;

  static_cast<BitmapHeader&>(record) = header;
  for (std::size_t i = 0; i < kColours; ++i) {
    record.Colours[i] = loadColour(colours, i * kColourSize);
  }
  record.Pixels = std::move(pixels);
  record.PaletteIndex = 0;
  return Fault::None;
}

void fillOutputHeader(BitmapHeader& header) {
  header.bfType = "BM";
  header.bfSize = header.biSizeImage + kBitmapDataOffset;
  header.bfReserved1 = 0;
  header.bfReserved2 = 0;
  header.bfOffBits = kBitmapDataOffset;
  header.biSize = kInfoHeaderSize;
  header.biPlanes = 1;
  header.biCompression = 0;
  header.biXPelsPerMeter = 0;
  header.biYPelsPerMeter = 0;
  header.biClrUsed = kColours;
  header.biClrImportant = kColours;
}

std::int64_t standardBitmapSize(const PictureRecord& record, RowOrder rows) {
  return kBitmapDataOffset + rowLayout(record, rows).bytes();
}

bool writeStandardBitmap(const PictureRecord& record, RowOrder rows, const WriteBytes& write,
                         Progress& progress) {
  const RowLayout layout = rowLayout(record, rows);
  Output output(kBitmapDataOffset + layout.bytes(), write, progress);
  output.putHead(record);
  for (std::int64_t row = layout.rows - 1; row >= 0; --row) {
    if (!putRow(record.Pixels.bytes(), row * layout.stride, layout.rowBytes, output)) return false;
  }
  return output.flush();
}

}  // namespace mill
