#include "picture/write_bitmap.h"

#include "formats/standard_bitmap.h"
#include "picture/hooks.h"
#include "picture/program_state.h"
#include "picture/warn.h"
#include "platform/forms/hourglass.h"

namespace mill {

namespace {

Fault writeFile(const std::string& path, sys::Tail tail, Progress& progress) {
  const forms::Hourglass hourglass;
  const RowOrder rows = state.RecordIsStandard ? RowOrder::AsStored : RowOrder::BottomUp;
  sys::OutputFile file(path, tail);
  if (!file.isOpen()) return Fault::Unwritable;
  if (file.wouldReplace(state.PictureSourceFile)) return Fault::SameDirectory;
  const WriteBytes write = [&](std::span<const std::uint8_t> bytes) { return file.write(bytes); };
  const bool isWritten = writeStandardBitmap(state.PictureRecord, rows, write, progress);
  return isWritten && file.commit() ? Fault::None : Fault::Unwritable;
}

}  // namespace

bool WriteBitmap(const std::string& path, sys::Tail tail) {
  Reports progress(hooks.incProgress);
  if (!state.RecordIsStandard) {
    fillOutputHeader(state.PictureRecord);
    progress.start(state.PictureRecord.bfSize);
  }
  state.PictureRecord.Colours = state.PaletteTable;
  const Fault fault = writeFile(path, tail, progress);
  if (fault == Fault::None) return true;
  warn(fault, fault == Fault::Unwritable ? path : std::string());
  return false;
}

}  // namespace mill
