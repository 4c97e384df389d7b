#include "picture/write_bitmap.h"

#include "formats/standard_bitmap.h"
#include "picture/hooks.h"
#include "picture/program_state.h"
#include "picture/warn.h"
#include "platform/forms/hourglass.h"
#include "platform/system/files.h"

namespace mill {

namespace {

bool writeFile(const std::string& path, RowOrder rows, Progress& progress) {
  const forms::Hourglass hourglass;
  const PictureRecord& record = state.PictureRecord;
  sys::OutputFile file(path, standardBitmapSize(record, rows));
  if (!file.isOpen()) return false;
  const WriteBytes write = [&](std::span<const std::uint8_t> bytes) { return file.write(bytes); };
  return writeStandardBitmap(record, rows, write, progress) && file.close();
}

}  // namespace

bool WriteBitmap(const std::string& path) {
  if (sys::isSame(path, state.PictureSourceFile)) {
    warn(Fault::SameDirectory);
    return false;
  }
  Reports progress(hooks.incProgress);
  if (!state.RecordIsStandard) {
    fillOutputHeader(state.PictureRecord);
    progress.start(state.PictureRecord.bfSize);
  }
  state.PictureRecord.Colours = state.PaletteTable;
  const RowOrder rows = state.RecordIsStandard ? RowOrder::AsStored : RowOrder::BottomUp;
  if (writeFile(path, rows, progress)) return true;
  warn(Fault::Unwritable, path);
  return false;
}

}  // namespace mill
