#pragma once

#include <memory>
#include <string>

class QImage;

namespace mill {

/// Loads the bitmap file at `path`: at its own size with `ResizeFit`, else stretched to the preview
/// box. Null, after a message, if it can't be loaded.
std::shared_ptr<const QImage> LoadBitmapDC(const std::string& path);

/// Loads the temporary bitmap and paints it into the preview window.
void ShowPreview();

/// Writes the open picture to the temporary bitmap and shows it. If writing fails, the window and
/// `TempPicturePath` are cleared, since the file still holds another picture.
void renewPreview();

}  // namespace mill
