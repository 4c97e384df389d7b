#include "palette/load_palette.h"

#include <algorithm>
#include <array>

#include "palette/palette_file.h"
#include "picture/program_state.h"
#include "picture/warn.h"
#include "platform/files.h"
#include "platform/msg_box.h"

namespace mill {

namespace {

void tell(Fault fault) {
  forms::MsgBox({.text = std::string(message(fault))});
}

Fault readCurrentPalette() {
  if (!forms::isNormalFile(state.CurrentPaletteFile)) return Fault::PaletteMissing;
  forms::InputFile file(state.CurrentPaletteFile);
  if (!file.isOpen()) return Fault::PaletteUnreadable;
  std::array<std::uint8_t, kPaletteFileSize> bytes{};
  const auto size = static_cast<std::size_t>(std::min<std::int64_t>(file.size(), bytes.size()));
  const auto there = std::span(bytes).first(size);
  if (!file.read(there)) return Fault::PaletteUnreadable;
  return readPalette(there, state.PaletteHeader, state.PaletteTable);
}

bool writeCurrentPalette() {
  const auto bytes = paletteBytes(state.PaletteHeader, state.PaletteTable);
  forms::OutputFile file(state.CurrentPaletteFile, static_cast<std::int64_t>(bytes.size()));
  return file.isOpen() && file.write(bytes) && file.close();
}

}  // namespace

void LoadPalette() {
  const Fault fault = readCurrentPalette();
  if (fault != Fault::None) tell(fault);
  const bool changed = fault == Fault::None || fault == Fault::PaletteIncomplete;
  if (changed && state.ShowPal && updateSwatches) updateSwatches();
}

void SavePalette() {
  if (writeCurrentPalette()) return;
  warn(Fault::PaletteUnwritable, state.CurrentPaletteFile);
}

}  // namespace mill
