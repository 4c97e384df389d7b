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

/// Reads the headers and says whether a complete table of 256 colours and `biSizeImage` bytes of
/// pixels follow them in a file of `fileSize` bytes. Fault: WrongShape; `header` is then left
/// alone.
[[nodiscard]] Fault checkStandardHead(std::span<const std::uint8_t, kBitmapHeadSize> bytes,
                                      std::int64_t fileSize, BitmapHeader& header);

/// Reads what follows the headers, colours and pixels in file order, and fills `record`, palette
/// index 0 included. Fault: PictureUnreadable; `record` is then left alone.
[[nodiscard]] Fault readStandardBitmap(const BitmapHeader& header, const ReadBytes& read,
                                       PictureRecord& record, Progress& progress);

/// Gives a record that came from a Kestrel Bitmap the header of its output file.
void fillOutputHeader(BitmapHeader& header);

/// In which order the rows of `Pixels` go to a file: as they stand, or the last one first.
enum class RowOrder { AsStored, BottomUp };

/// The size in bytes of what `writeStandardBitmap` writes.
std::int64_t standardBitmapSize(const PictureRecord& record, RowOrder rows);

/// Writes header, colours and pixels of `record`. Pixels that the last rows ask for and the record
/// doesn't have are byte 0. False where `write` failed.
[[nodiscard]] bool writeStandardBitmap(const PictureRecord& record, RowOrder rows,
                                       const WriteBytes& write, Progress& progress);

}  // namespace mill
