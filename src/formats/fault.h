#pragma once

#include <string_view>

namespace mill {

/// What can go wrong when pictures and palettes are read or written. Each fault has one message.
enum class Fault {
  None,
  PictureMissing,
  NotABitmap,
  PictureDamaged,
  PictureUnreadable,
  WrongDepth,
  WrongShape,
  Unwritable,
  SameDirectory,
  PaletteMissing,
  PaletteIncomplete,
  PaletteUnreadable,
  PaletteUnwritable,
  PaletteListMissing,
  NotAPaletteList,
};

/// The message for the user; empty for `Fault::None`.
std::string_view message(Fault fault);

}  // namespace mill
