#include "picture/load_palette.h"

#include <algorithm>
#include <array>

#include "formats/fault.h"
#include "formats/palette_file.h"
#include "picture/program_state.h"
#include "picture/warn.h"
#include "platform/forms/msg_box.h"
#include "platform/system/files.h"

namespace mill {

namespace {

Fault readFile(const std::string& path, std::string& head, ColourTable& colours) {
  if (!forms::isNormalFile(path)) return Fault::PaletteMissing;
  forms::InputFile file(path);
  if (!file.isOpen()) return Fault::PaletteUnreadable;
  std::array<std::uint8_t, kPaletteFileSize> bytes{};
  const auto size = static_cast<std::size_t>(std::min<std::int64_t>(file.size(), bytes.size()));
  const auto there = std::span(bytes).first(size);
  if (!file.read(there)) return Fault::PaletteUnreadable;
  return readPalette(there, head, colours);
}

bool writeFile(const std::string& path, const ColourTable& colours) {
  const auto bytes = paletteBytes(state.PaletteHeader, colours);
  forms::OutputFile file(path, static_cast<std::int64_t>(bytes.size()));
  return file.isOpen() && file.write(bytes) && file.close();
}

}  // namespace

bool readPaletteFile(const std::string& path, std::string& head, ColourTable& colours) {
  const Fault fault = readFile(path, head, colours);
  if (fault == Fault::PaletteUnreadable) {
    warn(fault, path);
  } else if (fault != Fault::None) {
    forms::MsgBox({.text = std::string(message(fault))});
  }
  return fault == Fault::None || fault == Fault::PaletteIncomplete;
}

bool writePaletteFile(const std::string& path, const ColourTable& colours) {
  if (writeFile(path, colours)) return true;
  warn(Fault::PaletteUnwritable, path);
  return false;
}

void LoadPalette() {
  const bool read =
      readPaletteFile(state.CurrentPaletteFile, state.PaletteHeader, state.PaletteTable);
  if (read && state.ShowPal && updateSwatches) updateSwatches();
}

bool SavePalette() {
  return writePaletteFile(state.CurrentPaletteFile, state.PaletteTable);
}

}  // namespace mill
