#pragma once

#include <string>

#include "formats/fault.h"

namespace mill {

/// The title of messages that tell or ask of something wrong.
inline constexpr const char* kWarning = "Warning!";

/// Tells the user of something that has failed.
void warn(const std::string& text);

/// Tells the user of `fault`, with the path of the file in question on a line of its own where one
/// is given.
void warn(Fault fault, const std::string& path = {});

}  // namespace mill
