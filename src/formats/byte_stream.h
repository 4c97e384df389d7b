#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <span>

namespace mill {

/// Fills all of the span from the present position and moves on. False where the bytes end before
/// that or can't be read.
using ReadBytes = std::function<bool(std::span<std::uint8_t>)>;

/// Writes all of the span at the present position and moves on. False where that fails.
using WriteBytes = std::function<bool(std::span<const std::uint8_t>)>;

/// Is told how far a read or a write has come. This one listens to nothing.
class Progress {
 public:
  virtual ~Progress() = default;

  /// `total` bytes count as the whole.
  virtual void start(std::int32_t /*total*/) {}

  /// `times` reports, one after the other, of `num` bytes each.
  virtual void report(std::int16_t /*num*/, std::int32_t /*times*/ = 1) {}
};

/// Fills `bytes` and reports each one of them. In chunks, so that the progress of a large picture
/// is seen to move. False where `read` fails.
[[nodiscard]] inline bool readReported(std::span<std::uint8_t> bytes, const ReadBytes& read,
                                       Progress& progress) {
  constexpr std::size_t kChunk = 1 << 20;
  while (!bytes.empty()) {
    const auto chunk = bytes.first(std::min(bytes.size(), kChunk));
    if (!read(chunk)) return false;
    progress.report(1, static_cast<std::int32_t>(chunk.size()));
    bytes = bytes.subspan(chunk.size());
  }
  return true;
}

}  // namespace mill
