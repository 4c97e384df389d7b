#pragma once

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <utility>

namespace mill {

/// The progress of a read or write, as a percentage for a progress bar.
class ProgressCount {
 public:
  std::int32_t progress = 0;  ///< last percentage shown, 0 to 100
  std::int32_t total = 0;     ///< the amount that counts as 100 percent
  std::int32_t current = 0;   ///< amount reported so far

  /// Makes `times` reports of `num` each, which must be above 0. Calls `show` with every percentage
  /// that single reports would produce, in the same order, but only once for a run of equal ones:
  /// reporting every byte of a picture then costs a hundred steps instead of a million.
  template <class Show>
  void report(std::int16_t num, std::int32_t times, Show show) {
    if (times <= 0) return;
    current += num;
    progress = percentOf(current, total);
    show(progress);
    std::int64_t amount = current;
    const std::int64_t last = amount + std::int64_t{num} * (times - 1);
    const Thresholds& reached = thresholds();
    while (total > 0 && progress < 100 && reached[progress + 1] <= last) {
      const std::int64_t missing = reached[progress + 1] - amount;
      amount += (missing + num - 1) / num * num;
      while (progress < 100 && reached[progress + 1] <= amount) ++progress;
      show(progress);
    }
    current = static_cast<std::int32_t>(last);
  }

 private:
  /// The smallest amount for each percentage but 0.
  struct Thresholds {
    std::int32_t total = 0;
    std::array<std::int64_t, 101> amounts{};

    std::int64_t operator[](std::int32_t percent) const {
      return amounts[static_cast<std::size_t>(percent)];
    }
  };

  static std::int32_t percentOf(std::int64_t amount, std::int32_t total) {
    if (total <= 0) return 0;
    const double percent =
        std::nearbyint(static_cast<double>(amount) / static_cast<double>(total) * 100);
    return static_cast<std::int32_t>(std::clamp(percent, 0.0, 100.0));
  }

  static Thresholds findThresholds(std::int32_t total) {
    Thresholds found{.total = total};
    for (int percent = 1; total > 0 && percent <= 100; ++percent) {
      // Rounding may put the estimate off by one.
      auto amount = static_cast<std::int64_t>((percent - 0.5) / 100 * total) - 1;
      while (percentOf(amount, total) < percent) ++amount;
      found.amounts[static_cast<std::size_t>(percent)] = amount;
    }
    return found;
  }

  /// Those of the last two totals are kept, since a run of pictures of one size alternates between
  /// the size that is read and the size that is written.
  const Thresholds& thresholds() {
    if (thresholds_[0].total != total) std::swap(thresholds_[0], thresholds_[1]);
    if (thresholds_[0].total != total) thresholds_[0] = findThresholds(total);
    return thresholds_[0];
  }

  std::array<Thresholds, 2> thresholds_;
};

}  // namespace mill
