#include "conversion/show_preview.h"

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <utility>

#include "conversion/bitmap.h"
#include "conversion/frm_preview_toolbar.h"
#include "picture/program_state.h"
#include "picture/temporary_files.h"
#include "picture/write_bitmap.h"
#include "platform/forms/hourglass.h"
#include "platform/forms/msg_box.h"

namespace mill {

namespace {

QSize sizeOf(const PictureRecord& record) {
  // Top-down bitmaps have a negative height.
  const std::int64_t rows = std::abs(std::int64_t{record.biHeight});
  return {record.biWidth, static_cast<int>(std::min<std::int64_t>(rows, INT32_MAX))};
}

void clearPreview() {
  state.PreviewDC.reset();
  frmPreviewToolbar->paintPreview({});
}

}  // namespace

std::shared_ptr<const QImage> LoadBitmapDC(const std::string& path) {
  const QSize box = frmPreviewToolbar->boxSize();
  if (!state.ResizeFit && box.isEmpty()) return nullptr;
  const QSize size = state.ResizeFit ? QSize(0, 0) : box;
  auto bitmap = loadBitmap(path, size.width(), size.height());
  if (!bitmap) forms::MsgBox({.text = "error loading bitmap."});
  return bitmap;
}

void ShowPreview() {
  // Resizing the window while its message is open must not show another one.
  bool& isShowing = frmPreviewToolbar->isShowing;
  if (state.TempPicturePath.empty() || isShowing) return;
  clearPreview();
  if (!state.TempPictureIsCurrent) return;
  isShowing = true;
  const forms::Hourglass hourglass;
  state.PreviewDC = LoadBitmapDC(state.TempPicturePath);
  frmPreviewToolbar->paintPreview(state.ResizeFit ? sizeOf(state.PictureRecord)
                                                  : frmPreviewToolbar->boxSize());
  isShowing = false;
}

void renewPreview() {
  const sys::DirectoryHold hold(temporaryDirectory());
  const std::string path = tempPicturePath();
  state.TempPicturePath.clear();  // nothing to show while a message is open
  const bool isWritten = WriteBitmap(path, sys::Tail::Drop);
  if (isWritten) state.TempPicturePath = path;
  state.TempPictureIsCurrent = isWritten;
  if (state.PictureFileName.empty()) return;
  isWritten ? ShowPreview() : clearPreview();
}

}  // namespace mill
