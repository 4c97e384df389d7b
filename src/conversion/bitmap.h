#pragma once

#include <memory>
#include <string>

class QImage;

namespace mill {

/// Loads a bitmap file at its own size, or stretched to `width` × `height` pixels where these
/// aren't both 0, each axis by itself and without mixing colours. Null where it can't be loaded.
std::shared_ptr<const QImage> loadBitmap(const std::string& path, int width, int height);

}  // namespace mill
