#pragma once

#include <string>

#include "platform/forms/form.h"

namespace mill {

/// Lets the user pick a directory, starting at `start`. The result is in `BrowseResult`; it is
/// empty after Cancel.
void browseForDirectory(const char* caption, const std::string& start, forms::Form& owner);

/// Lets the user pick a palette file, starting in the directory of the file `start`. The directory
/// ends up in `BrowseResult` and the name in `FileResult`, which is empty if no file was picked.
/// Both are empty after Cancel.
void browseForPalette(const std::string& start, forms::Form& owner);

}  // namespace mill
