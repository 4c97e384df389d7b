#pragma once

#include <cstdint>
#include <span>

#include "formats/byte_stream.h"
#include "formats/fault.h"
#include "formats/picture_record.h"

namespace mill {

/// The bytes of a Kestrel Bitmap ahead of its pixels.
inline constexpr int kKestrelHeadSize = 44;
/// All of its bytes that are not pixels.
inline constexpr int kKestrelFrameSize = 68;

/// What the head of a Kestrel Bitmap says, checked.
struct KestrelHead {
  std::int32_t width = 0;     ///< pixels, 0 to 32767
  std::int32_t height = 0;    ///< pixels, 0 to 32768
  std::int16_t bitCount = 0;  ///< always 8
  std::int32_t dataSize = 0;  ///< bytes between head and tail, row padding and surplus included
};

/// True for the two characters that a Kestrel Bitmap begins with, "KS" or "ks".
bool isKestrelBitmap(std::span<const std::uint8_t, 2> magic);

/// How many bytes each source row has beyond its width, `dataSize` ÷ `height` − `width` rounded
/// half to even; negative where the file has fewer bytes than pixels. 0 where the sizes agree, and
/// 0 above 10: then the further bytes follow the picture and aren't part of its rows. Height 0
/// gives 0.
int rowPadding(std::int32_t width, std::int32_t height, std::int32_t dataSize);

/// Reads the head and holds every field against the others and against `fileSize`, the size of the
/// whole file in bytes, so that nothing is allocated for a damaged file.
/// Faults: PictureDamaged, WrongDepth; `head` is then left alone.
[[nodiscard]] Fault checkKestrelHead(std::span<const std::uint8_t, kKestrelHeadSize> bytes,
                                     std::int64_t fileSize, KestrelHead& head);

/// Reads what follows the head, pixels and palette index, and fills `record`: the fields that a
/// Kestrel Bitmap has, and no others. Fault: PictureUnreadable; `record` is then left alone.
[[nodiscard]] Fault readKestrelBitmap(const KestrelHead& head, const ReadBytes& read,
                                      PictureRecord& record, Progress& progress);

}  // namespace mill
