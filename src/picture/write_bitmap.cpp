#include "picture/write_bitmap.h"

#include <limits>

#include "formats/standard_bitmap.h"
#include "picture/conversion_progress.h"
#include "picture/program_state.h"
#include "picture/warn.h"
#include "platform/forms/application.h"
#include "platform/system/files.h"

namespace mill {

namespace {

bool writeFile(const std::string& path, RowOrder rows, Progress& progress) {
  const forms::Hourglass hourglass;
  const PictureRecord& record = state.PictureRecord;
  const std::int64_t size = standardBitmapSize(record, rows);
  // Width and height of a compressed bitmap can claim anything; no bitmap holds more than 2 GB.
  if (size > std::numeric_limits<std::int32_t>::max()) return false;
  forms::OutputFile file(path, size);
  if (!file.isOpen()) return false;
  const WriteBytes write = [&](std::span<const std::uint8_t> bytes) { return file.write(bytes); };
  return writeStandardBitmap(record, rows, write, progress) && file.close();
}

}  // namespace

bool WriteBitmap(const std::string& path) {
  if (forms::isSame(path, state.PictureSourceFile)) {
    warn(Fault::SameDirectory);
    return false;
  }
  Progress& progress = writingProgress();
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
