#include "conversion/frm_preview_toolbar.h"

#include <cstdint>
#include <cstdlib>

#include "conversion/show_preview.h"
#include "picture/open_picture.h"
#include "picture/program_state.h"
#include "platform/forms/application.h"

namespace mill {

PreviewForm::PreviewForm()
    : Form({.Name = "frmPreviewToolbar",
            .Caption = "Preview",
            .BorderStyle = forms::Border::SizableToolWindow,
            .Client = {4575, 3495}}) {}

void PreviewForm::Form_Load() {
  fitPreview = [this](std::int32_t width, std::int32_t height) {
    // A bitmap whose rows run from the top has a negative height.
    setClientSize(width, std::abs(std::int64_t{height}));
  };
}

void PreviewForm::Form_Unload() {
  fitPreview = {};
}

void PreviewForm::Form_Resize() {
  Picture1.setSize({ScaleWidth(), ScaleHeight()});
  if (!state.PictureFileName.empty()) ShowPreview();
}

PixelSize PreviewForm::boxSize() const {
  return {Picture1.ScaleWidth() / forms::Screen.TwipsPerPixelX(),
          Picture1.ScaleHeight() / forms::Screen.TwipsPerPixelY()};
}

void PreviewForm::paint(const forms::Bitmap* bitmap, PixelSize size) {
  Picture1.Cls();
  if (bitmap) Picture1.copy(*bitmap, size.width, size.height);
  Refresh();
}

}  // namespace mill
