#pragma once

#include <string_view>

namespace mill {

/// The whole number that a text stands for: the decimal number at its start, without exponents, a
/// fraction rounded to the nearest whole number, a half to the even neighbour. Text that doesn't
/// begin with a number counts as 0. What is beyond `lowest` and `highest` counts as these.
int numberOf(std::string_view text, int lowest, int highest);

}  // namespace mill
