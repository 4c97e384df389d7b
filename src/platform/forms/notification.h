#pragma once

#include <string>

namespace forms {

/// Tells the user something by way of the desktop, unless a window of the program is in front.
/// Nothing happens where the desktop has no service for that. Doesn't wait.
void notify(const std::string& text);

}  // namespace forms
