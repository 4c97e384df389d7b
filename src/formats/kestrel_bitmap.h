#pragma once

#include <cstdint>
#include <span>

#include "formats/byte_stream.h"
#include "formats/fault.h"
#include "formats/picture_record.h"

namespace mill {

/// The size of everything before the pixels, in bytes.
inline constexpr int kKestrelHeadSize = 44;
/// The size of everything but the pixels, in bytes.
inline constexpr int kKestrelFrameSize = 68;

/// The checked head of a Kestrel Bitmap.
struct KestrelHead {
  std::int32_t width = 0;     ///< pixels, 0 to 32767
  std::int32_t height = 0;    ///< pixels, 0 to 32768
  std::int16_t bitCount = 0;  ///< always 8
  std::int32_t dataSize = 0;  ///< bytes between head and tail, row padding and surplus included
};

/// True for the two characters that a Kestrel Bitmap begins with, "KS" or "ks".
bool isKestrelBitmap(std::span<const std::uint8_t, 2> magic);

/// The number of bytes that each source row has beyond its width: `dataSize` ÷ `height` − `width`,
/// rounded half to even. Negative if the file has fewer bytes than pixels. Above 10 the extra bytes
/// follow the picture instead of padding its rows, and the result is 0. Height 0 gives 0.
int rowPadding(std::int32_t width, std::int32_t height, std::int32_t dataSize);

/// Reads the head and checks every field against the others and against `fileSize`, the size of the
/// whole file in bytes, so that nothing is allocated for a damaged file.
/// Faults: PictureDamaged, WrongDepth; `head` is then unchanged.
[[nodiscard]] Fault checkKestrelHead(std::span<const std::uint8_t, kKestrelHeadSize> bytes,
                                     std::int64_t fileSize, KestrelHead& head);

/// Reads the pixels and the palette index that follow the head into `record`. Only the fields that
/// a Kestrel Bitmap has are set. Fault: PictureUnreadable; `record` is then unchanged.
[[nodiscard]] Fault readKestrelBitmap(const KestrelHead& head, const ReadBytes& read,
                                      PictureRecord& record, Progress& progress);

}  // namespace mill
