#pragma once

#include <string>

#include "platform/forms/form.h"

namespace mill {

/// Lets the user pick a directory, beginning at `start`. It is in `BrowseResult` then, which is
/// empty after Cancel.
void browseForDirectory(const char* caption, const std::string& start, forms::Form& owner);

/// Lets the user pick a palette file, beginning in the directory of the file `start`. Its directory
/// is in `BrowseResult` then and its name in `FileResult`, which is empty where none was picked;
/// both are empty after Cancel.
void browseForPalette(const std::string& start, forms::Form& owner);

}  // namespace mill
