#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <span>
#include <vector>

#include "formats/byte_stream.h"
#include "support/format_model.h"

namespace fuzz {

/// A file of a few bytes may ask for a large picture; writing that finds nothing more.
inline constexpr std::int64_t kEnough = 1 << 21;

/// Aborts if an invariant doesn't hold, so that libFuzzer keeps the input.
inline void require(bool kept) {
  if (!kept) std::abort();
}

/// The first bytes of an input as a head of fixed size, and a device for the rest.
template <std::size_t kHeadSize>
struct File {
  explicit File(std::span<const std::uint8_t> input) : bytes(input) {}

  auto head() const { return bytes.first<kHeadSize>(); }
  auto size() const { return static_cast<std::int64_t>(bytes.size()); }
  mill::ReadBytes reader() const {
    return [rest = bytes.subspan(kHeadSize)](std::span<std::uint8_t> to) mutable {
      if (to.size() > rest.size()) return false;
      std::copy_n(rest.begin(), to.size(), to.begin());
      rest = rest.subspan(to.size());
      return true;
    };
  }

  std::span<const std::uint8_t> bytes;
};

inline mill::WriteBytes writer(std::vector<std::uint8_t>& bytes) {
  return [&bytes](std::span<const std::uint8_t> from) {
    bytes.insert(bytes.end(), from.begin(), from.end());
    return true;
  };
}

/// Adds up what is reported.
struct Sum : mill::Progress {
  void report(std::int16_t num, std::int32_t times) override {
    require(num > 0 && times > 0);
    bytes += std::int64_t{num} * times;
  }
  std::int64_t bytes = 0;
};

}  // namespace fuzz
