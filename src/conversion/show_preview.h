#pragma once

#include <memory>
#include <string>

class QImage;

namespace mill {

/// Loads the bitmap file at `path`: at its own size with `ResizeFit`, else stretched to the preview
/// box. Null, with a message, where it can't be loaded.
std::shared_ptr<const QImage> LoadBitmapDC(const std::string& path);

/// Loads the temporary bitmap and paints it into the preview window.
void ShowPreview();

/// Writes the open picture to the temporary bitmap and shows it. Where that fails the window is
/// left empty, and so is `TempPicturePath`, since the file holds another picture.
void renewPreview();

}  // namespace mill
