#pragma once

#include <cstdint>
#include <span>
#include <vector>

#include "formats/byte_stream.h"
#include "formats/fault.h"
#include "formats/picture_record.h"

namespace mill {

/// The bytes of a palette list ahead of its records.
inline constexpr int kListHeadSize = 52;
/// The bytes of one record.
inline constexpr int kListRecordSize = 1032;
/// So many records a list can hold.
inline constexpr int kListLimit = 32767;

/// One palette of a list.
struct ListPalette {
  ColourTable Entries{};
  std::int32_t Index = 0;
};

/// Reads the number of palettes and holds it against `fileSize`, the size of the whole file in
/// bytes. Fault: NotAPaletteList, also for an empty list; `count` is then left alone.
[[nodiscard]] Fault checkPaletteList(std::span<const std::uint8_t, kListHeadSize> head,
                                     std::int64_t fileSize, int& count);

/// Reads the `count` records that follow the head. Fault: NotAPaletteList; `palettes` is then left
/// alone.
[[nodiscard]] Fault readPaletteList(int count, const ReadBytes& read,
                                    std::vector<ListPalette>& palettes);

}  // namespace mill
