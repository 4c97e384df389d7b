#pragma once

#include <cstdint>
#include <span>
#include <vector>

#include "formats/byte_stream.h"
#include "formats/fault.h"
#include "formats/picture_record.h"

namespace mill {

/// The size of the head, in bytes.
inline constexpr int kListHeadSize = 52;
/// The size of one record, in bytes.
inline constexpr int kListRecordSize = 1032;
/// The largest number of records in a list.
inline constexpr int kListLimit = 32767;

/// One palette of a list.
struct ListPalette {
  ColourTable Entries{};
  std::int32_t Index = 0;
};

/// Reads the number of palettes and checks it against `fileSize`, the size of the whole file in
/// bytes. Fault: NotAPaletteList, also for an empty list; `count` is then unchanged.
[[nodiscard]] Fault checkPaletteList(std::span<const std::uint8_t, kListHeadSize> head,
                                     std::int64_t fileSize, int& count);

/// Reads the `count` records that follow the head. Fault: NotAPaletteList; `palettes` is then
/// unchanged.
[[nodiscard]] Fault readPaletteList(int count, const ReadBytes& read,
                                    std::vector<ListPalette>& palettes);

}  // namespace mill
