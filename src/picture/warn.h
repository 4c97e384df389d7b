#pragma once

#include <string>

#include "formats/fault.h"

namespace mill {

/// The title of warnings.
inline constexpr const char* kWarning = "Warning!";

/// Shows a failure to the user.
void warn(const std::string& text);

/// Shows the message of `fault` to the user, with `path`, if given, on a line of its own.
void warn(Fault fault, const std::string& path = {});

}  // namespace mill
