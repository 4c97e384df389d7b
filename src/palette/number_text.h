#pragma once

#include <string_view>

namespace mill {

/// The decimal number at the start of a text, without exponent, rounded half to even and limited to
/// `lowest` and `highest`. Text that doesn't begin with a number counts as 0.
int numberOf(std::string_view text, int lowest, int highest);

}  // namespace mill
