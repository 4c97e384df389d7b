#pragma once

#include <algorithm>
#include <cmath>
#include <cstdint>

namespace mill {

/// The progress of a read or write, as a percentage for a progress bar.
class ProgressCount {
 public:
  std::int32_t progress = 0;  ///< last percentage shown, 0 to 100
  std::int32_t total = 0;     ///< the amount that counts as 100 percent
  std::int32_t current = 0;   ///< amount reported so far

  /// Makes `times` reports of `num` each. Calls `show` with every percentage that single reports
  /// would produce, in the same order, but only once for a run of equal ones: reporting every byte
  /// of a picture then costs a hundred steps instead of a million.
  template <class Show>
  void report(std::int16_t num, std::int32_t times, Show show) {
    while (times > 0) {
      advance(num, show);
      times -= 1;
      const std::int32_t same = std::min(times, reportsWithoutChange(num));
      current += num * same;
      times -= same;
    }
  }

 private:
  std::int32_t percentOf(std::int64_t amount) const {
    if (total <= 0) return 0;
    const double percent =
        std::nearbyint(static_cast<double>(amount) / static_cast<double>(total) * 100);
    return static_cast<std::int32_t>(std::clamp(percent, 0.0, 100.0));
  }

  template <class Show>
  void advance(std::int16_t num, Show& show) {
    current += num;
    progress = percentOf(current);
    show(progress);
  }

  /// How many further reports of `num` leave `progress` as it is.
  std::int32_t reportsWithoutChange(std::int16_t num) const {
    if (num <= 0) return 0;
    if (total <= 0 || progress == 100) return INT32_MAX;
    // An estimate of where the next percentage begins; rounding may put it off by one.
    const double edge = (progress + 0.5) / 100 * total;
    auto count = static_cast<std::int64_t>((edge - current) / num);
    while (percentOf(current + (count + 1) * num) == progress) ++count;
    while (count > 0 && percentOf(current + count * num) != progress) --count;
    return static_cast<std::int32_t>(std::clamp<std::int64_t>(count, 0, INT32_MAX));
  }
};

}  // namespace mill
