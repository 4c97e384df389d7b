#include "picture/load_palette.h"

#include <algorithm>
#include <vector>

#include "formats/palette_file.h"
#include "picture/hooks.h"
#include "picture/program_state.h"
#include "picture/warn.h"
#include "platform/system/file_io.h"
#include "platform/system/files.h"
#include "platform/system/paths.h"

namespace mill {

namespace {

/// Fills `read` with the bytes of the file, at most those of a whole palette.
Fault readFile(const std::string& path, std::vector<std::uint8_t>& read) {
  sys::InputFile file(path);
  if (!file.isOpen()) {
    return sys::isNormalFile(path) ? Fault::PaletteUnreadable : Fault::PaletteMissing;
  }
  read.resize(static_cast<std::size_t>(std::min<std::int64_t>(file.size(), kPaletteFileSize)));
  return file.read(read) ? Fault::None : Fault::PaletteUnreadable;
}

bool writeFile(const std::string& path, const ColourTable& colours) {
  const auto bytes = paletteBytes(state.PaletteHeader, colours);
  const sys::DirectoryHold hold(std::string(sys::directoryOf(path)));
  sys::OutputFile file(path, sys::Tail::Keep);
  return file.isOpen() && file.write(bytes) && file.commit();
}

}  // namespace

PaletteRead readPaletteFile(const std::string& path, std::string& head, ColourTable& colours) {
  std::vector<std::uint8_t> bytes;
  Fault fault = readFile(path, bytes);
  const bool hasHead = fault == Fault::None && bytes.size() >= kPaletteHeadSize;
  if (fault == Fault::None) fault = readPalette(bytes, head, colours);
  if (fault == Fault::PaletteUnreadable) {
    warn(fault, path);
  } else if (fault != Fault::None) {
    std::string where = path;
    if (path == state.DefaultPalette) {
      where += "\nThis is the default palette. You can choose another one.";
    }
    hooks.tell({.text = std::string(message(fault)), .informative = where});
  }
  return {fault, hasHead};
}

bool writePaletteFile(const std::string& path, const ColourTable& colours) {
  if (writeFile(path, colours)) return true;
  warn(Fault::PaletteUnwritable, path);
  return false;
}

Fault LoadPalette() {
  const auto [fault, isRead] =
      readPaletteFile(state.CurrentPaletteFile, state.PaletteHeader, state.PaletteTable);
  if (isRead && state.ShowPal) hooks.updateSwatches();
  return fault;
}

bool SavePalette() {
  return writePaletteFile(state.CurrentPaletteFile, state.PaletteTable);
}

}  // namespace mill
