#pragma once

#include <concepts>
#include <cstddef>
#include <cstdint>
#include <span>
#include <type_traits>

#include "formats/picture_record.h"

namespace mill {

/// The number of type `T` stored from `bytes[at]` on, lowest byte first.
template <std::integral T>
constexpr T loadLittleEndian(std::span<const std::uint8_t> bytes, std::size_t at) {
  std::uint64_t value = 0;
  for (std::size_t i = sizeof(T); i-- > 0;) value = value << 8 | bytes[at + i];
  return static_cast<T>(value);
}

/// Stores `value` from `bytes[at]` on, lowest byte first.
template <std::integral T>
constexpr void storeLittleEndian(std::span<std::uint8_t> bytes, std::size_t at, T value) {
  for (std::size_t i = 0; i < sizeof(T); ++i) {
    bytes[at + i] = static_cast<std::uint8_t>(static_cast<std::make_unsigned_t<T>>(value) >> 8 * i);
  }
}

/// The size of one colour in a file: Blue, Green, Red, Extra.
inline constexpr std::size_t kColourSize = 4;

/// The colour stored from `bytes[at]` on.
constexpr ColourEntry loadColour(std::span<const std::uint8_t> bytes, std::size_t at) {
  return {.Red = bytes[at + 2], .Green = bytes[at + 1], .Blue = bytes[at], .Extra = bytes[at + 3]};
}

/// Stores the four bytes of `colour` from `bytes[at]` on.
constexpr void storeColour(std::span<std::uint8_t> bytes, std::size_t at, ColourEntry colour) {
  bytes[at] = colour.Blue;
  bytes[at + 1] = colour.Green;
  bytes[at + 2] = colour.Red;
  bytes[at + 3] = colour.Extra;
}

}  // namespace mill
