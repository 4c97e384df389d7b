#include "palette/number_text.h"

#include <algorithm>
#include <cctype>
#include <charconv>
#include <cmath>

namespace mill {

namespace {

bool beginsNumber(std::string_view text) {
  if (text.starts_with('.')) text.remove_prefix(1);
  return !text.empty() && std::isdigit(static_cast<unsigned char>(text.front()));
}

}  // namespace

int numberOf(std::string_view text, int lowest, int highest) {
  text.remove_prefix(std::min(text.find_first_not_of(' '), text.size()));
  const bool negative = text.starts_with('-');
  if (negative || text.starts_with('+')) text.remove_prefix(1);
  double number = 0;
  // from_chars would also accept words such as "inf".
  if (beginsNumber(text)) {
    const auto end = text.data() + text.size();
    const auto result = std::from_chars(text.data(), end, number, std::chars_format::fixed);
    // Out of range means too large or too close to 0; the digits before the point tell which.
    const bool large = text.find_first_of("123456789") < text.find_first_not_of("0123456789");
    if (result.ec == std::errc::result_out_of_range) number = large ? HUGE_VAL : 0;
  }
  const double whole = std::nearbyint(negative ? -number : number);
  return static_cast<int>(std::clamp<double>(whole, lowest, highest));
}

}  // namespace mill
