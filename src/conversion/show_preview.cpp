#include "conversion/show_preview.h"

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <utility>

#include "conversion/frm_preview_toolbar.h"
#include "picture/program_state.h"
#include "picture/temporary_files.h"
#include "picture/write_bitmap.h"
#include "platform/forms/application.h"
#include "platform/forms/msg_box.h"

namespace mill {

namespace {

/// The height of a bitmap whose rows run from the top is negative.
int rowsOf(const PictureRecord& record) {
  const std::int64_t rows = std::abs(std::int64_t{record.biHeight});
  return static_cast<int>(std::min<std::int64_t>(rows, INT32_MAX));
}

}  // namespace

std::unique_ptr<forms::Bitmap> LoadBitmapDC(const std::string& path) {
  const PixelSize box = frmPreviewToolbar->boxSize();
  if (!state.ResizeFit && (box.width == 0 || box.height == 0)) return nullptr;
  const PixelSize size = state.ResizeFit ? PixelSize{} : box;
  auto bitmap = forms::Bitmap::load(path, size.width, size.height);
  if (!bitmap) forms::MsgBox({.text = "error loading bitmap."});
  return bitmap;
}

void ShowPreview() {
  // Resizing the window while it has a message open brings no further ones.
  static bool showing = false;
  if (state.TempPicturePath.empty() || std::exchange(showing, true)) return;
  const forms::Hourglass hourglass;
  frmPreviewToolbar->paint(nullptr, {});
  state.PreviewDC.reset();
  state.PreviewDC = LoadBitmapDC(state.TempPicturePath);
  const PictureRecord& record = state.PictureRecord;
  frmPreviewToolbar->paint(state.PreviewDC.get(), state.ResizeFit
                                                      ? PixelSize{record.biWidth, rowsOf(record)}
                                                      : frmPreviewToolbar->boxSize());
  showing = false;
}

void renewPreview() {
  state.TempPicturePath = tempPicturePath();
  const bool written = WriteBitmap(state.TempPicturePath);
  if (state.PictureFileName.empty()) return;
  if (written) return ShowPreview();
  state.TempPicturePath.clear();
  state.PreviewDC.reset();
  frmPreviewToolbar->paint(nullptr, {});
}

}  // namespace mill
