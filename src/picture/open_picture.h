#pragma once

#include <cstdint>
#include <functional>
#include <string>

namespace mill {

/// Gives the preview window the size of a picture of `width` × `height` pixels. The window puts
/// itself here when it is loaded.
inline std::function<void(std::int32_t width, std::int32_t height)> fitPreview;

/// Reads the picture file at `path` into the shared record. A refused file brings its message and
/// leaves the state as it was; `PictureFileName` tells: after an accepted file it is the file's
/// name.
void OpenPicture(const std::string& path);

}  // namespace mill
