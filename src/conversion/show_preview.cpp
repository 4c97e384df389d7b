#include "conversion/show_preview.h"

#include <cstdlib>

#include "conversion/frm_preview_toolbar.h"
#include "picture/program_state.h"
#include "platform/application.h"
#include "platform/msg_box.h"

namespace mill {

std::unique_ptr<forms::Bitmap> LoadBitmapDC(const std::string& path) {
  const PixelSize size = state.ResizeFit ? PixelSize{} : frmPreviewToolbar->boxSize();
  auto bitmap = forms::Bitmap::load(path, size.width, size.height);
  if (!bitmap) forms::MsgBox({.text = "error loading bitmap."});
  return bitmap;
}

void ShowPreview() {
  const forms::Hourglass hourglass;
  state.PreviewDC.reset();
  state.PreviewDC = LoadBitmapDC(state.TempPicturePath);
  const PictureRecord& record = state.PictureRecord;
  const PixelSize size = state.ResizeFit ? PixelSize{record.biWidth, std::abs(record.biHeight)}
                                         : frmPreviewToolbar->boxSize();
  frmPreviewToolbar->paint(state.PreviewDC.get(), size);
}

}  // namespace mill
