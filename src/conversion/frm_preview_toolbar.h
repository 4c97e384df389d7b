#pragma once

#include "platform/forms/bitmap.h"
#include "platform/forms/form.h"
#include "platform/forms/picture_box.h"

namespace mill {

struct PixelSize {
  int width = 0;
  int height = 0;
};

/// The preview: a box that fills the window and shows the temporary bitmap. With `ResizeFit` the
/// window takes the picture's size; without it the picture is stretched to the window.
class PreviewForm final : public forms::Form {
 public:
  PreviewForm();

  /// The size of the picture box.
  PixelSize boxSize() const;
  /// Shows the bitmap's top left `size`; nothing where there is no bitmap.
  void paint(const forms::Bitmap* bitmap, PixelSize size);

 private:
  void Form_Load() override;
  void Form_Unload() override;
  void Form_Resize() override;

  forms::PictureBox Picture1{*this, "Picture1", {0, 0, 4575, 3495}};
};

inline forms::Global<PreviewForm> frmPreviewToolbar;

}  // namespace mill
