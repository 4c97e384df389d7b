#include "formats/progress_count.h"

#include <gtest/gtest.h>

#include <utility>
#include <vector>

namespace mill {
namespace {

using Reports = std::pair<std::int16_t, std::int32_t>;

TEST(ProgressCount, ReportsInOneStepShowTheValuesOfSingleReportsOnce) {
  for (const std::int32_t total : {-5, 0, 3, 44, 199, 200, 201, 1122, 307'244, INT32_MAX}) {
    for (const auto& [num, times] : {Reports(68, 1), {1, 50}, {1, 40'000}, {4, 256}}) {
      ProgressCount together, single;
      together.total = single.total = total;
      // Twice, so that the second step begins in the middle of a percentage.
      for (const int step : {1, 2}) {
        std::vector<int> shown, expected;
        together.report(num, times, [&](int percent) { shown.push_back(percent); });
        for (int i = 0; i < times; ++i) {
          single.report(num, 1, [&](int percent) {
            if (expected.empty() || expected.back() != percent) expected.push_back(percent);
          });
        }
        ASSERT_EQ(shown, expected) << num << " times " << times << " of " << total;
        const double exact = total > 0 ? 100.0 * num * times * step / total : 0;
        ASSERT_NEAR(shown.back(), std::min(exact, 100.0), 0.5 + 1e-9);
      }
    }
  }
}

}  // namespace
}  // namespace mill
