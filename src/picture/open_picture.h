#pragma once

#include <string>

namespace mill {

/// Reads the picture file at `path` into the shared record. A refused file brings its message and
/// leaves the state as it was; `PictureFileName` tells: after an accepted file it is the file's
/// name.
void OpenPicture(const std::string& path);

}  // namespace mill
