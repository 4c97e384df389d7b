#include "palette/number_text.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

namespace mill {
namespace {

TEST(NumberText, IsTheNumberAtTheStartWithinItsRange) {
  const std::string zeros(400, '0'), nines(400, '9');
  const std::pair<int, std::vector<std::string>> cases[] = {
      {0, {"", " ", "-", ".", "abc", "+-7", "0.5", "0x10", "inf", "-infinity", "nan", "e5"}},
      {0, {"0." + zeros + "1"}},
      {1, {".6", "1,5", "1e2"}},
      {2, {"1.5", "2.5"}},
      {7, {"7", "007", "+7", "7.", zeros + "7"}},
      {12, {"12abc", "12 34", " 12"}},
      {-2, {"-2.5"}},
      {1000, {nines, "1001"}},
      {-1000, {"-" + nines}}};
  for (const auto& [number, texts] : cases) {
    for (const std::string& text : texts) {
      EXPECT_EQ(numberOf(text, -1000, 1000), number) << text;
      EXPECT_EQ(numberOf(text, 0, 255), std::clamp(number, 0, 255)) << text;
    }
  }
}

}  // namespace
}  // namespace mill
