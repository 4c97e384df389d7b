#pragma once

#include <memory>
#include <string>

class QImage;

namespace mill {

/// Loads a bitmap file of this program at its own size or, unless both are 0, stretched to `width`
/// × `height` pixels, without mixing colours. Null if it can't be loaded, or memory runs out.
std::shared_ptr<const QImage> loadBitmap(const std::string& path, int width, int height);

}  // namespace mill
