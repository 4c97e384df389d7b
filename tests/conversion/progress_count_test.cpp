#include "conversion/progress_count.h"

#include <gtest/gtest.h>

#include <utility>
#include <vector>

namespace mill {
namespace {

/// What a bar shows, one value after the other, without repeats.
struct Bar {
  std::vector<std::int32_t> values;
  ProgressCount count;
  void report(std::int16_t num, std::int32_t times) {
    count.report(num, times, [this](std::int32_t percent) {
      if (values.empty() || values.back() != percent) values.push_back(percent);
    });
  }
};

TEST(ProgressCount, ManyReportsInOneStepShowWhatSingleReportsWould) {
  for (const std::int32_t total :
       {-5, 0, 1, 3, 7, 44, 99, 100, 101, 199, 200, 201, 640, 1122, 65'535, 307'244, INT32_MAX}) {
    for (const auto& [num, times] : std::vector<std::pair<std::int16_t, std::int32_t>>{
             {68, 1}, {1, 0}, {1, 1}, {1, 50}, {1, 40'000}, {4, 256}, {68, 300}}) {
      Bar many, single;
      many.count.total = single.count.total = total;
      // Twice, so that the second batch begins in the middle of a percentage.
      for (int batch = 0; batch < 2; ++batch) {
        many.report(num, times);
        for (std::int32_t i = 0; i < times; ++i) single.report(num, 1);
      }
      ASSERT_EQ(many.values, single.values) << num << " times " << times << " of " << total;
      ASSERT_EQ(many.count.current, single.count.current);
      ASSERT_EQ(many.count.progress, single.count.progress);
    }
  }
}

TEST(ProgressCount, RoundsAndStaysInRange) {
  struct Case {
    std::int32_t total, amount, percent;
  };
  const Case cases[] = {{200, 1, 0},   {200, 3, 2}, {1000, 6, 1}, {300, 100, 33},
                        {44, 68, 100}, {0, 500, 0}, {-9, 500, 0}};
  for (const Case& c : cases) {
    Bar bar;
    bar.count.total = c.total;
    bar.report(1, c.amount);
    EXPECT_EQ(bar.values.back(), c.percent) << c.amount << " of " << c.total;
  }
}

}  // namespace
}  // namespace mill
