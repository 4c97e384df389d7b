#pragma once

#include "conversion/picture_box.h"
#include "platform/forms/form.h"

namespace mill {

/// The preview: a box that fills the window and shows the temporary bitmap. With `ResizeFit` the
/// window takes the picture's size; without it the picture is stretched to the window.
class PreviewForm final : public forms::Form {
 public:
  PreviewForm();

  QSize boxSize() const { return Picture1->size(); }
  /// Shows the top left `part` of `PreviewDC`, or nothing if that is null.
  void paintPreview(const QSize& part);

  bool isShowing = false;  ///< while `ShowPreview` is running, including its message

 private:
  void Form_Load() override;
  void Form_Resize() override;
  void fit(std::int32_t width, std::int32_t height);
  void setImage(const QImage& image, const QSize& part);

  PictureBox* Picture1 = add<PictureBox>("Picture1", {0, 0, 4575, 3495});
};

inline forms::Global<PreviewForm> frmPreviewToolbar;

}  // namespace mill
