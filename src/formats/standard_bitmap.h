#pragma once

#include <cstdint>
#include <span>

#include "formats/byte_stream.h"
#include "formats/fault.h"
#include "formats/picture_record.h"

namespace mill {

/// File header and info header of a standard bitmap.
inline constexpr int kBitmapHeadSize = 54;
/// Where the pixels begin: the two headers and 256 colours of 4 bytes.
inline constexpr int kBitmapDataOffset = kBitmapHeadSize + 4 * kColours;

/// True for the two characters that a standard bitmap begins with, "BM" or "bm".
bool isStandardBitmap(std::span<const std::uint8_t, 2> magic);

/// Reads the headers and checks that a table of 256 colours and `biSizeImage` bytes of pixels
/// follow them in a file of `fileSize` bytes. Fault: WrongShape; `header` is then unchanged.
[[nodiscard]] Fault checkStandardHead(std::span<const std::uint8_t, kBitmapHeadSize> bytes,
                                      std::int64_t fileSize, BitmapHeader& header);

/// Reads the colours and the pixels that follow the headers into `record`, with palette index 0.
/// Fault: PictureUnreadable; `record` is then unchanged.
[[nodiscard]] Fault readStandardBitmap(const BitmapHeader& header, const ReadBytes& read,
                                       PictureRecord& record, Progress& progress);

/// Fills in the output header of a record that came from a Kestrel Bitmap.
void fillOutputHeader(BitmapHeader& header);

/// The order in which the rows of `Pixels` are written: as stored, or last row first.
enum class RowOrder { AsStored, BottomUp };

/// The size in bytes of what `writeStandardBitmap` writes.
std::int64_t standardBitmapSize(const PictureRecord& record, RowOrder rows);

/// Writes header, colours and pixels of `record`. Pixels missing at the end of the record are
/// written as 0. False if `write` fails.
[[nodiscard]] bool writeStandardBitmap(const PictureRecord& record, RowOrder rows,
                                       const WriteBytes& write, Progress& progress);

}  // namespace mill
