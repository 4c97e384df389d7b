#pragma once

#include <cstdint>
#include <numeric>
#include <vector>

#include "picture/byte_stream.h"

namespace mill {

/// Keeps every report as one element, in order.
struct Reports : Progress {
  void start(std::int32_t size) override { total = size; }
  void report(std::int16_t num, std::int32_t times) override {
    sizes.insert(sizes.end(), static_cast<std::size_t>(times), num);
  }
  std::int64_t sum() const { return std::accumulate(sizes.begin(), sizes.end(), std::int64_t{0}); }

  std::int32_t total = 0;
  std::vector<int> sizes;
};

}  // namespace mill
