#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <span>

namespace mill {

/// Fills the span from the current position and advances. False if the bytes run out or can't be
/// read.
using ReadBytes = std::function<bool(std::span<std::uint8_t>)>;

/// Writes the span at the current position and advances. False on failure.
using WriteBytes = std::function<bool(std::span<const std::uint8_t>)>;

/// Receives the progress of a read or write. This one ignores it.
class Progress {
 public:
  virtual ~Progress() = default;

  /// `total` bytes are 100 percent.
  virtual void start(std::int32_t /*total*/) {}

  /// `times` consecutive reports of `num` bytes each.
  virtual void report(std::int16_t /*num*/, std::int32_t /*times*/ = 1) {}
};

/// Fills `bytes` and reports each of them, in chunks, so that the progress bar moves while a large
/// picture is read. False if `read` fails.
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
