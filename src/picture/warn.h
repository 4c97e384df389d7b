#pragma once

#include <string>

#include "picture/fault.h"

namespace mill {

/// The title of messages that tell of something wrong.
inline constexpr const char* kWarning = "Warning!";

/// Tells the user of `fault`, with the path of the file in question on a line of its own where one
/// is given.
void warn(Fault fault, const std::string& path = {});

}  // namespace mill
