#include "conversion/frm_preview_toolbar.h"

#include <QScreen>

#include <algorithm>
#include <cstdint>
#include <cstdlib>

#include "conversion/show_preview.h"
#include "picture/hooks.h"
#include "picture/program_state.h"
#include "platform/system/text.h"

namespace mill {

PreviewForm::PreviewForm()
    : Form({.Name = "frmPreviewToolbar",
            .Caption = "Preview",
            .Client = {4575, 3495},
            .BorderStyle = forms::Border::SizableTool}) {}

void PreviewForm::Form_Load() {
  hooks.fitPreview = [this](std::int32_t width, std::int32_t height) { fit(width, height); };
}

/// Gives the client area the picture's size, limited to the screen and to what one can take hold
/// of. The picture before is no longer shown.
void PreviewForm::fit(std::int32_t width, std::int32_t height) {
  constexpr QSize kLeast(32, 16);
  setImage({}, {});
  const QSize most = screen()->virtualSize();
  // Top-down bitmaps have a negative height.
  const std::int64_t rows = std::abs(std::int64_t{height});
  const QSize before = size();
  resize(std::clamp(width, kLeast.width(), most.width()),
         static_cast<int>(std::clamp<std::int64_t>(rows, kLeast.height(), most.height())));
  // Otherwise Qt calls it, but a hidden window's only once that is shown.
  if (size() == before || !isVisible()) Form_Resize();
}

void PreviewForm::Form_Resize() {
  Picture1->resize(client()->size());
  if (!state.PictureFileName.empty()) ShowPreview();
}

void PreviewForm::paintPreview(const QSize& part) {
  setImage(state.PreviewDC ? *state.PreviewDC : QImage(), part);
  repaint();
}

void PreviewForm::setImage(const QImage& image, const QSize& part) {
  const std::string name = image.isNull() ? "Preview" : "Preview of " + state.PictureFileName;
  Picture1->setAccessibleName(sys::shown(name));
  Picture1->showImage(image, part);
}

}  // namespace mill
